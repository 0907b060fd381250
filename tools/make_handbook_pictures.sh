#!/usr/bin/env bash
# make_handbook_pictures.sh [FOLDER]: takes the pictures of docs/handbuch.md anew, from the built
# program and without a screen. They go to docs/handbuch, scaled by convert (imagemagick), or into
# FOLDER as they were taken. BIN is the folder of the built programs, build/bin without it.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
player=$(cd "${BIN:-$root/build/bin}" && pwd)/quendal-script
book=$root/docs/handbuch
raw=${1:+$(cd "$1" && pwd)}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

# The data folder of a school with a curve of its own.
mkdir data
ln -s "$root"/data/* data
ln -sf "$root/docs/beispiele/phstark10.crv" data/phstark10.crv

for script in "$book"/*.qs; do
    cp "$script" .
    QT_QPA_PLATFORM=offscreen "$player" --desktop --script-clock "$(basename "$script")" \
        >/dev/null 2>player.log || { cat player.log && exit 1; }
done
if [ -n "$raw" ]; then
    mv ./*.png "$raw"
    exit
fi
for picture in *.png; do
    # 255 colours are enough for drawn windows and make a third of the bytes.
    convert "$picture" -filter Lanczos -resize '1000x>' +dither -colors 255 -strip "PNG8:$book/$picture"
done
ls -s "$book"
