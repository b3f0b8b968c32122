"""What the scenes of the random set share: the framed sheet, outlined shapes, marks, furniture."""

import math
import sys
from pathlib import Path

from _style import (AMBER, CORAL, INK, LIGHT_GREY, LIGHT_TEAL, PALE_TEAL, PAPER, TEAL, WHITE,
                    number, points_path, svg)
from hands import distance, mix

GREEN = "#2FA36B"
LEAF = "#7FB98A"
WOOD = "#D9A866"
WOOD_DARK = "#B9824A"
LINE = 2.0           # the weight of outlines, in pixels


def sheet(width, height, body, paper=PAPER):
    """The picture on its sheet of paper with a rounded frame."""
    outline = (f'<rect x="1" y="1" width="{width - 2}" height="{height - 2}" rx="12" ')
    return svg(width, height,
               f'<defs><clipPath id="sheet">{outline}/></clipPath></defs>'
               f'<g clip-path="url(#sheet)"><rect width="{width}" height="{height}" '
               f'fill="{paper}"/>{body}</g>'
               f'{outline}fill="none" stroke="{INK}" stroke-width="2"/>')


def write(pictures):
    """Writes pictures, functions by their numbers, into the folder that the script was given."""
    if len(sys.argv) != 2:
        sys.exit(f"usage: {Path(sys.argv[0]).name} OUTDIR")
    folder = Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    for id_, draw in pictures.items():
        (folder / f"{id_}.svg").write_text(draw(), encoding="utf-8")


# Shapes -------------------------------------------------------------------------------------


def path(data, fill="none", edge="none", width=LINE, extra=""):
    return (f'<path d="{data}" fill="{fill}" stroke="{edge}" stroke-width="{number(width)}" '
            f'stroke-linejoin="round" stroke-linecap="round" {extra}/>')


def line(points, colour=INK, width=LINE, extra=""):
    return path(points_path(points), "none", colour, width, extra)


def dashed(points, colour, width=LINE, dash="1 6"):
    return line(points, colour, width, f'stroke-dasharray="{dash}"')


def box(x, y, width, height, radius, fill, edge="none", stroke=LINE, extra=""):
    return (f'<rect x="{number(x)}" y="{number(y)}" width="{number(width)}" '
            f'height="{number(height)}" rx="{number(radius)}" fill="{fill}" stroke="{edge}" '
            f'stroke-width="{number(stroke)}" stroke-linejoin="round" {extra}/>')


def disc(x, y, radius, fill, edge="none", stroke=LINE, extra=""):
    return (f'<circle cx="{number(x)}" cy="{number(y)}" r="{number(radius)}" fill="{fill}" '
            f'stroke="{edge}" stroke-width="{number(stroke)}" {extra}/>')


def oval(x, y, rx, ry, fill, edge="none", stroke=LINE, extra=""):
    return (f'<ellipse cx="{number(x)}" cy="{number(y)}" rx="{number(rx)}" ry="{number(ry)}" '
            f'fill="{fill}" stroke="{edge}" stroke-width="{number(stroke)}" {extra}/>')


def moved(x, y, body, scale=1.0, turn=0.0, mirror=False):
    """The body with its origin at (x, y); turned in degrees, and mirrored left to right last."""
    sign = -1 if mirror else 1
    return (f'<g transform="translate({number(x)} {number(y)}) scale({sign * scale:.4f} '
            f'{scale:.4f}) rotate({number(turn)})">{body}</g>')


def shade(key, box_, top, bottom):
    """A fill with the light from the upper left over (left, top, right, bottom) in pixels."""
    x0, y0, x1, y1 = (number(v) for v in box_)
    return (f'<linearGradient id="{key}" gradientUnits="userSpaceOnUse" x1="{x0}" y1="{y0}" '
            f'x2="{x1}" y2="{y1}"><stop offset="0" stop-color="{top}"/>'
            f'<stop offset="1" stop-color="{bottom}"/></linearGradient>')


def capsule(a, ra, b, rb):
    """The hull of two circles as path data; when one holds the other, that circle."""
    d = distance(a, b)
    if d <= abs(ra - rb) + 0.01:
        (x, y), r = (a, ra) if ra >= rb else (b, rb)
        return (f"M{number(x - r)} {number(y)}a{number(r)} {number(r)} 0 1 0 {number(2 * r)} 0"
                f"a{number(r)} {number(r)} 0 1 0 {number(-2 * r)} 0Z")
    ux, uy = (b[0] - a[0]) / d, (b[1] - a[1]) / d
    c = (ra - rb) / d
    s = math.sqrt(1 - c * c)

    def touch(p, r, sign):
        return (p[0] + r * (ux * c - sign * uy * s), p[1] + r * (uy * c + sign * ux * s))

    a1, b1, b2, a2 = touch(a, ra, 1), touch(b, rb, 1), touch(b, rb, -1), touch(a, ra, -1)
    ra_, rb_ = number(ra), number(rb)
    return (f"M{number(a1[0])} {number(a1[1])}L{number(b1[0])} {number(b1[1])}"
            f"A{rb_} {rb_} 0 {1 if c < 0 else 0} 0 {number(b2[0])} {number(b2[1])}"
            f"L{number(a2[0])} {number(a2[1])}"
            f"A{ra_} {ra_} 0 {1 if c > 0 else 0} 0 {number(a1[0])} {number(a1[1])}Z")


