# Weak acid: the sample's amount is kept over several points until the learner lets it go.
name Mia
start
choose SSTab1 3
choose lst_Mol 0.8
check opt_NeedCalc off
click ctl_Button4
expect form frm_AppMainWeak
expect nobox
expect session.SessionConcentration == 0.8
expect session.SessionDemo == false
expect session.SessionRequiredPoints == ""
click ctl_Button1
settle
expect form.vVol == 10
click ctl_Button3
settle
click ctl_Button3
settle
# 2 mL
click but_Calc
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect ctl_Button2.visible == false
expect ctl_Button3.visible == false
expect but_Calc.visible == false
expect but_Help.visible == false
expect but_phCompare.visible == false
expect form.sStep == 3
expect form.vStepReached(3) == true
expect but_CalcStep(3).visible == true
expect but_CalcStep(4).visible == false
expect lab_CalcStep(0).visible == true
expect lab_CalcStep(0).text == "1. Stoffmenge vorgelegte  Säure"
expect lab_Calc(6).visible == true
expect lab_Calc(6).term == "nµV(HAc) ="
expect lab_Calc(7).visible == true
expect lab_Calc(7).term == "mol"
expect lab_Calc(0).visible == false
expect lab_Calc(1).visible == false
expect lab_Calc(3).visible == false
expect lab_Calc(5).visible == false
expect lab_Calc(19).visible == false
expect txt_Calc(1).visible == false
expect txt_Calc(2).visible == false
expect txt_Calc(3).visible == true
expect txt_Calc(3).focus == true
expect txt_Calc(1).text == ""
expect txt_Calc(2).text == ""
expect txt_Calc(3).text == ""
expect txt_Calc(4).text == ""
expect txt_Calc(5).text == ""
expect txt_Calc(6).text == ""
expect txt_Calc(8).text == ""
expect txt_Calc(9).text == ""
expect txt_Calc(10).text == ""
expect txt_Calc(11).text == ""
expect txt_Calc(12).text == ""
expect opt_Calc(0).checked == false
expect opt_Calc(1).checked == false
expect opt_Calc(2).checked == false
expect opt_Calc(3).checked == false
type txt_Calc(3) 0,008
key ENTER
expect form.sStep == 6
expect form.vStepReached(6) == true
expect but_CalcStep(3).visible == false
expect but_CalcStep(6).visible == true
expect but_CalcStep(7).visible == false
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "2. Stoffmenge der zugetropften Base"
expect lab_Calc(9).visible == true
expect lab_Calc(9).term == "nµZ(OH) ="
expect lab_Calc(8).visible == true
expect lab_Calc(8).term == "mol"
expect lab_Calc(10).visible == false
expect txt_Calc(4).visible == false
expect txt_Calc(5).visible == false
expect txt_Calc(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,002
key ENTER
expect form.sStep == 7
expect form.vStepReached(7) == true
expect but_CalcStep(6).visible == false
expect but_CalcStep(7).visible == true
expect but_CalcStep(8).visible == false
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "3. Welcher Fall liegt vor - ist für den pH entscheidend?"
expect opt_Calc(0).visible == true
expect opt_Calc(0).text == "(Fast) nur HAc"
expect lab_optCalc(0).visible == false
expect opt_Calc(1).visible == true
expect opt_Calc(1).text == "HAc neben Ac-"
expect lab_optCalc(1).visible == false
expect opt_Calc(2).visible == true
expect opt_Calc(2).text == "(Fast) nur Ac-"
expect lab_optCalc(2).visible == false
expect opt_Calc(3).visible == true
expect opt_Calc(3).text == "Wichtig nur OH- "
expect lab_optCalc(3).visible == false
expect opt_CalcStore.visible == true
expect but_CalcStep(7).focus == true
expect form.vTries == 0
expect opt_CalcStore.checked == false
check opt_CalcStore on
click opt_Calc(1)
click but_CalcStep(7)
expect form.sStep == 10
expect form.vStepReached(10) == true
expect but_CalcStep(7).visible == false
expect but_CalcStep(10).visible == true
expect but_CalcStep(11).visible == false
expect but_CalcPH(10).visible == true
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "4. HAc und Ac- liegen nebeneinander vor"
expect lab_Calc(22).visible == true
expect lab_Calc(22).term == "n(HAc)/n(Ac-) ="
expect lab_Calc(19).visible == false
expect txt_Calc(8).visible == false
expect txt_Calc(9).visible == false
expect txt_Calc(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 3,000
key ENTER
expect form.sStep == 12
expect form.vStepReached(12) == true
expect but_CalcStep(10).visible == false
expect but_CalcStep(12).visible == true
expect but_CalcPH(10).visible == false
expect but_CalcPH(12).visible == true
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "5. pH-Wert berechnen"
expect lab_Calc(23).visible == true
expect lab_Calc(23).term == "pH ="
expect lab_Calc(27).visible == false
expect txt_Calc(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 4,28
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 0
expect series(1).count == 1
expect series(1).x(1) == 2
expect series(1).y(1) ~= 4.282878745280337 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 1
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 2
expect lab_pH.text == 4,28
expect ctl_Button3.visible == true
expect but_Help.visible == true
expect but_phCompare.visible == true
expect but_Calc.visible == false
expect ctl_Button2.visible == false
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
# 5 mL
click but_Calc
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect txt_Calc(4).text == ""
expect txt_Calc(5).text == ""
expect txt_Calc(6).text == ""
expect txt_Calc(8).text == ""
expect txt_Calc(9).text == ""
expect txt_Calc(10).text == ""
expect txt_Calc(11).text == ""
expect txt_Calc(12).text == ""
expect txt_Calc(3).text == 0,008
expect form.sStep == 6
expect txt_Calc(3).visible == true
expect txt_Calc(6).focus == true
type txt_Calc(6) 0,005
key ENTER
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect but_CalcStep(7).focus == true
expect form.vTries == 0
expect opt_CalcStore.checked == true
click opt_Calc(1)
click but_CalcStep(7)
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 0,600
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 4,98
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 0
expect series(1).count == 2
expect series(1).x(2) == 5
expect series(1).y(2) ~= 4.981848749616356 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 2
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 5
expect lab_pH.text == 4,98
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
# 8 mL
click but_Calc
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect txt_Calc(4).text == ""
expect txt_Calc(5).text == ""
expect txt_Calc(6).text == ""
expect txt_Calc(8).text == ""
expect txt_Calc(9).text == ""
expect txt_Calc(10).text == ""
expect txt_Calc(11).text == ""
expect txt_Calc(12).text == ""
expect txt_Calc(3).text == 0,008
expect form.sStep == 6
expect txt_Calc(3).visible == true
expect txt_Calc(6).focus == true
type txt_Calc(6) 0,008
key ENTER
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect but_CalcStep(7).focus == true
expect form.vTries == 0
expect opt_CalcStore.checked == true
click opt_Calc(2)
click but_CalcStep(7)
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 0,444
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 9,20
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 3. Punkt"
expect report progress 3 0
expect series(1).count == 3
expect series(1).x(3) == 8
expect series(1).y(3) ~= 9.203908740944318 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 3
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 8
expect lab_pH.text == 9,20
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
# 11 mL
click but_Calc
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect txt_Calc(4).text == ""
expect txt_Calc(5).text == ""
expect txt_Calc(6).text == ""
expect txt_Calc(8).text == ""
expect txt_Calc(9).text == ""
expect txt_Calc(10).text == ""
expect txt_Calc(11).text == ""
expect txt_Calc(12).text == ""
expect txt_Calc(3).text == 0,008
expect form.sStep == 6
expect txt_Calc(3).visible == true
expect txt_Calc(6).focus == true
type txt_Calc(6) 0,011
key ENTER
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect but_CalcStep(7).focus == true
expect form.vTries == 0
check opt_CalcStore off
click opt_Calc(3)
click but_CalcStep(7)
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 0,143
key ENTER
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
type txt_Calc(11) 0,85
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 13,15
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 4. Punkt"
expect report progress 4 0
expect series(1).count == 4
expect series(1).x(4) == 11
expect series(1).y(4) ~= 13.154901959985743 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 4
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 11
expect lab_pH.text == 13,15
click ctl_Button3
settle
# 12 mL
click but_Calc
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
type txt_Calc(3) 0,008
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,012
key ENTER
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect but_CalcStep(7).focus == true
expect form.vTries == 0
expect opt_CalcStore.checked == false
click opt_Calc(3)
click but_CalcStep(7)
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 0,182
key ENTER
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
type txt_Calc(11) 0,74
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 13,26
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 5. Punkt"
expect report progress 5 0
expect series(1).count == 5
expect series(1).x(5) == 12
expect series(1).y(5) ~= 13.259637310505756 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 5
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 12
expect lab_pH.text == 13,26
menu mnu_FileNew
expect form frm_DialogStartup
choose SSTab1 3
choose lst_Mol 0.8
check opt_NeedCalc off
click ctl_Button4
expect form frm_AppMainWeak
expect nobox
expect session.SessionConcentration == 0.8
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
expect opt_CalcStore.checked == false
expect nobox
expect noreport
menu mnu_FileQuit
expect ended
