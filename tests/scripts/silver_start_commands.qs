# The start form comes first each time and goes on by click, command, Return and Escape;
# a command is read in any case, ABORT goes on as well, and an unknown one changes nothing.
name Mia
start
choose SSTab1 3
choose lst_Mol 0.8
click ctl_Button8
expect form frm_AppMainSilverStart
expect nobox
expect form.Accepted == false
expect form.caption == "Morvik // Quendal - Potentiometrie"
click bar_Buttons
expect form frm_AppMainSilver
expect form.caption == "Morvik // Quendal - Potentiometrie"
expect session.SessionConcentration == 0.8
expect form.vVol == 0
expect but_ShowMag.visible == false
menu mnu_FileNew
expect form frm_DialogStartup
choose SSTab1 2
click ctl_Button17
expect form frm_AppMainSilverStart
expect nobox
expect form.Accepted == false
expect form.caption == "Morvik // Quendal - Potentiometrie"
command bar_Buttons "DIALOG.OK();"
expect form frm_AppMainSilver
expect form.caption == "Morvik // Quendal - Potentiometrie"
expect session.SessionConcentration == 1
expect form.vVol == 0
expect but_ShowMag.visible == false
menu mnu_FileNew
expect form frm_DialogStartup
choose SSTab1 3
choose lst_Mol 1.4
click ctl_Button8
expect form frm_AppMainSilverStart
expect nobox
expect form.Accepted == false
expect form.caption == "Morvik // Quendal - Potentiometrie"
key ENTER
expect form frm_AppMainSilver
expect form.caption == "Morvik // Quendal - Potentiometrie"
expect session.SessionConcentration == 1.4
expect form.vVol == 0
expect but_ShowMag.visible == false
menu mnu_FileNew
expect form frm_DialogStartup
choose SSTab1 3
choose lst_Mol 0.6
click ctl_Button8
expect form frm_AppMainSilverStart
expect nobox
expect form.Accepted == false
expect form.caption == "Morvik // Quendal - Potentiometrie"
key ESC
expect form frm_AppMainSilver
expect form.caption == "Morvik // Quendal - Potentiometrie"
expect session.SessionConcentration == 0.6
expect form.vVol == 0
expect but_ShowMag.visible == false
menu mnu_FileNew
expect form frm_DialogStartup
choose SSTab1 3
choose lst_Mol 1.2
click ctl_Button8
expect form frm_AppMainSilverStart
expect nobox
expect form.Accepted == false
command bar_Buttons "dialog.ok();"
expect form frm_AppMainSilver
expect session.SessionConcentration == 1.2
expect form.vVol == 0
expect but_ShowMag.visible == false
menu mnu_FileNew
expect form frm_DialogStartup
choose SSTab1 3
choose lst_Mol 0.8
click ctl_Button8
expect form frm_AppMainSilverStart
expect nobox
expect form.Accepted == false
command bar_Buttons "DIALOG.NOTHING();"
expect form frm_AppMainSilverStart
expect form.Accepted == false
expect nobox
command bar_Buttons "DIALOG.ABORT();"
expect form frm_AppMainSilver
expect session.SessionConcentration == 0.8
expect form.vVol == 0
expect but_ShowMag.visible == false
menu mnu_FileNew
expect form frm_DialogStartup
click ctl_Button5
expect ended
