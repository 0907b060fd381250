"""Numbers as the program writes them and learners type them; rounding is half to even."""

import math
from decimal import ROUND_HALF_EVEN, Decimal


def logarithm(x):
    """To base 10, as a quotient: math.log10 differs in the last bit."""
    return math.log(x) / math.log(10) if x > 0 else 0.0


def fixed(x, digits, sign=","):
    """With so many decimals, rounded from the 15 digits that a double holds."""
    unit = Decimal(1).scaleb(-digits)
    rounded = Decimal(f"{x:.14e}").quantize(unit, rounding=ROUND_HALF_EVEN)
    return format(abs(rounded) if rounded == 0 else rounded, "f").replace(".", sign)


def plain(x, sign=","):
    """With as many digits as are needed, up to 15."""
    text = f"{x:.15g}"
    return "0" if text == "-0" else text.replace("e", "E").replace(".", sign)


def spaced(x):
    """With a point, a place for the sign in front and no zero before the point."""
    text = plain(abs(x), ".")
    return (" " if x >= 0 else "-") + (text[1:] if text.startswith("0.") else text)


def power(x, sign=","):
    """Very small numbers as "1,413*10^-05", cut and not rounded; others with three decimals."""
    text = plain(x, sign)
    if "E" not in text:
        return fixed(x, 3, sign)
    mantissa, exponent = text.split("E")
    return f"{mantissa[:5]}*10^{exponent}"


def number(text):
    """The number that a text of any of these kinds stands for; else a ValueError."""
    mantissa, _, exponent = text.partition("*10^")
    return float(mantissa.replace(",", ".")) * (10.0 ** int(exponent) if exponent else 1)


def thousandths(x):
    return round(x * 1000.0) / 1000.0
