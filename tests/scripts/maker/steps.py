"""The guided calculation: what is right at each step, and which step follows."""

from typing import NamedTuple, Optional

from kinds import WEAK
from models import SAMPLE_VOLUME
from number_texts import fixed, number, plain, power, thousandths

EXACTLY = None
CHOICE = 7
LAST = 12
FIELDS = (1, 2, 3, 4, 5, 6, 8, 9, 10, 11, 12)
FIELDS_BEHIND_SAMPLE = (4, 5, 6, 8, 9, 10, 11, 12)


class Answer(NamedTuple):
    value: float
    digits: Optional[int]  # decimals that count
    filled: str  # what the tutor writes


def rounded(value, digits, sign):
    return Answer(value, digits, fixed(value, digits, sign))


def to_three(value, sign):
    """Exactly, though the tutor writes three decimals."""
    return Answer(value, EXACTLY, fixed(value, 3, sign))


def exact(value, sign):
    return Answer(value, EXACTLY, plain(value, sign))


def amounts(mixture, sign):
    """Steps 1 to 6, alike on both forms."""
    return {
        1: exact(mixture.sample, sign),
        2: exact(SAMPLE_VOLUME, "."),
        3: exact(mixture.sample_amount, sign),
        4: exact(1.0, sign),
        5: exact(mixture.added_volume, sign),
        6: exact(mixture.added_volume, sign),
    }


def weak_results(mixture, sign):
    base, total = mixture.added_amount, mixture.total
    result = {12: rounded(mixture.value, 2, sign)}
    if mixture.case == 2:
        rest = mixture.sample_amount - base
        result[8] = to_three(rest, sign)
        result[9] = to_three(base, sign)
        result[10] = rounded(rest / base, 3, sign)
    elif mixture.case == 3:
        result[8] = to_three(base, sign)
        result[9] = to_three(total, sign)
        result[10] = rounded(base / total, 3, sign)
    elif mixture.case == 4:
        result[8] = Answer(mixture.excess, 3, plain(mixture.excess, sign))
        result[9] = Answer(total, 3, plain(total, sign))
        result[10] = rounded(mixture.main, 3, sign)
        result[11] = rounded(mixture.hydroxide_value, 2, sign)
    return result


def silver_results(mixture, sign):
    total = mixture.added_volume + SAMPLE_VOLUME
    ion = Answer(mixture.ion, 3, power(mixture.ion, sign))
    result = {12: rounded(mixture.value, 3, sign)}
    if mixture.case == 3:
        return {8: to_three(0.0, sign), 11: ion, **result}
    rest = mixture.sample_amount - mixture.added_amount
    if mixture.case == 2:
        result[8] = to_three(rest, sign)
        result[11] = ion
    else:
        rest = -rest
        result[8] = to_three(thousandths(rest), sign)
    result[9] = to_three(total, sign)
    result[10] = rounded(rest / total, 3, sign)
    return result


def answers(kind, mixture, sign):
    results = weak_results if kind is WEAK else silver_results
    return {**amounts(mixture, sign), **results(mixture, sign)}


def agrees(text, answer):
    """Whether the program has to take what a learner typed."""
    value = number(text)
    if value in (number(answer.filled), answer.value):
        return True
    if answer.digits is EXACTLY:
        return False
    scale = 10.0**answer.digits
    return round(scale * value) == round(scale * answer.value)


def weak_route(step, case, opened):
    if case == 1:
        step = {1: CHOICE, 8: LAST}.get(step, step)
    elif step == 8 and "vDetailConc" not in opened:
        step = 10
    return LAST if case in (2, 3) and step == 11 else step


def silver_route(step, case, opened):
    if case != 3 and step == 8 and "vDetailConc" not in opened:
        return 10
    if case == 3 and step == 9:
        return 11
    return LAST if case == 4 and step == 11 else step


def route(kind, step, case, opened):
    """The step that comes up when this one is asked for: those of unopened details are left out."""
    step = (weak_route if kind is WEAK else silver_route)(step, case, opened)
    if step == 1 and "vDetailAcid" not in opened:
        return 3
    if step == 4 and "vDetailBase" not in opened:
        return 6
    return step
