# The beaker takes 30 mL: with the last mL the burette leaves, and clicks on the glass do nothing.
name Mia
size 1920x1080
start
choose SSTab1 3
choose lst_Mol 0.6
check opt_NeedCalc off
click ctl_Button3
expect form frm_AppMainStrong
expect form.vTaskStep == 0
expect pic_Step(0).visible == true
expect pic_Step(1).visible == false
expect lab_Step(0).textcolor == #000000
expect lab_Step1.textcolor == #808080
click ctl_Button1
settle
expect ctl_Button1.visible == false
expect form.vTaskStep == 1
expect lab_Step(0).textcolor == #808080
expect lab_Step1.textcolor == #000000
expect pic_Step(0).icon == "Ico\\16\\Computer\\Signs\\OK.ico"
expect pic_Step(1).icon == "Ico\\16\\Abstract\\Arrows\\Black Compact Right.ico"
expect form.vBurReady == true
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
click ctl_Button3
settle
expect form.vVol == 29
expect form.vBurShown == true
expect form.vTaskStep == 1
mouse pic_Above 150 100
settle
expect form.vVol == 30
expect form.sClicks == 20
expect form.vBurShown == false
expect form.vBurReady == false
expect form.vBurY == -1000
expect form.vTaskStep == 3
expect pic_Step(2).visible == true
expect lab_Step1.textcolor == #808080
click ctl_Button3
mouse pic_Above 150 100
wait 2
expect form.vVol == 30
expect form.sClicks == 20
expect nobox
expect but_Calc.visible == true
expect lab_BilanzCount(1).term == "20 mmol"
expect lab_BilanzCount(4).term == "14 mmol"
menu mnu_FileQuit
expect ended
