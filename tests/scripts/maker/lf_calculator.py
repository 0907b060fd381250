"""The pop-up calculator of the conductometric forms: its lines, with and without the wish."""

from guided import KEPT
from lf_guided import ROWS, SUM, LfLearner
from lf_kinds import MEASURED, STRONG, WEAK
from number_texts import fixed, plain
from offered_lines import work_out

POINTS = {"strong": (0.6, (0, 4, 6, 9)), "weak": (1.4, (0, 3, 14, 17)),
          "silver": (0.8, (0, 5, 8, 12))}  # mol/L and mL
DIRECT = 0  # the button beside the direct input


def direct_lines(learner):
    """Left over from the pH forms; there are no such fields here."""
    return [f"-log({plain(learner.concentration, learner.sign)})", "14 -", "-log((10^-14)^0.5)",
            "* -log(10)"]


def take_direct_lines(learner, offered=True):
    learner.open_direct()
    learner.visible(f"but_CalcPH({DIRECT})")
    lines = direct_lines(learner) if offered else []
    learner.say("type txt_Ph 7,5")
    learner.open_calculator("cancel", DIRECT, lines)
    learner.expect("txt_Ph.text", "7,5")
    for which, line in enumerate(lines[:3], 1):
        learner.open_calculator(f"preset {which}", DIRECT, lines)
        learner.expect("txt_Ph.text", fixed(work_out(line), 3, learner.sign))
    learner.open_calculator("value 1,2345", DIRECT, lines)
    learner.expect("txt_Ph.text", fixed(1.2345, 3, learner.sign))
    learner.type_directly()


def abort(learner):
    """Leaves field and result as they were."""
    step = learner.step
    before = learner.written[SUM] if step == SUM else learner.results[step]
    learner.open_calculator("cancel")
    learner.expect(f"txt_Calc({SUM}).text" if step == SUM else f"lab_LFErg({step}).text", before)


def calculate_with_lines(learner):
    learner.calculate()
    for step in learner.steps():
        if step in ROWS:
            learner.type_field(step, "7,5")
            abort(learner)
            learner.take_value(0.126)
            abort(learner)
            learner.work_out_row()
            learner.right(KEPT)
        elif step == SUM:
            abort(learner)
            learner.take_value(1.005)
            learner.right()
        else:
            learner.right()


def every_line(kind, sign, before_start=(), choices=(), title="the lines of the calculator"):
    concentration, volumes = POINTS[kind.name]
    learner = LfLearner(kind, concentration, f"{kind.title}: {title}.", sign=sign, brief=True,
                        before_start=before_start)
    learner.enter(*choices)
    learner.pipette()
    for added in volumes:
        learner.dose_to(added)
        calculate_with_lines(learner)
    learner.dose()
    take_direct_lines(learner)
    learner.quit()
    return learner.lines


class WithoutLines(LfLearner):
    """The weak acid's form heeds the wish for no lines."""

    def offered(self, step):
        return []

    def answer_step(self, answer):
        if self.step == SUM:
            self.take_value(self.mixture().now)
        else:
            super().answer_step(answer)


def locked(before_start=(), choices=(), who="The learner"):
    learner = WithoutLines(WEAK, 1.0, who + " has switched the offered lines off: the calculator "
                           "opens empty, and the answers are checked as ever.",
                           before_start=before_start, brief=True)
    learner.enter(*choices)
    learner.pipette(look=False)
    for added in (0, 6, 12):
        learner.dose_to(added)
        learner.calculate()
        for step in learner.steps():
            if step in ROWS:
                learner.fail(learner.near_miss())
            learner.right()
    learner.dose()
    take_direct_lines(learner, offered=False)
    learner.quit()
    return learner.lines


def unreadable(title):
    """Ends at the calculator's word, which the player repeats."""
    learner = LfLearner(STRONG, 1.0, title + ": the calculator has a word for its line.",
                        brief=True)
    learner.enter()
    learner.pipette(look=False)
    return learner


def unreadable_direct_line():
    learner = unreadable("A direct line without its first number")
    learner.open_direct()
    learner.say("answer preset 4", f"click but_CalcPH({DIRECT})")
    return learner.lines


def unreadable_row():
    learner = unreadable("A row without an amount")
    learner.calculate()
    learner.right()
    learner.open_calculator("cancel", lines=[" / 100*349,8"])
    learner.say("answer preset 1", "click but_CalcPH(2)")
    return learner.lines


def scripts():
    off = ["check opt_CalcTerm off"]
    for kind in MEASURED:
        yield f"lf_{kind.name}_calculator", every_line(kind, ",")
        yield f"lf_{kind.name}_point_locale", every_line(kind, ".", title="with a decimal point")
        if kind is not WEAK:
            yield f"lf_{kind.name}_calculator_unasked", every_line(
                kind, ",", choices=off, title="the lines come here even when nobody wants them")
    yield "lf_silver_calculator_locked", every_line(
        MEASURED[2], ",", before_start=["control CALC 0"],
        title="the teacher's lock of the lines has no effect here")
    yield "lf_weak_calculator_off", locked(choices=off)
    yield "lf_weak_calculator_locked", locked(before_start=["control CALC 0"], who="The teacher")
    yield "lf_strong_calculator_direct_unreadable", unreadable_direct_line()
    yield "lf_strong_calculator_row_unreadable", unreadable_row()
