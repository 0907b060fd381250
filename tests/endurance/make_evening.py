#!/usr/bin/env python3
"""Writes one long script out of the tasks of other scripts: round after round through all forms,
back to the start dialog each time. Usage: make_evening.py OUT ROUNDS [--short] FOLDER..."""

import pathlib
import re
import sys

SCREEN = "1366x768"
TASKS = [
    "strong_required_10", "strong_free_10", "lens_weak", "weak_required_08", "silver_required_06",
    "lens_silver", "lf_strong_free_10", "lf_weak_required_14", "lf_silver_required_06",
    "lf_log_points", "weak_demo", "lf_silver_demo", "animation_all_in_turn",
]
# With lens, charts, result and animations, but fewer of a kind.
SHORT = ["strong_free_10", "lens_moments_weak", "lf_strong_free_10", "animation_all_in_turn"]
# What is said before the program starts, and what closes it.
LEFT_OUT = re.compile(r"(#|name |size |sound |seed |start$|menu mnu_FileQuit|expect |print )")
ENDS = "menu mnu_FileQuit"
BACK = "menu mnu_FileNew"
EXERCISES = "choose SSTab1 3"
ANSWERED_ALWAYS = "check opt_NeedCalc on"  # other tasks of the same evening may have changed it


def script_of(task, folders):
    for folder in folders:
        file = pathlib.Path(folder) / (task + ".qs")
        if file.exists():
            return file.read_text(encoding="utf-8").splitlines()
    sys.exit(f"no script {task}")


def steps_of(task, folders):
    lines = script_of(task, folders)
    kept = [line for line in lines if line and not LEFT_OUT.match(line)]
    # How soon an animation shows its first frame is no matter here.
    kept = [re.sub(r"^(until form\.Frames != 0) .*", r"\1 10", line) for line in kept]
    if EXERCISES in kept and "check opt_NeedCalc off" not in kept:
        kept.insert(kept.index(EXERCISES) + 1, ANSWERED_ALWAYS)
    if ENDS in lines:
        kept.append(BACK)
    elif kept[-1] == "close":
        kept.pop()
    return kept + ["expect form frm_DialogStartup"]


def main():
    short = "--short" in sys.argv
    out, rounds, *folders = [word for word in sys.argv[1:] if word != "--short"]
    lines = ["# Made from the scripts of single tasks.", "name Mia", f"size {SCREEN}", "sound 2",
             "start"]
    for number in range(int(rounds)):
        for task in SHORT if short else TASKS:
            lines += [f"# {task}"] + steps_of(task, folders)
        lines += ["# The end of a round is told to whoever watches.", "wait 1", "print clock"]
    lines += ["close", "expect ended"]
    pathlib.Path(out).write_text("\n".join(lines) + "\n", encoding="utf-8")


if __name__ == "__main__":
    main()
