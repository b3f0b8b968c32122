#!/usr/bin/env python3
"""A picture of the random set that tells how light and screen should stand.

    python3 light.py OUTDIR

151  the screen at arm's length, the window at the side, no glare
"""

from _people import BOY, FLOOR, SEAT, STRAIGHT_FINGERS, UPRIGHT_SHOULDER, Figure, Pose
from _scene import (LEAF, arrow_along, box, chair, cross, desk_from_side, disc,
                    keyboard_from_side, line, moved, oval, panel, path, screen_from_side, shade,
                    sheet, text_lines, tick, write)
from _style import (AMBER, CORAL, GREY, INK, LIGHT_GREY, PALE_TEAL, SAND, TEAL, WHITE,
                    points_path)
from hands import mix

DARK = mix(INK, WHITE, 0.75)

STRETCHED = Pose(shoulder=UPRIGHT_SHOULDER, head=(-0.05, -2.33),
                 near_arm=((-0.80, -1.42), (-1.62, -1.43)),
                 far_arm=((-0.80, -1.47), (-1.62, -1.48)),
                 near_leg=((-1.46, 0.10), (-1.42, 1.50)), far_leg=((-1.48, 0.10), (-1.60, 1.50)),
                 fingers=STRAIGHT_FINGERS)


def view(width, height):
    """Sky, sun and hills."""
    return "".join((
        shade("sky", (0, 0, 0, height), "#CBE6EF", "#F3F8F3"),
        box(0, 0, width, height, 0, "url(#sky)"),
        disc(width * 0.28, height * 0.27, 10, AMBER, mix(AMBER, INK, 0.8), 1.5),
        path(f"M0 {height * 0.78} Q{width * 0.35} {height * 0.52} {width * 0.7} {height * 0.74} "
             f"T{width} {height * 0.7} V{height} H0 Z", mix(LEAF, WHITE, 0.6)),
        path(f"M0 {height * 0.92} Q{width * 0.55} {height * 0.66} {width} {height * 0.9} "
             f"V{height} H0 Z", LEAF)))


def window(x, y, width, height):
    """In the wall beside the child and the screen, so that no light falls into either."""
    return moved(x, y, "".join((
        box(-8, -8, width + 16, height + 16, 4, WHITE, INK), view(width, height),
        box(0, 0, width, height, 0, "none", INK, 1.6),
        line([(width / 2, 0), (width / 2, height)], INK, 1.6),
        box(-14, height + 6, width + 28, 9, 3, WHITE, INK))))


def lamp(x, desk_top):
    """A desk lamp behind the screen; its light falls on a book and not on the screen's face."""
    arm = [(-16, -5), (-30, -48), (-2, -76)]
    return moved(x, desk_top, "".join((
        path("M-9 -66 L17 -70 L30 -3 H-18 Z", "#FFE9A8", extra='fill-opacity="0.75"'),
        path("M-10 -6 Q0 -10 8 -5 Q16 -10 26 -6 V-1 Q16 -5 8 0 Q0 -5 -10 -1 Z", WHITE, INK, 1.6),
        box(-30, -5, 28, 5, 2.5, DARK, INK), line(arm, INK, 6), line(arm, CORAL, 2.4),
        disc(-30, -48, 3.6, CORAL, INK, 1.6), disc(4, -67, 6.5, WHITE, AMBER, 1.6),
        path("M-14 -63 L22 -69 Q20 -86 6 -89 Q-12 -87 -14 -63 Z", CORAL, INK))))


def arms_length():
    unit, floor = 64.0, 336.0
    child = Figure(STRETCHED, (424.0, floor - FLOOR * unit), unit, BOY, "boy")
    seat = child.at((0, SEAT))[1]
    shoulder = child.at(UPRIGHT_SHOULDER)
    desk_top = child.at((0, -0.36))[1]
    face = child.at((-2.36, 0))[0]
    stand, top = desk_from_side(146, child.at((-0.72, 0))[0], desk_top, floor, 7)
    y = shoulder[1] + 30
    return "".join((
        box(0, 0, 520, floor, 0, PALE_TEAL), box(0, floor, 520, 30, 0, SAND),
        line([(0, floor), (520, floor)], mix(INK, SAND, 0.35), 2),
        window(288, 26, 84, 74),
        oval(300, floor + 5, 190, 6, "#000000", extra='fill-opacity="0.10"'),
        chair(child.at((0.40, 0))[0], seat - 2, floor, 112, 1.42 * unit),
        stand, child.back(), top, lamp(196, desk_top),
        screen_from_side(face - 1, child.eye()[1] - 2, child.eye()[1] + 86, desk_top, 8, 0),
        keyboard_from_side(child.at((-1.86, 0))[0], desk_top, 62, 9),
        child.front(),
        arrow_along([(face + 7, y), (shoulder[0] - 15, y)], AMBER, 3.2, 9, both=True),
        tick((face + shoulder[0]) / 2 - 4, y, 11)))


def glare():
    """A window that shows pale in the screen, so that the writing cannot be read."""
    pane = [(58, 24), (100, 18), (92, 76), (50, 82)]
    return "".join((
        path("M58 90 L56 108 H84 L82 90 Z", LIGHT_GREY, INK),
        box(42, 106, 56, 6, 3, LIGHT_GREY, INK),
        box(12, 10, 116, 84, 6, DARK, INK),
        '<clipPath id="face"><rect x="18" y="16" width="104" height="72" rx="3"/></clipPath>',
        box(18, 16, 104, 72, 3, mix(TEAL, WHITE, 0.42), INK, 1.5),
        text_lines(27, 28, 86, 5, 12, mix(TEAL, INK, 0.85), 4),
        '<g clip-path="url(#face)">'
        + path(points_path(pane, True), WHITE, WHITE, 6, 'opacity="0.86"')
        + line([(79, 21), (71, 79)], mix(TEAL, WHITE, 0.4), 3)
        + line([(54, 53), (96, 47)], mix(TEAL, WHITE, 0.4), 3)
        + path("M18 60 L50 16 H34 L18 38 Z", WHITE, extra='fill-opacity="0.35"') + "</g>",
        cross(24, 106, 11)))


def light_and_screen():
    return sheet(520, 360, arms_length() + panel(14, 222, 140, 122, glare(), "glare",
                                                 LIGHT_GREY, GREY))


if __name__ == "__main__":
    write({151: light_and_screen})
