# The movie beside the welcome text: two seconds of rest, then six scenes of 41 ticks in a circle.
name Mia
start
expect top == frm_DialogStartup
expect pic_Movie(0).visible == true
expect ctl_Frame1.visible == true
expect form.MovieScene == 0
expect form.MovieTime == 0
wait 0.06
expect form.MovieTime == 0.5
wait 0.5
expect form.MovieTime == 5.5
until form.MovieTime == 20 3
expect form.MovieScene == 0
wait 0.05
expect form.MovieScene == 1
expect form.MovieTime == 0
# 41 ticks of 50 ms for each scene.
wait 2.05
expect form.MovieScene == 2
expect form.MovieTime == 0
wait 2.05
expect form.MovieScene == 3
wait 2.05
expect form.MovieScene == 4
wait 2.05
expect form.MovieScene == 5
# On another tab it goes on unseen.
choose SSTab1 2
wait 2.05
expect form.MovieScene == 6
expect form.MovieTime == 0
choose SSTab1 0
wait 2
expect form.MovieScene == 6
expect form.MovieTime == 20
wait 0.05
expect form.MovieScene == 1
expect form.MovieTime == 0
# The next dialog begins anew.
choose SSTab1 3
click ctl_Button3
expect form frm_AppMainStrong
wait 3
menu mnu_FileNew
expect form frm_DialogStartup
expect form.MovieScene == 0
until form.MovieScene == 1 3
expect form.MovieTime == 0
close
expect ended
