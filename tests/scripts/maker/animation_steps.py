"""What can happen on the stage in a reaction scene."""

from dataclasses import dataclass
from typing import Callable

SHAKE = 5  # design units, to each side


@dataclass(frozen=True)
class Clear:
    basin: str


@dataclass(frozen=True)
class Text:
    text: str


@dataclass(frozen=True)
class Place:
    placements: tuple


@dataclass(frozen=True)
class Off:
    names: tuple


@dataclass(frozen=True)
class Sound:
    name: str


@dataclass(frozen=True)
class Draw:
    """One more frame of what is there."""


@dataclass(frozen=True)
class Click:
    """A wait for the learner."""


@dataclass(frozen=True)
class Tween:
    seconds: float
    placed: Callable  # the placements from the percentages done and left
    shaken: str = ""  # the one that trembles around its place

    def at(self, t):
        t = min(t, self.seconds)
        return self.placed(t * 100 / self.seconds, (self.seconds - t) * 100 / self.seconds)
