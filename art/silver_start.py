"""The picture of the silver titration's start form: the apparatus with its labels.

Usage: silver_start.py FOLDER
"""

import sys

from apparatus import *

SILVER, REFERENCE = 332, 550
METER = (462, 30, 148, 112)


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
    silver = f"M{SILVER},197 V174 Q{SILVER},158 {SILVER + 16},158 H{x - 14} Q{x},158 {x},144 V{y + 4}"
    right = REFERENCE + 28
    reference = f"M{REFERENCE},247 V196 Q{REFERENCE},182 {REFERENCE + 12},180 Q{right},178 {right},164 V{y + 4}"
    return wire(silver, WIRE_PLUS) + wire(reference)


def labels():
    out = leader((210, 126), (267, 126)) + label(62, 110, "Bürette mit", "Silbernitrat-Lösung")
    out += leader((362, 196), (SILVER + 2, 236)) + label(350, 190, "Silberelektrode")
    out += leader((620, 84), (602, 84)) + label(626, 90, "Voltmeter")
    out += leader((592, 226), (REFERENCE + 5, 285)) + label(580, 220, "Bezugselektrode")
    out += leader((442, 256), (442, 224)) + label(442, 272, "Salzbrücke", anchor="middle")
    out += leader((216, 308), (266, 308)) + label(210, 312, "Natriumchlorid-", anchor="end") + label(210, 333, "Lösung", anchor="end")
    return out + leader((196, 386), (226, 386)) + label(190, 392, "Rührer", anchor="end")


DEFS_HERE = (
    APPARATUS_DEFS
    + across("pale", (0, "#B9CEDB"), (0.28, "#E6F0F6"), (0.6, "#D3E3EC"), (1, "#B9CEDB"))
    + down("pale_top", (0, "#EAF3F8"), (1, "#EAF3F8"))
)


def picture():
    body = bench() + stand() + stirrer() + wires()
    body += open_beaker(236, STIRRER_TOP, 152, 120, 290, "liquid", beaker_marks(236, STIRRER_TOP, 120, 5),
                        stir_bar() + silver_electrode() + salt_bridge())
    body += open_beaker(468, FLOOR, 120, 108, 332, "pale", beaker_marks(468, FLOOR, 108, 4),
                        second_leg(salt_bridge()) + reference_electrode())
    body += burette() + voltmeter() + labels()
    return svg(WIDTH, HEIGHT, body, DEFS_HERE)


if __name__ == "__main__":
    write(sys.argv[1], "silver_start.svg", picture())
