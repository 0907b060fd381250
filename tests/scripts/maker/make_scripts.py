#!/usr/bin/env python3
"""Writes the learners' scripts that follow a scheme: make_scripts.py FOLDER.

Beside a script NAME.qs may stand NAME.log: the files that the program tells of on standard error.
"""

import sys
from pathlib import Path

import animations
import beginnings
import calculator
import demo
import details
import free
import ladder
import lens
import lf_beginnings
import lf_break
import lf_calculator
import lf_data
import lf_demo
import lf_log
import lf_looks
import lf_mistakes
import lf_whole
import mistakes
import required
import strong
import strong_ladder

FAMILIES = (
    free,
    required,
    ladder,
    details,
    demo,
    calculator,
    mistakes,
    beginnings,
    lens,
    lf_whole,
    lf_break,
    lf_mistakes,
    lf_calculator,
    lf_demo,
    lf_log,
    lf_looks,
    lf_beginnings,
    lf_data,
    strong,
    strong_ladder,
    animations,
)


def main(arguments):
    if len(arguments) != 2:
        print("usage: make_scripts.py FOLDER", file=sys.stderr)
        return 2
    folder = Path(arguments[1])
    folder.mkdir(parents=True, exist_ok=True)
    for family in FAMILIES:
        for name, lines, *told in family.scripts():
            write(folder / (name + ".qs"), lines)
            for files in told:
                write(folder / (name + ".log"), files)
    return 0


def write(path, lines):
    path.write_text("\n".join(lines) + "\n", encoding="utf-8", newline="\n")


if __name__ == "__main__":
    sys.exit(main(sys.argv))
