# Chloride with silver: the sample's amount is kept over several points until the learner lets it go.
name Mia
start
choose SSTab1 3
choose lst_Mol 1.2
check opt_NeedCalc off
click ctl_Button8
expect form frm_AppMainSilverStart
expect form.Accepted == false
click bar_Buttons
expect form frm_AppMainSilver
expect nobox
expect session.SessionConcentration == 1.2
expect session.SessionDemo == false
expect session.SessionRequiredPoints == ""
click ctl_Button1
settle
expect form.vVol == 10
click ctl_Button3
settle
# 1 mL
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
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "1.Vorgelegte  Stoffmenge Chlorid"
expect lab_Calc(6).visible == true
expect lab_Calc(6).term == "nµV(Cl-) ="
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
type txt_Calc(3) 0,012
key ENTER
expect form.sStep == 6
expect form.vStepReached(6) == true
expect but_CalcStep(3).visible == false
expect but_CalcStep(6).visible == true
expect but_CalcStep(7).visible == false
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "2. Zugegebene Stoffmenge der Silber-Ionen"
expect lab_Calc(9).visible == true
expect lab_Calc(9).term == "nµZ(Ag+) ="
expect lab_Calc(8).visible == true
expect lab_Calc(8).term == "mol"
expect lab_Calc(10).visible == false
expect txt_Calc(4).visible == false
expect txt_Calc(5).visible == false
expect txt_Calc(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,001
key ENTER
expect form.sStep == 7
expect form.vStepReached(7) == true
expect but_CalcStep(6).visible == false
expect but_CalcStep(7).visible == true
expect but_CalcStep(8).visible == false
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "3. Welcher Fall liegt vor? - wichtig für Potential"
expect opt_Calc(0).visible == true
expect opt_Calc(0).text == "(Fast) Nur Cl-"
expect lab_optCalc(0).visible == false
expect opt_Calc(1).visible == true
expect opt_Calc(1).text == "Mehr Cl- als Ag+"
expect lab_optCalc(1).visible == false
expect opt_Calc(2).visible == true
expect opt_Calc(2).text == "Genau gleich"
expect lab_optCalc(2).visible == false
expect opt_Calc(3).visible == true
expect opt_Calc(3).text == "Mehr Ag+ als Cl-"
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
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "4. Neue Konzentration der Chlorid-Ionen berechnen"
expect lab_Calc(22).visible == true
expect lab_Calc(22).term == "c(Cl') = "
expect lab_Calc(25).visible == true
expect lab_Calc(25).term == "mol / L"
expect lab_Calc(19).visible == false
expect txt_Calc(8).visible == false
expect txt_Calc(9).visible == false
expect txt_Calc(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 1,000
key ENTER
expect form.sStep == 11
expect form.vStepReached(11) == true
expect but_CalcStep(10).visible == false
expect but_CalcStep(11).visible == true
expect but_CalcStep(12).visible == false
expect but_CalcPH(10).visible == false
expect but_CalcPH(11).visible == true
expect lab_CalcStep(5).visible == true
expect lab_CalcStep(5).text == "5. Neue Konzentration der Silber-Ionen berechnen"
expect lab_Calc(26).visible == true
expect lab_Calc(26).term == "c(Ag+) = "
expect lab_Calc(28).visible == true
expect lab_Calc(23).visible == false
expect txt_Calc(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
type txt_Calc(11) 1,995*10^-10
key ENTER
expect form.sStep == 12
expect form.vStepReached(12) == true
expect but_CalcStep(11).visible == false
expect but_CalcStep(12).visible == true
expect but_CalcPH(11).visible == false
expect but_CalcPH(12).visible == true
expect lab_CalcStep(6).visible == true
expect lab_CalcStep(6).text == "6. Potential berechnen"
expect lab_Calc(24).visible == true
expect lab_Calc(24).term == "E = "
expect lab_Calc(29).visible == true
expect lab_Calc(27).visible == false
expect txt_Calc(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 0,228
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 0
expect series(1).count == 1
expect series(1).x(1) == 1
expect series(1).y(1) ~= 0.22770000000000012 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 1
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 1
expect lab_pH.text == "0,23 V"
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
expect txt_Calc(3).text == 0,012
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
type txt_Calc(10) 0,467
key ENTER
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
type txt_Calc(11) 4,275*10^-10
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 0,247
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 0
expect series(1).count == 2
expect series(1).x(2) == 5
expect series(1).y(2) ~= 0.24722859992344426 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 2
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 5
expect lab_pH.text == "0,25 V"
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
# 12 mL
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
expect txt_Calc(3).text == 0,012
expect form.sStep == 6
expect txt_Calc(3).visible == true
expect txt_Calc(6).focus == true
type txt_Calc(6) 0,012
key ENTER
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect but_CalcStep(7).focus == true
expect form.vTries == 0
expect opt_CalcStore.checked == true
click opt_Calc(2)
click but_CalcStep(7)
expect form.sStep == 8
expect but_CalcStep(8).visible == true
expect txt_Calc(8).focus == true
expect form.vTries == 0
type txt_Calc(8) 0,000
key ENTER
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
type txt_Calc(11) 1,412*10^-05
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 0,514
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 3. Punkt"
expect report progress 3 0
expect series(1).count == 3
expect series(1).x(3) == 12
expect series(1).y(3) ~= 0.5138500000000001 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 3
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 12
expect lab_pH.text == "0,51 V"
click ctl_Button3
settle
# 13 mL
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
expect txt_Calc(3).text == 0,012
expect form.sStep == 6
expect txt_Calc(3).visible == true
expect txt_Calc(6).focus == true
type txt_Calc(6) 0,013
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
type txt_Calc(10) 0,043
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 0,720
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 4. Punkt"
expect report progress 4 0
expect series(1).count == 4
expect series(1).x(4) == 13
expect series(1).y(4) ~= 0.719658057674962 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 4
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 13
expect lab_pH.text == "0,72 V"
click ctl_Button3
settle
# 14 mL
click but_Calc
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
type txt_Calc(3) 0,012
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,014
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
type txt_Calc(10) 0,083
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 0,736
key ENTER
expect sound "signal 2"
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 5. Punkt"
expect report progress 5 0
expect series(1).count == 5
expect series(1).x(5) == 14
expect series(1).y(5) ~= 0.7363283064831903 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 5
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 14
expect lab_pH.text == "0,74 V"
menu mnu_FileNew
expect form frm_DialogStartup
choose SSTab1 3
choose lst_Mol 1.2
check opt_NeedCalc off
click ctl_Button8
expect form frm_AppMainSilverStart
expect form.Accepted == false
click bar_Buttons
expect form frm_AppMainSilver
expect nobox
expect session.SessionConcentration == 1.2
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