def tapered(points, radii, flat=False):
    """Path data of a limb along the joints, with the radius at each; flat cuts its end off
    straight at the last joint."""
    pieces = [capsule(a, ra, b, rb)
              for a, ra, b, rb in zip(points, radii, points[1:], radii[1:])]
    if flat:
        (a, ra), (b, rb) = ((points[i], radii[i]) for i in (-2, -1))
        d = distance(a, b)
        nx, ny = -(b[1] - a[1]) / d, (b[0] - a[0]) / d
        cut = [(a[0] + nx * ra, a[1] + ny * ra), (b[0] + nx * rb, b[1] + ny * rb),
               (b[0] - nx * rb, b[1] - ny * rb), (a[0] - nx * ra, a[1] - ny * ra)]
        pieces[-1] = capsule(a, ra, a, ra) + points_path(cut, True)
    return "".join(pieces)


def curve(points, steps=10):
    """Points of a smooth curve through the points."""
    out = []
    for i in range(len(points) - 1):
        before = points[max(i - 1, 0)]
        a, b = points[i], points[i + 1]
        after = points[min(i + 2, len(points) - 1)]
        for k in range(steps):
            t = k / steps
            out.append(tuple(
                0.5 * (2 * a[j] + (b[j] - before[j]) * t
                       + (2 * before[j] - 5 * a[j] + 4 * b[j] - after[j]) * t * t
                       + (3 * a[j] - before[j] - 3 * b[j] + after[j]) * t * t * t)
                for j in (0, 1)))
    return out + [points[-1]]


def curved(points, radii, steps=6):
    """Like tapered, but the limb bends smoothly."""
    fine = curve(points, steps)
    wide = []
    for r0, r1 in zip(radii, radii[1:]):
        wide += [r0 + (r1 - r0) * k / steps for k in range(steps)]
    return tapered(fine, wide + [radii[-1]])


def joined(shapes, fill, edge, width=LINE):
    """Overlapping shapes under one outline."""
    data = "".join(shapes)
    return (path(data, fill, edge, 2 * width) + path(data, fill))


# Marks --------------------------------------------------------------------------------------


def tick(x, y, radius=12):
    """Right: a check mark on a green disc."""
    r = radius
    return (disc(x, y, r, GREEN, WHITE, 2)
            + line([(x - r * 0.45, y + r * 0.02), (x - r * 0.1, y + r * 0.38),
                    (x + r * 0.48, y - r * 0.34)], WHITE, r * 0.24))


def cross(x, y, radius=12):
    """Wrong: a cross on a coral disc."""
    k = radius * 0.36
    return (disc(x, y, radius, CORAL, WHITE, 2)
            + line([(x - k, y - k), (x + k, y + k)], WHITE, radius * 0.24)
            + line([(x - k, y + k), (x + k, y - k)], WHITE, radius * 0.24))


def head_of_arrow(tip, direction, size, colour, width):
    """Two strokes that end in the tip; direction is in degrees, 0 to the right, 90 downwards."""
    ends = []
    for side in (-1, 1):
        a = math.radians(direction + 180 + side * 34)
        ends.append((tip[0] + size * math.cos(a), tip[1] + size * math.sin(a)))
    return line([ends[0], tip, ends[1]], colour, width)


def arrow_along(points, colour=TEAL, width=3.0, size=None, both=False):
    """An arrow along a polyline or a curve's points, with a head at the end or at both ends."""
    size = size or width * 3
    out = [line(points, colour, width)]
    for end, before in [(points[-1], points[-2])] + ([(points[0], points[1])] if both else []):
        direction = math.degrees(math.atan2(end[1] - before[1], end[0] - before[0]))
        out.append(head_of_arrow(end, direction, size, colour, width))
    return "".join(out)


def arc(x, y, radius, start, end, steps=24):
    """Points of an arc; angles in degrees, 0 to the right, 90 downwards."""
    return [(x + radius * math.cos(math.radians(start + (end - start) * k / steps)),
             y + radius * math.sin(math.radians(start + (end - start) * k / steps)))
            for k in range(steps + 1)]


def sector(x, y, radius, start, end):
    """Path data of a slice of a disc, angles as for arc."""
    return points_path([(x, y)] + arc(x, y, radius, start, end), True)


