"""The glass trough of the reaction scenes, cut open, on a dark plinth that bears the text of the step.

Places are those of the stage (800 x 600); the sprite's middle stands at (400, 300).
"""

import math

from style import ACCENT_DARK, GLASS, GLASS_SHADE, LIQUID, LIQUID_DARK, LIQUID_LIGHT, OUTLINE, SURFACE
from wmf import Picture, bezier, mix

LEFT, RIGHT, RIM, FLOOR, SURFACE_AT = 50, 750, 201, 482, 224
WALL, BASE, BEND = 8, 6, 30
PLINTH = (62, 486, 676, 30)  # x, y, width, height
WIDTH, HEIGHT = 724, 438
BANDS = 20


def _stage(points):
    return [(x - 400 + WIDTH / 2, y - 300 + HEIGHT / 2) for x, y in points]


def _mirrored(points):
    return [(800 - x, y) for x, y in reversed(points)]


def _wall(x, bottom, bend, top):
    """The left half of a contour, from the top downwards to the floor."""
    corner = bezier((x, bottom - bend), (x, bottom - 0.45 * bend), (x + 0.45 * bend, bottom), (x + bend, bottom))
    return [(x, top)] + corner


def _inner_x(y):
    """Left edge of the liquid at a height."""
    x, bend = LEFT + WALL, BEND - 4
    below = y - (FLOOR - bend)
    return x + (bend - math.sqrt(max(0.0, bend * bend - below * below)) if below > 0 else 0)


def _liquid(picture):
    top_colour, bottom_colour = mix(LIQUID_LIGHT, LIQUID, 0.3), mix(LIQUID, LIQUID_DARK, 0.75)
    height = (FLOOR - SURFACE_AT) / BANDS
    for i in range(BANDS):
        edge = [(_inner_x(y), y) for y in (SURFACE_AT + height * (i + k / 4) for k in range(5))]
        if i + 1 < BANDS:  # the next band covers the overlap, so that no seam opens
            edge.append((edge[-1][0], edge[-1][1] + 1))
        picture.polygon(_stage(edge + _mirrored(edge)), mix(top_colour, bottom_colour, i / (BANDS - 1)))


def _surface(picture):
    """The liquid creeps up the glass."""
    left, y = LEFT + WALL, SURFACE_AT
    creep = bezier((left, y - 9), (left + 2, y - 3), (left + 8, y), (left + 22, y))
    picture.polygon(_stage(creep + _mirrored(creep) + [(800 - left, y + 5), (left, y + 5)]), SURFACE)
    picture.polyline(_stage(creep + _mirrored(creep)), "#4E9799", 1.6)


def _glass(picture):
    x, y = LEFT, RIM
    lip = bezier((x - 8, y - 2), (x - 3, y + 1), (x, y + 5), (x, y + 14), steps=8)
    rim = bezier((x - 8, y - 2), (x - 9, y - 6), (x - 5, y - 8), (x - 2, y - 6), (x + 5, y - 2), (x + WALL, y + 4),
                 (x + WALL, y + 14), steps=8)
    outer = lip + _wall(x, FLOOR + BASE, BEND, y + 15)
    inside = rim + _wall(x + WALL, FLOOR, BEND - 4, y + 15)
    contour = outer + _mirrored(outer) + [(800 - px, py) for px, py in inside] + inside[::-1]
    picture.polygon(_stage(contour), GLASS, OUTLINE, 2)


def _lights(picture):
    for x, top, bottom, pen in ((LEFT + 20, 250, 420, 5), (LEFT + 30, 250, 300, 2.5), (RIGHT - 17, 262, 440, 3)):
        picture.polyline(_stage([(x, top), (x, bottom)]), mix(LIQUID, "#FFFFFF", 0.75), pen)
    picture.polyline(_stage([(LEFT + 3, RIM + 16), (LEFT + 3, FLOOR - 30)]), "#FFFFFF", 2)
    picture.polyline(_stage([(RIGHT - 3, RIM + 16), (RIGHT - 3, FLOOR - 30)]), GLASS_SHADE, 2)


def basin():
    picture = Picture(WIDTH, HEIGHT)
    x, y, width, height = PLINTH
    (px, py), = _stage([(x, y)])
    picture.round_rectangle(px, py, width, height, 8, ACCENT_DARK, OUTLINE, 2)
    _liquid(picture)
    _surface(picture)
    _glass(picture)
    _lights(picture)
    return picture
