"""Every kind of box as a screen reader meets it, worked by keys alone, and the about box and the
calculator with them: names, roles, focus, contrast, and that the keys do what they say.

boxes_test.py QUENDAL"""

import os
import sys
import time

import reader

surroundings = reader.Surroundings()

from PIL import ImageGrab  # noqa: E402  (pyatspi and the picture want the screen of the test)

import contrast  # noqa: E402
import learner  # noqa: E402
import tree  # noqa: E402

# What only holds others; the page that a text is written on has no name of its own.
NAMELESS = {"filler", "label", "separator"}
DOSING = 60  # s, at most
READING = 8  # s, at most, on a machine that has other things to do
FOCUS_CONTRAST = 3  # of a pixel with the focus to the same without it
FOCUS_SHARE = 0.3  # of a line of one pixel around the button that must change so


def faults_of(box, texts, buttons):
    nodes = [node for node in box.walk() if node.showing]
    said = [node.name for node in nodes if node.role in ("label", "text")]
    yield from ("not said: %r, only %s" % (text, said)
                for text in texts if not any(text in one for one in said))
    pressed = [node.name for node in nodes if node.role == "push button"]
    yield from ("no button %r, only %s" % (name, pressed) for name in buttons
                if name not in pressed)
    yield from ("no name: %s" % node for node in nodes
                if not node.name.strip() and node.role not in NAMELESS)
    yield from ("no role: %s" % node for node in nodes if node.role in ("unknown", "invalid"))
    if not any("focused" in node.states for node in nodes):
        yield "nothing in the box has the focus"


def picture_of(node):
    left, top, width, height = node.box()
    return ImageGrab.grab((left, top, left + width, top + height),
                          xdisplay=os.environ["DISPLAY"]).convert("RGB")


def focus_moves(pid, first, second):
    """Tab goes from one button of the box to another, and both show it."""
    buttons = [tree.wait_for(pid, "push button", name) for name in (first, second)]
    before = [picture_of(button) for button in buttons]
    learner.keys("Tab")
    tree.wait_for(pid, "push button", second)
    assert reader.wait_for(lambda: learner.focused(pid, "push button").name == second)
    for button, old in zip(buttons, before):
        new = picture_of(button)
        changed = sum(contrast.ratio(one, other) >= FOCUS_CONTRAST
                      for one, other in zip(old.getdata(), new.getdata()))
        share = changed / (2 * (old.width + old.height))
        assert share >= FOCUS_SHARE, "%s looks the same with the focus: %.2f" % (button, share)


def meet(pid, name, texts, buttons=("OK",)):
    """Waits for a box and looks at all of it."""
    box = reader.wait_for(lambda: learner.box_with(pid, buttons[0]))
    assert box is not None, "no box %r; there is\n%s" % (name, tree.picture(pid))
    found = list(faults_of(box, texts, buttons))
    pale, read = contrast.faults(box, picture_of(box))
    found += pale
    print("%-14s %s" % (name, "FAILED" if found else "ok, %d objects, %d texts" % (
        sum(node.showing for node in box.walk()), read)), flush=True)
    assert not found, "\n".join(found)
    return box


def gone(pid, button):
    assert reader.wait_for(lambda: learner.box_with(pid, button) is None), "the box stays"


def enter_answer(pid, *strokes):
    learner.focused(pid, "text")
    learner.keys(*strokes, "Return")


def name_box(pid):
    meet(pid, "input", ["Gib Deinen Namen ein:"], ("OK", "Abbrechen"))
    learner.keys("m", "i", "a", "Return")
    gone(pid, "Abbrechen")


def about_box(pid):
    tree.wait_for(pid, "menu item", "Hilfe")
    learner.open_menu("h")
    learner.keys("i")
    meet(pid, "about", ["Version", "GNU General Public License"])
    learner.keys("Escape")
    gone(pid, "OK")


def read_workbench(pid):
    """All of a form that draws frames; answering one question a frame took a quarter of a minute."""
    began = time.monotonic()
    objects = sum(1 for window in tree.windows(pid) for _ in window.walk())
    seconds = time.monotonic() - began
    print("workbench      %d objects read in %.1f s" % (objects, seconds), flush=True)
    assert seconds < READING, "a screen reader waits too long"


def reach_direct_input(pid):
    tree.press(tree.wait_for(pid, "push button", "'Klick auf die Pipette'"))
    tree.press(tree.wait_for(pid, "push button", "Berechnen!", DOSING))
    learner.focused(pid, "text")


def calculator(pid):
    tree.press(tree.wait_for(pid, "push button", "Taschenrechner"))
    meet(pid, "calculator", [], ("Übernehmen", "Abbrechen", "ausrechnen", "Logarithmus", "7"))
    learner.keys("7", "-", "2", "Return", "Return")
    gone(pid, "Übernehmen")
    entry = learner.focused(pid, "text")
    assert entry.text() == "5,000", "the calculator gave %r" % entry.text()


def question_and_messages(pid):
    enter_answer(pid)  # the 5 of the calculator, which is wrong
    meet(pid, "question", ["leider falsch"], ("Ja", "Nein"))
    focus_moves(pid, "Ja", "Nein")
    learner.keys("Return")
    gone(pid, "Nein")
    enter_answer(pid, "x")
    meet(pid, "message", ["unzulässige Zeichen"])
    learner.keys("Return")
    meet(pid, "question again", ["leider falsch"], ("Ja", "Nein"))
    learner.keys("n")
    gone(pid, "Nein")
    learner.write(learner.focused(pid, "text"), "0")
    learner.keys("Return")
    meet(pid, "information", ["Diesen Titrationspunkt hast Du geschafft!"])
    learner.keys("Return")
    gone(pid, "OK")


def main(program):
    tree.registry()
    with reader.Program([program]) as running:
        name_box(running.pid)
        learner.choose_task(running.pid)
        about_box(running.pid)
        read_workbench(running.pid)
        reach_direct_input(running.pid)
        calculator(running.pid)
        question_and_messages(running.pid)
        assert running.running(), "the program has ended"


if __name__ == "__main__":
    main(sys.argv[1])
