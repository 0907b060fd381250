#!/usr/bin/env bash
# The core knows no toolkit, no clock of its own and no chance of its own; layers point one way.
set -uo pipefail
cd "$(dirname "$0")/.."

core=(src/host src/particles src/workbench src/weak_silver src/shell src/script src/headless)
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
    src/host src/particles src/workbench src/weak_silver src/shell src/script
forbid "host looks upward" '#include "(particles|shell|workbench|script|headless|desktop)/' src/host
forbid "the session looks upward" '#include "(particles|workbench|script|headless|desktop|shell/forms)/' \
    src/shell/session
forbid "particles look upward" '#include "(workbench|weak_silver|script|headless|desktop|shell/forms)/' src/particles
forbid "the dialogs look upward" '#include "(workbench|weak_silver|script|headless|desktop)/' src/shell/forms
forbid "the workbench looks upward" '#include "(weak_silver|script|headless|desktop)/|#include "shell/(frm_|entry)' \
    src/workbench
forbid "the forms with a lens look upward" '#include "(script|headless|desktop)/|#include "shell/(frm_|entry)' \
    src/weak_silver
forbid "the shell looks upward" '#include "(script|headless|desktop)/' src/shell
forbid "the player looks at a host" '#include "(headless|desktop)/' src/script
forbid "the headless host looks at the desktop" '#include "desktop/' src/headless
exit $failed
