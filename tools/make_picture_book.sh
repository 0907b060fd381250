#!/usr/bin/env bash
# Plays each learning animation and lays its steps beside each other: docs/screenshots/book-*.jpg.
# From the built program, without a screen. Needs montage (imagemagick).
set -euo pipefail
book=$(cd "$(dirname "$0")/../docs/screenshots" && pwd)
player=$(cd "$(dirname "$0")/../build/bin" && pwd)/quendal-script
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
for script in "$book"/book-*.qs; do
    name=$(basename "$script" .qs)
    QT_QPA_PLATFORM=offscreen "$player" --desktop --script-clock "$script" >/dev/null
    montage "$name"-??.png -tile 3x -geometry 640x360+6+6 -background '#dddddd' -strip -quality 85 "$book/$name.jpg"
    echo "$name.jpg"
done
