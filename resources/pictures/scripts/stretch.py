#!/usr/bin/env python3
"""A picture of the random set: a stretch for the fingers.

    python3 stretch.py OUTDIR

149  fingers spread wide, a soft fist, wrists let loose
"""

import math

import hands
from _scene import (arc, arrow_along, capsule, curved, joined, moved, panel, path, shade, sheet,
                    write)
from _style import CORAL, INK, LIGHT_TEAL, TEAL
from fingers import counter
from hands import FINGERS, SKIN, SKIN_LIGHT, SKIN_OUTLINE, SKIN_SHADE, mix

# The hands show their palms; the model is a right hand then, its thumb at the right. The turns
# are in degrees about the knuckles.
SPREAD = {"little": -9, "ring": -6, "middle": 0, "index": 8, "thumb": 16}
LOOSE = {"little": 9, "ring": 5, "middle": 1, "index": -5, "thumb": -6}
FOLD = mix(SKIN_SHADE, SKIN_OUTLINE, 0.6)


def turned(finger, degrees):
    root, tip = finger.axis[0], finger.axis[-1]
    a = math.radians(degrees)
    x, y = tip[0] - root[0], tip[1] - root[1]
    return finger.aimed((root[0] + x * math.cos(a) - y * math.sin(a),
                         root[1] + x * math.sin(a) + y * math.cos(a)))


def sleeve():
    shape = "M42 137 Q65 141.5 88 137 L91 170 L39 170 Z"
    return path(shape, LIGHT_TEAL, INK) + path("M41.8 142 Q65 146.5 88.2 142", "none", TEAL, 1.2)


def joint_folds(finger):
    """Folds across the finger's two joints, from the palm's side."""
    shares = (0.60,) if finger.name == "thumb" else (0.36, 0.58, 0.79)
    return "".join(hands.crease(finger, t, 0.62, -1.0, FOLD) for t in shares)


def underlaid(shape):
    """The shape in skin, with its shadow straight below, as it is mirrored too."""
    return (path(shape, "#000000", extra='fill-opacity="0.13" transform="translate(0 4)"')
            + path(shape, "url(#skin)", SKIN_OUTLINE, 2))


def open_hand(turns):
    fingers = tuple(turned(f, turns[f.name]) for f in FINGERS)
    shape = hands.smooth(hands.outline(fingers), closed=True)
    palm = ("M84.5 84 C74 86 66 96 70 116 C71 122 69 128 66 132",
            "M83 79 C70 80 56 86 44 100", "M36 90 C46 86 58 84 66 72")
    return "".join((
        underlaid(shape),
        "".join(path(data, "none", FOLD, 1.4) for data in palm),
        "".join(joint_folds(f) for f in fingers), sleeve()))


def fist():
    """A closed hand: four fingers folded on the palm, the thumb across them."""
    palm = ("M33 78 C30 94 36 112 44 124 C46 132 46 140 46 156 L86 156 C85 142 87 132 92 120 "
            "C98 106 100 92 98 76 C90 62 44 62 33 78 Z")
    rolls = ((39.0, 56.0, 7.6), (54.0, 49.5, 8.4), (70.5, 47.0, 8.8), (87.0, 50.5, 8.6))
    out = [underlaid(palm)]
    for x, top, r in rolls:
        out.append(joined([capsule((x, top), r, (x + 1, 84), r * 0.92)], "url(#skin)",
                          SKIN_OUTLINE))
        out.append(path(f"M{x - r * 0.5} {top + 9} q{r * 0.5} 2.5 {r} 0", "none", FOLD, 1.3))
    thumb = curved(((85.5, 119), (93, 97), (85, 86.5), (62, 86)), (8.0, 10.8, 9.0, 7.6))
    root = capsule((83, 117), 8.5, (88.5, 101), 10.0)
    nail = "M58.5 81.5 q-5 4 0 8.5 l7 -0.4 q3 -4 0 -7.8 Z"
    return "".join(out) + "".join((
        joined([thumb], "url(#skin)", SKIN_OUTLINE), path(root, "url(#skin)"),
        path(nail, hands.NAIL, SKIN_OUTLINE, 1),
        path("M82 81.5 q2.5 4 0.5 9 M50 108 C57 112 66 112 72 107", "none", FOLD, 1.4),
        sleeve()))


def pair(picture, x, y, scale, turn=0.0):
    """A left and a right hand about the middle of a panel; turn is about the wrist."""
    out = []
    for sign in (-1, 1):
        body = f'<g transform="translate(-66 -140)">{picture}</g>'
        out.append(moved(141 + sign * x, y, body, scale, turn, mirror=sign < 0))
    return "".join(out)


def spread_arrows(x, y, scale):
    """Arrows that leave the fingertips, on both sides."""
    out = []
    for finger in FINGERS:
        tip = turned(finger, SPREAD[finger.name]).axis[-1]
        dx, dy = tip[0] - 66, tip[1] - 105
        d = math.hypot(dx, dy)
        a = [(tip[0] + dx / d * k, tip[1] + dy / d * k) for k in (7, 19)]
        for sign in (-1, 1):
            points = [(141 + sign * (x + (px - 66) * scale), y + (py - 140) * scale)
                      for px, py in a]
            out.append(arrow_along(points, CORAL, 2.6, 5.5))
    return "".join(out)


def loose_arrows(x, y, radius):
    out = []
    for sign in (-1, 1):
        points = [(141 + sign * (x + px), y + py) for px, py in arc(0, 0, radius, -120, -60)]
        out.append(arrow_along(points, CORAL, 2.6, 6.5, both=True))
    return "".join(out)


def closing_arrows():
    out = []
    for x in (141 - 68, 141 + 68):
        for start, end in ((-150, -118), (-30, -62)):
            points = arc(x, 74, 60, start, end)
            out.append(arrow_along(points, CORAL, 2.6, 6))
    return "".join(out)


def poses():
    spread = pair(open_hand(SPREAD), 74, 122, 0.72) + spread_arrows(74, 122, 0.72)
    closed = pair(fist(), 68, 122, 0.84) + closing_arrows()
    ghost = "".join(f'<g opacity="0.3">{pair(open_hand(LOOSE), 70, 124, 0.74, t)}</g>'
                    for t in (-20, 20))
    loose = ghost + pair(open_hand(LOOSE), 70, 124, 0.74) + loose_arrows(70, 124, 108)
    return spread, closed, loose


def stretch():
    out = [shade("skin", (30, 20, 95, 145), SKIN_LIGHT, mix(SKIN, SKIN_SHADE, 0.65))]
    for place, body in enumerate(poses()):
        y = 14 + place * 139
        out.append(panel(14, y, 282, 131, body + counter(141, 20, place + 1), f"pose{place}"))
    return sheet(310, 437, "".join(out))


if __name__ == "__main__":
    write({149: stretch})
