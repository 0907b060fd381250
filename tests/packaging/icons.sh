#!/usr/bin/env bash
# The icons are what their sources draw. Usage: icons.sh SOURCE_TREE
set -euo pipefail
cd "$1"
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
for icon in packaging/icons/*.png; do
    size=${icon//[!0-9]/}
    [ "$(od -An -j16 -N8 -tu1 "$icon" | awk '{ print $3 * 256 + $4, $7 * 256 + $8 }')" = "$size $size" ] ||
        { echo "$icon has another size than its name"; exit 1; }
done
for tool in rsvg-convert compare; do
    command -v "$tool" >/dev/null ||
        { echo "The icons can't be compared with their sources: $tool is missing (librsvg2-bin, imagemagick)"; exit 1; }
done
art/make_icons.sh "$folder"
diff <(ls packaging/icons) <(ls "$folder")
for icon in packaging/icons/*.png; do
    again=$folder/$(basename "$icon")
    cmp -s "$icon" "$again" && continue
    # Another release of the tool may round a colour differently.
    differing=$(compare -metric AE -fuzz 12% "$icon" "$again" null: 2>&1 || true)
    [ "$differing" = 0 ] || { echo "$icon isn't what its source draws: $differing pixels"; exit 1; }
done
