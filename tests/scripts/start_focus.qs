# A click beside the controls leaves the focus where it is, and the form's order goes on from there.
name Mia
start
key TAB
expect SSTab1.focus == true
mouse Label1 74 9
expect SSTab1.focus == true
key TAB
expect ctl_Button5.focus == true
mouse Label1 74 9 right
key TAB
expect SSTab1.focus == true
choose SSTab1 3
check opt_NeedCalc off
click ctl_Button3
click ctl_Button1
settle
click but_Calc
type txt_Ph 1
mouse Lab_Vallmista 5 5
key 3
expect txt_Ph.text == 13
menu mnu_FileQuit
expect ended
