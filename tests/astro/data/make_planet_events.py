#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Writes planet_events.tsv: what planets, Moon and Sun do in some years, found by looks at PyEphem (places and delta T)
and liberfa (obliquity), with a search of its own: values in steps, and halving. Usage: make_planet_events.py FILE"""
import math
import sys

import ephem
import erfa

YEARS = (1905, 1938, 1971, 2004, 2037, 2070)
PLANETS = {1: ephem.Mercury, 2: ephem.Venus, 4: ephem.Mars, 5: ephem.Jupiter, 6: ephem.Saturn, 7: ephem.Uranus,
           8: ephem.Neptune}
SUN, MOON = 10, 301
STEP = 1.0
HALF = 0.02


def equator(body, date):
    """Apparent right ascension and declination; `date`: ephem's, Universal Time."""
    seen = {**PLANETS, SUN: ephem.Sun, MOON: ephem.Moon}[body]()
    seen.compute(date)
    return float(seen.g_ra), float(seen.g_dec)


def dynamical(date):
    return float(date) + 2415020.0 + ephem.delta_t(date) / 86400.0


def longitude(body, date):
    ra, dec = equator(body, date)
    tt = dynamical(date)
    tilt = erfa.obl06(tt, 0.0) + erfa.nut06a(tt, 0.0)[1]
    return math.atan2(math.sin(ra) * math.cos(tilt) + math.tan(dec) * math.sin(tilt), math.cos(ra))


def vector(body, date):
    ra, dec = equator(body, date)
    return math.cos(dec) * math.cos(ra), math.cos(dec) * math.sin(ra), math.sin(dec)


def square(a, b, date):
    return sum((x - y) ** 2 for x, y in zip(vector(a, date), vector(b, date)))


def separation(a, b, date):
    return 2.0 * math.asin(0.5 * math.sqrt(square(a, b, date)))


def wrap(angle):
    return math.remainder(angle, 2.0 * math.pi)


def zeros(function, begin, end):
    before = function(begin)
    for k in range(1, int((end - begin) / STEP) + 1):
        a, b = begin + (k - 1) * STEP, begin + k * STEP
        after = function(b)
        if (before < 0) != (after < 0) and abs(after - before) < 3.0:
            low, high = a, b
            for _ in range(26):
                middle = 0.5 * (low + high)
                if (function(middle) < 0) == (before < 0):
                    low = middle
                else:
                    high = middle
            yield 0.5 * (low + high), after > before
        before = after


def conjunctions(begin, end):
    bodies = [*PLANETS, MOON]
    for i, a in enumerate(bodies):
        for b in bodies[i + 1:]:
            for date, _ in zeros(lambda t: wrap(equator(a, t)[0] - equator(b, t)[0]), begin, end):
                yield "conjunction", date, a, b, equator(a, date)[1] - equator(b, date)[1]


def appulses(begin, end):
    for a in PLANETS:
        for b in PLANETS:
            if a >= b:
                continue
            for date, rises in zeros(lambda t: square(a, b, t + HALF) - square(a, b, t - HALF), begin, end):
                apart = separation(a, b, date)
                if rises and apart < math.radians(5.0):
                    yield "appulse", date, a, b, apart


def with_sun(begin, end):
    for a in PLANETS:
        for date, _ in zeros(lambda t: wrap(longitude(a, t) - longitude(SUN, t)), begin, end):
            body, sun = PLANETS[a](date), ephem.Sun(date)
            inferior = body.earth_distance < sun.earth_distance
            yield "inferior" if inferior else "superior", date, a, SUN, body.earth_distance
        if a > 2:
            for date, _ in zeros(lambda t: wrap(longitude(a, t) - longitude(SUN, t) - math.pi), begin, end):
                yield "opposition", date, a, SUN, PLANETS[a](date).earth_distance
        else:
            for date, rises in zeros(lambda t: square(a, SUN, t + HALF) - square(a, SUN, t - HALF), begin, end):
                if not rises:
                    east = wrap(longitude(a, date) - longitude(SUN, date)) > 0
                    yield "elongation_east" if east else "elongation_west", date, a, SUN, separation(a, SUN, date)


def stations(begin, end):
    for a in PLANETS:
        rate = lambda t: wrap(equator(a, t + 0.05)[0] - equator(a, t - 0.05)[0])
        for date, rises in zeros(rate, begin, end):
            yield "direct" if rises else "retrograde", date, a, -1, equator(a, date)[0]


def main():
    rows = []
    for year in YEARS:
        begin = float(ephem.Date(f"{year}/1/1"))
        end = begin + 365.0
        for find in (conjunctions, appulses, with_sun, stations):
            rows += sorted((dynamical(date), kind, body, other, value) for kind, date, body, other, value in
                           find(begin, end))
    with open(sys.argv[1], "w", encoding="utf-8", newline="\n") as file:
        file.write("JD_TT\tKind\tBody\tOther\tValue\n")
        for date, kind, body, other, value in rows:
            file.write(f"{date:.5f}\t{kind}\t{body}\t{other}\t{value:.6f}\n")


if __name__ == "__main__":
    main()
