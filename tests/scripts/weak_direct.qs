# Weak acid: a direct answer counts with three decimals.
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
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 4,393
answer no
key ENTER
expect sound "signal 1"
expect box yesno "" "Der von Dir errechnete pH-Wert ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect form.vMismatch == 1
expect noreport
expect form.vWrong == 1
expect txt_Ph.text == 4,393
type txt_Ph 4,391
answer no
key ENTER
expect sound "signal 1"
expect box yesno "" "Der von Dir errechnete pH-Wert ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect form.vMismatch == 2
expect noreport
expect form.vWrong == 2
expect txt_Ph.text == 4,391
type txt_Ph 4,39
answer no
key ENTER
expect sound "signal 1"
expect box yesno "" "Der von Dir errechnete pH-Wert ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect form.vMismatch == 3
expect noreport
expect form.vWrong == 3
expect txt_Ph.text == 4,39
type txt_Ph -4,392
answer no
key ENTER
expect sound "signal 1"
expect box yesno "" "Der von Dir errechnete pH-Wert ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect form.vMismatch == 4
expect noreport
expect form.vWrong == 4
expect txt_Ph.text == -4,392
type txt_Ph 4,3926
answer no
key ENTER
expect sound "signal 1"
expect box yesno "" "Der von Dir errechnete pH-Wert ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect form.vMismatch == 5
expect noreport
expect form.vWrong == 5
expect txt_Ph.text == 4,3926
type txt_Ph 4,3924
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 5
expect series(1).count == 1
expect series(1).x(1) == 3
expect series(1).y(1) ~= 4.392 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 1
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.Lab_Vallmista.text == 5
expect frm_AppMainWeak.lab_pH.text == 4,392
click ctl_Button3
settle
click but_Calc
type txt_Ph 4,585
answer no
key ENTER
expect sound "signal 1"
expect box yesno "" "Der von Dir errechnete pH-Wert ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect form.vMismatch == 6
expect noreport
expect form.vWrong == 6
expect txt_Ph.text == 4,585
type txt_Ph 4,583
answer no
key ENTER
expect sound "signal 1"
expect box yesno "" "Der von Dir errechnete pH-Wert ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect form.vMismatch == 7
expect noreport
expect form.vWrong == 7
expect txt_Ph.text == 4,583
type txt_Ph 4,58
answer no
key ENTER
expect sound "signal 1"
expect box yesno "" "Der von Dir errechnete pH-Wert ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect form.vMismatch == 8
expect noreport
expect form.vWrong == 8
expect txt_Ph.text == 4,58
type txt_Ph -4,584
answer no
key ENTER
expect sound "signal 1"
expect box yesno "" "Der von Dir errechnete pH-Wert ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect form.vMismatch == 9
expect noreport
expect form.vWrong == 9
expect txt_Ph.text == -4,584
type txt_Ph 4,5846
answer no
key ENTER
expect sound "signal 1"
expect box yesno "" "Der von Dir errechnete pH-Wert ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect form.vMismatch == 10
expect noreport
expect form.vWrong == 10
expect txt_Ph.text == 4,5846
type txt_Ph 4.5836
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 10
expect series(1).count == 2
expect series(1).x(2) == 4
expect series(1).y(2) ~= 4.584 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 2
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.Lab_Vallmista.text == 10
expect frm_AppMainWeak.lab_pH.text == 4,584
expect nobox
expect noreport
menu mnu_FileQuit
expect ended
