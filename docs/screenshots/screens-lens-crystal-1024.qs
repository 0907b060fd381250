# The silver chloride crystal through the glass.
name Mia
size 1024x768
start
choose SSTab1 3
click ctl_Button8
click bar_Buttons
click ctl_Button1
settle
click ctl_Button3
settle
click but_ShowMag
wait 30
screenshot lens-crystal-1024.png
key ESC
wait 4
