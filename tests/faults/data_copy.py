"""A copy of the data folder in which one file at a time is at fault."""

import hashlib
import random
from contextlib import contextmanager
from pathlib import Path

FAULTS = ("missing", "empty", "cut in half", "noise", "not readable")


def noise(name, size):
    """Always the same for a file, so that a case can be repeated."""
    seed = int.from_bytes(hashlib.sha256(name.encode()).digest()[:8], "big")
    return random.Random(seed).randbytes(size)


def spoiled(name, whole, fault):
    if fault == "cut in half":
        return whole[: len(whole) // 2]
    if fault == "noise":
        return noise(name, len(whole))
    return b"" if fault == "empty" else whole


class DataCopy:
    def __init__(self, data, folder):
        self.data = Path(data)
        self.folder = Path(folder)
        self.names = sorted(str(path.relative_to(self.data))
                            for path in self.data.rglob("*") if path.is_file())
        for name in self.names:
            self.link(name)

    def link(self, name):
        place = self.folder / name
        place.parent.mkdir(parents=True, exist_ok=True)
        place.symlink_to(self.data / name)

    @contextmanager
    def fault(self, name, fault):
        place = self.folder / name
        place.unlink()
        if fault != "missing":
            place.write_bytes(spoiled(name, (self.data / name).read_bytes(), fault))
        if fault == "not readable":
            place.chmod(0)
        try:
            yield
        finally:
            place.unlink(missing_ok=True)
            self.link(name)

    @contextmanager
    def faults(self, names, fault):
        """Several at once."""
        if not names:
            yield
            return
        with self.fault(names[0], fault), self.faults(names[1:], fault):
            yield
