# A learner who has switched the sound off hears nothing of the scene.
name Mia
start
choose SSTab1 3
choose lst_Mol 1.0
check opt_NeedCalc off
check opt_EnableSounds off
click ctl_Button8
expect form frm_AppMainSilverStart
expect form.Accepted == false
click bar_Buttons
expect form frm_AppMainSilver
expect nobox
expect session.SessionConcentration == 1
expect session.SessionDemo == false
expect session.SessionRequiredPoints == ""
click ctl_Button1
settle
expect form.vVol == 10
expect but_ShowMag.visible == false
click ctl_Button3
settle
click ctl_Button3
settle
expect but_ShowMag.visible == true
expect pic_Magnify.visible == false
click but_ShowMag
wait 0.5
expect top == frm_AppMainSilver
expect but_ShowMag.visible == false
expect pic_Magnify.visible == true
expect pic_Magnify.top == 148
expect pic_Magnify.left ~= 563 12
until top == frm_AppMagnify 1.2
expect frm_AppMainSilver.pic_Magnify.visible == false
expect form.ShowWater == false
expect form.ShowAcid == false
expect form.Frames == 0
expect lab_Attention.visible == false
wait 21
expect form.Frames ~= 200 1
expect nosound
key ESC
wait 0.5
expect top == frm_AppMagnify
expect lab_Attention.visible == false
expect img_Attention.visible == false
expect form.Started == true
until top == frm_AppMainSilver 1
wait 0.5
expect pic_Magnify.visible == true
expect but_ShowMag.visible == false
expect pic_Magnify.left ~= 563 12
until but_ShowMag.visible == true 1
expect pic_Magnify.visible == false
expect top == frm_AppMainSilver
click but_Calc
expect frm_CalcDirect.visible == true
expect txt_Ph.focus == true
type txt_Ph 0,24
key ENTER
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 0
expect series(1).count == 1
expect series(1).x(1) == 2
expect series(1).y(1) ~= 0.24 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 1
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
expect form frm_AppMainSilver
menu mnu_FileQuit
expect ended
