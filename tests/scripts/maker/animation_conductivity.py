"""The conductivity lesson: areas and keys, the needle for all settings, how currents die or stay,
and that only Escape, the other button or the close box end it."""

from dataclasses import replace
from itertools import product
from random import Random

from animation_ions import (ALTERNATING, ALTERNATING_BACK, COUNT_PRESSES, DIRECT, DOUBLED, FASTER,
                            FORTY, LEFT_PLATE, PASS, PRESSES, RIGHT_PLATE, STEP, TEN,
                            TO_ALTERNATING, TO_DIRECT, TO_OFF, TO_REVERSED, TWENTY, IonViewer,
                            press_at)
from animation_stage import DEFAULT_SCREEN, SCREENS, Screen
from animation_viewer import STAGE

CONDITIONS = tuple(product(COUNT_PRESSES, (False, True), (False, True)))
DYING = 300  # s, more than the last ion ever needs to its electrode
FIRST_PHASE, PHASE = 11, 22  # steps
GAIN, LOSS, FAST_LOSS = 5, 4, 8  # of an ion's rest, a step


def name_of(condition):
    count, fast, double = condition
    return f"{count}{', fast' if fast else ''}{', double' if double else ''}"


def looks(screen):
    viewer = IonViewer(f"On {screen} the lesson shows each setting on switch, board and ammeter.",
                       screen=screen)
    viewer.begin_lesson()
    viewer.expect("form.Frames", 2)
    viewer.expect("form.LeftPlate", LEFT_PLATE)
    viewer.expect("form.RightPlate", RIGHT_PLATE)
    viewer.expect("form.IonSlots", 40)
    viewer.expect_each_ion("IonNegative", lambda ion: ion % 2 == 0)
    viewer.expect_ions_as_set_up()
    viewer.hidden("but_Magnify", "but_Acid")
    viewer.look_at_reactor()
    viewer.look_at_pictures()
    for frames, press in enumerate((TO_DIRECT, TEN, FASTER, TO_REVERSED, FORTY, DOUBLED, TO_OFF,
                                    FASTER, TO_ALTERNATING, TWENTY, DOUBLED, TO_OFF), 3):
        viewer.choose(press)
        viewer.look_at_settings()
        viewer.look_at_pictures()
        viewer.expect("form.Frames", frames)
    viewer.look_at_reactor()
    viewer.end()
    return viewer.lines


def contrary(press):
    """A choice after which the other one is seen to do something."""
    if press in (FASTER, DOUBLED):
        return None
    if press in COUNT_PRESSES.values():
        return TWENTY if press is TEN else TEN
    return TO_DIRECT if press is TO_REVERSED else TO_REVERSED


def press_exactly(viewer, x, y):
    across, down = viewer.screen.pixel(x, y)
    press = press_at(x, y)
    viewer.say(f"mouse {STAGE} {across} {down}")
    if press:
        viewer.settings = press.change(viewer.settings)
    viewer.wait(PASS)
    viewer.expect("form.ClickX", x)
    viewer.expect("form.ClickY", y)
    viewer.expect("form.Clicked", False)
    viewer.look_at_settings()


