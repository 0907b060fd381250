# Conductivity of acetic acid: the learner's points and the fitted lines.
name Mia
size 1024x768
start
choose SSTab1 3
check opt_NeedCalc off
click but_CunductoWeak
command bar_Buttons DIALOG.OK();
click ctl_Button1
settle
click but_Calc
type txt_Ph 0,46
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 1,78
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 3,50
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 5,16
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 6,74
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 8,27
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 12,57
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 16,71
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 20,71
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 24,57
key ENTER
wait 0.3
screenshot conducto-weak.png
menu mnu_FileQuit
expect ended
