# While the lens slides no dosing and no calculation starts, and while something falls no lens.
name Mia
sound 2
start
choose SSTab1 3
choose lst_Mol 0.8
check opt_NeedCalc off
click ctl_Button8
expect form frm_AppMainSilverStart
expect form.Accepted == false
click bar_Buttons
expect form frm_AppMainSilver
expect nobox
expect session.SessionConcentration == 0.8
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
click ctl_Button3
expect session.SessionBusy == false
expect drops.count == 0
expect frm_CalcDirect.visible == false
expect frm_Calc.visible == false
expect form.sClicks == 2
expect form.vVol == 12
mouse pic_Above 150 100
expect session.SessionBusy == false
expect drops.count == 0
expect frm_CalcDirect.visible == false
expect frm_Calc.visible == false
expect form.sClicks == 2
expect form.vVol == 12
click but_Calc
expect session.SessionBusy == false
expect drops.count == 0
expect frm_CalcDirect.visible == false
expect frm_Calc.visible == false
expect form.sClicks == 2
expect form.vVol == 12
click ctl_Button2
expect session.SessionBusy == false
expect drops.count == 0
expect frm_CalcDirect.visible == false
expect frm_Calc.visible == false
expect form.sClicks == 2
expect form.vVol == 12
wait 0.1
expect session.SessionBusy == false
expect frm_CalcDirect.visible == false
expect form.sClicks == 2
expect but_ShowMag.visible == false
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
click ctl_Button3
expect session.SessionBusy == false
expect drops.count == 0
expect frm_CalcDirect.visible == false
expect frm_Calc.visible == false
expect form.sClicks == 2
expect form.vVol == 12
mouse pic_Above 150 100
expect session.SessionBusy == false
expect drops.count == 0
expect frm_CalcDirect.visible == false
expect frm_Calc.visible == false
expect form.sClicks == 2
expect form.vVol == 12
click but_Calc
expect session.SessionBusy == false
expect drops.count == 0
expect frm_CalcDirect.visible == false
expect frm_Calc.visible == false
expect form.sClicks == 2
expect form.vVol == 12
click ctl_Button2
expect session.SessionBusy == false
expect drops.count == 0
expect frm_CalcDirect.visible == false
expect frm_Calc.visible == false
expect form.sClicks == 2
expect form.vVol == 12
wait 0.1
expect session.SessionBusy == false
expect frm_CalcDirect.visible == false
expect form.sClicks == 2
expect but_ShowMag.visible == false
until but_ShowMag.visible == true 1
expect pic_Magnify.visible == false
expect top == frm_AppMainSilver
expect form.vVol == 12
expect frm_CalcDirect.visible == false
expect nobox
# a dialog opened while the lens slides
click but_ShowMag
wait 0.3
click but_phCompare
expect form frm_DialogphCompare
wait 2
close
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
until but_ShowMag.visible == true 1
expect pic_Magnify.visible == false
expect top == frm_AppMainSilver
# a drop falls: no lens while the tap is open, one when it is shut
click ctl_Button3
wait 0.1
expect session.SessionBusy == true
click but_ShowMag
wait 0.1
expect but_ShowMag.visible == true
expect pic_Magnify.visible == false
until session.SessionBusy == false
expect drops.count == 2
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
mouse frm_AppMagnify 20 400
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
settle
expect form.vVol == 13
# with the direct input open
click but_Calc
type txt_Ph 0,25
click but_ShowMag
wait 0.5
expect top == frm_AppMainSilver
expect but_ShowMag.visible == false
expect pic_Magnify.visible == true
expect pic_Magnify.top == 148
expect pic_Magnify.left ~= 563 12
click but_HelpCalc
wait 0.1
expect frm_Calc.visible == false
expect frm_CalcDirect.visible == true
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
expect frm_CalcDirect.visible == true
expect txt_Ph.text == 0,25
type txt_Ph 0,25
key ENTER
expect frm_AppMainSilver.frm_CalcDirect.visible == false
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt"
expect report progress 1 0
expect series(1).count == 1
expect series(1).x(1) == 3
expect series(1).y(1) ~= 0.25 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 1
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect frm_AppMainSilver.lab_pH.text == ?
# in the middle of a calculation
click ctl_Button3
settle
click but_Calc
click but_HelpCalc
expect frm_Calc.visible == true
expect frm_CalcDirect.visible == false
expect form.vTries == 0
expect form.vMismatch == 0
expect form.sStep == 3
expect but_CalcStep(3).visible == true
expect txt_Calc(3).focus == true
type txt_Calc(3) 0,008
key ENTER
expect form.sStep == 6
expect but_CalcStep(6).visible == true
expect txt_Calc(6).focus == true
expect form.vTries == 0
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
expect frm_Calc.visible == true
expect form.sStep == 6
type txt_Calc(6) 0,004
key ENTER
expect form.sStep == 7
expect but_CalcStep(7).visible == true
expect but_CalcStep(7).focus == true
expect form.vTries == 0
click opt_Calc(1)
click but_CalcStep(7)
expect form.sStep == 10
expect but_CalcStep(10).visible == true
expect txt_Calc(10).focus == true
expect form.vTries == 0
type txt_Calc(10) 0,286
key ENTER
expect form.sStep == 11
expect but_CalcStep(11).visible == true
expect txt_Calc(11).focus == true
expect form.vTries == 0
type txt_Calc(11) 6,983*10^-10
key ENTER
expect form.sStep == 12
expect but_CalcStep(12).visible == true
expect txt_Calc(12).focus == true
expect form.vTries == 0
type txt_Calc(12) 0,260
key ENTER
expect box info Punktberechnung "Diesen Titrationspunkt hast Du geschafft! Es ist der 2. Punkt"
expect report progress 2 0
expect series(1).count == 2
expect series(1).x(2) == 4
expect series(1).y(2) ~= 0.25980001461666635 1e-12
expect frm_AppMainSilver.lab_punktegerechnet.text == 2
expect frm_AppMainSilver.lab_solveuse.text == 0
expect frm_AppMainSilver.lab_helpused.text == 0
expect form frm_DialogphCompare
expect form.caption == "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf"
expect nosound
click ctl_CmdBar1
expect form frm_AppMainSilver
expect frm_Calc.visible == false
expect form.vLastVol == 4
expect lab_pH.text == "0,26 V"
expect nobox
expect noreport
menu mnu_FileQuit
expect ended
