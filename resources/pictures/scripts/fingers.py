#!/usr/bin/env python3
"""The keyboard and the hands on it, and a picture of the random set that tells what fingers do.

    python3 fingers.py OUTDIR

143  the little finger holds Shift while the other hand strikes
"""

import math
import os
import sys
from dataclasses import dataclass

import hands
from _lettering import word
from _style import GREY, INK, LIGHT_GREY, LIGHT_TEAL, PAPER, WHITE, svg
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


def key_face(key, fill, edge, drop=0.0):
    return (f'<rect x="{key.x + 0.5}" y="{key.y + 0.5 + drop}" width="{key.width - 1}" '
            f'height="{KEY_HEIGHT - 1}" rx="4" fill="{fill}" stroke="{edge}"/>')


def key_cap(key, fill, edge, pressed=False):
    if pressed:
        return key_face(key, fill, edge, 1.6)
    return (f'<rect x="{key.x}" y="{key.y + 1.6}" width="{key.width}" height="{KEY_HEIGHT}" '
            'rx="4.5" fill="#000000" fill-opacity="0.16"/>' + key_face(key, fill, edge))


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
THUMB_REST = (158.0, 111.0)      # of the left thumb's pad, on the space bar
HAND_TURN = 9.0                  # degrees; the forearms come from outside
HAND_ANCHOR = (52.0, 36.5)       # this point of the model lies in the middle of the home keys
HAND_EDGE = 1.5                  # the width of a laid hand's outline

# How far down its home key a finger's pad lies, in shares of the key's height: the bent fingers end
# on an arc, the little finger nearest to the hand.
PAD_DOWN = {"little": 0.80, "ring": 0.46, "middle": 0.32, "index": 0.52}


class Placing:
    """Where the left hand lies on the board, or the mirrored right hand."""

    def __init__(self, moved, turn):
        self.turn = turn
        a, b = (home_key("left", f).centre() for f in ("ring", "middle"))
        x, y = hands.along(a, b, 0.5)
        self.origin = (x + moved[0], y + moved[1])

    def to_model(self, p):
        turn = math.radians(-self.turn)
        x, y = (p[0] - self.origin[0]) / HAND_SCALE, (p[1] - self.origin[1]) / HAND_SCALE
        return (x * math.cos(turn) - y * math.sin(turn) + HAND_ANCHOR[0],
                x * math.sin(turn) + y * math.cos(turn) + HAND_ANCHOR[1])

    def transform(self):
        return (f'translate({self.origin[0]:.2f} {self.origin[1]:.2f}) rotate({self.turn}) '
                f'scale({HAND_SCALE}) translate({-HAND_ANCHOR[0]} {-HAND_ANCHOR[1]})')


def mirrored_point(p):
    return (2 * MIRROR_X - p[0], p[1])


def rest_point(hand, finger):
    """Where a finger's pad lies on its home key, or the thumb's on the space bar."""
    if finger == "thumb":
        return THUMB_REST if hand == "left" else mirrored_point(THUMB_REST)
    key = home_key(hand, finger)
    return (key.centre()[0], key.y + KEY_HEIGHT * PAD_DOWN[finger])


def on_keys(hand, aims, placing):
    """The five fingers, each with its pad on its home key or where `aims` sends it."""
    fingers = []
    for finger in hands.FINGERS:
        point = aims.get(finger.name) or rest_point(hand, finger.name)
        point = mirrored_point(point) if hand == "right" else point
        x, y = placing.to_model(point)
        pad = finger.aimed((x, y)).tip_centre()
        fingers.append(finger.aimed((2 * x - pad[0], 2 * y - pad[1])))
    return tuple(fingers)


def sleeve(edge=HAND_EDGE):
    """A sleeve with its cuff that goes on out of the picture."""
    cuff = "M39.5 143 Q65 148.5 90.5 143 L92 154 Q65 159.5 38 154 Z"
    arm = "M41 151 L27 340 L103 340 L89 151 Z"
    return (f'<path d="{arm}" fill="{LIGHT_TEAL}"/>' + hands.stroke(arm, INK, edge + 0.2)
            + f'<path d="{cuff}" fill="{mix(LIGHT_TEAL, WHITE, 0.72)}"/>'
            + hands.stroke(cuff, INK, edge + 0.2))


def only_finger(finger, key, body):
    """The part of a hand's picture that is this finger, with its outline and its edge."""
    shape, _ = hands.lit_region(finger)
    return (f'<mask id="{key}only"><path d="{shape}" fill="#FFFFFF" stroke="#FFFFFF" '
            f'stroke-width="{HAND_EDGE}"/></mask><g mask="url(#{key}only)">{body}</g>')


