# The popup calculator and its offered lines.
name Mia
start
choose SSTab1 3
choose lst_Mol 1.0
check opt_NeedCalc off
click ctl_Button3
expect form frm_AppMainStrong
click ctl_Button1
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
answer value 0,48
click but_CalcPH(2)
expect box calculator Rechner ""
expect presets
expect txt_Ph.text == "0,480"
click but_HelpCalc
type txt_Calc(3) 0,01
key ENTER
type txt_Calc(6) 0,005
key ENTER
click opt_Calc(0)
click but_CalcStep(7)
answer value 0,333
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets "(0,005 - 0,01)/0,015" "/" "/" "(10^-14)^0.5"
expect txt_Calc(10).text == "0,333"
answer preset 4
click but_CalcPH(10)
expect box calculator Rechner ""
expect txt_Calc(10).text == "1*10^-07"
answer cancel
click but_CalcPH(10)
expect box calculator Rechner ""
expect txt_Calc(10).text == "1*10^-07"
type txt_Calc(10) 0,333
key ENTER
answer preset 1
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets "-log(0,333333333333333)" "14 -" "-log((10^-14)^0.5)" "0,333* -log(10)"
expect txt_Calc(12).text == "0,477"
key ENTER
expect box info Punktberechnung *
close
menu mnu_FileQuit
expect ended
