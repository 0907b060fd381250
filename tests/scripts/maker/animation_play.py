"""The reaction scenes from the first frame to the last: twice, on screens of all sizes, and the
equilibria round after round."""

from itertools import cycle

from animation_film import Rest, Scenery, Stage, film
from animation_scenes import BY_NAME, FILMS, ROUNDS
from animation_stage import SCREENS
from animation_viewer import STAGE, Viewer

# Any of them is a click where it doesn't matter where.
WAYS_ON = (None, "mouse pic_Stage 5 5", "key ENTER", 'key " "', "key x", "click pic_Stage")
CONTROLS_OF_OTHERS = ("but_Magnify", "but_Acid", "pic_IonenReaktor", "shp_Indicator")
LENS_BUTTONS = {"water": "but_Magnify", "acid": "but_Acid"}


def play(viewer, animation, ways, stage=None, brief=False, scenery=None):
    """Once, up to the question at its end, which is given back."""
    parts = list(film(animation.steps(), scenery or Scenery(viewer.screen), stage))
    for part in parts:
        if isinstance(part, Rest):
            viewer.arrive(part)
            if part is not parts[-1]:
                viewer.click_on(next(ways))
        elif not brief:
            viewer.watch(part)
    return parts[-1]


def play_round(viewer, animation, stage, scenery=None):
    """The reaction there and back and the pause. The stage behind it is given back."""
    parts = list(film(animation.steps(), scenery or Scenery(viewer.screen), stage, prompt=False))
    for part in parts:
        viewer.watch(part)
        viewer.visible(LENS_BUTTONS[animation.name])
    viewer.go_to(parts[-1].end)
    viewer.begin()
    return parts[-1].stage_at(parts[-1].last)


def play_beginning(viewer, animation, stage=None, scenery=None):
    """Half a second of a motion, or the first wait."""
    first = next(film(animation.steps(), scenery or Scenery(viewer.screen), stage))
    if isinstance(first, Rest):
        viewer.arrive(first)
    else:
        viewer.go_to(first.moment(30))
        viewer.look(first.view(30))


def go_back(viewer):
    viewer.say("key ESC")
    viewer.back_at_start()


def whole(animation, screen):
    viewer = Viewer(f"On {screen} {animation.title} plays to its end, and again with a click; "
                    "Escape leads back.", screen=screen)
    viewer.open(animation)
    viewer.expect("form.ShowPanel", True)
    ways = cycle(WAYS_ON)
    stage = None
    for brief in (False, False, True):
        viewer.hidden(*CONTROLS_OF_OTHERS)
        stage = play(viewer, animation, ways, stage, brief).stage
        if not brief:
            viewer.click_on(next(ways))
            viewer.begin()
    go_back(viewer)
    viewer.leave()
    return viewer.lines


def look_at_button(viewer, animation):
    button = LENS_BUTTONS[animation.name]
    viewer.visible(button)
    viewer.hidden(*(other for other in CONTROLS_OF_OTHERS if other != button))
    place = (viewer.screen.x(405), viewer.screen.y(545), viewer.screen.x(365), viewer.screen.y(30))
    for side, value in zip(("left", "top", "width", "height"), place):
        viewer.expect(f"{button}.{side}", value)


def rounds(animation, screen):
    viewer = Viewer(f"On {screen} {animation.title} plays three rounds without a click.",
                    screen=screen)
    viewer.open(animation)
    stage = Stage()
    for _ in range(3):
        stage = play_round(viewer, animation, stage)
        look_at_button(viewer, animation)
    play_beginning(viewer, animation, stage)
    go_back(viewer)
    viewer.leave()
    return viewer.lines


def tremble(viewer, motion, axis):
    """Nearly to the border of the shake to both sides."""
    pictures = motion.view(0).pictures
    side = {"Left": 0, "Top": 1}[axis]
    place = pictures[-1].rect[side]
    reach = (viewer.screen.x(5), viewer.screen.y(5))[side]
    for sign in (-1, 1):
        viewer.say(f"until form.Sprite{axis}({len(pictures)}) ~= {place + sign * reach} "
                   f"{reach / 4!r} 0.8")
    viewer.expect("form.SpriteCount", len(pictures))
    viewer.look_at_place(len(pictures) - 1, pictures[-2])


