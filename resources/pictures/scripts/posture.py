#!/usr/bin/env python3
"""Pictures of the random set that tell how to sit.

    python3 posture.py OUTDIR

152  the angle of arms and wrists
153  how to sit
"""

import math

from _people import AT_DESK, BOY, ELBOW_HEIGHT, FLOOR, GIRL, KEYS, SEAT, Figure, hand
from _scene import (GREEN, WOOD, box, chair, cross, dashed, desk_from_side, disc, joined,
                    keyboard_from_side, line, oval, panel, path, screen_from_side, sector, shade,
                    sheet, tapered, tick, write)
from _style import AMBER, CORAL, GREY, INK, LIGHT_AMBER, LIGHT_GREY, SAND, TEAL, WHITE
from hands import along, mix

# How to sit ---------------------------------------------------------------------------------


def floor_strip(width, floor, height):
    """The floor of a scene, before the bare wall."""
    return (box(0, floor, width, height - floor, 0, SAND)
            + line([(0, floor), (width, floor)], mix(INK, SAND, 0.35), 2))


def right_angle(x, y, start, radius=24):
    """A quarter disc that marks a right angle, from start degrees on."""
    return path(sector(x, y, radius, start, start + 90), LIGHT_AMBER, mix(AMBER, INK, 0.7), 2)


def posture_marks(child, screen_x, floor):
    """What is right: the eyes level with the screen's top, the back at the chair's back, right
    angles at the elbow and the knee, the feet flat."""
    eye = child.eye()
    elbow, knee = child.at((-0.18, -0.78)), child.at((-1.23, 0.32))
    back, feet = child.at((0.42, -0.75)), child.at((-1.70, 0))
    return "".join((
        dashed([(eye[0] - 4, eye[1]), (screen_x + 5, eye[1])], TEAL, 2.5, "7 7"),
        tick((eye[0] + screen_x) / 2 - 6, eye[1], 12),
        tick(back[0] + 26, back[1], 12),
        tick(feet[0], floor + 14, 12),
        right_angle(elbow[0], elbow[1], 180), right_angle(knee[0], knee[1], 0, 20)))


def how_to_sit():
    unit, hip = 70.0, (428.0, 249.3)
    floor = hip[1] + FLOOR * unit
    child = Figure(AT_DESK, hip, unit, BOY, "boy")
    keys = hip[1] + KEYS * unit
    desk_top = keys + 10
    eye = child.eye()
    screen_x = 210.0
    stand, top = desk_from_side(126, child.at((-0.72, 0))[0], desk_top, floor, 7)
    scene = [floor_strip(600, floor, 400),
             oval(292, floor + 6, 210, 7, "#000000", extra='fill-opacity="0.10"'),
             chair(child.at((0.40, 0))[0], hip[1] + SEAT * unit - 2, floor, 118, 1.42 * unit),
             stand, child.back(), top,
             screen_from_side(screen_x, eye[1] - 4, eye[1] + 104, desk_top),
             keyboard_from_side(child.at((-1.86, 0))[0], desk_top, 66, 10),
             child.front(), posture_marks(child, screen_x, floor)]
    return sheet(600, 400, "".join(scene))


# Arms and wrists ----------------------------------------------------------------------------


def level_arm():
    """The child at the desk, large: the forearm level, the hand in line with it."""
    unit, hip = 95.0, (246.0, 292.0)
    child = Figure(AT_DESK, hip, unit, GIRL, "girl")
    elbow, wrist = (child.at(j) for j in AT_DESK.near_arm)
    corner = child.at((-0.175, ELBOW_HEIGHT - 0.125))
    keys = hip[1] + KEYS * unit
    desk_top = keys + 15
    tip = wrist[0] - 0.62 * unit
    ends = [(elbow[0] + 2, elbow[1]), (tip, wrist[1])]
    return "".join((
        chair(child.at((0.40, 0))[0], hip[1] + SEAT * unit - 3, 420, 130, 1.42 * unit),
        child.back(),
        box(-20, desk_top, child.at((-0.70, 0))[0] + 20, 11, 4, WOOD, INK),
        keyboard_from_side(child.at((-1.90, 0))[0], desk_top, 102, 15),
        child.front(),
        right_angle(corner[0], corner[1], 180, 32),
        dashed(ends, WHITE, 5, "9 8"), dashed(ends, GREEN, 3, "9 8"),
        tick(32, 32, 15)))


def bent_wrist(elbow, wrist, turn, keys, left, key):
    """A forearm with its hand at an angle to it, marked as wrong; the keyboard with its keys'
    tops at a height begins at left."""
    unit = 84.0
    lean = math.degrees(math.atan2(elbow[1] - wrist[1], elbow[0] - wrist[0]))
    sleeve = tapered((elbow, along(wrist, elbow, 0.15)), (0.17 * unit, 0.13 * unit), True)
    far = 78 / math.hypot(elbow[0] - wrist[0], elbow[1] - wrist[1])
    on = (wrist[0] - (elbow[0] - wrist[0]) * far, wrist[1] - (elbow[1] - wrist[1]) * far)
    a = math.radians(180 + lean + turn)
    hand_end = (wrist[0] + 70 * math.cos(a), wrist[1] + 70 * math.sin(a))
    return "".join((
        shade(key + "fill", (0, 20, 170, 150), mix(GIRL.top, WHITE, 0.86),
              mix(GIRL.top, INK, 0.9)),
        box(-20, keys + 13, 220, 10, 3, WOOD, INK),
        keyboard_from_side(left, keys + 13, 84, 13),
        hand(wrist, unit, lean + turn, bend=turn),
        joined([sleeve], f"url(#{key}fill)", INK),
        dashed([elbow, wrist], CORAL, 2.4, "6 6"),
        dashed([wrist, hand_end], CORAL, 2.4, "6 6"),
        dashed([wrist, on], GREY, 1.8, "2 5"),
        disc(wrist[0], wrist[1], 4.5, CORAL, WHITE, 1.5),
        cross(22, 22, 11)))


def arms_and_wrists():
    low = bent_wrist((206, 95), (112, 98), 20, 92, 8, "low")
    high = bent_wrist((206, 74), (108, 49), -46, 93, 14, "high")
    return sheet(560, 360,
                 panel(196, 16, 348, 328, level_arm(), "level")
                 + panel(16, 16, 166, 157, low, "lowpanel", LIGHT_GREY, GREY)
                 + panel(16, 187, 166, 157, high, "highpanel", LIGHT_GREY, GREY))


if __name__ == "__main__":
    write({152: arms_and_wrists, 153: how_to_sit})
