"""Every file of the data folder at fault in every way, in a task that uses it."""

import re
from pathlib import Path

from data_copy import FAULTS, DataCopy, spoiled
from program import Player
from table import section, table
from tasks import on_data, task_for

LARGE_SCREEN = "size 1920x1080"  # where a twin is looked for
# Not read in a task: one is for the desktop's menu, one for a box, which a script answers unseen.
UNUSED = {"icons/quendal.png", "icons/stop.svg"}
# With a window system everything is slower; one file of each kind stands for the others.
SAMPLE = ("header.gif", "bürette3.gif", "lens.gif", "phn/f2.gif", "x3/header.gif", "x3/ab_01.gif",
          "fällung/wanne.wmf", "phstark10.crv")

GROUPS = (  # title, pattern
    ("titration curves `*.crv`", r"(?!ph\.crv)[^/]+\.crv"),
    ("the curve in place of a missing one, `ph.crv`", r"ph\.crv"),
    ("frames that are numbered through: `ab_*.gif`, `bürette*.gif`, `magnify*.gif`, `phn/f*.gif`",
     r"(ab_\d+|bürette\d|magnify\d|phn/f\d)\.gif"),
    ("all other pictures `*.gif`", r"[^/]+\.gif"),
    ("their twins for large screens `x3/*.gif`", r"(phn/)?x3/[^/]+\.gif"),
    ("sprites `*/*.wmf`", r"[^/]+/[^/]+\.wmf"),
    ("help texts `help/*.rtf`", r"help/.*\.rtf"),
    ("sounds `sounds/*.wav`", r"sounds/.*\.wav"),
    ("`icons/stop.svg`, for a box that a script answers unseen", r"icons/stop\.svg"),
    ("icons `icons/*.svg`", r"icons/.*\.svg"),
    ("`icons/quendal.png`, which the program doesn't read", r"icons/quendal\.png"),
)
SHOWN = {  # what the learner has of it; tests of their own look at the screen
    "frames": "the frames that are there",
    "all other": "nothing in its place",
    "their twins": "the picture, less sharp",
    "sprites": "the scene without it",
    "sounds": "everything, and hears nothing",
    "icons `": "the icon of the theme",
    "`icons/": "everything",
}
HELP = {"missing": "Dieser Hilfetext kann leider nicht angezeigt werden.",
        "cut in half": "the text up to there and: Der Rest dieses Hilfetextes fehlt leider."}


def group_of(name):
    return next(title for title, pattern in GROUPS if re.fullmatch(pattern, name))


def is_for_the_desktop(name):
    """Nobody else reads it."""
    return bool(re.search(r"\.(rtf|wav|svg|png)$", name))


def is_read_everywhere(name):
    return not is_for_the_desktop(name) and "x3/" not in name


def general(line, name, folder):
    """The line with what differs from file to file taken out."""
    line = line.replace(str(folder) + "/", "").replace("\\", "/")
    stem = str(Path(name).with_suffix(""))
    line = line.replace(name, "FILE").replace("sprite missing: " + stem, "sprite missing: SPRITE")
    return re.sub(r"\d+", "N", line)


def names_it(line, name):
    line = line.replace("\\", "/")
    return name in line or str(Path(name).with_suffix("")) in line


def lines_expected(name, fault, whole):
    """A twin that is missing is no fault, and a curve that is cut between two lines is another
    curve."""
    another = (name.endswith(".crv") and fault == "cut in half" and
               spoiled(name, whole, fault).endswith(b"\n"))
    return 0 if another or name in UNUSED or ("x3/" in name and fault == "missing") else 1


