"""Writes placeable Windows metafiles, the format of the sprites, and their SVG twins for looking at them.

Numbers are design px with y downwards; 15 units of the file are 1 px (inch 1440). The first thing painted is
the whole box in the key colour, which is transparent on the stage; paint in KEY to clear a place again.
Colours are "#RRGGBB" or (r, g, b); None is no fill or no outline. Pens have round caps and joins.
"""

import math
import re
import struct
from pathlib import Path

UNITS = 15
INCH = 1440
KEY = (255, 0, 255)

# Width of the characters of Arial in 1/1000 of the size, from the blank on: regular, bold.
_REGULAR = (
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333, 278, 278,
    556, 556, 556, 556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556,
    1015, 667, 667, 722, 722, 667, 611, 778, 722, 278, 500, 667, 556, 833, 722, 778,
    667, 778, 722, 667, 611, 722, 667, 944, 667, 667, 611, 278, 278, 278, 469, 556,
    333, 556, 556, 500, 556, 556, 278, 556, 556, 222, 222, 500, 222, 833, 556, 556,
    556, 556, 333, 500, 278, 556, 500, 722, 500, 500, 500, 334, 260, 334, 584,
)
_BOLD = (
    278, 333, 474, 556, 556, 889, 722, 238, 333, 333, 389, 584, 278, 333, 278, 278,
    556, 556, 556, 556, 556, 556, 556, 556, 556, 556, 333, 333, 584, 584, 584, 611,
    975, 722, 722, 722, 722, 667, 611, 778, 722, 278, 556, 722, 611, 833, 722, 778,
    667, 778, 722, 667, 611, 722, 667, 944, 667, 667, 611, 333, 278, 333, 584, 556,
    333, 556, 611, 556, 611, 556, 333, 611, 611, 278, 278, 556, 278, 889, 611, 611,
    611, 611, 389, 556, 333, 611, 556, 778, 556, 556, 500, 389, 280, 389, 584,
)
_PLAIN = {"ä": "a", "ö": "o", "ü": "u", "Ä": "A", "Ö": "O", "Ü": "U", "Ω": "O", "µ": "u", "·": "."}
CAP_HEIGHT = 0.716  # of the size, height of a capital
_SMALL = 0.68  # size of a sub- or superscript
_LOWER, _RAISE = 0.2, 0.36  # of the size


def rgb(colour):
    if isinstance(colour, str):
        value = colour.lstrip("#")
        return tuple(int(value[i:i + 2], 16) for i in (0, 2, 4))
    return tuple(int(round(c)) for c in colour)


def mix(first, second, share):
    """The share (0 to 1) of the second colour in the first."""
    return tuple(a + (b - a) * share for a, b in zip(rgb(first), rgb(second)))


def text_width(words, size, bold=False):
    """Width in px of a run without markup."""
    table = _BOLD if bold else _REGULAR
    total = 0
    for character in words:
        code = ord(_PLAIN.get(character, character)) - 32
        total += table[code] if 0 <= code < len(table) else 556
    return total * size / 1000


def _runs(words, size):
    """Splits "H_3O^+" or "SO_{4}^{2-}" into (text, size, shift downwards)."""
    for mark, long, short, plain in re.findall(r"([_^])(?:\{([^}]*)\}|(.))|([^_^]+)", words):
        if plain:
            yield plain, size, 0
        else:
            yield long or short, size * _SMALL, size * (_LOWER if mark == "_" else -_RAISE)


def formula_width(words, size, bold=False):
    return sum(text_width(run, s, bold) for run, s, _ in _runs(words, size))


def bezier(*points, steps=16):
    """Points on cubic curves: start, then two handles and an end for each piece."""
    out = [points[0]]
    for i in range(0, len(points) - 3, 3):
        p, q, r, s = points[i:i + 4]
        for k in range(1, steps + 1):
            t = k / steps
            u = 1 - t
            a, b, c, d = u * u * u, 3 * u * u * t, 3 * u * t * t, t * t * t
            out.append(tuple(a * p[j] + b * q[j] + c * r[j] + d * s[j] for j in (0, 1)))
    return out


