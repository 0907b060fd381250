# Weak acid of 0.8 mol/L with all details opened: each answer typed, in every case, as learners write numbers.
name Mia
start
choose SSTab1 3
choose lst_Mol 0.8
check opt_NeedCalc off
click ctl_Button4
expect form frm_AppMainWeak
expect nobox
expect session.SessionConcentration == 0.8
expect session.SessionDemo == false
expect session.SessionRequiredPoints == ""
click ctl_Button1
settle
expect form.vVol == 10
expect beaker.countsort(10) == 8
expect beaker.count == 8
# 0 mL
click but_Calc
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect ctl_Button2.visible == false
expect ctl_Button3.visible == false
expect but_Calc.visible == false
expect but_Help.visible == false
expect but_phCompare.visible == false
expect form.sStep == 7
expect form.vStepReached(7) == true
expect but_CalcStep(7).visible == true
expect but_CalcStep(8).visible == false
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "Welcher Fall liegt vor - ist für den pH entscheidend?"
expect opt_Calc(0).visible == true
expect opt_Calc(0).text == "(Fast) nur HAc"
expect lab_optCalc(0).visible == false
expect opt_Calc(1).visible == true
expect opt_Calc(1).text == "HAc neben Ac-"
expect lab_optCalc(1).visible == false
expect opt_Calc(2).visible == true
expect opt_Calc(2).text == "(Fast) nur Ac-"
expect lab_optCalc(2).visible == false
expect opt_Calc(3).visible == true
expect opt_Calc(3).text == "Wichtig nur OH- "
expect lab_optCalc(3).visible == false
expect opt_CalcStore.visible == true
expect lab_CalcStep(0).visible == false
expect lab_CalcStep(1).visible == false
expect txt_Calc(1).visible == false
expect txt_Calc(2).visible == false
expect txt_Calc(3).visible == false
expect txt_Calc(4).visible == false
expect txt_Calc(5).visible == false
expect txt_Calc(6).visible == false
expect but_CalcStep(7).focus == true
expect txt_Calc(1).text == ""
expect txt_Calc(2).text == ""
expect txt_Calc(3).text == ""
expect txt_Calc(4).text == ""
expect txt_Calc(5).text == ""
expect txt_Calc(6).text == ""
expect txt_Calc(8).text == ""
expect txt_Calc(9).text == ""
expect txt_Calc(10).text == ""
expect txt_Calc(11).text == ""
expect txt_Calc(12).text == ""
expect opt_Calc(0).checked == false
expect opt_Calc(1).checked == false
expect opt_Calc(2).checked == false
expect opt_Calc(3).checked == false
click opt_Calc(1)
key ENTER but_CalcStep(7)
expect report progress 0 1
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 1
expect form.vTries == 1
expect form.vWrong == 1
expect form.vMismatch == 0
click opt_Calc(1)
answer yes
key ENTER but_CalcStep(7)
expect report progress 0 2
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 2
expect form.vDetailCase == true
expect form.sStep == 7
expect form.vStepReached(7) == true
expect but_CalcStep(7).visible == true
expect but_CalcStep(8).visible == false
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "Welcher Fall liegt vor - ist für den pH entscheidend?"
expect opt_Calc(0).visible == true
expect opt_Calc(0).text == "(Fast) nur HAc"
expect lab_optCalc(0).visible == true
expect lab_optCalc(0).term == "nµZ(OH) = 0"
expect opt_Calc(1).visible == true
expect opt_Calc(1).text == "HAc neben Ac-"
expect lab_optCalc(1).visible == true
expect lab_optCalc(1).term == "0 < nµZ(OH) < nµV(HAc)"
expect opt_Calc(2).visible == true
expect opt_Calc(2).text == "(Fast) nur Ac-"
expect lab_optCalc(2).visible == true
expect lab_optCalc(2).term == "nµZ(OH) = nµV(HAc)"
expect opt_Calc(3).visible == true
expect opt_Calc(3).text == "Wichtig nur OH- "
expect lab_optCalc(3).visible == true
expect lab_optCalc(3).term == "nµZ(OH) > nµV(HAc)"
expect opt_CalcStore.visible == true
expect lab_CalcStep(0).visible == false
expect lab_CalcStep(1).visible == false
expect txt_Calc(1).visible == false
expect txt_Calc(2).visible == false
expect txt_Calc(3).visible == false
expect txt_Calc(4).visible == false
expect txt_Calc(5).visible == false
expect txt_Calc(6).visible == false
expect but_CalcStep(7).focus == true
expect form.vTries == 0
expect form.vWrong == 2
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 1
click opt_Calc(0)
click but_CalcStep(7)
expect form.sStep == 12
expect form.vStepReached(12) == true
expect but_CalcStep(7).visible == false
expect but_CalcStep(12).visible == true
expect but_CalcPH(12).visible == true
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "1. Es liegt (fast) nur schwache Säure vor"
expect lab_Calc(23).visible == true
expect lab_Calc(23).term == "pH ="
expect lab_Calc(16).visible == false
expect lab_Calc(28).visible == false
expect lab_Calc(19).visible == false
expect lab_Calc(1).visible == false
expect lab_Calc(2).visible == false
expect txt_Calc(8).visible == false
expect txt_Calc(9).visible == false
expect txt_Calc(10).visible == false
expect txt_Calc(11).visible == false
expect txt_Calc(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 2,44
key ENTER
expect report progress 0 3
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 3
expect form.vTries == 1
expect form.vWrong == 3
expect form.vMismatch == 1
type txt_Calc(12) 2,44
answer yes
key ENTER
expect report progress 0 4
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 4
expect form.vDetailStart == true
expect form.sStep == 12
expect form.vStepReached(12) == true
expect but_CalcStep(12).visible == true
expect but_CalcPH(12).visible == true
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "1. Es liegt (fast) nur schwache Säure vor"
expect lab_Calc(23).visible == true
expect lab_Calc(23).term == "pH ="
expect lab_Calc(16).visible == true
expect lab_Calc(16).term == "Der pH-Wert für eine schwache Säure"
expect lab_Calc(28).visible == true
expect lab_Calc(28).term == "berechnet sich wie folgt:"
expect lab_Calc(19).visible == true
expect lab_Calc(19).term == "pH = (1)/(2)*(pKs-log(cµV(HAc)))"
expect lab_Calc(1).visible == true
expect lab_Calc(1).term == "cµV(HAc) ="
expect lab_Calc(2).visible == true
expect lab_Calc(2).term == "mol / L"
expect txt_Calc(1).visible == true
expect txt_Calc(1).text == 0,8
expect txt_Calc(8).visible == false
expect txt_Calc(9).visible == false
expect txt_Calc(10).visible == false
expect txt_Calc(11).visible == false
expect txt_Calc(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
expect form.vWrong == 4
expect form.vMismatch == 2
expect form.vSolveUsed == 0
expect form.vHelpUsed == 2
type txt_Calc(12) 2.43
click but_CalcStep(12)
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 4
expect series(1).count == 1
expect series(1).x(1) == 0
expect series(1).y(1) ~= 2.428455006504028 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 1
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 2
expect frm_AppMainWeak.Lab_Vallmista.text == 4
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 0
expect lab_pH.text == 2,43
expect ctl_Button3.visible == true
expect but_Help.visible == true
expect but_phCompare.visible == true
expect but_Calc.visible == false
expect ctl_Button2.visible == false
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
expect ctl_Button2.visible == false
expect ctl_Button3.visible == false
expect but_Calc.visible == false
expect but_Help.visible == false
expect but_phCompare.visible == false
expect form.sStep == 3
expect form.vStepReached(3) == true
expect but_CalcStep(3).visible == true
expect but_CalcStep(4).visible == false
expect lab_CalcStep(0).visible == true
expect lab_CalcStep(0).text == "1. Stoffmenge vorgelegte  Säure"
expect lab_Calc(6).visible == true
expect lab_Calc(6).term == "nµV(HAc) ="
expect lab_Calc(7).visible == true
expect lab_Calc(7).term == "mol"
expect lab_Calc(0).visible == false
expect lab_Calc(1).visible == false
expect lab_Calc(3).visible == false
expect lab_Calc(5).visible == false
expect lab_Calc(19).visible == false
expect txt_Calc(1).visible == false
expect txt_Calc(2).visible == false
expect txt_Calc(3).visible == true
expect txt_Calc(3).focus == true
expect txt_Calc(1).text == ""
expect txt_Calc(2).text == ""
expect txt_Calc(3).text == ""
expect txt_Calc(4).text == ""
expect txt_Calc(5).text == ""
expect txt_Calc(6).text == ""
expect txt_Calc(8).text == ""
expect txt_Calc(9).text == ""
expect txt_Calc(10).text == ""
expect txt_Calc(11).text == ""
expect txt_Calc(12).text == ""
expect opt_Calc(0).checked == false
expect opt_Calc(1).checked == false
expect opt_Calc(2).checked == false
expect opt_Calc(3).checked == false
type txt_Calc(3) 0,00801
key ENTER
expect report progress 1 5
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 5
expect form.vTries == 1
expect form.vWrong == 5
expect form.vMismatch == 0
type txt_Calc(3) 0,00801
answer yes
key ENTER
expect report progress 1 6
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 6
expect form.vDetailAcid == true
expect form.sStep == 1
expect form.vStepReached(1) == true
expect but_CalcStep(1).visible == true
expect but_CalcStep(2).visible == false
expect but_CalcStep(3).visible == false
expect lab_CalcStep(0).visible == true
expect lab_CalcStep(0).text == "1. Stoffmenge vorgelegte  Säure"
expect lab_Calc(0).visible == true
expect lab_Calc(0).term == "nµV(HAc) = cµV(HAc) * VµV(HAc)"
expect lab_Calc(1).visible == true
expect lab_Calc(1).term == "cµV(HAc) ="
expect lab_Calc(2).visible == true
expect lab_Calc(2).term == "mol / L"
expect txt_Calc(1).visible == true
expect txt_Calc(1).focus == true
expect form.vTries == 0
expect form.vWrong == 6
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 3
type txt_Calc(1) 800*10^-03
click but_CalcStep(1)
expect form.sStep == 2
expect form.vStepReached(2) == true
expect but_CalcStep(1).visible == false
expect but_CalcStep(2).visible == true
expect but_CalcStep(3).visible == false
expect lab_Calc(3).visible == true
expect lab_Calc(3).term == "VµV(HAc) ="
expect lab_Calc(4).visible == true
expect txt_Calc(2).visible == true
expect txt_Calc(2).focus == true
expect form.vTries == 0
type txt_Calc(2) 0,0100
key ENTER
expect form.sStep == 3
expect form.vStepReached(3) == true
expect but_CalcStep(2).visible == false
expect but_CalcStep(3).visible == true
expect but_CalcStep(4).visible == false
expect lab_CalcStep(0).visible == true
expect lab_CalcStep(0).text == "1. Stoffmenge vorgelegte  Säure"
expect lab_Calc(6).visible == true
expect lab_Calc(6).term == "nµV(HAc) ="
expect lab_Calc(7).visible == true
expect lab_Calc(7).term == "mol"
expect lab_Calc(5).visible == true
expect lab_Calc(5).term == "nµV(HAc) = 800*10^-03 * 0,0100"
expect txt_Calc(3).visible == true
expect txt_Calc(3).focus == true
expect form.vTries == 0
type txt_Calc(3) 0,008
click but_CalcStep(3)
expect form.sStep == 6
expect form.vStepReached(6) == true
expect but_CalcStep(3).visible == false
expect but_CalcStep(6).visible == true
expect but_CalcStep(7).visible == false
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "2. Stoffmenge der zugetropften Base"
expect lab_Calc(9).visible == true
expect lab_Calc(9).term == "nµZ(OH) ="
expect lab_Calc(8).visible == true
expect lab_Calc(8).term == "mol"
expect lab_Calc(10).visible == false
expect txt_Calc(4).visible == false
expect txt_Calc(5).visible == false
expect txt_Calc(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,00301
key ENTER
expect report progress 1 7
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 7
expect form.vTries == 1
expect form.vWrong == 7
expect form.vMismatch == 1
type txt_Calc(6) 0,00301
answer yes
key ENTER
expect report progress 1 8
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 8
expect form.vDetailBase == true
expect form.sStep == 4
expect form.vStepReached(4) == true
expect but_CalcStep(4).visible == true
expect but_CalcStep(5).visible == false
expect but_CalcStep(6).visible == false
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "2. Stoffmenge der zugetropften Base"
expect lab_Calc(15).visible == true
expect lab_Calc(15).term == "nµZ(OH) = cµZ(OH) * VµZ(OH)"
expect lab_Calc(14).visible == true
expect lab_Calc(14).term == "cµZ(OH) ="
expect lab_Calc(13).visible == true
expect lab_Calc(13).term == "mol / L"
expect txt_Calc(4).visible == true
expect txt_Calc(4).focus == true
expect form.vTries == 0
expect form.vWrong == 8
expect form.vMismatch == 2
expect form.vSolveUsed == 0
expect form.vHelpUsed == 4
type txt_Calc(4) 1
click but_CalcStep(4)
expect form.sStep == 5
expect form.vStepReached(5) == true
expect but_CalcStep(4).visible == false
expect but_CalcStep(5).visible == true
expect but_CalcStep(6).visible == false
expect lab_Calc(12).visible == true
expect lab_Calc(12).term == "VµZ(OH) ="
expect lab_Calc(11).visible == true
expect txt_Calc(5).visible == true
expect txt_Calc(5).focus == true
expect form.vTries == 0
type txt_Calc(5) 3*10^-03
key ENTER
expect form.sStep == 6
expect form.vStepReached(6) == true
expect but_CalcStep(5).visible == false
expect but_CalcStep(6).visible == true
expect but_CalcStep(7).visible == false
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "2. Stoffmenge der zugetropften Base"
expect lab_Calc(9).visible == true
expect lab_Calc(9).term == "nµZ(OH) ="
expect lab_Calc(8).visible == true
expect lab_Calc(8).term == "mol"
expect lab_Calc(10).visible == true
expect lab_Calc(10).term == "nµZ(OH) = 1 * 3*10^-03"
expect txt_Calc(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,00300
click but_CalcStep(6)
expect form.sStep == 7
expect form.vStepReached(7) == true
expect but_CalcStep(6).visible == false
expect but_CalcStep(7).visible == true
expect but_CalcStep(8).visible == false
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "3. Welcher Fall liegt vor - ist für den pH entscheidend?"
expect opt_Calc(0).visible == true
expect opt_Calc(0).text == "(Fast) nur HAc"
expect lab_optCalc(0).visible == false
expect opt_Calc(1).visible == true
expect opt_Calc(1).text == "HAc neben Ac-"
expect lab_optCalc(1).visible == false
expect opt_Calc(2).visible == true
expect opt_Calc(2).text == "(Fast) nur Ac-"
expect lab_optCalc(2).visible == false
expect opt_Calc(3).visible == true
expect opt_Calc(3).text == "Wichtig nur OH- "
expect lab_optCalc(3).visible == false
expect opt_CalcStore.visible == true
expect but_CalcStep(7).focus == true
expect form.vTries == 0
click opt_Calc(2)
key ENTER but_CalcStep(7)
expect report progress 1 9
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 9
expect form.vTries == 1
expect form.vWrong == 9
expect form.vMismatch == 2
click opt_Calc(2)
answer yes
key ENTER but_CalcStep(7)
expect report progress 1 10
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 10
expect form.vDetailCase == true
expect form.sStep == 7
expect form.vStepReached(7) == true
expect but_CalcStep(7).visible == true
expect but_CalcStep(8).visible == false
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "3. Welcher Fall liegt vor - ist für den pH entscheidend?"
expect opt_Calc(0).visible == true
expect opt_Calc(0).text == "(Fast) nur HAc"
expect lab_optCalc(0).visible == true
expect lab_optCalc(0).term == "nµZ(OH) = 0"
expect opt_Calc(1).visible == true
expect opt_Calc(1).text == "HAc neben Ac-"
expect lab_optCalc(1).visible == true
expect lab_optCalc(1).term == "0 < nµZ(OH) < nµV(HAc)"
expect opt_Calc(2).visible == true
expect opt_Calc(2).text == "(Fast) nur Ac-"
expect lab_optCalc(2).visible == true
expect lab_optCalc(2).term == "nµZ(OH) = nµV(HAc)"
expect opt_Calc(3).visible == true
expect opt_Calc(3).text == "Wichtig nur OH- "
expect lab_optCalc(3).visible == true
expect lab_optCalc(3).term == "nµZ(OH) > nµV(HAc)"
expect opt_CalcStore.visible == true
expect but_CalcStep(7).focus == true
expect form.vTries == 0
expect form.vWrong == 10
expect form.vMismatch == 2
expect form.vSolveUsed == 0
expect form.vHelpUsed == 5
click opt_Calc(1)
click but_CalcStep(7)
expect form.sStep == 10
expect form.vStepReached(10) == true
expect but_CalcStep(7).visible == false
expect but_CalcStep(10).visible == true
expect but_CalcStep(11).visible == false
expect but_CalcPH(10).visible == true
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "4. HAc und Ac- liegen nebeneinander vor"
expect lab_Calc(22).visible == true
expect lab_Calc(22).term == "n(HAc)/n(Ac-) ="
expect lab_Calc(19).visible == false
expect txt_Calc(8).visible == false
expect txt_Calc(9).visible == false
expect txt_Calc(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 1,668
key ENTER
expect report progress 1 11
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 11
expect form.vTries == 1
expect form.vWrong == 11
expect form.vMismatch == 3
type txt_Calc(10) 1,668
answer yes
key ENTER
expect report progress 1 12
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 12
expect form.vDetailConc == true
expect form.sStep == 8
expect form.vStepReached(8) == true
expect but_CalcStep(8).visible == true
expect but_CalcStep(9).visible == false
expect but_CalcStep(10).visible == false
expect but_CalcPH(10).visible == false
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "4. HAc und Ac- liegen nebeneinander vor"
expect lab_Calc(16).visible == true
expect lab_Calc(16).term == "n(HAc) =  nµV(HAc) - nµZ(OH) "
expect lab_Calc(17).visible == true
expect lab_Calc(17).term == "n(HAc) ="
expect lab_Calc(18).visible == true
expect txt_Calc(8).visible == true
expect txt_Calc(8).focus == true
expect form.vTries == 0
expect form.vWrong == 12
expect form.vMismatch == 4
expect form.vSolveUsed == 0
expect form.vHelpUsed == 6
type txt_Calc(8) 0,005
click but_CalcStep(8)
expect form.sStep == 9
expect form.vStepReached(9) == true
expect but_CalcStep(8).visible == false
expect but_CalcStep(9).visible == true
expect but_CalcStep(10).visible == false
expect but_CalcPH(9).visible == true
expect lab_Calc(28).visible == true
expect lab_Calc(28).term == "n(Ac-) = nµZ(OH) "
expect lab_Calc(20).visible == true
expect lab_Calc(20).term == "n(Ac-)"
expect lab_Calc(21).visible == true
expect lab_Calc(21).term == "mol"
expect txt_Calc(9).visible == true
expect txt_Calc(9).focus == true
expect form.vTries == 0
type txt_Calc(9) 0.003
key ENTER
expect form.sStep == 10
expect form.vStepReached(10) == true
expect but_CalcStep(9).visible == false
expect but_CalcStep(10).visible == true
expect but_CalcStep(11).visible == false
expect but_CalcPH(9).visible == false
expect but_CalcPH(10).visible == true
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "4. HAc und Ac- liegen nebeneinander vor"
expect lab_Calc(22).visible == true
expect lab_Calc(22).term == "n(HAc)/n(Ac-) ="
expect lab_Calc(19).visible == true
expect lab_Calc(19).term == "n(HAc)/n(Ac-) = n(HAc)/nµZ(OH)"
expect txt_Calc(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 1.666667
click but_CalcStep(10)
expect form.sStep == 12
expect form.vStepReached(12) == true
expect but_CalcStep(10).visible == false
expect but_CalcStep(12).visible == true
expect but_CalcPH(10).visible == false
expect but_CalcPH(12).visible == true
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "5. pH-Wert berechnen"
expect lab_Calc(23).visible == true
expect lab_Calc(23).term == "pH ="
expect lab_Calc(27).visible == false
expect txt_Calc(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 4,55
key ENTER
expect report progress 1 13
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 13
expect form.vTries == 1
expect form.vWrong == 13
expect form.vMismatch == 5
type txt_Calc(12) 4,55
answer yes
key ENTER
expect report progress 1 14
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 14
expect form.vDetailFinal == true
expect form.sStep == 12
expect form.vStepReached(12) == true
expect but_CalcStep(12).visible == true
expect but_CalcPH(12).visible == true
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "5. pH-Wert berechnen"
expect lab_Calc(23).visible == true
expect lab_Calc(23).term == "pH ="
expect lab_Calc(27).visible == true
expect lab_Calc(27).term == "pH = pKs - log(n(HAc) / n(Ac-))"
expect txt_Calc(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
expect form.vWrong == 14
expect form.vMismatch == 6
expect form.vSolveUsed == 0
expect form.vHelpUsed == 7
type txt_Calc(12) 4,538151250
click but_CalcStep(12)
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 14
expect series(1).count == 2
expect series(1).x(2) == 3
expect series(1).y(2) ~= 4.538151250383644 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 2
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 7
expect frm_AppMainWeak.Lab_Vallmista.text == 14
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 3
expect lab_pH.text == 4,54
expect ctl_Button3.visible == true
expect but_Help.visible == true
expect but_phCompare.visible == true
expect but_Calc.visible == false
expect ctl_Button2.visible == false
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
expect ctl_Button2.visible == false
expect ctl_Button3.visible == false
expect but_Calc.visible == false
expect but_Help.visible == false
expect but_phCompare.visible == false
expect form.sStep == 3
expect form.vStepReached(3) == true
expect but_CalcStep(3).visible == true
expect but_CalcStep(4).visible == false
expect lab_CalcStep(0).visible == true
expect lab_CalcStep(0).text == "1. Stoffmenge vorgelegte  Säure"
expect lab_Calc(6).visible == true
expect lab_Calc(6).term == "nµV(HAc) ="
expect lab_Calc(7).visible == true
expect lab_Calc(7).term == "mol"
expect lab_Calc(0).visible == false
expect lab_Calc(1).visible == false
expect lab_Calc(3).visible == false
expect lab_Calc(5).visible == false
expect lab_Calc(19).visible == false
expect txt_Calc(1).visible == false
expect txt_Calc(2).visible == false
expect txt_Calc(3).visible == true
expect txt_Calc(3).focus == true
expect txt_Calc(1).text == ""
expect txt_Calc(2).text == ""
expect txt_Calc(3).text == ""
expect txt_Calc(4).text == ""
expect txt_Calc(5).text == ""
expect txt_Calc(6).text == ""
expect txt_Calc(8).text == ""
expect txt_Calc(9).text == ""
expect txt_Calc(10).text == ""
expect txt_Calc(11).text == ""
expect txt_Calc(12).text == ""
expect opt_Calc(0).checked == false
expect opt_Calc(1).checked == false
expect opt_Calc(2).checked == false
expect opt_Calc(3).checked == false
type txt_Calc(3) 0,00801
key ENTER
expect report progress 2 15
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 15
expect form.vTries == 1
expect form.vWrong == 15
expect form.vMismatch == 0
type txt_Calc(3) 0,00801
answer yes
key ENTER
expect report progress 2 16
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 16
expect form.vDetailAcid == true
expect form.sStep == 1
expect form.vStepReached(1) == true
expect but_CalcStep(1).visible == true
expect but_CalcStep(2).visible == false
expect but_CalcStep(3).visible == false
expect lab_CalcStep(0).visible == true
expect lab_CalcStep(0).text == "1. Stoffmenge vorgelegte  Säure"
expect lab_Calc(0).visible == true
expect lab_Calc(0).term == "nµV(HAc) = cµV(HAc) * VµV(HAc)"
expect lab_Calc(1).visible == true
expect lab_Calc(1).term == "cµV(HAc) ="
expect lab_Calc(2).visible == true
expect lab_Calc(2).term == "mol / L"
expect txt_Calc(1).visible == true
expect txt_Calc(1).focus == true
expect form.vTries == 0
expect form.vWrong == 16
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 8
type txt_Calc(1) 0,8
key ENTER
expect form.sStep == 2
expect form.vStepReached(2) == true
expect but_CalcStep(1).visible == false
expect but_CalcStep(2).visible == true
expect but_CalcStep(3).visible == false
expect lab_Calc(3).visible == true
expect lab_Calc(3).term == "VµV(HAc) ="
expect lab_Calc(4).visible == true
expect txt_Calc(2).visible == true
expect txt_Calc(2).focus == true
expect form.vTries == 0
type txt_Calc(2) 0.01
click but_CalcStep(2)
expect form.sStep == 3
expect form.vStepReached(3) == true
expect but_CalcStep(2).visible == false
expect but_CalcStep(3).visible == true
expect but_CalcStep(4).visible == false
expect lab_CalcStep(0).visible == true
expect lab_CalcStep(0).text == "1. Stoffmenge vorgelegte  Säure"
expect lab_Calc(6).visible == true
expect lab_Calc(6).term == "nµV(HAc) ="
expect lab_Calc(7).visible == true
expect lab_Calc(7).term == "mol"
expect lab_Calc(5).visible == true
expect lab_Calc(5).term == "nµV(HAc) = 0,8 * 0.01"
expect txt_Calc(3).visible == true
expect txt_Calc(3).focus == true
expect form.vTries == 0
type txt_Calc(3) 8*10^-03
click but_CalcStep(3)
expect form.sStep == 6
expect form.vStepReached(6) == true
expect but_CalcStep(3).visible == false
expect but_CalcStep(6).visible == true
expect but_CalcStep(7).visible == false
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "2. Stoffmenge der zugetropften Base"
expect lab_Calc(9).visible == true
expect lab_Calc(9).term == "nµZ(OH) ="
expect lab_Calc(8).visible == true
expect lab_Calc(8).term == "mol"
expect lab_Calc(10).visible == false
expect txt_Calc(4).visible == false
expect txt_Calc(5).visible == false
expect txt_Calc(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,00801
key ENTER
expect report progress 2 17
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 17
expect form.vTries == 1
expect form.vWrong == 17
expect form.vMismatch == 1
type txt_Calc(6) 0,00801
answer yes
key ENTER
expect report progress 2 18
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 18
expect form.vDetailBase == true
expect form.sStep == 4
expect form.vStepReached(4) == true
expect but_CalcStep(4).visible == true
expect but_CalcStep(5).visible == false
expect but_CalcStep(6).visible == false
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "2. Stoffmenge der zugetropften Base"
expect lab_Calc(15).visible == true
expect lab_Calc(15).term == "nµZ(OH) = cµZ(OH) * VµZ(OH)"
expect lab_Calc(14).visible == true
expect lab_Calc(14).term == "cµZ(OH) ="
expect lab_Calc(13).visible == true
expect lab_Calc(13).term == "mol / L"
expect txt_Calc(4).visible == true
expect txt_Calc(4).focus == true
expect form.vTries == 0
expect form.vWrong == 18
expect form.vMismatch == 2
expect form.vSolveUsed == 0
expect form.vHelpUsed == 9
type txt_Calc(4) 1,00
key ENTER
expect form.sStep == 5
expect form.vStepReached(5) == true
expect but_CalcStep(4).visible == false
expect but_CalcStep(5).visible == true
expect but_CalcStep(6).visible == false
expect lab_Calc(12).visible == true
expect lab_Calc(12).term == "VµZ(OH) ="
expect lab_Calc(11).visible == true
expect txt_Calc(5).visible == true
expect txt_Calc(5).focus == true
expect form.vTries == 0
type txt_Calc(5) 0,008
click but_CalcStep(5)
expect form.sStep == 6
expect form.vStepReached(6) == true
expect but_CalcStep(5).visible == false
expect but_CalcStep(6).visible == true
expect but_CalcStep(7).visible == false
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "2. Stoffmenge der zugetropften Base"
expect lab_Calc(9).visible == true
expect lab_Calc(9).term == "nµZ(OH) ="
expect lab_Calc(8).visible == true
expect lab_Calc(8).term == "mol"
expect lab_Calc(10).visible == true
expect lab_Calc(10).term == "nµZ(OH) = 1,00 * 0,008"
expect txt_Calc(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0.008
click but_CalcStep(6)
expect form.sStep == 7
expect form.vStepReached(7) == true
expect but_CalcStep(6).visible == false
expect but_CalcStep(7).visible == true
expect but_CalcStep(8).visible == false
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "3. Welcher Fall liegt vor - ist für den pH entscheidend?"
expect opt_Calc(0).visible == true
expect opt_Calc(0).text == "(Fast) nur HAc"
expect lab_optCalc(0).visible == false
expect opt_Calc(1).visible == true
expect opt_Calc(1).text == "HAc neben Ac-"
expect lab_optCalc(1).visible == false
expect opt_Calc(2).visible == true
expect opt_Calc(2).text == "(Fast) nur Ac-"
expect lab_optCalc(2).visible == false
expect opt_Calc(3).visible == true
expect opt_Calc(3).text == "Wichtig nur OH- "
expect lab_optCalc(3).visible == false
expect opt_CalcStore.visible == true
expect but_CalcStep(7).focus == true
expect form.vTries == 0
click opt_Calc(3)
key ENTER but_CalcStep(7)
expect report progress 2 19
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 19
expect form.vTries == 1
expect form.vWrong == 19
expect form.vMismatch == 2
click opt_Calc(3)
answer yes
key ENTER but_CalcStep(7)
expect report progress 2 20
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 20
expect form.vDetailCase == true
expect form.sStep == 7
expect form.vStepReached(7) == true
expect but_CalcStep(7).visible == true
expect but_CalcStep(8).visible == false
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "3. Welcher Fall liegt vor - ist für den pH entscheidend?"
expect opt_Calc(0).visible == true
expect opt_Calc(0).text == "(Fast) nur HAc"
expect lab_optCalc(0).visible == true
expect lab_optCalc(0).term == "nµZ(OH) = 0"
expect opt_Calc(1).visible == true
expect opt_Calc(1).text == "HAc neben Ac-"
expect lab_optCalc(1).visible == true
expect lab_optCalc(1).term == "0 < nµZ(OH) < nµV(HAc)"
expect opt_Calc(2).visible == true
expect opt_Calc(2).text == "(Fast) nur Ac-"
expect lab_optCalc(2).visible == true
expect lab_optCalc(2).term == "nµZ(OH) = nµV(HAc)"
expect opt_Calc(3).visible == true
expect opt_Calc(3).text == "Wichtig nur OH- "
expect lab_optCalc(3).visible == true
expect lab_optCalc(3).term == "nµZ(OH) > nµV(HAc)"
expect opt_CalcStore.visible == true
expect but_CalcStep(7).focus == true
expect form.vTries == 0
expect form.vWrong == 20
expect form.vMismatch == 2
expect form.vSolveUsed == 0
expect form.vHelpUsed == 10
click opt_Calc(2)
click but_CalcStep(7)
expect form.sStep == 10
expect form.vStepReached(10) == true
expect but_CalcStep(7).visible == false
expect but_CalcStep(10).visible == true
expect but_CalcStep(11).visible == false
expect but_CalcPH(10).visible == true
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "4. Es liegt nur schwache Base Ac- vor"
expect lab_Calc(22).visible == true
expect lab_Calc(22).term == "c(Ac-) = "
expect lab_Calc(25).visible == true
expect lab_Calc(25).term == " mol/L"
expect lab_Calc(19).visible == false
expect txt_Calc(8).visible == false
expect txt_Calc(9).visible == false
expect txt_Calc(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 0,445
key ENTER
expect report progress 2 21
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 21
expect form.vTries == 1
expect form.vWrong == 21
expect form.vMismatch == 3
type txt_Calc(10) 0,445
answer yes
key ENTER
expect report progress 2 22
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 22
expect form.vDetailConc == true
expect form.sStep == 8
expect form.vStepReached(8) == true
expect but_CalcStep(8).visible == true
expect but_CalcStep(9).visible == false
expect but_CalcStep(10).visible == false
expect but_CalcPH(10).visible == false
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "4. Es liegt nur schwache Base Ac- vor"
expect lab_Calc(16).visible == true
expect lab_Calc(16).term == "n(Ac-) = nµZ(OH-)"
expect lab_Calc(17).visible == true
expect lab_Calc(17).term == "n(Ac-) ="
expect txt_Calc(8).visible == true
expect txt_Calc(8).focus == true
expect form.vTries == 0
expect form.vWrong == 22
expect form.vMismatch == 4
expect form.vSolveUsed == 0
expect form.vHelpUsed == 11
type txt_Calc(8) 8*10^-03
key ENTER
expect form.sStep == 9
expect form.vStepReached(9) == true
expect but_CalcStep(8).visible == false
expect but_CalcStep(9).visible == true
expect but_CalcStep(10).visible == false
expect but_CalcPH(9).visible == true
expect lab_Calc(28).visible == true
expect lab_Calc(28).term == "V(gesamt) = VµV(HAc) + VµZ(OH)"
expect lab_Calc(20).visible == true
expect lab_Calc(20).term == "V(gesamt) ="
expect lab_Calc(21).visible == true
expect lab_Calc(21).term == " L"
expect txt_Calc(9).visible == true
expect txt_Calc(9).focus == true
expect form.vTries == 0
type txt_Calc(9) 0.018
click but_CalcStep(9)
expect form.sStep == 10
expect form.vStepReached(10) == true
expect but_CalcStep(9).visible == false
expect but_CalcStep(10).visible == true
expect but_CalcStep(11).visible == false
expect but_CalcPH(9).visible == false
expect but_CalcPH(10).visible == true
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "4. Es liegt nur schwache Base Ac- vor"
expect lab_Calc(22).visible == true
expect lab_Calc(22).term == "c(Ac-) = "
expect lab_Calc(25).visible == true
expect lab_Calc(25).term == " mol/L"
expect lab_Calc(19).visible == true
expect lab_Calc(19).term == "c(Ac-) = (n(Ac-))/(V(gesamt)"
expect txt_Calc(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 0,444
click but_CalcStep(10)
expect form.sStep == 12
expect form.vStepReached(12) == true
expect but_CalcStep(10).visible == false
expect but_CalcStep(12).visible == true
expect but_CalcPH(10).visible == false
expect but_CalcPH(12).visible == true
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "5. pH-Wert berechnen"
expect lab_Calc(23).visible == true
expect lab_Calc(23).term == "pH ="
expect lab_Calc(27).visible == false
expect txt_Calc(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 9,21
key ENTER
expect report progress 2 23
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 23
expect form.vTries == 1
expect form.vWrong == 23
expect form.vMismatch == 5
type txt_Calc(12) 9,21
answer yes
key ENTER
expect report progress 2 24
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 24
expect form.vDetailFinal == true
expect form.sStep == 12
expect form.vStepReached(12) == true
expect but_CalcStep(12).visible == true
expect but_CalcPH(12).visible == true
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "5. pH-Wert berechnen"
expect lab_Calc(23).visible == true
expect lab_Calc(23).term == "pH ="
expect lab_Calc(27).visible == true
expect lab_Calc(27).term == "pH = 14 - (1)/(2) * (14 - pKs - log(c(Ac-)))"
expect txt_Calc(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
expect form.vWrong == 24
expect form.vMismatch == 6
expect form.vSolveUsed == 0
expect form.vHelpUsed == 12
type txt_Calc(12) 9.20
key ENTER
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 3. Punkt"
expect report progress 3 24
expect series(1).count == 3
expect series(1).x(3) == 8
expect series(1).y(3) ~= 9.203908740944318 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 3
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 12
expect frm_AppMainWeak.Lab_Vallmista.text == 24
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 8
expect lab_pH.text == 9,20
expect ctl_Button3.visible == true
expect but_Help.visible == true
expect but_phCompare.visible == true
expect but_Calc.visible == false
expect ctl_Button2.visible == false
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
# 12 mL
click but_Calc
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect ctl_Button2.visible == false
expect ctl_Button3.visible == false
expect but_Calc.visible == false
expect but_Help.visible == false
expect but_phCompare.visible == false
expect form.sStep == 3
expect form.vStepReached(3) == true
expect but_CalcStep(3).visible == true
expect but_CalcStep(4).visible == false
expect lab_CalcStep(0).visible == true
expect lab_CalcStep(0).text == "1. Stoffmenge vorgelegte  Säure"
expect lab_Calc(6).visible == true
expect lab_Calc(6).term == "nµV(HAc) ="
expect lab_Calc(7).visible == true
expect lab_Calc(7).term == "mol"
expect lab_Calc(0).visible == false
expect lab_Calc(1).visible == false
expect lab_Calc(3).visible == false
expect lab_Calc(5).visible == false
expect lab_Calc(19).visible == false
expect txt_Calc(1).visible == false
expect txt_Calc(2).visible == false
expect txt_Calc(3).visible == true
expect txt_Calc(3).focus == true
expect txt_Calc(1).text == ""
expect txt_Calc(2).text == ""
expect txt_Calc(3).text == ""
expect txt_Calc(4).text == ""
expect txt_Calc(5).text == ""
expect txt_Calc(6).text == ""
expect txt_Calc(8).text == ""
expect txt_Calc(9).text == ""
expect txt_Calc(10).text == ""
expect txt_Calc(11).text == ""
expect txt_Calc(12).text == ""
expect opt_Calc(0).checked == false
expect opt_Calc(1).checked == false
expect opt_Calc(2).checked == false
expect opt_Calc(3).checked == false
type txt_Calc(3) 0,00801
key ENTER
expect report progress 3 25
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 25
expect form.vTries == 1
expect form.vWrong == 25
expect form.vMismatch == 0
type txt_Calc(3) 0,00801
answer yes
key ENTER
expect report progress 3 26
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 26
expect form.vDetailAcid == true
expect form.sStep == 1
expect form.vStepReached(1) == true
expect but_CalcStep(1).visible == true
expect but_CalcStep(2).visible == false
expect but_CalcStep(3).visible == false
expect lab_CalcStep(0).visible == true
expect lab_CalcStep(0).text == "1. Stoffmenge vorgelegte  Säure"
expect lab_Calc(0).visible == true
expect lab_Calc(0).term == "nµV(HAc) = cµV(HAc) * VµV(HAc)"
expect lab_Calc(1).visible == true
expect lab_Calc(1).term == "cµV(HAc) ="
expect lab_Calc(2).visible == true
expect lab_Calc(2).term == "mol / L"
expect txt_Calc(1).visible == true
expect txt_Calc(1).focus == true
expect form.vTries == 0
expect form.vWrong == 26
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 13
type txt_Calc(1) 800*10^-03
click but_CalcStep(1)
expect form.sStep == 2
expect form.vStepReached(2) == true
expect but_CalcStep(1).visible == false
expect but_CalcStep(2).visible == true
expect but_CalcStep(3).visible == false
expect lab_Calc(3).visible == true
expect lab_Calc(3).term == "VµV(HAc) ="
expect lab_Calc(4).visible == true
expect txt_Calc(2).visible == true
expect txt_Calc(2).focus == true
expect form.vTries == 0
type txt_Calc(2) 0,0100
click but_CalcStep(2)
expect form.sStep == 3
expect form.vStepReached(3) == true
expect but_CalcStep(2).visible == false
expect but_CalcStep(3).visible == true
expect but_CalcStep(4).visible == false
expect lab_CalcStep(0).visible == true
expect lab_CalcStep(0).text == "1. Stoffmenge vorgelegte  Säure"
expect lab_Calc(6).visible == true
expect lab_Calc(6).term == "nµV(HAc) ="
expect lab_Calc(7).visible == true
expect lab_Calc(7).term == "mol"
expect lab_Calc(5).visible == true
expect lab_Calc(5).term == "nµV(HAc) = 800*10^-03 * 0,0100"
expect txt_Calc(3).visible == true
expect txt_Calc(3).focus == true
expect form.vTries == 0
type txt_Calc(3) 0,008
key ENTER
expect form.sStep == 6
expect form.vStepReached(6) == true
expect but_CalcStep(3).visible == false
expect but_CalcStep(6).visible == true
expect but_CalcStep(7).visible == false
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "2. Stoffmenge der zugetropften Base"
expect lab_Calc(9).visible == true
expect lab_Calc(9).term == "nµZ(OH) ="
expect lab_Calc(8).visible == true
expect lab_Calc(8).term == "mol"
expect lab_Calc(10).visible == false
expect txt_Calc(4).visible == false
expect txt_Calc(5).visible == false
expect txt_Calc(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,01201
key ENTER
expect report progress 3 27
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 27
expect form.vTries == 1
expect form.vWrong == 27
expect form.vMismatch == 1
type txt_Calc(6) 0,01201
answer yes
key ENTER
expect report progress 3 28
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 28
expect form.vDetailBase == true
expect form.sStep == 4
expect form.vStepReached(4) == true
expect but_CalcStep(4).visible == true
expect but_CalcStep(5).visible == false
expect but_CalcStep(6).visible == false
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "2. Stoffmenge der zugetropften Base"
expect lab_Calc(15).visible == true
expect lab_Calc(15).term == "nµZ(OH) = cµZ(OH) * VµZ(OH)"
expect lab_Calc(14).visible == true
expect lab_Calc(14).term == "cµZ(OH) ="
expect lab_Calc(13).visible == true
expect lab_Calc(13).term == "mol / L"
expect txt_Calc(4).visible == true
expect txt_Calc(4).focus == true
expect form.vTries == 0
expect form.vWrong == 28
expect form.vMismatch == 2
expect form.vSolveUsed == 0
expect form.vHelpUsed == 14
type txt_Calc(4) 1
click but_CalcStep(4)
expect form.sStep == 5
expect form.vStepReached(5) == true
expect but_CalcStep(4).visible == false
expect but_CalcStep(5).visible == true
expect but_CalcStep(6).visible == false
expect lab_Calc(12).visible == true
expect lab_Calc(12).term == "VµZ(OH) ="
expect lab_Calc(11).visible == true
expect txt_Calc(5).visible == true
expect txt_Calc(5).focus == true
expect form.vTries == 0
type txt_Calc(5) 12*10^-03
click but_CalcStep(5)
expect form.sStep == 6
expect form.vStepReached(6) == true
expect but_CalcStep(5).visible == false
expect but_CalcStep(6).visible == true
expect but_CalcStep(7).visible == false
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "2. Stoffmenge der zugetropften Base"
expect lab_Calc(9).visible == true
expect lab_Calc(9).term == "nµZ(OH) ="
expect lab_Calc(8).visible == true
expect lab_Calc(8).term == "mol"
expect lab_Calc(10).visible == true
expect lab_Calc(10).term == "nµZ(OH) = 1 * 12*10^-03"
expect txt_Calc(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,01200
key ENTER
expect form.sStep == 7
expect form.vStepReached(7) == true
expect but_CalcStep(6).visible == false
expect but_CalcStep(7).visible == true
expect but_CalcStep(8).visible == false
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "3. Welcher Fall liegt vor - ist für den pH entscheidend?"
expect opt_Calc(0).visible == true
expect opt_Calc(0).text == "(Fast) nur HAc"
expect lab_optCalc(0).visible == false
expect opt_Calc(1).visible == true
expect opt_Calc(1).text == "HAc neben Ac-"
expect lab_optCalc(1).visible == false
expect opt_Calc(2).visible == true
expect opt_Calc(2).text == "(Fast) nur Ac-"
expect lab_optCalc(2).visible == false
expect opt_Calc(3).visible == true
expect opt_Calc(3).text == "Wichtig nur OH- "
expect lab_optCalc(3).visible == false
expect opt_CalcStore.visible == true
expect but_CalcStep(7).focus == true
expect form.vTries == 0
click opt_Calc(0)
key ENTER but_CalcStep(7)
expect report progress 3 29
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 29
expect form.vTries == 1
expect form.vWrong == 29
expect form.vMismatch == 2
click opt_Calc(0)
answer yes
key ENTER but_CalcStep(7)
expect report progress 3 30
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 30
expect form.vDetailCase == true
expect form.sStep == 7
expect form.vStepReached(7) == true
expect but_CalcStep(7).visible == true
expect but_CalcStep(8).visible == false
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "3. Welcher Fall liegt vor - ist für den pH entscheidend?"
expect opt_Calc(0).visible == true
expect opt_Calc(0).text == "(Fast) nur HAc"
expect lab_optCalc(0).visible == true
expect lab_optCalc(0).term == "nµZ(OH) = 0"
expect opt_Calc(1).visible == true
expect opt_Calc(1).text == "HAc neben Ac-"
expect lab_optCalc(1).visible == true
expect lab_optCalc(1).term == "0 < nµZ(OH) < nµV(HAc)"
expect opt_Calc(2).visible == true
expect opt_Calc(2).text == "(Fast) nur Ac-"
expect lab_optCalc(2).visible == true
expect lab_optCalc(2).term == "nµZ(OH) = nµV(HAc)"
expect opt_Calc(3).visible == true
expect opt_Calc(3).text == "Wichtig nur OH- "
expect lab_optCalc(3).visible == true
expect lab_optCalc(3).term == "nµZ(OH) > nµV(HAc)"
expect opt_CalcStore.visible == true
expect but_CalcStep(7).focus == true
expect form.vTries == 0
expect form.vWrong == 30
expect form.vMismatch == 2
expect form.vSolveUsed == 0
expect form.vHelpUsed == 15
click opt_Calc(3)
click but_CalcStep(7)
expect form.sStep == 10
expect form.vStepReached(10) == true
expect but_CalcStep(7).visible == false
expect but_CalcStep(10).visible == true
expect but_CalcStep(11).visible == false
expect but_CalcPH(10).visible == true
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "4. Konzentration der OH- Ionen berechnen"
expect lab_Calc(22).visible == true
expect lab_Calc(22).term == "c(OH-) ="
expect lab_Calc(19).visible == false
expect txt_Calc(8).visible == false
expect txt_Calc(9).visible == false
expect txt_Calc(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 0,183
key ENTER
expect report progress 3 31
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 31
expect form.vTries == 1
expect form.vWrong == 31
expect form.vMismatch == 3
type txt_Calc(10) 0,183
answer yes
key ENTER
expect report progress 3 32
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 32
expect form.vDetailConc == true
expect form.sStep == 8
expect form.vStepReached(8) == true
expect but_CalcStep(8).visible == true
expect but_CalcStep(9).visible == false
expect but_CalcStep(10).visible == false
expect but_CalcPH(10).visible == false
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "4. Konzentration der OH- Ionen berechnen"
expect lab_Calc(16).visible == true
expect lab_Calc(16).term == "n(OH-) = nµZ(OH) - nµV(HAc)"
expect lab_Calc(17).visible == true
expect lab_Calc(17).term == "n(OH-) ="
expect txt_Calc(8).visible == true
expect txt_Calc(8).focus == true
expect form.vTries == 0
expect form.vWrong == 32
expect form.vMismatch == 4
expect form.vSolveUsed == 0
expect form.vHelpUsed == 16
type txt_Calc(8) 0,004
click but_CalcStep(8)
expect form.sStep == 9
expect form.vStepReached(9) == true
expect but_CalcStep(8).visible == false
expect but_CalcStep(9).visible == true
expect but_CalcStep(10).visible == false
expect but_CalcPH(9).visible == true
expect lab_Calc(20).visible == true
expect lab_Calc(20).term == "V(gesamt) ="
expect lab_Calc(21).visible == true
expect lab_Calc(21).term == " L"
expect txt_Calc(9).visible == true
expect txt_Calc(9).focus == true
expect form.vTries == 0
type txt_Calc(9) 0.022
click but_CalcStep(9)
expect form.sStep == 10
expect form.vStepReached(10) == true
expect but_CalcStep(9).visible == false
expect but_CalcStep(10).visible == true
expect but_CalcStep(11).visible == false
expect but_CalcPH(9).visible == false
expect but_CalcPH(10).visible == true
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "4. Konzentration der OH- Ionen berechnen"
expect lab_Calc(22).visible == true
expect lab_Calc(22).term == "c(OH-) ="
expect lab_Calc(19).visible == true
expect lab_Calc(19).term == "c(OH-) = (n(OH-))/(V(gesamt))"
expect txt_Calc(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 0.181818
key ENTER
expect form.sStep == 11
expect form.vStepReached(11) == true
expect but_CalcStep(10).visible == false
expect but_CalcStep(11).visible == true
expect but_CalcStep(12).visible == false
expect but_CalcPH(10).visible == false
expect but_CalcPH(11).visible == true
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "5. pOH-Wert berechnen"
expect lab_Calc(26).visible == true
expect lab_Calc(26).term == "pOH ="
expect lab_Calc(27).visible == false
expect txt_Calc(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
type txt_Calc(11) 0,740362689
click but_CalcStep(11)
expect form.sStep == 12
expect form.vStepReached(12) == true
expect but_CalcStep(11).visible == false
expect but_CalcStep(12).visible == true
expect but_CalcPH(11).visible == false
expect but_CalcPH(12).visible == true
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "5. pH-Wert berechnen"
expect lab_Calc(23).visible == true
expect lab_Calc(23).term == "pH ="
expect txt_Calc(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 13,26
click but_CalcStep(12)
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 4. Punkt"
expect report progress 4 32
expect series(1).count == 4
expect series(1).x(4) == 12
expect series(1).y(4) ~= 13.259637310505756 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 4
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 16
expect frm_AppMainWeak.Lab_Vallmista.text == 32
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 12
expect lab_pH.text == 13,26
expect ctl_Button3.visible == true
expect but_Help.visible == true
expect but_phCompare.visible == true
expect but_Calc.visible == false
expect ctl_Button2.visible == false
expect nobox
expect noreport
menu mnu_FileQuit
expect ended
