"""The reaction scenes as what happens on the stage, step after step."""

from dataclasses import dataclass
from typing import Callable

from animation_stage import Placement
from animation_steps import Clear, Click, Draw, Off, Place, Sound, Text, Tween

COLLIDE = "collide.wav"
REACTION = "ex.wav"


@dataclass(frozen=True)
class Actor:
    """A sprite where it touches its partner, and the side to which it goes off."""
    name: str
    x: float
    y: float
    side: int

    def apart(self, percent):
        zoom = 65 if "\\_" in self.name else 100
        return Placement(self.name, self.x + self.side * percent, self.y, zoom)


def apart(actors, percent):
    return tuple(actor.apart(percent) for actor in actors)


def meet(actors):
    return Tween(1.4, lambda g, m: apart(actors, m))


def part(actors, seconds):
    return Tween(seconds, lambda g, m: apart(actors, g))


def react(partners, formula, particles):
    """From the touch to the reaction."""
    yield Off(tuple(actor.name for actor in partners))
    yield Place((particles, formula))
    yield Tween(2, lambda g, m: (particles,), shaken=particles.name)
    yield Sound(REACTION)
    yield Off((particles.name, formula.name))


def hydrogen_chloride():
    folder = "h2o-hcl\\"
    educts = (Actor(folder + "_h2o", 345, 135, -1), Actor(folder + "_hcl", 467, 110, 1),
              Actor(folder + "h2o", 350, 330, -1), Actor(folder + "hcl", 450, 330, 1))
    products = (Actor(folder + "_h3o", 377, 123, -1), Actor(folder + "_cl", 498, 124, 1),
                Actor(folder + "h3o", 350, 330, -1), Actor(folder + "cl", 450, 330, 1))
    yield Clear(folder + "wanne")
    yield Text("Hinreaktion: HCl + H<SUB>2</SUB>O -> H<SUB>3</SUB>O<SUP>+</SUP> + Cl<SUP>-</SUP>")
    yield Place(apart(educts, 100))
    yield Click()
    yield Sound(COLLIDE)
    yield meet(educts)
    yield from react(educts, Placement(folder + "_h2ohcl", 410, 135, 65),
                     Placement(folder + "h2ohcl", 400, 330))
    yield part(products, 1)
    yield Text("Keine Rückreaktion!")
    yield Draw()


def equilibrium_round(folder, joined, forward, back, educts, products):
    formula = Placement(folder + "_" + joined, 404, 140, 65)
    particles = Placement(folder + joined, 400, 330)
    yield Clear(folder + "wanne")
    yield Text(forward)
    yield Sound(COLLIDE)
    yield meet(educts)
    yield from react(educts, formula, particles)
    yield part(products, 1)
    yield Clear(folder + "wanne")
    yield Text(back)
    yield meet(products)
    yield from react(products, formula, particles)
    yield part(educts, 1.4)
    yield Tween(3, lambda g, m: ())


def autoprotolysis_round():
    folder = "h2o-h2o\\"
    yield from equilibrium_round(
        folder, "h2oh2o",
        "Hinreaktion: H<SUB>2</SUB>O + H<SUB>2</SUB>O -> H<SUB>3</SUB>O<SUP>+</SUP> + "
        "OH<SUP>-</SUP>",
        "Rückreaktion: H<SUB>3</SUB>O<SUP>+</SUP> + OH<SUP>-</SUP> -> H<SUB>2</SUB>O + "
        "H<SUB>2</SUB>O",
        (Actor(folder + "_h2o", 345, 140, -1), Actor(folder + "_h2o2", 466, 140, 1),
         Actor(folder + "h2o", 350, 330, -1), Actor(folder + "h2o2", 450, 315, 1)),
        (Actor(folder + "_h3o", 377, 128, -1), Actor(folder + "_oh", 498, 129, 1),
         Actor(folder + "h3o", 350, 330, -1), Actor(folder + "oh", 450, 315, 1)))


def weak_acid_round():
    folder = "h2o-hac\\"
    yield from equilibrium_round(
        folder, "h2ohac",
        "Hinreaktion: HAc + H<SUB>2</SUB>O -> H<SUB>3</SUB>O<SUP>+</SUP> + Ac<SUP>-</SUP>",
        "Rückreaktion: H<SUB>3</SUB>O<SUP>+</SUP> + Ac<SUP>-</SUP> -> HAc + H<SUB>2</SUB>O",
        (Actor(folder + "_h2o", 345, 140, -1), Actor(folder + "_hac", 466, 110, 1),
         Actor(folder + "h2o", 350, 330, -1), Actor(folder + "hac", 450, 325, 1)),
        (Actor(folder + "_h3o", 377, 128, -1), Actor(folder + "_ac", 498, 129, 1),
         Actor(folder + "h3o", 350, 330, -1), Actor(folder + "ac", 450, 320, 1)))


