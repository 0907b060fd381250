# Chloride with silver of 1.4 mol/L: a direct answer at every mL to the best mark.
name Mia
start
choose SSTab1 3
choose lst_Mol 1.4
check opt_NeedCalc off
click ctl_Button8
expect form frm_AppMainSilverStart
expect form.Accepted == false
click bar_Buttons
expect form frm_AppMainSilver
expect nobox
expect session.SessionConcentration == 1.4
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
expect beaker.countsort(3) == 14
expect beaker.countsort(5) == 14
expect beaker.count == 28
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
expect form.vPotential ~= 0.22341951063823218 1e-12
expect form.vPotentialText == 0,22
expect form.vPotentialNow ~= 0.22 1e-12
expect form.vSilverIon ~= 1.6882988818967472e-10 1.6882988818967474e-19
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0.22
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 0
expect series(1).count == 1
expect series(1).x(1) == 1
expect series(1).y(1) ~= 0.22 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 1
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 12
# 2 mL
expect form.vCase == 2
expect form.vPotential ~= 0.22770000000000012 1e-12
expect form.vPotentialText == 0,23
expect form.vPotentialNow ~= 0.23 1e-12
expect form.vSilverIon ~= 1.995262314968883e-10 1.9952623149688832e-19
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0,23
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 0
expect series(1).count == 2
expect series(1).x(2) == 2
expect series(1).y(2) ~= 0.23 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 2
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 13
# 3 mL
expect form.vCase == 2
expect form.vPotential ~= 0.2319804893617683 1e-12
expect form.vPotentialText == 0,23
expect form.vPotentialNow ~= 0.23 1e-12
expect form.vSilverIon ~= 2.3580372813268616e-10 2.358037281326862e-19
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0.23
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 3. Punkt"
expect report progress 3 0
expect series(1).count == 3
expect series(1).x(3) == 3
expect series(1).y(3) ~= 0.23 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 3
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 14
# 4 mL
expect form.vCase == 2
expect form.vPotential ~= 0.23632155410501632 1e-12
expect form.vPotentialText == 0,24
expect form.vPotentialNow ~= 0.24 1e-12
expect form.vSilverIon ~= 2.793367240956436e-10 2.793367240956436e-19
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0,24
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 4. Punkt"
expect report progress 4 0
expect series(1).count == 4
expect series(1).x(4) == 4
expect series(1).y(4) ~= 0.24 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 4
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 15
# 5 mL
expect form.vCase == 2
expect form.vPotential ~= 0.24078907622736523 1e-12
expect form.vPotentialText == 0,24
expect form.vPotentialNow ~= 0.24 1e-12
expect form.vSilverIon ~= 3.3254371916148055e-10 3.3254371916148056e-19
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0.24
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 5. Punkt"
expect report progress 5 0
expect series(1).count == 5
expect series(1).x(5) == 5
expect series(1).y(5) ~= 0.24 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 5
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 16
# 6 mL
expect form.vCase == 2
expect form.vPotential ~= 0.24546076974417508 1e-12
expect form.vPotentialText == 0,25
expect form.vPotentialNow ~= 0.25 1e-12
expect form.vSilverIon ~= 3.9905246299377667e-10 3.990524629937767e-19
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0,25
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 6. Punkt"
expect report progress 6 0
expect series(1).count == 6
expect series(1).x(6) == 6
expect series(1).y(6) ~= 0.25 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 6
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 17
# 7 mL
expect form.vCase == 2
expect form.vPotential ~= 0.25043570200047716 1e-12
expect form.vPotentialText == 0,25
expect form.vPotentialNow ~= 0.25 1e-12
expect form.vSilverIon ~= 4.845637050638717e-10 4.845637050638717e-19
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0.25
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 7. Punkt"
expect report progress 7 0
expect series(1).count == 7
expect series(1).x(7) == 7
expect series(1).y(7) ~= 0.25 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 7
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 18
# 8 mL
expect form.vCase == 2
expect form.vPotential ~= 0.25585015402846023 1e-12
expect form.vPotentialText == 0,26
expect form.vPotentialNow ~= 0.26 1e-12
expect form.vSilverIon ~= 5.98578694490665e-10 5.985786944906651e-19
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0,26
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 8. Punkt"
expect report progress 8 0
expect series(1).count == 8
expect series(1).x(8) == 8
expect series(1).y(8) ~= 0.26 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 8
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 19
# 9 mL
expect form.vCase == 2
expect form.vPotential ~= 0.261907232200392 1e-12
expect form.vPotentialText == 0,26
expect form.vPotentialNow ~= 0.26 1e-12
expect form.vSilverIon ~= 7.581996796881755e-10 7.581996796881756e-19
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0.26
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 9. Punkt"
expect report progress 9 0
expect series(1).count == 9
expect series(1).x(9) == 9
expect series(1).y(9) ~= 0.26 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 9
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 20
# 10 mL
expect form.vCase == 2
expect form.vPotential ~= 0.26893923025582533 1e-12
expect form.vPotentialText == 0,27
expect form.vPotentialNow ~= 0.27 1e-12
expect form.vSilverIon ~= 9.97631157484442e-10 9.97631157484442e-19
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0,27
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 10. Punkt"
expect report progress 10 0
expect series(1).count == 10
expect series(1).x(10) == 10
expect series(1).y(10) ~= 0.27 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 10
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 21
# 11 mL
expect form.vCase == 2
expect form.vPotential ~= 0.2775607843608414 1e-12
expect form.vPotentialText == 0,28
expect form.vPotentialNow ~= 0.28 1e-12
expect form.vSilverIon ~= 1.3966836204782183e-09 1.3966836204782184e-18
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0.28
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 11. Punkt"
expect report progress 11 0
expect series(1).count == 11
expect series(1).x(11) == 11
expect series(1).y(11) ~= 0.28 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 11
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 22
# 12 mL
expect form.vCase == 2
expect form.vPotential ~= 0.2891421684243354 1e-12
expect form.vPotentialText == 0,29
expect form.vPotentialNow ~= 0.29 1e-12
expect form.vSilverIon ~= 2.1947885464657728e-09 2.194788546465773e-18
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0,29
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 12. Punkt"
expect report progress 12 0
expect series(1).count == 12
expect series(1).x(12) == 12
expect series(1).y(12) ~= 0.29 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 12
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 23
# 13 mL
expect form.vCase == 2
expect form.vPotential ~= 0.30804194232503823 1e-12
expect form.vPotentialText == 0,31
expect form.vPotentialNow ~= 0.31 1e-12
expect form.vSilverIon ~= 4.589103324428434e-09 4.589103324428434e-18
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0.31
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 13. Punkt"
expect report progress 13 0
expect series(1).count == 13
expect series(1).x(13) == 13
expect series(1).y(13) ~= 0.31 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 13
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 24
# 14 mL
expect form.vCase == 4
expect form.vPotential ~= -0.15231787816730302 1e-12
expect form.vPotentialText == -0,15
expect form.vPotentialNow ~= -0.15 1e-12
expect form.vSilverIon ~= 7.228014483236696e-17 7.228014483236697e-26
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph -0,15
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 14. Punkt"
expect report progress 14 0
expect series(1).count == 14
expect series(1).x(14) == 14
expect series(1).y(14) ~= -0.15 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 14
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 25
# 15 mL
expect form.vCase == 4
expect form.vPotential ~= 0.7175215394883498 1e-12
expect form.vPotentialText == 0,72
expect form.vPotentialNow ~= 0.72 1e-12
expect form.vSilverIon ~= 0.040000000000000036 4.0000000000000036e-11
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0.72
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 15. Punkt"
expect report progress 15 0
expect series(1).count == 15
expect series(1).x(15) == 15
expect series(1).y(15) ~= 0.72 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 15
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 26
# 16 mL
expect form.vCase == 4
expect form.vPotential ~= 0.7342773422138967 1e-12
expect form.vPotentialText == 0,73
expect form.vPotentialNow ~= 0.73 1e-12
expect form.vSilverIon ~= 0.076923076923077 7.6923076923077e-11
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0,73
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 16. Punkt"
expect report progress 16 0
expect series(1).count == 16
expect series(1).x(16) == 16
expect series(1).y(16) ~= 0.73 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 16
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 27
# 17 mL
expect form.vCase == 4
expect form.vPotential ~= 0.7436996919430799 1e-12
expect form.vPotentialText == 0,74
expect form.vPotentialNow ~= 0.74 1e-12
expect form.vSilverIon ~= 0.11111111111111122 1.1111111111111122e-10
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0.74
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 17. Punkt"
expect report progress 17 0
expect series(1).count == 17
expect series(1).x(17) == 17
expect series(1).y(17) ~= 0.74 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 17
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 28
# 18 mL
expect form.vCase == 4
expect form.vPotential ~= 0.7501392156391589 1e-12
expect form.vPotentialText == 0,75
expect form.vPotentialNow ~= 0.75 1e-12
expect form.vSilverIon ~= 0.14285714285714285 1.4285714285714285e-10
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0,75
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 18. Punkt"
expect report progress 18 0
expect series(1).count == 18
expect series(1).x(18) == 18
expect series(1).y(18) ~= 0.75 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 18
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 29
# 19 mL
expect form.vCase == 4
expect form.vPotential ~= 0.7549577483797868 1e-12
expect form.vPotentialText == 0,75
expect form.vPotentialNow ~= 0.75 1e-12
expect form.vSilverIon ~= 0.1724137931034483 1.724137931034483e-10
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0.75
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 19. Punkt"
expect report progress 19 0
expect series(1).count == 19
expect series(1).x(19) == 19
expect series(1).y(19) ~= 0.75 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 19
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
click ctl_Button3
settle
expect form.vVol == 30
# 20 mL
expect form.vCase == 4
expect form.vPotential ~= 0.758760769744175 1e-12
expect form.vPotentialText == 0,76
expect form.vPotentialNow ~= 0.76 1e-12
expect form.vSilverIon ~= 0.20000000000000007 2.0000000000000008e-10
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0,76
key ENTER
expect sound "signal 2"
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 20. Punkt"
expect report progress 20 0
expect series(1).count == 20
expect series(1).x(20) == 20
expect series(1).y(20) ~= 0.76 1e-12
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
