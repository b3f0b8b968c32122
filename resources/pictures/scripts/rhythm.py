#!/usr/bin/env python3
"""A picture of the random set that tells of rhythm.

    python3 rhythm.py OUTDIR

145  even strokes, as a metronome beats, and uneven ones
"""


from _scene import (WOOD, WOOD_DARK, arc, box, cross, disc, line, moved, oval, panel, path, shade,
                    sheet, tick, write)
from _style import AMBER, CORAL, GREY, INK, LIGHT_AMBER, LIGHT_GREY, LIGHT_TEAL, TEAL, WHITE
from hands import mix


def metronome():
    """A metronome of 96 x 124 pixels about its foot's middle; its pendulum is at the left."""
    out = [oval(2, 1.5, 45, 4.5, "#000000", extra='fill-opacity="0.14"'),
           shade("wood", (-40, -120, 44, 0), mix(WOOD, WHITE, 0.85), mix(WOOD, WOOD_DARK, 0.5)),
           path("M-17 -118 Q0 -126 17 -118 L43 -6 H-43 Z", "url(#wood)", INK),
           path("M-11 -106 H11 L27 -34 H-27 Z", mix(WOOD, WHITE, 0.35), INK, 1.6)]
    for k in range(7):
        y = -98 + k * 9
        out.append(line([(-4, y), (4, y)], WOOD_DARK, 1.6))
    for degrees, opacity in ((-66, 0.28), (-90, 0.28), (-114, 1.0)):
        tip, weight = (arc(0, -34, r, degrees, 0, 1)[0] for r in (86, 56))
        rod = line([(0, -34), tip], INK, 2.6) + moved(
            *weight, path("M-8 -6 H8 L6 7 H-6 Z", CORAL, INK, 1.8), turn=degrees + 90)
        out.append(f'<g opacity="{opacity}">{rod}</g>')
    out += [box(-47, -30, 94, 26, 4, "url(#wood)", INK), disc(0, -17, 4, AMBER, INK, 1.6),
            box(-40, -5, 14, 6, 2, INK), box(26, -5, 14, 6, 2, INK)]
    return "".join(out)


def key(x, y, fill, edge):
    return (box(x - 15, y + 3, 30, 24, 6, "#000000", extra='fill-opacity="0.14"')
            + box(x - 15, y, 30, 24, 6, fill, edge))


def hop(x0, x1, y, height, colour, dash=""):
    """Half a wave from one stroke to the next."""
    lift = height * 4 / 3
    return path(f"M{x0} {y} C{x0 + (x1 - x0) * 0.12} {y - lift} {x1 - (x1 - x0) * 0.12} {y - lift} "
                f"{x1} {y}", "none", colour, 3, dash)


def strokes(places, heights, y, colours):
    """Keys struck one after the other from the right, and the finger's way between them."""
    fill, edge, wave, ball = colours
    out = [key(x, y, fill, edge) for x in places]
    out += [hop(a, b, y - 5, h, wave) for a, b, h in zip(places, places[1:], heights)]
    out += [disc(x, y - 5, 5.5, ball, edge) for x in places]
    return "".join(out)


def even():
    places = [308 - k * 46 for k in range(7)]
    beats = "".join(line([(x, 112), (x, 120)], TEAL, 2.4) for x in places)
    return (strokes(places, [44] * 6, 78, (LIGHT_AMBER, INK, TEAL, AMBER))
            + line([(16, 120), (330, 120)], LIGHT_TEAL, 2.4) + beats
            + moved(376, 126, metronome(), 0.94) + tick(24, 24, 12))


def uneven():
    places = [400, 366, 266, 230, 196, 84, 46]
    heights = [18, 62, 22, 14, 66, 20]
    beats = "".join(line([(x, 112), (x, 120)], GREY, 2.4) for x in places)
    return (strokes(places, heights, 78, (WHITE, GREY, mix(GREY, WHITE, 0.9), LIGHT_GREY))
            + line([(16, 120), (412, 120)], mix(GREY, WHITE, 0.6), 2.4) + beats
            + cross(24, 24, 12))


def rhythm():
    return sheet(460, 320,
                 panel(16, 16, 428, 140, even(), "even")
                 + panel(16, 166, 428, 138, uneven(), "uneven", mix(LIGHT_GREY, WHITE, 0.6), GREY))


if __name__ == "__main__":
    write({145: rhythm})
