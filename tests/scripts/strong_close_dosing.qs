# The close box during dosing ends the process at once.
name Mia
start
choose SSTab1 3
click ctl_Button3
click ctl_Button1
wait 2
expect session.SessionBusy == true
expect drops.count != 0
click ctl_Button1
close
expect ended
