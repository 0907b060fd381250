# Weak acid: help and given numbers cost points, so that four points end in a bad mark.
name Mia
start
choose SSTab1 3
choose lst_Mol 1.0
check opt_NeedCalc off
click ctl_Button4
expect form frm_AppMainWeak
expect nobox
expect session.SessionConcentration == 1
expect session.SessionDemo == false
expect session.SessionRequiredPoints == ""
click ctl_Button1
settle
expect form.vVol == 10
# 0 mL
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 2,380
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 0
expect series(1).count == 1
expect series(1).x(1) == 0
expect series(1).y(1) ~= 2.38 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 1
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 2,380
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
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
type txt_Calc(3) 0,01001
key ENTER
expect report progress 1 2
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 2
expect form.vTries == 1
expect form.vWrong == 2
expect form.vMismatch == 0
type txt_Calc(3) 0,01001
answer yes
key ENTER
expect report progress 1 3
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 3
expect form.vDetailAcid == true
expect form.sStep == 1
expect but_CalcStep(1).visible == true
expect txt_Calc(1).focus == true
expect form.vTries == 0
expect form.vWrong == 3
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 1
type txt_Calc(1) 1,00001
key ENTER
expect report progress 1 4
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 4
expect form.vTries == 1
expect form.vWrong == 4
expect form.vMismatch == 0
type txt_Calc(1) 1,00001
answer yes
key ENTER
expect report progress 1 5
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 5
expect txt_Calc(1).text == 1
expect form.sStep == 1
expect but_CalcStep(1).visible == true
expect form.vTries == 2
expect form.vWrong == 5
expect form.vMismatch == 0
expect form.vSolveUsed == 1
expect form.vHelpUsed == 1
key ENTER
expect form.sStep == 2
expect but_CalcStep(2).visible == true
expect txt_Calc(2).focus == true
expect form.vTries == 0
type txt_Calc(2) 0,01001
key ENTER
expect report progress 1 6
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 6
expect form.vTries == 1
expect form.vWrong == 6
expect form.vMismatch == 0
type txt_Calc(2) 0,01001
answer yes
key ENTER
expect report progress 1 7
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 7
expect txt_Calc(2).text == 0.01
expect form.sStep == 2
expect but_CalcStep(2).visible == true
expect form.vTries == 2
expect form.vWrong == 7
expect form.vMismatch == 0
expect form.vSolveUsed == 2
expect form.vHelpUsed == 1
key ENTER
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
expect form.vTries == 0
type txt_Calc(3) 0,01001
key ENTER
expect report progress 1 8
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 8
expect form.vTries == 1
expect form.vWrong == 8
expect form.vMismatch == 0
type txt_Calc(3) 0,01001
answer yes
key ENTER
expect report progress 1 9
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 9
expect txt_Calc(3).text == 0,01
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect form.vTries == 2
expect form.vWrong == 9
expect form.vMismatch == 0
expect form.vSolveUsed == 3
expect form.vHelpUsed == 1
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,00501
key ENTER
expect report progress 1 10
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 10
expect form.vTries == 1
expect form.vWrong == 10
expect form.vMismatch == 1
type txt_Calc(6) 0,00501
answer yes
key ENTER
expect report progress 1 11
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 11
expect form.vDetailBase == true
expect form.sStep == 4
expect but_CalcStep(4).visible == true
expect txt_Calc(4).focus == true
expect form.vTries == 0
expect form.vWrong == 11
expect form.vMismatch == 2
expect form.vSolveUsed == 3
expect form.vHelpUsed == 2
type txt_Calc(4) 1,00001
key ENTER
expect report progress 1 12
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 12
expect form.vTries == 1
expect form.vWrong == 12
expect form.vMismatch == 2
type txt_Calc(4) 1,00001
answer yes
key ENTER
expect report progress 1 13
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 13
expect txt_Calc(4).text == 1
expect form.sStep == 4
expect but_CalcStep(4).visible == true
expect form.vTries == 2
expect form.vWrong == 13
expect form.vMismatch == 2
expect form.vSolveUsed == 4
expect form.vHelpUsed == 2
key ENTER
expect form.sStep == 5
expect but_CalcStep(5).visible == true
expect txt_Calc(5).focus == true
expect form.vTries == 0
type txt_Calc(5) 0,00501
key ENTER
expect report progress 1 14
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 14
expect form.vTries == 1
expect form.vWrong == 14
expect form.vMismatch == 3
type txt_Calc(5) 0,00501
answer yes
key ENTER
expect report progress 1 15
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 15
expect txt_Calc(5).text == 0,005
expect form.sStep == 5
expect but_CalcStep(5).visible == true
expect form.vTries == 2
expect form.vWrong == 15
expect form.vMismatch == 4
expect form.vSolveUsed == 5
expect form.vHelpUsed == 2
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,00501
key ENTER
expect report progress 1 16
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 16
expect form.vTries == 1
expect form.vWrong == 16
expect form.vMismatch == 5
type txt_Calc(6) 0,00501
answer yes
key ENTER
expect report progress 1 17
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 17
expect txt_Calc(6).text == 0,005
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect form.vTries == 2
expect form.vWrong == 17
expect form.vMismatch == 6
expect form.vSolveUsed == 6
expect form.vHelpUsed == 2
key ENTER
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect but_CalcStep(7).focus == true
expect form.vTries == 0
click opt_Calc(2)
key ENTER but_CalcStep(7)
expect report progress 1 18
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 18
expect form.vTries == 1
expect form.vWrong == 18
expect form.vMismatch == 6
click opt_Calc(2)
answer yes
key ENTER but_CalcStep(7)
expect report progress 1 19
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 19
expect form.vDetailCase == true
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect but_CalcStep(7).focus == true
expect form.vTries == 0
expect form.vWrong == 19
expect form.vMismatch == 6
expect form.vSolveUsed == 6
expect form.vHelpUsed == 3
click opt_Calc(2)
key ENTER but_CalcStep(7)
expect report progress 1 20
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 20
expect form.vTries == 1
expect form.vWrong == 20
expect form.vMismatch == 6
click opt_Calc(2)
answer yes
key ENTER but_CalcStep(7)
expect report progress 1 21
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich das Richtige anklicken?"
expect nobox
expect Lab_Vallmista.text == 21
expect opt_Calc(0).checked == false
expect opt_Calc(1).checked == true
expect opt_Calc(2).checked == false
expect opt_Calc(3).checked == false
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect form.vTries == 2
expect form.vWrong == 21
expect form.vMismatch == 6
expect form.vSolveUsed == 7
expect form.vHelpUsed == 3
click opt_Calc(1)
click but_CalcStep(7)
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 1,001
key ENTER
expect report progress 1 22
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 22
expect form.vTries == 1
expect form.vWrong == 22
expect form.vMismatch == 7
type txt_Calc(10) 1,001
answer yes
key ENTER
expect report progress 1 23
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 23
expect form.vDetailConc == true
expect form.sStep == 8
expect but_CalcStep(8).visible == true
expect txt_Calc(8).focus == true
expect form.vTries == 0
expect form.vWrong == 23
expect form.vMismatch == 8
expect form.vSolveUsed == 7
expect form.vHelpUsed == 4
type txt_Calc(8) 0,00501
key ENTER
expect report progress 1 24
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 24
expect form.vTries == 1
expect form.vWrong == 24
expect form.vMismatch == 9
type txt_Calc(8) 0,00501
answer yes
key ENTER
expect report progress 1 25
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 25
expect txt_Calc(8).text == 0,005
expect form.sStep == 8
expect but_CalcStep(8).visible == true
expect form.vTries == 2
expect form.vWrong == 25
expect form.vMismatch == 10
expect form.vSolveUsed == 8
expect form.vHelpUsed == 4
key ENTER
expect form.sStep == 9
expect but_CalcStep(9).visible == true
expect txt_Calc(9).focus == true
expect form.vTries == 0
type txt_Calc(9) 0,00501
key ENTER
expect report progress 1 26
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 26
expect form.vTries == 1
expect form.vWrong == 26
expect form.vMismatch == 11
type txt_Calc(9) 0,00501
answer yes
key ENTER
expect report progress 1 27
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 27
expect txt_Calc(9).text == 0,005
expect form.sStep == 9
expect but_CalcStep(9).visible == true
expect form.vTries == 2
expect form.vWrong == 27
expect form.vMismatch == 12
expect form.vSolveUsed == 9
expect form.vHelpUsed == 4
key ENTER
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 1,001
key ENTER
expect report progress 1 28
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 28
expect form.vTries == 1
expect form.vWrong == 28
expect form.vMismatch == 13
type txt_Calc(10) 1,001
answer yes
key ENTER
expect report progress 1 29
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 29
expect txt_Calc(10).text == 1,000
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect form.vTries == 2
expect form.vWrong == 29
expect form.vMismatch == 14
expect form.vSolveUsed == 10
expect form.vHelpUsed == 4
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 4,77
key ENTER
expect report progress 1 30
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 30
expect form.vTries == 1
expect form.vWrong == 30
expect form.vMismatch == 15
type txt_Calc(12) 4,77
answer yes
key ENTER
expect report progress 1 31
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 31
expect form.vDetailFinal == true
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
expect form.vWrong == 31
expect form.vMismatch == 16
expect form.vSolveUsed == 10
expect form.vHelpUsed == 5
type txt_Calc(12) 4,77
key ENTER
expect report progress 1 32
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 32
expect form.vTries == 1
expect form.vWrong == 32
expect form.vMismatch == 17
type txt_Calc(12) 4,77
answer yes
key ENTER
expect report progress 1 33
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 33
expect txt_Calc(12).text == 4,76
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect form.vTries == 2
expect form.vWrong == 33
expect form.vMismatch == 18
expect form.vSolveUsed == 11
expect form.vHelpUsed == 5
key ENTER
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 33
expect series(1).count == 2
expect series(1).x(2) == 5
expect series(1).y(2) ~= 4.76 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 2
expect frm_AppMainWeak.lab_solveuse.text == 11
expect frm_AppMainWeak.lab_helpused.text == 5
expect frm_AppMainWeak.Lab_Vallmista.text == 33
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 5
expect lab_pH.text == 4,76
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
# 10 mL
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 9,229
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 3. Punkt"
expect report progress 3 33
expect series(1).count == 3
expect series(1).x(3) == 10
expect series(1).y(3) ~= 9.229 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 3
expect frm_AppMainWeak.lab_solveuse.text == 11
expect frm_AppMainWeak.lab_helpused.text == 5
expect frm_AppMainWeak.Lab_Vallmista.text == 33
expect frm_AppMainWeak.lab_pH.text == 9,229
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
# 20 mL
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13,523
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 4. Punkt"
expect report progress 4 33
expect series(1).count == 4
expect series(1).x(4) == 20
expect series(1).y(4) ~= 13.523 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 4
expect frm_AppMainWeak.lab_solveuse.text == 11
expect frm_AppMainWeak.lab_helpused.text == 5
expect frm_AppMainWeak.Lab_Vallmista.text == 33
expect frm_AppMainWeak.lab_pH.text == 13,523
expect form frm_DialogDone
expect form.Score == 665
expect form.Mark == 3
expect lab_Mark.text == Befriedigend
expect lab_Points.text == 4
expect lab_Wrong.text == "33 mal"
expect lab_HelpUsed.text == "5 mal"
expect lab_SolveUsed.text == "11 mal"
expect report result 665 3 "Befriedigend"
expect sound correct
click bar_Buttons
expect nobox
expect noreport
menu mnu_FileQuit
expect ended
