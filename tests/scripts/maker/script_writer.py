"""The lines of a script, one after the other: what a learner does and what has to be seen."""

from texts import quoted

TOLERANCE = 1e-12


def word(value):
    """A value as it stands in a script line: quoted where it has to be."""
    if isinstance(value, bool):
        return "true" if value else "false"
    text = str(value)
    is_comment = text.startswith("#") and len(text) != len("#rrggbb")
    return quoted(text) if text == "" or " " in text or '"' in text or is_comment else text


class ScriptWriter:
    def __init__(self, title):
        self.lines = ["# " + line for line in title.split("\n")]

    def say(self, *lines):
        self.lines += lines

    def expect(self, thing, value):
        self.say(f"expect {thing} == {word(value)}")

    def expect_text(self, thing, text):
        self.say(f"expect {thing} == {quoted(text)}")

    def expect_near(self, thing, value, tolerance=TOLERANCE):
        self.say(f"expect {thing} ~= {value!r} {tolerance!r}")

    def visible(self, *controls):
        for control in controls:
            self.expect(control + ".visible", True)

    def hidden(self, *controls):
        for control in controls:
            self.expect(control + ".visible", False)
