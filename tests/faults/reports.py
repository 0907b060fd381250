"""The report file and the control file at fault, in a task on the desktop."""

import json
import random
import resource
import signal
import subprocess
import time
from pathlib import Path

from program import Player, as_learner
from table import section, table
from tasks import QUIT, choose

REPORTS = 2  # of the task below
FULL_AT = 1000  # bytes that still fit on the disk


def task(setting_line, answers=1):
    """Some points of the curve with the right pH, each of which is reported."""
    lines = [setting_line, "name Mia", "sound 2", "start", *choose("phstark"), "click ctl_Button1",
             "settle"]
    values = ("0", "0,09", "0,18", "0,27")
    for value in values[:answers]:
        lines += ["click but_Calc", f"type txt_Ph {value}", "key ENTER", "expect frm_CalcDirect."
                  "visible == false", "click ctl_Button3", "settle"]
    return lines


def is_report(line):
    try:
        record = json.loads(line)
    except ValueError:
        return False
    return record.get("event") in ("progress", "result") and "learner" in record


def unreadable(path):
    """Lines that are no report, and a last one without an end."""
    text = Path(path).read_text(encoding="utf-8")
    bad = [line for line in text.splitlines() if not is_report(line)]
    return bad if not text or text.endswith("\n") else bad + ["no end"]


class Files:
    def __init__(self, setting):
        self.folder = setting.folder
        self.player = Player(setting.script_player, setting.data, self.folder / "run", True)
        self.failures = []
        self.rows = []

    def expect(self, what, holds):
        if not holds:
            self.failures.append(what)

    def play(self, title, lines, path, told):
        """To the end, with `told` lines that name the path."""
        outcome = self.player.play(lines + QUIT)
        self.expect(f"{title}: {outcome.status} {outcome.lines}", outcome.ended())
        named = [line for line in outcome.lines if str(path) in line]
        self.expect(f"{title}: {told} line asked for, not {outcome.lines}",
                    len(named) == told == len(outcome.lines))
        return " / ".join(line.replace(str(path), "FILE") for line in outcome.lines)

    def add(self, title, what, line):
        self.rows.append((title, what, f"`{line}`" if line else ""))


def in_a_locked_folder(folder):
    place = folder / "locked"
    place.mkdir()
    place.chmod(0o555)
    return place / "reports.jsonl"


def without_right_to_write(folder):
    path = folder / "read_only.jsonl"
    path.write_text("")
    path.chmod(0o444)
    return path


def a_folder(folder):
    path = folder / "folder.jsonl"
    path.mkdir()
    return path


def below_a_file(folder):
    (folder / "file").write_text("")
    return folder / "file" / "reports.jsonl"


def a_device(_folder):
    return Path("/dev/full")


REPORT_PLACES = (("in a folder without the right to write", in_a_locked_folder),
                 ("may not be written", without_right_to_write), ("is a folder", a_folder),
                 ("below something that is no folder", below_a_file),
                 ("is the device that is always full", a_device))


def places(files):
    for title, make in REPORT_PLACES:
        path = make(files.folder)
        line = files.play(f"report file {title}", task(f'report "{path}"', 2), path, 1)
        files.add(f"report file {title}", "the task runs on, nothing is reported", line)


def whole_line(number):
    return json.dumps({"learner": "Mia", "event": "progress", "points": number}) + "\n"


