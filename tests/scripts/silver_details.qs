# Chloride with silver of 0.6 mol/L with all details opened: each answer typed, in every case, as learners write numbers.
name Mia
start
choose SSTab1 3
choose lst_Mol 0.6
check opt_NeedCalc off
click ctl_Button8
expect form frm_AppMainSilverStart
expect form.Accepted == false
click bar_Buttons
expect form frm_AppMainSilver
expect nobox
expect session.SessionConcentration == 0.6
expect session.SessionDemo == false
expect session.SessionRequiredPoints == ""
click ctl_Button1
settle
expect form.vVol == 10
expect beaker.countsort(3) == 6
expect beaker.countsort(5) == 6
expect beaker.count == 12
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
type txt_Calc(3) 0,00601
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 1
expect form.vTries == 1
expect form.vWrong == 1
expect form.vMismatch == 0
type txt_Calc(3) 0,00601
answer yes
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 2
expect form.vDetailAcid == true
expect form.sStep == 1
expect form.vStepReached(1) == true
expect but_CalcStep(1).visible == true
expect but_CalcStep(2).visible == false
expect but_CalcStep(3).visible == false
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "1.Vorgelegte  Stoffmenge Chlorid"
expect lab_Calc(0).visible == true
expect lab_Calc(0).term == "nµV(Cl-) = cµV(Cl-) * VµV(Cl-)"
expect lab_Calc(1).visible == true
expect lab_Calc(1).term == "cµV(Cl-) ="
expect lab_Calc(2).visible == true
expect lab_Calc(2).term == "mol / L"
expect txt_Calc(1).visible == true
expect txt_Calc(1).focus == true
expect form.vTries == 0
expect form.vWrong == 2
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(1) 0.6
click but_CalcStep(1)
expect form.sStep == 2
expect form.vStepReached(2) == true
expect but_CalcStep(1).visible == false
expect but_CalcStep(2).visible == true
expect but_CalcStep(3).visible == false
expect lab_Calc(3).visible == true
expect lab_Calc(3).term == "VµV(Cl-) ="
expect lab_Calc(4).visible == true
expect txt_Calc(2).visible == true
expect txt_Calc(2).focus == true
expect form.vTries == 0
type txt_Calc(2) 10*10^-03
click but_CalcStep(2)
expect form.sStep == 3
expect form.vStepReached(3) == true
expect but_CalcStep(2).visible == false
expect but_CalcStep(3).visible == true
expect but_CalcStep(4).visible == false
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "1.Vorgelegte  Stoffmenge Chlorid"
expect lab_Calc(6).visible == true
expect lab_Calc(6).term == "nµV(Cl-) ="
expect lab_Calc(7).visible == true
expect lab_Calc(7).term == "mol"
expect lab_Calc(5).visible == true
expect lab_Calc(5).term == "nµV(Cl-) = 0.6 * 10*10^-03"
expect txt_Calc(3).visible == true
expect txt_Calc(3).focus == true
expect form.vTries == 0
type txt_Calc(3) 0,00600
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
type txt_Calc(6) 0,00201
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 3
expect form.vTries == 1
expect form.vWrong == 3
expect form.vMismatch == 1
type txt_Calc(6) 0,00201
answer yes
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 4
expect form.vDetailBase == true
expect form.sStep == 4
expect form.vStepReached(4) == true
expect but_CalcStep(4).visible == true
expect but_CalcStep(5).visible == false
expect but_CalcStep(6).visible == false
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "2. Zugegebene Stoffmenge der Silber-Ionen"
expect lab_Calc(15).visible == true
expect lab_Calc(15).term == "nµZ(Ag+) = cµZ(Ag+) * VµZ(Ag+)"
expect lab_Calc(14).visible == true
expect lab_Calc(14).term == "cµZ(Ag+) ="
expect lab_Calc(13).visible == true
expect lab_Calc(13).term == "mol / L"
expect txt_Calc(4).visible == true
expect txt_Calc(4).focus == true
expect form.vTries == 0
expect form.vWrong == 4
expect form.vMismatch == 2
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(4) 1
click but_CalcStep(4)
expect form.sStep == 5
expect form.vStepReached(5) == true
expect but_CalcStep(4).visible == false
expect but_CalcStep(5).visible == true
expect but_CalcStep(6).visible == false
expect lab_Calc(12).visible == true
expect lab_Calc(12).term == "VµZ(Ag+) ="
expect lab_Calc(11).visible == true
expect txt_Calc(5).visible == true
expect txt_Calc(5).focus == true
expect form.vTries == 0
type txt_Calc(5) 0.002
click but_CalcStep(5)
expect form.sStep == 6
expect form.vStepReached(6) == true
expect but_CalcStep(5).visible == false
expect but_CalcStep(6).visible == true
expect but_CalcStep(7).visible == false
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "2. Zugegebene Stoffmenge der Silber-Ionen"
expect lab_Calc(9).visible == true
expect lab_Calc(9).term == "nµZ(Ag+) ="
expect lab_Calc(8).visible == true
expect lab_Calc(8).term == "mol"
expect lab_Calc(10).visible == true
expect lab_Calc(10).term == "nµZ(Ag+) = 1 * 0.002"
expect txt_Calc(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 2*10^-03
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
expect lab_optCalc(0).visible == true
expect lab_optCalc(0).term == "nµZ(Ag+) = 0"
expect opt_Calc(1).visible == true
expect opt_Calc(1).text == "Mehr Cl- als Ag+"
expect lab_optCalc(1).visible == true
expect lab_optCalc(1).term == "0 < nµZ(Ag+) < nµV(Cl-)"
expect opt_Calc(2).visible == true
expect opt_Calc(2).text == "Genau gleich"
expect lab_optCalc(2).visible == true
expect lab_optCalc(2).term == "nµZ(Ag+) = nµV(Cl-)"
expect opt_Calc(3).visible == true
expect opt_Calc(3).text == "Mehr Ag+ als Cl-"
expect lab_optCalc(3).visible == true
expect lab_optCalc(3).term == "nµZ(Ag+) > nµV(Cl-)"
expect opt_CalcStore.visible == true
expect but_CalcStep(7).focus == true
expect form.vTries == 0
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
type txt_Calc(10) 0,334
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 5
expect form.vTries == 1
expect form.vWrong == 5
expect form.vMismatch == 3
type txt_Calc(10) 0,334
answer yes
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 6
expect form.vDetailConc == true
expect form.sStep == 8
expect form.vStepReached(8) == true
expect but_CalcStep(8).visible == true
expect but_CalcStep(9).visible == false
expect but_CalcStep(10).visible == false
expect but_CalcPH(8).visible == true
expect but_CalcPH(10).visible == false
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "4. Neue Konzentration der Chlorid-Ionen berechnen"
expect lab_Calc(16).visible == true
expect lab_Calc(16).term == "n(Cl')=nµV(Cl-)-nµZ(Ag+)"
expect lab_Calc(17).visible == true
expect lab_Calc(17).term == "n(Cl')="
expect lab_Calc(18).visible == true
expect lab_Calc(18).term == "mol"
expect txt_Calc(8).visible == true
expect txt_Calc(8).focus == true
expect form.vTries == 0
expect form.vWrong == 6
expect form.vMismatch == 4
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(8) 0,00400
click but_CalcStep(8)
expect form.sStep == 9
expect form.vStepReached(9) == true
expect but_CalcStep(8).visible == false
expect but_CalcStep(9).visible == true
expect but_CalcStep(10).visible == false
expect but_CalcPH(8).visible == false
expect but_CalcPH(9).visible == true
expect lab_Calc(20).visible == true
expect lab_Calc(20).term == "VGes="
expect lab_Calc(21).visible == true
expect txt_Calc(9).visible == true
expect txt_Calc(9).focus == true
expect form.vTries == 0
type txt_Calc(9) 0,012
click but_CalcStep(9)
expect form.sStep == 10
expect form.vStepReached(10) == true
expect but_CalcStep(9).visible == false
expect but_CalcStep(10).visible == true
expect but_CalcStep(11).visible == false
expect but_CalcPH(9).visible == false
expect but_CalcPH(10).visible == true
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "4. Neue Konzentration der Chlorid-Ionen berechnen"
expect lab_Calc(22).visible == true
expect lab_Calc(22).term == "c(Cl') = "
expect lab_Calc(25).visible == true
expect lab_Calc(25).term == "mol / L"
expect lab_Calc(19).visible == true
expect lab_Calc(19).term == "c(Cl') = (n(Cl'))/(VGes))"
expect txt_Calc(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 0.333
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
type txt_Calc(11) 0,001
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 7
expect form.vTries == 1
expect form.vWrong == 7
expect form.vMismatch == 5
type txt_Calc(11) 0,001
answer yes
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 8
expect form.vDetailSilver == true
expect form.sStep == 11
expect form.vStepReached(11) == true
expect but_CalcStep(11).visible == true
expect but_CalcStep(12).visible == false
expect but_CalcPH(11).visible == true
expect lab_CalcStep(5).visible == true
expect lab_CalcStep(5).text == "5. Neue Konzentration der Silber-Ionen berechnen"
expect lab_Calc(26).visible == true
expect lab_Calc(26).term == "c(Ag+) = "
expect lab_Calc(28).visible == true
expect lab_Calc(23).visible == true
expect lab_Calc(23).term == "c(Ag+) = KµL / c(Cl')"
expect txt_Calc(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
expect form.vWrong == 8
expect form.vMismatch == 6
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(11) 5.985*10^-10
click but_CalcStep(11)
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
type txt_Calc(12) 0,257
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 9
expect form.vTries == 1
expect form.vWrong == 9
expect form.vMismatch == 7
type txt_Calc(12) 0,257
answer yes
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 10
expect form.vDetailFinal == true
expect form.sStep == 12
expect form.vStepReached(12) == true
expect but_CalcStep(12).visible == true
expect but_CalcPH(12).visible == true
expect lab_CalcStep(6).visible == true
expect lab_CalcStep(6).text == "6. Potential berechnen"
expect lab_Calc(24).visible == true
expect lab_Calc(24).term == "E = "
expect lab_Calc(29).visible == true
expect lab_Calc(27).visible == true
expect lab_Calc(27).term == "E = 0.8V - 0.059V * log(1 / (c(Ag+)))"
expect txt_Calc(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
expect form.vWrong == 10
expect form.vMismatch == 8
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(12) 0,255850154
click but_CalcStep(12)
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 10
expect series(1).count == 1
expect series(1).x(1) == 2
expect series(1).y(1) ~= 0.25585015402846023 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 1
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.Lab_Vallmista.text == 10
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 2
expect lab_pH.text == "0,26 V"
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
# 6 mL
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
type txt_Calc(3) 0,00601
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 11
expect form.vTries == 1
expect form.vWrong == 11
expect form.vMismatch == 0
type txt_Calc(3) 0,00601
answer yes
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 12
expect form.vDetailAcid == true
expect form.sStep == 1
expect form.vStepReached(1) == true
expect but_CalcStep(1).visible == true
expect but_CalcStep(2).visible == false
expect but_CalcStep(3).visible == false
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "1.Vorgelegte  Stoffmenge Chlorid"
expect lab_Calc(0).visible == true
expect lab_Calc(0).term == "nµV(Cl-) = cµV(Cl-) * VµV(Cl-)"
expect lab_Calc(1).visible == true
expect lab_Calc(1).term == "cµV(Cl-) ="
expect lab_Calc(2).visible == true
expect lab_Calc(2).term == "mol / L"
expect txt_Calc(1).visible == true
expect txt_Calc(1).focus == true
expect form.vTries == 0
expect form.vWrong == 12
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(1) 0,6
key ENTER
expect form.sStep == 2
expect form.vStepReached(2) == true
expect but_CalcStep(1).visible == false
expect but_CalcStep(2).visible == true
expect but_CalcStep(3).visible == false
expect lab_Calc(3).visible == true
expect lab_Calc(3).term == "VµV(Cl-) ="
expect lab_Calc(4).visible == true
expect txt_Calc(2).visible == true
expect txt_Calc(2).focus == true
expect form.vTries == 0
type txt_Calc(2) 0.01
click but_CalcStep(2)
expect form.sStep == 3
expect form.vStepReached(3) == true
expect but_CalcStep(2).visible == false
expect but_CalcStep(3).visible == true
expect but_CalcStep(4).visible == false
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "1.Vorgelegte  Stoffmenge Chlorid"
expect lab_Calc(6).visible == true
expect lab_Calc(6).term == "nµV(Cl-) ="
expect lab_Calc(7).visible == true
expect lab_Calc(7).term == "mol"
expect lab_Calc(5).visible == true
expect lab_Calc(5).term == "nµV(Cl-) = 0,6 * 0.01"
expect txt_Calc(3).visible == true
expect txt_Calc(3).focus == true
expect form.vTries == 0
type txt_Calc(3) 6*10^-03
click but_CalcStep(3)
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
type txt_Calc(6) 0,00601
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 13
expect form.vTries == 1
expect form.vWrong == 13
expect form.vMismatch == 1
type txt_Calc(6) 0,00601
answer yes
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 14
expect form.vDetailBase == true
expect form.sStep == 4
expect form.vStepReached(4) == true
expect but_CalcStep(4).visible == true
expect but_CalcStep(5).visible == false
expect but_CalcStep(6).visible == false
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "2. Zugegebene Stoffmenge der Silber-Ionen"
expect lab_Calc(15).visible == true
expect lab_Calc(15).term == "nµZ(Ag+) = cµZ(Ag+) * VµZ(Ag+)"
expect lab_Calc(14).visible == true
expect lab_Calc(14).term == "cµZ(Ag+) ="
expect lab_Calc(13).visible == true
expect lab_Calc(13).term == "mol / L"
expect txt_Calc(4).visible == true
expect txt_Calc(4).focus == true
expect form.vTries == 0
expect form.vWrong == 14
expect form.vMismatch == 2
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(4) 1,00
key ENTER
expect form.sStep == 5
expect form.vStepReached(5) == true
expect but_CalcStep(4).visible == false
expect but_CalcStep(5).visible == true
expect but_CalcStep(6).visible == false
expect lab_Calc(12).visible == true
expect lab_Calc(12).term == "VµZ(Ag+) ="
expect lab_Calc(11).visible == true
expect txt_Calc(5).visible == true
expect txt_Calc(5).focus == true
expect form.vTries == 0
type txt_Calc(5) 0,006
click but_CalcStep(5)
expect form.sStep == 6
expect form.vStepReached(6) == true
expect but_CalcStep(5).visible == false
expect but_CalcStep(6).visible == true
expect but_CalcStep(7).visible == false
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "2. Zugegebene Stoffmenge der Silber-Ionen"
expect lab_Calc(9).visible == true
expect lab_Calc(9).term == "nµZ(Ag+) ="
expect lab_Calc(8).visible == true
expect lab_Calc(8).term == "mol"
expect lab_Calc(10).visible == true
expect lab_Calc(10).term == "nµZ(Ag+) = 1,00 * 0,006"
expect txt_Calc(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0.006
click but_CalcStep(6)
expect form.sStep == 7
expect form.vStepReached(7) == true
expect but_CalcStep(6).visible == false
expect but_CalcStep(7).visible == true
expect but_CalcStep(8).visible == false
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "3. Welcher Fall liegt vor? - wichtig für Potential"
expect opt_Calc(0).visible == true
expect opt_Calc(0).text == "(Fast) Nur Cl-"
expect lab_optCalc(0).visible == true
expect lab_optCalc(0).term == "nµZ(Ag+) = 0"
expect opt_Calc(1).visible == true
expect opt_Calc(1).text == "Mehr Cl- als Ag+"
expect lab_optCalc(1).visible == true
expect lab_optCalc(1).term == "0 < nµZ(Ag+) < nµV(Cl-)"
expect opt_Calc(2).visible == true
expect opt_Calc(2).text == "Genau gleich"
expect lab_optCalc(2).visible == true
expect lab_optCalc(2).term == "nµZ(Ag+) = nµV(Cl-)"
expect opt_Calc(3).visible == true
expect opt_Calc(3).text == "Mehr Ag+ als Cl-"
expect lab_optCalc(3).visible == true
expect lab_optCalc(3).term == "nµZ(Ag+) > nµV(Cl-)"
expect opt_CalcStore.visible == true
expect but_CalcStep(7).focus == true
expect form.vTries == 0
click opt_Calc(2)
click but_CalcStep(7)
expect form.sStep == 8
expect form.vStepReached(8) == true
expect but_CalcStep(7).visible == false
expect but_CalcStep(8).visible == true
expect but_CalcStep(9).visible == false
expect but_CalcPH(8).visible == true
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "4. Neue Konzentration der Chlorid-Ionen berechnen"
expect lab_Calc(16).visible == true
expect lab_Calc(16).term == "n(Cl')=nµV(Cl-)-nµZ(Ag+)"
expect lab_Calc(17).visible == true
expect lab_Calc(17).term == "n(Cl')="
expect txt_Calc(8).visible == true
expect txt_Calc(8).focus == true
expect form.vTries == 0
type txt_Calc(8) 0,000
key ENTER
expect form.sStep == 11
expect form.vStepReached(11) == true
expect but_CalcStep(8).visible == false
expect but_CalcStep(11).visible == true
expect but_CalcStep(12).visible == false
expect but_CalcPH(8).visible == false
expect but_CalcPH(11).visible == true
expect lab_CalcStep(5).visible == true
expect lab_CalcStep(5).text == "5. Konzentration der Silber-Ionen"
expect lab_Calc(26).visible == true
expect lab_Calc(26).term == "c(Ag+) = "
expect lab_Calc(23).visible == false
expect txt_Calc(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
type txt_Calc(11) 0,001
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 15
expect form.vTries == 1
expect form.vWrong == 15
expect form.vMismatch == 3
type txt_Calc(11) 0,001
answer yes
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 16
expect form.vDetailSilver == true
expect form.sStep == 11
expect form.vStepReached(11) == true
expect but_CalcStep(11).visible == true
expect but_CalcStep(12).visible == false
expect but_CalcPH(11).visible == true
expect lab_CalcStep(5).visible == true
expect lab_CalcStep(5).text == "5. Konzentration der Silber-Ionen"
expect lab_Calc(26).visible == true
expect lab_Calc(26).term == "c(Ag+) = "
expect lab_Calc(23).visible == true
expect lab_Calc(23).term == "c(Ag+) = KµL^0.5)"
expect txt_Calc(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
expect form.vWrong == 16
expect form.vMismatch == 4
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(11) 1.412*10^-05
click but_CalcStep(11)
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
expect lab_Calc(27).visible == false
expect txt_Calc(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 0,515
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 17
expect form.vTries == 1
expect form.vWrong == 17
expect form.vMismatch == 5
type txt_Calc(12) 0,515
answer yes
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 18
expect form.vDetailFinal == true
expect form.sStep == 12
expect form.vStepReached(12) == true
expect but_CalcStep(12).visible == true
expect but_CalcPH(12).visible == true
expect lab_CalcStep(6).visible == true
expect lab_CalcStep(6).text == "6. Potential berechnen"
expect lab_Calc(24).visible == true
expect lab_Calc(24).term == "E = "
expect lab_Calc(27).visible == true
expect lab_Calc(27).term == "E = 0.8V - 0.059V * log(1 / (c(Ag+)))"
expect txt_Calc(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
expect form.vWrong == 18
expect form.vMismatch == 6
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(12) 0,514
click but_CalcStep(12)
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 18
expect series(1).count == 2
expect series(1).x(2) == 6
expect series(1).y(2) ~= 0.5138500000000001 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 2
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.Lab_Vallmista.text == 18
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 6
expect lab_pH.text == "0,51 V"
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
# 9 mL
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
type txt_Calc(3) 0,00601
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 19
expect form.vTries == 1
expect form.vWrong == 19
expect form.vMismatch == 0
type txt_Calc(3) 0,00601
answer yes
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 20
expect form.vDetailAcid == true
expect form.sStep == 1
expect form.vStepReached(1) == true
expect but_CalcStep(1).visible == true
expect but_CalcStep(2).visible == false
expect but_CalcStep(3).visible == false
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "1.Vorgelegte  Stoffmenge Chlorid"
expect lab_Calc(0).visible == true
expect lab_Calc(0).term == "nµV(Cl-) = cµV(Cl-) * VµV(Cl-)"
expect lab_Calc(1).visible == true
expect lab_Calc(1).term == "cµV(Cl-) ="
expect lab_Calc(2).visible == true
expect lab_Calc(2).term == "mol / L"
expect txt_Calc(1).visible == true
expect txt_Calc(1).focus == true
expect form.vTries == 0
expect form.vWrong == 20
expect form.vMismatch == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(1) 0.6
key ENTER
expect form.sStep == 2
expect form.vStepReached(2) == true
expect but_CalcStep(1).visible == false
expect but_CalcStep(2).visible == true
expect but_CalcStep(3).visible == false
expect lab_Calc(3).visible == true
expect lab_Calc(3).term == "VµV(Cl-) ="
expect lab_Calc(4).visible == true
expect txt_Calc(2).visible == true
expect txt_Calc(2).focus == true
expect form.vTries == 0
type txt_Calc(2) 10*10^-03
click but_CalcStep(2)
expect form.sStep == 3
expect form.vStepReached(3) == true
expect but_CalcStep(2).visible == false
expect but_CalcStep(3).visible == true
expect but_CalcStep(4).visible == false
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "1.Vorgelegte  Stoffmenge Chlorid"
expect lab_Calc(6).visible == true
expect lab_Calc(6).term == "nµV(Cl-) ="
expect lab_Calc(7).visible == true
expect lab_Calc(7).term == "mol"
expect lab_Calc(5).visible == true
expect lab_Calc(5).term == "nµV(Cl-) = 0.6 * 10*10^-03"
expect txt_Calc(3).visible == true
expect txt_Calc(3).focus == true
expect form.vTries == 0
type txt_Calc(3) 0,00600
click but_CalcStep(3)
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
type txt_Calc(6) 0,00901
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 21
expect form.vTries == 1
expect form.vWrong == 21
expect form.vMismatch == 1
type txt_Calc(6) 0,00901
answer yes
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 22
expect form.vDetailBase == true
expect form.sStep == 4
expect form.vStepReached(4) == true
expect but_CalcStep(4).visible == true
expect but_CalcStep(5).visible == false
expect but_CalcStep(6).visible == false
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "2. Zugegebene Stoffmenge der Silber-Ionen"
expect lab_Calc(15).visible == true
expect lab_Calc(15).term == "nµZ(Ag+) = cµZ(Ag+) * VµZ(Ag+)"
expect lab_Calc(14).visible == true
expect lab_Calc(14).term == "cµZ(Ag+) ="
expect lab_Calc(13).visible == true
expect lab_Calc(13).term == "mol / L"
expect txt_Calc(4).visible == true
expect txt_Calc(4).focus == true
expect form.vTries == 0
expect form.vWrong == 22
expect form.vMismatch == 2
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(4) 1
key ENTER
expect form.sStep == 5
expect form.vStepReached(5) == true
expect but_CalcStep(4).visible == false
expect but_CalcStep(5).visible == true
expect but_CalcStep(6).visible == false
expect lab_Calc(12).visible == true
expect lab_Calc(12).term == "VµZ(Ag+) ="
expect lab_Calc(11).visible == true
expect txt_Calc(5).visible == true
expect txt_Calc(5).focus == true
expect form.vTries == 0
type txt_Calc(5) 0.009
click but_CalcStep(5)
expect form.sStep == 6
expect form.vStepReached(6) == true
expect but_CalcStep(5).visible == false
expect but_CalcStep(6).visible == true
expect but_CalcStep(7).visible == false
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "2. Zugegebene Stoffmenge der Silber-Ionen"
expect lab_Calc(9).visible == true
expect lab_Calc(9).term == "nµZ(Ag+) ="
expect lab_Calc(8).visible == true
expect lab_Calc(8).term == "mol"
expect lab_Calc(10).visible == true
expect lab_Calc(10).term == "nµZ(Ag+) = 1 * 0.009"
expect txt_Calc(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 0,00900
click but_CalcStep(6)
expect form.sStep == 7
expect form.vStepReached(7) == true
expect but_CalcStep(6).visible == false
expect but_CalcStep(7).visible == true
expect but_CalcStep(8).visible == false
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "3. Welcher Fall liegt vor? - wichtig für Potential"
expect opt_Calc(0).visible == true
expect opt_Calc(0).text == "(Fast) Nur Cl-"
expect lab_optCalc(0).visible == true
expect lab_optCalc(0).term == "nµZ(Ag+) = 0"
expect opt_Calc(1).visible == true
expect opt_Calc(1).text == "Mehr Cl- als Ag+"
expect lab_optCalc(1).visible == true
expect lab_optCalc(1).term == "0 < nµZ(Ag+) < nµV(Cl-)"
expect opt_Calc(2).visible == true
expect opt_Calc(2).text == "Genau gleich"
expect lab_optCalc(2).visible == true
expect lab_optCalc(2).term == "nµZ(Ag+) = nµV(Cl-)"
expect opt_Calc(3).visible == true
expect opt_Calc(3).text == "Mehr Ag+ als Cl-"
expect lab_optCalc(3).visible == true
expect lab_optCalc(3).term == "nµZ(Ag+) > nµV(Cl-)"
expect opt_CalcStore.visible == true
expect but_CalcStep(7).focus == true
expect form.vTries == 0
click opt_Calc(3)
click but_CalcStep(7)
expect form.sStep == 10
expect form.vStepReached(10) == true
expect but_CalcStep(7).visible == false
expect but_CalcStep(10).visible == true
expect but_CalcStep(11).visible == false
expect but_CalcPH(10).visible == true
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "4. Neue Konzentration der Silber-Ionen berechnen"
expect lab_Calc(22).visible == true
expect lab_Calc(22).term == "c(Ag+) = "
expect lab_Calc(19).visible == false
expect txt_Calc(8).visible == false
expect txt_Calc(9).visible == false
expect txt_Calc(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 0,159
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 23
expect form.vTries == 1
expect form.vWrong == 23
expect form.vMismatch == 3
type txt_Calc(10) 0,159
answer yes
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 24
expect form.vDetailConc == true
expect form.sStep == 8
expect form.vStepReached(8) == true
expect but_CalcStep(8).visible == true
expect but_CalcStep(9).visible == false
expect but_CalcStep(10).visible == false
expect but_CalcPH(8).visible == true
expect but_CalcPH(10).visible == false
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "4. Neue Konzentration der Silber-Ionen berechnen"
expect lab_Calc(16).visible == true
expect lab_Calc(16).term == "n(Ag+)=nµZ(Ag+)-nµV(Cl-)"
expect lab_Calc(17).visible == true
expect lab_Calc(17).term == "n(Ag+)="
expect txt_Calc(8).visible == true
expect txt_Calc(8).focus == true
expect form.vTries == 0
expect form.vWrong == 24
expect form.vMismatch == 4
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(8) 0,00300
key ENTER
expect form.sStep == 9
expect form.vStepReached(9) == true
expect but_CalcStep(8).visible == false
expect but_CalcStep(9).visible == true
expect but_CalcStep(10).visible == false
expect but_CalcPH(8).visible == false
expect but_CalcPH(9).visible == true
expect lab_Calc(20).visible == true
expect lab_Calc(20).term == "VGes="
expect txt_Calc(9).visible == true
expect txt_Calc(9).focus == true
expect form.vTries == 0
type txt_Calc(9) 0,019
click but_CalcStep(9)
expect form.sStep == 10
expect form.vStepReached(10) == true
expect but_CalcStep(9).visible == false
expect but_CalcStep(10).visible == true
expect but_CalcStep(11).visible == false
expect but_CalcPH(9).visible == false
expect but_CalcPH(10).visible == true
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "4. Neue Konzentration der Silber-Ionen berechnen"
expect lab_Calc(22).visible == true
expect lab_Calc(22).term == "c(Ag+) = "
expect lab_Calc(19).visible == true
expect lab_Calc(19).term == "c(Ag+) = (n(Ag+))/(VGes))"
expect txt_Calc(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 0.158
click but_CalcStep(10)
expect form.sStep == 12
expect form.vStepReached(12) == true
expect but_CalcStep(10).visible == false
expect but_CalcStep(12).visible == true
expect but_CalcPH(10).visible == false
expect but_CalcPH(12).visible == true
expect lab_CalcStep(5).visible == true
expect lab_CalcStep(5).text == "5. Potential berechnen"
expect lab_Calc(27).visible == true
expect lab_Calc(27).term == "E = 0.8V - 0.059V * log(1 / (c(Ag+)))"
expect lab_Calc(24).visible == true
expect lab_Calc(24).term == "E = "
expect txt_Calc(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 0,754
key ENTER
expect noreport
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 25
expect form.vTries == 1
expect form.vWrong == 25
expect form.vMismatch == 5
type txt_Calc(12) 0,754
answer yes
key ENTER
expect noreport
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 26
expect form.vDetailFinal == true
expect form.sStep == 12
expect form.vStepReached(12) == true
expect but_CalcStep(12).visible == true
expect but_CalcPH(12).visible == true
expect lab_CalcStep(5).visible == true
expect lab_CalcStep(5).text == "5. Potential berechnen"
expect lab_Calc(27).visible == true
expect lab_Calc(27).term == "E = 0.8V - 0.059V * log(1 / (c(Ag+)))"
expect lab_Calc(24).visible == true
expect lab_Calc(24).term == "E = "
expect txt_Calc(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
expect form.vWrong == 26
expect form.vMismatch == 6
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
type txt_Calc(12) 0.752704
key ENTER
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 3. Punkt"
expect report progress 3 26
expect series(1).count == 3
expect series(1).x(3) == 9
expect series(1).y(3) ~= 0.7527036915722433 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 3
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.Lab_Vallmista.text == 26
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 9
expect lab_pH.text == "0,75 V"
expect ctl_Button3.visible == true
expect but_Help.visible == true
expect but_phCompare.visible == true
expect but_Calc.visible == false
expect ctl_Button2.visible == false
expect nobox
expect noreport
menu mnu_FileQuit
expect ended
