#!/usr/bin/env bash
# bash completes each option of the program, and folders and files behind those that take one.
# Usage: completion.sh PACKAGING_FOLDER QUENDAL
set -euo pipefail
source "$1/completion/quendal"
compopt() { :; } # there is no completion going on here

complete_line() { # words; prints what the last could become
    COMP_WORDS=("$@")
    COMP_CWORD=$(($# - 1))
    COMPREPLY=()
    _quendal
    printf '%s\n' "${COMPREPLY[@]}" | sort
}

diff <("$2" --help | grep -oE -- '--[a-z-]+' | sort -u) <(complete_line quendal --) # nothing but options
[ "$(complete_line quendal --ve)" = --version ]
cd "$1"
[ "$(complete_line quendal --data ma)" = man ]
[ "$(complete_line quendal --control CMakeL)" = CMakeLists.txt ]
[ -z "$(complete_line quendal --data CMakeL)" ]
