# A demo warns before the first mL, and a second start at the same volume shows the same.
name Mia
start
choose SSTab1 2
click ctl_Button15
expect form frm_AppMainStrong
click ctl_Button1
settle
answer yes
click ctl_Button3
expect box yesno "" "Ab diesem Punkt beginnt ein neuer Abschnitt, dessen Rechnung man sich mit Klick auf 'DEMO' ansehen sollte. Wollen Sie das Zutropfen abbrechen?"
expect form.sClicks == 0
answer no
click ctl_Button3
expect box yesno "" *
settle
expect form.vVol == 11
menu mnu_FileQuit
expect ended
