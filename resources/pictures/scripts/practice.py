#!/usr/bin/env python3
"""A picture of the random set that tells how to practise.

    python3 practice.py OUTDIR

157  a little every day leads up, a heap at once does not; then comes rest
"""

from _people import BOY, STRAIGHT_FINGERS, Figure, Pose
from _scene import (LEAF, WOOD_DARK, arc, box, clock, cross, disc, line, moved, oval, path, shade,
                    sheet, tick, write)
from _style import AMBER, CORAL, INK, LIGHT_AMBER, LIGHT_GREY, WHITE
from hands import mix

GROUND = 484.0
BLOCK = (52.0, 37.0)
DAYS = 7
STAIRS_RIGHT = 676.0
TOP = GROUND - DAYS * BLOCK[1]
HILL_RIGHT = STAIRS_RIGHT - DAYS * BLOCK[0]
HILL_LEFT = 166.0
UNIT = 27.0

CLIMBING = Pose(shoulder=(-0.10, -1.50), head=(-0.22, -2.32), belly=(-0.08, -0.75), tilt=-10,
                near_arm=((0.42, -0.78), (0.28, 0.02)), far_arm=((-0.62, -0.72), (-1.30, -1.02)),
                near_leg=((-1.28, -0.02), (-1.38, 1.16)), far_leg=((0.08, 1.28), (0.55, 2.52)),
                feet=(0.0, -22.0), fingers=STRAIGHT_FINGERS)
LYING_BACK = Pose(shoulder=(0.52, -1.38), head=(0.62, -2.20), belly=(0.12, -0.72), tilt=-6,
                  near_arm=((0.30, -0.42), (-0.42, -0.30)), far_arm=((0.2, -0.45), (-0.5, -0.42)),
                  near_leg=((-1.16, -0.66), (-1.78, 0.19)), far_leg=((-1.30, -0.42), (-2.10, 0.19)),
                  fingers=STRAIGHT_FINGERS)
AT_A_LOSS = Pose(shoulder=(0.04, -1.50), head=(0.06, -2.34), tilt=-24,
                 near_arm=((0.34, -0.72), (-0.28, -0.18)), far_arm=((-0.02, -0.55), (0.06, 0.3)),
                 near_leg=((-0.06, 1.28), (0.02, 2.54)), far_leg=((-0.22, 1.28), (-0.32, 2.54)),
                 fingers=STRAIGHT_FINGERS)


def sky():
    stars = "".join(path(f"M{x} {y - 5} L{x + 1.4} {y - 1.4} L{x + 5} {y} L{x + 1.4} {y + 1.4} "
                         f"L{x} {y + 5} L{x - 1.4} {y + 1.4} L{x - 5} {y} L{x - 1.4} {y - 1.4} Z",
                         WHITE) for x, y in ((40, 60), (196, 40), (62, 150), (270, 84), (20, 110)))
    rays = "".join(line([arc(612, 74, 42, a, 0, 1)[0], arc(612, 74, 54, a, 0, 1)[0]], AMBER, 4)
                   for a in range(0, 360, 30))
    moon = "M118 52 A34 34 0 1 0 152 98 A27 27 0 0 1 118 52 Z"
    return "".join((
        '<linearGradient id="sky"><stop offset="0" stop-color="#8E9CC9"/>'
        '<stop offset="0.35" stop-color="#C3CFE6"/><stop offset="0.65" stop-color="#EEF2F1"/>'
        '<stop offset="1" stop-color="#FBF8F2"/></linearGradient>',
        box(0, 0, 700, 525, 0, "url(#sky)"), stars,
        path(moon, LIGHT_AMBER, AMBER, 2), rays, disc(612, 74, 32, AMBER, mix(AMBER, INK, 0.8)),
        path(f"M0 {GROUND} H700 V525 H0 Z", mix(LEAF, WHITE, 0.7)),
        line([(0, GROUND), (700, GROUND)], mix(LEAF, INK, 0.6), 2.5)))


def block(x, y, fill, edge=INK):
    width, height = BLOCK
    return box(x + 1, y + 1, width - 2, height - 2, 5, fill, edge)


