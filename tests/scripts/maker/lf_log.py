"""The titration in logarithms as a demo, with points at volumes that are typed."""

from lf_demo import look_at_demo
from lf_guided import ALL_AT_ONCE, ROWS, SUM, TO_BE_WORKED_OUT
from lf_kinds import LOG
from lf_log_learner import QUESTION, LogLearner
from texts import quoted

REFUSED = ("abc", "-1", "-0,001", "1000,5", "1001", "1e9", "1e999", "12 mL", "1,2,3", " ")


def start(title, look=False, **options):
    learner = LogLearner(title, **options)
    learner.enter()
    if look:
        look_at_demo(learner)
    learner.expect("but_AddPoint.enabled", False)
    learner.pipette(look=look)
    learner.expect("but_AddPoint.enabled", True)
    return learner


def points():
    learner = start("Strong acid in logarithms: before, at and behind the equivalence, "
                    "and 12.5 mL typed.", look=True)
    learner.expect_text("but_AddPoint.text", "Zusätzlichen Punkt rechnen und einzeichnen")
    for series, name in enumerate(LOG.series_names(1.0), 1):
        learner.expect_text(f"series({series}).name", name)
    learner.show_point(at_once=False)
    learner.dose(5)
    learner.show_point(at_once=True)
    learner.dose(4)
    learner.show_point(at_once=False)
    learner.dose()
    learner.show_point(at_once=False)
    learner.dose()
    learner.show_point(at_once=True)
    learner.add_typed("12,5")
    learner.dose(9)
    learner.show_point(at_once=False)
    learner.expect("form.vTaskStep", 3)
    learner.add_typed("15.25", at_once=True)
    learner.add_typed("2,75")
    learner.add_typed("10", at_once=True)
    learner.add_typed("20")
    learner.compare_curves()
    learner.nothing_counted()
    learner.quit()
    return learner.lines


def point_locale():
    learner = start("Strong acid in logarithms with a decimal point.", sign=".")
    learner.show_point(at_once=False)
    learner.dose(4)
    learner.show_point(at_once=True)
    learner.add_typed("12,5")
    learner.add_typed("9.25", at_once=True)
    learner.refuse('text "1.000,5"', told=True)
    learner.quit()
    return learner.lines


def typed_volumes():
    learner = start("Strong acid in logarithms: typed volumes in any order stand sorted in the "
                    "series, the borders included.")
    for text in ("1000", "9,999", "0,5", "10,001", "7*10^0", "3", "3", "12,5", "11", "0"):
        learner.add_typed(text, at_once=text not in ("9,999", "0"))
    learner.dose(2)
    learner.show_point(at_once=False)
    learner.nothing_counted()
    learner.quit()
    return learner.lines


def refused_volumes():
    learner = start("Strong acid in logarithms: what is no volume opens nothing.")
    learner.refuse("cancel", told=False)
    learner.refuse('text ""', told=False)
    for text in REFUSED:
        learner.refuse("text " + quoted(text), told=True)
    learner.dose(3)
    learner.refuse('text "x"', told=True)
    learner.refuse("cancel", told=False)
    learner.show_point(at_once=True)
    learner.quit()
    return learner.lines


def moments():
    """Refused while the pipette runs, while it drops, while the frame is open."""
    learner = LogLearner("Strong acid in logarithms: a further point is asked for in quiet "
                         "moments only.")
    learner.enter()
    learner.expect("but_AddPoint.enabled", False)
    learner.say("click ctl_Button1", "wait 2", "expect session.SessionBusy == true",
                "expect but_AddPoint.enabled == false", "settle",
                "expect but_AddPoint.enabled == true")
    learner.warned_at = 0
    learner.say("answer no", "click ctl_Button3", "wait 0.1",
                "expect session.SessionBusy == true", "expect but_AddPoint.enabled == false")
    learner.say("settle", "expect box yesno * *")
    learner.added = 1
    learner.say("# the drops are still in the air", "click ctl_Button3",
                "until session.SessionBusy == false", "expect drops.count != 0",
                "answer text 12,5", "click but_AddPoint", "until frm_Calc.visible == true 15")
    learner.added = 2
    learner.say(QUESTION, "expect box.default == 2", "expect drops.count == 0")
    learner.typed = 12.5
    learner.opened_calculation()
    learner.expect("but_AddPoint.enabled", False)
    learner.say("mouse pic_Above 150 100")
    learner.expect("form.vVol", 12)
    learner.show_step()
    learner.expect("but_AddPoint.enabled", False)
    while not learner.finished:
        learner.show_step()
    learner.expect("but_AddPoint.enabled", False)
    learner.close_frame()
    learner.dose()
    learner.show_point(at_once=True)
    learner.quit()
    return learner.lines


def repeated():
    """Litres are held against mL: only 0 mL counts as shown already."""
    learner = start("Strong acid in logarithms: a second time at 0 mL leaves the frame as it "
                    "stood, a second time elsewhere doesn't.")
    learner.show_point(at_once=False)
    learner.say("# 0 mL again: no row comes, what isn't worked out counts as 0")
    learner.ask("text 0")
    learner.say("expect frm_Calc.visible == true", "expect form.AddPointActive == true")
    for field in learner.fields:
        learner.expect(f"txt_Calc({field}).text", "")
    for row in ROWS:
        learner.expect(f"lab_LFErg({row}).text", TO_BE_WORKED_OUT)
    learner.hidden("but_CalcStep(1)", f"but_CalcStep({ALL_AT_ONCE})", "but_AchtungRW")
    learner.visible(f"but_CalcStep({SUM})")
    learner.typed, learner.step = 0.0, SUM
    learner.results = {row: TO_BE_WORKED_OUT for row in ROWS}
    learner.say(f"click but_CalcStep({SUM})")
    learner.finish()
    learner.close_frame()
    learner.dose(3)
    learner.show_point(at_once=True)
    learner.add_typed("3")
    learner.add_typed("3", at_once=True)
    learner.quit()
    return learner.lines


def scripts():
    yield "lf_log_points", points()
    yield "lf_log_typed", typed_volumes()
    yield "lf_log_point_locale", point_locale()
    yield "lf_log_refused", refused_volumes()
    yield "lf_log_moments", moments()
    yield "lf_log_repeated", repeated()
