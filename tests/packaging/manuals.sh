#!/usr/bin/env bash
# Every manual is sound, in both languages, and tells of every option of its program.
# Usage: manuals.sh PACKAGING_FOLDER PROGRAM_FOLDER
set -euo pipefail
manuals=$1/man
programs=$2
for program in quendal quendal-script quendal-curves; do
    for manual in "$manuals/$program.1" "$manuals/$program.de.1"; do
        mandoc -T lint -W warning "$manual"
        text=$(mandoc -T utf8 "$manual" | col -b)
        [ "$program" = quendal-curves ] && continue # has no options
        options=$("$programs/$program" --help | grep -oE -- '--[a-z-]+' | sort -u)
        [ -n "$options" ]
        for option in $options; do
            grep -qE -- "^ +$option\b" <<<"$text" || {
                echo "$manual doesn't tell of $option"
                exit 1
            }
        done
        # And of none that the program doesn't have; those of others stand inside lines.
        for option in $(grep -oE -- '^ +--[a-z-]+' <<<"$text"); do
            [ "$option" = --help ] || grep -qx -- "$option" <<<"$options" || {
                echo "$manual tells of $option, which isn't there"
                exit 1
            }
        done
    done
done
