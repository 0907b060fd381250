#!/usr/bin/env python3
"""Works out the numbers of a help source again: check_numbers.py SOURCE.txt.

In each formula line ("$ ...") all parts that are plain arithmetic have to agree: exactly behind
"=", to the last place shown behind "≈", digit by digit before "…". Every other number with decimals
has to stand in such a line too. Lines that aren't printed help with that:
"//$ ..." is a formula for a number that is told without its calculation, "//= ..." lists numbers
that nothing can be calculated for. In a formula "log" is decadic and "rund" rounds to two decimals
as the program does. Prints what is wrong; the exit code is 1 then.
"""

import math
import re
import sys
from decimal import ROUND_HALF_EVEN, Decimal
from pathlib import Path

UNITS = re.compile(
    r"mol\^\{2\}/L\^\{2\}|mol/L|mS·cm\^\{2\}/mmol|mS/cm|cm\^\{3\}|mmol/mL|mmol|mol|mL|L|V|Punkte"
)
PLAIN = re.compile(r"^(?=.*\d)(?:log10|rund|\*\*|[-+*/().\d\s])+$")
FORMULA = re.compile(r"(?://)?\$ (.*)")
GIVEN = "//= "
DECIMAL = re.compile(r"(?<![\d.,])\d+[.,]\d+(?![\d]|[.,]\d)")
THOUSANDS = re.compile(r"[1-9]\d{0,2}(?:\.\d{3})+")
POWER_OF_TEN = re.compile(r"10\^\{(−?\d+)\}")


def rounded(value):
    """To two decimals, halves to the even neighbour, from the 15 digits that a double is good for."""
    return float(Decimal("%.14e" % value).quantize(Decimal("0.01"), ROUND_HALF_EVEN))


def arithmetic(part):
    """The value of a part that holds numbers only, else None."""
    text = re.sub(r"(?<!\\)[*_]", "", part)
    text = UNITS.sub("", text).rstrip(" …")
    text = re.sub(r"\^\{([^}]*)\}", r"**(\1)", text)
    text = text.replace(",", ".").replace("−", "-").replace("·", "*").replace("log", "log10")
    if not PLAIN.match(text.strip()):
        return None
    functions = {"log10": math.log10, "rund": rounded}
    return eval(text.strip(), {"__builtins__": {}}, functions)


def last_place(part):
    """What 1 in the last place shown by a single number is worth."""
    decimals = re.search(r",(\d+)", part)
    power = POWER_OF_TEN.search(part)
    exponent = int(power[1].replace("−", "-")) if power else 0
    return 10.0 ** (exponent - (len(decimals[1]) if decimals else 0))


def agrees(sign, earlier, later, part):
    if "…" in part:
        return 0 <= abs(earlier) - abs(later) < last_place(part)
    # Beside 1 the rounding of doubles, beside a small number its own size counts.
    exact = 1e-9 * min(1.0, abs(earlier) or 1.0)
    tolerance = 0.5 * last_place(part) if sign == "≈" else exact
    return abs(earlier - later) <= tolerance * (1 + 1e-9)


def faults(formula):
    """Checked pairs and the messages about those that don't agree."""
    pieces = re.split(r"([=≈])", formula)
    earlier, checked, messages = arithmetic(pieces[0]), 0, []
    for sign, part in zip(pieces[1::2], pieces[2::2]):
        value = arithmetic(part)
        if value is not None and earlier is not None:
            checked += 1
            if not agrees(sign, earlier, value, part):
                messages.append("%s: %r is not %r" % (formula, earlier, value))
        earlier = value if value is not None else earlier
    return checked, messages


def decimals_of(text):
    found = (number for number in DECIMAL.findall(text) if not THOUSANDS.fullmatch(number))
    return [number.replace(".", ",") for number in found]


def unproved(lines):
    """Messages about the numbers that no checked formula and no list accounts for."""
    proved, open_lines = set(), []
    for line in lines:
        formula = FORMULA.match(line)
        if line.startswith(GIVEN) or (formula and faults(formula[1])[0]):
            proved.update(decimals_of(line))
        elif formula or not line.startswith("//"):
            open_lines.append(line)
    return [
        "%s: nothing works it out in: %s" % (number, line)
        for line in open_lines
        for number in decimals_of(line)
        if number not in proved
    ]


def main(arguments):
    lines = Path(arguments[1]).read_text(encoding="utf-8").split("\n")
    results = [faults(found[1]) for found in map(FORMULA.match, lines) if found]
    messages = [message for _, found in results for message in found] + unproved(lines)
    print("\n".join(messages + ["%d results checked" % sum(count for count, _ in results)]))
    return 1 if messages else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
