# With no scene asked for the crystal comes; closed by a press in the corner.
name Mia
form frm_AppMagnify
start
expect form frm_AppMagnify
expect form.Frames == 0
expect lab_Attention.visible == false
wait 1.05
expect form.Frames == 1
expect lab_Attention.visible == true
wait 15
expect sound "sounds\\ex.wav"
expect form.Frames ~= 151 1
expect nobox
expect noreport
expect form.Active ~= 2 1
mouse frm_AppMagnify 5 5
wait 0.5
expect top == frm_AppMagnify
expect lab_Attention.visible == false
wait 0.4
expect ended
