# The click demo, step by step at the start and with one click further on.
name Mia
start
choose SSTab1 2
click ctl_Button15
expect form frm_AppMainStrong
click ctl_Button1
settle
expect session.SessionDemo == true
expect but_Calc.text == "Demo"
expect ctl_Button2.text == "Demo"
expect frm_Score.visible == false
click but_Calc
expect form.sStep == 1
expect but_CalcStep(13).visible == false
expect but_AchtungRW.visible == true
expect but_CalcStep(1).text == "D-Klick!"
click but_CalcStep(1)
expect but_CalcStep(2).text == "D-Klick!"
click but_CalcStep(2)
expect but_CalcStep(3).text == "D-Klick!"
click but_CalcStep(3)
expect but_CalcStep(4).text == "D-Klick!"
click but_CalcStep(4)
expect but_CalcStep(5).text == "D-Klick!"
click but_CalcStep(5)
expect but_CalcStep(6).text == "D-Klick!"
click but_CalcStep(6)
expect but_CalcStep(7).text == "D-Klick!"
click but_CalcStep(7)
expect but_CalcStep(8).text == "D-Klick!"
click but_CalcStep(8)
expect but_CalcStep(9).text == "D-Klick!"
click but_CalcStep(9)
expect but_CalcStep(10).text == "D-Klick!"
click but_CalcStep(10)
expect but_CalcStep(12).text == "D-Klick!"
click but_CalcStep(12)
expect form frm_DialogphCompare
expect nobox
expect nosound
expect noreport
close
expect form.vPoints == 0
expect series(1).count == 1
expect series(1).y(1) == 0
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
click ctl_Button2
expect but_CalcStep(13).visible == true
expect but_AchtungRW.visible == false
click but_CalcStep(13)
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).text == "0,48"
expect opt_Calc(0).checked == true
expect opt_Calc(0).textcolor == #ff0000
click but_CalcStep(12)
close
expect series(1).count == 2
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
answer yes
click ctl_Button3
expect box yesno "" "Ab diesem Punkt beginnt ein neuer Abschnitt, dessen Rechnung man sich mit Klick auf 'DEMO' ansehen sollte. Wollen Sie das Zutropfen abbrechen?"
expect form.sClicks == 10
click but_Calc
click but_CalcStep(1)
click but_CalcStep(2)
click but_CalcStep(3)
click but_CalcStep(4)
click but_CalcStep(5)
click but_CalcStep(6)
click but_CalcStep(7)
click but_CalcStep(8)
click but_CalcStep(9)
click but_CalcStep(10)
click but_CalcStep(12)
close
expect series(1).y(3) == 7
click ctl_Button3
settle
expect form.sClicks == 11
answer no
click ctl_Button3
expect box yesno "" *
settle
expect form.sClicks == 12
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
expect form.vVol == 30
expect form.vTaskStep == 3
click but_Calc
click but_CalcStep(13)
click but_CalcStep(12)
expect form frm_DialogphCompare
close
expect form frm_AppMainStrong
expect series(1).x(4) == 20
expect noreport
menu mnu_FileQuit
expect ended
