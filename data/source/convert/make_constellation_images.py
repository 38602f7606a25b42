#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Makes data/source/skyobjects/constellation_images.tsv: a picture around each constellation's figure.

usage: make_constellation_images.py SOURCE            writes the table
       make_constellation_images.py --check SOURCE    compares, and tells whether every vertex lies inside

SOURCE is data/source of this tree; constellations/lines.tsv is read. The vertices of a figure are projected onto the
plane that touches the sphere in the middle of the figure (gnomonic projection: great circles become straight lines, so
that the figure's lines lie inside where its vertices do). There the rectangle of the smallest area around them is
looked for, among those that have one side along an edge of the convex hull (Freeman & Shapira 1975), and widened by
MARGIN of its longer side on every side. Then the plane is moved towards the middle of the rectangle, and so on.
"""
import math
import os
import sys

import tables

TABLE = "skyobjects/constellation_images.tsv"
HEADER = ("Identifier", "RA1_deg", "Dec1_deg", "RA2_deg", "Dec2_deg", "RA3_deg", "Dec3_deg", "RA4_deg", "Dec4_deg")
MARGIN = 0.05
SMALLEST_MARGIN = math.radians(0.5)
# A figure that is almost a straight line gets a picture at least this wide, in parts of its length.
LEAST_WIDTH = 0.25
ROUNDS = 50


def figures(source):
    """Unit vectors of the vertices by abbreviation, in the order of the table."""
    found = {}
    for row in tables.rows(source, "constellations/lines.tsv"):
        vertex = tables.direction(float(row["RA_deg"]), float(row["Dec_deg"]))
        found.setdefault(row["Abbreviation"], []).append(vertex)
    return found


def hull(points):
    """The convex hull, counterclockwise (Andrew 1979)."""
    points = sorted(set(points))

    def half(points):
        chain = []
        for point in points:
            while len(chain) > 1 and turn(chain[-2], chain[-1], point) <= 0:
                chain.pop()
            chain.append(point)
        return chain[:-1]

    return half(points) + half(points[::-1]) if len(points) > 2 else points


def turn(a, b, c):
    return (b[0] - a[0]) * (c[1] - a[1]) - (b[1] - a[1]) * (c[0] - a[0])


def smallest_rectangle(points):
    """(axis along the up side, up from, up to, across from, across to); `up` is within 45 degrees of north."""
    corners, best = hull(points), None
    for a, b in zip(corners, corners[1:] + corners[:1]):
        angle = math.atan2(b[1] - a[1], b[0] - a[0]) % (math.pi / 2)
        angle -= math.pi / 2 if angle > math.pi / 4 else 0.0
        up, across = (math.cos(angle), math.sin(angle)), (-math.sin(angle), math.cos(angle))
        u = [p[0] * up[0] + p[1] * up[1] for p in corners]
        v = [p[0] * across[0] + p[1] * across[1] for p in corners]
        area = (max(u) - min(u)) * (max(v) - min(v))
        if best is None or area < best[0]:
            best = area, up, across, min(u), max(u), min(v), max(v)
    return best[1:]


def widened(low, high, length):
    missing = max(length - (high - low), 0.0) / 2
    return low - missing, high + missing


def middle_of(vertices):
    """About the centre of the smallest circle around the vertices: ever smaller steps to the farthest one."""
    middle = tables.unit(tables.combine(*((1.0, vertex) for vertex in vertices)))
    for step in range(1, ROUNDS):
        farthest = min(vertices, key=lambda vertex: tables.dot(vertex, middle))
        middle = tables.unit(tables.combine((step, middle), (1.0, farthest)))
    return middle


def picture(vertices):
    """The four corners as unit vectors: -u -v, -u +v, +u +v, +u -v; u is up (north), v to its left (east)."""
    middle = middle_of(vertices)
    for _ in range(ROUNDS):
        north, east = tables.north_and_east(middle)
        plane = [(tables.dot(p, north) / tables.dot(p, middle), tables.dot(p, east) / tables.dot(p, middle))
                 for p in vertices]
        up, across, low, high, right, left = smallest_rectangle(plane)
        u, v = (tables.combine((axis[0], north), (axis[1], east)) for axis in (up, across))
        tangent, shift = middle, ((low + high) / 2, (right + left) / 2)
        # Half the way: where two rectangles are almost as small as each other, the whole way goes to and fro.
        middle = tables.unit(tables.combine((1.0, middle), (shift[0] / 2, u), (shift[1] / 2, v)))
    margin = max(MARGIN * max(high - low, left - right), SMALLEST_MARGIN)
    low, high, right, left = low - margin, high + margin, right - margin, left + margin
    least = LEAST_WIDTH * max(high - low, left - right)
    low, high = widened(low, high, least)
    right, left = widened(right, left, least)
    return [tables.unit(tables.combine((1.0, tangent), (a, u), (b, v)))
            for a, b in ((low, right), (low, left), (high, left), (high, right))]


def make(source):
    lines = []
    for abbreviation, vertices in figures(source).items():
        line = [abbreviation]
        for corner in picture(vertices):
            ra, dec = tables.position(corner)
            line += [tables.number(ra % 360.0, 5), tables.number(dec, 5)]
        lines.append(line)
    return tables.make_text(HEADER, lines)


def check(source):
    """Every vertex is on the inner side of the four great circles through neighbouring corners, as they are written."""
    wrong = []
    found = figures(source)
    for row in tables.rows(source, TABLE):
        corners = [tables.direction(float(row[f"RA{k}_deg"]), float(row[f"Dec{k}_deg"])) for k in (1, 2, 3, 4)]
        # Seen from outside the sphere, with east to the right of north, the corners run counterclockwise.
        sides = [tables.cross(corners[k], corners[(k + 1) % 4]) for k in range(4)]
        outside = [v for v in found.pop(row["Identifier"]) if min(tables.dot(side, v) for side in sides) <= 0.0]
        if outside:
            wrong.append(f"{row['Identifier']}: {len(outside)} vertices outside")
    return wrong + [f"{abbreviation}: no picture" for abbreviation in found]


def main():
    arguments = [argument for argument in sys.argv[1:] if argument != "--check"]
    if len(arguments) != 1:
        raise SystemExit(__doc__)
    source, text = arguments[0], make(arguments[0])
    path = os.path.join(source, TABLE)
    if "--check" in sys.argv:
        with open(path, encoding="utf-8") as table:
            wrong = check(source) + ([] if table.read() == text else [f"{TABLE} is not what this script makes"])
        raise SystemExit("\n".join(wrong) or None)
    with open(path, "w", encoding="utf-8", newline="\n") as table:
        table.write(text)


if __name__ == "__main__":
    main()
