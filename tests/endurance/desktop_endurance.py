#!/usr/bin/env python3
"""Plays a script of many rounds on the real windows without a screen and watches the memory that
the process takes. Usage: desktop_endurance.py [--real-clock] PLAYER SCRIPT

The script tells the end of each round by a line `print clock`; the first round warms up."""

import json
import os
import re
import subprocess
import sys

MOST_MEGABYTES = 120
MOST_GROWTH = 1.05  # from the second round on


def megabytes(process, what):
    with open(f"/proc/{process.pid}/status", encoding="ascii") as status:
        return int(re.search(what + r":\s+(\d+) kB", status.read()).group(1)) / 1024


def forget_peak(process):
    with open(f"/proc/{process.pid}/clear_refs", "w", encoding="ascii") as refs:
        refs.write("5")


def rounds(process):
    """The clock, the memory at the end of each round and the most during it."""
    for line in process.stdout:
        event = json.loads(line)
        if event.get("event") == "print":
            yield event["t"], megabytes(process, "VmRSS"), megabytes(process, "VmHWM")
            forget_peak(process)


def main():
    words = sys.argv[1:]
    real = "--real-clock" in words
    player, script = [word for word in words if not word.startswith("--")]
    command = [player, "--desktop", *([] if real else ["--script-clock"]), script]
    process = subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                               text=True, env=dict(os.environ, QT_QPA_PLATFORM="offscreen"))
    table = []
    for clock, end, most in rounds(process):
        print(f"{clock:7.0f} s  {end:5.1f} MB at the end  {most:5.1f} MB at most", flush=True)
        table.append((end, most))
    if process.wait() != 0:
        sys.exit(f"the script failed: {process.returncode}")
    if len(table) < 3:
        sys.exit("too few rounds")
    warm = table[1:]
    for column, name in enumerate(("end", "most")):
        first = warm[0][column]
        if any(row[column] > first * MOST_GROWTH for row in warm):
            sys.exit(f"it grows: {name}")
    if max(most for _, most in table) > MOST_MEGABYTES:
        sys.exit("too much memory")


if __name__ == "__main__":
    main()
