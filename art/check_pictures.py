#!/usr/bin/env python3
"""Checks what the program relies on in the pictures: check_pictures.py DATA_FOLDER

Every picture has a twin three times its size; the magnifying glass over the screen keeps to its places.
Only the standard library is used.
"""

import sys
from pathlib import Path

# In px of the picture: the scene lies inside the open part, the glass keeps inside its frame.
LENS_SIZE, SLIDE_SIZE = (592, 444), (556, 264)
OPEN_PART = (142, 95, 423, 345)  # with a pixel to spare for rounding
FRAME = (85, 20, 480, 420)
HANDLE_FROM = (400, 320)  # right of and below it lies the handle
START_SIZE = (720, 440)
START_PICTURES = ("silver_start", "conducto_start", "conducto_weak_start", "conducto_silver_start")


# The sprites of the reaction scenes; a formula picture has an underscore before its name.
PROTON_FOLDERS = {
    "h2o-hcl": "h2o hcl h2ohcl h3o cl",
    "h2o-h2o": "h2o h2o2 h2oh2o h3o oh",
    "h2o-hac": "h2o hac h2ohac h3o ac",
}
ION_FOLDERS = {"h3o-cl": "wanne4 h3o cl oh na h2o h2o-2", "fällung": "wanne cl na ag no3"}
BASIN_SIZE = (724, 438)
LARGEST_SPRITE = 40_000  # bytes
WATER_SIZE, WATER_PICTURES = (480, 470), 6
CIRCUITS, CIRCUIT_SIZE = "aus ein einup ws1 ws2", (740, 450)
MARKS = {"bedingungen": (152, 172), "grün1": (12, 12), "grün2": (18, 18), "grün3": (18, 18)}
UNITS, INCH = 15, 1440  # of a sprite: units to the px, units to the inch


def size_of(data):
    return int.from_bytes(data[6:8], "little"), int.from_bytes(data[8:10], "little")


def blocks(data, at):
    """The joined sub-blocks from `at` on, and where they end."""
    joined = bytearray()
    while data[at]:
        joined += data[at + 1:at + 1 + data[at]]
        at += 1 + data[at]
    return bytes(joined), at + 1


def unpacked(data, bits):
    """The colour numbers of an image, packed by LZW with codes of growing width."""
    clear = 1 << bits
    table, width, last, out = [], 0, None, bytearray()
    held = count = 0
    for byte in data:
        held |= byte << count
        count += 8
        while count >= (width or bits + 1):
            width = width or bits + 1
            code = held & ((1 << width) - 1)
            held >>= width
            count -= width
            if code == clear:
                table = [bytes([i]) for i in range(clear)] + [b"", b""]
                width, last = bits + 1, None
            elif code == clear + 1:
                return bytes(out)
            else:
                entry = table[code] if code < len(table) else last + last[:1]
                out += entry
                if last is not None and len(table) < 4096:
                    table.append(last + entry[:1])
                last = entry
                if len(table) == 1 << width and width < 12:
                    width += 1
    return bytes(out)


def pixels(path):
    """(width, height, colours row by row, transparent number or None) of a GIF with one whole image."""
    data = path.read_bytes()
    palette_size = 2 << (data[10] & 7) if data[10] & 0x80 else 0
    palette = data[13:13 + 3 * palette_size]
    at, clear = 13 + len(palette), None
    while data[at] == 0x21:
        body, end = blocks(data, at + 2)
        if data[at + 1] == 0xF9 and body[0] & 1:
            clear = body[3]
        at = end
    packed, _ = blocks(data, at + 11)
    numbers = unpacked(packed, data[at + 10])
    width, height = size_of(data)
    assert data[at] == 0x2C and not data[at + 9] and len(numbers) == width * height, path
    colours = [tuple(palette[i:i + 3]) for i in range(0, len(palette), 3)]
    return width, height, [colours[n] for n in numbers], [n == clear for n in numbers]


def check_twins(folder):
    names = {p.name for p in folder.glob("*.gif")}
    assert names and names == {p.name for p in (folder / "x3").glob("*.gif")}, "pictures without twins"
    for name in names:
        width, height = size_of((folder / name).read_bytes())
        assert size_of((folder / "x3" / name).read_bytes()) == (3 * width, 3 * height), name


