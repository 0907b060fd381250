# Chloride with silver: letters, nothing and absurd numbers in every field.
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
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph ""
answer no
key ENTER
expect sound "signal 1"
expect box yesno "" "Das von Dir errechnete Potential ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
expect noreport
expect form.vWrong == 1
expect form.vMismatch == 0
type txt_Ph abc
answer no
key ENTER
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das von Dir errechnete Potential ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
expect noreport
expect form.vWrong == 2
expect form.vMismatch == 0
type txt_Ph 1,2,3
answer no
key ENTER
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das von Dir errechnete Potential ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
expect noreport
expect form.vWrong == 3
expect form.vMismatch == 0
type txt_Ph "--5"
answer no
key ENTER
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das von Dir errechnete Potential ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
expect noreport
expect form.vWrong == 4
expect form.vMismatch == 0
type txt_Ph "0,01 mol"
answer no
key ENTER
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das von Dir errechnete Potential ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
expect noreport
expect form.vWrong == 5
expect form.vMismatch == 0
type txt_Ph 1e999
answer no
key ENTER
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das von Dir errechnete Potential ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
expect noreport
expect form.vWrong == 6
expect form.vMismatch == 0
type txt_Ph "2^-"
answer no
key ENTER
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das von Dir errechnete Potential ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
expect noreport
expect form.vWrong == 7
expect form.vMismatch == 0
type txt_Ph "1.000,5"
answer no
key ENTER
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das von Dir errechnete Potential ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
expect noreport
expect form.vWrong == 8
expect form.vMismatch == 0
type txt_Ph "5 %"
answer no
key ENTER
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das von Dir errechnete Potential ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
expect noreport
expect form.vWrong == 9
expect form.vMismatch == 0
type txt_Ph ","
answer no
key ENTER
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das von Dir errechnete Potential ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
expect noreport
expect form.vWrong == 10
expect form.vMismatch == 0
type txt_Ph "0x10"
answer no
key ENTER
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das von Dir errechnete Potential ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
expect noreport
expect form.vWrong == 11
expect form.vMismatch == 0
type txt_Ph "1/2"
answer no
key ENTER
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das von Dir errechnete Potential ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
expect noreport
expect form.vWrong == 12
expect form.vMismatch == 0
type txt_Ph -1
answer no
key ENTER
expect sound "signal 1"
expect box yesno "" "Das von Dir errechnete Potential ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect form.vWrong == 13
type txt_Ph 1E300
answer no
key ENTER
expect sound "signal 1"
expect box yesno "" "Das von Dir errechnete Potential ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect form.vWrong == 14
type txt_Ph 0
answer no
key ENTER
expect sound "signal 1"
expect box yesno "" "Das von Dir errechnete Potential ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect form.vWrong == 15
expect form.vMismatch == 3
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
type txt_Calc(3) x
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 16
expect form.vTries == 1
expect form.vWrong == 16
expect form.vMismatch == 0
type txt_Calc(3) ""
answer yes
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 17
expect form.vDetailAcid == true
expect form.sStep == 1
expect but_CalcStep(1).visible == true
expect txt_Calc(1).focus == true
expect form.vTries == 0
expect form.vWrong == 17
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(1) ""
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 18
expect form.vTries == 1
expect form.vWrong == 18
expect form.vMismatch == 0
type txt_Calc(1) 1,2,3
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 19
expect form.sStep == 1
expect but_CalcStep(1).visible == true
expect form.vTries == 2
expect form.vWrong == 19
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(1) "0,01 mol"
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 20
expect form.sStep == 1
expect but_CalcStep(1).visible == true
expect form.vTries == 3
expect form.vWrong == 20
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(1) 1e999
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 21
expect form.sStep == 1
expect but_CalcStep(1).visible == true
expect form.vTries == 4
expect form.vWrong == 21
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(1) "1/2"
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 22
expect form.sStep == 1
expect but_CalcStep(1).visible == true
expect form.vTries == 5
expect form.vWrong == 22
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(1) -1
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 23
expect form.sStep == 1
expect but_CalcStep(1).visible == true
expect form.vTries == 6
expect form.vWrong == 23
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(1) 1E300
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 24
expect form.sStep == 1
expect but_CalcStep(1).visible == true
expect form.vTries == 7
expect form.vWrong == 24
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(1) 0,8
key ENTER
expect form.sStep == 2
expect but_CalcStep(2).visible == true
expect txt_Calc(2).focus == true
expect form.vTries == 0
type txt_Calc(2) ""
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 25
expect form.vTries == 1
expect form.vWrong == 25
expect form.vMismatch == 0
type txt_Calc(2) 1,2,3
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 26
expect form.sStep == 2
expect but_CalcStep(2).visible == true
expect form.vTries == 2
expect form.vWrong == 26
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(2) "0,01 mol"
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 27
expect form.sStep == 2
expect but_CalcStep(2).visible == true
expect form.vTries == 3
expect form.vWrong == 27
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(2) 1e999
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 28
expect form.sStep == 2
expect but_CalcStep(2).visible == true
expect form.vTries == 4
expect form.vWrong == 28
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(2) "1/2"
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 29
expect form.sStep == 2
expect but_CalcStep(2).visible == true
expect form.vTries == 5
expect form.vWrong == 29
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(2) -1
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 30
expect form.sStep == 2
expect but_CalcStep(2).visible == true
expect form.vTries == 6
expect form.vWrong == 30
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(2) 1E300
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 31
expect form.sStep == 2
expect but_CalcStep(2).visible == true
expect form.vTries == 7
expect form.vWrong == 31
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(2) 0.01
key ENTER
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
expect form.vTries == 0
type txt_Calc(3) ""
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 32
expect form.vTries == 1
expect form.vWrong == 32
expect form.vMismatch == 0
type txt_Calc(3) 1,2,3
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 33
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect form.vTries == 2
expect form.vWrong == 33
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(3) "0,01 mol"
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 34
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect form.vTries == 3
expect form.vWrong == 34
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(3) 1e999
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 35
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect form.vTries == 4
expect form.vWrong == 35
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(3) "1/2"
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 36
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect form.vTries == 5
expect form.vWrong == 36
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(3) -1
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 37
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect form.vTries == 6
expect form.vWrong == 37
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(3) 1E300
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 38
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect form.vTries == 7
expect form.vWrong == 38
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(3) 0,008
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) x
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 39
expect form.vTries == 1
expect form.vWrong == 39
expect form.vMismatch == 0
type txt_Calc(6) ""
answer yes
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 40
expect form.vDetailBase == true
expect form.sStep == 4
expect but_CalcStep(4).visible == true
expect txt_Calc(4).focus == true
expect form.vTries == 0
expect form.vWrong == 40
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(4) ""
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 41
expect form.vTries == 1
expect form.vWrong == 41
expect form.vMismatch == 0
type txt_Calc(4) 1,2,3
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 42
expect form.sStep == 4
expect but_CalcStep(4).visible == true
expect form.vTries == 2
expect form.vWrong == 42
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(4) "0,01 mol"
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 43
expect form.sStep == 4
expect but_CalcStep(4).visible == true
expect form.vTries == 3
expect form.vWrong == 43
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(4) 1e999
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 44
expect form.sStep == 4
expect but_CalcStep(4).visible == true
expect form.vTries == 4
expect form.vWrong == 44
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(4) "1/2"
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 45
expect form.sStep == 4
expect but_CalcStep(4).visible == true
expect form.vTries == 5
expect form.vWrong == 45
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(4) -1
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 46
expect form.sStep == 4
expect but_CalcStep(4).visible == true
expect form.vTries == 6
expect form.vWrong == 46
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(4) 1E300
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 47
expect form.sStep == 4
expect but_CalcStep(4).visible == true
expect form.vTries == 7
expect form.vWrong == 47
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(4) 1
key ENTER
expect form.sStep == 5
expect but_CalcStep(5).visible == true
expect txt_Calc(5).focus == true
expect form.vTries == 0
type txt_Calc(5) ""
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 48
expect form.vTries == 1
expect form.vWrong == 48
expect form.vMismatch == 0
type txt_Calc(5) 1,2,3
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 49
expect form.sStep == 5
expect but_CalcStep(5).visible == true
expect form.vTries == 2
expect form.vWrong == 49
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(5) "0,01 mol"
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 50
expect form.sStep == 5
expect but_CalcStep(5).visible == true
expect form.vTries == 3
expect form.vWrong == 50
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(5) 1e999
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 51
expect form.sStep == 5
expect but_CalcStep(5).visible == true
expect form.vTries == 4
expect form.vWrong == 51
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(5) "1/2"
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 52
expect form.sStep == 5
expect but_CalcStep(5).visible == true
expect form.vTries == 5
expect form.vWrong == 52
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(5) -1
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 53
expect form.sStep == 5
expect but_CalcStep(5).visible == true
expect form.vTries == 6
expect form.vWrong == 53
expect form.vMismatch == 1
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(5) 1E300
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 54
expect form.sStep == 5
expect but_CalcStep(5).visible == true
expect form.vTries == 7
expect form.vWrong == 54
expect form.vMismatch == 2
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(5) 0,003
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) ""
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 55
expect form.vTries == 1
expect form.vWrong == 55
expect form.vMismatch == 2
type txt_Calc(6) 1,2,3
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 56
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect form.vTries == 2
expect form.vWrong == 56
expect form.vMismatch == 2
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(6) "0,01 mol"
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 57
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect form.vTries == 3
expect form.vWrong == 57
expect form.vMismatch == 2
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(6) 1e999
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 58
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect form.vTries == 4
expect form.vWrong == 58
expect form.vMismatch == 2
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(6) "1/2"
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 59
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect form.vTries == 5
expect form.vWrong == 59
expect form.vMismatch == 2
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(6) -1
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 60
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect form.vTries == 6
expect form.vWrong == 60
expect form.vMismatch == 3
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(6) 1E300
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 61
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect form.vTries == 7
expect form.vWrong == 61
expect form.vMismatch == 4
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(6) 0,003
key ENTER
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect but_CalcStep(7).focus == true
expect form.vTries == 0
key ENTER but_CalcStep(7)
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 62
expect form.vTries == 1
expect form.vWrong == 62
expect form.vMismatch == 4
click opt_Calc(1)
click but_CalcStep(7)
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) x
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 63
expect form.vTries == 1
expect form.vWrong == 63
expect form.vMismatch == 4
type txt_Calc(10) ""
answer yes
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 64
expect form.vDetailConc == true
expect form.sStep == 8
expect but_CalcStep(8).visible == true
expect txt_Calc(8).focus == true
expect form.vTries == 0
expect form.vWrong == 64
expect form.vMismatch == 4
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(8) ""
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 65
expect form.vTries == 1
expect form.vWrong == 65
expect form.vMismatch == 4
type txt_Calc(8) 1,2,3
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 66
expect form.sStep == 8
expect but_CalcStep(8).visible == true
expect form.vTries == 2
expect form.vWrong == 66
expect form.vMismatch == 4
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(8) "0,01 mol"
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 67
expect form.sStep == 8
expect but_CalcStep(8).visible == true
expect form.vTries == 3
expect form.vWrong == 67
expect form.vMismatch == 4
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(8) 1e999
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 68
expect form.sStep == 8
expect but_CalcStep(8).visible == true
expect form.vTries == 4
expect form.vWrong == 68
expect form.vMismatch == 4
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(8) "1/2"
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 69
expect form.sStep == 8
expect but_CalcStep(8).visible == true
expect form.vTries == 5
expect form.vWrong == 69
expect form.vMismatch == 4
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(8) -1
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 70
expect form.sStep == 8
expect but_CalcStep(8).visible == true
expect form.vTries == 6
expect form.vWrong == 70
expect form.vMismatch == 5
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(8) 1E300
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 71
expect form.sStep == 8
expect but_CalcStep(8).visible == true
expect form.vTries == 7
expect form.vWrong == 71
expect form.vMismatch == 6
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(8) 0,005
key ENTER
expect form.sStep == 9
expect but_CalcStep(9).visible == true
expect txt_Calc(9).focus == true
expect form.vTries == 0
type txt_Calc(9) ""
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 72
expect form.vTries == 1
expect form.vWrong == 72
expect form.vMismatch == 6
type txt_Calc(9) 1,2,3
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 73
expect form.sStep == 9
expect but_CalcStep(9).visible == true
expect form.vTries == 2
expect form.vWrong == 73
expect form.vMismatch == 6
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(9) "0,01 mol"
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 74
expect form.sStep == 9
expect but_CalcStep(9).visible == true
expect form.vTries == 3
expect form.vWrong == 74
expect form.vMismatch == 6
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(9) 1e999
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 75
expect form.sStep == 9
expect but_CalcStep(9).visible == true
expect form.vTries == 4
expect form.vWrong == 75
expect form.vMismatch == 6
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(9) "1/2"
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 76
expect form.sStep == 9
expect but_CalcStep(9).visible == true
expect form.vTries == 5
expect form.vWrong == 76
expect form.vMismatch == 6
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(9) -1
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 77
expect form.sStep == 9
expect but_CalcStep(9).visible == true
expect form.vTries == 6
expect form.vWrong == 77
expect form.vMismatch == 7
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(9) 1E300
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 78
expect form.sStep == 9
expect but_CalcStep(9).visible == true
expect form.vTries == 7
expect form.vWrong == 78
expect form.vMismatch == 8
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(9) 0,013
key ENTER
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) ""
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 79
expect form.vTries == 1
expect form.vWrong == 79
expect form.vMismatch == 8
type txt_Calc(10) 1,2,3
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 80
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect form.vTries == 0
expect form.vWrong == 80
expect form.vMismatch == 8
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(10) "0,01 mol"
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 81
expect form.vTries == 1
expect form.vWrong == 81
expect form.vMismatch == 8
type txt_Calc(10) 1e999
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 82
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect form.vTries == 0
expect form.vWrong == 82
expect form.vMismatch == 8
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(10) "1/2"
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 83
expect form.vTries == 1
expect form.vWrong == 83
expect form.vMismatch == 8
type txt_Calc(10) -1
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 84
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect form.vTries == 0
expect form.vWrong == 84
expect form.vMismatch == 9
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(10) 1E300
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 85
expect form.vTries == 1
expect form.vWrong == 85
expect form.vMismatch == 10
type txt_Calc(10) 0,385
key ENTER
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
type txt_Calc(11) ""
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 86
expect form.vTries == 1
expect form.vWrong == 86
expect form.vMismatch == 10
type txt_Calc(11) 1,2,3
answer no
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 87
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect form.vTries == 0
expect form.vWrong == 87
expect form.vMismatch == 10
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(11) "0,01 mol"
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 88
expect form.vTries == 1
expect form.vWrong == 88
expect form.vMismatch == 10
type txt_Calc(11) 1e999
answer no
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 89
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect form.vTries == 0
expect form.vWrong == 89
expect form.vMismatch == 10
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(11) "1/2"
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 90
expect form.vTries == 1
expect form.vWrong == 90
expect form.vMismatch == 10
type txt_Calc(11) -1
answer no
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 91
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect form.vTries == 0
expect form.vWrong == 91
expect form.vMismatch == 11
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(11) 1E300
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 92
expect form.vTries == 1
expect form.vWrong == 92
expect form.vMismatch == 12
type txt_Calc(11) 5,187*10^-10
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) ""
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 93
expect form.vTries == 1
expect form.vWrong == 93
expect form.vMismatch == 12
type txt_Calc(12) 1,2,3
answer no
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 94
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect form.vTries == 0
expect form.vWrong == 94
expect form.vMismatch == 12
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(12) "0,01 mol"
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 95
expect form.vTries == 1
expect form.vWrong == 95
expect form.vMismatch == 12
type txt_Calc(12) 1e999
answer no
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 96
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect form.vTries == 0
expect form.vWrong == 96
expect form.vMismatch == 12
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(12) "1/2"
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 97
expect form.vTries == 1
expect form.vWrong == 97
expect form.vMismatch == 12
type txt_Calc(12) -1
answer no
answer no
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect nobox
expect Lab_Vallmista.text == 98
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect form.vTries == 0
expect form.vWrong == 98
expect form.vMismatch == 13
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(12) 1E300
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 99
expect form.vTries == 1
expect form.vWrong == 99
expect form.vMismatch == 14
type txt_Calc(12) 0,252
key ENTER
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 99
expect series(1).count == 1
expect series(1).x(1) == 3
expect series(1).y(1) ~= 0.25218342753027834 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 1
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.Lab_Vallmista.text == 99
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 3
expect lab_pH.text == "0,25 V"
expect nobox
expect noreport
menu mnu_FileQuit
expect ended
