"""The magnifying glass: the frames of the glass that slides in, and the glass that fills the screen.

Usage: magnifier.py FOLDER
"""

import sys

from style import *

FRAMES = 6
SLIDE = (556, 264)
SLIDE_CENTRE, SLIDE_RADIUS, SLIDE_RIM, SLIDE_TILT = (128, 131), 123, 8.5, 12
HANDLE_END = 3.42  # radii from the centre
LENS = (592, 444)
LENS_CENTRE, LENS_REACH, LENS_RIM = (282.5, 219.5), (195.5, 195), 11
# A little squarer than an ellipse: the opening holds the corners of the scene, and a rim is left.
LENS_POWER = 2.2
# Where the mask meets the screen, the copy mixes neighbours bit by bit: next to black it only darkens.
EDGE = 0.9

PALE, PALE_EDGE = "#E0F0F1", "#BDD9DB"


def ring_points(centre, reach, power, steps=240):
    (x, y), (a, b) = centre, reach
    rows = []
    for i in range(steps):
        c, s = math.cos(2 * math.pi * i / steps), math.sin(2 * math.pi * i / steps)
        rows.append((x + a * math.copysign(abs(c) ** (2 / power), c),
                     y + b * math.copysign(abs(s) ** (2 / power), s)))
    return rows


def closed(rows):
    return "M" + " L".join(f"{x:.2f},{y:.2f}" for x, y in rows) + " Z"


def ring(centre, reach, inset, power=2):
    """A closed outline that lies `inset` inside the ellipse with the half axes `reach`."""
    return closed(ring_points(centre, (reach[0] - inset, reach[1] - inset), power))


def band(centre, reach, first, last, power=2):
    """The ring between two insets, to be filled by the even-odd rule."""
    return ring(centre, reach, first, power) + " " + ring(centre, reach, last, power)


def rim(centre, reach, thick, power=2):
    """Polished metal: the outer bevel faces the light at top left, the inner one at bottom right."""
    hole, middle = 'fill-rule="evenodd"', 0.58 * thick
    out = path(band(centre, reach, 0, thick, power), "url(#rim)", extra=hole)
    out += path(band(centre, reach, middle, thick, power), "url(#rim_inside)", extra=hole)
    out += path(ring(centre, reach, middle, power), "none", METAL_DARK, 0.8)
    return out + "".join(path(ring(centre, reach, at, power), "none", OUTLINE, 1.8) for at in (0, thick))


def rim_glint(centre, reach, thick, middle, half, power=2):
    """A white reflection on the outer bevel; angles in degrees, 225 is top left."""
    rows = ring_points(centre, (reach[0] - 0.3 * thick, reach[1] - 0.3 * thick), power, 360)
    arc = [rows[round(angle) % 360] for angle in range(round(middle - half), round(middle + half) + 1)]
    d = "M" + " L".join(f"{x:.2f},{y:.2f}" for x, y in arc)
    return path(d, "none", "#FFFFFF", 0.26 * thick)


def barrel(start, end, narrow, wide):
    """A turned grip along the x axis with a rounded end."""
    return (f"M{start},{-narrow} C{start + 0.25 * (end - start)},{-wide * 1.1} {end - 1.6 * wide},{-wide * 1.1} {end - wide * 0.8},{-wide * 0.92} "
            f"Q{end},{-wide * 0.85} {end},0 Q{end},{wide * 0.85} {end - wide * 0.8},{wide * 0.92} "
            f"C{end - 1.6 * wide},{wide * 1.1} {start + 0.25 * (end - start)},{wide * 1.1} {start},{narrow} Z")


def handle_parts(r, end):
    """Neck, grip, gold ring and collar along the x axis as (path, fill); the rim has the radius r."""
    neck, collar, ring_ = 1.16 * r, 1.3 * r, 1.36 * r

    def bar(x0, x1, half):
        return f"M{x0},{-half} H{x1} V{half} H{x0} Z"

    return [(bar(0.985 * r, neck + 2, 0.062 * r), "url(#steel)"),
            (barrel(collar, end, 0.105 * r, 0.135 * r), "url(#grip)"),
            (bar(collar, ring_, 0.125 * r), "url(#brass)"),
            (bar(neck, collar, 0.118 * r), "url(#steel)")]


def handle(r, end, width=1.8):
    out = "".join(path(d, fill, OUTLINE, width) for d, fill in handle_parts(r, end))
    y = -0.068 * r
    return out + line(1.45 * r, y, end - 0.22 * r, y - 0.018 * r, "#FFFFFF", 0.034 * r,
                      'opacity="0.55" stroke-linecap="round"')


