#!/usr/bin/env python3
"""Pictures of the random set that tell how to sit.

    python3 posture.py OUTDIR

152  the angle of arms and wrists
153  how to sit
"""

import math
from dataclasses import replace

from _people import BOY, GIRL, Figure, Pose, hand
from _scene import (GREEN, WOOD, box, chair, cross, dashed, desk_from_side, disc, joined,
                    keyboard_from_side, line, moved, oval, panel, path, screen_from_side, sector,
                    shade, sheet, tapered, tick, write)
from _style import AMBER, CORAL, GREY, INK, LIGHT_AMBER, LIGHT_GREY, SAND, TEAL, WHITE
from hands import along, mix

# How to sit ---------------------------------------------------------------------------------

UNIT = 70.0
FLOOR = 370.0
HIP = (412.0, 250.0)

UPRIGHT = Pose(shoulder=(0.04, -1.50), head=(-0.04, -2.33),
               near_arm=((-0.02, -0.56), (-0.92, -0.60)),
               far_arm=((0.0, -0.56), (-1.06, -0.60)),
               near_leg=((-1.52, 0.03), (-1.50, 1.50)), far_leg=((-1.52, 0.03), (-1.68, 1.50)))


def floor_strip(width, floor, height):
    """The floor of a scene, before the bare wall."""
    return (box(0, floor, width, height - floor, 0, SAND)
            + line([(0, floor), (width, floor)], mix(INK, SAND, 0.35), 2))


def right_angle(x, y, start, radius=24):
    """A quarter disc that marks a right angle, from start degrees on."""
    return path(sector(x, y, radius, start, start + 90), LIGHT_AMBER, mix(AMBER, INK, 0.7), 2)


def posture_marks(child, screen_x):
    """What is right: the eyes level with the screen's top, the back straight, right angles at
    the elbow and the knee, the feet flat."""
    eye = child.at((-0.33, -2.305))
    elbow, knee = child.at((-0.17, -0.72)), child.at((-1.27, 0.29))
    back, feet = child.at((1.0, -1.2)), child.at((-1.75, 0))
    return "".join((
        dashed([(eye[0] - 12, eye[1]), (screen_x + 4, eye[1])], TEAL, 2.5, "7 7"),
        tick((eye[0] + screen_x) / 2, eye[1], 12),
        line([(back[0], HIP[1] + 22), (back[0], back[1] - 38)], GREEN, 4),
        tick(back[0], back[1] + 16, 12),
        line([(feet[0] - 46, FLOOR + 7), (feet[0] + 58, FLOOR + 7)], GREEN, 4),
        tick(feet[0] + 6, FLOOR + 10, 12),
        right_angle(elbow[0], elbow[1], 180), right_angle(knee[0], knee[1], 0, 20)))


def how_to_sit():
    child = Figure(UPRIGHT, HIP, UNIT, BOY, "boy")
    eye = child.at((-0.31, -2.305))
    desk_top = HIP[1] - 0.365 * UNIT
    screen_x = 196.0
    scene = [oval(280, FLOOR + 8, 200, 8, "#000000", extra='fill-opacity="0.10"'),
             chair(447, 280, FLOOR, 128), child.back(),
             desk_from_side(98, 348, desk_top, FLOOR, 8),
             screen_from_side(screen_x, eye[1], eye[1] + 104, desk_top),
             keyboard_from_side(250, desk_top, 74, 5),
             child.front(), posture_marks(child, screen_x)]
    return sheet(600, 400, floor_strip(600, FLOOR, 400) + moved(16, 0, "".join(scene)))


# Arms and wrists ----------------------------------------------------------------------------

REACHING = replace(UPRIGHT, near_arm=((0.0, -0.57), (-0.93, -0.575)),
                   far_arm=((0.0, -0.56), (-1.06, -0.575)))


def level_arm():
    """The child at the desk, large: the forearm level, the hand in line with it."""
    unit = 108.0
    child = Figure(REACHING, (262.0, 322.0), unit, GIRL, "girl")
    elbow, wrist = (child.at(j) for j in REACHING.near_arm)
    corner = child.at((-0.165, -0.725))
    desk_top = wrist[1] + 0.245 * unit
    tip = wrist[0] - 0.78 * unit
    return "".join((
        child.back(),
        box(-20, desk_top, 186, 14, 4, WOOD, INK),
        keyboard_from_side(26, desk_top, 126, 8),
        child.front(),
        right_angle(corner[0], corner[1], 180, 34),
        dashed([(elbow[0] - 4, elbow[1]), (tip, wrist[1])], WHITE, 5, "9 8"),
        dashed([(elbow[0] - 4, elbow[1]), (tip, wrist[1])], GREEN, 3, "9 8"),
        tick(32, 32, 15)))


def bent_wrist(elbow, wrist, turn, desk_top, key):
    """A forearm with its hand at an angle to it, marked as wrong."""
    unit = 92.0
    lean = math.degrees(math.atan2(elbow[1] - wrist[1], elbow[0] - wrist[0]))
    sleeve = tapered((elbow, along(wrist, elbow, 0.15)), (0.17 * unit, 0.13 * unit), True)
    far = 96 / math.hypot(elbow[0] - wrist[0], elbow[1] - wrist[1])
    on = (wrist[0] - (elbow[0] - wrist[0]) * far, wrist[1] - (elbow[1] - wrist[1]) * far)
    a = math.radians(180 + lean + turn)
    hand_end = (wrist[0] + 96 * math.cos(a), wrist[1] + 96 * math.sin(a))
    return "".join((
        shade(key + "fill", (0, 20, 170, 150), mix(GIRL.top, WHITE, 0.86),
              mix(GIRL.top, INK, 0.9)),
        box(-20, desk_top, 134, 10, 3, WOOD, INK),
        keyboard_from_side(10, desk_top, 78, 6),
        hand(wrist, unit, lean + turn, bend=turn),
        joined([sleeve], f"url(#{key}fill)", INK),
        dashed([elbow, wrist], CORAL, 2.4, "6 6"),
        dashed([wrist, hand_end], CORAL, 2.4, "6 6"),
        dashed([wrist, on], GREY, 1.8, "2 5"),
        disc(wrist[0], wrist[1], 4.5, CORAL, WHITE, 1.5),
        cross(22, 22, 11)))


def arms_and_wrists():
    low = bent_wrist((200, 122), (104, 118), 32, 110, "low")
    high = bent_wrist((200, 72), (96, 58), -42, 110, "high")
    return sheet(560, 360,
                 panel(196, 16, 348, 328, level_arm(), "level")
                 + panel(16, 16, 166, 157, low, "lowpanel", LIGHT_GREY, GREY)
                 + panel(16, 187, 166, 157, high, "highpanel", LIGHT_GREY, GREY))


if __name__ == "__main__":
    write({152: arms_and_wrists, 153: how_to_sit})
