#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Writes the tables of events that the tests compare with, from PyEphem 4.1.4 (Debian: python3-ephem).

PyEphem gives apparent places alone (the Sun by VSOP87, the Moon by a theory fitted to DE404); the events are
searched for here. Times are Julian dates in TT, by PyEphem's own delta T; risings in UT. Run without
arguments; the tables are written beside this script.
"""
import math
import pathlib

import ephem

HERE = pathlib.Path(__file__).parent
DUBLIN = 2415020.0  # PyEphem counts days from there
PLACES = {  # latitude, longitude east, degrees
    "Quito": (-0.18, -78.47), "Sydney": (-33.87, 151.21), "Berlin": (52.52, 13.41),
    "Reykjavik": (64.15, -21.94), "Ushuaia": (-54.80, -68.30), "Honolulu": (21.31, -157.86),
}
BODIES = {"Sun": ephem.Sun, "Moon": ephem.Moon, "Venus": ephem.Venus, "Jupiter": ephem.Jupiter}


def dynamical(date):
    return DUBLIN + date + ephem.delta_t(date) / 86400.0


def obliquity(date):
    """The true one, to 0.5 arc second."""
    t = (DUBLIN + date - 2451545.0) / 36525.0
    node = math.radians(125.04 - 1934.136 * t)
    sun = math.radians(280.47 + 36000.77 * t)
    return math.radians((84381.41 - 46.837 * t + 9.20 * math.cos(node) + 0.57 * math.cos(2 * sun)) / 3600.0)


def ecliptic(body, date):
    """Longitude and latitude of date of the apparent place from the Earth's centre."""
    body.compute(date, epoch=date)
    ra, dec, tilt = float(body.g_ra), float(body.g_dec), obliquity(date)
    x, y, z = math.cos(dec) * math.cos(ra), math.cos(dec) * math.sin(ra), math.sin(dec)
    y, z = y * math.cos(tilt) + z * math.sin(tilt), z * math.cos(tilt) - y * math.sin(tilt)
    return math.atan2(y, x), math.asin(z)


def crossing(function, a, b):
    """The date at which a function passes zero."""
    fa = function(a)
    while b - a > 1e-7:
        middle = 0.5 * (a + b)
        value = function(middle)
        if (value < 0.0) == (fa < 0.0):
            a = middle
        else:
            b = middle
    return 0.5 * (a + b)


def zeros(function, first, last, step):
    """Every date at which a function passes zero, and whether upwards; jumps of an angle left out."""
    a, fa = first, function(first)
    while a < last:
        b = a + step
        fb = function(b)
        if (fa < 0.0) != (fb < 0.0) and abs(fb - fa) < math.pi:
            date = crossing(function, a, b)
            if date < last:
                yield date, fb > 0.0
        a, fa = b, fb


def wrap(angle):
    return math.remainder(angle, 2.0 * math.pi)


def write(name, header, rows):
    with open(HERE / name, "w", encoding="ascii", newline="\n") as file:
        file.write("\t".join(header) + "\n")
        for row in rows:
            file.write("\t".join(row) + "\n")


def seasons(sun):
    def quarters(date):
        return wrap(4.0 * ecliptic(sun, date)[0])

    for date, _ in zeros(quarters, ephem.Date("1900/1/1"), ephem.Date("2101/1/1"), 20.0):
        yield "%.6f" % dynamical(date), "%d" % (round(ecliptic(sun, date)[0] / (0.5 * math.pi)) % 4)


def phases(sun, moon):
    def elongation(date):
        return wrap(ecliptic(moon, date)[0] - ecliptic(sun, date)[0])

    for year in range(1900, 2101, 5):
        first, last = ephem.Date("%d/1/1" % year), ephem.Date("%d/1/1" % (year + 1))
        for date, _ in zeros(lambda at: wrap(4.0 * elongation(at)), first, last, 1.5):
            yield "%.6f" % dynamical(date), "%d" % (round(elongation(date) / (0.5 * math.pi)) % 4)


def nodes(moon):
    for year in range(1900, 2101, 10):
        first, last = ephem.Date("%d/1/1" % year), ephem.Date("%d/1/1" % (year + 1))
        for date, up in zeros(lambda at: ecliptic(moon, at)[1], first, last, 3.0):
            yield "%.6f" % dynamical(date), "%d" % up


