# The learner has switched the offered lines off: the calculator opens empty.
name Mia
start
choose SSTab1 3
choose lst_Mol 1.0
check opt_NeedCalc off
check opt_CalcTerm off
click ctl_Button4
expect form frm_AppMainWeak
expect nobox
expect session.SessionConcentration == 1
expect session.SessionDemo == false
expect session.SessionRequiredPoints == ""
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
type txt_Calc(6) 0,013
key ENTER
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect but_CalcStep(7).focus == true
expect form.vTries == 0
click opt_Calc(3)
click but_CalcStep(7)
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 0,131
key ENTER
expect report progress 0 1
expect sound "signal 1"
expect box ok "" "Das ist nicht richtig! Überprüfe Deine Eingaben! Beachte die Informationen rechts an der Seite!"
expect nobox
expect Lab_Vallmista.text == 1
expect form.vTries == 1
expect form.vWrong == 1
expect form.vMismatch == 1
type txt_Calc(10) 0,131
answer yes
key ENTER
expect report progress 0 2
expect sound "signal 1"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir helfen?"
expect nobox
expect Lab_Vallmista.text == 2
expect form.vDetailConc == true
expect form.sStep == 8
expect but_CalcStep(8).visible == true
expect txt_Calc(8).focus == true
expect form.vTries == 0
expect form.vWrong == 2
expect form.vMismatch == 2
expect form.vSolveUsed == 0
expect form.vHelpUsed == 1
type txt_Calc(8) 0,003
key ENTER
expect form.sStep == 9
expect but_CalcStep(9).visible == true
expect txt_Calc(9).focus == true
expect form.vTries == 0
answer value 0,023
click but_CalcPH(9)
expect box calculator Rechner ""
expect presets
expect txt_Calc(9).text == 0,023
key ENTER
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
answer value 0,130434782608696
click but_CalcPH(10)
expect box calculator Rechner ""
expect presets
expect txt_Calc(10).text == 0,130
key ENTER
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
answer value 0,88460658129793
click but_CalcPH(11)
expect box calculator Rechner ""
expect presets
expect txt_Calc(11).text == 0,885
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
answer value 13,1153934187021
click but_CalcPH(12)
expect box calculator Rechner ""
expect presets
expect txt_Calc(12).text == 13,115
key ENTER
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 2
expect series(1).count == 1
expect series(1).x(1) == 13
expect series(1).y(1) ~= 13.11539341870207 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 1
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 1
expect frm_AppMainWeak.Lab_Vallmista.text == 2
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainWeak
expect frm_Calc.visible == false
expect form.vLastVol == 13
expect lab_pH.text == 13,12
expect nobox
expect noreport
menu mnu_FileQuit
expect ended
