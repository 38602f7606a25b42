#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Makes healpix.tsv with the C library of the HEALPix authors (Debian package libchealpix0).

usage: make_healpix.py [--check]     writes healpix.tsv beside this script, or compares it
"""
import ctypes
import math
import os
import random
import sys

TABLE = os.path.join(os.path.dirname(os.path.abspath(__file__)), "healpix.tsv")
ORDERS = [0, 1, 2, 3, 5, 8, 11, 13]
SKIPPED = 77


def open_library():
    for name in ["libchealpix.so.0", "libchealpix.so"]:
        try:
            return ctypes.CDLL(name)
        except OSError:
            pass
    return None


def directions():
    """Places that are special for the grid, off its borders by more than rounding, and others anywhere."""
    places = [(lon, lat) for lon in range(5, 360, 30) for lat in [-90, -89.99999, -60, -41.9, -41.7, -10, 0.01, 10, 41.7, 41.9, 60, 89.99999, 90]]
    dice = random.Random(20000101)
    places += [(dice.uniform(0, 360), math.degrees(math.asin(dice.uniform(-1, 1)))) for _ in range(200)]
    for lon, lat in places:
        lon, lat = math.radians(lon), math.radians(lat)
        yield math.cos(lat) * math.cos(lon), math.cos(lat) * math.sin(lon), math.sin(lat)


def make(library):
    lines = ["order\tx\ty\tz\tcell\tcentre_x\tcentre_y\tcentre_z"]
    for i, vector in enumerate(directions()):
        order = ORDERS[i % len(ORDERS)]
        given, centre, cell = (ctypes.c_double * 3)(*vector), (ctypes.c_double * 3)(), ctypes.c_long()
        library.vec2pix_nest(ctypes.c_long(1 << order), given, ctypes.byref(cell))
        library.pix2vec_nest(ctypes.c_long(1 << order), cell, centre)
        numbers = [repr(number) for number in vector]
        lines.append("\t".join([str(order), *numbers, str(cell.value), *("%.15g" % number for number in centre)]))
    return "\n".join(lines) + "\n"


def main():
    library = open_library()
    if not library:
        print("libchealpix0 is not installed")
        return SKIPPED
    table = make(library)
    if "--check" not in sys.argv:
        with open(TABLE, "w", encoding="utf-8", newline="\n") as out:
            out.write(table)
        return 0
    with open(TABLE, encoding="utf-8") as old:
        return 0 if old.read() == table else 1


if __name__ == "__main__":
    sys.exit(main())
