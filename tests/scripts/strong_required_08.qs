# Strong acid of 0.8 mol/L: all required points, each calculated alone, to the best mark.
name Mia
start
choose SSTab1 3
choose lst_Mol 0.8
click ctl_Button3
expect form frm_AppMainStrong
expect session.SessionConcentration == 0.8
expect session.SessionRequiredPoints == "0,1,4,7,8,9,16"
click ctl_Button1
settle
expect form.vVol == 10
expect beaker.countsort(8) == 8
expect beaker.countsort(3) == 8
# 0 mL
click but_Calc
type txt_Ph 0,10
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 0
expect series(1).count == 1
expect series(1).x(1) == 0
expect series(1).y(1) ~= 0.097 0.0005
click ctl_Button3
settle
expect form.vVol == 11
expect but_Calc.bordercolor == #c0ffc0
# 1 mL
click but_Calc
type txt_Ph 0,20
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 0
expect series(1).count == 2
expect series(1).x(2) == 1
expect series(1).y(2) ~= 0.196 0.0005
click ctl_Button3
settle
expect form.vVol == 12
click ctl_Button3
settle
expect form.vVol == 13
click ctl_Button3
settle
expect form.vVol == 14
expect but_Calc.bordercolor == #c0ffc0
# 4 mL
click but_Calc
type txt_Ph 0,54
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 3. Punkt"
expect report progress 3 0
expect series(1).count == 3
expect series(1).x(3) == 4
expect series(1).y(3) ~= 0.544 0.0005
click ctl_Button3
settle
expect form.vVol == 15
click ctl_Button3
settle
expect form.vVol == 16
click ctl_Button3
settle
expect form.vVol == 17
expect but_Calc.bordercolor == #c0ffc0
# 7 mL
click but_Calc
type txt_Ph 1,23
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 4. Punkt"
expect report progress 4 0
expect series(1).count == 4
expect series(1).x(4) == 7
expect series(1).y(4) ~= 1.230 0.0005
click ctl_Button3
settle
expect form.vVol == 18
expect but_Calc.bordercolor == #c0ffc0
# 8 mL
click but_Calc
type txt_Ph 7,00
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 5. Punkt"
expect report progress 5 0
expect series(1).count == 5
expect series(1).x(5) == 8
expect series(1).y(5) ~= 7.000 0.0005
click ctl_Button3
settle
expect form.vVol == 19
expect but_Calc.bordercolor == #c0ffc0
# 9 mL
click but_Calc
type txt_Ph 12,72
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 6. Punkt"
expect report progress 6 0
expect series(1).count == 6
expect series(1).x(6) == 9
expect series(1).y(6) ~= 12.721 0.0005
click ctl_Button3
settle
expect form.vVol == 20
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
expect but_Calc.bordercolor == #c0ffc0
# 16 mL
click but_Calc
type txt_Ph 13,49
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 7. Punkt"
expect report progress 7 0
expect series(1).count == 7
expect series(1).x(7) == 16
expect series(1).y(7) ~= 13.488 0.0005
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
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 8. Punkt"
expect report progress 8 0
expect series(1).count == 8
expect series(1).x(8) == 20
expect series(1).y(8) ~= 13.602 0.0005
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
