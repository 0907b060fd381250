"""One hand for all pictures: palette, glass, particles and SVG helpers.

Units are the pixels of the picture at its normal size. Light comes from top left.
"""

import math
from pathlib import Path

OUTLINE = "#2B4A50"
ACCENT = "#2F8F8F"
ACCENT_DARK = "#1F6B6E"
LIQUID = "#99CCCC"
LIQUID_LIGHT = "#B9DFDF"
LIQUID_DARK = "#76B3B4"
SURFACE = "#C9E7E7"
GLASS = "#EEF5F6"
GLASS_SHADE = "#D6E3E5"
GROUND = "#F4F7F7"
METAL_LIGHT = "#DCE4E6"
METAL = "#A9B9BD"
METAL_DARK = "#7D9296"
GOLD = "#E9BC4B"
GOLD_LIGHT = "#F7DD92"
LEAF = "#5FA777"
LEAF_DARK = "#3C7F58"
POINT_RED = "#D02F2F"
FONT = "Liberation Sans, Arial, sans-serif"

# Bodies and halos of the particles are those of the simulation.
WATER_BLUE = "#000080"
CHLORIDE_GREEN = "#008000"
SODIUM_BLUE = "#0000FF"
ACID_RED = "#FF0000"


def svg(width, height, body, defs=""):
    return (
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" '
        f'viewBox="0 0 {width} {height}">\n<defs>\n{DEFS}{defs}</defs>\n{body}\n</svg>\n'
    )


def write(folder, name, text):
    path = Path(folder) / name
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(text, encoding="utf-8")


def across(name, *stops, span=None):
    """A gradient from left to right; each stop is (offset, colour). A span (x1, x2) fixes it to the picture."""
    rows = "".join(f'<stop offset="{o}" stop-color="{c}"/>' for o, c in stops)
    fixed = f' gradientUnits="userSpaceOnUse" x1="{span[0]}" x2="{span[1]}"' if span else ""
    return f'<linearGradient id="{name}"{fixed}>{rows}</linearGradient>\n'


def down(name, *stops):
    rows = "".join(f'<stop offset="{o}" stop-color="{c}"/>' for o, c in stops)
    return f'<linearGradient id="{name}" x2="0" y2="1">{rows}</linearGradient>\n'


DEFS = (
    across("glass", (0, GLASS_SHADE), (0.25, "#FAFCFC"), (0.6, GLASS), (1, GLASS_SHADE))
    + across("liquid", (0, LIQUID_DARK), (0.28, LIQUID_LIGHT), (0.6, LIQUID), (1, LIQUID_DARK))
    + down("metal", (0, METAL_LIGHT), (0.45, METAL), (1, METAL_DARK))
    + across("teal", (0, "#49ABAB"), (0.5, ACCENT), (1, ACCENT_DARK))
    + down("teal_down", (0, "#49ABAB"), (0.5, ACCENT), (1, ACCENT_DARK))
)


def line(x1, y1, x2, y2, colour=OUTLINE, width=1.0, extra=""):
    return (
        f'<line x1="{x1}" y1="{y1}" x2="{x2}" y2="{y2}" stroke="{colour}" '
        f'stroke-width="{width}" {extra}/>'
    )


def path(d, fill="none", stroke="none", width=1.6, extra=""):
    return (
        f'<path d="{d}" fill="{fill}" stroke="{stroke}" stroke-width="{width}" '
        f'stroke-linejoin="round" stroke-linecap="round" {extra}/>'
    )


def circle(x, y, r, fill, stroke="none", width=1.0, extra=""):
    return (
        f'<circle cx="{x:.2f}" cy="{y:.2f}" r="{r:.2f}" fill="{fill}" stroke="{stroke}" '
        f'stroke-width="{width:.2f}" {extra}/>'
    )


def ellipse(x, y, rx, ry, fill, stroke="none", width=1.0, extra=""):
    return (
        f'<ellipse cx="{x}" cy="{y}" rx="{rx}" ry="{ry}" fill="{fill}" stroke="{stroke}" '
        f'stroke-width="{width}" {extra}/>'
    )


def box(x, y, w, h, fill, stroke="none", width=1.6, radius=0, extra=""):
    return (
        f'<rect x="{x}" y="{y}" width="{w}" height="{h}" rx="{radius}" fill="{fill}" '
        f'stroke="{stroke}" stroke-width="{width}" {extra}/>'
    )


