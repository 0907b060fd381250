"""The magnifying lens over a task: its scenes, and closing it at every moment and in every way."""

from guided import GuidedLearner
from kinds import KINDS, WEAK

WAYS = {
    "press": "mouse frm_AppMagnify 300 20",
    "scene": "click pic_Screen",
    "ground": "click pic_Fill",
    "escape": "key ESC",
    "box": "close",
}
SUBSTANCES = {"weak": "the weak acid", "silver": "chloride with silver"}
SCENES = {"weak": "acetic acid", "silver": "the silver chloride crystal"}
FIRST_SOUND = {
    "weak": ("two molecules meet", "collide.wav"),
    "silver": ("an ion breaks out of the crystal", "ex.wav"),
}
ATTENTION = "In Wirklichkeit reagieren nur äußerst wenige Moleküle: 1 von 100.000!"
BLOCKED_CLICKS = ("click ctl_Button3", "mouse pic_Above 150 100", "click but_Calc",
                  "click ctl_Button2")


class LensLearner(GuidedLearner):
    def __init__(self, kind, concentration, title, **options):
        super().__init__(kind, concentration, title, brief=True, **options)

    def ready(self):
        """2 mL are in; the silver form has a lens from the first one on."""
        self.pipette(look=False)
        if self.kind is not WEAK:
            self.hidden("but_ShowMag")
        self.dose(2, look=False)
        self.visible("but_ShowMag")
        self.hidden("pic_Magnify")

    def slide_in(self):
        self.say("click but_ShowMag", "wait 0.5", "expect top == " + self.kind.form)
        self.hidden("but_ShowMag")
        self.visible("pic_Magnify")
        self.say("expect pic_Magnify.top == 148", "expect pic_Magnify.left ~= 563 12")

    def zoom_in(self):
        self.say("until top == frm_AppMagnify 1.2")
        self.hidden(self.kind.form + ".pic_Magnify")
        self.expect("form.ShowWater", False)
        self.expect("form.ShowAcid", self.kind is WEAK)
        self.expect("form.Frames", 0)
        self.hidden("lab_Attention")

    def watch(self):
        self.say("wait 1.05", "expect top == frm_AppMagnify")
        self.expect("form.Frames", 1)
        self.visible("lab_Attention", "img_Attention")
        self.expect("lab_Attention.text", ATTENTION)

    def open_scene(self):
        self.slide_in()
        self.zoom_in()
        self.watch()

    def zoom_out(self):
        """The frame ends, then the way back takes a second."""
        self.say("wait 0.5", "expect top == frm_AppMagnify")
        self.hidden("lab_Attention", "img_Attention")
        self.expect("form.Started", True)

    def slide_out(self):
        self.say(f"until top == {self.kind.form} 1", "wait 0.5")
        self.visible("pic_Magnify")
        self.hidden("but_ShowMag")
        self.say("expect pic_Magnify.left ~= 563 12")

    def arrive(self):
        self.say("until but_ShowMag.visible == true 1")
        self.hidden("pic_Magnify")
        self.say("expect top == " + self.kind.form)

    def go_back(self):
        self.zoom_out()
        self.slide_out()
        self.arrive()

    def go_on(self):
        self.answer_directly()
        self.dose()


def muted(kind, concentration, title):
    return LensLearner(kind, concentration, title, before_start=["sound 2"], hears=False)


def scenes(kind):
    learner = muted(kind, 1.0, f"The lens over {SUBSTANCES[kind.name]} shows {SCENES[kind.name]}; "
                    "it closes by a press on the form, on the scene, on the ground,\n"
                    "by Escape and by the close box, and the task goes on.")
    learner.enter()
    learner.ready()
    for name, way in WAYS.items():
        learner.say("# " + name)
        learner.open_scene()
        if name != "press":
            learner.say("wait 1.5", "expect form.Frames ~= 16 1")
        learner.say(way)
        learner.go_back()
        if name in ("scene", "box"):
            learner.go_on()
    learner.say("expect nosound")
    learner.answer_directly()
    learner.quit()
    return learner.lines


