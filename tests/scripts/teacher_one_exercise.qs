# The teacher leaves one exercise.
name Mia
control MODUS 3
control MODUS_CALC 4
control CON 5
control CALC 0
control POINTS falsch
start
expect ctl_Button3.visible == true
expect ctl_Button4.visible == false
expect lst_Mol.text == 1.4
expect lst_Mol.enabled == false
expect opt_CalcTerm.checked == false
expect opt_CalcTerm.enabled == false
expect opt_NeedCalc.checked == false
expect opt_NeedCalc.enabled == false
click ctl_Button5
expect ended
