"""The start dialog's header and the splash picture.

Usage: banner.py FOLDER
"""

import sys

from style import *

BENCH = "#DCE8E9"
BENCH_EDGE = "#B9CDD0"
SKY = "#E4F0F1"


def beaker(x, y, w, h, share, wall=2.0, marks=4):
    """A beaker whose base stands at y; share is how full it is."""
    top, r = y - h, min(8, w * 0.12)
    glass = (f"M{x - 5},{top - 3} Q{x},{top - 2} {x},{top + 5} V{y - r} Q{x},{y} {x + r},{y} "
             f"H{x + w - r} Q{x + w},{y} {x + w},{y - r} V{top + 5} Q{x + w},{top - 2} {x + w + 5},{top - 3}")
    level = y - h * share
    inner = (f"M{x + wall},{level} V{y - r} Q{x + wall},{y - wall} {x + r},{y - wall} H{x + w - r} "
             f"Q{x + w - wall},{y - wall} {x + w - wall},{y - r} V{level} Z")
    out = path(glass + " Z", "#FFFFFF", extra='opacity="0.55"')
    out += path(inner, "url(#liquid)")
    out += ellipse(x + w / 2, level, w / 2 - wall, max(2.0, w * 0.045), SURFACE, "#4E9799", 1)
    for i in range(1, marks + 1):
        my = y - h * 0.8 * i / marks
        out += line(x + w - 4, my, x + w - (14 if i % 2 == 0 else 10), my, OUTLINE, 1.2)
    out += line(x + 7, top + 10, x + 7, y - 12, "#FFFFFF", 3, 'opacity="0.75" stroke-linecap="round"')
    return out + path(glass, "none", OUTLINE, 2)


def erlenmeyer(x, y, w, h, share, neck=None):
    """A conical flask around the axis x with its base at y."""
    n = neck or w * 0.17
    shoulder = y - h * 0.68
    top, half = y - h, w / 2
    side = f"V{shoulder} L{x + half - 3},{y - 8} Q{x + half},{y} {x + half - 9},{y} H{x - half + 9} Q{x - half},{y} {x - half + 3},{y - 8} L{x - n},{shoulder} V{top}"
    glass = f"M{x + n},{top} {side}"
    level = y - h * share
    t = (level - shoulder) / (y - 8 - shoulder)
    lw = n + (half - 3 - n) * t - 1.5
    body = (f"M{x - lw},{level} L{x - half + 5},{y - 8} Q{x - half + 2.5},{y - 2} {x - half + 10},{y - 2} H{x + half - 10} "
            f"Q{x + half - 2.5},{y - 2} {x + half - 5},{y - 8} L{x + lw},{level} Z")
    out = path(glass + " Z", "#FFFFFF", extra='opacity="0.6"') + path(body, "url(#liquid)")
    out += ellipse(x, level, lw, max(2.2, lw * 0.1), SURFACE, "#4E9799", 1)
    out += path(f"M{x - n + 4},{top + 8} V{shoulder + 1} L{x - half + 15},{y - 14}", "none", "#FFFFFF", 3, 'opacity="0.75"')
    out += path(glass, "none", OUTLINE, 2)
    return out + box(x - n - 3, top - 3, 2 * n + 6, 5, GLASS, OUTLINE, 1.8, 2.5)


def small_burette(x, bottom, half, length, scale_from):
    """A burette that comes in from above; its tip is at (x, bottom)."""
    tap = bottom - 2.6 * half
    end = tap - 1.3 * half
    a, b, n = x - half, x + half, half * 0.35
    tube = f"M{a},{bottom - length} V{end - half} Q{a},{end - 0.3 * half} {x - n},{end} V{tap} H{x + n} V{end} Q{b},{end - 0.3 * half} {b},{end - half} V{bottom - length}"
    spout = f"M{x - n},{tap} V{tap + half} L{x - n * 0.5},{bottom} H{x + n * 0.5} L{x + n},{tap + half} V{tap} Z"
    out = path(spout, "url(#liquid)", OUTLINE, 1.5)
    out += path(tube + " Z", "url(#liquid)")
    step = half * 0.62
    y, i = scale_from, 0
    while y < end - half:
        out += line(a + 1.5, y, a + half * (1.05 if i % 5 == 0 else 0.7), y, OUTLINE, 1.6 if i % 5 == 0 else 1)
        y, i = y + step, i + 1
    out += line(b - 0.45 * half, bottom - length, b - 0.45 * half, end - half, "#FFFFFF", half * 0.2, 'opacity="0.7"')
    out += path(tube, "none", OUTLINE, 2)
    out += box(x - half * 0.75, tap - half * 0.5, half * 1.5, half, "url(#glass)", OUTLINE, 1.5, 3)
    out += box(x - half * 1.5, tap - half * 0.28, half * 3, half * 0.56, "url(#teal_down)", OUTLINE, 1.5, half * 0.28)
    return out + circle(x, tap, half * 0.45, "#3B9C9C", OUTLINE, 1.5)