def stairs():
    """A column for every day: yesterday's blocks and one more of the same size."""
    out = []
    for day in range(DAYS):
        x = STAIRS_RIGHT - (day + 1) * BLOCK[0]
        for k in range(day):
            out.append(block(x, GROUND - (k + 1) * BLOCK[1], LIGHT_AMBER, mix(AMBER, INK, 0.75)))
        y = GROUND - (day + 1) * BLOCK[1]
        out += [block(x, y, AMBER), clock(x + BLOCK[0] / 2, y + BLOCK[1] / 2, 13, 15, CORAL)]
    return "".join(out)


def hill():
    """The height that the stairs lead to."""
    left, right = HILL_LEFT, HILL_RIGHT
    tuft = (right - left) / 8
    edge = f"q{-tuft / 2} 9 {-tuft} 0 " * 8
    grass = f"M{left} {TOP + 16} V{TOP + 8} q0 -8 8 -8 H{right} V{TOP + 16} {edge}Z"
    return (shade("earth", (left, TOP, right, GROUND), "#D9BF98", "#B99468")
            + path(f"M{left} {GROUND} V{TOP + 6} H{right} V{GROUND} Z", "url(#earth)", INK)
            + path(grass, LEAF, INK)
            + "".join(oval(left + x, TOP + y, rx, rx * 0.6, "#A98559", extra='fill-opacity="0.5"')
                      for x, y, rx in ((30, 70, 9), (96, 110, 12), (44, 170, 11), (112, 215, 8),
                                       (84, 46, 6), (22, 228, 7))))


def tree(x, y):
    crown = ("M-58 -92 C-78 -112 -62 -146 -36 -144 C-28 -172 22 -176 34 -148 "
             "C62 -150 78 -116 58 -94 C50 -76 14 -76 2 -84 C-14 -74 -48 -76 -58 -92 Z")
    return moved(x, y, "".join((
        path("M-10 2 C-5 -30 -6 -60 -8 -96 H10 C8 -60 8 -30 14 2 Z", WOOD_DARK, INK),
        shade("crown", (-60, -170, 50, -80), mix(LEAF, WHITE, 0.8), mix(LEAF, INK, 0.86)),
        path(crown, "url(#crown)", INK),
        path("M-36 -118 q8 -12 20 -8 M8 -134 q10 -10 22 -4 M-4 -104 q9 -8 18 -3", "none",
             mix(LEAF, INK, 0.6), 1.8))))


def heap(x):
    """The same seven blocks at one time, about to topple."""
    out = []
    for k, (dx, turn) in enumerate(((0, 0), (4, 1.5), (-3, -2), (5, 2.5), (-4, -3), (6, 4),
                                    (-2, -7))):
        y = GROUND - k * BLOCK[1]
        body = (box(-BLOCK[0] / 2 + 1, -BLOCK[1] + 1, BLOCK[0] - 2, BLOCK[1] - 2, 5, LIGHT_GREY,
                    INK) + clock(0, -BLOCK[1] / 2, 13, 15, mix(CORAL, LIGHT_GREY, 0.5)))
        out.append(moved(x + dx, y, body, turn=turn))
    return "".join(out)


def figure(pose, x, y, key, shut_eyes=False):
    return Figure(pose, (x, y), UNIT, BOY, key).drawing(shut_eyes)


def practice():
    step = 3
    foot_y = GROUND - (step + 1) * BLOCK[1]
    foot_x = STAIRS_RIGHT - (step + 0.55) * BLOCK[0]
    climber = figure(CLIMBING, foot_x - 0.55 * UNIT, foot_y - 2.72 * UNIT, "climber")
    sleeper = figure(LYING_BACK, 256, TOP - 0.40 * UNIT, "sleeper", True)
    lost = figure(AT_A_LOSS, 0, 0, "lost")
    body = (sky(), tree(288, TOP), hill(), stairs(),
            oval(250, TOP + 2, 50, 4, "#000000", extra='fill-opacity="0.15"'), sleeper, climber,
            heap(116), oval(44, GROUND + 4, 26, 4, "#000000", extra='fill-opacity="0.15"'),
            moved(44, GROUND - 2.74 * UNIT, lost, mirror=True),
            cross(116, TOP - 26, 15), tick(470, 152, 17))
    return sheet(700, 525, "".join(body))


if __name__ == "__main__":
    write({157: practice})
