"""The reaction scenes broken off in each of their steps, in every way, with clicks before it."""

from random import Random

from animation_film import Rest, Scenery, film
from animation_scenes import FILMS, ROUNDS
from animation_stage import SCREENS
from animation_viewer import Viewer

ESCAPE = "key ESC"
RIGHT = "right"  # at any place
CLOSE = "close"
WAYS = {"escape": ESCAPE, "right": RIGHT, "close": CLOSE}
CLICK_EVERY = 20  # frames


def somewhere(viewer, chance, button=""):
    """On the panel: on the footer a press may be one on a button."""
    viewer.press(chance.randrange(20, 780), chance.randrange(0, 520), button)


def break_off(viewer, way, chance):
    if way == RIGHT:
        somewhere(viewer, chance, RIGHT)
    else:
        viewer.say(way)
    viewer.back_at_start()
    viewer.wait(4)
    viewer.expect("top", "frm_DialogStartup")
    viewer.say("expect nosound")


def play_to(viewer, parts, number, frame, chance):
    """Up to a frame of a motion, or `frame` frames into a rest, with clicks on the way."""
    for part in parts[:number]:
        if isinstance(part, Rest):
            viewer.go_to(part.start)
            viewer.click_on()
        else:
            viewer.go_to(part.moment(part.last - 1))
    part = parts[number]
    if isinstance(part, Rest):
        viewer.go_to(part.start)
        viewer.look(part.view())
        if frame:
            viewer.wait(frame / 60)
        return
    viewer.go_to(part.moment(0))
    for clicked in range(CLICK_EVERY, frame - 1, CLICK_EVERY):
        viewer.go_to(part.moment(clicked - 1))
        somewhere(viewer, chance)
        viewer.now = part.moment(clicked)
    viewer.go_to(part.moment(frame))
    viewer.look(part.view(frame))


def frames_of(part):
    """The first one, one in the middle, and the last but one, so that the end comes in the last."""
    return (0, 200) if isinstance(part, Rest) else (0, part.last // 2, part.last - 1)


def breaking(animation, name, screen):
    viewer = Viewer(f"{animation.title[0].upper() + animation.title[1:]} is broken off in each of "
                    f"its steps by: {name}.", screen=screen)
    chance = Random(animation.name + name)
    prompt = animation in FILMS
    parts = list(film(animation.steps(), Scenery(screen), prompt=prompt))
    viewer.say("# before the first frame")
    viewer.open_early(animation)
    break_off(viewer, WAYS[name], chance)
    for number, part in enumerate(parts):
        for frame in frames_of(part):
            viewer.say(f"# step {number + 1}, frame {frame}")
            viewer.open(animation)
            play_to(viewer, parts, number, frame, chance)
            break_off(viewer, WAYS[name], chance)
    viewer.leave(CLOSE)
    return viewer.lines


def scripts():
    for number, animation in enumerate((*FILMS, *ROUNDS)):
        for name in WAYS:
            screen = SCREENS[number % len(SCREENS)]
            yield f"animation_{animation.name}_break_{name}", breaking(animation, name, screen)
