"""The demo: single clicks where the way of calculation is new, one click elsewhere."""

from guided import OPTIONS, GuidedLearner
from kinds import DEMO_CONCENTRATION, KINDS, WEAK
from looks import look_at
from number_texts import plain, power
from steps import CHOICE, FIELDS, LAST
from texts import DEMO_QUESTION, quoted

ALL_AT_ONCE = 13  # the button that shows the whole calculation
NEW_WAYS = {"weak": (0, 1, 10, 11), "silver": (1, 10, 11)}  # mL
QUESTION_BOX = 'expect box yesno "" ' + quoted(DEMO_QUESTION)


def shown_fields(learner):
    """What the demo writes; the amounts stand there in its own spelling."""
    mixture, answers = learner.mixture(), learner.answers()
    shown = {field: answers[field].filled if field in answers else "" for field in FIELDS}
    shown[5] = shown[6] = plain(learner.added / 1000.0)
    if learner.kind is not WEAK and mixture.case == 3:
        shown[10] = power(mixture.ion)
    return shown


def expect_filled(learner):
    for field, text in learner.written.items():
        if field >= CHOICE or learner.kind is not WEAK or learner.added > 0:
            learner.expect(f"txt_Calc({field}).text", text)
    for option in OPTIONS:
        learner.expect(f"opt_Calc({option}).checked", option == learner.right_option())


def step_by_step(learner, new_way):
    first = True
    for step in learner.steps():
        learner.written = shown_fields(learner)
        learner.say(f"click but_CalcStep({step})")
        if step == LAST:
            learner.finish()
            return
        learner.go_to(step + 1)
        if first:
            expect_filled(learner)
            first = False
        learner.expect(f"but_CalcStep({ALL_AT_ONCE}).visible", not new_way)


def at_once(learner):
    learner.say(f"click but_CalcStep({ALL_AT_ONCE})")
    learner.written = shown_fields(learner)
    while learner.step < LAST:
        learner.reach(learner.step + 1)
    learner.expect("form.sStep", LAST)
    learner.expect("form.vAutoRun", True)
    learner.visible(f"but_CalcStep({LAST})")
    for step in sorted(learner.reached):
        look_at(learner, step)
    expect_filled(learner)
    learner.say(f"click but_CalcStep({LAST})")
    learner.finish()


def show_point(learner, by_single_clicks):
    new_way = learner.added in NEW_WAYS[learner.kind.name]
    way = "single clicks" if by_single_clicks else "one click"
    learner.say(f"# {learner.added} mL, {way}")
    learner.calculate()
    learner.expect("but_AchtungRW.visible", new_way)
    learner.expect("but_AchtungRW.text", "Achtung!<br>Neuer Rechenweg!")
    learner.expect(f"but_CalcStep({ALL_AT_ONCE}).visible", not new_way)
    for step in (1, CHOICE, LAST):
        learner.expect(f"but_CalcStep({step}).text", "D-Klick!")
    if by_single_clicks:
        step_by_step(learner, new_way)
    else:
        at_once(learner)


def first_points(learner):
    if learner.kind is WEAK:
        show_point(learner, True)
        learner.dose()
    else:
        first_silver(learner)
    show_point(learner, True)


def first_silver(learner):
    """The click on "Demo" at 10 mL is one on the burette, and the question comes first."""
    learner.say("answer yes", "click but_Calc", QUESTION_BOX)
    learner.expect("form.sClicks", 0)
    learner.expect("form.vVol", 10)
    learner.hidden("frm_Calc", "but_ShowMag")
    learner.say("answer no", "click but_Calc", QUESTION_BOX, "settle")
    learner.added = 1
    learner.expect("form.vVol", 11)
    learner.expect("form.sClicks", 1)
    learner.visible("but_ShowMag")


def around_equivalence(learner):
    """The question comes before a new way, and only once at a volume."""
    learner.say("answer yes", "click ctl_Button3", QUESTION_BOX)
    learner.expect("form.sClicks", 10)
    learner.expect("form.vVol", 20)
    show_point(learner, True)
    learner.dose()
    show_point(learner, True)
    learner.say("answer no", "click ctl_Button3", QUESTION_BOX, "settle")
    learner.expect("form.sClicks", 12)
    learner.added = 12
    show_point(learner, False)


def demo(kind):
    learner = GuidedLearner(kind, DEMO_CONCENTRATION, kind.title + " as a demo: single clicks "
                            "where the way is new, one click elsewhere.", demo=True)
    learner.enter()
    learner.expect("but_Calc.text", "Demo")
    learner.expect("ctl_Button2.text", "Demo")
    learner.hidden("frm_Score")
    learner.expect("lab_Step(1).text",
                   f"Klick auf {' ' * 31},um dir den Rechenweg demonstrieren zu lassen")
    learner.pipette()
    first_points(learner)
    learner.dose(4)
    learner.expect("but_Calc.bordercolor", "#c0ffc0")
    show_point(learner, False)
    learner.dose(2)
    show_point(learner, True)
    learner.dose(3)
    around_equivalence(learner)
    learner.dose(8)
    show_point(learner, False)
    for counter in ("vPoints", "vWrong", "vSolveUsed", "vHelpUsed"):
        learner.expect("form." + counter, 0)
    learner.quit()
    return learner.lines


def scripts():
    for kind in KINDS:
        yield kind.name + "_demo", demo(kind)
