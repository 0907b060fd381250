"""Water of the logarithm lesson: one oxonium ion among 10, 100, 1 000, 10 000, 100 000 and 10 000 000 molecules.

Usage: powers_of_ten.py FOLDER

The lesson zooms out of each picture into the next. It starts with the old picture laid at 0.9 of its size, 1 % from
the top left corner, over the new one, which is enlarged 1 / 0.333 times. So the new picture repeats the molecules of
the old one in its top left corner, and the ion comes nearer to that corner from picture to picture.

Molecules are placed in a unit square of even density, where the old ones fill the corner with a tenth of the area.
The corner of the picture is a little smaller than that: `on_picture` packs them by a power of the distance from the
corner, which is the same law on every scale and so leaves no seam.
"""

import random
import sys

from style import *

WIDTH, HEIGHT = 480, 470
ZOOM = 0.333
SHARE = 0.9 * ZOOM  # size of an old picture inside the new one
INSET = 0.01 * ZOOM  # its distance from the corner, in sizes of the picture
# The point that every zoom leaves where it is. Left of it and above it there is no molecule.
STILL = (WIDTH * INSET / (1 - SHARE), HEIGHT * INSET / (1 - SHARE))
REACH = (WIDTH - 2 * STILL[0], HEIGHT - 2 * STILL[1])
TENTH = math.sqrt(0.1)  # side of the corner in the unit square
PACKING = math.log(SHARE) / math.log(TENTH)

BODY = 46.0  # radius of the oxygen atom in the first picture
WHITE, BLACK = "#FFFFFF", "#000000"
MARK = "#D40000"
FRAME = 1.6
GRADIENTS = (
    '<radialGradient id="oxygen" cx="0.42" cy="0.42" r="0.6" fx="0.32" fy="0.3"><stop offset="0" stop-color="#8080DC"/>'
    '<stop offset="0.35" stop-color="#1C1C9C"/><stop offset="0.7" stop-color="#000080"/>'
    '<stop offset="1" stop-color="#00004C"/></radialGradient>\n'
    '<radialGradient id="hydrogen" cx="0.42" cy="0.42" r="0.62" fx="0.32" fy="0.3"><stop offset="0.3" stop-color="#FFFFFF"/>'
    '<stop offset="0.75" stop-color="#E4ECEE"/><stop offset="1" stop-color="#B4C4C8"/></radialGradient>\n'
)

# The first picture: places in px, turns in degrees; the ion stands upright.
FIRST = [
    (63, 309, 303), (143, 407, 359), (257, 357, 47), (82, 186, 209), (246, 231, 0),
    (397, 208, 49), (419, 93, 134), (404, 398, 140), (113, 63, 37), (277, 76, 170),
]
ION = 4


def on_picture(x, y):
    m = max(x, y) ** (PACKING - 1)
    return STILL[0] + REACH[0] * x * m, STILL[1] + REACH[1] * y * m


def in_square(x, y):
    x, y = (x - STILL[0]) / REACH[0], (y - STILL[1]) / REACH[1]
    m = max(x, y) ** (1 / PACKING - 1)
    return x * m, y * m


def spread(box, count, disorder, chance):
    """`count` places in a box (left, top, right, bottom): rows set off against each other, disordered."""
    left, top, right, bottom = box
    rows = round((bottom - top) / math.sqrt((right - left) * (bottom - top) / count))
    high = (bottom - top) / rows
    places = []
    for row in range(rows):
        columns = count * (row + 1) // rows - count * row // rows
        wide = (right - left) / columns
        shift = 0.3 if row % 2 else 0.7
        for column in range(columns):
            x = left + (column + shift + chance.uniform(-disorder, disorder)) * wide
            y = top + (row + 0.5 + chance.uniform(-disorder, disorder)) * high
            places.append((x, y))
    return places


def neighbours(places, distance):
    """Pairs of indices of places that may be nearer than `distance` to each other."""
    cells = {}
    for i, (x, y) in enumerate(places):
        cells.setdefault((int(x / distance), int(y / distance)), []).append(i)
    for (cx, cy), here in cells.items():
        for k, i in enumerate(here):
            for j in here[k + 1:]:
                yield i, j
        for step in ((1, 0), (-1, 1), (0, 1), (1, 1)):
            for i in here:
                for j in cells.get((cx + step[0], cy + step[1]), ()):
                    yield i, j


