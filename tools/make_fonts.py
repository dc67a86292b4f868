#!/usr/bin/python3
"""Makes the faces of the window and of the report, frontend/fonts/*.ttf, from the Liberation fonts of the Debian package
fonts-liberation2 (2.1.5), whose letters are as wide as those of the faces that the report names. They are committed: the
build needs neither package nor script. With the Debian package python3-fonttools:

    apt-get install fonts-liberation2 python3-fonttools
    tools/make_fonts.py

Each face keeps the letters of Latin, Greek and Cyrillic with marks, signs and numbers, its hinting and its kerning. It
goes under a name of its own: the licence asks for one where a font was changed, and no font that is installed, of
whatever version, can then take its place.
"""

import pathlib
import sys

from fontTools import subset
from fontTools.ttLib import TTFont

FROM = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else "/usr/share/fonts/truetype/liberation2")
TO = pathlib.Path(__file__).resolve().parent.parent / "frontend" / "fonts"

FACES = [
    ("LiberationSans-Regular", "Tarnvik Sans", "Regular"),
    ("LiberationSans-Bold", "Tarnvik Sans", "Bold"),
    ("LiberationSerif-Regular", "Tarnvik Serif", "Regular"),
    ("LiberationSerif-Bold", "Tarnvik Serif", "Bold"),
    ("LiberationSerif-BoldItalic", "Tarnvik Serif", "Bold Italic"),
]

# Basic Latin to Latin Extended-B, modifiers and combining marks, Greek, Cyrillic, Latin Extended Additional, punctuation
# to currency signs, letterlike signs and fractions, arrows, mathematical and technical signs, boxes and shapes.
LETTERS = [
    *range(0x0020, 0x0250),
    *range(0x02B0, 0x0370),
    *range(0x0370, 0x0530),
    *range(0x1E00, 0x1F00),
    *range(0x2000, 0x2400),
    *range(0x2500, 0x2670),
    *range(0xFB00, 0xFB07),
]

# Numbers of the table of names.
FAMILY, STYLE, IDENTIFIER, FULL_NAME, FILE_NAME = 1, 2, 3, 4, 6
OF_SETS = (16, 17, 21, 22, 25)


def rename(font, family, style):
    full = family if style == "Regular" else f"{family} {style}"
    texts = {
        FAMILY: family,
        STYLE: style,
        IDENTIFIER: f"{full}, from Liberation 2.1.5",
        FULL_NAME: full,
        FILE_NAME: f"{family.replace(' ', '')}-{style.replace(' ', '')}",
    }
    names = font["name"]
    for record in list(names.names):
        if record.nameID in OF_SETS:
            names.removeNames(nameID=record.nameID)
        elif record.nameID in texts:
            names.setName(texts[record.nameID], record.nameID, record.platformID, record.platEncID, record.langID)


def main():
    for source, family, style in FACES:
        font = TTFont(FROM / f"{source}.ttf", recalcTimestamp=False)
        options = subset.Options()
        options.hinting = True
        options.layout_features = ["kern", "mark", "mkmk", "ccmp", "locl"]
        options.name_IDs = ["*"]
        options.name_languages = ["*"]
        options.notdef_outline = True
        options.recalc_timestamp = False
        options.drop_tables += ["DSIG", "FFTM"]
        cut = subset.Subsetter(options)
        cut.populate(unicodes=LETTERS)
        cut.subset(font)
        rename(font, family, style)
        target = TO / f"{family.replace(' ', '')}-{style.replace(' ', '')}.ttf"
        font.save(target)
        print(f"{target.name}: {len(font.getGlyphOrder())} letters, {target.stat().st_size} bytes")


if __name__ == "__main__":
    main()
