#!/usr/bin/env python3
"""Pictures of the random set that tell where the eyes look.

    python3 eyes.py OUTDIR

150  a rest for the eyes: a look at something far away
154  eyes on the text, not on the keys
"""


from _people import BOY, GIRL, Figure, Pose
from _scene import (LEAF, WOOD, box, chair, clock, cross, dashed, disc, keyboard_from_side, line,
                    moved, oval, path, shade, sheet, text_lines, tick, write)
from _style import AMBER, CORAL, GREY, INK, LIGHT_AMBER, LIGHT_GREY, SAND, TEAL, WHITE, points_path
from hands import along, mix

# Eyes on the text ---------------------------------------------------------------------------

TYPING = Pose(shoulder=(0.04, -1.50), head=(-0.06, -2.33),
              near_arm=((-0.02, -0.57), (-0.93, -0.60)),
              far_arm=((0.0, -0.57), (-1.07, -0.60)),
              near_leg=((-1.52, 0.03), (-1.50, 1.50)), far_leg=((-1.52, 0.03), (-1.68, 1.50)))

# The face of a screen that is turned half towards the child: its left edge is the nearer one.
SCREEN = ((52.0, 64.0), (212.0, 84.0), (212.0, 230.0), (52.0, 254.0))


def on_screen(u, v):
    """The point at shares u from the left and v from the top of the screen's face."""
    return along(along(SCREEN[0], SCREEN[1], u), along(SCREEN[3], SCREEN[2], u), v)


def slanted_screen(desk_top):
    frame = [on_screen(-0.05, -0.06), on_screen(1.04, -0.07), on_screen(1.04, 1.08),
             on_screen(-0.05, 1.07)]
    back = [frame[1], (frame[1][0] + 10, frame[1][1] + 6), (frame[2][0] + 10, frame[2][1] - 8),
            frame[2]]
    foot = on_screen(0.62, 1.07)
    return "".join((
        oval(foot[0] + 4, desk_top + 3, 52, 9, "#000000", extra='fill-opacity="0.12"'),
        oval(foot[0], desk_top, 46, 8, LIGHT_GREY, INK),
        path(f"M{foot[0] - 13} {foot[1] - 6} L{foot[0] - 15} {desk_top} L{foot[0] + 15} {desk_top} "
             f"L{foot[0] + 13} {foot[1] - 6} Z", LIGHT_GREY, INK),
        path(points_path(back, True), mix(INK, WHITE, 0.9), INK),
        path(points_path(frame, True), mix(INK, WHITE, 0.75), INK),
        path(points_path(SCREEN, True), WHITE, INK, 1.5)))


READ_LINE = 0.34     # how far down the line that is being read stands
TEXT = ((0.14, 0.10), (READ_LINE, 0.06), (0.52, 0.20), (0.70, 0.10), (0.86, 0.45))


def screen_text():
    band = [on_screen(0.03, READ_LINE - 0.085), on_screen(0.97, READ_LINE - 0.085),
            on_screen(0.97, READ_LINE + 0.085), on_screen(0.03, READ_LINE + 0.085)]
    out = [path(points_path(band, True), LIGHT_AMBER, AMBER, 1.5)]
    for height, start in TEXT:
        colour = INK if height == READ_LINE else mix(TEAL, WHITE, 0.55)
        words = [(0.92, 0.74), (0.69, 0.56), (0.51, 0.33), (0.28, 0.07)]
        for right, left in words:
            if right > start + 0.05:
                out.append(line([on_screen(right, height), on_screen(max(left, start), height)],
                                colour, 7))
    return "".join(out)


def eyes_on_the_text():
    unit = 96.0
    child = Figure(TYPING, (492.0, 352.0), unit, BOY, "boy")
    eye = child.at((-0.36, -2.31))
    keys = child.at((-1.53, -0.50))
    desk_top = 352 - 0.36 * unit
    beam = [eye, on_screen(0.98, READ_LINE - 0.09), on_screen(0.98, READ_LINE + 0.09)]
    down = [along(eye, keys, 0.15), along(eye, keys, 0.88)]
    middle = along(*down, 0.5)
    scene = (chair(534, 392, 470, 178), child.back(),
             box(-60, desk_top, 484, 14, 4, WOOD, INK),
             box(-60, desk_top + 14, 454, 100, 0, mix(WOOD, WHITE, 0.55), INK),
             slanted_screen(desk_top), screen_text(),
             path(points_path(beam, True), AMBER, extra='fill-opacity="0.45"'),
             line([eye, on_screen(0.99, READ_LINE)], mix(AMBER, INK, 0.8), 2.4,
                  'stroke-dasharray="8 7"'),
             keyboard_from_side(286, desk_top, 118, 8), child.front(),
             dashed(down, CORAL, 2.6, "3 7"), cross(middle[0], middle[1], 13),
             tick(*along(eye, on_screen(1.06, READ_LINE), 0.5), 17))
    return sheet(640, 420, moved(22, 0, "".join(scene)))


