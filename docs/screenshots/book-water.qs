# Autoprotolysis of water, step by step.
size 1366x768
form frm_AppIntro Scene 3
start
wait 0.1
screenshot book-water-01.png
wait 0.8
screenshot book-water-02.png
wait 1.3
screenshot book-water-03.png
wait 1.8
screenshot book-water-04.png
wait 1.1
screenshot book-water-05.png
wait 1.5
screenshot book-water-06.png
wait 1.5
screenshot book-water-07.png
wait 2
screenshot book-water-08.png
key ESC
