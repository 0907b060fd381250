# No data folder: what is missing is told, the task, the help and the lens do without.
name Mia
data nowhere
sound 2
start
choose SSTab1 3
choose lst_Mol 1.4
check opt_NeedCalc off
click ctl_Button4
expect box ok "" "Die Datei 'phschwach14.crv' wurde nicht gefunden - zum Vergleich Deiner Werte kann ich daher leider nur die Standard-pH-Kurver zu Rate ziehen!"
expect form frm_AppMainWeak
click ctl_Button1
settle
expect form.vVol == 10
expect beaker.countsort(10) == 14
expect beaker.count == 14
click ctl_Button3
settle
expect form.vVol == 11
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
click ctl_Button3
settle
expect form.vVol == 16
click ctl_Button3
settle
expect form.vVol == 17
click ctl_Button3
settle
expect form.vVol == 18
click ctl_Button3
settle
expect form.vVol == 19
click ctl_Button3
settle
expect form.vVol == 20
click ctl_Button3
settle
expect form.vVol == 21
click ctl_Button3
settle
expect form.vVol == 22
click ctl_Button3
settle
expect form.vVol == 23
click ctl_Button3
settle
expect form.vVol == 24
click but_ShowMag
until top == frm_AppMagnify 2
wait 1.5
key ESC
until but_ShowMag.visible == true 3
expect pic_Magnify.visible == false
click but_Help
expect form frm_DialogHelp
close
expect form frm_AppMainWeak
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 9,263
key ENTER
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 0
expect series(1).count == 1
expect series(1).x(1) == 14
expect series(1).y(1) ~= 9.263 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 1
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 9,263
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
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 13,301
key ENTER
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 0
expect series(1).count == 2
expect series(1).x(2) == 20
expect series(1).y(2) ~= 13.301 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 2
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 13,301
expect form frm_DialogDone
expect form.Score == 400
expect form.Mark == 4
expect lab_Mark.text == Ausreichend
expect lab_Points.text == 2
expect lab_Wrong.text == "0 mal"
expect lab_HelpUsed.text == "0 mal"
expect lab_SolveUsed.text == "0 mal"
expect report result 400 4 "Ausreichend"
click bar_Buttons
expect nobox
expect noreport
menu mnu_FileQuit
expect ended