def close_while_zooming_in(learner, name, way):
    learner.say(f"# {name} during the zoom in: one frame of the scene, then the way back")
    learner.slide_in()
    learner.zoom_in()
    learner.say("wait 0.3", way, "wait 0.6", "expect top == frm_AppMagnify",
                "expect form.Frames == 0", "wait 0.15", "expect form.Frames == 1", "wait 0.3",
                "expect top == frm_AppMagnify", "expect form.Frames == 1")
    learner.hidden("lab_Attention")
    learner.slide_out()
    learner.arrive()
    learner.say(f"# {name} twice during the zoom in and once more on the way back")
    learner.slide_in()
    learner.zoom_in()
    learner.say("wait 0.3", way, way, "wait 1.2", "expect form.Frames == 1", way, way)
    learner.slide_out()
    learner.arrive()


def close_in_scene(learner, name, way):
    learner.say(f"# {name} in the scene, twice, then on the way back")
    learner.open_scene()
    learner.say(way, way)
    learner.zoom_out()
    learner.say(way, way, "expect form.Frames == 1")
    learner.slide_out()
    learner.arrive()


def escape_while_sliding(learner):
    learner.say("# Escape while the lens slides changes nothing")
    learner.slide_in()
    learner.say("key ESC", "wait 0.1")
    learner.visible("pic_Magnify")
    learner.zoom_in()
    learner.watch()
    learner.say("key ESC")
    learner.zoom_out()
    learner.slide_out()
    learner.say("key ESC")
    learner.arrive()


def moments(kind):
    learner = muted(kind, 1.2, "The lens is closed at every moment, once and twice: "
                    "while it slides, zooms in, shows and zooms out.")
    learner.enter()
    learner.ready()
    for name, way in WAYS.items():
        close_while_zooming_in(learner, name, way)
        close_in_scene(learner, name, way)
    escape_while_sliding(learner)
    learner.go_on()
    learner.say("expect nobox", "expect noreport", "expect nosound")
    learner.answer_directly()
    learner.quit()
    return learner.lines


def expect_blocked(learner):
    """Neither the burette nor a calculation begins while the lens slides."""
    for click in BLOCKED_CLICKS:
        learner.say(click, "expect session.SessionBusy == false", "expect drops.count == 0")
        learner.hidden("frm_CalcDirect", "frm_Calc")
        learner.say("expect form.sClicks == 2", "expect form.vVol == 12")
    learner.say("wait 0.1", "expect session.SessionBusy == false")
    learner.hidden("frm_CalcDirect")
    learner.say("expect form.sClicks == 2")
    learner.hidden("but_ShowMag")


def nothing_starts(learner):
    learner.slide_in()
    expect_blocked(learner)
    learner.zoom_in()
    learner.watch()
    learner.say("key ESC")
    learner.zoom_out()
    learner.slide_out()
    expect_blocked(learner)
    learner.arrive()
    learner.say("expect form.vVol == 12")
    learner.hidden("frm_CalcDirect")
    learner.say("expect nobox")


def with_dialog(learner):
    learner.say("# a dialog opened while the lens slides", "click but_ShowMag", "wait 0.3",
                "click but_phCompare", "expect form frm_DialogphCompare", "wait 2", "close")
    learner.zoom_in()
    learner.watch()
    learner.say("close")
    learner.go_back()


def with_drop(learner):
    learner.say("# a drop falls: no lens while the tap is open, one when it is shut",
                "click ctl_Button3", "wait 0.1", "expect session.SessionBusy == true",
                "click but_ShowMag", "wait 0.1")
    learner.visible("but_ShowMag")
    learner.hidden("pic_Magnify")
    learner.say("until session.SessionBusy == false", "expect drops.count == 2")
    learner.added = 3
    learner.open_scene()
    learner.say("mouse frm_AppMagnify 20 400")
    learner.go_back()
    learner.say("settle", "expect form.vVol == 13")


