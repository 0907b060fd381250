# Weak acid: clicks while something falls are dropped, dialogs may open meanwhile.
name Mia
start
choose SSTab1 3
choose lst_Mol 1.0
check opt_NeedCalc off
click ctl_Button4
expect form frm_AppMainWeak
expect nobox
expect session.SessionConcentration == 1
expect session.SessionDemo == false
expect session.SessionRequiredPoints == ""
click ctl_Button1
wait 1
click ctl_Button1
mouse pic_Above 150 100
click but_Help
expect form frm_DialogHelp
wait 3
click ctl_CmdBar1
expect form frm_AppMainWeak
menu mnu_HelpTerms
expect form frm_DialogTerms
key ESC
expect form frm_AppMainWeak
menu mnu_HelpAbout
expect box about * *
settle
expect form.vVol == 10
expect form.sClicks == 0
click ctl_Button3
wait 0.05
click ctl_Button3
click but_Calc
expect frm_CalcDirect.visible == false
settle
expect form.vVol == 11
expect form.sClicks == 1
click ctl_Button3
until session.SessionBusy == false
expect drops.count == 2
click but_Calc
click ctl_Button3
click ctl_Button2
expect form.sClicks == 2
until frm_CalcDirect.visible == true
expect drops.count == 0
expect beaker.countsort(9) == 0
expect form.vVol == 12
type txt_Ph 4,158
key ENTER
expect sound "signal 2"
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 0
expect series(1).count == 1
expect series(1).x(1) == 2
expect series(1).y(1) ~= 4.158 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 1
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 4,158
click ctl_Button3
wait 0.1
menu mnu_FileQuit
wait 3
expect ended
expect nobox
expect noreport
