# Points on a curve that a class has measured.
name Mia
data data
size 1024x768
start
choose SSTab1 3
check opt_NeedCalc off
click ctl_Button3
click ctl_Button1
settle
click but_Calc
type txt_Ph -0,00
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 0,27
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 0,60
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 1,28
key ENTER
click ctl_Button3
settle
click but_Calc
type txt_Ph 7,00
key ENTER
click ctl_Button3
settle
click but_Calc
type txt_Ph 12,68
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 13,22
key ENTER
click but_phCompare
screenshot own-curve.png
close
menu mnu_FileQuit
expect ended
