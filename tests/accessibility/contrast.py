"""Contrast of texts on a screenshot, as the rules for the web reckon it."""

LEAST = 4.5  # to 1

# Texts whose colour or ground is prescribed, and the contrast that this makes: part of the name and
# the value. None of the others may be below LEAST.
PRESCRIBED = {}

_TEXTS = {"label", "push button", "check box", "radio button", "page tab", "heading", "text",
          "combo box", "status bar"}
_INDICATOR = 30  # px at the left of what is switched, and of an icon
_RIM = 5  # px of a border
_LEAST_INK = 8  # pixels that make a text
_NO_INK = 1.2  # ratio to the ground that nothing is written with


def _linear(channel):
    channel /= 255
    return channel / 12.92 if channel <= 0.04045 else ((channel + 0.055) / 1.055) ** 2.4


def _luminance(colour):
    return sum(part * _linear(value) for part, value in zip((0.2126, 0.7152, 0.0722), colour))


def ratio(one, other):
    lighter, darker = sorted((_luminance(one), _luminance(other)), reverse=True)
    return (lighter + 0.05) / (darker + 0.05)


def _colours(image):
    """How often each colour occurs, the most frequent first."""
    return sorted(image.getcolors(image.width * image.height), reverse=True)


def of_text(image):
    """Ratio of the ink to its ground; None when nothing is written. The rims of letters are paler
    than their cores, so the strongest few pixels count; of a comma these are less than a few."""
    colours = _colours(image)
    ground = colours[0][1]
    ranked = sorted(((ratio(colour, ground), count) for count, colour in colours), reverse=True)
    ink = sum(count for value, count in ranked if value > _NO_INK)
    seen = 0
    for value, count in ranked:
        seen += count
        if seen >= min(_LEAST_INK, ink / 4):
            return value if value > _NO_INK else None
    return None


def _room(node, origin):
    left, top, width, height = node.box()
    left, top = left - origin[0], top - origin[1]
    rim = _RIM if node.role in ("push button", "text", "combo box", "page tab") else 0
    start = _INDICATOR if node.role in ("check box", "radio button") or (
        node.role == "push button" and width > 4 * _INDICATOR) else rim
    return left + start, top + rim, left + width - rim, top + height - rim


def _covered(room, others, image):
    """The room with what other objects stand in it painted over."""
    cut = image.crop(room)
    ground = _colours(cut)[0][1]
    for left, top, right, bottom in others:
        box = (max(0, left - room[0]), max(0, top - room[1]),
               min(cut.width, right - room[0]), min(cut.height, bottom - room[1]))
        if box[0] < box[2] and box[1] < box[3]:
            cut.paste(ground, box)
    return cut


def _whole(node, origin):
    left, top, width, height = node.box()
    return left - origin[0], top - origin[1], left - origin[0] + width, top - origin[1] + height


def _beneath(node, room, window, origin):
    """Whether something that comes behind it, and so lies above, covers the room."""
    shown = [other for other in window.walk() if other.showing]
    boxes = [_whole(other, origin) for other in shown[shown.index(node) + 1:]]
    return any(left <= room[0] and top <= room[1] and right >= room[2] and bottom >= room[3]
               for left, top, right, bottom in boxes)


def faults(window, image):
    """Texts of the window that can't be read well enough, and how many were looked at. The picture
    is that of the window."""
    image = image.convert("RGB")
    origin = window.box()[:2]
    # A long text has a page that it is written on below it.
    leaves = [node for node in window.walk() if node.showing and not any(
        child.showing and (child.role != "filler" or child.children) for child in node.children) and
        min(node.box()[2:]) > 1]
    found, looked = [], 0
    for node in leaves:
        room = _room(node, origin)
        if node.role not in _TEXTS or not node.name or "enabled" not in node.states \
                or room[2] - room[0] < 6 or room[3] - room[1] < 6:
            continue
        above = [_whole(other, origin) for other in leaves[leaves.index(node) + 1:]
                 if other.role != "filler"]
        value = of_text(_covered(room, above, image))
        if value is None:
            if node.role == "label" and not _beneath(node, room, window, origin):
                found.append("nothing is seen of %s at %s" % (node, room))
            continue
        looked += 1
        least = next((v for part, v in PRESCRIBED.items() if part in node.name), LEAST)
        if value < least - 0.005:
            found.append("contrast %.2f: %s at %s" % (value, node, room))
    return found, looked
