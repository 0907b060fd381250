#!/usr/bin/env bash
# Times of the frames of every workbench, of animations and lens, as the rows of a table: script,
# frames, median, 99th percentile and the longest, and the longest turn that opened or closed a window,
# all in ms.
set -euo pipefail
cd "$(dirname "$0")/.."

folder=${1:-build}
made=$folder/tests/scripts/made
scripts=(strong_required_10 weak_required_10 silver_required_10 lf_strong_required_10
    lf_weak_required_10 lf_silver_required_10 lf_log_points lens_weak lens_silver
    animation_hcl animation_neutral animation_conductivity_areas)

for size in "1366 768" "1920 1080"; do
    printf '\n%s\n\n| script | frames | p50 | p99 | max | window |\n|---|---|---|---|---|---|\n' "${size/ / x }"
    for script in "${scripts[@]}"; do
        # What animations show is expected in pixels, so there is a script for each screen.
        case $script in animation_*) script+=_${size% *} ;; esac
        # shellcheck disable=SC2086 # width and height are two words
        "$folder/bin/quendal_frame_histogram" $size "$made/$script.qs" || echo "| $script | failed |"
    done
done
