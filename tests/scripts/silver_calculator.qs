# Chloride with silver: every line that the calculator offers, in every section, worked out.
name Mia
start
choose SSTab1 3
choose lst_Mol 0.8
check opt_NeedCalc off
click ctl_Button8
expect form frm_AppMainSilverStart
expect form.Accepted == false
click bar_Buttons
expect form frm_AppMainSilver
expect nobox
expect session.SessionConcentration == 0.8
expect session.SessionDemo == false
expect session.SessionRequiredPoints == ""
click ctl_Button1
settle
expect form.vVol == 10
click ctl_Button3
settle
# 1 mL
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
expect presets "(0,008 - 0,001)/(0,01+0,001)" " / " " / " "(0,001 - 0,008/(+)"
expect txt_Calc(10).text == 7
answer preset 1
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,008 - 0,001)/(0,01+0,001)" " / " " / " "(0,001 - 0,008/(+)"
expect txt_Calc(10).text == 0,636
expect txt_Calc(10).focus == true
type txt_Calc(10) 0,636
key ENTER
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
type txt_Calc(11) 7
answer cancel
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "10^(-9,7) /0,636" "0,636*10^(-9,7) /" "0,8-0,059*log(1/(0,636))"
expect txt_Calc(11).text == 7
answer preset 1
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "10^(-9,7) /0,636" "0,636*10^(-9,7) /" "0,8-0,059*log(1/(0,636))"
expect txt_Calc(11).text == 3,137*10^-10
expect txt_Calc(11).focus == true
answer preset 2
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "10^(-9,7) /0,636" "0,636*10^(-9,7) /" "0,8-0,059*log(1/(0,636))"
expect txt_Calc(11).text == 1,268*10^-10
expect txt_Calc(11).focus == true
answer preset 3
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "10^(-9,7) /0,636" "0,636*10^(-9,7) /" "0,8-0,059*log(1/(0,636))"
expect txt_Calc(11).text == 0,788
expect txt_Calc(11).focus == true
type txt_Calc(11) 3,135*10^-10
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 7
answer cancel
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "0,8-0,059*log(1/(0,636))" "0,8-0,059*log(1/(3,135*10^-10))" "0,059-0,8*log(1/(0,636))"
expect txt_Calc(12).text == 7
answer preset 1
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "0,8-0,059*log(1/(0,636))" "0,8-0,059*log(1/(3,135*10^-10))" "0,059-0,8*log(1/(0,636))"
expect txt_Calc(12).text == 0,788
expect txt_Calc(12).focus == true
answer preset 2
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "0,8-0,059*log(1/(0,636))" "0,8-0,059*log(1/(3,135*10^-10))" "0,059-0,8*log(1/(0,636))"
expect txt_Calc(12).text == 0,239
expect txt_Calc(12).focus == true
answer preset 3
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "0,8-0,059*log(1/(0,636))" "0,8-0,059*log(1/(3,135*10^-10))" "0,059-0,8*log(1/(0,636))"
expect txt_Calc(12).text == -0,098
expect txt_Calc(12).focus == true
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
type txt_Calc(3) 0,00801
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 1
expect form.vTries == 1
expect form.vWrong == 1
expect form.vMismatch == 0
type txt_Calc(3) 0,00801
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
type txt_Calc(1) 0,8
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
type txt_Calc(3) 0,008
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,00201
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 3
expect form.vTries == 1
expect form.vWrong == 3
expect form.vMismatch == 1
type txt_Calc(6) 0,00201
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
type txt_Calc(5) 0,002
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
type txt_Calc(10) 0,501
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 5
expect form.vTries == 1
expect form.vWrong == 5
expect form.vMismatch == 3
type txt_Calc(10) 0,501
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
expect presets "0,008-0,002" "0,002-0,008" "0,8 - (10^(-9,7))^0.5" "0.01+1"
expect txt_Calc(8).text == 7
answer preset 1
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0,008-0,002" "0,002-0,008" "0,8 - (10^(-9,7))^0.5" "0.01+1"
expect txt_Calc(8).text == 0,006
expect txt_Calc(8).focus == true
answer preset 2
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0,008-0,002" "0,002-0,008" "0,8 - (10^(-9,7))^0.5" "0.01+1"
expect txt_Calc(8).text == -0,006
expect txt_Calc(8).focus == true
answer preset 3
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0,008-0,002" "0,002-0,008" "0,8 - (10^(-9,7))^0.5" "0.01+1"
expect txt_Calc(8).text == 0,800
expect txt_Calc(8).focus == true
answer preset 4
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0,008-0,002" "0,002-0,008" "0,8 - (10^(-9,7))^0.5" "0.01+1"
expect txt_Calc(8).text == 1,010
expect txt_Calc(8).focus == true
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
expect presets "0.01+1" "0,008-0,002" "0.01+1"
expect txt_Calc(9).text == 7
answer preset 1
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0.01+1" "0,008-0,002" "0.01+1"
expect txt_Calc(9).text == 1,010
expect txt_Calc(9).focus == true
answer preset 2
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0.01+1" "0,008-0,002" "0.01+1"
expect txt_Calc(9).text == 0,006
expect txt_Calc(9).focus == true
answer preset 3
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0.01+1" "0,008-0,002" "0.01+1"
expect txt_Calc(9).text == 1,010
expect txt_Calc(9).focus == true
type txt_Calc(9) 0,012
key ENTER
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 7
answer cancel
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,008 - 0,002)/(0,01+0,002)" "0,006 / 0,012" "0,012 / 0,006" "(0,002 - 0,008/(0.01+1)"
expect txt_Calc(10).text == 7
answer preset 1
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,008 - 0,002)/(0,01+0,002)" "0,006 / 0,012" "0,012 / 0,006" "(0,002 - 0,008/(0.01+1)"
expect txt_Calc(10).text == 0,500
expect txt_Calc(10).focus == true
answer preset 2
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,008 - 0,002)/(0,01+0,002)" "0,006 / 0,012" "0,012 / 0,006" "(0,002 - 0,008/(0.01+1)"
expect txt_Calc(10).text == 0,500
expect txt_Calc(10).focus == true
answer preset 3
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,008 - 0,002)/(0,01+0,002)" "0,006 / 0,012" "0,012 / 0,006" "(0,002 - 0,008/(0.01+1)"
expect txt_Calc(10).text == 2,000
expect txt_Calc(10).focus == true
answer preset 4
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,008 - 0,002)/(0,01+0,002)" "0,006 / 0,012" "0,012 / 0,006" "(0,002 - 0,008/(0.01+1)"
expect txt_Calc(10).text == -0,006
expect txt_Calc(10).focus == true
type txt_Calc(10) 0,500
key ENTER
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
type txt_Calc(11) 7
answer cancel
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "10^(-9,7) /0,500" "0,500*10^(-9,7) /" "0,8-0,059*log(1/(0,500))"
expect txt_Calc(11).text == 7
answer preset 1
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "10^(-9,7) /0,500" "0,500*10^(-9,7) /" "0,8-0,059*log(1/(0,500))"
expect txt_Calc(11).text == 3,990*10^-10
expect txt_Calc(11).focus == true
answer preset 2
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "10^(-9,7) /0,500" "0,500*10^(-9,7) /" "0,8-0,059*log(1/(0,500))"
expect txt_Calc(11).text == 9,976*10^-11
expect txt_Calc(11).focus == true
answer preset 3
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "10^(-9,7) /0,500" "0,500*10^(-9,7) /" "0,8-0,059*log(1/(0,500))"
expect txt_Calc(11).text == 0,782
expect txt_Calc(11).focus == true
type txt_Calc(11) 3,990*10^-10
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 7
answer cancel
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "0,8-0,059*log(1/(0,500))" "0,8-0,059*log(1/(3,990*10^-10))" "0,059-0,8*log(1/(0,500))"
expect txt_Calc(12).text == 7
answer preset 1
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "0,8-0,059*log(1/(0,500))" "0,8-0,059*log(1/(3,990*10^-10))" "0,059-0,8*log(1/(0,500))"
expect txt_Calc(12).text == 0,782
expect txt_Calc(12).focus == true
answer preset 2
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "0,8-0,059*log(1/(0,500))" "0,8-0,059*log(1/(3,990*10^-10))" "0,059-0,8*log(1/(0,500))"
expect txt_Calc(12).text == 0,245
expect txt_Calc(12).focus == true
answer preset 3
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "0,8-0,059*log(1/(0,500))" "0,8-0,059*log(1/(3,990*10^-10))" "0,059-0,8*log(1/(0,500))"
expect txt_Calc(12).text == -0,182
expect txt_Calc(12).focus == true
type txt_Calc(12) 0,245
key ENTER
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 6
expect series(1).count == 2
expect series(1).x(2) == 2
expect series(1).y(2) ~= 0.24546076974417508 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 2
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.Lab_Vallmista.text == 6
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 2
expect lab_pH.text == "0,25 V"
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
type txt_Calc(3) 0,008
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
type txt_Calc(10) 0,386
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 7
expect form.vTries == 1
expect form.vWrong == 7
expect form.vMismatch == 1
type txt_Calc(10) 0,386
answer yes
key ENTER
expect noreport
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
expect form.vHelpUsed == 0
type txt_Calc(8) 7
answer cancel
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0,008-0,003" "0,003-0,008" "0,8 - (10^(-9,7))^0.5" "+"
expect txt_Calc(8).text == 7
answer preset 1
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0,008-0,003" "0,003-0,008" "0,8 - (10^(-9,7))^0.5" "+"
expect txt_Calc(8).text == 0,005
expect txt_Calc(8).focus == true
answer preset 2
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0,008-0,003" "0,003-0,008" "0,8 - (10^(-9,7))^0.5" "+"
expect txt_Calc(8).text == -0,005
expect txt_Calc(8).focus == true
answer preset 3
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0,008-0,003" "0,003-0,008" "0,8 - (10^(-9,7))^0.5" "+"
expect txt_Calc(8).text == 0,800
expect txt_Calc(8).focus == true
type txt_Calc(8) 0,005
key ENTER
expect form.sStep == 9
expect but_CalcStep(9).visible == true
expect txt_Calc(9).focus == true
expect form.vTries == 0
type txt_Calc(9) 7
answer cancel
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "+" "0,008-0,003" "+"
expect txt_Calc(9).text == 7
answer preset 2
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "+" "0,008-0,003" "+"
expect txt_Calc(9).text == 0,005
expect txt_Calc(9).focus == true
type txt_Calc(9) 0,013
key ENTER
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 7
answer cancel
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,008 - 0,003)/(0,01+0,003)" "0,005 / 0,013" "0,013 / 0,005" "(0,003 - 0,008/(+)"
expect txt_Calc(10).text == 7
answer preset 1
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,008 - 0,003)/(0,01+0,003)" "0,005 / 0,013" "0,013 / 0,005" "(0,003 - 0,008/(+)"
expect txt_Calc(10).text == 0,385
expect txt_Calc(10).focus == true
answer preset 2
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,008 - 0,003)/(0,01+0,003)" "0,005 / 0,013" "0,013 / 0,005" "(0,003 - 0,008/(+)"
expect txt_Calc(10).text == 0,385
expect txt_Calc(10).focus == true
answer preset 3
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,008 - 0,003)/(0,01+0,003)" "0,005 / 0,013" "0,013 / 0,005" "(0,003 - 0,008/(+)"
expect txt_Calc(10).text == 2,600
expect txt_Calc(10).focus == true
type txt_Calc(10) 0,385
key ENTER
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
type txt_Calc(11) 7
answer cancel
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "10^(-9,7) /0,385" "0,385*10^(-9,7) /" "0,8-0,059*log(1/(0,385))"
expect txt_Calc(11).text == 7
answer preset 1
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "10^(-9,7) /0,385" "0,385*10^(-9,7) /" "0,8-0,059*log(1/(0,385))"
expect txt_Calc(11).text == 5,182*10^-10
expect txt_Calc(11).focus == true
answer preset 2
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "10^(-9,7) /0,385" "0,385*10^(-9,7) /" "0,8-0,059*log(1/(0,385))"
expect txt_Calc(11).text == 7,681*10^-11
expect txt_Calc(11).focus == true
answer preset 3
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "10^(-9,7) /0,385" "0,385*10^(-9,7) /" "0,8-0,059*log(1/(0,385))"
expect txt_Calc(11).text == 0,776
expect txt_Calc(11).focus == true
type txt_Calc(11) 5,187*10^-10
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 7
answer cancel
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "0,8-0,059*log(1/(0,385))" "0,8-0,059*log(1/(5,187*10^-10))" "0,059-0,8*log(1/(0,385))"
expect txt_Calc(12).text == 7
answer preset 1
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "0,8-0,059*log(1/(0,385))" "0,8-0,059*log(1/(5,187*10^-10))" "0,059-0,8*log(1/(0,385))"
expect txt_Calc(12).text == 0,776
expect txt_Calc(12).focus == true
answer preset 2
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "0,8-0,059*log(1/(0,385))" "0,8-0,059*log(1/(5,187*10^-10))" "0,059-0,8*log(1/(0,385))"
expect txt_Calc(12).text == 0,252
expect txt_Calc(12).focus == true
answer preset 3
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "0,8-0,059*log(1/(0,385))" "0,8-0,059*log(1/(5,187*10^-10))" "0,059-0,8*log(1/(0,385))"
expect txt_Calc(12).text == -0,273
expect txt_Calc(12).focus == true
type txt_Calc(12) 0,252
key ENTER
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 3. Punkt"
expect report progress 3 8
expect series(1).count == 3
expect series(1).x(3) == 3
expect series(1).y(3) ~= 0.25218342753027834 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 3
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.Lab_Vallmista.text == 8
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 3
expect lab_pH.text == "0,25 V"
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
type txt_Calc(3) 0,00801
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 9
expect form.vTries == 1
expect form.vWrong == 9
expect form.vMismatch == 0
type txt_Calc(3) 0,00801
answer yes
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 10
expect form.vDetailAcid == true
expect form.sStep == 1
expect but_CalcStep(1).visible == true
expect txt_Calc(1).focus == true
expect form.vTries == 0
expect form.vWrong == 10
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(1) 0,8
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
type txt_Calc(3) 0,008
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,00801
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 11
expect form.vTries == 1
expect form.vWrong == 11
expect form.vMismatch == 1
type txt_Calc(6) 0,00801
answer yes
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 12
expect form.vDetailBase == true
expect form.sStep == 4
expect but_CalcStep(4).visible == true
expect txt_Calc(4).focus == true
expect form.vTries == 0
expect form.vWrong == 12
expect form.vMismatch == 2
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(4) 1
key ENTER
expect form.sStep == 5
expect but_CalcStep(5).visible == true
expect txt_Calc(5).focus == true
expect form.vTries == 0
type txt_Calc(5) 0,008
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
click opt_Calc(2)
click but_CalcStep(7)
expect form.sStep == 8
expect but_CalcStep(8).visible == true
expect txt_Calc(8).focus == true
expect form.vTries == 0
type txt_Calc(8) 7
answer cancel
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0,008-0,008" "0,008-0,008" "0,8 - (10^(-9,7))^0.5" "0.01+1"
expect txt_Calc(8).text == 7
answer preset 1
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0,008-0,008" "0,008-0,008" "0,8 - (10^(-9,7))^0.5" "0.01+1"
expect txt_Calc(8).text == 0,000
expect txt_Calc(8).focus == true
answer preset 2
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0,008-0,008" "0,008-0,008" "0,8 - (10^(-9,7))^0.5" "0.01+1"
expect txt_Calc(8).text == 0,000
expect txt_Calc(8).focus == true
answer preset 3
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0,008-0,008" "0,008-0,008" "0,8 - (10^(-9,7))^0.5" "0.01+1"
expect txt_Calc(8).text == 0,800
expect txt_Calc(8).focus == true
answer preset 4
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0,008-0,008" "0,008-0,008" "0,8 - (10^(-9,7))^0.5" "0.01+1"
expect txt_Calc(8).text == 1,010
expect txt_Calc(8).focus == true
type txt_Calc(8) 0,000
key ENTER
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
type txt_Calc(11) 7
answer cancel
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "10^(-9,7) /" "*10^(-9,7) /" "0,8-0,059*log(1/())"
expect txt_Calc(11).text == 7
answer preset 1
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "10^(-9,7) /" "*10^(-9,7) /" "0,8-0,059*log(1/())"
expect txt_Calc(11).text == 1,995*10^-10
expect txt_Calc(11).focus == true
type txt_Calc(11) 1,412*10^-05
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 7
answer cancel
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "0,8-0,059*log(1/())" "0,8-0,059*log(1/(1,412*10^-05))" "0,059-0,8*log(1/())"
expect txt_Calc(12).text == 7
answer preset 2
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "0,8-0,059*log(1/())" "0,8-0,059*log(1/(1,412*10^-05))" "0,059-0,8*log(1/())"
expect txt_Calc(12).text == 0,514
expect txt_Calc(12).focus == true
type txt_Calc(12) 0,514
key ENTER
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 4. Punkt"
expect report progress 4 12
expect series(1).count == 4
expect series(1).x(4) == 8
expect series(1).y(4) ~= 0.5138500000000001 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 4
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.Lab_Vallmista.text == 12
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
type txt_Calc(3) 0,008
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
type txt_Calc(10) 7
answer cancel
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,008 - 0,009)/(0,01+0,009)" " / " " / " "(0,009 - 0,008/(+)"
expect txt_Calc(10).text == 7
answer preset 1
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,008 - 0,009)/(0,01+0,009)" " / " " / " "(0,009 - 0,008/(+)"
expect txt_Calc(10).text == -0,053
expect txt_Calc(10).focus == true
type txt_Calc(10) 0,053
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 7
answer cancel
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "0,8-0,059*log(1/(0,053))" "0,8-0,059*log(1/())" "0,059-0,8*log(1/(0,053))"
expect txt_Calc(12).text == 7
answer preset 1
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "0,8-0,059*log(1/(0,053))" "0,8-0,059*log(1/())" "0,059-0,8*log(1/(0,053))"
expect txt_Calc(12).text == 0,725
expect txt_Calc(12).focus == true
answer preset 3
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "0,8-0,059*log(1/(0,053))" "0,8-0,059*log(1/())" "0,059-0,8*log(1/(0,053))"
expect txt_Calc(12).text == -0,962
expect txt_Calc(12).focus == true
type txt_Calc(12) 0,725
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 5. Punkt"
expect report progress 5 12
expect series(1).count == 5
expect series(1).x(5) == 9
expect series(1).y(5) ~= 0.7245535375437832 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 5
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.Lab_Vallmista.text == 12
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
# 10 mL
click but_Calc
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
type txt_Calc(3) 0,00801
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 13
expect form.vTries == 1
expect form.vWrong == 13
expect form.vMismatch == 0
type txt_Calc(3) 0,00801
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
type txt_Calc(1) 0,8
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
type txt_Calc(3) 0,008
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,01001
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 15
expect form.vTries == 1
expect form.vWrong == 15
expect form.vMismatch == 1
type txt_Calc(6) 0,01001
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
type txt_Calc(5) 0,01
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,01
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
type txt_Calc(10) 0,101
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 17
expect form.vTries == 1
expect form.vWrong == 17
expect form.vMismatch == 3
type txt_Calc(10) 0,101
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
expect presets "0,008-0,01" "0,01-0,008" "0,8 - (10^(-9,7))^0.5" "0.01+1"
expect txt_Calc(8).text == 7
answer preset 1
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0,008-0,01" "0,01-0,008" "0,8 - (10^(-9,7))^0.5" "0.01+1"
expect txt_Calc(8).text == -0,002
expect txt_Calc(8).focus == true
answer preset 2
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0,008-0,01" "0,01-0,008" "0,8 - (10^(-9,7))^0.5" "0.01+1"
expect txt_Calc(8).text == 0,002
expect txt_Calc(8).focus == true
answer preset 3
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0,008-0,01" "0,01-0,008" "0,8 - (10^(-9,7))^0.5" "0.01+1"
expect txt_Calc(8).text == 0,800
expect txt_Calc(8).focus == true
answer preset 4
click but_CalcPH(8)
expect box calculator Rechner ""
expect presets "0,008-0,01" "0,01-0,008" "0,8 - (10^(-9,7))^0.5" "0.01+1"
expect txt_Calc(8).text == 1,010
expect txt_Calc(8).focus == true
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
expect presets "0.01+1" "0,008-0,01" "0.01+1"
expect txt_Calc(9).text == 7
answer preset 1
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0.01+1" "0,008-0,01" "0.01+1"
expect txt_Calc(9).text == 1,010
expect txt_Calc(9).focus == true
answer preset 2
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0.01+1" "0,008-0,01" "0.01+1"
expect txt_Calc(9).text == -0,002
expect txt_Calc(9).focus == true
answer preset 3
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets "0.01+1" "0,008-0,01" "0.01+1"
expect txt_Calc(9).text == 1,010
expect txt_Calc(9).focus == true
type txt_Calc(9) 0,020
key ENTER
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 7
answer cancel
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,008 - 0,01)/(0,01+0,01)" "0,002 / 0,020" "0,020 / 0,002" "(0,01 - 0,008/(0.01+1)"
expect txt_Calc(10).text == 7
answer preset 1
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,008 - 0,01)/(0,01+0,01)" "0,002 / 0,020" "0,020 / 0,002" "(0,01 - 0,008/(0.01+1)"
expect txt_Calc(10).text == -0,100
expect txt_Calc(10).focus == true
answer preset 2
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,008 - 0,01)/(0,01+0,01)" "0,002 / 0,020" "0,020 / 0,002" "(0,01 - 0,008/(0.01+1)"
expect txt_Calc(10).text == 0,100
expect txt_Calc(10).focus == true
answer preset 3
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,008 - 0,01)/(0,01+0,01)" "0,002 / 0,020" "0,020 / 0,002" "(0,01 - 0,008/(0.01+1)"
expect txt_Calc(10).text == 10,000
expect txt_Calc(10).focus == true
answer preset 4
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,008 - 0,01)/(0,01+0,01)" "0,002 / 0,020" "0,020 / 0,002" "(0,01 - 0,008/(0.01+1)"
expect txt_Calc(10).text == 0,002
expect txt_Calc(10).focus == true
type txt_Calc(10) 0,100
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 7
answer cancel
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "0,8-0,059*log(1/(0,100))" "0,8-0,059*log(1/())" "0,059-0,8*log(1/(0,100))"
expect txt_Calc(12).text == 7
answer preset 1
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "0,8-0,059*log(1/(0,100))" "0,8-0,059*log(1/())" "0,059-0,8*log(1/(0,100))"
expect txt_Calc(12).text == 0,741
expect txt_Calc(12).focus == true
answer preset 3
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "0,8-0,059*log(1/(0,100))" "0,8-0,059*log(1/())" "0,059-0,8*log(1/(0,100))"
expect txt_Calc(12).text == -0,741
expect txt_Calc(12).focus == true
type txt_Calc(12) 0,741
key ENTER
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 6. Punkt"
expect report progress 6 18
expect series(1).count == 6
expect series(1).x(6) == 10
expect series(1).y(6) ~= 0.7410000000000001 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 6
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.Lab_Vallmista.text == 18
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 10
expect lab_pH.text == "0,74 V"
click ctl_Button3
settle
# 11 mL
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
type txt_Ph 0,75
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 7. Punkt"
expect report progress 7 18
expect series(1).count == 7
expect series(1).x(7) == 11
expect series(1).y(7) ~= 0.75 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 7
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.Lab_Vallmista.text == 18
expect frm_AppMainSilver.lab_pH.text == ?
expect nobox
expect noreport
menu mnu_FileQuit
expect ended
