# Chloride with silver of 1.0 mol/L: a direct answer at every mL to the best mark.
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
expect but_ShowMag.visible == false
expect lab_KLInfo.term == "Hinweis: KµL(AgCl) = 10^-9.7 (mol²)/(  L²)"
expect form.caption == "Morvik // Quendal - Potentiometrie"
expect but_ShowMag.text == "Löslichkeitsgleichgewicht ansehen"
expect lab_pHName.term == "Potential:"
expect frm_CalcDirect.text == "Potential ausrechnen"
expect lab_Step(1).text == "Klick auf                                ,um den genauen pH-Wert zu berechnen."
expect lab_Bilanz(0).term == Ag+
expect lab_Bilanz(0).visible == true
expect lab_Bilanz(1).term == Na+
expect lab_Bilanz(1).visible == true
expect lab_Bilanz(2).term == Cl-
expect lab_Bilanz(2).visible == true
expect lab_Bilanz(3).term == NO3-
expect lab_Bilanz(3).visible == true
expect lab_Bilanz(4).visible == false
expect lab_BilanzCount(4).visible == false
click but_Help
expect form frm_DialogHelp
expect form.FileName == silver.rtf
close
expect form frm_AppMainSilver
click ctl_Button1
settle
expect form.vVol == 10
expect beaker.countsort(3) == 10
expect beaker.countsort(5) == 10
expect beaker.count == 20
expect but_Calc.visible == true
expect lab_pH.text == ?
# 0 mL
expect form.vCase == 2
expect form.vPotential ~= 0.0 1e-12
expect form.vPotentialText == 0,00
expect form.vPotentialNow ~= 0.0 1e-12
click but_Calc
settle
expect form.vVol == 11
expect form.sClicks == 1
expect frm_CalcDirect.visible == false
expect but_ShowMag.visible == true
# 1 mL
expect form.vCase == 2
expect form.vPotential ~= 0.23284186036741528 1e-12
expect form.vPotentialText == 0,23
expect form.vPotentialNow ~= 0.23 1e-12
expect form.vSilverIon ~= 2.438653940517523e-10 2.4386539405175234e-19
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0.23
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 0
expect series(1).count == 1
expect series(1).x(1) == 1
expect series(1).y(1) ~= 0.23 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 1
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 12
# 2 mL
expect form.vCase == 2
expect form.vPotential ~= 0.2380893842842854 1e-12
expect form.vPotentialText == 0,24
expect form.vPotentialNow ~= 0.24 1e-12
expect form.vSilverIon ~= 2.9928934724533244e-10 2.992893472453325e-19
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0,24
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 0
expect series(1).count == 2
expect series(1).x(2) == 2
expect series(1).y(2) ~= 0.24 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 2
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 13
# 3 mL
expect form.vCase == 2
expect form.vPotential ~= 0.24356187342526237 1e-12
expect form.vPotentialText == 0,24
expect form.vPotentialNow ~= 0.24 1e-12
expect form.vSilverIon ~= 3.7054871563707816e-10 3.705487156370782e-19
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0.24
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 3. Punkt"
expect report progress 3 0
expect series(1).count == 3
expect series(1).x(3) == 3
expect series(1).y(3) ~= 0.24 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 3
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 14
# 4 mL
expect form.vCase == 2
expect form.vPotential ~= 0.2494106303323812 1e-12
expect form.vPotentialText == 0,25
expect form.vPotentialNow ~= 0.25 1e-12
expect form.vSilverIon ~= 4.655612068260727e-10 4.655612068260727e-19
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0,25
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 4. Punkt"
expect report progress 4 0
expect series(1).count == 4
expect series(1).x(4) == 4
expect series(1).y(4) ~= 0.25 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 4
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 15
# 5 mL
expect form.vCase == 2
expect form.vPotential ~= 0.25585015402846023 1e-12
expect form.vPotentialText == 0,26
expect form.vPotentialNow ~= 0.26 1e-12
expect form.vSilverIon ~= 5.985786944906648e-10 5.985786944906648e-19
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0.26
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 5. Punkt"
expect report progress 5 0
expect series(1).count == 5
expect series(1).x(5) == 5
expect series(1).y(5) ~= 0.26 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 5
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 16
# 6 mL
expect form.vCase == 2
expect form.vPotential ~= 0.2632215394883499 1e-12
expect form.vPotentialText == 0,26
expect form.vPotentialNow ~= 0.26 1e-12
expect form.vSilverIon ~= 7.981049259875531e-10 7.981049259875532e-19
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0,26
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 6. Punkt"
expect report progress 6 0
expect series(1).count == 6
expect series(1).x(6) == 6
expect series(1).y(6) ~= 0.26 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 6
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 17
# 7 mL
expect form.vCase == 2
expect form.vPotential ~= 0.27214633233285834 1e-12
expect form.vPotentialText == 0,27
expect form.vPotentialNow ~= 0.27 1e-12
expect form.vSilverIon ~= 1.1306486451490336e-09 1.1306486451490337e-18
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0.27
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 7. Punkt"
expect report progress 7 0
expect series(1).count == 7
expect series(1).x(7) == 7
expect series(1).y(7) ~= 0.27 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 7
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 18
# 8 mL
expect form.vCase == 2
expect form.vPotential ~= 0.28400030805692045 1e-12
expect form.vPotentialText == 0,28
expect form.vPotentialNow ~= 0.28 1e-12
expect form.vSilverIon ~= 1.7957360834719944e-09 1.7957360834719945e-18
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0,28
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 8. Punkt"
expect report progress 8 0
expect series(1).count == 8
expect series(1).x(8) == 8
expect series(1).y(8) ~= 0.28 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 8
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 19
# 9 mL
expect form.vCase == 2
expect form.vPotential ~= 0.3031464624562171 1e-12
expect form.vPotentialText == 0,30
expect form.vPotentialNow ~= 0.3 1e-12
expect form.vSilverIon ~= 3.790998398440874e-09 3.790998398440874e-18
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0.30
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 9. Punkt"
expect report progress 9 0
expect series(1).count == 9
expect series(1).x(9) == 9
expect series(1).y(9) ~= 0.3 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 9
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 20
# 10 mL
expect form.vCase == 3
expect form.vPotential ~= 0.5138500000000001 1e-12
expect form.vPotentialText == 0,51
expect form.vPotentialNow ~= 0.51 1e-12
expect form.vSilverIon ~= 1.4125375446227555e-05 1.4125375446227555e-14
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0,51
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 10. Punkt"
expect report progress 10 0
expect series(1).count == 10
expect series(1).x(10) == 10
expect series(1).y(10) ~= 0.51 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 10
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 21
# 11 mL
expect form.vCase == 4
expect form.vPotential ~= 0.7219890616106988 1e-12
expect form.vPotentialText == 0,72
expect form.vPotentialNow ~= 0.72 1e-12
expect form.vSilverIon ~= 0.047619047619047575 4.761904761904758e-11
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0.72
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 11. Punkt"
expect report progress 11 0
expect series(1).count == 11
expect series(1).x(11) == 11
expect series(1).y(11) ~= 0.72 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 11
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 22
# 12 mL
expect form.vCase == 4
expect form.vPotential ~= 0.7385578315756648 1e-12
expect form.vPotentialText == 0,74
expect form.vPotentialNow ~= 0.74 1e-12
expect form.vSilverIon ~= 0.09090909090909091 9.090909090909092e-11
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0,74
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 12. Punkt"
expect report progress 12 0
expect series(1).count == 12
expect series(1).x(12) == 12
expect series(1).y(12) ~= 0.74 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 12
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 23
# 13 mL
expect form.vCase == 4
expect form.vPotential ~= 0.7478082117034222 1e-12
expect form.vPotentialText == 0,75
expect form.vPotentialNow ~= 0.75 1e-12
expect form.vSilverIon ~= 0.13043478260869562 1.3043478260869563e-10
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0.75
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 13. Punkt"
expect report progress 13 0
expect series(1).count == 13
expect series(1).x(13) == 13
expect series(1).y(13) ~= 0.75 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 13
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 24
# 14 mL
expect form.vCase == 4
expect form.vPotential ~= 0.7540890762273651 1e-12
expect form.vPotentialText == 0,75
expect form.vPotentialNow ~= 0.75 1e-12
expect form.vSilverIon ~= 0.16666666666666666 1.6666666666666666e-10
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0,75
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 14. Punkt"
expect report progress 14 0
expect series(1).count == 14
expect series(1).x(14) == 14
expect series(1).y(14) ~= 0.75 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 14
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 25
# 15 mL
expect form.vCase == 4
expect form.vPotential ~= 0.758760769744175 1e-12
expect form.vPotentialText == 0,76
expect form.vPotentialNow ~= 0.76 1e-12
expect form.vSilverIon ~= 0.19999999999999996 1.9999999999999996e-10
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0.76
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 15. Punkt"
expect report progress 15 0
expect series(1).count == 15
expect series(1).x(15) == 15
expect series(1).y(15) ~= 0.76 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 15
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 26
# 16 mL
expect form.vCase == 4
expect form.vPotential ~= 0.7624274962423567 1e-12
expect form.vPotentialText == 0,76
expect form.vPotentialNow ~= 0.76 1e-12
expect form.vSilverIon ~= 0.23076923076923078 2.307692307692308e-10
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0,76
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 16. Punkt"
expect report progress 16 0
expect series(1).count == 16
expect series(1).x(16) == 16
expect series(1).y(16) ~= 0.76 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 16
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 27
# 17 mL
expect form.vCase == 4
expect form.vPotential ~= 0.7654103222754609 1e-12
expect form.vPotentialText == 0,77
expect form.vPotentialNow ~= 0.77 1e-12
expect form.vSilverIon ~= 0.2592592592592593 2.592592592592593e-10
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0.77
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 17. Punkt"
expect report progress 17 0
expect series(1).count == 17
expect series(1).x(17) == 17
expect series(1).y(17) ~= 0.77 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 17
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 28
# 18 mL
expect form.vCase == 4
expect form.vPotential ~= 0.7678999853833338 1e-12
expect form.vPotentialText == 0,77
expect form.vPotentialNow ~= 0.77 1e-12
expect form.vSilverIon ~= 0.28571428571428564 2.8571428571428566e-10
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0,77
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 18. Punkt"
expect report progress 18 0
expect series(1).count == 18
expect series(1).x(18) == 18
expect series(1).y(18) ~= 0.77 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 18
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 29
# 19 mL
expect form.vCase == 4
expect form.vPotential ~= 0.7700188261808818 1e-12
expect form.vPotentialText == 0,77
expect form.vPotentialNow ~= 0.77 1e-12
expect form.vSilverIon ~= 0.31034482758620685 3.103448275862069e-10
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0.77
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 19. Punkt"
expect report progress 19 0
expect series(1).count == 19
expect series(1).x(19) == 19
expect series(1).y(19) ~= 0.77 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 19
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 30
# 20 mL
expect form.vCase == 4
expect form.vPotential ~= 0.7718498459715399 1e-12
expect form.vPotentialText == 0,77
expect form.vPotentialNow ~= 0.77 1e-12
expect form.vSilverIon ~= 0.33333333333333337 3.3333333333333337e-10
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0,77
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 20. Punkt"
expect report progress 20 0
expect series(1).count == 20
expect series(1).x(20) == 20
expect series(1).y(20) ~= 0.77 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 20
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
expect form frm_DialogDone
expect form.Score == 1000
expect form.Mark == 1
expect lab_Mark.text == "Sehr gut"
expect lab_Points.text == 20
expect lab_Wrong.text == "0 mal"
expect lab_HelpUsed.text == "0 mal"
expect lab_SolveUsed.text == "0 mal"
expect report result 1000 1 "Sehr gut"
expect sound result_good
click bar_Buttons
expect form frm_AppMainSilver
expect form.vTaskStep == 3
expect form.vBurShown == false
expect nobox
expect noreport
menu mnu_FileQuit
expect ended
