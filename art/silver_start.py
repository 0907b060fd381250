"""The picture of the silver titration's start form: the apparatus with its labels.

Usage: silver_start.py FOLDER
"""

import sys

from banner import BENCH, BENCH_EDGE
from style import *

WIDTH, HEIGHT, FLOOR = 720, 440, 410
LABEL = 17
BURETTE, BURETTE_TOP, BURETTE_TIP = 284, 14, 218
SILVER, REFERENCE = 332, 550
STIRRER_TOP = 362
METER = (462, 30, 148, 112)
WIRE, WIRE_PLUS = "#33474C", "#B23A3A"


def label(x, y, *rows, anchor="start"):
    return "".join(text(x, y + 21 * i, words, LABEL, OUTLINE, anchor, "normal") for i, words in enumerate(rows))


def leader(*points):
    """A thin line that ends in a dot on the thing it names."""
    rows = " L".join(f"{x},{y}" for x, y in points)
    halo = path("M" + rows, "none", GROUND, 3)
    return halo + path("M" + rows, "none", OUTLINE, 1.1) + circle(*points[-1], 2.4, OUTLINE)


def filling(x, y, w, level, fill, opacity=1):
    return path(f"M{x + 2},{level} V{y - 10} Q{x + 2},{y - 2} {x + 10},{y - 2} H{x + w - 10} "
                f"Q{x + w - 2},{y - 2} {x + w - 2},{y - 10} V{level} Z", fill, extra=f'opacity="{opacity}"')


def open_beaker(x, y, w, h, level, fill, marks, things):
    """A beaker whose base stands at y, filled up to the height level, with things that dip into it."""
    top, r, mid = y - h, 10, x + w / 2
    glass = (f"M{x - 6},{top - 4} Q{x},{top - 2} {x},{top + 6} V{y - r} Q{x},{y} {x + r},{y} H{x + w - r} "
             f"Q{x + w},{y} {x + w},{y - r} V{top + 6} Q{x + w},{top - 2} {x + w + 6},{top - 4}")
    out = path(glass + " Z", "#FFFFFF", extra='opacity="0.6"') + filling(x, y, w, level, f"url(#{fill})")
    out += ellipse(mid, level, w / 2 - 2, 6, f"url(#{fill}_top)", "#4E9799", 1.2)
    out += things + filling(x, y, w, level + 3, f"url(#{fill})", 0.3)
    for i in range(1, marks + 1):
        my = y - 14 - (h - 40) * i / marks
        out += line(x + 3, my, x + (19 if i % 2 == 0 else 13), my, OUTLINE, 1.3)
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


def cap(x, y):
    return box(x - 9, y, 18, 24, "url(#dark)", OUTLINE, 1.6, 4) + box(x - 11, y + 20, 22, 7, "url(#dark)", OUTLINE, 1.6, 3)


def silver_electrode(y=196):
    rod = box(SILVER - 4.5, y + 24, 9, 104, "url(#silver)", OUTLINE, 1.6, 2)
    return rod + cap(SILVER, y)


def reference_electrode(y=246):
    """A silver wire with its coat of silver chloride in a tube of its own, open to the liquid by a frit."""
    x = REFERENCE
    out = path(f"M{x - 9},{y + 24} V390 Q{x - 9},397 {x - 4},397 H{x + 4} Q{x + 9},397 {x + 9},390 V{y + 24} Z", "#FFFFFF", OUTLINE, 1.7)
    out += path(f"M{x - 7},{y + 44} V389 Q{x - 7},395 {x - 3.5},395 H{x + 3.5} Q{x + 7},395 {x + 7},389 V{y + 44} Z", "#DCEBF4")
    out += box(x - 1.5, y + 24, 3, 100, "url(#silver)", OUTLINE, 0.9)
    out += box(x - 3, y + 70, 6, 56, "#8C8794", OUTLINE, 1.1, 2)
    out += box(x - 4, 392, 8, 6, "#FFFFFF", OUTLINE, 1.3, 1)
    out += line(x - 5.2, y + 32, x - 5.2, 384, "#FFFFFF", 1.8, 'opacity="0.9"')
    return out + cap(x, y)


def salt_bridge():
    left, right, top = 364, 500, 222
    d = f"M{left},326 V{top + 22} Q{left},{top} {left + 22},{top} H{right - 22} Q{right},{top} {right},{top + 22} V378"
    out = path(d, "none", OUTLINE, 15, 'style="stroke-linecap:butt"') + path(d, "none", "#FAFCFC", 11.4, 'style="stroke-linecap:butt"')
    out += path(d, "none", "#E9DDB8", 8, 'style="stroke-linecap:butt"')
    out += path(f"M{left - 3.2},320 V{top + 22} Q{left - 3.2},{top - 3} {left + 22},{top - 3} H{right - 22}", "none", "#FFFFFF", 1.8, 'opacity="0.9"')
    return out + "".join(box(x - 7.5, y - 5, 15, 9, "#FFFFFF", OUTLINE, 1.6, 2) for x, y in ((left, 327), (right, 379)))


def second_leg(body):
    """What of the bridge dips into the second beaker; the liquid of the first one lies over the rest."""
    cut = '<clipPath id="leg"><rect x="480" y="296" width="40" height="100"/></clipPath>'
    return f'{cut}<g clip-path="url(#leg)">{body}</g>'


