#!/usr/bin/env python3
"""A picture of the random set that tells how to practise.

    python3 practice.py OUTDIR

157  a little every day leads up, a heap in one night topples
"""

import math

from _people import BOY, STRAIGHT_FINGERS, Figure, Pose
from _scene import (LEAF, WOOD, WOOD_DARK, arc, box, clock, cross, disc, line, moved, oval, panel,
                    path, shade, sheet, tick, write)
from _style import (AMBER, CORAL, GOLD, INK, LIGHT_AMBER, LIGHT_GREY, TEAL, WHITE, points_path)
from hands import mix

NIGHT = "#54669A"
DAY = "#E8F3F4"
DAYS = 7
PANEL_HEIGHT = 497.0
GROUND = 462.0

# The panel of the stairs; they begin at the right, where writing begins.
WIDTH = 462.0
STEP = (43.0, 39.0)
STAIRS_RIGHT = 452.0
STAIRS_LEFT = STAIRS_RIGHT - DAYS * STEP[0]
TOP = GROUND - DAYS * STEP[1]

UNIT = 28.5
# From one step to the next, in heads.
UP, ALONG = STEP[1] / UNIT, STEP[0] / UNIT
CLIMBING = Pose(shoulder=(-0.12, -1.46), head=(-0.26, -2.30), tilt=-10,
                near_arm=((0.36, -0.84), (0.22, -0.06)), far_arm=((-0.62, -0.94), (-1.16, -1.34)),
                near_leg=((-1.36, -0.14), (0.42 - ALONG, 2.60 - UP)),
                far_leg=((-0.16, 1.36), (0.42, 2.60)), fingers=STRAIGHT_FINGERS)
SOLE = 0.21      # under the ankle


def ground(width):
    return (box(0, GROUND, width, 60, 0, mix(LEAF, WHITE, 0.7))
            + line([(0, GROUND), (width, GROUND)], mix(LEAF, INK, 0.6), 2.5))