def with_direct_input(learner):
    shown = learner.mixture().shown
    learner.say("# with the direct input open", "click but_Calc", "type txt_Ph " + shown)
    learner.slide_in()
    learner.say("click but_HelpCalc", "wait 0.1")
    learner.hidden("frm_Calc")
    learner.visible("frm_CalcDirect")
    learner.zoom_in()
    learner.watch()
    learner.say("key ESC")
    learner.go_back()
    learner.visible("frm_CalcDirect")
    learner.expect("txt_Ph.text", shown)
    learner.type_directly(shown)


def with_calculation(learner):
    learner.say("# in the middle of a calculation")
    learner.dose(look=False)
    learner.calculate()
    learner.right()
    learner.open_scene()
    learner.say("key ESC")
    learner.go_back()
    learner.visible("frm_Calc")
    learner.expect("form.sStep", learner.step)
    for _ in learner.steps():
        learner.right()


def still(kind):
    learner = muted(kind, 0.8, "While the lens slides no dosing and no calculation starts, "
                    "and while something falls no lens.")
    learner.enter()
    learner.ready()
    nothing_starts(learner)
    with_dialog(learner)
    with_drop(learner)
    with_direct_input(learner)
    with_calculation(learner)
    learner.quit()
    return learner.lines


def sounds(kind):
    event, sound = FIRST_SOUND[kind.name]
    learner = LensLearner(kind, 1.0, f"The scene is heard: {event} comes first.")
    learner.enter()
    learner.ready()
    learner.say("expect nosound")
    learner.slide_in()
    learner.say("expect nosound")
    learner.zoom_in()
    learner.say("wait 0.9", "expect nosound", "wait 20", f'expect sound "sounds\\\\{sound}"',
                "key ESC")
    learner.go_back()
    learner.say("menu mnu_FileQuit", "expect ended")
    return learner.lines


def silent(kind):
    learner = LensLearner(kind, 1.0, "A learner who has switched the sound off hears nothing "
                          "of the scene.", hears=False)
    learner.enter("check opt_EnableSounds off")
    learner.ready()
    learner.slide_in()
    learner.zoom_in()
    learner.say("wait 21", "expect form.Frames ~= 200 1", "expect nosound", "key ESC")
    learner.go_back()
    learner.answer_directly()
    learner.say("expect form " + kind.form, "menu mnu_FileQuit", "expect ended")
    return learner.lines


def leave(learner, demo):
    learner.say("menu mnu_FileNew", "expect form frm_DialogStartup")
    learner.begin_anew()
    learner.demo = demo
    learner.enter()


def leaving(kind):
    learner = muted(kind, 1.0, "The program is left and begun anew while the lens slides, "
                    "and from the demo it opens as well.")
    learner.enter()
    learner.ready()
    learner.slide_in()
    leave(learner, demo=True)
    learner.expect("but_ShowMag.visible", kind is WEAK)
    learner.pipette(look=False)
    learner.say("answer no", "click ctl_Button3", "expect box yesno * *", "settle")
    learner.open_scene()
    learner.say("close")
    learner.zoom_out()
    learner.slide_out()
    leave(learner, demo=False)
    learner.ready()
    learner.slide_in()
    learner.say("close", "expect ended")
    return learner.lines


def scripts():
    for kind in KINDS:
        yield "lens_" + kind.name, scenes(kind)
        yield "lens_moments_" + kind.name, moments(kind)
        yield "lens_still_" + kind.name, still(kind)
        yield "lens_sounds_" + kind.name, sounds(kind)
        yield "lens_silent_" + kind.name, silent(kind)
        yield "lens_leaving_" + kind.name, leaving(kind)
