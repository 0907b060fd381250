# Weak acid: three points, two of them with all the help there is.
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
type txt_Ph 99
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
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect but_CalcStep(7).focus == true
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
click opt_Calc(1)
answer yes
key ENTER but_CalcStep(7)
expect report progress 0 3
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 3
expect form.vDetailCase == true
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect but_CalcStep(7).focus == true
expect form.vTries == 0
expect form.vWrong == 3
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 1
click opt_Calc(1)
key ENTER but_CalcStep(7)
expect report progress 0 4
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 4
expect form.vTries == 1
expect form.vWrong == 4
expect form.vMismatch == 0
click opt_Calc(1)
answer yes
key ENTER but_CalcStep(7)
expect report progress 0 5
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich das Richtige anklicken?"
expect nobox
expect Lab_Vallmista.text == 5
expect opt_Calc(0).checked == true
expect opt_Calc(1).checked == false
expect opt_Calc(2).checked == false
expect opt_Calc(3).checked == false
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect form.vTries == 2
expect form.vWrong == 5
expect form.vMismatch == 0
expect form.vSolveUsed == 1
expect form.vHelpUsed == 1
click opt_Calc(0)
click but_CalcStep(7)
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 2,50
key ENTER
expect report progress 0 6
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 6
expect form.vTries == 1
expect form.vWrong == 6
expect form.vMismatch == 1
type txt_Calc(12) 2,50
answer yes
key ENTER
expect report progress 0 7
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 7
expect form.vDetailStart == true
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
expect form.vWrong == 7
expect form.vMismatch == 2
expect form.vSolveUsed == 1
expect form.vHelpUsed == 2
type txt_Calc(12) 2,50
key ENTER
expect report progress 0 8
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 8
expect form.vTries == 1
expect form.vWrong == 8
expect form.vMismatch == 3
type txt_Calc(12) 2,50
answer yes
key ENTER
expect report progress 0 9
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 9
expect txt_Calc(12).text == 2,49
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect form.vTries == 2
expect form.vWrong == 9
expect form.vMismatch == 4
expect form.vSolveUsed == 2
expect form.vHelpUsed == 2
key ENTER
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 9
expect series(1).count == 1
expect series(1).x(1) == 0
expect series(1).y(1) ~= 2.490924374808178 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 1
expect frm_AppMainWeak.lab_solveuse.text == 2
expect frm_AppMainWeak.lab_helpused.text == 2
expect frm_AppMainWeak.Lab_Vallmista.text == 9
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
# 12 mL
click but_Calc
type txt_Ph 99
answer yes
click but_CalcDone
expect sound "signal 1"
expect box yesno "" "Der von Dir errechnete pH-Wert ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect form.vWrong == 10
expect Lab_Vallmista.text == 10
expect noreport
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
type txt_Calc(3) 0,00601
key ENTER
expect report progress 1 11
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
expect report progress 1 12
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
expect form.vSolveUsed == 2
expect form.vHelpUsed == 3
type txt_Calc(1) 0,60001
key ENTER
expect report progress 1 13
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 13
expect form.vTries == 1
expect form.vWrong == 13
expect form.vMismatch == 0
type txt_Calc(1) 0,60001
answer yes
key ENTER
expect report progress 1 14
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 14
expect txt_Calc(1).text == 0,6
expect form.sStep == 1
expect but_CalcStep(1).visible == true
expect form.vTries == 2
expect form.vWrong == 14
expect form.vMismatch == 0
expect form.vSolveUsed == 3
expect form.vHelpUsed == 3
key ENTER
expect form.sStep == 2
expect but_CalcStep(2).visible == true
expect txt_Calc(2).focus == true
expect form.vTries == 0
type txt_Calc(2) 0,01001
key ENTER
expect report progress 1 15
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 15
expect form.vTries == 1
expect form.vWrong == 15
expect form.vMismatch == 0
type txt_Calc(2) 0,01001
answer yes
key ENTER
expect report progress 1 16
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 16
expect txt_Calc(2).text == 0.01
expect form.sStep == 2
expect but_CalcStep(2).visible == true
expect form.vTries == 2
expect form.vWrong == 16
expect form.vMismatch == 0
expect form.vSolveUsed == 4
expect form.vHelpUsed == 3
key ENTER
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
expect form.vTries == 0
type txt_Calc(3) 0,00601
key ENTER
expect report progress 1 17
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 17
expect form.vTries == 1
expect form.vWrong == 17
expect form.vMismatch == 0
type txt_Calc(3) 0,00601
answer yes
key ENTER
expect report progress 1 18
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 18
expect txt_Calc(3).text == 0,006
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect form.vTries == 2
expect form.vWrong == 18
expect form.vMismatch == 0
expect form.vSolveUsed == 5
expect form.vHelpUsed == 3
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,01201
key ENTER
expect report progress 1 19
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 19
expect form.vTries == 1
expect form.vWrong == 19
expect form.vMismatch == 1
type txt_Calc(6) 0,01201
answer yes
key ENTER
expect report progress 1 20
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 20
expect form.vDetailBase == true
expect form.sStep == 4
expect but_CalcStep(4).visible == true
expect txt_Calc(4).focus == true
expect form.vTries == 0
expect form.vWrong == 20
expect form.vMismatch == 2
expect form.vSolveUsed == 5
expect form.vHelpUsed == 4
type txt_Calc(4) 1,00001
key ENTER
expect report progress 1 21
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 21
expect form.vTries == 1
expect form.vWrong == 21
expect form.vMismatch == 2
type txt_Calc(4) 1,00001
answer yes
key ENTER
expect report progress 1 22
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 22
expect txt_Calc(4).text == 1
expect form.sStep == 4
expect but_CalcStep(4).visible == true
expect form.vTries == 2
expect form.vWrong == 22
expect form.vMismatch == 2
expect form.vSolveUsed == 6
expect form.vHelpUsed == 4
key ENTER
expect form.sStep == 5
expect but_CalcStep(5).visible == true
expect txt_Calc(5).focus == true
expect form.vTries == 0
type txt_Calc(5) 0,01201
key ENTER
expect report progress 1 23
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 23
expect form.vTries == 1
expect form.vWrong == 23
expect form.vMismatch == 3
type txt_Calc(5) 0,01201
answer yes
key ENTER
expect report progress 1 24
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 24
expect txt_Calc(5).text == 0,012
expect form.sStep == 5
expect but_CalcStep(5).visible == true
expect form.vTries == 2
expect form.vWrong == 24
expect form.vMismatch == 4
expect form.vSolveUsed == 7
expect form.vHelpUsed == 4
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,01201
key ENTER
expect report progress 1 25
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 25
expect form.vTries == 1
expect form.vWrong == 25
expect form.vMismatch == 5
type txt_Calc(6) 0,01201
answer yes
key ENTER
expect report progress 1 26
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 26
expect txt_Calc(6).text == 0,012
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect form.vTries == 2
expect form.vWrong == 26
expect form.vMismatch == 6
expect form.vSolveUsed == 8
expect form.vHelpUsed == 4
key ENTER
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect but_CalcStep(7).focus == true
expect form.vTries == 0
click opt_Calc(0)
key ENTER but_CalcStep(7)
expect report progress 1 27
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 27
expect form.vTries == 1
expect form.vWrong == 27
expect form.vMismatch == 6
click opt_Calc(0)
answer yes
key ENTER but_CalcStep(7)
expect report progress 1 28
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 28
expect form.vDetailCase == true
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect but_CalcStep(7).focus == true
expect form.vTries == 0
expect form.vWrong == 28
expect form.vMismatch == 6
expect form.vSolveUsed == 8
expect form.vHelpUsed == 5
click opt_Calc(0)
key ENTER but_CalcStep(7)
expect report progress 1 29
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 29
expect form.vTries == 1
expect form.vWrong == 29
expect form.vMismatch == 6
click opt_Calc(0)
answer yes
key ENTER but_CalcStep(7)
expect report progress 1 30
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich das Richtige anklicken?"
expect nobox
expect Lab_Vallmista.text == 30
expect opt_Calc(0).checked == false
expect opt_Calc(1).checked == false
expect opt_Calc(2).checked == false
expect opt_Calc(3).checked == true
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect form.vTries == 2
expect form.vWrong == 30
expect form.vMismatch == 6
expect form.vSolveUsed == 9
expect form.vHelpUsed == 5
click opt_Calc(3)
click but_CalcStep(7)
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 0,274
key ENTER
expect report progress 1 31
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 31
expect form.vTries == 1
expect form.vWrong == 31
expect form.vMismatch == 7
type txt_Calc(10) 0,274
answer yes
key ENTER
expect report progress 1 32
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 32
expect form.vDetailConc == true
expect form.sStep == 8
expect but_CalcStep(8).visible == true
expect txt_Calc(8).focus == true
expect form.vTries == 0
expect form.vWrong == 32
expect form.vMismatch == 8
expect form.vSolveUsed == 9
expect form.vHelpUsed == 6
type txt_Calc(8) 0,007
key ENTER
expect report progress 1 33
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 33
expect form.vTries == 1
expect form.vWrong == 33
expect form.vMismatch == 9
type txt_Calc(8) 0,007
answer yes
key ENTER
expect report progress 1 34
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 34
expect txt_Calc(8).text == 0,006
expect form.sStep == 8
expect but_CalcStep(8).visible == true
expect form.vTries == 2
expect form.vWrong == 34
expect form.vMismatch == 10
expect form.vSolveUsed == 10
expect form.vHelpUsed == 6
key ENTER
expect form.sStep == 9
expect but_CalcStep(9).visible == true
expect txt_Calc(9).focus == true
expect form.vTries == 0
type txt_Calc(9) 0,023
key ENTER
expect report progress 1 35
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 35
expect form.vTries == 1
expect form.vWrong == 35
expect form.vMismatch == 11
type txt_Calc(9) 0,023
answer yes
key ENTER
expect report progress 1 36
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 36
expect txt_Calc(9).text == 0,022
expect form.sStep == 9
expect but_CalcStep(9).visible == true
expect form.vTries == 2
expect form.vWrong == 36
expect form.vMismatch == 12
expect form.vSolveUsed == 11
expect form.vHelpUsed == 6
key ENTER
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 0,274
key ENTER
expect report progress 1 37
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 37
expect form.vTries == 1
expect form.vWrong == 37
expect form.vMismatch == 13
type txt_Calc(10) 0,274
answer yes
key ENTER
expect report progress 1 38
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 38
expect txt_Calc(10).text == 0,273
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect form.vTries == 2
expect form.vWrong == 38
expect form.vMismatch == 14
expect form.vSolveUsed == 12
expect form.vHelpUsed == 6
key ENTER
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
type txt_Calc(11) 0,57
key ENTER
expect report progress 1 39
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 39
expect form.vTries == 1
expect form.vWrong == 39
expect form.vMismatch == 15
type txt_Calc(11) 0,57
answer yes
key ENTER
expect report progress 1 40
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 40
expect txt_Calc(11).text == 0,56
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect form.vTries == 2
expect form.vWrong == 40
expect form.vMismatch == 16
expect form.vSolveUsed == 13
expect form.vHelpUsed == 6
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 13,45
key ENTER
expect report progress 1 41
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 41
expect form.vTries == 1
expect form.vWrong == 41
expect form.vMismatch == 17
type txt_Calc(12) 13,45
answer yes
key ENTER
expect report progress 1 42
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 42
expect txt_Calc(12).text == 13,44
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect form.vTries == 2
expect form.vWrong == 42
expect form.vMismatch == 18
expect form.vSolveUsed == 14
expect form.vHelpUsed == 6
key ENTER
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 42
expect series(1).count == 2
expect series(1).x(2) == 12
expect series(1).y(2) ~= 13.435728569561437 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 2
expect frm_AppMainWeak.lab_solveuse.text == 14
expect frm_AppMainWeak.lab_helpused.text == 6
expect frm_AppMainWeak.Lab_Vallmista.text == 42
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 12
expect lab_pH.text == 13,44
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
# 20 mL
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13,669
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 3. Punkt"
expect report progress 3 42
expect series(1).count == 3
expect series(1).x(3) == 20
expect series(1).y(3) ~= 13.669 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 3
expect frm_AppMainWeak.lab_solveuse.text == 14
expect frm_AppMainWeak.lab_helpused.text == 6
expect frm_AppMainWeak.Lab_Vallmista.text == 42
expect frm_AppMainWeak.lab_pH.text == 13,669
expect form frm_DialogDone
expect form.Score == 430
expect form.Mark == 4
expect lab_Mark.text == Ausreichend
expect lab_Points.text == 3
expect lab_Wrong.text == "42 mal"
expect lab_HelpUsed.text == "6 mal"
expect lab_SolveUsed.text == "14 mal"
expect report result 430 4 "Ausreichend"
expect sound say
click bar_Buttons
expect nobox
expect noreport
menu mnu_FileQuit
expect ended
