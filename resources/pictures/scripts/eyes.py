#!/usr/bin/env python3
"""Pictures of the random set that tell where the eyes look.

    python3 eyes.py OUTDIR

150  a rest for the eyes: a look at something far away
154  eyes on the text, not on the keys
"""


from _people import (AT_DESK, BOY, FLOOR, GIRL, KEYS, SEAT, STRAIGHT_FINGERS, UPRIGHT_SHOULDER,
                     Figure, Pose)
from _scene import (LEAF, WOOD, arc, arrow_along, box, chair, cross, dashed, desk_from_side, disc,
                    keyboard_from_side, line, moved, oval, path, sector, shade, sheet, text_lines,
                    tick, write)
from _style import AMBER, CORAL, GREY, INK, LIGHT_AMBER, LIGHT_GREY, SAND, TEAL, WHITE, points_path
from hands import along, mix

# Eyes on the text ---------------------------------------------------------------------------

# The face of a screen that is turned towards the child: its left edge is the nearer one.
SCREEN = ((88.0, 74.0), (178.0, 98.0), (178.0, 232.0), (88.0, 256.0))
THICK = 15.0


def on_screen(u, v):
    """The point at shares u from the left and v from the top of the screen's face."""
    return along(along(SCREEN[0], SCREEN[1], u), along(SCREEN[3], SCREEN[2], u), v)


def slanted_screen(desk_top):
    """The screen on its foot; behind its nearer edge its side shows."""
    frame = [on_screen(-0.07, -0.05), on_screen(1.07, -0.06), on_screen(1.07, 1.07),
             on_screen(-0.07, 1.06)]
    (x0, y0), (x3, y3) = frame[0], frame[3]
    side = [frame[0], (x0 - THICK, y0 + 9), (x3 - THICK, y3 - 9), frame[3]]
    foot = (on_screen(0.45, 1.07)[0] - 6, on_screen(0.45, 1.07)[1])
    return "".join((
        oval(foot[0] + 4, desk_top + 3, 50, 7, "#000000", extra='fill-opacity="0.12"'),
        oval(foot[0], desk_top, 44, 7, LIGHT_GREY, INK),
        path(f"M{foot[0] - 11} {foot[1] - 8} L{foot[0] - 13} {desk_top} L{foot[0] + 13} {desk_top} "
             f"L{foot[0] + 11} {foot[1] - 8} Z", LIGHT_GREY, INK),
        path(points_path(side, True), mix(INK, WHITE, 0.92), INK),
        path(points_path(frame, True), mix(INK, WHITE, 0.75), INK),
        path(points_path(SCREEN, True), WHITE, INK, 1.5)))


READ_LINE = 0.34     # how far down the line that is being read stands
TEXT = ((0.12, 0.10), (READ_LINE, 0.06), (0.54, 0.20), (0.71, 0.10), (0.87, 0.45))


def screen_text():
    band = [on_screen(0.04, READ_LINE - 0.085), on_screen(0.96, READ_LINE - 0.085),
            on_screen(0.96, READ_LINE + 0.085), on_screen(0.04, READ_LINE + 0.085)]
    out = [path(points_path(band, True), LIGHT_AMBER, AMBER, 1.5)]
    for height, start in TEXT:
        colour = INK if height == READ_LINE else mix(TEAL, WHITE, 0.55)
        for right, left in ((0.89, 0.64), (0.53, 0.36), (0.25, 0.11)):
            if right > start + 0.05:
                out.append(line([on_screen(right, height), on_screen(max(left, start), height)],
                                colour, 6.5))
    return "".join(out)


