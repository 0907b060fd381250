"""Every file of the data folder at fault in every way, in a task that uses it."""

import re
from pathlib import Path

import looks
from data_copy import FAULTS, DataCopy, spoiled
from program import Player
from table import section, table
from tasks import on_data, task_for

LARGE_SCREEN = "size 1920x1080"  # where a twin is looked for
SMALL_SCREEN = "size 800x600"  # the others, as it is drawn faster
TALL_SCREEN = "size 1000x6000"  # on which half a help text is seen to its end
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
HELP_SENTENCES = {  # what stands in place of a help text, and behind a part of one
    "all": "Dieser Hilfetext kann leider nicht angezeigt werden.",
    "rest": "Der Rest dieses Hilfetextes fehlt leider."}
NOTICE = r"\pard\plain\sb200\i %s\i0\par"  # set as the program does it


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
    return re.sub(r"(?<!UTF-)\d+", "N", line)


def names_it(line, name):
    line = line.replace("\\", "/")
    return name in line or str(Path(name).with_suffix("")) in line


def lines_expected(name, fault, whole):
    """A twin that is missing is no fault, and a curve that is cut between two lines is another
    curve."""
    another = (name.endswith(".crv") and fault == "cut in half" and
               spoiled(name, whole, fault).endswith(b"\n"))
    return 0 if another or name in UNUSED or ("x3/" in name and fault == "missing") else 1


def without_end(rtf):
    """The half of a help text, closed so that all of it reads."""
    depth = rtf.replace("\\{", "").replace("\\}", "").count("{")
    depth -= rtf.replace("\\{", "").replace("\\}", "").count("}")
    text_ended = re.search(r"\\(par|row)\s*(\\[a-z]+-?\d*\s*)*$", rtf)
    in_word = re.search(r"\\[a-z]+-?\d*$", rtf)
    return (rtf + " " * bool(in_word) + "}" * (depth - 1) + "\\par" * (not text_ended) +
            NOTICE % HELP_SENTENCES["rest"] + "}")


