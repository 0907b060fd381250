"""Conductometric tasks begun anew, left and closed at every moment; commands and quick clicks."""

from beginnings import (QUICK_TITLE, begin_task_again, dose_quietly, leave_while_dosing, quick)
from lf_guided import ROWS, SUM, LfLearner
from lf_kinds import LF_KINDS, LOG, MEASURED, SILVER, STRONG, WEAK
from texts import quoted

QUICK = {STRONG: 1.2, WEAK: 0.8, SILVER: 1.4}  # mol/L
ACCEPTING = ("click bar_Buttons", 'command bar_Buttons "DIALOG.OK();"',
             'command bar_Buttons "dialog.ok();"', 'command bar_Buttons "Dialog.Abort();"',
             'command bar_Buttons "DIALOG.ABORT();"', "key ENTER", "key ESC")
NOT_ACCEPTING = ('"DIALOG.OK()"', "OK", '""', '"DIALOG.CANCEL();"')
NO_COMMANDS = ("BURETTE", '""', '"PIPETTE "', "PIPETTE();", "PIPETT")


def begin_again(learner, concentration):
    begin_task_again(learner, concentration)
    learner.expect_break()
    for series in range(1, 6):
        learner.expect(f"series({series}).count", 0)
        learner.expect(f"series({series}).lines", 0)
    learner.expect("form.LastVolume", "")


def until_sum(learner):
    learner.calculate()
    while learner.step != SUM:
        learner.right()


def between_last_clicks(learner):
    """The point is done, the frame still open."""
    until_sum(learner)
    learner.answer_step(None)
    learner.press(by_click=True)
    learner.pass_step()


def leave_while_calculating(learner):
    learner.say("# the direct input is open")
    dose_quietly(learner, 2)
    learner.open_direct()
    learner.say("type txt_Ph 5")
    begin_again(learner, 1.0)
    learner.say("# in the middle of a row")
    dose_quietly(learner, 3)
    learner.calculate()
    learner.right()
    learner.fail("9")
    begin_again(learner, 0.6)
    learner.say("# between the last two clicks")
    dose_quietly(learner, 1)
    between_last_clicks(learner)
    begin_again(learner, 0.6)
    learner.say("# behind the break")
    dose_quietly(learner, 5)
    learner.answer_directly()
    learner.dose(2)
    learner.answer_directly()
    learner.dose(13)
    learner.answer_directly()
    begin_again(learner, 1.2)


def restart(kind):
    learner = LfLearner(kind, 1.2, kind.title + ": a new beginning in the middle of everything, "
                        "and the task that follows is fresh.", before_start=["sound 2"],
                        hears=False, brief=True)
    learner.enter()
    leave_while_dosing(learner, begin_again)
    leave_while_calculating(learner)
    dose_quietly(learner, 12)
    learner.answer_directly()
    learner.quit()
    return learner.lines


def start_commands(kind):
    """The start form comes each time; both commands go on, in any case, others don't."""
    button = kind.button or kind.demo_button
    tab = 3 if kind.button else 2
    lines = [f"# {kind.title}: every way through the start form.", "name Mia", "start"]
    for way in ACCEPTING:
        lines += [f"choose SSTab1 {tab}", "click " + button, "expect form " + kind.start_form,
                  "expect nobox", "expect form.Accepted == false",
                  "expect pic_Start.picture == true"]
        if way == ACCEPTING[0]:
            for command in NOT_ACCEPTING:
                lines += [f"command bar_Buttons {command}", "expect form " + kind.start_form,
                          "expect form.Accepted == false"]
        lines += [way, "expect form " + kind.form, f"expect form.caption == {quoted(kind.caption)}",
                  "expect form.vVol == 0", "menu mnu_FileNew", "expect form frm_DialogStartup"]
    return [*lines, "click ctl_Button5", "expect ended"]


def start_closed(kind):
    button = kind.button or kind.demo_button
    return [f"# {kind.title}: whoever closes the start form has no task, the program ends.",
            "name Mia", "start", f"choose SSTab1 {3 if kind.button else 2}", "click " + button,
            "expect form " + kind.start_form, "close", "expect ended", "expect nobox",
            "expect nosound", "expect noreport"]


def before_pipette(learner):
    pass


def pipette_runs(learner):
    learner.say("click ctl_Button1", "wait 2", "expect session.SessionBusy == true")


def drop_falls(learner):
    learner.pipette(look=False)
    learner.say("click ctl_Button3", "wait 0.4", "expect drops.count == 2")


def direct_input(learner):
    dose_quietly(learner, 1)
    learner.open_direct()


def first_step(learner):
    dose_quietly(learner, 1)
    learner.calculate()


def row_failed(learner):
    dose_quietly(learner, 4)
    learner.calculate()
    for _ in ROWS:
        learner.right()
    learner.fail(learner.near_miss())


def last_clicks(learner):
    dose_quietly(learner, 2)
    between_last_clicks(learner)


def behind_point(learner):
    dose_quietly(learner, 1)
    learner.answer_directly()


CLOSED_AT = (
    (STRONG, before_pipette, "before the pipette has run"),
    (SILVER, pipette_runs, "while the pipette runs"),
    (WEAK, drop_falls, "while a drop falls"),
    (SILVER, direct_input, "with the direct input open"),
    (STRONG, first_step, "at the tutor's first step"),
    (WEAK, row_failed, "behind a failed row"),
    (STRONG, last_clicks, "between the tutor's last two clicks"),
    (WEAK, last_clicks, "between the tutor's last two clicks"),
    (SILVER, last_clicks, "between the tutor's last two clicks"),
    (WEAK, behind_point, "behind a point"),
)


