#!/usr/bin/env bash
# The help text and the sounds in data/ are byte for byte what their sources in art/ make, and the
# numbers in the help text are right. Usage: made_from_sources.sh SOURCE_TREE
set -euo pipefail
cd "$1"
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

python3 art/help/check_numbers.py art/help/strong.txt
python3 art/help/make_help.py art/help/strong.txt "$folder/strong.rtf"
cmp data/help/strong.rtf "$folder/strong.rtf"

mkdir "$folder/sounds"
python3 art/sounds/make_sounds.py "$folder/sounds"
for sound in data/sounds/*.wav; do
    cmp "$sound" "$folder/sounds/$(basename "$sound")"
done
