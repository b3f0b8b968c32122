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
from _scene import arrow_along, box, curve, dashed, disc, line, moved, path, shade, sheet, write
from _style import AMBER, INK, LIGHT_AMBER, LIGHT_GREY, TEAL, WHITE
from fingers import BOARD_HEIGHT, BOARD_WIDTH, HOME_ROW, KEYS, ROW_STEP, LaidHand, home_key, key_cap
from hands import FINGER_COLOURS, SKIN_OUTLINE, mix

ROW_COLOURS = ("#D3C7E8", "#A5D3D0", "#F6C27C", "#F4BFB0")


def row_of(key):
    return round(key.y / ROW_STEP)


def is_character(key):
    """Whether the key is one of those of the four rows, not one round them."""
    return key.finger != "" and key.width == fingers.KEY_WIDTH


def bump(key, colour=INK):
    """The raised line on a home key of an index finger."""
    x, y = key.centre()
    return line([(x - 4.5, y + 7), (x + 4.5, y + 7)], colour, 2.2)


# The rows -----------------------------------------------------------------------------------


def row_colour(key):
    if not is_character(key):
        return None
    if key.name == "home":
        return AMBER
    return ROW_COLOURS[row_of(key)]


def fingertip(scale, x, y):
    """The tip of a left index finger, with its end at (x, y)."""
    finger = hands.FINGERS[3]
    shape = hands.smooth(finger.contour(), closed=True)
    tip = finger.axis[-1]
    body = (path(shape, "#000000", extra='fill-opacity="0.16" transform="translate(2 2.4)"')
            + path(shape, "url(#fingerskin)", SKIN_OUTLINE, 2.2 / scale)
            + hands.crease(finger, finger.creases[1], 0.5, 1.2, SKIN_OUTLINE)
            + hands.nail(finger, hands.NAIL, SKIN_OUTLINE))
    return moved(x, y, f'<g transform="translate({-tip[0]} {-tip[1]})">{body}</g>', scale)


def lens(x, y, radius, hand):
    """A home key of an index finger enlarged, and the fingertip that feels its bump."""
    keys = [(-117, -40, AMBER), (43, -40, ROW_COLOURS[2]), (-37, -40, AMBER)]
    keys += [(k, 38, ROW_COLOURS[3]) for k in (-80, 0, 80)]
    keys += [(k, -118, ROW_COLOURS[1]) for k in (-136, -56, 24)]
    body = [disc(0, 0, radius, LIGHT_GREY)]
    for left, top, fill in keys:
        body.append(box(left, top + 4, 74, 72, 11, "#000000", extra='fill-opacity="0.14"'))
        body.append(box(left, top, 74, 72, 11, fill, mix(fill, INK, 0.6)))
    body += [fingertip(2.7, 1, 12), box(-16, -6, 32, 8, 4, WHITE, INK, 2.2)]
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
        start = (left + kx * scale, top + (ky + 9) * scale)
        lenses += [line([start, (x, middle)], INK, 2.4), lens(x, middle, radius, hand)]
    return sheet(500, 340,
                 shade("fingerskin", (80, 26, 94, 60), hands.SKIN_LIGHT,
                       mix(hands.SKIN, hands.SKIN_SHADE, 0.7))
                 + moved(left, top, board, scale) + "".join(lenses))


# There and back -----------------------------------------------------------------------------


# The fingers that are shown on their way: (hand, finger, step to the row).
WAYS = (("left", "ring", -1), ("left", "middle", 1), ("left", "index", -1),
        ("right", "index", 1), ("right", "middle", -1), ("right", "little", 1))


def neighbour(hand, finger, step):
    """The key of the same finger a row up (-1) or down (1) from its home key."""
    home = home_key(hand, finger)
    row = [k for k in KEYS if is_character(k) and row_of(k) == HOME_ROW + step
           and (k.hand, k.finger) == (hand, finger)]
    return min(row, key=lambda k: abs(k.x - home.x))


