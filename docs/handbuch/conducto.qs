# Conductivity of hydrochloric acid: the learner's points and the fitted lines.
name Mia
size 1024x768
start
choose SSTab1 3
check opt_NeedCalc off
click ctl_Button9
wait 0.5
screenshot conducto-start.png
command bar_Buttons DIALOG.OK();
click ctl_Button1
settle
click but_Calc
type txt_Ph 42,62
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 35,91
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 29,46
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 23,25
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 17,26
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 11,50
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 15,74
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 19,82
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 23,77
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 27,57
key ENTER
click ctl_Button3
settle
click but_Calc
click but_HelpCalc
type txt_Calc(1) 119
key ENTER
type txt_Calc(2) 0
answer preset 1
click but_CalcPH(2)
key ENTER
type txt_Calc(3) 10
answer preset 1
click but_CalcPH(3)
key ENTER
type txt_Calc(4) 19
answer preset 1
click but_CalcPH(4)
wait 0.3
screenshot conducto-tutor.png
key ENTER
type txt_Calc(5) 9
answer preset 1
click but_CalcPH(5)
key ENTER
answer preset 1
click but_CalcPH(6)
key ENTER
click but_CalcStep(6)
wait 0.3
screenshot conducto.png
menu mnu_FileQuit
expect ended
