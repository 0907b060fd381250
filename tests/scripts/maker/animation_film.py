"""A reaction scene as a film: what is on the stage at each moment between two clicks."""

from dataclasses import dataclass, field
from itertools import chain

from animation_stage import Placement, drawn_size
from animation_steps import SHAKE, Clear, Click, Draw, Off, Place, Sound, Text, Tween

FRAME = 16667  # µs between two frames of the stage, 1/60 s in whole ticks of the clock
SECOND = 1_000_000


@dataclass
class Picture:
    """A sprite as it has to be found, in pixels, each measure with its tolerance."""
    name: str
    rect: tuple
    tolerances: tuple


@dataclass
class View:
    """What a learner sees at a moment."""
    text: str
    frames: int
    pictures: list
    sounds: list  # since the film began


@dataclass
class Stage:
    """What the steps have brought on the stage so far."""
    text: str = ""
    frames: int = 0
    sprites: dict = field(default_factory=dict)  # placements by name, in drawing order
    sounds: list = field(default_factory=list)

    def put(self, placements):
        for placement in placements:
            self.sprites.pop(placement.name, None)
            self.sprites[placement.name] = placement

    def copy(self):
        return Stage(self.text, self.frames, dict(self.sprites), list(self.sounds))


class Scenery:
    """Looks at a stage on a screen."""

    def __init__(self, screen, size_of=drawn_size, has=lambda name: True):
        self.screen = screen
        self.size_of = size_of
        self.has = has  # whether there is a file of this name

    def picture(self, placement, before=None, after=None):
        """`before` and `after`: where it is a frame earlier and later."""
        rect = self.screen.rect(placement, self.size_of)
        slack = [0] * 4
        for other in (before, after):
            if other is not None and other != placement:
                moved = self.screen.rect(other, self.size_of)
                slack = [max(s, abs(a - b) + 1) for s, a, b in zip(slack, rect, moved)]
        return Picture(placement.name.upper(), rect, tuple(slack))

    def view(self, stage, near=((), ()), shaken=""):
        before, after = ({p.name: p for p in placements} for placements in near)
        pictures = []
        for name, placement in stage.sprites.items():
            if self.has(name):
                picture = self.picture(placement, before.get(name), after.get(name))
                if name == shaken:
                    reach = (self.screen.x(SHAKE) + 1, self.screen.y(SHAKE) + 1)
                    picture.tolerances = (*reach, *picture.tolerances[2:])
                pictures.append(picture)
        return View(stage.text, stage.frames, pictures, list(stage.sounds))


@dataclass
class Motion:
    start: int  # µs since the last click
    stage: Stage  # before its first frame
    tween: Tween
    scenery: Scenery

    @property
    def last(self):
        """Number of its last frame; the first has the number 0."""
        return -(-int(self.tween.seconds * SECOND) // FRAME)

    @property
    def end(self):
        return self.start + self.last * FRAME

    def moment(self, frame):
        return self.start + frame * FRAME

    def stage_at(self, frame):
        stage = self.stage.copy()
        stage.put(self.tween.at(frame * FRAME / SECOND))
        stage.frames += frame + 1
        return stage

    def view(self, frame):
        near = ()
        if frame > 0:
            near = tuple(self.tween.at((frame + step) * FRAME / SECOND) for step in (-1, 1))
        return self.scenery.view(self.stage_at(frame), near or ((), ()), self.tween.shaken)


@dataclass
class Rest:
    """A wait for a click."""
    start: int
    stage: Stage
    scenery: Scenery

    def view(self):
        return self.scenery.view(self.stage)


def film(steps, scenery, stage=None, prompt=True):
    """Motions and rests of a scene; the last rest is the question whether to repeat."""
    stage = (stage or Stage()).copy()
    stage.sounds = []
    now = 0
    for step in chain(steps, [Click()] if prompt else []):
        if isinstance(step, Tween):
            motion = Motion(now, stage.copy(), step, scenery)
            yield motion
            now = motion.end
            stage = motion.stage_at(motion.last)
        elif isinstance(step, Click):
            stage.frames += 1
            yield Rest(now, stage.copy(), scenery)
            now = 0
        elif isinstance(step, Clear):
            stage.sprites.clear()
            stage.put([Placement(step.basin, 400, 300)])
        elif isinstance(step, Text):
            stage.text = step.text
        elif isinstance(step, Place):
            stage.put(step.placements)
        elif isinstance(step, Off):
            for name in step.names:
                stage.sprites.pop(name, None)
        elif isinstance(step, Sound):
            stage.sounds.append(step.name)
        elif isinstance(step, Draw):
            stage.frames += 1