def sun(x, y, radius, rays, stroke, colour=AMBER):
    out = [line([arc(x, y, radius * 1.35, a, a, 1)[0], arc(x, y, radius * 1.8, a, a, 1)[0]],
                colour, stroke) for a in range(0, 360, 360 // rays)]
    return "".join(out) + disc(x, y, radius, colour, mix(colour, INK, 0.8), stroke * 0.6)


# Every day ----------------------------------------------------------------------------------


def stairs():
    """One step more each day, all of one height; each shows its day and its quarter of an
    hour."""
    out = []
    width, height = STEP
    edge = mix(AMBER, INK, 0.75)
    for day in range(DAYS):
        x, y = STAIRS_RIGHT - (day + 1) * width, GROUND - (day + 1) * height
        out.append(box(x, y, width, GROUND - y, 0, LIGHT_AMBER, edge, 1.5))
    for day in range(DAYS):
        x, y = STAIRS_RIGHT - (day + 1) * width, GROUND - (day + 1) * height
        out += [box(x, y, width, height, 3, AMBER, INK),
                clock(x + 16, y + height / 2, 10.8, 15, CORAL),
                sun(x + width - 9, y + 12, 3, 8, 1.2, WHITE)]
    return "".join(out)


def hill():
    """The height that the stairs lead to."""
    right = STAIRS_LEFT
    tuft = (right + 12) / 6
    grass = (f"M-12 {TOP + 15} V{TOP} H{right} V{TOP + 15} " + f"q{-tuft / 2} 9 {-tuft} 0 " * 6
             + "Z")
    return (shade("earth", (0, TOP, right, GROUND), "#D9BF98", "#BD9A6F")
            + path(f"M-12 {GROUND} V{TOP} H{right} V{GROUND} Z", "url(#earth)", INK)
            + path(grass, LEAF, INK)
            + "".join(oval(x, TOP + y, rx, rx * 0.6, "#A98559", extra='fill-opacity="0.45"')
                      for x, y, rx in ((30, 62, 9), (96, 100, 12), (46, 156, 11), (108, 200, 8),
                                       (72, 236, 6))))


def star(x, y, radius):
    points = []
    for k in range(10):
        a = math.radians(-90 + 36 * k)
        r = radius if k % 2 == 0 else radius * 0.46
        points.append((x + r * math.cos(a), y + r * math.sin(a)))
    return path(points_path(points, True), AMBER, mix(GOLD, INK, 0.55), 2.2)


def diploma(x, y):
    """A diploma on an easel under a star; (x, y) is the easel's foot."""
    rays = "".join(line([arc(0, -112, 31, a, a, 1)[0], arc(0, -112, 39, a, a, 1)[0]], AMBER, 3)
                   for a in range(-200, 40, 30))
    return moved(x, y, "".join((
        line([(-6, -70), (-20, 0)], INK, 6.5), line([(-6, -70), (-20, 0)], WOOD_DARK, 3),
        line([(6, -70), (20, 0)], INK, 6.5), line([(6, -70), (20, 0)], WOOD_DARK, 3),
        box(-33, -76, 66, 50, 3, WHITE, INK), box(-28, -71, 56, 40, 1, "none", GOLD, 1.8),
        line([(-12, -62), (12, -62)], TEAL, 3), line([(-19, -53), (19, -53)], INK, 1.8),
        line([(-19, -46), (7, -46)], INK, 1.8),
        path("M12 -37 l-4 12 5 -3 4 5 2 -13 Z", CORAL, INK, 1.2),
        disc(15, -41, 6.5, GOLD, INK, 1.4), box(-26, -28, 52, 5, 2, WOOD, INK, 1.6),
        rays, star(0, -112, 24))))


def bench(x, y):
    """A seat under a tree, for the rest that follows."""
    crown = ("M-30 -52 C-44 -64 -34 -84 -18 -82 C-12 -100 16 -100 22 -82 C40 -82 46 -62 32 -52 "
             "C24 -42 6 -42 0 -47 C-8 -42 -24 -44 -30 -52 Z")
    return moved(x, y, "".join((
        path("M-5 1 C-3 -18 -3 -34 -4 -52 H6 C5 -34 5 -18 8 1 Z", WOOD_DARK, INK),
        shade("crown", (-40, -100, 40, -40), mix(LEAF, WHITE, 0.8), mix(LEAF, INK, 0.86)),
        path(crown, "url(#crown)", INK),
        box(-23, -18, 6, 19, 1, WOOD_DARK, INK, 1.5), box(19, -18, 6, 19, 1, WOOD_DARK, INK, 1.5),
        box(-28, -21, 58, 6, 2, WOOD, INK, 1.8), box(-28, -34, 58, 6, 2, WOOD, INK, 1.8))))


def every_day():
    day = 3
    foot = (STAIRS_RIGHT - (day - 0.5) * STEP[0] + 4, GROUND - day * STEP[1])
    hip = (foot[0] - 0.42 * UNIT, foot[1] - (2.60 + SOLE) * UNIT)
    return "".join((
        sun(392, 72, 29, 12, 4), ground(WIDTH), hill(), stairs(),
        bench(38, TOP), diploma(112, TOP),
        Figure(CLIMBING, hip, UNIT, BOY, "climber").drawing(),
        tick(304, 40, 17)))


# In one night -------------------------------------------------------------------------------


def block(x, y, turn):
    width, height = STEP
    body = (box(-width / 2, -height, width, height, 4, LIGHT_GREY, INK)
            + clock(0, -height / 2, 12.5, 15, mix(CORAL, LIGHT_GREY, 0.6)))
    return moved(x, y, body, turn=turn)


def falling(x, y, radius, start, end):
    """The way of a block that falls, as a thin trail."""
    return line(arc(x, y, radius, start, end), WHITE, 2.4, 'stroke-dasharray="1 7"')


def in_one_night():
    twinkle = "M0 -5 L1.4 -1.4 L5 0 L1.4 1.4 L0 5 L-1.4 1.4 L-5 0 L-1.4 -1.4 Z"
    stars = "".join(moved(x, y, path(twinkle, WHITE)) for x, y in
                    ((30, 120), (132, 36), (172, 100), (44, 200), (110, 118)))
    moon = "M70 34 A30 30 0 1 0 104 76 A24 24 0 0 1 70 34 Z"
    heap = [block(52, GROUND, 0), block(55, GROUND - 39, 1), block(62, GROUND - 78, 4),
            block(75, GROUND - 116, 10), block(96, GROUND - 152, 24),
            block(128, GROUND - 160, 58), block(140, GROUND - 14, 98)]
    return "".join((
        path(moon, LIGHT_AMBER, AMBER, 2), stars,
        box(0, GROUND, 200, 60, 0, mix(mix(LEAF, WHITE, 0.7), NIGHT, 0.55)),
        line([(0, GROUND), (200, GROUND)], mix(LEAF, INK, 0.5), 2.5),
        falling(84, GROUND - 128, 78, -72, -42), falling(100, GROUND - 62, 66, -44, 16),
        *heap, cross(168, 32, 15)))


def practice():
    return sheet(700, 525,
                 panel(14, 14, 200, PANEL_HEIGHT, in_one_night(), "night", NIGHT,
                       mix(NIGHT, INK, 0.5))
                 + panel(224, 14, WIDTH, PANEL_HEIGHT, every_day(), "day", DAY))


if __name__ == "__main__":
    write({157: practice})
