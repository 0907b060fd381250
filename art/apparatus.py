"""What the pictures of an apparatus share: the bench with stand, burette and stirrer, beakers, wires, labels.

Stand, burette and stirrer keep their places, so that the pictures of all titrations are alike.
"""

from banner import BENCH, BENCH_EDGE
from style import *

WIDTH, HEIGHT, FLOOR = 720, 440, 410
LABEL = 17
BURETTE, BURETTE_TOP, BURETTE_TIP = 284, 14, 218
STIRRER_TOP = 362
WIRE, WIRE_PLUS = "#33474C", "#B23A3A"


def label(x, y, *rows, anchor="start"):
    return "".join(text(x, y + 21 * i, words, LABEL, OUTLINE, anchor, "normal") for i, words in enumerate(rows))


def leader(*points):
    """A thin line that ends in a dot on the thing it names."""
    rows = " L".join(f"{x},{y}" for x, y in points)
    halo = path("M" + rows, "none", GROUND, 3)
    return halo + path("M" + rows, "none", OUTLINE, 1.1) + circle(*points[-1], 2.4, OUTLINE)


def bench():
    return box(0, FLOOR, WIDTH, HEIGHT - FLOOR, BENCH) + line(0, FLOOR, WIDTH, FLOOR, BENCH_EDGE, 2)


def filling(x, y, w, level, fill, opacity=1):
    return path(f"M{x + 2},{level} V{y - 10} Q{x + 2},{y - 2} {x + 10},{y - 2} H{x + w - 10} "
                f"Q{x + w - 2},{y - 2} {x + w - 2},{y - 10} V{level} Z", fill, extra=f'opacity="{opacity}"')


def beaker_marks(x, y, h, marks):
    """Even marks up to 26 below the rim, every second one longer."""
    heights = [(i, y - 14 - (h - 40) * i / marks) for i in range(1, marks + 1)]
    return "".join(line(x + 3, my, x + (19 if i % 2 == 0 else 13), my, OUTLINE, 1.3) for i, my in heights)


def open_beaker(x, y, w, h, level, fill, scale, things):
    """A beaker whose base stands at y, filled up to the height level, with things that dip into it."""
    top, r, mid = y - h, 10, x + w / 2
    glass = (f"M{x - 6},{top - 4} Q{x},{top - 2} {x},{top + 6} V{y - r} Q{x},{y} {x + r},{y} H{x + w - r} "
             f"Q{x + w},{y} {x + w},{y - r} V{top + 6} Q{x + w},{top - 2} {x + w + 6},{top - 4}")
    out = path(glass + " Z", "#FFFFFF", extra='opacity="0.6"') + filling(x, y, w, level, f"url(#{fill})")
    out += ellipse(mid, level, w / 2 - 2, 6, f"url(#{fill}_top)", "#4E9799", 1.2)
    out += things + filling(x, y, w, level + 3, f"url(#{fill})", 0.3) + scale
    out += line(x + w - 9, top + 14, x + w - 9, y - 16, "#FFFFFF", 3.4, 'opacity="0.75" stroke-linecap="round"')
    return out + path(glass, "none", OUTLINE, 2)


def stand():
    rod, arm = 40, 70
    out = box(14, FLOOR - 9, 150, 9, "url(#metal)", OUTLINE, 1.8, 4)
    out += box(rod - 5, 6, 10, FLOOR - 15, "url(#rod)", OUTLINE, 1.8, 3)
    out += box(rod - 14, arm - 5, BURETTE - rod, 10, "url(#metal)", OUTLINE, 1.6, 3)
    out += box(rod - 11, arm - 13, 22, 26, "url(#metal)", OUTLINE, 1.8, 4)
    return out + circle(rod, arm, 5, METAL_LIGHT, OUTLINE, 1.4)


def burette_tube(inset, top):
    h, n, a = 15 - inset, 5 - 0.7 * inset, BURETTE
    return (f"M{a - h},{top} V148 C{a - h},158 {a - n},158 {a - n},166 V184 H{a + n} V166 "
            f"C{a + n},158 {a + h},158 {a + h},148 V{top}")


