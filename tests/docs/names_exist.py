#!/usr/bin/env python3
"""Every name that a document for developers gives in `backticks` exists: names_exist.py ROOT FILE...

A name with a slash or the ending of a file is a file or folder, patterns with * too, written from the
root or by the end of its path. Of all else every word has to stand in a source, a test or a build file.
Of what has blanks in it, as commands have, only the first part is looked at; blocks between fences
aren't. Prints what isn't there; the exit code is 1 then.
"""

import re
import sys
from fnmatch import fnmatch
from pathlib import Path

# What a build or an installation has.
MADE = ("build/", "bin/", "share/")
SOURCES = ("apps", "art", "bench", "cmake", "data", "packaging", "src", "tests", "tools")
TEXT_ENDINGS = (".cpp", ".h", ".py", ".sh", ".txt", ".cmake", ".json", ".qs", ".md")
FENCED = re.compile(r"^```.*?^```", re.MULTILINE | re.DOTALL)
NAME = re.compile(r"`([^`\n]+)`")
WORD = re.compile(r"[^\W\d]\w*")
ENDINGS = "cpp|h|py|sh|txt|cmake|json|qs|md|crv|gif|wmf|rtf|wav|ini|svg|png|jpg|xml|desktop"
PATH = re.compile(rf"[\w.*/-]*(?:/[\w.*-]*|\.(?:{ENDINGS}))")


def files_of(root):
    """All files and folders that belong to the project, from its root."""
    found = [path for path in root.iterdir() if path.is_file()]
    for folder in (*SOURCES, "docs"):
        found += [root / folder, *(root / folder).rglob("*")]
    return [path.relative_to(root).as_posix() for path in found]


def text_of(root, files):
    texts = [root / name for name in files
             if name.endswith(TEXT_ENDINGS) and not name.startswith("docs/")]
    return "\n".join(path.read_text(encoding="utf-8", errors="replace")
                     for path in texts if path.is_file())


def is_there(name, files, words):
    if PATH.fullmatch(name):
        path = name.removeprefix("./").rstrip("/")
        return name.startswith(MADE) or any(
            fnmatch(file, path) or fnmatch(file, "*/" + path) for file in files)
    # Words in capitals are for the reader to fill in.
    return all(word in words or word.isupper() for word in WORD.findall(name))


def main(arguments):
    root = Path(arguments[1])
    files = files_of(root)
    words = set(WORD.findall(text_of(root, files)))
    missing = 0
    for document in arguments[2:]:
        text = FENCED.sub("", (root / document).read_text(encoding="utf-8"))
        names = {name.split()[0] for name in NAME.findall(text) if name.split()}
        if not names:
            missing += 1
            print(f"{document}: no name found")
        for name in sorted(names):
            if not is_there(name, files, words):
                missing += 1
                print(f"{document}: `{name}` isn't there")
    return 1 if missing else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
