# Weak acid of 0.6 mol/L: a direct answer at every mL to the best mark.
name Mia
start
choose SSTab1 3
choose lst_Mol 0.6
check opt_NeedCalc off
click ctl_Button4
expect form frm_AppMainWeak
expect nobox
expect session.SessionConcentration == 0.6
expect session.SessionDemo == false
expect session.SessionRequiredPoints == ""
expect but_ShowMag.visible == true
expect lab_Step0.text == "Schwache Säure mit  pKs = 4,76"
expect form.caption == "Morvik // Quendal - Schwache Säure mit starker Base"
expect but_ShowMag.text == "Säure-Base-Gleichgewicht ansehen"
expect lab_pHName.term == "pH Wert:"
expect frm_CalcDirect.text == "pH-Wert ausrechnen"
expect frm_Calc.text == "pH-Wert ausrechnen"
expect lab_Bilanz(0).term == H3O+
expect lab_Bilanz(0).visible == true
expect lab_Bilanz(1).term == Na+
expect lab_Bilanz(1).visible == true
expect lab_Bilanz(2).term == HAc
expect lab_Bilanz(2).visible == true
expect lab_Bilanz(3).term == Ac-
expect lab_Bilanz(3).visible == true
expect lab_Bilanz(4).term == OH-
expect lab_Bilanz(4).visible == true
click but_Help
expect form frm_DialogHelp
expect form.FileName == weak.rtf
close
expect form frm_AppMainWeak
click ctl_Button1
settle
expect form.vVol == 10
expect beaker.countsort(10) == 6
expect beaker.count == 6
expect but_Calc.visible == true
expect lab_pH.text == ?
# 0 mL
expect form.vCase == 1
expect form.vPh ~= 2.490924374808178 1e-12
expect form.vPhText == 2,491
expect form.vPhNow ~= 2.491 1e-12
expect beaker.countsort(10) == 6
expect beaker.countsort(11) == 0
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 0
expect lab_BilanzCount(1).term == "0 mmol"
expect lab_BilanzCount(2).term == "6 mmol"
expect lab_BilanzCount(3).term == "0 mmol"
expect lab_BilanzCount(0).term == "0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 2,491
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 0
expect series(1).count == 1
expect series(1).x(1) == 0
expect series(1).y(1) ~= 2.491 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 1
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 2,491
click ctl_Button3
settle
expect form.vVol == 11
# 1 mL
expect form.vCase == 2
expect form.vPh ~= 4.061029995663981 1e-12
expect form.vPhText == 4,061
expect form.vPhNow ~= 4.061 1e-12
expect beaker.countsort(10) == 5
expect beaker.countsort(11) == 1
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 1
expect lab_BilanzCount(1).term == "1 mmol"
expect lab_BilanzCount(2).term == "5 mmol"
expect lab_BilanzCount(3).term == "1 mmol"
expect lab_BilanzCount(0).term == "0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 4.061
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 0
expect series(1).count == 2
expect series(1).x(2) == 1
expect series(1).y(2) ~= 4.061 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 2
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 4,061
click ctl_Button3
settle
expect form.vVol == 12
# 2 mL
expect form.vCase == 2
expect form.vPh ~= 4.4589700043360185 1e-12
expect form.vPhText == 4,459
expect form.vPhNow ~= 4.459 1e-12
expect beaker.countsort(10) == 4
expect beaker.countsort(11) == 2
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 2
expect lab_BilanzCount(1).term == "2 mmol"
expect lab_BilanzCount(2).term == "4 mmol"
expect lab_BilanzCount(3).term == "2 mmol"
expect lab_BilanzCount(0).term == "0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 4,459
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 3. Punkt"
expect report progress 3 0
expect series(1).count == 3
expect series(1).x(3) == 2
expect series(1).y(3) ~= 4.459 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 3
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 4,459
click ctl_Button3
settle
expect form.vVol == 13
# 3 mL
expect form.vCase == 2
expect form.vPh ~= 4.76 1e-12
expect form.vPhText == 4,760
expect form.vPhNow ~= 4.76 1e-12
expect beaker.countsort(10) == 3
expect beaker.countsort(11) == 3
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 3
expect lab_BilanzCount(1).term == "3 mmol"
expect lab_BilanzCount(2).term == "3 mmol"
expect lab_BilanzCount(3).term == "3 mmol"
expect lab_BilanzCount(0).term == "0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 4.760
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 4. Punkt"
expect report progress 4 0
expect series(1).count == 4
expect series(1).x(4) == 3
expect series(1).y(4) ~= 4.76 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 4
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 4,760
click ctl_Button3
settle
expect form.vVol == 14
# 4 mL
expect form.vCase == 2
expect form.vPh ~= 5.061029995663981 1e-12
expect form.vPhText == 5,061
expect form.vPhNow ~= 5.061 1e-12
expect beaker.countsort(10) == 2
expect beaker.countsort(11) == 4
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 4
expect lab_BilanzCount(1).term == "4 mmol"
expect lab_BilanzCount(2).term == "2 mmol"
expect lab_BilanzCount(3).term == "4 mmol"
expect lab_BilanzCount(0).term == "0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 5,061
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 5. Punkt"
expect report progress 5 0
expect series(1).count == 5
expect series(1).x(5) == 4
expect series(1).y(5) ~= 5.061 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 5
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 5,061
click ctl_Button3
settle
expect form.vVol == 15
# 5 mL
expect form.vCase == 2
expect form.vPh ~= 5.4589700043360185 1e-12
expect form.vPhText == 5,459
expect form.vPhNow ~= 5.459 1e-12
expect beaker.countsort(10) == 1
expect beaker.countsort(11) == 5
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 5
expect lab_BilanzCount(1).term == "5 mmol"
expect lab_BilanzCount(2).term == "1 mmol"
expect lab_BilanzCount(3).term == "5 mmol"
expect lab_BilanzCount(0).term == "0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 5.459
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 6. Punkt"
expect report progress 6 0
expect series(1).count == 6
expect series(1).x(6) == 5
expect series(1).y(6) ~= 5.459 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 6
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 5,459
click ctl_Button3
settle
expect form.vVol == 16
# 6 mL
expect form.vCase == 3
expect form.vPh ~= 9.167015633863858 1e-12
expect form.vPhText == 9,167
expect form.vPhNow ~= 9.167 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 6
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 6
expect lab_BilanzCount(1).term == "6 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "6 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 9,167
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 7. Punkt"
expect report progress 7 0
expect series(1).count == 7
expect series(1).x(7) == 6
expect series(1).y(7) ~= 9.167 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 7
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 9,167
click ctl_Button3
settle
expect form.vVol == 17
# 7 mL
expect form.vCase == 4
expect form.vPh ~= 12.769551078621726 1e-12
expect form.vPhText == 12,770
expect form.vPhNow ~= 12.77 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 6
expect beaker.countsort(9) == 1
expect beaker.countsort(5) == 7
expect lab_BilanzCount(1).term == "7 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "6 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "1 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 12.770
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 8. Punkt"
expect report progress 8 0
expect series(1).count == 8
expect series(1).x(8) == 7
expect series(1).y(8) ~= 12.77 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 8
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 12,770
click ctl_Button3
settle
expect form.vVol == 18
# 8 mL
expect form.vCase == 4
expect form.vPh ~= 13.045757490560675 1e-12
expect form.vPhText == 13,046
expect form.vPhNow ~= 13.046 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 6
expect beaker.countsort(9) == 2
expect beaker.countsort(5) == 8
expect lab_BilanzCount(1).term == "8 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "6 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "2 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13,046
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 9. Punkt"
expect report progress 9 0
expect series(1).count == 9
expect series(1).x(9) == 8
expect series(1).y(9) ~= 13.046 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 9
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 13,046
click ctl_Button3
settle
expect form.vVol == 19
# 9 mL
expect form.vCase == 4
expect form.vPh ~= 13.198367653766834 1e-12
expect form.vPhText == 13,198
expect form.vPhNow ~= 13.198 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 6
expect beaker.countsort(9) == 3
expect beaker.countsort(5) == 9
expect lab_BilanzCount(1).term == "9 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "6 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "3 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13.198
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 10. Punkt"
expect report progress 10 0
expect series(1).count == 10
expect series(1).x(10) == 9
expect series(1).y(10) ~= 13.198 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 10
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 13,198
click ctl_Button3
settle
expect form.vVol == 20
# 10 mL
expect form.vCase == 4
expect form.vPh ~= 13.301029995663981 1e-12
expect form.vPhText == 13,301
expect form.vPhNow ~= 13.301 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 6
expect beaker.countsort(9) == 4
expect beaker.countsort(5) == 10
expect lab_BilanzCount(1).term == "10 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "6 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "4 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13,301
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 11. Punkt"
expect report progress 11 0
expect series(1).count == 11
expect series(1).x(11) == 10
expect series(1).y(11) ~= 13.301 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 11
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 13,301
click ctl_Button3
settle
expect form.vVol == 21
# 11 mL
expect form.vCase == 4
expect form.vPh ~= 13.3767507096021 1e-12
expect form.vPhText == 13,377
expect form.vPhNow ~= 13.377 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 6
expect beaker.countsort(9) == 5
expect beaker.countsort(5) == 11
expect lab_BilanzCount(1).term == "11 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "6 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "5 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13.377
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 12. Punkt"
expect report progress 12 0
expect series(1).count == 12
expect series(1).x(12) == 11
expect series(1).y(12) ~= 13.377 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 12
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 13,377
click ctl_Button3
settle
expect form.vVol == 22
# 12 mL
expect form.vCase == 4
expect form.vPh ~= 13.435728569561437 1e-12
expect form.vPhText == 13,436
expect form.vPhNow ~= 13.436 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 6
expect beaker.countsort(9) == 6
expect beaker.countsort(5) == 12
expect lab_BilanzCount(1).term == "12 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "6 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "6 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13,436
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 13. Punkt"
expect report progress 13 0
expect series(1).count == 13
expect series(1).x(13) == 12
expect series(1).y(13) ~= 13.436 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 13
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 13,436
click ctl_Button3
settle
expect form.vVol == 23
# 13 mL
expect form.vCase == 4
expect form.vPh ~= 13.483370203996664 1e-12
expect form.vPhText == 13,483
expect form.vPhNow ~= 13.483 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 6
expect beaker.countsort(9) == 7
expect beaker.countsort(5) == 13
expect lab_BilanzCount(1).term == "13 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "6 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "7 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13.483
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 14. Punkt"
expect report progress 14 0
expect series(1).count == 14
expect series(1).x(14) == 13
expect series(1).y(14) ~= 13.483 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 14
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 13,483
click ctl_Button3
settle
expect form.vVol == 24
# 14 mL
expect form.vCase == 4
expect form.vPh ~= 13.522878745280337 1e-12
expect form.vPhText == 13,523
expect form.vPhNow ~= 13.523 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 6
expect beaker.countsort(9) == 8
expect beaker.countsort(5) == 14
expect lab_BilanzCount(1).term == "14 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "6 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "8 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13,523
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 15. Punkt"
expect report progress 15 0
expect series(1).count == 15
expect series(1).x(15) == 14
expect series(1).y(15) ~= 13.523 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 15
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 13,523
click ctl_Button3
settle
expect form.vVol == 25
# 15 mL
expect form.vCase == 4
expect form.vPh ~= 13.556302500767288 1e-12
expect form.vPhText == 13,556
expect form.vPhNow ~= 13.556 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 6
expect beaker.countsort(9) == 9
expect beaker.countsort(5) == 15
expect lab_BilanzCount(1).term == "15 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "6 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "9 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13.556
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 16. Punkt"
expect report progress 16 0
expect series(1).count == 16
expect series(1).x(16) == 15
expect series(1).y(16) ~= 13.556 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 16
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 13,556
click ctl_Button3
settle
expect form.vVol == 26
# 16 mL
expect form.vCase == 4
expect form.vPh ~= 13.585026652029182 1e-12
expect form.vPhText == 13,585
expect form.vPhNow ~= 13.585 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 6
expect beaker.countsort(9) == 10
expect beaker.countsort(5) == 16
expect lab_BilanzCount(1).term == "16 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "6 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "10 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13,585
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 17. Punkt"
expect report progress 17 0
expect series(1).count == 17
expect series(1).x(17) == 16
expect series(1).y(17) ~= 13.585 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 17
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 13,585
click ctl_Button3
settle
expect form.vVol == 27
# 17 mL
expect form.vCase == 4
expect form.vPh ~= 13.610028920999238 1e-12
expect form.vPhText == 13,610
expect form.vPhNow ~= 13.61 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 6
expect beaker.countsort(9) == 11
expect beaker.countsort(5) == 17
expect lab_BilanzCount(1).term == "17 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "6 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "11 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13.610
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 18. Punkt"
expect report progress 18 0
expect series(1).count == 18
expect series(1).x(18) == 17
expect series(1).y(18) ~= 13.61 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 18
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 13,610
click ctl_Button3
settle
expect form.vVol == 28
# 18 mL
expect form.vCase == 4
expect form.vPh ~= 13.632023214705406 1e-12
expect form.vPhText == 13,632
expect form.vPhNow ~= 13.632 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 6
expect beaker.countsort(9) == 12
expect beaker.countsort(5) == 18
expect lab_BilanzCount(1).term == "18 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "6 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "12 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13,632
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 19. Punkt"
expect report progress 19 0
expect series(1).count == 19
expect series(1).x(19) == 18
expect series(1).y(19) ~= 13.632 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 19
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 13,632
click ctl_Button3
settle
expect form.vVol == 29
# 19 mL
expect form.vCase == 4
expect form.vPh ~= 13.651545354407881 1e-12
expect form.vPhText == 13,652
expect form.vPhNow ~= 13.652 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 6
expect beaker.countsort(9) == 13
expect beaker.countsort(5) == 19
expect lab_BilanzCount(1).term == "19 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "6 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "13 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13.652
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 20. Punkt"
expect report progress 20 0
expect series(1).count == 20
expect series(1).x(20) == 19
expect series(1).y(20) ~= 13.652 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 20
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 13,652
click ctl_Button3
settle
expect form.vVol == 30
# 20 mL
expect form.vCase == 4
expect form.vPh ~= 13.669006780958576 1e-12
expect form.vPhText == 13,669
expect form.vPhNow ~= 13.669 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 6
expect beaker.countsort(9) == 14
expect beaker.countsort(5) == 20
expect lab_BilanzCount(1).term == "20 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "6 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "14 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13,669
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 21. Punkt"
expect report progress 21 0
expect series(1).count == 21
expect series(1).x(21) == 20
expect series(1).y(21) ~= 13.669 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 21
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 13,669
expect form frm_DialogDone
expect form.Score == 1000
expect form.Mark == 1
expect lab_Mark.text == "Sehr gut"
expect lab_Points.text == 21
expect lab_Wrong.text == "0 mal"
expect lab_HelpUsed.text == "0 mal"
expect lab_SolveUsed.text == "0 mal"
expect report result 1000 1 "Sehr gut"
expect sound result_good
click bar_Buttons
expect form frm_AppMainWeak
expect form.vTaskStep == 3
expect form.vBurShown == false
expect nobox
expect noreport
menu mnu_FileQuit
expect ended
