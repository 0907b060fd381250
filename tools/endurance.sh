#!/usr/bin/env bash
# The long form of the endurance tests: hours of tasks on the script's clock without windows, then
# ten minutes of the real windows on the real clock. Fails when memory grows or passes the limit.
set -euo pipefail
cd "$(dirname "$0")/.."

if [ "${1:-}" = --help ]; then
    echo "tools/endurance.sh [HOURS] [BUILD]   30 hours and the folder build when nothing is said"
    exit 0
fi
hours=${1:-30}
folder=${2:-build}
scripts=$folder/tests/endurance

cmake --build "$folder" --target quendal-script quendal-endurance

echo "== $hours hours of tasks without windows"
"$folder/bin/quendal-endurance" "$hours" "$scripts/evening.qs"

echo "== ten minutes of the windows on the real clock"
python3 -B tests/endurance/desktop_endurance.py --real-clock \
    "$folder/bin/quendal-script" "$scripts/short_evening.qs"
