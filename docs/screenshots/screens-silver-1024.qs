# The tutor in each tail of the silver titration, with all details, as a demo shows them.
name Mia
size 1024x768
start
choose SSTab1 2
click ctl_Button17
screenshot silver-start-1024.png
click bar_Buttons
click ctl_Button1
settle
answer no
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
click but_CalcStep(1)
click but_CalcStep(2)
click but_CalcStep(3)
click but_CalcStep(4)
click but_CalcStep(5)
click but_CalcStep(6)
click but_CalcStep(7)
click but_CalcStep(8)
click but_CalcStep(9)
click but_CalcStep(10)
click but_CalcStep(11)
screenshot silver-chloride-1024.png
click but_CalcStep(12)
command ctl_CmdBar1 "DIALOG.OK();"
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
click but_CalcStep(1)
click but_CalcStep(2)
click but_CalcStep(3)
click but_CalcStep(4)
click but_CalcStep(5)
click but_CalcStep(6)
click but_CalcStep(7)
click but_CalcStep(8)
click but_CalcStep(11)
screenshot silver-equivalence-1024.png
click but_CalcStep(12)
command ctl_CmdBar1 "DIALOG.OK();"
answer no
click ctl_Button3
settle
answer no
click ctl_Button3
settle
click but_Calc
click but_CalcStep(1)
click but_CalcStep(2)
click but_CalcStep(3)
click but_CalcStep(4)
click but_CalcStep(5)
click but_CalcStep(6)
click but_CalcStep(7)
click but_CalcStep(8)
click but_CalcStep(9)
click but_CalcStep(10)
screenshot silver-silver-1024.png
click but_CalcStep(12)
command ctl_CmdBar1 "DIALOG.OK();"