class LaidHand:
    """A hand on the board; `colours` are those of its coloured fingers by name.

    `aims` gives the places of fingers that have left their home keys, and `moved` is the way that
    the hand itself has gone, for a right hand mirrored; both in the units of the board. `turn` is
    its turn in degrees, and `edge` the width of the outline.
    """

    def __init__(self, hand, colours, aims=None, moved=(0.0, 0.0), turn=HAND_TURN, edge=HAND_EDGE):
        self.hand = hand
        self.colours = colours
        self.edge = edge
        self.placing = Placing(moved, turn)
        self.fingers = on_keys(hand, aims or {}, self.placing)

    def drawing(self, key):
        return hands.left_hand(None, True, key, self.colours.get, self.fingers,
                               self.hand == "right", self.edge, sleeve(self.edge))

    def placed(self, body):
        body = f'<g transform="{self.placing.transform()}">{body}</g>'
        if self.hand == "right":
            body = f'<g transform="translate({2 * MIRROR_X} 0) scale(-1 1)">{body}</g>'
        return body

    def whole(self, opacity):
        """The hand with its sleeve; below 1 the keys shine through."""
        return self.placed(f'<g opacity="{opacity}">{self.drawing(self.hand)}</g>')

    def coloured_fingers(self):
        """Only the coloured fingers, to stand undimmed on a hand that the keys shine through."""
        return self.placed("".join(
            only_finger(f, self.hand + f.name, self.drawing(self.hand + f.name + "top"))
            for f in self.fingers if f.name in self.colours))


# Frames and arrows --------------------------------------------------------------------------


def framed(width, height, body, below=0):
    """The picture on its sheet of paper with a rounded frame; `below` is left free under it."""
    sheet_height = height - below
    return svg(width, height,
               f'<defs><clipPath id="sheet"><rect x="1" y="1" width="{width - 2}" '
               f'height="{sheet_height - 2}" rx="14"/></clipPath></defs>'
               f'<g clip-path="url(#sheet)"><rect width="{width}" height="{sheet_height}" '
               f'fill="{PAPER}"/>{body}</g>'
               f'<rect x="1" y="1" width="{width - 2}" height="{sheet_height - 2}" rx="14" '
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


def counter(x, y, count):
    """A disc with the number of a step."""
    return (f'<circle cx="{x}" cy="{y}" r="11" fill="{WHITE}" stroke="{INK}" stroke-width="2"/>'
            + word(str(count), x, y + 5.4, 15, f'fill="{INK}"'))


def shift_sign(x, y, size, fill=WHITE, edge=INK, width=1.6):
    """The hollow arrow of the Shift keys about a middle."""
    points = ((0, -0.55), (0.56, 0.06), (0.25, 0.06), (0.25, 0.5), (-0.25, 0.5), (-0.25, 0.06),
              (-0.56, 0.06))
    data = "M" + " L".join(hands.fmt((x + px * size, y + py * size)) for px, py in points) + " Z"
    return f'<path d="{data}" fill="{fill}"/>' + hands.stroke(data, edge, width)


def shift_picture(width, height, scale, top):
    shift, struck = named_key("left shift"), home_key("right", "index")
    colours = {shift: FINGER_COLOURS["little"],
               struck: mix(FINGER_COLOURS["index"], WHITE, 0.85)}
    aims = {"little": (shift.x + 46, shift.y + 13)}
    aims.update({f: (rest_point("left", f)[0], rest_point("left", f)[1] + 3)
                 for f in ("ring", "middle", "index")})
    left = LaidHand("left", {"little": FINGER_COLOURS["little"]}, aims=aims,
                    moved=(-12.0, 8.0), turn=3.0)
    # Low on its key, so that the key struck stays in sight.
    right = LaidHand("right", {"index": FINGER_COLOURS["index"]},
                     aims={f: (rest_point("right", f)[0], rest_point("right", f)[1] + 11)
                           for f in FINGER_OF_LETTER.values()}, moved=(0.0, 9.0))
    home = home_key("left", "little")
    colours[home] = mix(FINGER_COLOURS["little"], WHITE, 0.35)
    x, y = shift.x + 17, shift.y + 13.5
    above = struck.centre()[0], struck.y - 20
    other = named_key("right shift")
    body = [board(colours.get, pressed=(shift,)), shift_sign(x, y, 15),
            shift_sign(other.x + 20, other.y + 12, 15, WHITE, GREY),
            left.whole(0.9), right.whole(0.9),
            left.coloured_fingers(), right.coloured_fingers(),
            arrow((home.x + 8, home.y + 12), (shift.x + 44, shift.y - 1), 2.0, bend=0.25),
            counter(x, y - ROW_STEP, 1), counter(above[0], above[1], 2)]
    x = (width - BOARD_WIDTH * scale) / 2
    return framed(width, height,
                  f'<g transform="translate({x:.2f} {top}) scale({scale})">{"".join(body)}</g>')


PICTURES = {
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
