#!/usr/bin/env python3
"""Lays all pictures out on one sheet, so that they can be looked at together.

Usage: contact-sheet.py [--ratio N] BUILD_DIR OUT_FILE

BUILD_DIR is a folder that render.py has filled. Every picture stands on the stripes of the windows
with its number below it. With --ratio 2 everything is made of twice as many pixels, as on a dense
screen. Pictures up to the size of a hand are shown pixel by pixel; larger ones are reduced, which
keeps the sheet's file small.
"""

import argparse
import base64
import csv
import json
import subprocess
from pathlib import Path

HERE = Path(__file__).resolve().parent
GLYPHS = HERE.parent / "charts" / "glyphs.json"

WIDTH = 1480
MARGIN = 20
GAP = 14
HAND = (142, 162)
# What larger pictures are reduced to, by the ratio.
REDUCED = {1: (330, 250), 2: (130, 110), 3: (130, 110)}
LABEL_SIZE = 12
LABEL_HEIGHT = 20
INK = "#1F3A4D"
# The window background: lines of one pixel each.
STRIPES = ((244, 244, 244), (255, 255, 255), (243, 243, 243), (238, 238, 238))


def read_sizes():
    with open(HERE / "sizes.csv", newline="", encoding="utf-8") as table:
        return {row["id"]: (int(row["width"]), int(row["height"])) for row in csv.DictReader(table)}


def read_digits():
    lines = map(json.loads, GLYPHS.read_text(encoding="utf-8").splitlines())
    return {line[0]: (line[1], line[6]) for line in lines if line[0].isdigit()}


def shown_size(size, ratio):
    if size[0] <= HAND[0] and size[1] <= HAND[1]:
        return size
    width, height = REDUCED[ratio]
    factor = min(1.0, width / size[0], height / size[1])
    return (round(size[0] * factor), round(size[1] * factor))


def rows_of(shown):
    """The pictures in the order of their numbers, as many side by side as the sheet is wide."""
    rows, left = [[]], MARGIN
    for id_ in sorted(shown, key=int):
        width = shown[id_][0]
        if rows[-1] and left + width > WIDTH - MARGIN:
            rows.append([])
            left = MARGIN
        rows[-1].append(id_)
        left += width + GAP
    return rows


def label(digits, text, middle, base):
    scale = LABEL_SIZE / 1000
    left = middle - sum(digits[c][0] for c in text) * scale / 2
    out = []
    for c in text:
        advance, path = digits[c]
        out.append('<path transform="translate(%.2f %.2f) scale(%.5f)" d="%s" fill="%s"/>'
                   % (left, base, scale, path, INK))
        left += advance * scale
    return "".join(out)


def image(folder, id_, ratio, x, y, width, height):
    name = "%s.png" % id_ if ratio == 1 else "%s@%dx.png" % (id_, ratio)
    data = base64.b64encode((folder / name).read_bytes()).decode()
    return ('<image x="%d" y="%d" width="%d" height="%d" preserveAspectRatio="none" '
            'href="data:image/png;base64,%s"/>' % (x, y, width, height, data))


def stripes():
    lines = "".join('<rect y="%d" width="4" height="1" fill="rgb%s"/>' % (y, colour)
                    for y, colour in enumerate(STRIPES))
    return ('<defs><pattern id="stripes" width="4" height="4" patternUnits="userSpaceOnUse">%s'
            '</pattern></defs><rect width="100%%" height="100%%" fill="url(#stripes)"/>' % lines)


def sheet(folder, ratio):
    digits = read_digits()
    shown = {id_: shown_size(size, ratio) for id_, size in read_sizes().items()
             if (folder / (id_ + ".png")).exists()}
    body, top = [], MARGIN
    for row in rows_of(shown):
        height = max(shown[id_][1] for id_ in row)
        left = MARGIN
        for id_ in row:
            w, h = shown[id_]
            body.append(image(folder, id_, ratio, left, top + height - h, w, h))
            body.append(label(digits, id_, left + w / 2, top + height + LABEL_SIZE + 2))
            left += w + GAP
        top += height + LABEL_HEIGHT + GAP
    height = -(-(top + MARGIN - GAP) // 4) * 4
    return ('<svg xmlns="http://www.w3.org/2000/svg" width="%d" height="%d" viewBox="0 0 %d %d">'
            '%s%s</svg>' % (WIDTH, height, WIDTH, height, stripes(), "".join(body)))


def main():
    parser = argparse.ArgumentParser(description="Lays all pictures out on one sheet.")
    parser.add_argument("--ratio", type=int, choices=(1, 2, 3), default=1)
    parser.add_argument("build", type=Path, metavar="BUILD_DIR")
    parser.add_argument("out", type=Path, metavar="OUT_FILE")
    options = parser.parse_args()
    subprocess.run(["rsvg-convert", "--unlimited", "--zoom", str(options.ratio), "--output",
                    str(options.out)], input=sheet(options.build, options.ratio).encode(),
                   check=True)


if __name__ == "__main__":
    main()
