"""What happened, as sections of docs/faults.md."""

import re
from pathlib import Path

RENEW = "tests/faults/faults.py --renew BUILD_FOLDER"
HEAD = f"""# What happens when something is missing or broken

Made by the tests of `tests/faults` from what they saw; the tests `faults.*` play every case again
and compare. After a change that is meant: `python3 {RENEW}`.

A data file costs itself and one line on standard error; a task can always be done to its end. In
the lines below `FILE` is the path of the file at fault and `N` a number that differs.

Each run is compared with one in which nothing is at fault. "The same texts" are all texts, values,
boxes, reports and sounds asked for, up to the end; a screen is the same when all its pixels are.
"""


def cell(text):
    return text.replace("|", "\\|").replace("\n", " ") or "–"


def table(heads, rows):
    lines = ["| " + " | ".join(heads) + " |", "|" + "---|" * len(heads)]
    lines += ["| " + " | ".join(cell(text) for text in row) + " |" for row in rows]
    return "\n".join(lines) + "\n"


def section(title, text):
    return f"## {title}\n\n{text.strip()}\n"


def sections(text):
    """Title and whole text of each."""
    parts = re.split(r"(?m)^(?=## )", text)
    return {part.splitlines()[0][3:]: part.strip() + "\n" for part in parts[1:]}


def known(path):
    """The sections of the document, in its order; none when there is no document."""
    return sections(Path(path).read_text(encoding="utf-8")) if Path(path).exists() else {}


def write(path, parts):
    Path(path).write_text(HEAD + "\n" + "\n".join(parts), encoding="utf-8")


def differing(path, parts, missing=()):
    """Lines that tell how `parts` differ from what the document says, but for `missing` cases."""
    before_now = known(path)
    for part in parts:
        (title, now), = sections(part).items()
        before = [line for line in before_now.get(title, "").splitlines()
                  if not any(line.startswith(f"| {case} |") for case in missing)]
        for line in now.splitlines():
            if line not in before:
                yield f"{title}: new: {line}"
        for line in before:
            if line not in now.splitlines():
                yield f"{title}: gone: {line}"