class DataFaults:
    def __init__(self, setting, desktop):
        self.data = DataCopy(setting.data, setting.folder / "data")
        self.player = Player(setting.script_player, setting.data, setting.folder / "run",
                             desktop)
        self.made = setting.made
        self.desktop = desktop
        self.failures = []

    def script(self, name):
        lines = task_for(name, self.made)
        if name.endswith((".wmf", ".gif")) and self.desktop and "Scene" in lines[0]:
            lines = lines[:2] + ["wait 3", "click pic_Stage", "wait 3", "key ESC", "expect ended"]
        silent = [] if name.endswith(".wav") else ["sound 2"]
        return (on_data(silent + lines, self.data.folder) if "x3/" not in name else
                on_data([LARGE_SCREEN, *silent, *lines], self.data.folder))

    def play(self, name, fault):
        # The curve in place of a missing one is looked for when one is missing.
        others = ["phstark10.crv"] if name == "ph.crv" else []
        with self.data.faults(others, "missing"), self.data.fault(name, fault):
            outcome = self.player.play(self.script(name))
        outcome.lines = [line for line in outcome.lines
                         if not (others and names_it(line, others[0]))]
        return outcome

    def check(self, name, fault):
        outcome = self.play(name, fault)
        case = f"{name} {fault}"
        if not outcome.ended():
            self.failures.append(f"{case}: ended with {outcome.status}: {outcome.lines}")
        told = [line for line in outcome.lines if names_it(line, name)]
        expected = lines_expected(name, fault, (self.data.data / name).read_bytes())
        # Not every frame's twin comes into view in a short task.
        least = 0 if "x3/" in name and name not in SAMPLE else expected
        if len(outcome.lines) != len(told) or not least <= len(told) <= expected:
            self.failures.append(f"{case}: {expected} line asked for, not {outcome.lines}")
        words = [text for text in outcome.boxes() if "wurde nicht gefunden" in text]
        return (" / ".join(general(line, name, self.data.folder) for line in outcome.lines),
                " / ".join(text.replace(name, "FILE") for text in words))

    def rows(self, names):
        """By group, fault and what happened: the number of files."""
        found = {}
        for name in names:
            for fault in FAULTS:
                what = (group_of(name), fault, *self.check(name, fault))
                found[what] = found.get(what, 0) + 1
        return found


def shown(title, fault, words):
    if title.startswith("help"):
        return HELP.get(fault, HELP["missing"])
    if title.startswith("titration curves") and fault == "missing":
        return words
    if "curve" in title:
        return ("the part that reads, or a comparison without a curve" if fault == "cut in half"
                else "the comparison without a curve")
    return next(text for start, text in SHOWN.items() if title.startswith(start))


def described(found):
    """One row for a group and a fault; several lines that may come stand one below the other."""
    order = [title for title, _ in GROUPS]
    rows = []
    for title in order:
        for fault in FAULTS:
            cases = {(line, words): count for (group, kind, line, words), count in found.items()
                     if (group, kind) == (title, fault)}
            if cases:
                lines = "<br>".join(f"`{line}`" if line else "none" for line, _ in sorted(cases))
                words = max(words for _, words in cases)
                rows.append((title, fault, str(sum(cases.values())), shown(title, fault, words),
                             lines))
    return table(("files", "fault", "cases", "the learner has", "line on standard error"), rows)


def part(setting, desktop, wanted):
    faults = DataFaults(setting, desktop)
    names = [name for name in faults.data.names if wanted(name)]
    found = faults.rows(names)
    return faults.failures, described(found)


def without_screen(setting):
    failures, text = part(setting, False, is_read_everywhere)
    return failures, section(
        "Data files, without a screen",
        "Each file that is read everywhere, in a task that uses it, played to its end.\n\n" + text)


def for_the_desktop(setting):
    failures, text = part(setting, True, is_for_the_desktop)
    return failures, section(
        "Data files that only the desktop reads",
        "Each of them, in a task that uses it, played to its end on the real windows.\n\n" + text)


def on_the_desktop(setting):
    wanted = ((lambda name: not is_for_the_desktop(name)) if setting.all else
              (lambda name: name in SAMPLE))
    failures, text = part(setting, True, wanted)
    files = ", ".join(f"`{name}`" for name in SAMPLE)
    return failures, section(
        "The other data files on the desktop",
        f"Some of each kind: {files}. With `--all` each file.\n\n" + text)
