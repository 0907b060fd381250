# Hydrogen chloride in water, step by step.
size 1366x768
form frm_AppIntro Scene 1
start
wait 0.2
screenshot book-hcl-01.png
mouse pic_Stage 683 384
wait 0.7
screenshot book-hcl-02.png
wait 1.5
screenshot book-hcl-03.png
wait 1.7
screenshot book-hcl-04.png
wait 1.2
screenshot book-hcl-05.png
key ESC