def shaking(animation):
    viewer = Viewer(f"The joined particles of {animation.title} tremble as far as they may, "
                    "while their formula stands still.", before_start=["sound 2"], hears=False)
    for axis in ("Left", "Top"):
        viewer.open(animation)
        for part in film(animation.steps(), Scenery(viewer.screen), prompt=False):
            if isinstance(part, Rest):
                viewer.click_on()
            elif part.tween.shaken:
                viewer.go_to(part.moment(0))
                tremble(viewer, part, axis)
                break
        go_back(viewer)
    viewer.leave()
    return viewer.lines


def switch_sound_off(viewer):
    """By the box, which holds from the next start dialog on."""
    viewer.say("choose SSTab1 3", "check opt_NeedCalc off", "check opt_EnableSounds off",
               "click ctl_Button3", "expect form frm_AppMainStrong", "menu mnu_FileNew",
               "expect form frm_DialogStartup", "expect opt_EnableSounds.checked == false")


def without_sound(animation, by_box):
    viewer = Viewer(f"With the sound off {animation.title} takes the same times.",
                    before_start=[] if by_box else ["sound 2"], hears=False)
    if by_box:
        switch_sound_off(viewer)
    viewer.open(animation)
    if animation in ROUNDS:
        play_beginning(viewer, animation, play_round(viewer, animation, Stage()))
    else:
        play(viewer, animation, cycle(WAYS_ON))
    go_back(viewer)
    viewer.leave()
    return viewer.lines


def clicks_meanwhile(animation):
    """What is pressed while something moves is lost: the next wait still waits."""
    viewer = Viewer(f"Clicks and keys while {animation.title} moves change nothing.")
    viewer.open(animation)
    ways = cycle(WAYS_ON)
    for part in film(animation.steps(), Scenery(viewer.screen), prompt=animation in FILMS):
        if isinstance(part, Rest):
            viewer.arrive(part)
            viewer.click_on(next(ways))
            continue
        for frame in (0, 1, part.last // 2, part.last - 1):
            viewer.go_to(part.moment(frame))
            viewer.act(next(ways) or "mouse frm_AppIntro 0 0")
            if frame < part.last - 1:
                viewer.look(part.view(frame + 1))
    viewer.begin()
    viewer.say("key ESC")
    viewer.wait(0.1)
    viewer.expect("top", "frm_DialogStartup")
    viewer.say("click ctl_Button5", "expect ended")
    return viewer.lines


def all_in_turn():
    viewer = Viewer("All seven, one after the other on one evening.", hears=False,
                    before_start=["sound 2"])
    for number, animation in enumerate(BY_NAME.values()):
        viewer.open(animation, choose_tab=number == 0)
        viewer.wait(1)
        viewer.expect("top", STAGE)
        if animation.name == "conductivity":
            viewer.say("key ESC", "wait 0.1", "expect top == " + STAGE)
        go_back(viewer)
    viewer.leave("close")
    return viewer.lines


def scripts():
    for animation in FILMS:
        for screen in SCREENS:
            yield f"animation_{animation.name}_{screen.width}", whole(animation, screen)
    for animation in ROUNDS:
        for screen in SCREENS:
            yield f"animation_{animation.name}_{screen.width}", rounds(animation, screen)
    for animation in (*FILMS, *ROUNDS):
        yield f"animation_{animation.name}_clicks", clicks_meanwhile(animation)
        yield (f"animation_{animation.name}_silent",
               without_sound(animation, by_box=animation.name in ("hcl", "acid")))
    for animation in (BY_NAME["hcl"], *ROUNDS):
        yield f"animation_{animation.name}_shake", shaking(animation)
    yield "animation_all_in_turn", all_in_turn()
