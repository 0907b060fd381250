# Weak acid of 0.6 mol/L: the required points, each step by step, to the best mark.
name Mia
start
choose SSTab1 3
choose lst_Mol 0.6
click ctl_Button4
expect form frm_AppMainWeak
expect nobox
expect session.SessionConcentration == 0.6
expect session.SessionDemo == false
expect session.SessionRequiredPoints == 0,1,3,5,6,7,12
click ctl_Button1
settle
expect form.vVol == 10
expect beaker.countsort(10) == 6
expect beaker.count == 6
expect but_Calc.bordercolor == #c0ffc0
# 0 mL
click ctl_Button3
expect box ok "" "Nach der Vorgabe soll dieser Punkt gerechnet werden!"
expect form.vVol == 10
click but_Calc
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect but_CalcStep(7).focus == true
click opt_Calc(0)
click but_CalcStep(7)
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 2,49
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 0
expect series(1).count == 1
expect series(1).x(1) == 0
expect series(1).y(1) ~= 2.490924374808178 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 1
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 0
expect lab_pH.text == 2,49
click ctl_Button3
settle
expect form.vVol == 11
expect but_Calc.bordercolor == #c0ffc0
# 1 mL
click ctl_Button3
expect box ok "" "Nach der Vorgabe soll dieser Punkt gerechnet werden!"
expect form.vVol == 11
click but_Calc
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
type txt_Calc(3) 0,006
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,001
click but_CalcStep(6)
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
type txt_Calc(10) 5,000
click but_CalcStep(10)
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 4,06
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 0
expect series(1).count == 2
expect series(1).x(2) == 1
expect series(1).y(2) ~= 4.061029995663981 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 2
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 1
expect lab_pH.text == 4,06
click ctl_Button3
settle
expect form.vVol == 12
expect but_Calc.bordercolor != #c0ffc0
click ctl_Button3
settle
expect form.vVol == 13
expect but_Calc.bordercolor == #c0ffc0
# 3 mL
click ctl_Button3
expect box ok "" "Nach der Vorgabe soll dieser Punkt gerechnet werden!"
expect form.vVol == 13
click but_Calc
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
type txt_Calc(3) 0,006
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,003
click but_CalcStep(6)
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
click but_CalcStep(10)
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 4,76
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 3. Punkt"
expect report progress 3 0
expect series(1).count == 3
expect series(1).x(3) == 3
expect series(1).y(3) ~= 4.76 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 3
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 3
expect lab_pH.text == 4,76
click ctl_Button3
settle
expect form.vVol == 14
expect but_Calc.bordercolor != #c0ffc0
click ctl_Button3
settle
expect form.vVol == 15
expect but_Calc.bordercolor == #c0ffc0
# 5 mL
click ctl_Button3
expect box ok "" "Nach der Vorgabe soll dieser Punkt gerechnet werden!"
expect form.vVol == 15
click but_Calc
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
type txt_Calc(3) 0,006
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,005
click but_CalcStep(6)
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
type txt_Calc(10) 0,200
click but_CalcStep(10)
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 5,46
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 4. Punkt"
expect report progress 4 0
expect series(1).count == 4
expect series(1).x(4) == 5
expect series(1).y(4) ~= 5.4589700043360185 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 4
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 5
expect lab_pH.text == 5,46
click ctl_Button3
settle
expect form.vVol == 16
expect but_Calc.bordercolor == #c0ffc0
# 6 mL
click ctl_Button3
expect box ok "" "Nach der Vorgabe soll dieser Punkt gerechnet werden!"
expect form.vVol == 16
click but_Calc
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
type txt_Calc(3) 0,006
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,006
click but_CalcStep(6)
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
type txt_Calc(10) 0,375
click but_CalcStep(10)
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 9,17
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 5. Punkt"
expect report progress 5 0
expect series(1).count == 5
expect series(1).x(5) == 6
expect series(1).y(5) ~= 9.167015633863858 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 5
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 6
expect lab_pH.text == 9,17
click ctl_Button3
settle
expect form.vVol == 17
expect but_Calc.bordercolor == #c0ffc0
# 7 mL
click ctl_Button3
expect box ok "" "Nach der Vorgabe soll dieser Punkt gerechnet werden!"
expect form.vVol == 17
click but_Calc
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
type txt_Calc(3) 0,006
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,007
click but_CalcStep(6)
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect but_CalcStep(7).focus == true
expect form.vTries == 0
click opt_Calc(3)
click but_CalcStep(7)
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 0,059
click but_CalcStep(10)
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
type txt_Calc(11) 1,23
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 12,77
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 6. Punkt"
expect report progress 6 0
expect series(1).count == 6
expect series(1).x(6) == 7
expect series(1).y(6) ~= 12.769551078621726 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 6
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 7
expect lab_pH.text == 12,77
click ctl_Button3
settle
expect form.vVol == 18
expect but_Calc.bordercolor != #c0ffc0
click ctl_Button3
settle
expect form.vVol == 19
expect but_Calc.bordercolor != #c0ffc0
click ctl_Button3
settle
expect form.vVol == 20
expect but_Calc.bordercolor != #c0ffc0
click ctl_Button3
settle
expect form.vVol == 21
expect but_Calc.bordercolor != #c0ffc0
click ctl_Button3
settle
expect form.vVol == 22
expect but_Calc.bordercolor == #c0ffc0
# 12 mL
click ctl_Button3
expect box ok "" "Nach der Vorgabe soll dieser Punkt gerechnet werden!"
expect form.vVol == 22
click but_Calc
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
type txt_Calc(3) 0,006
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,012
click but_CalcStep(6)
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect but_CalcStep(7).focus == true
expect form.vTries == 0
click opt_Calc(3)
click but_CalcStep(7)
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 0,273
click but_CalcStep(10)
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
type txt_Calc(11) 0,56
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 13,44
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 7. Punkt"
expect report progress 7 0
expect series(1).count == 7
expect series(1).x(7) == 12
expect series(1).y(7) ~= 13.435728569561437 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 7
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 12
expect lab_pH.text == 13,44
click ctl_Button3
settle
expect form.vVol == 23
expect but_Calc.bordercolor != #c0ffc0
click ctl_Button3
settle
expect form.vVol == 24
expect but_Calc.bordercolor != #c0ffc0
click ctl_Button3
settle
expect form.vVol == 25
expect but_Calc.bordercolor != #c0ffc0
click ctl_Button3
settle
expect form.vVol == 26
expect but_Calc.bordercolor != #c0ffc0
click ctl_Button3
settle
expect form.vVol == 27
expect but_Calc.bordercolor != #c0ffc0
click ctl_Button3
settle
expect form.vVol == 28
expect but_Calc.bordercolor != #c0ffc0
click ctl_Button3
settle
expect form.vVol == 29
expect but_Calc.bordercolor != #c0ffc0
click ctl_Button3
settle
expect form.vVol == 30
expect but_Calc.bordercolor != #c0ffc0
# 20 mL
click but_Calc
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
type txt_Calc(3) 0,006
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,02
click but_CalcStep(6)
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect but_CalcStep(7).focus == true
expect form.vTries == 0
click opt_Calc(3)
click but_CalcStep(7)
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 0,467
click but_CalcStep(10)
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
type txt_Calc(11) 0,33
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 13,67
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 8. Punkt"
expect report progress 8 0
expect series(1).count == 8
expect series(1).x(8) == 20
expect series(1).y(8) ~= 13.669006780958576 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 8
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect form frm_DialogDone
expect form.Score == 1000
expect form.Mark == 1
expect lab_Mark.text == "Sehr gut"
expect lab_Points.text == 8
expect lab_Wrong.text == "0 mal"
expect lab_HelpUsed.text == "0 mal"
expect lab_SolveUsed.text == "0 mal"
expect report result 1000 1 "Sehr gut"
expect sound result_good
click bar_Buttons
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 20
expect lab_pH.text == 13,67
expect nobox
expect noreport
menu mnu_FileQuit
expect ended
