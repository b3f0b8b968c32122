"""Geometric ornament, constructed as masons do it: a tiling of polygons, and in every tile two
lines that leave the middle of each edge at one angle and bend where they meet their neighbours'.
The lines of all tiles join to strands that pass over and under each other in turn."""

from math import cos, pi, radians, sin, sqrt, tan

from _style import number, points_path


def polygon(cx, cy, sides, radius, turn=0.0):
    """A regular polygon's corners; turn is the angle in degrees of the first one."""
    return [(cx + radius * cos(radians(turn) + 2 * pi * i / sides),
             cy + radius * sin(radians(turn) + 2 * pi * i / sides)) for i in range(sides)]


def middle(a, b):
    return ((a[0] + b[0]) / 2, (a[1] + b[1]) / 2)


def _turned(vector, angle):
    c, s = cos(angle), sin(angle)
    return (vector[0] * c - vector[1] * s, vector[0] * s + vector[1] * c)


def _meeting(p, d, q, e):
    """Where the line from p along d meets the line from q along e."""
    k = ((q[0] - p[0]) * e[1] - (q[1] - p[1]) * e[0]) / (d[0] * e[1] - d[1] * e[0])
    return (p[0] + d[0] * k, p[1] + d[1] * k)


def star(tile, angle):
    """The star of a tile as a closed line: edge middle, bend, edge middle, bend, and so on.
    The tile's corners go round in the sense of growing angles; angle is in degrees."""
    turn = radians(angle)
    line = []
    count = len(tile)
    for i in range(count):
        u, v, w = tile[i - 1], tile[i], tile[(i + 1) % count]
        first = _turned((v[0] - u[0], v[1] - u[1]), turn)
        second = _turned((v[0] - w[0], v[1] - w[1]), -turn)
        start, end = middle(u, v), middle(v, w)
        line += [start, _meeting(start, first, end, second)]
    return line


def octagons_and_squares(left, top, cell_x, cell_y, columns, rows):
    """The tiling of octagons with a square at each corner, one octagon to a cell. The squares on
    the border reach over it by half."""
    edge = 1 / (1 + sqrt(2))
    radius = edge / (2 * sin(pi / 8))
    octagons, squares = [], []
    for row in range(rows + 1):
        for column in range(columns + 1):
            if row < rows and column < columns:
                octagons.append(polygon(column + 0.5, row + 0.5, 8, radius, 22.5))
            squares.append(polygon(column, row, 4, edge / sqrt(2)))

    def place(tiles):
        return [[(left + x * cell_x, top + y * cell_y) for x, y in tile] for tile in tiles]

    return place(octagons), place(squares)


def twelves(left, top, edge, columns, rows):
    """The tiling of twelve-sided, six-sided and four-sided tiles, as three lists."""
    inradius12 = edge / 2 / tan(pi / 12)
    inradius6 = edge / 2 / tan(pi / 6)
    step = 2 * inradius12 + edge
    height = step * sqrt(3) / 2
    big, hexagons, squares = [], [], []
    for row in range(rows):
        for column in range(columns):
            cx = left + (column + (row % 2) * 0.5) * step
            cy = top + row * height
            big.append(polygon(cx, cy, 12, edge / 2 / sin(pi / 12), 15))
            for k in range(2):
                a = radians(30 + 60 * k)
                d = inradius12 + inradius6
                hexagons.append(polygon(cx + d * cos(a), cy + d * sin(a), 6, edge))
            for k in range(3):
                a = radians(60 * k)
                d = inradius12 + edge / 2
                squares.append(polygon(cx + d * cos(a), cy + d * sin(a), 4, edge / sqrt(2),
                                       60 * k + 45))
    return big, hexagons, squares


def _toward(p, q, share):
    return (p[0] + (q[0] - p[0]) * share, p[1] + (q[1] - p[1]) * share)


def strands(lines, width, casing, casing_colour, colour):
    """Draws stars as interlaced strands of the given width between two casing lines."""
    whole = "".join(points_path(line, closed=True) for line in lines)
    # Leaving an edge's middle towards the bend after it a strand lies above; two tiles that share
    # the edge see the same strand so, and hence above and below take turns along every strand.
    over = {}
    for line in lines:
        for i in range(0, len(line), 2):
            key = (round(line[i][0], 1), round(line[i][1], 1))
            over.setdefault(key, [line[i]]).append(_toward(line[i], line[i + 1], 0.6))
    above = "".join(points_path([points[1], points[0], *points[2:]]) for points in over.values())
    text = []
    for path in (whole, above):
        for line_width, stroke in ((width + 2 * casing, casing_colour), (width, colour)):
            text.append('<path d="%s" fill="none" stroke="%s" stroke-width="%s" '
                        'stroke-linejoin="miter" stroke-miterlimit="6"/>'
                        % (path, stroke, number(line_width)))
    return "".join(text)


def fills(lines, colour, opacity=1):
    return ('<path d="%s" fill="%s" fill-opacity="%s"/>'
            % ("".join(points_path(line, closed=True) for line in lines), colour, opacity))


def star_polygon(cx, cy, points, skip, radius, turn=0.0):
    """The lines of the star {points/skip} as path data; skip need not share no factor."""
    corners = polygon(cx, cy, points, radius, turn)
    return "".join(points_path([corners[i], corners[(i + skip) % points]]) for i in range(points))
