#!/usr/bin/env bash
# Installs the package into a fresh Debian 12, uses it there as a learner would, and purges it.
#   tools/try_package.sh [FILE.deb]    makes the package first when none is named
# The pictures of the tour are copied to build/package-tour. Needs root and a source in apt.
set -euo pipefail
[ $# -eq 0 ] || set -- "$(realpath "$1")"
cd "$(dirname "$0")/.."
source tools/common.sh
source tools/fresh_system.sh
enter_own_space "$PWD/tools/try_package.sh" "$@"

fail() {
    say "FAILED: $*"
    exit 1
}

# The command as a learner who may do nothing but learn.
as_learner() { in_fresh runuser -u lena -- env HOME=/home/lena "$@"; }

# Lines on standard error that are no complaint: no sound device, no session, no window manager.
expected_lines='XDG_RUNTIME_DIR|PulseAudio|Tonausgabegerät|This plugin does not support'

check_programs() {
    local version complaints
    version=$(dpkg-deb -f "$package" Version)
    [ "$(as_learner quendal --version)" = "Quendal ${version%-*} (GPL-3.0-or-later)" ] ||
        fail "the program has another version than the package"
    as_learner quendal-script /usr/share/quendal/tour.qs >/dev/null || fail "the tour without windows"
    as_learner quendal --tour /home/lena/tour 2>"$fresh/complaints" || {
        cat "$fresh/complaints"
        fail "the tour"
    }
    [ "$(find "$fresh/home/lena/tour" -name '*.png' -size +10k | wc -l)" -eq 9 ] ||
        fail "the tour has taken other pictures than nine"
    tail -1 "$fresh/home/lena/tour/tour.jsonl" | grep -q '"ended"' || fail "the tour didn't end"
    complaints=$(grep -vE "$expected_lines" "$fresh/complaints" || true)
    [ -z "$complaints" ] || fail "the tour complained: $complaints"
    # A learner's session goes on until it is ended.
    local status=0
    as_learner env QT_QPA_PLATFORM=offscreen timeout 5 quendal >/dev/null 2>&1 || status=$?
    [ $status -eq 124 ] || fail "a session ended by itself with status $status"
    # A copy somewhere else still finds the data, in the place that it was built for.
    in_fresh cp /usr/bin/quendal-script /home/lena/copy
    as_learner /home/lena/copy /usr/share/quendal/tour.qs 2>"$fresh/complaints" >/dev/null || true
    [ ! -s "$fresh/complaints" ] || fail "a copy complained: $(cat "$fresh/complaints")"
    mkdir "$fresh/curves"
    in_fresh quendal-curves /curves
    for curve in "$fresh"/curves/*.crv; do
        cmp "$curve" "$fresh/usr/share/quendal/data/$(basename "$curve")" || fail "the curves differ"
    done
}

check_desktop() {
    in_fresh apt-get install -q -y --no-install-recommends man-db desktop-file-utils >/dev/null 2>&1
    in_fresh desktop-file-validate /usr/share/applications/quendal.desktop
    in_fresh mandb -q >/dev/null
    for page in quendal quendal-script quendal-curves; do
        grep -q '^DESCRIPTION' <<<"$(as_learner man "$page" 2>&1)" ||
            fail "the English manual of $page"
        grep -q '^BESCHREIBUNG' <<<"$(as_learner man -L de "$page" 2>&1)" ||
            fail "the German manual of $page"
        in_fresh whatis "$page" >/dev/null || fail "$page isn't in the list of manuals"
    done
}

check_purged() { # list of the package's files
    in_fresh apt-get purge -q -y quendal >/dev/null
    ! in_fresh dpkg-query -W quendal 2>/dev/null || fail "the package is still known"
    local left
    left=$(find "$fresh" -mindepth 1 -xdev -path "$fresh/proc" -prune -o -path "$fresh/home" -prune -o \
        -iname '*quendal*' -print)
    [ -z "$left" ] || fail "left behind: $left"
    while read -r file; do
        [ ! -f "$fresh$file" ] || fail "left behind: $file"
    done <<<"$1"
}

install_packages debootstrap
package=${1:-}
if [ -z "$package" ]; then
    tools/make_package.sh
    package=$(ls build-package/*.deb)
fi
make_fresh
cp "$package" "$fresh/root/package.deb"
say "Installing the package, with what it depends on and nothing that it only recommends."
in_fresh apt-get install -q -y --no-install-recommends /root/package.deb >"$fresh.log" 2>&1 || {
    tail -20 "$fresh.log"
    fail "apt can't install it"
}
in_fresh useradd --create-home lena
files=$(in_fresh dpkg -L quendal)
say "Playing the tour as a learner."
check_programs
rm -rf build/package-tour
mkdir -p build
cp -r "$fresh/home/lena/tour" build/package-tour
say "Looking at manuals and menu entry."
check_desktop
say "Purging the package."
check_purged "$files"
say "The package installs, plays and goes again; the pictures are in build/package-tour."
