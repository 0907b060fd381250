#!/bin/sh
# Draws the program's icon in the sizes that a desktop asks for. Usage: make_icons.sh [FOLDER], by default
# packaging/icons/. The small sizes have drawings of their own, fitted to their pixels.
# Needs: rsvg-convert (librsvg2-bin).
set -eu

art=$(cd "$(dirname "$0")" && pwd)
folder=${1:-$art/../packaging/icons}
mkdir -p "$folder"
for size in 16 22 24 32 48 64 128 256 512; do
    case $size in
    16) source=$art/icon/quendal-16.svg ;;
    22 | 24 | 32) source=$art/icon/quendal-32.svg ;;
    *) source=$art/../data/icons/quendal.svg ;;
    esac
    rsvg-convert --width "$size" --height "$size" --format png --output "$folder/quendal-$size.png" "$source"
done
