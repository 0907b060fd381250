"""The pictures of the conductometric titrations' start forms: one apparatus, three samples and titrants.

Usage: conducto_start.py FOLDER
"""

import sys
from dataclasses import dataclass

from apparatus import *

BEAKER, BEAKER_WIDTH, BEAKER_HEIGHT = 236, 152, 120
ZERO_Y, PIXELS_PER_ML = 360, 0.7
CELL, CELL_TOP, PLATES_Y, CELL_END = 352, 194, 313, 331
METER = (404, 24, 180, 112)
# The round detail shows the lower end of the cell, as much larger as its scale says.
DETAIL, DETAIL_RADIUS, DETAIL_SCALE = (532, 309), 84, 3.3
SEEN_RADIUS = DETAIL_RADIUS / DETAIL_SCALE
LEGEND = 640
# Keeps the number readable where the surface passes behind it.
HALO = f'stroke="{SURFACE}" stroke-width="3" stroke-linejoin="round" paint-order="stroke"'


@dataclass
class Titration:
    name: str
    sample: str
    titrant: str
    reading: str  # mS/cm of 10 mL with c = 1 mol/L in 90 mL of water, from limiting conductivities
    species: dict  # kind of particle: name in the legend
    seen: list  # (kind, x, y) around the cell, from the middle of the detail


PLUS, MINUS = (f'<tspan font-size="13" dy="-6">{sign}</tspan>' for sign in "+–")
HYDRONIUM = 'H<tspan font-size="12" dy="4">3</tspan><tspan dy="-4">O</tspan>' + PLUS

TITRATIONS = (
    Titration("conducto_start", "Salzsäure", "Natronlauge", "42,62",
              {"H3O+": HYDRONIUM, "Cl-": "Cl" + MINUS},
              [("H3O+", 3, -59), ("H3O+", -11, -28), ("Cl-", 14, -22), ("Cl-", -18, 2), ("H3O+", 7, 6), ("Cl-", 13, 33),
               ("H3O+", -12, 36), ("Cl-", 1, 58),
               ("H3O+", -67, 0), ("Cl-", -62, -32), ("H3O+", 67, -5), ("Cl-", 63, 28)]),
    Titration("conducto_weak_start", "Essigsäure", "Natronlauge", "0,46",
              {"HAc": "HAc", "H3O+": HYDRONIUM, "Ac-": "Ac" + MINUS},
              [("HAc", -4, -60), ("HAc", -16, -30), ("HAc", 9, -19), ("HAc", -15, -5), ("H3O+", 8, 9), ("Ac-", 11, 35),
               ("HAc", -16, 30), ("HAc", -3, 56),
               ("HAc", -69, -10), ("HAc", -67, 22), ("HAc", 64, -3), ("HAc", 60, 32)]),
    Titration("conducto_silver_start", "NaCl-Lösung", "Silbernitrat-Lösung", "12,65",
              {"Na+": "Na" + PLUS, "Cl-": "Cl" + MINUS},
              [("Na+", -6, -58), ("Cl-", -16, -28), ("Na+", 9, -22), ("Na+", -14, 0), ("Cl-", 14, 5), ("Cl-", -17, 30),
               ("Na+", 9, 31), ("Cl-", -1, 57),
               ("Cl-", -66, -14), ("Na+", -63, 20), ("Na+", 66, -15), ("Cl-", 65, 18)]),
)


def volume_scale():
    """A mark every 25 mL, every second one lettered."""
    out = ""
    for ml in range(25, 151, 25):
        y, lettered = ZERO_Y - PIXELS_PER_ML * ml, ml % 50 == 0
        out += line(BEAKER + 3, y, BEAKER + (15 if lettered else 10), y, OUTLINE, 1.5 if lettered else 1.2)
        if lettered:
            out += text(BEAKER + 18, y + 4.5, f"{ml} mL" if ml == 150 else ml, 13, extra=HALO if ml == 100 else "")
    return out


def plate(x, y, size):
    """A plate that is seen aslant, its middle at (x, y), with its front edge."""
    half, tall, rise, thick = 2 * size, 11 * size, 1.6 * size, 0.7 * size
    x0, x1, top, bottom = x - half, x + half, y - tall, y + tall
    face = f"M{x0},{top + rise} L{x1},{top - rise} V{bottom - rise} L{x0},{bottom + rise} Z"
    edge = f"M{x0},{top + rise} H{x0 - thick} V{bottom + rise} H{x0} Z"
    return path(face, "url(#platinum)", OUTLINE, 1.3) + path(edge, "#7F8C91", OUTLINE, 1.1)


