# A teacher has switched the offered lines off.
name Mia
control CALC 0
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
click but_HelpCalc
type txt_Calc(3) 0,01
key ENTER
type txt_Calc(6) 0,015
key ENTER
click opt_Calc(1)
key ENTER but_CalcStep(7)
answer value 0,2
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets
key ENTER
expect form.sStep == 11
answer value 0,698970004
click but_CalcPH(11)
expect box calculator Rechner ""
expect txt_Calc(11).text == "0,699"
key ENTER
type txt_Calc(12) 13,30
key ENTER
expect box info Punktberechnung *
close
menu mnu_FileQuit
expect ended
