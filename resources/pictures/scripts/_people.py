"""People of the scenes, seen from the side and facing left, put together from their joints.

The unit of a figure is the height of its head in pixels. A child is about six heads tall: thigh
1.6, shin 1.4, upper arm 1, forearm 0.85, hand 0.55, and 2.85 from the hip joint to the crown.
"""

import math
from dataclasses import dataclass

from _scene import LINE, capsule, curved, disc, joined, moved, oval, path, shade, tapered
from _style import CORAL, INK, LIGHT_TEAL, TEAL, WHITE
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
SCARF = ("M-38 -19 C-48 -46 -22 -59 4 -57.5 C38 -56 56 -32 51 0 C50 20 50 34 64 62 "
         "C67 76 30 86 2 84 C-22 83 -38 78 -40 70 C-41 62 -38 55 -31 49 C-26 51 -22 51 -17 49.5 "
         "C-3 44 4 30 4 10 C4 -9 -12 -23 -38 -19 Z")
SCARF_FOLDS = ("M-31 54 C-12 62 16 52 25 22", "M-36 66 C-6 74 26 66 37 40",
               "M-26 -34 C-6 -42 20 -32 27 -8")


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

# A finger's joints from its knuckle, in hundredths of the head's height: the hand points left and
# its back is up. The near finger is the little one.
BENT_FINGERS = (
    ((-26, -3), (-44, -5), (-57, 4), (-61, 15)),
    ((-26, -3), (-41, -5), (-53, 4), (-56, 15)),
    ((-25, -2), (-37, -4), (-47, 5), (-49, 15)),
    ((-23, 0), (-33, -1), (-40, 7), (-41, 15)),
)
STRAIGHT_FINGERS = (
    ((-24, -4), (-38, -6), (-49, -6), (-58, -4)),
    ((-25, -2), (-40, -2), (-52, -1), (-62, 1)),
    ((-24, 1), (-38, 3), (-49, 5), (-57, 8)),
    ((-22, 4), (-32, 9), (-39, 14), (-44, 19)),
)
FINGER_RADII = (6.6, 6.2, 5.4, 4.6)


def hand(wrist, unit, turn=0.0, fingers=BENT_FINGERS, bend=0.0, edge=1.6):
    """A hand from its outer side with the end of the forearm; turn is in degrees, positive lifts
    the fingers, and bend is the part of it that is between the forearm and the hand."""
    stroke = edge * 100 / unit
    out = []
    for index, joints in enumerate(fingers):
        fill = mix(SKIN, SKIN_SHADE, 0.55 + 0.15 * index)
        out.append(joined([curved(joints, FINGER_RADII)], fill, SKIN_OUTLINE, stroke))
    a = math.radians(-bend)
    palm = curved(((27 * math.cos(a), 27 * math.sin(a)), (2, 0), (-12, 0), (-24, 1)),
                  (10, 9.2, 11, 8.5))
    near = curved(fingers[-1], FINGER_RADII)
    out.append(joined([palm, near], SKIN, SKIN_OUTLINE, stroke))
    return moved(wrist[0], wrist[1], "".join(out), unit / 100, turn)


# The body -----------------------------------------------------------------------------------


@dataclass(frozen=True)
class Pose:
    """The joints of a figure in heads from its hip joint; x grows to the back, y downwards."""
    shoulder: tuple
    head: tuple                 # its middle
    near_arm: tuple             # elbow, wrist
    far_arm: tuple
    near_leg: tuple             # knee, ankle
    far_leg: tuple
    belly: tuple = (-0.03, -0.75)
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

    def arm(self, joints, turn, name, share):
        """The sleeve with the hand; its seam does not show where it comes out of the body."""
        shoulder = self.at(self.pose.shoulder)
        elbow, wrist = (self.at(j) for j in joints)
        fill, definition = self.fill(self.clothes.top, name, share)
        sleeve = tapered((shoulder, elbow, wrist), self.radii(0.20, 0.155, 0.12), True)
        lean = math.degrees(math.atan2(elbow[1] - wrist[1], elbow[0] - wrist[0]))
        seam = along(shoulder, elbow, 0.16)
        return (definition + hand(wrist, self.unit, lean + turn, self.pose.fingers)
                + joined([sleeve], fill, INK)
                + path(capsule(shoulder, 0.20 * self.unit + LINE + 0.3, seam,
                           0.19 * self.unit + LINE), fill))

    def shoe(self, ankle, turn, share):
        body = (path("M19 -16 L21 20 L-60 20 C-65 2 -46 -1 -18 -16 Z",
                     mix(self.clothes.shoes, INK, share), INK, LINE * 100 / self.unit)
                + path("M22 19 L-61 19", "none", INK, 7))
        return moved(ankle[0], ankle[1], body, self.unit / 100, turn)

    def trousers(self, joints):
        knee, ankle = (self.at(j) for j in joints)
        radii = (0.36, 0.30, 0.29) if self.clothes.scarf else (0.33, 0.225, 0.185)
        return tapered((self.hip, knee, ankle), self.radii(*radii), True)

    def shoes(self):
        p = self.pose
        return [self.shoe(self.at(leg[1]), turn, share) for leg, turn, share in
                ((p.far_leg, p.feet[1], 0.82), (p.near_leg, p.feet[0], 1.0))]

    def body(self):
        """Torso and legs: a shirt over trousers, or one dress."""
        p = self.pose
        shoulder, belly = self.at(p.shoulder), self.at(p.belly)
        chest = (shoulder[0], shoulder[1] + 0.22 * self.unit)
        torso = curved((self.hip, belly, chest, shoulder), self.radii(0.385, 0.36, 0.37, 0.25))
        near, far = self.trousers(p.near_leg), self.trousers(p.far_leg)
        top, top_fill = self.fill(self.clothes.top, "top")
        if self.clothes.scarf:
            return top_fill + "".join(self.shoes()) + joined([far, near, torso], top, INK)
        near_legs, near_fill = self.fill(self.clothes.legs, "near")
        far_legs, far_fill = self.fill(self.clothes.legs, "far", 0.82)
        far_shoe, near_shoe = self.shoes()
        return (near_fill + far_fill + top_fill
                + far_shoe + joined([far], far_legs, INK)
                + near_shoe + joined([near], near_legs, INK) + joined([torso], top, INK))

    def neck(self):
        x, y = self.at(self.pose.head)
        top = (x + 0.12 * self.unit, y + 0.30 * self.unit)
        sx, sy = self.at(self.pose.shoulder)
        return joined([capsule(top, 0.16 * self.unit, (sx - 0.02 * self.unit, sy),
                               0.18 * self.unit)], mix(SKIN, SKIN_SHADE, 0.6), SKIN_OUTLINE)

    def back(self):
        """What lies behind a desk's edge: the far arm, the neck and the body."""
        p = self.pose
        return self.arm(p.far_arm, p.hands[1], "fararm", 0.82) + self.neck() + self.body()

    def front(self, shut_eyes=False):
        """The near arm and the head."""
        p = self.pose
        x, y = self.at(p.head)
        return (self.arm(p.near_arm, p.hands[0], "neararm", 1.0)
                + head(x, y, self.unit, self.clothes, p.tilt, shut_eyes))

    def drawing(self, shut_eyes=False):
        return self.back() + self.front(shut_eyes)
