# Chloride with silver, 4 mL to 1.0 mol/L: the whole ladder at every step, refused and taken.
name Mia
start
choose SSTab1 3
choose lst_Mol 1.0
check opt_NeedCalc off
click ctl_Button8
expect form frm_AppMainSilverStart
expect form.Accepted == false
click bar_Buttons
expect form frm_AppMainSilver
expect nobox
expect session.SessionConcentration == 1
expect session.SessionDemo == false
expect session.SessionRequiredPoints == ""
click ctl_Button1
settle
expect form.vVol == 10
expect beaker.countsort(3) == 10
expect beaker.countsort(5) == 10
expect beaker.count == 20
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
click but_Calc
type txt_Ph 3
answer yes
click but_CalcDone
expect sound "signal 1"
expect box yesno "" "Das von Dir errechnete Potential ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
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
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "1.Vorgelegte  Stoffmenge Chlorid"
expect lab_Calc(6).visible == true
expect lab_Calc(6).term == "nµV(Cl-) ="
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
type txt_Calc(3) 0,01001
key ENTER
expect noreport
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
expect noreport
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
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(3) abc
answer yes
key ENTER
expect noreport
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
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "1.Vorgelegte  Stoffmenge Chlorid"
expect lab_Calc(0).visible == true
expect lab_Calc(0).term == "nµV(Cl-) = cµV(Cl-) * VµV(Cl-)"
expect lab_Calc(1).visible == true
expect lab_Calc(1).term == "cµV(Cl-) ="
expect lab_Calc(2).visible == true
expect lab_Calc(2).term == "mol / L"
expect txt_Calc(1).visible == true
expect txt_Calc(1).focus == true
expect form.vTries == 0
expect form.vWrong == 4
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
# step 1
type txt_Calc(1) 1,00001
key ENTER
expect noreport
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
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 6
expect form.sStep == 1
expect but_CalcStep(1).visible == true
expect form.vTries == 2
expect form.vWrong == 6
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(1) abc
answer yes
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 7
expect txt_Calc(1).text == 1
expect form.sStep == 1
expect but_CalcStep(1).visible == true
expect form.vTries == 3
expect form.vWrong == 7
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
click but_CalcStep(1)
expect form.sStep == 2
expect form.vStepReached(2) == true
expect but_CalcStep(1).visible == false
expect but_CalcStep(2).visible == true
expect but_CalcStep(3).visible == false
expect lab_Calc(3).visible == true
expect lab_Calc(3).term == "VµV(Cl-) ="
expect lab_Calc(4).visible == true
expect txt_Calc(2).visible == true
expect txt_Calc(2).focus == true
expect form.vTries == 0
# step 2
type txt_Calc(2) 0,01001
key ENTER
expect noreport
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
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 9
expect form.sStep == 2
expect but_CalcStep(2).visible == true
expect form.vTries == 2
expect form.vWrong == 9
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(2) abc
answer yes
key ENTER
expect noreport
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
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
key ENTER
expect form.sStep == 3
expect form.vStepReached(3) == true
expect but_CalcStep(2).visible == false
expect but_CalcStep(3).visible == true
expect but_CalcStep(4).visible == false
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "1.Vorgelegte  Stoffmenge Chlorid"
expect lab_Calc(6).visible == true
expect lab_Calc(6).term == "nµV(Cl-) ="
expect lab_Calc(7).visible == true
expect lab_Calc(7).term == "mol"
expect lab_Calc(5).visible == true
expect lab_Calc(5).term == "nµV(Cl-) = 1 * 0.01"
expect txt_Calc(3).visible == true
expect txt_Calc(3).focus == true
expect form.vTries == 0
# step 3
type txt_Calc(3) 0,01001
key ENTER
expect noreport
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
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 12
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect form.vTries == 2
expect form.vWrong == 12
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(3) abc
answer yes
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 13
expect txt_Calc(3).text == 0,01
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect form.vTries == 3
expect form.vWrong == 13
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
click but_CalcStep(3)
expect form.sStep == 6
expect form.vStepReached(6) == true
expect but_CalcStep(3).visible == false
expect but_CalcStep(6).visible == true
expect but_CalcStep(7).visible == false
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "2. Zugegebene Stoffmenge der Silber-Ionen"
expect lab_Calc(9).visible == true
expect lab_Calc(9).term == "nµZ(Ag+) ="
expect lab_Calc(8).visible == true
expect lab_Calc(8).term == "mol"
expect lab_Calc(10).visible == false
expect txt_Calc(4).visible == false
expect txt_Calc(5).visible == false
expect txt_Calc(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
# step 6, with a rung
type txt_Calc(6) 0,00401
key ENTER
expect noreport
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
expect noreport
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
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(6) abc
answer yes
key ENTER
expect noreport
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
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "2. Zugegebene Stoffmenge der Silber-Ionen"
expect lab_Calc(15).visible == true
expect lab_Calc(15).term == "nµZ(Ag+) = cµZ(Ag+) * VµZ(Ag+)"
expect lab_Calc(14).visible == true
expect lab_Calc(14).term == "cµZ(Ag+) ="
expect lab_Calc(13).visible == true
expect lab_Calc(13).term == "mol / L"
expect txt_Calc(4).visible == true
expect txt_Calc(4).focus == true
expect form.vTries == 0
expect form.vWrong == 16
expect form.vMismatch == 1
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
# step 4
type txt_Calc(4) 1,00001
key ENTER
expect noreport
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
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 18
expect form.sStep == 4
expect but_CalcStep(4).visible == true
expect form.vTries == 2
expect form.vWrong == 18
expect form.vMismatch == 1
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(4) abc
answer yes
key ENTER
expect noreport
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
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
key ENTER
expect form.sStep == 5
expect form.vStepReached(5) == true
expect but_CalcStep(4).visible == false
expect but_CalcStep(5).visible == true
expect but_CalcStep(6).visible == false
expect lab_Calc(12).visible == true
expect lab_Calc(12).term == "VµZ(Ag+) ="
expect lab_Calc(11).visible == true
expect txt_Calc(5).visible == true
expect txt_Calc(5).focus == true
expect form.vTries == 0
# step 5
type txt_Calc(5) 0,00401
key ENTER
expect noreport
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
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 21
expect form.sStep == 5
expect but_CalcStep(5).visible == true
expect form.vTries == 2
expect form.vWrong == 21
expect form.vMismatch == 2
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(5) abc
answer yes
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 22
expect txt_Calc(5).text == 0,004
expect form.sStep == 5
expect but_CalcStep(5).visible == true
expect form.vTries == 3
expect form.vWrong == 22
expect form.vMismatch == 2
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
click but_CalcStep(5)
expect form.sStep == 6
expect form.vStepReached(6) == true
expect but_CalcStep(5).visible == false
expect but_CalcStep(6).visible == true
expect but_CalcStep(7).visible == false
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "2. Zugegebene Stoffmenge der Silber-Ionen"
expect lab_Calc(9).visible == true
expect lab_Calc(9).term == "nµZ(Ag+) ="
expect lab_Calc(8).visible == true
expect lab_Calc(8).term == "mol"
expect lab_Calc(10).visible == true
expect lab_Calc(10).term == "nµZ(Ag+) = 1 * 0,004"
expect txt_Calc(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
# step 6
type txt_Calc(6) 0,00401
key ENTER
expect noreport
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
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 24
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect form.vTries == 2
expect form.vWrong == 24
expect form.vMismatch == 3
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(6) abc
answer yes
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 25
expect txt_Calc(6).text == 0,004
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect form.vTries == 3
expect form.vWrong == 25
expect form.vMismatch == 3
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
key ENTER
expect form.sStep == 7
expect form.vStepReached(7) == true
expect but_CalcStep(6).visible == false
expect but_CalcStep(7).visible == true
expect but_CalcStep(8).visible == false
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "3. Welcher Fall liegt vor? - wichtig für Potential"
expect opt_Calc(0).visible == true
expect opt_Calc(0).text == "(Fast) Nur Cl-"
expect lab_optCalc(0).visible == true
expect lab_optCalc(0).term == "nµZ(Ag+) = 0"
expect opt_Calc(1).visible == true
expect opt_Calc(1).text == "Mehr Cl- als Ag+"
expect lab_optCalc(1).visible == true
expect lab_optCalc(1).term == "0 < nµZ(Ag+) < nµV(Cl-)"
expect opt_Calc(2).visible == true
expect opt_Calc(2).text == "Genau gleich"
expect lab_optCalc(2).visible == true
expect lab_optCalc(2).term == "nµZ(Ag+) = nµV(Cl-)"
expect opt_Calc(3).visible == true
expect opt_Calc(3).text == "Mehr Ag+ als Cl-"
expect lab_optCalc(3).visible == true
expect lab_optCalc(3).term == "nµZ(Ag+) > nµV(Cl-)"
expect opt_CalcStore.visible == true
expect but_CalcStep(7).focus == true
expect form.vTries == 0
# step 7
click opt_Calc(0)
key ENTER but_CalcStep(7)
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 26
expect form.vTries == 1
expect form.vWrong == 26
expect form.vMismatch == 3
click opt_Calc(2)
answer no
click but_CalcStep(7)
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich für dich das Richtige anklicken?"
expect nobox
expect Lab_Vallmista.text == 27
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect form.vTries == 2
expect form.vWrong == 27
expect form.vMismatch == 3
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
click opt_Calc(3)
answer yes
key ENTER but_CalcStep(7)
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich für dich das Richtige anklicken?"
expect nobox
expect Lab_Vallmista.text == 28
expect opt_Calc(0).checked == false
expect opt_Calc(1).checked == true
expect opt_Calc(2).checked == false
expect opt_Calc(3).checked == false
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect form.vTries == 3
expect form.vWrong == 28
expect form.vMismatch == 3
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
click opt_Calc(1)
click but_CalcStep(7)
expect form.sStep == 10
expect form.vStepReached(10) == true
expect but_CalcStep(7).visible == false
expect but_CalcStep(10).visible == true
expect but_CalcStep(11).visible == false
expect but_CalcPH(10).visible == true
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "4. Neue Konzentration der Chlorid-Ionen berechnen"
expect lab_Calc(22).visible == true
expect lab_Calc(22).term == "c(Cl') = "
expect lab_Calc(25).visible == true
expect lab_Calc(25).term == "mol / L"
expect lab_Calc(19).visible == false
expect txt_Calc(8).visible == false
expect txt_Calc(9).visible == false
expect txt_Calc(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
# step 10, with a rung
type txt_Calc(10) 0,430
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 29
expect form.vTries == 1
expect form.vWrong == 29
expect form.vMismatch == 4
type txt_Calc(10) ""
answer no
answer no
click but_CalcStep(10)
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 30
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect form.vTries == 0
expect form.vWrong == 30
expect form.vMismatch == 4
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(10) abc
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 31
expect form.vTries == 1
expect form.vWrong == 31
expect form.vMismatch == 4
type txt_Calc(10) 0,430
answer yes
key ENTER
expect noreport
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
expect but_CalcPH(8).visible == true
expect but_CalcPH(10).visible == false
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "4. Neue Konzentration der Chlorid-Ionen berechnen"
expect lab_Calc(16).visible == true
expect lab_Calc(16).term == "n(Cl')=nµV(Cl-)-nµZ(Ag+)"
expect lab_Calc(17).visible == true
expect lab_Calc(17).term == "n(Cl')="
expect lab_Calc(18).visible == true
expect lab_Calc(18).term == "mol"
expect txt_Calc(8).visible == true
expect txt_Calc(8).focus == true
expect form.vTries == 0
expect form.vWrong == 32
expect form.vMismatch == 5
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
# step 8
type txt_Calc(8) 0,00601
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 33
expect form.vTries == 1
expect form.vWrong == 33
expect form.vMismatch == 6
type txt_Calc(8) ""
answer no
click but_CalcStep(8)
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 34
expect form.sStep == 8
expect but_CalcStep(8).visible == true
expect form.vTries == 2
expect form.vWrong == 34
expect form.vMismatch == 6
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(8) abc
answer yes
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 35
expect txt_Calc(8).text == 0,006
expect form.sStep == 8
expect but_CalcStep(8).visible == true
expect form.vTries == 3
expect form.vWrong == 35
expect form.vMismatch == 6
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
key ENTER
expect form.sStep == 9
expect form.vStepReached(9) == true
expect but_CalcStep(8).visible == false
expect but_CalcStep(9).visible == true
expect but_CalcStep(10).visible == false
expect but_CalcPH(8).visible == false
expect but_CalcPH(9).visible == true
expect lab_Calc(20).visible == true
expect lab_Calc(20).term == "VGes="
expect lab_Calc(21).visible == true
expect txt_Calc(9).visible == true
expect txt_Calc(9).focus == true
expect form.vTries == 0
# step 9
type txt_Calc(9) 0,01401
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 36
expect form.vTries == 1
expect form.vWrong == 36
expect form.vMismatch == 7
type txt_Calc(9) ""
answer no
click but_CalcStep(9)
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 37
expect form.sStep == 9
expect but_CalcStep(9).visible == true
expect form.vTries == 2
expect form.vWrong == 37
expect form.vMismatch == 7
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(9) abc
answer yes
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 38
expect txt_Calc(9).text == 0,014
expect form.sStep == 9
expect but_CalcStep(9).visible == true
expect form.vTries == 3
expect form.vWrong == 38
expect form.vMismatch == 7
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
click but_CalcStep(9)
expect form.sStep == 10
expect form.vStepReached(10) == true
expect but_CalcStep(9).visible == false
expect but_CalcStep(10).visible == true
expect but_CalcStep(11).visible == false
expect but_CalcPH(9).visible == false
expect but_CalcPH(10).visible == true
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "4. Neue Konzentration der Chlorid-Ionen berechnen"
expect lab_Calc(22).visible == true
expect lab_Calc(22).term == "c(Cl') = "
expect lab_Calc(25).visible == true
expect lab_Calc(25).term == "mol / L"
expect lab_Calc(19).visible == true
expect lab_Calc(19).term == "c(Cl') = (n(Cl'))/(VGes))"
expect txt_Calc(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
# step 10
type txt_Calc(10) 0,430
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 39
expect form.vTries == 1
expect form.vWrong == 39
expect form.vMismatch == 8
type txt_Calc(10) ""
answer no
click but_CalcStep(10)
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 40
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect form.vTries == 0
expect form.vWrong == 40
expect form.vMismatch == 8
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(10) abc
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 41
expect form.vTries == 1
expect form.vWrong == 41
expect form.vMismatch == 8
type txt_Calc(10) 0,430
answer yes
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 42
expect txt_Calc(10).text == 0,429
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect form.vTries == 0
expect form.vWrong == 42
expect form.vMismatch == 9
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
key ENTER
expect form.sStep == 11
expect form.vStepReached(11) == true
expect but_CalcStep(10).visible == false
expect but_CalcStep(11).visible == true
expect but_CalcStep(12).visible == false
expect but_CalcPH(10).visible == false
expect but_CalcPH(11).visible == true
expect lab_CalcStep(5).visible == true
expect lab_CalcStep(5).text == "5. Neue Konzentration der Silber-Ionen berechnen"
expect lab_Calc(26).visible == true
expect lab_Calc(26).term == "c(Ag+) = "
expect lab_Calc(28).visible == true
expect lab_Calc(23).visible == false
expect txt_Calc(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
# step 11, with a rung
type txt_Calc(11) 0,001
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 43
expect form.vTries == 1
expect form.vWrong == 43
expect form.vMismatch == 10
type txt_Calc(11) ""
answer no
answer no
click but_CalcStep(11)
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 44
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect form.vTries == 0
expect form.vWrong == 44
expect form.vMismatch == 10
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(11) abc
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 45
expect form.vTries == 1
expect form.vWrong == 45
expect form.vMismatch == 10
type txt_Calc(11) 0,001
answer yes
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 46
expect form.vDetailSilver == true
expect form.sStep == 11
expect form.vStepReached(11) == true
expect but_CalcStep(11).visible == true
expect but_CalcStep(12).visible == false
expect but_CalcPH(11).visible == true
expect lab_CalcStep(5).visible == true
expect lab_CalcStep(5).text == "5. Neue Konzentration der Silber-Ionen berechnen"
expect lab_Calc(26).visible == true
expect lab_Calc(26).term == "c(Ag+) = "
expect lab_Calc(28).visible == true
expect lab_Calc(23).visible == true
expect lab_Calc(23).term == "c(Ag+) = KµL / c(Cl')"
expect txt_Calc(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
expect form.vWrong == 46
expect form.vMismatch == 11
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
# step 11
type txt_Calc(11) 0,001
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 47
expect form.vTries == 1
expect form.vWrong == 47
expect form.vMismatch == 12
type txt_Calc(11) ""
answer no
click but_CalcStep(11)
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 48
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect form.vTries == 0
expect form.vWrong == 48
expect form.vMismatch == 12
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(11) abc
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 49
expect form.vTries == 1
expect form.vWrong == 49
expect form.vMismatch == 12
type txt_Calc(11) 0,001
answer yes
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 50
expect txt_Calc(11).text == 4,655*10^-10
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect form.vTries == 0
expect form.vWrong == 50
expect form.vMismatch == 13
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
click but_CalcStep(11)
expect form.sStep == 12
expect form.vStepReached(12) == true
expect but_CalcStep(11).visible == false
expect but_CalcStep(12).visible == true
expect but_CalcPH(11).visible == false
expect but_CalcPH(12).visible == true
expect lab_CalcStep(6).visible == true
expect lab_CalcStep(6).text == "6. Potential berechnen"
expect lab_Calc(24).visible == true
expect lab_Calc(24).term == "E = "
expect lab_Calc(29).visible == true
expect lab_Calc(27).visible == false
expect txt_Calc(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
# step 12, with a rung
type txt_Calc(12) 0,250
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 51
expect form.vTries == 1
expect form.vWrong == 51
expect form.vMismatch == 14
type txt_Calc(12) ""
answer no
answer no
click but_CalcStep(12)
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 52
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect form.vTries == 0
expect form.vWrong == 52
expect form.vMismatch == 14
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(12) abc
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 53
expect form.vTries == 1
expect form.vWrong == 53
expect form.vMismatch == 14
type txt_Calc(12) 0,250
answer yes
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 54
expect form.vDetailFinal == true
expect form.sStep == 12
expect form.vStepReached(12) == true
expect but_CalcStep(12).visible == true
expect but_CalcPH(12).visible == true
expect lab_CalcStep(6).visible == true
expect lab_CalcStep(6).text == "6. Potential berechnen"
expect lab_Calc(24).visible == true
expect lab_Calc(24).term == "E = "
expect lab_Calc(29).visible == true
expect lab_Calc(27).visible == true
expect lab_Calc(27).term == "E = 0.8V - 0.059V * log(1 / (c(Ag+)))"
expect txt_Calc(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
expect form.vWrong == 54
expect form.vMismatch == 15
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
# step 12
type txt_Calc(12) 0,250
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 55
expect form.vTries == 1
expect form.vWrong == 55
expect form.vMismatch == 16
type txt_Calc(12) ""
answer no
click but_CalcStep(12)
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 56
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect form.vTries == 0
expect form.vWrong == 56
expect form.vMismatch == 16
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(12) abc
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 57
expect form.vTries == 1
expect form.vWrong == 57
expect form.vMismatch == 16
type txt_Calc(12) 0,250
answer yes
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 58
expect txt_Calc(12).text == 0,249
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect form.vTries == 0
expect form.vWrong == 58
expect form.vMismatch == 17
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
key ENTER
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 58
expect series(1).count == 1
expect series(1).x(1) == 4
expect series(1).y(1) ~= 0.2494106303323812 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 1
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.Lab_Vallmista.text == 58
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 4
expect lab_pH.text == "0,25 V"
expect ctl_Button3.visible == true
expect but_Help.visible == true
expect but_phCompare.visible == true
expect but_Calc.visible == false
expect ctl_Button2.visible == false
expect nobox
expect noreport
menu mnu_FileQuit
expect ended
