"""Sprites of the conductivity lesson: the circuit in its five states, the board of conditions and its marks.

Usage: ion_sprites.py FOLDER [FOLDER_OF_SVG_TWINS]

All places are those of the stage, 800 x 600. The lesson asks for clicks and draws ions and needle at fixed places, which
are named here: SWITCH, FIELD, PLATES, NEEDLE, RADIOS and CHECKS.
"""

import sys

from style import *
from wmf import Picture, bezier, mix

CENTRE, SIZE = (400, 280), (740, 450)
BOARD_CENTRE, BOARD_SIZE = (700, 150), (152, 172)

FIELD = (179, 255, 534, 470)  # here the program draws the ions
PLATES = (250, 498.5)  # where ions settle: 0.2 and 0.9 of the field's width ...
PLATE_FOOT = 362.5  # ... in its upper half
PIVOT = (128, 325)
# Per position of the switch: direction of the lever in degrees, and the label's box (left, top, right, bottom).
SWITCH = {
    "off": (180, (81, 314, 95, 336)),
    "direct": (135, (82, 286, 100, 309)),
    "reversed": (90, (116, 273, 140, 292)),
    "alternating": (45, (150, 284, 170, 302)),
}
NEEDLE, NEEDLE_LENGTH = (627, 392), 70
SWEEP = 63  # degrees from the middle to either end of the scale
FULL = 2  # at the end of the scale
RADIOS = ((647, 97), (647, 124.5), (647, 152.5))
CHECKS = ((647, 189), (647, 216.5))

INK = "#16262A"
PAPER = "#FFFFFF"
FACE = "#F7FAFA"
CASE, CASE_DARK = "#DCE4E6", "#A9B9BD"
GREEN = LEAF_DARK


class Stage(Picture):
    """A sprite that is drawn in places of the stage."""

    def __init__(self, centre, size):
        super().__init__(*size)
        self.left, self.top = centre[0] - size[0] / 2, centre[1] - size[1] / 2

    def at(self, points):
        return [(x - self.left, y - self.top) for x, y in points]

    def area(self, points, fill, outline=None, pen=1.6):
        self.polygon(self.at(points), fill, outline, pen)

    def stroke(self, points, colour, pen):
        self.polyline(self.at(points), colour, pen)

    def disc(self, x, y, r, fill, outline=None, pen=1.6):
        self.circle(x - self.left, y - self.top, r, fill, outline, pen)

    def panel(self, left, top, right, bottom, radius, fill, outline=None, pen=1.6):
        where = (left - self.left, top - self.top, right - left, bottom - top)
        if radius:
            self.round_rectangle(*where, radius, fill, outline, pen)
        else:
            self.rectangle(*where, fill, outline, pen)

    def words(self, x, y, words, size, colour=INK, bold=True, align="centre"):
        self.text(x - self.left, y - self.top, words, size, colour, bold, align)

    def plus(self, x, y, arm, colour, pen):
        self.minus(x, y, arm, colour, pen)
        self.stroke([(x, y - arm), (x, y + arm)], colour, pen)

    def minus(self, x, y, arm, colour, pen):
        self.stroke([(x - arm, y), (x + arm, y)], colour, pen)

    def wave(self, x, y, half, colour, pen):
        """The sign for alternating current."""
        rows = [(x + half * (k / 12 - 1), y - 0.45 * half * math.sin(math.pi * k / 12)) for k in range(25)]
        self.stroke(rows, colour, pen)


def bent(points, radius=14):
    """A polyline whose corners are rounded."""
    out = [points[0]]
    for before, corner, after in zip(points, points[1:], points[2:]):
        ends = []
        for other in (before, after):
            length = math.dist(corner, other)
            share = min(radius, length / 2) / length
            ends.append(tuple(c + (o - c) * share for c, o in zip(corner, other)))
        handles = [tuple(e + (c - e) * 0.55 for e, c in zip(end, corner)) for end in ends]
        out += bezier(ends[0], *handles, ends[1], steps=8)
    return out + [points[-1]]


