"""A screen reader's view of the program: a screen and buses of its own."""

import atexit
import contextlib
import json
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import time

PROGRAM_STARTS = 20  # s, at most


class Surroundings:
    """Screen and buses that live as long as the test. Set up before pyatspi is loaded."""

    def __init__(self, size="1366x768"):
        self._running = []
        self._folder = tempfile.mkdtemp(prefix="quendal-access-%d-" % os.getpid())
        atexit.register(self.close)
        # A test that takes too long is told to go; what it started goes with it.
        signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
        os.environ["XDG_RUNTIME_DIR"] = self._folder
        for kind in ("CONFIG", "DATA", "CACHE"):
            os.environ["XDG_%s_HOME" % kind] = os.path.join(self._folder, kind.lower())
        os.environ.pop("WAYLAND_DISPLAY", None)
        os.environ.pop("AT_SPI_BUS_ADDRESS", None)
        os.environ.pop("QT_QPA_PLATFORM", None)
        os.environ["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        os.environ["NO_AT_BRIDGE"] = "1"
        os.environ["DISPLAY"] = ":" + self._screen(size)
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = self._bus()

    def _start(self, command, **options):
        process = subprocess.Popen(command, stderr=subprocess.DEVNULL, start_new_session=True,
                                   **options)
        self._running.append(process)
        return process

    def _screen(self, size):
        # Without -noreset the screen starts anew, and lets nobody in, when its last client leaves.
        told, tell = os.pipe()
        self._start(["Xvfb", "-displayfd", str(tell), "-nolisten", "tcp", "-noreset",
                     "-screen", "0", size + "x24"], pass_fds=[tell])
        os.close(tell)
        with os.fdopen(told) as answer:
            return answer.readline().strip()

    def _bus(self):
        bus = self._start(["dbus-daemon", "--session", "--nofork", "--print-address=1"],
                          stdout=subprocess.PIPE, text=True)
        return bus.stdout.readline().strip()

    def close(self):
        for process in reversed(self._running):
            with contextlib.suppress(ProcessLookupError):
                os.killpg(process.pid, signal.SIGTERM)
            process.wait()
        self._running = []
        shutil.rmtree(self._folder, ignore_errors=True)


class Program:
    """A running program and the JSON lines that it prints, as far as it does."""

    def __init__(self, command):
        self.lines = []
        self._process = subprocess.Popen(command, stdout=subprocess.PIPE, stdin=subprocess.DEVNULL,
                                         text=True)
        self._reader = threading.Thread(target=self._read, daemon=True)
        self._reader.start()

    def _read(self):
        for line in self._process.stdout:
            with contextlib.suppress(ValueError):
                self.lines.append(json.loads(line))

    @property
    def pid(self):
        return self._process.pid

    def running(self):
        return self._process.poll() is None

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._process.kill()
        self._process.wait()
        self._reader.join()
        self._process.stdout.close()


def wait_for(what, seconds=PROGRAM_STARTS, pause=0.05):
    """The first result of `what` that counts as true; None when the time is over."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        found = what()
        if found:
            return found
        time.sleep(pause)
    return None
