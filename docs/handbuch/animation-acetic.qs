# A scene of the reactions.
size 1024x768
form frm_AppIntro Scene 4
start
wait 9.3
screenshot animation-acetic.png
key ESC
