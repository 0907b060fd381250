# Strong acid of 0.6 mol/L: all required points, each calculated alone, to the best mark.
name Mia
start
choose SSTab1 3
choose lst_Mol 0.6
click ctl_Button3
expect form frm_AppMainStrong
expect session.SessionConcentration == 0.6
expect session.SessionRequiredPoints == "0,1,3,5,6,7,12"
click ctl_Button1
settle
expect form.vVol == 10
expect beaker.countsort(8) == 6
expect beaker.countsort(3) == 6
# 0 mL
click but_Calc
type txt_Ph 0,22
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 0
expect series(1).count == 1
expect series(1).x(1) == 0
expect series(1).y(1) ~= 0.222 0.0005
click ctl_Button3
settle
expect form.vVol == 11
expect but_Calc.bordercolor == #c0ffc0
# 1 mL
click but_Calc
type txt_Ph 0,34
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 0
expect series(1).count == 2
expect series(1).x(2) == 1
expect series(1).y(2) ~= 0.342 0.0005
click ctl_Button3
settle
expect form.vVol == 12
click ctl_Button3
settle
expect form.vVol == 13
expect but_Calc.bordercolor == #c0ffc0
# 3 mL
click but_Calc
type txt_Ph 0,64
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 3. Punkt"
expect report progress 3 0
expect series(1).count == 3
expect series(1).x(3) == 3
expect series(1).y(3) ~= 0.637 0.0005
click ctl_Button3
settle
expect form.vVol == 14
click ctl_Button3
settle
expect form.vVol == 15
expect but_Calc.bordercolor == #c0ffc0
# 5 mL
click but_Calc
type txt_Ph 1,18
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 4. Punkt"
expect report progress 4 0
expect series(1).count == 4
expect series(1).x(4) == 5
expect series(1).y(4) ~= 1.176 0.0005
click ctl_Button3
settle
expect form.vVol == 16
expect but_Calc.bordercolor == #c0ffc0
# 6 mL
click but_Calc
type txt_Ph 7,00
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 5. Punkt"
expect report progress 5 0
expect series(1).count == 5
expect series(1).x(5) == 6
expect series(1).y(5) ~= 7.000 0.0005
click ctl_Button3
settle
expect form.vVol == 17
expect but_Calc.bordercolor == #c0ffc0
# 7 mL
click but_Calc
type txt_Ph 12,77
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 6. Punkt"
expect report progress 6 0
expect series(1).count == 6
expect series(1).x(6) == 7
expect series(1).y(6) ~= 12.770 0.0005
click ctl_Button3
settle
expect form.vVol == 18
click ctl_Button3
settle
expect form.vVol == 19
click ctl_Button3
settle
expect form.vVol == 20
click ctl_Button3
settle
expect form.vVol == 21
click ctl_Button3
settle
expect form.vVol == 22
expect but_Calc.bordercolor == #c0ffc0
# 12 mL
click but_Calc
type txt_Ph 13,44
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 7. Punkt"
expect report progress 7 0
expect series(1).count == 7
expect series(1).x(7) == 12
expect series(1).y(7) ~= 13.436 0.0005
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
type txt_Ph 13,67
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 8. Punkt"
expect report progress 8 0
expect series(1).count == 8
expect series(1).x(8) == 20
expect series(1).y(8) ~= 13.669 0.0005
expect form frm_DialogDone
expect frm_DialogDone.lab_Mark.text == "Sehr gut"
expect report result 1000 1 "Sehr gut"
expect sound result_good
click bar_Buttons
expect form frm_AppMainStrong
expect form.vTaskStep == 3
expect beaker.countsort(8) == 0
expect beaker.countsort(9) == 14
menu mnu_FileQuit
expect ended
