#!/bin/sh
# Makes all pictures in data/ from the sources in art/.
# Needs: python3, rsvg-convert (librsvg2-bin), convert (imagemagick), the Liberation fonts.
set -eu

art=$(cd "$(dirname "$0")" && pwd)
data=$art/../data
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

echo "Start dialog and splash"
python3 "$art/banner.py" "$work"
for file in header splash; do both_sizes "$work/$file.svg" "$ground"; done

echo "Result dialog"
python3 "$art/results.py" "$work"
for file in win win_small bad; do both_sizes "$work/$file.svg" white; done

echo "Program icon"
rsvg-convert --width 256 --height 256 --format png --output "$data/icons/quendal.png" "$data/icons/quendal.svg"
echo "  quendal.png"
