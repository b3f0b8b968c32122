"""People of the scenes, seen from the side and facing left, put together from their joints.

The unit of a figure is the height of its head in pixels. A child is about six heads tall: thigh
1.6, shin 1.4, upper arm 1, forearm 0.85, hand 0.55, and 2.85 from the hip joint to the crown.
"""

import math
from dataclasses import dataclass

from _scene import (LINE, capsule, curved, disc, joined, line, moved, oval, path, shade,
                    tapered)
from _style import CORAL, INK, LIGHT_TEAL, TEAL, WHITE, number, points_path
from hands import SKIN, SKIN_OUTLINE, SKIN_SHADE, along, mix

HAIR = "#7A4E36"


@dataclass(frozen=True)
class Clothes:
    top: str = TEAL
    legs: str = "#54708A"
    shoes: str = CORAL
    scarf: str = ""     # "" for a child with bare hair


BOY = Clothes()
GIRL = Clothes(top="#E08D78", legs="#E08D78", shoes="#54708A", scarf=LIGHT_TEAL)

# The head -----------------------------------------------------------------------------------

# In hundredths of the head's height, the origin in its middle.
FACE = ("M-33 -32 C-40 -22 -43 -12 -41.5 -2 C-41 2 -43.5 6 -46.5 10.5 C-49 15 -46 18.5 -41.5 18 "
        "C-40.5 20.5 -42.5 23 -42 26 C-41.5 28 -40 28.5 -40 30 C-40.5 32 -41 34 -40 36.5 "
        "C-38 44 -31 49 -22 49.5 C-8 49.5 5 42 14 28 L32 24 L34 -20 L0 -44 Z")
BOY_HAIR = ("M-39 -20 C-47 -42 -24 -56 4 -55 C34 -54 52 -30 47 -4 C46 10 41 22 31 30 "
            "C26 32 21 29 20.5 24 C20 18 18 13 15 9 C10 10 5 13 0 12.5 C-2 3 -3 -9 -9 -17 "
            "C-19 -14 -29 -15 -39 -20 Z")
BOY_SHINE = "M-24 -37 C-12 -46 8 -47 24 -40"
SCARF = ("M-38 -19 C-46 -44 -24 -55 3 -54.5 C34 -53 50 -31 46 -3 C44.5 14 43 28 47 44 "
         "C51 60 36 70 8 71 C-14 72 -31 68 -35 60 C-37 54 -32 49 -26.5 47.5 C-23 49.5 -19 49.5 "
         "-15 48.5 C-3 44 3.5 30 3.5 11 C3.5 -8 -12 -22 -38 -19 Z")
SCARF_FOLDS = ("M-27 53 C-10 60 12 52 21 26", "M-30 61 C-6 68 22 60 31 40",
               "M-24 -33 C-6 -40 16 -31 23 -9")


def eye(shut):
    if shut:
        return path("M-32 3 Q-26 9 -19 3.5", "none", INK, 3.6)
    return oval(-26.5, 2.5, 4.4, 6.6, INK) + disc(-28.2, -0.2, 1.7, WHITE)


def face(shut_eyes, stroke):
    return (path(FACE, SKIN, SKIN_OUTLINE, stroke)
            + oval(-18, 21.5, 8.5, 5.5, CORAL, extra='fill-opacity="0.28"')
            + eye(shut_eyes)
            + path("M-33 -10.5 Q-26 -15 -18 -11", "none", HAIR, stroke * 0.8)
            + path("M-40 31 Q-33 37.5 -26 32.5", "none", SKIN_OUTLINE, stroke * 0.8))


