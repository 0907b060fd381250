# Weak acid: required points are asked for before the next mL.
name Mia
start
choose SSTab1 3
choose lst_Mol 1.0
click ctl_Button4
expect form frm_AppMainWeak
expect nobox
expect session.SessionConcentration == 1
expect session.SessionDemo == false
expect session.SessionRequiredPoints == 0,1,5,9,10,11,20
click ctl_Button1
settle
expect form.vVol == 10
expect beaker.countsort(10) == 10
expect beaker.count == 10
expect but_Calc.bordercolor == #c0ffc0
expect but_Calc.bordercolor2 == #008000
click ctl_Button3
expect box ok "" "Nach der Vorgabe soll dieser Punkt gerechnet werden!"
expect form.vVol == 10
expect form.sClicks == 0
expect session.SessionBusy == false
expect drops.count == 0
mouse pic_Above 150 100
expect box ok "" "Nach der Vorgabe soll dieser Punkt gerechnet werden!"
expect form.vVol == 10
expect form.sClicks == 0
expect session.SessionBusy == false
expect drops.count == 0
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 2,380
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 0
expect series(1).count == 1
expect series(1).x(1) == 0
expect series(1).y(1) ~= 2.38 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 1
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 2,380
click ctl_Button3
settle
expect form.vVol == 11
expect but_Calc.bordercolor == #c0ffc0
expect but_Calc.bordercolor2 == #008000
click ctl_Button3
expect box ok "" "Nach der Vorgabe soll dieser Punkt gerechnet werden!"
expect form.vVol == 11
expect form.sClicks == 1
expect session.SessionBusy == false
expect drops.count == 0
mouse pic_Above 150 100
expect box ok "" "Nach der Vorgabe soll dieser Punkt gerechnet werden!"
expect form.vVol == 11
expect form.sClicks == 1
expect session.SessionBusy == false
expect drops.count == 0
click but_Calc
type txt_Ph 3
answer no
key ENTER
expect sound "signal 1"
expect box yesno "" "Der von Dir errechnete pH-Wert ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
click ctl_Button3
expect nobox
expect form.vVol == 11
expect form.vWrong == 1
type txt_Ph 3,806
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 1
expect series(1).count == 2
expect series(1).x(2) == 1
expect series(1).y(2) ~= 3.806 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 2
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.Lab_Vallmista.text == 1
expect frm_AppMainWeak.lab_pH.text == 3,806
click ctl_Button3
settle
expect form.vVol == 12
click ctl_Button3
settle
expect form.vVol == 13
click ctl_Button3
settle
expect form.vVol == 14
click ctl_Button3
settle
expect form.vVol == 15
expect but_Calc.bordercolor == #c0ffc0
click ctl_Button3
expect box ok "" "Nach der Vorgabe soll dieser Punkt gerechnet werden!"
expect form.vVol == 15
expect form.sClicks == 5
expect session.SessionBusy == false
expect drops.count == 0
mouse pic_Above 150 100
expect box ok "" "Nach der Vorgabe soll dieser Punkt gerechnet werden!"
expect form.vVol == 15
expect form.sClicks == 5
expect session.SessionBusy == false
expect drops.count == 0
click but_Calc
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
type txt_Calc(3) 0,01
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,005
key ENTER
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect but_CalcStep(7).focus == true
expect form.vTries == 0
click opt_Calc(1)
click but_CalcStep(7)
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 1,000
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 4,76
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 3. Punkt"
expect report progress 3 1
expect series(1).count == 3
expect series(1).x(3) == 5
expect series(1).y(3) ~= 4.76 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 3
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.Lab_Vallmista.text == 1
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 5
expect lab_pH.text == 4,76
expect nobox
click ctl_Button3
settle
expect form.vVol == 16
click ctl_Button3
settle
expect form.vVol == 17
click ctl_Button3
settle
expect form.vVol == 18
click ctl_Button3
settle
expect form.vVol == 19
click ctl_Button3
expect box ok "" "Nach der Vorgabe soll dieser Punkt gerechnet werden!"
expect form.vVol == 19
expect form.sClicks == 9
expect session.SessionBusy == false
expect drops.count == 0
mouse pic_Above 150 100
expect box ok "" "Nach der Vorgabe soll dieser Punkt gerechnet werden!"
expect form.vVol == 19
expect form.sClicks == 9
expect session.SessionBusy == false
expect drops.count == 0
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 5,714
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 4. Punkt"
expect report progress 4 1
expect series(1).count == 4
expect series(1).x(4) == 9
expect series(1).y(4) ~= 5.714 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 4
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.Lab_Vallmista.text == 1
expect frm_AppMainWeak.lab_pH.text == 5,714
click ctl_Button3
settle
expect form.vVol == 20
click ctl_Button3
expect box ok "" "Nach der Vorgabe soll dieser Punkt gerechnet werden!"
expect form.vVol == 20
expect form.sClicks == 10
expect session.SessionBusy == false
expect drops.count == 0
mouse pic_Above 150 100
expect box ok "" "Nach der Vorgabe soll dieser Punkt gerechnet werden!"
expect form.vVol == 20
expect form.sClicks == 10
expect session.SessionBusy == false
expect drops.count == 0
expect nobox
expect noreport
menu mnu_FileQuit
expect ended
