"""Animations without their pictures: missing, empty, cut short or noise, they play to their end
all the same, and each file costs one line on standard error."""

from itertools import cycle
from pathlib import Path

from animation_film import Scenery, Stage
from animation_ions import (ALTERNATING, ALTERNATING_BACK, TO_ALTERNATING, TO_DIRECT, TO_REVERSED,
                            IonViewer)
from animation_log import STEPS, LogViewer
from animation_play import WAYS_ON, go_back, play, play_beginning, play_round
from animation_scenes import BY_NAME, FILMS, ROUNDS
from animation_stage import DEFAULT_SCREEN, drawn_size
from animation_viewer import Viewer

BROKEN = "data broken_animation_data"
MISSING = "data nowhere"
FOLDER = Path(__file__).resolve().parents[1] / "broken_animation_data"
WHOLE = "h2o-hcl\\cl"  # the one picture of the folder that nothing is wrong with
HCL_LOG = [*(f"h2o-hcl/{name}.wmf" for name in ("wanne", "_h2o", "_hcl", "h2o", "hcl", "h2ohcl",
                                               "_h3o", "h3o")),
           "h2o-hcl\\_h2ohcl", "h2o-hcl\\_cl"]
ION_LOG = [*(f"ionen/{name}.wmf" for name in ("aus", "ein", "bedingungen", "grün1")),
           *("ionen\\" + name for name in ("einup", "ws1", "ws2", "grün2", "grün3"))]
POWER_LOG = [f"phn/f{number}.gif" for number in range(1, STEPS + 1)]
SILVER_LOG = ["fällung\\" + name for name in ("wanne", "cl", "na", "ag", "no3")]


def broken_size(name):
    return drawn_size(name) if name == WHOLE else (0, 0)


def is_there(name):
    return (FOLDER / (name.replace("\\", "/") + ".wmf")).exists()


def nothing(_name):
    return False


def film_without(animation, data, has, what):
    viewer = Viewer(f"{animation.title[0].upper() + animation.title[1:]} with {what} plays to its "
                    "end and again.", before_start=[data])
    scenery = Scenery(DEFAULT_SCREEN, broken_size, has)
    viewer.open(animation)
    ways = cycle(WAYS_ON)
    question = play(viewer, animation, ways, scenery=scenery)
    viewer.click_on()
    viewer.begin()
    play(viewer, animation, ways, question.stage, scenery=scenery)
    go_back(viewer)
    viewer.leave()
    return viewer.lines


def round_without(animation):
    viewer = Viewer(f"{animation.title[0].upper() + animation.title[1:]} without a data folder.",
                    before_start=[MISSING])
    scenery = Scenery(DEFAULT_SCREEN, has=nothing)
    viewer.open(animation)
    stage = play_round(viewer, animation, Stage(), scenery)
    play_beginning(viewer, animation, stage, scenery)
    go_back(viewer)
    viewer.leave()
    return viewer.lines


def lesson_without(data, what):
    """Of currents; the model needs no pictures."""
    viewer = IonViewer(f"The conductivity lesson with {what}.", before_start=[data])
    viewer.begin_lesson()
    viewer.look_at_reactor()
    for press in (TO_DIRECT, TO_REVERSED, TO_ALTERNATING):
        viewer.choose(press)
        viewer.look_at_settings()
    viewer.say(f"until form.Mode == {ALTERNATING_BACK} 1", f"until form.Mode == {ALTERNATING} 2")
    viewer.repeat()
    viewer.choose(TO_DIRECT)
    viewer.look_at_settings(deposited=0)
    viewer.end()
    return viewer.lines


def powers_without(data, what):
    viewer = LogViewer(f"The logarithm lesson with {what}.", before_start=[data])
    viewer.begin_lesson()
    for _ in range(STEPS):
        viewer.go_quickly("forward")
    viewer.go("back")
    viewer.end()
    return viewer.lines


def scripts():
    """The third of each: the files that are told of on standard error, each once."""
    broken = "broken pictures"
    yield "animation_hcl_broken", film_without(BY_NAME["hcl"], BROKEN, is_there, broken), HCL_LOG
    yield ("animation_silver_missing",
           film_without(BY_NAME["silver"], BROKEN, nothing, "missing pictures"), SILVER_LOG)
    yield "animation_conductivity_broken", lesson_without(BROKEN, broken), ION_LOG
    yield "animation_log_broken", powers_without(BROKEN, broken), POWER_LOG
    for animation in FILMS:
        yield (f"animation_{animation.name}_no_data",
               film_without(animation, MISSING, nothing, "no data folder"))
    for animation in ROUNDS:
        yield f"animation_{animation.name}_no_data", round_without(animation)
    yield "animation_conductivity_no_data", lesson_without(MISSING, "no data folder")
    yield "animation_log_no_data", powers_without(MISSING, "no data folder")
