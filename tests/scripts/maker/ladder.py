"""The tutor's ladder of help: at every step refused and taken, and what it costs in the end."""

from guided import KEPT, GuidedLearner
from kinds import SILVER, WEAK
from steps import CHOICE

LADDERS = (  # kind, mol/L, mL, number in the name, what the learner has before him
    (WEAK, 0.8, 0, 1, "nothing added to 0.8 mol/L"),
    (WEAK, 1.0, 4, 2, "4 mL to 1.0 mol/L"),
    (WEAK, 1.2, 12, 3, "12 mL to 1.2 mol/L, the equivalence point"),
    (WEAK, 0.6, 9, 4, "9 mL to 0.6 mol/L"),
    (SILVER, 1.0, 4, 2, "4 mL to 1.0 mol/L"),
    (SILVER, 0.8, 8, 3, "8 mL to 0.8 mol/L, the equivalence point"),
    (SILVER, 1.2, 15, 4, "15 mL to 1.2 mol/L"),
    (SILVER, 1.4, 14, 14,
     "14 mL to 1.4 mol/L, where the last bit of a double makes an excess of silver"),
)
MARKS = (  # kind, mol/L, points calculated with all help, all points, name, title
    (WEAK, 1.0, (5,), (0, 5, 10, 20), "helped",
     "help and given numbers cost points, so that four points end in a bad mark."),
    (WEAK, 0.6, (0, 12), (0, 12, 20), "poor",
     "three points, two of them with all the help there is."),
    (SILVER, 1.0, (10,), (1, 5, 10, 11, 20), "helped", "help and given numbers cost nothing here."),
    (SILVER, 0.8, (), (20,), "one", "a single point, at the end."),
)


def mistakes(learner):
    """A near miss, nothing and letters; at the choice each of the wrong options."""
    if learner.step == CHOICE:
        return [option for option in range(4) if option != learner.right_option()]
    return [learner.near_miss(), "", "abc"] * 2


def climb(learner):
    step, rung = learner.step, learner.rung()
    learner.say(f"# step {step}" + (", with a rung" if rung else ""))
    wrong = iter(mistakes(learner))
    learner.fail(next(wrong))
    learner.fail(next(wrong), *(("no", "no") if rung else ("no",)), by_click=True)
    if learner.counts_anew():
        learner.fail(next(wrong))
    learner.fail(next(wrong), "yes")
    if not rung:
        learner.right(KEPT, by_click=step % 2 == 1)


def ladder(kind, concentration, added, what):
    learner = GuidedLearner(kind, concentration, f"{kind.title}, {what}: "
                            "the whole ladder at every step, refused and taken.")
    learner.enter()
    learner.pipette()
    learner.dose(added)
    learner.calculate_after_wrong("3")
    for _ in learner.steps():
        climb(learner)
    learner.quit()
    return learner.lines


def take_all_help(learner):
    learner.calculate_after_wrong("99")
    for _ in learner.steps():
        with_rung = learner.rung() is not None
        learner.take_rung()
        if not with_rung:
            learner.right(KEPT)


def mark(kind, concentration, helped, points, title):
    learner = GuidedLearner(kind, concentration, f"{kind.title}: {title}", brief=True)
    learner.enter()
    learner.pipette(look=False)
    for added in points:
        learner.dose_to(added)
        if added in helped:
            take_all_help(learner)
        else:
            learner.answer_directly()
    learner.quit()
    return learner.lines


def scripts():
    for kind, concentration, added, which, what in LADDERS:
        yield f"{kind.name}_ladder_{which}", ladder(kind, concentration, added, what)
    for kind, concentration, helped, points, name, title in MARKS:
        yield f"{kind.name}_mark_{name}", mark(kind, concentration, helped, points, title)
