# Weak acid of 1.4 mol/L: a direct answer at every mL to the best mark.
name Mia
start
choose SSTab1 3
choose lst_Mol 1.4
check opt_NeedCalc off
click ctl_Button4
expect form frm_AppMainWeak
expect nobox
expect session.SessionConcentration == 1.4
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
expect beaker.countsort(10) == 14
expect beaker.count == 14
expect but_Calc.visible == true
expect lab_pH.text == ?
# 0 mL
expect form.vCase == 1
expect form.vPh ~= 2.306935982160881 1e-12
expect form.vPhText == 2,307
expect form.vPhNow ~= 2.307 1e-12
expect beaker.countsort(10) == 14
expect beaker.countsort(11) == 0
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 0
expect lab_BilanzCount(1).term == "0 mmol"
expect lab_BilanzCount(2).term == "14 mmol"
expect lab_BilanzCount(3).term == "0 mmol"
expect lab_BilanzCount(0).term == "0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 2,307
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 0
expect series(1).count == 1
expect series(1).x(1) == 0
expect series(1).y(1) ~= 2.307 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 1
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 2,307
click ctl_Button3
settle
expect form.vVol == 11
# 1 mL
expect form.vCase == 2
expect form.vPh ~= 3.646056647693163 1e-12
expect form.vPhText == 3,646
expect form.vPhNow ~= 3.646 1e-12
expect beaker.countsort(10) == 13
expect beaker.countsort(11) == 1
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 1
expect lab_BilanzCount(1).term == "1 mmol"
expect lab_BilanzCount(2).term == "13 mmol"
expect lab_BilanzCount(3).term == "1 mmol"
expect lab_BilanzCount(0).term == "0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 3.646
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 0
expect series(1).count == 2
expect series(1).x(2) == 1
expect series(1).y(2) ~= 3.646 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 2
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 3,646
click ctl_Button3
settle
expect form.vVol == 12
# 2 mL
expect form.vCase == 2
expect form.vPh ~= 3.9818487496163564 1e-12
expect form.vPhText == 3,982
expect form.vPhNow ~= 3.982 1e-12
expect beaker.countsort(10) == 12
expect beaker.countsort(11) == 2
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 2
expect lab_BilanzCount(1).term == "2 mmol"
expect lab_BilanzCount(2).term == "12 mmol"
expect lab_BilanzCount(3).term == "2 mmol"
expect lab_BilanzCount(0).term == "0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 3,982
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 3. Punkt"
expect report progress 3 0
expect series(1).count == 3
expect series(1).x(3) == 2
expect series(1).y(3) ~= 3.982 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 3
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 3,982
click ctl_Button3
settle
expect form.vVol == 13
# 3 mL
expect form.vCase == 2
expect form.vPh ~= 4.195728569561437 1e-12
expect form.vPhText == 4,196
expect form.vPhNow ~= 4.196 1e-12
expect beaker.countsort(10) == 11
expect beaker.countsort(11) == 3
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 3
expect lab_BilanzCount(1).term == "3 mmol"
expect lab_BilanzCount(2).term == "11 mmol"
expect lab_BilanzCount(3).term == "3 mmol"
expect lab_BilanzCount(0).term == "0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 4.196
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 4. Punkt"
expect report progress 4 0
expect series(1).count == 4
expect series(1).x(4) == 3
expect series(1).y(4) ~= 4.196 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 4
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 4,196
click ctl_Button3
settle
expect form.vVol == 14
# 4 mL
expect form.vCase == 2
expect form.vPh ~= 4.362059991327962 1e-12
expect form.vPhText == 4,362
expect form.vPhNow ~= 4.362 1e-12
expect beaker.countsort(10) == 10
expect beaker.countsort(11) == 4
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 4
expect lab_BilanzCount(1).term == "4 mmol"
expect lab_BilanzCount(2).term == "10 mmol"
expect lab_BilanzCount(3).term == "4 mmol"
expect lab_BilanzCount(0).term == "0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 4,362
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 5. Punkt"
expect report progress 5 0
expect series(1).count == 5
expect series(1).x(5) == 4
expect series(1).y(5) ~= 4.362 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 5
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 4,362
click ctl_Button3
settle
expect form.vVol == 15
# 5 mL
expect form.vCase == 2
expect form.vPh ~= 4.504727494896694 1e-12
expect form.vPhText == 4,505
expect form.vPhNow ~= 4.505 1e-12
expect beaker.countsort(10) == 9
expect beaker.countsort(11) == 5
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 5
expect lab_BilanzCount(1).term == "5 mmol"
expect lab_BilanzCount(2).term == "9 mmol"
expect lab_BilanzCount(3).term == "5 mmol"
expect lab_BilanzCount(0).term == "0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 4.505
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 6. Punkt"
expect report progress 6 0
expect series(1).count == 6
expect series(1).x(6) == 5
expect series(1).y(6) ~= 4.505 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 6
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 4,505
click ctl_Button3
settle
expect form.vVol == 16
# 6 mL
expect form.vCase == 2
expect form.vPh ~= 4.6350612633917 1e-12
expect form.vPhText == 4,635
expect form.vPhNow ~= 4.635 1e-12
expect beaker.countsort(10) == 8
expect beaker.countsort(11) == 6
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 6
expect lab_BilanzCount(1).term == "6 mmol"
expect lab_BilanzCount(2).term == "8 mmol"
expect lab_BilanzCount(3).term == "6 mmol"
expect lab_BilanzCount(0).term == "0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 4,635
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 7. Punkt"
expect report progress 7 0
expect series(1).count == 7
expect series(1).x(7) == 6
expect series(1).y(7) ~= 4.635 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 7
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 4,635
click ctl_Button3
settle
expect form.vVol == 17
# 7 mL
expect form.vCase == 2
expect form.vPh ~= 4.76 1e-12
expect form.vPhText == 4,760
expect form.vPhNow ~= 4.76 1e-12
expect beaker.countsort(10) == 7
expect beaker.countsort(11) == 7
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 7
expect lab_BilanzCount(1).term == "7 mmol"
expect lab_BilanzCount(2).term == "7 mmol"
expect lab_BilanzCount(3).term == "7 mmol"
expect lab_BilanzCount(0).term == "0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 4.760
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 8. Punkt"
expect report progress 8 0
expect series(1).count == 8
expect series(1).x(8) == 7
expect series(1).y(8) ~= 4.76 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 8
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 4,760
click ctl_Button3
settle
expect form.vVol == 18
# 8 mL
expect form.vCase == 2
expect form.vPh ~= 4.8849387366083 1e-12
expect form.vPhText == 4,885
expect form.vPhNow ~= 4.885 1e-12
expect beaker.countsort(10) == 6
expect beaker.countsort(11) == 8
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 8
expect lab_BilanzCount(1).term == "8 mmol"
expect lab_BilanzCount(2).term == "6 mmol"
expect lab_BilanzCount(3).term == "8 mmol"
expect lab_BilanzCount(0).term == "0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 4,885
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 9. Punkt"
expect report progress 9 0
expect series(1).count == 9
expect series(1).x(9) == 8
expect series(1).y(9) ~= 4.885 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 9
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 4,885
click ctl_Button3
settle
expect form.vVol == 19
# 9 mL
expect form.vCase == 2
expect form.vPh ~= 5.015272505103306 1e-12
expect form.vPhText == 5,015
expect form.vPhNow ~= 5.015 1e-12
expect beaker.countsort(10) == 5
expect beaker.countsort(11) == 9
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 9
expect lab_BilanzCount(1).term == "9 mmol"
expect lab_BilanzCount(2).term == "5 mmol"
expect lab_BilanzCount(3).term == "9 mmol"
expect lab_BilanzCount(0).term == "0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 5.015
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 10. Punkt"
expect report progress 10 0
expect series(1).count == 10
expect series(1).x(10) == 9
expect series(1).y(10) ~= 5.015 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 10
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 5,015
click ctl_Button3
settle
expect form.vVol == 20
# 10 mL
expect form.vCase == 2
expect form.vPh ~= 5.157940008672037 1e-12
expect form.vPhText == 5,158
expect form.vPhNow ~= 5.158 1e-12
expect beaker.countsort(10) == 4
expect beaker.countsort(11) == 10
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 10
expect lab_BilanzCount(1).term == "10 mmol"
expect lab_BilanzCount(2).term == "4 mmol"
expect lab_BilanzCount(3).term == "10 mmol"
expect lab_BilanzCount(0).term == "0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 5,158
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 11. Punkt"
expect report progress 11 0
expect series(1).count == 11
expect series(1).x(11) == 10
expect series(1).y(11) ~= 5.158 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 11
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 5,158
click ctl_Button3
settle
expect form.vVol == 21
# 11 mL
expect form.vCase == 2
expect form.vPh ~= 5.3242714304385625 1e-12
expect form.vPhText == 5,324
expect form.vPhNow ~= 5.324 1e-12
expect beaker.countsort(10) == 3
expect beaker.countsort(11) == 11
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 11
expect lab_BilanzCount(1).term == "11 mmol"
expect lab_BilanzCount(2).term == "3 mmol"
expect lab_BilanzCount(3).term == "11 mmol"
expect lab_BilanzCount(0).term == "0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 5.324
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 12. Punkt"
expect report progress 12 0
expect series(1).count == 12
expect series(1).x(12) == 11
expect series(1).y(12) ~= 5.324 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 12
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 5,324
click ctl_Button3
settle
expect form.vVol == 22
# 12 mL
expect form.vCase == 2
expect form.vPh ~= 5.538151250383644 1e-12
expect form.vPhText == 5,538
expect form.vPhNow ~= 5.538 1e-12
expect beaker.countsort(10) == 2
expect beaker.countsort(11) == 12
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 12
expect lab_BilanzCount(1).term == "12 mmol"
expect lab_BilanzCount(2).term == "2 mmol"
expect lab_BilanzCount(3).term == "12 mmol"
expect lab_BilanzCount(0).term == "0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 5,538
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 13. Punkt"
expect report progress 13 0
expect series(1).count == 13
expect series(1).x(13) == 12
expect series(1).y(13) ~= 5.538 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 13
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 5,538
click ctl_Button3
settle
expect form.vVol == 23
# 13 mL
expect form.vCase == 2
expect form.vPh ~= 5.873943352306837 1e-12
expect form.vPhText == 5,874
expect form.vPhNow ~= 5.874 1e-12
expect beaker.countsort(10) == 1
expect beaker.countsort(11) == 13
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 13
expect lab_BilanzCount(1).term == "13 mmol"
expect lab_BilanzCount(2).term == "1 mmol"
expect lab_BilanzCount(3).term == "13 mmol"
expect lab_BilanzCount(0).term == "0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 5.874
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 14. Punkt"
expect report progress 14 0
expect series(1).count == 14
expect series(1).x(14) == 13
expect series(1).y(14) ~= 5.874 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 14
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 5,874
click ctl_Button3
settle
expect form.vVol == 24
# 14 mL
expect form.vCase == 3
expect form.vPh ~= 9.262958396983315 1e-12
expect form.vPhText == 9,263
expect form.vPhNow ~= 9.263 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 14
expect beaker.countsort(9) == 0
expect beaker.countsort(5) == 14
expect lab_BilanzCount(1).term == "14 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "14 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "~~ 0 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 9,263
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 15. Punkt"
expect report progress 15 0
expect series(1).count == 15
expect series(1).x(15) == 14
expect series(1).y(15) ~= 9.263 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 15
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 9,263
click ctl_Button3
settle
expect form.vVol == 25
# 15 mL
expect form.vCase == 4
expect form.vPh ~= 12.602059991327963 1e-12
expect form.vPhText == 12,602
expect form.vPhNow ~= 12.602 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 14
expect beaker.countsort(9) == 1
expect beaker.countsort(5) == 15
expect lab_BilanzCount(1).term == "15 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "14 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "1 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 12.602
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 16. Punkt"
expect report progress 16 0
expect series(1).count == 16
expect series(1).x(16) == 15
expect series(1).y(16) ~= 12.602 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 16
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 12,602
click ctl_Button3
settle
expect form.vVol == 26
# 16 mL
expect form.vCase == 4
expect form.vPh ~= 12.886056647693163 1e-12
expect form.vPhText == 12,886
expect form.vPhNow ~= 12.886 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 14
expect beaker.countsort(9) == 2
expect beaker.countsort(5) == 16
expect lab_BilanzCount(1).term == "16 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "14 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "2 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 12,886
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 17. Punkt"
expect report progress 17 0
expect series(1).count == 17
expect series(1).x(17) == 16
expect series(1).y(17) ~= 12.886 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 17
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 12,886
click ctl_Button3
settle
expect form.vVol == 27
# 17 mL
expect form.vCase == 4
expect form.vPh ~= 13.045757490560675 1e-12
expect form.vPhText == 13,046
expect form.vPhNow ~= 13.046 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 14
expect beaker.countsort(9) == 3
expect beaker.countsort(5) == 17
expect lab_BilanzCount(1).term == "17 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "14 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "3 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13.046
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 18. Punkt"
expect report progress 18 0
expect series(1).count == 18
expect series(1).x(18) == 17
expect series(1).y(18) ~= 13.046 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 18
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 13,046
click ctl_Button3
settle
expect form.vVol == 28
# 18 mL
expect form.vCase == 4
expect form.vPh ~= 13.154901959985743 1e-12
expect form.vPhText == 13,155
expect form.vPhNow ~= 13.155 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 14
expect beaker.countsort(9) == 4
expect beaker.countsort(5) == 18
expect lab_BilanzCount(1).term == "18 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "14 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "4 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13,155
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 19. Punkt"
expect report progress 19 0
expect series(1).count == 19
expect series(1).x(19) == 18
expect series(1).y(19) ~= 13.155 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 19
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 13,155
click ctl_Button3
settle
expect form.vVol == 29
# 19 mL
expect form.vCase == 4
expect form.vPh ~= 13.236572006437063 1e-12
expect form.vPhText == 13,237
expect form.vPhNow ~= 13.237 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 14
expect beaker.countsort(9) == 5
expect beaker.countsort(5) == 19
expect lab_BilanzCount(1).term == "19 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "14 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "5 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13.237
click but_CalcDone
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 20. Punkt"
expect report progress 20 0
expect series(1).count == 20
expect series(1).x(20) == 19
expect series(1).y(20) ~= 13.237 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 20
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 13,237
click ctl_Button3
settle
expect form.vVol == 30
# 20 mL
expect form.vCase == 4
expect form.vPh ~= 13.301029995663981 1e-12
expect form.vPhText == 13,301
expect form.vPhNow ~= 13.301 1e-12
expect beaker.countsort(10) == 0
expect beaker.countsort(11) == 14
expect beaker.countsort(9) == 6
expect beaker.countsort(5) == 20
expect lab_BilanzCount(1).term == "20 mmol"
expect lab_BilanzCount(2).term == "0 mmol"
expect lab_BilanzCount(3).term == "14 mmol"
expect lab_BilanzCount(0).term == "~~ 0 mmol"
expect lab_BilanzCount(4).term == "6 mmol"
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13,301
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 21. Punkt"
expect report progress 21 0
expect series(1).count == 21
expect series(1).x(21) == 20
expect series(1).y(21) ~= 13.301 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 21
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 13,301
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