def closed(kind, moment, when):
    learner = LfLearner(kind, 1.0, f"{kind.title}: the close box {when} ends the process at once.",
                        brief=True)
    learner.enter()
    moment(learner)
    learner.say("close", "expect ended", "expect nobox", "expect noreport")
    return learner.lines


def closed_dialogs(kind):
    """Comparison and result close by their box, the task goes on and ends by its own."""
    learner = LfLearner(kind, 0.6, kind.title + ": the close boxes of comparison and result "
                        "lead back to the task.", brief=True)
    learner.enter()
    dose_quietly(learner, 6)
    learner.answer_directly()
    learner.say("click but_phCompare", "expect form frm_DialogphCompare", "close",
                "expect form " + kind.form, "click but_phCompare", "key ESC",
                "expect form " + kind.form)
    learner.dose(14)
    learner.leaving_result = "close"
    learner.answer_directly()
    learner.say("expect form " + kind.form)
    learner.compare_curves()
    learner.say("close", "expect ended", "expect noreport", "expect nobox")
    return learner.lines


def executor(kind):
    learner = LfLearner(kind, 1.0, kind.title + ": the pipette by command, in any case; other "
                        "commands do nothing.", demo=kind is LOG, brief=True)
    learner.enter()
    for command in NO_COMMANDS:
        learner.say("command ctl_Executor " + command)
    learner.say("wait 1", "expect form.vVol == 0", "expect session.SessionBusy == false",
                "command ctl_Executor pIpEtTe", "wait 1", "expect session.SessionBusy == true",
                "command ctl_Executor PIPETTE", "settle", "expect form.vVol == 10",
                "expect form.vPipShown == false")
    for command in ("PIPETTE", "pipette", "BURETTE"):
        learner.say("command ctl_Executor " + command, "settle", "expect form.vVol == 10",
                    "expect form.sClicks == 0", "expect nobox")
    learner.look_at_beaker()
    learner.say("menu mnu_FileNew", "expect form frm_DialogStartup")
    learner.begin_anew()
    learner.enter()
    learner.say("command ctl_Executor PIPETTE", "settle", "expect form.vVol == 10")
    learner.quit()
    return learner.lines


def clicks_while_dosing(kind):
    """They are dropped; dialogs may open meanwhile."""
    learner = LfLearner(kind, 1.0, kind.title + ": clicks while something falls are dropped, "
                        "dialogs may open meanwhile.", brief=True)
    learner.enter()
    learner.say("click ctl_Button1", "wait 1", "click ctl_Button1", "mouse pic_Above 150 100",
                "click but_Help", "expect form frm_DialogHelp", "wait 3", "click ctl_CmdBar1",
                "click but_phCompare", "expect form frm_DialogphCompare", "key ESC",
                "expect form " + kind.form, "menu mnu_HelpAbout", "expect box about * *", "settle",
                "expect form.vVol == 10", "expect form.sClicks == 0")
    learner.say("click ctl_Button3", "wait 0.05", "click ctl_Button3", "click but_Calc")
    learner.hidden("frm_CalcDirect")
    learner.say("settle", "expect form.vVol == 11", "expect form.sClicks == 1", "click ctl_Button3",
                "until session.SessionBusy == false", "expect drops.count == 2", "click but_Calc",
                "click ctl_Button3", "expect form.sClicks == 2",
                "until frm_CalcDirect.visible == true", "expect drops.count == 0",
                "expect form.vVol == 12", "mouse pic_Above 150 100", "expect form.sClicks == 2")
    learner.added = 2
    learner.type_directly()
    learner.say("click ctl_Button3", "wait 0.1", "menu mnu_FileQuit", "wait 3", "expect ended",
                "expect nobox", "expect noreport")
    return learner.lines


def sign_of_chloride():
    """Set by all of these forms; two of them leave it so when they close."""
    learner = LfLearner(SILVER, 1.0, "The sign of the chloride ions as the form before left it.",
                        brief=True)
    learner.say("expect session.PlainChloride == false")
    for kind, behind in ((STRONG, False), (LOG, False), (WEAK, True), (SILVER, True),
                         (STRONG, False)):
        learner.kind, learner.demo = kind, kind is LOG
        learner.enter()
        learner.say("expect session.PlainChloride == true", "menu mnu_FileNew",
                    "expect form frm_DialogStartup")
        learner.expect("session.PlainChloride", behind)
    return learner.lines


def scripts():
    yield "lf_chloride_sign", sign_of_chloride()
    for kind in LF_KINDS:
        yield f"lf_{kind.name}_start_commands", start_commands(kind)
        yield f"lf_{kind.name}_start_closed", start_closed(kind)
    for kind in MEASURED:
        yield f"lf_{kind.name}_restart", restart(kind)
        learner = LfLearner(kind, QUICK[kind], kind.title + QUICK_TITLE, brief=True)
        yield f"lf_{kind.name}_quick", quick(learner)
        yield f"lf_{kind.name}_clicks_while_dosing", clicks_while_dosing(kind)
        yield f"lf_{kind.name}_close_dialogs", closed_dialogs(kind)
    for kind, moment, when in CLOSED_AT:
        yield f"lf_{kind.name}_close_{moment.__name__}", closed(kind, moment, when)
    for kind in (STRONG, LOG):
        yield f"lf_{kind.name}_executor", executor(kind)
