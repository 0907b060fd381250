# The acid scene out of a rectangle whose edges are swapped and lie off the screen; closed by Escape.
name Mia
size 1024x768
form frm_AppMagnify ShowAcid true SourceLeft 5000 SourceTop 900 SourceRight -200 SourceBottom -1
start
expect form frm_AppMagnify
expect form.Frames == 0
expect lab_Attention.visible == false
wait 1.05
expect form.Frames == 1
expect lab_Attention.visible == true
wait 15
expect sound "sounds\\collide.wav"
expect form.Frames ~= 151 1
expect nobox
expect noreport
expect form.Active ~= 2.5 2.5
key ESC
wait 0.5
expect top == frm_AppMagnify
expect lab_Attention.visible == false
wait 0.4
expect ended
