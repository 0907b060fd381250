#!/usr/bin/env bash
# check_control.sh QUENDAL EXAMPLES: the program answers without a screen, with the status that is
# promised, and reads nothing else.
set -uo pipefail
quendal=$1 examples=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
unset DISPLAY WAYLAND_DISPLAY
export QT_QPA_PLATFORM=xcb

failed=0
expect() { # status, words in the answer, arguments
    local status=$1 words=$2 answer got
    shift 2
    answer=$("$quendal" "$@" 2>&1)
    got=$?
    if [ "$got" -ne "$status" ] || [[ $answer != *"$words"* ]]; then
        printf 'quendal %s: %s instead of %s, and it said\n%s\n' "$*" "$got" "$status" "$answer"
        failed=1
    fi
}

printf '[QUENDAL_CONTROL]\nMODE = 3\n' >"$work/slip.ini"
printf 'MODUS = 3\n' >"$work/none.ini"
for example in "$examples"/*.ini; do
    expect 0 "Alles verstanden." --check-control "$example"
done
expect 1 "Den Schlüssel MODE gibt es nicht" --check-control "$work/slip.ini"
expect 1 "Die ganze Datei zählt nicht" --check-control="$work/none.ini"
expect 2 "es gibt sie nicht" --check-control "$work/fehlt.ini"
expect 2 "das ist keine Datei" --check-control "$work"
expect 2 "fehlt ihr Wert" --check-control
exit $failed
