# The scene is heard: an ion breaks out of the crystal comes first.
name Mia
start
choose SSTab1 3
choose lst_Mol 1.0
check opt_NeedCalc off
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
expect nosound
click but_ShowMag
wait 0.5
expect top == frm_AppMainSilver
expect but_ShowMag.visible == false
expect pic_Magnify.visible == true
expect pic_Magnify.top == 148
expect pic_Magnify.left ~= 563 12
expect nosound
until top == frm_AppMagnify 1.2
expect frm_AppMainSilver.pic_Magnify.visible == false
expect form.ShowWater == false
expect form.ShowAcid == false
expect form.Frames == 0
expect lab_Attention.visible == false
wait 0.9
expect nosound
wait 20
expect sound "sounds\\ex.wav"
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
menu mnu_FileQuit
expect ended
