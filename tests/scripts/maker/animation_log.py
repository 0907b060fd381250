"""The logarithm lesson: to and fro through the powers of ten, by mouse and by keys, the areas of
its choice, and breaking it off in each zoom."""

from random import Random

from animation_break import WAYS, break_off
from animation_film import FRAME, SECOND
from animation_scenes import BY_NAME
from animation_stage import DEFAULT_SCREEN, SCREENS, Screen
from animation_viewer import Viewer

LOG = BY_NAME["log"]
STEPS = 6
FORWARD = 2  # s
BACK = 1
LAST_FRAME = {seconds: -(-seconds * SECOND // FRAME) for seconds in (BACK, FORWARD)}
ARRIVAL = 2  # frames: the picture at rest and the choice
PRESSES = {"forward": (730, 560), "back": (550, 560), "end": (650, 560)}
KEYS = {"forward": ('key ">"', "key +", 'key " "', "key ENTER"), "back": ('key "<"', "key -")}
# Edges included; the first one ends before the right edge of its box.
AREAS = {"back": (520, 540, 580, 580), "end": (640, 540, 659, 580), "forward": (680, 540, 780, 580)}
BOXES_BEHIND = (600, 560)  # in the box of the way back, outside its area


class LogViewer(Viewer):
    """The step shows in how long a zoom takes: forward 2 s, at the last step five times 1 s."""

    def __init__(self, title, by_keys=False, **options):
        super().__init__(title, **options)
        self.by_keys = by_keys
        self.used = {"forward": 0, "back": 0}

    def begin_lesson(self):
        self.open(LOG)
        self.step = 1
        self.frames = ARRIVAL
        self.look_at_choice()

    def look_at_choice(self):
        self.expect("form.Frames", self.frames)
        self.expect("form.SpriteCount", 0)
        self.expect("form.Aborted", False)
        self.say('expect form.LastText == ""')

    def press_for(self, choice):
        if not self.by_keys:
            self.press(*PRESSES[choice])
            return
        keys = KEYS[choice]
        self.say(keys[self.used[choice] % len(keys)])
        self.used[choice] += 1

    def zooms_after(self, choice):
        """Seconds of each."""
        if choice == "back":
            return [BACK]
        return [FORWARD] if self.step < STEPS else [BACK] * (STEPS - 1)

    def watch_zooms(self, zooms):
        """Each in its first frame, its middle and near its end; then the choice, which stays."""
        self.now = start = 0
        for seconds in zooms:
            last = LAST_FRAME[seconds]
            for frame in (0, last // 2, last - 2):
                self.go_to(start + frame * FRAME)
                self.expect("form.Frames", self.frames + frame + 1)
            start += last * FRAME
            self.frames += last + 1
        self.go_to(start)
        self.frames += ARRIVAL
        self.look_at_choice()
        self.wait(2.5)
        self.look_at_choice()

    def go(self, choice):
        self.press_for(choice)
        self.watch_zooms(self.zooms_after(choice))
        self.count(choice)

    def count(self, choice):
        if choice == "back":
            self.step = max(1, self.step - 1)
        else:
            self.step = self.step + 1 if self.step < STEPS else 1

    def go_quickly(self, choice):
        self.press_for(choice)
        zooms = self.zooms_after(choice)
        self.wait(sum(LAST_FRAME[seconds] for seconds in zooms) * FRAME / SECOND)
        self.frames += sum(LAST_FRAME[seconds] + 1 for seconds in zooms) + ARRIVAL
        self.count(choice)
        self.look_at_choice()

    def end(self):
        self.say("key ESC")
        self.back_at_start()
        self.leave()


def whole(screen, by_keys):
    with_what = "by keys alone" if by_keys else "by the mouse"
    viewer = LogViewer(f"On {screen} forward through all powers of ten and back again, a step too "
                       f"far as well, and a new start, {with_what}.", by_keys, screen=screen)
    viewer.begin_lesson()
    for choice, count in (("forward", 5), ("back", 5), ("back", 2), ("forward", 3), ("back", 1),
                          ("forward", 3), ("back", 1), ("forward", 1), ("forward", 1)):
        for _ in range(count):
            viewer.go(choice)
    viewer.say("# again from the first step")
    for _ in range(STEPS):
        viewer.go("forward")
    viewer.end()
    return viewer.lines


def corners(area):
    left, top, right, bottom = area
    return [(x, y) for x in (left, right) for y in (top, bottom)]


def just_outside(area):
    """A unit beyond the middle of each edge."""
    left, top, right, bottom = area
    across, down = (left + right) // 2, (top + bottom) // 2
    return [(left - 1, down), (right + 1, down), (across, top - 1), (across, bottom + 1)]


def press_exactly(viewer, x, y):
    across, down = viewer.screen.pixel(x, y)
    viewer.say(f"mouse frm_AppIntro {across} {down}")
    viewer.expect("form.ClickX", x)
    viewer.expect("form.ClickY", y)


def areas(screen):
    viewer = LogViewer(f"On {screen} the areas of the choice: their corners, and a unit outside.",
                       screen=screen)
    viewer.begin_lesson()
    viewer.say("# nothing happens outside")
    for area in AREAS.values():
        for x, y in (*just_outside(area), BOXES_BEHIND, (619, 560)):
            press_exactly(viewer, x, y)
            viewer.wait(0.1)
            viewer.look_at_choice()
    for choice in ("forward", "back"):
        viewer.say("# corners: " + choice)
        for x, y in corners(AREAS[choice]):
            press_exactly(viewer, x, y)
            viewer.watch_zooms(viewer.zooms_after(choice))
            viewer.count(choice)
    viewer.say("# corners of the end")
    for x, y in corners(AREAS["end"]):
        across, down = screen.pixel(x, y)
        viewer.say(f"mouse frm_AppIntro {across} {down}")
        viewer.back_at_start()
        viewer.begin_lesson()
    viewer.end()
    return viewer.lines


def meanwhile():
    viewer = LogViewer("What is pressed during a zoom is lost, and other keys are no choice.")
    viewer.begin_lesson()
    for key in ("x", "1", "X", "ä", "TAB"):
        viewer.say("key " + key)
        viewer.wait(0.1)
        viewer.look_at_choice()
    for choice in ("forward", "back"):
        viewer.press_for(choice)
        viewer.wait(0.2)
        viewer.press(*PRESSES["forward"])
        viewer.say('key ">"')
        viewer.press(*PRESSES["end"])
        zoom, = viewer.zooms_after(choice)
        viewer.wait(zoom)
        viewer.frames += LAST_FRAME[zoom] + 1 + ARRIVAL
        viewer.look_at_choice()
        viewer.wait(2)
        viewer.count(choice)
        viewer.look_at_choice()
    viewer.end()
    return viewer.lines


def go_to_step(viewer, step):
    viewer.begin_lesson()
    while viewer.step < step:
        viewer.go_quickly("forward")


def breaking(name):
    viewer = LogViewer(f"The lesson is broken off in each zoom and at each choice by: {name}.")
    chance = Random("log" + name)
    viewer.open_early(LOG)
    break_off(viewer, WAYS[name], chance)
    for step in range(1, STEPS + 1):
        viewer.say(f"# choice {step}")
        go_to_step(viewer, step)
        viewer.wait(0.3)
        break_off(viewer, WAYS[name], chance)
        for choice in ("forward", "back"):
            for frame in frames_of(viewer, choice):
                viewer.say(f"# {choice} from {step}, frame {frame}")
                go_to_step(viewer, step)
                viewer.press_for(choice)
                viewer.now = 0
                viewer.go_to(frame * FRAME)
                break_off(viewer, WAYS[name], chance)
    viewer.leave("close")
    return viewer.lines


def frames_of(viewer, choice):
    """Of each zoom the first frame, one in its middle and the last but one."""
    start = 0
    for seconds in viewer.zooms_after(choice):
        last = LAST_FRAME[seconds]
        yield from (start, start + last // 2, start + last - 1)
        start += last


def scripts():
    for screen in SCREENS:
        yield f"animation_log_{screen.width}", whole(screen, by_keys=False)
    yield "animation_log_keys", whole(DEFAULT_SCREEN, by_keys=True)
    for screen in (Screen(800, 600), DEFAULT_SCREEN, SCREENS[-1]):
        yield f"animation_log_areas_{screen.width}", areas(screen)
    yield "animation_log_meanwhile", meanwhile()
    for name in WAYS:
        yield "animation_log_break_" + name, breaking(name)
