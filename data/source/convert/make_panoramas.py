#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Draws the landscapes of data/source/surface as SVG pictures.

usage: make_panoramas.py SOURCE            writes the pictures
       make_panoramas.py --check SOURCE    compares them

SOURCE is data/source of this tree. A picture shows 360 degrees of azimuth over its width and 40 degrees of altitude,
from -10 to +30, over its height; above the ground it is transparent. The outlines are sums of waves that close around
the horizon; nothing is random, so that the pictures come out the same every time.
"""
import math
import os
import sys

PIXELS_PER_DEGREE = 4
LOWEST, HIGHEST = -10, 30
STEP = 2  # degrees between two points of an outline

# Outlines from back to front: colour, height in degrees, (waves around the horizon, height, phase) of each wave.
LANDSCAPES = {
    "earth_hills.svg": [
        ("#5d7183", 3.0, [(5, 1.4, 0.3), (11, 0.7, 1.9), (23, 0.3, 4.0)]),
        ("#46603f", 1.2, [(7, 0.9, 2.2), (17, 0.4, 0.8), (31, 0.15, 5.1)]),
        ("#2f4426", -0.8, [(4, 0.4, 1.0), (13, 0.2, 3.3)])],
    "earth_sea.svg": [("#24425c", 0.0, [])],
    "moon_mare.svg": [
        ("#8d8a84", 1.0, [(3, 0.8, 0.9), (8, 0.5, 2.7), (19, 0.2, 4.4)]),
        ("#6d6a65", -0.4, [(6, 0.3, 1.5), (29, 0.1, 0.2)])],
    "mars_plain.svg": [
        ("#a7623c", 1.5, [(4, 1.0, 2.0), (9, 0.6, 0.4), (27, 0.2, 3.8)]),
        ("#854a2a", -0.3, [(5, 0.3, 4.9), (21, 0.15, 1.1)])]}


def outline(height, waves):
    points = []
    for azimuth in range(0, 360 + STEP, STEP):
        altitude = height + sum(size * math.sin(math.radians(count * azimuth) + phase) for count, size, phase in waves)
        points.append(f"{azimuth * PIXELS_PER_DEGREE},{round((HIGHEST - altitude) * PIXELS_PER_DEGREE, 1):g}")
    return " ".join(points)


def picture(layers):
    width, height = 360 * PIXELS_PER_DEGREE, (HIGHEST - LOWEST) * PIXELS_PER_DEGREE
    lines = ["<!-- SPDX-FileCopyrightText: the common_interfaces authors -->", "<!-- SPDX-License-Identifier: MIT -->",
             f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" '
             f'viewBox="0 0 {width} {height}">']
    for colour, base, waves in layers:
        lines.append(f'<polygon fill="{colour}" points="0,{height} {outline(base, waves)} {width},{height}"/>')
    return "\n".join(lines + ["</svg>"]) + "\n"


def main():
    arguments = [argument for argument in sys.argv[1:] if argument != "--check"]
    if len(arguments) != 1:
        raise SystemExit(__doc__)
    for name, layers in LANDSCAPES.items():
        path, text = os.path.join(arguments[0], "surface", name), picture(layers)
        if "--check" not in sys.argv:
            with open(path, "w", encoding="utf-8", newline="\n") as file:
                file.write(text)
            continue
        with open(path, encoding="utf-8") as file:
            if file.read() != text:
                raise SystemExit(f"{name} is not what this script makes")


main()
