"""What learners write by mistake, and how near a direct answer has to be."""

from guided import KEPT, GuidedLearner
from kinds import KINDS, SILVER, WEAK
from number_texts import fixed
from steps import CHOICE
from texts import UNREADABLE, quoted

BAD_INPUT = {WEAK: (0.8, 11), SILVER: (0.8, 3)}  # mol/L and mL
NEAR = {WEAK: (1.0, 3), SILVER: (1.0, 12)}
DECIMALS = {2: "two", 3: "three"}
NOTHING = '""'
UNREADABLE_DIRECTLY = ("abc", "1,2,3", '"--5"', '"0,01 mol"', "1e999", '"2^-"', '"1.000,5"',
                       '"5 %"', '","', '"0x10"', '"1/2"')
WRONG_DIRECTLY = ("-1", "1E300", "0")
UNREADABLE_AT_STEPS = ("1,2,3", '"0,01 mol"', "1e999", '"1/2"')
WRONG_AT_STEPS = ("-1", "1E300")
OPENED_ON_THE_WAY = ("vDetailAcid", "vDetailBase", "vDetailConc")


def bad_direct_answers(learner):
    learner.say("click but_Calc")
    for text in (NOTHING, *UNREADABLE_DIRECTLY):
        learner.fail_directly(text)
        if text != NOTHING:
            learner.say('expect box ok "" ' + quoted(UNREADABLE))
        learner.expect_direct_question()
        learner.visible("frm_CalcDirect")
        learner.expect("txt_Ph.focus", True)
        learner.say("expect noreport")
        learner.expect("form.vWrong", learner.wrong)
        learner.expect("form.vMismatch", 0)
    for text in WRONG_DIRECTLY:
        learner.fail_directly(text)
        learner.expect_direct_question()
        learner.expect("form.vWrong", learner.wrong)
    learner.expect("form.vMismatch", len(WRONG_DIRECTLY))


def bad_answer(learner, text, stands_for):
    """One more failure of the same step; the ladder asks from the second on."""
    replies = ()
    if learner.tries >= 1:
        replies = ("no", "no") if learner.rung() else ("no",)
    learner.say(f"type txt_Calc({learner.step}) {text}")
    learner.written[learner.step] = stands_for
    learner.fail(KEPT, *replies)


def bad_answers(learner):
    bad_answer(learner, NOTHING, "")
    for text in UNREADABLE_AT_STEPS:
        bad_answer(learner, text, "letters")
    for text in WRONG_AT_STEPS:
        bad_answer(learner, text, "-1")
    learner.right()


def bad_input(kind, concentration, added):
    learner = GuidedLearner(kind, concentration, kind.title
                            + ": letters, nothing and absurd numbers in every field.", brief=True)
    learner.enter()
    learner.pipette(look=False)
    learner.dose(added, look=False)
    bad_direct_answers(learner)
    learner.say("click but_HelpCalc")
    learner.opened_calculation()
    for step in learner.steps():
        if step == CHOICE:
            learner.fail(KEPT)  # nothing is chosen
            learner.right()
        elif learner.rung() in OPENED_ON_THE_WAY:
            learner.fail("x")
            learner.fail("", "yes")
        else:
            bad_answers(learner)
    learner.quit()
    return learner.lines


def near_answers(value, digits):
    """Wrong ones, then right ones: half of the last decimal decides."""
    unit = 10.0**-digits
    if round(value / unit) % 10 == 0:
        raise ValueError(f"{value} is right with a decimal less")
    wrong = (
        fixed(value + unit, digits),
        fixed(value - unit, digits),
        fixed(value, digits - 1),
        fixed(-value, digits),
        fixed(value + 0.6 * unit, digits + 1),
    )
    right = fixed(value + 0.4 * unit, digits + 1), fixed(value - 0.4 * unit, digits + 1, ".")
    return wrong, right


def near(learner, first):
    """Two points, each with answers just beside the right one before it."""
    learner.enter()
    learner.pipette(look=False)
    for point in range(2):
        learner.dose(first + point - learner.added, look=False)
        mixture = learner.mixture()
        wrong, right = near_answers(mixture.now, mixture.digits)
        learner.say("click but_Calc")
        for text in wrong:
            learner.fail_directly(text)
            learner.expect_direct_question()
            learner.expect("form.vMismatch", learner.wrong)
            learner.say("expect noreport")
            learner.expect("form.vWrong", learner.wrong)
            learner.expect("txt_Ph.text", text)
        learner.type_directly(right[point])
    learner.quit()
    return learner.lines


def near_titled(kind, concentration, first):
    title = f"{kind.title}: a direct answer counts with {DECIMALS[kind.direct_digits]} decimals."
    return near(GuidedLearner(kind, concentration, title, brief=True), first)


def scripts():
    for kind in KINDS:
        yield kind.name + "_bad_input", bad_input(kind, *BAD_INPUT[kind])
        yield kind.name + "_direct", near_titled(kind, *NEAR[kind])
