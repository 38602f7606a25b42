#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Makes data/source/comets/observation_times.tsv: when comets are seen best.

usage: make_observation_times.py ORIGINALS SOURCE

ORIGINALS is the folder that holds the data set planet-elements-jpl (planet_elements.tsv); SOURCE is data/source of
this tree, whose orbits/comets.tsv is read. How it is done and how good it is: comets/SOURCE.md. Takes some minutes.
"""
import math
import sys

import tables

GM = 0.01720209895 ** 2  # of the Sun, au^3/day^2 (Gauss)
# Mass of the Sun over mass of the planet with its moons (IAU 2009 system, Luzum et al. 2011).
MASS_RATIOS = {"Mercury": 6023600.0, "Venus": 408523.719, "Earth": 328900.5596, "Mars": 3098703.59,
               "Jupiter": 1047.348644, "Saturn": 3497.9018, "Uranus": 22902.98, "Neptune": 19412.26}
J2000 = 2451545.0
CENTURY = 36525.0
FIRST, LAST = 2444239.5, 2473825.5  # 1980-01-01 and 2061-01-01
TRUSTED_EPOCH = 2433282.5           # 1950: returns are computed from elements of later epochs only
LONGEST_PERIOD = 200 * 365.25
# The elements of 27P/Crommelin do not lead back to its return of 1 September 1984.
ONE_RETURN_ONLY = {"27"}
HALF_YEAR = 183
LEAST_ELONGATION = 20.0
STEP = 0.05                         # of the free-fall time at the comet's distance, longest one day


def solve_kepler(mean, e):
    anomaly = mean if e < 0.8 else math.pi
    for _ in range(60):
        change = (anomaly - e * math.sin(anomaly) - mean) / (1.0 - e * math.cos(anomaly))
        anomaly -= change
        if abs(change) < 1e-13:
            break
    return anomaly


def orbit_axes(i, node, peri):
    """Unit vectors to the perihelion and 90 degrees ahead of it, J2000 ecliptic; angles in degrees."""
    i, node, peri = (math.radians(angle) for angle in (i, node, peri))
    ci, si, cn, sn, cp, sp = (f(a) for a in (i, node, peri) for f in (math.cos, math.sin))
    return ((cn * cp - sn * sp * ci, sn * cp + cn * sp * ci, sp * si),
            (-cn * sp - sn * cp * ci, -sn * sp + cn * cp * ci, cp * si))


class Planets:
    """Heliocentric positions day by day from approximate elements (Standish, JPL); each day is computed once."""

    def __init__(self, originals):
        self.elements = [(MASS_RATIOS[row["Name"]], row) for row in
                         tables.rows(originals, "planet-elements-jpl/planet_elements.tsv") if row["Name"] in MASS_RATIOS]
        self.days = {}

    def at(self, day):
        """(GM, position) of the planets, the Earth third, at 0h of the day JD = day + 0.5."""
        if day not in self.days:
            t = (day + 0.5 - J2000) / CENTURY
            self.days[day] = [(GM / ratio, self.position(row, t)) for ratio, row in self.elements]
        return self.days[day]

    @staticmethod
    def position(row, t):
        a, e, i, longitude, varpi, node = (
            float(row[name]) + float(row[rate]) * t for name, rate in
            (("a_au", "da_cy"), ("e", "de_cy"), ("i_deg", "di_cy"), ("L_deg", "dL_cy"), ("varpi_deg", "dvarpi_cy"),
             ("Node_deg", "dNode_cy")))
        anomaly = solve_kepler(math.radians((longitude - varpi + 180.0) % 360.0 - 180.0), e)
        p, q = orbit_axes(i, node, varpi - node)
        return tables.combine((a * (math.cos(anomaly) - e), p), (a * math.sqrt(1 - e * e) * math.sin(anomaly), q))


def acceleration(r, planets):
    r3 = (r[0] * r[0] + r[1] * r[1] + r[2] * r[2]) ** 1.5
    ax, ay, az = -GM * r[0] / r3, -GM * r[1] / r3, -GM * r[2] / r3
    for gm, p in planets:
        dx, dy, dz = p[0] - r[0], p[1] - r[1], p[2] - r[2]
        d3 = (dx * dx + dy * dy + dz * dz) ** 1.5
        p3 = (p[0] * p[0] + p[1] * p[1] + p[2] * p[2]) ** 1.5
        ax += gm * (dx / d3 - p[0] / p3)
        ay += gm * (dy / d3 - p[1] / p3)
        az += gm * (dz / d3 - p[2] / p3)
    return ax, ay, az


def between(a, b, part):
    return [(gm, (p[0] + (q[0] - p[0]) * part, p[1] + (q[1] - p[1]) * part, p[2] + (q[2] - p[2]) * part))
            for (gm, p), (_, q) in zip(a, b)]


def runge_kutta(r, v, h, planets):
    """One classical step of the fourth order; planets at its beginning, middle and end."""
    def shifted(a, b, f):
        return a[0] + f * b[0], a[1] + f * b[1], a[2] + f * b[2]
    a1 = acceleration(r, planets[0])
    v2 = shifted(v, a1, h / 2)
    a2 = acceleration(shifted(r, v, h / 2), planets[1])
    v3 = shifted(v, a2, h / 2)
    a3 = acceleration(shifted(r, v2, h / 2), planets[1])
    v4 = shifted(v, a3, h)
    a4 = acceleration(shifted(r, v3, h), planets[2])
    return (tuple(r[k] + h / 6 * (v[k] + 2 * v2[k] + 2 * v3[k] + v4[k]) for k in range(3)),
            tuple(v[k] + h / 6 * (a1[k] + 2 * a2[k] + 2 * a3[k] + a4[k]) for k in range(3)))


def advance(time, r, v, until, planets):
    """Moves the comet from one JD to another that lies in the same day (from 0h to 0h)."""
    day = math.floor(min(time, until) - 0.5 + 1e-9)
    a, b = planets.at(day), planets.at(day + 1)
    while abs(until - time) > 1e-10:
        longest = STEP * math.sqrt(tables.dot(r, r) ** 1.5 / GM)
        h = math.copysign(min(longest, abs(until - time)), until - time)
        part = time - 0.5 - day
        r, v = runge_kutta(r, v, h, [between(a, b, part), between(a, b, part + h / 2), between(a, b, part + h)])
        time += h
    return r, v


def track(start, r, v, first, last, planets):
    """States at 0h from the day `first` to the day `last`, on the way from the moment `start` to both of them."""
    states = {}
    for step in (1, -1):
        time, state = start, (r, v)
        day = math.floor(start - 0.5) + (1 if step > 0 else 0)
        while day <= last if step > 0 else day >= first:
            state = advance(time, *state, day + 0.5, planets)
            time = day + 0.5
            if first <= day <= last:
                states[day] = state
            day += step
    return states


def elements(row):
    names = ("Epoch_JD_TDB", "q_au", "e", "i_deg", "om_deg", "w_deg", "Perihelion_JD_TDB")
    return [float(row[name]) for name in names]


def state(row, time):
    """Position and velocity on the two-body orbit; of orbits that are no ellipses at the perihelion only."""
    _, q, e, i, node, peri, perihelion = elements(row)
    to_perihelion, ahead = orbit_axes(i, node, peri)
    if time == perihelion:
        speed = math.sqrt(GM * (1 + e) / q)
        return tables.combine((q, to_perihelion)), tables.combine((speed, ahead))
    a = q / (1 - e)
    n = math.sqrt(GM / a ** 3)
    anomaly = solve_kepler((n * (time - perihelion) + math.pi) % (2 * math.pi) - math.pi, e)
    c, s, minor = math.cos(anomaly), math.sin(anomaly), math.sqrt(1 - e * e)
    rate = n / (1 - e * c)
    return (tables.combine((a * (c - e), to_perihelion), (a * minor * s, ahead)),
            tables.combine((-a * rate * s, to_perihelion), (a * minor * rate * c, ahead)))


def perihelia(states):
    """Days behind which the comet is nearest to the Sun."""
    return [day for day in sorted(states) if day + 1 in states and
            tables.dot(*states[day]) < 0.0 <= tables.dot(*states[day + 1])]


def magnitude(position, earth):
    """(magnitude but for a constant, elongation in degrees)"""
    line = tables.combine((1.0, position), (-1.0, earth))
    delta, r = math.sqrt(tables.dot(line, line)), math.sqrt(tables.dot(position, position))
    elongation = math.degrees(math.acos(max(-1.0, min(1.0, -tables.dot(line, earth) / delta /
                                                      math.sqrt(tables.dot(earth, earth))))))
    return 5 * math.log10(delta) + 10 * math.log10(r), elongation


def best_moment(states, perihelion, planets):
    """The JD, to the hour, at which the comet is brightest within half a year of the perihelion; None: never seen."""
    def seen(day):
        return magnitude(states[day][0], planets.at(day)[2][1])
    days = [day for day in range(perihelion - HALF_YEAR, perihelion + HALF_YEAR + 1) if day in states]
    good = [day for day in days if seen(day)[1] >= LEAST_ELONGATION]
    if not good:
        return None
    best = min(good, key=lambda day: seen(day)[0])
    shift = 0.0
    if best - 1 in good and best + 1 in good:  # the vertex of the parabola through the three days
        before, at, after = (seen(day)[0] for day in (best - 1, best, best + 1))
        shift = (before - after) / 2 / (before - 2 * at + after)
    return best + 0.5 + round(max(-0.5, min(0.5, shift)) * 24) / 24


def calendar(jd):
    """(year, month, day, hour); Julian calendar before 1582-10-15 (Meeus, Astronomical Algorithms, 1998, chapter 7)."""
    z = math.floor(jd + 0.5 + 1e-6)
    hour = round((jd + 0.5 - z) * 24)
    if z >= 2299161:
        alpha = math.floor((z - 1867216.25) / 36524.25)
        z += 1 + alpha - alpha // 4
    b = z + 1524
    c = math.floor((b - 122.1) / 365.25)
    d = math.floor(365.25 * c)
    e = math.floor((b - d) / 30.6001)
    month = e - 1 if e < 14 else e - 13
    return c - 4716 if month > 2 else c - 4715, month, b - d - math.floor(30.6001 * e), hour


def comet_lines(row, planets):
    epoch, q, e, _, _, _, perihelion = elements(row)
    returns = (int(row["Number"]) < 1001 and row["Number"] not in ONE_RETURN_ONLY and e < 1 and epoch >= TRUSTED_EPOCH and
               2 * math.pi * math.sqrt((q / (1 - e)) ** 3 / GM) < LONGEST_PERIOD)
    if returns:
        states = track(epoch, *state(row, epoch), math.floor(FIRST) - HALF_YEAR, math.floor(LAST) + HALF_YEAR, planets)
        passages = [day for day in perihelia(states) if FIRST <= day + 0.5 < LAST]
    else:
        passages = [math.floor(perihelion - 0.5)]
        states = track(perihelion, *state(row, perihelion), passages[0] - HALF_YEAR, passages[0] + HALF_YEAR, planets)
    for passage in passages:
        best = best_moment(states, passage, planets)
        if best is None:
            print(f"{row['Name']}: never {LEAST_ELONGATION:.0f} degrees from the Sun around {calendar(passage + 0.5)}")
            continue
        year, month, day, hour = calendar(best)
        yield ("comt", row["Number"], row["Name"], str(year), str(month), str(day), str(hour))
        print(row["Name"], "perihelion", calendar(passage + 0.5)[:3], "best", (year, month, day, hour), flush=True)


def main():
    if len(sys.argv) != 3:
        raise SystemExit(__doc__)
    originals, source = sys.argv[1:]
    planets = Planets(originals)
    lines = [line for row in tables.rows(source, "orbits/comets.tsv") for line in comet_lines(row, planets)]
    tables.write(source, "comets/observation_times.tsv",
                 ("Kind", "Number", "Comet", "Year", "Month", "Day", "Hour_UT"), lines)


main()