def chart(x, y, w, h, curve_width, points=()):
    """Axes with a titration curve; the points are shares of the way along the curve."""
    out = "".join(line(x, y - h * i / 4, x + w, y - h * i / 4, "#CFDFE1", 1) for i in range(1, 5))
    out += "".join(line(x + w * i / 6, y, x + w * i / 6, y - h, "#CFDFE1", 1) for i in range(1, 7))
    curve = titration_curve(x, x + w, y, y - h)
    out += path(curve, "none", ACCENT, curve_width)
    for t in points:
        out += circle(x + w * t, y - h * curve_share(t), curve_width * 1.25, POINT_RED, "#FFFFFF", 1.2)
    return out + path(f"M{x},{y - h} V{y} H{x + w}", "none", OUTLINE, 2)


def header():
    w, h, bench = 960, 96, 82
    defs = down("air", (0, GROUND), (1, SKY))
    body = box(0, 0, w, bench, "url(#air)") + box(0, bench, w, h - bench, BENCH)
    body += line(0, bench, w, bench, BENCH_EDGE, 2) + box(0, h - 3, w, 3, ACCENT)
    body += text(28, 47, "Quendal", 42, ACCENT_DARK)
    body += text(30, 72, "Titrationen verstehen und berechnen", 14, OUTLINE, weight="normal")
    body += chart(352, 72, 140, 62, 3.2, (0.1, 0.34, 0.5, 0.8))
    body += small_burette(570, 38, 8, 60, -4) + drop(570, 40, 2.6)
    body += beaker(536, bench, 68, 36, 0.6, marks=2)
    body += erlenmeyer(662, bench, 62, 66, 0.42)
    body += particles([("H3O+", 752, 34, 12), ("OH-", 806, 56, 12), ("Cl-", 776, 70, 9),
                       ("H2O", 848, 28, 11), ("Na+", 890, 58, 10), ("H2O", 930, 30, 8)])
    return svg(w, h, body, defs)


def splash():
    w, h, bench = 560, 340, 292
    defs = down("air", (0, "#FAFCFC"), (1, SKY))
    body = box(0, 0, w, bench, "url(#air)") + box(0, bench, w, h - bench, BENCH)
    body += line(0, bench, w, bench, BENCH_EDGE, 2)
    stand = box(34, 310, 168, 9, "url(#metal)", OUTLINE, 1.8, 4) + box(46, -6, 9, 315, "url(#teal)", OUTLINE, 1.8)
    arm = box(36, 62, 76, 9, "url(#metal)", OUTLINE, 1.8, 3) + box(40, 55, 20, 23, "url(#metal)", OUTLINE, 1.8, 4)
    body += stand + arm
    body += small_burette(130, 172, 15, 190, 18)
    body += box(106, 56, 9, 21, "url(#teal)", OUTLINE, 1.6, 3) + box(145, 56, 9, 21, "url(#teal)", OUTLINE, 1.6, 3)
    body += drop(130, 176, 5)
    body += beaker(72, 310, 116, 104, 0.62, marks=6)
    body += particles([("H3O+", 101, 279, 9.5), ("H2O", 143, 273, 8.5), ("Na+", 160, 294, 7.5),
                       ("Cl-", 122, 296, 7.5)])
    body += text(236, 92, "Quendal", 66, ACCENT_DARK)
    body += text(239, 124, "Titrationen verstehen und berechnen", 17.5, OUTLINE, weight="normal")
    body += chart(240, 268, 276, 118, 4, (0.07, 0.3, 0.5, 0.7, 0.93))
    body += text(232, 162, "pH", 14, OUTLINE, "end") + text(516, 285, "V / mL", 13, OUTLINE, "end")
    body += path(f"M1,1 H{w - 1} V{h - 1} H1 Z", "none", ACCENT_DARK, 2)
    return svg(w, h, body, defs)


if __name__ == "__main__":
    write(sys.argv[1], "header.svg", header())
    write(sys.argv[1], "splash.svg", splash())
