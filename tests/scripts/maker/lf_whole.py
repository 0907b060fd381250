"""Whole conductometric tasks to the mark, freely and with required points."""

from kinds import CONCENTRATIONS, LAST_VOLUME, REQUIRED_POINTS, two_digits
from lf_guided import LfLearner
from lf_kinds import MEASURED
from number_texts import fixed
from required import PENDING_BOX, expect_due

LOOKED_AT = 1.0  # mol/L at which the frame is watched at every step


def free_points(concentration):
    """A few before, all around the equivalence, a few behind."""
    equivalence = round(10 * concentration)
    around = {equivalence + step for step in (-1, 0, 1, 2)}
    return sorted({0, 1, 5, 15, LAST_VOLUME, *around})


def answer_in_turn(learner, turn):
    """Directly with a comma or a point, step by step, and step by step behind a wrong answer."""
    if turn % 4 == 0:
        learner.answer_directly()
    elif turn % 4 == 2:
        learner.answer_directly(fixed(learner.mixture().now, 2, "."), "click but_CalcDone")
    else:
        learner.calculate()
        for step in learner.steps():
            learner.right(by_click=step % 2 == turn // 4 % 2)


def free(kind, concentration):
    learner = LfLearner(kind, concentration, f"{kind.title} of {concentration:.1f} mol/L: "
                        "points that the learner picks, directly and step by step.",
                        brief=concentration != LOOKED_AT)
    learner.enter()
    for series, name in enumerate(kind.series_names(concentration), 1):
        learner.expect_text(f"series({series}).name", name)
    learner.pipette()
    points = free_points(concentration)
    for added in range(LAST_VOLUME + 1):
        if added > 0:
            learner.dose()
        if added in points:
            learner.say(f"# {added} mL")
            learner.look_at_beaker()
            answer_in_turn(learner, points.index(added))
    learner.expect("form.vTaskStep", 3)
    learner.expect("form.vBurShown", False)
    learner.compare_curves()
    learner.quit()
    return learner.lines


def required(kind, concentration):
    learner = LfLearner(kind, concentration, f"{kind.title} of {concentration:.1f} mol/L: "
                        "the required points, step by step and directly, to the best mark.",
                        required=True, brief=True)
    learner.enter()
    learner.pipette()
    asked = REQUIRED_POINTS[concentration]
    turn = 1
    for added in range(LAST_VOLUME + 1):
        if added > 0:
            learner.dose()
        expect_due(learner, added in asked)
        if added not in (*asked, LAST_VOLUME):
            continue
        learner.say(f"# {added} mL")
        if added in asked and added < LAST_VOLUME:
            learner.say("click ctl_Button3", PENDING_BOX)
            learner.expect("form.vVol", 10 + added)
        answer_in_turn(learner, turn)
        turn += 1
    learner.quit()
    return learner.lines


def scripts():
    for kind in MEASURED:
        for concentration in CONCENTRATIONS:
            digits = two_digits(concentration)
            yield f"lf_{kind.name}_free_{digits}", free(kind, concentration)
            yield f"lf_{kind.name}_required_{digits}", required(kind, concentration)