def cell_end(x, y, size, top):
    """Tube, wires and plates; the tube is open below. The plates' middle is (x, y), the tube begins at `top`."""
    half, end, bow = 15 * size, y + (CELL_END - PLATES_Y) * size, 2.6 * size
    wall = 1.5 if size == 1 else 2.2
    tube = f"M{x - half},{top} V{end} A{half},{bow} 0 0 0 {x + half},{end} V{top}"
    out = path(tube + " Z", "#FFFFFF", extra='opacity="0.3"')
    out += path(f"M{x - half},{end} A{half},{bow} 0 0 1 {x + half},{end}", "none", OUTLINE, 0.6 * wall, 'opacity="0.6"')
    for side in (-1, 1):
        at = x + side * 10 * size
        out += line(at, top, at, y - 11 * size, OUTLINE, 1.3 if size == 1 else 2.4) + plate(at, y, size)
    out += line(x - half + 2.2 * wall, top + 4, x - half + 2.2 * wall, y - 14 * size, "#FFFFFF", wall, 'opacity="0.85"')
    return out + path(tube, "none", OUTLINE, wall)


def cell():
    return cell_end(CELL, PLATES_Y, 1, CELL_TOP + 24) + cap(CELL, CELL_TOP, 14)


def holder():
    """Holds the cell at the beaker's rim."""
    rim = BEAKER + BEAKER_WIDTH
    out = box(rim + 7, 224, 7, 26, "url(#teal)", OUTLINE, 1.6, 3) + box(rim - 11, 224, 7, 26, "url(#teal)", OUTLINE, 1.6, 3)
    return out + box(CELL - 19, 224, rim - CELL + 36, 9, "url(#metal)", OUTLINE, 1.6, 3)


# Bars of a digit: a on top, then clockwise to f, g in the middle.
SEGMENTS = {"0": "abcdef", "1": "bc", "2": "abged", "4": "fgbc", "5": "afgcd", "6": "afgedc"}
BARS = {"a": (0, 0, 1, 0), "b": (1, 0, 1, 1), "c": (1, 1, 1, 2), "d": (0, 2, 1, 2), "e": (0, 1, 0, 2), "f": (0, 0, 0, 1),
        "g": (0, 1, 1, 1)}
DIGIT_WIDTH, DIGIT_HALF, DIGIT_STEP, COMMA_STEP = 14, 15, 20.5, 9


def bar(x0, y0, x1, y1, half=2, gap=0.6):
    """A bar with pointed ends between two corners of a digit."""
    if y0 == y1:
        a, b = x0 + gap, x1 - gap
        return f"M{a},{y0} l{half},{-half} H{b - half} L{b},{y0} l{-half},{half} H{a + half} Z"
    a, b = y0 + gap, y1 - gap
    return f"M{x0},{a} l{half},{half} V{b - half} L{x0},{b} l{-half},{-half} V{a + half} Z"


def digits(right, top, words):
    """The reading in bars, flush right at `right`."""
    x, d = right, ""
    for sign in reversed(words):
        x -= COMMA_STEP if sign == "," else DIGIT_STEP
        if sign == ",":
            low = top + 2 * DIGIT_HALF
            d += f"M{x - 0.4},{low - 2.2} h4.6 v4.6 l-4,5 h-2.4 l1.8,-5 Z"
            continue
        for name in SEGMENTS[sign]:
            x0, y0, x1, y1 = BARS[name]
            d += bar(x + x0 * DIGIT_WIDTH, top + y0 * DIGIT_HALF, x + x1 * DIGIT_WIDTH, top + y1 * DIGIT_HALF)
    return path(d, OUTLINE)


def meter(reading):
    x, y, w, h = METER
    out = box(x, y, w, h, "url(#case)", OUTLINE, 2, 9)
    out += box(x + 11, y + 10, w - 22, 58, "url(#display)", OUTLINE, 1.8, 5)
    out += digits(x + 114, y + 24, reading) + text(x + w - 19, y + 56, "mS/cm", 14, anchor="end")
    out += circle(x + 28, y + 90, 8, WIRE, OUTLINE, 1.6) + circle(x + 28, y + 90, 3, "#FFFFFF", OUTLINE, 1.2)
    for i in range(2):
        out += box(x + 68 + 36 * i, y + 83, 24, 14, "url(#case)", OUTLINE, 1.5, 4)
    return out + circle(x + 155, y + 90, 4, "#7FC98F", OUTLINE, 1.3)


