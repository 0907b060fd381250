# The calculated curve with points at volumes of the learner's choice.
name Mia
size 1024x768
start
choose SSTab1 2
click ctl_Button19
command bar_Buttons DIALOG.OK();
click ctl_Button1
settle
click but_Calc
click but_CalcStep(1)
click but_CalcStep(2)
click but_CalcStep(3)
click but_CalcStep(4)
click but_CalcStep(5)
click but_CalcStep(6)
click but_CalcStep(6)
answer text "2"
click but_AddPoint
click but_CalcStep(1)
click but_CalcStep(2)
click but_CalcStep(3)
click but_CalcStep(4)
click but_CalcStep(5)
click but_CalcStep(6)
click but_CalcStep(6)
answer text "4"
click but_AddPoint
click but_CalcStep(1)
click but_CalcStep(2)
click but_CalcStep(3)
click but_CalcStep(4)
click but_CalcStep(5)
click but_CalcStep(6)
click but_CalcStep(6)
answer text "6"
click but_AddPoint
click but_CalcStep(1)
click but_CalcStep(2)
click but_CalcStep(3)
click but_CalcStep(4)
click but_CalcStep(5)
click but_CalcStep(6)
click but_CalcStep(6)
answer text "8"
click but_AddPoint
click but_CalcStep(1)
click but_CalcStep(2)
click but_CalcStep(3)
click but_CalcStep(4)
click but_CalcStep(5)
click but_CalcStep(6)
click but_CalcStep(6)
answer text "9"
click but_AddPoint
click but_CalcStep(1)
click but_CalcStep(2)
click but_CalcStep(3)
click but_CalcStep(4)
click but_CalcStep(5)
click but_CalcStep(6)
click but_CalcStep(6)
answer text "9,5"
click but_AddPoint
click but_CalcStep(1)
click but_CalcStep(2)
click but_CalcStep(3)
click but_CalcStep(4)
click but_CalcStep(5)
click but_CalcStep(6)
click but_CalcStep(6)
answer text "9,9"
click but_AddPoint
click but_CalcStep(1)
click but_CalcStep(2)
click but_CalcStep(3)
click but_CalcStep(4)
click but_CalcStep(5)
click but_CalcStep(6)
click but_CalcStep(6)
answer text "10,1"
click but_AddPoint
click but_CalcStep(1)
click but_CalcStep(2)
click but_CalcStep(3)
click but_CalcStep(4)
click but_CalcStep(5)
click but_CalcStep(6)
click but_CalcStep(6)
answer text "10,5"
click but_AddPoint
click but_CalcStep(1)
click but_CalcStep(2)
click but_CalcStep(3)
click but_CalcStep(4)
click but_CalcStep(5)
click but_CalcStep(6)
click but_CalcStep(6)
answer text "11"
click but_AddPoint
click but_CalcStep(1)
click but_CalcStep(2)
click but_CalcStep(3)
click but_CalcStep(4)
click but_CalcStep(5)
click but_CalcStep(6)
click but_CalcStep(6)
answer text "12"
click but_AddPoint
click but_CalcStep(1)
click but_CalcStep(2)
click but_CalcStep(3)
click but_CalcStep(4)
click but_CalcStep(5)
click but_CalcStep(6)
click but_CalcStep(6)
answer text "14"
click but_AddPoint
click but_CalcStep(1)
click but_CalcStep(2)
click but_CalcStep(3)
click but_CalcStep(4)
click but_CalcStep(5)
click but_CalcStep(6)
click but_CalcStep(6)
answer text "16"
click but_AddPoint
click but_CalcStep(1)
click but_CalcStep(2)
click but_CalcStep(3)
click but_CalcStep(4)
click but_CalcStep(5)
click but_CalcStep(6)
click but_CalcStep(6)
answer text "18"
click but_AddPoint
click but_CalcStep(1)
click but_CalcStep(2)
click but_CalcStep(3)
click but_CalcStep(4)
click but_CalcStep(5)
click but_CalcStep(6)
click but_CalcStep(6)
answer text "20"
click but_AddPoint
click but_CalcStep(1)
click but_CalcStep(2)
click but_CalcStep(3)
click but_CalcStep(4)
click but_CalcStep(5)
click but_CalcStep(6)
click but_CalcStep(6)
answer text "7"
click but_AddPoint
click but_CalcStep(1)
click but_CalcStep(2)
click but_CalcStep(3)
click but_CalcStep(4)
wait 0.3
screenshot logarithm.png
click but_CalcStep(5)
click but_CalcStep(6)
click but_CalcStep(6)
menu mnu_FileQuit
expect ended
