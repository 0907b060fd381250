"""Every row of the conductometric tutor wrong in every way, its ladder, and direct answers."""

from guided import KEPT
from lf_guided import ROWS, SUM, VOLUME, LfLearner
from lf_kinds import MEASURED, SILVER, STRONG, WEAK
from mistakes import bad_direct_answers, near
from number_texts import fixed, plain

ROWS_WRONG = (  # kind, mol/L, mL
    (STRONG, 0.8, (3, 8, 11)),
    (WEAK, 1.0, (0, 4, 13)),
    (SILVER, 1.4, (1, 14, 16)),
)
LADDERS = (  # kind, mol/L, mL: directly wrong at first
    (STRONG, 0.6, (0, 6, 20)),
    (WEAK, 1.2, (0, 5, 12, 20)),
    (SILVER, 1.4, (3, 14, 20)),
)
NEAR = {STRONG: (1.0, 2), WEAK: (0.8, 2), SILVER: (1.2, 5)}  # mol/L and first mL
BAD_DIRECTLY = {STRONG: (1.0, 4), WEAK: (0.6, 0), SILVER: (1.0, 10)}
MARKS = (  # kind, mol/L, mL with help behind a wrong answer, all mL
    (STRONG, 1.0, (0, 5, 10), (0, 5, 9, 10, 20)),
    (WEAK, 0.8, (4, 9), (4, 9, 20)),
    (SILVER, 0.6, (20,), (20,)),
)
VOLUMES = (  # kind, mol/L, mL, refused and taken; a half goes to the even number
    (STRONG, 1.0, 3, ("102,5", "103,5"), "103,4"),
    (SILVER, 1.2, 14, ("113,4", "114,6"), "114,5"),
)
LETTERS = "abc"


def refuse(learner, wrong):
    """One more failure; from the second on the numbers are offered and refused."""
    learner.fail(wrong, *(["no"] if learner.tries else []))


def result_beside(learner, amount, value):
    """A result that doesn't come from the amount."""
    learner.type_field(learner.step, amount)
    learner.take_value(value)


def wrong_row(learner):
    right = learner.ion(learner.step)
    refuse(learner, KEPT)  # nothing is worked out yet
    learner.type_field(learner.step, LETTERS)
    refuse(learner, KEPT)
    for value in (right + 0.01, abs(right - 0.01), -right - 1):
        refuse(learner, fixed(value, 2))
    result_beside(learner, "", right + 0.006)
    refuse(learner, KEPT)
    # The amount may be anything, also none: the result is what counts.
    amount = {2: "", 3: LETTERS, 4: "99", 5: "-1"}[learner.step]
    result_beside(learner, amount, right + 0.004)
    learner.right(KEPT)


def wrong_volume(learner):
    volume = learner.mixture().volume
    for wrong in ("", LETTERS, plain(volume + 1), plain(volume - 1), plain(volume + 0.6),
                  plain(volume - 0.6), plain(learner.added), "0"):
        refuse(learner, wrong)
    learner.right(plain(volume) + ",0")


def wrong_sum(learner):
    total = learner.mixture().now
    for wrong in ("", LETTERS, fixed(total + 0.01, 2), fixed(total - 0.01, 2), fixed(total, 0),
                  fixed(total + 0.006, 3), "Rechnen"):
        refuse(learner, wrong)
    # Nearer than the decimals that count, and as typed it goes into the series.
    learner.right(fixed(total + 0.004, 3))


def rows(kind, concentration, volumes):
    learner = LfLearner(kind, concentration, f"{kind.title}: every row nearly right, empty, with "
                        "letters, with the result of another amount.", brief=True)
    learner.enter()
    learner.pipette(look=False)
    for added in volumes:
        learner.dose_to(added)
        learner.calculate()
        for step in learner.steps():
            {VOLUME: wrong_volume, SUM: wrong_sum}.get(step, wrong_row)(learner)
    learner.quit()
    return learner.lines


