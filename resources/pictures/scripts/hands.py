#!/usr/bin/env python3
"""The hands of the typing tutor, drawn as SVG.

    python3 hands.py OUTDIR

writes the plain hands 113 to 124 (128 x 147) and the coloured hands 1113 to 1124 (142 x 162).
Within a set the numbers run: left hand at rest, left thumb, index, middle, ring and little
finger, then the same for the right hand.

There is one model: a left hand seen from above, palm down, in the units of the plain picture.
Every finger is a bent axis with a thickness at each point of it; the outline of the whole hand
is one smooth curve that runs up and down the fingers and through the webs between them. The
striking finger is lifted (longer and thicker, as it is nearer to the eye), and the right hand
is the mirrored left hand.
"""

import math
import os
import sys
from dataclasses import dataclass, replace

from _style import AMBER, INK, LIGHT_TEAL, TEAL

PLAIN_SIZE = (128, 147)
COLOURED_SIZE = (142, 162)

FIRST_PLAIN = 113
COLOURED_OFFSET = 1000

# In the order of the picture numbers; None is the hand at rest.
MARKS = (None, "thumb", "index", "middle", "ring", "little")

SKIN = "#F3D3B8"
SKIN_LIGHT = "#FAE3CF"
SKIN_SHADE = "#DDAF8D"
SKIN_OUTLINE = "#7A4E36"
NAIL = "#FBE7D8"
MARK = "#F0921E"     # of the striking finger on a plain hand

FINGER_COLOURS = {
    "little": "#8E5BB5",
    "ring": "#2E86C1",
    "middle": "#2FA36B",
    "index": "#E28A1E",
    "thumb": "#C94F4F",
}


# Colours ------------------------------------------------------------------------------------


def mix(colour, other, share):
    """The colour that has `share` (0 to 1) of `colour` and the rest of `other`."""
    pairs = ((int(colour[i:i + 2], 16), int(other[i:i + 2], 16)) for i in (1, 3, 5))
    return "#" + "".join(f"{round(a * share + b * (1 - share)):02X}" for a, b in pairs)


def pale(colour):
    return mix(colour, "#FFFFFF", 0.30)


# Curves -------------------------------------------------------------------------------------


def along(a, b, t):
    return (a[0] + (b[0] - a[0]) * t, a[1] + (b[1] - a[1]) * t)


def distance(a, b):
    return math.hypot(b[0] - a[0], b[1] - a[1])


def bezier_pieces(points, closed):
    """Cubic pieces (start, control, control, end) of a smooth curve through the points.

    The tangent at a point follows its two neighbours, and its reach in each piece follows that
    piece's length, so that uneven spacing makes no loops.
    """
    n = len(points)
    tangents = []
    for i, p in enumerate(points):
        before = points[i - 1] if closed or i > 0 else p
        after = points[(i + 1) % n] if closed or i < n - 1 else p
        d = distance(before, after) or 1.0
        tangents.append(((after[0] - before[0]) / d, (after[1] - before[1]) / d))
    pieces = []
    for i in range(n if closed else n - 1):
        a, b = points[i], points[(i + 1) % n]
        ta, tb = tangents[i], tangents[(i + 1) % n]
        reach = distance(a, b) * 0.36
        pieces.append((a,
                       (a[0] + ta[0] * reach, a[1] + ta[1] * reach),
                       (b[0] - tb[0] * reach, b[1] - tb[1] * reach),
                       b))
    return pieces


def path_data(pieces, closed):
    parts = [f"M{pieces[0][0][0]:.2f} {pieces[0][0][1]:.2f}"]
    for _, c1, c2, end in pieces:
        parts.append("C" + " ".join(f"{x:.2f} {y:.2f}" for x, y in (c1, c2, end)))
    return " ".join(parts) + (" Z" if closed else "")


def smooth(points, closed=False):
    return path_data(bezier_pieces(points, closed), closed)


def at_piece(piece, t):
    a, b, c, d = piece
    u = 1 - t
    return tuple(u * u * u * a[k] + 3 * u * u * t * b[k] + 3 * u * t * t * c[k] + t * t * t * d[k]
                 for k in (0, 1))


# The hand -----------------------------------------------------------------------------------


