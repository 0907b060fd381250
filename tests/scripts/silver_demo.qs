# Chloride with silver as a demo: single clicks where the way is new, one click elsewhere.
name Mia
start
choose SSTab1 2
click ctl_Button17
expect form frm_AppMainSilverStart
expect form.Accepted == false
click bar_Buttons
expect form frm_AppMainSilver
expect nobox
expect session.SessionConcentration == 1
expect session.SessionDemo == true
expect session.SessionRequiredPoints == 0,1,5,9,10,11,20
expect but_Calc.text == Demo
expect ctl_Button2.text == Demo
expect frm_Score.visible == false
expect lab_Step(1).text == "Klick auf                                ,um dir den Rechenweg demonstrieren zu lassen"
click ctl_Button1
settle
expect form.vVol == 10
expect beaker.countsort(3) == 10
expect beaker.countsort(5) == 10
expect beaker.count == 20
answer yes
click but_Calc
expect box yesno "" "Ab diesem Punkt beginnt ein neuer Abschnitt, dessen Rechnung man sich mit Klick auf 'DEMO' ansehen sollte. Wollen Sie das Zutropfen abbrechen?"
expect form.sClicks == 0
expect form.vVol == 10
expect frm_Calc.visible == false
expect but_ShowMag.visible == false
answer no
click but_Calc
expect box yesno "" "Ab diesem Punkt beginnt ein neuer Abschnitt, dessen Rechnung man sich mit Klick auf 'DEMO' ansehen sollte. Wollen Sie das Zutropfen abbrechen?"
settle
expect form.vVol == 11
expect form.sClicks == 1
expect but_ShowMag.visible == true
# 1 mL, single clicks
click but_Calc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect ctl_Button2.visible == false
expect ctl_Button3.visible == false
expect but_Calc.visible == false
expect but_Help.visible == false
expect but_phCompare.visible == false
expect form.sStep == 1
expect form.vStepReached(1) == true
expect but_CalcStep(1).visible == true
expect but_CalcStep(2).visible == false
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
expect but_AchtungRW.visible == true
expect but_AchtungRW.text == "Achtung!<br>Neuer Rechenweg!"
expect but_CalcStep(13).visible == false
expect but_CalcStep(1).text == D-Klick!
expect but_CalcStep(7).text == D-Klick!
expect but_CalcStep(12).text == D-Klick!
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
expect txt_Calc(1).text == 1
expect txt_Calc(2).text == 0.01
expect txt_Calc(3).text == 0,01
expect txt_Calc(4).text == 1
expect txt_Calc(5).text == 0,001
expect txt_Calc(6).text == 0,001
expect txt_Calc(8).text == 0,009
expect txt_Calc(9).text == 0,011
expect txt_Calc(10).text == 0,818
expect txt_Calc(11).text == 2,438*10^-10
expect txt_Calc(12).text == 0,233
expect opt_Calc(0).checked == false
expect opt_Calc(1).checked == true
expect opt_Calc(2).checked == false
expect opt_Calc(3).checked == false
expect but_CalcStep(13).visible == false
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
expect lab_Calc(5).term == "nµV(Cl-) = 1 * 0.01"
expect txt_Calc(3).visible == true
expect txt_Calc(3).focus == true
expect but_CalcStep(13).visible == false
click but_CalcStep(3)
expect form.sStep == 4
expect form.vStepReached(4) == true
expect but_CalcStep(3).visible == false
expect but_CalcStep(4).visible == true
expect but_CalcStep(5).visible == false
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
expect but_CalcStep(13).visible == false
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
expect but_CalcStep(13).visible == false
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
expect lab_Calc(10).term == "nµZ(Ag+) = 1 * 0,001"
expect txt_Calc(6).visible == true
expect txt_Calc(6).focus == true
expect but_CalcStep(13).visible == false
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
expect but_CalcStep(13).visible == false
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
expect lab_Calc(18).visible == true
expect lab_Calc(18).term == "mol"
expect txt_Calc(8).visible == true
expect txt_Calc(8).focus == true
expect but_CalcStep(13).visible == false
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
expect but_CalcStep(13).visible == false
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
expect but_CalcStep(13).visible == false
click but_CalcStep(10)
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
expect lab_Calc(23).visible == true
expect lab_Calc(23).term == "c(Ag+) = KµL / c(Cl')"
expect txt_Calc(11).visible == true
expect txt_Calc(11).focus == true
expect but_CalcStep(13).visible == false
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
expect lab_Calc(27).visible == true
expect lab_Calc(27).term == "E = 0.8V - 0.059V * log(1 / (c(Ag+)))"
expect txt_Calc(12).visible == true
expect txt_Calc(12).focus == true
expect but_CalcStep(13).visible == false
click but_CalcStep(12)
expect nobox
expect nosound
expect noreport
expect series(1).count == 1
expect series(1).x(1) == 1
expect series(1).y(1) ~= 0.23284186036741528 1e-12
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
expect form.vVol == 12
click ctl_Button3
settle
expect form.vVol == 13
click ctl_Button3
settle
expect form.vVol == 14
click ctl_Button3
settle
expect form.vVol == 15
expect but_Calc.bordercolor == #c0ffc0
# 5 mL, one click
click but_Calc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect ctl_Button2.visible == false
expect ctl_Button3.visible == false
expect but_Calc.visible == false
expect but_Help.visible == false
expect but_phCompare.visible == false
expect form.sStep == 1
expect form.vStepReached(1) == true
expect but_CalcStep(1).visible == true
expect but_CalcStep(2).visible == false
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
expect but_AchtungRW.visible == false
expect but_AchtungRW.text == "Achtung!<br>Neuer Rechenweg!"
expect but_CalcStep(13).visible == true
expect but_CalcStep(1).text == D-Klick!
expect but_CalcStep(7).text == D-Klick!
expect but_CalcStep(12).text == D-Klick!
click but_CalcStep(13)
expect form.sStep == 12
expect form.vAutoRun == true
expect but_CalcStep(12).visible == true
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "1.Vorgelegte  Stoffmenge Chlorid"
expect lab_Calc(0).visible == true
expect lab_Calc(0).term == "nµV(Cl-) = cµV(Cl-) * VµV(Cl-)"
expect lab_Calc(1).visible == true
expect lab_Calc(1).term == "cµV(Cl-) ="
expect lab_Calc(2).visible == true
expect lab_Calc(2).term == "mol / L"
expect lab_Calc(3).visible == true
expect lab_Calc(3).term == "VµV(Cl-) ="
expect lab_Calc(4).visible == true
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "1.Vorgelegte  Stoffmenge Chlorid"
expect lab_Calc(6).visible == true
expect lab_Calc(6).term == "nµV(Cl-) ="
expect lab_Calc(7).visible == true
expect lab_Calc(7).term == "mol"
expect lab_Calc(5).visible == true
expect lab_Calc(5).term == "nµV(Cl-) = 1 * 0.01"
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "2. Zugegebene Stoffmenge der Silber-Ionen"
expect lab_Calc(15).visible == true
expect lab_Calc(15).term == "nµZ(Ag+) = cµZ(Ag+) * VµZ(Ag+)"
expect lab_Calc(14).visible == true
expect lab_Calc(14).term == "cµZ(Ag+) ="
expect lab_Calc(13).visible == true
expect lab_Calc(13).term == "mol / L"
expect lab_Calc(12).visible == true
expect lab_Calc(12).term == "VµZ(Ag+) ="
expect lab_Calc(11).visible == true
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "2. Zugegebene Stoffmenge der Silber-Ionen"
expect lab_Calc(9).visible == true
expect lab_Calc(9).term == "nµZ(Ag+) ="
expect lab_Calc(8).visible == true
expect lab_Calc(8).term == "mol"
expect lab_Calc(10).visible == true
expect lab_Calc(10).term == "nµZ(Ag+) = 1 * 0,005"
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
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "4. Neue Konzentration der Chlorid-Ionen berechnen"
expect lab_Calc(16).visible == true
expect lab_Calc(16).term == "n(Cl')=nµV(Cl-)-nµZ(Ag+)"
expect lab_Calc(17).visible == true
expect lab_Calc(17).term == "n(Cl')="
expect lab_Calc(18).visible == true
expect lab_Calc(18).term == "mol"
expect lab_Calc(20).visible == true
expect lab_Calc(20).term == "VGes="
expect lab_Calc(21).visible == true
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "4. Neue Konzentration der Chlorid-Ionen berechnen"
expect lab_Calc(22).visible == true
expect lab_Calc(22).term == "c(Cl') = "
expect lab_Calc(25).visible == true
expect lab_Calc(25).term == "mol / L"
expect lab_Calc(19).visible == true
expect lab_Calc(19).term == "c(Cl') = (n(Cl'))/(VGes))"
expect lab_CalcStep(5).visible == true
expect lab_CalcStep(5).text == "5. Neue Konzentration der Silber-Ionen berechnen"
expect lab_Calc(26).visible == true
expect lab_Calc(26).term == "c(Ag+) = "
expect lab_Calc(28).visible == true
expect lab_Calc(23).visible == true
expect lab_Calc(23).term == "c(Ag+) = KµL / c(Cl')"
expect lab_CalcStep(6).visible == true
expect lab_CalcStep(6).text == "6. Potential berechnen"
expect lab_Calc(24).visible == true
expect lab_Calc(24).term == "E = "
expect lab_Calc(29).visible == true
expect lab_Calc(27).visible == true
expect lab_Calc(27).term == "E = 0.8V - 0.059V * log(1 / (c(Ag+)))"
expect txt_Calc(1).text == 1
expect txt_Calc(2).text == 0.01
expect txt_Calc(3).text == 0,01
expect txt_Calc(4).text == 1
expect txt_Calc(5).text == 0,005
expect txt_Calc(6).text == 0,005
expect txt_Calc(8).text == 0,005
expect txt_Calc(9).text == 0,015
expect txt_Calc(10).text == 0,333
expect txt_Calc(11).text == 5,985*10^-10
expect txt_Calc(12).text == 0,256
expect opt_Calc(0).checked == false
expect opt_Calc(1).checked == true
expect opt_Calc(2).checked == false
expect opt_Calc(3).checked == false
click but_CalcStep(12)
expect nobox
expect nosound
expect noreport
expect series(1).count == 2
expect series(1).x(2) == 5
expect series(1).y(2) ~= 0.25585015402846023 1e-12
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 5
expect lab_pH.text == "0,26 V"
expect ctl_Button3.visible == true
expect but_Help.visible == true
expect but_phCompare.visible == true
expect but_Calc.visible == false
expect ctl_Button2.visible == false
click ctl_Button3
settle
expect form.vVol == 16
click ctl_Button3
settle
expect form.vVol == 17
# 7 mL, single clicks
click but_Calc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect ctl_Button2.visible == false
expect ctl_Button3.visible == false
expect but_Calc.visible == false
expect but_Help.visible == false
expect but_phCompare.visible == false
expect form.sStep == 1
expect form.vStepReached(1) == true
expect but_CalcStep(1).visible == true
expect but_CalcStep(2).visible == false
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
expect but_AchtungRW.visible == false
expect but_AchtungRW.text == "Achtung!<br>Neuer Rechenweg!"
expect but_CalcStep(13).visible == true
expect but_CalcStep(1).text == D-Klick!
expect but_CalcStep(7).text == D-Klick!
expect but_CalcStep(12).text == D-Klick!
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
expect txt_Calc(1).text == 1
expect txt_Calc(2).text == 0.01
expect txt_Calc(3).text == 0,01
expect txt_Calc(4).text == 1
expect txt_Calc(5).text == 0,007
expect txt_Calc(6).text == 0,007
expect txt_Calc(8).text == 0,003
expect txt_Calc(9).text == 0,017
expect txt_Calc(10).text == 0,176
expect txt_Calc(11).text == 1,130*10^-09
expect txt_Calc(12).text == 0,272
expect opt_Calc(0).checked == false
expect opt_Calc(1).checked == true
expect opt_Calc(2).checked == false
expect opt_Calc(3).checked == false
expect but_CalcStep(13).visible == true
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
expect lab_Calc(5).term == "nµV(Cl-) = 1 * 0.01"
expect txt_Calc(3).visible == true
expect txt_Calc(3).focus == true
expect but_CalcStep(13).visible == true
click but_CalcStep(3)
expect form.sStep == 4
expect form.vStepReached(4) == true
expect but_CalcStep(3).visible == false
expect but_CalcStep(4).visible == true
expect but_CalcStep(5).visible == false
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
expect but_CalcStep(13).visible == true
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
expect but_CalcStep(13).visible == true
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
expect lab_Calc(10).term == "nµZ(Ag+) = 1 * 0,007"
expect txt_Calc(6).visible == true
expect txt_Calc(6).focus == true
expect but_CalcStep(13).visible == true
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
expect but_CalcStep(13).visible == true
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
expect lab_Calc(18).visible == true
expect lab_Calc(18).term == "mol"
expect txt_Calc(8).visible == true
expect txt_Calc(8).focus == true
expect but_CalcStep(13).visible == true
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
expect but_CalcStep(13).visible == true
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
expect but_CalcStep(13).visible == true
click but_CalcStep(10)
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
expect lab_Calc(23).visible == true
expect lab_Calc(23).term == "c(Ag+) = KµL / c(Cl')"
expect txt_Calc(11).visible == true
expect txt_Calc(11).focus == true
expect but_CalcStep(13).visible == true
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
expect lab_Calc(27).visible == true
expect lab_Calc(27).term == "E = 0.8V - 0.059V * log(1 / (c(Ag+)))"
expect txt_Calc(12).visible == true
expect txt_Calc(12).focus == true
expect but_CalcStep(13).visible == true
click but_CalcStep(12)
expect nobox
expect nosound
expect noreport
expect series(1).count == 3
expect series(1).x(3) == 7
expect series(1).y(3) ~= 0.27214633233285834 1e-12
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 7
expect lab_pH.text == "0,27 V"
expect ctl_Button3.visible == true
expect but_Help.visible == true
expect but_phCompare.visible == true
expect but_Calc.visible == false
expect ctl_Button2.visible == false
click ctl_Button3
settle
expect form.vVol == 18
click ctl_Button3
settle
expect form.vVol == 19
click ctl_Button3
settle
expect form.vVol == 20
answer yes
click ctl_Button3
expect box yesno "" "Ab diesem Punkt beginnt ein neuer Abschnitt, dessen Rechnung man sich mit Klick auf 'DEMO' ansehen sollte. Wollen Sie das Zutropfen abbrechen?"
expect form.sClicks == 10
expect form.vVol == 20
# 10 mL, single clicks
click but_Calc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect ctl_Button2.visible == false
expect ctl_Button3.visible == false
expect but_Calc.visible == false
expect but_Help.visible == false
expect but_phCompare.visible == false
expect form.sStep == 1
expect form.vStepReached(1) == true
expect but_CalcStep(1).visible == true
expect but_CalcStep(2).visible == false
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
expect but_AchtungRW.visible == true
expect but_AchtungRW.text == "Achtung!<br>Neuer Rechenweg!"
expect but_CalcStep(13).visible == false
expect but_CalcStep(1).text == D-Klick!
expect but_CalcStep(7).text == D-Klick!
expect but_CalcStep(12).text == D-Klick!
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
expect txt_Calc(1).text == 1
expect txt_Calc(2).text == 0.01
expect txt_Calc(3).text == 0,01
expect txt_Calc(4).text == 1
expect txt_Calc(5).text == 0,01
expect txt_Calc(6).text == 0,01
expect txt_Calc(8).text == 0,000
expect txt_Calc(9).text == ""
expect txt_Calc(10).text == 1,412*10^-05
expect txt_Calc(11).text == 1,412*10^-05
expect txt_Calc(12).text == 0,514
expect opt_Calc(0).checked == false
expect opt_Calc(1).checked == false
expect opt_Calc(2).checked == true
expect opt_Calc(3).checked == false
expect but_CalcStep(13).visible == false
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
expect lab_Calc(5).term == "nµV(Cl-) = 1 * 0.01"
expect txt_Calc(3).visible == true
expect txt_Calc(3).focus == true
expect but_CalcStep(13).visible == false
click but_CalcStep(3)
expect form.sStep == 4
expect form.vStepReached(4) == true
expect but_CalcStep(3).visible == false
expect but_CalcStep(4).visible == true
expect but_CalcStep(5).visible == false
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
expect but_CalcStep(13).visible == false
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
expect but_CalcStep(13).visible == false
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
expect lab_Calc(10).term == "nµZ(Ag+) = 1 * 0,01"
expect txt_Calc(6).visible == true
expect txt_Calc(6).focus == true
expect but_CalcStep(13).visible == false
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
expect but_CalcStep(13).visible == false
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
expect but_CalcStep(13).visible == false
click but_CalcStep(8)
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
expect lab_Calc(23).visible == true
expect lab_Calc(23).term == "c(Ag+) = KµL^0.5)"
expect txt_Calc(11).visible == true
expect txt_Calc(11).focus == true
expect but_CalcStep(13).visible == false
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
expect lab_Calc(27).visible == true
expect lab_Calc(27).term == "E = 0.8V - 0.059V * log(1 / (c(Ag+)))"
expect txt_Calc(12).visible == true
expect txt_Calc(12).focus == true
expect but_CalcStep(13).visible == false
click but_CalcStep(12)
expect nobox
expect nosound
expect noreport
expect series(1).count == 4
expect series(1).x(4) == 10
expect series(1).y(4) ~= 0.5138500000000001 1e-12
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 10
expect lab_pH.text == "0,51 V"
expect ctl_Button3.visible == true
expect but_Help.visible == true
expect but_phCompare.visible == true
expect but_Calc.visible == false
expect ctl_Button2.visible == false
click ctl_Button3
settle
expect form.vVol == 21
# 11 mL, single clicks
click but_Calc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect ctl_Button2.visible == false
expect ctl_Button3.visible == false
expect but_Calc.visible == false
expect but_Help.visible == false
expect but_phCompare.visible == false
expect form.sStep == 1
expect form.vStepReached(1) == true
expect but_CalcStep(1).visible == true
expect but_CalcStep(2).visible == false
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
expect but_AchtungRW.visible == true
expect but_AchtungRW.text == "Achtung!<br>Neuer Rechenweg!"
expect but_CalcStep(13).visible == false
expect but_CalcStep(1).text == D-Klick!
expect but_CalcStep(7).text == D-Klick!
expect but_CalcStep(12).text == D-Klick!
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
expect txt_Calc(1).text == 1
expect txt_Calc(2).text == 0.01
expect txt_Calc(3).text == 0,01
expect txt_Calc(4).text == 1
expect txt_Calc(5).text == 0,011
expect txt_Calc(6).text == 0,011
expect txt_Calc(8).text == 0,001
expect txt_Calc(9).text == 0,021
expect txt_Calc(10).text == 0,048
expect txt_Calc(11).text == ""
expect txt_Calc(12).text == 0,722
expect opt_Calc(0).checked == false
expect opt_Calc(1).checked == false
expect opt_Calc(2).checked == false
expect opt_Calc(3).checked == true
expect but_CalcStep(13).visible == false
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
expect lab_Calc(5).term == "nµV(Cl-) = 1 * 0.01"
expect txt_Calc(3).visible == true
expect txt_Calc(3).focus == true
expect but_CalcStep(13).visible == false
click but_CalcStep(3)
expect form.sStep == 4
expect form.vStepReached(4) == true
expect but_CalcStep(3).visible == false
expect but_CalcStep(4).visible == true
expect but_CalcStep(5).visible == false
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
expect but_CalcStep(13).visible == false
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
expect but_CalcStep(13).visible == false
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
expect lab_Calc(10).term == "nµZ(Ag+) = 1 * 0,011"
expect txt_Calc(6).visible == true
expect txt_Calc(6).focus == true
expect but_CalcStep(13).visible == false
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
expect but_CalcStep(13).visible == false
click but_CalcStep(7)
expect form.sStep == 8
expect form.vStepReached(8) == true
expect but_CalcStep(7).visible == false
expect but_CalcStep(8).visible == true
expect but_CalcStep(9).visible == false
expect but_CalcPH(8).visible == true
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "4. Neue Konzentration der Silber-Ionen berechnen"
expect lab_Calc(16).visible == true
expect lab_Calc(16).term == "n(Ag+)=nµZ(Ag+)-nµV(Cl-)"
expect lab_Calc(17).visible == true
expect lab_Calc(17).term == "n(Ag+)="
expect txt_Calc(8).visible == true
expect txt_Calc(8).focus == true
expect but_CalcStep(13).visible == false
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
expect txt_Calc(9).visible == true
expect txt_Calc(9).focus == true
expect but_CalcStep(13).visible == false
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
expect but_CalcStep(13).visible == false
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
expect but_CalcStep(13).visible == false
click but_CalcStep(12)
expect nobox
expect nosound
expect noreport
expect series(1).count == 5
expect series(1).x(5) == 11
expect series(1).y(5) ~= 0.7219890616106988 1e-12
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 11
expect lab_pH.text == "0,72 V"
expect ctl_Button3.visible == true
expect but_Help.visible == true
expect but_phCompare.visible == true
expect but_Calc.visible == false
expect ctl_Button2.visible == false
answer no
click ctl_Button3
expect box yesno "" "Ab diesem Punkt beginnt ein neuer Abschnitt, dessen Rechnung man sich mit Klick auf 'DEMO' ansehen sollte. Wollen Sie das Zutropfen abbrechen?"
settle
expect form.sClicks == 12
# 12 mL, one click
click but_Calc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect ctl_Button2.visible == false
expect ctl_Button3.visible == false
expect but_Calc.visible == false
expect but_Help.visible == false
expect but_phCompare.visible == false
expect form.sStep == 1
expect form.vStepReached(1) == true
expect but_CalcStep(1).visible == true
expect but_CalcStep(2).visible == false
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
expect but_AchtungRW.visible == false
expect but_AchtungRW.text == "Achtung!<br>Neuer Rechenweg!"
expect but_CalcStep(13).visible == true
expect but_CalcStep(1).text == D-Klick!
expect but_CalcStep(7).text == D-Klick!
expect but_CalcStep(12).text == D-Klick!
click but_CalcStep(13)
expect form.sStep == 12
expect form.vAutoRun == true
expect but_CalcStep(12).visible == true
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "1.Vorgelegte  Stoffmenge Chlorid"
expect lab_Calc(0).visible == true
expect lab_Calc(0).term == "nµV(Cl-) = cµV(Cl-) * VµV(Cl-)"
expect lab_Calc(1).visible == true
expect lab_Calc(1).term == "cµV(Cl-) ="
expect lab_Calc(2).visible == true
expect lab_Calc(2).term == "mol / L"
expect lab_Calc(3).visible == true
expect lab_Calc(3).term == "VµV(Cl-) ="
expect lab_Calc(4).visible == true
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "1.Vorgelegte  Stoffmenge Chlorid"
expect lab_Calc(6).visible == true
expect lab_Calc(6).term == "nµV(Cl-) ="
expect lab_Calc(7).visible == true
expect lab_Calc(7).term == "mol"
expect lab_Calc(5).visible == true
expect lab_Calc(5).term == "nµV(Cl-) = 1 * 0.01"
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "2. Zugegebene Stoffmenge der Silber-Ionen"
expect lab_Calc(15).visible == true
expect lab_Calc(15).term == "nµZ(Ag+) = cµZ(Ag+) * VµZ(Ag+)"
expect lab_Calc(14).visible == true
expect lab_Calc(14).term == "cµZ(Ag+) ="
expect lab_Calc(13).visible == true
expect lab_Calc(13).term == "mol / L"
expect lab_Calc(12).visible == true
expect lab_Calc(12).term == "VµZ(Ag+) ="
expect lab_Calc(11).visible == true
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "2. Zugegebene Stoffmenge der Silber-Ionen"
expect lab_Calc(9).visible == true
expect lab_Calc(9).term == "nµZ(Ag+) ="
expect lab_Calc(8).visible == true
expect lab_Calc(8).term == "mol"
expect lab_Calc(10).visible == true
expect lab_Calc(10).term == "nµZ(Ag+) = 1 * 0,012"
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
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "4. Neue Konzentration der Silber-Ionen berechnen"
expect lab_Calc(16).visible == true
expect lab_Calc(16).term == "n(Ag+)=nµZ(Ag+)-nµV(Cl-)"
expect lab_Calc(17).visible == true
expect lab_Calc(17).term == "n(Ag+)="
expect lab_Calc(20).visible == true
expect lab_Calc(20).term == "VGes="
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "4. Neue Konzentration der Silber-Ionen berechnen"
expect lab_Calc(22).visible == true
expect lab_Calc(22).term == "c(Ag+) = "
expect lab_Calc(19).visible == true
expect lab_Calc(19).term == "c(Ag+) = (n(Ag+))/(VGes))"
expect lab_CalcStep(5).visible == true
expect lab_CalcStep(5).text == "5. Potential berechnen"
expect lab_Calc(27).visible == true
expect lab_Calc(27).term == "E = 0.8V - 0.059V * log(1 / (c(Ag+)))"
expect lab_Calc(24).visible == true
expect lab_Calc(24).term == "E = "
expect txt_Calc(1).text == 1
expect txt_Calc(2).text == 0.01
expect txt_Calc(3).text == 0,01
expect txt_Calc(4).text == 1
expect txt_Calc(5).text == 0,012
expect txt_Calc(6).text == 0,012
expect txt_Calc(8).text == 0,002
expect txt_Calc(9).text == 0,022
expect txt_Calc(10).text == 0,091
expect txt_Calc(11).text == ""
expect txt_Calc(12).text == 0,739
expect opt_Calc(0).checked == false
expect opt_Calc(1).checked == false
expect opt_Calc(2).checked == false
expect opt_Calc(3).checked == true
click but_CalcStep(12)
expect nobox
expect nosound
expect noreport
expect series(1).count == 6
expect series(1).x(6) == 12
expect series(1).y(6) ~= 0.7385578315756648 1e-12
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 12
expect lab_pH.text == "0,74 V"
expect ctl_Button3.visible == true
expect but_Help.visible == true
expect but_phCompare.visible == true
expect but_Calc.visible == false
expect ctl_Button2.visible == false
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
# 20 mL, one click
click but_Calc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect ctl_Button2.visible == false
expect ctl_Button3.visible == false
expect but_Calc.visible == false
expect but_Help.visible == false
expect but_phCompare.visible == false
expect form.sStep == 1
expect form.vStepReached(1) == true
expect but_CalcStep(1).visible == true
expect but_CalcStep(2).visible == false
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
expect but_AchtungRW.visible == false
expect but_AchtungRW.text == "Achtung!<br>Neuer Rechenweg!"
expect but_CalcStep(13).visible == true
expect but_CalcStep(1).text == D-Klick!
expect but_CalcStep(7).text == D-Klick!
expect but_CalcStep(12).text == D-Klick!
click but_CalcStep(13)
expect form.sStep == 12
expect form.vAutoRun == true
expect but_CalcStep(12).visible == true
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "1.Vorgelegte  Stoffmenge Chlorid"
expect lab_Calc(0).visible == true
expect lab_Calc(0).term == "nµV(Cl-) = cµV(Cl-) * VµV(Cl-)"
expect lab_Calc(1).visible == true
expect lab_Calc(1).term == "cµV(Cl-) ="
expect lab_Calc(2).visible == true
expect lab_Calc(2).term == "mol / L"
expect lab_Calc(3).visible == true
expect lab_Calc(3).term == "VµV(Cl-) ="
expect lab_Calc(4).visible == true
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "1.Vorgelegte  Stoffmenge Chlorid"
expect lab_Calc(6).visible == true
expect lab_Calc(6).term == "nµV(Cl-) ="
expect lab_Calc(7).visible == true
expect lab_Calc(7).term == "mol"
expect lab_Calc(5).visible == true
expect lab_Calc(5).term == "nµV(Cl-) = 1 * 0.01"
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "2. Zugegebene Stoffmenge der Silber-Ionen"
expect lab_Calc(15).visible == true
expect lab_Calc(15).term == "nµZ(Ag+) = cµZ(Ag+) * VµZ(Ag+)"
expect lab_Calc(14).visible == true
expect lab_Calc(14).term == "cµZ(Ag+) ="
expect lab_Calc(13).visible == true
expect lab_Calc(13).term == "mol / L"
expect lab_Calc(12).visible == true
expect lab_Calc(12).term == "VµZ(Ag+) ="
expect lab_Calc(11).visible == true
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "2. Zugegebene Stoffmenge der Silber-Ionen"
expect lab_Calc(9).visible == true
expect lab_Calc(9).term == "nµZ(Ag+) ="
expect lab_Calc(8).visible == true
expect lab_Calc(8).term == "mol"
expect lab_Calc(10).visible == true
expect lab_Calc(10).term == "nµZ(Ag+) = 1 * 0,02"
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
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "4. Neue Konzentration der Silber-Ionen berechnen"
expect lab_Calc(16).visible == true
expect lab_Calc(16).term == "n(Ag+)=nµZ(Ag+)-nµV(Cl-)"
expect lab_Calc(17).visible == true
expect lab_Calc(17).term == "n(Ag+)="
expect lab_Calc(20).visible == true
expect lab_Calc(20).term == "VGes="
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "4. Neue Konzentration der Silber-Ionen berechnen"
expect lab_Calc(22).visible == true
expect lab_Calc(22).term == "c(Ag+) = "
expect lab_Calc(19).visible == true
expect lab_Calc(19).term == "c(Ag+) = (n(Ag+))/(VGes))"
expect lab_CalcStep(5).visible == true
expect lab_CalcStep(5).text == "5. Potential berechnen"
expect lab_Calc(27).visible == true
expect lab_Calc(27).term == "E = 0.8V - 0.059V * log(1 / (c(Ag+)))"
expect lab_Calc(24).visible == true
expect lab_Calc(24).term == "E = "
expect txt_Calc(1).text == 1
expect txt_Calc(2).text == 0.01
expect txt_Calc(3).text == 0,01
expect txt_Calc(4).text == 1
expect txt_Calc(5).text == 0,02
expect txt_Calc(6).text == 0,02
expect txt_Calc(8).text == 0,010
expect txt_Calc(9).text == 0,030
expect txt_Calc(10).text == 0,333
expect txt_Calc(11).text == ""
expect txt_Calc(12).text == 0,772
expect opt_Calc(0).checked == false
expect opt_Calc(1).checked == false
expect opt_Calc(2).checked == false
expect opt_Calc(3).checked == true
click but_CalcStep(12)
expect nobox
expect nosound
expect noreport
expect series(1).count == 7
expect series(1).x(7) == 20
expect series(1).y(7) ~= 0.7718498459715399 1e-12
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 20
expect lab_pH.text == "0,77 V"
expect ctl_Button3.visible == true
expect but_Help.visible == true
expect but_phCompare.visible == true
expect but_Calc.visible == false
expect ctl_Button2.visible == false
expect form.vPoints == 0
expect form.vWrong == 0
expect form.vSolveUsed == 0
expect form.vHelpUsed == 0
expect nobox
expect noreport
menu mnu_FileQuit
expect ended
