# Chloride with silver: a direct answer counts with two decimals.
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
click but_Calc
type txt_Ph 0,75
answer no
key ENTER
expect sound "signal 1"
expect box yesno "" "Das von Dir errechnete Potential ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect form.vMismatch == 1
expect noreport
expect form.vWrong == 1
expect txt_Ph.text == 0,75
type txt_Ph 0,73
answer no
key ENTER
expect sound "signal 1"
expect box yesno "" "Das von Dir errechnete Potential ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect form.vMismatch == 2
expect noreport
expect form.vWrong == 2
expect txt_Ph.text == 0,73
type txt_Ph 0,7
answer no
key ENTER
expect sound "signal 1"
expect box yesno "" "Das von Dir errechnete Potential ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect form.vMismatch == 3
expect noreport
expect form.vWrong == 3
expect txt_Ph.text == 0,7
type txt_Ph -0,74
answer no
key ENTER
expect sound "signal 1"
expect box yesno "" "Das von Dir errechnete Potential ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect form.vMismatch == 4
expect noreport
expect form.vWrong == 4
expect txt_Ph.text == -0,74
type txt_Ph 0,746
answer no
key ENTER
expect sound "signal 1"
expect box yesno "" "Das von Dir errechnete Potential ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect form.vMismatch == 5
expect noreport
expect form.vWrong == 5
expect txt_Ph.text == 0,746
type txt_Ph 0,744
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 5
expect series(1).count == 1
expect series(1).x(1) == 12
expect series(1).y(1) ~= 0.74 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 1
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.Lab_Vallmista.text == 5
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
click but_Calc
type txt_Ph 0,76
answer no
key ENTER
expect sound "signal 1"
expect box yesno "" "Das von Dir errechnete Potential ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect form.vMismatch == 6
expect noreport
expect form.vWrong == 6
expect txt_Ph.text == 0,76
type txt_Ph 0,74
answer no
key ENTER
expect sound "signal 1"
expect box yesno "" "Das von Dir errechnete Potential ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect form.vMismatch == 7
expect noreport
expect form.vWrong == 7
expect txt_Ph.text == 0,74
type txt_Ph 0,8
answer no
key ENTER
expect sound "signal 1"
expect box yesno "" "Das von Dir errechnete Potential ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect form.vMismatch == 8
expect noreport
expect form.vWrong == 8
expect txt_Ph.text == 0,8
type txt_Ph -0,75
answer no
key ENTER
expect sound "signal 1"
expect box yesno "" "Das von Dir errechnete Potential ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect form.vMismatch == 9
expect noreport
expect form.vWrong == 9
expect txt_Ph.text == -0,75
type txt_Ph 0,756
answer no
key ENTER
expect sound "signal 1"
expect box yesno "" "Das von Dir errechnete Potential ist leider falsch! Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
expect form.vMismatch == 10
expect noreport
expect form.vWrong == 10
expect txt_Ph.text == 0,756
type txt_Ph 0.746
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 10
expect series(1).count == 2
expect series(1).x(2) == 13
expect series(1).y(2) ~= 0.75 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 2
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.Lab_Vallmista.text == 10
expect frm_AppMainSilver.lab_pH.text == ?
expect nobox
expect noreport
menu mnu_FileQuit
expect ended