def loosened(places, fixed, steps):
    """Neighbours push each other off; the first `fixed` places and the rims stay."""
    distance = 1.12 / math.sqrt(len(places))
    rim = 0.45 / math.sqrt(len(places))
    for _ in range(steps):
        push = [[0.0, 0.0] for _ in places]
        for i, j in neighbours(places, distance):
            dx, dy = places[j][0] - places[i][0], places[j][1] - places[i][1]
            away = math.hypot(dx, dy)
            if 0 < away < distance:
                by = 0.3 * (distance - away) / away
                push[i][0] -= by * dx
                push[i][1] -= by * dy
                push[j][0] += by * dx
                push[j][1] += by * dy
        moved = [tuple(min(max(c + p, rim), 1 - rim) for c, p in zip(place, by)) for place, by in zip(places, push)]
        places = places[:fixed] + moved[fixed:]
    return places


def grown(places, disorder, steps, corner_stays=True):
    """Ten times as many: the old ones in the corner, in their order, and nine times as many around them."""
    chance = random.Random(len(places))
    total = 10 * len(places)
    corner = [(TENTH * x, TENTH * y) for x, y in places]
    aside = round(total * TENTH * (1 - TENTH))
    around = spread((TENTH, 0, 1, TENTH), aside, disorder, chance)
    around += spread((0, TENTH, 1, 1), total - len(corner) - aside, disorder, chance)
    return loosened(corner + around, len(corner) if corner_stays else ION + 1, steps)


def reach_of(place, turn, r, ion=False):
    """The circles of a molecule: (x, y, radius)."""
    if ion:
        return [(*place, 1.2 * r)] + [(*atom, 0.7 * r) for atom in hydrogens(*place, 0, r) + [top_atom(*place, r)]]
    return [(*place, r)] + [(*atom, r / 2) for atom in hydrogens(*place, turn, r)]


def clearance(one, other):
    least = math.inf
    for x, y, r in one:
        for u, v, s in other:
            between = math.hypot(x - u, y - v) - r - s
            if between < least:
                least = between
    return least


def turned(places, turns, r):
    """Turns of all molecules: the old ones keep theirs, of some turns each new one takes what keeps it clear."""
    chance = random.Random(-len(places))
    near = {i: [] for i in range(len(places))}
    for i, j in neighbours(places, 4 * r):
        near[max(i, j)].append(min(i, j))
    circles = [reach_of(place, turn, r, i == ION) for i, (place, turn) in enumerate(zip(places, turns))]
    turns = list(turns)
    for i in range(len(turns), len(places)):
        tries = []
        for turn in (chance.uniform(0, 360) for _ in range(9)):
            own = reach_of(places[i], turn, r)
            inside = min(min(x - a, WIDTH - x - a, y - a, HEIGHT - y - a) for x, y, a in own)
            bodies = [[(*places[j], r)] if j >= i else circles[j] for j in near[i]]
            tries.append((min([clearance(own, body) for body in bodies] + [inside, 0.2 * r]), -len(tries), turn, own))
        _, _, turn, own = max(tries)
        turns.append(turn)
        circles.append(own)
    return turns


def ball(x, y, r, name, rim):
    return circle(x, y, r, f"url(#{name})", BLACK, rim)


def hydrogens(x, y, turn, r):
    """Their centres in a water molecule; `turn` 0 is as in the simulation."""
    c, s = math.cos(math.radians(turn)), math.sin(math.radians(turn))
    return [(x + c * ax - s * ay, y + s * ax + c * ay) for ax, ay in ((-7 / 6 * r, 0.5 * r), (7 / 6 * r, 0.5 * r))]


def top_atom(x, y, r):
    """Of the ion, whose other atoms lie as in water."""
    return x, y - 1.25 * r


def water(x, y, turn, r, rim):
    small = "".join(ball(*atom, r / 2, "hydrogen", rim) for atom in hydrogens(x, y, turn, r))
    return small + ball(x, y, r, "oxygen", rim)


