# Weak acid of 0.8 mol/L: a direct answer at every mL to the best mark.
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
expect beaker.countsort(10) == 8
expect beaker.count == 8
expect but_Calc.visible == true
expect lab_pH.text == ?
# 0 mL
expect form.vCase == 1
expect form.vPh ~= 2.428455006504028 1e-12
expect form.vPhText == 2,428
expect form.vPhNow ~= 2.428 1e-12
expect beaker.countsort(10) == 8
expect beaker.countsort(11) == 0
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 0
expect lab_BilanzCount(1).term == "0 mmol"
expect lab_BilanzCount(2).term == "8 mmol"
expect lab_BilanzCount(3).term == "0 mmol"
expect lab_BilanzCount(0).term == "0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 2,428
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 0
expect series(1).count == 1
expect series(1).x(1) == 0
expect series(1).y(1) ~= 2.428 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 1
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 2,428
click ctl_Button3
settle
expect form.vVol == 11
# 1 mL
expect form.vCase == 2
expect form.vPh ~= 3.914901959985743 1e-12
expect form.vPhText == 3,915
expect form.vPhNow ~= 3.915 1e-12
expect beaker.countsort(10) == 7
expect beaker.countsort(11) == 1
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 1
expect lab_BilanzCount(1).term == "1 mmol"
expect lab_BilanzCount(2).term == "7 mmol"
expect lab_BilanzCount(3).term == "1 mmol"
expect lab_BilanzCount(0).term == "0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 3.915
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 0
expect series(1).count == 2
expect series(1).x(2) == 1
expect series(1).y(2) ~= 3.915 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 2
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 3,915
click ctl_Button3
settle
expect form.vVol == 12
# 2 mL
expect form.vCase == 2
expect form.vPh ~= 4.282878745280337 1e-12
expect form.vPhText == 4,283
expect form.vPhNow ~= 4.283 1e-12
expect beaker.countsort(10) == 6
expect beaker.countsort(11) == 2
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 2
expect lab_BilanzCount(1).term == "2 mmol"
expect lab_BilanzCount(2).term == "6 mmol"
expect lab_BilanzCount(3).term == "2 mmol"
expect lab_BilanzCount(0).term == "0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 4,283
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 3. Punkt"
expect report progress 3 0
expect series(1).count == 3
expect series(1).x(3) == 2
expect series(1).y(3) ~= 4.283 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 3
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 4,283
click ctl_Button3
settle
expect form.vVol == 13
# 3 mL
expect form.vCase == 2
expect form.vPh ~= 4.538151250383644 1e-12
expect form.vPhText == 4,538
expect form.vPhNow ~= 4.538 1e-12
expect beaker.countsort(10) == 5
expect beaker.countsort(11) == 3
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 3
expect lab_BilanzCount(1).term == "3 mmol"
expect lab_BilanzCount(2).term == "5 mmol"
expect lab_BilanzCount(3).term == "3 mmol"
expect lab_BilanzCount(0).term == "0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 4.538
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 4. Punkt"
expect report progress 4 0
expect series(1).count == 4
expect series(1).x(4) == 3
expect series(1).y(4) ~= 4.538 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 4
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 4,538
click ctl_Button3
settle
expect form.vVol == 14
# 4 mL
expect form.vCase == 2
expect form.vPh ~= 4.76 1e-12
expect form.vPhText == 4,760
expect form.vPhNow ~= 4.76 1e-12
expect beaker.countsort(10) == 4
expect beaker.countsort(11) == 4
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 4
expect lab_BilanzCount(1).term == "4 mmol"
expect lab_BilanzCount(2).term == "4 mmol"
expect lab_BilanzCount(3).term == "4 mmol"
expect lab_BilanzCount(0).term == "0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 4,760
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 5. Punkt"
expect report progress 5 0
expect series(1).count == 5
expect series(1).x(5) == 4
expect series(1).y(5) ~= 4.76 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 5
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 4,760
click ctl_Button3
settle
expect form.vVol == 15
# 5 mL
expect form.vCase == 2
expect form.vPh ~= 4.981848749616356 1e-12
expect form.vPhText == 4,982
expect form.vPhNow ~= 4.982 1e-12
expect beaker.countsort(10) == 3
expect beaker.countsort(11) == 5
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 5
expect lab_BilanzCount(1).term == "5 mmol"
expect lab_BilanzCount(2).term == "3 mmol"
expect lab_BilanzCount(3).term == "5 mmol"
expect lab_BilanzCount(0).term == "0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 4.982
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 6. Punkt"
expect report progress 6 0
expect series(1).count == 6
expect series(1).x(6) == 5
expect series(1).y(6) ~= 4.982 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 6
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 4,982
click ctl_Button3
settle
expect form.vVol == 16
# 6 mL
expect form.vCase == 2
expect form.vPh ~= 5.237121254719662 1e-12
expect form.vPhText == 5,237
expect form.vPhNow ~= 5.237 1e-12
expect beaker.countsort(10) == 2
expect beaker.countsort(11) == 6
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 6
expect lab_BilanzCount(1).term == "6 mmol"
expect lab_BilanzCount(2).term == "2 mmol"
expect lab_BilanzCount(3).term == "6 mmol"
expect lab_BilanzCount(0).term == "0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 5,237
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 7. Punkt"
expect report progress 7 0
expect series(1).count == 7
expect series(1).x(7) == 6
expect series(1).y(7) ~= 5.237 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 7
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 5,237
click ctl_Button3
settle
expect form.vVol == 17
# 7 mL
expect form.vCase == 2
expect form.vPh ~= 5.605098040014257 1e-12
expect form.vPhText == 5,605
expect form.vPhNow ~= 5.605 1e-12
expect beaker.countsort(10) == 1
expect beaker.countsort(11) == 7
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 7
expect lab_BilanzCount(1).term == "7 mmol"
expect lab_BilanzCount(2).term == "1 mmol"
expect lab_BilanzCount(3).term == "7 mmol"
expect lab_BilanzCount(0).term == "0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 5.605
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 8. Punkt"
expect report progress 8 0
expect series(1).count == 8
expect series(1).x(8) == 7
expect series(1).y(8) ~= 5.605 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 8
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 5,605
click ctl_Button3
settle
expect form.vVol == 18
# 8 mL
expect form.vCase == 3
expect form.vPh ~= 9.203908740944318 1e-12
expect form.vPhText == 9,204
expect form.vPhNow ~= 9.204 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 8
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 8
expect lab_BilanzCount(1).term == "8 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "8 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 9,204
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 9. Punkt"
expect report progress 9 0
expect series(1).count == 9
expect series(1).x(9) == 8
expect series(1).y(9) ~= 9.204 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 9
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 9,204
click ctl_Button3
settle
expect form.vVol == 19
# 9 mL
expect form.vCase == 4
expect form.vPh ~= 12.721246399047171 1e-12
expect form.vPhText == 12,721
expect form.vPhNow ~= 12.721 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 8
expect beaker.countsort(9) == 1
expect beaker.countsort(5) == 9
expect lab_BilanzCount(1).term == "9 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "8 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "1 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 12.721
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 10. Punkt"
expect report progress 10 0
expect series(1).count == 10
expect series(1).x(10) == 9
expect series(1).y(10) ~= 12.721 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 10
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 12,721
click ctl_Button3
settle
expect form.vVol == 20
# 10 mL
expect form.vCase == 4
expect form.vPh ~= 13.0 1e-12
expect form.vPhText == 13,000
expect form.vPhNow ~= 13.0 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 8
expect beaker.countsort(9) == 2
expect beaker.countsort(5) == 10
expect lab_BilanzCount(1).term == "10 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "8 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "2 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13,000
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 11. Punkt"
expect report progress 11 0
expect series(1).count == 11
expect series(1).x(11) == 10
expect series(1).y(11) ~= 13.0 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 11
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 13,000
click ctl_Button3
settle
expect form.vVol == 21
# 11 mL
expect form.vCase == 4
expect form.vPh ~= 13.154901959985743 1e-12
expect form.vPhText == 13,155
expect form.vPhNow ~= 13.155 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 8
expect beaker.countsort(9) == 3
expect beaker.countsort(5) == 11
expect lab_BilanzCount(1).term == "11 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "8 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "3 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13.155
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 12. Punkt"
expect report progress 12 0
expect series(1).count == 12
expect series(1).x(12) == 11
expect series(1).y(12) ~= 13.155 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 12
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 13,155
click ctl_Button3
settle
expect form.vVol == 22
# 12 mL
expect form.vCase == 4
expect form.vPh ~= 13.259637310505756 1e-12
expect form.vPhText == 13,260
expect form.vPhNow ~= 13.26 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 8
expect beaker.countsort(9) == 4
expect beaker.countsort(5) == 12
expect lab_BilanzCount(1).term == "12 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "8 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "4 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13,260
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 13. Punkt"
expect report progress 13 0
expect series(1).count == 13
expect series(1).x(13) == 12
expect series(1).y(13) ~= 13.26 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 13
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 13,260
click ctl_Button3
settle
expect form.vVol == 23
# 13 mL
expect form.vCase == 4
expect form.vPh ~= 13.337242168318426 1e-12
expect form.vPhText == 13,337
expect form.vPhNow ~= 13.337 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 8
expect beaker.countsort(9) == 5
expect beaker.countsort(5) == 13
expect lab_BilanzCount(1).term == "13 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "8 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "5 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13.337
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 14. Punkt"
expect report progress 14 0
expect series(1).count == 14
expect series(1).x(14) == 13
expect series(1).y(14) ~= 13.337 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 14
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 13,337
click ctl_Button3
settle
expect form.vVol == 24
# 14 mL
expect form.vCase == 4
expect form.vPh ~= 13.397940008672037 1e-12
expect form.vPhText == 13,398
expect form.vPhNow ~= 13.398 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 8
expect beaker.countsort(9) == 6
expect beaker.countsort(5) == 14
expect lab_BilanzCount(1).term == "14 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "8 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "6 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13,398
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 15. Punkt"
expect report progress 15 0
expect series(1).count == 15
expect series(1).x(15) == 14
expect series(1).y(15) ~= 13.398 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 15
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 13,398
click ctl_Button3
settle
expect form.vVol == 25
# 15 mL
expect form.vCase == 4
expect form.vPh ~= 13.44715803134222 1e-12
expect form.vPhText == 13,447
expect form.vPhNow ~= 13.447 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 8
expect beaker.countsort(9) == 7
expect beaker.countsort(5) == 15
expect lab_BilanzCount(1).term == "15 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "8 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "7 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13.447
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 16. Punkt"
expect report progress 16 0
expect series(1).count == 16
expect series(1).x(16) == 15
expect series(1).y(16) ~= 13.447 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 16
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 13,447
click ctl_Button3
settle
expect form.vVol == 26
# 16 mL
expect form.vCase == 4
expect form.vPh ~= 13.488116639021126 1e-12
expect form.vPhText == 13,488
expect form.vPhNow ~= 13.488 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 8
expect beaker.countsort(9) == 8
expect beaker.countsort(5) == 16
expect lab_BilanzCount(1).term == "16 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "8 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "8 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13,488
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 17. Punkt"
expect report progress 17 0
expect series(1).count == 17
expect series(1).x(17) == 16
expect series(1).y(17) ~= 13.488 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 17
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 13,488
click ctl_Button3
settle
expect form.vVol == 27
# 17 mL
expect form.vCase == 4
expect form.vPh ~= 13.522878745280337 1e-12
expect form.vPhText == 13,523
expect form.vPhNow ~= 13.523 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 8
expect beaker.countsort(9) == 9
expect beaker.countsort(5) == 17
expect lab_BilanzCount(1).term == "17 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "8 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "9 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13.523
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 18. Punkt"
expect report progress 18 0
expect series(1).count == 18
expect series(1).x(18) == 17
expect series(1).y(18) ~= 13.523 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 18
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 13,523
click ctl_Button3
settle
expect form.vVol == 28
# 18 mL
expect form.vCase == 4
expect form.vPh ~= 13.55284196865778 1e-12
expect form.vPhText == 13,553
expect form.vPhNow ~= 13.553 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 8
expect beaker.countsort(9) == 10
expect beaker.countsort(5) == 18
expect lab_BilanzCount(1).term == "18 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "8 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "10 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13,553
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 19. Punkt"
expect report progress 19 0
expect series(1).count == 19
expect series(1).x(19) == 18
expect series(1).y(19) ~= 13.553 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 19
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 13,553
click ctl_Button3
settle
expect form.vVol == 29
# 19 mL
expect form.vCase == 4
expect form.vPh ~= 13.57899468725927 1e-12
expect form.vPhText == 13,579
expect form.vPhNow ~= 13.579 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 8
expect beaker.countsort(9) == 11
expect beaker.countsort(5) == 19
expect lab_BilanzCount(1).term == "19 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "8 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "11 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13.579
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 20. Punkt"
expect report progress 20 0
expect series(1).count == 20
expect series(1).x(20) == 19
expect series(1).y(20) ~= 13.579 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 20
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 13,579
click ctl_Button3
settle
expect form.vVol == 30
# 20 mL
expect form.vCase == 4
expect form.vPh ~= 13.602059991327963 1e-12
expect form.vPhText == 13,602
expect form.vPhNow ~= 13.602 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 8
expect beaker.countsort(9) == 12
expect beaker.countsort(5) == 20
expect lab_BilanzCount(1).term == "20 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "8 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "12 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13,602
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 21. Punkt"
expect report progress 21 0
expect series(1).count == 21
expect series(1).x(21) == 20
expect series(1).y(21) ~= 13.602 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 21
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 13,602
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
