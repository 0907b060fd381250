"""The pop-up calculator: every line that it offers, those without a number, and none at all."""

from guided import KEPT, GuidedLearner
from kinds import SILVER, WEAK
from number_texts import fixed, plain, power
from offered_lines import NoNumber, offered_lines, work_out
from texts import quoted

BOX = 'expect box calculator Rechner ""'
AMOUNTS = frozenset(("vDetailAcid", "vDetailBase", "vDetailConc"))
CONCENTRATION = frozenset(("vDetailConc",))
NONE = frozenset()
EVERY_LINE = "every line that the calculator offers"
RUNS = (  # kind, mol/L, (mL, details opened), name, title, decimal sign
    (WEAK, 0.6,
     ((0, NONE), (2, NONE), (3, AMOUNTS), (4, CONCENTRATION), (6, CONCENTRATION), (8, NONE),
      (9, AMOUNTS)),
     "calculator", f"Weak acid: {EVERY_LINE}, in every case, worked out.", ","),
    (WEAK, 1.4, ((0, NONE), (5, AMOUNTS), (14, AMOUNTS), (16, AMOUNTS)),
     "calculator_point", f"Weak acid with a decimal point: {EVERY_LINE}.", "."),
    (SILVER, 0.8,
     ((1, NONE), (2, AMOUNTS), (3, CONCENTRATION), (8, AMOUNTS), (9, NONE), (10, AMOUNTS)),
     "calculator", f"Chloride with silver: {EVERY_LINE}, in every section, worked out.", ","),
    (SILVER, 1.4, ((3, AMOUNTS), (14, AMOUNTS), (15, AMOUNTS)),
     "calculator_point", f"Chloride with silver and a decimal point: {EVERY_LINE}.", "."),
)
WITHOUT_NUMBER = (  # kind, mol/L, mL, details opened, step, which line, what the word is about
    (WEAK, 1.0, 3, CONCENTRATION, 9, 3, "empty"),
    (WEAK, 1.0, 0, NONE, 12, 4, "unreadable"),
    (SILVER, 1.4, 14, AMOUNTS, 10, 3, "division"),
    (SILVER, 1.0, 3, NONE, 10, 2, "empty"),
    (SILVER, 1.0, 3, NONE, 10, 4, "unreadable"),
)


def result_text(learner, value, sign):
    """A result as the calculator writes it into the field."""
    is_ion = learner.kind is SILVER and learner.step == 11
    return power(value, sign) if is_ion else fixed(value, 3, sign)


def open_calculator(learner, reply, lines=(), step=None):
    learner.say("answer " + reply, f"click but_CalcPH({step or learner.step})", BOX)
    learner.say("expect presets" + "".join(" " + quoted(line) for line in lines))


def take_lines(learner):
    """Closed without a result, then every offered line that makes a number."""
    step, lines = learner.step, offered_lines(learner)
    learner.written[step] = "7"
    learner.say(f"type txt_Calc({step}) 7")
    open_calculator(learner, "cancel", lines)
    learner.expect(f"txt_Calc({step}).text", "7")
    for which, line in enumerate(lines, 1):
        try:
            value = work_out(line)
        except NoNumber:
            continue
        open_calculator(learner, f"preset {which}", lines)
        learner.written[step] = result_text(learner, value, learner.sign)
        learner.expect(f"txt_Calc({step}).text", learner.written[step])
        learner.expect(f"txt_Calc({step}).focus", True)


def calculate_with_lines(learner, opened):
    learner.calculate()
    for step in learner.steps():
        if learner.rung() in opened:
            learner.take_rung()
            continue
        if step in learner.kind.calculators:
            take_lines(learner)
        learner.right()


def answer_directly(learner):
    """No lines are offered for a direct answer."""
    text = fixed(0.5, 3, learner.sign)
    learner.say("click but_Calc")
    open_calculator(learner, "value 0,5", step=2)
    learner.expect("txt_Ph.text", text)
    learner.say("answer cancel", "click but_CalcPH(2)", BOX)
    learner.expect("txt_Ph.text", text)
    if learner.kind is WEAK:
        learner.hidden("but_CalcPH(8)")
    learner.type_directly()


def every_line(kind, concentration, points, title, sign):
    learner = GuidedLearner(kind, concentration, title, sign=sign, brief=True)
    learner.enter()
    learner.pipette(look=False)
    for added, opened in points:
        learner.dose_to(added)
        calculate_with_lines(learner, opened)
    learner.dose_to(learner.added + 1)
    answer_directly(learner)
    learner.quit()
    return learner.lines


def without_number(kind, concentration, added, opened, wanted_step, which):
    """Ends at the calculator's word, which the player repeats."""
    learner = GuidedLearner(kind, concentration, kind.title + ": the calculator has a word for an "
                            "offered line that makes no number.", brief=True)
    learner.enter()
    learner.pipette(look=False)
    learner.dose(added, look=False)
    learner.calculate()
    for step in learner.steps():
        if learner.rung() in opened:
            learner.take_rung()
        elif step == wanted_step:
            break
        else:
            learner.right()
    learner.say(f"answer preset {which}", f"click but_CalcPH({wanted_step})")
    return learner.lines


def locked(kind, added, title, before_start=(), choices=()):
    """Without offered lines the calculator opens empty."""
    learner = GuidedLearner(kind, 1.0, title + " has switched the offered lines off: "
                            "the calculator opens empty.", before_start=before_start, brief=True)
    learner.enter(*choices)
    learner.pipette(look=False)
    learner.dose(added, look=False)
    learner.calculate()
    for step in learner.steps():
        if learner.rung() in CONCENTRATION:
            learner.take_rung()
        elif step in kind.calculators:
            take_own_result(learner)
        else:
            learner.right()
    learner.quit()
    return learner.lines


def take_own_result(learner):
    value = learner.answers()[learner.step].value
    open_calculator(learner, "value " + plain(value))
    learner.written[learner.step] = result_text(learner, value, ",")
    learner.expect(f"txt_Calc({learner.step}).text", learner.written[learner.step])
    learner.right(KEPT)


def scripts():
    for kind, concentration, points, name, title, sign in RUNS:
        yield f"{kind.name}_{name}", every_line(kind, concentration, points, title, sign)
    for kind, concentration, added, opened, step, which, word in WITHOUT_NUMBER:
        lines = without_number(kind, concentration, added, opened, step, which)
        yield f"{kind.name}_calculator_says_{word}", lines
    yield "weak_calculator_locked", locked(WEAK, 13, "The learner",
                                           choices=["check opt_CalcTerm off"])
    yield "silver_calculator_locked", locked(SILVER, 6, "The teacher",
                                             before_start=["control CALC 0"])
