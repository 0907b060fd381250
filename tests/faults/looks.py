"""What a learner had in front of them during a run, and how that differs from another run."""

import hashlib
import re
from dataclasses import dataclass
from pathlib import Path

LOOK = "look"  # in a task: here the form in front is looked at
LEAVING = ("menu mnu_FileQuit", "click ctl_Button5", "click bar_Buttons", "key ESC", "close")
NOT_TAKEN = "not taken"
ON_LEAVING = 2  # forms that are looked at, the last ones, where a task doesn't say LOOK
WORDS = ("text", "term", "caption", "title", "enabled", "checked", "index", "icon")


def with_looks(lines):
    """Looks at the last forms just before they are left, unless the task says where to look."""
    if LOOK in lines:
        return lines
    places = [at for at, line in enumerate(lines)
              if line in LEAVING and (at == 0 or lines[at - 1] not in LEAVING)]
    for at in reversed(places[-ON_LEAVING:]):
        lines = [*lines[:at], LOOK, *lines[at:]]
    return lines


def played(lines, folder, on_screen):
    """The lines of the script, and the pictures that it takes."""
    script, pictures = [], []
    for line in with_looks(lines):
        if line != LOOK:
            script.append(line)
            continue
        script.append("dump")
        if on_screen:
            pictures.append(Path(folder) / f"look{len(pictures)}.ppm")
            script.append(f'screenshot "{pictures[-1]}"')
    return script, pictures


# A face that moves by the time of day, as parts of the form: left, top, right, bottom.
MOVING = {"frm_DialogStartup": (0.88, 0.16, 0.98, 0.31)}


def without_moving(ppm, form):
    """The bytes of the picture, with what moves by itself painted over."""
    head = re.match(rb"P6\s+(\d+)\s+(\d+)\s+255\s", ppm)
    if not head or form not in MOVING:
        return ppm
    width, height = int(head[1]), int(head[2])
    left, top, right, bottom = (int(part * side) for part, side in
                                zip(MOVING[form], (width, height, width, height)))
    rows = bytearray(ppm)
    for row in range(top, bottom):
        at = head.end() + 3 * (row * width + left)
        rows[at:at + 3 * (right - left)] = bytes(3 * (right - left))
    return rows


def digest(picture, form):
    """Takes the picture away, so that the next run can't be taken for this one."""
    if not picture.exists():
        return NOT_TAKEN
    found = hashlib.sha256(without_moving(picture.read_bytes(), form)).hexdigest()
    picture.unlink()
    return found


def forms_looked_at(events):
    """The form of each dump."""
    forms, last = [], None
    for event in events:
        if event.get("event") == "control" and last != "control":
            forms.append(event["form"])
        last = event.get("event")
    return forms


@dataclass(frozen=True)
class Seen:
    words: tuple  # of the controls that are shown; forms, reports, sounds
    boxes: tuple
    pictures: int  # controls that hold one
    curve: str  # of the comparison, in words; empty where there is none
    screens: tuple


def word_of(event):
    if event["event"] != "control":
        return tuple((key, str(value)) for key, value in event.items()
                     if key not in ("t", "file", "taken", "caption"))
    shown = event["properties"]
    return (event["form"], event["name"], *(shown.get(key, "") for key in WORDS))


def is_worded(event):
    kind = event.get("event")
    if kind == "control":
        return event["properties"]["visible"] == "true" and not event["name"].startswith("pic_")
    return kind in ("shown", "closed", "report", "sound", "ended")


def seen(outcome, pictures=()):
    controls = [event for event in outcome.events if event.get("event") == "control"]
    curves = [event["properties"]["description"] for event in controls
              if (event["form"], event["name"]) == ("frm_DialogphCompare", "pic_pH")]
    return Seen(tuple(word_of(event) for event in outcome.events if is_worded(event)),
                tuple(outcome.boxes()),
                sum(event["properties"].get("picture") == "true" for event in controls),
                "".join(curves), tuple(map(digest, pictures, forms_looked_at(outcome.events))))


def series(curve):
    """What the words tell of the series that have points."""
    return re.findall(r": (\d+ Punkte?\b[^.]*)\.", curve)


def points(curve):
    return sum(int(text.split()[0]) for text in series(curve))


def curve_words(now, whole, standard):
    """`standard` are the words for the curve in place of a missing one, where it may be there."""
    found = series(now.curve)
    if not found:
        return "no curve"
    if standard and found == series(standard):
        return "the standard curve"
    if found == series(whole.curve):
        return "the whole curve"
    return "a part of the curve" if points(now.curve) < points(whole.curve) else "another curve"


def picture_words(now, whole):
    fewer = whole.pictures - now.pictures
    return "" if fewer == 0 else f"{fewer} picture{'s' * (fewer != 1)} fewer"


def screen_words(now, whole, without):
    """`without` is what is seen when the file is missing, None for the run in which it is."""
    if not now.screens:
        return ""
    if NOT_TAKEN in now.screens:
        return "no screen"
    if now.screens == whole.screens:
        return "the same screen"
    if without and now.screens == without.screens:
        return "the screen as when it is missing"
    return "another screen" + (", also than when it is missing" if without else "")


def text_words(now, whole):
    return "the same texts" if now.words == whole.words else "other texts"