def wire(picture, *points):
    rows = bent(points)
    picture.stroke(rows, INK, 6)
    picture.stroke(rows, ACCENT, 3.6)
    picture.stroke([(x - 0.6, y - 0.7) for x, y in rows], "#7CC4C4", 1)


def terminal(picture, x, y, downwards):
    """A screw that holds a wire, on the upper or lower edge of a case."""
    end = y + (9 if downwards else -9)
    picture.panel(x - 7, min(y, end), x + 7, max(y, end), 0, METAL_DARK, INK, 1.4)
    picture.panel(x - 6, min(y, end) + 0.7, x - 1, max(y, end) - 0.7, 0, METAL_LIGHT)


def case(picture, left, top, right, bottom):
    """A housing: light from top left, a darker edge below and to the right."""
    picture.panel(left, top, right, bottom, 10, CASE_DARK, INK, 1.8)
    picture.panel(left + 1.2, top + 1.2, right - 3, bottom - 3.5, 9, CASE)
    picture.stroke([(left + 9, top + 2.8), (right - 12, top + 2.8)], PAPER, 1.4)


# The vessel

LIQUID_TOP, RIM, WALL = 246, 214, 4


def liquid(picture):
    left, _, right, bottom = FIELD
    stops = ((0, LIQUID_DARK), (0.28, LIQUID_LIGHT), (0.6, LIQUID), (1, LIQUID_DARK))
    strips = 24
    for k in range(strips):
        share = (k + 0.5) / strips
        (a, first), (b, second) = next(pair for pair in zip(stops, stops[1:]) if share <= pair[1][0])
        shade = mix(LIQUID, mix(first, second, (share - a) / (b - a)), 0.45)
        x = left + (right - left) * k / strips
        # Each strip reaches to the wall, so that no gap shows between two.
        picture.panel(x, LIQUID_TOP, right, bottom, 0, shade)
    picture.panel(left, LIQUID_TOP, right, LIQUID_TOP + 5, 0, SURFACE)
    picture.stroke([(left, LIQUID_TOP), (right, LIQUID_TOP)], ACCENT_DARK, 1.4)


def vessel_glass(picture):
    left, _, right, bottom = FIELD
    outer = [(left - WALL - 4, RIM), (left - WALL, RIM + 5), (left - WALL, bottom - 6)]
    outer += [(left - WALL + 2, bottom + 4), (left + 8, bottom + WALL + 2)]
    inner = [(left - 1, RIM), (left, RIM + 4), (left, bottom)]
    picture.area(outer + [(left + right - x, y) for x, y in reversed(outer)]
                 + [(left + right - x, y) for x, y in inner] + inner[::-1], GLASS, OUTLINE, 1.6)
    x = left - WALL + 1.4
    picture.stroke([(x, RIM + 12), (x, bottom - 12)], PAPER, 1.2)


def electrode(picture, x):
    """A plate seen from its edge, held by the bar on the rim."""
    half, top = 6, 172
    picture.panel(x - half, top, x + half, PLATE_FOOT, 0, METAL_DARK, INK, 1.6)
    picture.panel(x - half + 0.8, top + 0.8, x + 1.5, PLATE_FOOT - 0.8, 0, METAL)
    picture.panel(x - half + 0.8, top + 0.8, x - half + 3.6, PLATE_FOOT - 0.8, 0, METAL_LIGHT)


def holder(picture):
    left, right = FIELD[0] - 16, FIELD[2] + 16
    picture.panel(left, RIM - 10, right, RIM + 1, 3, METAL_DARK, INK, 1.6)
    picture.panel(left + 1, RIM - 9, right - 1, RIM - 4.5, 2, METAL_LIGHT)
    for x in PLATES:
        picture.panel(x - 13, RIM - 14, x + 13, RIM + 4, 3, ACCENT_DARK, INK, 1.6)
        picture.panel(x - 12, RIM - 13, x + 12, RIM - 6, 3, "#49ABAB")


def clip(picture, x):
    """Where the wire grips the plate."""
    picture.panel(x - 9, 160, x + 9, 182, 3, ACCENT_DARK, INK, 1.6)
    picture.panel(x - 8, 161, x + 8, 169, 3, "#49ABAB")


