"""Formula pictures of the learning animations: Lewis formulas with lone pairs on white cards.

Places in a card are px from its middle, y downwards; angles in degrees, counterclockwise.
"""

import math

from particles import OUTLINE, SQUEEZE, at, draw_charge
from wmf import CAP_HEIGHT, Picture, bezier

ZOOM = 0.65  # the stage shows formula pictures at 65 %
CARD_Y = 133  # on the stage: the middle of all cards of a row
CARD_WIDTH, CARD_HEIGHT = 117, 124  # on the stage
BORDER = "#2B4A50"
PROTON = "#C24A00"
ELECTRONS = "#1F6B6E"
SIZE, SMALL, CAPTION = 38, 33, 24  # of letters in px
BOND = 1.63  # this and the next three in sizes of the letters
PAIR_AT, PAIR = 0.69, 0.56
CLEAR = 0.54  # bonds keep away from the middle of a letter
PEN = 0.1
LIFT = -16  # the caption stands below the formula


class Card:
    """A card whose middle stands at (centre, CARD_Y), in a sprite placed at `sprite`; places of the stage."""

    def __init__(self, sprite, centre, caption, width=CARD_WIDTH, size=SIZE):
        self.size, self.pen, self.length = size, PEN * size, BOND * size
        wide, high = width / ZOOM / SQUEEZE, CARD_HEIGHT / ZOOM
        dx, dy = (centre - sprite[0]) / ZOOM / SQUEEZE, (CARD_Y - sprite[1]) / ZOOM
        half_x, half_y = math.ceil(wide / 2 + abs(dx)) + 2, math.ceil(high / 2 + abs(dy)) + 2
        self.picture = Picture(2 * half_x, 2 * half_y, SQUEEZE)
        self.x, self.y = half_x + dx, half_y + dy + LIFT
        left, top = half_x + dx - wide / 2, half_y + dy - high / 2
        self.picture.round_rectangle(left, top, wide, high, 14, "#FFFFFF", BORDER, 3)
        self.picture.text(self.x, top + high - 13, caption, CAPTION, BORDER, False, "centre")

    def _place(self, point):
        return self.x + point[0], self.y + point[1]

    def atom(self, letters, place, colour=OUTLINE):
        x, y = self._place(place)
        self.picture.text(x, y + CAP_HEIGHT * self.size / 2, letters, self.size, colour, True, "centre")

    def _between(self, first, second, aside, *clear):
        """The ends of a bond, `aside` px to its right."""
        (ax, ay), (bx, by) = self._place(first), self._place(second)
        length = math.hypot(bx - ax, by - ay)
        ux, uy = (bx - ax) / length, (by - ay) / length
        start, end = (c * self.size for c in clear)
        x, y = -uy * aside, ux * aside
        return [(ax + ux * start + x, ay + uy * start + y), (bx - ux * end + x, by - uy * end + y)]

    def bond(self, first, second, colour=OUTLINE, clear=CLEAR, double=False):
        for aside in ((-4, 4) if double else (0,)):
            self.picture.polyline(self._between(first, second, aside, clear, CLEAR), colour, self.pen)

    def loose_bond(self, first, second, clear=CLEAR):
        self.picture.dashes(self._between(first, second, 0, clear, CLEAR), PROTON, 3.2, 5, 7)

    def pairs(self, atom, *angles, away=PAIR_AT):
        half = PAIR * self.size / 2
        for angle in angles:
            middle = at(self._place(atom), angle, away * self.size)
            self.picture.polyline([at(middle, angle + 90, half), at(middle, angle - 90, half)], OUTLINE, self.pen)

    def charge(self, place, sign):
        draw_charge(self.picture, *self._place(place), sign, 12)

    def flow(self, start, end, bulge):
        """A curved arrow that electrons take; `bulge` is how far it swings upwards."""
        (ax, ay), (bx, by) = self._place(start), self._place(end)
        points = bezier((ax, ay), (ax + 0.15 * (bx - ax), ay - bulge), (bx - 0.12 * (bx - ax), by - bulge), (bx, by))
        self.picture.arrow(points, ELECTRONS, 3.6, 15)

    def note(self, place, words):
        x, y = self._place(place)
        self.picture.text(x, y, words, CAPTION - 2, ELECTRONS, False, "centre")


def _hydrogens(card, o, *angles):
    for angle in angles:
        h = at(o, angle, card.length)
        card.bond(o, h)
        card.atom("H", h)


def water(card, o, towards=0):
    """Its lone pairs look towards the partner."""
    back = towards + 180
    card.atom("O", o)
    _hydrogens(card, o, back - 52, back + 52)
    card.pairs(o, towards - 52, towards + 52)


def taking_water(card, o, towards):
    """One of its pairs reaches for the proton."""
    back = towards + 180
    card.atom("O", o)
    _hydrogens(card, o, back - 52, back + 52)
    card.pairs(o, towards, towards + 64)


def oxonium(card, o, towards=0):
    back, h = towards + 180, at(o, towards, card.length)
    card.atom("O", o)
    _hydrogens(card, o, back - 52, back + 52)
    card.bond(o, h, PROTON)
    card.atom("H", h, PROTON)
    card.pairs(o, towards + 64)
    card.charge(at(o, towards + 42, 60), "+")


def hydroxide(card, o, *more):
    card.atom("O", o)
    _hydrogens(card, o, -75)
    card.pairs(o, 15, 97, *more)


def proton(card, base, h, clear=CLEAR):
    card.bond(base, h, PROTON, clear)
    card.atom("H", h, PROTON)


def donor_water(card, o):
    hydroxide(card, o)
    proton(card, o, (o[0] - card.length, o[1]))


def chlorine(card, cl, *pairs):
    card.atom("Cl", cl)
    for angle in pairs:
        card.pairs(cl, angle, away=0.8 if angle % 180 == 0 else PAIR_AT)


def acetate(card, o, *more):
    """The oxygen atom that held the proton stands at `o`, below left of its carbon atom."""
    carbon = at(o, 60, card.length)
    double, methyl = at(carbon, 120, card.length), at(carbon, 0, card.length)
    card.bond(o, carbon)
    card.bond(carbon, double, double=True)
    card.bond(carbon, methyl)
    for letters, place in (("O", o), ("C", carbon), ("O", double), ("C", methyl)):
        card.atom(letters, place)
    for angle in (90, 0, -90):
        h = at(methyl, angle, 0.87 * card.length)
        card.bond(methyl, h)
        card.atom("H", h)
    card.pairs(double, 45, 190)
    card.pairs(o, 240, 330, *more)
