# A sound mode that stands for nothing leaves the box as it is.
name Mia
sound 7
start
expect opt_EnableSounds.checked == true
expect opt_EnableSounds.enabled == true
click ctl_Button5
expect ended
