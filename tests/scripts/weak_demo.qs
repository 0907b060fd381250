# Weak acid as a demo: single clicks where the way is new, one click elsewhere.
name Mia
start
choose SSTab1 2
click ctl_Button16
expect form frm_AppMainWeak
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
expect beaker.countsort(10) == 10
expect beaker.count == 10
# 0 mL, single clicks
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
expect form.sStep == 7
expect form.vStepReached(7) == true
expect but_CalcStep(7).visible == true
expect but_CalcStep(8).visible == false
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "Welcher Fall liegt vor - ist für den pH entscheidend?"
expect opt_Calc(0).visible == true
expect opt_Calc(0).text == "(Fast) nur HAc"
expect lab_optCalc(0).visible == true
expect lab_optCalc(0).term == "nµZ(OH) = 0"
expect opt_Calc(1).visible == true
expect opt_Calc(1).text == "HAc neben Ac-"
expect lab_optCalc(1).visible == true
expect lab_optCalc(1).term == "0 < nµZ(OH) < nµV(HAc)"
expect opt_Calc(2).visible == true
expect opt_Calc(2).text == "(Fast) nur Ac-"
expect lab_optCalc(2).visible == true
expect lab_optCalc(2).term == "nµZ(OH) = nµV(HAc)"
expect opt_Calc(3).visible == true
expect opt_Calc(3).text == "Wichtig nur OH- "
expect lab_optCalc(3).visible == true
expect lab_optCalc(3).term == "nµZ(OH) > nµV(HAc)"
expect opt_CalcStore.visible == true
expect lab_CalcStep(0).visible == false
expect lab_CalcStep(1).visible == false
expect txt_Calc(1).visible == false
expect txt_Calc(2).visible == false
expect txt_Calc(3).visible == false
expect txt_Calc(4).visible == false
expect txt_Calc(5).visible == false
expect txt_Calc(6).visible == false
expect but_CalcStep(7).focus == true
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
click but_CalcStep(7)
expect form.sStep == 12
expect form.vStepReached(12) == true
expect but_CalcStep(7).visible == false
expect but_CalcStep(12).visible == true
expect but_CalcPH(12).visible == true
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "1. Es liegt (fast) nur schwache Säure vor"
expect lab_Calc(23).visible == true
expect lab_Calc(23).term == "pH ="
expect lab_Calc(16).visible == true
expect lab_Calc(16).term == "Der pH-Wert für eine schwache Säure"
expect lab_Calc(28).visible == true
expect lab_Calc(28).term == "berechnet sich wie folgt:"
expect lab_Calc(19).visible == true
expect lab_Calc(19).term == "pH = (1)/(2)*(pKs-log(cµV(HAc)))"
expect lab_Calc(1).visible == true
expect lab_Calc(1).term == "cµV(HAc) ="
expect lab_Calc(2).visible == true
expect lab_Calc(2).term == "mol / L"
expect txt_Calc(1).visible == true
expect txt_Calc(1).text == 1
expect txt_Calc(8).visible == false
expect txt_Calc(9).visible == false
expect txt_Calc(10).visible == false
expect txt_Calc(11).visible == false
expect txt_Calc(12).visible == true
expect txt_Calc(12).focus == true
expect txt_Calc(8).text == ""
expect txt_Calc(9).text == ""
expect txt_Calc(10).text == ""
expect txt_Calc(11).text == ""
expect txt_Calc(12).text == 2,38
expect opt_Calc(0).checked == true
expect opt_Calc(1).checked == false
expect opt_Calc(2).checked == false
expect opt_Calc(3).checked == false
expect but_CalcStep(13).visible == false
click but_CalcStep(12)
expect nobox
expect nosound
expect noreport
expect series(1).count == 1
expect series(1).x(1) == 0
expect series(1).y(1) ~= 2.38 1e-12
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 0
expect lab_pH.text == 2,38
expect ctl_Button3.visible == true
expect but_Help.visible == true
expect but_phCompare.visible == true
expect but_Calc.visible == false
expect ctl_Button2.visible == false
click ctl_Button3
settle
expect form.vVol == 11
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
expect lab_CalcStep(0).visible == true
expect lab_CalcStep(0).text == "1. Stoffmenge vorgelegte  Säure"
expect lab_Calc(0).visible == true
expect lab_Calc(0).term == "nµV(HAc) = cµV(HAc) * VµV(HAc)"
expect lab_Calc(1).visible == true
expect lab_Calc(1).term == "cµV(HAc) ="
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
expect lab_Calc(3).term == "VµV(HAc) ="
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
expect txt_Calc(9).text == 0,001
expect txt_Calc(10).text == 9,000
expect txt_Calc(11).text == ""
expect txt_Calc(12).text == 3,81
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
expect lab_CalcStep(0).visible == true
expect lab_CalcStep(0).text == "1. Stoffmenge vorgelegte  Säure"
expect lab_Calc(6).visible == true
expect lab_Calc(6).term == "nµV(HAc) ="
expect lab_Calc(7).visible == true
expect lab_Calc(7).term == "mol"
expect lab_Calc(5).visible == true
expect lab_Calc(5).term == "nµV(HAc) = 1 * 0.01"
expect txt_Calc(3).visible == true
expect txt_Calc(3).focus == true
expect but_CalcStep(13).visible == false
click but_CalcStep(3)
expect form.sStep == 4
expect form.vStepReached(4) == true
expect but_CalcStep(3).visible == false
expect but_CalcStep(4).visible == true
expect but_CalcStep(5).visible == false
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "2. Stoffmenge der zugetropften Base"
expect lab_Calc(15).visible == true
expect lab_Calc(15).term == "nµZ(OH) = cµZ(OH) * VµZ(OH)"
expect lab_Calc(14).visible == true
expect lab_Calc(14).term == "cµZ(OH) ="
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
expect lab_Calc(12).term == "VµZ(OH) ="
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
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "2. Stoffmenge der zugetropften Base"
expect lab_Calc(9).visible == true
expect lab_Calc(9).term == "nµZ(OH) ="
expect lab_Calc(8).visible == true
expect lab_Calc(8).term == "mol"
expect lab_Calc(10).visible == true
expect lab_Calc(10).term == "nµZ(OH) = 1 * 0,001"
expect txt_Calc(6).visible == true
expect txt_Calc(6).focus == true
expect but_CalcStep(13).visible == false
click but_CalcStep(6)
expect form.sStep == 7
expect form.vStepReached(7) == true
expect but_CalcStep(6).visible == false
expect but_CalcStep(7).visible == true
expect but_CalcStep(8).visible == false
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "3. Welcher Fall liegt vor - ist für den pH entscheidend?"
expect opt_Calc(0).visible == true
expect opt_Calc(0).text == "(Fast) nur HAc"
expect lab_optCalc(0).visible == true
expect lab_optCalc(0).term == "nµZ(OH) = 0"
expect opt_Calc(1).visible == true
expect opt_Calc(1).text == "HAc neben Ac-"
expect lab_optCalc(1).visible == true
expect lab_optCalc(1).term == "0 < nµZ(OH) < nµV(HAc)"
expect opt_Calc(2).visible == true
expect opt_Calc(2).text == "(Fast) nur Ac-"
expect lab_optCalc(2).visible == true
expect lab_optCalc(2).term == "nµZ(OH) = nµV(HAc)"
expect opt_Calc(3).visible == true
expect opt_Calc(3).text == "Wichtig nur OH- "
expect lab_optCalc(3).visible == true
expect lab_optCalc(3).term == "nµZ(OH) > nµV(HAc)"
expect opt_CalcStore.visible == true
expect but_CalcStep(7).focus == true
expect but_CalcStep(13).visible == false
click but_CalcStep(7)
expect form.sStep == 8
expect form.vStepReached(8) == true
expect but_CalcStep(7).visible == false
expect but_CalcStep(8).visible == true
expect but_CalcStep(9).visible == false
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "4. HAc und Ac- liegen nebeneinander vor"
expect lab_Calc(16).visible == true
expect lab_Calc(16).term == "n(HAc) =  nµV(HAc) - nµZ(OH) "
expect lab_Calc(17).visible == true
expect lab_Calc(17).term == "n(HAc) ="
expect lab_Calc(18).visible == true
expect txt_Calc(8).visible == true
expect txt_Calc(8).focus == true
expect but_CalcStep(13).visible == false
click but_CalcStep(8)
expect form.sStep == 9
expect form.vStepReached(9) == true
expect but_CalcStep(8).visible == false
expect but_CalcStep(9).visible == true
expect but_CalcStep(10).visible == false
expect but_CalcPH(9).visible == true
expect lab_Calc(28).visible == true
expect lab_Calc(28).term == "n(Ac-) = nµZ(OH) "
expect lab_Calc(20).visible == true
expect lab_Calc(20).term == "n(Ac-)"
expect lab_Calc(21).visible == true
expect lab_Calc(21).term == "mol"
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
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "4. HAc und Ac- liegen nebeneinander vor"
expect lab_Calc(22).visible == true
expect lab_Calc(22).term == "n(HAc)/n(Ac-) ="
expect lab_Calc(19).visible == true
expect lab_Calc(19).term == "n(HAc)/n(Ac-) = n(HAc)/nµZ(OH)"
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
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "5. pH-Wert berechnen"
expect lab_Calc(23).visible == true
expect lab_Calc(23).term == "pH ="
expect lab_Calc(27).visible == true
expect lab_Calc(27).term == "pH = pKs - log(n(HAc) / n(Ac-))"
expect txt_Calc(12).visible == true
expect txt_Calc(12).focus == true
expect but_CalcStep(13).visible == false
click but_CalcStep(12)
expect nobox
expect nosound
expect noreport
expect series(1).count == 2
expect series(1).x(2) == 1
expect series(1).y(2) ~= 3.805757490560675 1e-12
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 1
expect lab_pH.text == 3,81
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
expect lab_CalcStep(0).visible == true
expect lab_CalcStep(0).text == "1. Stoffmenge vorgelegte  Säure"
expect lab_Calc(0).visible == true
expect lab_Calc(0).term == "nµV(HAc) = cµV(HAc) * VµV(HAc)"
expect lab_Calc(1).visible == true
expect lab_Calc(1).term == "cµV(HAc) ="
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
expect lab_CalcStep(0).visible == true
expect lab_CalcStep(0).text == "1. Stoffmenge vorgelegte  Säure"
expect lab_Calc(0).visible == true
expect lab_Calc(0).term == "nµV(HAc) = cµV(HAc) * VµV(HAc)"
expect lab_Calc(1).visible == true
expect lab_Calc(1).term == "cµV(HAc) ="
expect lab_Calc(2).visible == true
expect lab_Calc(2).term == "mol / L"
expect lab_Calc(3).visible == true
expect lab_Calc(3).term == "VµV(HAc) ="
expect lab_Calc(4).visible == true
expect lab_CalcStep(0).visible == true
expect lab_CalcStep(0).text == "1. Stoffmenge vorgelegte  Säure"
expect lab_Calc(6).visible == true
expect lab_Calc(6).term == "nµV(HAc) ="
expect lab_Calc(7).visible == true
expect lab_Calc(7).term == "mol"
expect lab_Calc(5).visible == true
expect lab_Calc(5).term == "nµV(HAc) = 1 * 0.01"
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "2. Stoffmenge der zugetropften Base"
expect lab_Calc(15).visible == true
expect lab_Calc(15).term == "nµZ(OH) = cµZ(OH) * VµZ(OH)"
expect lab_Calc(14).visible == true
expect lab_Calc(14).term == "cµZ(OH) ="
expect lab_Calc(13).visible == true
expect lab_Calc(13).term == "mol / L"
expect lab_Calc(12).visible == true
expect lab_Calc(12).term == "VµZ(OH) ="
expect lab_Calc(11).visible == true
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "2. Stoffmenge der zugetropften Base"
expect lab_Calc(9).visible == true
expect lab_Calc(9).term == "nµZ(OH) ="
expect lab_Calc(8).visible == true
expect lab_Calc(8).term == "mol"
expect lab_Calc(10).visible == true
expect lab_Calc(10).term == "nµZ(OH) = 1 * 0,005"
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "3. Welcher Fall liegt vor - ist für den pH entscheidend?"
expect opt_Calc(0).visible == true
expect opt_Calc(0).text == "(Fast) nur HAc"
expect lab_optCalc(0).visible == true
expect lab_optCalc(0).term == "nµZ(OH) = 0"
expect opt_Calc(1).visible == true
expect opt_Calc(1).text == "HAc neben Ac-"
expect lab_optCalc(1).visible == true
expect lab_optCalc(1).term == "0 < nµZ(OH) < nµV(HAc)"
expect opt_Calc(2).visible == true
expect opt_Calc(2).text == "(Fast) nur Ac-"
expect lab_optCalc(2).visible == true
expect lab_optCalc(2).term == "nµZ(OH) = nµV(HAc)"
expect opt_Calc(3).visible == true
expect opt_Calc(3).text == "Wichtig nur OH- "
expect lab_optCalc(3).visible == true
expect lab_optCalc(3).term == "nµZ(OH) > nµV(HAc)"
expect opt_CalcStore.visible == true
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "4. HAc und Ac- liegen nebeneinander vor"
expect lab_Calc(16).visible == true
expect lab_Calc(16).term == "n(HAc) =  nµV(HAc) - nµZ(OH) "
expect lab_Calc(17).visible == true
expect lab_Calc(17).term == "n(HAc) ="
expect lab_Calc(18).visible == true
expect lab_Calc(28).visible == true
expect lab_Calc(28).term == "n(Ac-) = nµZ(OH) "
expect lab_Calc(20).visible == true
expect lab_Calc(20).term == "n(Ac-)"
expect lab_Calc(21).visible == true
expect lab_Calc(21).term == "mol"
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "4. HAc und Ac- liegen nebeneinander vor"
expect lab_Calc(22).visible == true
expect lab_Calc(22).term == "n(HAc)/n(Ac-) ="
expect lab_Calc(19).visible == true
expect lab_Calc(19).term == "n(HAc)/n(Ac-) = n(HAc)/nµZ(OH)"
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "5. pH-Wert berechnen"
expect lab_Calc(23).visible == true
expect lab_Calc(23).term == "pH ="
expect lab_Calc(27).visible == true
expect lab_Calc(27).term == "pH = pKs - log(n(HAc) / n(Ac-))"
expect txt_Calc(1).text == 1
expect txt_Calc(2).text == 0.01
expect txt_Calc(3).text == 0,01
expect txt_Calc(4).text == 1
expect txt_Calc(5).text == 0,005
expect txt_Calc(6).text == 0,005
expect txt_Calc(8).text == 0,005
expect txt_Calc(9).text == 0,005
expect txt_Calc(10).text == 1,000
expect txt_Calc(11).text == ""
expect txt_Calc(12).text == 4,76
expect opt_Calc(0).checked == false
expect opt_Calc(1).checked == true
expect opt_Calc(2).checked == false
expect opt_Calc(3).checked == false
click but_CalcStep(12)
expect nobox
expect nosound
expect noreport
expect series(1).count == 3
expect series(1).x(3) == 5
expect series(1).y(3) ~= 4.76 1e-12
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 5
expect lab_pH.text == 4,76
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
expect lab_CalcStep(0).visible == true
expect lab_CalcStep(0).text == "1. Stoffmenge vorgelegte  Säure"
expect lab_Calc(0).visible == true
expect lab_Calc(0).term == "nµV(HAc) = cµV(HAc) * VµV(HAc)"
expect lab_Calc(1).visible == true
expect lab_Calc(1).term == "cµV(HAc) ="
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
expect lab_Calc(3).term == "VµV(HAc) ="
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
expect txt_Calc(9).text == 0,007
expect txt_Calc(10).text == 0,429
expect txt_Calc(11).text == ""
expect txt_Calc(12).text == 5,13
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
expect lab_CalcStep(0).visible == true
expect lab_CalcStep(0).text == "1. Stoffmenge vorgelegte  Säure"
expect lab_Calc(6).visible == true
expect lab_Calc(6).term == "nµV(HAc) ="
expect lab_Calc(7).visible == true
expect lab_Calc(7).term == "mol"
expect lab_Calc(5).visible == true
expect lab_Calc(5).term == "nµV(HAc) = 1 * 0.01"
expect txt_Calc(3).visible == true
expect txt_Calc(3).focus == true
expect but_CalcStep(13).visible == true
click but_CalcStep(3)
expect form.sStep == 4
expect form.vStepReached(4) == true
expect but_CalcStep(3).visible == false
expect but_CalcStep(4).visible == true
expect but_CalcStep(5).visible == false
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "2. Stoffmenge der zugetropften Base"
expect lab_Calc(15).visible == true
expect lab_Calc(15).term == "nµZ(OH) = cµZ(OH) * VµZ(OH)"
expect lab_Calc(14).visible == true
expect lab_Calc(14).term == "cµZ(OH) ="
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
expect lab_Calc(12).term == "VµZ(OH) ="
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
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "2. Stoffmenge der zugetropften Base"
expect lab_Calc(9).visible == true
expect lab_Calc(9).term == "nµZ(OH) ="
expect lab_Calc(8).visible == true
expect lab_Calc(8).term == "mol"
expect lab_Calc(10).visible == true
expect lab_Calc(10).term == "nµZ(OH) = 1 * 0,007"
expect txt_Calc(6).visible == true
expect txt_Calc(6).focus == true
expect but_CalcStep(13).visible == true
click but_CalcStep(6)
expect form.sStep == 7
expect form.vStepReached(7) == true
expect but_CalcStep(6).visible == false
expect but_CalcStep(7).visible == true
expect but_CalcStep(8).visible == false
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "3. Welcher Fall liegt vor - ist für den pH entscheidend?"
expect opt_Calc(0).visible == true
expect opt_Calc(0).text == "(Fast) nur HAc"
expect lab_optCalc(0).visible == true
expect lab_optCalc(0).term == "nµZ(OH) = 0"
expect opt_Calc(1).visible == true
expect opt_Calc(1).text == "HAc neben Ac-"
expect lab_optCalc(1).visible == true
expect lab_optCalc(1).term == "0 < nµZ(OH) < nµV(HAc)"
expect opt_Calc(2).visible == true
expect opt_Calc(2).text == "(Fast) nur Ac-"
expect lab_optCalc(2).visible == true
expect lab_optCalc(2).term == "nµZ(OH) = nµV(HAc)"
expect opt_Calc(3).visible == true
expect opt_Calc(3).text == "Wichtig nur OH- "
expect lab_optCalc(3).visible == true
expect lab_optCalc(3).term == "nµZ(OH) > nµV(HAc)"
expect opt_CalcStore.visible == true
expect but_CalcStep(7).focus == true
expect but_CalcStep(13).visible == true
click but_CalcStep(7)
expect form.sStep == 8
expect form.vStepReached(8) == true
expect but_CalcStep(7).visible == false
expect but_CalcStep(8).visible == true
expect but_CalcStep(9).visible == false
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "4. HAc und Ac- liegen nebeneinander vor"
expect lab_Calc(16).visible == true
expect lab_Calc(16).term == "n(HAc) =  nµV(HAc) - nµZ(OH) "
expect lab_Calc(17).visible == true
expect lab_Calc(17).term == "n(HAc) ="
expect lab_Calc(18).visible == true
expect txt_Calc(8).visible == true
expect txt_Calc(8).focus == true
expect but_CalcStep(13).visible == true
click but_CalcStep(8)
expect form.sStep == 9
expect form.vStepReached(9) == true
expect but_CalcStep(8).visible == false
expect but_CalcStep(9).visible == true
expect but_CalcStep(10).visible == false
expect but_CalcPH(9).visible == true
expect lab_Calc(28).visible == true
expect lab_Calc(28).term == "n(Ac-) = nµZ(OH) "
expect lab_Calc(20).visible == true
expect lab_Calc(20).term == "n(Ac-)"
expect lab_Calc(21).visible == true
expect lab_Calc(21).term == "mol"
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
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "4. HAc und Ac- liegen nebeneinander vor"
expect lab_Calc(22).visible == true
expect lab_Calc(22).term == "n(HAc)/n(Ac-) ="
expect lab_Calc(19).visible == true
expect lab_Calc(19).term == "n(HAc)/n(Ac-) = n(HAc)/nµZ(OH)"
expect txt_Calc(10).visible == true
expect txt_Calc(10).focus == true
expect but_CalcStep(13).visible == true
click but_CalcStep(10)
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
expect lab_Calc(27).visible == true
expect lab_Calc(27).term == "pH = pKs - log(n(HAc) / n(Ac-))"
expect txt_Calc(12).visible == true
expect txt_Calc(12).focus == true
expect but_CalcStep(13).visible == true
click but_CalcStep(12)
expect nobox
expect nosound
expect noreport
expect series(1).count == 4
expect series(1).x(4) == 7
expect series(1).y(4) ~= 5.127976785294594 1e-12
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 7
expect lab_pH.text == 5,13
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
expect lab_CalcStep(0).visible == true
expect lab_CalcStep(0).text == "1. Stoffmenge vorgelegte  Säure"
expect lab_Calc(0).visible == true
expect lab_Calc(0).term == "nµV(HAc) = cµV(HAc) * VµV(HAc)"
expect lab_Calc(1).visible == true
expect lab_Calc(1).term == "cµV(HAc) ="
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
expect lab_Calc(3).term == "VµV(HAc) ="
expect lab_Calc(4).visible == true
expect txt_Calc(2).visible == true
expect txt_Calc(2).focus == true
expect txt_Calc(1).text == 1
expect txt_Calc(2).text == 0.01
expect txt_Calc(3).text == 0,01
expect txt_Calc(4).text == 1
expect txt_Calc(5).text == 0,01
expect txt_Calc(6).text == 0,01
expect txt_Calc(8).text == 0,010
expect txt_Calc(9).text == 0,020
expect txt_Calc(10).text == 0,500
expect txt_Calc(11).text == ""
expect txt_Calc(12).text == 9,23
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
expect lab_CalcStep(0).visible == true
expect lab_CalcStep(0).text == "1. Stoffmenge vorgelegte  Säure"
expect lab_Calc(6).visible == true
expect lab_Calc(6).term == "nµV(HAc) ="
expect lab_Calc(7).visible == true
expect lab_Calc(7).term == "mol"
expect lab_Calc(5).visible == true
expect lab_Calc(5).term == "nµV(HAc) = 1 * 0.01"
expect txt_Calc(3).visible == true
expect txt_Calc(3).focus == true
expect but_CalcStep(13).visible == false
click but_CalcStep(3)
expect form.sStep == 4
expect form.vStepReached(4) == true
expect but_CalcStep(3).visible == false
expect but_CalcStep(4).visible == true
expect but_CalcStep(5).visible == false
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "2. Stoffmenge der zugetropften Base"
expect lab_Calc(15).visible == true
expect lab_Calc(15).term == "nµZ(OH) = cµZ(OH) * VµZ(OH)"
expect lab_Calc(14).visible == true
expect lab_Calc(14).term == "cµZ(OH) ="
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
expect lab_Calc(12).term == "VµZ(OH) ="
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
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "2. Stoffmenge der zugetropften Base"
expect lab_Calc(9).visible == true
expect lab_Calc(9).term == "nµZ(OH) ="
expect lab_Calc(8).visible == true
expect lab_Calc(8).term == "mol"
expect lab_Calc(10).visible == true
expect lab_Calc(10).term == "nµZ(OH) = 1 * 0,01"
expect txt_Calc(6).visible == true
expect txt_Calc(6).focus == true
expect but_CalcStep(13).visible == false
click but_CalcStep(6)
expect form.sStep == 7
expect form.vStepReached(7) == true
expect but_CalcStep(6).visible == false
expect but_CalcStep(7).visible == true
expect but_CalcStep(8).visible == false
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "3. Welcher Fall liegt vor - ist für den pH entscheidend?"
expect opt_Calc(0).visible == true
expect opt_Calc(0).text == "(Fast) nur HAc"
expect lab_optCalc(0).visible == true
expect lab_optCalc(0).term == "nµZ(OH) = 0"
expect opt_Calc(1).visible == true
expect opt_Calc(1).text == "HAc neben Ac-"
expect lab_optCalc(1).visible == true
expect lab_optCalc(1).term == "0 < nµZ(OH) < nµV(HAc)"
expect opt_Calc(2).visible == true
expect opt_Calc(2).text == "(Fast) nur Ac-"
expect lab_optCalc(2).visible == true
expect lab_optCalc(2).term == "nµZ(OH) = nµV(HAc)"
expect opt_Calc(3).visible == true
expect opt_Calc(3).text == "Wichtig nur OH- "
expect lab_optCalc(3).visible == true
expect lab_optCalc(3).term == "nµZ(OH) > nµV(HAc)"
expect opt_CalcStore.visible == true
expect but_CalcStep(7).focus == true
expect but_CalcStep(13).visible == false
click but_CalcStep(7)
expect form.sStep == 8
expect form.vStepReached(8) == true
expect but_CalcStep(7).visible == false
expect but_CalcStep(8).visible == true
expect but_CalcStep(9).visible == false
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "4. Es liegt nur schwache Base Ac- vor"
expect lab_Calc(16).visible == true
expect lab_Calc(16).term == "n(Ac-) = nµZ(OH-)"
expect lab_Calc(17).visible == true
expect lab_Calc(17).term == "n(Ac-) ="
expect txt_Calc(8).visible == true
expect txt_Calc(8).focus == true
expect but_CalcStep(13).visible == false
click but_CalcStep(8)
expect form.sStep == 9
expect form.vStepReached(9) == true
expect but_CalcStep(8).visible == false
expect but_CalcStep(9).visible == true
expect but_CalcStep(10).visible == false
expect but_CalcPH(9).visible == true
expect lab_Calc(28).visible == true
expect lab_Calc(28).term == "V(gesamt) = VµV(HAc) + VµZ(OH)"
expect lab_Calc(20).visible == true
expect lab_Calc(20).term == "V(gesamt) ="
expect lab_Calc(21).visible == true
expect lab_Calc(21).term == " L"
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
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "4. Es liegt nur schwache Base Ac- vor"
expect lab_Calc(22).visible == true
expect lab_Calc(22).term == "c(Ac-) = "
expect lab_Calc(25).visible == true
expect lab_Calc(25).term == " mol/L"
expect lab_Calc(19).visible == true
expect lab_Calc(19).term == "c(Ac-) = (n(Ac-))/(V(gesamt)"
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
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "5. pH-Wert berechnen"
expect lab_Calc(23).visible == true
expect lab_Calc(23).term == "pH ="
expect lab_Calc(27).visible == true
expect lab_Calc(27).term == "pH = 14 - (1)/(2) * (14 - pKs - log(c(Ac-)))"
expect txt_Calc(12).visible == true
expect txt_Calc(12).focus == true
expect but_CalcStep(13).visible == false
click but_CalcStep(12)
expect nobox
expect nosound
expect noreport
expect series(1).count == 5
expect series(1).x(5) == 10
expect series(1).y(5) ~= 9.229485002168008 1e-12
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 10
expect lab_pH.text == 9,23
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
expect lab_CalcStep(0).visible == true
expect lab_CalcStep(0).text == "1. Stoffmenge vorgelegte  Säure"
expect lab_Calc(0).visible == true
expect lab_Calc(0).term == "nµV(HAc) = cµV(HAc) * VµV(HAc)"
expect lab_Calc(1).visible == true
expect lab_Calc(1).term == "cµV(HAc) ="
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
expect lab_Calc(3).term == "VµV(HAc) ="
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
expect txt_Calc(11).text == 1,32
expect txt_Calc(12).text == 12,68
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
expect lab_CalcStep(0).visible == true
expect lab_CalcStep(0).text == "1. Stoffmenge vorgelegte  Säure"
expect lab_Calc(6).visible == true
expect lab_Calc(6).term == "nµV(HAc) ="
expect lab_Calc(7).visible == true
expect lab_Calc(7).term == "mol"
expect lab_Calc(5).visible == true
expect lab_Calc(5).term == "nµV(HAc) = 1 * 0.01"
expect txt_Calc(3).visible == true
expect txt_Calc(3).focus == true
expect but_CalcStep(13).visible == false
click but_CalcStep(3)
expect form.sStep == 4
expect form.vStepReached(4) == true
expect but_CalcStep(3).visible == false
expect but_CalcStep(4).visible == true
expect but_CalcStep(5).visible == false
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "2. Stoffmenge der zugetropften Base"
expect lab_Calc(15).visible == true
expect lab_Calc(15).term == "nµZ(OH) = cµZ(OH) * VµZ(OH)"
expect lab_Calc(14).visible == true
expect lab_Calc(14).term == "cµZ(OH) ="
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
expect lab_Calc(12).term == "VµZ(OH) ="
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
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "2. Stoffmenge der zugetropften Base"
expect lab_Calc(9).visible == true
expect lab_Calc(9).term == "nµZ(OH) ="
expect lab_Calc(8).visible == true
expect lab_Calc(8).term == "mol"
expect lab_Calc(10).visible == true
expect lab_Calc(10).term == "nµZ(OH) = 1 * 0,011"
expect txt_Calc(6).visible == true
expect txt_Calc(6).focus == true
expect but_CalcStep(13).visible == false
click but_CalcStep(6)
expect form.sStep == 7
expect form.vStepReached(7) == true
expect but_CalcStep(6).visible == false
expect but_CalcStep(7).visible == true
expect but_CalcStep(8).visible == false
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "3. Welcher Fall liegt vor - ist für den pH entscheidend?"
expect opt_Calc(0).visible == true
expect opt_Calc(0).text == "(Fast) nur HAc"
expect lab_optCalc(0).visible == true
expect lab_optCalc(0).term == "nµZ(OH) = 0"
expect opt_Calc(1).visible == true
expect opt_Calc(1).text == "HAc neben Ac-"
expect lab_optCalc(1).visible == true
expect lab_optCalc(1).term == "0 < nµZ(OH) < nµV(HAc)"
expect opt_Calc(2).visible == true
expect opt_Calc(2).text == "(Fast) nur Ac-"
expect lab_optCalc(2).visible == true
expect lab_optCalc(2).term == "nµZ(OH) = nµV(HAc)"
expect opt_Calc(3).visible == true
expect opt_Calc(3).text == "Wichtig nur OH- "
expect lab_optCalc(3).visible == true
expect lab_optCalc(3).term == "nµZ(OH) > nµV(HAc)"
expect opt_CalcStore.visible == true
expect but_CalcStep(7).focus == true
expect but_CalcStep(13).visible == false
click but_CalcStep(7)
expect form.sStep == 8
expect form.vStepReached(8) == true
expect but_CalcStep(7).visible == false
expect but_CalcStep(8).visible == true
expect but_CalcStep(9).visible == false
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "4. Konzentration der OH- Ionen berechnen"
expect lab_Calc(16).visible == true
expect lab_Calc(16).term == "n(OH-) = nµZ(OH) - nµV(HAc)"
expect lab_Calc(17).visible == true
expect lab_Calc(17).term == "n(OH-) ="
expect txt_Calc(8).visible == true
expect txt_Calc(8).focus == true
expect but_CalcStep(13).visible == false
click but_CalcStep(8)
expect form.sStep == 9
expect form.vStepReached(9) == true
expect but_CalcStep(8).visible == false
expect but_CalcStep(9).visible == true
expect but_CalcStep(10).visible == false
expect but_CalcPH(9).visible == true
expect lab_Calc(20).visible == true
expect lab_Calc(20).term == "V(gesamt) ="
expect lab_Calc(21).visible == true
expect lab_Calc(21).term == " L"
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
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "4. Konzentration der OH- Ionen berechnen"
expect lab_Calc(22).visible == true
expect lab_Calc(22).term == "c(OH-) ="
expect lab_Calc(19).visible == true
expect lab_Calc(19).term == "c(OH-) = (n(OH-))/(V(gesamt))"
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
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "5. pOH-Wert berechnen"
expect lab_Calc(26).visible == true
expect lab_Calc(26).term == "pOH ="
expect lab_Calc(27).visible == true
expect lab_Calc(27).term == "pOH = -log(OH-)"
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
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "5. pH-Wert berechnen"
expect lab_Calc(23).visible == true
expect lab_Calc(23).term == "pH ="
expect txt_Calc(12).visible == true
expect txt_Calc(12).focus == true
expect but_CalcStep(13).visible == false
click but_CalcStep(12)
expect nobox
expect nosound
expect noreport
expect series(1).count == 6
expect series(1).x(6) == 11
expect series(1).y(6) ~= 12.67778070526608 1e-12
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 11
expect lab_pH.text == 12,68
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
expect lab_CalcStep(0).visible == true
expect lab_CalcStep(0).text == "1. Stoffmenge vorgelegte  Säure"
expect lab_Calc(0).visible == true
expect lab_Calc(0).term == "nµV(HAc) = cµV(HAc) * VµV(HAc)"
expect lab_Calc(1).visible == true
expect lab_Calc(1).term == "cµV(HAc) ="
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
expect lab_CalcStep(0).visible == true
expect lab_CalcStep(0).text == "1. Stoffmenge vorgelegte  Säure"
expect lab_Calc(0).visible == true
expect lab_Calc(0).term == "nµV(HAc) = cµV(HAc) * VµV(HAc)"
expect lab_Calc(1).visible == true
expect lab_Calc(1).term == "cµV(HAc) ="
expect lab_Calc(2).visible == true
expect lab_Calc(2).term == "mol / L"
expect lab_Calc(3).visible == true
expect lab_Calc(3).term == "VµV(HAc) ="
expect lab_Calc(4).visible == true
expect lab_CalcStep(0).visible == true
expect lab_CalcStep(0).text == "1. Stoffmenge vorgelegte  Säure"
expect lab_Calc(6).visible == true
expect lab_Calc(6).term == "nµV(HAc) ="
expect lab_Calc(7).visible == true
expect lab_Calc(7).term == "mol"
expect lab_Calc(5).visible == true
expect lab_Calc(5).term == "nµV(HAc) = 1 * 0.01"
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "2. Stoffmenge der zugetropften Base"
expect lab_Calc(15).visible == true
expect lab_Calc(15).term == "nµZ(OH) = cµZ(OH) * VµZ(OH)"
expect lab_Calc(14).visible == true
expect lab_Calc(14).term == "cµZ(OH) ="
expect lab_Calc(13).visible == true
expect lab_Calc(13).term == "mol / L"
expect lab_Calc(12).visible == true
expect lab_Calc(12).term == "VµZ(OH) ="
expect lab_Calc(11).visible == true
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "2. Stoffmenge der zugetropften Base"
expect lab_Calc(9).visible == true
expect lab_Calc(9).term == "nµZ(OH) ="
expect lab_Calc(8).visible == true
expect lab_Calc(8).term == "mol"
expect lab_Calc(10).visible == true
expect lab_Calc(10).term == "nµZ(OH) = 1 * 0,012"
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "3. Welcher Fall liegt vor - ist für den pH entscheidend?"
expect opt_Calc(0).visible == true
expect opt_Calc(0).text == "(Fast) nur HAc"
expect lab_optCalc(0).visible == true
expect lab_optCalc(0).term == "nµZ(OH) = 0"
expect opt_Calc(1).visible == true
expect opt_Calc(1).text == "HAc neben Ac-"
expect lab_optCalc(1).visible == true
expect lab_optCalc(1).term == "0 < nµZ(OH) < nµV(HAc)"
expect opt_Calc(2).visible == true
expect opt_Calc(2).text == "(Fast) nur Ac-"
expect lab_optCalc(2).visible == true
expect lab_optCalc(2).term == "nµZ(OH) = nµV(HAc)"
expect opt_Calc(3).visible == true
expect opt_Calc(3).text == "Wichtig nur OH- "
expect lab_optCalc(3).visible == true
expect lab_optCalc(3).term == "nµZ(OH) > nµV(HAc)"
expect opt_CalcStore.visible == true
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "4. Konzentration der OH- Ionen berechnen"
expect lab_Calc(16).visible == true
expect lab_Calc(16).term == "n(OH-) = nµZ(OH) - nµV(HAc)"
expect lab_Calc(17).visible == true
expect lab_Calc(17).term == "n(OH-) ="
expect lab_Calc(20).visible == true
expect lab_Calc(20).term == "V(gesamt) ="
expect lab_Calc(21).visible == true
expect lab_Calc(21).term == " L"
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "4. Konzentration der OH- Ionen berechnen"
expect lab_Calc(22).visible == true
expect lab_Calc(22).term == "c(OH-) ="
expect lab_Calc(19).visible == true
expect lab_Calc(19).term == "c(OH-) = (n(OH-))/(V(gesamt))"
expect lab_Calc(26).visible == true
expect lab_Calc(26).term == "pOH ="
expect lab_Calc(27).visible == true
expect lab_Calc(27).term == "pOH = -log(OH-)"
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "5. pH-Wert berechnen"
expect lab_Calc(23).visible == true
expect lab_Calc(23).term == "pH ="
expect txt_Calc(1).text == 1
expect txt_Calc(2).text == 0.01
expect txt_Calc(3).text == 0,01
expect txt_Calc(4).text == 1
expect txt_Calc(5).text == 0,012
expect txt_Calc(6).text == 0,012
expect txt_Calc(8).text == 0,002
expect txt_Calc(9).text == 0,022
expect txt_Calc(10).text == 0,091
expect txt_Calc(11).text == 1,04
expect txt_Calc(12).text == 12,96
expect opt_Calc(0).checked == false
expect opt_Calc(1).checked == false
expect opt_Calc(2).checked == false
expect opt_Calc(3).checked == true
click but_CalcStep(12)
expect nobox
expect nosound
expect noreport
expect series(1).count == 7
expect series(1).x(7) == 12
expect series(1).y(7) ~= 12.958607314841775 1e-12
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 12
expect lab_pH.text == 12,96
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
expect lab_CalcStep(0).visible == true
expect lab_CalcStep(0).text == "1. Stoffmenge vorgelegte  Säure"
expect lab_Calc(0).visible == true
expect lab_Calc(0).term == "nµV(HAc) = cµV(HAc) * VµV(HAc)"
expect lab_Calc(1).visible == true
expect lab_Calc(1).term == "cµV(HAc) ="
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
expect lab_CalcStep(0).visible == true
expect lab_CalcStep(0).text == "1. Stoffmenge vorgelegte  Säure"
expect lab_Calc(0).visible == true
expect lab_Calc(0).term == "nµV(HAc) = cµV(HAc) * VµV(HAc)"
expect lab_Calc(1).visible == true
expect lab_Calc(1).term == "cµV(HAc) ="
expect lab_Calc(2).visible == true
expect lab_Calc(2).term == "mol / L"
expect lab_Calc(3).visible == true
expect lab_Calc(3).term == "VµV(HAc) ="
expect lab_Calc(4).visible == true
expect lab_CalcStep(0).visible == true
expect lab_CalcStep(0).text == "1. Stoffmenge vorgelegte  Säure"
expect lab_Calc(6).visible == true
expect lab_Calc(6).term == "nµV(HAc) ="
expect lab_Calc(7).visible == true
expect lab_Calc(7).term == "mol"
expect lab_Calc(5).visible == true
expect lab_Calc(5).term == "nµV(HAc) = 1 * 0.01"
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "2. Stoffmenge der zugetropften Base"
expect lab_Calc(15).visible == true
expect lab_Calc(15).term == "nµZ(OH) = cµZ(OH) * VµZ(OH)"
expect lab_Calc(14).visible == true
expect lab_Calc(14).term == "cµZ(OH) ="
expect lab_Calc(13).visible == true
expect lab_Calc(13).term == "mol / L"
expect lab_Calc(12).visible == true
expect lab_Calc(12).term == "VµZ(OH) ="
expect lab_Calc(11).visible == true
expect lab_CalcStep(1).visible == true
expect lab_CalcStep(1).text == "2. Stoffmenge der zugetropften Base"
expect lab_Calc(9).visible == true
expect lab_Calc(9).term == "nµZ(OH) ="
expect lab_Calc(8).visible == true
expect lab_Calc(8).term == "mol"
expect lab_Calc(10).visible == true
expect lab_Calc(10).term == "nµZ(OH) = 1 * 0,02"
expect lab_CalcStep(2).visible == true
expect lab_CalcStep(2).text == "3. Welcher Fall liegt vor - ist für den pH entscheidend?"
expect opt_Calc(0).visible == true
expect opt_Calc(0).text == "(Fast) nur HAc"
expect lab_optCalc(0).visible == true
expect lab_optCalc(0).term == "nµZ(OH) = 0"
expect opt_Calc(1).visible == true
expect opt_Calc(1).text == "HAc neben Ac-"
expect lab_optCalc(1).visible == true
expect lab_optCalc(1).term == "0 < nµZ(OH) < nµV(HAc)"
expect opt_Calc(2).visible == true
expect opt_Calc(2).text == "(Fast) nur Ac-"
expect lab_optCalc(2).visible == true
expect lab_optCalc(2).term == "nµZ(OH) = nµV(HAc)"
expect opt_Calc(3).visible == true
expect opt_Calc(3).text == "Wichtig nur OH- "
expect lab_optCalc(3).visible == true
expect lab_optCalc(3).term == "nµZ(OH) > nµV(HAc)"
expect opt_CalcStore.visible == true
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "4. Konzentration der OH- Ionen berechnen"
expect lab_Calc(16).visible == true
expect lab_Calc(16).term == "n(OH-) = nµZ(OH) - nµV(HAc)"
expect lab_Calc(17).visible == true
expect lab_Calc(17).term == "n(OH-) ="
expect lab_Calc(20).visible == true
expect lab_Calc(20).term == "V(gesamt) ="
expect lab_Calc(21).visible == true
expect lab_Calc(21).term == " L"
expect lab_CalcStep(3).visible == true
expect lab_CalcStep(3).text == "4. Konzentration der OH- Ionen berechnen"
expect lab_Calc(22).visible == true
expect lab_Calc(22).term == "c(OH-) ="
expect lab_Calc(19).visible == true
expect lab_Calc(19).term == "c(OH-) = (n(OH-))/(V(gesamt))"
expect lab_Calc(26).visible == true
expect lab_Calc(26).term == "pOH ="
expect lab_Calc(27).visible == true
expect lab_Calc(27).term == "pOH = -log(OH-)"
expect lab_CalcStep(4).visible == true
expect lab_CalcStep(4).text == "5. pH-Wert berechnen"
expect lab_Calc(23).visible == true
expect lab_Calc(23).term == "pH ="
expect txt_Calc(1).text == 1
expect txt_Calc(2).text == 0.01
expect txt_Calc(3).text == 0,01
expect txt_Calc(4).text == 1
expect txt_Calc(5).text == 0,02
expect txt_Calc(6).text == 0,02
expect txt_Calc(8).text == 0,01
expect txt_Calc(9).text == 0,03
expect txt_Calc(10).text == 0,333
expect txt_Calc(11).text == 0,48
expect txt_Calc(12).text == 13,52
expect opt_Calc(0).checked == false
expect opt_Calc(1).checked == false
expect opt_Calc(2).checked == false
expect opt_Calc(3).checked == true
click but_CalcStep(12)
expect nobox
expect nosound
expect noreport
expect series(1).count == 8
expect series(1).x(8) == 20
expect series(1).y(8) ~= 13.522878745280337 1e-12
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 20
expect lab_pH.text == 13,52
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
