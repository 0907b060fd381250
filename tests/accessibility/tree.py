"""The accessible tree of a program, as plain objects."""

import contextlib
import functools
import re

import pyatspi
from gi.repository import GLib

import reader


class Node:
    def __init__(self, accessible, depth=0):
        self.accessible = accessible
        self.role = accessible.getRoleName()
        self.name = accessible.name or ""
        self.description = accessible.description or ""
        self.states = {pyatspi.stateToString(s) for s in accessible.getState().getStates()}
        self.depth = depth
        self.children = []
        for index in range(accessible.childCount):
            child = accessible.getChildAtIndex(index)
            if child is not None:
                self.children.append(Node(child, depth + 1))

    @property
    def showing(self):
        return "showing" in self.states

    def walk(self):
        yield self
        for child in self.children:
            yield from child.walk()

    def text(self):
        with contextlib.suppress(NotImplementedError):
            return self.accessible.queryText().getText(0, -1)
        return None

    @functools.lru_cache(maxsize=None)
    def box(self):
        extents = self.accessible.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        return extents.x, extents.y, extents.width, extents.height

    def __str__(self):
        states = " ".join(sorted(self.states & {"focused", "checked", "enabled", "read-only",
                                                 "showing"}))
        return "%s%s %r [%s]" % ("  " * self.depth, self.role, self.name, states)


def registry():
    """Called once before the first program starts, so that it finds the accessibility bus."""
    return pyatspi.Registry.getDesktop(0).childCount


def spin(seconds=0.02):
    """Lets events of the accessibility bus in."""
    context = GLib.MainContext.default()
    loop_end = GLib.get_monotonic_time() + seconds * 1e6
    while GLib.get_monotonic_time() < loop_end:
        if not context.iteration(False):
            GLib.usleep(2000)


def application(pid):
    for app in pyatspi.Registry.getDesktop(0):
        with contextlib.suppress(Exception):
            if app is not None and app.get_process_id() == pid:
                return app
    return None


def windows(pid):
    """The windows of a program that are on the screen; none while it changes under our hands."""
    try:
        app = application(pid)
        nodes = [] if app is None else [Node(child) for child in app if child is not None]
    except GLib.GError:
        return []
    return [node for node in nodes if node.showing]


def active_window(pid):
    shown = windows(pid)
    return next((node for node in shown if "active" in node.states), shown[-1] if shown else None)


def find(pid, role, name, showing=True):
    for window in windows(pid):
        for node in window.walk():
            if node.role == role and node.name == name and (node.showing or not showing):
                return node
    return None


def wait_for(pid, role, name, seconds=reader.PROGRAM_STARTS):
    found = reader.wait_for(lambda: (spin(), find(pid, role, name))[1], seconds)
    if found is None:
        raise AssertionError("no %s %r on the screen; there is\n%s" % (role, name, picture(pid)))
    return found


def picture(pid):
    return "\n".join(str(node) for window in windows(pid) for node in window.walk() if node.showing)


def press(node):
    """The action that a screen reader does to press or to choose."""
    action = node.accessible.queryAction()
    for index in range(action.nActions):
        if action.getName(index).lower() in ("press", "toggle", "check"):
            return action.doAction(index)
    raise AssertionError("nothing to press on %s" % node)


def plain(text):
    """A caption as it is said: no mnemonics, blanks put together."""
    return " ".join(re.sub(r"&(.)", r"\1", text).split())