@dataclass(frozen=True)
class Finger:
    """A finger of the left hand: the axis from the knuckle to the tip, and the thickness.

    `profile` gives, for places along the axis (0 the knuckle, 1 the tip), half the thickness as
    a share of `half_width`; the two of `base` are where the left and the right side come out of
    the hand. The last place lies before the tip; the tip is rounded from there. `lit_from` are
    the same for the part that is coloured, where it begins in the hand itself.
    """
    name: str
    axis: tuple
    half_width: float
    profile: tuple
    base: tuple
    nail_turn: float = 0.0  # sideways shift of the nail in shares of the half width
    creases: tuple = (0.53, 0.77)
    lit_from: tuple = ()

    def lifted(self, longer, thicker):
        root = self.axis[0]
        axis = tuple(along(root, p, longer) for p in self.axis)
        return replace(self, axis=axis, half_width=self.half_width * thicker)

    def aimed(self, tip):
        """The finger turned and stretched about its knuckle until its tip is at `tip`. Where it
        comes out of the hand stays at the same distance from the knuckle."""
        root, end = self.axis[0], self.axis[-1]
        ex, ey = end[0] - root[0], end[1] - root[1]
        tx, ty = tip[0] - root[0], tip[1] - root[1]
        square = ex * ex + ey * ey
        real, imaginary = (tx * ex + ty * ey) / square, (ty * ex - tx * ey) / square
        axis = tuple((root[0] + (x - root[0]) * real - (y - root[1]) * imaginary,
                      root[1] + (x - root[0]) * imaginary + (y - root[1]) * real)
                     for x, y in self.axis)
        stretch = math.hypot(real, imaginary)

        def kept(places):
            return tuple((t / stretch, w) for t, w in places)

        return replace(self, axis=axis, base=kept(self.base), lit_from=kept(self.lit_from))

    def centre_line(self):
        line = []
        pieces = bezier_pieces(self.axis, False)
        for piece in pieces:
            line += [at_piece(piece, k / 16) for k in range(16)]
        return line + [self.axis[-1]]

    def place(self, t):
        """The point at share t of the axis, and the unit vector along it towards the tip."""
        line = self.centre_line()
        lengths = [distance(a, b) for a, b in zip(line, line[1:])]
        rest = t * sum(lengths)
        for a, b, length in zip(line, line[1:], lengths):
            if rest <= length or b is line[-1]:
                return along(a, b, rest / length), ((b[0] - a[0]) / length,
                                                    (b[1] - a[1]) / length)
            rest -= length
        raise AssertionError("an axis has a length")

    def length(self):
        line = self.centre_line()
        return sum(distance(a, b) for a, b in zip(line, line[1:]))

    def beside(self, t, offset):
        """The point at share t, `offset` half widths to the right as seen towards the tip."""
        p, (dx, dy) = self.place(t)
        return (p[0] - dy * offset * self.half_width, p[1] + dx * offset * self.half_width)

    def half_width_at(self, t):
        for (t0, w0), (t1, w1) in zip(self.profile, self.profile[1:]):
            if t <= t1:
                return w0 + (w1 - w0) * max(0.0, (t - t0) / (t1 - t0))
        return self.profile[-1][1]

    def side(self, sign):
        """The points of one side from the base towards the tip; sign -1 left, 1 right."""
        base = self.base[0 if sign < 0 else 1]
        return [self.beside(t, sign * w)
                for t, w in (base,) + tuple(p for p in self.profile if p[0] > base[0])]

    def tip_arc(self):
        """Points round the tip from the left side to the right side."""
        t0, w0 = self.profile[-1]
        reach = 1 - t0
        arc = []
        for degrees in (-62, -34, 0, 34, 62):
            a = math.radians(degrees)
            arc.append(self.beside(t0 + reach * math.cos(a), w0 * math.sin(a)))
        return arc

    def contour(self):
        return self.side(-1) + self.tip_arc() + self.side(1)[::-1]

    def tip_centre(self):
        """The middle of the finger pad, where the finger meets the key."""
        return self.place(1 - 0.75 * self.half_width / self.length())[0]


LONG = ((0.47, 0.99), (0.56, 1.01), (0.67, 0.95), (0.78, 0.93), (0.87, 0.85))
THUMB = ((0.70, 0.96), (0.78, 0.95), (0.86, 0.84))

