# Acetic acid in water, step by step.
size 1366x768
form frm_AppIntro Scene 4
start
wait 0.1
screenshot book-acetic-01.png
wait 0.8
screenshot book-acetic-02.png
wait 1.3
screenshot book-acetic-03.png
wait 1.8
screenshot book-acetic-04.png
wait 1.1
screenshot book-acetic-05.png
wait 1.5
screenshot book-acetic-06.png
wait 1.5
screenshot book-acetic-07.png
wait 2
screenshot book-acetic-08.png
key ESC
