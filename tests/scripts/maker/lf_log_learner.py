"""A learner at the form with logarithms: rows that aren't asked, points at typed volumes."""

from lf_demo import DemoLearner
from lf_guided import DONE, DONE_ICON, ROWS, VOLUME
from lf_kinds import LOG
from lf_models import logarithms
from number_texts import fixed, number, plain
from texts import quoted

EQUIVALENCE = 10  # mL, whatever the sample has
PH, POH = 2, 5  # series
USED_UP = "~ 0"
NOT_WORKED_OUT = "Rechnen -->"
TITLE = "Anderen Punkt rechnen"
QUESTION = f'expect box input {quoted(TITLE)} {quoted("Geben Sie das Volumen in Milliliter ein:")}'


class LogLearner(DemoLearner):
    first_series = PH
    fields = (VOLUME, 2, 4)
    calculators = (2, 3, 4, 5)
    headings = (VOLUME, 2)
    typed = None  # mL, while a typed volume is worked out

    def __init__(self, title, **options):
        super().__init__(LOG, title, **options)

    def begin_anew(self):
        super().begin_anew()
        self.points_of = {PH: [], POH: []}

    def recorded(self):
        return len(self.points_of[PH])

    def volume(self):
        """mL, as they come out of litres."""
        if self.typed is None:
            return self.added / 1000 * 1000
        return self.typed / 1000 * 1000

    def mixture(self):
        return logarithms(self.concentration, self.volume())

    def nothing_added(self):
        return self.volume() == 0

    def focused(self):
        return f"{'txt_Calc' if self.step in self.fields else 'but_CalcStep'}({self.step})"

    def fill(self, step):
        point = self.mixture()
        if step == VOLUME:
            self.written[VOLUME] = plain(point.volume, self.sign)
        elif step in ROWS:
            used_up = (step in (2, 3)) == point.reagent_left
            self.results[step] = NOT_WORKED_OUT if used_up else fixed(self.ion(step), 2, self.sign)
            if step in self.fields:
                self.written[step] = USED_UP if used_up else self.amount(step)

    def finish(self):
        self.finished = True
        self.say("expect nobox", "expect nosound", "expect noreport")
        self.add_point()
        self.expect("form.vLastVol", plain(self.volume(), "."))
        self.expect_active()
        self.look_at_last_button(DONE, DONE_ICON)
        self.visible("frm_Calc")

    def add_point(self):
        """The pH before the equivalence, the pOH behind it, both sorted; nothing at it."""
        volume, read_back = self.volume(), self.read_back()
        if volume < EQUIVALENCE:
            self.points_of[PH].append((volume, read_back[1]))
        elif volume > EQUIVALENCE:
            self.points_of[POH].append((volume, read_back[3]))
        self.record.append((volume, 0, *read_back))
        self.expect("form.LastVolume", plain(volume, "."))
        for series in range(1, 6):
            points = sorted(self.points_of.get(series, []), key=lambda point: point[0])
            self.expect(f"series({series}).count", len(points))
            for index, (x, y) in enumerate(points, 1):
                self.expect_near(f"series({series}).x({index})", x)
                self.expect_near(f"series({series}).y({index})", y)
            self.expect(f"series({series}).lines", 0)
        self.expect("form.BreakOpen", True)

    def read_back(self):
        """A result that says that it isn't worked out counts as 0."""
        return [number(text) if self.is_number(text) else 0 for text in self.results.values()]

    def expect_active(self):
        self.expect("form.AddPointActive", self.typed is not None)
        if self.typed is not None:
            self.expect_near("form.AddPointVolume", self.typed / 1000)

    def close_frame(self):
        super().close_frame()
        self.typed = None
        self.expect_active()
        self.expect("but_AddPoint.enabled", True)

    def ask(self, reply):
        proposal = plain(self.added / 1000 * 1000, self.sign)
        self.say("answer " + reply, "click but_AddPoint", QUESTION)
        self.expect("box.default", proposal)

    def refuse(self, reply, told):
        """The bench stays as it is."""
        self.ask(reply)
        if told:
            self.say(f"expect box ok {quoted(TITLE)} *")
        self.say("expect nobox")
        self.hidden("frm_Calc")
        self.expect_active()
        self.visible("ctl_Button3")

    def add_typed(self, text, at_once=False):
        self.say("# typed: " + text)
        self.ask("text " + quoted(text))
        self.typed = number(text)
        self.opened_calculation()
        self.expect_active()
        self.expect("but_AddPoint.enabled", False)
        self.look_at_aids()
        self.look_at_beaker()
        if at_once:
            self.show_at_once()
        else:
            for step in self.steps():
                self.show_step(by_click=step % 2 == 1)
        self.close_frame()
