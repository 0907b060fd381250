"""The report file at fault, in a task on the desktop."""

import json
import resource
import shutil
import signal
import subprocess
import sys
import time
from pathlib import Path

import looks
from control_files import control_files
from program import Player, as_learner, outcome_of
from table import section, table
from tasks import QUIT, reporting_task

REPORTS = 2  # of the task below
FULL_AT = 1000  # bytes that a file may have
SECONDS = 120  # a run takes one or two, and more on a busy machine


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


def reports_in(path):
    """How many lines the file has; 0 where there is none or nothing is kept."""
    path = Path(path)
    if not path.is_file():
        return 0
    return len(path.read_text(encoding="utf-8").splitlines())


def in_words(count):
    return {0: "nothing is reported", 1: "1 report is written"}.get(
        count, f"{count} reports are written")


class Files:
    def __init__(self, setting):
        self.folder = setting.folder
        self.player = Player(setting.script_player, setting.data, self.folder / "run", True)
        self.failures = []
        self.rows = []
        self.not_played = setting.not_played
        self.whole = {}  # what is seen without a fault, by the length of the task

    def expect(self, what, holds):
        if not holds:
            self.failures.append(what)

    def run(self, title, lines, path, told):
        """With `told` lines that name the path; what is seen at the end, and the lines."""
        script, pictures = looks.played(lines + QUIT, self.folder, False)
        return self.judge(title, self.player.play(script), pictures, path, told)

    def judge(self, title, outcome, pictures, path, told):
        named = [line for line in outcome.lines if str(path) in line]
        self.expect(f"{title}: {told} line asked for, not {outcome.lines}",
                    len(named) == told == len(outcome.lines))
        return (outcome, looks.seen(outcome, pictures),
                " / ".join(line.replace(str(path), "FILE") for line in outcome.lines))

    def without_fault(self, answers):
        """What a task that reports shows where it can."""
        if answers not in self.whole:
            path = self.folder / "good.jsonl"
            before = reports_in(path)
            outcome, seen, _ = self.run("good report file",
                                        reporting_task(f'report "{path}"', answers), path, 0)
            self.expect(f"good report file: {outcome.status}", outcome.ended())
            self.expect("good report file: all is reported",
                        reports_in(path) == before + answers and not unreadable(path))
            self.whole[answers] = seen
        return self.whole[answers]

    def task_words(self, title, outcome, seen, answers):
        self.expect(f"{title}: {outcome.status} {outcome.lines}", outcome.ended())
        if not outcome.ended():
            return "the task breaks off"
        return ("the task runs on" if seen == self.without_fault(answers)
                else "the task shows something else")

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
        title = "report file " + title
        path = make(files.folder)
        before = reports_in(path)
        outcome, seen, line = files.run(title, reporting_task(f'report "{path}"', 2), path, 1)
        count = reports_in(path) - before
        files.expect(f"{title}: {count} reports", count == 0)
        files.add(title, files.task_words(title, outcome, seen, 2) + "; " + in_words(count), line)


def whole_line(number):
    return json.dumps({"learner": "Mia", "event": "progress", "points": number}) + "\n"


def filled_up(length):
    """Reports of so many bytes."""
    text = ""
    while len(text) < length - 100:
        text += whole_line(len(text))
    last = whole_line("")
    return text + last.replace('""', '"' + "x" * (length - len(text) - len(last)) + '"')


def what_stands(files, title, path, text):
    """What a full disk leaves of `text`, which was reported before."""
    now = path.read_text(encoding="utf-8")
    files.expect(f"{title}: what was there stands", now == text)
    return ("what was reported before stands, no half line is left" if now == text else
            "what was reported before stands" if now.startswith(text) else
            "what was reported before is lost")


def limited_size(files):
    """A file may not grow beyond a size, as on a disk on which so much is left."""
    title = "the system lets the report file grow no further"
    path = files.folder / "limited.jsonl"
    text = filled_up(FULL_AT - 40)
    path.write_text(text, encoding="utf-8")
    script, _ = looks.played(reporting_task(f'report "{path}"', 3) + QUIT, files.folder, False)

    def fill():
        signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
        resource.setrlimit(resource.RLIMIT_FSIZE, (FULL_AT, FULL_AT))

    done = subprocess.run(
        as_learner(files.player.command(script)), env=files.player.env, cwd=files.folder,
        capture_output=True, timeout=SECONDS, check=False, preexec_fn=fill, restore_signals=False)
    outcome, seen, line = files.judge(title, outcome_of(done), (), path, 1)
    files.add(title, files.task_words(title, outcome, seen, 3) + "; " +
              what_stands(files, title, path, text), line)
    room_again(files, "the same file, which may grow again", path, text)