# A rest for the eyes ------------------------------------------------------------------------

RESTING = Pose(shoulder=(0.06, -1.48), head=(-0.02, -2.31),
               near_arm=((0.02, -0.52), (-0.70, -0.12)), far_arm=((0.04, -0.52), (-0.60, -0.12)),
               near_leg=((-1.52, 0.03), (-1.50, 1.50)), far_leg=((-1.52, 0.03), (-1.68, 1.50)))


def tree(x, y, size):
    """A round tree; y is the foot of its trunk."""
    return (path(f"M{x - size * 0.07} {y} L{x - size * 0.04} {y - size * 0.5} "
                 f"L{x + size * 0.04} {y - size * 0.5} L{x + size * 0.07} {y} Z", WOOD, INK, 1.6)
            + path(f"M{x - size * 0.3} {y - size * 0.38} a{size * 0.2} {size * 0.2} 0 0 1 "
                   f"{-size * 0.02} {-size * 0.3} a{size * 0.24} {size * 0.24} 0 0 1 "
                   f"{size * 0.44} {-size * 0.16} a{size * 0.2} {size * 0.2} 0 0 1 "
                   f"{size * 0.2} {size * 0.32} a{size * 0.16} {size * 0.16} 0 0 1 "
                   f"{-size * 0.14} {size * 0.16} Z", LEAF, INK, 1.8))


def view(width, height):
    """Far hills under the sky."""
    return "".join((
        shade("sky", (0, 0, 0, height), "#CBE6EF", "#F3F8F3"),
        box(0, 0, width, height, 0, "url(#sky)"),
        disc(width * 0.8, height * 0.16, 14, LIGHT_AMBER, AMBER, 2),
        path("M18 40 q7 -7 12 0 q6 -7 12 0 M46 58 q5 -5 9 0 q4 -5 9 0", "none", INK, 1.6),
        path(f"M0 {height * 0.72} Q{width * 0.3} {height * 0.52} {width * 0.62} {height * 0.68} "
             f"T{width} {height * 0.62} V{height} H0 Z", mix(LEAF, WHITE, 0.45)),
        path(f"M0 {height * 0.86} Q{width * 0.45} {height * 0.6} {width} {height * 0.84} "
             f"V{height} H0 Z", mix(LEAF, WHITE, 0.75)),
        path(f"M{width * 0.52} {height} Q{width * 0.66} {height * 0.9} {width * 0.48} "
             f"{height * 0.83} Q{width * 0.42} {height * 0.79} {width * 0.43} {height * 0.755}",
             "none", SAND, 4)))


def window(x, y, width, height):
    inner = (f'<clipPath id="pane"><rect width="{width}" height="{height}"/></clipPath>'
             f'<g clip-path="url(#pane)">{view(width, height)}</g>')
    return moved(x, y, "".join((
        box(-5, -4, width + 18, height + 18, 5, "#000000", extra='fill-opacity="0.12"'),
        box(-9, -9, width + 18, height + 18, 5, WHITE, INK), inner,
        box(0, 0, width, height, 0, "none", INK),
        box(-16, height + 7, width + 32, 12, 4, WHITE, INK))))


def left_screen(x, desk_top):
    """The screen that the child has turned away from."""
    return moved(x, desk_top, "".join((
        box(-70, 0, 160, 12, 3, WOOD, INK), box(-60, 12, 150, 80, 0, mix(WOOD, WHITE, 0.55), INK),
        path("M-8 -30 L-10 -5 L10 -5 L8 -30 Z", LIGHT_GREY, INK),
        box(-24, -6, 48, 6, 3, LIGHT_GREY, INK),
        box(-46, -98, 92, 70, 5, mix(INK, WHITE, 0.75), INK),
        box(-39, -91, 78, 56, 2, LIGHT_GREY, INK, 1.5),
        text_lines(-30, -80, 60, 4, 11.5, GREY, 4))))


def rest_for_the_eyes():
    child = Figure(RESTING, (290.0, 392.0), 110.0, GIRL, "girl")
    eye = child.at((-0.36, -2.29))
    foot = (98.0, 194.0)
    size = 62
    return sheet(480, 340, "".join((
        left_screen(416, 262),
        clock(416, 70, 32, 20),
        window(30, 40, 150, 206),
        path(points_path([eye, (foot[0], foot[1] - size), (foot[0], foot[1])], True), AMBER,
             extra='fill-opacity="0.4"'),
        tree(*foot, size),
        child.drawing())))


if __name__ == "__main__":
    write({150: rest_for_the_eyes, 154: eyes_on_the_text})
