"""The result dialog's pictures: best mark, good mark, and a spilled beaker for the next try.

Usage: results.py FOLDER
"""

import sys

from banner import erlenmeyer
from style import *

WIDTH, HEIGHT = 260, 200
FLOOR = 178


def floor_shadow(x, half):
    return ellipse(x, FLOOR + 2, half, 6, "#E3ECED")


def leaf(x, y, length, turn):
    d = (f"M0,0 C{length * 0.3},{-length * 0.34} {length * 0.75},{-length * 0.3} {length},0 "
         f"C{length * 0.75},{length * 0.3} {length * 0.3},{length * 0.34} 0,0 Z")
    body = path(d, "url(#leaf)", OUTLINE, 1.5) + line(length * 0.15, 0, length * 0.75, 0, LEAF_DARK, 1)
    return group(body, (f"{x:.1f}", f"{y:.1f}"), f"{turn:.1f}")


def laurel(x, y, radius, first, last, leaves, length):
    """One twig on the left of (x, y); angles in degrees, 90 is below the centre."""
    stem, out = [], ""
    for i in range(leaves):
        angle = first + (last - first) * i / (leaves - 1)
        px = x + radius * math.cos(math.radians(angle))
        py = y + radius * math.sin(math.radians(angle))
        stem.append(f"{px:.1f},{py:.1f}")
        ahead = angle + 90
        out += leaf(px, py, length, ahead - 42) if i < leaves - 1 else ""
        out += leaf(px, py, length, ahead + (30 if i < leaves - 1 else 0))
    return path("M" + " L".join(stem), "none", LEAF_DARK, 2.4) + out


def both_twigs(x, *rest):
    twig = laurel(x, *rest)
    return twig + f'<g transform="translate({2 * x} 0) scale(-1 1)">{twig}</g>'


def star(x, y, r, fill=GOLD, width=1.5):
    rows = []
    for i in range(10):
        angle, reach = math.radians(-90 + 36 * i), r if i % 2 == 0 else 0.45 * r
        rows.append(f"{x + reach * math.cos(angle):.1f},{y + reach * math.sin(angle):.1f}")
    return path("M" + " L".join(rows) + " Z", fill, OUTLINE, width)


def goblet(x, top):
    """A trophy cup of laboratory glass with teal liquid."""
    handle = (f"M{x - 38},{top + 12} C{x - 68},{top + 8} {x - 66},{top + 56} {x - 29},{top + 58}")
    handles = ""
    for colour, wide in ((OUTLINE, 9), ("#E6F0F1", 5.6)):
        handles += path(handle, "none", colour, wide)
        handles += f'<g transform="translate({2 * x} 0) scale(-1 1)">{path(handle, "none", colour, wide)}</g>'
    cup = (f"M{x - 40},{top} C{x - 40},{top + 52} {x - 30},{top + 78} {x - 7},{top + 86} V{top + 104} "
           f"H{x + 7} V{top + 86} C{x + 30},{top + 78} {x + 40},{top + 52} {x + 40},{top} Z")
    fill = (f"M{x - 36.5},{top + 20} C{x - 34},{top + 56} {x - 26},{top + 76} {x},{top + 83.5} "
            f"C{x + 26},{top + 76} {x + 34},{top + 56} {x + 36.5},{top + 20} Z")
    out = handles + path(cup, "url(#glass)", OUTLINE, 2) + path(fill, "url(#liquid)")
    out += ellipse(x, top + 20, 36.5, 4.6, SURFACE, "#4E9799", 1.2)
    out += path(f"M{x - 31},{top + 10} C{x - 30},{top + 40} {x - 26},{top + 58} {x - 17},{top + 70}", "none", "#FFFFFF", 4, 'opacity="0.75"')
    out += ellipse(x, top, 40, 4.4, "#FAFCFC", OUTLINE, 2)
    out += box(x - 20, top + 103, 40, 9, "url(#teal)", OUTLINE, 2, 3)
    out += box(x - 34, top + 112, 68, 18, "url(#teal)", OUTLINE, 2, 4)
    return out + box(x - 18, top + 117, 36, 8, GOLD_LIGHT, OUTLINE, 1.4, 2)


def bubbles(rows):
    return "".join(circle(x, y, r, "#FFFFFF", "#4E9799", 1.3, 'fill-opacity="0.7"') for x, y, r in rows)


LEAF_DEFS = across("leaf", (0, LEAF_DARK), (0.5, LEAF), (1, "#7DBF92")) + down("gold", (0, GOLD_LIGHT), (0.6, GOLD), (1, "#C9962B"))


def win():
    x, top = 130, 49
    body = floor_shadow(x, 92) + both_twigs(x, 100, 88, 114, 206, 7, 27)
    body += goblet(x, top)
    body += star(x, top + 50, 17, "url(#gold)", 1.8)
    body += bubbles([(112, 82, 3), (152, 90, 3.4), (147, 78, 2.2)])
    body += particles([("H3O+", 103, 26, 9), ("OH-", 156, 28, 9), ("H2O", 131, 15, 7),
                       ("Cl-", 77, 30, 7), ("Na+", 183, 30, 7)])
    body += star(58, 14, 7) + star(202, 14, 7) + star(84, 11, 4.5, width=1.2) + star(176, 11, 4.5, width=1.2)
    return svg(WIDTH, HEIGHT, body, LEAF_DEFS)


