"""The conductometric demos: by single clicks, by one click, and what they warn of."""

from demo import QUESTION_BOX
from kinds import DEMO_CONCENTRATION, LAST_VOLUME
from lf_guided import ALL_AT_ONCE, SUM, VOLUME, LfLearner
from lf_kinds import MEASURED
from required import DUE

WARNED_AT = (10, 11)  # mL
WARNING = "Achtung!<br>Neuer Rechenweg!"
UNTOUCHED = ("vPoints", "vWrong", "vHelpUsed", "vSolveUsed")


class DemoLearner(LfLearner):
    """Watches; everything is filled in."""

    first_series = 1  # the one that decides on the first warning

    def __init__(self, kind, title, **options):
        super().__init__(kind, DEMO_CONCENTRATION, title, demo=True, **options)

    def begin_anew(self):
        super().begin_anew()
        self.warned_at = None

    def pipette(self, look=True):
        super().pipette(look)
        self.expect("but_Calc.bordercolor", DUE)

    def recorded(self):
        return len(self.record)

    def warns(self):
        if self.added == 0 and self.recorded() == 0:
            return True
        return self.added in WARNED_AT and self.warned_at != self.added

    def dose(self, count=1, look=True):
        for _ in range(count):
            if self.warns():
                self.warned_at = self.added
                self.say("answer no", "click ctl_Button3", QUESTION_BOX, "settle")
            else:
                self.say("click ctl_Button3", "settle", "expect nobox")
            self.added += 1
            self.expect("form.vVol", 10 + self.added)
        self.expect("but_Calc.bordercolor", DUE)

    def stop_dosing(self):
        """The warning heeded: nothing drops, and at 10 and 11 mL it comes once."""
        if not self.warns():
            raise ValueError(f"no warning at {self.added} mL")
        self.warned_at = self.added
        self.say("answer yes", "click ctl_Button3", QUESTION_BOX)
        self.expect("form.sClicks", self.added)
        self.expect("form.vVol", 10 + self.added)
        self.say("expect drops.count == 0", "expect session.SessionBusy == false")

    def look_at_aids(self):
        nothing_added = self.nothing_added()
        self.expect(f"but_CalcStep({ALL_AT_ONCE}).visible", not nothing_added)
        self.expect(f"but_CalcStep({ALL_AT_ONCE}).text", "'one' - Klick")
        self.expect("but_AchtungRW.visible", nothing_added)
        self.expect("but_AchtungRW.text", WARNING)

    def nothing_added(self):
        return self.added == 0

    def show_step(self, by_click=True):
        self.press(by_click)
        self.fill(self.step)
        if self.step == SUM:
            self.expect_fields()
            self.finish()
            return
        self.go_to(self.step + 1)
        self.expect_fields()
        self.hidden(f"but_CalcStep({ALL_AT_ONCE})")

    def show_at_once(self):
        self.say(f"click but_CalcStep({ALL_AT_ONCE})")
        for step in range(VOLUME, SUM):
            self.fill(step)
            self.reach(step + 1)
        self.expect("form.sStep", SUM)
        self.expect("form.vAutoRun", True)
        self.expect_fields()
        self.look_around(VOLUME)
        self.hidden(f"but_CalcStep({ALL_AT_ONCE})")
        self.say("expect nobox", "expect nosound")
        self.expect(f"series({self.first_series}).count", self.recorded())
        self.show_step()

    def show_point(self, at_once):
        self.say(f"# {self.added} mL, {'one click' if at_once else 'single clicks'}")
        self.calculate()
        self.look_at_aids()
        if at_once:
            self.show_at_once()
        else:
            for step in self.steps():
                self.show_step(by_click=step % 2 == 0)
        self.close_frame()

    def nothing_counted(self):
        for counter in UNTOUCHED:
            self.expect("form." + counter, 0)
        self.say("expect noreport", "expect nosound", "expect nobox")


def look_at_demo(learner):
    learner.expect("but_Calc.text", "Demo")
    learner.expect("ctl_Button2.text", "Demo")
    learner.hidden("frm_Score", "but_Calc", "ctl_Button2", "ctl_Button3")
    learner.expect("lab_Step(1).text",
                   f"Klick auf {' ' * 31},um dir den Rechenweg demonstrieren zu lassen")


def demo(kind):
    learner = DemoLearner(kind, kind.title + " as a demo: single clicks and one click, with the "
                          "warnings; nothing is counted and no result comes.")
    learner.enter()
    look_at_demo(learner)
    learner.pipette()
    learner.stop_dosing()
    learner.stop_dosing()
    learner.show_point(at_once=False)
    learner.dose()
    learner.show_point(at_once=True)
    learner.dose(4)
    learner.show_point(at_once=False)
    learner.dose(5)
    learner.show_point(at_once=True)
    learner.stop_dosing()
    learner.dose()
    learner.show_point(at_once=True)
    learner.dose()
    learner.show_point(at_once=False)
    learner.compare_curves()
    learner.dose(LAST_VOLUME - learner.added)
    learner.show_point(at_once=True)
    learner.expect("form.vTaskStep", 3)
    learner.nothing_counted()
    learner.quit()
    return learner.lines


def demo_from_the_middle(kind):
    """Nothing shown at 0 mL, and the warning refused everywhere."""
    learner = DemoLearner(kind, kind.title + " as a demo: the warnings are passed over, single "
                          "clicks everywhere.")
    learner.enter()
    learner.pipette(look=False)
    learner.dose(10)
    learner.show_point(at_once=False)
    learner.dose(3)
    learner.show_point(at_once=False)
    learner.dose()
    learner.show_point(at_once=True)
    learner.nothing_counted()
    learner.quit()
    return learner.lines


def scripts():
    for kind in MEASURED:
        yield f"lf_{kind.name}_demo", demo(kind)
        yield f"lf_{kind.name}_demo_late", demo_from_the_middle(kind)
