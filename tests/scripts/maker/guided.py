"""A learner in the guided calculation: right answers, wrong ones, and the ladder of help."""

from kinds import ALL_RUNGS, STEP_BEHIND_RUNG, STEP_PASSED_OVER, WEAK
from learner import Learner
from looks import look_at
from number_texts import fixed, number, plain
from steps import CHOICE, EXACTLY, FIELDS, FIELDS_BEHIND_SAMPLE, LAST, agrees, route
from texts import HELP_QUESTION, NUMBERS_QUESTION, UNREADABLE, quoted

KEPT = object()  # as an answer: what stands in the field, or is chosen, already
OPTIONS = range(4)
AROUND_CALCULATION = ("ctl_Button2", "ctl_Button3", "but_Calc", "but_Help", "but_phCompare")
BEHIND_CALCULATION = (
    ("ctl_Button3", True),
    ("but_Help", True),
    ("but_phCompare", True),
    ("but_Calc", False),
    ("ctl_Button2", False),
)


class GuidedLearner(Learner):
    def calculate(self):
        """Opens the guided calculation by its own way, without a wrong answer."""
        self.say("click but_Calc")
        if not self.demo:
            self.say("click but_HelpCalc")
        self.opened_calculation()

    def calculate_after_wrong(self, answer):
        self.wrong += 1
        self.helped += self.kind.direct_help_counts
        self.say("click but_Calc", "type txt_Ph " + answer, "answer yes", "click but_CalcDone")
        self.expect_signal(1)
        self.expect_direct_question()
        self.expect("form.vWrong", self.wrong)
        self.expect("Lab_Vallmista.text", self.wrong)
        self.say("expect noreport")
        self.opened_calculation()

    def opened_calculation(self):
        self.step = self.tries = self.mismatches = 0
        self.finished = False
        self.reached = set()
        self.opened = set(ALL_RUNGS) if self.demo else set()
        self.visible("frm_Calc")
        self.hidden("frm_CalcDirect")
        self.expect("form.vTries", 0)
        self.expect("form.vMismatch", 0)
        if not self.brief:
            self.hidden(*AROUND_CALCULATION)
        self.empty_fields()
        if not self.brief:
            for option in OPTIONS:
                self.expect(f"opt_Calc({option}).checked", False)

    def empty_fields(self):
        """The first step, or with the sample's amount kept that of the burette."""
        if self.sample_kept:
            self.written.update({field: "" for field in FIELDS_BEHIND_SAMPLE})
            self.go_to(6)
        else:
            self.written = {field: "" for field in FIELDS}
            self.go_to(1)
        for field in FIELDS_BEHIND_SAMPLE if self.sample_kept else () if self.brief else FIELDS:
            # The weak demo needs the concentration at once where nothing is added.
            if not (self.demo and self.added == 0 and field == 1):
                self.expect(f"txt_Calc({field}).text", "")

    def steps(self):
        """Each step that comes up, until the point is done."""
        while not self.finished:
            yield self.step

    def reach(self, step):
        self.step = route(self.kind, step, self.mixture().case, self.opened)
        self.reached.add(self.step)

    def go_to(self, step):
        before = self.step
        self.reach(step)
        self.expect("form.sStep", self.step)
        if self.brief:
            self.visible(f"but_CalcStep({self.step})")
            self.expect(self.focused() + ".focus", True)
        else:
            self.look_around(before)

    def focused(self):
        return f"but_CalcStep({CHOICE})" if self.step == CHOICE else f"txt_Calc({self.step})"

    def look_around(self, before):
        self.expect(f"form.vStepReached({self.step})", True)
        for step in range(1, LAST + 1):
            if step in (self.step, before, self.step + 1):
                self.expect(f"but_CalcStep({step}).visible", step == self.step)
        for step in self.kind.calculators:
            if step in (before, self.step):
                self.expect(f"but_CalcPH({step}).visible", step == self.step)
        look_at(self, self.step)
        if self.step != CHOICE:
            self.visible(self.focused())
        self.expect(self.focused() + ".focus", True)

    def press(self, by_click):
        if by_click:
            self.say(f"click but_CalcStep({self.step})")
        else:
            self.say("key ENTER" + (f" but_CalcStep({CHOICE})" if self.step == CHOICE else ""))

    def right_option(self):
        return self.mixture().case - 1

    def right(self, answer=None, by_click=False):
        """A right answer to the present step: the tutor's own unless one is given."""
        if self.step == CHOICE:
            self.say(f"click opt_Calc({self.right_option()})")
            self.press(True)
        else:
            if answer is not KEPT:
                self.type_right(answer)
            self.press(by_click)
        if self.step == LAST:
            self.finish()
        else:
            self.go_to(self.step + 1)
            self.tries = 0
            self.expect("form.vTries", 0)

    def type_right(self, answer):
        expected = self.answers()[self.step]
        answer = answer or expected.filled
        if not agrees(answer, expected):
            raise ValueError(f"{answer} isn't right at step {self.step}")
        self.written[self.step] = answer
        self.say(f"type txt_Calc({self.step}) {answer}")

    def finish(self):
        value = self.mixture().value
        self.finished = True
        if self.demo:
            self.points += 1
            self.say("expect nobox", "expect nosound", "expect noreport")
            self.expect_series(value)
        else:
            if self.mismatches == 0:
                self.expect_signal(2)
            self.point_done(value)
            self.task_done()
        self.compare(value)

    def compare(self, value):
        """The dialog behind a finished point, and back."""
        self.say("expect form frm_DialogphCompare")
        self.expect_text("form.caption", self.kind.compare_caption)
        self.say("expect nosound", "click ctl_CmdBar1", "expect form " + self.kind.form)
        self.hidden("frm_Calc")
        self.expect("form.vLastVol", self.added)
        self.expect("lab_pH.text", fixed(value, 2, self.sign) + self.kind.unit)
        for control, shown in () if self.brief else BEHIND_CALCULATION:
            self.expect(control + ".visible", shown)

    def rung(self):
        """The detail that the tutor can still open at this step."""
        rung = self.kind.rungs.get(self.step)
        if self.kind is WEAK and self.step == LAST:
            rungs = {1: "vDetailStart", 2: "vDetailFinal", 3: "vDetailFinal"}
            rung = rungs.get(self.mixture().case)
        return None if rung in self.opened else rung

    def counts_anew(self):
        return self.step in self.kind.counting_anew

    def mistake(self):
        return self.mixture().case % len(OPTIONS) if self.step == CHOICE else self.near_miss()

    def near_miss(self):
        """A number beside the right one by the least that counts."""
        expected = self.answers()[self.step]
        if expected.digits is EXACTLY:
            return plain(round(expected.value + 0.00001, 9), self.sign)
        return fixed(expected.value + 10.0**-expected.digits, expected.digits, self.sign)

    def take_rung(self):
        wrong = self.mistake()
        self.fail(wrong)
        self.fail(wrong, "yes")

    def fail(self, answer, *replies, by_click=False):
        """A wrong answer, and the replies to what the tutor asks then."""
        self.give_wrong(answer)
        self.tries += 1
        self.wrong += 1
        boxes = self.complaints()
        questions, taken = self.climb(list(replies))
        self.say(*("answer " + reply for reply in replies))
        self.press(by_click)
        self.expect_failure(boxes + questions)
        if taken == "rung":
            self.open_rung()
        elif replies:
            self.stay(filled=taken == "numbers")
        self.expect_counters(asked=bool(replies))

    def give_wrong(self, answer):
        if answer is KEPT:
            return
        if self.step == CHOICE:
            self.say(f"click opt_Calc({answer})")
        else:
            self.written[self.step] = answer
            self.say(f"type txt_Calc({self.step}) {answer or quoted(answer)}")

    def complaints(self):
        """What is said about a text that is no number; a number counts as a mismatch."""
        if self.step < 5 or self.step == CHOICE or self.written[self.step] == "":
            return []
        try:
            number(self.written[self.step])
        except ValueError:
            return [("ok", UNREADABLE)]
        self.mismatches += 1
        return []

    def climb(self, replies):
        """The boxes behind this failure, and what was taken: "rung", "numbers" or nothing."""
        if self.tries < 2:
            return [("ok", self.kind.reminder)], None
        if self.counts_anew():
            self.tries = 0
        boxes = []
        if self.rung():
            boxes.append(("yesno", HELP_QUESTION))
            if replies.pop(0) == "yes":
                return boxes, "rung"
        self.given += self.kind.offers_count
        numbers = self.kind.choice_question if self.step == CHOICE else NUMBERS_QUESTION
        return [*boxes, ("yesno", numbers)], "numbers" if replies.pop(0) == "yes" else None

    def expect_failure(self, boxes):
        if self.kind.mistakes_reported:
            self.say(f"expect report progress {self.points} {self.wrong}")
        else:
            self.say("expect noreport")
        self.expect_signal(1)
        for look, text in boxes:
            self.say(f'expect box {look} "" {quoted(text)}')
        self.say("expect nobox")
        self.expect("Lab_Vallmista.text", self.wrong)

    def open_rung(self):
        rung = self.rung()
        self.opened.add(rung)
        self.tries = 0
        if self.kind is WEAK:
            self.helped += 1
        self.reached.discard(STEP_PASSED_OVER.get(rung))
        self.expect("form." + rung, True)
        self.go_to(STEP_BEHIND_RUNG[rung])

    def stay(self, filled):
        if filled and self.step == CHOICE:
            for option in OPTIONS:
                self.expect(f"opt_Calc({option}).checked", option == self.right_option())
        elif filled:
            self.written[self.step] = self.answers()[self.step].filled
            self.expect(f"txt_Calc({self.step}).text", self.written[self.step])
        self.expect("form.sStep", self.step)
        self.visible(f"but_CalcStep({self.step})")

    def expect_counters(self, asked):
        self.expect("form.vTries", self.tries)
        self.expect("form.vWrong", self.wrong)
        self.expect("form.vMismatch", self.mismatches)
        if asked:
            self.expect("form.vSolveUsed", self.given)
            self.expect("form.vHelpUsed", self.helped)
