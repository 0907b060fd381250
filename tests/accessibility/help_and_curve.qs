# Help, formula sheet, comparison and the calculator, by who has only keys.
name Mia
start
choose SSTab1 3
check opt_NeedCalc off
click ctl_Button3
expect form frm_AppMainStrong
click but_Help
expect form frm_DialogHelp
key ESC
expect form frm_AppMainStrong
menu mnu_HelpTerms
expect form frm_DialogTerms
key ENTER
expect form frm_AppMainStrong
click ctl_Button1
settle
expect form.announced == "0 mL aus der Bürette. Im Becher: 10 Oxonium-Ionen und 10 Chlorid-Ionen."
expect pic_Water.description == "Im Becher: 10 Oxonium-Ionen und 10 Chlorid-Ionen."
click but_Calc
type txt_Ph 0
click but_CalcDone
expect box info Punktberechnung *
expect form.announced == "pH 0,00 nach 0 mL"
click but_phCompare
expect form frm_DialogphCompare
expect pic_pH.description != ""
click ctl_CmdBar1
expect form frm_AppMainStrong
menu mnu_FileQuit
expect ended
