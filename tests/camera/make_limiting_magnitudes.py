#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Writes limiting_magnitudes.txt: the limits of every class of objects at many zooms, from the rule alone.

usage: make_limiting_magnitudes.py > limiting_magnitudes.txt

The rule: a limit is (log10(zoom) * slope + base) * 10 + correction, in magnitude codes, held between 0 and 254 and
kept in single precision. The drawing threshold is the object limit minus its correction plus the draw offset, at
most 254; as a byte it is cut to a whole number and wraps below 0. Limits as bytes are cut to whole numbers.
"""
import math
import struct

# class, base, slope, draw offset
CLASSES = [("star", 6, 4, 35), ("clst", 6, 3, 85), ("gala", 0, 2, 155), ("nebu", 6, 3, 85), ("dsnv", 0, 2, 75),
           ("plnt", 6, 3, 75), ("moon", 6, 3, 75), ("astr", 6, 3, 75), ("comt", 6, 3, 75), ("scft", 9, 3, 75)]
ZOOMS = [0.1, 0.15, 0.2, 0.3, 0.5, 0.65, 0.8, 1, 1.2, 1.5, 2, 3, 4, 5, 7, 10, 15, 20, 30, 50, 70, 100, 150, 200, 300,
         500, 700, 1000]
# Corrections of the object and label rows of the n-th class.
CORRECTIONS = [lambda n: (0, 0), lambda n: (7 * n - 30, 25 - 6 * n), lambda n: (120, -120)]


def single(x):
    return struct.unpack("f", struct.pack("f", x))[0]


def limit(zoom, base, slope, correction):
    return single(min(max((math.log10(zoom) * slope + base) * 10.0 + correction, 0.0), 254.0))


def main():
    print("# Made by make_limiting_magnitudes.py; do not edit.")
    print("# class zoom | corrections: object label | limits: object, label | drawing threshold; each exact and as byte")
    for corrections in CORRECTIONS:
        for n, (name, base, slope, offset) in enumerate(CLASSES):
            c_object, c_label = corrections(n)
            for zoom in ZOOMS:
                o = limit(zoom, base, slope, c_object)
                l = limit(zoom, base, slope, c_label)
                draw = single(single(o - c_object) + offset)
                draw_byte = 254 if int(draw) > 254 else int(draw) & 0xFF
                print(f"{name} {zoom:g} | {c_object} {c_label} | {o:.3f} {int(o)} {l:.3f} {int(l)} | "
                      f"{min(draw, 254.0):.3f} {draw_byte}")


main()
