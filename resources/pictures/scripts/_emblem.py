"""The program's emblem: the key of the icon, and the rosette that it stands on."""

import re
from math import cos, pi
from pathlib import Path

from _ornament import star_polygon
from _style import number


def key(cx, cy, size):
    """The icon's drawing, so large that its key is about as wide as size, centred."""
    source = Path(__file__).resolve().parent.parent / "svg" / "icon.svg"
    drawing = re.search(r"<defs>.*(?=</svg>)", source.read_text(encoding="utf-8"), re.S).group(0)
    return ('<g transform="translate(%s %s) scale(%.4f) translate(-125 -126)">%s</g>'
            % (number(cx), number(cy), size / 230, drawing))


def rosette(cx, cy, radius, stroke, width=1.0, attributes=""):
    """A sixteenfold rosette of fine lines."""
    inner = radius * 0.95
    rings = "".join('<circle r="%s"/>' % number(r)
                    for r in (radius, inner, inner * cos(3 * pi / 8)))
    return ('<g transform="translate(%s %s)" fill="none" stroke="%s" stroke-width="%s" '
            'stroke-linejoin="round" %s>%s<path d="%s"/><path d="%s"/></g>'
            % (number(cx), number(cy), stroke, width, attributes, rings,
               star_polygon(0, 0, 16, 6, inner), star_polygon(0, 0, 16, 4, inner)))
