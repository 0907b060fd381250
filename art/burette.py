"""The six frames of the burette: tap closed, turning, open, open with a drop.

Usage: burette.py FOLDER
"""

import sys

from style import *

WIDTH, HEIGHT, AXIS = 320, 450, 259
HALF = 17
WALL = 2.2
ZERO_Y, PIXELS_PER_ML, CAPACITY = 126.5, 9, 25
SHOULDER, NECK = 368, 383
TAP_Y = 395
OUTLET, TIP = 5.2, 2.6
CLAMP_Y = 194
# The form cuts everything left of this line.
WINDOW_EDGE = 103
# Keeps the zero readable where the meniscus passes behind it.
HALO = f'stroke="{SURFACE}" stroke-width="4" stroke-linejoin="round"'
TURNS = [0, 22, 45, 68, 90, 90]


def tube(inset):
    h, n = HALF - inset, 6 - inset * 0.8
    a = AXIS
    return (f"M{a - h},-4 V{SHOULDER} C{a - h},{SHOULDER + 11} {a - n},{NECK - 8} {a - n},{NECK + 4} "
            f"H{a + n} C{a + n},{NECK - 8} {a + h},{SHOULDER + 11} {a + h},{SHOULDER} V-4 Z")


def outlet(inset, end):
    w, t, a = OUTLET - inset, TIP - inset * 0.5, AXIS
    return (f"M{a - w},{TAP_Y + 6} V424 C{a - w},434 {a - t},436 {a - t},{end} "
            f"H{a + t} C{a + t},436 {a + w},434 {a + w},424 V{TAP_Y + 6} Z")


def liquid():
    h, rise = HALF - WALL, 4
    left, right = AXIS - h, AXIS + h
    top = f"{left},{ZERO_Y - rise} Q{AXIS},{ZERO_Y + rise} {right},{ZERO_Y - rise}"
    body = path(f"M{top} V420 H{left} Z", "url(#liquid)", extra='clip-path="url(#inside)"')
    return body + path(f"M{top}", "none", "#4E9799", 1.5)


def scale():
    out = [text(AXIS + 5, 114, "mL", 12, anchor="middle")]
    out.append(text(AXIS + 5.5, ZERO_Y + 5, 0, 14, SURFACE, "middle", extra=HALO))
    for ml in range(CAPACITY + 1):
        y = ZERO_Y + PIXELS_PER_ML * ml
        fifth = ml % 5 == 0
        out.append(line(AXIS - HALF + 2, y, AXIS - (4.5 if fifth else 9), y, OUTLINE, 1.6 if fifth else 1))
        if fifth:
            out.append(text(AXIS + 5.5, y + 5, ml, 14, anchor="middle"))
    return "".join(out)


def shine():
    return (line(AXIS - 11.8, 0, AXIS - 11.8, SHOULDER, "#FFFFFF", 3, 'opacity="0.7" stroke-linecap="round"')
            + line(AXIS + 13, 0, AXIS + 13, SHOULDER - 2, "#FFFFFF", 1.2, 'opacity="0.5"'))


def clamp_behind():
    y = CLAMP_Y
    arm = path(f"M{WINDOW_EDGE},{y - 5} H226 V{y + 5} H{WINDOW_EDGE} Z", "url(#metal)")
    arm += line(WINDOW_EDGE, y - 5, 226, y - 5, OUTLINE, 1.6) + line(WINDOW_EDGE, y + 5, 226, y + 5, OUTLINE, 1.6)
    bridge = box(218, y - 8, 74, 16, "url(#metal)", OUTLINE, 1.6, 4)
    return arm + bridge


def clamp_in_front():
    y = CLAMP_Y
    pads = "".join(box(x, y - 12, 9, 24, "url(#teal)", OUTLINE, 1.6, 3) for x in (AXIS - HALF - 9, AXIS + HALF))
    jaws = (box(222, y - 10, 12, 20, "url(#metal)", OUTLINE, 1.6, 3)
            + box(AXIS + HALF + 9, y - 10, 9, 20, "url(#metal)", OUTLINE, 1.6, 3))
    return jaws + pads


def tap(turn):
    barrel = box(AXIS - 14, TAP_Y - 9, 28, 18, "url(#glass)", OUTLINE, 1.6, 5)
    handle = (box(-24, -5, 48, 10, "url(#teal_down)", OUTLINE, 1.6, 5)
              + circle(0, 0, 8.5, "#3B9C9C", OUTLINE, 1.6)
              + line(-17, 0, 17, 0, "#FFFFFF", 2.6, 'stroke-linecap="round"'))
    return barrel + group(handle, (AXIS, TAP_Y), turn)


def hanging_drop():
    a, y, r = AXIS, 442.7, 6.6
    d = (f"M{a - 2.8},431 C{a - 3.2},435 {a - r},437 {a - r},{y} A{r},{r} 0 0 0 {a + r},{y} "
         f"C{a + r},437 {a + 3.2},435 {a + 2.8},431 Z")
    shine_ = path(f"M{a - 3.4},{y + 0.6} a3.4,3.4 0 0 0 2.2,2.8", "none", "#FFFFFF", 1.5)
    return path(d, "url(#liquid)", OUTLINE, 1.5) + shine_


def frame(number):
    glass = path(tube(0), "url(#glass)") + liquid() + shine() + scale()
    glass += path(tube(0), "none", OUTLINE, 1.8)
    end = 442 if number == 6 else HEIGHT
    spout = path(outlet(0, end), "url(#glass)") + path(outlet(1.7, end), "url(#liquid)")
    spout += path(outlet(0, end), "none", OUTLINE, 1.6)
    body = clamp_behind() + glass + clamp_in_front() + spout + tap(TURNS[number - 1])
    if number == 6:
        body += hanging_drop()
    defs = f'<clipPath id="inside"><path d="{tube(WALL)}"/></clipPath>'
    return svg(WIDTH, HEIGHT, body, defs)


if __name__ == "__main__":
    for n in range(1, 7):
        write(sys.argv[1], f"bürette{n}.svg", frame(n))
