# No data folder: the learner hears what is missing and can do the task all the same.
name Mia
data nowhere
start
choose SSTab1 3
check opt_NeedCalc off
click ctl_Button3
expect box ok "" "Die Datei 'phstark10.crv' wurde nicht gefunden - zum Vergleich Deiner Werte kann ich daher leider nur die Standard-pH-Kurver zu Rate ziehen!"
expect form frm_AppMainStrong
click ctl_Button1
settle
expect form.vVol == 10
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
expect form.vTaskStep == 3
click but_Calc
type txt_Ph 13,52
key ENTER
expect box info Punktberechnung *
expect series(1).count == 1
expect series(1).x(1) == 20
expect form frm_DialogDone
click bar_Buttons
click but_phCompare
expect form frm_DialogphCompare
close
click but_Help
expect form frm_DialogHelp
close
menu mnu_FileQuit
expect ended