def head(x, y, unit, clothes, tilt=0.0, shut_eyes=False):
    """A head in profile with its middle at (x, y); tilt is in degrees, positive looks down."""
    stroke = LINE * 100 / unit
    out = [face(shut_eyes, stroke)]
    if clothes.scarf:
        out.append(path(SCARF, clothes.scarf, INK, stroke))
        out += [path(fold, "none", mix(clothes.scarf, INK, 0.72), stroke * 0.7)
                for fold in SCARF_FOLDS]
    else:
        out.append(path(BOY_HAIR, HAIR, mix(HAIR, INK, 0.45), stroke))
        out.append(path(BOY_SHINE, "none", mix(HAIR, WHITE, 0.75), 5))
        out.append(oval(11, 9, 7, 9.5, SKIN, SKIN_OUTLINE, stroke * 0.9))
        out.append(path("M9 6 Q14 5 13 12", "none", SKIN_SHADE, 3.5))
    return moved(x, y, "".join(out), unit / 100, -tilt)


# The hand -----------------------------------------------------------------------------------

# The joints of the fingers from the knuckle over the two bends to the tip, in hundredths of the
# head's height. The hand points left and its back is up; it shows its outer side, so the first is
# the little finger and the last, farthest one the index finger.
BENT_FINGERS = (
    ((-28, -2), (-44, -6), (-55, 3), (-58, 14)),
    ((-30, -5), (-48, -10), (-61, 0), (-65.5, 13.6)),
    ((-31, -6), (-51, -12), (-66.5, -1), (-73, 13.4)),
    ((-30, -5), (-51, -10), (-69.5, 1), (-79, 13.6)),
)
STRAIGHT_FINGERS = (
    ((-26, 2), (-40, 4), (-50, 6), (-58, 8)),
    ((-28, -1), (-46, 0), (-58, 1.5), (-68, 3)),
    ((-28, -4), (-48, -4), (-62, -3), (-74, -1)),
    ((-28, -5), (-46, -8), (-58, -8), (-69, -6)),
)
BENT_THUMB = ((-6, 4), (-22, 9), (-36, 12), (-47, 13.6))
STRAIGHT_THUMB = ((-6, 4), (-20, 11), (-32, 15), (-42, 16))
FINGER_RADII = (7.4, 6.4, 5.6, 4.8)
THUMB_RADII = (8.0, 6.4, 5.6, 4.6)
# From the wrist down to where the tips of bent fingers lie.
HAND_DROP = 0.185


def bent(joints, radii):
    """A finger whose parts are straight and whose joints are round."""
    points, wide = [joints[0]], [radii[0]]
    for (a, ra), (b, rb) in zip(zip(joints, radii), zip(joints[1:], radii[1:])):
        points += [along(a, b, 0.3), along(a, b, 0.7)]
        wide += [ra + (rb - ra) * 0.3, ra + (rb - ra) * 0.7]
    return curved(points + [joints[-1]], wide + [radii[-1]], 4)


def hand(wrist, unit, turn=0.0, fingers=BENT_FINGERS, bend=0.0, edge=1.6):
    """A hand from its outer side with the end of the forearm; turn is in degrees, positive lifts
    the fingers, and bend is the part of it that is between the forearm and the hand."""
    stroke = edge * 100 / unit
    thumb = STRAIGHT_THUMB if fingers is STRAIGHT_FINGERS else BENT_THUMB
    out = [joined([bent(thumb, THUMB_RADII)], mix(SKIN, SKIN_SHADE, 0.3), SKIN_OUTLINE, stroke)]
    for place in (3, 2, 1):
        fill = mix(SKIN, SKIN_SHADE, 1 - 0.2 * place)
        out.append(joined([bent(fingers[place], FINGER_RADII)], fill, SKIN_OUTLINE, stroke))
    a = math.radians(-bend)
    palm = curved(((27 * math.cos(a), 27 * math.sin(a)), (3, 0), (-13, -2), (-29, -3)),
                  (10.5, 9.6, 11.5, 9.0))
    near = bent(fingers[0], FINGER_RADII)
    out.append(joined([palm, near], SKIN, SKIN_OUTLINE, stroke))
    return moved(wrist[0], wrist[1], "".join(out), unit / 100, turn)


