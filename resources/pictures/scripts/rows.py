#!/usr/bin/env python3
"""Pictures of the random set that tell how the keyboard is laid out for the hands.

    python3 rows.py OUTDIR

144  the four rows, the home keys and their two bumps
155  the fingers leave the guide row for a key and come back to it
156  which hand has which half of the keyboard
"""

from dataclasses import replace

import fingers
import hands
from _scene import box, disc, line, moved, path, shade, sheet, write
from _style import AMBER, INK, LIGHT_GREY, TEAL, WHITE
from fingers import (BOARD_HEIGHT, BOARD_WIDTH, HOME_ROW, KEY_HEIGHT, KEYS, ROW_STEP, LaidHand,
                     home_key, key_cap, rest_point)
from hands import FINGER_COLOURS, SKIN_OUTLINE, mix

# Teal and sand, as each finger has a colour of its own elsewhere.
SAND = "#EBDCC0"
DARK_SAND = "#D3BC93"
ROW_COLOURS = (SAND, mix(TEAL, WHITE, 0.30), mix(TEAL, WHITE, 0.62), DARK_SAND)


def row_of(key):
    return round(key.y / ROW_STEP)


def is_character(key):
    """Whether the key is one of those of the four rows, not one round them."""
    return key.finger != "" and key.width == fingers.KEY_WIDTH


def bump(key):
    """The raised line on a home key of an index finger."""
    x, y = key.centre()
    return line([(x - 5, y + 7), (x + 5, y + 7)], WHITE, 2.6)


# The rows -----------------------------------------------------------------------------------


def row_colour(key):
    if not is_character(key):
        return None
    return TEAL if key.name == "home" else ROW_COLOURS[row_of(key)]


def fingertip(scale, x, y):
    """The tip of a left index finger, the middle of its pad at (x, y)."""
    finger = hands.FINGERS[3]
    shape = hands.smooth(finger.contour(), closed=True)
    pad = finger.tip_centre()
    body = (path(shape, "#000000", extra='fill-opacity="0.18" transform="translate(2 2.4)"')
            + path(shape, "url(#fingerskin)", SKIN_OUTLINE, 2.2 / scale)
            + hands.crease(finger, finger.creases[1], 0.5, 1.2, SKIN_OUTLINE)
            + hands.nail(finger, hands.NAIL, SKIN_OUTLINE))
    return moved(x, y, f'<g transform="translate({-pad[0]:.2f} {-pad[1]:.2f})">{body}</g>', scale)


def lens(x, y, radius, hand):
    """A home key of an index finger enlarged, and the fingertip on its bump."""
    keys = [(-121, -46, TEAL), (47, -46, ROW_COLOURS[2]), (-37, -46, TEAL)]
    keys += [(k, 36, ROW_COLOURS[3]) for k in (-96, -12, 72)]
    keys += [(k, -128, ROW_COLOURS[1]) for k in (-136, -52, 32)]
    body = [disc(0, 0, radius, LIGHT_GREY)]
    for left, top, fill in keys:
        body.append(box(left, top + 4, 76, 74, 11, "#000000", extra='fill-opacity="0.14"'))
        body.append(box(left, top, 76, 74, 11, fill, mix(fill, INK, 0.6)))
    body += [box(-28, 4, 58, 9, 4.5, WHITE, INK, 2.2), fingertip(2.1, 1, 8.5)]
    picture = (f'<clipPath id="{hand}lens"><circle r="{radius}"/></clipPath>'
               f'<g clip-path="url(#{hand}lens)">{"".join(body)}</g>'
               + disc(0, 0, radius, "none", INK, 3))
    return (disc(x + 3, y + 5, radius, "#000000", extra='fill-opacity="0.14"')
            + moved(x, y, picture, mirror=hand == "right"))


def rows():
    scale, left, top, radius, middle = 1.13, 22.3, 28, 68, 254
    bumped = [home_key(hand, "index") for hand in ("left", "right")]
    board = fingers.board(row_colour) + "".join(bump(key) for key in bumped)
    lenses = []
    for key, hand, x in zip(bumped, ("left", "right"), (140, 360)):
        kx, ky = key.centre()
        start = (left + kx * scale, top + (ky + 9.5) * scale)
        lenses += [line([start, (x, middle)], WHITE, 5), line([start, (x, middle)], INK, 2.4),
                   lens(x, middle, radius, hand)]
    return sheet(500, 340,
                 shade("fingerskin", (80, 26, 94, 60), hands.SKIN_LIGHT,
                       mix(hands.SKIN, hands.SKIN_SHADE, 0.7))
                 + moved(left, top, board, scale) + "".join(lenses))


