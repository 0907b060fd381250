#!/usr/bin/env bash
# The core knows no toolkit, no clock of its own and no chance of its own; layers point one way.
set -uo pipefail
cd "$(dirname "$0")/.."

forms=(src/workbench src/weak_silver src/conducto src/animations src/shell)
core=(src/host src/particles "${forms[@]}" src/script src/headless src/monkey)
failed=0
forbid() { # reason, regular expression, folders
    local reason=$1 pattern=$2
    shift 2
    local found
    found=$(grep -rnE --include='*.h' --include='*.cpp' "$pattern" "$@" 2>/dev/null)
    if [ -n "$found" ]; then
        printf '%s:\n%s\n' "$reason" "$found"
        failed=1
    fi
}

forbid "Qt outside the desktop" '#include <Q' "${core[@]}" apps/quendal-script
forbid "A clock, chance or sleep outside the hosts' services" \
    'std::chrono|<chrono>|\brand\(\)|std::random_device|sleep_for|usleep|processEvents' \
    src/host src/particles "${forms[@]}" src/script src/monkey
forbid "host looks upward" '#include "(particles|shell|workbench|weak_silver|conducto|animations|script|headless|desktop)/' src/host
forbid "the session looks upward" '#include "(particles|workbench|weak_silver|conducto|animations|script|headless|desktop|shell/forms)/' \
    src/shell/session
forbid "particles look upward" \
    '#include "(workbench|weak_silver|conducto|animations|script|headless|desktop|shell/forms)/' src/particles
forbid "the dialogs look upward" \
    '#include "(workbench|weak_silver|conducto|animations|script|headless|desktop)/' src/shell/forms
forbid "the workbench looks upward" \
    '#include "(weak_silver|conducto|animations|script|headless|desktop)/|#include "shell/(frm_|entry)' \
    src/workbench
forbid "forms look upward or at each other" \
    '#include "(script|headless|desktop|conducto|animations)/|#include "shell/(frm_|entry)' src/weak_silver
forbid "forms look upward or at each other" \
    '#include "(script|headless|desktop|weak_silver|animations)/|#include "shell/(frm_|entry)' src/conducto
forbid "forms look upward or at each other" \
    '#include "(script|headless|desktop|workbench|weak_silver|conducto)/|#include "shell/(frm_|entry)' \
    src/animations
forbid "the shell looks upward" '#include "(script|headless|desktop)/' src/shell
forbid "the player looks at a host" '#include "(headless|desktop)/' src/script
forbid "the headless host looks at the desktop" '#include "desktop/' src/headless src/monkey
exit $failed