def far_hand(wrist, unit, turn, fingers, edge=1.6):
    """The other hand, of which only a rim shows: all of one piece."""
    shapes = [bent(joints, FINGER_RADII) for joints in fingers]
    palm = curved(((27, 0), (3, 0), (-13, -2), (-29, -3)), (10.5, 9.6, 11.5, 9.0))
    body = joined([palm, *shapes], mix(SKIN, SKIN_SHADE, 0.25), SKIN_OUTLINE, edge * 100 / unit)
    return moved(wrist[0], wrist[1], body, unit / 100, turn)


# The body -----------------------------------------------------------------------------------

# From the neck's front down the chest to the hem and up the back, in heads; the hip joint is the
# origin and the shoulder joint is at UPRIGHT_SHOULDER. Leaning figures have it turned.
TORSO = (((-0.12, -1.72),),
         ((-0.25, -1.63), (-0.37, -1.46), (-0.385, -1.22)),
         ((-0.40, -1.00), (-0.35, -0.80), (-0.335, -0.60)),
         ((-0.325, -0.42), (-0.345, -0.25), (-0.35, -0.04)),
         ((-0.12, 0.05), (0.15, 0.10), (0.375, 0.11)),
         ((0.39, -0.15), (0.325, -0.40), (0.295, -0.62)),
         ((0.275, -0.85), (0.355, -1.05), (0.36, -1.25)),
         ((0.36, -1.45), (0.30, -1.62), (0.15, -1.72)),
         ((0.06, -1.68), (-0.04, -1.68), (-0.12, -1.72)))
UPRIGHT_SHOULDER = (0.03, -1.47)

# The skirt of a seated girl, from the lap round the knees to the hem and back under the seat.
SKIRT = (((-0.30, -0.40),),
         ((-0.42, -0.32), (-0.70, -0.31), (-0.95, -0.29)),
         ((-1.25, -0.26), (-1.45, -0.26), (-1.60, -0.20)),
         ((-1.76, -0.13), (-1.80, 0.02), (-1.80, 0.20)),
         ((-1.80, 0.60), (-1.84, 1.00), (-1.90, 1.38)),
         ((-1.65, 1.46), (-1.40, 1.46), (-1.16, 1.38)),
         ((-1.20, 1.00), (-1.18, 0.70), (-1.14, 0.48)),
         ((-1.10, 0.36), (-1.00, 0.33), (-0.85, 0.34)),
         ((-0.50, 0.36), (-0.10, 0.37), (0.16, 0.36)),
         ((0.42, 0.34), (0.44, 0.05), (0.36, -0.20)),
         ((0.20, -0.40), (-0.10, -0.45), (-0.30, -0.40)))


def sleeve_line(joints, radii):
    """The outline of a sleeve along shoulder, elbow and wrist, open at the shoulder."""
    shoulder, elbow, wrist = joints
    turn = ((elbow[0] - shoulder[0]) * (wrist[1] - elbow[1])
            - (elbow[1] - shoulder[1]) * (wrist[0] - elbow[0]))
    inner = 1 if turn > 0 else -1

    def beside(a, b, share, radius, side):
        """The point at the share from a to b, a radius to the side."""
        d = math.hypot(b[0] - a[0], b[1] - a[1])
        x, y = along(a, b, share)
        return (x - side * radius * (b[1] - a[1]) / d, y + side * radius * (b[0] - a[0]) / d)

    r0, r1, r2 = radii
    start = 0.12
    rs = r0 + (r1 - r0) * start
    upper = [beside(shoulder, elbow, start, rs, inner), beside(shoulder, elbow, 1, r1, inner)]
    lower = [beside(elbow, wrist, 0, r1, inner), beside(elbow, wrist, 1, r2, inner)]
    crook = crossing(*upper, *lower)
    outside = [beside(elbow, wrist, 1, r2, -inner), beside(elbow, wrist, 0, r1, -inner)]
    back = [beside(shoulder, elbow, 1, r1, -inner), beside(shoulder, elbow, start, rs, -inner)]
    text = points_path([upper[0], crook, lower[1], *outside])
    sweep = 0 if inner > 0 else 1
    return (text + f"A{number(r1)} {number(r1)} 0 0 {sweep} {number(back[0][0])} "
            f"{number(back[0][1])}L{number(back[1][0])} {number(back[1][1])}")