def outside(area):
    """A unit beyond each edge, at both of its ends and in its middle."""
    left, top, right, bottom = area
    for y in (top, (top + bottom) // 2, bottom):
        yield from ((left - 1, y), (right + 1, y))
    for x in (left, (left + right) // 2, right):
        yield from ((x, top - 1), (x, bottom + 1))


def areas(screen):
    viewer = IonViewer(f"On {screen} the areas of all choices: their corners, and a unit outside.",
                       screen=screen)
    viewer.begin_lesson()
    for press in PRESSES:
        for area in press.areas:
            left, top, right, bottom = area
            viewer.say(f"# {press.digit}: {area}")
            viewer.repeat()  # for the phases of the alternating current
            for x, y in product((left, right), (top, bottom)):
                if contrary(press):
                    viewer.choose(contrary(press))
                press_exactly(viewer, x, y)
            for x, y in outside(area):
                if contrary(press):
                    viewer.choose(contrary(press))
                press_exactly(viewer, x, y)
    viewer.end()
    return viewer.lines


def needle():
    viewer = IonViewer("The needle for all settings, right after the choice.")
    viewer.begin_lesson()
    for condition in CONDITIONS:
        for press in (TO_DIRECT, TO_REVERSED, TO_ALTERNATING):
            viewer.say(f"# {name_of(condition)}, key {press.digit}")
            viewer.set(*condition)
            viewer.choose(press)
            viewer.look_at_settings(deposited=0)
            if press is TO_ALTERNATING:
                viewer.expect_ions_spread()
                viewer.choose(TO_OFF)
                viewer.look_at_settings()
                viewer.say("expect form.Needle == -90")
            viewer.repeat()
            viewer.expect_ions_as_set_up()
    viewer.end()
    return viewer.lines


def direct(press, name):
    viewer = IonViewer(f"A {name} current dies with every setting, and for good.")
    viewer.begin_lesson()
    for condition in CONDITIONS:
        viewer.say("# " + name_of(condition))
        viewer.set(*condition)
        viewer.choose(press)
        viewer.look_at_settings(deposited=0)
        count = viewer.settings.count
        viewer.say(f"until form.DepositedCount == {count} {DYING}")
        viewer.look_at_settings(deposited=count)
        viewer.say("expect form.Needle == -90")
        viewer.wait(10)
        viewer.look_at_settings(deposited=count)
        look_at_deposited(viewer, count)
        viewer.repeat()
    viewer.end()
    return viewer.lines


def look_at_deposited(viewer, count):
    """Long after the last one has settled: each on the side it is drawn to, fully rested."""
    positive, negative = ((RIGHT_PLATE, LEFT_PLATE) if viewer.settings.mode == DIRECT else
                          (LEFT_PLATE, RIGHT_PLATE))
    for ion in range(1, count + 1):
        viewer.expect(f"form.IonDeposited({ion})", True)
        viewer.expect(f"form.IonRest({ion})", GAIN * ion)
        plate = negative if ion % 2 == 0 else positive
        viewer.expect_near(f"form.IonX({ion})", plate, 40)


def alternating():
    viewer = IonViewer("An alternating current keeps at least three quarters with every setting.")
    viewer.begin_lesson()
    for condition in CONDITIONS:
        viewer.say("# " + name_of(condition))
        viewer.set(*condition)
        viewer.choose(TO_ALTERNATING)
        viewer.look_at_settings(deposited=0)
        most = viewer.settings.needle()
        least = viewer.settings.needle(deposited=viewer.settings.count)
        if viewer.settings.count == 10 and viewer.settings.fast:
            viewer.say("# one ion settles", "until form.DepositedCount == 1 60")
            viewer.look_at_needle(deposited=1)
        for seconds in (0.3, *[0.777] * 20, 60):
            viewer.wait(seconds)
            viewer.expect_between("form.Needle", least, most)
            viewer.expect_between("form.Mode", ALTERNATING, ALTERNATING_BACK)
        viewer.repeat()
    viewer.end()
    return viewer.lines


def phases():
    viewer = IonViewer("The polarity turns after 11 steps and then after 22 each; a pause goes on "
                       "where it was, a repeat begins anew.")
    viewer.begin_lesson()
    for _ in range(2):
        viewer.choose(TO_ALTERNATING)
        viewer.wait((FIRST_PHASE - 1) * STEP - 0.02)
        viewer.look_at_settings()
        viewer.look_at_pictures()
        viewer.say(f"until form.Mode == {ALTERNATING_BACK} {STEP + 0.03:g}")
        for turn in range(6):
            mode = ALTERNATING if turn % 2 else ALTERNATING_BACK
            viewer.settings = replace(viewer.settings, mode=mode)
            viewer.look_at_pictures()
            viewer.wait(PHASE * STEP - 0.02)
            viewer.look_at_settings()
            viewer.say(f"until form.Mode == {ALTERNATING + ALTERNATING_BACK - mode} 0.03")
        viewer.repeat()
    viewer.say("# switched off after 5 steps of the second phase: 5 more are left to the first")
    viewer.choose(TO_ALTERNATING)
    viewer.say(f"until form.Mode == {ALTERNATING_BACK} 1")
    viewer.wait(5.5 * STEP)
    viewer.choose(TO_OFF)
    viewer.wait(2)
    viewer.choose(TO_ALTERNATING)
    viewer.wait(4 * STEP - 0.01)
    viewer.expect("form.Mode", ALTERNATING)
    viewer.say(f"until form.Mode == {ALTERNATING_BACK} {2 * STEP}")
    viewer.end()
    return viewer.lines


def look_at_loosening(viewer, seconds, count, fast):
    """So long after the current has let go of ions that had rested fully."""
    loss = FAST_LOSS if fast else LOSS
    fewest = int(seconds / STEP)
    most, least = (sum(GAIN * ion > loss * steps for ion in range(1, count + 1))
                   for steps in (fewest, fewest + 1))
    viewer.wait(seconds)
    viewer.look_at_settings(deposited=most if most == least else None)
    viewer.expect_between("form.DepositedCount", least, most)
    viewer.expect_between("form.Needle", *sorted(viewer.settings.needle(n) for n in (most, least)))
    viewer.expect_between(f"form.IonRest({count})", GAIN * count - loss * (fewest + 1),
                          GAIN * count - loss * fewest)


def settle(viewer, press):
    count = viewer.settings.count
    viewer.choose(press)
    viewer.say(f"until form.DepositedCount == {count} {DYING}")
    viewer.wait(count * STEP + 0.5)
    viewer.look_at_settings(deposited=count)
    look_at_deposited(viewer, count)


def resting():
    viewer = IonViewer("Ions that have rested long take long to come off: with the current turned "
                       "to and fro, switched off, and fast. Only an alternating one sets them "
                       "anew.")
    viewer.begin_lesson()
    for fast, seconds in ((False, 0.52), (True, 0.27)):
        viewer.set(20, fast, False)
        for before, press in ((TO_DIRECT, TO_REVERSED), (TO_REVERSED, TO_DIRECT),
                              (TO_DIRECT, TO_OFF), (TO_REVERSED, TO_OFF)):
            viewer.say(f"# {'fast, ' if fast else ''}keys {before.digit} and {press.digit}")
            settle(viewer, before)
            viewer.choose(before)
            viewer.look_at_settings(deposited=20)
            viewer.choose(press)
            viewer.look_at_settings(deposited=20)
            look_at_loosening(viewer, seconds, 20, fast)
        viewer.say("# the needle swings to the other side")
        settle(viewer, TO_DIRECT)
        viewer.choose(TO_REVERSED)
        viewer.wait(1.32)
        viewer.look_at_settings(deposited=0)
        settle(viewer, TO_DIRECT)
        viewer.choose(TO_ALTERNATING)
        viewer.look_at_settings(deposited=0)
        viewer.expect_ions_spread()
        viewer.repeat()
    viewer.end()
    return viewer.lines


def fast_clicker():
    viewer = IonViewer("Whoever clicks faster than the ions move doesn't end the lesson.")
    chance = Random(3)
    viewer.begin_lesson()
    for pause in (0, 0.005, 0.02):
        for _ in range(100):
            viewer.press(chance.randrange(800), chance.randrange(520))
            viewer.press(*chance.choice(PRESSES).middle)
            viewer.say(f"key {chance.randrange(10)}", "key x")
            if pause:
                viewer.wait(pause)
    viewer.wait(PASS)
    viewer.expect("top", STAGE)
    viewer.say("key 1", "key 4", f"until form.Mode == {ALTERNATING_BACK} 5",
               f"until form.Mode == {ALTERNATING} 2")
    viewer.end()
    return viewer.lines


def no_choice():
    viewer = IonViewer("A click beside all areas or on the ions, and other keys, change nothing.")
    viewer.begin_lesson()
    viewer.choose(TO_DIRECT)
    for action in ("key 0", "key x", "key ENTER", 'key " "', "mouse frm_AppIntro 0 0",
                   "mouse pic_Stage 1 1", "click pic_IonenReaktor", "mouse pic_IonenReaktor 0 0"):
        viewer.say(action)
        viewer.wait(PASS)
        viewer.look_at_settings()
        viewer.look_at_pictures()
    viewer.expect("form.Frames", 2 + 1 + 8)
    viewer.say("# a place on the ions counts from the stage's corner")
    for x, y, at_x, at_y in ((0, 0, 179, 255), (100, 50, 279, 305), (354, 214, 533, 469)):
        viewer.say(f"mouse pic_IonenReaktor {x} {y}")
        viewer.wait(PASS)
        viewer.expect_near("form.ClickX", at_x, 1)
        viewer.expect_near("form.ClickY", at_y, 1)
    viewer.say("mouse pic_IonenReaktor 100 50 right", "wait 0.05")
    viewer.expect("top", STAGE)
    viewer.say("mouse pic_IonenReaktor 100 50 right")
    viewer.back_at_start()
    viewer.leave()
    return viewer.lines


def scripts():
    for screen in SCREENS:
        yield f"animation_conductivity_{screen.width}", looks(screen)
    for screen in (Screen(800, 600), DEFAULT_SCREEN, SCREENS[-1]):
        yield f"animation_conductivity_areas_{screen.width}", areas(screen)
    yield "animation_conductivity_needle", needle()
    yield "animation_conductivity_direct", direct(TO_DIRECT, "direct")
    yield "animation_conductivity_reversed", direct(TO_REVERSED, "reversed direct")
    yield "animation_conductivity_alternating", alternating()
    yield "animation_conductivity_phases", phases()
    yield "animation_conductivity_resting", resting()
    yield "animation_conductivity_fast_clicker", fast_clicker()
    yield "animation_conductivity_no_choice", no_choice()
