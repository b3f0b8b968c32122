#!/usr/bin/python3
"""Turns the texts on the key caps, and the names of the fingers, into outlines.

Usage: shape.py TABLES_FILE OUT_FILE

TABLES_FILE is what keyfluent-table-dump prints. This tool is run by hand when a layout or a face
changes; the build uses only glyphs.json, the file that it writes. It needs what
pictures/lettering/shape.py needs, and the format of a line is the same: a JSON list of the text,
its width, the left, top, right and bottom of its ink, and the path, in 1/1000 em.
"""

import json
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "pictures" / "lettering"))

from shape import NOTO, outline  # noqa: E402  (found by the line above)

ARABIC = NOTO % "SansArabic-Bold"
LATIN = NOTO % "Sans-Bold"
SIGNS = "/usr/share/fonts/truetype/dejavu/DejaVuSans-Bold.ttf"

FINGER_NAMES = ("خنصر", "بنصر", "وسطى", "سبابة", "إبهام")


def face_of(text):
    if any("\u0600" <= c <= "\u06ff" for c in text):
        return ARABIC
    return LATIN if text.isascii() else SIGNS


def texts(tables):
    """All texts of the caps but the letters that stand for signs, each once and in order."""
    found = set(FINGER_NAMES)
    for cap in tables["caps"]:
        found |= {cap["sign"]} if cap["sign"] else {cap["arabic"], cap["english"],
                                                    cap["englishShift"]}
    return sorted(found - {""})


def main():
    tables = json.loads(Path(sys.argv[1]).read_text(encoding="utf-8"))
    with open(sys.argv[2], "w", encoding="utf-8") as out:
        for text in texts(tables):
            line = [text, *outline(face_of(text), text, 0)]
            out.write(json.dumps(line, ensure_ascii=False) + "\n")


if __name__ == "__main__":
    main()