def crossing(a, b, c, d):
    """Where the lines through a and b and through c and d meet; b where they are parallel."""
    ux, uy, vx, vy = b[0] - a[0], b[1] - a[1], d[0] - c[0], d[1] - c[1]
    cross = ux * vy - uy * vx
    if abs(cross) < 0.05 * math.hypot(ux, uy) * math.hypot(vx, vy):
        return b
    t = ((c[0] - a[0]) * vy - (c[1] - a[1]) * vx) / cross
    return (a[0] + ux * t, a[1] + uy * t)


def outline_of(pieces, place):
    """Path data of cubic pieces, each point brought into the picture by place."""
    start, *rest = pieces
    text = "M%s %s" % tuple(number(v) for v in place(start[0]))
    for piece in rest:
        text += "C" + " ".join("%s %s" % tuple(number(v) for v in place(p)) for p in piece)
    return text + "Z"


@dataclass(frozen=True)
class Pose:
    """The joints of a figure in heads from its hip joint; x grows to the back, y downwards."""
    shoulder: tuple
    head: tuple                 # its middle
    near_arm: tuple             # elbow, wrist
    far_arm: tuple
    near_leg: tuple             # knee, ankle
    far_leg: tuple
    tilt: float = 0.0           # of the head, as for head()
    feet: tuple = (0.0, 0.0)    # turn of the near and of the far foot, positive lifts the toes
    hands: tuple = (0.0, 0.0)   # turn of the near and of the far hand
    fingers: tuple = BENT_FINGERS