def oxonium(x, y, r, rim):
    ring, small = max(0.2 * r, 1.0), hydrogens(x, y, 0, r) + [top_atom(x, y, r)]
    halo = [circle(*atom, r / 2 + ring, ACID_RED) for atom in small] + [circle(x, y, r + ring, ACID_RED)]
    arm, half = 0.56 * r, max(0.085 * r, 0.4)
    sign = box(x - arm, y - half, 2 * arm, 2 * half, WHITE) + box(x - half, y - arm, 2 * half, 2 * arm, WHITE)
    return ("".join(halo) + "".join(ball(*atom, r / 2, "hydrogen", rim) for atom in small)
            + ball(x, y, r, "oxygen", rim) + sign)


def pushed_from_disc(places, centre, radius):
    """What lies about the centre moves outwards, the less the farther it is, until none is within the radius."""
    reach = 3 * radius
    moved = []
    for x, y in places:
        away = math.dist((x, y), centre)
        if 0 < away < reach:
            share = (radius + away * (reach - radius) / reach) / away
            x, y = centre[0] + (x - centre[0]) * share, centre[1] + (y - centre[1]) * share
        moved.append((x, y))
    return moved


class Pointer:
    """An arrow to a place from below right; its tip stays `near` away."""

    LENGTH, HEAD, HALF_HEAD, HALF_SHAFT = 44, 14, 6.5, 1.3

    def __init__(self, x, y, near):
        self.tip = (x + near * math.sqrt(0.5), y + near * math.sqrt(0.5))

    def place(self, along, aside):
        c = math.sqrt(0.5)
        return self.tip[0] + c * (along - aside), self.tip[1] + c * (along + aside)

    def half_width(self, along):
        return self.HALF_HEAD * max(along, 0) / self.HEAD if along <= self.HEAD else self.HALF_SHAFT

    def clear(self, places, gap):
        """Moves places sideways from the arrow until none is nearer than the gap."""
        reach, c = 3 * (self.HALF_HEAD + gap), math.sqrt(0.5)
        moved = []
        for x, y in places:
            dx, dy = x - self.tip[0], y - self.tip[1]
            along, aside = c * (dx + dy), c * (dy - dx)
            if -gap <= along <= self.LENGTH + gap and abs(aside) < reach:
                free = max(self.half_width(along), self.half_width(along - gap)) + gap
                x, y = self.place(along, math.copysign(free + abs(aside) * (reach - free) / reach, aside))
            moved.append((x, y))
        return moved

    def drawn(self):
        rows = [(0, 0), (self.HEAD, self.HALF_HEAD), (self.HEAD, self.HALF_SHAFT), (self.LENGTH, self.HALF_SHAFT),
                (self.LENGTH, -self.HALF_SHAFT), (self.HEAD, -self.HALF_SHAFT), (self.HEAD, -self.HALF_HEAD)]
        d = "M" + " L".join(f"{x:.2f},{y:.2f}" for x, y in (self.place(*row) for row in rows)) + " Z"
        return path(d, MARK, LIQUID, 1.4) + path(d, MARK)


def molecules(places, turns, r, pointer_from=None):
    rim = min(max(0.06 * r, 0.3), 1.8)
    x, y = places[ION]
    pointer = Pointer(x, y, pointer_from) if pointer_from else None
    others = [(*place, turn) for i, (place, turn) in enumerate(zip(places, turns)) if i != ION]
    if pointer:
        cleared = pointer.clear([m[:2] for m in others], 1.3 * r)
        others = [(*place, m[2]) for place, m in zip(cleared, others)]
    rows = [water(*m, r, rim) for m in others] + [oxonium(x, y, r, rim)]
    return rows + ([pointer.drawn()] if pointer else [])


def dots(places, r, colour):
    """Round dots as strokes of no length, some hundred to a path. They sit on the pixels of the large twin."""
    def snap(c):
        return (math.floor(3 * c) + 0.5) / 3
    rows = []
    for start in range(0, len(places), 400):
        d = "".join(f"M{snap(x):.2f} {snap(y):.2f}h0" for x, y in places[start:start + 400])
        rows.append(path(d, "none", colour, 2 * r))
    return rows