class DataFaults:
    def __init__(self, setting, desktop):
        self.data = DataCopy(setting.data, setting.folder / "data")
        self.player = Player(setting.script_player, setting.data, setting.folder / "run",
                             desktop)
        self.bare = Player(setting.script_player, setting.data, setting.folder / "bare",
                           desktop, XDG_DATA_DIRS=str(setting.folder / "no themes"))
        self.made = setting.made
        self.desktop = desktop
        self.failures = []
        self.no_icon = ()  # what is seen without the icon that is at fault
        self.whole = {}  # what is seen while nothing is at fault, by script

    def script(self, name):
        lines = task_for(name, self.made)
        if name.endswith(".wmf") and self.desktop:
            lines = lines[:2] + ["wait 3", "click pic_Stage", "wait 3", "key ESC", "expect ended"]
        silent = [] if name.endswith(".wav") else ["sound 2"]
        return on_data([*self.screen(name), *silent, *lines], self.data.folder)

    def screen(self, name):
        if "x3/" in name:
            return [LARGE_SCREEN]
        return [TALL_SCREEN if name.endswith(".rtf") else SMALL_SCREEN] if self.desktop else []

    def look(self, name, player=None):
        player = player or self.player
        lines, pictures = looks.played(self.script(name), player.folder,
                                       self.desktop and not name.endswith(".wav"))
        outcome = player.play(lines)
        return outcome, looks.seen(outcome, pictures)

    def reference(self, name):
        """What is seen while all is well."""
        key = "\n".join(self.script(name))
        if key not in self.whole:
            outcome, self.whole[key] = self.look(name)
            if not outcome.ended() or outcome.lines:
                self.failures.append(f"{name} whole: {outcome.status} {outcome.lines}")
        return self.whole[key]

    def play(self, name, fault, player=None):
        # The curve in place of a missing one is looked for when one is missing.
        others = ["phstark10.crv"] if name == "ph.crv" else []
        with self.data.faults(others, "missing"), self.data.fault(name, fault):
            outcome, seen = self.look(name, player)
        outcome.lines = [line for line in outcome.lines
                         if not (others and names_it(line, others[0]))]
        return outcome, seen

    def standard_curve(self):
        """The words of the comparison that has `ph.crv` in it."""
        if "standard" not in self.whole:
            with self.data.fault("phstark10.crv", "missing"):
                self.whole["standard"] = self.look("phstark10.crv")[1]
        return self.whole["standard"].curve

    def check(self, name, fault, without):
        """The line, what the learner has, and what was seen."""
        outcome, seen = self.play(name, fault)
        case = f"{name} {fault}"
        if not outcome.ended():
            self.failures.append(f"{case}: ended with {outcome.status}: {outcome.lines}")
        told = [line for line in outcome.lines if names_it(line, name)]
        expected = lines_expected(name, fault, (self.data.data / name).read_bytes())
        # Not every frame's twin comes into view in a short task.
        least = 0 if "x3/" in name and name not in SAMPLE else expected
        if len(outcome.lines) != len(told) or not least <= len(told) <= expected:
            self.failures.append(f"{case}: {expected} line asked for, not {outcome.lines}")
        line = " / ".join(general(line, name, self.data.folder) for line in outcome.lines)
        return line, self.has(name, fault, seen, without, bool(told)), seen

    def has(self, name, fault, seen, without, told):
        """What the learner has, as the run showed it."""
        whole = self.reference("phstark10.crv" if name == "ph.crv" else name)
        found = [f"„{text.replace(name, 'FILE')}“" for text in seen.boxes
                 if text not in whole.boxes and name != "ph.crv"]
        if name.endswith(".crv"):
            standard = self.standard_curve() if fault == "missing" else ""
            found.append(looks.curve_words(seen, whole, standard))
        if name.endswith(".wav"):
            found.append("the sound is silent" if told else "the sound plays")
        found += [looks.picture_words(seen, whole), self.on_screen(name, fault, seen, without),
                  looks.text_words(seen, whole)]
        return "; ".join(text for text in found if text)

    def on_screen(self, name, fault, seen, without):
        if name.endswith(".rtf"):
            return self.help_shown(name, seen)
        whole = self.reference("phstark10.crv" if name == "ph.crv" else name)
        words = looks.screen_words(seen, whole, without)
        if "icons/" in name and words not in ("", "the same screen"):
            return self.icon_shown(name, fault, seen)
        return words

    def icon_shown(self, name, fault, seen):
        """The theme's icon makes another screen than where there is no theme either."""
        bare = self.play(name, fault, self.bare)[1] if fault == "missing" else None
        self.no_icon = bare.screens if bare else self.no_icon
        return "no icon" if seen.screens == self.no_icon else "the icon of the theme"

    def help_shown(self, name, seen):
        """Compared with a help text that says what is expected."""
        text = (self.data.data / name).read_text(encoding="latin-1")
        place = self.data.folder / name
        expected = {HELP_SENTENCES["all"]: "{\\rtf1\\ansi" + NOTICE % HELP_SENTENCES["all"] + "}",
                    "the text up to there and: " + HELP_SENTENCES["rest"]:
                        without_end(text[: len(text) // 2])}
        for words, rtf in expected.items():
            key = f"{name} {words}"
            if key not in self.whole:
                place.unlink()
                place.write_text(rtf, encoding="latin-1")
                self.whole[key] = self.look(name)[1]
                place.unlink()
                self.data.link(name)
            if seen.screens == self.whole[key].screens:
                return words
        return "another text"

    def rows(self, names):
        """By group, fault and what happened: the number of files."""
        found = {}
        for name in names:
            without = None
            for fault in FAULTS:
                line, words, seen = self.check(name, fault, without)
                without = without or seen
                what = (group_of(name), fault, line, words)
                found[what] = found.get(what, 0) + 1
        return found


def counted(cases):
    """What came how often; no number where it came always."""
    if len(cases) == 1:
        return next(iter(cases))
    return "<br>".join(f"{count} x {text}" for text, count in sorted(cases.items()))


def described(found):
    """One row for a group and a fault; what differs from file to file stands one below another."""
    order = [title for title, _ in GROUPS]
    rows = []
    for title in order:
        for fault in FAULTS:
            lines, words = {}, {}
            for (group, kind, line, text), count in found.items():
                if (group, kind) == (title, fault):
                    line = f"`{line}`" if line else "none"
                    lines[line] = lines.get(line, 0) + count
                    words[text] = words.get(text, 0) + count
            if lines:
                rows.append((title, fault, str(sum(lines.values())), counted(words),
                             "<br>".join(sorted(lines))))
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
