#!/usr/bin/env python3
"""The monkey gets everywhere: reach.py FOLDER, where each file holds what one run of it has counted.

Prints what no run has got to; the exit code is 1 then.
"""

import json
import sys
from collections import Counter
from pathlib import Path

BENCHES = [f"frm_AppMain{kind}" for kind in (
    "Strong", "Weak", "Silver", "Conducto", "ConductoSilver", "ConductoWeak")]
LOG_BENCH = "frm_AppMainConductolog"  # has a demo only
# The splash screen comes first and lets nobody do anything.
FORMS = ["frm_AppSplash", "frm_DialogStartup", "frm_AppIntro", "frm_AppMagnify", "frm_DialogHelp",
         "frm_DialogTerms", "frm_DialogphCompare", "frm_DialogDone", "frm_AppMainSilverStart",
         "frm_AppMainConductoStart", "frm_AppMainConductoSilverStart",
         "frm_AppMainConductoWeakStart"]
KINDS = ("click", "type", "key", "choose", "check", "mouse", "menu", "close", "command", "wait")
BOXES = ("ok", "info", "yesno", "input", "about", "calculator")
KEYS = ("CALC", "CON", "FRITZ", "HELP", "MODUS", "MODUS_ANI", "MODUS_CALC", "MODUS_DEMO", "POINTS")
STEPS = {"frm_AppMainStrong": 12, "frm_AppMainWeak": 12, "frm_AppMainSilver": 12,
         "frm_AppMainConducto": 6, "frm_AppMainConductoSilver": 6, "frm_AppMainConductoWeak": 6,
         LOG_BENCH: 6}


def due():
    """Every count that has to be above 0."""
    yield from (f"form {name}" for name in FORMS + BENCHES)
    yield from (f"form {name} demo" for name in BENCHES + [LOG_BENCH])
    yield from (f"points {name}" for name in BENCHES)
    yield from (f"mL {name}" for name in BENCHES + [LOG_BENCH])
    yield from (f"step {name} {step}" for name, last in STEPS.items()
                for step in range(1, last + 1))
    yield from (f"on {name}" for name in FORMS[1:] + BENCHES + [LOG_BENCH])
    yield from (f"mark {mark}" for mark in range(1, 7))
    yield from (f"event {kind}" for kind in KINDS)
    yield from (f"box {kind}" for kind in BOXES)
    yield from (f"teacher's key {key}" for key in KEYS)
    yield from ("reports", "sounds")


def counts(folder):
    total = Counter()
    for file in Path(folder).glob("*.json"):
        for line in file.read_text(encoding="utf-8").splitlines():
            entry = json.loads(line)
            if entry["event"] == "count":
                total[entry["what"]] += entry["times"]
    return total


def main(arguments):
    total = counts(arguments[1])
    missing = [what for what in due() if total[what] <= 0]
    for what in missing:
        print(f"the monkey has never got to: {what}")
    print(f"{len(total)} kinds of things were counted")
    return 1 if missing else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
