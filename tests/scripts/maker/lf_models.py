"""Conductivities in 90 mL of water, worked out from the formulas and not by the program."""

import math
from dataclasses import dataclass
from fractions import Fraction

from number_texts import fixed, logarithm

PKS = 4.76
WATER_AND_SAMPLE = 100  # mL
HYDRONIUM, HYDROXIDE, SODIUM = 349.8, 198.6, 50.1  # mS*cm^2/mmol
CHLORIDE, ACETATE, NITRATE, SILVER = 76.4, 40.9, 71.5, 61.9


@dataclass
class Point:
    """What is right at a point: mL, mmol, mS/cm; on the form with logarithms mol/L and pH, pOH."""

    volume: float
    amounts: tuple  # in the order of the tutor's rows
    ions: tuple
    reagent_left: bool
    digits: int = 2

    def __post_init__(self):
        self.ions = tuple(two_decimals(value) for value in self.ions)
        first, second, third, fourth = self.ions
        self.now = second + first + third + fourth

    @property
    def shown(self):
        return fixed(self.now, 2)


def two_decimals(value):
    return float(fixed(value, 2, "."))


def tidy(amount):
    """Without what binary fractions leave behind."""
    return round(amount, 9) + 0.0


class Beaker:
    def __init__(self, sample, added):
        self.sample = sample / 10 * 100
        self.acid = 10 * sample
        self.added = added
        self.volume = added + WATER_AND_SAMPLE
        self.reagent_left = self.sample < added
        self.rest = 0.0 if self.reagent_left else self.sample - added
        self.excess = added - self.sample if self.reagent_left else 0.0

    def share(self, amount, conductivity):
        return amount / self.volume * conductivity

    def point(self, amounts, ions):
        return Point(self.volume, tuple(map(tidy, amounts)), tuple(ions), self.reagent_left)


def strong(sample, added):
    b = Beaker(sample, added)
    amounts = b.rest, b.sample, added, b.excess
    return b.point(amounts, map(b.share, amounts, (HYDRONIUM, CHLORIDE, SODIUM, HYDROXIDE)))


def weak(sample, added):
    b = Beaker(sample, added)
    amounts = 0, min(added, b.acid), added, b.excess
    ions = list(map(b.share, amounts, (HYDRONIUM, ACETATE, SODIUM, HYDROXIDE)))
    if added == 0:
        acid = b.sample / b.volume
        ions[0] = 10 ** (-(PKS - logarithm(acid)) * 0.5) * HYDRONIUM
    return b.point(amounts, ions)


def silver(sample, added):
    b = Beaker(sample, added)
    amounts = b.rest, b.sample, added, b.excess
    return b.point(amounts, map(b.share, amounts, (CHLORIDE, SODIUM, NITRATE, SILVER)))


def logarithms(sample, added):
    b = Beaker(sample, added)
    values = []
    for amount in (b.rest, b.excess):
        concentration = amount / b.volume
        minus_log = -math.log(concentration) / math.log(10) if concentration > 0 else 0
        values += [concentration, minus_log]
    return b.point((b.rest, 0, b.excess, 0), values)


MODELS = {"strong": strong, "weak": weak, "silver": silver, "log": logarithms}


def fitted_line(points):
    """Slope and intercept by least squares, exactly; none for fewer than two volumes."""
    if len({x for x, _ in points}) < 2:
        return None
    points = [(Fraction(x), Fraction(y)) for x, y in points]
    count = len(points)
    sum_x, sum_y = sum(x for x, _ in points), sum(y for _, y in points)
    sum_xx, sum_xy = sum(x * x for x, _ in points), sum(x * y for x, y in points)
    slope = (count * sum_xy - sum_x * sum_y) / (count * sum_xx - sum_x * sum_x)
    return float(slope), float((sum_y - slope * sum_x) / count)
