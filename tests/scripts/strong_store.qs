# The amount of the acid is kept for the next point.
name Mia
start
choose SSTab1 3
choose lst_Mol 1.4
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
click but_Calc
click but_HelpCalc
type txt_Calc(3) 0,014
key ENTER
type txt_Calc(6) 0,007
check opt_CalcStore(3) on
key ENTER
click opt_Calc(0)
click but_CalcStep(7)
type txt_Calc(10) 0,412
key ENTER
type txt_Calc(12) 0,39
key ENTER
click frm_DialogphCompare.ctl_CmdBar1
click ctl_Button3
settle
click but_Calc
click but_HelpCalc
expect form.sStep == 6
expect txt_Calc(3).text == "0,014"
expect txt_Calc(6).text == ""
expect txt_Calc(6).focus == true
menu mnu_FileQuit
expect ended
