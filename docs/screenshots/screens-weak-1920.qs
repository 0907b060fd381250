# The tutor in each tail of the weak acid, with all details, as a demo shows them.
name Mia
size 1920x1080
start
choose SSTab1 2
click ctl_Button16
click ctl_Button1
settle
click but_Calc
click but_CalcStep(7)
screenshot weak-acid-1920.png
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
click but_CalcStep(9)
click but_CalcStep(10)
screenshot weak-buffer-1920.png
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
click but_CalcStep(9)
click but_CalcStep(10)
screenshot weak-base-1920.png
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
click but_CalcStep(11)
screenshot weak-excess-1920.png
click but_CalcStep(12)
command ctl_CmdBar1 "DIALOG.OK();"
