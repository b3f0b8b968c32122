#!/usr/bin/env python3
"""The diploma: the sheet that is printed, and the same sheet as the background of its window.

The program prints over the sheet, 15 twips to the pixel: the student's name, 20 points bold,
centred, its line's top at 430; the courses, 14 points, centred, top at 544; the date, 12 points,
left edge at 132, top at 598.3. These three places stay free of drawing but for a fine rule under
them.
"""

from _emblem import key, rosette
from _lettering import word
from _ornament import fills, octagons_and_squares, polygon, star, star_polygon, strands
from _style import GOLD, INK, PAPER, TEAL, number, points_path, save

WIDTH, HEIGHT = 900, 700
COLUMNS, ROWS = 26, 20
CELL = 33.0
LEFT, TOP = (WIDTH - COLUMNS * CELL) / 2, (HEIGHT - ROWS * CELL) / 2

# Where the sheet lies in the window's background. A place (x, y) of the sheet is in the window at
# (26 + 0.72 x, 10 + 0.72 y): name 319.6, courses 401.7, date 121 and 440.8. Under the sheet 53
# pixels are free.
WINDOW_LEFT, WINDOW_TOP, WINDOW_SCALE = 26, 10, 0.72

DEFS = ('<linearGradient id="ground" x1="0" y1="0" x2=".6" y2="1">'
        '<stop offset="0" stop-color="#3B8F94"/><stop offset="1" stop-color="#1F5A66"/>'
        '</linearGradient><radialGradient id="field" cx=".45" cy=".35" r=".8">'
        '<stop offset="0" stop-color="#FFFEFB"/><stop offset=".6" stop-color="#FDFAF3"/>'
        '<stop offset="1" stop-color="#F6EEDF"/></radialGradient>'
        '<linearGradient id="gold" x1="0" y1="0" x2=".6" y2="1">'
        '<stop offset="0" stop-color="#E9CC8C"/><stop offset=".5" stop-color="#C79A3B"/>'
        '<stop offset="1" stop-color="#A87C27"/></linearGradient>')


def rectangle(inset, attributes):
    return ('<rect x="%s" y="%s" width="%s" height="%s" %s/>'
            % (number(inset), number(inset), number(WIDTH - 2 * inset),
               number(HEIGHT - 2 * inset), attributes))


def ring(tiles):
    """The tiles of the border: those whose centre is not more than a cell from the edge."""
    def near(tile):
        x = sum(p[0] for p in tile) / len(tile)
        y = sum(p[1] for p in tile) / len(tile)
        return (min(x - LEFT, LEFT + COLUMNS * CELL - x) < CELL * 1.1 or
                min(y - TOP, TOP + ROWS * CELL - y) < CELL * 1.1)
    return [tile for tile in tiles if near(tile)]


def border():
    """A band of stars, one cell wide, between golden rules."""
    octagons, squares = octagons_and_squares(LEFT, TOP, CELL, CELL, COLUMNS, ROWS)
    eights = [star(tile, 67.5) for tile in ring(octagons)]
    fours = [star(tile, 67.5) for tile in ring(squares)]
    inner = LEFT + CELL
    return ('<clipPath id="band"><path clip-rule="evenodd" d="M%s %sH%sV%sH%sZM%s %sH%sV%sH%sZ"/>'
            '</clipPath><g clip-path="url(#band)"><rect width="900" height="700" '
            'fill="url(#ground)"/>%s%s%s</g>'
            % (number(LEFT), number(TOP), number(WIDTH - LEFT), number(HEIGHT - TOP),
               number(LEFT), number(inner), number(TOP + CELL), number(WIDTH - inner),
               number(HEIGHT - TOP - CELL), number(inner),
               fills(eights, "#5FACAD", 0.6), fills(fours, GOLD, 0.95),
               strands(eights + fours, 2.2, 0.9, "#17434F", "#E8D09A")))


def rules():
    """The golden rules on both sides of the band and the fine ones within."""
    return (rectangle(LEFT, 'fill="none" stroke="#17434F" stroke-width="4.5"') +
            rectangle(LEFT, 'fill="none" stroke="#E0BF74" stroke-width="2.6"') +
            rectangle(LEFT + CELL, 'fill="none" stroke="#17434F" stroke-width="5"') +
            rectangle(LEFT + CELL, 'fill="none" stroke="#E0BF74" stroke-width="3"') +
            rectangle(LEFT + CELL + 7, 'fill="none" stroke="%s" stroke-width="1"' % GOLD))