def apsides(moon):
    """By the rate of the distance, from four neighbours; the distance itself has some 20 m of rounding."""
    def distance(date):
        moon.compute(date)
        return moon.earth_distance * 149597870.7

    def rate(date):
        near, far = distance(date + 0.25) - distance(date - 0.25), distance(date + 0.5) - distance(date - 0.5)
        return 1e-6 * (8.0 * near - far)

    for year in range(1900, 2101, 10):
        first, last = ephem.Date("%d/1/1" % year), ephem.Date("%d/1/1" % (year + 1))
        for date, perigee in zeros(rate, first, last, 3.0):
            yield "%.6f" % dynamical(date), "%d" % perigee, "%.1f" % distance(date)


def risings():
    for name, (latitude, longitude) in PLACES.items():
        place = ephem.Observer()
        place.lat, place.lon, place.pressure = str(latitude), str(longitude), 0.0
        place.horizon = "-0:34"
        for year in range(1902, 2100, 18):
            for body_name, kind in BODIES.items():
                centre = body_name not in ("Sun", "Moon")
                for what, search in (("rise", "next_rising"), ("transit", "next_transit"), ("set", "next_setting")):
                    place.date = ephem.Date("%d/%d/3" % (year, 1 + (year // 18) % 12))
                    body = kind()
                    options = {} if what == "transit" else {"use_center": centre}
                    try:
                        date = getattr(place, search)(body, **options)
                    except ephem.CircumpolarError:
                        continue
                    yield (name, "%.4f" % latitude, "%.4f" % longitude, body_name, what,
                           "%.6f" % (DUBLIN + place.date), "%.6f" % (DUBLIN + date))


STARS = {  # J2000, no proper motion
    "Aldebaran": ("4:35:55.24", "16:30:33.5"), "Regulus": ("10:08:22.31", "11:58:02.0"),
    "Spica": ("13:25:11.58", "-11:09:40.8"), "Antares": ("16:29:24.46", "-26:25:55.2"),
}


def target(name):
    if name in STARS:
        return ephem.readdb("%s,f|S,%s,%s,1.0,2000" % ((name,) + STARS[name]))
    return getattr(ephem, name)()


def outside_edge(place, moon, body, date):
    """Radians from the edge of the Moon, of 0.2725076 equatorial radii of the Earth, as the place sees it."""
    place.date = date
    moon.compute(place)
    body.compute(place)
    distance = moon.earth_distance * 149597870.7 / 6378.137  # from the place
    return float(ephem.separation(moon, body)) - math.asin(0.2725076 / distance)


def occultations():
    """Those above the horizon by a degree at least."""
    moon = ephem.Moon()
    for name in list(STARS) + ["Venus", "Mars", "Jupiter", "Saturn"]:
        body, near = target(name), []
        date, last = ephem.Date("2016/1/1"), ephem.Date("2026/1/1")
        while date < last:
            moon.compute(date)
            body.compute(date)
            if ephem.separation(moon, body) < math.radians(4.0):
                near.append(date)
            date += 0.125
        for place_name, (latitude, longitude) in PLACES.items():
            place = ephem.Observer()
            place.lat, place.lon, place.pressure = str(latitude), str(longitude), 0.0
            for start in near:
                step = 0.125 / 36.0
                before = outside_edge(place, moon, body, start)
                for index in range(1, 37):
                    date = start + index * step
                    now = outside_edge(place, moon, body, date)
                    if (before < 0.0) != (now < 0.0):
                        moment = crossing(lambda at: outside_edge(place, moon, body, at), date - step, date)
                        outside_edge(place, moon, body, moment)
                        if body.alt > math.radians(1.0):
                            yield (place_name, "%.4f" % latitude, "%.4f" % longitude, name,
                                   "begin" if now < 0.0 else "end", "%.6f" % (DUBLIN + moment),
                                   "%.2f" % math.degrees(body.alt))
                    before = now


def main():
    sun, moon = ephem.Sun(), ephem.Moon()
    write("event_seasons.tsv", ("jd_tt", "quarter"), seasons(sun))
    write("event_phases.tsv", ("jd_tt", "quarter"), phases(sun, moon))
    write("event_nodes.tsv", ("jd_tt", "ascending"), nodes(moon))
    write("event_apsides.tsv", ("jd_tt", "perigee", "km"), apsides(moon))
    write("event_risings.tsv", ("place", "lat", "lon", "body", "what", "from_ut", "jd_ut"), risings())
    write("event_occultations.tsv", ("place", "lat", "lon", "body", "what", "jd_ut", "altitude"), occultations())


if __name__ == "__main__":
    main()
