#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Light curves of the modelled variable stars, worked out apart from the library, in exact fractions where the curve is
made of straight lines.

usage: make_light_curves.py            writes light_curves.txt beside this script
       make_light_curves.py --check    compares it with what would be written; 1 when they differ

Each branch of each curve is tried, and every date at which a branch begins or ends from both sides: the date itself,
the next double below and above it, and a minute before and after.
"""
import math
import os
import sys
from fractions import Fraction as F

FILE = os.path.join(os.path.dirname(os.path.abspath(__file__)), "light_curves.txt")
MINUTE = 1.0 / 1440.0

# epoch, period, base, amplitude, wave
PERIODIC = {
    0x48780B23: ("2451912.29", "2.86731", "2.11", "1.38", "eclipse"),
    0x4B710A52: ("2451186.45", "12.9138", "3.25", "1.1", "cos"),
    0x52230A71: ("2453148.0", "408.05", "3.3", "10.9", "sin"),
    0x45C70F9B: ("2451181.69", "5.36634", "3.48", "1.0", "sin"),
    0x41EE0C46: ("2451179.3", "0.5669", "7.06", "1.05", "sin"),
    0x44781255: ("2452154.0", "333.8", "2.0", "8.1", "sin"),
}
USER = {
    0x2F5DC054: ("2106219.0", "-4.8"),
    0x3C24553D: ("2088606.0", "-9.0"),
    0x0DC3C508: ("2295520.5", "-4.0"),
    0x295848A3: ("2307170.5", "-2.8"),
    0x46FA33D6: ("2409751.0", "5.8"),
    0x33703631: ("2446831.0", "4.5"),
}


def periodic(star, jd):
    epoch, period, base, amplitude, wave = star
    x = abs(F(jd) - F(epoch)) / F(period)
    phase = float(x - math.floor(x))
    half = math.cos(2.0 * math.pi * phase) / 2.0  # cos^2 = 1/2 + half, sin^2 = 1/2 - half
    if wave == "sin":
        return float(F(base)) + float(F(amplitude)) * (0.5 - half)
    change = float(F(amplitude)) * (0.5 + half)
    if wave == "eclipse" and change < 1.35:
        change = 0.0
    return float(F(base)) + change


def recurrent(jd):
    k = math.floor((F(jd) - F("2431839.5")) / 29000)
    after = F(jd) - (29000 * k + F("2431860.5"))
    if after <= -5 or after >= 60:
        return F("10.25")
    if after < 0:
        return 2 - F("1.76") * after
    return 2 + F("0.14666666666666667") * after


def nova(jd):
    after = F(jd) - F("2421753.5")
    if after <= -2 or after >= 320:
        return F("11.76")
    if after < 0:
        return -after * F("6.58") - F("1.4")
    if after <= 10:
        return after * F("0.44") - F("1.4")
    return after * F("0.027375") + 3


def user_nova(jd):
    after = F(jd) - 2442655
    if after <= -2 or after >= 320:
        return F(23)
    if after < 0:
        return -after * F("10.655") + F("1.69")
    if after <= 5:
        return after * F("0.662") + F("1.69")
    return after * F("0.05625") + 5


def supernova(star, jd):
    start, brightest = F(star[0]), F(star[1])
    after = F(jd) - start
    if after <= 0 or after >= 340:
        return F(16)
    if after < 20:
        return (20 - after) * F("0.8") + brightest
    return (after - 20) * F("0.05") + brightest


def sides(bound):
    return [bound - MINUTE, math.nextafter(bound, 0.0), bound, math.nextafter(bound, math.inf), bound + MINUTE]


def between(first, last, count):
    return [first + (last - first) * (i + 0.5) / count for i in range(count)]


def periodic_dates(star):
    epoch, period = float(star[0]), float(star[1])
    dates = [epoch + period * turn + period * part for turn in (-700, -1, 0, 3) for part in
             (0.05, 0.1, 0.2, 0.25, 0.3, 0.45, 0.5, 0.55, 0.7, 0.75, 0.9, 0.95)]
    dates.append(epoch)
    if star[4] == "eclipse":
        # Where 1.38 cos^2 is 1.35: two seconds on either side of it, before and after the epoch and a turn later.
        edge = period * math.acos(math.sqrt(1.35 / 1.38)) / math.pi
        for turn in (-1, 0, 1, 5):
            for side in (-edge, edge):
                at = epoch + turn * period + side
                dates += [round(at - 2.0 / 86400.0, 6), round(at + 2.0 / 86400.0, 6)]
    return dates


def rows():
    for number, star in PERIODIC.items():
        for jd in periodic_dates(star):
            yield "star", number, jd, periodic(star, jd)
    for cycle in (-2, -1, 0, 1, 2):
        turn, outburst = 29000 * cycle + 2431839.5, 29000 * cycle + 2431860.5
        dates = sides(turn) + sides(outburst - 5) + sides(outburst) + sides(outburst + 60)
        dates += between(outburst - 5, outburst, 4) + between(outburst, outburst + 60, 6)
        dates += between(outburst + 60, outburst + 28000, 3)
        for jd in dates:
            yield "star", 0x447807F5, jd, recurrent(jd)
    for kind, number, curve, first, peak, slow, last in (
            ("star", 0x41A701C0, nova, 2421751.5, 2421753.5, 2421763.5, 2422073.5),
            ("user", 0x77C91FD3, user_nova, 2442653.0, 2442655.0, 2442660.0, 2442975.0)):
        dates = sides(first) + sides(peak) + sides(slow) + sides(last) + [first - 4000.0, last + 4000.0]
        dates += between(first, peak, 3) + between(peak, slow, 4) + between(slow, last, 5)
        for jd in dates:
            yield kind, number, jd, curve(jd)
    for number, star in USER.items():
        start = float(star[0])
        dates = sides(start) + sides(start + 20) + sides(start + 340) + [start - 5000.0, start + 5000.0]
        dates += between(start, start + 20, 3) + between(start + 20, start + 340, 5)
        for jd in dates:
            yield "user", number, jd, supernova(star, jd)


def table():
    lines = ["# Made by make_light_curves.py; do not edit.", "# list identifier Julian_date magnitude"]
    lines += [f"{kind} 0x{number:08X} {jd!r} {float(magnitude):.9f}" for kind, number, jd, magnitude in rows()]
    return "\n".join(lines) + "\n"


def main():
    if sys.argv[1:] == ["--check"]:
        with open(FILE, encoding="utf-8") as file:
            same = file.read() == table()
        print("light_curves.txt is current" if same else "light_curves.txt differs from what its script makes")
        return 0 if same else 1
    with open(FILE, "w", encoding="utf-8", newline="\n") as file:
        file.write(table())
    return 0


if __name__ == "__main__":
    sys.exit(main())
