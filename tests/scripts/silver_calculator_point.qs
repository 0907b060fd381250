# Chloride with silver and a decimal point: every line that the calculator offers.
name Mia
locale point
start
choose SSTab1 3
choose lst_Mol 1.4
check opt_NeedCalc off
click ctl_Button8
expect form frm_AppMainSilverStart
expect form.Accepted == false
click bar_Buttons
expect form frm_AppMainSilver
expect nobox
expect session.SessionConcentration == 1.4
expect session.SessionDemo == false
expect session.SessionRequiredPoints == ""
click ctl_Button1
settle
expect form.vVol == 10
click ctl_Button3
settle
click ctl_Button3
settle
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
type txt_Calc(3) 0.01401
key ENTER
expect noreport
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
expect noreport
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
expect form.vHelpUsed == 0
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
type txt_Calc(6) 0.00301
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 3
expect form.vTries == 1
expect form.vWrong == 3
expect form.vMismatch == 1
type txt_Calc(6) 0.00301
answer yes
key ENTER
expect noreport
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
expect form.vHelpUsed == 0
type txt_Calc(4) 1
key ENTER
expect form.sStep == 5
expect but_CalcStep(5).visible == true
expect txt_Calc(5).focus == true
expect form.vTries == 0
type txt_Calc(5) 0.003
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0.003
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
type txt_Calc(10) 0.847
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 5
expect form.vTries == 1
expect form.vWrong == 5
expect form.vMismatch == 3
type txt_Calc(10) 0.847
answer yes
key ENTER
expect noreport
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
expect form.vHelpUsed == 0
type txt_Calc(8) 7
answer cancel
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0.014-0.003" "0.003-0.014" "0,8 - (10^(-9,7))^0.5" "0.01+1"
expect txt_Calc(8).text == 7
answer preset 1
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0.014-0.003" "0.003-0.014" "0,8 - (10^(-9,7))^0.5" "0.01+1"
expect txt_Calc(8).text == 0.011
expect txt_Calc(8).focus == true
answer preset 2
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0.014-0.003" "0.003-0.014" "0,8 - (10^(-9,7))^0.5" "0.01+1"
expect txt_Calc(8).text == -0.011
expect txt_Calc(8).focus == true
answer preset 3
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0.014-0.003" "0.003-0.014" "0,8 - (10^(-9,7))^0.5" "0.01+1"
expect txt_Calc(8).text == 0.800
expect txt_Calc(8).focus == true
answer preset 4
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0.014-0.003" "0.003-0.014" "0,8 - (10^(-9,7))^0.5" "0.01+1"
expect txt_Calc(8).text == 1.010
expect txt_Calc(8).focus == true
type txt_Calc(8) 0.011
key ENTER
expect form.sStep == 9
expect but_CalcStep(9).visible == true
expect txt_Calc(9).focus == true
expect form.vTries == 0
type txt_Calc(9) 7
answer cancel
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0.01+1" "0.014-0.003" "0.01+1"
expect txt_Calc(9).text == 7
answer preset 1
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0.01+1" "0.014-0.003" "0.01+1"
expect txt_Calc(9).text == 1.010
expect txt_Calc(9).focus == true
answer preset 2
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0.01+1" "0.014-0.003" "0.01+1"
expect txt_Calc(9).text == 0.011
expect txt_Calc(9).focus == true
answer preset 3
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0.01+1" "0.014-0.003" "0.01+1"
expect txt_Calc(9).text == 1.010
expect txt_Calc(9).focus == true
type txt_Calc(9) 0.013
key ENTER
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 7
answer cancel
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0.014 - 0.003)/(0.01+0.003)" "0.011 / 0.013" "0.013 / 0.011" "(0.003 - 0.014/(0.01+1)"
expect txt_Calc(10).text == 7
answer preset 1
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0.014 - 0.003)/(0.01+0.003)" "0.011 / 0.013" "0.013 / 0.011" "(0.003 - 0.014/(0.01+1)"
expect txt_Calc(10).text == 0.846
expect txt_Calc(10).focus == true
answer preset 2
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0.014 - 0.003)/(0.01+0.003)" "0.011 / 0.013" "0.013 / 0.011" "(0.003 - 0.014/(0.01+1)"
expect txt_Calc(10).text == 0.846
expect txt_Calc(10).focus == true
answer preset 3
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0.014 - 0.003)/(0.01+0.003)" "0.011 / 0.013" "0.013 / 0.011" "(0.003 - 0.014/(0.01+1)"
expect txt_Calc(10).text == 1.182
expect txt_Calc(10).focus == true
answer preset 4
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0.014 - 0.003)/(0.01+0.003)" "0.011 / 0.013" "0.013 / 0.011" "(0.003 - 0.014/(0.01+1)"
expect txt_Calc(10).text == -0.011
expect txt_Calc(10).focus == true
type txt_Calc(10) 0.846
key ENTER
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
type txt_Calc(11) 7
answer cancel
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "10^(-9,7) /0.846" "0.846*10^(-9,7) /" "0,8-0,059*log(1/(0.846))"
expect txt_Calc(11).text == 7
answer preset 1
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "10^(-9,7) /0.846" "0.846*10^(-9,7) /" "0,8-0,059*log(1/(0.846))"
expect txt_Calc(11).text == 2.358*10^-10
expect txt_Calc(11).focus == true
answer preset 2
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "10^(-9,7) /0.846" "0.846*10^(-9,7) /" "0,8-0,059*log(1/(0.846))"
expect txt_Calc(11).text == 1.687*10^-10
expect txt_Calc(11).focus == true
answer preset 3
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "10^(-9,7) /0.846" "0.846*10^(-9,7) /" "0,8-0,059*log(1/(0.846))"
expect txt_Calc(11).text == 0.796
expect txt_Calc(11).focus == true
type txt_Calc(11) 2.358*10^-10
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 7
answer cancel
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "0,8-0,059*log(1/(0.846))" "0,8-0,059*log(1/(2.358*10^-10))" "0,059-0,8*log(1/(0.846))"
expect txt_Calc(12).text == 7
answer preset 1
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "0,8-0,059*log(1/(0.846))" "0,8-0,059*log(1/(2.358*10^-10))" "0,059-0,8*log(1/(0.846))"
expect txt_Calc(12).text == 0.796
expect txt_Calc(12).focus == true
answer preset 2
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "0,8-0,059*log(1/(0.846))" "0,8-0,059*log(1/(2.358*10^-10))" "0,059-0,8*log(1/(0.846))"
expect txt_Calc(12).text == 0.232
expect txt_Calc(12).focus == true
answer preset 3
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "0,8-0,059*log(1/(0.846))" "0,8-0,059*log(1/(2.358*10^-10))" "0,059-0,8*log(1/(0.846))"
expect txt_Calc(12).text == 0.001
expect txt_Calc(12).focus == true
type txt_Calc(12) 0.232
key ENTER
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 6
expect series(1).count == 1
expect series(1).x(1) == 3
expect series(1).y(1) ~= 0.2319804893617683 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 1
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.Lab_Vallmista.text == 6
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 3
expect lab_pH.text == "0.23 V"
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
expect noreport
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
expect noreport
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
expect form.vHelpUsed == 0
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
expect noreport
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
expect noreport
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
expect form.vHelpUsed == 0
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
click opt_Calc(3)
click but_CalcStep(7)
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 0.001
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 11
expect form.vTries == 1
expect form.vWrong == 11
expect form.vMismatch == 3
type txt_Calc(10) 0.001
answer yes
key ENTER
expect noreport
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
expect form.vHelpUsed == 0
type txt_Calc(8) 7
answer cancel
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0.014-0.014" "0.014-0.014" "0,8 - (10^(-9,7))^0.5" "0.01+1"
expect txt_Calc(8).text == 7
answer preset 1
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0.014-0.014" "0.014-0.014" "0,8 - (10^(-9,7))^0.5" "0.01+1"
expect txt_Calc(8).text == 0.000
expect txt_Calc(8).focus == true
answer preset 2
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0.014-0.014" "0.014-0.014" "0,8 - (10^(-9,7))^0.5" "0.01+1"
expect txt_Calc(8).text == 0.000
expect txt_Calc(8).focus == true
answer preset 3
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0.014-0.014" "0.014-0.014" "0,8 - (10^(-9,7))^0.5" "0.01+1"
expect txt_Calc(8).text == 0.800
expect txt_Calc(8).focus == true
answer preset 4
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0.014-0.014" "0.014-0.014" "0,8 - (10^(-9,7))^0.5" "0.01+1"
expect txt_Calc(8).text == 1.010
expect txt_Calc(8).focus == true
type txt_Calc(8) 0.000
key ENTER
expect form.sStep == 9
expect but_CalcStep(9).visible == true
expect txt_Calc(9).focus == true
expect form.vTries == 0
type txt_Calc(9) 7
answer cancel
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0.01+1" "0.014-0.014" "0.01+1"
expect txt_Calc(9).text == 7
answer preset 1
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0.01+1" "0.014-0.014" "0.01+1"
expect txt_Calc(9).text == 1.010
expect txt_Calc(9).focus == true
answer preset 2
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0.01+1" "0.014-0.014" "0.01+1"
expect txt_Calc(9).text == 0.000
expect txt_Calc(9).focus == true
answer preset 3
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0.01+1" "0.014-0.014" "0.01+1"
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
expect presets "(0.014 - 0.014)/(0.01+0.014)" "0.000 / 0.024" "0.024 / 0.000" "(0.014 - 0.014/(0.01+1)"
expect txt_Calc(10).text == 7
answer preset 1
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0.014 - 0.014)/(0.01+0.014)" "0.000 / 0.024" "0.024 / 0.000" "(0.014 - 0.014/(0.01+1)"
expect txt_Calc(10).text == 0.000
expect txt_Calc(10).focus == true
answer preset 2
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0.014 - 0.014)/(0.01+0.014)" "0.000 / 0.024" "0.024 / 0.000" "(0.014 - 0.014/(0.01+1)"
expect txt_Calc(10).text == 0.000
expect txt_Calc(10).focus == true
answer preset 4
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0.014 - 0.014)/(0.01+0.014)" "0.000 / 0.024" "0.024 / 0.000" "(0.014 - 0.014/(0.01+1)"
expect txt_Calc(10).text == 0.000
expect txt_Calc(10).focus == true
type txt_Calc(10) 0.000
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 7
answer cancel
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "0,8-0,059*log(1/(0.000))" "0,8-0,059*log(1/())" "0,059-0,8*log(1/(0.000))"
expect txt_Calc(12).text == 7
type txt_Calc(12) -0.152
key ENTER
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 12
expect series(1).count == 2
expect series(1).x(2) == 14
expect series(1).y(2) ~= -0.15231787816730302 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 2
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.Lab_Vallmista.text == 12
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 14
expect lab_pH.text == "-0.15 V"
click ctl_Button3
settle
# 15 mL
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
expect noreport
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
expect noreport
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
expect form.vHelpUsed == 0
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
type txt_Calc(6) 0.01501
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 15
expect form.vTries == 1
expect form.vWrong == 15
expect form.vMismatch == 1
type txt_Calc(6) 0.01501
answer yes
key ENTER
expect noreport
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
expect form.vHelpUsed == 0
type txt_Calc(4) 1
key ENTER
expect form.sStep == 5
expect but_CalcStep(5).visible == true
expect txt_Calc(5).focus == true
expect form.vTries == 0
type txt_Calc(5) 0.015
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0.015
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
type txt_Calc(10) 0.041
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 17
expect form.vTries == 1
expect form.vWrong == 17
expect form.vMismatch == 3
type txt_Calc(10) 0.041
answer yes
key ENTER
expect noreport
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
expect form.vHelpUsed == 0
type txt_Calc(8) 7
answer cancel
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0.014-0.015" "0.015-0.014" "0,8 - (10^(-9,7))^0.5" "0.01+1"
expect txt_Calc(8).text == 7
answer preset 1
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0.014-0.015" "0.015-0.014" "0,8 - (10^(-9,7))^0.5" "0.01+1"
expect txt_Calc(8).text == -0.001
expect txt_Calc(8).focus == true
answer preset 2
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0.014-0.015" "0.015-0.014" "0,8 - (10^(-9,7))^0.5" "0.01+1"
expect txt_Calc(8).text == 0.001
expect txt_Calc(8).focus == true
answer preset 3
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0.014-0.015" "0.015-0.014" "0,8 - (10^(-9,7))^0.5" "0.01+1"
expect txt_Calc(8).text == 0.800
expect txt_Calc(8).focus == true
answer preset 4
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0.014-0.015" "0.015-0.014" "0,8 - (10^(-9,7))^0.5" "0.01+1"
expect txt_Calc(8).text == 1.010
expect txt_Calc(8).focus == true
type txt_Calc(8) 0.001
key ENTER
expect form.sStep == 9
expect but_CalcStep(9).visible == true
expect txt_Calc(9).focus == true
expect form.vTries == 0
type txt_Calc(9) 7
answer cancel
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0.01+1" "0.014-0.015" "0.01+1"
expect txt_Calc(9).text == 7
answer preset 1
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0.01+1" "0.014-0.015" "0.01+1"
expect txt_Calc(9).text == 1.010
expect txt_Calc(9).focus == true
answer preset 2
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0.01+1" "0.014-0.015" "0.01+1"
expect txt_Calc(9).text == -0.001
expect txt_Calc(9).focus == true
answer preset 3
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0.01+1" "0.014-0.015" "0.01+1"
expect txt_Calc(9).text == 1.010
expect txt_Calc(9).focus == true
type txt_Calc(9) 0.025
key ENTER
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 7
answer cancel
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0.014 - 0.015)/(0.01+0.015)" "0.001 / 0.025" "0.025 / 0.001" "(0.015 - 0.014/(0.01+1)"
expect txt_Calc(10).text == 7
answer preset 1
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0.014 - 0.015)/(0.01+0.015)" "0.001 / 0.025" "0.025 / 0.001" "(0.015 - 0.014/(0.01+1)"
expect txt_Calc(10).text == -0.040
expect txt_Calc(10).focus == true
answer preset 2
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0.014 - 0.015)/(0.01+0.015)" "0.001 / 0.025" "0.025 / 0.001" "(0.015 - 0.014/(0.01+1)"
expect txt_Calc(10).text == 0.040
expect txt_Calc(10).focus == true
answer preset 3
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0.014 - 0.015)/(0.01+0.015)" "0.001 / 0.025" "0.025 / 0.001" "(0.015 - 0.014/(0.01+1)"
expect txt_Calc(10).text == 25.000
expect txt_Calc(10).focus == true
answer preset 4
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0.014 - 0.015)/(0.01+0.015)" "0.001 / 0.025" "0.025 / 0.001" "(0.015 - 0.014/(0.01+1)"
expect txt_Calc(10).text == 0.001
expect txt_Calc(10).focus == true
type txt_Calc(10) 0.040
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 7
answer cancel
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "0,8-0,059*log(1/(0.040))" "0,8-0,059*log(1/())" "0,059-0,8*log(1/(0.040))"
expect txt_Calc(12).text == 7
answer preset 1
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "0,8-0,059*log(1/(0.040))" "0,8-0,059*log(1/())" "0,059-0,8*log(1/(0.040))"
expect txt_Calc(12).text == 0.718
expect txt_Calc(12).focus == true
answer preset 3
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "0,8-0,059*log(1/(0.040))" "0,8-0,059*log(1/())" "0,059-0,8*log(1/(0.040))"
expect txt_Calc(12).text == -1.059
expect txt_Calc(12).focus == true
type txt_Calc(12) 0.718
key ENTER
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 3. Punkt"
expect report progress 3 18
expect series(1).count == 3
expect series(1).x(3) == 15
expect series(1).y(3) ~= 0.7175215394883498 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 3
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.Lab_Vallmista.text == 18
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 15
expect lab_pH.text == "0.72 V"
click ctl_Button3
settle
# 16 mL
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
type txt_Ph 0,73
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 4. Punkt"
expect report progress 4 18
expect series(1).count == 4
expect series(1).x(4) == 16
expect series(1).y(4) ~= 0.73 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 4
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.Lab_Vallmista.text == 18
expect frm_AppMainSilver.lab_pH.text == ?
expect nobox
expect noreport
menu mnu_FileQuit
expect ended
