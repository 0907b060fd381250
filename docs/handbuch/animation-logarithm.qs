# The lesson of the powers of ten.
size 1024x768
form frm_AppIntro Scene 0
start
wait 14
screenshot animation-logarithm.png
key ESC
