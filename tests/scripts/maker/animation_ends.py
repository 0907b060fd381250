"""The conductivity lesson's two ends, and the teacher's choice of one animation."""

from itertools import product
from random import Random

from animation_break import RIGHT, WAYS, break_off, somewhere
from animation_ions import (LESSON, OFF, PASS, TO_ALTERNATING, TO_DIRECT, TO_REVERSED, IonViewer)
from animation_scenes import ANIMATIONS
from animation_viewer import STAGE, TAB, Viewer

ALL_BUTTONS = tuple(animation.button for animation in ANIMATIONS)


def end_lesson(viewer, way, chance):
    """The question comes, and nothing moves any more."""
    if way == RIGHT:
        somewhere(viewer, chance, RIGHT)
    else:
        viewer.say(way)
    viewer.wait(0.05)
    viewer.expect("top", STAGE)
    viewer.expect("form.Aborted", False)


def two_ends():
    """Every way for the lesson and every way for the question behind it."""
    viewer = IonViewer("The lesson of currents is ended in every way: first the question, then "
                       "the stage.")
    chance = Random(7)
    for first, second in product(WAYS, WAYS):
        viewer.say(f"# {first}, {second}")
        viewer.begin_lesson()
        viewer.choose(TO_ALTERNATING)
        end_lesson(viewer, WAYS[first], chance)
        viewer.expect("form.Frames", 4)
        viewer.wait(3)
        viewer.expect("form.Frames", 4)
        viewer.expect("form.Mode", viewer.settings.mode)
        break_off(viewer, WAYS[second], chance)
    for way in WAYS:
        viewer.say(f"# {way} before the first picture")
        viewer.open_early(LESSON)
        end_lesson(viewer, WAYS[way], chance)
        break_off(viewer, WAYS[way], chance)
    viewer.leave("close")
    return viewer.lines


def clicked_and_ended():
    viewer = IonViewer("The lesson of currents is ended with each current, after clicks anywhere; "
                       "a click begins it anew, also one on the switch.")
    chance = Random(8)
    viewer.begin_lesson()
    for press in (None, TO_DIRECT, TO_REVERSED, TO_ALTERNATING):
        for way in WAYS.values():
            for _ in range(20):
                somewhere(viewer, chance)
            viewer.say("key 1")
            viewer.wait(1)
            if press:
                viewer.say(f"key {press.digit}")
                viewer.wait(0.7)
            end_lesson(viewer, way, chance)
            viewer.press(*TO_DIRECT.middle)
            viewer.wait(PASS)
            viewer.begin_settings()
    viewer.say("key ESC", "wait 0.05", "key 4")
    viewer.begin_settings()
    viewer.expect("form.Mode", OFF)
    viewer.end()
    return viewer.lines


def chosen_by_teacher(animation):
    viewer = Viewer(f"The teacher leaves {animation.title} alone.",
                    before_start=["control MODUS 1", f"control MODUS_ANI {animation.key}"])
    viewer.expect("SSTab1.index", TAB)
    viewer.visible(animation.button)
    viewer.hidden(*(button for button in ALL_BUTTONS if button != animation.button))
    for page in (0, 2, 3):
        viewer.say(f"choose SSTab1 {page}")
        viewer.expect("SSTab1.index", TAB)
    for _ in range(2):
        viewer.open(animation, choose_tab=False)
        viewer.say("key ESC")
        if animation is LESSON:
            viewer.wait(0.05)
            viewer.say("key ESC")
        viewer.wait(0.05)
        viewer.expect("top", "frm_DialogStartup")
        viewer.expect("SSTab1.index", TAB)
        viewer.visible(animation.button)
    viewer.say("close", "expect ended")
    return viewer.lines


def none_by_teacher(key):
    viewer = Viewer("A key of no animation leaves no button.",
                    before_start=["control MODUS 1", f"control MODUS_ANI {key}"])
    viewer.expect("SSTab1.index", TAB)
    viewer.hidden(*ALL_BUTTONS)
    viewer.say("close", "expect ended")
    return viewer.lines


def all_by_teacher():
    viewer = Viewer("The tab alone leaves all animations.", before_start=["control MODUS 1"])
    viewer.expect("SSTab1.index", TAB)
    viewer.visible(*ALL_BUTTONS)
    viewer.say("choose SSTab1 3")
    viewer.expect("SSTab1.index", TAB)
    viewer.say("close", "expect ended")
    return viewer.lines


def scripts():
    yield "animation_conductivity_two_ends", two_ends()
    yield "animation_conductivity_clicked_and_ended", clicked_and_ended()
    for animation in ANIMATIONS:
        yield f"animation_{animation.name}_teacher", chosen_by_teacher(animation)
    for key in (4, 9):
        yield f"animation_teacher_key_{key}", none_by_teacher(key)
    yield "animation_teacher_tab", all_by_teacher()
