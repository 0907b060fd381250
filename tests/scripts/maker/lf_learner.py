"""A learner at a conductometric form: points in five series, the break, the fitted lines."""

from guided import AROUND_CALCULATION, BEHIND_CALCULATION, GuidedLearner
from lf_models import MODELS, fitted_line
from number_texts import fixed, number

SERIES = range(1, 6)  # the total, then the ions in the order of the rows
LINE_TOLERANCE = 1e-9
LIQUID = (153, 204, 204)
INDICATOR = (  # colour and per cent of it: acid, neutral, base
    ((255, 150, 150), 60),
    ((150, 255, 150), 30),
    ((150, 150, 255), 50),
)


def mixed(colour, percent):
    channels = (round(a + (b - a) * percent / 100) for a, b in zip(LIQUID, colour))
    return "#" + "".join(f"{channel:02x}" for channel in channels)


class LfBench(GuidedLearner):
    """Everything but the tutor's steps."""

    def begin_anew(self):
        super().begin_anew()
        self.record = []  # mL, total and ions of each point
        self.before_break = None  # how many points lie before the equivalence

    def equivalence(self):
        return 10 * self.concentration

    def mixture(self):
        return MODELS[self.kind.name](self.concentration, self.added)

    def field(self, name):
        """Of the workbench, also behind a dialog."""
        return f"{self.kind.form}.{name}"

    def look_at_beaker(self):
        """Particles, balance and labels; whole millimoles at whole mL."""
        sample, added = round(self.equivalence()), self.added
        counts = {
            "none": 0,
            "sample": sample,
            "added": added,
            "rest": max(0, sample - added),
            "excess": max(0, added - sample),
            "salt": min(sample, added),
        }
        for line, species in enumerate(self.kind.species):
            count = counts[species.count]
            trace = (species.name == "H3O+" and added >= sample
                     or species.name == "OH-" and added <= sample)
            self.expect(f"beaker.countsort({species.particle})", count)
            self.expect(f"lab_BilanzCount({line}).term", f"{'~~ ' * trace}{count} mmol")
        which = (added > sample) - (added < sample) + 1
        colour = mixed(*INDICATOR[which]) if self.kind.coloured else mixed(LIQUID, 0)
        self.expect("pic_Water.backcolor", colour)
        self.expect("lab_Vol(0).term", fixed(0.01, 3, self.sign) + " L")
        self.expect("lab_Vol(1).term", fixed(added / 1000, 3, self.sign) + " L")
        in_all = fixed((100 + added) / 1000, 3, self.sign) + " L"
        sample = f"{self.concentration:g} mol/L"
        self.expect("lab_Vol(2).term", in_all if self.kind.total_volume else sample)

    def look_at_sample(self):
        self.look_at_beaker()

    def open_direct(self):
        self.say("click but_Calc")
        self.visible("frm_CalcDirect")
        self.hidden("frm_Calc", *AROUND_CALCULATION)
        self.expect("txt_Ph.focus", True)

    def answer_directly(self, answer=None, press="key ENTER"):
        self.open_direct()
        self.type_directly(answer, press)

    def reading(self):
        """The reading field of the pH forms, which nothing fills here."""
        return fixed(0, 2, self.sign)

    def point_done(self, value):
        super().point_done(value)
        for name, shown in BEHIND_CALCULATION if self.controls_return() else ():
            self.expect(f"{self.kind.form}.{name}.visible", shown)

    def controls_return(self):
        """Behind a right direct answer at once, behind the tutor's with its last click."""
        return True

    def ions_of_point(self):
        """What goes into the series: of a direct answer what the model says."""
        ions = self.mixture().ions
        for index, value in enumerate((*ions, self.mixture().now), 1):
            self.expect_near(self.field(f"IonValues({index})"), value)
        return ions

    def expect_series(self, value):
        self.record.append((self.added, value, *self.ions_of_point()))
        self.note_break()
        number_of_points = len(self.record)
        for series in SERIES:
            self.expect(f"series({series}).count", number_of_points)
            self.expect(f"series({series}).x({number_of_points})", self.added)
            self.expect_near(f"series({series}).y({number_of_points})", self.record[-1][series])
        self.expect(self.field("LastVolume"), self.added)
        self.expect_break()
        for series in SERIES:
            self.expect_lines(series)

    def note_break(self):
        if self.before_break is not None or len(self.record) < 2:
            return
        if self.record[-2][0] <= self.equivalence() < self.added:
            self.before_break = len(self.record) - 1

    def expect_break(self):
        is_open = self.before_break is None
        self.expect(self.field("BreakOpen"), is_open)
        if not is_open:
            self.expect(self.field("BreakIndex"), self.before_break)
        for series in SERIES:
            self.expect(f"series({series}).joined", is_open)

    def fitted_lines(self, series):
        """Before the equivalence, and behind it without its first point."""
        if self.before_break is None:
            return []
        points = [(point[0], point[series]) for point in self.record]
        parts = points[:self.before_break], points[self.before_break + 1:]
        return [line for line in map(fitted_line, parts) if line]

    def expect_lines(self, series):
        lines = self.fitted_lines(series)
        self.expect(f"series({series}).lines", len(lines))
        for index, (slope, intercept) in enumerate(lines, 1):
            line = f"series({series}).line({index})"
            self.expect_near(line + ".slope", slope, LINE_TOLERANCE)
            self.expect_near(line + ".intercept", intercept, LINE_TOLERANCE)

    def compare_curves(self):
        """The comparison and back; it is told of the break."""
        self.say("click but_phCompare", "expect form frm_DialogphCompare")
        self.expect_text("form.caption", self.kind.compare_caption)
        self.expect("form.ShowBreak", self.before_break is not None)
        if self.before_break is not None:
            self.expect("form.BreakIndex", self.before_break)
        self.say("click ctl_CmdBar1", "expect form " + self.kind.form)

    def is_number(self, text):
        try:
            number(text)
        except ValueError:
            return False
        return True
