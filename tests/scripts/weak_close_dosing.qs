# The close box while the pipette runs ends the process at once.
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
wait 2
expect session.SessionBusy == true
close
expect ended
