# Chloride with silver: a new beginning in the middle of everything, and the task that follows is fresh.
name Mia
sound 2
start
choose SSTab1 3
choose lst_Mol 1.2
check opt_NeedCalc off
click ctl_Button8
expect form frm_AppMainSilverStart
expect form.Accepted == false
click bar_Buttons
expect form frm_AppMainSilver
expect nobox
expect session.SessionConcentration == 1.2
expect session.SessionDemo == false
expect session.SessionRequiredPoints == ""
# before anything
menu mnu_FileNew
expect form frm_DialogStartup
expect nobox
expect noreport
expect lst_Mol.text == 1.0
expect opt_EnableSounds.enabled == false
choose SSTab1 3
choose lst_Mol 0.6
check opt_NeedCalc off
click ctl_Button8
expect form frm_AppMainSilverStart
expect form.Accepted == false
click bar_Buttons
expect form frm_AppMainSilver
expect nobox
expect session.SessionConcentration == 0.6
expect session.SessionDemo == false
expect session.SessionRequiredPoints == ""
expect form.vVol == 0
expect form.vPoints == 0
expect form.vWrong == 0
expect form.sClicks == 0
expect beaker.count == 0
expect drops.count == 0
expect frm_Calc.visible == false
expect frm_CalcDirect.visible == false
expect series(1).count == 0
expect but_ShowMag.visible == false
expect pic_Magnify.visible == false
# the pipette runs
click ctl_Button1
wait 1.5
expect session.SessionBusy == true
expect drops.count != 0
menu mnu_FileNew
expect form frm_DialogStartup
expect nobox
expect noreport
expect lst_Mol.text == 1.0
expect opt_EnableSounds.enabled == false
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
expect form.vVol == 0
expect form.vPoints == 0
expect form.vWrong == 0
expect form.sClicks == 0
expect beaker.count == 0
expect drops.count == 0
expect frm_Calc.visible == false
expect frm_CalcDirect.visible == false
expect series(1).count == 0
expect but_ShowMag.visible == false
expect pic_Magnify.visible == false
# the pipette leaves
click ctl_Button1
until form.vVol == 10
wait 1
expect session.SessionBusy == true
menu mnu_FileNew
expect form frm_DialogStartup
expect nobox
expect noreport
expect lst_Mol.text == 1.0
expect opt_EnableSounds.enabled == false
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
expect form.vVol == 0
expect form.vPoints == 0
expect form.vWrong == 0
expect form.sClicks == 0
expect beaker.count == 0
expect drops.count == 0
expect frm_Calc.visible == false
expect frm_CalcDirect.visible == false
expect series(1).count == 0
expect but_ShowMag.visible == false
expect pic_Magnify.visible == false
# a drop falls
click ctl_Button1
settle
expect form.vVol == 10
click ctl_Button3
wait 0.4
expect drops.count == 2
menu mnu_FileNew
expect form frm_DialogStartup
expect nobox
expect noreport
expect lst_Mol.text == 1.0
expect opt_EnableSounds.enabled == false
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
expect form.vVol == 0
expect form.vPoints == 0
expect form.vWrong == 0
expect form.sClicks == 0
expect beaker.count == 0
expect drops.count == 0
expect frm_Calc.visible == false
expect frm_CalcDirect.visible == false
expect series(1).count == 0
expect but_ShowMag.visible == false
expect pic_Magnify.visible == false
# the direct input is open
click ctl_Button1
settle
expect form.vVol == 10
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 5
expect frm_CalcDirect.visible == true
menu mnu_FileNew
expect form frm_DialogStartup
expect nobox
expect noreport
expect lst_Mol.text == 1.0
expect opt_EnableSounds.enabled == false
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
expect form.vVol == 0
expect form.vPoints == 0
expect form.vWrong == 0
expect form.sClicks == 0
expect beaker.count == 0
expect drops.count == 0
expect frm_Calc.visible == false
expect frm_CalcDirect.visible == false
expect series(1).count == 0
expect but_ShowMag.visible == false
expect pic_Magnify.visible == false
# in the middle of the calculation
click ctl_Button1
settle
expect form.vVol == 10
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
type txt_Calc(3) 0,01
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
type txt_Calc(6) 9
key ENTER
expect noreport
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 1
expect form.vTries == 1
expect form.vWrong == 1
expect form.vMismatch == 1
menu mnu_FileNew
expect form frm_DialogStartup
expect nobox
expect noreport
expect lst_Mol.text == 1.0
expect opt_EnableSounds.enabled == false
choose SSTab1 3
choose lst_Mol 0.6
check opt_NeedCalc off
click ctl_Button8
expect form frm_AppMainSilverStart
expect form.Accepted == false
click bar_Buttons
expect form frm_AppMainSilver
expect nobox
expect session.SessionConcentration == 0.6
expect session.SessionDemo == false
expect session.SessionRequiredPoints == ""
expect form.vVol == 0
expect form.vPoints == 0
expect form.vWrong == 0
expect form.sClicks == 0
expect beaker.count == 0
expect drops.count == 0
expect frm_Calc.visible == false
expect frm_CalcDirect.visible == false
expect series(1).count == 0
expect but_ShowMag.visible == false
expect pic_Magnify.visible == false
# behind a finished point
click ctl_Button1
settle
expect form.vVol == 10
click ctl_Button3
settle
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0,25
key ENTER
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 0
expect series(1).count == 1
expect series(1).x(1) == 1
expect series(1).y(1) ~= 0.25 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 1
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
menu mnu_FileNew
expect form frm_DialogStartup
expect nobox
expect noreport
expect lst_Mol.text == 1.0
expect opt_EnableSounds.enabled == false
choose SSTab1 3
choose lst_Mol 1.2
check opt_NeedCalc off
click ctl_Button8
expect form frm_AppMainSilverStart
expect form.Accepted == false
click bar_Buttons
expect form frm_AppMainSilver
expect nobox
expect session.SessionConcentration == 1.2
expect session.SessionDemo == false
expect session.SessionRequiredPoints == ""
expect form.vVol == 0
expect form.vPoints == 0
expect form.vWrong == 0
expect form.sClicks == 0
expect beaker.count == 0
expect drops.count == 0
expect frm_Calc.visible == false
expect frm_CalcDirect.visible == false
expect series(1).count == 0
expect but_ShowMag.visible == false
expect pic_Magnify.visible == false
click ctl_Button1
settle
expect form.vVol == 10
click ctl_Button3
settle
# the lens slides in
click but_ShowMag
wait 0.5
expect pic_Magnify.visible == true
menu mnu_FileNew
expect form frm_DialogStartup
expect nobox
expect noreport
expect lst_Mol.text == 1.0
expect opt_EnableSounds.enabled == false
choose SSTab1 3
choose lst_Mol 1.2
check opt_NeedCalc off
click ctl_Button8
expect form frm_AppMainSilverStart
expect form.Accepted == false
click bar_Buttons
expect form frm_AppMainSilver
expect nobox
expect session.SessionConcentration == 1.2
expect session.SessionDemo == false
expect session.SessionRequiredPoints == ""
expect form.vVol == 0
expect form.vPoints == 0
expect form.vWrong == 0
expect form.sClicks == 0
expect beaker.count == 0
expect drops.count == 0
expect frm_Calc.visible == false
expect frm_CalcDirect.visible == false
expect series(1).count == 0
expect but_ShowMag.visible == false
expect pic_Magnify.visible == false
click ctl_Button1
settle
expect form.vVol == 10
click ctl_Button3
settle
# the lens slides out
click but_ShowMag
until top == frm_AppMagnify
wait 0.5
key ESC
until top == frm_AppMainSilver
wait 0.5
expect pic_Magnify.visible == true
menu mnu_FileNew
expect form frm_DialogStartup
expect nobox
expect noreport
expect lst_Mol.text == 1.0
expect opt_EnableSounds.enabled == false
choose SSTab1 3
choose lst_Mol 1.2
check opt_NeedCalc off
click ctl_Button8
expect form frm_AppMainSilverStart
expect form.Accepted == false
click bar_Buttons
expect form frm_AppMainSilver
expect nobox
expect session.SessionConcentration == 1.2
expect session.SessionDemo == false
expect session.SessionRequiredPoints == ""
expect form.vVol == 0
expect form.vPoints == 0
expect form.vWrong == 0
expect form.sClicks == 0
expect beaker.count == 0
expect drops.count == 0
expect frm_Calc.visible == false
expect frm_CalcDirect.visible == false
expect series(1).count == 0
expect but_ShowMag.visible == false
expect pic_Magnify.visible == false
click ctl_Button1
settle
expect form.vVol == 10
click ctl_Button3
settle
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0,23
key ENTER
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
expect nobox
expect noreport
menu mnu_FileQuit
expect ended
