# Back to the start dialog and on to a second task.
name Mia
start
choose SSTab1 3
choose lst_Mol 1.2
check opt_NeedCalc off
click ctl_Button3
expect form frm_AppMainStrong
click ctl_Button1
settle
click ctl_Button3
settle
click ctl_Button3
settle
menu mnu_FileNew
expect form frm_DialogStartup
expect session.SessionConcentration == 1.2
expect lst_Mol.text == 1.0
expect opt_EnableSounds.enabled == false
choose SSTab1 3
choose lst_Mol 0.6
click ctl_Button3
expect form.vVol == 0
expect form.vPoints == 0
expect lab_Step(0).text == "Klicke auf die            Pipette, um 10 mL Salzsäure  (c = 0.6 mol/L) in das Becherglas fließen zu lassen"
click ctl_Button1
wait 1
menu mnu_FileNew
expect form frm_DialogStartup
close
expect ended
