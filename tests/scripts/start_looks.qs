# What the start dialog shows and what a script can ask of it.
seed 7
user "Mia Muster"
answer text " "
locale point
size 1920x1080
sound 1
start
expect host.UserName == "Mia Muster"
expect top == frm_DialogStartup
expect form.Result == 3
expect form.MovieGridColor == #dcdcdc
expect pic_Movie(0).backcolor == #ffffff
expect Label1.text == "Willkommen zu Quendal!"
expect SSTab1.text == "&Kurze Einführung    "
expect SSTab1.left == 16
expect ctl_Button5.text == "&Beenden"
expect ctl_Button5.icon == "Ico\\20\\Computer\\Signs\\Quit.ico"
expect ctl_Button5.bordercolor == #f0f0f0
expect ctl_Button5.width == 144
expect lst_Mol.items == 0.6,0.8,1.0,1.2,1.4
expect lst_Mol.index == 2
# A stored sound mode can be seen and not changed.
expect opt_EnableSounds.checked == true
expect opt_EnableSounds.enabled == false
expect session.SessionRequiredPoints == 1,5,9,10,11,15
choose SSTab1 1
expect SSTab1.text == "&Lernanimationen   "
expect but_IntroLeit.icon == "Ico\\20\\Multimedia\\Video\\Camera.ico"
choose SSTab1 3
choose lst_Mol 1.4
expect lst_Mol.index == 4
expect lst_Mol.text == 1.4
choose lst_Mol 1
expect lst_Mol.text == 0.8
check opt_CalcTerm off
check opt_NeedCalc off
check opt_NeedCalc on
expect opt_NeedCalc.checked == true
expect opt_NeedCalc.focus == true
dump
click ctl_Button3
expect form frm_AppMainStrong
expect session.SessionDemo == false
expect session.SessionConcentration == 0.8
expect session.SessionRequiredPoints == 0,1,4,7,8,9,16
expect session.SessionNeedCalc == true
expect session.SessionCalcTerm == false
expect session.ParticleBackColor == #99cccc
expect session.PlainChloride == true
# A concentration reads with a point; a volume follows the locale's sign.
until lab_Vol(2).text == "0.8 mol/L"
expect lab_Vol(0).text == "0.000 L"
expect series(1).count == 0
expect beaker.count == 0
expect drops.count == 0
click ctl_Button1
until beaker.countsort(8) != 0 20
settle
expect drops.count == 0
expect beaker.countsort(7) == 0
expect beaker.countsort(-8) == 8
expect beaker.countsort(3) == 8
expect lab_Vol(0).text == "0.010 L"