# There and back -----------------------------------------------------------------------------

# A finger of each hand on its way to the key over its home key.
WAYS = (("left", "middle"), ("right", "index"))


def upper_key(hand, finger):
    home = home_key(hand, finger)
    row = [k for k in KEYS if is_character(k) and row_of(k) == HOME_ROW - 1
           and (k.hand, k.finger) == (hand, finger)]
    return min(row, key=lambda k: abs(k.x - home.x))


def there_and_back_again(hand, finger):
    """One arrow out on one side of the finger, and one back on the other."""
    colour = mix(FINGER_COLOURS[finger], INK, 0.78)
    x, y = rest_point(hand, finger)
    tip = (x, y - 6)
    key = upper_key(hand, finger)
    kx, ky = key.centre()
    out = []
    for side in (-1, 1):
        low, high = (tip[0] + side * 12, tip[1] + 5), (kx + side * 4.5, ky - 5)
        ends = (low, high) if side < 0 else (high, low)
        out.append(fingers.arrow(*ends, 2.4, colour, bend=-0.38))
    return "".join(out)


def there_and_back():
    scale, top = 1.72, 40
    left = 260 - fingers.MIRROR_X * scale
    targets = {}
    for hand, finger in WAYS:
        targets[upper_key(hand, finger)] = mix(FINGER_COLOURS[finger], WHITE, 0.55)
        targets[home_key(hand, finger)] = mix(FINGER_COLOURS[finger], WHITE, 0.35)
    laid = [LaidHand(hand, {finger: FINGER_COLOURS[finger]}, edge=1.1)
            for hand, finger in WAYS]
    body = [fingers.board(targets.get)]
    body += [fingers.key_face(key, "none", mix(INK, WHITE, 0.75)) for key in KEYS
             if key.name == "home" and key not in targets]
    body += [hand.whole(0.9) for hand in laid] + [hand.coloured_fingers() for hand in laid]
    body += [there_and_back_again(*way) for way in WAYS]
    return sheet(520, 400, moved(left, top, "".join(body), scale))


# The halves ---------------------------------------------------------------------------------

APART = 5.0     # how far each half is moved from the other
HALVES = {"left": mix(TEAL, WHITE, 0.55), "right": mix(AMBER, WHITE, 0.72)}


def hand_of(key):
    if key.hand:
        return key.hand
    return "left" if key.x + key.width / 2 < BOARD_WIDTH / 2 else "right"


def split_board():
    x0, width = -8 - APART, BOARD_WIDTH + 16 + 2 * APART
    out = [box(x0 + 3, -4, width, BOARD_HEIGHT + 16, 10, "#000000",
               extra='fill-opacity="0.14"'),
           box(x0, -8, width, BOARD_HEIGHT + 16, 10, LIGHT_GREY, INK)]
    for key in KEYS:
        hand = hand_of(key)
        fill = HALVES[hand] if key.finger else WHITE
        shifted = replace(key, x=key.x + (-APART if hand == "left" else APART))
        out.append(key_cap(shifted, fill, mix(fill, INK, 0.7)))
        if key.name == "home":
            out.append(box(shifted.x + 0.8, key.y + 0.8, key.width - 1.6, KEY_HEIGHT - 1.6, 4,
                           "none", INK, 2.4))
    return "".join(out)


def tinted_hand(hand):
    """A hand in the colour of its keys; only the right thumb strikes."""
    def fill_of(name):
        return None if name == "thumb" and hand == "left" else HALVES[hand]

    cuff = "M39.5 137 Q65 142.5 90.5 137 L92 148 Q65 153.5 38 148 Z"
    arm = "M41 145 L34 240 L96 240 L89 145 Z"
    sleeve = (path(arm, HALVES[hand], INK, 1.6)
              + path(cuff, mix(HALVES[hand], WHITE, 0.65), INK, 1.6))
    return hands.left_hand(None, True, hand, fill_of, right=hand == "right", edge=1.6,
                           sleeve=sleeve)


def halves():
    scale, left, top = 1.32, 34.0, 30
    size = 1.4
    out = [moved(left, top, split_board(), scale)]
    for hand, x in (("left", 160), ("right", 440)):
        picture = moved(-64 * size, 0, tinted_hand(hand), size)
        out.append(moved(x, 206, picture, mirror=hand == "right"))
    return sheet(600, 430, "".join(out))


if __name__ == "__main__":
    write({144: rows, 155: there_and_back, 156: halves})
