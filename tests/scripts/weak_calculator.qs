# Weak acid: every line that the calculator offers, in every case, worked out.
name Mia
start
choose SSTab1 3
choose lst_Mol 0.6
check opt_NeedCalc off
click ctl_Button4
expect form frm_AppMainWeak
expect nobox
expect session.SessionConcentration == 0.6
expect session.SessionDemo == false
expect session.SessionRequiredPoints == ""
click ctl_Button1
settle
expect form.vVol == 10
# 0 mL
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
type txt_Calc(12) 7
answer cancel
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,6))" "14 - 1/2*(14-4,76-log(0,6))" "14 - 2,491" "-log()"
expect txt_Calc(12).text == 7
answer preset 1
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,6))" "14 - 1/2*(14-4,76-log(0,6))" "14 - 2,491" "-log()"
expect txt_Calc(12).text == 2,491
expect txt_Calc(12).focus == true
answer preset 2
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,6))" "14 - 1/2*(14-4,76-log(0,6))" "14 - 2,491" "-log()"
expect txt_Calc(12).text == 9,269
expect txt_Calc(12).focus == true
answer preset 3
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,6))" "14 - 1/2*(14-4,76-log(0,6))" "14 - 2,491" "-log()"
expect txt_Calc(12).text == 11,509
expect txt_Calc(12).focus == true
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
click ctl_Button3
settle
# 2 mL
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
type txt_Calc(6) 0,002
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
type txt_Calc(10) 7
answer cancel
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,006-0,002 ) / 0,002" "(0,002-0,006) / (0,012)" "(0,002) / (0,01 + 0,002)" "0,002/ (0,012)"
expect txt_Calc(10).text == 7
answer preset 1
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,006-0,002 ) / 0,002" "(0,002-0,006) / (0,012)" "(0,002) / (0,01 + 0,002)" "0,002/ (0,012)"
expect txt_Calc(10).text == 2,000
expect txt_Calc(10).focus == true
answer preset 2
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,006-0,002 ) / 0,002" "(0,002-0,006) / (0,012)" "(0,002) / (0,01 + 0,002)" "0,002/ (0,012)"
expect txt_Calc(10).text == -0,333
expect txt_Calc(10).focus == true
answer preset 3
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,006-0,002 ) / 0,002" "(0,002-0,006) / (0,012)" "(0,002) / (0,01 + 0,002)" "0,002/ (0,012)"
expect txt_Calc(10).text == 0,167
expect txt_Calc(10).focus == true
answer preset 4
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,006-0,002 ) / 0,002" "(0,002-0,006) / (0,012)" "(0,002) / (0,01 + 0,002)" "0,002/ (0,012)"
expect txt_Calc(10).text == 0,167
expect txt_Calc(10).focus == true
type txt_Calc(10) 2,000
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 7
answer cancel
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,6))" "14 - 1/2*(14- 4,76-log(0,6))" "4,76-log(( .006- .002) /  .002)" "4,76-log(2,000)"
expect txt_Calc(12).text == 7
answer preset 1
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,6))" "14 - 1/2*(14- 4,76-log(0,6))" "4,76-log(( .006- .002) /  .002)" "4,76-log(2,000)"
expect txt_Calc(12).text == 2,491
expect txt_Calc(12).focus == true
answer preset 2
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,6))" "14 - 1/2*(14- 4,76-log(0,6))" "4,76-log(( .006- .002) /  .002)" "4,76-log(2,000)"
expect txt_Calc(12).text == 9,269
expect txt_Calc(12).focus == true
answer preset 3
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,6))" "14 - 1/2*(14- 4,76-log(0,6))" "4,76-log(( .006- .002) /  .002)" "4,76-log(2,000)"
expect txt_Calc(12).text == 4,459
expect txt_Calc(12).focus == true
answer preset 4
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,6))" "14 - 1/2*(14- 4,76-log(0,6))" "4,76-log(( .006- .002) /  .002)" "4,76-log(2,000)"
expect txt_Calc(12).text == 4,459
expect txt_Calc(12).focus == true
type txt_Calc(12) 4,46
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 0
expect series(1).count == 2
expect series(1).x(2) == 2
expect series(1).y(2) ~= 4.4589700043360185 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 2
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 2
expect lab_pH.text == 4,46
click ctl_Button3
settle
# 3 mL
click but_Calc
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
type txt_Calc(3) 0,00601
key ENTER
expect report progress 2 1
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 1
expect form.vTries == 1
expect form.vWrong == 1
expect form.vMismatch == 0
type txt_Calc(3) 0,00601
answer yes
key ENTER
expect report progress 2 2
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 2
expect form.vDetailAcid == true
expect form.sStep == 1
expect but_CalcStep(1).visible == true
expect txt_Calc(1).focus == true
expect form.vTries == 0
expect form.vWrong == 2
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 1
type txt_Calc(1) 0,6
key ENTER
expect form.sStep == 2
expect but_CalcStep(2).visible == true
expect txt_Calc(2).focus == true
expect form.vTries == 0
type txt_Calc(2) 0.01
key ENTER
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
expect form.vTries == 0
type txt_Calc(3) 0,006
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,00301
key ENTER
expect report progress 2 3
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 3
expect form.vTries == 1
expect form.vWrong == 3
expect form.vMismatch == 1
type txt_Calc(6) 0,00301
answer yes
key ENTER
expect report progress 2 4
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 4
expect form.vDetailBase == true
expect form.sStep == 4
expect but_CalcStep(4).visible == true
expect txt_Calc(4).focus == true
expect form.vTries == 0
expect form.vWrong == 4
expect form.vMismatch == 2
expect form.vSolveUsed == 0
expect form.vHelpUsed == 2
type txt_Calc(4) 1
key ENTER
expect form.sStep == 5
expect but_CalcStep(5).visible == true
expect txt_Calc(5).focus == true
expect form.vTries == 0
type txt_Calc(5) 0,003
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,003
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
type txt_Calc(10) 1,001
key ENTER
expect report progress 2 5
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 5
expect form.vTries == 1
expect form.vWrong == 5
expect form.vMismatch == 3
type txt_Calc(10) 1,001
answer yes
key ENTER
expect report progress 2 6
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 6
expect form.vDetailConc == true
expect form.sStep == 8
expect but_CalcStep(8).visible == true
expect txt_Calc(8).focus == true
expect form.vTries == 0
expect form.vWrong == 6
expect form.vMismatch == 4
expect form.vSolveUsed == 0
expect form.vHelpUsed == 3
type txt_Calc(8) 0,003
key ENTER
expect form.sStep == 9
expect but_CalcStep(9).visible == true
expect txt_Calc(9).focus == true
expect form.vTries == 0
type txt_Calc(9) 7
answer cancel
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0,01 + 0,003" "0,01 - 0,003" "0.01 + 1"
expect txt_Calc(9).text == 7
answer preset 1
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0,01 + 0,003" "0,01 - 0,003" "0.01 + 1"
expect txt_Calc(9).text == 0,013
expect txt_Calc(9).focus == true
answer preset 2
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0,01 + 0,003" "0,01 - 0,003" "0.01 + 1"
expect txt_Calc(9).text == 0,007
expect txt_Calc(9).focus == true
answer preset 3
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0,01 + 0,003" "0,01 - 0,003" "0.01 + 1"
expect txt_Calc(9).text == 1,010
expect txt_Calc(9).focus == true
type txt_Calc(9) 0,003
key ENTER
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 7
answer cancel
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,006-0,003 ) / 0,003" "(0,003-0,006) / (0,013)" "(0,003) / (0,01 + 0,003)" "0,003/ (0,013)"
expect txt_Calc(10).text == 7
answer preset 1
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,006-0,003 ) / 0,003" "(0,003-0,006) / (0,013)" "(0,003) / (0,01 + 0,003)" "0,003/ (0,013)"
expect txt_Calc(10).text == 1,000
expect txt_Calc(10).focus == true
answer preset 2
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,006-0,003 ) / 0,003" "(0,003-0,006) / (0,013)" "(0,003) / (0,01 + 0,003)" "0,003/ (0,013)"
expect txt_Calc(10).text == -0,231
expect txt_Calc(10).focus == true
answer preset 3
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,006-0,003 ) / 0,003" "(0,003-0,006) / (0,013)" "(0,003) / (0,01 + 0,003)" "0,003/ (0,013)"
expect txt_Calc(10).text == 0,231
expect txt_Calc(10).focus == true
answer preset 4
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,006-0,003 ) / 0,003" "(0,003-0,006) / (0,013)" "(0,003) / (0,01 + 0,003)" "0,003/ (0,013)"
expect txt_Calc(10).text == 0,231
expect txt_Calc(10).focus == true
type txt_Calc(10) 1,000
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 7
answer cancel
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,6))" "14 - 1/2*(14- 4,76-log(0,6))" "4,76-log(( .006- .003) /  .003)" "4,76-log(1,000)"
expect txt_Calc(12).text == 7
answer preset 1
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,6))" "14 - 1/2*(14- 4,76-log(0,6))" "4,76-log(( .006- .003) /  .003)" "4,76-log(1,000)"
expect txt_Calc(12).text == 2,491
expect txt_Calc(12).focus == true
answer preset 2
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,6))" "14 - 1/2*(14- 4,76-log(0,6))" "4,76-log(( .006- .003) /  .003)" "4,76-log(1,000)"
expect txt_Calc(12).text == 9,269
expect txt_Calc(12).focus == true
answer preset 3
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,6))" "14 - 1/2*(14- 4,76-log(0,6))" "4,76-log(( .006- .003) /  .003)" "4,76-log(1,000)"
expect txt_Calc(12).text == 4,760
expect txt_Calc(12).focus == true
answer preset 4
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,6))" "14 - 1/2*(14- 4,76-log(0,6))" "4,76-log(( .006- .003) /  .003)" "4,76-log(1,000)"
expect txt_Calc(12).text == 4,760
expect txt_Calc(12).focus == true
type txt_Calc(12) 4,76
key ENTER
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 3. Punkt"
expect report progress 3 6
expect series(1).count == 3
expect series(1).x(3) == 3
expect series(1).y(3) ~= 4.76 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 3
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 3
expect frm_AppMainWeak.Lab_Vallmista.text == 6
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
# 4 mL
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
type txt_Calc(6) 0,004
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
type txt_Calc(10) 0,501
key ENTER
expect report progress 3 7
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 7
expect form.vTries == 1
expect form.vWrong == 7
expect form.vMismatch == 1
type txt_Calc(10) 0,501
answer yes
key ENTER
expect report progress 3 8
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 8
expect form.vDetailConc == true
expect form.sStep == 8
expect but_CalcStep(8).visible == true
expect txt_Calc(8).focus == true
expect form.vTries == 0
expect form.vWrong == 8
expect form.vMismatch == 2
expect form.vSolveUsed == 0
expect form.vHelpUsed == 4
type txt_Calc(8) 0,002
key ENTER
expect form.sStep == 9
expect but_CalcStep(9).visible == true
expect txt_Calc(9).focus == true
expect form.vTries == 0
type txt_Calc(9) 7
answer cancel
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0,01 + 0,004" "0,01 - 0,004" " + "
expect txt_Calc(9).text == 7
answer preset 1
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0,01 + 0,004" "0,01 - 0,004" " + "
expect txt_Calc(9).text == 0,014
expect txt_Calc(9).focus == true
answer preset 2
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0,01 + 0,004" "0,01 - 0,004" " + "
expect txt_Calc(9).text == 0,006
expect txt_Calc(9).focus == true
type txt_Calc(9) 0,004
key ENTER
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 7
answer cancel
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,006-0,004 ) / 0,004" "(0,004-0,006) / (0,014)" "(0,004) / (0,01 + 0,004)" "0,004/ (0,014)"
expect txt_Calc(10).text == 7
answer preset 1
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,006-0,004 ) / 0,004" "(0,004-0,006) / (0,014)" "(0,004) / (0,01 + 0,004)" "0,004/ (0,014)"
expect txt_Calc(10).text == 0,500
expect txt_Calc(10).focus == true
answer preset 2
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,006-0,004 ) / 0,004" "(0,004-0,006) / (0,014)" "(0,004) / (0,01 + 0,004)" "0,004/ (0,014)"
expect txt_Calc(10).text == -0,143
expect txt_Calc(10).focus == true
answer preset 3
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,006-0,004 ) / 0,004" "(0,004-0,006) / (0,014)" "(0,004) / (0,01 + 0,004)" "0,004/ (0,014)"
expect txt_Calc(10).text == 0,286
expect txt_Calc(10).focus == true
answer preset 4
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,006-0,004 ) / 0,004" "(0,004-0,006) / (0,014)" "(0,004) / (0,01 + 0,004)" "0,004/ (0,014)"
expect txt_Calc(10).text == 0,286
expect txt_Calc(10).focus == true
type txt_Calc(10) 0,500
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 7
answer cancel
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,6))" "14 - 1/2*(14- 4,76-log(0,6))" "4,76-log(( .006- .004) /  .004)" "4,76-log(0,500)"
expect txt_Calc(12).text == 7
answer preset 1
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,6))" "14 - 1/2*(14- 4,76-log(0,6))" "4,76-log(( .006- .004) /  .004)" "4,76-log(0,500)"
expect txt_Calc(12).text == 2,491
expect txt_Calc(12).focus == true
answer preset 2
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,6))" "14 - 1/2*(14- 4,76-log(0,6))" "4,76-log(( .006- .004) /  .004)" "4,76-log(0,500)"
expect txt_Calc(12).text == 9,269
expect txt_Calc(12).focus == true
answer preset 3
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,6))" "14 - 1/2*(14- 4,76-log(0,6))" "4,76-log(( .006- .004) /  .004)" "4,76-log(0,500)"
expect txt_Calc(12).text == 5,061
expect txt_Calc(12).focus == true
answer preset 4
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,6))" "14 - 1/2*(14- 4,76-log(0,6))" "4,76-log(( .006- .004) /  .004)" "4,76-log(0,500)"
expect txt_Calc(12).text == 5,061
expect txt_Calc(12).focus == true
type txt_Calc(12) 5,06
key ENTER
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 4. Punkt"
expect report progress 4 8
expect series(1).count == 4
expect series(1).x(4) == 4
expect series(1).y(4) ~= 5.061029995663981 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 4
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 4
expect frm_AppMainWeak.Lab_Vallmista.text == 8
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 4
expect lab_pH.text == 5,06
click ctl_Button3
settle
click ctl_Button3
settle
# 6 mL
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
type txt_Calc(10) 0,376
key ENTER
expect report progress 4 9
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 9
expect form.vTries == 1
expect form.vWrong == 9
expect form.vMismatch == 1
type txt_Calc(10) 0,376
answer yes
key ENTER
expect report progress 4 10
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 10
expect form.vDetailConc == true
expect form.sStep == 8
expect but_CalcStep(8).visible == true
expect txt_Calc(8).focus == true
expect form.vTries == 0
expect form.vWrong == 10
expect form.vMismatch == 2
expect form.vSolveUsed == 0
expect form.vHelpUsed == 5
type txt_Calc(8) 0,006
key ENTER
expect form.sStep == 9
expect but_CalcStep(9).visible == true
expect txt_Calc(9).focus == true
expect form.vTries == 0
type txt_Calc(9) 7
answer cancel
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0,01 + 0,006" "0,01 - 0,006" " + "
expect txt_Calc(9).text == 7
answer preset 1
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0,01 + 0,006" "0,01 - 0,006" " + "
expect txt_Calc(9).text == 0,016
expect txt_Calc(9).focus == true
answer preset 2
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0,01 + 0,006" "0,01 - 0,006" " + "
expect txt_Calc(9).text == 0,004
expect txt_Calc(9).focus == true
type txt_Calc(9) 0,016
key ENTER
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 7
answer cancel
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,006-0,006 ) / 0,006" "(0,006-0,006) / (0,016)" "(0,006) / (0,01 + 0,006)" "0,006/ (0,016)"
expect txt_Calc(10).text == 7
answer preset 1
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,006-0,006 ) / 0,006" "(0,006-0,006) / (0,016)" "(0,006) / (0,01 + 0,006)" "0,006/ (0,016)"
expect txt_Calc(10).text == 0,000
expect txt_Calc(10).focus == true
answer preset 2
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,006-0,006 ) / 0,006" "(0,006-0,006) / (0,016)" "(0,006) / (0,01 + 0,006)" "0,006/ (0,016)"
expect txt_Calc(10).text == 0,000
expect txt_Calc(10).focus == true
answer preset 3
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,006-0,006 ) / 0,006" "(0,006-0,006) / (0,016)" "(0,006) / (0,01 + 0,006)" "0,006/ (0,016)"
expect txt_Calc(10).text == 0,375
expect txt_Calc(10).focus == true
answer preset 4
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,006-0,006 ) / 0,006" "(0,006-0,006) / (0,016)" "(0,006) / (0,01 + 0,006)" "0,006/ (0,016)"
expect txt_Calc(10).text == 0,375
expect txt_Calc(10).focus == true
type txt_Calc(10) 0,375
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 7
answer cancel
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,6)" "14 - 1/2*(14- 4,76 -log(0,006/(0,01 + 0,006)))" "14 - 9,167" "4,76-log(0,375)"
expect txt_Calc(12).text == 7
answer preset 1
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,6)" "14 - 1/2*(14- 4,76 -log(0,006/(0,01 + 0,006)))" "14 - 9,167" "4,76-log(0,375)"
expect txt_Calc(12).text == 2,491
expect txt_Calc(12).focus == true
answer preset 2
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,6)" "14 - 1/2*(14- 4,76 -log(0,006/(0,01 + 0,006)))" "14 - 9,167" "4,76-log(0,375)"
expect txt_Calc(12).text == 9,167
expect txt_Calc(12).focus == true
answer preset 3
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,6)" "14 - 1/2*(14- 4,76 -log(0,006/(0,01 + 0,006)))" "14 - 9,167" "4,76-log(0,375)"
expect txt_Calc(12).text == 4,833
expect txt_Calc(12).focus == true
answer preset 4
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,6)" "14 - 1/2*(14- 4,76 -log(0,006/(0,01 + 0,006)))" "14 - 9,167" "4,76-log(0,375)"
expect txt_Calc(12).text == 5,186
expect txt_Calc(12).focus == true
type txt_Calc(12) 9,17
key ENTER
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 5. Punkt"
expect report progress 5 10
expect series(1).count == 5
expect series(1).x(5) == 6
expect series(1).y(5) ~= 9.167015633863858 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 5
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 5
expect frm_AppMainWeak.Lab_Vallmista.text == 10
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
click ctl_Button3
settle
# 8 mL
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
type txt_Calc(6) 0,008
key ENTER
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
type txt_Calc(10) 7
answer cancel
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,006-0,008 ) / 0,008" "(0,008-0,006) / (0,018)" "(0,008) / (0,01 + 0,008)" "0,008/ (0,018)"
expect txt_Calc(10).text == 7
answer preset 1
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,006-0,008 ) / 0,008" "(0,008-0,006) / (0,018)" "(0,008) / (0,01 + 0,008)" "0,008/ (0,018)"
expect txt_Calc(10).text == -0,250
expect txt_Calc(10).focus == true
answer preset 2
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,006-0,008 ) / 0,008" "(0,008-0,006) / (0,018)" "(0,008) / (0,01 + 0,008)" "0,008/ (0,018)"
expect txt_Calc(10).text == 0,111
expect txt_Calc(10).focus == true
answer preset 3
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,006-0,008 ) / 0,008" "(0,008-0,006) / (0,018)" "(0,008) / (0,01 + 0,008)" "0,008/ (0,018)"
expect txt_Calc(10).text == 0,444
expect txt_Calc(10).focus == true
answer preset 4
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,006-0,008 ) / 0,008" "(0,008-0,006) / (0,018)" "(0,008) / (0,01 + 0,008)" "0,008/ (0,018)"
expect txt_Calc(10).text == 0,444
expect txt_Calc(10).focus == true
type txt_Calc(10) 0,111
key ENTER
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
type txt_Calc(11) 7
answer cancel
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "1/2*(14-(4,76-log(0,111)" "-log(0,111111111111111)" "14-1/2*(14-(4,76-log(0,111)" "14-13,046"
expect txt_Calc(11).text == 7
answer preset 1
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "1/2*(14-(4,76-log(0,111)" "-log(0,111111111111111)" "14-1/2*(14-(4,76-log(0,111)" "14-13,046"
expect txt_Calc(11).text == 4,143
expect txt_Calc(11).focus == true
answer preset 2
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "1/2*(14-(4,76-log(0,111)" "-log(0,111111111111111)" "14-1/2*(14-(4,76-log(0,111)" "14-13,046"
expect txt_Calc(11).text == 0,954
expect txt_Calc(11).focus == true
answer preset 3
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "1/2*(14-(4,76-log(0,111)" "-log(0,111111111111111)" "14-1/2*(14-(4,76-log(0,111)" "14-13,046"
expect txt_Calc(11).text == 9,857
expect txt_Calc(11).focus == true
answer preset 4
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "1/2*(14-(4,76-log(0,111)" "-log(0,111111111111111)" "14-1/2*(14-(4,76-log(0,111)" "14-13,046"
expect txt_Calc(11).text == 0,954
expect txt_Calc(11).focus == true
type txt_Calc(11) 0,95
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 7
answer cancel
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,111111111111111)" "14 - 1/2*(14-4,76-log(0,111))" "14 - 0,95" "14+log(0,111111111111111)"
expect txt_Calc(12).text == 7
answer preset 1
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,111111111111111)" "14 - 1/2*(14-4,76-log(0,111))" "14 - 0,95" "14+log(0,111111111111111)"
expect txt_Calc(12).text == 2,857
expect txt_Calc(12).focus == true
answer preset 2
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,111111111111111)" "14 - 1/2*(14-4,76-log(0,111))" "14 - 0,95" "14+log(0,111111111111111)"
expect txt_Calc(12).text == 8,903
expect txt_Calc(12).focus == true
answer preset 3
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,111111111111111)" "14 - 1/2*(14-4,76-log(0,111))" "14 - 0,95" "14+log(0,111111111111111)"
expect txt_Calc(12).text == 13,050
expect txt_Calc(12).focus == true
answer preset 4
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,111111111111111)" "14 - 1/2*(14-4,76-log(0,111))" "14 - 0,95" "14+log(0,111111111111111)"
expect txt_Calc(12).text == 13,046
expect txt_Calc(12).focus == true
type txt_Calc(12) 13,05
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 6. Punkt"
expect report progress 6 10
expect series(1).count == 6
expect series(1).x(6) == 8
expect series(1).y(6) ~= 13.045757490560675 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 6
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 5
expect frm_AppMainWeak.Lab_Vallmista.text == 10
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 8
expect lab_pH.text == 13,05
click ctl_Button3
settle
# 9 mL
click but_Calc
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
type txt_Calc(3) 0,00601
key ENTER
expect report progress 6 11
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 11
expect form.vTries == 1
expect form.vWrong == 11
expect form.vMismatch == 0
type txt_Calc(3) 0,00601
answer yes
key ENTER
expect report progress 6 12
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 12
expect form.vDetailAcid == true
expect form.sStep == 1
expect but_CalcStep(1).visible == true
expect txt_Calc(1).focus == true
expect form.vTries == 0
expect form.vWrong == 12
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 6
type txt_Calc(1) 0,6
key ENTER
expect form.sStep == 2
expect but_CalcStep(2).visible == true
expect txt_Calc(2).focus == true
expect form.vTries == 0
type txt_Calc(2) 0.01
key ENTER
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
expect form.vTries == 0
type txt_Calc(3) 0,006
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,00901
key ENTER
expect report progress 6 13
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 13
expect form.vTries == 1
expect form.vWrong == 13
expect form.vMismatch == 1
type txt_Calc(6) 0,00901
answer yes
key ENTER
expect report progress 6 14
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 14
expect form.vDetailBase == true
expect form.sStep == 4
expect but_CalcStep(4).visible == true
expect txt_Calc(4).focus == true
expect form.vTries == 0
expect form.vWrong == 14
expect form.vMismatch == 2
expect form.vSolveUsed == 0
expect form.vHelpUsed == 7
type txt_Calc(4) 1
key ENTER
expect form.sStep == 5
expect but_CalcStep(5).visible == true
expect txt_Calc(5).focus == true
expect form.vTries == 0
type txt_Calc(5) 0,009
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,009
key ENTER
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
type txt_Calc(10) 0,159
key ENTER
expect report progress 6 15
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 15
expect form.vTries == 1
expect form.vWrong == 15
expect form.vMismatch == 3
type txt_Calc(10) 0,159
answer yes
key ENTER
expect report progress 6 16
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 16
expect form.vDetailConc == true
expect form.sStep == 8
expect but_CalcStep(8).visible == true
expect txt_Calc(8).focus == true
expect form.vTries == 0
expect form.vWrong == 16
expect form.vMismatch == 4
expect form.vSolveUsed == 0
expect form.vHelpUsed == 8
type txt_Calc(8) 0,003
key ENTER
expect form.sStep == 9
expect but_CalcStep(9).visible == true
expect txt_Calc(9).focus == true
expect form.vTries == 0
type txt_Calc(9) 7
answer cancel
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0,01 + 0,009" "0,01 - 0,009" "0.01 + 1"
expect txt_Calc(9).text == 7
answer preset 1
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0,01 + 0,009" "0,01 - 0,009" "0.01 + 1"
expect txt_Calc(9).text == 0,019
expect txt_Calc(9).focus == true
answer preset 2
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0,01 + 0,009" "0,01 - 0,009" "0.01 + 1"
expect txt_Calc(9).text == 0,001
expect txt_Calc(9).focus == true
answer preset 3
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0,01 + 0,009" "0,01 - 0,009" "0.01 + 1"
expect txt_Calc(9).text == 1,010
expect txt_Calc(9).focus == true
type txt_Calc(9) 0,019
key ENTER
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 7
answer cancel
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,006-0,009 ) / 0,009" "(0,009-0,006) / (0,019)" "(0,009) / (0,01 + 0,009)" "0,009/ (0,019)"
expect txt_Calc(10).text == 7
answer preset 1
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,006-0,009 ) / 0,009" "(0,009-0,006) / (0,019)" "(0,009) / (0,01 + 0,009)" "0,009/ (0,019)"
expect txt_Calc(10).text == -0,333
expect txt_Calc(10).focus == true
answer preset 2
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,006-0,009 ) / 0,009" "(0,009-0,006) / (0,019)" "(0,009) / (0,01 + 0,009)" "0,009/ (0,019)"
expect txt_Calc(10).text == 0,158
expect txt_Calc(10).focus == true
answer preset 3
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,006-0,009 ) / 0,009" "(0,009-0,006) / (0,019)" "(0,009) / (0,01 + 0,009)" "0,009/ (0,019)"
expect txt_Calc(10).text == 0,474
expect txt_Calc(10).focus == true
answer preset 4
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,006-0,009 ) / 0,009" "(0,009-0,006) / (0,019)" "(0,009) / (0,01 + 0,009)" "0,009/ (0,019)"
expect txt_Calc(10).text == 0,474
expect txt_Calc(10).focus == true
type txt_Calc(10) 0,158
key ENTER
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
type txt_Calc(11) 7
answer cancel
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "1/2*(14-(4,76-log(0,158)" "-log(0,157894736842105)" "14-1/2*(14-(4,76-log(0,158)" "14-13,198"
expect txt_Calc(11).text == 7
answer preset 1
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "1/2*(14-(4,76-log(0,158)" "-log(0,157894736842105)" "14-1/2*(14-(4,76-log(0,158)" "14-13,198"
expect txt_Calc(11).text == 4,219
expect txt_Calc(11).focus == true
answer preset 2
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "1/2*(14-(4,76-log(0,158)" "-log(0,157894736842105)" "14-1/2*(14-(4,76-log(0,158)" "14-13,198"
expect txt_Calc(11).text == 0,802
expect txt_Calc(11).focus == true
answer preset 3
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "1/2*(14-(4,76-log(0,158)" "-log(0,157894736842105)" "14-1/2*(14-(4,76-log(0,158)" "14-13,198"
expect txt_Calc(11).text == 9,781
expect txt_Calc(11).focus == true
answer preset 4
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "1/2*(14-(4,76-log(0,158)" "-log(0,157894736842105)" "14-1/2*(14-(4,76-log(0,158)" "14-13,198"
expect txt_Calc(11).text == 0,802
expect txt_Calc(11).focus == true
type txt_Calc(11) 0,80
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 7
answer cancel
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,157894736842105)" "14 - 1/2*(14-4,76-log(0,158))" "14 - 0,80" "14+log(0,157894736842105)"
expect txt_Calc(12).text == 7
answer preset 1
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,157894736842105)" "14 - 1/2*(14-4,76-log(0,158))" "14 - 0,80" "14+log(0,157894736842105)"
expect txt_Calc(12).text == 2,781
expect txt_Calc(12).focus == true
answer preset 2
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,157894736842105)" "14 - 1/2*(14-4,76-log(0,158))" "14 - 0,80" "14+log(0,157894736842105)"
expect txt_Calc(12).text == 8,979
expect txt_Calc(12).focus == true
answer preset 3
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,157894736842105)" "14 - 1/2*(14-4,76-log(0,158))" "14 - 0,80" "14+log(0,157894736842105)"
expect txt_Calc(12).text == 13,200
expect txt_Calc(12).focus == true
answer preset 4
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0,157894736842105)" "14 - 1/2*(14-4,76-log(0,158))" "14 - 0,80" "14+log(0,157894736842105)"
expect txt_Calc(12).text == 13,198
expect txt_Calc(12).focus == true
type txt_Calc(12) 13,20
key ENTER
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 7. Punkt"
expect report progress 7 16
expect series(1).count == 7
expect series(1).x(7) == 9
expect series(1).y(7) ~= 13.198367653766834 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 7
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 8
expect frm_AppMainWeak.Lab_Vallmista.text == 16
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 9
expect lab_pH.text == 13,20
click ctl_Button3
settle
# 10 mL
click but_Calc
answer value 0,5
click but_CalcPH(2)
expect box calculator Rechner ""
expect presets
expect txt_Ph.text == 0,500
answer cancel
click but_CalcPH(2)
expect box calculator Rechner ""
expect txt_Ph.text == 0,500
expect but_CalcPH(8).visible == false
type txt_Ph 13,301
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 8. Punkt"
expect report progress 8 16
expect series(1).count == 8
expect series(1).x(8) == 10
expect series(1).y(8) ~= 13.301 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 8
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 8
expect frm_AppMainWeak.Lab_Vallmista.text == 16
expect frm_AppMainWeak.lab_pH.text == 13,301
expect nobox
expect noreport
menu mnu_FileQuit
expect ended
