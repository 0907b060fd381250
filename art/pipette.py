"""The 20 frames of the volumetric pipette: full to the ring mark, then empty in even steps of volume.

Usage: pipette.py FOLDER
"""

import sys

from style import *

WIDTH, HEIGHT, AXIS = 48, 419, 24
FRAMES = 20
RING = 104.5
WALL = 2.2
TUBE, BULB, TIP = 6.2, 21.0, 2.6
TOP, TIP_END = 3.0, 419.0

# Right half of the glass from top to tip: straight or cubic pieces of (y, half width).
START = (TOP, TUBE)
PIECES = [
    [(150, TUBE)],
    [(163, TUBE), (160, BULB), (184, BULB)],
    [(258, BULB)],
    [(282, BULB), (279, TUBE), (292, TUBE)],
    [(376, TUBE)],
    [(396, TUBE), (402, TIP + 0.6), (TIP_END, TIP)],
]


def samples():
    """Points (y, half width) along the outside of the glass, about every half pixel."""
    at, rows = START, [START]
    for piece in PIECES:
        steps = max(2, int(2 * (piece[-1][0] - at[0])))
        for i in range(1, steps + 1):
            t = i / steps
            u = 1 - t
            if len(piece) == 1:
                rows.append(tuple(u * a + t * b for a, b in zip(at, piece[0])))
            else:
                b, c, d = piece
                rows.append(tuple(u**3 * at[k] + 3 * u * u * t * b[k] + 3 * u * t * t * c[k] + t**3 * d[k]
                                  for k in (0, 1)))
        at = piece[-1]
    return rows


def wall_at(half):
    return min(WALL, half * 0.42)


def silhouette(inset):
    """A closed outline of the glass; inset 0 is the outside, 1 the inside of the wall."""
    right = [(AXIS + h - inset * wall_at(h), y) for y, h in samples()]
    left = [(2 * AXIS - x, y) for x, y in reversed(right)]
    return "M" + " L".join(f"{x:.2f},{y:.2f}" for x, y in right + left) + " Z"


def half_at(level):
    return min(samples(), key=lambda row: abs(row[0] - level))[1]


def level_for(share):
    """The height at which this share of the volume below the ring mark is still inside."""
    rows = [(y, h - wall_at(h)) for y, h in samples() if y >= RING]
    slices = [(b[0], (b[0] - a[0]) * a[1] ** 2) for a, b in zip(rows, rows[1:])]
    wanted = share * sum(v for _, v in slices)
    held = 0.0
    for y, v in reversed(slices):
        held += v
        if held >= wanted:
            return y
    return RING


def liquid(level):
    half = half_at(level) - wall_at(half_at(level))
    rise = min(3.4, 1.2 + 0.3 * half)
    left, right = AXIS - half - 2, AXIS + half + 2
    top = f"{left},{level - rise} Q{AXIS},{level + rise} {right},{level - rise}"
    body = path(f"M{top} L{right + 30},{level - rise} L46,{HEIGHT} L2,{HEIGHT} L{left - 30},{level - rise} Z",
                "url(#bulb_liquid)")
    line_ = path(f"M{top}", "none", "#4E9799", 1.3)
    return f'<g clip-path="url(#inside)">{body}{line_}</g>'


def reflection(first, last, half, width, opacity):
    """A white line that follows the glass at a distance given by half(outer half width)."""
    edge = [(AXIS + half(h), y) for y, h in samples() if first < y < last]
    d = "M" + " L".join(f"{x:.2f},{y:.2f}" for x, y in edge)
    return path(d, "none", "#FFFFFF", width, f'opacity="{opacity}"')


def shine():
    return (reflection(8, 152, lambda h: -0.5 * h, 1.7, 0.85)
            + reflection(174, 266, lambda h: 7 - h, 2.6, 0.8)
            + reflection(180, 262, lambda h: h - 4.8, 1.2, 0.45)
            + reflection(290, 396, lambda h: -0.5 * h, 1.7, 0.8))


def lettering():
    ring = path(f"M{AXIS - TUBE},{RING - 1} Q{AXIS},{RING + 1.6} {AXIS + TUBE},{RING - 1}", "none", OUTLINE, 1.9)
    return ring + text(AXIS, 220, "10", 17, anchor="middle") + text(AXIS, 236, "mL", 14, anchor="middle")


def frame(number):
    share = (FRAMES - number) / (FRAMES - 1)
    body = path(silhouette(0), "url(#pipette_glass)")
    if share > 0:
        body += liquid(RING if share == 1 else level_for(share))
    body += shine() + lettering()
    body += path(silhouette(0), "none", OUTLINE, 1.6, 'clip-path="url(#frame)"')
    defs = (
        f'<clipPath id="inside"><path d="{silhouette(0.75)}"/></clipPath>'
        f'<clipPath id="frame"><rect width="{WIDTH}" height="{HEIGHT}"/></clipPath>'
        + across("bulb_liquid", (0, LIQUID_DARK), (0.3, LIQUID_LIGHT), (0.62, LIQUID), (1, LIQUID_DARK), span=(3, 45))
        + across("pipette_glass", (0, GLASS_SHADE), (0.3, "#FAFCFC"), (0.62, GLASS), (1, GLASS_SHADE), span=(3, 45))
    )
    return svg(WIDTH, HEIGHT, body, defs)


if __name__ == "__main__":
    for n in range(1, FRAMES + 1):
        write(sys.argv[1], f"ab_{n:02d}.svg", frame(n))
