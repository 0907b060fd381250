# The ladder of help at every step, at 5 mL of 1.0 mol/L: reminder, details, numbers.
name Mia
start
choose SSTab1 3
choose lst_Mol 1.0
check opt_NeedCalc off
click ctl_Button3
expect form frm_AppMainStrong
click ctl_Button1
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
click but_Calc
type txt_Ph 3
answer yes
click but_CalcDone
expect sound "signal 1"
expect box yesno "" "Der von Dir errechnete pH-Wert ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect form.vWrong == 1
expect frm_CalcDirect.visible == false
expect frm_Calc.visible == true
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
expect txt_Calc(1).visible == false
expect lab_CalcStep(0).visible == true
expect lab_Calc(5).visible == false
type txt_Calc(3) 0,5
click but_CalcStep(3)
expect report progress 0 2
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig!\nÜberprüfe Deine Eingaben!\nBeachte die Informationen rechts an der Seite!"
expect form.vWrong == 2
expect form.vTries == 1
expect form.vMismatch == 0
type txt_Calc(3) 0,5
answer yes
click but_CalcStep(3)
expect report progress 0 3
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect form.vWrong == 3
expect form.vDetailAcid == true
expect form.vTries == 0
expect form.sStep == 1
expect txt_Calc(1).visible == true
expect lab_Calc(0).visible == true
type txt_Calc(1) 77
click but_CalcStep(1)
expect report progress 0 4
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig!\nÜberprüfe Deine Eingaben!\nBeachte die Informationen rechts an der Seite!"
expect form.vWrong == 4
type txt_Calc(1) 77
answer no
click but_CalcStep(1)
expect report progress 0 5
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect form.vWrong == 5
expect form.vSolveUsed == 1
type txt_Calc(1) 77
answer yes
click but_CalcStep(1)
expect report progress 0 6
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect form.vWrong == 6
expect form.vSolveUsed == 2
expect txt_Calc(1).text == "1"
click but_CalcStep(1)
expect form.vTries == 0
expect form.sStep == 2
type txt_Calc(2) 77
click but_CalcStep(2)
expect report progress 0 7
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig!\nÜberprüfe Deine Eingaben!\nBeachte die Informationen rechts an der Seite!"
expect form.vWrong == 7
type txt_Calc(2) 77
answer no
click but_CalcStep(2)
expect report progress 0 8
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect form.vWrong == 8
expect form.vSolveUsed == 3
type txt_Calc(2) 77
answer yes
click but_CalcStep(2)
expect report progress 0 9
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect form.vWrong == 9
expect form.vSolveUsed == 4
expect txt_Calc(2).text == "0.01"
click but_CalcStep(2)
expect form.vTries == 0
expect form.sStep == 3
expect lab_Calc(5).term == "1 * 0.01"
expect lab_Calc(5).visible == true
type txt_Calc(3) 77
click but_CalcStep(3)
expect report progress 0 10
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig!\nÜberprüfe Deine Eingaben!\nBeachte die Informationen rechts an der Seite!"
expect form.vWrong == 10
type txt_Calc(3) 77
answer no
click but_CalcStep(3)
expect report progress 0 11
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect form.vWrong == 11
expect form.vSolveUsed == 5
type txt_Calc(3) 77
answer yes
click but_CalcStep(3)
expect report progress 0 12
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect form.vWrong == 12
expect form.vSolveUsed == 6
expect txt_Calc(3).text == "0,01"
click but_CalcStep(3)
expect form.vTries == 0
expect form.sStep == 6
type txt_Calc(6) 1
click but_CalcStep(6)
expect report progress 0 13
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig!\nÜberprüfe Deine Eingaben!\nBeachte die Informationen rechts an der Seite!"
expect form.vWrong == 13
type txt_Calc(6) 1
answer yes
click but_CalcStep(6)
expect report progress 0 14
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect form.vWrong == 14
expect form.vDetailBase == true
expect form.sStep == 4
type txt_Calc(4) 77
click but_CalcStep(4)
expect report progress 0 15
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig!\nÜberprüfe Deine Eingaben!\nBeachte die Informationen rechts an der Seite!"
expect form.vWrong == 15
type txt_Calc(4) 77
answer no
click but_CalcStep(4)
expect report progress 0 16
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect form.vWrong == 16
expect form.vSolveUsed == 7
type txt_Calc(4) 77
answer yes
click but_CalcStep(4)
expect report progress 0 17
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect form.vWrong == 17
expect form.vSolveUsed == 8
expect txt_Calc(4).text == "1"
click but_CalcStep(4)
expect form.vTries == 0
expect form.sStep == 5
type txt_Calc(5) 77
click but_CalcStep(5)
expect report progress 0 18
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig!\nÜberprüfe Deine Eingaben!\nBeachte die Informationen rechts an der Seite!"
expect form.vWrong == 18
type txt_Calc(5) 77
answer no
click but_CalcStep(5)
expect report progress 0 19
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect form.vWrong == 19
expect form.vSolveUsed == 9
type txt_Calc(5) 77
answer yes
click but_CalcStep(5)
expect report progress 0 20
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect form.vWrong == 20
expect form.vSolveUsed == 10
expect txt_Calc(5).text == "0,005"
click but_CalcStep(5)
expect form.vTries == 0
expect form.sStep == 6
expect lab_Calc(10).term == "1 * 0,005"
type txt_Calc(6) 77
click but_CalcStep(6)
expect report progress 0 21
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig!\nÜberprüfe Deine Eingaben!\nBeachte die Informationen rechts an der Seite!"
expect form.vWrong == 21
type txt_Calc(6) 77
answer no
click but_CalcStep(6)
expect report progress 0 22
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect form.vWrong == 22
expect form.vSolveUsed == 11
type txt_Calc(6) 77
answer yes
click but_CalcStep(6)
expect report progress 0 23
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect form.vWrong == 23
expect form.vSolveUsed == 12
expect txt_Calc(6).text == "0,005"
click but_CalcStep(6)
expect form.vTries == 0
expect form.sStep == 7
click opt_Calc(1)
click but_CalcStep(7)
expect report progress 0 24
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig!\nÜberprüfe Deine Eingaben!\nBeachte die Informationen rechts an der Seite!"
expect form.vWrong == 24
answer no
click but_CalcStep(7)
expect report progress 0 25
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich für dich das Richtige anklicken?"
expect form.vWrong == 25
expect form.vSolveUsed == 13
answer yes
click but_CalcStep(7)
expect report progress 0 26
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich für dich das Richtige anklicken?"
expect form.vWrong == 26
expect form.vSolveUsed == 14
click but_CalcStep(7)
expect form.vTries == 0
expect opt_Calc(0).checked == true
expect opt_Calc(1).checked == false
expect form.sStep == 10
type txt_Calc(10) 2
click but_CalcStep(10)
expect report progress 0 27
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig!\nÜberprüfe Deine Eingaben!\nBeachte die Informationen rechts an der Seite!"
expect form.vWrong == 27
expect form.vTries == 1
type txt_Calc(10) 2
answer yes
click but_CalcStep(10)
expect report progress 0 28
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect form.vWrong == 28
expect form.vDetailConc == true
expect form.sStep == 8
expect lab_Calc(16).term == "n(H3O+) = nµV(S) - nµZ(OH)"
expect lab_CalcStep(3).text == "4. Konzentration der Säure neu berechnen"
type txt_Calc(8) 77
click but_CalcStep(8)
expect report progress 0 29
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig!\nÜberprüfe Deine Eingaben!\nBeachte die Informationen rechts an der Seite!"
expect form.vWrong == 29
type txt_Calc(8) 77
answer no
click but_CalcStep(8)
expect report progress 0 30
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect form.vWrong == 30
expect form.vSolveUsed == 15
type txt_Calc(8) 77
answer yes
click but_CalcStep(8)
expect report progress 0 31
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect form.vWrong == 31
expect form.vSolveUsed == 16
expect txt_Calc(8).text == "0,005"
click but_CalcStep(8)
expect form.vTries == 0
expect form.sStep == 9
type txt_Calc(9) 77
click but_CalcStep(9)
expect report progress 0 32
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig!\nÜberprüfe Deine Eingaben!\nBeachte die Informationen rechts an der Seite!"
expect form.vWrong == 32
type txt_Calc(9) 77
answer no
click but_CalcStep(9)
expect report progress 0 33
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect form.vWrong == 33
expect form.vSolveUsed == 17
type txt_Calc(9) 77
answer yes
click but_CalcStep(9)
expect report progress 0 34
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect form.vWrong == 34
expect form.vSolveUsed == 18
expect txt_Calc(9).text == "0,015"
click but_CalcStep(9)
expect form.vTries == 0
expect form.sStep == 10
expect lab_Calc(19).visible == true
type txt_Calc(10) 2
click but_CalcStep(10)
expect report progress 0 35
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig!\nÜberprüfe Deine Eingaben!\nBeachte die Informationen rechts an der Seite!"
expect form.vWrong == 35
type txt_Calc(10) 2
answer no
click but_CalcStep(10)
expect report progress 0 36
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect form.vWrong == 36
expect form.vTries == 0
expect form.vSolveUsed == 19
type txt_Calc(10) 2
click but_CalcStep(10)
expect report progress 0 37
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig!\nÜberprüfe Deine Eingaben!\nBeachte die Informationen rechts an der Seite!"
expect form.vWrong == 37
type txt_Calc(10) 2
answer yes
click but_CalcStep(10)
expect report progress 0 38
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect form.vWrong == 38
expect form.vSolveUsed == 20
expect txt_Calc(10).text == "0,333"
click but_CalcStep(10)
expect form.sStep == 12
expect lab_CalcStep(4).visible == true
expect lab_Calc(24).term == "pH = -log(H3O+)"
type txt_Calc(12) 77
click but_CalcStep(12)
expect report progress 0 39
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig!\nÜberprüfe Deine Eingaben!\nBeachte die Informationen rechts an der Seite!"
expect form.vWrong == 39
type txt_Calc(12) 77
answer no
click but_CalcStep(12)
expect report progress 0 40
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect form.vWrong == 40
expect form.vSolveUsed == 21
type txt_Calc(12) 77
answer yes
click but_CalcStep(12)
expect report progress 0 41
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect form.vWrong == 41
expect form.vSolveUsed == 22
expect txt_Calc(12).text == "0,48"
click but_CalcStep(12)
expect form frm_DialogphCompare
expect box info Punktberechnung *
expect report progress 1 41
expect frm_AppMainStrong.lab_solveuse.text == 22
expect frm_AppMainStrong.Lab_Vallmista.text == 41
expect frm_AppMainStrong.lab_helpused.text == 0
expect nosound
click ctl_CmdBar1
expect form frm_AppMainStrong
expect frm_Calc.visible == false
expect but_Calc.visible == false
expect ctl_Button2.visible == false
expect ctl_Button3.visible == true
menu mnu_FileQuit
expect ended