def pole(picture, x, y, positive):
    picture.disc(x, y, 17, PAPER, INK, 2)
    (picture.plus if positive else picture.minus)(x, y, 9.5, INK, 4)


# The power unit with its switch

UNIT = (38, 258, 173, 412)


def label(picture, position, colour):
    _, (left, top, right, bottom) = SWITCH[position]
    x, y = (left + right) / 2, (top + bottom) / 2
    if position == "off":
        picture.words(x, y + 6, "0", 17, colour)
    elif position == "alternating":
        picture.wave(x, y, 7.5, colour, 2.4)
    else:
        first, second = (picture.plus, picture.minus) if position == "direct" else (picture.minus, picture.plus)
        first(x - 4.3, y, 3.1, colour, 1.8)
        second(x + 4.3, y, 3.1, colour, 1.8)


def lever(picture, position):
    """A knob with a pointer that leads to the label of the position."""
    turn = math.radians(SWITCH[position][0])
    c, s = math.cos(turn), -math.sin(turn)

    def place(along, aside):
        return PIVOT[0] + along * c - aside * s, PIVOT[1] + along * s + aside * c

    picture.disc(*PIVOT, 16.5, METAL_DARK, INK, 1.6)
    picture.disc(PIVOT[0] - 0.8, PIVOT[1] - 0.8, 14, METAL)
    picture.area([place(-12, -6), place(16, -6), place(29, -3.2), place(32, 0), place(29, 3.2), place(16, 6),
                  place(-12, 6), place(-15, 3.5), place(-15, -3.5)], INK, INK, 1)
    picture.stroke([place(14, 0), place(28, 0)], PAPER, 2.6)


def power_unit(picture, position, caption):
    case(picture, *UNIT)
    for name, (turn, box_of) in SWITCH.items():
        here = name == position
        left, top, right, bottom = box_of
        picture.panel(left, top, right, bottom, 5, ACCENT_DARK if here else PAPER, OUTLINE, 1)
        label(picture, name, PAPER if here else INK)
        c, s = math.cos(math.radians(turn)), -math.sin(math.radians(turn))
        picture.stroke([(PIVOT[0] + 20 * c, PIVOT[1] + 20 * s), (PIVOT[0] + 26 * c, PIVOT[1] + 26 * s)], METAL_DARK, 2.4)
    lever(picture, position)
    middle = (UNIT[0] + UNIT[2]) / 2 - 1
    picture.panel(48, 360, 160, 384, 4, INK, OUTLINE, 1.4)
    picture.words(middle, 377, caption, 14, "#BFEDED" if position != "off" else METAL)


# The ammeter

METER = (544, 284, 710, 452)


def on_dial(angle, radius):
    a = math.radians(angle)
    return NEEDLE[0] + radius * math.sin(a), NEEDLE[1] - radius * math.cos(a)


def scale(picture, values, minor):
    """`values` are the outermost numbers; the angle is measured from the middle."""
    low, high = values
    picture.stroke([on_dial(a, NEEDLE_LENGTH + 2) for a in range(-SWEEP, SWEEP + 1, 3)], INK, 1.8)
    steps = round((high - low) / minor)
    for k in range(steps + 1):
        angle = SWEEP * (2 * k / steps - 1)
        value = low + k * minor
        whole = value == round(value)
        picture.stroke([on_dial(angle, NEEDLE_LENGTH + 2), on_dial(angle, NEEDLE_LENGTH + (8 if whole else 5.5))],
                       INK, 2.2 if whole else 1.3)
        if whole:
            x, y = on_dial(angle, NEEDLE_LENGTH + 15.5)
            # The outermost numbers stand over their marks: beside them there is no room.
            x, y = x - 6 * angle / SWEEP, y - 7 * abs(angle) / SWEEP
            words = f"{value:.0f}".replace("-", "\u2013")
            picture.words(x, y + 4.6, words, 13)