def room_again(files, title, path, text):
    outcome, seen, line = files.run(title, reporting_task(f'report "{path}"'), path, 0)
    now = path.read_text(encoding="utf-8")
    behind = now.startswith(text) and not unreadable(path)
    files.expect(f"{title}: readable, behind the others", behind)
    count = reports_in(path) - text.count("\n")
    files.expect(f"{title}: {count} reports", count == 1)
    files.add(title, files.task_words(title, outcome, seen, 1) + "; " + in_words(count) +
              (" behind the others" if behind else ""), line)


# In a mount namespace of its own: a disk of some pages, on which another file takes all that is
# left but the rest of the page in which the report file ends. "$1" and "$2" are a mount point and
# the report file to begin with, the rest is the program.
FULL_DISK = """
mount -t tmpfs -o size=64k none "$1" || exit 99
cp "$2" "$1/full.jsonl" && chmod 666 "$1/full.jsonl"
dd if=/dev/zero of="$1/filler" bs=4096 2>/dev/null
disk=$1 first=$2
shift 2
"$@"
status=$?
cp "$disk/full.jsonl" "$first" || exit 98
exit $status
"""
PAGE = 4096


def own_mounts():
    """How a process gets mounts of its own here; empty where it can't."""
    for way in (["unshare", "--mount"], ["unshare", "--mount", "--map-root-user"]):
        if shutil.which("unshare") and subprocess.run(
                [*way, "sh", "-c", "mount -t tmpfs none /mnt"], capture_output=True,
                check=False).returncode == 0:
            return way
    return []


FULL_TITLE = "disk full in the middle of a report"
ROOM_TITLE = "the same file on a disk with room"


def full_disk(files):
    """A file system that is really full."""
    way = own_mounts()
    if not way:
        print("Not played, as mounts aren't allowed here: " + FULL_TITLE, file=sys.stderr)
        files.not_played += [FULL_TITLE, ROOM_TITLE]
        return
    disk = files.folder / "disk"
    disk.mkdir()
    path = disk / "full.jsonl"
    first = files.folder / "first.jsonl"
    text = filled_up(PAGE - 40)
    first.write_text(text, encoding="utf-8")
    script, _ = looks.played(reporting_task(f'report "{path}"', 3) + QUIT, files.folder, False)
    done = subprocess.run(
        [*way, "sh", "-c", FULL_DISK, "sh", str(disk), str(first),
         *as_learner(files.player.command(script))],
        env=files.player.env, cwd=files.folder, capture_output=True, timeout=SECONDS, check=False)
    outcome, seen, line = files.judge(FULL_TITLE, outcome_of(done), (), path, 1)
    files.add(FULL_TITLE, files.task_words(FULL_TITLE, outcome, seen, 3) + "; " +
              what_stands(files, FULL_TITLE, first, text), line)
    room_again(files, ROOM_TITLE, first, text)


def killed(files):
    """SIGKILL while a task runs and after some of it was reported."""
    title = "killed with SIGKILL in the middle of a task"
    path = files.folder / "killed.jsonl"
    running = subprocess.Popen(
        files.player.command([*reporting_task(f'report "{path}"', 3), "wait 3000"]),
        env=files.player.env, cwd=files.folder, stdout=subprocess.DEVNULL,
        stderr=subprocess.DEVNULL)
    end = time.monotonic() + SECONDS
    while time.monotonic() < end and running.poll() is None:
        if reports_in(path) >= REPORTS:
            break
        time.sleep(0.005)
    files.expect("killed: it was running", running.poll() is None)
    running.send_signal(signal.SIGKILL)
    files.expect("killed: by the signal", running.wait() == -signal.SIGKILL)
    text = path.read_text(encoding="utf-8")
    stands = text.count("\n") >= REPORTS
    bad = unreadable(path)
    files.expect(f"killed: what was reported stands: {text}", stands)
    files.expect(f"killed: {bad}", not bad)
    files.add(title, ("what was reported stands" if stands else "reports are lost") + "; " +
              ("half a line is left" if bad else "each line is readable"), "")
    room_again(files, "the next start after that", path, text)


def half_a_line(files):
    """As a crash of the machine leaves it."""
    title = "report file that ends in half a line"
    path = files.folder / "half.jsonl"
    half = whole_line(2)[:20]
    path.write_text(whole_line(1) + half, encoding="utf-8")
    outcome, seen, line = files.run(title, reporting_task(f'report "{path}"'), path, 0)
    lines = path.read_text(encoding="utf-8").splitlines()
    own = lines[:2] == [whole_line(1).strip(), half] and len(lines) == 3 and is_report(lines[2])
    files.expect(f"{title}: {lines}", own)
    files.add(title, files.task_words(title, outcome, seen, 1) + "; " +
              ("the report begins a line of its own" if own else "the report is lost"), line)


def report_and_control(setting):
    files = Files(setting)
    places(files)
    full_disk(files)
    limited_size(files)
    killed(files)
    half_a_line(files)
    control_files(files)
    return files.failures, section(
        "Report file and control file",
        "A task on the desktop, in which points are reported.\n\n" +
        table(("case", "what happens", "line on standard error"), files.rows))
