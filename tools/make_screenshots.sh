#!/usr/bin/env bash
# Takes the pictures in docs/screenshots anew, from the built program and without a screen. The one
# of the calculator is taken by hand, since a box isn't a form that a script can photograph.
set -euo pipefail
cd "$(dirname "$0")/../docs/screenshots"
for script in screens-*.qs; do
    QT_QPA_PLATFORM=offscreen ../../build/bin/quendal-script --desktop --script-clock "$script" >/dev/null
done
ls *.png