FINGERS = (
    Finger("little", ((37.0, 92.0), (27.2, 69.5), (22.6, 58.0), (19.4, 46.0)), 6.6, LONG,
           base=((0.32, 1.03), (0.47, 0.99))),
    Finger("ring", ((49.5, 81.0), (43.0, 54.0), (40.2, 39.5), (39.0, 25.5)), 7.2, LONG,
           base=((0.29, 1.05), (0.38, 1.01))),
    Finger("middle", ((64.0, 77.0), (63.2, 47.0), (62.6, 31.5), (61.8, 15.5)), 7.5, LONG,
           base=((0.36, 1.02), (0.36, 1.02))),
    Finger("index", ((78.5, 81.0), (84.2, 55.0), (86.3, 41.5), (87.2, 27.5)), 7.3, LONG,
           base=((0.40, 1.01), (0.36, 1.05))),
    Finger("thumb", ((79.0, 128.0), (95.5, 110.0), (104.6, 97.5), (108.6, 81.5)), 8.0, THUMB,
           base=((0.61, 0.94), (0.52, 1.01)), nail_turn=0.22, creases=(0.66,),
           lit_from=((0.53, 0.96), (0.37, 1.08))),
)

WRIST_LEFT = ((45.6, 156.0), (44.9, 141.0), (41.4, 130.5), (35.6, 118.5), (31.6, 107.0),
              (29.2, 95.5))
WEBS = {
    ("little", "ring"): ((36.8, 72.6),),
    ("ring", "middle"): ((53.7, 61.5),),
    ("middle", "index"): ((73.5, 61.5),),
    ("index", "thumb"): ((86.5, 78.0), (85.2, 88.0), (86.4, 98.2), (91.4, 103.4)),
}
WRIST_MIDDLE = (66.0, 156.0)
WRIST_RIGHT = ((98.3, 119.5), (90.0, 129.0), (85.2, 138.5), (84.4, 156.0))


# How far the points between index finger and thumb go with the thumb; the others between two
# fingers go with both.
WEB_OF_THUMB = (0.0, 0.1, 0.45, 0.9)


def web(finger, follower):
    """The points between two fingers."""
    ours = {f.name: f for f in FINGERS}
    thumb = follower.name == "thumb"

    def middle(one, other):
        return other.side(-1)[0] if thumb else along(one.side(1)[0], other.side(-1)[0], 0.5)

    x0, y0 = middle(ours[finger.name], ours[follower.name])
    x1, y1 = middle(finger, follower)
    points = WEBS[(finger.name, follower.name)]
    shares = WEB_OF_THUMB if thumb else (1.0,) * len(points)
    return tuple((x + (x1 - x0) * k, y + (y1 - y0) * k) for (x, y), k in zip(points, shares))


def outline(fingers):
    """The points of the hand's outline, from the wrist's left round to its right."""
    points = list(WRIST_LEFT)
    for finger, follower in zip(fingers, fingers[1:] + (None,)):
        points += finger.contour()
        if follower:
            points += web(finger, follower)
    return points + list(WRIST_RIGHT)


def posed(mark, longer=1.07, thicker=1.10):
    """The five fingers, with the marked one lifted."""
    return tuple(f.lifted(longer, thicker) if f.name == mark else f for f in FINGERS)


# Drawing ------------------------------------------------------------------------------------


def fmt(p):
    return f"{p[0]:.2f} {p[1]:.2f}"


def stroke(data, colour, width, opacity=1.0):
    return (f'<path d="{data}" fill="none" stroke="{colour}" stroke-width="{width}" '
            f'stroke-linecap="round" stroke-linejoin="round" stroke-opacity="{opacity}"/>')


def nail(finger, colour, line):
    """The nail, seen foreshortened as the last joint bends down to the key."""
    length = finger.length()
    end, (dx, dy) = finger.place(1 - 0.78 * finger.half_width / length)
    turn = finger.nail_turn * finger.half_width
    centre = (end[0] - dy * turn, end[1] + dx * turn)
    angle = math.degrees(math.atan2(dx, -dy))
    w, h = finger.half_width * 0.53, finger.half_width * 0.66
    shape = (f"M{-w:.2f} {h * 0.55:.2f} C{-w:.2f} {h * 1.15:.2f} {w:.2f} {h * 1.15:.2f} "
             f"{w:.2f} {h * 0.55:.2f} L{w * 0.92:.2f} {-h * 0.35:.2f} "
             f"C{w * 0.8:.2f} {-h * 1.25:.2f} {-w * 0.8:.2f} {-h * 1.25:.2f} "
             f"{-w * 0.92:.2f} {-h * 0.35:.2f} Z")
    return (f'<path transform="translate({fmt(centre)}) rotate({angle:.1f})" d="{shape}" '
            f'fill="{colour}" stroke="{line}" stroke-width="0.9" stroke-linejoin="round"/>')


