# Chloride with silver of 1.4 mol/L: the required points, each step by step, to the best mark.
name Mia
start
choose SSTab1 3
choose lst_Mol 1.4
click ctl_Button8
expect form frm_AppMainSilverStart
expect form.Accepted == false
click bar_Buttons
expect form frm_AppMainSilver
expect nobox
expect session.SessionConcentration == 1.4
expect session.SessionDemo == false
expect session.SessionRequiredPoints == 0,1,7,13,14,15,20
click ctl_Button1
settle
expect form.vVol == 10
expect beaker.countsort(3) == 14
expect beaker.countsort(5) == 14
expect beaker.count == 28
expect but_Calc.bordercolor != #c0ffc0
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
type txt_Calc(3) 0,014
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
type txt_Calc(10) 1,182
click but_CalcStep(10)
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
type txt_Calc(11) 1,688*10^-10
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 0,223
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 0
expect series(1).count == 1
expect series(1).x(1) == 1
expect series(1).y(1) ~= 0.22341951063823218 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 1
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 1
expect lab_pH.text == "0,22 V"
click ctl_Button3
settle
expect form.vVol == 12
expect but_Calc.bordercolor != #c0ffc0
click ctl_Button3
settle
expect form.vVol == 13
expect but_Calc.bordercolor != #c0ffc0
click ctl_Button3
settle
expect form.vVol == 14
expect but_Calc.bordercolor != #c0ffc0
click ctl_Button3
settle
expect form.vVol == 15
expect but_Calc.bordercolor != #c0ffc0
click ctl_Button3
settle
expect form.vVol == 16
expect but_Calc.bordercolor != #c0ffc0
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
type txt_Calc(3) 0,014
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
click opt_Calc(1)
click but_CalcStep(7)
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 0,412
click but_CalcStep(10)
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
type txt_Calc(11) 4,845*10^-10
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 0,250
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 0
expect series(1).count == 2
expect series(1).x(2) == 7
expect series(1).y(2) ~= 0.25043570200047716 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 2
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 7
expect lab_pH.text == "0,25 V"
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
expect but_Calc.bordercolor != #c0ffc0
click ctl_Button3
settle
expect form.vVol == 23
expect but_Calc.bordercolor == #c0ffc0
# 13 mL
click ctl_Button3
expect box ok "" "Nach der Vorgabe soll dieser Punkt gerechnet werden!"
expect form.vVol == 23
click but_Calc
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
type txt_Calc(6) 0,013
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
type txt_Calc(10) 0,043
click but_CalcStep(10)
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
type txt_Calc(11) 4,589*10^-09
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 0,308
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 3. Punkt"
expect report progress 3 0
expect series(1).count == 3
expect series(1).x(3) == 13
expect series(1).y(3) ~= 0.30804194232503823 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 3
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 13
expect lab_pH.text == "0,31 V"
click ctl_Button3
settle
expect form.vVol == 24
expect but_Calc.bordercolor == #c0ffc0
# 14 mL
click ctl_Button3
expect box ok "" "Nach der Vorgabe soll dieser Punkt gerechnet werden!"
expect form.vVol == 24
click but_Calc
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
type txt_Calc(10) 0,000
click but_CalcStep(10)
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) -0,152
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 4. Punkt"
expect report progress 4 0
expect series(1).count == 4
expect series(1).x(4) == 14
expect series(1).y(4) ~= -0.15231787816730302 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 4
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 14
expect lab_pH.text == "-0,15 V"
click ctl_Button3
settle
expect form.vVol == 25
expect but_Calc.bordercolor == #c0ffc0
# 15 mL
click ctl_Button3
expect box ok "" "Nach der Vorgabe soll dieser Punkt gerechnet werden!"
expect form.vVol == 25
click but_Calc
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
type txt_Calc(6) 0,015
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
type txt_Calc(10) 0,040
click but_CalcStep(10)
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 0,718
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 5. Punkt"
expect report progress 5 0
expect series(1).count == 5
expect series(1).x(5) == 15
expect series(1).y(5) ~= 0.7175215394883498 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 5
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 15
expect lab_pH.text == "0,72 V"
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
expect but_Calc.bordercolor == #c0ffc0
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
type txt_Calc(3) 0,014
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
type txt_Calc(10) 0,200
click but_CalcStep(10)
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 0,759
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 6. Punkt"
expect report progress 6 0
expect series(1).count == 6
expect series(1).x(6) == 20
expect series(1).y(6) ~= 0.758760769744175 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 6
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect form frm_DialogDone
expect form.Score == 1000
expect form.Mark == 1
expect lab_Mark.text == "Sehr gut"
expect lab_Points.text == 6
expect lab_Wrong.text == "0 mal"
expect lab_HelpUsed.text == "0 mal"
expect lab_SolveUsed.text == "0 mal"
expect report result 1000 1 "Sehr gut"
expect sound result_good
click bar_Buttons
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 20
expect lab_pH.text == "0,76 V"
expect nobox
expect noreport
menu mnu_FileQuit
expect ended
