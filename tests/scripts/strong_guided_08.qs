# Guided calculation without a mistake: before, at and behind the equivalence point of 0.8 mol/L.
name Mia
start
choose SSTab1 3
choose lst_Mol 0.8
check opt_NeedCalc off
click ctl_Button3
expect form frm_AppMainStrong
click ctl_Button1
settle
click but_Calc
click but_HelpCalc
expect form.sStep == 3
expect but_CalcStep(3).visible == true
type txt_Calc(3) 0,008
key ENTER
expect but_CalcStep(6).visible == true
type txt_Calc(6) 0
key ENTER
expect but_CalcStep(7).visible == true
click opt_Calc(0)
click but_CalcStep(7)
expect but_CalcStep(10).visible == true
type txt_Calc(10) 0,8
key ENTER
expect but_CalcStep(12).visible == true
type txt_Calc(12) 0,10
key ENTER
expect sound "signal 2"
expect box info Punktberechnung *
expect form frm_DialogphCompare
click ctl_CmdBar1
expect form frm_AppMainStrong
expect form.vLastVol == 0
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
click but_HelpCalc
expect form.sStep == 3
expect but_CalcStep(3).visible == true
type txt_Calc(3) 0,008
key ENTER
expect but_CalcStep(6).visible == true
type txt_Calc(6) 0,003
key ENTER
expect but_CalcStep(7).visible == true
click opt_Calc(0)
click but_CalcStep(7)
expect but_CalcStep(10).visible == true
type txt_Calc(10) 0,385
key ENTER
expect but_CalcStep(12).visible == true
type txt_Calc(12) 0,41
key ENTER
expect sound "signal 2"
expect box info Punktberechnung *
expect form frm_DialogphCompare
click ctl_CmdBar1
expect form frm_AppMainStrong
expect form.vLastVol == 3
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
expect form.sStep == 3
expect but_CalcStep(3).visible == true
type txt_Calc(3) 0,008
key ENTER
expect but_CalcStep(6).visible == true
type txt_Calc(6) 0,008
key ENTER
expect but_CalcStep(7).visible == true
click opt_Calc(2)
click but_CalcStep(7)
expect but_CalcStep(10).visible == true
type txt_Calc(10) 0
key ENTER
expect but_CalcStep(12).visible == true
type txt_Calc(12) 7
key ENTER
expect sound "signal 2"
expect box info Punktberechnung *
expect form frm_DialogphCompare
click ctl_CmdBar1
expect form frm_AppMainStrong
expect form.vLastVol == 8
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
expect form.sStep == 3
expect but_CalcStep(3).visible == true
type txt_Calc(3) 0,008
key ENTER
expect but_CalcStep(6).visible == true
type txt_Calc(6) 0,012
key ENTER
expect but_CalcStep(7).visible == true
click opt_Calc(1)
click but_CalcStep(7)
expect but_CalcStep(10).visible == true
type txt_Calc(10) 0,182
key ENTER
expect but_CalcStep(11).visible == true
type txt_Calc(11) 0,74
key ENTER
expect but_CalcStep(12).visible == true
type txt_Calc(12) 13,26
key ENTER
expect frm_AppMainStrong.lab_Calc(23).term == "pH = 14-pOH"
expect frm_AppMainStrong.lab_Calc(24).term == "pH ="
expect frm_AppMainStrong.lab_Calc(16).term == "n(OH-) = nµZ(OH) - nµV(S)"
expect sound "signal 2"
expect box info Punktberechnung *
expect form frm_DialogphCompare
click ctl_CmdBar1
expect form frm_AppMainStrong
expect form.vLastVol == 12
expect form.vPoints == 4
expect form.vWrong == 0
expect form.vSolveUsed == 0
expect series(1).y(4) ~= 13.2596 0.0001
menu mnu_FileQuit
expect ended