def seal(cx, cy, radius):
    """A golden seal with two ribbons."""
    scallop = []
    for i in range(48):
        scallop += polygon(0, 0, 1, radius * (1 if i % 2 == 0 else 0.93), i * 7.5)
    ribbon = ('<path d="M-5 4L-19 58L-8.5 51.5L-2 61L7 10Z" fill="#2F7F86"/>'
              '<path d="M5 4L19 58L8.5 51.5L2 61L-7 10Z" fill="#3B8F94"/>'
              '<path d="M-5 4L-19 58L-8.5 51.5L-2 61L0 50L2 61L8.5 51.5L19 58L5 4" fill="none" '
              'stroke="#17434F" stroke-width="1" stroke-linejoin="round"/>')
    return ('<g transform="translate(%s %s)"><g transform="scale(%s)">%s</g>'
            '<circle cx="1.5" cy="2" r="%s" fill="#000" fill-opacity=".15"/>'
            '<path d="%s" fill="url(#gold)" stroke="#8F6A22" stroke-width=".9" '
            'stroke-linejoin="round"/>'
            '<circle r="%s" fill="#F3DFAE" stroke="#8F6A22" stroke-width=".8"/>'
            '<g fill="none" stroke="#A87C27" stroke-width=".7"><path d="%s"/><circle r="%s"/></g>'
            '<path d="%s" fill="url(#gold)" stroke="#8F6A22" stroke-width=".7"/>'
            '<circle r="%s" fill="%s" stroke="#8F6A22" stroke-width=".6"/></g>'
            % (number(cx), number(cy), number(radius / 34), ribbon, number(radius),
               points_path(scallop, closed=True), number(radius * 0.8),
               star_polygon(0, 0, 16, 6, radius * 0.8), number(radius * 0.72),
               points_path(star(polygon(0, 0, 8, radius * 0.5, 22.5), 67.5), closed=True),
               number(radius * 0.1), PAPER))


def rule(y, half):
    """A fine rule with a small lozenge in its middle."""
    return ('<path d="M%s %sH%sM%s %sH%s" stroke="%s" stroke-width="1"/>'
            '<path d="M450 %sl5 4l-5 4l-5 -4Z" fill="%s"/>'
            % (450 - half, y, 442, 458, y, 450 + half, GOLD, y - 4, GOLD))


def sheet():
    return (rectangle(0, 'fill="url(#field)"') +
            rosette(450, 350, 262, GOLD, 1, 'stroke-opacity=".13"') +
            border() + rules() +
            rosette(450, 143, 66, GOLD, 0.8, 'stroke-opacity=".8"') + key(450, 143, 62) +
            word("diploma", 450, 276, 58,
                 'fill="%s" stroke="%s" stroke-width="9"' % (TEAL, TEAL)) +
            word("name-en-serif", 450, 325, 30, 'fill="%s"' % INK) +
            rule(345, 120) +
            word("certify", 450, 394, 25, 'fill="%s"' % INK) +
            '<path d="M215 479H685" stroke="%s" stroke-width="1"/>' % GOLD +
            word("completed", 450, 521, 22, 'fill="%s"' % INK) +
            '<path d="M132 623.5H270" stroke="%s" stroke-width="1"/>' % GOLD +
            seal(735, 606, 28))


def window():
    """The sheet on a table, small enough that the window's two buttons stand under it."""
    width, height = number(WIDTH * WINDOW_SCALE), number(HEIGHT * WINDOW_SCALE)
    return ('<defs><linearGradient id="table" x1="0" y1="0" x2=".7" y2="1">'
            '<stop offset="0" stop-color="#8CC6C4"/><stop offset=".5" stop-color="#4A979B"/>'
            '<stop offset="1" stop-color="#255E6C"/></linearGradient>'
            '<filter id="s"><feGaussianBlur stdDeviation="5"/></filter></defs>'
            '<rect width="700" height="567" fill="url(#table)"/>'
            '<g transform="translate(%s %s)"><rect x="4" y="5" width="%s" height="%s" '
            'fill="#000" fill-opacity=".3" filter="url(#s)"/><g transform="scale(%s)">%s</g></g>'
            '<rect x=".5" y=".5" width="699" height="566" fill="none" stroke="%s"/>'
            % (WINDOW_LEFT, WINDOW_TOP, width, height, WINDOW_SCALE, sheet(), INK))


def main():
    save(1126, WIDTH, HEIGHT, "<defs>%s</defs>%s" % (DEFS, sheet()))
    save(1125, 700, 567, "<defs>%s</defs>%s" % (DEFS, window()))


main()