def placer(folder):
    return lambda name, x, y, zoom=100: Placement(folder + name, x, y, zoom)


def neutralisation():
    put = placer("h3o-cl\\")
    still = (put("cl", 600, 330), put("na", 450, 330))
    yield Clear("h3o-cl\\wanne4")
    yield Text("Vorlage: H<SUB>3</SUB>O<SUP>+</SUP> und Cl<SUP>-</SUP>")
    yield Place((put("h3o", 300, 330), put("cl", 500, 330)))
    yield Click()
    yield Text("Zugabe von: Na<SUP>+</SUP> und OH<SUP>-</SUP>")
    yield Tween(3, lambda g, m: (put("oh", 350, g * 2 + 120), put("na", 450, g * 2 + 130),
                                 put("h3o", 300 - g, 330), put("cl", 500 + g, 330)))
    yield Click()
    yield Text("Reaktion von: H<SUB>3</SUB>O<SUP>+</SUP> und OH<SUP>-</SUP> zu 2H<SUB>2</SUB>O")
    yield Tween(1, lambda g, m: (put("h3o", 0.3 * g + 200, 330),
                                 put("oh", 350 - 0.3 * g, 320), *still))
    yield Off(("h3o-cl\\h3o", "h3o-cl\\oh"))
    yield Tween(1, lambda g, m: (put("h2o", 230 - 0.1 * g, 330),
                                 put("h2o-2", 0.1 * g + 320, 330), *still))
    yield Draw()
    yield Text("Das entstandene Wasser 'vermehrt' das umgebende Wasser")
    yield Click()
    yield Tween(1, lambda g, m: (put("h2o", 220, 330, m), put("h2o-2", 330, 330, m)))
    yield Text("Letztendlich wurde ein H<SUB>3</SUB>O<SUP>+</SUP> durch ein Na<SUP>+</SUP> "
               "ersetzt.")
    yield Draw()


def precipitation():
    put = placer("fällung\\")
    nitrate = put("no3", 450, 300)
    yield Clear("fällung\\wanne")
    yield Text("Vorlage von: Cl<SUP>-</SUP> und Na<SUP>+</SUP>")
    yield Tween(2, lambda g, m: (put("cl", 300, g * 2 + 100), put("na", 500, g * 2 + 100)))
    yield Click()
    yield Text("Zugabe von: Ag<SUP>+</SUP> und NO<SUB>3</SUB><SUP>-</SUP>")
    yield Tween(2, lambda g, m: (put("ag", 350, g * 2 + 100), put("no3", 450, g * 2 + 100),
                                 put("cl", 300 - g, 300), put("na", 500 + g, 300)))
    yield Click()
    yield Text("Reaktion von: Ag<SUP>+</SUP> und Cl<SUP>-</SUP>")
    yield Tween(1, lambda g, m: (put("cl", 0.35 * g + 200, 300), put("ag", 350 - 0.35 * g, 300),
                                 put("na", 600, 300), nitrate))
    yield Tween(2, lambda g, m: (put("cl", 235 + 1.15 * g, 300 + 1.5 * g),
                                 put("ag", 315 + 1.15 * g, 300 + 1.5 * g),
                                 put("na", 600 - g / 1.5, 300), nitrate))
    yield Text("Das gebildete Silberchlorid setzt sich als Bodenkörper unten ab")
    yield Click()


@dataclass(frozen=True)
class Animation:
    scene: int
    name: str
    title: str
    button: str  # on the start dialog
    key: int  # of the teacher
    steps: Callable = None  # of a reaction scene, or of one round of it


ANIMATIONS = (
    Animation(7, "conductivity", "the conductivity lesson", "but_IntroLeit", 1),
    Animation(1, "hcl", "HCl in water", "ctl_Button2", 2, hydrogen_chloride),
    Animation(5, "neutral", "the neutralisation", "ctl_Button10", 3, neutralisation),
    Animation(0, "log", "the logarithm lesson", "ctl_Button1", 5),
    Animation(4, "acid", "the weak acid", "ctl_Button6", 6, weak_acid_round),
    Animation(3, "water", "the autoprotolysis", "ctl_Button7", 7, autoprotolysis_round),
    Animation(6, "silver", "the precipitation", "ctl_Button12", 8, precipitation),
)
BY_NAME = {animation.name: animation for animation in ANIMATIONS}
FILMS = tuple(BY_NAME[name] for name in ("hcl", "neutral", "silver"))  # they end
ROUNDS = tuple(BY_NAME[name] for name in ("water", "acid"))  # they go on for ever
