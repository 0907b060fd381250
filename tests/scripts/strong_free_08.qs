# Strong acid of 0.8 mol/L: the learner picks the points.
name Mia
start
choose SSTab1 3
choose lst_Mol 0.8
check opt_NeedCalc off
click ctl_Button3
expect form frm_AppMainStrong
expect session.SessionConcentration == 0.8
expect session.SessionRequiredPoints == ""
click ctl_Button1
settle
expect form.vVol == 10
expect beaker.countsort(8) == 8
expect beaker.countsort(3) == 8
click ctl_Button3
settle
expect form.vVol == 11
click ctl_Button3
settle
expect form.vVol == 12
# 2 mL
click but_Calc
type txt_Ph 0,30
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 0
expect series(1).count == 1
expect series(1).x(1) == 2
expect series(1).y(1) ~= 0.301 0.0005
click ctl_Button3
settle
expect form.vVol == 13
click ctl_Button3
settle
expect form.vVol == 14
click ctl_Button3
settle
expect form.vVol == 15
# 5 mL
click but_Calc
type txt_Ph 0,70
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 0
expect series(1).count == 2
expect series(1).x(2) == 5
expect series(1).y(2) ~= 0.699 0.0005
click ctl_Button3
settle
expect form.vVol == 16
click ctl_Button3
settle
expect form.vVol == 17
click ctl_Button3
settle
expect form.vVol == 18
# 8 mL
click but_Calc
type txt_Ph 7,00
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 3. Punkt"
expect report progress 3 0
expect series(1).count == 3
expect series(1).x(3) == 8
expect series(1).y(3) ~= 7.000 0.0005
click ctl_Button3
settle
expect form.vVol == 19
click ctl_Button3
settle
expect form.vVol == 20
# 10 mL
click but_Calc
type txt_Ph 13,00
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 4. Punkt"
expect report progress 4 0
expect series(1).count == 4
expect series(1).x(4) == 10
expect series(1).y(4) ~= 13.000 0.0005
click ctl_Button3
settle
expect form.vVol == 21
click ctl_Button3
settle
expect form.vVol == 22
click ctl_Button3
settle
expect form.vVol == 23
click ctl_Button3
settle
expect form.vVol == 24
click ctl_Button3
settle
expect form.vVol == 25
click ctl_Button3
settle
expect form.vVol == 26
click ctl_Button3
settle
expect form.vVol == 27
click ctl_Button3
settle
expect form.vVol == 28
click ctl_Button3
settle
expect form.vVol == 29
click ctl_Button3
settle
expect form.vVol == 30
# 20 mL
click but_Calc
type txt_Ph 13,60
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 5. Punkt"
expect report progress 5 0
expect series(1).count == 5
expect series(1).x(5) == 20
expect series(1).y(5) ~= 13.602 0.0005
expect form frm_DialogDone
expect frm_DialogDone.lab_Mark.text == "Sehr gut"
expect report result 1000 1 "Sehr gut"
expect sound result_good
click bar_Buttons
expect form frm_AppMainStrong
expect form.vTaskStep == 3
expect beaker.countsort(8) == 0
expect beaker.countsort(9) == 12
menu mnu_FileQuit
expect ended
