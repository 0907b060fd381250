#!/usr/bin/env bash
# Runs a command in a copy of this source tree on a fresh Debian 12 and takes it all away again.
#   tools/try_fresh.sh            ./run --tour; the pictures are copied to build/fresh-tour
#   tools/try_fresh.sh ./test     whatever stands here
# Needs root, a source of packages in apt, and three gigabytes in /tmp.
set -euo pipefail
cd "$(dirname "$0")/.."
source tools/common.sh
source tools/fresh_system.sh
[ $# -gt 0 ] || set -- ./run --tour
enter_own_space "$PWD/tools/try_fresh.sh" "$@"

install_packages debootstrap git
make_fresh
mkdir "$fresh/source"
git ls-files -z --cached --others --exclude-standard | while IFS= read -r -d '' file; do
    [ ! -e "$file" ] || printf '%s\0' "$file"
done | tar -c --null -T - | tar -x -C "$fresh/source"

say "Running there: $*"
status=0
in_fresh sh -c 'cd /source && exec "$@"' sh "$@" || status=$?
if ls "$fresh"/source/build/tour/*.png >/dev/null 2>&1; then
    mkdir -p build/fresh-tour
    cp "$fresh"/source/build/tour/* build/fresh-tour/
fi
[ $status -eq 0 ] && say "It went well in a fresh system: $*"
exit $status
