# Weak acid: mL by mL as fast as the tap opens, then a calculation at once.
name Mia
start
choose SSTab1 3
choose lst_Mol 1.4
check opt_NeedCalc off
click ctl_Button4
expect form frm_AppMainWeak
expect nobox
expect session.SessionConcentration == 1.4
expect session.SessionDemo == false
expect session.SessionRequiredPoints == ""
click ctl_Button1
settle
expect form.vVol == 10
click ctl_Button3
until session.SessionBusy == false
click ctl_Button3
until session.SessionBusy == false
click ctl_Button3
until session.SessionBusy == false
click ctl_Button3
until session.SessionBusy == false
click ctl_Button3
until session.SessionBusy == false
expect form.sClicks == 5
expect drops.count != 0
click but_Calc
until frm_CalcDirect.visible == true 15
expect form.vVol == 15
expect form.vCase == 2
expect beaker.countsort(10) == 9
expect beaker.countsort(9) == 0
type txt_Ph 4,505
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 0
expect series(1).count == 1
expect series(1).x(1) == 5
expect series(1).y(1) ~= 4.505 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 1
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 4,505
click ctl_Button3
until session.SessionBusy == false
click ctl_Button3
until session.SessionBusy == false
click ctl_Button3
until session.SessionBusy == false
click ctl_Button3
until session.SessionBusy == false
click ctl_Button3
until session.SessionBusy == false
click ctl_Button3
until session.SessionBusy == false
click ctl_Button3
until session.SessionBusy == false
click ctl_Button3
until session.SessionBusy == false
click ctl_Button3
until session.SessionBusy == false
expect form.sClicks == 14
expect drops.count != 0
click but_Calc
until frm_CalcDirect.visible == true 15
expect form.vVol == 24
expect form.vCase == 3
expect beaker.countsort(10) == 0
expect beaker.countsort(9) == 0
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
type txt_Calc(3) 0,014
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,014
key ENTER
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect but_CalcStep(7).focus == true
expect form.vTries == 0
click opt_Calc(2)
click but_CalcStep(7)
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 0,583
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 9,26
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 0
expect series(1).count == 2
expect series(1).x(2) == 14
expect series(1).y(2) ~= 9.262958396983315 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 2
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 14
expect lab_pH.text == 9,26
click ctl_Button3
until session.SessionBusy == false
click ctl_Button3
until session.SessionBusy == false
click ctl_Button3
until session.SessionBusy == false
click ctl_Button3
until session.SessionBusy == false
click ctl_Button3
until session.SessionBusy == false
click ctl_Button3
until session.SessionBusy == false
click ctl_Button3
wait 0.2
click ctl_Button3
wait 0.2
click ctl_Button3
wait 0.2
settle
expect form.vVol == 30
expect form.sClicks == 20
expect form.vTaskStep == 3
expect nobox
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13,301
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 3. Punkt"
expect report progress 3 0
expect series(1).count == 3
expect series(1).x(3) == 20
expect series(1).y(3) ~= 13.301 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 3
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 13,301
expect form frm_DialogDone
expect form.Score == 600
expect form.Mark == 4
expect lab_Mark.text == Ausreichend
expect lab_Points.text == 3
expect lab_Wrong.text == "0 mal"
expect lab_HelpUsed.text == "0 mal"
expect lab_SolveUsed.text == "0 mal"
expect report result 600 4 "Ausreichend"
expect sound say
click bar_Buttons
expect nobox
expect noreport
menu mnu_FileQuit
expect ended