def cable():
    x, y = METER[0] + 28, METER[1] + 90
    return wire(f"M{CELL},{CELL_TOP + 1} V176 Q{CELL},160 {CELL + 16},160 H{x - 14} Q{x},160 {x},146 V{y}")


def turned_back(bar_and_arrow):
    """The arrow's head comes to the left, clear of the cell."""
    return group(bar_and_arrow, (2 * BEAKER + BEAKER_WIDTH - 2, 0), scale="-1 1")


def sight():
    """The lines from the place that the detail enlarges to the detail: the outer tangents of both circles."""
    (x0, y0), r0, (x1, y1), r1 = (CELL, PLATES_Y), SEEN_RADIUS, DETAIL, DETAIL_RADIUS
    along, spread = math.atan2(y1 - y0, x1 - x0), math.acos((r0 - r1) / math.hypot(x1 - x0, y1 - y0))
    rows = []
    for angle in (along - spread, along + spread):
        rows.append([(x + r * math.cos(angle), y + r * math.sin(angle)) for x, y, r in ((x0, y0, r0), (x1, y1, r1))])
    (a, b), (c, d) = rows
    wedge = "M" + " L".join(f"{x:.1f},{y:.1f}" for x, y in (a, b, d, c)) + " Z"
    out = path(wedge, "#FFFFFF", extra='opacity="0.35"')
    for (ax, ay), (bx, by) in rows:
        out += line(f"{ax:.1f}", f"{ay:.1f}", f"{bx:.1f}", f"{by:.1f}", OUTLINE, 1.1)
    return out + circle(x0, y0, r0, "none", OUTLINE, 1.3)


RADII = {"H3O+": 7, "HAc": 7}  # to the others as in the simulation
USUAL_RADIUS = 5.6


def detail(rows):
    x, y = DETAIL
    inside = circle(x, y, DETAIL_RADIUS, "#D9EEEE") + cell_end(x, y, DETAIL_SCALE, y - DETAIL_RADIUS - 4)
    inside += particles([(kind, x + dx, y + dy, RADII.get(kind, USUAL_RADIUS)) for kind, dx, dy in rows])
    clip = f'<clipPath id="detail"><circle cx="{x}" cy="{y}" r="{DETAIL_RADIUS}"/></clipPath>'
    return clip + f'<g clip-path="url(#detail)">{inside}</g>' + circle(x, y, DETAIL_RADIUS, "none", OUTLINE, 2)


def legend(species):
    """The names of the particles, from below the label of the plates on."""
    out = ""
    for i, (kind, name) in enumerate(species.items()):
        y = 324 + 30 * i
        out += particle(kind, LEGEND, y, RADII.get(kind, USUAL_RADIUS)) + label(LEGEND + 20, y + 6, name)
    return out


def labels(titration):
    x, y, w, _ = METER
    out = leader((216, 126), (267, 126))
    out += label(210, 110, "Bürette mit", titration.titrant, "c = 1 mol/L", anchor="end")
    out += leader((x + w + 10, y + 54), (x + w - 6, y + 54)) + label(x + w + 14, y + 54, "Leitfähigkeits-", "Messgerät")
    out += leader((388, 205), (CELL + 14, 205)) + label(393, 211, "Leitfähigkeits-Messzelle")
    out += leader((632, 262), (568, 282)) + label(630, 258, "Platin-", "platten")
    out += leader((216, 335), (260, 335))
    out += label(210, 319, "10 mL " + titration.sample, "und 90 mL", "dest. Wasser", anchor="end")
    return out + leader((196, 386), (226, 386)) + label(190, 392, "Magnetrührer", anchor="end")


DEFS_HERE = (
    APPARATUS_DEFS
    + across("platinum", (0, "#AEB8BC"), (0.5, "#E9EDEF"), (1, "#9DA8AD"))
    + down("display", (0, "#D5E6DC"), (1, "#E6F2EA"))
)


def picture(titration):
    body = bench() + stand() + stirrer() + cable()
    body += open_beaker(BEAKER, STIRRER_TOP, BEAKER_WIDTH, BEAKER_HEIGHT, ZERO_Y - 100 * PIXELS_PER_ML, "liquid",
                        volume_scale(), turned_back(stir_bar()) + cell())
    body += holder() + burette() + meter(titration.reading)
    body += sight() + detail(titration.seen) + legend(titration.species) + labels(titration)
    return svg(WIDTH, HEIGHT, body, DEFS_HERE)


if __name__ == "__main__":
    for row in TITRATIONS:
        write(sys.argv[1], row.name + ".svg", picture(row))