def eyes_on_the_text():
    unit, hip = 92.0, (486.0, 322.0)
    floor = hip[1] + FLOOR * unit
    child = Figure(AT_DESK, hip, unit, BOY, "boy")
    eye = child.eye()
    desk_top = hip[1] + KEYS * unit + 14
    keys = child.at((-1.48, KEYS - 0.16))
    beam = [eye, on_screen(0.96, READ_LINE - 0.085), on_screen(0.96, READ_LINE + 0.085)]
    down = [along(eye, keys, 0.01), along(eye, keys, 0.95)]
    middle = along(*down, 0.52)
    stand, top = desk_from_side(44, child.at((-0.72, 0))[0], desk_top, floor, 10)
    scene = (chair(child.at((0.40, 0))[0], hip[1] + SEAT * unit - 3, floor, 148, 1.42 * unit),
             stand, child.back(), top, slanted_screen(desk_top), screen_text(),
             keyboard_from_side(child.at((-1.9, 0))[0], desk_top, 98, 14), child.front(),
             path(points_path(beam, True), AMBER, extra='fill-opacity="0.4"'),
             line([eye, on_screen(0.97, READ_LINE)], mix(AMBER, INK, 0.8), 2.4,
                  'stroke-dasharray="8 7"'),
             dashed(down, CORAL, 2.8, "3 7"), cross(middle[0], middle[1], 14),
             tick(*along(eye, on_screen(1.06, READ_LINE), 0.55), 17))
    return sheet(640, 420, "".join(scene))


# A rest for the eyes ------------------------------------------------------------------------

# The hands lie in the lap.
RESTING = Pose(shoulder=UPRIGHT_SHOULDER, head=(-0.05, -2.33),
               near_arm=((0.04, -0.64), (-0.66, -0.40)), far_arm=((0.04, -0.64), (-0.74, -0.40)),
               near_leg=((-1.46, 0.10), (-1.42, 1.50)), far_leg=((-1.48, 0.10), (-1.60, 1.50)),
               hands=(-4.0, -4.0), fingers=STRAIGHT_FINGERS)
MINUTES = 20


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
        box(-58, 0, 150, 10, 3, WOOD, INK), box(-44, 10, 11, 120, 2, mix(WOOD, INK, 0.85), INK),
        path("M-8 -30 L-10 -5 L10 -5 L8 -30 Z", LIGHT_GREY, INK),
        box(-24, -6, 48, 6, 3, LIGHT_GREY, INK),
        box(-44, -94, 88, 66, 5, mix(INK, WHITE, 0.75), INK),
        box(-37, -87, 74, 52, 2, LIGHT_GREY, INK, 1.5),
        text_lines(-29, -77, 58, 4, 11, GREY, 4))))


def minutes_of_rest(x, y, radius):
    """A clock whose coloured part is the time to the next rest; both ends are marked."""
    end = -90 + MINUTES * 6
    ends = [arc(x, y, radius * 0.72, degrees, degrees, 1)[0] for degrees in (-90, end)]
    out = [disc(x + 2, y + 3, radius, "#000000", extra='fill-opacity="0.12"'),
           disc(x, y, radius, WHITE, INK, 2.4),
           path(sector(x, y, radius - 1.2, -90, end), AMBER, mix(AMBER, INK, 0.7), 1.4)]
    for k in range(12):
        a, b = (arc(x, y, radius * r, k * 30, k * 30, 1)[0] for r in (0.90, 0.78))
        out.append(line([a, b], INK, 2.2 if k % 3 == 0 else 1.4))
    back = arc(x, y, radius * 0.5, -84, end - 14)
    out += [arrow_along(back, INK, 2.2, 6), line([(x, y), ends[1]], INK, 3),
            line([(x, y), ends[0]], mix(INK, WHITE, 0.45), 1.8), disc(x, y, 3.2, INK)]
    return "".join(out)


def rest_for_the_eyes():
    unit, hip = 92.0, (306.0, 296.0)
    child = Figure(RESTING, hip, unit, GIRL, "girl")
    eye = child.eye()
    foot = (92.0, 196.0)
    size = 66
    # As wide as the tree, whose crown hides its end.
    beam = [eye, (foot[0] - size * 0.02, foot[1] - size * 0.99),
            (foot[0] - size * 0.02, foot[1] - size * 0.03)]
    return sheet(480, 340, "".join((
        left_screen(424, 252),
        minutes_of_rest(414, 66, 40),
        window(30, 38, 150, 196),
        chair(child.at((0.40, 0))[0], hip[1] + SEAT * unit - 3, 460, 128, 1.42 * unit),
        child.drawing(),
        path(points_path(beam, True), AMBER, extra='fill-opacity="0.36"'),
        tree(*foot, size))))


if __name__ == "__main__":
    write({150: rest_for_the_eyes, 154: eyes_on_the_text})
