# A demo always runs at 1.0 mol/L, whatever the list shows.
name Mia
start
choose SSTab1 3
choose lst_Mol 1.4
check opt_NeedCalc on
choose SSTab1 2
click ctl_Button15
expect form frm_AppMainStrong
expect session.SessionDemo == true
expect session.SessionConcentration == 1
expect session.SessionRequiredPoints == 0,1,5,9,10,11,20
