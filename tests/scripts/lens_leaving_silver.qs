# The program is left and begun anew while the lens slides, and from the demo it opens as well.
name Mia
sound 2
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
click but_ShowMag
wait 0.5
expect top == frm_AppMainSilver
expect but_ShowMag.visible == false
expect pic_Magnify.visible == true
expect pic_Magnify.top == 148
expect pic_Magnify.left ~= 563 12
menu mnu_FileNew
expect form frm_DialogStartup
choose SSTab1 2
click ctl_Button17
expect form frm_AppMainSilverStart
expect form.Accepted == false
click bar_Buttons
expect form frm_AppMainSilver
expect nobox
expect session.SessionConcentration == 1
expect session.SessionDemo == true
expect session.SessionRequiredPoints == 0,1,5,9,10,11,20
expect but_ShowMag.visible == false
click ctl_Button1
settle
expect form.vVol == 10
answer no
click ctl_Button3
expect box yesno * *
settle
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
wait 1.05
expect top == frm_AppMagnify
expect form.Frames == 1
expect lab_Attention.visible == true
expect img_Attention.visible == true
expect lab_Attention.text == "In Wirklichkeit reagieren nur äußerst wenige Moleküle: 1 von 100.000!"
close
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
menu mnu_FileNew
expect form frm_DialogStartup
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
click but_ShowMag
wait 0.5
expect top == frm_AppMainSilver
expect but_ShowMag.visible == false
expect pic_Magnify.visible == true
expect pic_Magnify.top == 148
expect pic_Magnify.left ~= 563 12
close
expect ended
