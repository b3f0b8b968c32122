#!/usr/bin/env python3
"""Pictures of the random set that tell what the fingers do.

    python3 fingers.py OUTDIR

138 to 141  the keys that the index, middle, ring and little fingers reach
142         how a key is struck and left, from the side
143         the little finger holds Shift while the other hand strikes
"""

import math
import os
import sys
from dataclasses import dataclass

import hands
from _style import (AMBER, CORAL, GREY, INK, LIGHT_GREY, LIGHT_TEAL, PALE_TEAL, PAPER, TEAL, WHITE,
                    svg)
from hands import FINGER_COLOURS, mix

# The keyboard -------------------------------------------------------------------------------

# Places are those of the key caps on the typing window, in pixels at its design size, with the
# upper left corner of the number row as origin.
PITCH = 27.0
KEY_WIDTH = 26.0
KEY_HEIGHT = 24.0
ROW_STEP = 25.0
BOARD_WIDTH = 403.0
BOARD_HEIGHT = 4 * ROW_STEP + KEY_HEIGHT


@dataclass(frozen=True)
class Key:
    x: float
    y: float
    width: float
    finger: str = ""   # "" for a key that no finger of the course is told for
    hand: str = ""     # "left" or "right"
    name: str = ""     # of the keys that are spoken of by name

    def centre(self):
        return (self.x + self.width / 2, self.y + KEY_HEIGHT / 2)


# Who strikes the character keys of a row, from the left: the first letter of the finger's name,
# small for the left hand and capital for the right one (p, the pinky, is the little finger).
ROWS = (
    (0.0, "ppprmiiIIMRPP"),
    (41.0, "prmiiIIMRPPP"),
    (50.0, "prmiiIIMRPP"),
    (60.0, "prmiiIIMRP"),
)
FINGER_OF_LETTER = {"p": "little", "r": "ring", "m": "middle", "i": "index"}
HOME_ROW = 2
HOME_COLUMNS = {("left", "little"): 0, ("left", "ring"): 1, ("left", "middle"): 2,
                ("left", "index"): 3, ("right", "index"): 6, ("right", "middle"): 7,
                ("right", "ring"): 8, ("right", "little"): 9}


def other_keys():
    """The keys round the character keys: (row, x, width, finger, hand, name)."""
    return (
        (0, 351.0, 52.0, "", "", ""),
        (1, 0.0, 40.0, "", "", ""), (1, 365.0, 38.0, "little", "right", ""),
        (2, 0.0, 49.0, "", "", ""), (2, 347.0, 56.0, "little", "right", "enter"),
        (3, 0.0, 59.0, "little", "left", "left shift"),
        (3, 330.0, 73.0, "little", "right", "right shift"),
        (4, 0.0, 40.0, "", "", ""), (4, 41.0, 36.0, "", "", ""), (4, 78.0, 40.0, "", "", ""),
        (4, 119.0, 165.0, "thumb", "right", "space"),
        (4, 285.0, 40.0, "", "", ""), (4, 326.0, 36.0, "", "", ""), (4, 363.0, 40.0, "", "", ""),
    )


def make_keys():
    keys = []
    for row, (left, letters) in enumerate(ROWS):
        for column, letter in enumerate(letters):
            hand = "left" if letter.islower() else "right"
            finger = FINGER_OF_LETTER[letter.lower()]
            home = row == HOME_ROW and HOME_COLUMNS[(hand, finger)] == column
            keys.append(Key(left + column * PITCH, row * ROW_STEP, KEY_WIDTH, finger, hand,
                            "home" if home else ""))
    for row, x, width, finger, hand, name in other_keys():
        keys.append(Key(x, row * ROW_STEP, width, finger, hand, name))
    return keys


KEYS = make_keys()


def home_key(hand, finger):
    return next(k for k in KEYS if (k.hand, k.finger, k.name) == (hand, finger, "home"))


def named_key(name):
    return next(k for k in KEYS if k.name == name)


def reached(hand, finger):
    """The keys that a finger strikes from its home key."""
    return [k for k in KEYS if (k.hand, k.finger) == (hand, finger) and k.name != "home"]


def key_cap(key, fill, edge, pressed=False):
    drop = 1.6 if pressed else 0.0
    out = []
    if not pressed:
        out.append(f'<rect x="{key.x}" y="{key.y + 1.6}" width="{key.width}" '
                   f'height="{KEY_HEIGHT}" rx="4.5" fill="#000000" fill-opacity="0.16"/>')
    out.append(f'<rect x="{key.x + 0.5}" y="{key.y + 0.5 + drop}" width="{key.width - 1}" '
               f'height="{KEY_HEIGHT - 1}" rx="4" fill="{fill}" stroke="{edge}"/>')
    return "".join(out)


