#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Makes data/source/skyobjects/milkyway_images.tsv: twelve pieces along the Milky Way.

usage: make_milkyway_images.py SOURCE            writes the table
       make_milkyway_images.py --check SOURCE    compares, and tells whether the pieces cover the bright outlines

SOURCE is data/source of this tree; the check reads milkyway/outlines.tsv. Piece k (MW01 to MW12) has its middle on
galactic longitude 30 (k - 1) degrees and corners at 18 degrees to both sides of it and at galactic latitudes of 15
degrees to both sides, so that neighbours overlap by 6 degrees. Up is galactic north, which galactic east is left of.
"""
import os
import sys

import tables

TABLE = "skyobjects/milkyway_images.tsv"
HEADER = ("Identifier", "RA1_deg", "Dec1_deg", "RA2_deg", "Dec2_deg", "RA3_deg", "Dec3_deg", "RA4_deg", "Dec4_deg")
PIECES, STEP, HALF_LENGTH, HALF_HEIGHT = 12, 30.0, 18.0, 15.0
# Levels of the outlines, 1 the faintest, that the pieces cover.
BRIGHT_FROM = 2
# The galactic axes in J2000 equatorial coordinates: centre, longitude 90, north pole (The Hipparcos and Tycho
# Catalogues, ESA SP-1200, 1997, volume 1, section 1.5.3).
AXES = ((-0.0548755604, -0.8734370902, -0.4838350155),
        (+0.4941094279, -0.4448296300, +0.7469822445),
        (-0.8676661490, -0.1980763734, +0.4559837762))


def equatorial(longitude, latitude):
    return tables.combine(*zip(tables.direction(longitude, latitude), AXES))


def make():
    lines = []
    for piece in range(PIECES):
        line = [f"MW{piece + 1:02d}"]
        for up, left in ((-1, -1), (-1, 1), (1, 1), (1, -1)):
            ra, dec = tables.position(equatorial(piece * STEP + left * HALF_LENGTH, up * HALF_HEIGHT))
            line += [tables.number(ra, 5), tables.number(dec, 5)]
        lines.append(line)
    return tables.make_text(HEADER, lines)


def check(source):
    pieces = []
    for row in tables.rows(source, TABLE):
        corners = [tables.direction(float(row[f"RA{k}_deg"]), float(row[f"Dec{k}_deg"])) for k in (1, 2, 3, 4)]
        pieces.append([tables.cross(corners[k], corners[(k + 1) % 4]) for k in range(4)])
    outside = 0
    for row in tables.rows(source, "milkyway/outlines.tsv"):
        if int(row["Level"]) >= BRIGHT_FROM:
            vertex = tables.direction(float(row["RA_deg"]), float(row["Dec_deg"]))
            outside += not any(min(tables.dot(side, vertex) for side in sides) > 0.0 for sides in pieces)
    return [f"{outside} vertices of the bright outlines lie outside"] if outside else []


def main():
    arguments = [argument for argument in sys.argv[1:] if argument != "--check"]
    if len(arguments) != 1:
        raise SystemExit(__doc__)
    path, text = os.path.join(arguments[0], TABLE), make()
    if "--check" in sys.argv:
        with open(path, encoding="utf-8") as table:
            current = [] if table.read() == text else [f"{TABLE} is not what this script makes"]
        raise SystemExit("\n".join(check(arguments[0]) + current) or None)
    with open(path, "w", encoding="utf-8", newline="\n") as table:
        table.write(text)


if __name__ == "__main__":
    main()
