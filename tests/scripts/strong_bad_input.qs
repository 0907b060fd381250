# Empty and unreadable answers.
name Mia
start
choose SSTab1 3
choose lst_Mol 1.0
check opt_NeedCalc off
click ctl_Button3
expect form frm_AppMainStrong
click ctl_Button1
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
click but_Calc
answer no
key ENTER
expect box yesno "" *
expect form.vMismatch == 0
expect form.vWrong == 1
type txt_Ph "abc"
answer no
key ENTER
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box yesno "" *
expect form.vWrong == 2
expect form.vMismatch == 0
type txt_Ph "1"
answer yes
key ENTER
expect box yesno "" *
type txt_Calc(3) 0.01
key ENTER
type txt_Calc(6) ""
key ENTER
expect box ok "" "Das ist nicht richtig!\nÜberprüfe Deine Eingaben!\nBeachte die Informationen rechts an der Seite!"
expect form.vTries == 1
expect form.vWrong == 4
expect form.vMismatch == 0
type txt_Calc(6) 0.005
key ENTER
expect form.vTries == 0
click opt_Calc(0)
click but_CalcStep(7)
type txt_Calc(10) "x"
key ENTER
expect box ok "" "Deine Eingabe enthält unzulässige Zeichen!"
expect box ok "" "Das ist nicht richtig!\nÜberprüfe Deine Eingaben!\nBeachte die Informationen rechts an der Seite!"
expect form.vMismatch == 0
type txt_Calc(10) "3,33*10^-01"
key ENTER
expect form.sStep == 12
type txt_Calc(12) 0,5
answer no
key ENTER
expect box ok "" "Das ist nicht richtig!\nÜberprüfe Deine Eingaben!\nBeachte die Informationen rechts an der Seite!"
expect form.vMismatch == 1
menu mnu_FileQuit
expect ended
