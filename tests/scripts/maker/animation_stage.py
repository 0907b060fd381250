"""The stage of the animations: places of its space of 800 by 600 on a screen, and its pictures."""

import struct
from dataclasses import dataclass
from functools import cache
from pathlib import Path

DATA = Path(__file__).resolve().parents[3] / "data"
PX_PER_INCH = 96
PLACEABLE_HEAD = struct.Struct("<IHhhhhH")  # key, handle, left, top, right, bottom, units per inch


@cache
def drawn_size(name):
    """Size of a sprite in design units, from the head of its file."""
    file = DATA / (name.replace("\\", "/") + ".wmf")
    with file.open("rb") as stream:
        head = PLACEABLE_HEAD.unpack(stream.read(PLACEABLE_HEAD.size))
    _, _, left, top, right, bottom, per_inch = head
    return tuple(round(abs(side) * PX_PER_INCH / per_inch)
                 for side in (right - left, bottom - top))


@dataclass(frozen=True)
class Screen:
    width: int
    height: int

    def __str__(self):
        return f"{self.width}x{self.height}"

    def x(self, value):
        return round(value * self.width / 800)

    def y(self, value):
        return round(value * self.height / 600)

    def rect(self, placement, size_of=drawn_size):
        """Left, top, width and height in pixels of a sprite that is put on the stage."""
        width, height = (side * placement.zoom / 100 for side in size_of(placement.name))
        width, height = self.x(width), self.y(height)
        return (self.x(placement.x) - width // 2, self.y(placement.y) - height // 2,
                width, height)

    def pixel(self, x, y):
        """A pixel that is at this place of the design space, which has to be a whole one."""
        across, down = self.x(x), self.y(y)
        if (round(across * 800 / self.width), round(down * 600 / self.height)) != (x, y):
            raise ValueError(f"no pixel of {self} lies at {x}, {y}")
        return across, down


DEFAULT_SCREEN = Screen(1366, 768)
SCREENS = (Screen(640, 480), Screen(1024, 768), DEFAULT_SCREEN, Screen(1920, 1080))


@dataclass(frozen=True)
class Placement:
    name: str
    x: float
    y: float
    zoom: float = 100
