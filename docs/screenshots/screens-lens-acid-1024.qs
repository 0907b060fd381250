# Acetic acid through the glass.
name Mia
size 1024x768
start
choose SSTab1 3
click ctl_Button4
click ctl_Button1
settle
click but_ShowMag
wait 0.9
screenshot lens-slide-1024.png
wait 20
screenshot lens-acid-1024.png
key ESC
wait 4
