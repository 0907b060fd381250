"""A learner in the conductometric tutor: the total volume, four ions, the sum."""

from guided import AROUND_CALCULATION, BEHIND_CALCULATION, KEPT
from lf_learner import LfBench
from number_texts import fixed, number, plain
from offered_lines import work_out
from texts import UNREADABLE, quoted

VOLUME, SUM = 1, 6
ROWS = (2, 3, 4, 5)
ALL_AT_ONCE = 7  # the button that shows the whole calculation
TO_BE_WORKED_OUT = "Rechnen ->"
DONE, GO_ON = "&Fertig", "&Weiter!"
DONE_ICON = r"Ico\20\Computer\Signs\Abort.ico"
GO_ON_ICON = r"Ico\20\Computer\Signs\Next.ico"
CALCULATOR_BOX = 'expect box calculator Rechner ""'


class LfLearner(LfBench):
    fields = (VOLUME, *ROWS, SUM)  # with an input
    calculators = (*ROWS, SUM)
    headings = (VOLUME, ROWS[0], SUM)  # the steps that begin under one

    def begin_anew(self):
        super().begin_anew()
        self.results = None  # of the rows, by step, while the frame is open
        self.last_caption = "Weiter!"  # of the last step's button

    def opened_calculation(self):
        self.step = self.tries = self.mismatches = 0
        self.finished = False
        self.reached = set()
        self.written = {field: "" for field in self.fields}
        self.results = {row: TO_BE_WORKED_OUT for row in ROWS}
        self.visible("frm_Calc")
        self.hidden("frm_CalcDirect", *AROUND_CALCULATION)
        for counter in ("vTries", "vMismatch"):
            self.expect("form." + counter, 0)
        self.expect("form.vAutoRun", False)
        for step in range(VOLUME, SUM):
            self.expect(f"but_CalcStep({step}).text", "D-Klick!" if self.demo else "Weiter!")
        self.expect(f"but_CalcStep({SUM}).text", self.last_caption)
        self.expect_fields()
        self.go_to(VOLUME)
        if not self.demo:
            self.hidden(f"but_CalcStep({ALL_AT_ONCE})", "but_AchtungRW")

    def expect_fields(self):
        for field, text in self.written.items():
            self.expect(f"txt_Calc({field}).text", text)
        for row, text in self.results.items():
            self.expect(f"lab_LFErg({row}).text", text)

    def reach(self, step):
        self.step = step
        self.reached.add(step)

    def look_around(self, before):
        for step in range(VOLUME, SUM + 1):
            self.expect(f"form.vStepReached({step})", step in self.reached)
            self.expect(f"but_CalcStep({step}).visible", step == self.step)
        for step in self.calculators:
            self.expect(f"but_CalcPH({step}).visible", step == self.step and not self.demo)
        for step in self.fields:
            self.expect(f"txt_Calc({step}).visible", step in self.reached)
        self.look_at_rows()
        self.expect(self.focused() + ".focus", True)

    def look_at_rows(self):
        for heading, step in enumerate(self.headings):
            self.expect(f"lab_CalcStep({heading}).visible", step in self.reached)
        for row, ion in zip(ROWS, self.kind.rows):
            shown = row in self.reached
            self.expect(f"lab_LF1({row}).visible", shown)
            self.expect(f"lab_LFErg({row}).visible", shown)
            if row in self.fields:
                self.expect(f"lab_LFVol({row}).visible", shown)
            if ion.printed:
                self.expect(f"lab_LFAeq({row}).visible", shown)
            if shown and row in self.fields:
                self.expect(f"lab_LFVol({row}).text", self.written[VOLUME])

    def type_field(self, step, text):
        self.written[step] = text
        self.say(f"type txt_Calc({step}) {text or quoted(text)}")

    def amount(self, row):
        return plain(self.mixture().amounts[row - ROWS[0]], self.sign)

    def ion(self, row):
        return self.mixture().ions[row - ROWS[0]]

    def total(self):
        return fixed(self.mixture().now, 2, self.sign)

    def offered(self, step):
        """The lines of the calculator, as the fields stand."""
        if self.kind.lines_as_asked and step == ROWS[0]:
            return []
        if step == SUM:
            worked_out = [text for text in self.results.values() if text != TO_BE_WORKED_OUT]
            return ["+".join(worked_out)]
        volume = plain(number(self.written[VOLUME]), self.sign)
        return [f"{self.written[step]} / {volume}*{self.kind.rows[step - ROWS[0]].printed}"]

    def open_calculator(self, reply, step=None, lines=None):
        step = self.step if step is None else step
        lines = self.offered(step) if lines is None else lines
        self.say("answer " + reply, f"click but_CalcPH({step})", CALCULATOR_BOX)
        self.say("expect presets" + "".join(" " + quoted(line) for line in lines))

    def take_result(self, value):
        """What the calculator gives goes beside the row, and as the sum into its field."""
        text = fixed(value, 2, self.sign)
        if self.step == SUM:
            self.written[SUM] = text
            self.expect(f"txt_Calc({SUM}).text", text)
        else:
            self.results[self.step] = text
            self.expect(f"lab_LFErg({self.step}).text", text)

    def take_line(self):
        line, = self.offered(self.step)
        self.open_calculator("preset 1")
        self.take_result(work_out(line))

    def take_value(self, value):
        self.open_calculator("value " + plain(value, self.sign))
        self.take_result(value)

    def work_out_row(self, amount=None):
        self.type_field(self.step, self.amount(self.step) if amount is None else amount)
        if self.offered(self.step):
            self.take_line()
        else:
            self.take_value(self.ion(self.step))

    def right(self, answer=None, by_click=False):
        if answer is not KEPT:
            self.answer_step(answer)
        self.press(by_click)
        self.pass_step()
        if self.finished:
            self.close_frame()

    def answer_step(self, answer):
        if self.step == VOLUME:
            self.type_field(VOLUME, answer or plain(self.mixture().volume, self.sign))
        elif self.step == SUM and answer:
            self.type_field(SUM, answer)
        elif self.step == SUM:
            self.take_line()
        else:
            self.work_out_row(answer)

    def pass_step(self):
        if self.step == SUM:
            self.finish()
            return
        self.go_to(self.step + 1)
        self.tries = 0
        self.expect("form.vTries", 0)

    def finish(self):
        """The first of the last step's two clicks."""
        self.finished = True
        value = number(self.written[SUM])
        if self.demo:
            self.say("expect nobox", "expect nosound", "expect noreport")
            self.expect_series(value)
        else:
            if self.mismatches == 0:
                self.expect_signal(2)
            self.point_done(value)
            self.task_done()
        self.say("expect form " + self.kind.form)
        self.expect("form.vLastVol", self.added)
        self.look_at_last_button(DONE, DONE_ICON)
        self.visible("frm_Calc")
        self.hidden(*AROUND_CALCULATION)

    def look_at_last_button(self, text, icon):
        self.expect(f"but_CalcStep({SUM}).text", text)
        self.expect(f"but_CalcStep({SUM}).icon", icon)

    def close_frame(self):
        self.press(by_click=len(self.record) % 2 == 0)
        self.results = None
        self.hidden("frm_Calc")
        self.look_at_last_button(GO_ON, GO_ON_ICON)
        self.last_caption = GO_ON
        for control, shown in BEHIND_CALCULATION:
            self.expect(control + ".visible", shown)
        self.say("expect nosound", "expect nobox", "expect noreport")

    def controls_return(self):
        return self.results is None

    def ions_of_point(self):
        if self.results is None:
            return super().ions_of_point()
        return tuple(number(text) for text in self.results.values())

    def near_miss(self):
        """Beside the right answer by the least that counts."""
        if self.step == VOLUME:
            return plain(self.mixture().volume + 1, self.sign)
        right = self.mixture().now if self.step == SUM else self.ion(self.step)
        return fixed(right + 0.01, 2, self.sign)

    def mistake(self):
        return self.near_miss()

    def rung(self):
        return None

    def give_wrong(self, answer):
        """In a row it is the result that counts, so the amount is right."""
        if answer is KEPT:
            return
        if self.step not in ROWS:
            self.type_field(self.step, answer)
            return
        self.type_field(self.step, self.amount(self.step))
        self.take_value(number(answer))

    def complaints(self):
        checked = self.results if self.step in ROWS else self.written
        text = checked[self.step]
        if text == "":
            return []
        if not self.is_number(text):
            return [("ok", UNREADABLE)]
        self.mismatches += 1
        return []

    def stay(self, filled):
        if filled:
            self.fill(self.step)
        self.expect_fields()
        self.expect("form.sStep", self.step)
        self.visible(f"but_CalcStep({self.step})")

    def fill(self, step):
        """What the tutor writes, on request and in the demo."""
        if step == VOLUME:
            self.written[VOLUME] = plain(self.mixture().volume, self.sign)
        elif step in ROWS:
            self.written[step] = self.amount(step)
            self.results[step] = fixed(self.ion(step), 2, self.sign)
        if step in (ROWS[-1], SUM):
            self.written[SUM] = self.total()
