# A school computer with a decimal point: curve, labels, offered lines and answers of both signs.
name Mia
locale point
start
choose SSTab1 3
choose lst_Mol 0.8
check opt_NeedCalc off
click ctl_Button3
expect nobox
expect form frm_AppMainStrong
click ctl_Button1
settle
expect lab_Vol(0).term == "0.010 L"
expect lab_Vol(1).term == "0.000 L"
expect lab_Vol(2).term == "0.8 mol/L"
expect lab_BilanzCount(0).term == "8 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(2).textcolor == #808080
expect lab_BilanzCount(4).term == "~~ 0 mmol"
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
expect lab_Vol(1).term == "0.009 L"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(1).term == "9 mmol"
expect lab_BilanzCount(3).term == "8 mmol"
expect lab_BilanzCount(4).term == "1 mmol"
expect form.vPhNow == 12.721
click but_Calc
click but_HelpCalc
type txt_Calc(3) 0.008
key ENTER
type txt_Calc(6) 0,009
key ENTER
click opt_Calc(1)
key ENTER but_CalcStep(7)
expect form.sStep == 10
expect lab_CalcStep(3).text == "4. Konzentration der Base neu berechnen"
answer cancel
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,009 - 0.008)/0.019" "/" "/" "(10^-14)^0.5"
type txt_Calc(10) 0.053
key ENTER
expect form.sStep == 11
answer preset 4
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets "14-0.0526315789473684" "0.053 - 14" "14 -0.008" "-log(0.0526315789473684)"
expect txt_Calc(11).text == "1.279"
key ENTER
expect form.sStep == 12
answer preset 2
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "-log(0.0526315789473684)" "14 -1.279" "-log((10^-14)^0.5)" "0.053* -log(10)"
expect txt_Calc(12).text == "12.721"
key ENTER
expect sound "signal 2"
expect box info Punktberechnung *
expect form frm_DialogphCompare
close
expect series(1).x(1) == 9
expect series(1).y(1) ~= 12.7212 0.0001
menu mnu_FileQuit
expect ended
