#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Makes near_parabolic.tsv: positions and velocities on orbits with e = 1 and on both sides of it.

usage: make_near_parabolic.py [--check]

Kepler's equation, as it stands in every textbook, is solved by bisection with 80 digits (mpmath): digits enough to lose.
--check compares with the table that is there. Without mpmath the script does nothing and ends with 77 (skipped).
"""
import os
import sys

try:
    from mpmath import mp, mpf
except ImportError:
    print("mpmath is not installed: nothing compared")
    sys.exit(77)

mp.dps = 80
GAUSS = mpf("0.01720209895")
TABLE = os.path.join(os.path.dirname(os.path.abspath(__file__)), "near_parabolic.tsv")
HEADER = ["e_minus_1", "q_au", "dt_days", "x_au", "y_au", "vx_au_day", "vy_au_day"]
PERICENTRES = [0.0078125, 0.5, 1.0, 4.0]
DAYS = [0.0009765625, 1.0, 64.0, -1000.0, 20000.0, -1000000.0]


def bisect(function, low, high):
    for _ in range(300):
        middle = (low + high) / 2
        low, high = (middle, high) if function(middle) < 0 else (low, middle)
    return (low + high) / 2


def state(excess, q, days):
    """Components along the direction of the pericentre and ahead of it, mu = GAUSS^2."""
    e = 1 + excess
    if excess == 0:
        mean = GAUSS / mp.sqrt(2 * q ** 3) * days
        t = bisect(lambda t: t + t ** 3 / 3 - mean, -mpf(10) ** 6, mpf(10) ** 6)
        rate = GAUSS / mp.sqrt(2 * q ** 3) / (1 + t * t)
        return q * (1 - t * t), 2 * q * t, -2 * q * t * rate, 2 * q * rate
    axis = q / abs(excess)
    motion = GAUSS / mp.sqrt(axis ** 3)
    mean = motion * days
    width = axis * mp.sqrt(abs(1 - e * e))
    if excess < 0:
        mean = mean - 2 * mp.pi * mp.nint(mean / (2 * mp.pi))
        anomaly = bisect(lambda u: u - e * mp.sin(u) - mean, -mp.pi, mp.pi)
        rate = motion / (1 - e * mp.cos(anomaly))
        sine, cosine = mp.sin(anomaly), mp.cos(anomaly)
        return axis * (cosine - e), width * sine, -axis * sine * rate, width * cosine * rate
    anomaly = bisect(lambda u: e * mp.sinh(u) - u - mean, -mpf(60), mpf(60))
    rate = motion / (e * mp.cosh(anomaly) - 1)
    sine, cosine = mp.sinh(anomaly), mp.cosh(anomaly)
    return axis * (e - cosine), width * sine, -axis * sine * rate, width * cosine * rate


def excesses():
    """Differences from 1 that a double next to 1 holds, near 10^-3 to 10^-15, and 0."""
    for power in range(3, 16):
        for sign in (-1, 1):
            yield mpf((1.0 + sign * 10.0 ** -power) - 1.0)
    yield mpf(0)


def make():
    lines = ["\t".join(HEADER)]
    for excess in excesses():
        for q in PERICENTRES:
            for days in DAYS:
                row = [repr(float(excess)), repr(q), repr(days)]
                row += [mp.nstr(v, 20, min_fixed=0, max_fixed=0) for v in state(excess, mpf(q), mpf(days))]
                lines.append("\t".join(row))
    return "\n".join(lines) + "\n"


text = make()
if "--check" not in sys.argv:
    with open(TABLE, "w", encoding="ascii", newline="\n") as table:
        table.write(text)
else:
    with open(TABLE, encoding="ascii", newline="") as table:
        if table.read() != text:
            sys.exit("near_parabolic.tsv is not what the script makes")