def specks(places, turns, r, ion_radius, with_hydrogen):
    x, y = places[ION]
    pointer = Pointer(x, y, ion_radius + 3)
    rim = FRAME + r + 0.2
    low_end, high_end = (rim, rim), (WIDTH - rim, HEIGHT - rim)
    others = [place for i, place in enumerate(places) if i != ION]
    others = pointer.clear(pushed_from_disc(others, (x, y), ion_radius + r), r + 0.8)
    others = [tuple(min(max(c, low), high) for c, low, high in zip(place, low_end, high_end)) for place in others]
    rows = []
    if with_hydrogen:
        small = [atom for place, turn in zip(others, turns) for atom in hydrogens(*place, turn, 0.85 * r)]
        rows += dots(small, r / 2, WHITE)
    return rows + dots(others, r, WATER_BLUE) + [circle(x, y, ion_radius, ACID_RED), pointer.drawn()]


LETTERING = "#16323A"
# The mean colour of the hundred thousand, and its ripples.
MIDDLE, LIGHT, DEEP, GLINT = "#6688B3", "#7899C0", "#577AA8", "#9BB9D2"


def formula(x, y, words, size, weight="normal"):
    """Centred text with the digit and the sign of H3O+ in their places."""
    small = f'font-size="{0.68 * size:.1f}"'
    down, up, blank = 0.2 * size, 0.36 * size, 0.3 * size
    ion = (f'H<tspan {small} dy="{down:.1f}">3</tspan><tspan dy="-{down:.1f}">O</tspan>'
           f'<tspan {small} dy="-{up:.1f}">+</tspan>')
    head, _, tail = words.partition("H3O+")
    if tail:
        tail = f'<tspan dx="{blank:.1f}" dy="{up:.1f}">{tail.strip()}</tspan>'
    return text(x, y, head + ion + tail if "H3O+" in words else words, size, LETTERING, "middle", weight)


def ripples():
    """Light on the water: short flat waves, fine as grain."""
    chance = random.Random(7)
    rows = []
    for colour, count in ((DEEP, 2600), (LIGHT, 2600), (GLINT, 700)):
        d = ""
        for _ in range(count):
            x, y, wide = chance.uniform(-6, WIDTH), chance.uniform(0, HEIGHT), chance.uniform(3, 9)
            d += f"M{x:.1f} {y:.1f}q{wide / 4:.1f}-1.2 {wide / 2:.1f} 0t{wide / 2:.1f} 0"
        rows.append(path(d, "none", colour, 0.8))
    return rows


def ten_million():
    """Nothing is left but the colour that they all give together."""
    wide, high = 404, 176
    left, top = (WIDTH - wide) / 2, (HEIGHT - high) / 2
    middle = WIDTH / 2
    return [box(0, 0, WIDTH, HEIGHT, MIDDLE)] + ripples() + [
        box(left, top, wide, high, WHITE, OUTLINE, 1.6, 12),
        text(middle, top + 46, "10 Millionen Wasser-Moleküle", 25, LETTERING, "middle"),
        formula(middle, top + 88, "In diesem Maßstab sind sie", 22),
        formula(middle, top + 118, "nicht mehr zu sehen \u2013", 22),
        formula(middle, top + 150, "auch das eine H3O+ nicht.", 22),
    ]


def pictures():
    places, turns = [in_square(x, y) for x, y, _ in FIRST], [turn for _, _, turn in FIRST]
    yield molecules([on_picture(*p) for p in places], turns, BODY)
    r = BODY
    for steps, pointer_from in ((14, None), (6, 12)):
        r *= SHARE
        places = grown(places, 0.3, steps)
        shown = [on_picture(*p) for p in places]
        turns = turned(shown, turns, r)
        yield molecules(shown, turns, r, pointer_from)
    places = grown(places, 0.32, 4, corner_stays=False)
    shown = [on_picture(*p) for p in places]
    yield specks(shown, turned(shown, turns, 1.2), 1.25, 2.6, True)
    places = grown(places, 0.22, 2, corner_stays=False)
    yield specks([on_picture(*p) for p in places], (), 0.5, 1.5, False)
    yield ten_million()


def main():
    for number, rows in enumerate(pictures(), 1):
        rows.insert(0, box(0, 0, WIDTH, HEIGHT, LIQUID))
        # A frame: while it shrinks in the corner of the next one, it reads as the old picture.
        rows.append(box(FRAME / 2, FRAME / 2, WIDTH - FRAME, HEIGHT - FRAME, "none", WHITE, FRAME))
        write(sys.argv[1], f"f{number}.svg", svg(WIDTH, HEIGHT, "\n".join(rows), GRADIENTS))


if __name__ == "__main__":
    main()
