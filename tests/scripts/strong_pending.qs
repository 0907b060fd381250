# Required points are enforced.
name Mia
start
choose SSTab1 3
choose lst_Mol 1.0
click ctl_Button3
expect form frm_AppMainStrong
click ctl_Button1
settle
click ctl_Button3
expect box ok "" "Nach der Vorgabe soll dieser Punkt gerechnet werden!"
expect form.vVol == 10
expect form.sClicks == 0
click but_Calc
type txt_Ph 0
key ENTER
expect box info * *
click ctl_Button3
settle
expect form.vVol == 11
click ctl_Button3
expect box ok "" *
expect but_Calc.bordercolor == #c0ffc0
expect but_Calc.bordercolor2 == #008000
menu mnu_FileQuit
expect ended
