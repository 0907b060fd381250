# Powers of ten, step by step.
size 1366x768
form frm_AppIntro Scene 0
start
wait 0.5
screenshot book-logarithm-01.png
key >
wait 1
screenshot book-logarithm-02.png
wait 1.5
screenshot book-logarithm-03.png
key >
wait 1
screenshot book-logarithm-04.png
wait 1.5
screenshot book-logarithm-05.png
key >
wait 1
screenshot book-logarithm-06.png
wait 1.5
screenshot book-logarithm-07.png
key >
wait 1
screenshot book-logarithm-08.png
wait 1.5
screenshot book-logarithm-09.png
key >
wait 1
screenshot book-logarithm-10.png
wait 1.5
screenshot book-logarithm-11.png
key >
wait 0.5
screenshot book-logarithm-12.png
key ESC
