"""Conductometric tasks without their curves: missing, broken or with too few series."""

from lf_guided import LfLearner
from lf_kinds import LOG, SILVER, STRONG, WEAK
from lf_log_learner import LogLearner
from texts import CURVE_MISSING, quoted

BROKEN = "data broken_lf_data"
CASES = (  # kind, mol/L, data folder, name, the curve is missing, title
    (STRONG, 0.6, "data nowhere", "no_data", True, "no data folder"),
    (WEAK, 1.4, "data nowhere", "no_data", True, "no data folder"),
    (SILVER, 1.0, "data nowhere", "no_data", True, "no data folder"),
    (STRONG, 1.0, BROKEN, "broken_curve", False, "a curve file that is none, and broken pictures"),
    (WEAK, 0.6, BROKEN, "short_curve", False, "a curve file with too few series"),
    (SILVER, 1.4, BROKEN, "empty_curve", False, "an empty curve file"),
    (SILVER, 0.8, BROKEN, "missing_curve", True, "the pH curve in place of a missing one"),
)


def through_start(learner, missing):
    learner.choose_task()
    if missing:
        file = learner.kind.curve_file(learner.concentration)
        learner.say('expect box ok "" ' + quoted(CURVE_MISSING.format(file)))
    learner.say("expect nobox", "expect form " + learner.kind.start_form, "click bar_Buttons",
                "expect form " + learner.kind.form)
    for series, row in enumerate(() if learner.kind is LOG else learner.kind.rows, 2):
        learner.expect_text(f"series({series}).name", "Meine " + row.ion)


def look_at_help(learner):
    learner.say("click but_Help", "expect form frm_DialogHelp", "close",
                "expect form " + learner.kind.form)


def task(kind, concentration, data, missing, what):
    learner = LfLearner(kind, concentration, f"{kind.title}: {what}, and the task can be done "
                        "all the same.", before_start=[data, "sound 2"], hears=False, brief=True)
    through_start(learner, missing)
    learner.pipette()
    for added in (0, 5, 14, 16, 17, 20):
        learner.dose_to(added)
        if added == 5:
            learner.calculate()
            for _ in learner.steps():
                learner.right()
        else:
            learner.answer_directly()
    learner.compare_curves()
    look_at_help(learner)
    learner.quit()
    return learner.lines


def log_task(data, missing):
    learner = LogLearner("Strong acid in logarithms without its curve.",
                         before_start=[data, "sound 2"])
    through_start(learner, missing)
    learner.pipette(look=False)
    learner.show_point(at_once=False)
    learner.add_typed("12,5")
    learner.compare_curves()
    look_at_help(learner)
    learner.quit()
    return learner.lines


def scripts():
    for kind, concentration, data, name, missing, title in CASES:
        yield f"lf_{kind.name}_{name}", task(kind, concentration, data, missing, title)
    yield "lf_log_no_data", log_task("data nowhere", True)
    yield "lf_log_broken_curve", log_task(BROKEN, False)