def rosette(x, y, r):
    ribbon = path(f"M{x - 9},{y + 6} L{x - 17},{y + 42} L{x - 8},{y + 36} L{x},{y + 43} L{x},{y + 8} Z", "url(#teal)", OUTLINE, 1.7)
    ribbon += path(f"M{x + 9},{y + 6} L{x + 17},{y + 42} L{x + 8},{y + 36} L{x},{y + 43} L{x},{y + 8} Z", "url(#teal)", OUTLINE, 1.7)
    rows = []
    for i in range(48):
        reach = r + 1.5 * math.cos(math.radians(12 * 7.5 * i))
        angle = math.radians(7.5 * i)
        rows.append(f"{x + reach * math.cos(angle):.2f},{y + reach * math.sin(angle):.2f}")
    seal = path("M" + " L".join(rows) + " Z", "url(#gold)", OUTLINE, 1.8)
    return ribbon + seal + circle(x, y, r - 6, "#FFFBEF", OUTLINE, 1.4) + star(x, y + 0.5, r - 9, GOLD, 1.3)


def win_small():
    x = 118
    body = floor_shadow(x + 8, 84) + erlenmeyer(x, FLOOR, 116, 128, 0.46)
    body += bubbles([(104, 148, 5), (124, 158, 3.4), (116, 132, 3.2), (92, 162, 3), (112, 106, 2.6)])
    body += particles([("H2O", 114, 30, 8), ("H2O", 141, 17, 6.5), ("H2O", 88, 15, 6.5)])
    body += rosette(168, 118, 25)
    return svg(WIDTH, HEIGHT, body, LEAF_DEFS)


def lying_beaker():
    """A beaker on its side, its mouth to the right, drawn standing and turned."""
    w, h = 74, 92
    glass = f"M0,-{h} V-9 Q0,0 9,0 H{w - 9} Q{w},0 {w},-9 V-{h}"
    rest = (f"M{w - 15},-3.5 C{w - 15},-40 {w - 12},-70 {w - 6},-{h + 2} L{w - 1.5},-{h} "
            f"V-9 Q{w - 2.2},-2.2 {w - 9},-2.2 Z")
    mouth = ellipse(w / 2, -h, w / 2, 7, "#FBFDFD", OUTLINE, 2)
    out = path(glass + " Z", "url(#upright)") + mouth + path(rest, "url(#lying)")
    out += path(f"M{w - 15},-3.5 C{w - 15},-40 {w - 12},-70 {w - 6},-{h + 2}", "none", "#4E9799", 1.2)
    for i in range(1, 6):
        out += line(4, -14 * i, 16 if i % 2 == 0 else 11, -14 * i, OUTLINE, 1.3)
    out += line(20, -h + 14, 20, -16, "#FFFFFF", 4, 'opacity="0.8" stroke-linecap="round"')
    return out + path(glass, "none", OUTLINE, 2)


def sponge(x, y):
    """A sponge that already takes up the edge of the puddle."""
    out = box(x, y - 27, 54, 27, "url(#gold)", OUTLINE, 1.8, 7) + path(
        f"M{x},{y - 9} H{x + 54} V{y - 7} Q{x + 54},{y} {x + 47},{y} H{x + 7} Q{x},{y} {x},{y - 7} Z", "url(#teal)", OUTLINE, 1.8)
    pores = [(10, 20, 2.6), (21, 15, 1.8), (29, 21, 2.4), (41, 17, 2.8), (47, 23, 1.5), (18, 23, 1.3)]
    return out + "".join(circle(x + a, y - b, r, "#B98521") for a, b, r in pores)


def again_arrow(x, y, r):
    """A round arrow: try again."""
    def at(angle, reach):
        return x + reach * math.cos(math.radians(angle)), y + reach * math.sin(math.radians(angle))

    (x0, y0), (x1, y1) = at(-215, r), at(40, r)
    d = f"M{x0:.1f},{y0:.1f} A{r},{r} 0 1 1 {x1:.1f},{y1:.1f}"
    out = path(d, "none", OUTLINE, 11) + path(d, "none", ACCENT, 7.4)
    head = path("M-12,-2 L12,-2 L0,15 Z", ACCENT, OUTLINE, 1.8)
    return out + group(head, (f"{x1:.1f}", f"{y1:.1f}"), 40)


def bad():
    puddle = (f"M98,{FLOOR + 2} C92,{FLOOR - 7} 124,{FLOOR - 9} 140,{FLOOR - 7} C168,{FLOOR - 12} 208,{FLOOR - 8} 214,{FLOOR - 1} "
              f"C220,{FLOOR + 8} 190,{FLOOR + 12} 168,{FLOOR + 10} C140,{FLOOR + 14} 104,{FLOOR + 11} 98,{FLOOR + 2} Z")
    body = ellipse(76, FLOOR + 2, 62, 6, "#E3ECED") + path(puddle, "url(#pool)", OUTLINE, 1.8)
    body += path(f"M152,{FLOOR - 3} C168,{FLOOR - 6} 182,{FLOOR - 5} 190,{FLOOR - 3}", "none", "#FFFFFF", 2.4, 'opacity="0.8"')
    body += group(lying_beaker(), (26, FLOOR - 74), 90)
    body += sponge(190, FLOOR + 7)
    body += particles([("H2O", 160, FLOOR + 2, 6)])
    body += again_arrow(180, 72, 34)
    defs = (down("pool", (0, LIQUID_LIGHT), (1, LIQUID)) + across("lying", (0, LIQUID_LIGHT), (1, LIQUID))
            + down("gold", (0, GOLD_LIGHT), (0.6, GOLD), (1, "#C9962B"))
            + across("upright", (0, "#FFFFFF"), (0.7, GLASS), (1, GLASS_SHADE)))
    return svg(WIDTH, HEIGHT, body, defs)


if __name__ == "__main__":
    for name, picture in (("win", win), ("win_small", win_small), ("bad", bad)):
        write(sys.argv[1], f"{name}.svg", picture())