def board(fill_of, pressed=()):
    """The whole keyboard; `fill_of(key)` gives a key's colour or None for a plain one."""
    margin = 8
    out = [f'<rect x="{-margin + 3}" y="{-margin + 4}" width="{BOARD_WIDTH + 2 * margin}" '
           f'height="{BOARD_HEIGHT + 2 * margin}" rx="10" fill="#000000" fill-opacity="0.14"/>'
           f'<rect x="{-margin}" y="{-margin}" width="{BOARD_WIDTH + 2 * margin}" '
           f'height="{BOARD_HEIGHT + 2 * margin}" rx="10" fill="{LIGHT_GREY}" stroke="{INK}" '
           'stroke-width="2"/>']
    for key in KEYS:
        fill = fill_of(key)
        edge = mix(fill, INK, 0.6) if fill else mix(GREY, WHITE, 0.75)
        out.append(key_cap(key, fill or WHITE, edge, key in pressed))
    return "".join(out)


# Hands on the keyboard ----------------------------------------------------------------------

# The board is not symmetric, but the eight home keys are, about this line.
MIRROR_X = (home_key("left", "index").centre()[0] + home_key("right", "index").centre()[0]) / 2

HAND_SCALE = 1.17
THUMB_REST = (163.0, 113.0)      # of the left thumb's pad, on the space bar
HAND_TURN = 10.0                 # degrees; the forearms come from outside
HAND_ANCHOR = (52.0, 30.0)       # this point of the model lies in the middle of the home keys


class Placing:
    """Where the left hand lies on the board, or the mirrored right hand."""

    def __init__(self):
        a, b = (home_key("left", f).centre() for f in ("ring", "middle"))
        self.origin = hands.along(a, b, 0.5)

    def to_model(self, p):
        turn = math.radians(-HAND_TURN)
        x, y = (p[0] - self.origin[0]) / HAND_SCALE, (p[1] - self.origin[1]) / HAND_SCALE
        return (x * math.cos(turn) - y * math.sin(turn) + HAND_ANCHOR[0],
                x * math.sin(turn) + y * math.cos(turn) + HAND_ANCHOR[1])

    def transform(self):
        return (f'translate({self.origin[0]:.2f} {self.origin[1]:.2f}) rotate({HAND_TURN}) '
                f'scale({HAND_SCALE}) translate({-HAND_ANCHOR[0]} {-HAND_ANCHOR[1]})')


def mirrored_point(p):
    return (2 * MIRROR_X - p[0], p[1])


def on_keys(hand, aims, placing):
    """The five fingers, each with its pad on its home key or where `aims` sends it."""
    fingers = []
    for finger in hands.FINGERS:
        if finger.name == "thumb":
            point = THUMB_REST
        else:
            point = aims.get(finger.name) or home_key(hand, finger.name).centre()
            point = mirrored_point(point) if hand == "right" else point
        x, y = placing.to_model(point)
        pad = finger.aimed((x, y)).tip_centre()
        fingers.append(finger.aimed((2 * x - pad[0], 2 * y - pad[1])))
    return tuple(fingers)


def sleeve():
    shape = "M41.4 149 Q65 153.5 88.6 149 L96 340 L28 340 Z"
    return f'<path d="{shape}" fill="{LIGHT_TEAL}"/>' + hands.stroke(shape, INK, 2)


def only_finger(finger, key, body):
    """The part of a hand's picture that is this finger, fading out towards the knuckle."""
    shape = hands.region(finger)
    return (f'<defs>{hands.gradient_along(finger, key + "fade", WHITE)}<mask id="{key}only">'
            f'<path d="{shape}" fill="url(#{key}fade)" stroke="url(#{key}fade)" '
            f'stroke-width="2"/></mask></defs><g mask="url(#{key}only)">{body}</g>')


