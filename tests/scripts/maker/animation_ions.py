"""The conductivity lesson as a learner meets it: switch, board of conditions, ions and ammeter."""

from dataclasses import dataclass, replace
from math import cos, sin

from animation_film import Scenery
from animation_scenes import BY_NAME
from animation_stage import Placement
from animation_viewer import STAGE, Viewer

LESSON = BY_NAME["conductivity"]
WIDTH, HEIGHT = 355, 215  # of the field of ions, in its units
RADIUS = 0.025 * WIDTH
LEFT_PLATE, RIGHT_PLATE = round(0.2 * WIDTH), round(0.9 * WIDTH)
SLOTS = 40
STEP = 0.05  # s between two steps of the ions
PASS = 0.03  # s; a click has been taken and shown by then
PI = 3.14159

OFF, DIRECT, REVERSED, ALTERNATING, ALTERNATING_BACK = range(5)
CIRCUITS = ("aus", "ein", "einup", "ws1", "ws2")
MARK_ROWS = {10: 97, 20: 124, 40: 152}
CURRENTS = {10: 0.125, 20: 0.25, 40: 0.5}


@dataclass(frozen=True)
class Settings:
    mode: int = OFF
    count: int = 20
    fast: bool = False
    double: bool = False

    @property
    def current(self):
        if self.mode == OFF:
            return 0
        return CURRENTS[self.count] * (2 if self.fast else 1) * (2 if self.double else 1)

    def needle(self, deposited=0):
        """Degrees."""
        free = (self.count - deposited) / self.count
        if self.mode in (ALTERNATING, ALTERNATING_BACK):
            return 63 * ((free * self.current + 3 * self.current) / 4) - 90 - 63
        swing = {OFF: 0, DIRECT: 31.5, REVERSED: -31.5}[self.mode]
        return swing * (free * self.current) - 90

    @property
    def pictures(self):
        yield Placement("ionen\\" + CIRCUITS[self.mode], 400, 280)
        yield Placement("ionen\\bedingungen", 700, 150)
        yield Placement("ionen\\grün1", 647, MARK_ROWS[self.count])
        if self.fast:
            yield Placement("ionen\\grün2", 647, 189)
        if self.double:
            yield Placement("ionen\\grün3", 647, 216)


@dataclass(frozen=True)
class Press:
    """One choice: its digit, its areas and what it makes of the settings."""
    digit: int
    areas: tuple
    change: object

    @property
    def middle(self):
        left, top, right, bottom = self.areas[0]
        return (left + right) // 2, (top + bottom) // 2


def setter(**values):
    return lambda settings: replace(settings, **values)


PRESSES = (
    Press(1, ((81, 314, 95, 336), (92, 319, 120, 332)), setter(mode=OFF)),
    Press(2, ((82, 286, 100, 309), (101, 299, 122, 316)), setter(mode=DIRECT)),
    Press(3, ((116, 273, 140, 292), (122, 295, 134, 314)), setter(mode=REVERSED)),
    Press(4, ((150, 284, 170, 302), (138, 298, 155, 316)), setter(mode=ALTERNATING)),
    Press(5, ((639, 89, 655, 105),), setter(count=10)),
    Press(6, ((640, 117, 655, 133),), setter(count=20)),
    Press(7, ((638, 145, 656, 161),), setter(count=40)),
    Press(8, ((640, 181, 655, 197),), lambda s: replace(s, fast=not s.fast)),
    Press(9, ((639, 209, 655, 225),), lambda s: replace(s, double=not s.double)),
)
TO_OFF, TO_DIRECT, TO_REVERSED, TO_ALTERNATING, TEN, TWENTY, FORTY, FASTER, DOUBLED = PRESSES
COUNT_PRESSES = {10: TEN, 20: TWENTY, 40: FORTY}


def press_at(x, y):
    """The choice at a place; none where there is no area."""
    for press in PRESSES:
        if any(left <= x <= right and top <= y <= bottom
               for left, top, right, bottom in press.areas):
            return press
    return None


