"""Change log, description, package and program tell of the same releases.

Usage: releases_agree.py SOURCE_TREE QUENDAL
"""

import re
import subprocess
import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path


def in_change_log(text):
    return [(version, note == "unreleased") for version, note in re.findall(r"^## (\S+) \((.+)\)$", text, re.M)]


def in_description(text):
    releases = ElementTree.fromstring(text).iter("release")
    return [(release.get("version"), release.get("type") == "development") for release in releases]


def in_package(text):
    heads = re.findall(r"^quendal \((\S+)-\d+\) (\S+);", text, re.M)
    return [(version, suite == "UNRELEASED") for version, suite in heads]


def main():
    tree, program = Path(sys.argv[1]), sys.argv[2]
    said = {
        name: reader((tree / name).read_text(encoding="utf-8"))
        for name, reader in {
            "CHANGELOG.md": in_change_log,
            "packaging/quendal.metainfo.xml": in_description,
            "packaging/debian/changelog": in_package,
        }.items()
    }
    expected = said["CHANGELOG.md"]
    failed = not expected
    for name, releases in said.items():
        if releases != expected:
            print(f"{name} tells of {releases}, the change log of {expected}")
            failed = True
    answer = subprocess.run([program, "--version"], capture_output=True, text=True, check=True).stdout
    if answer.split()[1] != expected[0][0]:
        print(f"the program calls itself {answer}")
        failed = True
    sys.exit(failed)


main()
