# A whole task, played by itself: pipette, burette, answers, the tutor, the comparison, the mark.
name Mia
size 1366x768
start
wait 2
screenshot 01-start.png
choose SSTab1 3
wait 2
screenshot 02-selbst-rechnen.png
check opt_NeedCalc off
wait 1
click ctl_Button3
wait 2
click ctl_Button1
wait 2.2
screenshot 03-pipette.png
settle
click but_Calc
wait 1
type txt_Ph 0
wait 1
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
wait 0.6
screenshot 04-tropfen.png
settle
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
wait 1
type txt_Ph 0,5
answer yes
wait 1
click but_CalcDone
wait 1
type txt_Calc(3) 0,01
wait 1
key ENTER
type txt_Calc(6) 0,005
wait 1
key ENTER
click opt_Calc(0)
wait 1
click but_CalcStep(7)
answer value 0,333
wait 1
click but_CalcPH(10)
wait 1
key ENTER
type txt_Calc(12) 0,48
wait 1
screenshot 05-rechenhilfe.png
key ENTER
wait 2
screenshot 06-vergleich.png
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
click but_Calc
wait 1
type txt_Ph 7,00
wait 1
screenshot 07-aequivalenzpunkt.png
key ENTER
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
wait 1
type txt_Ph 12,96
wait 1
key ENTER
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
wait 1
type txt_Ph 13,52
key ENTER
wait 2
screenshot 08-ergebnis.png
click bar_Buttons
wait 1
click but_phCompare
wait 2
screenshot 09-kurve.png
click ctl_CmdBar1
menu mnu_FileQuit
expect ended
