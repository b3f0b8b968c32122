#!/usr/bin/env python3
"""A picture of the random set that tells how light and screen should stand.

    python3 light.py OUTDIR

151  light from the side, no glare, the screen at arm's length
"""


from _people import BOY, HAIR, STRAIGHT_FINGERS, Figure, Pose
from _scene import (LEAF, WOOD, arc, arrow_along, box, cross, disc, joined, line, moved, oval,
                    panel, path, screen_from_side, shade, sheet, tapered, text_lines, tick, write)
from _style import AMBER, CORAL, GREY, INK, LIGHT_GREY, PALE_TEAL, SAND, TEAL, WHITE, points_path
from hands import SKIN, SKIN_OUTLINE, SKIN_SHADE, mix

DARK = mix(INK, WHITE, 0.75)

# The room, seen from behind the child -------------------------------------------------------

WINDOW = ((12, 40), (62, 64), (62, 146), (12, 156))     # in the wall at the left
DESK = ((84, 192), (304, 192), (344, 262), (34, 262))
MIDDLE = 172                                            # of screen, keyboard and child


def wall_and_window():
    frame = [(5, 28), (69, 58), (69, 157), (5, 169)]
    return "".join((
        box(0, 0, 340, 360, 0, PALE_TEAL),
        path("M0 0 V20 L78 44 L78 222 L0 290 Z", mix(PALE_TEAL, TEAL, 0.84)),
        path("M0 290 L78 222 L340 222 L340 360 L0 360 Z", SAND),
        line([(78, 0), (78, 222), (340, 222)], mix(INK, PALE_TEAL, 0.3), 1.5),
        path(points_path(frame, True), WHITE, INK),
        path(points_path(WINDOW, True), "#CBE6EF"),
        path("M12 138 Q34 114 62 132 V146 L12 156 Z", LEAF),
        disc(36, 84, 12, AMBER, mix(AMBER, INK, 0.8), 1.5),
        path(points_path(WINDOW, True), "none", INK, 1.5),
        line([(37, 52), (37, 151)], INK, 1.5)))


def desk():
    (x0, y0), (x1, _), (x2, y2), (x3, _) = DESK
    return (path(points_path(DESK, True), WOOD, INK)
            + path(f"M{x3} {y2} H{x2} v11 H{x3} Z", mix(WOOD, INK, 0.85), INK)
            + box(x3 + 14, y2 + 11, x2 - x3 - 28, 90, 0, mix(WOOD, WHITE, 0.5), INK))


def daylight():
    """Light that falls in from the side on the desk, behind the screen's back and before it."""
    return (path("M62 66 L214 194 L228 254 L130 254 L62 146 Z", "#FFF3C9",
                 extra='fill-opacity="0.55"')
            + path("M62 96 L176 210 L190 254 L130 254 L62 146 Z", "#FFF3C9",
                   extra='fill-opacity="0.45"'))


def screen():
    m = MIDDLE
    return "".join((
        oval(m + 3, 207, 38, 6, "#000000", extra='fill-opacity="0.14"'),
        oval(m, 204, 34, 6.5, LIGHT_GREY, INK),
        path(f"M{m - 9} 160 L{m - 11} 203 H{m + 11} L{m + 9} 160 Z", LIGHT_GREY, INK),
        box(m - 70, 70, 140, 96, 7, DARK, INK),
        box(m - 63, 77, 126, 81, 3, WHITE, INK, 1.5),
        text_lines(m - 52, 91, 104, 4, 13, mix(TEAL, WHITE, 0.75), 5)))


def lamp():
    """A desk lamp at the right that shines down on the desk, not at the eyes or the screen."""
    arm = [(306, 226), (318, 166), (297, 120)]
    return moved(-10, 0, "".join((
        path("M262 134 L296 142 L302 236 L240 242 Z", "#FFE9A8", extra='fill-opacity="0.7"'),
        oval(304, 228, 18, 6, DARK, INK), line(arm, INK, 6), line(arm, CORAL, 2.4),
        disc(318, 166, 4, CORAL, INK, 1.6), disc(279, 137, 8, WHITE, AMBER, 1.8),
        path("M300 143 L259 132 Q264 108 286 109 Q308 116 300 143 Z", CORAL, INK))))


def keyboard():
    rows = [path(f"M{MIDDLE - 62} 224 h124 l9 27 h-142 Z", LIGHT_GREY, INK)]
    for row in range(3):
        y, half = 227.5 + row * 7.6, 59 + row * 1.9
        for k in range(10):
            w = 2 * half / 10
            rows.append(box(MIDDLE - half + k * w + 0.8, y, w - 1.6, 5.8, 1.5, WHITE,
                            mix(GREY, WHITE, 0.7), 0.8))
    return "".join(rows)


