# Chloride with silver of 0.8 mol/L: a direct answer at every mL to the best mark.
name Mia
start
choose SSTab1 3
choose lst_Mol 0.8
check opt_NeedCalc off
click ctl_Button8
expect form frm_AppMainSilverStart
expect form.Accepted == false
click bar_Buttons
expect form frm_AppMainSilver
expect nobox
expect session.SessionConcentration == 0.8
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
expect beaker.countsort(3) == 8
expect beaker.countsort(5) == 8
expect beaker.count == 16
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
expect form.vPotential ~= 0.2392813840634943 1e-12
expect form.vPotentialText == 0,24
expect form.vPotentialNow ~= 0.24 1e-12
expect form.vSilverIon ~= 3.1354122092368156e-10 3.135412209236816e-19
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0.24
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 0
expect series(1).count == 1
expect series(1).x(1) == 1
expect series(1).y(1) ~= 0.24 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 1
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 12
# 2 mL
expect form.vCase == 2
expect form.vPotential ~= 0.24546076974417508 1e-12
expect form.vPotentialText == 0,25
expect form.vPotentialNow ~= 0.25 1e-12
expect form.vSilverIon ~= 3.9905246299377657e-10 3.990524629937766e-19
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0,25
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 0
expect series(1).count == 2
expect series(1).x(2) == 2
expect series(1).y(2) ~= 0.25 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 2
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 13
# 3 mL
expect form.vCase == 2
expect form.vPotential ~= 0.25218342753027834 1e-12
expect form.vPotentialText == 0,25
expect form.vPotentialNow ~= 0.25 1e-12
expect form.vSilverIon ~= 5.187682018919095e-10 5.187682018919095e-19
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0.25
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 3. Punkt"
expect report progress 3 0
expect series(1).count == 3
expect series(1).x(3) == 3
expect series(1).y(3) ~= 0.25 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 3
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 14
# 4 mL
expect form.vCase == 2
expect form.vPotential ~= 0.25980001461666635 1e-12
expect form.vPotentialText == 0,26
expect form.vPotentialNow ~= 0.26 1e-12
expect form.vSilverIon ~= 6.983418102391091e-10 6.983418102391091e-19
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0,26
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 4. Punkt"
expect report progress 4 0
expect series(1).count == 4
expect series(1).x(4) == 4
expect series(1).y(4) ~= 0.26 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 4
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 15
# 5 mL
expect form.vCase == 2
expect form.vPotential ~= 0.26893923025582533 1e-12
expect form.vPotentialText == 0,27
expect form.vPotentialNow ~= 0.27 1e-12
expect form.vSilverIon ~= 9.976311574844414e-10 9.976311574844414e-19
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0.27
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 5. Punkt"
expect report progress 5 0
expect series(1).count == 5
expect series(1).x(5) == 5
expect series(1).y(5) ~= 0.27 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 5
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 16
# 6 mL
expect form.vCase == 2
expect form.vPotential ~= 0.2809823092325249 1e-12
expect form.vPotentialText == 0,28
expect form.vPotentialNow ~= 0.28 1e-12
expect form.vSilverIon ~= 1.5962098519751063e-09 1.5962098519751064e-18
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0,28
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 6. Punkt"
expect report progress 6 0
expect series(1).count == 6
expect series(1).x(6) == 6
expect series(1).y(6) ~= 0.28 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 6
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 17
# 7 mL
expect form.vCase == 2
expect form.vPotential ~= 0.3002964863613184 1e-12
expect form.vPotentialText == 0,30
expect form.vPotentialNow ~= 0.3 1e-12
expect form.vSilverIon ~= 3.391945935447101e-09 3.391945935447101e-18
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0.30
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 7. Punkt"
expect report progress 7 0
expect series(1).count == 7
expect series(1).x(7) == 7
expect series(1).y(7) ~= 0.3 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 7
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 18
# 8 mL
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
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 8. Punkt"
expect report progress 8 0
expect series(1).count == 8
expect series(1).x(8) == 8
expect series(1).y(8) ~= 0.51 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 8
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 19
# 9 mL
expect form.vCase == 4
expect form.vPotential ~= 0.7245535375437832 1e-12
expect form.vPotentialText == 0,72
expect form.vPotentialNow ~= 0.72 1e-12
expect form.vSilverIon ~= 0.052631578947368376 5.263157894736838e-11
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0.72
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 9. Punkt"
expect report progress 9 0
expect series(1).count == 9
expect series(1).x(9) == 9
expect series(1).y(9) ~= 0.72 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 9
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 20
# 10 mL
expect form.vCase == 4
expect form.vPotential ~= 0.7410000000000001 1e-12
expect form.vPotentialText == 0,74
expect form.vPotentialNow ~= 0.74 1e-12
expect form.vSilverIon ~= 0.1 1.0000000000000002e-10
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0,74
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 10. Punkt"
expect report progress 10 0
expect series(1).count == 10
expect series(1).x(10) == 10
expect series(1).y(10) ~= 0.74 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 10
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 21
# 11 mL
expect form.vCase == 4
expect form.vPotential ~= 0.7501392156391589 1e-12
expect form.vPotentialText == 0,75
expect form.vPotentialNow ~= 0.75 1e-12
expect form.vSilverIon ~= 0.14285714285714282 1.4285714285714283e-10
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0.75
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 11. Punkt"
expect report progress 11 0
expect series(1).count == 11
expect series(1).x(11) == 11
expect series(1).y(11) ~= 0.75 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 11
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 22
# 12 mL
expect form.vCase == 4
expect form.vPotential ~= 0.7563186013198396 1e-12
expect form.vPotentialText == 0,76
expect form.vPotentialNow ~= 0.76 1e-12
expect form.vSilverIon ~= 0.18181818181818182 1.8181818181818185e-10
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0,76
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 12. Punkt"
expect report progress 12 0
expect series(1).count == 12
expect series(1).x(12) == 12
expect series(1).y(12) ~= 0.76 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 12
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 23
# 13 mL
expect form.vCase == 4
expect form.vPotential ~= 0.7608972879307871 1e-12
expect form.vPotentialText == 0,76
expect form.vPotentialNow ~= 0.76 1e-12
expect form.vSilverIon ~= 0.21739130434782605 2.1739130434782608e-10
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0.76
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 13. Punkt"
expect report progress 13 0
expect series(1).count == 13
expect series(1).x(13) == 13
expect series(1).y(13) ~= 0.76 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 13
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 24
# 14 mL
expect form.vCase == 4
expect form.vPotential ~= 0.7644784605116502 1e-12
expect form.vPotentialText == 0,76
expect form.vPotentialNow ~= 0.76 1e-12
expect form.vSilverIon ~= 0.25 2.5e-10
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0,76
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 14. Punkt"
expect report progress 14 0
expect series(1).count == 14
expect series(1).x(14) == 14
expect series(1).y(14) ~= 0.76 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 14
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 25
# 15 mL
expect form.vCase == 4
expect form.vPotential ~= 0.767382323849191 1e-12
expect form.vPotentialText == 0,77
expect form.vPotentialNow ~= 0.77 1e-12
expect form.vSilverIon ~= 0.27999999999999997 2.7999999999999996e-10
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0.77
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 15. Punkt"
expect report progress 15 0
expect series(1).count == 15
expect series(1).x(15) == 15
expect series(1).y(15) ~= 0.77 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 15
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 26
# 16 mL
expect form.vCase == 4
expect form.vPotential ~= 0.7697988817022464 1e-12
expect form.vPotentialText == 0,77
expect form.vPotentialNow ~= 0.77 1e-12
expect form.vSilverIon ~= 0.3076923076923077 3.0769230769230775e-10
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0,77
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 16. Punkt"
expect report progress 16 0
expect series(1).count == 16
expect series(1).x(16) == 16
expect series(1).y(16) ~= 0.77 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 16
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 27
# 17 mL
expect form.vCase == 4
expect form.vPotential ~= 0.7718498459715399 1e-12
expect form.vPotentialText == 0,77
expect form.vPotentialNow ~= 0.77 1e-12
expect form.vSilverIon ~= 0.33333333333333337 3.3333333333333337e-10
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
expect form.vPotential ~= 0.7736176761508091 1e-12
expect form.vPotentialText == 0,77
expect form.vPotentialNow ~= 0.77 1e-12
expect form.vSilverIon ~= 0.3571428571428571 3.571428571428571e-10
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
expect form.vPotential ~= 0.775160686548297 1e-12
expect form.vPotentialText == 0,78
expect form.vPotentialNow ~= 0.78 1e-12
expect form.vSilverIon ~= 0.3793103448275862 3.793103448275862e-10
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0.78
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 19. Punkt"
expect report progress 19 0
expect series(1).count == 19
expect series(1).x(19) == 19
expect series(1).y(19) ~= 0.78 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 19
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 30
# 20 mL
expect form.vCase == 4
expect form.vPotential ~= 0.7765215394883498 1e-12
expect form.vPotentialText == 0,78
expect form.vPotentialNow ~= 0.78 1e-12
expect form.vSilverIon ~= 0.4 4.0000000000000007e-10
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0,78
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 20. Punkt"
expect report progress 20 0
expect series(1).count == 20
expect series(1).x(20) == 20
expect series(1).y(20) ~= 0.78 1e-12
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
