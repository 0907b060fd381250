# The lens, opened and left by who has only keys.
name Mia
start
choose SSTab1 3
check opt_NeedCalc off
click ctl_Button4
expect form frm_AppMainWeak
click ctl_Button1
settle
click but_ShowMag
until top == frm_AppMagnify
wait 2
key ESC
until top == frm_AppMainWeak
menu mnu_FileQuit
expect ended
