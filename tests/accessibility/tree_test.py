"""Asks the accessibility bus what a screen reader asks: role, name and state of every control of
every form, held against what the program itself says of its controls. The contrast of every text is
measured on a screenshot, and no two controls answer to the same key.

tree_test.py QUENDAL_SCRIPT [STAGE...]"""

import contextlib
import os
import sys
import tempfile

import reader

surroundings = reader.Surroundings()

from PIL import Image  # noqa: E402  (pyatspi wants the screen and the bus of the test)

import contrast  # noqa: E402
import stages  # noqa: E402
import tree  # noqa: E402

# What may stand without a name: what only holds or parts others, and a status bar at rest.
# A label without a text is held against the program below.
NAMELESS = {"filler", "separator", "menu bar", "application", "status bar", "label"}
# What the program calls a control, by a property that only this kind has.
KINDS = [("bordercolor2", {"push button"}), ("checked", {"check box", "radio button"}),
         ("items", {"combo box"}), ("locked", {"text"}), ("angle", {"label"}),
         ("tag", {"label"}), ("buttons", {"tool bar"}), ("file", {"label", "text"}),
         ("picture", {"image"}), ("Mood", {"image"})]


def roles_of(properties):
    return next((roles for key, roles in KINDS if key in properties), None)


def faults_of_names(window):
    pages = {id(child) for node in window.walk() if node.role in ("label", "text")
             for child in node.children}  # what a long text is written on
    for node in window.walk():
        if not node.showing:
            continue
        if node.role in ("unknown", "invalid"):
            yield "no role: %s" % node
        leaf = not any(child.showing for child in node.children)
        size = node.box()[2:]
        if node.role == "filler" and leaf and min(size) > 0 and id(node) not in pages:
            yield "nothing but an area: %s at %s" % (node, node.box())
        if not node.name.strip() and node.role not in NAMELESS and min(size) > 0:
            yield "no name: %s at %s" % (node, node.box())


def agrees(node, properties):
    """Whether the accessible object can be this control."""
    spoken = tree.plain(properties["text"])
    if "items" in properties:
        return node.name.endswith(properties["text"])
    if "locked" in properties:
        return node.text() == properties["text"]
    if "bordercolor2" in properties or "checked" in properties or "angle" in properties:
        return node.name == spoken if spoken else bool(node.name)
    # Named otherwise than by its text, or by what the text says as a term.
    return bool(node.name) or not properties["text"]


def state_faults(node, properties):
    wanted = {"enabled": properties["enabled"] == "true"}
    if "checked" in properties:
        wanted["checked"] = properties["checked"] == "true"
    if "locked" in properties:
        wanted["read-only"] = properties["locked"] == "true"
        wanted["editable"] = not wanted["read-only"]
    for state, expected in wanted.items():
        if (state in node.states) != expected:
            yield "%s is %s%s" % (node, "" if state in node.states else "not ", state)


def best_faults(nodes, properties):
    """The faults of the object that fits the control best; None when no object can be it."""
    candidates = [list(state_faults(node, properties)) for node in nodes
                  if agrees(node, properties)]
    return min(candidates, key=len) if candidates else None


def faults_of_states(window, controls):
    nodes = list(window.walk())
    for control in controls:
        properties = control["properties"]
        roles = roles_of(properties)
        if roles is None or properties["visible"] != "true":
            continue
        faults = best_faults([node for node in nodes if node.role in roles], properties)
        if faults is None:
            yield "%s %r is no %s for a screen reader" % (control["name"], properties["text"],
                                                        " or ".join(sorted(roles)))
        else:
            yield from faults
    yield from faults_of_numbers(nodes, controls)
    yield from faults_of_focus(nodes, controls)


def faults_of_numbers(nodes, controls):
    """No object may stand for two controls."""
    visible = [roles_of(control["properties"]) for control in controls
               if control["properties"]["visible"] == "true"]
    for roles in {frozenset(roles) for roles in visible if roles}:
        wanted = sum(roles == set(one or ()) for one in visible)
        found = sum(node.role in roles for node in nodes)
        if found < wanted:
            yield "%d objects for %d controls: %s" % (found, wanted, " or ".join(sorted(roles)))


def faults_of_focus(nodes, controls):
    owners = [c for c in controls if c["properties"]["focus"] == "true"
              and c["properties"]["visible"] == "true"]
    focused = [node for node in nodes if "focused" in node.states]
    if owners and not focused:
        yield "%s has the focus, and no object says so" % owners[0]["name"]
    for control in owners:
        roles = roles_of(control["properties"])
        if roles and "buttons" not in control["properties"] and not any(
                node.role in roles and agrees(node, control["properties"]) for node in focused):
            yield "%s has the focus, but %s" % (control["name"], " ".join(map(str, focused)))


def mnemonic(node):
    with contextlib.suppress(NotImplementedError):
        action = node.accessible.queryAction()
        for index in range(action.nActions):
            keys = action.getKeyBinding(index)
            if keys:
                return keys.split(";")[-1]
    return None


def faults_of_mnemonics(window):
    owners = {}
    for node in window.walk():
        bar = node.role in ("menu", "menu item") and node.depth > 3  # an item of a menu of its own
        keys = mnemonic(node) if node.showing and not bar and node.role != "page tab list" else None
        if keys:
            if keys in owners:
                yield "%s is the key of %s and of %s" % (keys, owners[keys], node)
            owners[keys] = node


def dumped(program):
    """The controls of the last dump, once the script has come to its long wait."""
    reached = reader.wait_for(
        lambda: not program.running() or any(line.get("event") == "print"
                                             for line in program.lines), 60)
    if not reached or not program.running():
        raise AssertionError("the script never came to its end")
    return [line for line in program.lines if line.get("event") == "control"]


def play(player, folder, name):
    path = os.path.join(folder, name.replace(" ", "_") + ".qs")
    picture = path[:-2] + "png"
    with open(path, "w", encoding="utf-8") as script:
        script.write(stages.STAGES[name] + "screenshot %s\ndump\nprint clock\nhold 600\n" %
                     picture)
    with reader.Program([player, "--desktop", "--script-clock", path]) as program:
        controls = dumped(program)
        window = reader.wait_for(lambda: tree.active_window(program.pid))
        if window is None:
            return ["no window for a screen reader"], ""
        pale, read = contrast.faults(window, Image.open(picture))
        faults = [*faults_of_names(window), *faults_of_states(window, controls),
                  *faults_of_mnemonics(window), *pale]
        shown = sum(node.showing for node in window.walk())
        return faults, "%d objects, %d controls, %d texts" % (shown, len(controls), read)


def main(player, wanted):
    tree.registry()
    failed = 0
    with tempfile.TemporaryDirectory(prefix="quendal-tree-%d-" % os.getpid()) as folder:
        for name in wanted or stages.STAGES:
            faults, summary = play(player, folder, name)
            print("%-30s %s" % (name, "FAILED" if faults else "ok, " + summary), flush=True)
            for fault in faults:
                print("    " + fault)
            failed += bool(faults)
    return failed


if __name__ == "__main__":
    sys.exit(1 if main(sys.argv[1], sys.argv[2:]) else 0)
