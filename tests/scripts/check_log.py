#!/usr/bin/env python3
"""Runs a command and looks at what it tells on standard error: check_log.py FILE COMMAND...

FILE names data files and sprites, one a line. Each has to be told of exactly once, and
nothing else of their folders at all. The exit status is the command's when that isn't 0.
"""

import re
import subprocess
import sys
from collections import Counter
from pathlib import Path

TOLD = re.compile(r"^quendal: .*?(?:/([^/\s]+/[^/\s]+\.(?:wmf|gif))|sprite missing: (\S+))")


def told_of(text):
    for line in text.splitlines():
        if found := TOLD.search(line):
            yield found[1] or found[2]


def main(arguments):
    if len(arguments) < 3:
        print(__doc__, file=sys.stderr)
        return 2
    asked = Counter(Path(arguments[1]).read_text(encoding="utf-8").splitlines())
    run = subprocess.run(arguments[2:], stderr=subprocess.PIPE, check=False)
    text = run.stderr.decode("utf-8", "replace")
    print(text, end="", file=sys.stderr)
    folders = {name.split("/")[0].split("\\")[0] for name in asked}
    found = Counter(name for name in told_of(text)
                    if name.split("/")[0].split("\\")[0] in folders)
    for name in sorted(asked.keys() | found.keys()):
        if asked[name] != found[name]:
            print(f"{name}: told of {found[name]} times, not {asked[name]}", file=sys.stderr)
    return run.returncode or int(asked != found)


if __name__ == "__main__":
    sys.exit(main(sys.argv))
