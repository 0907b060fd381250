# Takes the pictures of this folder at 1920x1080; see tools/make_screenshots.sh.
name Mia
size 1920x1080
start
wait 1
choose SSTab1 3
check opt_NeedCalc off
choose lst_Mol 0.8
click ctl_Button3
click ctl_Button1
wait 2.4
screenshot pipette-1920.png
settle
click but_Calc
type txt_Ph 0,10
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 0,42
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 0,70
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 7,00
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
type txt_Ph 12
answer yes
click but_CalcDone
type txt_Calc(3) 0,08
key ENTER
answer yes
key ENTER
type txt_Calc(1) 0,8
key ENTER
type txt_Calc(2) 0,01
key ENTER
type txt_Calc(3) 0,008
key ENTER
type txt_Calc(6) 12
key ENTER
answer yes
key ENTER
type txt_Calc(4) 1
key ENTER
type txt_Calc(5) 0,012
key ENTER
type txt_Calc(6) 0,012
key ENTER
click opt_Calc(1)
click but_CalcStep(7)
type txt_Calc(10) 1
key ENTER
answer yes
key ENTER
type txt_Calc(8) 0,004
key ENTER
type txt_Calc(9) 0,022
key ENTER
type txt_Calc(10) 0,182
key ENTER
type txt_Calc(11) 0,74
key ENTER
wait 1
screenshot tutor-1920.png
type txt_Calc(12) 13,26
key ENTER
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
click but_Calc
type txt_Ph 13,60
key ENTER
click bar_Buttons
menu mnu_FileQuit
expect ended
