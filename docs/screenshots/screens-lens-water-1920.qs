# The autoprotolysis of water through the glass.
size 1920x1080
form frm_AppMagnify ShowWater true SourceRight 1024 SourceBottom 768
start
wait 25
screenshot lens-water-1920.png
key ESC
wait 2
