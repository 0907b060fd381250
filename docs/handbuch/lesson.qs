# The first lesson: the strong acid at 1.0 mol/L from the start dialog to the mark.
name Mia
size 1024x768
start
wait 3.7
screenshot start.png
choose SSTab1 1
screenshot animations.png
choose SSTab1 3
screenshot settings.png
click ctl_Button3
wait 0.5
click ctl_Button1
settle
click but_Calc
type txt_Ph 0
key ENTER
click ctl_Button3
settle
click but_Calc
type txt_Ph 0,2
answer no
key ENTER
type txt_Ph 0,09
wait 0.3
screenshot answer.png
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 0,48
key ENTER
click ctl_Button3
settle
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
type txt_Ph 7
key ENTER
click ctl_Button3
settle
click but_Calc
type txt_Ph 11
answer yes
key ENTER
type txt_Calc(3) 0,01
key ENTER
type txt_Calc(6) 0,011
key ENTER
click opt_Calc(1)
click but_CalcStep(7)
type txt_Calc(10) 0,1
key ENTER
type txt_Calc(10) 0,09
answer yes
key ENTER
type txt_Calc(8) 0,001
key ENTER
type txt_Calc(9) 0,021
key ENTER
type txt_Calc(10) 0,048
key ENTER
type txt_Calc(11) 1,32
wait 0.3
screenshot tutor.png
key ENTER
type txt_Calc(12) 12,68
key ENTER
screenshot comparison.png
click ctl_CmdBar1
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
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 13,52
key ENTER
wait 1
screenshot result.png
click bar_Buttons
click but_Help
screenshot help.png
close
menu mnu_FileQuit
expect ended
