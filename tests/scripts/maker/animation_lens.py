"""The lens over an equilibrium: opened in each part of the scene, closed again, and the scene goes
on with the next part."""

from itertools import cycle

from animation_film import Scenery, Stage, film
from animation_play import LENS_BUTTONS, look_at_button
from animation_scenes import ROUNDS
from animation_stage import SCREENS
from animation_viewer import STAGE, Viewer

LENS = "frm_AppMagnify"
SILENT = {"before_start": ["sound 2"], "hears": False}  # the lens sounds by chance
WAYS = ("key ESC", "mouse frm_AppMagnify 300 20", "click pic_Screen", "close")
FRAME_OF_OPENING = 20
ZOOM_IN = 1.05  # s, with the first frame of the lens
LONGEST_PART = 3  # s, of the stage
LEAST_REST = 0.001  # s between two frames of the stage, when it is late


def open_lens(viewer, animation, ways=("click {}",)):
    viewer.say(*(way.format(LENS_BUTTONS[animation.name]) for way in ways), "expect form " + LENS)
    viewer.expect("form.ShowWater", animation.name == "water")
    viewer.expect("form.ShowAcid", animation.name == "acid")
    for side, value in (("Left", 0), ("Top", 0), ("Right", viewer.screen.width),
                        ("Bottom", viewer.screen.height)):
        viewer.expect("form.Source" + side, value)
    viewer.wait(ZOOM_IN)
    viewer.expect("form.Frames", 1)
    viewer.visible("lab_Attention")


def close_lens(viewer, way):
    """Escape once more on the way back is none for the stage."""
    viewer.say(way)
    viewer.wait(0.5)
    viewer.expect("top", LENS)
    viewer.hidden("lab_Attention")
    viewer.say("key ESC", f"until top == {STAGE} 0.7")
    viewer.expect("form.Aborted", False)
    viewer.expect("form.Clicked", False)


def look_through(viewer, animation, part, following, way):
    """The part is over meanwhile: its last frame comes, then the next part from its beginning."""
    viewer.go_to(part.moment(FRAME_OF_OPENING))
    viewer.look(part.view(FRAME_OF_OPENING))
    frames = part.view(FRAME_OF_OPENING).frames + viewer.missed
    open_lens(viewer, animation)
    if part.tween.seconds == LONGEST_PART:
        viewer.wait(1)
    close_lens(viewer, way)
    viewer.expect("form.Frames", frames + 1)
    viewer.wait(LEAST_REST / 2)
    viewer.missed = frames + 3 - following.view(0).frames
    viewer.now = following.moment(0)
    viewer.look(following.view(0))
    look_at_button(viewer, animation)


def parts_without_end(animation, screen):
    stage = Stage()
    while True:
        for part in film(animation.steps(), Scenery(screen), stage, prompt=False):
            yield part
        stage = part.stage_at(part.last)


def each_part(animation, screen):
    viewer = Viewer(f"On {screen} the lens opens in each part of {animation.title} in turn, and "
                    "the scene goes on.", screen=screen, **SILENT)
    viewer.open(animation)
    ways = cycle(WAYS)
    parts = parts_without_end(animation, viewer.screen)
    part = next(parts)
    for _ in range(11):
        following = next(parts)
        look_through(viewer, animation, part, following, next(ways))
        viewer.watch(following)
        viewer.go_to(following.moment(following.last - 1))
        part = next(parts)
        if part.start == 0:
            viewer.now -= following.end
        viewer.go_to(part.moment(0))
        viewer.look(part.view(0))
    viewer.say("key ESC")
    viewer.back_at_start()
    viewer.leave()
    return viewer.lines


def then_leave(animation, way):
    """The lens and then the stage, by the same way."""
    viewer = Viewer(f"Lens and stage of {animation.title} are closed one after the other: {way}.",
                    **SILENT)
    for opening in (("click {}",), ("key TAB", "expect {}.focus == true", "key ENTER"),
                    ("key TAB", 'key " "')):
        viewer.open(animation)
        viewer.wait(0.2)
        open_lens(viewer, animation, opening)
        close_lens(viewer, way)
        viewer.say(way)
        viewer.wait(0.1)
        viewer.expect("top", "frm_DialogStartup")
    viewer.leave("close")
    return viewer.lines


def scripts():
    for animation in ROUNDS:
        for screen in SCREENS[::3]:
            yield f"animation_{animation.name}_lens_{screen.width}", each_part(animation, screen)
        for name, way in (("escape", "key ESC"), ("close", "close")):
            yield f"animation_{animation.name}_lens_{name}", then_leave(animation, way)
