# Conductivity, step by step.
size 1366x768
form frm_AppIntro Scene 7
start
wait 1
screenshot book-conductivity-01.png
key 2
wait 1.5
screenshot book-conductivity-02.png
wait 15
screenshot book-conductivity-03.png
key 3
wait 2
screenshot book-conductivity-04.png
key 4
wait 0.4
screenshot book-conductivity-05.png
wait 0.7
screenshot book-conductivity-06.png
key 7
wait 1
screenshot book-conductivity-07.png
key 8
wait 1
screenshot book-conductivity-08.png
key 9
wait 1
screenshot book-conductivity-09.png
key 5
wait 1
screenshot book-conductivity-10.png
key 1
wait 2
screenshot book-conductivity-11.png
key ESC
wait 0.2
screenshot book-conductivity-12.png
key ESC
