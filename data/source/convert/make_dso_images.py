#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Makes data/source/skyobjects/dso_images.tsv: where the picture of each of Messier's objects belongs.

usage: make_dso_images.py ORIGINALS SOURCE

ORIGINALS is the folder that holds the data set deepsky-openngc (openngc_bright.tsv); SOURCE is data/source of this
tree, whose deepsky/messier.tsv is read. What is taken of which: skyobjects/dso_images.source.md.
"""
import sys

import tables

HEADER = ("Messier", "Letter", "HalfWidth_arcmin", "RA_deg", "Dec_deg", "Rotation_deg", "Flags", "AspectRatio",
          "Layer", "BlackPoint", "Brightness")
# Messier 102 is NGC 5866 in deepsky/messier.tsv; OpenNGC holds it for a second sight of Messier 101.
BY_NAME = {"NGC5866": "102"}
INDEPENDENT = 2
INDEPENDENT_FROM_ARCMIN = 15.0
# The double star Messier 40 and the four stars of Messier 73, whose extent nobody lists: a field that holds them.
STARS_ONLY_ARCMIN = 3.0
LOWEST_LAYER_FROM_ARCMIN, MIDDLE_LAYER_FROM_ARCMIN = 60.0, 10.0


def measured(originals):
    """The records of OpenNGC by Messier number."""
    objects = {}
    for row in tables.rows(originals, "deepsky-openngc/openngc_bright.tsv"):
        messier = row["M"].lstrip("0") or BY_NAME.get(row["Name"], "")
        if messier:
            objects[messier] = row
    return objects


def extent(listed, found):
    """(major axis, minor axis, position angle): those measured, else a square as wide as the object."""
    if found["MajAx_arcmin"] and found["MinAx_arcmin"] and found["PosAng_deg"]:
        return float(found["MajAx_arcmin"]), float(found["MinAx_arcmin"]), float(found["PosAng_deg"])
    width = float(listed["Largest_arcmin"] or found["MajAx_arcmin"] or STARS_ONLY_ARCMIN)
    return width, width, 0.0


def layer(width):
    return "0" if width >= LOWEST_LAYER_FROM_ARCMIN else "1" if width >= MIDDLE_LAYER_FROM_ARCMIN else "2"


def lines(originals, source):
    found = measured(originals)
    for listed in tables.rows(source, "deepsky/messier.tsv"):
        row = found[listed["Messier"]]
        major, minor, angle = extent(listed, row)
        # The angle of the picture grows from north to west, a position angle from north to east.
        yield (listed["Messier"], "", tables.number(major / 2), tables.number(row["RA_deg"]),
               tables.number(row["DE_deg"]), tables.number(-angle),
               str(INDEPENDENT if major >= INDEPENDENT_FROM_ARCMIN else 0), tables.number(major / minor, 4),
               layer(major), "0", "1")


def main():
    if len(sys.argv) != 3:
        raise SystemExit(__doc__)
    originals, source = sys.argv[1:]
    tables.write(source, "skyobjects/dso_images.tsv", HEADER, lines(originals, source))


main()
