# Chloride with silver ions at the silver electrode, and the crystal through the glass.
name Mia
size 1024x768
start
choose SSTab1 2
click ctl_Button17
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
wait 0.3
screenshot silver.png
click but_CalcStep(12)
command ctl_CmdBar1 "DIALOG.OK();"
click but_ShowMag
wait 12
screenshot silver-lens.png
key ESC
wait 3
menu mnu_FileQuit
expect ended
