# Weak acid with a decimal point: every line that the calculator offers.
name Mia
locale point
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
expect presets "1/2*(4,76 - log(1.4))" "14 - 1/2*(14-4,76-log(1.4))" "14 - 2.307" "-log()"
expect txt_Calc(12).text == 7
answer preset 1
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(1.4))" "14 - 1/2*(14-4,76-log(1.4))" "14 - 2.307" "-log()"
expect txt_Calc(12).text == 2.307
expect txt_Calc(12).focus == true
answer preset 2
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(1.4))" "14 - 1/2*(14-4,76-log(1.4))" "14 - 2.307" "-log()"
expect txt_Calc(12).text == 9.453
expect txt_Calc(12).focus == true
answer preset 3
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(1.4))" "14 - 1/2*(14-4,76-log(1.4))" "14 - 2.307" "-log()"
expect txt_Calc(12).text == 11.693
expect txt_Calc(12).focus == true
type txt_Calc(12) 2.31
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 0
expect series(1).count == 1
expect series(1).x(1) == 0
expect series(1).y(1) ~= 2.306935982160881 1e-12
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
expect lab_pH.text == 2.31
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
# 5 mL
click but_Calc
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
type txt_Calc(3) 0.01401
key ENTER
expect report progress 1 1
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 1
expect form.vTries == 1
expect form.vWrong == 1
expect form.vMismatch == 0
type txt_Calc(3) 0.01401
answer yes
key ENTER
expect report progress 1 2
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
type txt_Calc(1) 1.4
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
type txt_Calc(3) 0.014
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0.00501
key ENTER
expect report progress 1 3
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 3
expect form.vTries == 1
expect form.vWrong == 3
expect form.vMismatch == 1
type txt_Calc(6) 0.00501
answer yes
key ENTER
expect report progress 1 4
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
type txt_Calc(5) 0.005
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0.005
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
type txt_Calc(10) 1.801
key ENTER
expect report progress 1 5
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 5
expect form.vTries == 1
expect form.vWrong == 5
expect form.vMismatch == 3
type txt_Calc(10) 1.801
answer yes
key ENTER
expect report progress 1 6
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
type txt_Calc(8) 0.009
key ENTER
expect form.sStep == 9
expect but_CalcStep(9).visible == true
expect txt_Calc(9).focus == true
expect form.vTries == 0
type txt_Calc(9) 7
answer cancel
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0.01 + 0.005" "0.01 - 0.005" "0.01 + 1"
expect txt_Calc(9).text == 7
answer preset 1
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0.01 + 0.005" "0.01 - 0.005" "0.01 + 1"
expect txt_Calc(9).text == 0.015
expect txt_Calc(9).focus == true
answer preset 2
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0.01 + 0.005" "0.01 - 0.005" "0.01 + 1"
expect txt_Calc(9).text == 0.005
expect txt_Calc(9).focus == true
answer preset 3
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0.01 + 0.005" "0.01 - 0.005" "0.01 + 1"
expect txt_Calc(9).text == 1.010
expect txt_Calc(9).focus == true
type txt_Calc(9) 0.005
key ENTER
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 7
answer cancel
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0.014-0.005 ) / 0.005" "(0.005-0.014) / (0.015)" "(0.005) / (0.01 + 0.005)" "0.005/ (0.015)"
expect txt_Calc(10).text == 7
answer preset 1
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0.014-0.005 ) / 0.005" "(0.005-0.014) / (0.015)" "(0.005) / (0.01 + 0.005)" "0.005/ (0.015)"
expect txt_Calc(10).text == 1.800
expect txt_Calc(10).focus == true
answer preset 2
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0.014-0.005 ) / 0.005" "(0.005-0.014) / (0.015)" "(0.005) / (0.01 + 0.005)" "0.005/ (0.015)"
expect txt_Calc(10).text == -0.600
expect txt_Calc(10).focus == true
answer preset 3
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0.014-0.005 ) / 0.005" "(0.005-0.014) / (0.015)" "(0.005) / (0.01 + 0.005)" "0.005/ (0.015)"
expect txt_Calc(10).text == 0.333
expect txt_Calc(10).focus == true
answer preset 4
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0.014-0.005 ) / 0.005" "(0.005-0.014) / (0.015)" "(0.005) / (0.01 + 0.005)" "0.005/ (0.015)"
expect txt_Calc(10).text == 0.333
expect txt_Calc(10).focus == true
type txt_Calc(10) 1.800
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 7
answer cancel
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(1.4))" "14 - 1/2*(14- 4,76-log(1.4))" "4,76-log(( .014- .005) /  .005)" "4,76-log(1.800)"
expect txt_Calc(12).text == 7
answer preset 1
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(1.4))" "14 - 1/2*(14- 4,76-log(1.4))" "4,76-log(( .014- .005) /  .005)" "4,76-log(1.800)"
expect txt_Calc(12).text == 2.307
expect txt_Calc(12).focus == true
answer preset 2
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(1.4))" "14 - 1/2*(14- 4,76-log(1.4))" "4,76-log(( .014- .005) /  .005)" "4,76-log(1.800)"
expect txt_Calc(12).text == 9.453
expect txt_Calc(12).focus == true
answer preset 3
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(1.4))" "14 - 1/2*(14- 4,76-log(1.4))" "4,76-log(( .014- .005) /  .005)" "4,76-log(1.800)"
expect txt_Calc(12).text == 4.505
expect txt_Calc(12).focus == true
answer preset 4
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(1.4))" "14 - 1/2*(14- 4,76-log(1.4))" "4,76-log(( .014- .005) /  .005)" "4,76-log(1.800)"
expect txt_Calc(12).text == 4.505
expect txt_Calc(12).focus == true
type txt_Calc(12) 4.50
key ENTER
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 6
expect series(1).count == 2
expect series(1).x(2) == 5
expect series(1).y(2) ~= 4.504727494896694 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 2
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 3
expect frm_AppMainWeak.Lab_Vallmista.text == 6
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 5
expect lab_pH.text == 4.50
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
# 14 mL
click but_Calc
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
type txt_Calc(3) 0.01401
key ENTER
expect report progress 2 7
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 7
expect form.vTries == 1
expect form.vWrong == 7
expect form.vMismatch == 0
type txt_Calc(3) 0.01401
answer yes
key ENTER
expect report progress 2 8
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 8
expect form.vDetailAcid == true
expect form.sStep == 1
expect but_CalcStep(1).visible == true
expect txt_Calc(1).focus == true
expect form.vTries == 0
expect form.vWrong == 8
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 4
type txt_Calc(1) 1.4
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
type txt_Calc(3) 0.014
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0.01401
key ENTER
expect report progress 2 9
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 9
expect form.vTries == 1
expect form.vWrong == 9
expect form.vMismatch == 1
type txt_Calc(6) 0.01401
answer yes
key ENTER
expect report progress 2 10
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 10
expect form.vDetailBase == true
expect form.sStep == 4
expect but_CalcStep(4).visible == true
expect txt_Calc(4).focus == true
expect form.vTries == 0
expect form.vWrong == 10
expect form.vMismatch == 2
expect form.vSolveUsed == 0
expect form.vHelpUsed == 5
type txt_Calc(4) 1
key ENTER
expect form.sStep == 5
expect but_CalcStep(5).visible == true
expect txt_Calc(5).focus == true
expect form.vTries == 0
type txt_Calc(5) 0.014
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0.014
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
type txt_Calc(10) 0.584
key ENTER
expect report progress 2 11
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 11
expect form.vTries == 1
expect form.vWrong == 11
expect form.vMismatch == 3
type txt_Calc(10) 0.584
answer yes
key ENTER
expect report progress 2 12
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 12
expect form.vDetailConc == true
expect form.sStep == 8
expect but_CalcStep(8).visible == true
expect txt_Calc(8).focus == true
expect form.vTries == 0
expect form.vWrong == 12
expect form.vMismatch == 4
expect form.vSolveUsed == 0
expect form.vHelpUsed == 6
type txt_Calc(8) 0.014
key ENTER
expect form.sStep == 9
expect but_CalcStep(9).visible == true
expect txt_Calc(9).focus == true
expect form.vTries == 0
type txt_Calc(9) 7
answer cancel
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0.01 + 0.014" "0.01 - 0.014" "0.01 + 1"
expect txt_Calc(9).text == 7
answer preset 1
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0.01 + 0.014" "0.01 - 0.014" "0.01 + 1"
expect txt_Calc(9).text == 0.024
expect txt_Calc(9).focus == true
answer preset 2
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0.01 + 0.014" "0.01 - 0.014" "0.01 + 1"
expect txt_Calc(9).text == -0.004
expect txt_Calc(9).focus == true
answer preset 3
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0.01 + 0.014" "0.01 - 0.014" "0.01 + 1"
expect txt_Calc(9).text == 1.010
expect txt_Calc(9).focus == true
type txt_Calc(9) 0.024
key ENTER
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 7
answer cancel
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0.014-0.014 ) / 0.014" "(0.014-0.014) / (0.024)" "(0.014) / (0.01 + 0.014)" "0.014/ (0.024)"
expect txt_Calc(10).text == 7
answer preset 1
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0.014-0.014 ) / 0.014" "(0.014-0.014) / (0.024)" "(0.014) / (0.01 + 0.014)" "0.014/ (0.024)"
expect txt_Calc(10).text == 0.000
expect txt_Calc(10).focus == true
answer preset 2
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0.014-0.014 ) / 0.014" "(0.014-0.014) / (0.024)" "(0.014) / (0.01 + 0.014)" "0.014/ (0.024)"
expect txt_Calc(10).text == 0.000
expect txt_Calc(10).focus == true
answer preset 3
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0.014-0.014 ) / 0.014" "(0.014-0.014) / (0.024)" "(0.014) / (0.01 + 0.014)" "0.014/ (0.024)"
expect txt_Calc(10).text == 0.583
expect txt_Calc(10).focus == true
answer preset 4
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0.014-0.014 ) / 0.014" "(0.014-0.014) / (0.024)" "(0.014) / (0.01 + 0.014)" "0.014/ (0.024)"
expect txt_Calc(10).text == 0.583
expect txt_Calc(10).focus == true
type txt_Calc(10) 0.583
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 7
answer cancel
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(1.4)" "14 - 1/2*(14- 4,76 -log(0.014/(0.01 + 0.014)))" "14 - 9.263" "4,76-log(0.583)"
expect txt_Calc(12).text == 7
answer preset 1
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(1.4)" "14 - 1/2*(14- 4,76 -log(0.014/(0.01 + 0.014)))" "14 - 9.263" "4,76-log(0.583)"
expect txt_Calc(12).text == 2.307
expect txt_Calc(12).focus == true
answer preset 2
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(1.4)" "14 - 1/2*(14- 4,76 -log(0.014/(0.01 + 0.014)))" "14 - 9.263" "4,76-log(0.583)"
expect txt_Calc(12).text == 9.263
expect txt_Calc(12).focus == true
answer preset 3
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(1.4)" "14 - 1/2*(14- 4,76 -log(0.014/(0.01 + 0.014)))" "14 - 9.263" "4,76-log(0.583)"
expect txt_Calc(12).text == 4.737
expect txt_Calc(12).focus == true
answer preset 4
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(1.4)" "14 - 1/2*(14- 4,76 -log(0.014/(0.01 + 0.014)))" "14 - 9.263" "4,76-log(0.583)"
expect txt_Calc(12).text == 4.994
expect txt_Calc(12).focus == true
type txt_Calc(12) 9.26
key ENTER
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 3. Punkt"
expect report progress 3 12
expect series(1).count == 3
expect series(1).x(3) == 14
expect series(1).y(3) ~= 9.262958396983315 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 3
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 6
expect frm_AppMainWeak.Lab_Vallmista.text == 12
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 14
expect lab_pH.text == 9.26
click ctl_Button3
settle
click ctl_Button3
settle
# 16 mL
click but_Calc
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
type txt_Calc(3) 0.01401
key ENTER
expect report progress 3 13
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 13
expect form.vTries == 1
expect form.vWrong == 13
expect form.vMismatch == 0
type txt_Calc(3) 0.01401
answer yes
key ENTER
expect report progress 3 14
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 14
expect form.vDetailAcid == true
expect form.sStep == 1
expect but_CalcStep(1).visible == true
expect txt_Calc(1).focus == true
expect form.vTries == 0
expect form.vWrong == 14
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 7
type txt_Calc(1) 1.4
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
type txt_Calc(3) 0.014
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0.01601
key ENTER
expect report progress 3 15
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 15
expect form.vTries == 1
expect form.vWrong == 15
expect form.vMismatch == 1
type txt_Calc(6) 0.01601
answer yes
key ENTER
expect report progress 3 16
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 16
expect form.vDetailBase == true
expect form.sStep == 4
expect but_CalcStep(4).visible == true
expect txt_Calc(4).focus == true
expect form.vTries == 0
expect form.vWrong == 16
expect form.vMismatch == 2
expect form.vSolveUsed == 0
expect form.vHelpUsed == 8
type txt_Calc(4) 1
key ENTER
expect form.sStep == 5
expect but_CalcStep(5).visible == true
expect txt_Calc(5).focus == true
expect form.vTries == 0
type txt_Calc(5) 0.016
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0.016
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
type txt_Calc(10) 0.078
key ENTER
expect report progress 3 17
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 17
expect form.vTries == 1
expect form.vWrong == 17
expect form.vMismatch == 3
type txt_Calc(10) 0.078
answer yes
key ENTER
expect report progress 3 18
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 18
expect form.vDetailConc == true
expect form.sStep == 8
expect but_CalcStep(8).visible == true
expect txt_Calc(8).focus == true
expect form.vTries == 0
expect form.vWrong == 18
expect form.vMismatch == 4
expect form.vSolveUsed == 0
expect form.vHelpUsed == 9
type txt_Calc(8) 0.002
key ENTER
expect form.sStep == 9
expect but_CalcStep(9).visible == true
expect txt_Calc(9).focus == true
expect form.vTries == 0
type txt_Calc(9) 7
answer cancel
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0.01 + 0.016" "0.01 - 0.016" "0.01 + 1"
expect txt_Calc(9).text == 7
answer preset 1
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0.01 + 0.016" "0.01 - 0.016" "0.01 + 1"
expect txt_Calc(9).text == 0.026
expect txt_Calc(9).focus == true
answer preset 2
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0.01 + 0.016" "0.01 - 0.016" "0.01 + 1"
expect txt_Calc(9).text == -0.006
expect txt_Calc(9).focus == true
answer preset 3
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0.01 + 0.016" "0.01 - 0.016" "0.01 + 1"
expect txt_Calc(9).text == 1.010
expect txt_Calc(9).focus == true
type txt_Calc(9) 0.026
key ENTER
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 7
answer cancel
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0.014-0.016 ) / 0.016" "(0.016-0.014) / (0.026)" "(0.016) / (0.01 + 0.016)" "0.016/ (0.026)"
expect txt_Calc(10).text == 7
answer preset 1
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0.014-0.016 ) / 0.016" "(0.016-0.014) / (0.026)" "(0.016) / (0.01 + 0.016)" "0.016/ (0.026)"
expect txt_Calc(10).text == -0.125
expect txt_Calc(10).focus == true
answer preset 2
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0.014-0.016 ) / 0.016" "(0.016-0.014) / (0.026)" "(0.016) / (0.01 + 0.016)" "0.016/ (0.026)"
expect txt_Calc(10).text == 0.077
expect txt_Calc(10).focus == true
answer preset 3
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0.014-0.016 ) / 0.016" "(0.016-0.014) / (0.026)" "(0.016) / (0.01 + 0.016)" "0.016/ (0.026)"
expect txt_Calc(10).text == 0.615
expect txt_Calc(10).focus == true
answer preset 4
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0.014-0.016 ) / 0.016" "(0.016-0.014) / (0.026)" "(0.016) / (0.01 + 0.016)" "0.016/ (0.026)"
expect txt_Calc(10).text == 0.615
expect txt_Calc(10).focus == true
type txt_Calc(10) 0.077
key ENTER
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
type txt_Calc(11) 7
answer cancel
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "1/2*(14-(4,76-log(0.077)" "-log(0.076923076923077)" "14-1/2*(14-(4,76-log(0.077)" "14-12.886"
expect txt_Calc(11).text == 7
answer preset 1
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "1/2*(14-(4,76-log(0.077)" "-log(0.076923076923077)" "14-1/2*(14-(4,76-log(0.077)" "14-12.886"
expect txt_Calc(11).text == 4.063
expect txt_Calc(11).focus == true
answer preset 2
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "1/2*(14-(4,76-log(0.077)" "-log(0.076923076923077)" "14-1/2*(14-(4,76-log(0.077)" "14-12.886"
expect txt_Calc(11).text == 1.114
expect txt_Calc(11).focus == true
answer preset 3
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "1/2*(14-(4,76-log(0.077)" "-log(0.076923076923077)" "14-1/2*(14-(4,76-log(0.077)" "14-12.886"
expect txt_Calc(11).text == 9.937
expect txt_Calc(11).focus == true
answer preset 4
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "1/2*(14-(4,76-log(0.077)" "-log(0.076923076923077)" "14-1/2*(14-(4,76-log(0.077)" "14-12.886"
expect txt_Calc(11).text == 1.114
expect txt_Calc(11).focus == true
type txt_Calc(11) 1.11
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 7
answer cancel
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0.076923076923077)" "14 - 1/2*(14-4,76-log(0.077))" "14 - 1.11" "14+log(0.076923076923077)"
expect txt_Calc(12).text == 7
answer preset 1
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0.076923076923077)" "14 - 1/2*(14-4,76-log(0.077))" "14 - 1.11" "14+log(0.076923076923077)"
expect txt_Calc(12).text == 2.937
expect txt_Calc(12).focus == true
answer preset 2
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0.076923076923077)" "14 - 1/2*(14-4,76-log(0.077))" "14 - 1.11" "14+log(0.076923076923077)"
expect txt_Calc(12).text == 8.823
expect txt_Calc(12).focus == true
answer preset 3
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0.076923076923077)" "14 - 1/2*(14-4,76-log(0.077))" "14 - 1.11" "14+log(0.076923076923077)"
expect txt_Calc(12).text == 12.890
expect txt_Calc(12).focus == true
answer preset 4
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "1/2*(4,76 - log(0.076923076923077)" "14 - 1/2*(14-4,76-log(0.077))" "14 - 1.11" "14+log(0.076923076923077)"
expect txt_Calc(12).text == 12.886
expect txt_Calc(12).focus == true
type txt_Calc(12) 12.89
key ENTER
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 4. Punkt"
expect report progress 4 18
expect series(1).count == 4
expect series(1).x(4) == 16
expect series(1).y(4) ~= 12.886056647693163 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 4
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 9
expect frm_AppMainWeak.Lab_Vallmista.text == 18
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 16
expect lab_pH.text == 12.89
click ctl_Button3
settle
# 17 mL
click but_Calc
answer value 0,5
click but_CalcPH(2)
expect box calculator Rechner ""
expect presets
expect txt_Ph.text == 0.500
answer cancel
click but_CalcPH(2)
expect box calculator Rechner ""
expect txt_Ph.text == 0.500
expect but_CalcPH(8).visible == false
type txt_Ph 13,046
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 5. Punkt"
expect report progress 5 18
expect series(1).count == 5
expect series(1).x(5) == 17
expect series(1).y(5) ~= 13.046 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 5
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 9
expect frm_AppMainWeak.Lab_Vallmista.text == 18
expect frm_AppMainWeak.lab_pH.text == 13.046
expect nobox
expect noreport
menu mnu_FileQuit
expect ended
