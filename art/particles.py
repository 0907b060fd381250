"""Particles as balls for the learning animations: the elements, molecules and ions that several folders share.

Colours and halos are those of the simulation: oxygen has the blue of its water, carbon the red of its acetic acid;
a red halo marks the acid, a blue one the base. The proton that moves from acid to base is amber in every picture.
Places are px from the point at which a script puts the sprite; y points downwards, angles counterclockwise.
"""

import math

from wmf import CAP_HEIGHT, Picture, mix, text_width

# Share of the width that a sprite keeps. On a screen of 16:10 a ball is round then, on 16:9 nearly so.
SQUEEZE = 0.8

OUTLINE = "#16262A"
WHITE = "#FFFFFF"
NAVY, GREEN, BLUE, RED, SILVER, YELLOW = "#000080", "#008000", "#0000FF", "#FF0000", "#C0C0C0", "#FFFF00"
AMBER, GLOW = "#FFAE1A", "#FFF0B8"

# Per element: colour of the ball, radius, letters, their colour, how dark the rim is.
ELEMENTS = {
    "O": (NAVY, 42, "O", WHITE, 0.45),
    "H": ("#F4F7F7", 24, "H", OUTLINE, 0.32),
    "H+": (AMBER, 24, "H", OUTLINE, 0.28),
    "C": ("#E01010", 39, "C", WHITE, 0.45),
    "Cl": (GREEN, 54, "Cl", WHITE, 0.45),
    "Na": (BLUE, 37, "Na", WHITE, 0.4),
    "Ag": (SILVER, 46, "Ag", OUTLINE, 0.4),
    "N": ("#E8D800", 38, "N", OUTLINE, 0.35),
}
OH_BOND, HCL_BOND, CO_BOND, CC_BOND, CH_BOND, NO_BOND = 56, 62, 56, 60, 52, 56
HALO_WIDTH = 7
BADGE = 14  # radius of the disc with the charge


def at(origin, angle, distance):
    turn = math.radians(angle)
    return origin[0] + distance * math.cos(turn), origin[1] - distance * math.sin(turn)


class Particle:
    """Atoms in drawing order, each (element, (x, y)), with halo and charge."""

    def __init__(self, atoms, halo=None, charge="", badge=(0, 0), scale=1.0, passing=False):
        self.atoms, self.halo, self.charge, self.badge = atoms, halo, charge, badge
        self.scale = scale
        self.passing = passing  # the proton is on its way

    def moved(self, dx, dy):
        atoms = [(element, (x + dx, y + dy)) for element, (x, y) in self.atoms]
        badge = (self.badge[0] + dx, self.badge[1] + dy)
        return Particle(atoms, self.halo, self.charge, badge, self.scale, self.passing)

    def radius(self, element):
        return ELEMENTS[element][1] * self.scale

    def picture(self):
        """A sprite whose middle is the point (0, 0)."""
        margin = HALO_WIDTH + 4 if self.halo else 3
        if self.passing:
            margin = 18
        reach = [(abs(x) + self.radius(e) + margin, abs(y) + self.radius(e) + margin) for e, (x, y) in self.atoms]
        if self.charge:
            reach.append((abs(self.badge[0]) + BADGE + 3, abs(self.badge[1]) + BADGE + 3))
        half = [math.ceil(max(r[i] for r in reach)) for i in (0, 1)]
        picture = Picture(2 * half[0], 2 * half[1], SQUEEZE)
        self._draw(picture, *half)
        return picture

    def _draw(self, picture, ox, oy):
        if self.halo:
            for grow, colour in ((HALO_WIDTH + 1.6, mix(self.halo, OUTLINE, 0.75)), (HALO_WIDTH, self.halo)):
                for element, (x, y) in self.atoms:
                    picture.circle(ox + x, oy + y, self.radius(element) + grow, colour)
        heavy = [place for element, place in self.atoms if element not in ("H", "H+")]
        for element, (x, y) in self.atoms:
            self._ball(picture, element, ox + x, oy + y, self._lean(element, (x, y), heavy))
        if self.charge:
            draw_charge(picture, ox + self.badge[0], oy + self.badge[1], self.charge)

    def _lean(self, element, place, heavy):
        """A hydrogen behind a larger atom has its letter a little outwards."""
        if element != "H" or not heavy:
            return 0, 0
        near = min(heavy, key=lambda h: math.dist(h, place))
        length = math.dist(near, place)
        return tuple(4.5 * self.scale * (place[i] - near[i]) / length for i in (0, 1))

    def _ball(self, picture, element, x, y, lean):
        colour, _, letters, ink, rim = ELEMENTS[element]
        r = self.radius(element)
        if element == "H+":
            if self.passing:
                draw_sparks(picture, x, y, r)
            picture.circle(x, y, r + 2.5, GLOW, OUTLINE, 1.5)
            picture.ball(x, y, r - 1, colour, "#8A5200", 1.2, 9, rim, 0.85)
        else:
            picture.ball(x, y, r, colour, OUTLINE, 2, 9 if element == "H" else 14, rim, 0.7)
        size = min(r * 1.05, 1.28 * r / text_width(letters, 1, True))
        picture.text(x + lean[0], y + lean[1] + CAP_HEIGHT * size / 2, letters, round(size, 1), ink, True, "centre")


