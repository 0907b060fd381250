#!/usr/bin/env python3
"""Makes the sounds of the program: make_sounds.py DIR writes them as WAV files into DIR.

Every sound is computed from sines and seeded noise, so that each run gives the same bytes.
Only the standard library is used.
"""

import array
import math
import random
import sys
import wave
from pathlib import Path

RATE = 44100  # samples per second
PEAK = 10 ** (-6 / 20)  # full scale is 1
SOFT_PEAK = 10 ** (-9 / 20)
BACKGROUND_PEAK = 10 ** (-20 / 20)  # for sounds that return every second or so
FADE_IN = 0.002  # seconds, against a click at the start
FADE_OUT = 0.03

# Overtones as (multiple of the pitch, strength, decay against the fundamental).
MARIMBA = ((1, 1.0, 1.0), (3.93, 0.22, 3.5), (9.2, 0.06, 8.0))
CHIME = ((1, 1.0, 1.0), (2.0, 0.35, 1.6), (2.76, 0.22, 2.4), (5.4, 0.10, 4.5))
BRASS = ((1, 1.0, 1.0), (2, 0.55, 1.2), (3, 0.36, 1.5), (4, 0.20, 1.9), (5, 0.11, 2.4), (6, 0.06, 3))
HUM = ((1, 1.0, 1.0), (2, 0.18, 1.6), (3, 0.05, 2.4))


def pitch(name):
    """Frequency in Hz of a note such as 'C5' or 'Eb4'; A4 is 440 Hz."""
    steps = {"C": -9, "D": -7, "E": -5, "F": -4, "G": -2, "A": 0, "B": 2}
    flat = 1 if "b" in name[1:] else 0
    return 440.0 * 2 ** ((steps[name[0]] - flat) / 12 + int(name[-1]) - 4)


class Track:
    """A mono recording that notes are mixed into."""

    def __init__(self, seconds):
        self.samples = [0.0] * round(seconds * RATE)

    def mix(self, start, sound):
        """Adds samples from `start` seconds on; what lies behind the end is dropped."""
        first = round(start * RATE)
        for i, value in enumerate(sound[: max(0, len(self.samples) - first)]):
            self.samples[first + i] += value

    def note(self, start, name, seconds, overtones, attack=0.004, decay=4.0, level=1.0, bend=0.0):
        """A note: soft attack, exponential decay (1/s), released over its last fifth.

        `bend` is the fall of the pitch over the note, in semitones.
        """
        count = round(seconds * RATE)
        hertz = pitch(name)
        sound = [0.0] * count
        times = [i / RATE for i in range(count)]
        falls = [2 ** (-bend * t / seconds / 12) for t in times]
        for multiple, strength, damping in overtones:
            if hertz * multiple > 0.45 * RATE:
                continue
            phase, speed, loss = 0.0, 2 * math.pi * hertz * multiple, -decay * damping
            for i, t in enumerate(times):
                phase += speed * falls[i] / RATE
                sound[i] += strength * math.exp(loss * t) * math.sin(phase)
        self.mix(start, [s * level * envelope(i, count, attack) for i, s in enumerate(sound)])


def envelope(i, count, attack):
    """Raised cosine up over `attack` seconds and down over the last fifth."""
    rise = min(1.0, i / (attack * RATE))
    fall = min(1.0, (count - 1 - i) / (0.2 * count))
    return 0.25 * (1 - math.cos(math.pi * rise)) * (1 - math.cos(math.pi * fall))


def room(samples, amount):
    """A short reverberation: four combs, so that dry tones don't stick to the loudspeaker."""
    wet = [0.0] * len(samples)
    for milliseconds, feedback in ((29.7, 0.72), (37.1, 0.70), (41.1, 0.68), (43.7, 0.66)):
        delay = round(milliseconds * RATE / 1000)
        line = list(samples)
        for i in range(delay, len(line)):
            line[i] += feedback * line[i - delay]
        wet = [w + (l - s) / 4 for w, l, s in zip(wet, line, samples)]
    return [s + amount * w for s, w in zip(samples, wet)]


def rounded(samples):
    """Presses single loud peaks down, so that the whole sounds fuller at the same peak."""
    loudest = max(abs(value) for value in samples)
    return [math.tanh(2.5 * value / loudest) for value in samples]


def band(noise, low, high):
    """Noise between two corner frequencies in Hz, by one-pole filters."""
    slow = 1 - math.exp(-2 * math.pi * low / RATE)
    fast = 1 - math.exp(-2 * math.pi * high / RATE)
    below = above = 0.0
    result = []
    for value in noise:
        above += fast * (value - above)
        below += slow * (above - below)
        result.append(above - below)
    return result


def clap(rng):
    """One pair of hands: a few milliseconds of noise, a little different each time."""
    count = round(0.07 * RATE)
    noise = [rng.random() * 2 - 1 for _ in range(count)]
    hollow = rng.random()
    decay = 70 + 60 * rng.random()
    low, high = 450 + 450 * hollow, 1500 + 1500 * hollow
    body = band(band(band(noise, low, high), low, high), low, high)
    attack = 0.0012 * RATE
    return [s * min(1.0, i / attack) * math.exp(-decay * i / RATE) for i, s in enumerate(body)]


def clapping():
    """Applause of a small class: it swells, stays, and thins out."""
    track = Track(2.4)
    rng = random.Random(20)
    for _ in range(22):
        beat = 0.17 + 0.08 * rng.random()
        level = 0.35 + 0.65 * rng.random()
        t = 0.02 + 0.35 * rng.random()
        end = 1.5 + 0.7 * rng.random()
        while t < end:
            track.mix(t, [s * level for s in clap(rng)])
            t += beat * (0.9 + 0.2 * rng.random())
    return rounded(room(track.samples, 0.25))


