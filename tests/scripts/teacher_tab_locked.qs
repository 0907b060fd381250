# The teacher fixes the tab.
name Mia
control MODUS 3
start
expect SSTab1.index == 3
choose SSTab1 1
expect SSTab1.index == 3
expect ctl_Button9.visible == true
expect but_CunductoWeak.visible == true
expect ctl_Button11.visible == true
expect ctl_Button3.visible == true
expect ctl_Button4.visible == true
expect ctl_Button8.visible == true
click ctl_Button5
expect ended
