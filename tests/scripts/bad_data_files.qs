# Every file of the data folder broken: pictures, curve, help and sounds cost only themselves.
name Mia
data broken_data
start
choose SSTab1 3
check opt_NeedCalc off
click ctl_Button3
expect nobox
expect form frm_AppMainStrong
click ctl_Button1
settle
expect form.vVol == 10
click ctl_Button3
settle
click ctl_Button3
settle
click but_Calc
type txt_Ph 0,18
key ENTER
expect box info Punktberechnung *
expect series(1).count == 1
click but_phCompare
close
click but_Help
close
menu mnu_FileQuit
expect ended
