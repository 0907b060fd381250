"""All details opened and each answer typed, as different learners write the same number."""

from guided import GuidedLearner
from kinds import KINDS, SILVER, WEAK
from number_texts import fixed, number, plain
from steps import CHOICE, EXACTLY, agrees

DETAILS = {WEAK: (0.8, (0, 3, 8, 12)), SILVER: (0.6, (2, 6, 9))}  # mol/L and mL
STORES = {WEAK: (0.8, (2, 5, 8, 11, 12)), SILVER: (1.2, (1, 5, 12, 13, 14))}


def exact_spellings(filled):
    value = number(filled)
    yield filled.replace(".", ",")
    yield filled.replace(",", ".")
    if value:
        text = plain(value)
        yield plain(round(value * 1000, 9)) + "*10^-03"
        yield text + ("00" if "," in text else ",00")


def spellings(answer):
    """Ways to write an answer; not all of them are near enough."""
    value, digits, filled = answer
    if "^" in filled:
        yield from (filled, filled.replace(",", "."), "0")
    elif digits is EXACTLY:
        yield from exact_spellings(filled)
    else:
        yield from (fixed(value, digits), fixed(value, digits, "."))
        yield from (fixed(value, digits + 3, "."), fixed(value, 9))


def answer_in_turn(learner, turn):
    answer = learner.answers()[learner.step]
    right = [text for text in spellings(answer) if agrees(text, answer)]
    learner.right(right[turn % len(right)], by_click=turn % 3 != 0)


def details(kind, concentration, volumes):
    learner = GuidedLearner(kind, concentration, f"{kind.title} of {concentration:.1f} mol/L "
                            "with all details opened: each answer typed, in every case, "
                            "as learners write numbers.")
    learner.enter()
    learner.pipette()
    turn = 0
    for added in volumes:
        learner.dose_to(added)
        learner.calculate()
        for step in learner.steps():
            if learner.rung():
                learner.take_rung()
            elif step == CHOICE:
                learner.right()
            else:
                turn += 1
                answer_in_turn(learner, turn)
    learner.quit()
    return learner.lines


def look_at_kept(learner):
    learner.expect("txt_Calc(3).text", learner.written[3])
    learner.expect("form.sStep", 6)
    learner.visible("txt_Calc(3)")
    learner.expect("txt_Calc(6).focus", True)


def keep_sample(learner, point, last_but_one):
    """Switched on at the first point and off at the last but one."""
    if point == 0:
        learner.expect("opt_CalcStore.checked", False)
        learner.say("check opt_CalcStore on")
        learner.sample_kept = True
    elif point == last_but_one:
        learner.say("check opt_CalcStore off")
        learner.sample_kept = False
    else:
        learner.expect("opt_CalcStore.checked", learner.sample_kept)


def new_task(learner):
    """Nothing is kept over to the next task."""
    learner.say("menu mnu_FileNew", "expect form frm_DialogStartup")
    learner.begin_anew()
    learner.enter()
    learner.pipette(look=False)
    learner.dose(look=False)
    learner.calculate()
    learner.expect("opt_CalcStore.checked", False)


def store(kind, concentration, volumes):
    learner = GuidedLearner(kind, concentration, kind.title + ": the sample's amount is kept "
                            "over several points until the learner lets it go.")
    learner.enter()
    learner.pipette(look=False)
    for point, added in enumerate(volumes):
        learner.dose_to(added)
        learner.brief = point > 0
        learner.calculate()
        if learner.sample_kept:
            look_at_kept(learner)
        for step in learner.steps():
            if step == CHOICE:
                keep_sample(learner, point, len(volumes) - 2)
            learner.right()
    new_task(learner)
    learner.quit()
    return learner.lines


def scripts():
    for kind in KINDS:
        yield kind.name + "_details", details(kind, *DETAILS[kind])
        yield kind.name + "_store", store(kind, *STORES[kind])
