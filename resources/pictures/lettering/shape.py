#!/usr/bin/python3
"""Turns the words that stand in pictures into outlines.

Usage: shape.py OUT_FILE

Pictures hold no live text, so that they look the same on every machine. This tool is run by hand
when a word or its face changes; the build uses only the file that it writes. It needs hb-shape and
the fontTools module, and the faces of the Debian packages fonts-hosny-amiri and fonts-noto-core.

Each line of the file is a JSON list: name, width (advance), left, top, right, bottom of the ink,
and the path. The unit is 1/1000 em, y grows downwards, the origin is the start of the base line.
"""

import json
import subprocess
import sys

from fontTools.misc.transform import Transform
from fontTools.pens.boundsPen import BoundsPen
from fontTools.pens.svgPathPen import SVGPathPen
from fontTools.pens.transformPen import TransformPen
from fontTools.ttLib import TTFont

AMIRI = "/usr/share/fonts/opentype/fonts-hosny-amiri/Amiri-%s.ttf"
NOTO = "/usr/share/fonts/truetype/noto/Noto%s.ttf"

# name, face, text, extra space after each glyph in 1/1000 em
WORDS = [
    ("basmala", AMIRI % "Regular", "بِسْـــــمِ اللَّهِ الرَّحْمَٰنِ الرَّحِيمِ", 0),
    ("name-ar", NOTO % "KufiArabic-Bold", "كي فلونت", 0),
    ("name-en", NOTO % "SansDisplay-Bold", "KeyFluent", 0),
    ("name-en-serif", AMIRI % "Bold", "KeyFluent", 10),
    ("diploma", NOTO % "SerifDisplay-Regular", "DIPLOMA", 150),
    ("certify", AMIRI % "Slanted", "This is to certify that", 10),
    ("completed", AMIRI % "Slanted", "has completed the course of touch typing", 10),
    ("1", NOTO % "Sans-Bold", "1", 0),
    ("2", NOTO % "Sans-Bold", "2", 0),
    ("3", NOTO % "Sans-Bold", "3", 0),
]


def glyphs(face, text):
    shaped = subprocess.run(
        ["hb-shape", "--output-format=json", "--no-glyph-names", "--font-file", face,
         "--text", text],
        check=True, capture_output=True, text=True).stdout
    return json.loads(shaped)


def outline(face, text, spacing):
    font = TTFont(face)
    scale = 1000 / font["head"].unitsPerEm
    glyph_set = font.getGlyphSet()
    order = font.getGlyphOrder()
    path = SVGPathPen(glyph_set, lambda v: ("%.1f" % v).rstrip("0").rstrip("."))
    bounds = BoundsPen(glyph_set)
    x = 0
    for item in glyphs(face, text):
        place = Transform(scale, 0, 0, -scale, x + item["dx"] * scale, -item["dy"] * scale)
        for pen in (path, bounds):
            glyph_set[order[item["g"]]].draw(TransformPen(pen, place))
        x += item["ax"] * scale + spacing
    box = [round(v, 1) for v in bounds.bounds]
    return [round(x - spacing, 1), *box, path.getCommands()]


def main():
    with open(sys.argv[1], "w", encoding="utf-8") as out:
        for name, face, text, spacing in WORDS:
            out.write(json.dumps([name, *outline(face, text, spacing)]) + "\n")


if __name__ == "__main__":
    main()
