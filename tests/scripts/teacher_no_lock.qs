# A mode that is no number locks nothing.
name Mia
control MODUS abc
control MODUS_CALC 4
sound 2
start
choose SSTab1 3
expect SSTab1.index == 3
expect ctl_Button4.visible == true
expect opt_EnableSounds.checked == false
expect opt_EnableSounds.enabled == false
click ctl_Button5
expect ended