def loop(home, key):
    """The way from the home key to another and back, bowed out to both sides."""
    (x0, y0), (x1, y1) = home, key
    nx, ny = (y1 - y0) * 0.4, -(x1 - x0) * 0.4
    mx, my = x0 + (x1 - x0) * 0.55, y0 + (y1 - y0) * 0.55
    return curve([(x0, y0), (mx + nx, my + ny), (x1, y1), (mx - nx, my - ny), (x0, y0)], 12)


def way(hand, finger, step):
    """Out with a thin line, and back with a strong one: it is the return that counts."""
    points = loop(home_key(hand, finger).centre(), neighbour(hand, finger, step).centre())
    out, back = points[:25], points[24:]
    colour = mix(FINGER_COLOURS[finger], INK, 0.85)
    return (line(points, WHITE, 5) + arrow_along(back[-2:], WHITE, 5, 6)
            + dashed(out, colour, 1.8, "0.5 3.2") + arrow_along(back, colour, 2.6, 6.5)
            + disc(*points[24], 3.2, colour, WHITE, 1))


def there_and_back():
    scale, top = 1.72, 34
    left = 260 - fingers.MIRROR_X * scale

    targets = {neighbour(*step): FINGER_COLOURS[step[1]] for step in WAYS}

    def colour(key):
        if key in targets:
            return mix(targets[key], WHITE, 0.4)
        if key.name == "home":
            return AMBER
        return LIGHT_AMBER if is_character(key) and row_of(key) == HOME_ROW else None

    laid = [LaidHand(hand, {}) for hand in ("left", "right")]
    body = [fingers.board(colour)] + [hand.whole(0.58) for hand in laid]
    body += [way(*step) for step in WAYS]
    return sheet(520, 400, moved(left, top, "".join(body), scale))


# The halves ---------------------------------------------------------------------------------

APART = 5.0     # how far each half is moved from the other
TONES = {"little": 0.40, "ring": 0.62, "middle": 0.40, "index": 0.62, "thumb": 0.62}
HALVES = {"left": TEAL, "right": AMBER}


def hand_of(key):
    if key.hand:
        return key.hand
    return "left" if key.x + key.width / 2 < BOARD_WIDTH / 2 else "right"


def split_board():
    out = []
    for x0, x1 in ((-8 - APART, BOARD_WIDTH + 8 + APART),):
        out.append(box(x0 + 3, -4, x1 - x0, BOARD_HEIGHT + 16, 10, "#000000",
                       extra='fill-opacity="0.14"'))
        out.append(box(x0, -8, x1 - x0, BOARD_HEIGHT + 16, 10, LIGHT_GREY, INK))
    for key in KEYS:
        hand = hand_of(key)
        colour = HALVES[hand]
        if is_character(key) or key.name == "space":
            fill = colour if key.name == "home" else mix(colour, WHITE, TONES[key.finger])
        else:
            fill = mix(colour, WHITE, 0.14)
        shifted = replace(key, x=key.x + (-APART if hand == "left" else APART))
        out.append(key_cap(shifted, fill, mix(fill, INK, 0.7)))
    return "".join(out)


def tinted_hand(hand):
    """A hand whose fingers have the tones of their keys; only the right thumb strikes."""
    colour = HALVES[hand]

    def fill_of(name):
        if name == "thumb" and hand == "left":
            return None
        return mix(colour, WHITE, TONES[name] + 0.12)

    sleeve = "M41 137.5 Q65 142.5 89 137.5 L97 220 L33 220 Z"
    return (hands.left_hand(None, True, hand, fill_of)
            + path(sleeve, mix(colour, WHITE, 0.75), INK)
            + path("M40.6 143 Q65 148 89.4 143", "none", INK, 1.2))


def halves():
    scale, left, top = 1.32, 34.0, 30
    size = 1.4
    out = [moved(left, top, split_board(), scale)]
    for hand, x in (("left", 160), ("right", 440)):
        picture = moved(-64 * size, 0, tinted_hand(hand), size)
        out.append(moved(x, 208, picture, mirror=hand == "right"))
    return sheet(600, 430, "".join(out))


if __name__ == "__main__":
    write({144: rows, 155: there_and_back, 156: halves})
