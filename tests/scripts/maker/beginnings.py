"""New beginnings in the middle of everything, quick clicks, and no data folder."""

from guided import GuidedLearner
from kinds import KINDS, LAST_VOLUME, SILVER, WEAK
from texts import CURVE_MISSING, quoted

FRESH = ("form.vVol", "form.vPoints", "form.vWrong", "form.sClicks", "beaker.count", "drops.count")
QUICK = {WEAK: 1.4, SILVER: 1.0}  # mol/L
QUICK_TITLE = ": mL by mL as fast as the tap opens, then a calculation at once."
CURVE_14 = {WEAK: "phschwach14.crv", SILVER: "potsilber14.crv"}
QUICK_CLICK = ("click ctl_Button3", "until session.SessionBusy == false")
LENS_SLIDES_IN = ("click but_ShowMag", "wait 0.5", "expect pic_Magnify.visible == true")
LENS_SLIDES_OUT = ("click but_ShowMag", "until top == frm_AppMagnify", "wait 0.5", "key ESC")


def begin_task_again(learner, concentration):
    learner.say("menu mnu_FileNew", "expect form frm_DialogStartup", "expect nobox",
                "expect noreport", "expect lst_Mol.text == 1.0")
    learner.expect("opt_EnableSounds.enabled", False)
    learner.concentration = concentration
    learner.begin_anew()
    learner.enter()
    for thing in FRESH:
        learner.expect(thing, 0)
    learner.hidden("frm_Calc", "frm_CalcDirect")
    learner.expect("series(1).count", 0)


def begin_again(learner, concentration):
    begin_task_again(learner, concentration)
    learner.expect("but_ShowMag.visible", learner.kind is WEAK)
    learner.hidden("pic_Magnify")


def dose_quietly(learner, count):
    learner.pipette(look=False)
    learner.dose(count, look=False)


def leave_while_dosing(learner, begin=begin_again):
    learner.say("# before anything")
    begin(learner, 0.6)
    learner.say("# the pipette runs", "click ctl_Button1", "wait 1.5",
                "expect session.SessionBusy == true", "expect drops.count != 0")
    begin(learner, 0.8)
    learner.say("# the pipette leaves", "click ctl_Button1", "until form.vVol == 10", "wait 1",
                "expect session.SessionBusy == true")
    begin(learner, 1.0)
    learner.say("# a drop falls")
    learner.pipette(look=False)
    learner.say("click ctl_Button3", "wait 0.4", "expect drops.count == 2")
    begin(learner, 1.4)


def leave_while_calculating(learner):
    learner.say("# the direct input is open")
    dose_quietly(learner, 2)
    learner.say("click but_Calc", "type txt_Ph 5")
    learner.visible("frm_CalcDirect")
    begin_again(learner, 1.0)
    learner.say("# in the middle of the calculation")
    dose_quietly(learner, 3)
    learner.calculate()
    learner.right()
    learner.fail("9")
    begin_again(learner, 0.6)
    learner.say("# behind a finished point")
    dose_quietly(learner, 1)
    learner.answer_directly()
    begin_again(learner, 1.2)


def leave_while_lens_slides(learner):
    """The silver form has a lens from the first mL on."""
    back = ("until top == " + learner.kind.form, "wait 0.5", "expect pic_Magnify.visible == true")
    for way, lines in (("in", LENS_SLIDES_IN), ("out", (*LENS_SLIDES_OUT, *back))):
        if learner.kind is SILVER:
            dose_quietly(learner, 1)
        learner.say("# the lens slides " + way, *lines)
        begin_again(learner, 1.2)
    dose_quietly(learner, 1)


def restart(kind):
    learner = GuidedLearner(kind, 1.2, kind.title + ": a new beginning in the middle of "
                            "everything, and the task that follows is fresh.",
                            before_start=["sound 2"], hears=False, brief=True)
    learner.enter()
    leave_while_dosing(learner)
    leave_while_calculating(learner)
    leave_while_lens_slides(learner)
    learner.answer_directly()
    learner.quit()
    return learner.lines


def click_quickly(learner, count):
    """The drops are still in the air when the next mL is asked for, and then the calculation."""
    learner.say(*QUICK_CLICK * count)
    learner.added += count
    learner.expect("form.sClicks", learner.added)
    learner.say("expect drops.count != 0", "click but_Calc",
                "until frm_CalcDirect.visible == true 15")
    learner.expect("form.vVol", 10 + learner.added)
    if learner.kind is WEAK:
        mixture = learner.mixture()
        learner.expect("form.vCase", mixture.case)
        learner.expect("beaker.countsort(10)", mixture.acid_particles)
        learner.expect("beaker.countsort(9)", mixture.hydroxide_particles)


def click_to_the_end(learner):
    """More clicks than mL: those while the tap is open are dropped."""
    learner.say(*QUICK_CLICK * 6, *("click ctl_Button3", "wait 0.2") * 3, "settle")
    learner.added = LAST_VOLUME
    learner.expect("form.vVol", 30)
    learner.expect("form.sClicks", LAST_VOLUME)
    learner.expect("form.vTaskStep", 3)
    learner.say("expect nobox")


def quick(learner):
    learner.enter()
    learner.pipette(look=False)
    click_quickly(learner, 5)
    learner.type_directly()
    click_quickly(learner, 9)
    learner.say("click but_HelpCalc")
    learner.opened_calculation()
    for _ in learner.steps():
        learner.right()
    click_to_the_end(learner)
    learner.answer_directly()
    learner.quit()
    return learner.lines


def no_data(kind):
    learner = GuidedLearner(kind, 1.4, "No data folder: what is missing is told, the task, "
                            "the help and the lens do without.",
                            before_start=["data nowhere", "sound 2"], hears=False, brief=True)
    learner.choose_task()
    learner.say('expect box ok "" ' + quoted(CURVE_MISSING.format(CURVE_14[kind])))
    if kind is SILVER:
        learner.say("expect form frm_AppMainSilverStart", "click bar_Buttons")
    learner.say("expect form " + kind.form)
    learner.pipette()
    learner.dose(14)
    learner.say("click but_ShowMag", "until top == frm_AppMagnify 2", "wait 1.5", "key ESC",
                "until but_ShowMag.visible == true 3")
    learner.hidden("pic_Magnify")
    learner.say("click but_Help", "expect form frm_DialogHelp", "close", "expect form " + kind.form)
    learner.answer_directly()
    learner.dose(6)
    learner.answer_directly()
    learner.quit()
    return learner.lines


def scripts():
    for kind in KINDS:
        yield kind.name + "_restart", restart(kind)
        learner = GuidedLearner(kind, QUICK[kind], kind.title + QUICK_TITLE, brief=True)
        yield kind.name + "_quick", quick(learner)
        yield kind.name + "_no_data", no_data(kind)