def full_disk(files):
    """A file may not grow beyond a size, as on a disk on which so much is left."""
    path = files.folder / "full.jsonl"
    text = ""
    while len(text) < FULL_AT - 100:
        text += whole_line(len(text))
    path.write_text(text, encoding="utf-8")
    command = files.player.command(task(f'report "{path}"', 3) + QUIT)

    def fill():
        signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
        resource.setrlimit(resource.RLIMIT_FSIZE, (FULL_AT, FULL_AT))

    done = subprocess.run(
        as_learner(command), env=files.player.env, cwd=files.folder, capture_output=True, timeout=120, check=False,
        preexec_fn=fill, restore_signals=False)
    lines = [line for line in done.stderr.decode("utf-8", "replace").splitlines()
             if line.startswith("quendal")]
    files.expect(f"full disk: {done.returncode} {lines}", done.returncode == 0)
    files.expect(f"full disk: told {lines}", len(lines) == 1 and str(path) in lines[0])
    files.expect("full disk: what was there stands", path.read_text(encoding="utf-8") == text)
    line = files.play("disk with room again", task(f'report "{path}"'), path, 0)
    files.expect("room again: readable", not unreadable(path))
    files.expect("room again: written", len(path.read_text().splitlines()) ==
                 len(text.splitlines()) + 1)
    files.add("disk full in the middle of a report",
              "the task runs on; what was reported before stands, no half line is left",
              " / ".join(lines).replace(str(path), "FILE"))
    files.add("the same disk with room again", "reports are written behind the others", line)


def killed(files):
    """SIGKILL while a task runs and after some of it was reported."""
    path = files.folder / "killed.jsonl"
    running = subprocess.Popen(
        files.player.command(task(f'report "{path}"', 3) + ["wait 3000"]), env=files.player.env, cwd=files.folder, stdout=subprocess.DEVNULL,
        stderr=subprocess.DEVNULL)
    end = time.monotonic() + 100
    while time.monotonic() < end and running.poll() is None:
        if path.exists() and path.read_text(encoding="utf-8").count("\n") >= REPORTS:
            break
        time.sleep(0.005)
    files.expect("killed: it was running", running.poll() is None)
    running.send_signal(signal.SIGKILL)
    files.expect("killed: by the signal", running.wait() == -signal.SIGKILL)
    before = path.read_text(encoding="utf-8")
    files.expect("killed: what was reported stands", before.count("\n") >= REPORTS)
    files.expect("killed: readable", not unreadable(path))
    files.play("start behind it", task(f'report "{path}"'), path, 0)
    after = path.read_text(encoding="utf-8")
    files.expect("killed: added to", after.startswith(before) and
                 after.count("\n") == before.count("\n") + 1 and not unreadable(path))
    files.add("killed with SIGKILL in the middle of a task",
              "what was reported stands, each line is readable; the next start adds to it", "")


def half_a_line(files):
    """As a crash of the machine leaves it."""
    path = files.folder / "half.jsonl"
    path.write_text(whole_line(1) + whole_line(2)[:20], encoding="utf-8")
    files.play("half a line", task(f'report "{path}"'), path, 0)
    lines = path.read_text(encoding="utf-8").splitlines()
    files.expect(f"half a line: {lines}", len(lines) == 3 and is_report(lines[2]))
    files.add("report file that ends in half a line", "the next report begins a line of its own",
              "")


def control_files(files):
    folder = files.folder
    good = b"[QUENDAL_CONTROL]\nUSERNAME = Kim\n"
    cases = {"is empty": b"", "is full of noise": random.Random(6).randbytes(4000),
             "is larger than 1 MB": good + b"; " + b"x" * (1 << 20), "is cut in its heading": good[:10]}
    for title, content in cases.items():
        path = folder / (title.replace(" ", "_") + ".ini")
        path.write_bytes(content)
        line = files.play("control file " + title, task(f'controlfile "{path}"'), path, 1)
        files.add("control file " + title, "nothing is locked", line)
    for title, make in (("is not readable", lambda path: (path.write_bytes(good), path.chmod(0))),
                        ("is a folder", lambda path: path.mkdir()), ("is not there", None)):
        path = folder / (title.replace(" ", "_") + ".ini")
        if make:
            make(path)
        line = files.play("control file " + title, task(f'controlfile "{path}"'), path, 1)
        files.add("control file " + title, "nothing is locked", line)


def report_and_control(setting):
    files = Files(setting)
    places(files)
    full_disk(files)
    killed(files)
    half_a_line(files)
    control_files(files)
    return files.failures, section(
        "Report file and control file",
        "A task on the desktop, in which points are reported.\n\n" +
        table(("case", "what happens", "line on standard error"), files.rows))