class LaidHand:
    """A hand on the board; `colours` are those of its coloured fingers by name.

    `mark` names the striking finger, `aims` gives the places of fingers that have left their
    home keys, in the units of the board.
    """

    def __init__(self, hand, colours, mark=None, aims=None):
        self.hand = hand
        self.colours = colours
        self.mark = mark
        self.placing = Placing()
        self.fingers = on_keys(hand, aims or {}, self.placing)
        if mark:
            self.fingers = tuple(f.lifted(1.0, 1.12) if f.name == mark else f
                                 for f in self.fingers)

    def drawing(self, key):
        return hands.left_hand(self.mark, True, key, self.colours.get, self.fingers)

    def placed(self, body):
        body = f'<g transform="{self.placing.transform()}">{body}</g>'
        if self.hand == "right":
            body = f'<g transform="translate({2 * MIRROR_X} 0) scale(-1 1)">{body}</g>'
        return body

    def whole(self, opacity):
        """The hand with its sleeve; below 1 the keys shine through."""
        return self.placed(f'<g opacity="{opacity}">{self.drawing(self.hand)}{sleeve()}</g>')

    def coloured_fingers(self):
        """Only the coloured fingers, to stand undimmed on a hand that the keys shine through."""
        return self.placed("".join(
            only_finger(f, self.hand + f.name, self.drawing(self.hand + f.name + "top"))
            for f in self.fingers if f.name in self.colours))


# Frames and arrows --------------------------------------------------------------------------


def framed(width, height, body):
    """The picture on its sheet of paper with a rounded frame."""
    return svg(width, height,
               f'<defs><clipPath id="sheet"><rect x="1" y="1" width="{width - 2}" '
               f'height="{height - 2}" rx="14"/></clipPath></defs>'
               f'<g clip-path="url(#sheet)"><rect width="{width}" height="{height}" '
               f'fill="{PAPER}"/>{body}</g>'
               f'<rect x="1" y="1" width="{width - 2}" height="{height - 2}" rx="14" '
               f'fill="none" stroke="{INK}" stroke-width="2"/>')


def arrow(start, end, width=1.8, colour=INK, start_gap=0.0, end_gap=0.0, bend=0.0):
    """An arrow with a light rim; `bend` is the sideways bow in shares of its length."""
    length = hands.distance(start, end)
    ux, uy = (end[0] - start[0]) / length, (end[1] - start[1]) / length
    a = (start[0] + ux * start_gap, start[1] + uy * start_gap)
    b = (end[0] - ux * end_gap, end[1] - uy * end_gap)
    middle = hands.along(a, b, 0.5)
    bow = hands.distance(a, b) * bend
    c = (middle[0] - uy * bow, middle[1] + ux * bow)
    d = hands.distance(c, b)
    vx, vy = (b[0] - c[0]) / d, (b[1] - c[1]) / d
    head = width * 2.6
    left = (b[0] - vx * head - vy * head * 0.7, b[1] - vy * head + vx * head * 0.7)
    right = (b[0] - vx * head + vy * head * 0.7, b[1] - vy * head - vx * head * 0.7)
    fmt = hands.fmt
    data = f"M{fmt(a)} Q{fmt(c)} {fmt(b)} M{fmt(left)} L{fmt(b)} L{fmt(right)}"
    return hands.stroke(data, WHITE, width + 2.4, 0.9) + hands.stroke(data, colour, width)


# The pictures -------------------------------------------------------------------------------


def aim_point(key):
    """Where a finger strikes the key: a wide key at its end near the hand."""
    x, y = key.centre()
    if key.width > 2 * KEY_WIDTH:
        x = key.x + 17 if key.hand == "right" else key.x + key.width - 17
    return (x, y)


def reach_arrows(hand, finger, width):
    """Arrows from the home key to the keys reached; none to a key on the way to another."""
    home = home_key(hand, finger).centre()
    far_first = sorted((aim_point(k) for k in reached(hand, finger)),
                       key=lambda p: -hands.distance(home, p))
    angles, out = [], []
    for point in far_first:
        angle = math.degrees(math.atan2(point[1] - home[1], point[0] - home[0]))
        if all(abs(angle - other) > 13 for other in angles):
            angles.append(angle)
            out.append(arrow(home, point, width, start_gap=9, end_gap=2))
    return "".join(out)


