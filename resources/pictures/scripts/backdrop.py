#!/usr/bin/env python3
"""The backdrop behind all windows: a calm slope of teal, on which a field of twelvefold stars shows
towards the edges and fades out behind the middle, where the windows stand."""

from math import sqrt

from _ornament import fills, star, twelves
from _style import points_path, save

WIDTH, HEIGHT = 1600, 1024
# The edge of all tiles, and the distance of two stars.
EDGE = 80
STEP = EDGE * (3 + sqrt(3))


def rosette(line):
    """The lines inside a twelvefold star: the star {12/4} on its inner bends."""
    return "".join(points_path([line[i], line[(i + 8) % 24]]) for i in range(1, 24, 2))


def main():
    big, hexagons, squares = twelves(WIDTH / 2 - 3 * STEP, HEIGHT / 2 - STEP * sqrt(3),
                                     EDGE, 7, 5)
    stars = [[star(tile, 66) for tile in tiles] for tiles in (big, hexagons, squares)]
    lines = "".join(points_path(line, closed=True) for group in stars for line in group)
    inner = "".join(rosette(line) for line in stars[0])
    save(112, WIDTH, HEIGHT,
         '<defs><linearGradient id="slope" x1="0" y1="0" x2=".55" y2="1">'
         '<stop offset="0" stop-color="#86C2BF"/><stop offset=".45" stop-color="#419096"/>'
         '<stop offset="1" stop-color="#255E6C"/></linearGradient>'
         '<radialGradient id="fade" cx=".5" cy=".45" r=".74">'
         '<stop offset=".3" stop-color="#fff" stop-opacity="0"/>'
         '<stop offset=".7" stop-color="#fff" stop-opacity=".7"/>'
         '<stop offset="1" stop-color="#fff" stop-opacity="1"/></radialGradient>'
         '<mask id="m" maskUnits="userSpaceOnUse" x="0" y="0" width="%d" height="%d">'
         '<rect width="%d" height="%d" fill="url(#fade)"/></mask></defs>'
         '<rect width="%d" height="%d" fill="url(#slope)"/>'
         '<g mask="url(#m)" stroke-linejoin="round">%s%s'
         '<path d="%s" fill="none" stroke="#CFE8E4" stroke-opacity=".22" stroke-width="1.5"/>'
         '<path d="%s" fill="none" stroke="#0F3440" stroke-opacity=".18" '
         'stroke-width="3" transform="translate(1.2 1.8)"/>'
         '<path d="%s" fill="none" stroke="#D5ECE8" stroke-opacity=".42" stroke-width="2.6"/></g>'
         % (WIDTH, HEIGHT, WIDTH, HEIGHT, WIDTH, HEIGHT, fills(stars[0], "#7FD0C8", 0.11),
            fills(stars[1], "#17434F", 0.12), inner, lines, lines))


main()