def result_good():
    """A small fanfare up the chord of C, its last chord held, with a sparkle on top."""
    track = Track(2.4)
    for i, name in enumerate(("G4", "C5", "E5")):
        track.note(0.15 * i, name, 0.22, BRASS, attack=0.012, decay=3)
    for name in ("C4", "G4", "E5", "G5"):
        track.note(0.47, name, 1.75, BRASS, attack=0.02, decay=1.5, level=0.55)
    for i, name in enumerate(("C6", "E6", "G6", "C7")):
        track.note(0.62 + 0.09 * i, name, 1.2, CHIME, decay=4, level=0.22)
    return room(track.samples, 0.35)


def correct():
    """Two friendly steps up: well done, there is more in it."""
    track = Track(1.3)
    track.note(0.0, "G4", 0.6, MARIMBA, decay=6)
    track.note(0.18, "C5", 1.0, MARIMBA, decay=5)
    track.note(0.18, "E5", 1.0, MARIMBA, decay=5, level=0.6)
    return room(track.samples, 0.3)


def say():
    """Three even knocks that ask for attention and judge nothing."""
    track = Track(1.3)
    for i, name in enumerate(("E4", "E4", "A4")):
        track.note(0.2 * i, name, 0.8, MARIMBA, decay=8)
    return room(track.samples, 0.3)


def wrong():
    """A small step down, rounded, without a buzz."""
    track = Track(1.3)
    track.note(0.0, "E4", 0.5, HUM, attack=0.015, decay=4)
    track.note(0.28, "C4", 0.9, HUM, attack=0.02, decay=3.5)
    track.note(0.28, "G3", 0.9, HUM, attack=0.02, decay=3.5, level=0.5)
    return room(track.samples, 0.25)


def result_bad():
    """A sigh downwards that ends on a warm chord: next time it will go better."""
    track = Track(2.3)
    track.note(0.0, "G4", 0.4, HUM, attack=0.03, decay=2.5, bend=0.4)
    track.note(0.34, "F4", 0.4, HUM, attack=0.03, decay=2.5, bend=0.4)
    track.note(0.68, "Eb4", 0.5, HUM, attack=0.03, decay=2.5, bend=0.5)
    for name, level in (("C3", 0.6), ("G3", 0.5), ("Eb4", 0.3), ("C4", 0.6)):
        track.note(1.12, name, 1.1, HUM, attack=0.04, decay=2.2, level=level)
    return room(track.samples, 0.3)


def signal_wrong():
    """Two low, soft wooden taps."""
    track = Track(0.42)
    track.note(0.0, "D4", 0.22, HUM, attack=0.006, decay=18)
    track.note(0.13, "Bb3", 0.26, HUM, attack=0.006, decay=16, level=0.9)
    return room(track.samples, 0.12)


def signal_right():
    """A short bright chime upwards."""
    track = Track(0.85)
    track.note(0.0, "E5", 0.5, CHIME, attack=0.003, decay=9, level=0.8)
    track.note(0.09, "B5", 0.72, CHIME, attack=0.003, decay=6.5)
    return room(track.samples, 0.2)


def collide():
    """Two particles meet: a soft, dry tick of two small wooden balls."""
    track = Track(0.14)
    track.note(0.0, "A4", 0.12, MARIMBA, attack=0.003, decay=55)
    track.note(0.004, "E5", 0.1, HUM, attack=0.003, decay=70, level=0.5)
    return track.samples


def leave():
    """A particle goes its own way: a small bell, one light step up."""
    track = Track(0.36)
    track.note(0.0, "E6", 0.2, HUM, attack=0.006, decay=22, level=0.5)
    track.note(0.045, "A6", 0.31, HUM, attack=0.006, decay=15, level=0.8)
    return track.samples


SOUNDS = {
    "result_good.wav": (result_good, PEAK),
    "clapping.wav": (clapping, PEAK),
    "correct.wav": (correct, PEAK),
    "say.wav": (say, PEAK),
    "wrong.wav": (wrong, PEAK),
    "result_bad.wav": (result_bad, PEAK),
    "signal1.wav": (signal_wrong, SOFT_PEAK),
    "signal2.wav": (signal_right, PEAK),
    "collide.wav": (collide, BACKGROUND_PEAK),
    "ex.wav": (leave, BACKGROUND_PEAK),
}


def finished(samples, peak):
    """Without direct current, faded at both ends, scaled to its peak."""
    mean = sum(samples) / len(samples)
    count = len(samples)
    faded = []
    for i, value in enumerate(samples):
        rise = min(1.0, i / (FADE_IN * RATE))
        fall = min(1.0, (count - 1 - i) / (FADE_OUT * RATE))
        faded.append((value - mean) * rise * fall)
    loudest = max(abs(value) for value in faded)
    return [value * peak / loudest for value in faded]


def write(path, samples):
    data = array.array("h", (round(value * 32767) for value in samples))
    if sys.byteorder == "big":
        data.byteswap()
    with wave.open(str(path), "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(data.tobytes())


def main(arguments):
    if len(arguments) != 2:
        print("usage: make_sounds.py DIR", file=sys.stderr)
        return 2
    for name, (make, peak) in SOUNDS.items():
        write(Path(arguments[1]) / name, finished(make(), peak))
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
