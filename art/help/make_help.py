#!/usr/bin/env python3
"""Makes a rich text from the small markup of this folder: make_help.py SOURCE.txt TARGET.rtf.

The markup is told at the head of strong.txt. The RTF keeps to what simple readers know:
paragraphs with alignment, indents and space around them, bold, italic, size, colour, sub- and
superscript, \\'xx, \\uN?, bullets, and tables with a ground and lines.
"""

import re
import sys
from pathlib import Path

HEADER = (
    r"{\rtf1\ansi\ansicpg1252\deff0{\fonttbl{\f0\fswiss Arial;}}"
    r"{\colortbl;\red0\green105\blue110;\red222\green240\blue239;}" + "\n"
)
BODY = r"\fs24 "
TABLE_WIDTH = 9000  # twips, fits a printed A4 page
HEADINGS = {
    "= ": r"\sa120\b\cf1\fs36 ",
    "== ": r"\sb320\sa60\b\cf1\fs30 ",
    "=== ": r"\sb220\sa40\b\cf1\fs26 ",
}
LAYOUTS = {
    "- ": r"\li400\fi-160\sb60",
    "$ ": r"\qc\sb60\sa60",
    "> ": r"\li400\sb160\sa60",
    "": r"\sb120\sa60",
}
BEHIND_TABLE = r"\sb200"
CELL_LINE = r"\clbrdrb\brdrs\brdrw10"
HEAD_GROUND = r"\clcbpat2"
INLINE = re.compile(r"\\(.)|([*_])|([~^])\{([^}]*)\}|(.)", re.DOTALL)
WIDE_GAP = re.compile(r" {2,}")
UNIT = re.compile(r"(?<=\d) (?=(?:mL|L|V|mol|mol/L|mmol|mS|cm|Punkte|Minuten|°C)\b)")


def character(sign):
    """One character of text: plain, as a byte of code page 1252, or as a Unicode number."""
    if sign in "\\{}":
        return "\\" + sign
    if ord(sign) < 128:
        return sign
    try:
        return "\\'%02x" % sign.encode("cp1252")[0]
    except UnicodeEncodeError:
        return "\\u%d?" % ord(sign)


def text(plain):
    return "".join(character(sign) for sign in plain)


def inline(source):
    """Text with its marks. Wide gaps and the space before a unit are kept and don't break."""
    open_marks = {"*": False, "_": False}
    words = {"*": ("\\b ", "\\b0 "), "_": ("\\i ", "\\i0 ")}
    result = ""
    source = WIDE_GAP.sub(lambda gap: "\u00a0" * len(gap[0]), UNIT.sub("\u00a0", source))
    for escaped, toggle, script, scripted, sign in INLINE.findall(source):
        if toggle:
            result += words[toggle][open_marks[toggle]]
            open_marks[toggle] = not open_marks[toggle]
        elif script:
            result += ("{\\sub " if script == "~" else "{\\super ") + text(scripted) + "}"
        else:
            result += text(escaped or sign)
    if any(open_marks.values()):
        raise ValueError("a mark is left open in: " + source)
    return result


def heading(mark, source):
    return r"\pard" + HEADINGS[mark] + inline(source) + r"\b0\cf0\fs24\par" + "\n"


def paragraph(mark, source, behind_table):
    """A paragraph in the layout of its mark; the later of two spacings holds."""
    layout = r"\pard" + LAYOUTS[mark] + (BEHIND_TABLE if behind_table else "") + BODY
    content = inline(source)
    if mark == "- ":
        content = r"\bullet  " + content
    elif mark == "> ":
        content = r"\cf1 " + content + r"\cf0"
    return layout + content + r"\par" + "\n"


def row(cells, widths, bold):
    edges = [sum(widths[: i + 1]) * TABLE_WIDTH // 100 for i in range(len(widths))]
    if len(cells) != len(widths):
        raise ValueError("cells and widths differ in: " + " | ".join(cells))
    look = CELL_LINE + (HEAD_GROUND if bold else "")
    definition = r"\trowd\trgaph108" + "".join(look + r"\cellx%d" % edge for edge in edges)
    weight = (r"\b ", r"\b0") if bold else ("", "")
    content = "".join(weight[0] + inline(cell) + weight[1] + r"\cell " for cell in cells)
    return definition + r"\pard\intbl\sb40\sa40" + BODY + content + r"\row" + "\n"


def blocks(lines):
    """Joins continued lines; yields (mark, text). A table row or formula is one line."""
    mark, gathered = "", []
    for line in lines + [""]:
        start = re.match(r"(={1,3} |- |\$ |> |\|[:=]?|//)", line)
        continued = start and start[1] == "> " and mark == "> " and gathered
        if (not line.strip() or (start and not continued)) and gathered:
            yield mark, " ".join(gathered)
            mark, gathered = "", []
        if start and start[1] != "//":
            mark = start[1]
            gathered.append(line[len(mark):].strip())
        elif not start and line.strip():
            gathered.append(line.strip())


def cells_of(source):
    return [cell.strip() for cell in source.strip().strip("|").split("|")]


def rich_text(source):
    body, widths, behind_table = "", [], False
    for mark, content in blocks(source.split("\n")):
        in_table = mark in ("|", "|=")
        if mark == "|:":
            widths = [int(width) for width in content.split()]
        elif in_table:
            body += row(cells_of(content), widths, mark == "|=")
        elif mark in HEADINGS:
            body += heading(mark, content)
        else:
            body += paragraph(mark, content, behind_table)
        behind_table = in_table
    return HEADER + body + "}\n"


def main(arguments):
    if len(arguments) != 3:
        print("usage: make_help.py SOURCE.txt TARGET.rtf", file=sys.stderr)
        return 2
    source = Path(arguments[1]).read_text(encoding="utf-8")
    Path(arguments[2]).write_text(rich_text(source), encoding="ascii", newline="\n")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
