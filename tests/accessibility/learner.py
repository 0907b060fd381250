"""Hands of a learner who works the program by what the accessible tree offers, or by keys."""

import pyatspi

import reader
import tree

# Names of keys that write nothing.
KEYS = {"Return": 0xFF0D, "Escape": 0xFF1B, "Tab": 0xFF09}
_ALT = 64  # keycode on the keyboard that a screen without one has


def _key(code, kind):
    pyatspi.Registry.generateKeyboardEvent(code, None, kind)
    tree.spin()


def keys(*strokes):
    """Types on the keyboard of the screen: each stroke is the name of a key or one character."""
    for stroke in strokes:
        _key(KEYS.get(stroke) or ord(stroke), pyatspi.KEY_SYM)


def open_menu(key):
    """Alt and the mnemonic of a menu."""
    _key(_ALT, pyatspi.KEY_PRESS)
    keys(key)
    _key(_ALT, pyatspi.KEY_RELEASE)


def box_with(pid, button):
    """The box in front, when it has this button."""
    tree.spin()
    window = tree.active_window(pid)
    return window if window is not None and window.role == "dialog" and any(
        node.role == "push button" and node.name == button for node in window.walk()) else None


def write(node, text):
    assert node.accessible.queryEditableText().setTextContents(text), "nothing to write on"


def focused(pid, role):
    found = reader.wait_for(lambda: (tree.spin(), [
        node for window in tree.windows(pid) for node in window.walk()
        if node.role == role and "focused" in node.states])[1])
    assert found, "no %s has the focus" % role
    return found[0]


def give_name(pid):
    entry = focused(pid, "text")
    assert entry.name, "nobody says what is asked for"
    write(entry, "Mia")
    box = box_with(pid, "OK")
    tree.press(next(node for node in box.walk() if node.role == "push button"))


def choose_task(pid):
    tree.press(tree.wait_for(pid, "page tab", "Selbst rechnen"))
    compulsory = tree.wait_for(pid, "check box", "Sollstellen müssen gerechnet werden")
    assert "checked" in compulsory.states
    tree.press(compulsory)
    tree.spin(0.2)
    assert "checked" not in tree.find(pid, "check box", compulsory.name).states
    tree.press(tree.wait_for(pid, "push button", "pH: Starke Säure mit starker Base"))
