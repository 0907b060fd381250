# Precipitation, step by step.
size 1366x768
form frm_AppIntro Scene 6
start
wait 1
screenshot book-precipitation-01.png
wait 1.5
screenshot book-precipitation-02.png
mouse pic_Stage 683 384
wait 1
screenshot book-precipitation-03.png
wait 1.5
screenshot book-precipitation-04.png
mouse pic_Stage 683 384
wait 0.6
screenshot book-precipitation-05.png
wait 1.5
screenshot book-precipitation-06.png
wait 1.5
screenshot book-precipitation-07.png
mouse pic_Stage 683 384
wait 0.5
screenshot book-precipitation-08.png
key ESC
