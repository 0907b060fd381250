#!/bin/sh
# Makes all pictures from the sources in art/. Usage: make_pictures.sh [FOLDER], by default data/.
# Needs: python3, rsvg-convert (librsvg2-bin), convert (imagemagick), the Liberation fonts.
set -eu

art=$(cd "$(dirname "$0")" && pwd)
icons=$art/../data/icons
data=${1:-$art/../data}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
ground='rgb(244,247,247)'

for tool in python3 rsvg-convert convert; do
    command -v "$tool" >/dev/null || { echo "Missing: $tool" >&2; exit 1; }
done
PYTHONDONTWRITEBYTECODE=1
export PYTHONDONTWRITEBYTECODE
mkdir -p "$data/x3" "$data/icons"

# render SVG ZOOM PNG
render() { rsvg-convert --zoom "$2" --format png --output "$3" "$1"; }

# GIF knows no half transparency: edges are mixed with the ground, only what is wholly clear stays clear.
clear_gif() {
    convert "$1" \( -clone 0 -alpha extract -threshold 0 \) \
        \( -clone 0 -background "$ground" -alpha remove -alpha off \) \
        -delete 0 -swap 0,1 -alpha off -compose CopyOpacity -composite \
        +dither -colors 255 -strip "$2"
}

# full_gif PNG COLOUR GIF
full_gif() { convert "$1" -background "$2" -alpha remove -alpha off +dither -colors 256 -strip "$3"; }

# The two halves of a picture that is laid over the screen bit by bit: the mask is white where the screen
# stays and black elsewhere, the picture is wholly black where the mask is white.
# over_screen SVG
over_screen() {
    name=$(basename "$1" .svg)
    for zoom in 1 3; do
        folder=$data
        if [ $zoom = 3 ]; then folder=$data/x3; fi
        render "$1" $zoom "$work/picture.png"
        convert "$work/picture.png" -alpha extract -threshold 50% "$work/painted.png"
        convert "$work/painted.png" -negate -strip "$folder/${name}_mask.gif"
        convert "$work/picture.png" -background black -alpha remove -alpha off +dither -colors 255 \
            "$work/painted.png" -compose multiply -composite -strip "$folder/$name.gif"
    done
    echo "  ${name}_mask.gif, $name.gif"
}

# both_sizes SVG COLOUR (or "clear")
both_sizes() {
    name=$(basename "$1" .svg)
    for zoom in 1 3; do
        target=$data/$name.gif
        if [ $zoom = 3 ]; then target=$data/x3/$name.gif; fi
        render "$1" $zoom "$work/picture.png"
        if [ "$2" = clear ]; then
            clear_gif "$work/picture.png" "$target"
        else
            full_gif "$work/picture.png" "$2" "$target"
        fi
    done
    echo "  $name.gif"
}

echo "Pipette"
python3 "$art/pipette.py" "$work"
for file in "$work"/ab_*.svg; do both_sizes "$file" clear; done

echo "Burette"
python3 "$art/burette.py" "$work"
for file in "$work"/bürette*.svg; do both_sizes "$file" clear; done

echo "Magnifying glass"
python3 "$art/magnifier.py" "$work"
for file in "$work"/magnify*.svg; do both_sizes "$file" clear; done
over_screen "$work/lens.svg"

echo "Start dialog and splash"
python3 "$art/banner.py" "$work"
for file in header splash; do both_sizes "$work/$file.svg" "$ground"; done

echo "Silver titration"
python3 "$art/silver_start.py" "$work"
both_sizes "$work/silver_start.svg" "$ground"

echo "Conductometric titrations"
python3 "$art/conducto_start.py" "$work"
for file in "$work"/conducto_*.svg; do both_sizes "$file" "$ground"; done

echo "Result dialog"
python3 "$art/results.py" "$work"
for file in win win_small bad; do both_sizes "$work/$file.svg" white; done

echo "Program icon"
rsvg-convert --width 256 --height 256 --format png --output "$data/icons/quendal.png" "$icons/quendal.svg"
echo "  quendal.png"

echo "Learning animations: reactions"
python3 "$art/reaction_sprites.py" "$data"

echo "Learning animations: powers of ten"
python3 "$art/powers_of_ten.py" "$work"
mkdir -p "$data/phn/x3"
for file in "$work"/f[1-6].svg; do
    name=$(basename "$file" .svg)
    # Many small dots pack badly; those of one size need few colours.
    colours=96
    if [ "$name" = f5 ]; then colours=16; fi
    for zoom in 1 3; do
        folder=$data/phn
        if [ $zoom = 3 ]; then folder=$data/phn/x3; fi
        render "$file" $zoom "$work/picture.png"
        convert "$work/picture.png" -alpha off +dither -colors $colours -strip "$folder/$name.gif"
    done
    echo "  phn/$name.gif"
done

echo "Learning animations: ions"
python3 "$art/ion_sprites.py" "$data/ionen"
