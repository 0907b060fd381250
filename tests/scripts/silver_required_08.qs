# Chloride with silver of 0.8 mol/L: the required points, each step by step, to the best mark.
name Mia
start
choose SSTab1 3
choose lst_Mol 0.8
click ctl_Button8
expect form frm_AppMainSilverStart
expect form.Accepted == false
click bar_Buttons
expect form frm_AppMainSilver
expect nobox
expect session.SessionConcentration == 0.8
expect session.SessionDemo == false
expect session.SessionRequiredPoints == 0,1,4,7,8,9,16
click ctl_Button1
settle
expect form.vVol == 10
expect beaker.countsort(3) == 8
expect beaker.countsort(5) == 8
expect beaker.count == 16
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
type txt_Calc(3) 0,008
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
type txt_Calc(10) 0,636
click but_CalcStep(10)
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
type txt_Calc(11) 3,135*10^-10
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 0,239
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 0
expect series(1).count == 1
expect series(1).x(1) == 1
expect series(1).y(1) ~= 0.2392813840634943 1e-12
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
expect lab_pH.text == "0,24 V"
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
expect but_Calc.bordercolor == #c0ffc0
# 4 mL
click ctl_Button3
expect box ok "" "Nach der Vorgabe soll dieser Punkt gerechnet werden!"
expect form.vVol == 14
click but_Calc
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
type txt_Calc(3) 0,008
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,004
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
type txt_Calc(10) 0,286
click but_CalcStep(10)
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
type txt_Calc(11) 6,983*10^-10
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 0,260
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 0
expect series(1).count == 2
expect series(1).x(2) == 4
expect series(1).y(2) ~= 0.25980001461666635 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 2
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 4
expect lab_pH.text == "0,26 V"
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
type txt_Calc(3) 0,008
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
type txt_Calc(10) 0,059
click but_CalcStep(10)
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
type txt_Calc(11) 3,391*10^-09
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 0,300
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 3. Punkt"
expect report progress 3 0
expect series(1).count == 3
expect series(1).x(3) == 7
expect series(1).y(3) ~= 0.3002964863613184 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 3
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 7
expect lab_pH.text == "0,30 V"
click ctl_Button3
settle
expect form.vVol == 18
expect but_Calc.bordercolor == #c0ffc0
# 8 mL
click ctl_Button3
expect box ok "" "Nach der Vorgabe soll dieser Punkt gerechnet werden!"
expect form.vVol == 18
click but_Calc
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
type txt_Calc(3) 0,008
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,008
click but_CalcStep(6)
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect but_CalcStep(7).focus == true
expect form.vTries == 0
click opt_Calc(2)
click but_CalcStep(7)
expect form.sStep == 8
expect but_CalcStep(8).visible == true
expect txt_Calc(8).focus == true
expect form.vTries == 0
type txt_Calc(8) 0,000
click but_CalcStep(8)
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
type txt_Calc(11) 1,412*10^-05
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 0,514
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 4. Punkt"
expect report progress 4 0
expect series(1).count == 4
expect series(1).x(4) == 8
expect series(1).y(4) ~= 0.5138500000000001 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 4
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 8
expect lab_pH.text == "0,51 V"
click ctl_Button3
settle
expect form.vVol == 19
expect but_Calc.bordercolor == #c0ffc0
# 9 mL
click ctl_Button3
expect box ok "" "Nach der Vorgabe soll dieser Punkt gerechnet werden!"
expect form.vVol == 19
click but_Calc
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
type txt_Calc(3) 0,008
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,009
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
type txt_Calc(10) 0,053
click but_CalcStep(10)
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 0,725
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 5. Punkt"
expect report progress 5 0
expect series(1).count == 5
expect series(1).x(5) == 9
expect series(1).y(5) ~= 0.7245535375437832 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 5
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 9
expect lab_pH.text == "0,72 V"
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
expect but_Calc.bordercolor == #c0ffc0
# 16 mL
click ctl_Button3
expect box ok "" "Nach der Vorgabe soll dieser Punkt gerechnet werden!"
expect form.vVol == 26
click but_Calc
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
type txt_Calc(3) 0,008
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,016
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
type txt_Calc(10) 0,308
click but_CalcStep(10)
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 0,770
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 6. Punkt"
expect report progress 6 0
expect series(1).count == 6
expect series(1).x(6) == 16
expect series(1).y(6) ~= 0.7697988817022464 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 6
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 16
expect lab_pH.text == "0,77 V"
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
type txt_Calc(3) 0,008
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
type txt_Calc(10) 0,400
click but_CalcStep(10)
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 0,777
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 7. Punkt"
expect report progress 7 0
expect series(1).count == 7
expect series(1).x(7) == 20
expect series(1).y(7) ~= 0.7765215394883498 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 7
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect form frm_DialogDone
expect form.Score == 1000
expect form.Mark == 1
expect lab_Mark.text == "Sehr gut"
expect lab_Points.text == 7
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
expect lab_pH.text == "0,78 V"
expect nobox
expect noreport
menu mnu_FileQuit
expect ended