def climb(learner):
    """A reminder, the numbers refused, the numbers taken; the button has to be pressed again."""
    learner.fail(learner.mistake())
    learner.fail(learner.mistake(), "no", by_click=True)
    learner.fail("x" if learner.step not in ROWS else KEPT, "yes")
    learner.right(KEPT, by_click=learner.step % 2 == 1)


def ladder(kind, concentration, volumes):
    learner = LfLearner(kind, concentration, f"{kind.title} of {concentration:.1f} mol/L: the "
                        "whole ladder at every step, then the result.")
    learner.enter()
    learner.pipette()
    for added in volumes:
        learner.dose_to(added)
        learner.calculate_after_wrong("3,3")
        for _ in learner.steps():
            climb(learner)
        learner.brief = True
    learner.quit()
    return learner.lines


def mark(kind, concentration, helped, volumes):
    learner = LfLearner(kind, concentration, f"{kind.title}: help behind a wrong answer costs "
                        "points, help that was asked for doesn't.", brief=True)
    learner.enter()
    learner.pipette(look=False)
    for added in volumes:
        learner.dose_to(added)
        if added in helped:
            learner.open_direct()
            learner.fail_directly("7")
            learner.expect_direct_question()
            learner.expect("form.vHelpUsed", learner.helped)
            learner.expect("txt_Ph.focus", True)
            help_behind_wrong(learner)
        else:
            learner.calculate()
        learner.expect("form.vHelpUsed", learner.helped)
        for _ in learner.steps():
            learner.right()
    learner.quit()
    return learner.lines


def help_behind_wrong(learner):
    """In the frame that is open already."""
    learner.wrong += 1
    learner.helped += 1
    learner.say("type txt_Ph 8", "answer yes", "click but_CalcDone")
    learner.expect_signal(1)
    learner.expect_direct_question()
    learner.say("expect noreport")
    learner.opened_calculation()


def volume_as_typed(kind, concentration, added, refused, taken):
    """What was typed as the volume stands in the rows, also when it isn't quite right."""
    learner = LfLearner(kind, concentration, f"{kind.title}: the volume counts without decimals, "
                        "and as typed it goes into the lines of the rows.", brief=True)
    learner.enter()
    learner.pipette(look=False)
    learner.dose(added, look=False)
    learner.calculate()
    for turn, text in enumerate(refused):
        learner.fail(text, *["no"] * (turn > 0))
    learner.right(taken)
    for _ in ROWS:
        work_out_or_ask(learner)
    learner.right()
    learner.dose()
    learner.calculate()
    learner.right(f"{learner.mixture().volume / 100:g}*10^2".replace(".", ","))
    while not learner.finished:
        learner.right()
    learner.quit()
    return learner.lines


def work_out_or_ask(learner):
    """By the offered line, and by the tutor where the line's volume makes it wrong."""
    learner.work_out_row()
    if learner.results[learner.step] != fixed(learner.ion(learner.step), 2):
        learner.fail(KEPT)
        learner.fail(KEPT, "yes")
    learner.right(KEPT)


def bad_direct(kind, concentration, added):
    learner = LfLearner(kind, concentration, kind.title + ": letters, nothing and absurd numbers "
                        "as direct answers.", brief=True)
    learner.enter()
    learner.pipette(look=False)
    learner.dose(added, look=False)
    bad_direct_answers(learner)
    learner.type_directly()
    learner.quit()
    return learner.lines


def near_direct(kind, concentration, first):
    return near(LfLearner(kind, concentration, kind.title + ": a direct answer counts with two "
                          "decimals.", brief=True), first)


def scripts():
    for task in ROWS_WRONG:
        yield f"lf_{task[0].name}_rows", rows(*task)
    for task in LADDERS:
        yield f"lf_{task[0].name}_ladder", ladder(*task)
    for task in MARKS:
        yield f"lf_{task[0].name}_mark_helped", mark(*task)
    for kind in MEASURED:
        yield f"lf_{kind.name}_bad_direct", bad_direct(kind, *BAD_DIRECTLY[kind])
        yield f"lf_{kind.name}_direct", near_direct(kind, *NEAR[kind])
    for task in VOLUMES:
        yield f"lf_{task[0].name}_volume", volume_as_typed(*task)
