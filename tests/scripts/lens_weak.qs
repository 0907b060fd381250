# The lens over the weak acid shows acetic acid; it closes by a press on the form, on the scene, on the ground,
# by Escape and by the close box, and the task goes on.
name Mia
sound 2
start
choose SSTab1 3
choose lst_Mol 1.0
check opt_NeedCalc off
click ctl_Button4
expect form frm_AppMainWeak
expect nobox
expect session.SessionConcentration == 1
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
# press
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
until but_ShowMag.visible == true 1
expect pic_Magnify.visible == false
expect top == frm_AppMainWeak
# scene
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
wait 1.5
expect form.Frames ~= 16 1
click pic_Screen
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
until but_ShowMag.visible == true 1
expect pic_Magnify.visible == false
expect top == frm_AppMainWeak
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 4,158
key ENTER
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 0
expect series(1).count == 1
expect series(1).x(1) == 2
expect series(1).y(1) ~= 4.158 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 1
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 4,158
click ctl_Button3
settle
expect form.vVol == 13
# ground
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
wait 1.5
expect form.Frames ~= 16 1
click pic_Fill
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
until but_ShowMag.visible == true 1
expect pic_Magnify.visible == false
expect top == frm_AppMainWeak
# escape
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
wait 1.5
expect form.Frames ~= 16 1
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
until but_ShowMag.visible == true 1
expect pic_Magnify.visible == false
expect top == frm_AppMainWeak
# box
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
wait 1.5
expect form.Frames ~= 16 1
close
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
until but_ShowMag.visible == true 1
expect pic_Magnify.visible == false
expect top == frm_AppMainWeak
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 4,392
key ENTER
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 0
expect series(1).count == 2
expect series(1).x(2) == 3
expect series(1).y(2) ~= 4.392 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 2
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 4,392
click ctl_Button3
settle
expect form.vVol == 14
expect nosound
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 4,584
key ENTER
expect frm_AppMainWeak.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 3. Punkt"
expect report progress 3 0
expect series(1).count == 3
expect series(1).x(3) == 4
expect series(1).y(3) ~= 4.584 1e-12
expect frm_AppMainWeak.lab_punktegerechnet.text == 3
expect frm_AppMainWeak.lab_solveuse.text == 0
expect frm_AppMainWeak.lab_helpused.text == 0
expect frm_AppMainWeak.lab_pH.text == 4,584
expect nobox
expect noreport
menu mnu_FileQuit
expect ended
