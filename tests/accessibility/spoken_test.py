"""A screen reader at work: works the first two windows by what the tree offers alone, then hears
what changes in a task and reads what is drawn there.

spoken_test.py QUENDAL QUENDAL_SCRIPT"""

import contextlib
import sys
import tempfile

import reader

surroundings = reader.Surroundings()

import pyatspi  # noqa: E402  (pyatspi wants the screen and the bus of the test)
from gi.repository import GLib  # noqa: E402

import learner  # noqa: E402
import tree  # noqa: E402

NAMED = "object:property-change:accessible-name"
SHOWN = "object:state-changed:showing"


class Ear:
    """Everything that was said since it was opened."""

    def __init__(self):
        self.said = []
        self.shown = []
        self._events = []
        pyatspi.Registry.registerEventListener(self._events.append, NAMED, SHOWN)

    def listen(self):
        """Asks what was said only now: asking inside an event would ask while it is answered."""
        tree.spin()
        while self._events:
            event = self._events.pop(0)
            with contextlib.suppress(GLib.GError, RuntimeError):  # the object is gone already
                if event.source.getRoleName() == "notification":
                    (self.shown if event.type.startswith(SHOWN) else self.said).append(
                        event.source.name)

    def hears(self, what, seconds=30):
        found = reader.wait_for(
            lambda: (self.listen(), any(what in text for text in self.shown))[1], seconds)
        assert found, "never heard %r, only %s" % (what, self.shown)
        assert any(what in text for text in self.said), "the name did not change: %r" % what


def by_reader_alone(program):
    """The box for the name and the start dialog, worked by what the tree offers."""
    with reader.Program([program]) as running:
        learner.give_name(running.pid)
        learner.choose_task(running.pid)
        assert running.running(), "the program has ended"


_TASK = """name Mia
start
choose SSTab1 3
check opt_NeedCalc off
click ctl_Button3
hold 1
click ctl_Button1
settle
hold 1
print pic_Water.description
click but_Calc
type txt_Ph 0
click but_CalcDone
hold 1
click but_phCompare
print pic_pH.description
hold 600
"""


def told(running, number):
    """What the script has printed as its `number`th text."""
    def printed():
        tree.spin()
        texts = [line["value"] for line in running.lines if line.get("event") == "print"]
        return texts[number] if len(texts) > number else None
    text = reader.wait_for(printed, 60)
    assert text, "the script never came that far"
    return text


def heard_in_a_task(player):
    with tempfile.NamedTemporaryFile("w", suffix=".qs") as script:
        script.write(_TASK)
        script.flush()
        ear = Ear()
        with reader.Program([player, "--desktop", "--script-clock", script.name]) as running:
            ear.hears("Im Becher: 10 Oxonium-Ionen und 10 Chlorid-Ionen.", 60)
            assert told(running, 0) == "Im Becher: 10 Oxonium-Ionen und 10 Chlorid-Ionen."
            ear.hears("pH 0,00 nach 0 mL")
            curve = told(running, 1)
            for part in ("Waagerecht", "1 Punkt, zuletzt 0 bei 0", "größter Sprung von"):
                assert part in curve, curve
            shown = tree.wait_for(running.pid, "image",
                                  "Titrationskurve mit Deinen berechneten Punkten")
            assert shown.description == curve, shown.description
        print("heard: " + "; ".join(ear.shown))


def main(program, player):
    tree.registry()
    by_reader_alone(program)
    heard_in_a_task(player)


if __name__ == "__main__":
    main(*sys.argv[1:3])
