# The water scene without sound, out of a rectangle without size; closed by the close box.
name Mia
sound 2
size 1920x1080
form frm_AppMagnify ShowWater true SourceLeft 600 SourceTop 300 SourceRight 600 SourceBottom 300
start
expect form frm_AppMagnify
expect form.Frames == 0
expect lab_Attention.visible == false
wait 1.05
expect form.Frames == 1
expect lab_Attention.visible == true
wait 15
expect nosound
expect form.Frames ~= 151 1
expect nobox
expect noreport
close
wait 0.5
expect top == frm_AppMagnify
expect lab_Attention.visible == false
wait 0.4
expect ended
