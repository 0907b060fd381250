"""The lines that the calculator offers, some of them wrong on purpose, and their values."""

import math
import re

from kinds import WEAK
from number_texts import plain, spaced, thousandths

TOKEN = re.compile(r" *(log|[-+*/^()]|[\d.,]+)")


class NoNumber(Exception):
    """The line can't be worked out."""


def offered_lines(learner):
    lines = weak_lines if learner.kind is WEAK else silver_lines
    return lines(learner.mixture(), learner.step, learner.written,
                 lambda value: plain(value, learner.sign))


def weak_lines(mixture, step, written, number):
    acid, base = number(mixture.sample_amount), number(mixture.added_amount)
    volumes = f"{number(0.01)} + {number(mixture.added_volume)}"
    total = number(0.01 + mixture.added_volume)
    if step == 9:
        return [volumes, volumes.replace("+", "-"), f"{written[2]} + {written[4]}"]
    if step == 10:
        return [
            f"({acid}-{base} ) / {base}",
            f"({written[6]}-{written[3]}) / ({total})",
            f"({written[6]}) / ({volumes})",
            f"{written[6]}/ ({total})",
        ]
    ph, main = number(thousandths(mixture.value)), number(mixture.main)
    if step == 11:
        ratio = written[10]
        return [
            f"1/2*(14-(4,76-log({ratio})",
            f"-log({main})",
            f"14-1/2*(14-(4,76-log({ratio})",
            f"14-{ph}",
        ]
    return weak_ph_lines(mixture, written, main, ph, f"{acid}/({volumes})")


def weak_ph_lines(mixture, written, main, ph, concentration):
    acid, base = spaced(mixture.sample_amount), spaced(mixture.added_amount)
    ratio = written[10]
    return {
        1: [
            f"1/2*(4,76 - log({main}))",
            f"14 - 1/2*(14-4,76-log({main}))",
            f"14 - {ph}",
            f"-log({written[1]})",
        ],
        2: [
            f"1/2*(4,76 - log({main}))",
            f"14 - 1/2*(14- 4,76-log({main}))",
            f"4,76-log(({acid}-{base}) / {base})",
            f"4,76-log({ratio})",
        ],
        3: [
            f"1/2*(4,76 - log({main})",
            f"14 - 1/2*(14- 4,76 -log({concentration}))",
            f"14 - {ph}",
            f"4,76-log({ratio})",
        ],
        4: [
            f"1/2*(4,76 - log({main})",
            f"14 - 1/2*(14-4,76-log({ratio}))",
            f"14 - {written[11]}",
            f"14+log({main})",
        ],
    }[mixture.case]


def silver_lines(mixture, step, written, number):
    chloride, silver = number(mixture.sample_amount), number(mixture.added_amount)
    rest, excess = f"{written[3]}-{written[6]}", f"{written[6]}-{written[3]}"
    total = f"{written[2]}+{written[4]}"
    potential = f"0,8-0,059*log(1/({written[10]}))"
    return {
        8: [rest, excess, "0,8 - (10^(-9,7))^0.5", total],
        9: [total, rest, total],
        10: [
            f"({chloride} - {silver})/({number(0.01)}+{number(mixture.added_volume)})",
            f"{written[8]} / {written[9]}",
            f"{written[9]} / {written[8]}",
            f"({written[6]} - {written[3]}/({total})",
        ],
        11: [f"10^(-9,7) /{written[10]}", f"{written[10]}*10^(-9,7) /", potential],
        12: [
            potential,
            f"0,8-0,059*log(1/({written[11]}))",
            f"0,059-0,8*log(1/({written[10]}))",
        ],
    }[step]


class Calculation:
    """Works a line out: signs at its end are left off, missing brackets there are closed."""

    def __init__(self, line):
        self.tokens = self.split(line.rstrip("+-*/^ "))

    @staticmethod
    def split(line):
        tokens = TOKEN.findall(line)
        if not tokens or TOKEN.sub("", line).strip():
            raise NoNumber(line)
        return tokens

    def result(self):
        value = self.total()
        if self.tokens:
            raise NoNumber(self.tokens)
        return value

    def next(self, *wanted):
        """Takes the next token if it is one of these."""
        return self.tokens.pop(0) if self.tokens and self.tokens[0] in wanted else None

    def total(self):
        value = self.product()
        while sign := self.next("+", "-"):
            value = value + self.product() if sign == "+" else value - self.product()
        return value

    def product(self):
        value = self.signed()
        while sign := self.next("*", "/"):
            factor = self.signed()
            if sign == "/" and factor == 0:
                raise NoNumber("division by 0")
            value = value * factor if sign == "*" else value / factor
        return value

    def signed(self):
        if sign := self.next("+", "-"):
            return -self.signed() if sign == "-" else self.signed()
        base = self.atom()
        return math.pow(base, self.signed()) if self.next("^") else base

    def atom(self):
        if self.next("log"):
            value = self.bracket()
            if value <= 0:
                raise NoNumber("log of 0")
            return math.log10(value)
        if self.tokens[:1] == ["("]:
            return self.bracket()
        if not self.tokens or not self.tokens[0][0].isdigit() and self.tokens[0][0] not in ".,":
            raise NoNumber(self.tokens)
        return float(self.tokens.pop(0).replace(",", "."))

    def bracket(self):
        if not self.next("("):
            raise NoNumber(self.tokens)
        value = self.total()
        if not self.next(")") and self.tokens:
            raise NoNumber(self.tokens)
        return value


def work_out(line):
    return Calculation(line).result()