def reach_map(width, height, finger, scale, top):
    colour = FINGER_COLOURS[finger]
    zone = mix(colour, WHITE, 0.5)

    def fill_of(key):
        if key.finger != finger:
            return None
        return colour if key.name == "home" else zone

    laid = [LaidHand(hand, {finger: colour}) for hand in ("left", "right")]
    body = [board(fill_of)]
    body += [hand.whole(0.6) for hand in laid]
    # The keys of the zone that the hands cover show through more than the rest.
    body.append('<g opacity="0.5">')
    body += [key_cap(k, fill_of(k), mix(colour, INK, 0.6), True) for k in KEYS if fill_of(k)]
    body.append('</g>')
    body += [hand.coloured_fingers() for hand in laid]
    body += [reach_arrows(hand, finger, 1.8) for hand in ("left", "right")]
    middle = BOARD_WIDTH / 2 if scale * BOARD_WIDTH < width else MIRROR_X
    left = width / 2 - middle * scale
    return framed(width, height,
                  f'<g transform="translate({left:.2f} {top}) scale({scale})">{"".join(body)}</g>')


def counter(x, y, count):
    """A disc with one, two or three dots, that tells the order without a figure."""
    out = [f'<circle cx="{x}" cy="{y}" r="11" fill="{WHITE}" stroke="{INK}" stroke-width="2"/>']
    places = {1: ((0, 0),), 2: ((-3.6, 0), (3.6, 0)), 3: ((-4, 2.6), (4, 2.6), (0, -4.2))}[count]
    out += [f'<circle cx="{x + dx}" cy="{y + dy}" r="2.4" fill="{CORAL}"/>' for dx, dy in places]
    return "".join(out)


# The panels of the strike, from the side. A panel is 200 x 145; the finger comes from the right.
PANEL = (200, 145)
KEY_TOP = 97.0
STRUCK_X = 66.0
SIDE_PROFILE = ((0.14, 1.10), (0.28, 0.99), (0.40, 1.04), (0.47, 1.14), (0.54, 1.08), (0.63, 0.94),
                (0.72, 0.97), (0.79, 0.93), (0.875, 0.86))


def side_finger(tip_y):
    """A bent finger whose tip is at this height; its knuckle hardly moves."""
    lift = tip_y - KEY_TOP
    axis = ((226.0, 60.0 + lift * 0.1), (182.0, 46.0 + lift * 0.15), (138.0, 32.0 + lift * 0.3),
            (118.0, 35.0 + lift * 0.4), (88.0, 57.0 + lift * 0.8), (78.0, 71.0 + lift * 0.9),
            (STRUCK_X, tip_y))
    return hands.Finger("side", axis, 15.0, SIDE_PROFILE, base=((0.0, 1.3), (0.0, 1.25)))


def side_finger_drawing(finger, key):
    shape = hands.smooth(finger.contour(), closed=True)
    lit = hands.smooth([(x - 3.0, y - 4.0) for x, y in finger.contour()], closed=True)
    nail = hands.smooth([finger.beside(t, o) for t, o in
                         ((0.855, 0.80), (0.92, 0.86), (0.985, 0.60), (0.97, 0.38),
                          (0.90, 0.46), (0.855, 0.55))], closed=True)
    folds = (((0.445, 1.06), (0.455, 0.66)), ((0.485, 1.08), (0.485, 0.60)),
             ((0.73, 0.92), (0.735, 0.58)), ((0.48, -0.98), (0.465, -0.58)),
             ((0.74, -0.92), (0.73, -0.55)))
    out = [f'<clipPath id="{key}"><path d="{shape}"/></clipPath>',
           f'<path d="{shape}" fill="url(#skin)"/>',
           f'<g clip-path="url(#{key})"><path d="{shape} {lit}" fill="{hands.SKIN_OUTLINE}" '
           'fill-rule="evenodd" fill-opacity="0.22"/></g>',
           f'<path d="{nail}" fill="{hands.NAIL}" stroke="{hands.SKIN_OUTLINE}" '
           'stroke-width="1.2"/>']
    for (t0, o0), (t1, o1) in folds:
        a, b = finger.beside(t0, o0), finger.beside(t1, o1)
        out.append(hands.stroke(f"M{hands.fmt(a)} L{hands.fmt(b)}", hands.SKIN_OUTLINE, 1.3, 0.7))
    out.append(hands.stroke(shape, hands.SKIN_OUTLINE, 2))
    return "".join(out)


def side_key(x, down, fill):
    top, half = KEY_TOP + down, 24.0
    return (f'<rect x="{x - 8}" y="{top + 10}" width="16" height="30" fill="{GREY}"/>'
            f'<path d="M{x - half + 5} {top} H{x + half - 5} q4 0 5 5 l2.5 17 q0.5 4 -3.5 4 '
            f'H{x - half + 1} q-4 0 -3.5 -4 l2.5 -17 q1 -5 5 -5 Z" fill="{fill}" '
            f'stroke="{INK}" stroke-width="2" stroke-linejoin="round"/>')


