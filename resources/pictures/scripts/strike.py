#!/usr/bin/env python3
"""A picture of the random set: how a key is struck and left, from the side.

    python3 strike.py OUTDIR

142  just above the key, down on it, up again
"""

import math

from _scene import (arrow_along, box, capsule, curved, joined, line, moved, oval, panel, path,
                    shade, sheet, write)
from _style import AMBER, CORAL, GREY, INK, LIGHT_GREY, TEAL, WHITE
from fingers import counter
from hands import NAIL, SKIN, SKIN_LIGHT, SKIN_OUTLINE, SKIN_SHADE, along, mix

# A panel in pixels; the hand comes from the right and shows its thumb.
PANEL = (200, 145)
KEY_TOP = 97.0
STRUCK_X = 62.0
PITCH = 57.0

HOVER = {1: -7.0, 2: 11.0, 3: -24.0}     # of the fingertip over the key, by the step
# Half the thickness of a finger from its knuckle over the two bends to its tip.
RADII = (14.0, 12.0, 11.6, 10.6, 9.6, 8.2)


def index_joints(tip):
    """The bent index finger whose end is at this height; the knuckle hardly moves."""
    lift = tip - KEY_TOP
    return ((144.0, 40.0 + lift * 0.15), (120.0, 36.0 + lift * 0.2), (99.0, 38.0 + lift * 0.3),
            (84.0, 50.0 + lift * 0.5), (74.0, 65.0 + lift * 0.8), (STRUCK_X + 3, tip - RADII[-1]))


def resting_joints(k, lift):
    """The middle, ring and little finger, farther and farther behind."""
    x, y = 4.0 * k, lift * 0.3
    return ((140.0, 43.0 + y / 2), (113.0 + x, 34.0 + k + y), (90.0 + x, 37.0 + 2 * k + y),
            (73.0 + x, 50.0 + k + y), (62.0 + x, 65.0 + k + y), (53.0 + x, 80.0 - k + y))


def nail(joints, key, shape):
    """The nail at the edge of the finger's back, within the finger."""
    (x0, y0), (x1, y1) = joints[-2], joints[-1]
    turn = math.degrees(math.atan2(y1 - y0, x1 - x0))
    body = oval(0, RADII[-1] * 0.98, 8.2, 4.4, NAIL, SKIN_OUTLINE, 1.3)
    return (f'<clipPath id="{key}nail"><path d="{shape}"/></clipPath>'
            f'<g clip-path="url(#{key}nail)">'
            f'{moved(*along((x0, y0), (x1, y1), 0.84), body, 1, turn)}</g>')


def folds(joints):
    """Short folds over the middle bend and the knuckle."""
    (x, y), (kx, ky) = joints[2], joints[0]
    return "".join(path(f"M{a:.1f} {b:.1f} q{c} {d} {e} {f}", "none", mix(SKIN_OUTLINE, SKIN, 0.6),
                        1.3)
                   for a, b, c, d, e, f in ((x - 7, y - 8, 4, 1, 6, 5), (x - 1, y - 10, 3, 2, 4, 6),
                                            (kx - 6, ky - 9, 5, -2, 10, 1)))


def hand(tip, key):
    lift = tip - KEY_TOP
    y = lift * 0.15
    out = []
    for k in (2, 1, 0):
        fill = mix(SKIN, SKIN_SHADE, 0.15 + 0.22 * (2 - k))
        out.append(joined([curved(resting_joints(k, lift), RADII)], fill, SKIN_OUTLINE, 1.6))
    joints = index_joints(tip)
    finger = curved(joints, RADII)
    palm = curved(((260.0, 80.0 + y), (222.0, 67.0 + y), (180.0, 53.0 + y), (144.0, 40.0 + y)),
                  (20.0, 21.0, 19.0, 14.0))
    heel = capsule((214.0, 74.0 + y), 21.0, (178.0, 64.0 + y), 15.0)
    out.append(joined([finger, palm, heel], "url(#skin)", SKIN_OUTLINE, 2))
    out += [folds(joints), nail(joints, key, finger)]
    thumb = curved(((212.0, 78.0 + y), (176.0, 79.0 + y), (150.0, 85.0 + y), (126.0, 86.0 + y)),
                   (15.0, 12.4, 9.8, 8.0))
    out += [joined([thumb], "url(#skin)", SKIN_OUTLINE, 2),
            path(capsule((226.0, 76.0 + y), 15.6, (194.0, 75.0 + y), 14.2), "url(#skin)"),
            moved(125, 82.4 + y, oval(0, 0, 6.6, 3.4, NAIL, SKIN_OUTLINE, 1.2), 1, -4)]
    return "".join(out)


def key(x, down, fill):
    top, half = KEY_TOP + down, 24.0
    return (box(x - 8, top + 10, 16, 30, 0, GREY)
            + path(f"M{x - half + 5} {top} H{x + half - 5} q4 0 5 5 l2.5 17 q0.5 4 -3.5 4 "
                   f"H{x - half + 1} q-4 0 -3.5 -4 l2.5 -17 q1 -5 5 -5 Z", fill, INK))


def step(phase):
    hover = HOVER[phase]
    down = max(hover, 0.0)
    out = [key(STRUCK_X + k * PITCH, 0.0, WHITE) for k in (-1, 1, 2)]
    out += [key(STRUCK_X, down, AMBER if phase == 2 else mix(AMBER, WHITE, 0.35)),
            box(-4, 129, PANEL[0] + 8, 20, 0, LIGHT_GREY, INK),
            hand(KEY_TOP + hover, f"step{phase}")]
    if phase == 2:
        for x0, y0, x1, y1 in ((-22, -8, -29, -19), (-30, -4, -41, -11), (26, -7, 35, -15)):
            out.append(line([(STRUCK_X + x0, KEY_TOP + y0), (STRUCK_X + x1, KEY_TOP + y1)],
                            CORAL, 3))
    else:
        ends = ((26, 52), (26, 84)) if phase == 1 else ((26, 84), (26, 46))
        out.append(arrow_along(ends, CORAL, 4, 10))
    return "".join(out) + counter(19, 19, phase)


def strike():
    """To be read from the right, as the arrows tell."""
    width, height = 708, 173
    out = [shade("skin", (90, 10, 190, 120), SKIN_LIGHT, mix(SKIN, SKIN_SHADE, 0.6))]
    gap = (width - 3 * PANEL[0] - 2 * 18) / 2
    y = (height - PANEL[1]) / 2
    for place in range(3):
        x = 18 + place * (PANEL[0] + gap)
        out.append(panel(x, y, *PANEL, step(3 - place), f"panel{place}", radius=12))
        if place:
            out.append(arrow_along(((x - 8, height / 2), (x - gap + 8, height / 2)), TEAL, 4, 10))
    return sheet(width, height, "".join(out))


if __name__ == "__main__":
    write({142: strike})
