#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Computes pluto_chebyshev.tsv (SOURCE.md): integrates Pluto from 1600 to 2200 and keeps it as Chebyshev polynomials.

Usage: fit_pluto.py LIBNOVA_A [FILE]        LIBNOVA_A: libnova.a 0.16 (Debian: libnova-dev), for x86_64; FILE: written instead

Needs numpy and DE405 as Debian packs it (casacore-data-jpl-de405, python3-casacore). Takes some minutes. Needed again only
for another ephemeris; make_planets.py, which the build checks, reads what this script writes.
"""
import pathlib
import sys

import numpy
from casacore.tables import table

import select_series

HERE = pathlib.Path(__file__).resolve().parent
DE405 = "/usr/share/casacore/data/ephemerides/DE405"
GIANTS = ("jupiter", "saturn", "uranus", "neptune")
START, STEP = 2451536.5, 10.0          # where the integration starts, its step in days
FIRST, DAYS, PIECES, DEGREE = 2305447.5, 7305.0, 30, 15
TO_EQUATOR = numpy.array([[1, 0.000000440360, -0.000000190919], [-0.000000479966, 0.917482137087, -0.397776982902],
                          [0, 0.397776982902, 0.917482137087]])

# First coefficient (from 0), number of coefficients, sets in a record of 32 days; kilometres about the
# barycentre.
LAYOUT = {1: (0, 14, 4), 2: (168, 10, 2), "emb": (228, 13, 2), 4: (306, 11, 1), 9: (420, 6, 1),
          "sun": (750, 11, 2)}


class Ephemeris:
    def __init__(self):
        data = table(DE405, ack=False)
        self.constants = data.getkeywords()
        self.first_day, self.records = data.getcol("MJD"), data.getcol("x")

    def barycentric(self, body, date):
        day = date - 2400000.5
        record = numpy.searchsorted(self.first_day, day, side="right") - 1
        offset, count, sets = LAYOUT[body]
        place = (day - self.first_day[record]) * sets / 32.0
        index = min(int(place), sets - 1)
        start = offset + index * 3 * count
        coefficients = self.records[record][start:start + 3 * count].reshape(3, count)
        return numpy.polynomial.chebyshev.chebval(2 * (place - index) - 1, coefficients.T) / self.constants["AU"]

    def heliocentric(self, body, date):
        return self.barycentric(body, date) - self.barycentric("sun", date)


def giant_series(library, planet):
    """The terms of VSOP87B above 0.02 arc second, terms that grow measured 3000 years from J2000.0."""
    kept, series = select_series.tables(library, planet + ".o"), {}
    names = {"L": "longitude_l", "B": "latitude_b", "R": "radius_r"}
    distance = select_series.unpack("3d", kept[f"{planet}_radius_r0"])[0][0]
    for variable, name in names.items():
        limit = 0.02 * select_series.ARC_SECOND * (distance if variable == "R" else 1)
        for power in range(6):
            rows = select_series.unpack("3d", kept.get(f"{planet}_{name}{power}", b""))
            rows = [row for row in rows if abs(row[0]) * 3 ** power > limit]
            if rows:
                series[variable, power] = numpy.array(rows)
    return series


def places(series, dates):
    time = (dates - 2451545.0) / 365250.0
    value = {variable: numpy.zeros_like(time) for variable in "LBR"}
    for (variable, power), rows in series.items():
        for first in range(0, len(time), 4000):
            t = time[first:first + 4000]
            value[variable][first:first + 4000] += t ** power * (
                numpy.cos(rows[:, 1] + numpy.outer(t, rows[:, 2])) @ rows[:, 0])
    lon, lat, radius = value["L"], value["B"], value["R"]
    return (TO_EQUATOR @ (radius * numpy.array([numpy.cos(lat) * numpy.cos(lon), numpy.cos(lat) * numpy.sin(lon),
                                                numpy.sin(lat)]))).T


class Motion:
    """Pluto about the Sun with Mercury to Mars added to its mass, disturbed by the giants; steps of Runge and Kutta."""

    def __init__(self, library, constants):
        self.series = [giant_series(library, planet) for planet in GIANTS]
        self.centre = sum(constants[name] for name in ("GMS", "GM1", "GM2", "GMB", "GM4"))
        self.giants = [constants[name] for name in ("GM5", "GM6", "GM7", "GM8")]
        self.tables = {}

    def acceleration(self, position, giants):
        total = -self.centre * position / numpy.linalg.norm(position) ** 3
        for gravity, giant in zip(self.giants, giants):
            away = position - giant
            total = total - gravity * (away / numpy.linalg.norm(away) ** 3 + giant / numpy.linalg.norm(giant) ** 3)
        return total

    def run(self, state, steps, step):
        key = (steps, step)
        if key not in self.tables:
            dates = START + numpy.arange(2 * steps + 1) * step / 2
            self.tables[key] = numpy.stack([places(series, dates) for series in self.series], 1)
        giants = self.tables[key]
        position, velocity = state[:3].copy(), state[3:].copy()
        way = [position]
        for index in range(steps):
            begin, middle, end = giants[2 * index:2 * index + 3]
            v1, a1 = velocity, self.acceleration(position, begin)
            v2, a2 = velocity + step / 2 * a1, self.acceleration(position + step / 2 * v1, middle)
            v3, a3 = velocity + step / 2 * a2, self.acceleration(position + step / 2 * v2, middle)
            v4, a4 = velocity + step * a3, self.acceleration(position + step * v3, end)
            position = position + step / 6 * (v1 + 2 * v2 + 2 * v3 + v4)
            velocity = velocity + step / 6 * (a1 + 2 * a2 + 2 * a3 + a4)
            way.append(position)
        return way

    def both_ways(self, state, before, after):
        back = self.run(state, before, -STEP)
        way = back[::-1][:-1] + self.run(state, after, STEP)
        return START + STEP * numpy.arange(-before, after + 1), numpy.array(way)


def fitted_start(ephemeris, motion):
    inner = ((1, "GM1"), (2, "GM2"), ("emb", "GMB"), (4, "GM4"))

    def observed(date):
        shift = sum(ephemeris.constants[gm] * ephemeris.heliocentric(body, date) for body, gm in inner) / motion.centre
        return ephemeris.heliocentric(9, date) - shift

    slope = (observed(START - 2) - 8 * observed(START - 1) + 8 * observed(START + 1) - observed(START + 2)) / 12
    state = numpy.concatenate([observed(START), slope])
    before, after = 1450, 2150
    chosen = slice(0, None, 10)
    dates, _ = motion.both_ways(state, before, after)
    wanted = numpy.array([observed(date) for date in dates[chosen]])
    for _ in range(2):
        way = motion.both_ways(state, before, after)[1][chosen]
        columns = []
        for index in range(6):
            change = numpy.zeros(6)
            change[index] = 1e-5 if index < 3 else 1e-9
            moved = motion.both_ways(state + change, before, after)[1][chosen]
            columns.append(((moved - way) / change[index]).ravel())
        state = state + numpy.linalg.lstsq(numpy.array(columns).T, (wanted - way).ravel(), rcond=None)[0]
    return state


def rows(dates, way):
    yield "First\tDays\tAxis\t" + "\t".join(f"c{index}" for index in range(DEGREE + 1))
    for piece in range(PIECES):
        first = FIRST + piece * DAYS
        inside = (dates >= first - 20) & (dates <= first + DAYS + 20)
        for axis, name in enumerate("XYZ"):
            fit = numpy.polynomial.chebyshev.chebfit(2 * (dates[inside] - first) / DAYS - 1, way[inside, axis], DEGREE)
            yield f"{first:.1f}\t{DAYS:.1f}\t{name}\t" + "\t".join(f"{value:.8f}" for value in fit)


def main():
    ephemeris = Ephemeris()
    motion = Motion(sys.argv[1], ephemeris.constants)
    state = fitted_start(ephemeris, motion)
    dates, way = motion.both_ways(state, int(401 * 36.525), int(201 * 36.525))
    target = HERE / "pluto_chebyshev.tsv" if len(sys.argv) < 3 else pathlib.Path(sys.argv[2])
    target.write_text("\n".join(rows(dates, way)) + "\n")


if __name__ == "__main__":
    main()