def crease(finger, t, spread, bow, colour):
    """A short fold across the finger at share t."""
    half = finger.half_width_at(t) * spread
    a, c = finger.beside(t, -half), finger.beside(t, half)
    p, (dx, dy) = finger.place(t)
    b = (p[0] + dx * bow, p[1] + dy * bow)
    return stroke(f"M{fmt(a)} Q{fmt(b)} {fmt(c)}", colour, 1.0, 0.75)


def finger_fill(name, mark, coloured):
    """The colour of a finger, or None where it shows the skin."""
    if coloured:
        return FINGER_COLOURS[name] if name == mark else pale(FINGER_COLOURS[name])
    return MARK if name == mark else None


def lit_region(finger):
    """The finger from the web to its tip as a closed shape, and its edge across the hand."""
    contour = finger.contour()
    if finger.lit_from:
        (t0, w0), (t1, w1) = finger.lit_from
        contour = [finger.beside(t0, -w0)] + contour + [finger.beside(t1, w1)]
    left, right = contour[0], contour[-1]
    _, (dx, dy) = finger.place(finger.base[0][0])
    bow = finger.half_width * 0.75
    sag = ((left[0] + right[0]) / 2 - dx * bow, (left[1] + right[1]) / 2 - dy * bow)
    edge = f"Q{fmt(sag)} {fmt(left)}"
    return smooth(contour) + f" {edge} Z", f"M{fmt(right)} {edge}"


def skin_gradient(key, coloured, right=False):
    # The coloured hand is lighter, or the pale index finger and thumb would drown in the skin.
    light, middle, dark = SKIN_LIGHT, SKIN, mix(SKIN, SKIN_SHADE, 0.65)
    if coloured:
        light, middle, dark = (mix(c, "#FFFFFF", 0.6) for c in (light, middle, dark))
    x1, x2 = (98, 33) if right else (30, 95)
    return (f'<linearGradient id="{key}" gradientUnits="userSpaceOnUse" x1="{x1}" y1="20" '
            f'x2="{x2}" y2="145"><stop offset="0" stop-color="{light}"/>'
            f'<stop offset="0.55" stop-color="{middle}"/>'
            f'<stop offset="1" stop-color="{dark}"/></linearGradient>')


def back_of_hand(fingers):
    """Tendons and knuckles, hinted at."""
    out = []
    for f in fingers:
        if f.name == "thumb":
            continue
        knuckle, (dx, dy) = f.place(0.05)
        start = along(knuckle, WRIST_MIDDLE, 0.10)
        heel = along(knuckle, WRIST_MIDDLE, 0.34)
        out.append(stroke(f"M{fmt(start)} L{fmt(heel)}", SKIN_SHADE, 1.3, 0.45))
        w, rise = f.half_width * 0.7, f.half_width * 0.5
        a = (knuckle[0] + dy * w, knuckle[1] - dx * w)
        c = (knuckle[0] - dy * w, knuckle[1] + dx * w)
        b = (knuckle[0] + dx * rise, knuckle[1] + dy * rise)
        out.append(stroke(f"M{fmt(a)} Q{fmt(b)} {fmt(c)}", SKIN_SHADE, 1.6, 0.85))
    return "".join(out)


def cuff():
    """The end of a sleeve, so that the wrist is not cut off by the picture's edge."""
    shape = "M42.5 139.5 Q65 144 87.5 139.5 L89 152 L41 152 Z"
    return (f'<path d="{shape}" fill="{LIGHT_TEAL}"/>'
            + stroke("M43 144 Q65 148.5 87 144", TEAL, 1.2, 0.8)
            + stroke(shape, INK, 2))


def tap_mark(finger, key, colour):
    """A glow and a ring round the fingertip; they lie under the hand."""
    x, y = finger.tip_centre()
    circle = f'<circle cx="{x:.2f}" cy="{y:.2f}"'
    return (f'<radialGradient id="{key}" gradientUnits="userSpaceOnUse" cx="{x:.2f}" '
            f'cy="{y:.2f}" r="15"><stop offset="0.4" stop-color="{colour}" stop-opacity="0.6"/>'
            f'<stop offset="1" stop-color="{colour}" stop-opacity="0.1"/></radialGradient>'
            f'{circle} r="12.6" fill="url(#{key})"/>'
            f'{circle} r="12.6" fill="none" stroke="{colour}" stroke-width="2.4"/>')


