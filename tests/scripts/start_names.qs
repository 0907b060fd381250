# The name box proposes the login and can't be refused; what is typed loses the blanks around it.
user "Mia Muster"
answer text "  Jan  "
start
expect box input "Name?" "Gib Deinen Namen ein:"
expect nobox
expect box.default == "Mia Muster"
expect host.UserName == Jan
# A workbench left by "Neu beginnen" brings a new dialog, but the name is known.
choose SSTab1 2
click ctl_Button15
expect form frm_AppMainStrong
menu mnu_FileNew
expect form frm_DialogStartup
expect nobox
expect host.UserName == Jan
click ctl_Button5
expect ended
