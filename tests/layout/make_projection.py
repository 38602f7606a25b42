#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Writes projection_1000.txt: where a camera shows 1000 directions at three zooms, from the rule alone.

usage: make_projection.py > projection_1000.txt

The rule: stereographic about the view axis. With r the direction in the axes of the view (right-handed; r[2] along
the line of sight, r[0] to the left, r[1] up) and k = f / (r[2] + 1), a direction stands at x = W/2 - k r[0],
y = H/2 + k r[1]; whole pixels cut k r[0] and k r[1] to whole numbers first. The scale is
f = half the window's diagonal / tan(0.6457718232379 / (2 zoom)).

Directions are three whole numbers from a generator of whole numbers, divided by their length: the same doubles
everywhere. The sine, cosine and tangent of the view may differ in the last bit from one mathematical library to
another. Where the scale is large (1e5 pixels and more, at zoom 40 or far behind the observer) that moves a pixel by
1e-10 to 1e-7, so six decimals would differ here and there. Pixels are written with four, and this program refuses
directions of which one comes so near to where the rounding, or the cutting to whole pixels, changes that such a
difference could show: all targets must then write the same bytes.
"""
import math
import sys

WIDTH, HEIGHT = 1920, 1080
LON, LAT, SLOPE = 1.1, 0.4, 0.3  # of the view, radians
ZOOMS = (0.6, 3.0, 40.0)
ZOOM_ONE_ANGLE = 0.6457718232379  # radians
COUNT = 1000
SEED = 4
AXIS_ERROR = 2e-15  # of a component of r, ten times what a last bit makes of it


def directions():
    """Whole components from -32768 to 32767: the upper half of a 32-bit linear congruential generator with the
    constants of Press et al., Numerical Recipes (1992), chapter 7.1."""
    state = SEED
    for _ in range(COUNT):
        v = []
        for _ in range(3):
            state = (state * 1664525 + 1013904223) & 0xFFFFFFFF
            v.append((state >> 16) - 32768)
        yield v


def axes():
    """Left, up and forward of the view: the frame of the direction (LON, LAT), turned by SLOPE about it."""
    forward = (math.cos(LAT) * math.cos(LON), math.cos(LAT) * math.sin(LON), math.sin(LAT))
    east = (-math.sin(LON), math.cos(LON), 0.0)
    north = (-math.sin(LAT) * math.cos(LON), -math.sin(LAT) * math.sin(LON), math.cos(LAT))
    left = [math.cos(SLOPE) * e + math.sin(SLOPE) * n for e, n in zip(east, north)]
    up = [math.cos(SLOPE) * n - math.sin(SLOPE) * e for e, n in zip(east, north)]
    return left, up, forward


def dot(a, b):
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]


def require_clearance(value, error):
    """That `value` is further than `error` from where its digits change."""
    for offset, step in ((0.5e-4, 1e-4), (0.0, 1.0)):
        if abs(math.remainder(value - offset, step)) <= error:
            sys.exit(f"make_projection.py: {value!r} is too near to a change of its digits; take another seed")


def pixels(r, zoom):
    scale = math.hypot(WIDTH / 2, HEIGHT / 2) / math.tan(ZOOM_ONE_ANGLE / (2 * zoom))
    k = scale / (r[2] + 1.0)
    x, y = r[0] * k, r[1] * k
    for value in (x, y):
        require_clearance(value, AXIS_ERROR * (k + abs(value) * (1.0 + 1.0 / (r[2] + 1.0))))
    return f"{WIDTH / 2 - x:.4f} {HEIGHT / 2 + y:.4f} {WIDTH // 2 - math.trunc(x)} {HEIGHT // 2 + math.trunc(y)}"


def main():
    view = axes()
    print("# Made by make_projection.py; do not edit.")
    print("# direction, not of unit length | at each zoom: x y, whole pixels x y")
    for v in directions():
        length = math.sqrt(dot(v, v))
        r = [dot(axis, v) / length for axis in view]
        print(*v, "|", " | ".join(pixels(r, zoom) for zoom in ZOOMS))


main()