def shadow(fingers, mark, right):
    """The hand's shadow at the lower right, even when the drawing is mirrored afterwards. A
    striking finger is lifted, so its shadow falls farther."""
    side = -1 if right else 1
    fallen = tuple(f.aimed((f.axis[-1][0] + 2.5 * side, f.axis[-1][1] + 2.0))
                   if f.name == mark else f for f in fingers)
    return (f'<path d="{smooth(outline(fallen), closed=True)}" '
            f'transform="translate({2 * side} 3)" fill="#000000" fill-opacity="0.14"/>')


def lit_finger(finger, colour, right):
    """A finger in its colour up to a clean edge, with a highlight on the side of the light."""
    shape, edge = lit_region(finger)
    side = 0.42 if right else -0.42
    places = [finger.beside(t, side) for t in
              (finger.base[0][0] + 0.10, finger.base[0][0] * 0.5 + 0.36, 0.80)]
    return (f'<path d="{shape}" fill="{colour}"/>'
            + stroke(smooth(places), mix(colour, "#FFFFFF", 0.55), finger.half_width * 0.36, 0.75)
            + stroke(edge, mix(colour, SKIN_OUTLINE, 0.45), 1.5))


def left_hand(mark, coloured, key="", fill_of=None, fingers=None, right=False, edge=2.0,
              sleeve=None):
    """The left hand as SVG elements, in the units of the plain picture.

    `mark` names the striking finger or is None. `key` goes before every id, so that several
    hands can stand in one picture. `fill_of(name)` gives a finger's colour or None for skin,
    and `fingers` the five fingers, if they are to differ from those of the set. `right` says that
    it will be mirrored, so that the light still comes from the upper left. `edge` is the width of
    the outline, and `sleeve` is drawn over the wrist instead of the cuff.
    """
    fingers = fingers or posed(mark)
    points = outline(fingers)
    shape = smooth(points, closed=True)
    lit = smooth([(x + (2.0 if right else -2.0), y - 1.4) for x, y in points], closed=True)
    fill_of = fill_of or (lambda name: finger_fill(name, mark, coloured))
    filled = [(f, fill_of(f.name)) for f in fingers if fill_of(f.name)]
    marked = [f for f in fingers if f.name == mark]

    out = ['<defs>', skin_gradient(key + "skin", coloured, right),
           f'<clipPath id="{key}hand"><path d="{shape}"/></clipPath></defs>']
    out += [tap_mark(f, key + "glow", fill_of(f.name) if coloured else AMBER) for f in marked]
    out.append(shadow(fingers, mark, right))
    out.append(f'<path d="{shape}" fill="url(#{key}skin)"/>')
    out.append(back_of_hand(fingers))
    out.append(f'<g clip-path="url(#{key}hand)">')
    out += [lit_finger(f, colour, right) for f, colour in filled]
    # The rim that the light from the upper left does not reach.
    out.append(f'<path d="{shape} {lit}" fill="{SKIN_OUTLINE}" fill-rule="evenodd" '
               'fill-opacity="0.22"/></g>')
    for f in fingers:
        out += [crease(f, t, 0.5, 1.2, SKIN_OUTLINE) for t in f.creases]
        out.append(nail(f, NAIL, SKIN_OUTLINE))
    out.append(stroke(shape, SKIN_OUTLINE, edge))
    out.append(cuff() if sleeve is None else sleeve)
    return "".join(out)


def mirrored(body):
    return f'<g transform="translate({PLAIN_SIZE[0]} 0) scale(-1 1)">{body}</g>'


def picture(right, mark, coloured):
    width, height = COLOURED_SIZE if coloured else PLAIN_SIZE
    body = left_hand(mark, coloured, right=right)
    if right:
        body = mirrored(body)
    if coloured:
        body = (f'<g transform="scale({width / PLAIN_SIZE[0]:.5f} '
                f'{height / PLAIN_SIZE[1]:.5f})">{body}</g>')
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" '
            f'viewBox="0 0 {width} {height}">{body}</svg>\n')


def main(folder):
    os.makedirs(folder, exist_ok=True)
    for coloured in (False, True):
        number = FIRST_PLAIN + (COLOURED_OFFSET if coloured else 0)
        for right in (False, True):
            for mark in MARKS:
                with open(os.path.join(folder, f"{number}.svg"), "w", encoding="utf-8") as file:
                    file.write(picture(right, mark, coloured))
                number += 1


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit("usage: hands.py OUTDIR")
    main(sys.argv[1])
