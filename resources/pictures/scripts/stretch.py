#!/usr/bin/env python3
"""A picture of the random set: a stretch for the fingers.

    python3 stretch.py OUTDIR

149  fingers spread wide, a soft fist, wrists let loose
"""

import math

import hands
from _scene import (arc, arrow_along, capsule, joined, moved, oval, panel, path, shade, sheet,
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


def open_hand(turns, sleeved=True):
    fingers = tuple(turned(f, turns[f.name]) for f in FINGERS)
    shape = hands.smooth(hands.outline(fingers), closed=True)
    palm = ("M84.5 84 C74 86 66 96 70 116 C71 122 69 128 66 132",
            "M83 79 C70 80 56 86 44 100", "M36 90 C46 86 58 84 66 72")
    return "".join((
        underlaid(shape),
        "".join(path(data, "none", FOLD, 1.4) for data in palm),
        "".join(joint_folds(f) for f in fingers), sleeve() if sleeved else ""))


def fist():
    """A closed hand: four fingers folded on the palm with their tips tucked in, the thumb across
    them."""
    palm = ("M32.5 72 C30 92 36 108 44 122 C46 132 46 142 46 156 L86 156 C85.5 144 88 132 93 120 "
            "C99 108 101 96 97 80 C88 66 44 66 32.5 72 Z")
    rolls = ((41.0, 57.0, 78.0, 7.6), (55.0, 51.0, 79.5, 8.2), (70.4, 49.0, 83.0, 8.6),
             (86.0, 52.0, 82.0, 8.4))
    out = [underlaid(palm)]
    for x, top, end, r in rolls:
        out += [joined([capsule((x, top), r, (x + 0.6, end), r * 0.9)], "url(#skin)",
                       SKIN_OUTLINE),
                path(f"M{x - r * 0.55} {top + 11} q{r * 0.55} 2.6 {r * 1.1} 0", "none", FOLD, 1.3)]
        if x < 60:      # the thumb covers the other two nails
            out.append(oval(x + 0.6, end - 1, r * 0.46, r * 0.56, hands.NAIL, SKIN_OUTLINE, 1))
    thumb = ("M93.5 119 C101 106 103 92 94 83.5 C85 77.5 70 79.5 59.5 81 C52 82.5 52 92.5 59.5 94 "
             "C67 95 73.5 95 79.5 97 C80.5 104 78 111 72 117.5")
    nail = "M56.2 84.5 q-3.4 3.4 0.6 7 l6.6 0.4 q3 -3.8 0.2 -8.2 Z"
    return "".join(out) + "".join((
        path(thumb + " Z", "url(#skin)"), path(thumb, "none", SKIN_OUTLINE, 2),
        path(nail, hands.NAIL, SKIN_OUTLINE, 1),
        path("M81 82 q3 4.5 1.5 10 M46 102 C52 108 60 109 67 106", "none", FOLD, 1.4),
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


def closing_arrows(x, y):
    """Short straight arrows from around towards the closed hands."""
    out = []
    for sign in (-1, 1):
        for degrees in (-148, -90, -32):
            ends = [arc(141 + sign * x, y, r, degrees, degrees, 1)[0] for r in (62, 48)]
            out.append(arrow_along(ends, CORAL, 2.6, 6))
    return "".join(out)


def poses():
    spread = pair(open_hand(SPREAD), 74, 122, 0.72) + spread_arrows(74, 122, 0.72)
    closed = pair(fist(), 72, 127, 0.81) + closing_arrows(72, 74)
    ghost = "".join(f'<g opacity="0.3">{pair(open_hand(LOOSE, False), 70, 124, 0.74, t)}</g>'
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
