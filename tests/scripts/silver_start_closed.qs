# Whoever closes the start form of the silver task has no task: the program ends.
name Mia
start
choose SSTab1 3
click ctl_Button8
expect form frm_AppMainSilverStart
expect form.Accepted == false
expect nobox
close
expect ended