def text(x, y, words, size, colour=OUTLINE, anchor="start", weight="bold", extra=""):
    return (
        f'<text x="{x}" y="{y}" font-family="{FONT}" font-size="{size}" font-weight="{weight}" '
        f'fill="{colour}" text-anchor="{anchor}" {extra}>{words}</text>'
    )


def group(body, move=None, turn=None, scale=None, extra=""):
    steps = []
    if move:
        steps.append(f"translate({move[0]} {move[1]})")
    if turn:
        steps.append(f"rotate({turn})")
    if scale:
        steps.append(f"scale({scale})")
    return f'<g transform="{" ".join(steps)}" {extra}>{body}</g>'


# Per kind: body, halo, sign, and the small atoms as multiples of the body's radius.
_LOW = [(-7 / 6, 0.5), (7 / 6, 0.5)]
_TOP = [(0, -1.25)]
_SIDE = [(1.25, 0)]
PARTICLES = {
    "H2O": (WATER_BLUE, None, "", _LOW),
    "H3O+": (WATER_BLUE, ACID_RED, "+", _LOW + _TOP),
    "OH-": (WATER_BLUE, SODIUM_BLUE, "-", _SIDE),
    "Cl-": (CHLORIDE_GREEN, None, "-", []),
    "Na+": (SODIUM_BLUE, None, "+", []),
    "HAc": (ACID_RED, None, "", _SIDE),
    "Ac-": (ACID_RED, SODIUM_BLUE, "-", []),
}


def particle(kind, x, y, r):
    """A particle with the shape and the colours that the simulation gives it."""
    body, halo, sign, atoms = PARTICLES[kind]
    rim = r * 0.1
    out = []
    if halo:
        ring = r * 0.24
        out += [circle(x + ax * r, y + ay * r, r / 2 + ring, halo) for ax, ay in atoms]
        out.append(circle(x, y, r + ring, halo))
    out += [circle(x + ax * r, y + ay * r, r / 2, "#FFFFFF", "#000000", rim) for ax, ay in atoms]
    out.append(circle(x, y, r, body, "#000000", rim))
    arm, half = 0.6 * r, max(0.1 * r, 0.5)
    if sign:
        out.append(box(x - arm, y - half, 2 * arm, 2 * half, "#FFFFFF"))
    if sign == "+":
        out.append(box(x - half, y - arm, 2 * half, 2 * arm, "#FFFFFF"))
    return "\n".join(out)


def particles(rows):
    return "\n".join(particle(*row) for row in rows)


def drop(x, tip, r):
    """A falling drop whose upper point is at (x, tip); it is 2.9 r high."""
    y = tip + 1.9 * r
    d = (
        f"M{x},{tip} C{x + 0.25 * r},{tip + 0.8 * r} {x + r},{y - 0.75 * r} {x + r},{y} "
        f"A{r},{r} 0 0 1 {x - r},{y} C{x - r},{y - 0.75 * r} {x - 0.25 * r},{tip + 0.8 * r} {x},{tip} Z"
    )
    shine = path(f"M{x - 0.5 * r},{y + 0.1 * r} a{0.5 * r},{0.5 * r} 0 0 0 {0.35 * r},{0.45 * r}",
                 "none", "#FFFFFF", max(0.22 * r, 0.8))
    return path(d, "url(#liquid)", OUTLINE, 1.4) + shine


def curve_share(t):
    """The pH of a strong acid (0.1 mol/L, base equally strong), as shares of both axes."""
    acid, base = 0.1 * 0.5, 0.1 * t
    excess = (acid - base) / (0.5 + t)
    hydronium = excess / 2 + math.sqrt(excess * excess / 4 + 1e-14)
    return -math.log10(hydronium) / 14


def titration_curve(x0, x1, y0, y1, points=400):
    """A path; the shares 0 and 1 of the pH scale lie at y0 and y1."""
    rows = []
    for i in range(points + 1):
        t = i / points
        rows.append(f"{x0 + (x1 - x0) * t:.1f},{y0 + (y1 - y0) * curve_share(t):.1f}")
    return "M" + " L".join(rows)
