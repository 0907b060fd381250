# No teacher keys.
name Mia
start
expect SSTab1.index == 0
expect lst_Mol.text == 1.0
expect lst_Mol.enabled == true
expect opt_CalcTerm.enabled == true
expect opt_NeedCalc.enabled == true
expect opt_EnableSounds.enabled == true
choose SSTab1 2
expect SSTab1.index == 2
click ctl_Button5
expect ended
