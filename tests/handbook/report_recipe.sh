#!/usr/bin/env bash
# report_recipe.sh PYTHON DOCS: the recipe gives the table that the handbook shows for the report
# lines that it shows, says so of a line cut short, and makes no formula of a name.
set -euo pipefail
python=$1 docs=$2
recipe=$docs/beispiele/berichte_nach_csv.py
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

block() { awk -v fence="\`\`\`$1" '$0 == fence {on = 1; next} /^```/ {on = 0} on' "$docs/handbuch.md"; }
fail() { echo "$1" && exit 1; }

block json >"$work/mia.jsonl"
block text | sed -n '/^Zeit;/,+1p' >"$work/expected"
[ "$(wc -l <"$work/expected")" -eq 2 ] || fail "the handbook shows no table"
LC_ALL=C "$python" "$recipe" "$work/mia.jsonl" >"$work/table.csv"
head -c 3 "$work/table.csv" | cmp -s - <(printf '\xEF\xBB\xBF') || fail "no mark of UTF-8"
tail -c +4 "$work/table.csv" | tr -d '\r' | diff - "$work/expected"

[ "$("$python" "$recipe" --alles "$work/mia.jsonl" | wc -l)" -eq 3 ] || fail "--alles"

sed -n 2p "$work/mia.jsonl" | sed 's/Mia/=2+3/' >"$work/cut.jsonl"
sed -n 2p "$work/mia.jsonl" | head -c 60 >>"$work/cut.jsonl"
"$python" "$recipe" "$work/cut.jsonl" "$work/mia.jsonl" >"$work/table.csv" 2>"$work/said"
[ "$(wc -l <"$work/table.csv")" -eq 3 ] || fail "a line cut short"
grep -q "cut.jsonl, Zeile 2: kein Bericht" "$work/said"
grep -q ";'=2+3;" "$work/table.csv"
