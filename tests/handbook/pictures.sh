#!/usr/bin/env bash
# pictures.sh BIN SOURCE: every script of the handbook plays to its end, and together they take
# exactly the pictures that the handbook shows.
set -euo pipefail
bin=$1 source=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
BIN=$bin "$source/tools/make_handbook_pictures.sh" "$work"
diff <(cd "$work" && LC_ALL=C ls ./*.png | sed 's,^\./,,') \
    <(grep -o '(handbuch/[^)]*\.png)' "$source/docs/handbuch.md" | sed 's,(handbuch/,,; s,),,' | LC_ALL=C sort -u)
