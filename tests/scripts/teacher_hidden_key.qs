# Two keys answer to one button, so none is left.
name Mia
control MODUS 1
control MODUS_ANI 4
start
expect ctl_Button1.visible == false
expect but_IntroLeit.visible == false
click ctl_Button5
expect ended
