# At 0 mL of 1.0 mol/L there is only the concentration to say; the tutor points to the task sheet.
name Mia
start
choose SSTab1 3
choose lst_Mol 1.0
check opt_NeedCalc off
click ctl_Button3
expect form frm_AppMainStrong
click ctl_Button1
settle
click but_Calc
click but_HelpCalc
expect form.sStep == 10
expect lab_CalcStep(3).text == "4. Konzentration der Säure eingeben"
type txt_Calc(10) 2
key ENTER
expect box ok "" "Das ist nicht richtig!\nÜberprüfe Deine Eingaben!\nBeachte die Informationen rechts an der Seite!"
answer no
key ENTER
expect box ok "" "Das ist leider immer noch falsch! Die Konzenration der Säure steht doch schon in der Aufgabe!"
expect box yesno "" "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
expect form.vTries == 0
type txt_Calc(10) 1
key ENTER
expect form.sStep == 12
type txt_Calc(12) 0
key ENTER
expect box info Punktberechnung *
expect series(1).y(1) == 0
close
expect form frm_AppMainStrong
menu mnu_FileQuit
expect ended