def draw_charge(picture, x, y, sign, r=BADGE, ink=OUTLINE):
    picture.circle(x, y, r, WHITE, ink, 2)
    arm, half = 0.58 * r, 0.13 * r
    picture.rectangle(x - arm, y - half, 2 * arm, 2 * half, ink)
    if sign == "+":
        picture.rectangle(x - half, y - arm, 2 * half, 2 * arm, ink)


def draw_sparks(picture, x, y, r):
    """Short rays above and below a proton on its way."""
    for side in (90, 270):
        for turn in (-40, -14, 14, 40):
            start, end = at((x, y), side + turn, r + 7), at((x, y), side + turn, r + 17)
            picture.line(*start, *end, OUTLINE, 5.5)
            picture.line(*start, *end, AMBER, 3)


# Molecules; `o` is the place of the oxygen atom, `towards` the direction of the partner.

WATER_HALF = 52.25  # degrees, half of the angle H-O-H


def water(o, towards):
    """The molecule that takes the proton: its hydrogen atoms look away from the partner."""
    back = towards + 180
    return Particle([("H", at(o, back - WATER_HALF, OH_BOND)), ("H", at(o, back + WATER_HALF, OH_BOND)), ("O", o)])


def oxonium(o, towards):
    atoms = water(o, towards).atoms + [("H+", at(o, towards, OH_BOND))]
    return Particle(atoms, RED, "+", at(o, towards + 62, 46))


def hydroxide(o, towards):
    """The partner lies in the direction `towards`; the hydrogen atom keeps its place in water."""
    return Particle([("H", at(o, towards + 2 * WATER_HALF, OH_BOND)), ("O", o)], BLUE, "-", at(o, 55, 46))


def donor_water(o, towards):
    """The molecule that gives its proton away, or has just taken it."""
    return Particle(hydroxide(o, towards).atoms + [("H+", at(o, towards, OH_BOND))])


def chloride(place, scale=1.0):
    return ion("Cl", "-", place, scale)


def hydrogen_chloride(cl, towards):
    return Particle([("Cl", cl), ("H+", at(cl, towards, HCL_BOND))])


def ion(element, sign, place, scale=1.0):
    radius = ELEMENTS[element][1] * scale
    return Particle([(element, place)], None, sign, at(place, 45 if scale == 1.0 else 35, 0.9 * radius + 7), scale)


def nitrate(n, scale):
    """One oxygen atom below, so that it is low."""
    oxygens = [("O", at(n, angle, NO_BOND * scale)) for angle in (150, 30, 270)]
    return Particle(oxygens + [("N", n)], YELLOW, "-", at(n, 330, 66 * scale), scale)


def acetate_atoms(o, bond):
    """From the oxygen atom that held the proton; `bond` is the direction of its bond to carbon."""
    carbon = at(o, bond, CO_BOND)
    methyl = at(carbon, bond - 60, CC_BOND)
    hydrogens = [("H", at(methyl, bond - 60 + turn, CH_BOND)) for turn in (72, -72)]
    front = [("H", at(methyl, bond - 60, CH_BOND))]
    return hydrogens + front + [("C", methyl), ("O", at(carbon, bond + 60, CO_BOND)), ("C", carbon), ("O", o)]


def acetate(o, bond):
    return Particle(acetate_atoms(o, bond), BLUE, "-", at(o, 305, 46))


def acetic_acid(o, bond, towards):
    return Particle(acetate_atoms(o, bond) + [("H+", at(o, towards, OH_BOND))])


def meeting(taker, rest, proton):
    """Both partners with the proton between them."""
    return Particle(taker.atoms + rest + [("H+", proton)], passing=True)