def circle_points(x, y, rx, ry=None, start=0, end=360, steps=48):
    """Points on an ellipse; angles in degrees, counterclockwise from the right."""
    ry = rx if ry is None else ry
    angles = [math.radians(start + (end - start) * k / steps) for k in range(steps + 1)]
    return [(x + rx * math.cos(a), y - ry * math.sin(a)) for a in angles]


class _Objects:
    """The object table of a file: every pen, brush and font is made once."""

    def __init__(self, records):
        self.records = records
        self.made = []
        self.selected = {}

    def select(self, kind, function, payload):
        entry = (function, payload)
        if entry not in self.made:
            self.made.append(entry)
            self.records.append(struct.pack("<IH", 3 + len(payload) // 2, function) + payload)
        index = self.made.index(entry)
        if self.selected.get(kind) != index:
            self.selected[kind] = index
            self.records.append(struct.pack("<IHH", 4, 0x012D, index))


class Picture:
    """A sprite, drawn in width x height px. Its natural width is `squeeze` of that: the stage is 4:3 by its numbers
    and pulled wide on a wide screen, so what is to be round there is squeezed here."""

    def __init__(self, width, height, squeeze=1.0):
        self.width, self.height, self.squeeze = width, height, squeeze
        # Width of letters, of what the font has: nothing else keeps them from running wide on a wide screen.
        self.letters = 1.0 if squeeze < 1 else 0.85
        self._records = []
        self._objects = _Objects(self._records)
        self._svg = []
        self.shapes = 0
        w, h = self._u(width), self._u(height)
        self._record(0x0103, 8)  # map mode: anisotropic
        self._record(0x020B, 0, 0)  # window origin
        self._record(0x020C, h, w)  # window extent
        self._record(0x0102, 1)  # background mode: transparent
        self._record(0x0106, 1)  # polygons are filled even-odd
        self._pen(None, 0)
        self._brush(KEY)
        self._record(0x041B, h, w, 0, 0)

    # Shapes. `outline` is the colour of the pen, `pen` its width in px.

    def polygon(self, points, fill, outline=None, pen=1):
        self._style(fill, outline, pen)
        self._record(0x0324, len(points), *self._flat(points))
        self._path([points], fill, outline, pen)

    def polypolygon(self, polygons, fill, outline=None, pen=1):
        """Filled even-odd: a polygon inside another is a hole."""
        self._style(fill, outline, pen)
        numbers = [len(polygons), *map(len, polygons)]
        for points in polygons:
            numbers += self._flat(points)
        self._record(0x0538, *numbers)
        self._path(polygons, fill, outline, pen)

    def ellipse(self, x, y, rx, ry, fill, outline=None, pen=1):
        """Around the centre (x, y)."""
        self._style(fill, outline, pen)
        u = self._u
        self._record(0x0418, u(y + ry), u(x + rx), u(y - ry), u(x - rx))
        where = f'cx="{x:.2f}" cy="{y:.2f}" rx="{rx:.2f}" ry="{ry:.2f}"'
        self._tag("ellipse", where, fill, outline, pen)

    def circle(self, x, y, r, fill, outline=None, pen=1):
        self.ellipse(x, y, r, r, fill, outline, pen)

    def rectangle(self, x, y, width, height, fill, outline=None, pen=1):
        self._style(fill, outline, pen)
        u = self._u
        self._record(0x041B, u(y + height), u(x + width), u(y), u(x))
        where = f'x="{x:.2f}" y="{y:.2f}" width="{width:.2f}" height="{height:.2f}"'
        self._tag("rect", where, fill, outline, pen)

    def round_rectangle(self, x, y, width, height, radius, fill, outline=None, pen=1):
        self._style(fill, outline, pen)
        u = self._u
        self._record(0x061C, u(2 * radius), u(2 * radius), u(y + height), u(x + width), u(y), u(x))
        where = f'x="{x:.2f}" y="{y:.2f}" width="{width:.2f}" height="{height:.2f}" rx="{radius}"'
        self._tag("rect", where, fill, outline, pen)

    def polyline(self, points, colour, pen=1):
        self._style(None, colour, pen)
        self._record(0x0325, len(points), *self._flat(points))
        self._path([points], None, colour, pen, closed=False)

    def line(self, x1, y1, x2, y2, colour, pen=1):
        self.polyline([(x1, y1), (x2, y2)], colour, pen)

    def dashes(self, points, colour, pen=1, dash=4, gap=4):
        """A dashed polyline; each dash is a line of its own."""
        left, drawing, run = dash, True, [points[0]]
        for (x1, y1), (x2, y2) in zip(points, points[1:]):
            length, done = math.hypot(x2 - x1, y2 - y1), 0.0
            while length - done > left:
                done += left
                here = (x1 + (x2 - x1) * done / length, y1 + (y2 - y1) * done / length)
                if drawing:
                    self.polyline(run + [here], colour, pen)
                drawing, run = not drawing, [here]
                left = dash if drawing else gap
            left -= length - done
            run.append((x2, y2))
        if drawing and len(run) > 1:
            self.polyline(run, colour, pen)

    def arc(self, x, y, rx, ry, start, end, colour, pen=1):
        """Counterclockwise; angles in degrees from the right."""
        self._style(None, colour, pen)
        (sx, sy), (ex, ey) = (circle_points(x, y, rx, ry, a, a, 1)[0] for a in (start, end))
        u = self._u
        self._record(0x0817, u(ey), u(ex), u(sy), u(sx), u(y + ry), u(x + rx), u(y - ry), u(x - rx))
        self._path([circle_points(x, y, rx, ry, start, end)], None, colour, pen, closed=False)

    def arrow(self, points, colour, pen=1.5, head=8):
        """A polyline with a filled head at its end."""
        (tx, ty) = points[-1]
        back = next(p for p in reversed(points) if math.hypot(tx - p[0], ty - p[1]) >= head)
        length = math.hypot(tx - back[0], ty - back[1])
        dx, dy = (tx - back[0]) / length, (ty - back[1]) / length
        base = (tx - dx * head, ty - dy * head)
        side = head * 0.45
        shaft = [p for p in points if (p[0] - base[0]) * dx + (p[1] - base[1]) * dy < 0
                 or math.hypot(tx - p[0], ty - p[1]) > 2 * head]
        self.polyline(shaft + [base], colour, pen)
        self.polygon([(tx, ty), (base[0] - dy * side, base[1] + dx * side),
                      (base[0] + dy * side, base[1] - dx * side)], colour)

    def ball(self, x, y, r, colour, outline="#16262A", pen=1.5, shades=12, rim=0.45, gleam=0.8):
        """A sphere under light from top left: `colour` in its middle zone, darker by `rim` at the rim, mixed with
        white by `gleam` at the highlight."""
        dark, light = mix(colour, "#000000", rim), mix(colour, "#FFFFFF", gleam)
        for k in range(shades):
            t = k / (shades - 1)
            shade = mix(dark, colour, t / 0.45) if t < 0.45 else mix(colour, light, ((t - 0.45) / 0.55) ** 1.6)
            away, edge = 0.42 * t ** 1.1 * r, outline if k == 0 else None
            self.circle(x - away * 0.68, y - away * 0.73, r * (1 - 0.88 * t), shade, edge, pen)

    # Text. `align` is "left", "centre" or "right"; y is the baseline.

    def text(self, x, y, words, size, colour="#000000", bold=False, align="left"):
        weight, height = (700 if bold else 400), -self._u(size)
        average = (983 if bold else 904) / 2048 * size * self.letters
        look = struct.pack("<5h8B", height, self._u(average), 0, 0, weight, 0, 0, 0, 0, 0, 0, 0, 34)
        self._objects.select("font", 0x02FB, look + b"Arial\0")
        self._setting("colour", 0x0209, *self._words(rgb(colour)))
        self._setting("align", 0x012E, {"left": 0, "right": 2, "centre": 6}[align] | 24)
        data = words.replace("−", "–").encode("cp1252")
        padded = data + b"\0" * (len(data) % 2)
        body = struct.pack("<H", len(data)) + padded + struct.pack("<2h", self._u(y), self._u(x))
        self._records.append(struct.pack("<IH", 3 + len(body) // 2, 0x0521) + body)
        self.shapes += 1
        anchor = {"left": "start", "right": "end", "centre": "middle"}[align]
        escaped = words.replace("−", "–").replace("&", "&amp;").replace("<", "&lt;")
        self._svg.append(f'<text x="{x:.2f}" y="{y:.2f}" font-family="Arial, Liberation Sans" font-size="{size}" '
                         f'font-weight="{weight}" fill="{_hex(colour)}" text-anchor="{anchor}" '
                         f'xml:space="preserve">{escaped}</text>')

    def formula(self, x, y, words, size, colour="#000000", bold=False, align="left"):
        """Text with subscripts "_3", "_{10}" and superscripts "^+", "^{2+}"."""
        width = formula_width(words, size, bold) * self.letters
        x -= {"left": 0, "centre": width / 2, "right": width}[align]
        for run, small, shift in _runs(words, size):
            self.text(x, y + shift, run, round(small, 2), colour, bold)
            x += text_width(run, small, bold) * self.letters

    # Files

    def wmf(self):
        body = b"".join(self._records) + struct.pack("<IH", 3, 0)
        longest = max(struct.unpack_from("<I", record)[0] for record in self._records)
        head = struct.pack("<HHHIHIH", 1, 9, 0x0300, 9 + len(body) // 2, len(self._objects.made), longest, 0)
        natural = self._u(self.width * self.squeeze), self._u(self.height)
        place = struct.pack("<IH4hHI", 0x9AC6CDD7, 0, 0, 0, *natural, INCH, 0)
        check = 0
        for (word,) in struct.iter_unpack("<H", place):
            check ^= word
        return place + struct.pack("<H", check) + head + body

    def svg(self, ground=None):
        """The twin; places cleared with KEY come out in the ground."""
        back = f'<rect width="100%" height="100%" fill="{_hex(ground)}"/>\n' if ground else ""
        body = "\n".join(self._svg).replace(_hex(KEY), _hex(ground) if ground else "none")
        return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{self.width * self.squeeze:.2f}" '
                f'height="{self.height}" preserveAspectRatio="none" viewBox="0 0 {self.width} {self.height}">\n{back}{body}\n</svg>\n')

    def write(self, folder, name, svg_folder=None):
        """Writes folder/name.wmf, and the twin into its own folder if asked for."""
        self._save(Path(folder) / f"{name}.wmf", self.wmf())
        if svg_folder:
            self._save(Path(svg_folder) / f"{name}.svg", self.svg().encode("utf-8"))

    @staticmethod
    def _save(path, data):
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(data)

    # Records

    @staticmethod
    def _u(px):
        return math.floor(px * UNITS + 0.5)

    def _flat(self, points):
        return [self._u(c) for point in points for c in point]

    @staticmethod
    def _words(colour):
        r, g, b = colour
        return (r | g << 8, b)

    def _record(self, function, *words):
        body = struct.pack(f"<{len(words)}H", *(w & 0xFFFF for w in words))
        self._records.append(struct.pack("<IH", 3 + len(words), function) + body)

    def _setting(self, name, function, *words):
        if self._objects.selected.get(name) != words:
            self._objects.selected[name] = words
            self._record(function, *words)

    def _pen(self, colour, width):
        style, c = (5, (0, 0, 0)) if colour is None else (0, rgb(colour))
        self._objects.select("pen", 0x02FA, struct.pack("<HhhBBBB", style, self._u(width), 0, *c, 0))

    def _brush(self, colour):
        style, c = (1, (0, 0, 0)) if colour is None else (0, rgb(colour))
        self._objects.select("brush", 0x02FC, struct.pack("<HBBBBH", style, *c, 0, 0))

    def _style(self, fill, outline, pen):
        self._pen(outline, pen if outline is not None else 0)
        self._brush(fill)
        self.shapes += 1

    # The twin

    def _tag(self, name, where, fill, outline, pen):
        stroke = f' stroke="{_hex(outline)}" stroke-width="{pen}"' if outline is not None else ""
        ends = 'stroke-linejoin="round" stroke-linecap="round"'
        self._svg.append(f'<{name} {where} fill="{_hex(fill)}"{stroke} {ends}/>')

    def _path(self, polygons, fill, outline, pen, closed=True):
        pieces = ("M" + " L".join(f"{x:.2f},{y:.2f}" for x, y in points) for points in polygons)
        d = " ".join(piece + (" Z" if closed else "") for piece in pieces)
        self._tag("path", f'd="{d}" fill-rule="evenodd"', fill, outline, pen)


def _hex(colour):
    return "none" if colour is None else "#%02X%02X%02X" % rgb(colour)
