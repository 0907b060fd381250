"""A learner at one task: what is done becomes script lines, with what has to come of it."""

from kinds import DEMO_CONCENTRATION, LAST_VOLUME, REQUIRED_POINTS, WEAK
from models import mixture_of
from number_texts import fixed, number
from script_writer import ScriptWriter
from steps import answers
from texts import MARKS, POINT_DONE, quoted


class Learner(ScriptWriter):
    leaving_result = "click bar_Buttons"

    def __init__(self, kind, concentration, title, *, required=False, demo=False, brief=False,
                 before_start=(), sign=",", hears=True):
        super().__init__(title)
        self.kind = kind
        self.concentration = DEMO_CONCENTRATION if demo else concentration
        self.required = required
        self.demo = demo
        self.brief = brief  # looks at the numbers more than at the form
        self.sign = sign
        self.hears = hears
        self.say("name Mia", *before_start, *(["locale point"] if sign == "." else []), "start")
        self.begin_anew()

    def begin_anew(self):
        self.added = 0  # mL
        self.points = self.wrong = self.given = self.helped = 0
        self.sample_kept = False

    def expect_signal(self, which):
        if self.hears:
            self.say(f'expect sound "signal {which}"')

    def choose_task(self, *choices):
        """From the start dialog to the button of the task."""
        if self.demo:
            self.say("choose SSTab1 2", "click " + self.kind.demo_button)
            return
        self.say("choose SSTab1 3", f"choose lst_Mol {self.concentration:.1f}")
        if not self.required:
            self.say("check opt_NeedCalc off")
        self.say(*choices, "click " + self.kind.button)

    def enter(self, *choices):
        self.choose_task(*choices)
        if self.kind.start_form:
            self.say("expect form " + self.kind.start_form, "expect form.Accepted == false")
            self.say("click bar_Buttons")
        self.say("expect form " + self.kind.form, "expect nobox")
        asked = REQUIRED_POINTS[self.concentration] if self.required or self.demo else []
        self.expect("session.SessionConcentration", f"{self.concentration:g}")
        self.expect("session.SessionDemo", self.demo)
        self.expect("session.SessionRequiredPoints", ",".join(map(str, asked)))

    def pipette(self, look=True):
        self.say("click ctl_Button1", "settle", "expect form.vVol == 10")
        if look:
            self.look_at_sample()

    def look_at_sample(self):
        count = self.mixture().sample_particles
        if self.kind is WEAK:
            self.expect("beaker.countsort(10)", count)
            self.expect("beaker.count", count)
        else:
            self.expect("beaker.countsort(3)", count)
            self.expect("beaker.countsort(5)", count)
            self.expect("beaker.count", 2 * count)

    def dose(self, count=1, look=True):
        for _ in range(count):
            self.added += 1
            self.say("click ctl_Button3", "settle")
            if look:
                self.expect("form.vVol", 10 + self.added)

    def dose_to(self, added):
        self.dose(added - self.added, look=False)
        self.say(f"# {added} mL")

    def mixture(self):
        return mixture_of(self.kind, self.concentration, self.added)

    def answers(self):
        return answers(self.kind, self.mixture(), self.sign)

    def quit(self):
        self.say("expect nobox", "expect noreport", "menu mnu_FileQuit", "expect ended")

    def answer_directly(self, answer=None, press="key ENTER"):
        self.say("click but_Calc")
        self.visible("frm_CalcDirect")
        self.expect("txt_Ph.focus", True)
        self.type_directly(answer, press)

    def type_directly(self, answer=None, press="key ENTER"):
        """A right answer in the open frame; what is right unless an answer is given."""
        mixture = self.mixture()
        answer = answer or mixture.shown
        scale = 10.0**mixture.digits
        if round(scale * number(answer)) != round(scale * mixture.now):
            raise ValueError(f"{answer} is wrong at {self.added} mL")
        self.say("type txt_Ph " + answer, press)
        self.expect_signal(2)
        self.hidden(self.kind.form + ".frm_CalcDirect")
        self.point_done(mixture.now)
        self.expect(self.kind.form + ".lab_pH.text", self.reading())
        self.task_done()

    def reading(self):
        """What the form shows behind a right direct answer."""
        return fixed(self.mixture().now, 3, self.sign) if self.kind is WEAK else "?"

    def fail_directly(self, text):
        """A wrong answer in the open frame; the tutor's help is refused."""
        self.wrong += 1
        self.say("type txt_Ph " + text, "answer no", "key ENTER")
        self.expect_signal(1)

    def expect_direct_question(self):
        self.say('expect box yesno "" ' + quoted(self.kind.direct_question))

    def expect_series(self, value):
        self.expect("series(1).count", self.points)
        self.expect(f"series(1).x({self.points})", self.added)
        self.expect_near(f"series(1).y({self.points})", value)

    def point_done(self, value):
        self.points += 1
        self.say("expect box info Punktberechnung " + quoted(POINT_DONE.format(self.points)))
        self.say(f"expect report progress {self.points} {self.wrong}")
        self.expect_series(value)
        form = self.kind.form
        self.expect(form + ".lab_punktegerechnet.text", self.points)
        self.expect(form + ".lab_solveuse.text", self.given)
        self.expect(form + ".lab_helpused.text", self.helped)
        if self.wrong:
            self.expect(form + ".Lab_Vallmista.text", self.wrong)

    def task_done(self):
        """Behind the point at the last mL the result comes up."""
        if self.added != LAST_VOLUME or self.demo:
            return
        score = 200 * min(5, self.points) - 10 * self.given - 5 * self.helped
        mark, praise, sound = next(row[1:] for row in MARKS if score >= row[0])
        self.say("expect form frm_DialogDone")
        self.expect("form.Score", score)
        self.expect("form.Mark", mark)
        self.expect("lab_Mark.text", praise)
        self.expect("lab_Points.text", self.points)
        self.expect("lab_Wrong.text", f"{self.wrong} mal")
        self.expect("lab_HelpUsed.text", f"{self.helped} mal")
        self.expect("lab_SolveUsed.text", f"{self.given} mal")
        self.say(f"expect report result {score} {mark} {quoted(praise)}")
        if self.hears:
            self.say("expect sound " + sound)
        self.say(self.leaving_result)
