#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Makes data/source/bodies/planets_moons.tsv.

usage: make_bodies.py ORIGINALS SOURCE

ORIGINALS is the folder that holds the data set bodies-naif (planets_moons.tsv: Kind, Number, Name); SOURCE is
data/source of this tree.
"""
import sys

import tables


def main():
    if len(sys.argv) != 3:
        raise SystemExit(__doc__)
    originals, source = sys.argv[1:]
    bodies = [(row["Kind"], row["Number"], row["Name"], "")
              for row in tables.rows(originals, "bodies-naif/planets_moons.tsv")]
    bodies.sort(key=lambda body: (body[0] != "plnt", int(body[1])))
    tables.write(source, "bodies/planets_moons.tsv", ("Kind", "Number", "Name", "Flag"), bodies)


main()