def dial(x, y, r):
    """An arc with ticks; the needle points at 0.3 of the way."""
    def at(share, reach):
        angle = math.radians(-150 + 120 * share)
        return x + reach * math.cos(angle), y + reach * math.sin(angle)

    (x0, y0), (x1, y1) = at(0, r), at(1, r)
    out = path(f"M{x0:.1f},{y0:.1f} A{r},{r} 0 0 1 {x1:.1f},{y1:.1f}", "none", OUTLINE, 1.6)
    for i in range(11):
        (ax, ay), (bx, by) = at(i / 10, r), at(i / 10, r - (9 if i % 5 == 0 else 5.5))
        out += line(f"{ax:.1f}", f"{ay:.1f}", f"{bx:.1f}", f"{by:.1f}", OUTLINE, 1.8 if i % 5 == 0 else 1.2)
    nx, ny = at(0.3, r - 5)
    return out + line(x, y, f"{nx:.1f}", f"{ny:.1f}", POINT_RED, 2.2, 'stroke-linecap="round"')


def voltmeter():
    x, y, w, h = METER
    mid = x + w / 2
    out = box(x, y, w, h, "url(#case)", OUTLINE, 2, 9)
    out += f'<clipPath id="window"><rect x="{x + 11}" y="{y + 10}" width="{w - 22}" height="62" rx="5"/></clipPath>'
    face = box(x + 11, y + 10, w - 22, 62, "#FFFFFF") + dial(mid, y + 84, 66) + text(mid, y + 63, "V", 20, anchor="middle")
    out += f'<g clip-path="url(#window)">{face}</g>' + box(x + 11, y + 10, w - 22, 62, "none", OUTLINE, 1.8, 5)
    out += circle(mid, y + 84, 11, "url(#case)", OUTLINE, 1.6) + line(mid, y + 84, mid, y + 76, OUTLINE, 2)
    for at, colour in ((x + 26, WIRE_PLUS), (REFERENCE + 28, WIRE)):
        out += circle(at, y + 92, 8, colour, OUTLINE, 1.6) + circle(at, y + 92, 3, "#FFFFFF", OUTLINE, 1.2)
    return out


def wires():
    x, y = METER[0] + 26, METER[1] + 92
    out = ""
    silver = f"M{SILVER},197 V174 Q{SILVER},158 {SILVER + 16},158 H{x - 14} Q{x},158 {x},144 V{y + 4}"
    right = REFERENCE + 28
    reference = f"M{REFERENCE},247 V196 Q{REFERENCE},182 {REFERENCE + 12},180 Q{right},178 {right},164 V{y + 4}"
    for d, colour in ((silver, WIRE_PLUS), (reference, WIRE)):
        out += path(d, "none", OUTLINE, 4.6) + path(d, "none", colour, 2.4)
    return out


def labels():
    out = leader((210, 126), (267, 126)) + label(62, 110, "Bürette mit", "Silbernitrat-Lösung")
    out += leader((362, 196), (SILVER + 2, 236)) + label(350, 190, "Silberelektrode")
    out += leader((620, 84), (602, 84)) + label(626, 90, "Voltmeter")
    out += leader((592, 226), (REFERENCE + 5, 285)) + label(580, 220, "Bezugselektrode")
    out += leader((442, 256), (442, 224)) + label(442, 272, "Salzbrücke", anchor="middle")
    out += leader((216, 308), (266, 308)) + label(210, 312, "Natriumchlorid-", anchor="end") + label(210, 333, "Lösung", anchor="end")
    return out + leader((196, 386), (226, 386)) + label(190, 392, "Rührer", anchor="end")


DEFS_HERE = (
    across("rod", (0, METAL_LIGHT), (0.4, METAL), (1, METAL_DARK))
    + across("silver", (0, "#C9CDD1"), (0.35, "#FFFFFF"), (0.65, "#C4C9CE"), (1, "#8E979D"))
    + across("dark", (0, "#5C747A"), (0.4, "#4A6268"), (1, "#2F454A"))
    + down("case", (0, "#F1F5F6"), (0.5, "#DDE6E8"), (1, "#C3D0D3"))
    + across("pale", (0, "#B9CEDB"), (0.28, "#E6F0F6"), (0.6, "#D3E3EC"), (1, "#B9CEDB"))
    + down("liquid_top", (0, SURFACE), (1, SURFACE)) + down("pale_top", (0, "#EAF3F8"), (1, "#EAF3F8"))
    + down("bar", (0, "#FFFFFF"), (1, "#CBD6D9"))
)


def picture():
    body = box(0, FLOOR, WIDTH, HEIGHT - FLOOR, BENCH) + line(0, FLOOR, WIDTH, FLOOR, BENCH_EDGE, 2)
    body += stand() + stirrer() + wires()
    body += open_beaker(236, STIRRER_TOP, 152, 120, 290, "liquid", 5, stir_bar() + silver_electrode() + salt_bridge())
    body += open_beaker(468, FLOOR, 120, 108, 332, "pale", 4, second_leg(salt_bridge()) + reference_electrode())
    body += burette() + voltmeter() + labels()
    return svg(WIDTH, HEIGHT, body, DEFS_HERE)


if __name__ == "__main__":
    write(sys.argv[1], "silver_start.svg", picture())