def ammeter(picture, alternating):
    left, top, right, bottom = METER
    case(picture, left, top, right, bottom)
    picture.panel(left + 4, top + 7, right - 6, 410, 7, FACE, OUTLINE, 1.4)
    scale(picture, (0, FULL) if alternating else (-FULL, FULL), 0.25 if alternating else 0.5)
    x, y = NEEDLE
    picture.disc(x, y, 9, METAL_DARK, INK, 1.4)
    picture.disc(x - 1, y - 1, 6, METAL_LIGHT)
    picture.words(x - 8, 440, "A", 27)
    if alternating:
        picture.wave(x + 15, 431, 8.5, INK, 2.6)
    else:
        for dy in (-3, 3):
            picture.minus(x + 15, 431 + dy, 7, INK, 2.4)


# The circuit

TOP_WIRE, BOTTOM_WIRE = 120, 492
UNIT_UP, UNIT_DOWN = 62, 104
METER_UP, METER_DOWN = 590, 668


def circuit(position, caption, left_positive=None):
    picture = Stage(CENTRE, SIZE)
    wire(picture, (UNIT_UP, UNIT[1]), (UNIT_UP, TOP_WIRE), (PLATES[0], TOP_WIRE), (PLATES[0], 166))
    wire(picture, (PLATES[1], 166), (PLATES[1], TOP_WIRE), (METER_UP, TOP_WIRE), (METER_UP, METER[1]))
    wire(picture, (METER_DOWN, METER[3]), (METER_DOWN, BOTTOM_WIRE), (UNIT_DOWN, BOTTOM_WIRE), (UNIT_DOWN, UNIT[3]))
    terminal(picture, UNIT_UP, UNIT[1], False)
    terminal(picture, UNIT_DOWN, UNIT[3], True)
    terminal(picture, METER_UP, METER[1], False)
    terminal(picture, METER_DOWN, METER[3], True)
    liquid(picture)
    for x in PLATES:
        electrode(picture, x)
    vessel_glass(picture)
    holder(picture)
    for x in PLATES:
        clip(picture, x)
    power_unit(picture, position, caption)
    ammeter(picture, position == "alternating")
    if left_positive is not None:
        pole(picture, PLATES[0] - 34, 166, left_positive)
        pole(picture, PLATES[1] + 34, 166, not left_positive)
    return picture


# The board of conditions

def board():
    picture = Stage(BOARD_CENTRE, BOARD_SIZE)
    (cx, cy), (width, height) = BOARD_CENTRE, BOARD_SIZE
    left, top = cx - width / 2, cy - height / 2
    picture.panel(left + 1, top + 1, left + width - 1, top + height - 1, 8, PAPER, OUTLINE, 2)
    picture.words(cx, 81, "Bedingungen", 14)
    for (x, y), words in zip(RADIOS, ("10 Ionen", "20 Ionen", "40 Ionen")):
        picture.disc(x, y, 7, FACE, OUTLINE, 1.6)
        picture.words(x + 13, y + 5, words, 14, bold=False, align="left")
    picture.stroke([(left + 10, 171), (left + width - 10, 171)], METAL, 1.2)
    for (x, y), words in zip(CHECKS, ("schnelle Ionen", "zweifach geladen")):
        picture.panel(x - 7, y - 7, x + 7, y + 7, 2, FACE, OUTLINE, 1.6)
        picture.words(x + 13, y + 5, words, 14, bold=False, align="left")
    return picture


def dot():
    picture = Picture(12, 12)
    picture.circle(6, 6, 4.6, GREEN)
    return picture


def tick():
    picture = Picture(18, 18)
    picture.polyline([(4.4, 9.4), (7.8, 13), (14, 4.6)], GREEN, 3.2)
    return picture


def sprites():
    yield "aus", circuit("off", "aus")
    yield "ein", circuit("direct", "Gleichstrom", True)
    yield "einup", circuit("reversed", "Gleichstrom", False)
    yield "ws1", circuit("alternating", "Wechselstrom", True)
    yield "ws2", circuit("alternating", "Wechselstrom", False)
    yield "bedingungen", board()
    yield "grün1", dot()
    yield "grün2", tick()
    yield "grün3", tick()


def main():
    for name, picture in sprites():
        picture.write(sys.argv[1], name, sys.argv[2] if len(sys.argv) > 2 else None)


if __name__ == "__main__":
    main()