class Figure:
    def __init__(self, pose, hip, unit, clothes, key):
        self.pose = pose
        self.hip = hip
        self.unit = unit
        self.clothes = clothes
        self.key = key

    def at(self, joint):
        return (self.hip[0] + joint[0] * self.unit, self.hip[1] + joint[1] * self.unit)

    def eye(self):
        """Where the look leaves the eye."""
        x, y = self.at(self.pose.head)
        a = math.radians(-self.pose.tilt)
        ex, ey = -0.315 * self.unit, 0.022 * self.unit
        return (x + ex * math.cos(a) - ey * math.sin(a), y + ex * math.sin(a) + ey * math.cos(a))

    def on_torso(self, point):
        """A point of the upright torso where the figure leans."""
        (ux, uy), (sx, sy) = UPRIGHT_SHOULDER, self.pose.shoulder
        square = ux * ux + uy * uy
        c, s = (sx * ux + sy * uy) / square, (sy * ux - sx * uy) / square
        return self.at((point[0] * c - point[1] * s, point[0] * s + point[1] * c))

    def radii(self, *shares):
        return [share * self.unit for share in shares]

    def fill(self, colour, name, share=1.0):
        """A garment's fill, lighter at the upper left of the figure."""
        base = mix(colour, INK, share)
        size = 3 * self.unit
        x, y = self.hip
        key = f"{self.key}{name}"
        return (f"url(#{key})",
                shade(key, (x - size * 0.35, y - size * 0.5, x + size * 0.35, y + size * 0.4),
                      mix(base, WHITE, 0.86), mix(base, INK, 0.88)))

    def arm(self, joints, turn, name, near):
        """The sleeve with the hand. Its seams begin below the shoulder, where the sleeve comes out
        of the shirt."""
        shoulder = self.at(self.pose.shoulder)
        elbow, wrist = (self.at(j) for j in joints)
        fill, definition = self.fill(self.clothes.top, name, 1.0 if near else 0.82)
        radii = self.radii(0.205, 0.165, 0.125)
        lean = math.degrees(math.atan2(elbow[1] - wrist[1], elbow[0] - wrist[0]))
        draw = hand if near else far_hand
        return (definition + draw(wrist, self.unit, lean + turn, self.pose.fingers)
                + path(tapered((shoulder, elbow, wrist), radii, True), fill)
                + path(sleeve_line((shoulder, elbow, wrist), radii), "none", INK)
                + self.cuff(elbow, wrist))

    def cuff(self, elbow, wrist):
        """The seam of the cuff across the end of a sleeve."""
        x, y = along(wrist, elbow, 0.12)
        d = math.hypot(elbow[0] - wrist[0], elbow[1] - wrist[1])
        nx, ny = (-(elbow[1] - wrist[1]) / d, (elbow[0] - wrist[0]) / d)
        r = 0.118 * self.unit
        return line([(x + nx * r, y + ny * r), (x - nx * r, y - ny * r)],
                    mix(self.clothes.top, INK, 0.6), LINE * 0.6)

    def shoe(self, ankle, turn, share):
        body = (path("M19 -16 L21 20 L-60 20 C-65 2 -46 -1 -18 -16 Z",
                     mix(self.clothes.shoes, INK, share), INK, LINE * 100 / self.unit)
                + path("M22 19 L-61 19", "none", INK, 7))
        return moved(ankle[0], ankle[1], body, self.unit / 100, turn)

    def trousers(self, joints):
        knee, ankle = (self.at(j) for j in joints)
        return tapered((self.hip, knee, ankle), self.radii(0.30, 0.205, 0.175), True)

    def shoes(self):
        p = self.pose
        return [self.shoe(self.at(leg[1]), turn, share) for leg, turn, share in
                ((p.far_leg, p.feet[1], 0.82), (p.near_leg, p.feet[0], 1.0))]

    def body(self):
        """Torso and legs: a shirt over trousers, or one dress."""
        p = self.pose
        torso = outline_of(TORSO, self.on_torso)
        top, top_fill = self.fill(self.clothes.top, "top")
        if self.clothes.scarf:
            return (top_fill + "".join(self.shoes())
                    + joined([torso, outline_of(SKIRT, self.at)], top, INK))
        near, far = self.trousers(p.near_leg), self.trousers(p.far_leg)
        near_legs, near_fill = self.fill(self.clothes.legs, "near")
        far_legs, far_fill = self.fill(self.clothes.legs, "far", 0.82)
        far_shoe, near_shoe = self.shoes()
        return (near_fill + far_fill + top_fill
                + far_shoe + joined([far], far_legs, INK)
                + near_shoe + joined([near], near_legs, INK) + joined([torso], top, INK))

    def neck(self):
        x, y = self.at(self.pose.head)
        top = (x + 0.12 * self.unit, y + 0.30 * self.unit)
        base = self.on_torso((0.02, -1.58))
        return joined([capsule(top, 0.155 * self.unit, base, 0.165 * self.unit)],
                      mix(SKIN, SKIN_SHADE, 0.6), SKIN_OUTLINE)

    def back(self):
        """What lies behind a desk's edge: the far arm, the neck and the body."""
        p = self.pose
        return self.arm(p.far_arm, p.hands[1], "fararm", False) + self.neck() + self.body()

    def front(self, shut_eyes=False):
        """The near arm and the head."""
        p = self.pose
        x, y = self.at(p.head)
        return (self.arm(p.near_arm, p.hands[0], "neararm", True)
                + head(x, y, self.unit, self.clothes, p.tilt, shut_eyes))

    def drawing(self, shut_eyes=False):
        return self.back() + self.front(shut_eyes)


# At the desk: the forearms level, the fingertips a HAND_DROP below them, the thighs under the
# desk's top.
ELBOW_HEIGHT = -0.66
AT_DESK = Pose(shoulder=UPRIGHT_SHOULDER, head=(-0.05, -2.33),
               near_arm=((-0.01, ELBOW_HEIGHT), (-0.86, ELBOW_HEIGHT)),
               far_arm=((0.0, ELBOW_HEIGHT), (-0.93, ELBOW_HEIGHT - 0.03)),
               near_leg=((-1.46, 0.10), (-1.42, 1.50)), far_leg=((-1.48, 0.10), (-1.60, 1.50)))
SEAT = 0.34     # the height of what is sat on
FLOOR = 1.71    # under the soles of AT_DESK
KEYS = ELBOW_HEIGHT + HAND_DROP