def burette():
    a, level = BURETTE, 40
    spout = f"M{a - 4.5},188 V202 L{a - 2.2},{BURETTE_TIP} H{a + 2.2} L{a + 4.5},202 V188 Z"
    out = path(spout, "url(#liquid)", OUTLINE, 1.6)
    out += path(burette_tube(0, BURETTE_TOP) + " Z", "url(#glass)")
    out += path(burette_tube(2, level) + " Z", "url(#liquid)")
    out += path(f"M{a - 13},{level - 3} Q{a},{level + 4} {a + 13},{level - 3} V{level + 4} H{a - 13} Z", "url(#liquid)")
    out += path(f"M{a - 13},{level - 3} Q{a},{level + 4} {a + 13},{level - 3}", "none", "#4E9799", 1.4)
    for i in range(21):
        y, fifth = level + 1 + 5.2 * i, i % 5 == 0
        out += line(a - 13, y, a - (0 if fifth else 6), y, OUTLINE, 1.6 if fifth else 1)
    out += line(a + 8, BURETTE_TOP + 5, a + 8, 146, "#FFFFFF", 3, 'opacity="0.75" stroke-linecap="round"')
    out += path(burette_tube(0, BURETTE_TOP), "none", OUTLINE, 1.8) + ellipse(a, BURETTE_TOP, 15, 2.6, "#FAFCFC", OUTLINE, 1.6)
    return out + clamp() + tap() + drop(a, BURETTE_TIP + 6, 4.6)


def clamp():
    out = ""
    for x in (BURETTE - 25, BURETTE + 15):
        out += box(x, 58, 10, 24, "url(#teal)", OUTLINE, 1.6, 3)
    return out


def tap():
    a = BURETTE
    out = box(a - 11, 176, 22, 15, "url(#glass)", OUTLINE, 1.6, 4)
    out += box(a - 5, 163, 10, 41, "url(#teal)", OUTLINE, 1.6, 5)
    return out + circle(a, 183.5, 7, "#3B9C9C", OUTLINE, 1.6) + line(a, 170, a, 197, "#FFFFFF", 2.2, 'stroke-linecap="round"')


def stirrer():
    left, right = 218, 404
    out = box(left + 8, STIRRER_TOP, right - left - 16, 9, "url(#metal)", OUTLINE, 1.8, 3)
    out += path(f"M{left + 6},{STIRRER_TOP + 9} H{right - 6} L{right},{FLOOR - 3} Q{right},{FLOOR} {right - 4},{FLOOR} "
                f"H{left + 4} Q{left},{FLOOR} {left},{FLOOR - 3} Z", "url(#case)", OUTLINE, 1.8)
    out += circle(262, 390, 12, "url(#teal)", OUTLINE, 1.8) + line(262, 390, 268, 381, "#FFFFFF", 2.6, 'stroke-linecap="round"')
    out += circle(300, 390, 4, "#7FC98F", OUTLINE, 1.3)
    return out + "".join(line(340 + 10 * i, 383, 340 + 10 * i, 397, METAL_DARK, 2.2, 'stroke-linecap="round"') for i in range(5))


def stir_bar():
    """The bar and the direction in which it turns."""
    arrow = path("M276,343 A36,8 0 1 1 346,343", "none", "#FFFFFF", 2.2, 'opacity="0.95"')
    head = path("M346,343 l-8,-4.5 M346,343 l4,-7.5", "none", "#FFFFFF", 2.2)
    return arrow + head + box(288, 346, 46, 10, "url(#bar)", OUTLINE, 1.6, 5)


def cap(x, y, half=9):
    return (box(x - half, y, 2 * half, 24, "url(#dark)", OUTLINE, 1.6, 4)
            + box(x - half - 2, y + 20, 2 * half + 4, 7, "url(#dark)", OUTLINE, 1.6, 3))


def wire(d, colour=WIRE):
    return path(d, "none", OUTLINE, 4.6) + path(d, "none", colour, 2.4)


APPARATUS_DEFS = (
    across("rod", (0, METAL_LIGHT), (0.4, METAL), (1, METAL_DARK))
    + across("silver", (0, "#C9CDD1"), (0.35, "#FFFFFF"), (0.65, "#C4C9CE"), (1, "#8E979D"))
    + across("dark", (0, "#5C747A"), (0.4, "#4A6268"), (1, "#2F454A"))
    + down("case", (0, "#F1F5F6"), (0.5, "#DDE6E8"), (1, "#C3D0D3"))
    + down("liquid_top", (0, SURFACE), (1, SURFACE))
    + down("bar", (0, "#FFFFFF"), (1, "#CBD6D9"))
)
