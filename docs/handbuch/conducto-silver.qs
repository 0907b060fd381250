# Conductivity of chloride: the learner's points and the fitted lines.
name Mia
size 1024x768
start
choose SSTab1 3
check opt_NeedCalc off
click ctl_Button11
command bar_Buttons DIALOG.OK();
click ctl_Button1
settle
click but_Calc
type txt_Ph 12,65
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 12,30
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 11,98
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 11,66
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 11,35
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 11,05
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 13,24
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 15,34
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 17,38
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 19,36
key ENTER
wait 0.3
screenshot conducto-silver.png
menu mnu_FileQuit
expect ended
