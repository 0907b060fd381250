# The lesson of the conductivity.
size 1024x768
form frm_AppIntro Scene 7
start
wait 1
key 2
wait 3
screenshot animation-conductivity.png
key ESC
