# The water scene, which goes before that of the acid; closed by a press on the scene.
name Mia
form frm_AppMagnify ShowWater true ShowAcid true SourceRight 1366 SourceBottom 768
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
expect form.Active ~= 1.5 1.5
click pic_Screen
wait 0.5
expect top == frm_AppMagnify
expect lab_Attention.visible == false
wait 0.4
expect ended
