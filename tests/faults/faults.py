#!/usr/bin/env python3
"""Plays tasks while something is missing or broken, and compares with docs/faults.md.

faults.py PART BUILD_FOLDER [--all]    one part: fails when a case goes wrong or the table differs
faults.py --renew BUILD_FOLDER [PART]  plays all parts, or one, and writes docs/faults.md anew
--all takes each data file on the desktop too, which needs some minutes.
"""

import shutil
import sys
import tempfile
from dataclasses import dataclass, field
from pathlib import Path

import data_files
import machine
import reports
import table

PARTS = {"data": data_files.without_screen, "desktop_data": data_files.for_the_desktop,
         "desktop": data_files.on_the_desktop,
         "reports": reports.report_and_control, "machine": machine.devices,
         "screens": machine.screens}
SOURCE = Path(__file__).resolve().parents[2]
DOCUMENT = SOURCE / "docs" / "faults.md"


@dataclass
class Setting:
    build: Path
    folder: Path  # for this run alone
    all: bool = False
    not_played: list = field(default_factory=list)  # cases that this machine doesn't allow

    @property
    def data(self):
        return SOURCE / "data"

    @property
    def script_player(self):
        return self.build / "bin" / "quendal-script"

    @property
    def made(self):
        return self.build / "tests" / "scripts" / "made"


def play(name, build, every=False):
    """What failed, the part of the document, and what couldn't be played here."""
    folder = Path(tempfile.mkdtemp(prefix="quendal-faults-"))
    setting = Setting(build, folder, every)
    try:
        return *PARTS[name](setting), setting.not_played
    finally:
        shutil.rmtree(folder, ignore_errors=True)


def renew(build, names):
    known = table.known(DOCUMENT)
    failures = []
    for name in names:
        failed, part, missing = play(name, build)
        failures += failed + [f"The table lacks what can't be played here: {case}"
                              for case in missing]
        known.update(table.sections(part))
    table.write(DOCUMENT, list(known.values()))
    return failures


def compare(name, build, every):
    failures, part, missing = play(name, build, every)
    if not every:
        failures += table.differing(DOCUMENT, [part], missing)
    return failures


def main(arguments):
    every = "--all" in arguments
    words = [word for word in arguments if word != "--all"]
    renewing = words[:1] == ["--renew"]
    asked = words[2:] if renewing else words[:1]
    if len(words) not in ((2, 3) if renewing else (2,)) or not set(asked) <= set(PARTS):
        print(__doc__, file=sys.stderr)
        return 2
    build = Path(words[1]).resolve()
    failures = renew(build, asked or PARTS) if renewing else compare(asked[0], build, every)
    for failure in failures:
        print(failure, file=sys.stderr)
    if failures and not renewing:
        print(f"To take a new table: python3 {table.RENEW}", file=sys.stderr)
    return int(bool(failures))


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
