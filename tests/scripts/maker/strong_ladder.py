"""The strong acid's ladder of help: at 5 mL every step is wrong until the tutor fills it in."""

from strong import DOSE, opening
from texts import HELP_QUESTION, NUMBERS_QUESTION, REMINDER_IN_LINES, quoted

DIRECT_QUESTION = (
    "Der von Dir errechnete pH-Wert ist leider falsch! "
    "Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
)
CHOICE_QUESTION = "Das ist leider immer noch falsch! Soll ich für dich das Richtige anklicken?"
CHOICE, LAST = 7, 12
WRONG = "77"


class Ladder:
    def __init__(self):
        self.lines = []
        self.wrong = self.given = 0

    def say(self, *lines):
        self.lines += lines

    def expect_box(self, step, box):
        self.wrong += 1
        self.say(f"click but_CalcStep({step})", f"expect report progress 0 {self.wrong}")
        self.say('expect sound "signal 1"', box, f"expect form.vWrong == {self.wrong}")

    def type_wrong(self, step, wrong):
        if step != CHOICE:
            self.say(f"type txt_Calc({step}) {wrong}")

    def remind(self, step, wrong=WRONG):
        self.type_wrong(step, wrong)
        self.expect_box(step, 'expect box ok "" ' + quoted(REMINDER_IN_LINES))

    def ask(self, step, wrong, question, reply):
        self.type_wrong(step, wrong)
        self.say("answer " + reply)
        self.expect_box(step, f'expect box yesno "" {quoted(question)}')

    def offer(self, step, reply, wrong=WRONG):
        """The numbers are offered, which counts whether they are taken or not."""
        self.given += 1
        self.ask(step, wrong, CHOICE_QUESTION if step == CHOICE else NUMBERS_QUESTION, reply)
        self.say(f"expect form.vSolveUsed == {self.given}")

    def climb(self, step, filled):
        """A reminder, the numbers refused, the numbers taken."""
        self.remind(step)
        self.offer(step, "no")
        self.offer(step, "yes")
        if step != CHOICE:
            self.say(f'expect txt_Calc({step}).text == "{filled}"')
        self.say(f"click but_CalcStep({step})")
        if step != LAST:
            self.say("expect form.vTries == 0")

    def open_rung(self, step, wrong, detail, *looks):
        self.remind(step, wrong)
        self.say(*looks)
        self.ask(step, wrong, HELP_QUESTION, "yes")
        self.say(f"expect form.{detail} == true")

    def expect_step(self, step, *looks):
        self.say(f"expect form.sStep == {step}", *(f"expect {look}" for look in looks))


def wrong_answer(ladder):
    ladder.wrong += 1
    ladder.say("click but_Calc", "type txt_Ph 3", "answer yes", "click but_CalcDone")
    ladder.say('expect sound "signal 1"', 'expect box yesno "" ' + quoted(DIRECT_QUESTION))
    ladder.say("expect form.vWrong == 1", "expect frm_CalcDirect.visible == false")
    ladder.say("expect frm_Calc.visible == true")
    ladder.expect_step(3, "but_CalcStep(3).visible == true", "txt_Calc(3).focus == true",
                       "txt_Calc(1).visible == false", "lab_CalcStep(0).visible == true",
                       "lab_Calc(5).visible == false")


def acid(ladder):
    ladder.open_rung(3, "0,5", "vDetailAcid", "expect form.vTries == 1",
                     "expect form.vMismatch == 0")
    ladder.say("expect form.vTries == 0")
    ladder.expect_step(1, "txt_Calc(1).visible == true", "lab_Calc(0).visible == true")
    ladder.climb(1, "1")
    ladder.expect_step(2)
    ladder.climb(2, "0.01")
    ladder.expect_step(3, 'lab_Calc(5).term == "1 * 0.01"', "lab_Calc(5).visible == true")
    ladder.climb(3, "0,01")
    ladder.expect_step(6)


def base(ladder):
    ladder.open_rung(6, "1", "vDetailBase")
    ladder.expect_step(4)
    ladder.climb(4, "1")
    ladder.expect_step(5)
    ladder.climb(5, "0,005")
    ladder.expect_step(6, 'lab_Calc(10).term == "1 * 0,005"')
    ladder.climb(6, "0,005")
    ladder.expect_step(CHOICE)


def choice(ladder):
    ladder.say("click opt_Calc(1)")
    ladder.climb(CHOICE, None)
    ladder.say("expect opt_Calc(0).checked == true", "expect opt_Calc(1).checked == false")
    ladder.expect_step(10)


def concentration(ladder):
    ladder.open_rung(10, "2", "vDetailConc", "expect form.vTries == 1")
    ladder.expect_step(8, 'lab_Calc(16).term == "n(H3O+) = nµV(S) - nµZ(OH)"',
                       'lab_CalcStep(3).text == "4. Konzentration der Säure neu berechnen"')
    ladder.climb(8, "0,005")
    ladder.expect_step(9)
    ladder.climb(9, "0,015")
    ladder.expect_step(10, "lab_Calc(19).visible == true")
    concentration_counts_anew(ladder)


def concentration_counts_anew(ladder):
    """At this step the tries begin anew behind each question."""
    ladder.remind(10, "2")
    ladder.given += 1
    ladder.ask(10, "2", NUMBERS_QUESTION, "no")
    ladder.say("expect form.vTries == 0", f"expect form.vSolveUsed == {ladder.given}")
    ladder.remind(10, "2")
    ladder.offer(10, "yes", "2")
    ladder.say('expect txt_Calc(10).text == "0,333"', "click but_CalcStep(10)")
    ladder.expect_step(LAST, "lab_CalcStep(4).visible == true",
                       'lab_Calc(24).term == "pH = -log(H3O+)"')


def comparison(ladder):
    form = "frm_AppMainStrong"
    ladder.say("expect form frm_DialogphCompare", "expect box info Punktberechnung *",
               f"expect report progress 1 {ladder.wrong}",
               f"expect {form}.lab_solveuse.text == {ladder.given}",
               f"expect {form}.Lab_Vallmista.text == {ladder.wrong}",
               f"expect {form}.lab_helpused.text == 0", "expect nosound", "click ctl_CmdBar1",
               "expect form " + form, "expect frm_Calc.visible == false",
               "expect but_Calc.visible == false", "expect ctl_Button2.visible == false",
               "expect ctl_Button3.visible == true", "menu mnu_FileQuit", "expect ended")


def scripts():
    ladder = Ladder()
    ladder.say(*opening("The ladder of help at every step, at 5 mL of 1.0 mol/L: reminder, "
                        "details, numbers.", 1.0, required=False))
    ladder.say("click ctl_Button1", "settle", *DOSE * 5)
    wrong_answer(ladder)
    acid(ladder)
    base(ladder)
    choice(ladder)
    concentration(ladder)
    ladder.climb(LAST, "0,48")
    comparison(ladder)
    yield "strong_ladder", ladder.lines
