# Weak acid, nothing added to 0.8 mol/L: the whole ladder at every step, refused and taken.
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
click but_Calc
type txt_Ph 3
answer yes
click but_CalcDone
expect sound "signal 1"
expect box yesno "" "Der von Dir errechnete pH-Wert ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect form.vWrong == 1
expect Lab_Vallmista.text == 1
expect noreport
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
# step 7, with a rung
click opt_Calc(1)
key ENTER but_CalcStep(7)
expect report progress 0 2
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 2
expect form.vTries == 1
expect form.vWrong == 2
expect form.vMismatch == 0
click opt_Calc(2)
answer no
answer no
click but_CalcStep(7)
expect report progress 0 3
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich das Richtige anklicken?"
expect nobox
expect Lab_Vallmista.text == 3
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect form.vTries == 2
expect form.vWrong == 3
expect form.vMismatch == 0
expect form.vSolveUsed == 1
expect form.vHelpUsed == 0
click opt_Calc(3)
answer yes
key ENTER but_CalcStep(7)
expect report progress 0 4
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 4
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
expect form.vWrong == 4
expect form.vMismatch == 0
expect form.vSolveUsed == 1
expect form.vHelpUsed == 1
# step 7
click opt_Calc(1)
key ENTER but_CalcStep(7)
expect report progress 0 5
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 5
expect form.vTries == 1
expect form.vWrong == 5
expect form.vMismatch == 0
click opt_Calc(2)
answer no
click but_CalcStep(7)
expect report progress 0 6
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich das Richtige anklicken?"
expect nobox
expect Lab_Vallmista.text == 6
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect form.vTries == 2
expect form.vWrong == 6
expect form.vMismatch == 0
expect form.vSolveUsed == 2
expect form.vHelpUsed == 1
click opt_Calc(3)
answer yes
key ENTER but_CalcStep(7)
expect report progress 0 7
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich das Richtige anklicken?"
expect nobox
expect Lab_Vallmista.text == 7
expect opt_Calc(0).checked == true
expect opt_Calc(1).checked == false
expect opt_Calc(2).checked == false
expect opt_Calc(3).checked == false
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect form.vTries == 3
expect form.vWrong == 7
expect form.vMismatch == 0
expect form.vSolveUsed == 3
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
# step 12, with a rung
type txt_Calc(12) 2,44
key ENTER
expect report progress 0 8
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 8
expect form.vTries == 1
expect form.vWrong == 8
expect form.vMismatch == 1
type txt_Calc(12) ""
answer no
answer no
click but_CalcStep(12)
expect report progress 0 9
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 9
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect form.vTries == 2
expect form.vWrong == 9
expect form.vMismatch == 1
expect form.vSolveUsed == 4
expect form.vHelpUsed == 1
type txt_Calc(12) abc
answer yes
key ENTER
expect report progress 0 10
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 10
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
expect form.vWrong == 10
expect form.vMismatch == 1
expect form.vSolveUsed == 4
expect form.vHelpUsed == 2
# step 12
type txt_Calc(12) 2,44
key ENTER
expect report progress 0 11
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 11
expect form.vTries == 1
expect form.vWrong == 11
expect form.vMismatch == 2
type txt_Calc(12) ""
answer no
click but_CalcStep(12)
expect report progress 0 12
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 12
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect form.vTries == 2
expect form.vWrong == 12
expect form.vMismatch == 2
expect form.vSolveUsed == 5
expect form.vHelpUsed == 2
type txt_Calc(12) abc
answer yes
key ENTER
expect report progress 0 13
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 13
expect txt_Calc(12).text == 2,43
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect form.vTries == 3
expect form.vWrong == 13
expect form.vMismatch == 2
expect form.vSolveUsed == 6
expect form.vHelpUsed == 2
key ENTER
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 13
expect series(1).count == 1
expect series(1).x(1) == 0
expect series(1).y(1) ~= 2.428455006504028 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 1
expect frm_AppMainWeak.lab_solveuse.text == 6
expect frm_AppMainWeak.lab_helpused.text == 2
expect frm_AppMainWeak.Lab_Vallmista.text == 13
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
expect nobox
expect noreport
menu mnu_FileQuit
expect ended
