"""Where the curve breaks: which points open it, and which ones the fitted lines run through."""

from lf_guided import LfLearner
from lf_kinds import SILVER, STRONG, WEAK

CASES = (  # kind, mol/L, mL, name, title
    (STRONG, 1.0, (11, 12, 13, 20), "behind", "all points lie behind the equivalence: no break."),
    (STRONG, 0.6, (6, 7, 8, 9), "at",
     "one point at the equivalence and the rest behind it: one line."),
    (WEAK, 0.8, (3, 9, 10, 11, 12), "one",
     "one point before the break, and the first behind it in neither line."),
    (WEAK, 1.2, (0, 12, 20), "three", "two points and one behind: a line before the break alone."),
    (SILVER, 1.4, (2, 6, 14, 15, 16, 17, 20), "fourteen",
     "the point at the equivalence still belongs to the part before it."),
    (SILVER, 1.0, (0, 5, 9, 10), "before", "no point behind the equivalence: no break."),
)


def points(kind, concentration, volumes, what):
    learner = LfLearner(kind, concentration, f"{kind.title} of {concentration:.1f} mol/L: {what}",
                        brief=True)
    learner.enter()
    learner.pipette(look=False)
    learner.expect_break()
    learner.compare_curves()
    for added in volumes:
        learner.dose_to(added)
        learner.answer_directly()
    learner.compare_curves()
    learner.quit()
    return learner.lines


def scripts():
    for kind, concentration, volumes, name, title in CASES:
        yield f"lf_{kind.name}_break_{name}", points(kind, concentration, volumes, title)
