# The lens is closed at every moment, once and twice: while it slides, zooms in, shows and zooms out.
name Mia
sound 2
start
choose SSTab1 3
choose lst_Mol 1.2
check opt_NeedCalc off
click ctl_Button4
expect form frm_AppMainWeak
expect nobox
expect session.SessionConcentration == 1.2
expect session.SessionDemo == false
expect session.SessionRequiredPoints == ""
click ctl_Button1
settle
expect form.vVol == 10
click ctl_Button3
settle
click ctl_Button3
settle
expect but_ShowMag.visible == true
expect pic_Magnify.visible == false
# press during the zoom in: one frame of the scene, then the way back
click but_ShowMag
wait 0.5
expect top == frm_AppMainWeak
expect but_ShowMag.visible == false
expect pic_Magnify.visible == true
expect pic_Magnify.top == 148
expect pic_Magnify.left ~= 563 12
until top == frm_AppMagnify 1.2
expect frm_AppMainWeak.pic_Magnify.visible == false
expect form.ShowWater == false
expect form.ShowAcid == true
expect form.Frames == 0
expect lab_Attention.visible == false
wait 0.3
mouse frm_AppMagnify 300 20
wait 0.6
expect top == frm_AppMagnify
expect form.Frames == 0
wait 0.15
expect form.Frames == 1
wait 0.3
expect top == frm_AppMagnify
expect form.Frames == 1
expect lab_Attention.visible == false
until top == frm_AppMainWeak 1
wait 0.5
expect pic_Magnify.visible == true
expect but_ShowMag.visible == false
expect pic_Magnify.left ~= 563 12
until but_ShowMag.visible == true 1
expect pic_Magnify.visible == false
expect top == frm_AppMainWeak
# press twice during the zoom in and once more on the way back
click but_ShowMag
wait 0.5
expect top == frm_AppMainWeak
expect but_ShowMag.visible == false
expect pic_Magnify.visible == true
expect pic_Magnify.top == 148
expect pic_Magnify.left ~= 563 12
until top == frm_AppMagnify 1.2
expect frm_AppMainWeak.pic_Magnify.visible == false
expect form.ShowWater == false
expect form.ShowAcid == true
expect form.Frames == 0
expect lab_Attention.visible == false
wait 0.3
mouse frm_AppMagnify 300 20
mouse frm_AppMagnify 300 20
wait 1.2
expect form.Frames == 1
mouse frm_AppMagnify 300 20
mouse frm_AppMagnify 300 20
until top == frm_AppMainWeak 1
wait 0.5
expect pic_Magnify.visible == true
expect but_ShowMag.visible == false
expect pic_Magnify.left ~= 563 12
until but_ShowMag.visible == true 1
expect pic_Magnify.visible == false
expect top == frm_AppMainWeak
# press in the scene, twice, then on the way back
click but_ShowMag
wait 0.5
expect top == frm_AppMainWeak
expect but_ShowMag.visible == false
expect pic_Magnify.visible == true
expect pic_Magnify.top == 148
expect pic_Magnify.left ~= 563 12
until top == frm_AppMagnify 1.2
expect frm_AppMainWeak.pic_Magnify.visible == false
expect form.ShowWater == false
expect form.ShowAcid == true
expect form.Frames == 0
expect lab_Attention.visible == false
wait 1.05
expect top == frm_AppMagnify
expect form.Frames == 1
expect lab_Attention.visible == true
expect img_Attention.visible == true
expect lab_Attention.text == "In Wirklichkeit reagieren nur äußerst wenige Moleküle: 1 von 100.000!"
mouse frm_AppMagnify 300 20
mouse frm_AppMagnify 300 20
wait 0.5
expect top == frm_AppMagnify
expect lab_Attention.visible == false
expect img_Attention.visible == false
expect form.Started == true
mouse frm_AppMagnify 300 20
mouse frm_AppMagnify 300 20
expect form.Frames == 1
until top == frm_AppMainWeak 1
wait 0.5
expect pic_Magnify.visible == true
expect but_ShowMag.visible == false
expect pic_Magnify.left ~= 563 12
until but_ShowMag.visible == true 1
expect pic_Magnify.visible == false
expect top == frm_AppMainWeak
# scene during the zoom in: one frame of the scene, then the way back
click but_ShowMag
wait 0.5
expect top == frm_AppMainWeak
expect but_ShowMag.visible == false
expect pic_Magnify.visible == true
expect pic_Magnify.top == 148
expect pic_Magnify.left ~= 563 12
until top == frm_AppMagnify 1.2
expect frm_AppMainWeak.pic_Magnify.visible == false
expect form.ShowWater == false
expect form.ShowAcid == true
expect form.Frames == 0
expect lab_Attention.visible == false
wait 0.3
click pic_Screen
wait 0.6
expect top == frm_AppMagnify
expect form.Frames == 0
wait 0.15
expect form.Frames == 1
wait 0.3
expect top == frm_AppMagnify
expect form.Frames == 1
expect lab_Attention.visible == false
until top == frm_AppMainWeak 1
wait 0.5
expect pic_Magnify.visible == true
expect but_ShowMag.visible == false
expect pic_Magnify.left ~= 563 12
until but_ShowMag.visible == true 1
expect pic_Magnify.visible == false
expect top == frm_AppMainWeak
# scene twice during the zoom in and once more on the way back
click but_ShowMag
wait 0.5
expect top == frm_AppMainWeak
expect but_ShowMag.visible == false
expect pic_Magnify.visible == true
expect pic_Magnify.top == 148
expect pic_Magnify.left ~= 563 12
until top == frm_AppMagnify 1.2
expect frm_AppMainWeak.pic_Magnify.visible == false
expect form.ShowWater == false
expect form.ShowAcid == true
expect form.Frames == 0
expect lab_Attention.visible == false
wait 0.3
click pic_Screen
click pic_Screen
wait 1.2
expect form.Frames == 1
click pic_Screen
click pic_Screen
until top == frm_AppMainWeak 1
wait 0.5
expect pic_Magnify.visible == true
expect but_ShowMag.visible == false
expect pic_Magnify.left ~= 563 12
until but_ShowMag.visible == true 1
expect pic_Magnify.visible == false
expect top == frm_AppMainWeak
# scene in the scene, twice, then on the way back
click but_ShowMag
wait 0.5
expect top == frm_AppMainWeak
expect but_ShowMag.visible == false
expect pic_Magnify.visible == true
expect pic_Magnify.top == 148
expect pic_Magnify.left ~= 563 12
until top == frm_AppMagnify 1.2
expect frm_AppMainWeak.pic_Magnify.visible == false
expect form.ShowWater == false
expect form.ShowAcid == true
expect form.Frames == 0
expect lab_Attention.visible == false
wait 1.05
expect top == frm_AppMagnify
expect form.Frames == 1
expect lab_Attention.visible == true
expect img_Attention.visible == true
expect lab_Attention.text == "In Wirklichkeit reagieren nur äußerst wenige Moleküle: 1 von 100.000!"
click pic_Screen
click pic_Screen
wait 0.5
expect top == frm_AppMagnify
expect lab_Attention.visible == false
expect img_Attention.visible == false
expect form.Started == true
click pic_Screen
click pic_Screen
expect form.Frames == 1
until top == frm_AppMainWeak 1
wait 0.5
expect pic_Magnify.visible == true
expect but_ShowMag.visible == false
expect pic_Magnify.left ~= 563 12
until but_ShowMag.visible == true 1
expect pic_Magnify.visible == false
expect top == frm_AppMainWeak
# ground during the zoom in: one frame of the scene, then the way back
click but_ShowMag
wait 0.5
expect top == frm_AppMainWeak
expect but_ShowMag.visible == false
expect pic_Magnify.visible == true
expect pic_Magnify.top == 148
expect pic_Magnify.left ~= 563 12
until top == frm_AppMagnify 1.2
expect frm_AppMainWeak.pic_Magnify.visible == false
expect form.ShowWater == false
expect form.ShowAcid == true
expect form.Frames == 0
expect lab_Attention.visible == false
wait 0.3
click pic_Fill
wait 0.6
expect top == frm_AppMagnify
expect form.Frames == 0
wait 0.15
expect form.Frames == 1
wait 0.3
expect top == frm_AppMagnify
expect form.Frames == 1
expect lab_Attention.visible == false
until top == frm_AppMainWeak 1
wait 0.5
expect pic_Magnify.visible == true
expect but_ShowMag.visible == false
expect pic_Magnify.left ~= 563 12
until but_ShowMag.visible == true 1
expect pic_Magnify.visible == false
expect top == frm_AppMainWeak
# ground twice during the zoom in and once more on the way back
click but_ShowMag
wait 0.5
expect top == frm_AppMainWeak
expect but_ShowMag.visible == false
expect pic_Magnify.visible == true
expect pic_Magnify.top == 148
expect pic_Magnify.left ~= 563 12
until top == frm_AppMagnify 1.2
expect frm_AppMainWeak.pic_Magnify.visible == false
expect form.ShowWater == false
expect form.ShowAcid == true
expect form.Frames == 0
expect lab_Attention.visible == false
wait 0.3
click pic_Fill
click pic_Fill
wait 1.2
expect form.Frames == 1
click pic_Fill
click pic_Fill
until top == frm_AppMainWeak 1
wait 0.5
expect pic_Magnify.visible == true
expect but_ShowMag.visible == false
expect pic_Magnify.left ~= 563 12
until but_ShowMag.visible == true 1
expect pic_Magnify.visible == false
expect top == frm_AppMainWeak
# ground in the scene, twice, then on the way back
click but_ShowMag
wait 0.5
expect top == frm_AppMainWeak
expect but_ShowMag.visible == false
expect pic_Magnify.visible == true
expect pic_Magnify.top == 148
expect pic_Magnify.left ~= 563 12
until top == frm_AppMagnify 1.2
expect frm_AppMainWeak.pic_Magnify.visible == false
expect form.ShowWater == false
expect form.ShowAcid == true
expect form.Frames == 0
expect lab_Attention.visible == false
wait 1.05
expect top == frm_AppMagnify
expect form.Frames == 1
expect lab_Attention.visible == true
expect img_Attention.visible == true
expect lab_Attention.text == "In Wirklichkeit reagieren nur äußerst wenige Moleküle: 1 von 100.000!"
click pic_Fill
click pic_Fill
wait 0.5
expect top == frm_AppMagnify
expect lab_Attention.visible == false
expect img_Attention.visible == false
expect form.Started == true
click pic_Fill
click pic_Fill
expect form.Frames == 1
until top == frm_AppMainWeak 1
wait 0.5
expect pic_Magnify.visible == true
expect but_ShowMag.visible == false
expect pic_Magnify.left ~= 563 12
until but_ShowMag.visible == true 1
expect pic_Magnify.visible == false
expect top == frm_AppMainWeak
# escape during the zoom in: one frame of the scene, then the way back
click but_ShowMag
wait 0.5
expect top == frm_AppMainWeak
expect but_ShowMag.visible == false
expect pic_Magnify.visible == true
expect pic_Magnify.top == 148
expect pic_Magnify.left ~= 563 12
until top == frm_AppMagnify 1.2
expect frm_AppMainWeak.pic_Magnify.visible == false
expect form.ShowWater == false
expect form.ShowAcid == true
expect form.Frames == 0
expect lab_Attention.visible == false
wait 0.3
key ESC
wait 0.6
expect top == frm_AppMagnify
expect form.Frames == 0
wait 0.15
expect form.Frames == 1
wait 0.3
expect top == frm_AppMagnify
expect form.Frames == 1
expect lab_Attention.visible == false
until top == frm_AppMainWeak 1
wait 0.5
expect pic_Magnify.visible == true
expect but_ShowMag.visible == false
expect pic_Magnify.left ~= 563 12
until but_ShowMag.visible == true 1
expect pic_Magnify.visible == false
expect top == frm_AppMainWeak
# escape twice during the zoom in and once more on the way back
click but_ShowMag
wait 0.5
expect top == frm_AppMainWeak
expect but_ShowMag.visible == false
expect pic_Magnify.visible == true
expect pic_Magnify.top == 148
expect pic_Magnify.left ~= 563 12
until top == frm_AppMagnify 1.2
expect frm_AppMainWeak.pic_Magnify.visible == false
expect form.ShowWater == false
expect form.ShowAcid == true
expect form.Frames == 0
expect lab_Attention.visible == false
wait 0.3
key ESC
key ESC
wait 1.2
expect form.Frames == 1
key ESC
key ESC
until top == frm_AppMainWeak 1
wait 0.5
expect pic_Magnify.visible == true
expect but_ShowMag.visible == false
expect pic_Magnify.left ~= 563 12
until but_ShowMag.visible == true 1
expect pic_Magnify.visible == false
expect top == frm_AppMainWeak
# escape in the scene, twice, then on the way back
click but_ShowMag
wait 0.5
expect top == frm_AppMainWeak
expect but_ShowMag.visible == false
expect pic_Magnify.visible == true
expect pic_Magnify.top == 148
expect pic_Magnify.left ~= 563 12
until top == frm_AppMagnify 1.2
expect frm_AppMainWeak.pic_Magnify.visible == false
expect form.ShowWater == false
expect form.ShowAcid == true
expect form.Frames == 0
expect lab_Attention.visible == false
wait 1.05
expect top == frm_AppMagnify
expect form.Frames == 1
expect lab_Attention.visible == true
expect img_Attention.visible == true
expect lab_Attention.text == "In Wirklichkeit reagieren nur äußerst wenige Moleküle: 1 von 100.000!"
key ESC
key ESC
wait 0.5
expect top == frm_AppMagnify
expect lab_Attention.visible == false
expect img_Attention.visible == false
expect form.Started == true
key ESC
key ESC
expect form.Frames == 1
until top == frm_AppMainWeak 1
wait 0.5
expect pic_Magnify.visible == true
expect but_ShowMag.visible == false
expect pic_Magnify.left ~= 563 12
until but_ShowMag.visible == true 1
expect pic_Magnify.visible == false
expect top == frm_AppMainWeak
# box during the zoom in: one frame of the scene, then the way back
click but_ShowMag
wait 0.5
expect top == frm_AppMainWeak
expect but_ShowMag.visible == false
expect pic_Magnify.visible == true
expect pic_Magnify.top == 148
expect pic_Magnify.left ~= 563 12
until top == frm_AppMagnify 1.2
expect frm_AppMainWeak.pic_Magnify.visible == false
expect form.ShowWater == false
expect form.ShowAcid == true
expect form.Frames == 0
expect lab_Attention.visible == false
wait 0.3
close
wait 0.6
expect top == frm_AppMagnify
expect form.Frames == 0
wait 0.15
expect form.Frames == 1
wait 0.3
expect top == frm_AppMagnify
expect form.Frames == 1
expect lab_Attention.visible == false
until top == frm_AppMainWeak 1
wait 0.5
expect pic_Magnify.visible == true
expect but_ShowMag.visible == false
expect pic_Magnify.left ~= 563 12
until but_ShowMag.visible == true 1
expect pic_Magnify.visible == false
expect top == frm_AppMainWeak
# box twice during the zoom in and once more on the way back
click but_ShowMag
wait 0.5
expect top == frm_AppMainWeak
expect but_ShowMag.visible == false
expect pic_Magnify.visible == true
expect pic_Magnify.top == 148
expect pic_Magnify.left ~= 563 12
until top == frm_AppMagnify 1.2
expect frm_AppMainWeak.pic_Magnify.visible == false
expect form.ShowWater == false
expect form.ShowAcid == true
expect form.Frames == 0
expect lab_Attention.visible == false
wait 0.3
close
close
wait 1.2
expect form.Frames == 1
close
close
until top == frm_AppMainWeak 1
wait 0.5
expect pic_Magnify.visible == true
expect but_ShowMag.visible == false
expect pic_Magnify.left ~= 563 12
until but_ShowMag.visible == true 1
expect pic_Magnify.visible == false
expect top == frm_AppMainWeak
# box in the scene, twice, then on the way back
click but_ShowMag
wait 0.5
expect top == frm_AppMainWeak
expect but_ShowMag.visible == false
expect pic_Magnify.visible == true
expect pic_Magnify.top == 148
expect pic_Magnify.left ~= 563 12
until top == frm_AppMagnify 1.2
expect frm_AppMainWeak.pic_Magnify.visible == false
expect form.ShowWater == false
expect form.ShowAcid == true
expect form.Frames == 0
expect lab_Attention.visible == false
wait 1.05
expect top == frm_AppMagnify
expect form.Frames == 1
expect lab_Attention.visible == true
expect img_Attention.visible == true
expect lab_Attention.text == "In Wirklichkeit reagieren nur äußerst wenige Moleküle: 1 von 100.000!"
close
close
wait 0.5
expect top == frm_AppMagnify
expect lab_Attention.visible == false
expect img_Attention.visible == false
expect form.Started == true
close
close
expect form.Frames == 1
until top == frm_AppMainWeak 1
wait 0.5
expect pic_Magnify.visible == true
expect but_ShowMag.visible == false
expect pic_Magnify.left ~= 563 12
until but_ShowMag.visible == true 1
expect pic_Magnify.visible == false
expect top == frm_AppMainWeak
# Escape while the lens slides changes nothing
click but_ShowMag
wait 0.5
expect top == frm_AppMainWeak
expect but_ShowMag.visible == false
expect pic_Magnify.visible == true
expect pic_Magnify.top == 148
expect pic_Magnify.left ~= 563 12
key ESC
wait 0.1
expect pic_Magnify.visible == true
until top == frm_AppMagnify 1.2
expect frm_AppMainWeak.pic_Magnify.visible == false
expect form.ShowWater == false
expect form.ShowAcid == true
expect form.Frames == 0
expect lab_Attention.visible == false
wait 1.05
expect top == frm_AppMagnify
expect form.Frames == 1
expect lab_Attention.visible == true
expect img_Attention.visible == true
expect lab_Attention.text == "In Wirklichkeit reagieren nur äußerst wenige Moleküle: 1 von 100.000!"
key ESC
wait 0.5
expect top == frm_AppMagnify
expect lab_Attention.visible == false
expect img_Attention.visible == false
expect form.Started == true
until top == frm_AppMainWeak 1
wait 0.5
expect pic_Magnify.visible == true
expect but_ShowMag.visible == false
expect pic_Magnify.left ~= 563 12
key ESC
until but_ShowMag.visible == true 1
expect pic_Magnify.visible == false
expect top == frm_AppMainWeak
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 4,061
key ENTER
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 0
expect series(1).count == 1
expect series(1).x(1) == 2
expect series(1).y(1) ~= 4.061 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 1
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 4,061
click ctl_Button3
settle
expect form.vVol == 13
expect nobox
expect noreport
expect nosound
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 4,283
key ENTER
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 0
expect series(1).count == 2
expect series(1).x(2) == 3
expect series(1).y(2) ~= 4.283 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 2
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 4,283
expect nobox
expect noreport
menu mnu_FileQuit
expect ended
