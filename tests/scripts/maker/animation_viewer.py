"""A learner before the animations: what is done becomes script lines, with what has to be seen."""

from animation_film import FRAME, SECOND
from animation_stage import DEFAULT_SCREEN
from script_writer import ScriptWriter
from texts import quoted

START = "frm_DialogStartup"
STAGE = "frm_AppIntro"
TAB = 1


class Viewer(ScriptWriter):
    def __init__(self, title, *, screen=DEFAULT_SCREEN, before_start=(), hears=True):
        super().__init__(title)
        self.screen = screen
        self.hears = hears
        self.heard = []  # sounds asked about since the film began
        self.now = 0  # µs since the last click
        self.missed = 0  # frames that the stage drew more than it would have without a break
        size = [] if screen == DEFAULT_SCREEN else [f"size {screen}"]
        self.say("name Mia", *size, *before_start, "start")

    def wait(self, seconds):
        self.say(f"wait {seconds:g}")

    def open_early(self, animation, choose_tab=True):
        """From the start dialog to a stage that is still empty."""
        if choose_tab:
            self.say(f"choose SSTab1 {TAB}")
        self.say("click " + animation.button, "expect form " + STAGE)
        self.expect("form.Scene", animation.scene)
        self.expect("form.Aborted", False)
        self.expect("form.Frames", 0)
        self.begin()

    def open(self, animation, choose_tab=True):
        """From the start dialog to the script's first frame."""
        self.open_early(animation, choose_tab)
        self.say("until form.Frames != 0 0.02")

    def begin(self):
        self.now = 0
        self.heard = []
        self.missed = 0

    def back_at_start(self):
        """The stage has gone, at once and with its sounds."""
        self.wait(0.04)
        self.expect("top", START)
        self.expect("SSTab1.index", TAB)
        self.say("expect nosound")

    def leave(self, way="click ctl_Button5"):
        self.say("expect nobox", "expect noreport", "expect nosound", way, "expect ended")

    # Films.

    def go_to(self, moment):
        """`moment`: in µs since the last click, of a frame or of a rest's beginning."""
        if moment > self.now:
            # Half a frame less: the first moment behind the wait is the one that is meant.
            self.say(f"wait {(moment - self.now - FRAME // 2) / SECOND:.6f}")
            self.now = moment

    def look(self, view):
        self.say("expect form.LastText == " + quoted(view.text))
        self.expect("form.Frames", view.frames + self.missed)
        self.listen(view)
        self.expect("form.SpriteCount", len(view.pictures))
        for number, picture in enumerate(view.pictures, 1):
            self.say(f"expect form.SpriteName({number}) == {quoted(picture.name)}")
            self.look_at_place(number, picture)

    def look_at_place(self, number, picture):
        for field, value, slack in zip(("Left", "Top", "Width", "Height"), picture.rect,
                                       picture.tolerances):
            thing = f"form.Sprite{field}({number})"
            if slack:
                self.expect_near(thing, value, slack)
            else:
                self.expect(thing, value)

    def listen(self, view):
        if self.hears:
            for sound in view.sounds[len(self.heard):]:
                self.say(f'expect sound "sounds\\\\{sound}"')
            self.heard = view.sounds
        self.say("expect nosound")

    def watch(self, motion):
        """At its beginning, in its middle and before its end."""
        for frame in (0, motion.last // 2, motion.last - 2):
            self.go_to(motion.moment(frame))
            self.look(motion.view(frame))

    def arrive(self, rest):
        """A rest, which holds until a click."""
        self.go_to(rest.start)
        self.look(rest.view())
        self.wait(2.5)
        self.expect("form.Frames", rest.stage.frames)
        self.say("expect form.LastText == " + quoted(rest.stage.text), "expect nosound")

    def press(self, x, y, button=""):
        """At a place of the design space, as near as the screen has pixels."""
        self.say(f"mouse {STAGE} {self.screen.x(x)} {self.screen.y(y)} {button}".rstrip())

    def click_on(self, action=None):
        """Ends a rest."""
        if action:
            self.say(action)
        else:
            self.press(400, 300)
        self.now = 0

    def act(self, action):
        """While something moves: it takes a frame until it has arrived."""
        self.say(action)
        self.now += FRAME