def check_lens(folder, zoom):
    """The mask is white or black, the picture is black where the mask is white."""
    width, height, mask, _ = pixels(folder / "lens_mask.gif")
    _, _, glass, _ = pixels(folder / "lens.gif")
    assert (width, height) == tuple(zoom * side for side in LENS_SIZE)
    white, black = (255, 255, 255), (0, 0, 0)
    assert set(mask) == {white, black}, "mask has other colours"
    assert all(g == black for m, g in zip(mask, glass) if m == white), "glass reaches over its mask"
    painted = sum(m == black for m in mask)
    assert 0.05 < painted / len(mask) < 0.25, "glass paints too much or too little"
    left, top, right, bottom = (zoom * side for side in OPEN_PART)
    for y in range(top, bottom):
        assert set(mask[y * width + left:y * width + right]) == {white}, "open part is covered"
    frame_left, frame_top, frame_right, frame_bottom = (zoom * side for side in FRAME)
    handle_left, handle_top = (zoom * side for side in HANDLE_FROM)
    for y in range(height):
        row = mask[y * width:(y + 1) * width]
        within = frame_top <= y < frame_bottom
        end = handle_left if y >= handle_top else width
        outside = row[:frame_left] + row[frame_right:end] if within else row[:end]
        assert set(outside) <= {white}, f"rim outside its frame in row {y}"


def check_slide(folder):
    files = sorted(folder.glob("magnify*.gif"))
    assert len(files) == 6, files
    for path in files:
        width, height, _, clear = pixels(path)
        assert (width, height) == SLIDE_SIZE, path
        assert 0.5 < sum(clear) / len(clear) < 0.9, f"{path}: the glass isn't clear"
        assert clear[0] and clear[width - 1], f"{path}: its corners aren't clear"


def check_starts(folder):
    """Opaque, of the size of their forms, and each a picture of its own."""
    seen = []
    for name in START_PICTURES:
        width, height, colours, clear = pixels(folder / f"{name}.gif")
        assert (width, height) == START_SIZE, name
        assert not any(clear), f"{name}: has holes"
        assert colours not in seen, f"{name}: the same as another one"
        seen.append(colours)


def sprite_size(path):
    """The size in px of a placeable metafile, whose first shape clears all of it to the key colour."""
    data = path.read_bytes()
    head = [int.from_bytes(data[i:i + 2], "little") for i in range(0, 22, 2)]
    check = 0
    for word in head[:10]:
        check ^= word
    assert head[:2] == [0xCDD7, 0x9AC6] and head[3:5] == [0, 0], f"{path}: isn't placeable from (0, 0)"
    assert head[7] == INCH and check == head[10], f"{path}: wrong head"
    brush = data.index((0x02FC).to_bytes(2, "little") + b"\0\0\xff\0\xff\0")
    box = data.index((0x041B).to_bytes(2, "little"), brush)
    window = data.index((0x020C).to_bytes(2, "little"))
    assert data[box + 2:box + 6] == data[window + 2:window + 6], f"{path}: isn't cleared"
    assert box - brush < 30, f"{path}: isn't cleared first"
    return head[5] / UNITS, head[6] / UNITS


def check_reactions(folder):
    names = {f: f"wanne {n} _{n.replace(' ', ' _')}" for f, n in PROTON_FOLDERS.items()} | ION_FOLDERS
    for name, expected in names.items():
        files = {p.stem: p for p in (folder / name).glob("*.wmf")}
        assert files.keys() == set(expected.split()), f"{name}: {sorted(files)}"
        for stem, path in files.items():
            width, height = sprite_size(path)
            assert path.stat().st_size < LARGEST_SPRITE, f"{path}: too large"
            assert ((width, height) == BASIN_SIZE) == stem.startswith("wanne"), path
            assert stem.startswith("wanne") or (width < 400 and height < 300), path


def check_lessons(folder):
    """The pictures that zoom into each other, and the circuit in its five states with the board and its marks."""
    water = sorted((folder / "phn").glob("f*.gif"))
    assert [p.stem for p in water] == [f"f{i}" for i in range(1, WATER_PICTURES + 1)], water
    for path in water:
        width, height, colours, clear = pixels(path)
        assert (width, height) == WATER_SIZE and not any(clear), path
        if path.stem != f"f{WATER_PICTURES}":
            assert any(r > 180 and g < 90 and b < 90 for r, g, b in set(colours)), f"{path}: has no red ion"
    check_twins(folder / "phn")
    sizes = dict.fromkeys(CIRCUITS.split(), CIRCUIT_SIZE) | MARKS
    assert {p.stem for p in (folder / "ionen").glob("*.wmf")} == sizes.keys(), "other sprites in ionen"
    for stem, size in sizes.items():
        path = folder / "ionen" / f"{stem}.wmf"
        assert sprite_size(path) == size and path.stat().st_size < LARGEST_SPRITE, path


def main(arguments):
    if len(arguments) != 2:
        print("usage: check_pictures.py DATA_FOLDER", file=sys.stderr)
        return 2
    folder = Path(arguments[1])
    try:
        check_twins(folder)
        check_lens(folder, 1)
        check_lens(folder / "x3", 3)
        check_slide(folder)
        check_starts(folder)
        check_reactions(folder)
        check_lessons(folder)
    except AssertionError as error:
        print(f"wrong: {error}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
