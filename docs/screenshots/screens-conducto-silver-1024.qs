# The conductometric demo of conducto-silver: apparatus, open panel, finished graph, comparison.
size 1024x768
name Mia
start
choose SSTab1 2
click ctl_Button14
wait 0.5
screenshot conducto-silver-start-1024.png
command bar_Buttons DIALOG.OK();
click ctl_Button1
settle
click but_Calc
click but_CalcStep(1)
click but_CalcStep(2)
click but_CalcStep(3)
click but_CalcStep(4)
click but_CalcStep(5)
wait 0.2
screenshot conducto-silver-tutor-1024.png
click but_CalcStep(6)
click but_CalcStep(6)
answer no
click ctl_Button3
settle
click but_Calc
click but_CalcStep(7)
click but_CalcStep(6)
click but_CalcStep(6)
click ctl_Button3
settle
click but_Calc
click but_CalcStep(7)
click but_CalcStep(6)
click but_CalcStep(6)
click ctl_Button3
settle
click but_Calc
click but_CalcStep(7)
click but_CalcStep(6)
click but_CalcStep(6)
click ctl_Button3
settle
click but_Calc
click but_CalcStep(7)
click but_CalcStep(6)
click but_CalcStep(6)
click ctl_Button3
settle
click but_Calc
click but_CalcStep(7)
click but_CalcStep(6)
click but_CalcStep(6)
click ctl_Button3
settle
click but_Calc
click but_CalcStep(7)
click but_CalcStep(6)
click but_CalcStep(6)
click ctl_Button3
settle
click but_Calc
click but_CalcStep(7)
click but_CalcStep(6)
click but_CalcStep(6)
click ctl_Button3
settle
click but_Calc
click but_CalcStep(7)
click but_CalcStep(6)
click but_CalcStep(6)
click ctl_Button3
settle
click but_Calc
click but_CalcStep(7)
click but_CalcStep(6)
click but_CalcStep(6)
click ctl_Button3
settle
click but_Calc
click but_CalcStep(7)
click but_CalcStep(6)
click but_CalcStep(6)
answer no
click ctl_Button3
settle
click but_Calc
click but_CalcStep(7)
click but_CalcStep(6)
click but_CalcStep(6)
answer no
click ctl_Button3
settle
click but_Calc
click but_CalcStep(7)
click but_CalcStep(6)
click but_CalcStep(6)
click ctl_Button3
settle
click but_Calc
click but_CalcStep(7)
click but_CalcStep(6)
click but_CalcStep(6)
click ctl_Button3
settle
click but_Calc
click but_CalcStep(7)
click but_CalcStep(6)
click but_CalcStep(6)
click ctl_Button3
settle
click but_Calc
click but_CalcStep(7)
click but_CalcStep(6)
click but_CalcStep(6)
click ctl_Button3
settle
click but_Calc
click but_CalcStep(7)
click but_CalcStep(6)
click but_CalcStep(6)
click ctl_Button3
settle
click but_Calc
click but_CalcStep(7)
click but_CalcStep(6)
click but_CalcStep(6)
click ctl_Button3
settle
click but_Calc
click but_CalcStep(7)
click but_CalcStep(6)
click but_CalcStep(6)
click ctl_Button3
settle
click but_Calc
click but_CalcStep(7)
click but_CalcStep(6)
click but_CalcStep(6)
click ctl_Button3
settle
click but_Calc
click but_CalcStep(7)
click but_CalcStep(6)
click but_CalcStep(6)
wait 0.3
screenshot conducto-silver-graph-1024.png
