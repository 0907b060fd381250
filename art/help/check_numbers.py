#!/usr/bin/env python3
"""Works out every formula of a help source again: check_numbers.py SOURCE.txt.

In each formula line ("$ ...") all parts that are plain arithmetic have to agree: exactly behind
"=", to the last place shown behind "≈". Prints what is wrong; the exit code is 1 then.
"""

import math
import re
import sys
from pathlib import Path

UNITS = re.compile(r"mol/L|mmol|mol|mL|L|Punkte")
PLAIN = re.compile(r"^(?:log10|\*\*|[-+*/().\d\s])+$")


def arithmetic(part):
    """The value of a part that holds numbers only, else None."""
    text = re.sub(r"(?<!\\)[*_]", "", part)
    text = re.sub(r"\^\{([^}]*)\}", r"**(\1)", text)
    text = UNITS.sub("", text).replace(",", ".").replace("−", "-").replace("·", "*")
    text = text.replace("log", "log10")
    if not PLAIN.match(text.strip()):
        return None
    return eval(text.strip(), {"__builtins__": {}}, {"log10": math.log10})


def places(part):
    """Decimals shown by a single number."""
    found = re.search(r",(\d+)", part)
    return len(found[1]) if found else 0


def agrees(sign, earlier, later, part):
    tolerance = 0.5 * 10 ** -places(part) if sign == "≈" else 1e-9
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


def main(arguments):
    lines = Path(arguments[1]).read_text(encoding="utf-8").split("\n")
    results = [faults(line[2:]) for line in lines if line.startswith("$ ")]
    messages = [message for _, found in results for message in found]
    print("\n".join(messages + ["%d results checked" % sum(count for count, _ in results)]))
    return 1 if messages else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
