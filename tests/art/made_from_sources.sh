#!/usr/bin/env bash
# The help texts, sounds and sprites in data/ are byte for byte what their sources in art/ make, and the
# numbers in the help texts are right. The pictures keep what the program relies on, and show what their
# sources draw. Usage: made_from_sources.sh SOURCE_TREE
set -euo pipefail
cd "$1"
for tool in python3 rsvg-convert convert compare; do
    command -v "$tool" >/dev/null ||
        { echo "Nothing can be compared with its source: $tool is missing (python3, librsvg2-bin, imagemagick)"; exit 1; }
done
export PYTHONDONTWRITEBYTECODE=1
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

for source in art/help/*.txt; do
    text=$(basename "$source" .txt).rtf
    python3 art/help/check_numbers.py "$source"
    python3 art/help/make_help.py "$source" "$folder/$text"
    cmp "data/help/$text" "$folder/$text"
done

mkdir "$folder/sounds"
python3 art/sounds/make_sounds.py "$folder/sounds"
for sound in data/sounds/*.wav; do
    cmp "$sound" "$folder/sounds/$(basename "$sound")"
done

python3 art/check_pictures.py data

mkdir "$folder/pictures"
art/make_pictures.sh "$folder/pictures" >/dev/null
diff <(cd data && find . -name '*.wmf' | sort) <(cd "$folder/pictures" && find . -name '*.wmf' | sort)
for sprite in data/*/*.wmf; do
    cmp "$sprite" "$folder/pictures/${sprite#data/}"
done
diff <(cd data && ls ./*.gif x3 phn phn/x3) <(cd "$folder/pictures" && ls ./*.gif x3 phn phn/x3)
# Another release of the tools may round a colour differently; a picture of another source differs by far more.
for picture in data/*.gif data/x3/*.gif data/phn/*.gif data/phn/x3/*.gif data/icons/*.png; do
    again=$folder/pictures/${picture#data/}
    cmp -s "$picture" "$again" && continue
    differing=$(compare -metric AE -fuzz 12% "$picture" "$again" null: 2>&1 || true)
    pixels=$(identify -format '%[fx:w*h]' "$picture")
    awk -v d="$differing" -v all="$pixels" 'BEGIN { exit !(d ~ /^[0-9.e+]+$/ && d < all / 5000) }' ||
        { echo "$picture isn't what its source draws: $differing pixels differ"; exit 1; }
done
