# Absurd keys lock what they say and break nothing.
name Mia
control MODUS 7
control CON 9
control CALC x
control POINTS ""
control HELP 1
start
expect SSTab1.index == 0
choose SSTab1 3
expect SSTab1.index == 0
expect lst_Mol.text == 1.0
expect lst_Mol.enabled == false
expect opt_CalcTerm.checked == false
expect opt_NeedCalc.enabled == true
click ctl_Button5
expect ended
