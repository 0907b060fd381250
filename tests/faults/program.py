"""Runs the program and tells what came of it."""

import json
import os
import re
import subprocess
from dataclasses import dataclass, field
from pathlib import Path

HANG = "hangs"
SECONDS = 120  # a run takes one or two, and more on a busy machine
# What the toolkit and the sound server say of the machine, whatever the program does.
OF_THE_MACHINE = re.compile(
    r"This plugin does not support|PulseAudioService|QStandardPaths|^ALSA lib|"
    r"gibt kein Tonausgabegerät|^libEGL|^MESA")


def as_learner(command):
    """The superuser may read and write everything; this gives that up for the command."""
    if os.geteuid() != 0:
        return command
    return ["setpriv", "--bounding-set=-dac_override,-dac_read_search", *command]


@dataclass
class Outcome:
    status: object
    events: list = field(default_factory=list)
    lines: list = field(default_factory=list)  # standard error
    machine: list = field(default_factory=list)  # that the machine is to blame for

    def boxes(self):
        return [event["text"] for event in self.events if event.get("event") == "box"]

    def ended(self):
        return self.status == 0 and any(event.get("event") == "ended" for event in self.events)


def environment(home, **more):
    """One that knows nothing of whoever runs the test."""
    home = Path(home)
    runtime = home / "runtime"
    runtime.mkdir(parents=True, exist_ok=True)
    runtime.chmod(0o700)
    kept = {key: value for key, value in os.environ.items()
            if not key.startswith(("XDG_", "QT_", "LC_")) and key != "LANGUAGE"}
    return {**kept, "HOME": str(home), "XDG_RUNTIME_DIR": str(runtime), "LANG": "C.UTF-8",
            "QT_QPA_PLATFORM": "offscreen", **more}


def events_of(text):
    events = []
    for line in text.splitlines():
        try:
            events.append(json.loads(line))
        except ValueError:
            events.append({"event": "unreadable", "text": line})
    return events


def run(command, env, cwd, seconds=SECONDS):
    try:
        done = subprocess.run(as_learner([str(part) for part in command]), env=env, cwd=cwd,
                              capture_output=True, timeout=seconds, check=False)
    except subprocess.TimeoutExpired:
        return Outcome(HANG)
    return outcome_of(done)


def outcome_of(done):
    text = done.stderr.decode("utf-8", "replace").splitlines()
    return Outcome(done.returncode, events_of(done.stdout.decode("utf-8", "replace")),
                   [line for line in text if line and not OF_THE_MACHINE.search(line)],
                   [line for line in text if OF_THE_MACHINE.search(line)])


class Player:
    """Plays the lines of a script, on `data` where they name no other folder."""

    def __init__(self, program, data, folder, desktop=False, **more):
        self.program = program
        self.data = Path(data)
        self.folder = Path(folder)
        self.folder.mkdir(parents=True, exist_ok=True)
        self.options = ["--desktop", "--script-clock"] if desktop else []
        self.env = environment(self.folder / "home", **more)

    def script(self, lines):
        data = [] if lines[0].startswith("data ") else [f'data "{self.data}"']
        path = self.folder / "task.qs"
        path.write_text("\n".join([*data, *lines]) + "\n", encoding="utf-8")
        return path

    def command(self, lines):
        return [str(self.program), *self.options, str(self.script(lines))]

    def play(self, lines):
        return run(self.command(lines), self.env, self.folder)