def clock(x, y, radius, minutes, colour=AMBER):
    """A clock whose first minutes are coloured."""
    end = -90 + minutes * 6
    hand = arc(x, y, radius * 0.68, end, end)[0]
    out = [disc(x, y, radius, WHITE, INK), path(sector(x, y, radius, -90, end), colour),
           disc(x, y, radius, "none", INK)]
    for k in range(12 if radius > 15 else 4):
        a, b = (arc(x, y, radius * r, k * (30 if radius > 15 else 90), 0, 1)[0]
                for r in (0.86, 0.74))
        out.append(line([a, b], INK, 1.4))
    out += [line([(x, y - radius * 0.6), (x, y), hand], INK, max(1.6, radius * 0.1)),
            disc(x, y, max(1.4, radius * 0.09), INK)]
    return "".join(out)


# Things -------------------------------------------------------------------------------------


def panel(x, y, width, height, body, key, fill=PALE_TEAL, edge=TEAL, radius=10):
    """A framed picture within the picture; the body's origin is the panel's upper left corner."""
    shape = box(0, 0, width, height, radius, fill)
    return moved(x, y, f'<clipPath id="{key}">{shape}</clipPath>{shape}'
                 f'<g clip-path="url(#{key})">{body}</g>'
                 + box(0, 0, width, height, radius, "none", edge))


def text_lines(x, y, width, count, step, colour=TEAL, weight=4, shares=(1, 0.9, 1, 0.7, 0.95)):
    """Lines of writing, from the right, too small to be read."""
    return "".join(line([(x + width, y + i * step),
                         (x + width * (1 - shares[i % len(shares)]), y + i * step)],
                        colour, weight) for i in range(count))


def screen_from_side(x, top, bottom, foot, depth=9, lean=4):
    """A screen seen from the side, its face at x towards the right; foot is the desk's height."""
    middle = (top + bottom) / 2
    out = [path(f"M{number(x - depth - 3)} {number(middle)} L{number(x - depth - 14)} "
                f"{number(foot - 4)} L{number(x - depth - 3)} {number(foot - 4)} "
                f"L{number(x - depth + 3)} {number(middle + 10)} Z", LIGHT_GREY, INK),
           box(x - depth - 30, foot - 5, 46, 5, 2.5, LIGHT_GREY, INK),
           path(points_path([(x - depth - lean, top + 2), (x - lean, top), (x, bottom),
                             (x - depth, bottom + 1)], True), mix(INK, WHITE, 0.8), INK),
           line([(x - lean + 1.5, top + 4), (x + 1.2, bottom - 4)], LIGHT_TEAL, 3)]
    return "".join(out)


def keyboard_from_side(x, desk, width, height):
    """A keyboard seen from the side on a desk at this height; its keys' tops are height above."""
    cap = height * 0.45
    out = [path(f"M{number(x)} {number(desk)} v{number(-height * 0.6)} q0 -2 2 -2 "
                f"h{number(width - 4)} q2 0 2 2 v{number(height * 0.6)} Z", LIGHT_GREY, INK)]
    count = max(4, int(width // (cap * 2.2)))
    pitch = (width - 4) / count
    out += [box(x + 2 + i * pitch + pitch * 0.08, desk - height, pitch * 0.84, cap, cap * 0.3,
                WHITE, INK, 1.3) for i in range(count)]
    return "".join(out)


def desk_from_side(left, right, top, floor, thick=8):
    """A desk seen from the side, on a column with a foot, so that the legs are free. Its stand
    and its top, as the legs come between them."""
    middle = (left + right) / 2
    reach = (right - left) * 0.19
    dark = mix(WOOD, WOOD_DARK, 0.4)
    stand = (box(middle - 10, top + thick - 2, 20, floor - top - thick - 4, 2, dark, INK)
             + box(middle - reach, floor - 9, 2 * reach, 9, 4, dark, INK)
             + path(f"M{number(middle - 34)} {number(top + thick - 1)} h68 l-14 11 h-40 Z", dark,
                    INK))
    return stand, box(left, top, right - left, thick, 3, WOOD, INK)


def chair(back, seat, floor, top, depth):
    """A chair seen from the side, facing left; back is the front of its back rest, and depth is
    how far the seat reaches before it."""
    dark = mix(WOOD, WOOD_DARK, 0.4)
    front = back - depth
    leg, rail = 9, seat + (floor - seat) * 0.62
    return "".join((
        box(front + 10, seat + 6, leg, floor - seat - 6, 2, dark, INK),
        box(back - 2, seat + 6, leg, floor - seat - 6, 2, dark, INK),
        box(front + 10 + leg, rail, depth - 12 - leg, 6, 1, dark, INK),
        path(f"M{number(back - 2)} {number(seat + 4)} L{number(back + 4)} {number(top + 5)} "
             f"q1 -6 7 -5.5 q6 0.5 5 6.5 L{number(back + 9)} {number(seat + 4)} Z", WOOD, INK),
        box(front, seat, depth + 12, 11, 5, WOOD, INK)))
