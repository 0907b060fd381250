"""The required points, each step by step, and what happens when one is left out."""

from guided import GuidedLearner
from kinds import CONCENTRATIONS, KINDS, LAST_VOLUME, REQUIRED_POINTS, WEAK, two_digits
from steps import LAST
from texts import POINT_PENDING, quoted

DUE, DUE_EDGE = "#c0ffc0", "#008000"
BURETTE = ("click ctl_Button3", "mouse pic_Above 150 100")
PENDING_BOX = 'expect box ok "" ' + quoted(POINT_PENDING)


def expect_due(learner, due):
    learner.say(f"expect but_Calc.bordercolor {'==' if due else '!='} {DUE}")


def calculate_in_turn(learner):
    """By Return and by click, in turn."""
    learner.calculate()
    for step in learner.steps():
        learner.right(by_click=step % 2 == 0 and step != LAST)


def required(kind, concentration):
    learner = GuidedLearner(kind, concentration, f"{kind.title} of {concentration:.1f} mol/L: "
                            "the required points, each step by step, to the best mark.",
                            required=True, brief=True)
    learner.enter()
    learner.pipette()
    expect_due(learner, kind is WEAK)
    asked = REQUIRED_POINTS[concentration]
    for added in range(LAST_VOLUME + 1):
        if added > 0:
            learner.dose()
            expect_due(learner, added in asked)
        if added not in (*asked, LAST_VOLUME) or (added == 0 and kind is not WEAK):
            continue
        learner.say(f"# {added} mL")
        if added in asked and added < LAST_VOLUME:
            learner.say("click ctl_Button3", PENDING_BOX)
            learner.expect("form.vVol", 10 + added)
        calculate_in_turn(learner)
    learner.quit()
    return learner.lines


def expect_refused(learner):
    for click in BURETTE:
        learner.say(click, PENDING_BOX)
        learner.expect("form.vVol", 10 + learner.added)
        learner.expect("form.sClicks", learner.added)
        learner.say("expect session.SessionBusy == false", "expect drops.count == 0")


def expect_due_edges(learner):
    learner.expect("but_Calc.bordercolor", DUE)
    learner.expect("but_Calc.bordercolor2", DUE_EDGE)


def first_ml(learner):
    if learner.kind is WEAK:
        expect_due_edges(learner)
        expect_refused(learner)
        learner.answer_directly()
        learner.dose()
        return
    # Without silver there is nothing to calculate: the click gives the first mL, required or not.
    expect_due(learner, False)
    learner.say("click but_Calc", "settle", "expect nobox")
    learner.added = 1
    learner.expect("form.vVol", 11)
    learner.expect("form.sClicks", 1)


def wrong_in_open_frame(learner):
    """A wrong answer isn't enough, and the open frame keeps the burette from dropping."""
    learner.say("click but_Calc")
    learner.fail_directly("3")
    learner.expect_direct_question()
    learner.say("click ctl_Button3", "expect nobox")
    learner.expect("form.vVol", 11)
    learner.expect("form.vWrong", 1)
    learner.type_directly()


def pending(kind):
    learner = GuidedLearner(kind, 1.0, kind.title
                            + ": required points are asked for before the next mL.",
                            required=True, brief=True)
    learner.enter()
    learner.pipette()
    first_ml(learner)
    expect_due_edges(learner)
    expect_refused(learner)
    wrong_in_open_frame(learner)
    learner.dose(4)
    expect_due(learner, True)
    expect_refused(learner)
    learner.calculate()
    for _ in learner.steps():
        learner.right()
    learner.say("expect nobox")
    learner.dose(4)
    expect_refused(learner)
    learner.answer_directly()
    learner.dose()
    expect_refused(learner)
    learner.quit()
    return learner.lines


def pending_other(kind):
    """What the learner calculates beside the required points doesn't count for them."""
    learner = GuidedLearner(kind, 0.6, kind.title
                            + ": a point calculated at a volume that nobody asked for "
                            "opens nothing.", required=True, brief=True)
    learner.enter()
    learner.pipette(look=False)
    if kind is WEAK:
        learner.answer_directly()
    learner.dose()
    learner.answer_directly()
    learner.dose()
    expect_due(learner, False)
    learner.answer_directly()
    learner.dose()
    expect_due(learner, True)
    learner.say("click ctl_Button3", PENDING_BOX)
    learner.answer_directly()
    learner.dose(2)
    learner.quit()
    return learner.lines


def scripts():
    for kind in KINDS:
        for concentration in CONCENTRATIONS:
            yield f"{kind.name}_required_{two_digits(concentration)}", required(kind, concentration)
        yield kind.name + "_pending", pending(kind)
        yield kind.name + "_pending_other", pending_other(kind)