class IonViewer(Viewer):
    def __init__(self, title, **options):
        super().__init__(title, **options)
        self.settings = Settings()

    def begin_lesson(self):
        self.open(LESSON)
        self.begin_settings()

    def begin_settings(self):
        self.settings = Settings()
        self.look_at_settings(deposited=0)

    def repeat(self):
        """Out of the lesson and into it again."""
        self.say("key ESC", "wait 0.05")
        self.expect("top", STAGE)
        self.press(5, 5)
        self.begin_settings()

    def choose(self, press):
        self.say(f"key {press.digit}")
        self.settings = press.change(self.settings)

    def set(self, count, fast, double):
        """From the settings at the beginning, with the current off."""
        if count != self.settings.count:
            self.choose(COUNT_PRESSES[count])
        if fast:
            self.choose(FASTER)
        if double:
            self.choose(DOUBLED)
        self.look_at_settings(deposited=0)

    def look_at_settings(self, deposited=None):
        settings = self.settings
        self.expect("form.Mode", settings.mode)
        self.expect("form.IonCount", settings.count)
        self.expect("form.FastIons", settings.fast)
        self.expect("form.DoubleCharge", settings.double)
        if deposited is not None:
            self.expect("form.DepositedCount", deposited)
            self.look_at_needle(deposited)

    def look_at_needle(self, deposited):
        angle = self.settings.needle(deposited)
        self.expect_near("form.Needle", angle, 1e-9)
        foot = self.screen.x(627), self.screen.y(392)
        ends = (*foot, foot[0] + self.screen.x(70) * cos(angle * PI / 180),
                foot[1] + self.screen.y(70) * sin(angle * PI / 180))
        for end, value in zip(("x1", "y1", "x2", "y2"), ends):
            self.expect_near("shp_Indicator." + end, value, 1e-6)

    def look_at_pictures(self):
        scenery = Scenery(self.screen)
        pictures = [scenery.picture(placement) for placement in self.settings.pictures]
        self.expect("form.SpriteCount", len(pictures))
        for number, picture in enumerate(pictures, 1):
            self.expect(f"form.SpriteName({number})", picture.name)
            self.look_at_place(number, picture)

    def look_at_reactor(self):
        self.visible("pic_IonenReaktor", "shp_Indicator")
        left, top = self.screen.x(179), self.screen.y(255)
        place = (left, top, self.screen.x(534) - left, self.screen.y(470) - top)
        for side, value in zip(("left", "top", "width", "height"), place):
            self.expect("pic_IonenReaktor." + side, value)

    def expect_between(self, thing, least, most):
        middle, reach = (least + most) / 2, (most - least) / 2
        self.expect_near(thing, middle, reach + 1e-9)

    def expect_each_ion(self, field, value):
        for ion in range(1, SLOTS + 1):
            self.expect(f"form.{field}({ion})", value(ion) if callable(value) else value)

    def expect_ions_within(self, left, right, top, bottom):
        for ion in range(1, SLOTS + 1):
            self.expect_between(f"form.IonX({ion})", left, right)
            self.expect_between(f"form.IonY({ion})", top, bottom)

    def expect_ions_as_set_up(self):
        self.expect_ions_within(LEFT_PLATE, RIGHT_PLATE, 4 * RADIUS, HEIGHT * 0.5 - 4 * RADIUS)

    def expect_ions_spread(self):
        self.expect_ions_within(LEFT_PLATE, RIGHT_PLATE, RADIUS, HEIGHT * 0.8 - 3 * RADIUS)
        self.expect_each_ion("IonRest", 0)
        self.expect_each_ion("IonDeposited", False)

    def end(self):
        self.say("expect nosound", "key ESC", "wait 0.05")
        self.expect("top", STAGE)
        self.say("key ESC")
        self.back_at_start()
        self.leave()
