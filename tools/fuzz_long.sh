#!/usr/bin/env bash
# Runs the fuzzers one after the other for a long time and prints a table of what came of it.
#   tools/fuzz_long.sh [SECONDS] [READER...]      900 seconds each and all readers without these
# QUENDAL_FUZZ_BUILD is the build folder, build-fuzz without it; ./test makes it. What each has
# gathered stays in FOLDER/long/READER and is where the next run begins; an input that failed stands
# in FOLDER/long/READER-crash-*.
set -euo pipefail
cd "$(dirname "$0")/.."

seconds=${1:-900}
shift || true
build=${QUENDAL_FUZZ_BUILD:-build-fuzz}
readers=("$@")
if [ ${#readers[@]} -eq 0 ]; then
    mapfile -t readers < <(find "$build/bin" -name 'fuzz_*' -printf '%f\n' | sed 's/^fuzz_//' | sort)
fi

# The number behind WORD in the last line of a log that has it.
last() { # WORD LOG
    grep -o "$1 *[0-9]\+" "$2" | tail -n 1 | grep -o '[0-9]\+$' || echo 0
}

run() { # READER
    local reader=$1 gathered=$build/long/$1 log=$build/long/$1.log begin=$SECONDS
    mkdir -p "$gathered"
    find "$build/long" -maxdepth 1 -name "$reader-crash-*" -delete
    local status=0
    nice -n 19 "$build/bin/fuzz_$reader" -max_total_time="$seconds" -max_len=4000 -timeout=30 \
        -rss_limit_mb=1024 -print_final_stats=1 -artifact_prefix="$build/long/$reader-crash-" \
        "$gathered" "tests/fuzz/corpus/$reader" >"$log" 2>&1 || status=$?
    local findings
    findings=$(find "$build/long" -maxdepth 1 -name "$reader-crash-*" | wc -l)
    [ "$status" -eq 0 ] || failed=1
    printf '| %s | %d | %s | %s | %s | %s |\n' "$reader" $((SECONDS - begin)) \
        "$(last 'stat::number_of_executed_units:' "$log")" "$(last 'cov:' "$log")" \
        "$(find "$gathered" -type f | wc -l)" "$findings"
}

failed=0
printf '| reader | seconds | inputs | places reached | inputs kept | findings |\n|---|--:|--:|--:|--:|--:|\n'
for reader in "${readers[@]}"; do
    run "$reader"
done
exit "$failed"
