#!/usr/bin/env bash
# The program is installed, moved to another folder, and plays its tour there without the source tree.
# Usage: installed_anywhere.sh SOURCE_TREE BUILD_FOLDER
set -euo pipefail
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export HOME=$folder/home XDG_DATA_HOME=$folder/home/data XDG_CONFIG_HOME=$folder/home/config

cmake --install "$2" --prefix "$folder/first" --strip >/dev/null
mv "$folder/first" "$folder/second place"
place="$folder/second place"
for file in bin/quendal-script bin/quendal-curves share/quendal/data/ph.crv share/applications/quendal.desktop \
    share/man/man1/quendal.1.gz share/man/de/man1/quendal.1.gz share/doc/quendal/LICENSE \
    share/doc/quendal/copyright share/icons/hicolor/48x48/apps/quendal.png; do
    [ -s "$place/$file" ] || { echo "$file isn't installed"; exit 1; }
done
grep -oE '\]\([^)#:]+\)' "$place/share/doc/quendal/handbuch.md" | tr -d '])(' | while read -r file; do
    [ -e "$place/share/doc/quendal/$file" ] || { echo "the handbook misses $file"; exit 1; }
done
for program in "$place"/bin/*; do
    # Its own folders, and not a path that ends like it.
    ! LC_ALL=C grep -qaE "(^|[^[:alnum:]_./-])$1/(data|src|tests|build)" "$program" || { echo "$program knows the source tree"; exit 1; }
done

cd "$folder"
"$place/bin/quendal" --tour pictures 2>complaints || { cat complaints; exit 1; }
[ "$(find pictures -name '*.png' -size +10k | wc -l)" -eq 9 ]
grep -q '"ended"' pictures/tour.jsonl
# Data that aren't found would be told of.
if grep -E 'ist nicht da|missing|no data folder|fehl' complaints; then exit 1; fi
"$place/bin/quendal-script" "$place/share/quendal/tour.qs" >/dev/null 2>complaints
if grep . complaints; then exit 1; fi

# A picture that is missing there is missed: no other folder helps out.
rm "$place"/share/quendal/data/splash.gif
"$place/bin/quendal-script" "$place/share/quendal/tour.qs" >/dev/null 2>complaints
grep -q splash.gif complaints
