"""What the pictures made by scripts share: the palette, the looks of a button, writing a file."""

import sys
from pathlib import Path

INK = "#1F3A4D"
TEAL = "#2F7F86"
LIGHT_TEAL = "#8CC6C4"
PALE_TEAL = "#E3F1F0"
AMBER = "#F2A541"
LIGHT_AMBER = "#FCE2B6"
CORAL = "#D9644A"
LIGHT_CORAL = "#F6CFC4"
SAND = "#F4EBDD"
PAPER = "#FBF8F2"
GOLD = "#C79A3B"
GREY = "#9AA5AB"
LIGHT_GREY = "#D5DADD"
WHITE = "#FFFFFF"


def number(value):
    """A coordinate as short text, to a hundredth of a pixel."""
    text = ("%.2f" % value).rstrip("0").rstrip(".")
    return "0" if text in ("-0", "") else text


def points_path(points, closed=False):
    """Path data through points given as pairs."""
    text = "M" + "L".join("%s %s" % (number(x), number(y)) for x, y in points)
    return text + "Z" if closed else text


def svg(width, height, body):
    return ('<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" '
            'width="%d" height="%d" viewBox="0 0 %d %d">\n%s\n</svg>\n'
            % (width, height, width, height, body))


def save(id_, width, height, body):
    """Writes the picture into the folder that the script was given."""
    target = Path(sys.argv[1]) / ("%s.svg" % id_)
    target.write_text(svg(width, height, body), encoding="utf-8")


def gradient(id_, top, bottom):
    """A fill with the light from the upper left."""
    return ('<linearGradient id="%s" x1="0" y1="0" x2="0.45" y2="1">'
            '<stop offset="0" stop-color="%s"/><stop offset="1" stop-color="%s"/>'
            '</linearGradient>' % (id_, top, bottom))
