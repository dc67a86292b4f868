#!/usr/bin/env python3
"""make_equation_fonts.py FOLDER: the fonts of the equations, letters-1.ttf and on, from what make_equations.mjs gives.

Reads JSON: a list of letters for each font, with their character, width and outline (an SVG path, y upward, 1000 units to
the em). Needs the Debian package python3-fonttools.
"""
import json
import pathlib
import re
import sys

from fontTools.fontBuilder import FontBuilder
from fontTools.pens.ttGlyphPen import TTGlyphPen

UNITS_PER_EM = 1000
ASCENT, DESCENT = 800, 200  # nobody asks: letters are set by their baseline
CREATED = 3_800_000_000  # seconds since 1904, always the same, so that the files are


def draw(outline, pen):
    """The commands that there are: M, L, H, V, Q, T and Z, all absolute."""
    x = y = 0
    control = None
    for command, numbers in re.findall(r"([MLHVQTZ])([^MLHVQTZ]*)", outline):
        values = [round(float(value)) for value in numbers.split()]
        if command == "M":
            x, y = values
            pen.moveTo((x, y))
        elif command == "Z":
            pen.closePath()
        elif command in "LHV":
            x = values[0] if command in "LH" else x
            y = values[-1] if command in "LV" else y
            pen.lineTo((x, y))
        else:
            # T goes on in the direction of the curve before it.
            point = tuple(values[:2]) if command == "Q" else (2 * x - control[0], 2 * y - control[1]) if control else (x, y)
            x, y = values[-2:]
            pen.qCurveTo(point, (x, y))
        control = point if command in "QT" else None


def font(letters, name):
    names = [".notdef"] + [f"letter{i + 1}" for i in range(len(letters))]
    glyphs, widths = {".notdef": TTGlyphPen(None).glyph()}, {".notdef": (UNITS_PER_EM // 2, 0)}
    for glyph, letter in zip(names[1:], letters):
        pen = TTGlyphPen(None)
        draw(letter["d"], pen)
        glyphs[glyph] = pen.glyph()
        widths[glyph] = (letter["width"], 0)
    builder = FontBuilder(UNITS_PER_EM, isTTF=True)
    builder.setupGlyphOrder(names)
    builder.setupCharacterMap({letter["character"]: glyph for glyph, letter in zip(names[1:], letters)})
    builder.setupGlyf(glyphs)
    builder.setupHorizontalMetrics({glyph: (width, builder.font["glyf"][glyph].xMin if glyph != ".notdef" else 0)
                                    for glyph, (width, _) in widths.items()})
    builder.setupHorizontalHeader(ascent=ASCENT, descent=-DESCENT)
    builder.setupNameTable({"familyName": name, "styleName": "Regular", "fullName": name,
                            "psName": name.replace(" ", ""),
                            "licenseDescription": "Outlines of MathJax's TeX fonts, Apache License 2.0"})
    builder.setupOS2(sTypoAscender=ASCENT, usWinAscent=ASCENT, usWinDescent=DESCENT, fsType=0)
    builder.setupPost()
    builder.updateHead(created=CREATED, modified=CREATED)
    builder.font.recalcTimestamp = False
    return builder


def main():
    folder = pathlib.Path(sys.argv[1])
    for number, letters in enumerate(json.load(sys.stdin), 1):
        font(letters, f"Tarnvik Equations {number}").save(folder / f"letters-{number}.ttf")


if __name__ == "__main__":
    main()
