"""The control file at fault, in a task that it would forbid."""

import random

from tasks import QUIT, reporting_task

LOCKING = b"[QUENDAL_CONTROL]\nMODUS = 1\n"  # nothing but the animations, so no task


def spoiled_control_files(folder):
    contents = {"is empty": b"", "is full of noise": random.Random(6).randbytes(4000),
                "is larger than 1 MB": LOCKING + b"; " + b"x" * (1 << 20),
                "is cut in its heading": LOCKING[:10]}
    for title, content in contents.items():
        path = folder / (title.replace(" ", "_") + ".ini")
        path.write_bytes(content)
        yield title, path
    path = folder / "not_readable.ini"
    path.write_bytes(LOCKING)
    path.chmod(0)
    yield "is not readable", path
    path = folder / "folder.ini"
    path.mkdir()
    yield "is a folder", path
    yield "is not there", folder / "not_there.ini"


def locked(files, title, path, told):
    """Whether the task that LOCKING forbids can be done; and the lines."""
    answer = reporting_task(f'controlfile "{path}"')
    outcome = files.player.play(answer + QUIT)
    lines = [line for line in outcome.lines if line.startswith("quendal")]
    files.expect(f"{title}: {told} line asked for, not {outcome.lines}",
                 len(lines) == told and all(str(path) in line for line in lines))
    # The script breaks off where it is to choose on the tab that is shut.
    shut = any(": choose lst_Mol" in text and "is hidden" in text for text in outcome.lines)
    files.expect(f"{title}: {outcome.status} {outcome.lines}", shut or outcome.ended())
    return shut, " / ".join(line.replace(str(path), "FILE") for line in lines)


def control_files(files):
    good = files.folder / "good.ini"
    good.write_bytes(LOCKING)
    cases = [("is as it should be", good, 0, True)]
    cases += [(title, path, 1, False) for title, path in spoiled_control_files(files.folder)]
    for title, path, told, counts in cases:
        title = "control file " + title
        shut, line = locked(files, title, path, told)
        files.expect(f"{title}: locked {shut}", shut == counts)
        files.add(title, "the tasks are locked" if shut else "nothing is locked", line)
