# Neutralisation, step by step.
size 1366x768
form frm_AppIntro Scene 5
start
wait 0.2
screenshot book-neutralisation-01.png
mouse pic_Stage 683 384
wait 1.5
screenshot book-neutralisation-02.png
wait 2
screenshot book-neutralisation-03.png
mouse pic_Stage 683 384
wait 0.6
screenshot book-neutralisation-04.png
wait 1
screenshot book-neutralisation-05.png
wait 0.9
screenshot book-neutralisation-06.png
mouse pic_Stage 683 384
wait 0.5
screenshot book-neutralisation-07.png
wait 1
screenshot book-neutralisation-08.png
key ESC