def child_from_behind():
    """Head and shoulders of the boy, his hands on the keys."""
    arms = []
    for sign in (-1, 1):
        elbow, wrist, keys = ((MIDDLE + sign * x, y) for x, y in ((72, 306), (53, 258), (40, 238)))
        palm = tapered([wrist, keys], (7, 8.5))
        fingers = [tapered([(keys[0] - sign * (k * 4.6 - 7), keys[1] + 1),
                            (keys[0] - sign * (k * 5.4 - 5), keys[1] - 11 + abs(k - 1.4) * 1.5)],
                           (3.6, 2.9)) for k in range(4)]
        arms += [joined([finger], SKIN, SKIN_OUTLINE, 1.5) for finger in fingers]
        arms += [joined([palm], SKIN, SKIN_OUTLINE, 1.5),
                 joined([tapered([(MIDDLE + sign * 60, 352), elbow, wrist], (19, 16, 9.5), True)],
                        "url(#shirt)", INK)]
    hair = ("M0 -38 C-22 -38 -34 -22 -32 -2 C-31 14 -24 26 -15 30 C-6 34 6 34 15 30 "
            "C24 26 31 14 32 -2 C34 -22 22 -38 0 -38 Z")
    back = "M-86 110 C-84 62 -52 50 -18 44 Q0 50 18 44 C52 50 84 62 86 110 Z"
    head = "".join((
        box(-12, 22, 24, 32, 6, mix(SKIN, SKIN_SHADE, 0.6), SKIN_OUTLINE),
        path(back, "url(#shirt)", INK),
        oval(-32, 5, 6, 9, SKIN, SKIN_OUTLINE), oval(32, 5, 6, 9, SKIN, SKIN_OUTLINE),
        path(hair, HAIR, mix(HAIR, INK, 0.45)),
        path("M-18 -24 C-10 -31 8 -32 17 -26", "none", mix(HAIR, WHITE, 0.75), 3.4)))
    return (shade("shirt", (110, 250, 240, 350), mix(BOY.top, WHITE, 0.86), mix(BOY.top, INK, 0.9))
            + "".join(arms) + moved(MIDDLE, 284, head))


def room_with_light():
    return moved(0, -20, "".join((wall_and_window(), desk(), daylight(), screen(), lamp(),
                                  keyboard(), child_from_behind(), tick(294, 54, 15))))


# The small ones -----------------------------------------------------------------------------

STRETCHED = Pose(shoulder=(0.04, -1.50), head=(-0.02, -2.33),
                 near_arm=((-0.92, -1.44), (-1.74, -1.46)),
                 far_arm=((-0.02, -0.62), (-0.80, -0.52)),
                 near_leg=((-1.52, 0.03), (-1.50, 1.50)), far_leg=((-1.52, 0.03), (-1.68, 1.50)),
                 fingers=STRAIGHT_FINGERS)


def arms_length():
    unit = 42.0
    child = Figure(STRETCHED, (124.0, 134.0), unit, BOY, "boy")
    shoulder = child.at(STRETCHED.shoulder)
    desk_top = 134 - 0.36 * unit
    tip = shoulder[0] - 2.40 * unit
    return "".join((
        child.back(),
        box(-20, desk_top, 116, 7, 2, WOOD, INK),
        box(-20, desk_top + 7, 100, 60, 0, mix(WOOD, WHITE, 0.5), INK),
        screen_from_side(tip - 1, 38, 100, desk_top, 7, 3),
        child.front(),
        arrow_along([(tip + 6, 98), (shoulder[0] - 14, 98)], AMBER, 3, 8, both=True),
        tick(62, 26, 12)))


def glare():
    """A window that shows in the screen, so that the writing cannot be read."""
    rays = []
    for degrees in range(0, 360, 45):
        a = arc(78, 66, 34, degrees + 22, 0, 1)[0]
        b = arc(78, 66, 46, degrees + 22, 0, 1)[0]
        rays.append(line([a, b], AMBER, 3.4))
    return "".join((
        '<radialGradient id="blaze"><stop offset="0.3" stop-color="#FFF3C9"/>'
        '<stop offset="1" stop-color="#FFF3C9" stop-opacity="0"/></radialGradient>',
        path("M66 112 L64 134 H90 L88 112 Z", LIGHT_GREY, INK),
        box(46, 132, 62, 6, 3, LIGHT_GREY, INK),
        box(14, 16, 126, 100, 6, DARK, INK),
        box(21, 23, 112, 86, 3, mix(TEAL, WHITE, 0.55), INK, 1.5),
        text_lines(32, 37, 90, 5, 14.5, mix(TEAL, INK, 0.75), 4),
        disc(78, 66, 42, "url(#blaze)"), "".join(rays),
        path("M62 44 L98 44 L93 88 L57 88 Z", WHITE, AMBER, 2.4),
        line([(80, 44), (75, 88)], AMBER, 2.4), line([(60, 66), (95, 66)], AMBER, 2.4),
        cross(22, 136, 12)))


def light_and_screen():
    return sheet(520, 360,
                 panel(182, 16, 322, 328, room_with_light(), "room")
                 + panel(16, 16, 152, 157, arms_length(), "arm", PALE_TEAL, TEAL)
                 + panel(16, 187, 152, 157, glare(), "glare", LIGHT_GREY, GREY))


if __name__ == "__main__":
    write({151: light_and_screen})
