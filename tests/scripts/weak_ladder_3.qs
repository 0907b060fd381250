# Weak acid, 12 mL to 1.2 mol/L, the equivalence point: the whole ladder at every step, refused and taken.
name Mia
start
choose SSTab1 3
choose lst_Mol 1.2
check opt_NeedCalc off
click ctl_Button4
expect form frm_AppMainWeak
expect nobox
expect session.SessionConcentration == 1.2
expect session.SessionDemo == false
expect session.SessionRequiredPoints == ""
click ctl_Button1
settle
expect form.vVol == 10
expect beaker.countsort(10) == 12
expect beaker.count == 12
click ctl_Button3
settle
expect form.vVol == 11
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
settle
expect form.vVol == 20
click ctl_Button3
settle
expect form.vVol == 21
click ctl_Button3
settle
expect form.vVol == 22
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
# step 3, with a rung
type txt_Calc(3) 0,01201
key ENTER
expect report progress 0 2
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 2
expect form.vTries == 1
expect form.vWrong == 2
expect form.vMismatch == 0
type txt_Calc(3) ""
answer no
answer no
click but_CalcStep(3)
expect report progress 0 3
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 3
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect form.vTries == 2
expect form.vWrong == 3
expect form.vMismatch == 0
expect form.vSolveUsed == 1
expect form.vHelpUsed == 0
type txt_Calc(3) abc
answer yes
key ENTER
expect report progress 0 4
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 4
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
expect form.vWrong == 4
expect form.vMismatch == 0
expect form.vSolveUsed == 1
expect form.vHelpUsed == 1
# step 1
type txt_Calc(1) 1,20001
key ENTER
expect report progress 0 5
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 5
expect form.vTries == 1
expect form.vWrong == 5
expect form.vMismatch == 0
type txt_Calc(1) ""
answer no
click but_CalcStep(1)
expect report progress 0 6
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 6
expect form.sStep == 1
expect but_CalcStep(1).visible == true
expect form.vTries == 2
expect form.vWrong == 6
expect form.vMismatch == 0
expect form.vSolveUsed == 2
expect form.vHelpUsed == 1
type txt_Calc(1) abc
answer yes
key ENTER
expect report progress 0 7
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 7
expect txt_Calc(1).text == 1,2
expect form.sStep == 1
expect but_CalcStep(1).visible == true
expect form.vTries == 3
expect form.vWrong == 7
expect form.vMismatch == 0
expect form.vSolveUsed == 3
expect form.vHelpUsed == 1
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
# step 2
type txt_Calc(2) 0,01001
key ENTER
expect report progress 0 8
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 8
expect form.vTries == 1
expect form.vWrong == 8
expect form.vMismatch == 0
type txt_Calc(2) ""
answer no
click but_CalcStep(2)
expect report progress 0 9
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 9
expect form.sStep == 2
expect but_CalcStep(2).visible == true
expect form.vTries == 2
expect form.vWrong == 9
expect form.vMismatch == 0
expect form.vSolveUsed == 4
expect form.vHelpUsed == 1
type txt_Calc(2) abc
answer yes
key ENTER
expect report progress 0 10
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 10
expect txt_Calc(2).text == 0.01
expect form.sStep == 2
expect but_CalcStep(2).visible == true
expect form.vTries == 3
expect form.vWrong == 10
expect form.vMismatch == 0
expect form.vSolveUsed == 5
expect form.vHelpUsed == 1
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
expect lab_Calc(5).term == "nµV(HAc) = 1,2 * 0.01"
expect txt_Calc(3).visible == true
expect txt_Calc(3).focus == true
expect form.vTries == 0
# step 3
type txt_Calc(3) 0,01201
key ENTER
expect report progress 0 11
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 11
expect form.vTries == 1
expect form.vWrong == 11
expect form.vMismatch == 0
type txt_Calc(3) ""
answer no
click but_CalcStep(3)
expect report progress 0 12
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 12
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect form.vTries == 2
expect form.vWrong == 12
expect form.vMismatch == 0
expect form.vSolveUsed == 6
expect form.vHelpUsed == 1
type txt_Calc(3) abc
answer yes
key ENTER
expect report progress 0 13
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 13
expect txt_Calc(3).text == 0,012
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect form.vTries == 3
expect form.vWrong == 13
expect form.vMismatch == 0
expect form.vSolveUsed == 7
expect form.vHelpUsed == 1
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
# step 6, with a rung
type txt_Calc(6) 0,01201
key ENTER
expect report progress 0 14
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 14
expect form.vTries == 1
expect form.vWrong == 14
expect form.vMismatch == 1
type txt_Calc(6) ""
answer no
answer no
click but_CalcStep(6)
expect report progress 0 15
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 15
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect form.vTries == 2
expect form.vWrong == 15
expect form.vMismatch == 1
expect form.vSolveUsed == 8
expect form.vHelpUsed == 1
type txt_Calc(6) abc
answer yes
key ENTER
expect report progress 0 16
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 16
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
expect form.vWrong == 16
expect form.vMismatch == 1
expect form.vSolveUsed == 8
expect form.vHelpUsed == 2
# step 4
type txt_Calc(4) 1,00001
key ENTER
expect report progress 0 17
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 17
expect form.vTries == 1
expect form.vWrong == 17
expect form.vMismatch == 1
type txt_Calc(4) ""
answer no
click but_CalcStep(4)
expect report progress 0 18
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 18
expect form.sStep == 4
expect but_CalcStep(4).visible == true
expect form.vTries == 2
expect form.vWrong == 18
expect form.vMismatch == 1
expect form.vSolveUsed == 9
expect form.vHelpUsed == 2
type txt_Calc(4) abc
answer yes
key ENTER
expect report progress 0 19
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 19
expect txt_Calc(4).text == 1
expect form.sStep == 4
expect but_CalcStep(4).visible == true
expect form.vTries == 3
expect form.vWrong == 19
expect form.vMismatch == 1
expect form.vSolveUsed == 10
expect form.vHelpUsed == 2
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
# step 5
type txt_Calc(5) 0,01201
key ENTER
expect report progress 0 20
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 20
expect form.vTries == 1
expect form.vWrong == 20
expect form.vMismatch == 2
type txt_Calc(5) ""
answer no
click but_CalcStep(5)
expect report progress 0 21
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 21
expect form.sStep == 5
expect but_CalcStep(5).visible == true
expect form.vTries == 2
expect form.vWrong == 21
expect form.vMismatch == 2
expect form.vSolveUsed == 11
expect form.vHelpUsed == 2
type txt_Calc(5) abc
answer yes
key ENTER
expect report progress 0 22
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 22
expect txt_Calc(5).text == 0,012
expect form.sStep == 5
expect but_CalcStep(5).visible == true
expect form.vTries == 3
expect form.vWrong == 22
expect form.vMismatch == 2
expect form.vSolveUsed == 12
expect form.vHelpUsed == 2
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
expect lab_Calc(10).term == "nµZ(OH) = 1 * 0,012"
expect txt_Calc(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
# step 6
type txt_Calc(6) 0,01201
key ENTER
expect report progress 0 23
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 23
expect form.vTries == 1
expect form.vWrong == 23
expect form.vMismatch == 3
type txt_Calc(6) ""
answer no
click but_CalcStep(6)
expect report progress 0 24
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 24
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect form.vTries == 2
expect form.vWrong == 24
expect form.vMismatch == 3
expect form.vSolveUsed == 13
expect form.vHelpUsed == 2
type txt_Calc(6) abc
answer yes
key ENTER
expect report progress 0 25
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 25
expect txt_Calc(6).text == 0,012
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect form.vTries == 3
expect form.vWrong == 25
expect form.vMismatch == 3
expect form.vSolveUsed == 14
expect form.vHelpUsed == 2
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
# step 7, with a rung
click opt_Calc(0)
key ENTER but_CalcStep(7)
expect report progress 0 26
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 26
expect form.vTries == 1
expect form.vWrong == 26
expect form.vMismatch == 3
click opt_Calc(1)
answer no
answer no
click but_CalcStep(7)
expect report progress 0 27
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich das Richtige anklicken?"
expect nobox
expect Lab_Vallmista.text == 27
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect form.vTries == 2
expect form.vWrong == 27
expect form.vMismatch == 3
expect form.vSolveUsed == 15
expect form.vHelpUsed == 2
click opt_Calc(3)
answer yes
key ENTER but_CalcStep(7)
expect report progress 0 28
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 28
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
expect form.vWrong == 28
expect form.vMismatch == 3
expect form.vSolveUsed == 15
expect form.vHelpUsed == 3
# step 7
click opt_Calc(0)
key ENTER but_CalcStep(7)
expect report progress 0 29
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 29
expect form.vTries == 1
expect form.vWrong == 29
expect form.vMismatch == 3
click opt_Calc(1)
answer no
click but_CalcStep(7)
expect report progress 0 30
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich das Richtige anklicken?"
expect nobox
expect Lab_Vallmista.text == 30
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect form.vTries == 2
expect form.vWrong == 30
expect form.vMismatch == 3
expect form.vSolveUsed == 16
expect form.vHelpUsed == 3
click opt_Calc(3)
answer yes
key ENTER but_CalcStep(7)
expect report progress 0 31
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich das Richtige anklicken?"
expect nobox
expect Lab_Vallmista.text == 31
expect opt_Calc(0).checked == false
expect opt_Calc(1).checked == false
expect opt_Calc(2).checked == true
expect opt_Calc(3).checked == false
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect form.vTries == 3
expect form.vWrong == 31
expect form.vMismatch == 3
expect form.vSolveUsed == 17
expect form.vHelpUsed == 3
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
# step 10, with a rung
type txt_Calc(10) 0,546
key ENTER
expect report progress 0 32
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 32
expect form.vTries == 1
expect form.vWrong == 32
expect form.vMismatch == 4
type txt_Calc(10) ""
answer no
answer no
click but_CalcStep(10)
expect report progress 0 33
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 33
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect form.vTries == 2
expect form.vWrong == 33
expect form.vMismatch == 4
expect form.vSolveUsed == 18
expect form.vHelpUsed == 3
type txt_Calc(10) abc
answer yes
key ENTER
expect report progress 0 34
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 34
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
expect form.vWrong == 34
expect form.vMismatch == 4
expect form.vSolveUsed == 18
expect form.vHelpUsed == 4
# step 8
type txt_Calc(8) 0,01201
key ENTER
expect report progress 0 35
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 35
expect form.vTries == 1
expect form.vWrong == 35
expect form.vMismatch == 5
type txt_Calc(8) ""
answer no
click but_CalcStep(8)
expect report progress 0 36
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 36
expect form.sStep == 8
expect but_CalcStep(8).visible == true
expect form.vTries == 2
expect form.vWrong == 36
expect form.vMismatch == 5
expect form.vSolveUsed == 19
expect form.vHelpUsed == 4
type txt_Calc(8) abc
answer yes
key ENTER
expect report progress 0 37
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 37
expect txt_Calc(8).text == 0,012
expect form.sStep == 8
expect but_CalcStep(8).visible == true
expect form.vTries == 3
expect form.vWrong == 37
expect form.vMismatch == 5
expect form.vSolveUsed == 20
expect form.vHelpUsed == 4
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
# step 9
type txt_Calc(9) 0,02201
key ENTER
expect report progress 0 38
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 38
expect form.vTries == 1
expect form.vWrong == 38
expect form.vMismatch == 6
type txt_Calc(9) ""
answer no
click but_CalcStep(9)
expect report progress 0 39
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 39
expect form.sStep == 9
expect but_CalcStep(9).visible == true
expect form.vTries == 2
expect form.vWrong == 39
expect form.vMismatch == 6
expect form.vSolveUsed == 21
expect form.vHelpUsed == 4
type txt_Calc(9) abc
answer yes
key ENTER
expect report progress 0 40
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 40
expect txt_Calc(9).text == 0,022
expect form.sStep == 9
expect but_CalcStep(9).visible == true
expect form.vTries == 3
expect form.vWrong == 40
expect form.vMismatch == 6
expect form.vSolveUsed == 22
expect form.vHelpUsed == 4
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
# step 10
type txt_Calc(10) 0,546
key ENTER
expect report progress 0 41
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 41
expect form.vTries == 1
expect form.vWrong == 41
expect form.vMismatch == 7
type txt_Calc(10) ""
answer no
click but_CalcStep(10)
expect report progress 0 42
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 42
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect form.vTries == 2
expect form.vWrong == 42
expect form.vMismatch == 7
expect form.vSolveUsed == 23
expect form.vHelpUsed == 4
type txt_Calc(10) abc
answer yes
key ENTER
expect report progress 0 43
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 43
expect txt_Calc(10).text == 0,545
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect form.vTries == 3
expect form.vWrong == 43
expect form.vMismatch == 7
expect form.vSolveUsed == 24
expect form.vHelpUsed == 4
key ENTER
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
# step 12, with a rung
type txt_Calc(12) 9,26
key ENTER
expect report progress 0 44
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 44
expect form.vTries == 1
expect form.vWrong == 44
expect form.vMismatch == 8
type txt_Calc(12) ""
answer no
answer no
click but_CalcStep(12)
expect report progress 0 45
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 45
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect form.vTries == 2
expect form.vWrong == 45
expect form.vMismatch == 8
expect form.vSolveUsed == 25
expect form.vHelpUsed == 4
type txt_Calc(12) abc
answer yes
key ENTER
expect report progress 0 46
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 46
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
expect form.vWrong == 46
expect form.vMismatch == 8
expect form.vSolveUsed == 25
expect form.vHelpUsed == 5
# step 12
type txt_Calc(12) 9,26
key ENTER
expect report progress 0 47
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 47
expect form.vTries == 1
expect form.vWrong == 47
expect form.vMismatch == 9
type txt_Calc(12) ""
answer no
click but_CalcStep(12)
expect report progress 0 48
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 48
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect form.vTries == 2
expect form.vWrong == 48
expect form.vMismatch == 9
expect form.vSolveUsed == 26
expect form.vHelpUsed == 5
type txt_Calc(12) abc
answer yes
key ENTER
expect report progress 0 49
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 49
expect txt_Calc(12).text == 9,25
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect form.vTries == 3
expect form.vWrong == 49
expect form.vMismatch == 9
expect form.vSolveUsed == 27
expect form.vHelpUsed == 5
key ENTER
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 49
expect series(1).count == 1
expect series(1).x(1) == 12
expect series(1).y(1) ~= 9.24837928261271 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 1
expect frm_AppMainWeak.lab_solveuse.text == 27
expect frm_AppMainWeak.lab_helpused.text == 5
expect frm_AppMainWeak.Lab_Vallmista.text == 49
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 12
expect lab_pH.text == 9,25
expect ctl_Button3.visible == true
expect but_Help.visible == true
expect but_phCompare.visible == true
expect but_Calc.visible == false
expect ctl_Button2.visible == false
expect nobox
expect noreport
menu mnu_FileQuit
expect ended