def strike_panel(phase):
    tip, down = {1: (KEY_TOP - 20, 0.0), 2: (KEY_TOP + 11, 11.0), 3: (KEY_TOP - 20, 0.0)}[phase]
    width, height = PANEL
    out = [f'<rect width="{width}" height="{height}" rx="12" fill="{PALE_TEAL}"/>']
    for x in (STRUCK_X - 57, STRUCK_X + 57, STRUCK_X + 114):
        out.append(side_key(x, 0.0, WHITE))
    out.append(side_key(STRUCK_X, down, AMBER if phase == 2 else mix(AMBER, WHITE, 0.35)))
    out.append(f'<rect y="129" width="{width}" height="20" fill="{LIGHT_GREY}" stroke="{INK}" '
               'stroke-width="2"/>')
    out.append(side_finger_drawing(side_finger(tip), f"finger{phase}"))
    if phase == 2:
        for x0, y0, x1, y1 in ((-19, -10, -25, -22), (-27, -6, -38, -14), (29, -7, 40, -13)):
            out.append(hands.stroke(f"M{STRUCK_X + x0} {KEY_TOP + y0} L{STRUCK_X + x1} "
                                    f"{KEY_TOP + y1}", CORAL, 3))
    else:
        ends = ((34, 46), (34, 88)) if phase == 1 else ((34, 88), (34, 46))
        out.append(arrow(*ends, width=4, colour=CORAL))
    out.append(counter(19, 19, phase))
    return "".join(out)


def strike(width, height):
    """Above the key, down on it, up again; to be read from the right, as the arrows tell."""
    out = [hands.skin_gradient("skin", False),
           f'<clipPath id="panel"><rect width="{PANEL[0]}" height="{PANEL[1]}" rx="12"/>'
           '</clipPath>']
    gap = (width - 3 * PANEL[0] - 2 * 18) / 2
    y = (height - PANEL[1]) / 2
    for place in range(3):
        x = 18 + place * (PANEL[0] + gap)
        out.append(f'<g transform="translate({x} {y})">'
                   f'<g clip-path="url(#panel)">{strike_panel(3 - place)}</g>'
                   f'<rect width="{PANEL[0]}" height="{PANEL[1]}" rx="12" fill="none" '
                   f'stroke="{TEAL}" stroke-width="2"/></g>')
        if place:
            out.append(arrow((x - 8, height / 2), (x - gap + 8, height / 2), 4, TEAL))
    return framed(width, height, "".join(out))


def shift_picture(width, height, scale, top):
    shift, struck = named_key("left shift"), home_key("right", "index")
    colours = {shift: FINGER_COLOURS["little"], struck: FINGER_COLOURS["index"]}
    left = LaidHand("left", {"little": FINGER_COLOURS["little"]},
                    aims={"little": (shift.x + 43, shift.y + 13)})
    right = LaidHand("right", {"index": FINGER_COLOURS["index"]}, mark="index")
    home = home_key("left", "little")
    colours[home] = mix(FINGER_COLOURS["little"], WHITE, 0.35)
    above = struck.centre()[0], struck.y - 20
    body = [board(colours.get, pressed=(shift,)), left.whole(0.75), right.whole(0.75),
            left.coloured_fingers(), right.coloured_fingers(),
            arrow((home.x + 6, home.y + 9), (shift.x + 26, shift.y + 1), 2.2, bend=0.25),
            counter(shift.x + 14, shift.y + 13, 1), counter(above[0], above[1], 2)]
    x = (width - BOARD_WIDTH * scale) / 2
    return framed(width, height,
                  f'<g transform="translate({x:.2f} {top}) scale({scale})">{"".join(body)}</g>')


PICTURES = {
    138: lambda: reach_map(281, 214, "index", 0.80, 20),
    139: lambda: reach_map(420, 260, "middle", 0.93, 26),
    140: lambda: reach_map(420, 260, "ring", 0.93, 26),
    141: lambda: reach_map(480, 280, "little", 1.07, 26),
    142: lambda: strike(708, 173),
    143: lambda: shift_picture(520, 300, 1.15, 30),
}


def main(folder):
    os.makedirs(folder, exist_ok=True)
    for number, draw in PICTURES.items():
        with open(os.path.join(folder, f"{number}.svg"), "w", encoding="utf-8") as file:
            file.write(draw())


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit("usage: fingers.py OUTDIR")
    main(sys.argv[1])
