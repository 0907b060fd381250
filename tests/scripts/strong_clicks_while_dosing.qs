# Clicks during dosing are dropped; dialogs may open meanwhile.
name Mia
start
choose SSTab1 3
check opt_NeedCalc off
click ctl_Button3
click ctl_Button1
wait 1
click ctl_Button1
mouse pic_Above 150 100
click but_Help
expect form frm_DialogHelp
wait 3
click ctl_CmdBar1
expect form frm_AppMainStrong
menu mnu_HelpTerms
expect form frm_DialogTerms
key ESC
expect form frm_AppMainStrong
menu mnu_HelpAbout
expect box about * *
settle
expect form.vVol == 10
expect but_Add(0).visible == false
click ctl_Button3
wait 0.05
menu mnu_FileQuit
wait 2
expect ended
