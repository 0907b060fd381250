# Weak acid: a point calculated at a volume that nobody asked for opens nothing.
name Mia
start
choose SSTab1 3
choose lst_Mol 0.6
click ctl_Button4
expect form frm_AppMainWeak
expect nobox
expect session.SessionConcentration == 0.6
expect session.SessionDemo == false
expect session.SessionRequiredPoints == 0,1,3,5,6,7,12
click ctl_Button1
settle
expect form.vVol == 10
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 2,491
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 0
expect series(1).count == 1
expect series(1).x(1) == 0
expect series(1).y(1) ~= 2.491 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 1
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 2,491
click ctl_Button3
settle
expect form.vVol == 11
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 4,061
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 0
expect series(1).count == 2
expect series(1).x(2) == 1
expect series(1).y(2) ~= 4.061 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 2
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 4,061
click ctl_Button3
settle
expect form.vVol == 12
expect but_Calc.bordercolor != #c0ffc0
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 4,459
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 3. Punkt"
expect report progress 3 0
expect series(1).count == 3
expect series(1).x(3) == 2
expect series(1).y(3) ~= 4.459 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 3
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 4,459
click ctl_Button3
settle
expect form.vVol == 13
expect but_Calc.bordercolor == #c0ffc0
click ctl_Button3
expect box ok "" "Nach der Vorgabe soll dieser Punkt gerechnet werden!"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 4,760
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 4. Punkt"
expect report progress 4 0
expect series(1).count == 4
expect series(1).x(4) == 3
expect series(1).y(4) ~= 4.76 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 4
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 4,760
click ctl_Button3
settle
expect form.vVol == 14
click ctl_Button3
settle
expect form.vVol == 15
expect nobox
expect noreport
menu mnu_FileQuit
expect ended