def lune(r, first, last, fill, edge="none"):
    """The part of a disc between two of its meridians, at shares -1 to 1 of the radius along the x axis."""
    d = (f"M0,{-r} A{max(abs(first) * r, 0.01):.2f},{r} 0 0 {int(first > 0)} 0,{r} "
         f"A{max(abs(last) * r, 0.01):.2f},{r} 0 0 {int(last < 0)} 0,{-r} Z")
    return path(d, fill, edge, 1)


def gleam(r, at):
    """The reflection of the window at a share of the way over the glass, with its companion."""
    wide = lune(r, at, at + 0.2, PALE, PALE_EDGE) + lune(0.97 * r, at + 0.05, at + 0.14, "#FFFFFF")
    return wide + lune(r, at + 0.27, at + 0.33, PALE, PALE_EDGE)


def turned_metal(name, half, *stops):
    """A gradient across the handle, which is turned: the box of a turned shape would be too large."""
    rows = "".join(f'<stop offset="{o}" stop-color="{c}"/>' for o, c in stops)
    return (f'<linearGradient id="{name}" gradientUnits="userSpaceOnUse" x1="0" x2="0" '
            f'y1="{-half:.2f}" y2="{half:.2f}">{rows}</linearGradient>\n')


def bevel(name, *stops):
    rows = "".join(f'<stop offset="{o}" stop-color="{c}"/>' for o, c in stops)
    return f'<linearGradient id="{name}" x2="1" y2="1">{rows}</linearGradient>\n'


def defs(r):
    return (bevel("rim", (0, "#F6FAFA"), (0.45, METAL), (1, "#5F777C"))
            + bevel("rim_inside", (0, "#6D858A"), (0.55, METAL), (1, "#EEF4F5"))
            + turned_metal("steel", 0.12 * r, (0, METAL_LIGHT), (0.3, "#EEF3F4"), (0.6, METAL), (1, METAL_DARK))
            + turned_metal("grip", 0.15 * r, (0, ACCENT), (0.25, "#45A8A8"), (0.6, ACCENT), (1, "#17575A"))
            + turned_metal("brass", 0.13 * r, (0, GOLD), (0.25, GOLD_LIGHT), (0.6, GOLD), (1, "#B98521")))


def slide(number):
    """The glass at the left, its handle to the right; the gleam wanders from top left to bottom right."""
    r, (x, y) = SLIDE_RADIUS, SLIDE_CENTRE
    share = (number - 1) / (FRAMES - 1)
    inner = r - SLIDE_RIM
    shade = lune(inner - 1, 0.9, 0.995, "#CFE4E6")
    inside = group(shade + gleam(0.96 * inner, -0.9 + 1.42 * share), SLIDE_CENTRE, 45)
    body = inside + group(handle(r, HANDLE_END * r), SLIDE_CENTRE, SLIDE_TILT)
    body += rim(SLIDE_CENTRE, (r, r), SLIDE_RIM)
    body += rim_glint(SLIDE_CENTRE, (r, r), SLIDE_RIM, 195 + 60 * share, 24)
    return svg(*SLIDE, body, defs(r))


def silhouette(r, turn):
    """Everything that the big glass paints, a little wider and black."""
    wide = 1.8 + 2 * EDGE
    rim_ = path(band(LENS_CENTRE, LENS_REACH, 0, LENS_RIM, LENS_POWER), "#000000", "#000000", wide, 'fill-rule="evenodd"')
    parts = "".join(path(d, "#000000", "#000000", wide) for d, _ in handle_parts(r, HANDLE_END * r))
    return rim_ + group(parts, LENS_CENTRE, turn)


def lens():
    """The same glass near the eye: its handle runs out of the picture at the lower right corner."""
    turn = math.degrees(math.atan2(LENS[1] - LENS_CENTRE[1], LENS[0] - LENS_CENTRE[0]))
    r = LENS_REACH[0]
    body = silhouette(r, turn) + group(handle(r, HANDLE_END * r), LENS_CENTRE, turn)
    body += rim(LENS_CENTRE, LENS_REACH, LENS_RIM, LENS_POWER)
    body += rim_glint(LENS_CENTRE, LENS_REACH, LENS_RIM, 222, 26, LENS_POWER)
    body += rim_glint(LENS_CENTRE, LENS_REACH, LENS_RIM, 254, 3, LENS_POWER)
    return svg(*LENS, body, defs(r))


if __name__ == "__main__":
    for n in range(1, FRAMES + 1):
        write(sys.argv[1], f"magnify{n}.svg", slide(n))
    write(sys.argv[1], "lens.svg", lens())
