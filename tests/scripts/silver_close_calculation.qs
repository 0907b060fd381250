# The close box in the middle of a calculation ends the process at once.
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
click but_Calc
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
type txt_Calc(3) 0,01
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
close
expect ended
