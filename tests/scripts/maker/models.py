"""The chemistry of the three titrations, worked out from the formulas and not by the program."""

import math
from dataclasses import dataclass

from kinds import WEAK
from number_texts import fixed, logarithm, number, thousandths

SAMPLE_VOLUME = 0.01  # L
PKS = 4.76
KL = math.pow(10.0, -9.7)  # (mol/L)^2
NEUTRAL = 7.0


@dataclass
class Mixture:
    """What is in the beaker: amounts in mol, volumes in L, concentrations in mol/L."""

    sample: float
    added: int  # mL
    digits: int  # decimals that a direct answer has to be right in
    case: int = 0
    value: float = 0.0  # pH, or potential in V
    main: float = 0.0  # concentration of what decides on the value
    ion: float = 0.0
    excess: float = 0.0
    hydroxide_value: float = 0.0

    def __post_init__(self):
        self.sample_amount = self.sample * SAMPLE_VOLUME
        self.added_volume = self.added / 1000.0
        self.added_amount = self.added_volume * 1.0
        self.total = (10 + self.added) / 1000.0
        self.main = self.sample
        self.sample_particles = round(10 * self.sample)

    @property
    def acid_particles(self):
        return max(0, self.sample_particles - self.added)

    @property
    def hydroxide_particles(self):
        return max(0, self.added - self.sample_particles)

    @property
    def shown(self):
        return fixed(self.value, self.digits)

    @property
    def now(self):
        return number(self.shown)


def strong_ph(sample, added):
    """The pH of the strong acid, rounded to three decimals."""
    acid, base, total = sample * 0.01, added / 1000.0, (10 + added) / 1000.0
    if acid + 1.0 == added / 1000.0 + 1.0:
        return NEUTRAL
    value = -logarithm(abs(acid - base) / total)
    return round(value if acid > base else 14.0 - value, 3) + 0.0


def weak(sample, added):
    mixture = Mixture(sample, added, WEAK.direct_digits)
    acid, base = mixture.sample_amount, mixture.added_amount
    if added == 0:
        mixture.case = 1
        mixture.value = (PKS - logarithm(sample)) * 0.5
    elif mixture.acid_particles > 0:
        mixture.case = 2
        mixture.value = PKS - logarithm((acid - base) / base)
    elif mixture.hydroxide_particles == 0:
        mixture.case = 3
        mixture.value = 14.0 - (14.0 - PKS - logarithm(base / mixture.total)) * 0.5
    else:
        mixture.case = 4
        mixture.excess = thousandths(base - acid)
        mixture.main = (base - acid) / mixture.total
        mixture.hydroxide_value = -logarithm(mixture.main)
        mixture.value = 14.0 - mixture.hydroxide_value
    return mixture


def silver(sample, added):
    """The case is found by comparing doubles: 14 mL to 1.4 mol/L make an excess."""
    mixture = Mixture(sample, added, digits=2, case=2)
    chloride, silver_amount = mixture.sample_amount, mixture.added_amount
    if added == 0:
        return mixture
    if silver_amount < chloride:
        mixture.main = (chloride - silver_amount) / mixture.total
        mixture.ion = KL / mixture.main
    elif silver_amount == chloride:
        mixture.case = 3
        mixture.ion = math.sqrt(KL)
    else:
        mixture.case = 4
        mixture.excess = silver_amount - chloride
        mixture.ion = mixture.excess / mixture.total
    mixture.value = 0.8 - 0.059 * logarithm(1 / mixture.ion)
    return mixture


def mixture_of(kind, sample, added):
    return weak(sample, added) if kind is WEAK else silver(sample, added)
