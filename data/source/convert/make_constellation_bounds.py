#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Makes data/source/constellations/bounds.tsv: the boundaries of the constellations, each edge once.

usage: make_constellation_bounds.py ORIGINALS SOURCE

ORIGINALS is the folder that holds the data set constellations-d3 (bounds.tsv: a ring for each constellation, J2000);
SOURCE is data/source of this tree. The boundaries run along right ascension and declination of the equinox B1875, to
whole seconds of time and minutes of arc: taken back there, the vertices give the round numbers again.
constellations/SOURCE.md says what was changed.
"""
import collections
import math
import sys

import tables

HEADER = ("NorthOrEast", "SouthOrWest", "RA_deg", "Dec_deg", "EndRA_deg", "EndDec_deg")
B1875 = 2405889.25855  # Julian date of the Besselian year
MOST_OFF = 0.7  # seconds of arc between a vertex and its round numbers
TURN = 86400  # seconds of time


def precession_angles(julian_date):
    """zeta, z and theta from J2000 to that date, radians: IAU 1976 (Lieske et al. 1977)."""
    t = (julian_date - 2451545.0) / 36525.0
    terms = ((2306.2181, 0.30188, 0.017998), (2306.2181, 1.09468, 0.018203), (2004.3109, -0.42665, -0.041833))
    return [math.radians((a * t + b * t ** 2 + c * t ** 3) / 3600.0) for a, b, c in terms]


def precess(ra, dec, angles):
    """A position of J2000, degrees, at the other equinox."""
    zeta, z, theta = angles
    x, y, s = tables.direction(ra + math.degrees(zeta), dec)
    turned = (math.cos(theta) * x - math.sin(theta) * s, y, math.sin(theta) * x + math.cos(theta) * s)
    ra, dec = tables.position(turned)
    return (ra + math.degrees(z)) % 360.0, dec


def rounded(value, coarse, most):
    """The multiple of `coarse` when one is near, else the nearest whole number."""
    near = round(value / coarse) * coarse
    return near if abs(near - value) <= most else round(value)


def snap(ra, dec):
    """A vertex at B1875: whole seconds of time and of arc, quarters of a minute and minutes where these are near."""
    scale = 15.0 * math.cos(math.radians(dec))
    time, arc = rounded(ra * 240.0, 15, MOST_OFF / scale), rounded(dec * 3600.0, 60, MOST_OFF)
    return time % TURN, arc


def corners(ring):
    """The corners of a ring without the points that the source put between two of them."""
    snapped = [snap(*vertex) for vertex in ring]
    kept = [snapped[0]]
    for corner, after in zip(snapped[1:], snapped[2:] + [snapped[0]]):
        aligned = any(corner[i] == other[i] for i in (0, 1) for other in (kept[-1], after))
        if aligned and corner != kept[-1]:
            kept.append(corner)
    return kept


class Line:
    """The pieces of edges along one declination or one right ascension."""

    def __init__(self):
        self.pieces = []  # (begin, end, constellation), begin < end

    def split(self):
        """(begin, end, constellations) between neighbouring ends."""
        ends = sorted({end for begin, stop, _ in self.pieces for end in (begin, stop)})
        for begin, end in zip(ends, ends[1:]):
            times = collections.Counter(name for first, last, name in self.pieces if first <= begin and end <= last)
            # The ring of a constellation in two parts runs to and fro between them: an edge gone twice is none.
            beside = [name for name in times if times[name] % 2]
            if beside:
                yield begin, end, beside


def along(begin, end):
    """The stretch of right ascension from the one to the other the short way, not across 0 h more than once."""
    if abs(end - begin) > TURN / 2:
        begin, end = max(begin, end), min(begin, end) + TURN
    return min(begin, end), max(begin, end)


def lines_of(rings):
    """Lines of constant declination and of constant right ascension, by that."""
    parallels, meridians = collections.defaultdict(Line), collections.defaultdict(Line)
    for name, ring in rings.items():
        for (ra, dec), (ra2, dec2) in zip(ring, ring[1:] + ring[:1]):
            if dec == dec2:
                begin, end = along(ra, ra2)
                parallels[dec].pieces.append((begin, min(end, TURN), name))
                if end > TURN:
                    parallels[dec].pieces.append((0, end - TURN, name))
            elif ra == ra2:
                meridians[ra].pieces.append((min(dec, dec2), max(dec, dec2), name))
            else:
                raise SystemExit(f"{name}: an edge from {(ra, dec)} to {(ra2, dec2)} follows no coordinate")
    return parallels, meridians


def holds(ring, ra, dec):
    """Whether the ring is around a point: it is crossed an odd number of times on the way to the north pole, or, when
    the pole lies inside, an even number."""
    north = crossings = 0
    for (a, at), (b, _) in zip(ring, ring[1:] + ring[:1]):
        begin, end = along(a, b)
        if begin <= ra < end or begin <= ra + TURN < end:
            crossings += 1
            north += at > dec
    # Only a ring about a pole is crossed an odd number of times by a whole meridian.
    about_north = crossings % 2 and all(dec > 0 for _, dec in ring)
    return north % 2 != bool(about_north)


def sides(rings, beside, first, second):
    """The constellations at two points on either side of an edge."""
    found = [[name for name in beside if holds(rings[name], *point)] for point in (first, second)]
    if len(beside) != 2 or [len(names) for names in found] != [1, 1] or found[0] == found[1]:
        raise SystemExit(f"an edge between {beside}: {first} lies in {found[0]}, {second} in {found[1]}")
    return found[0][0], found[1][0]


def make_lines(rings):
    near = 0.5
    parallels, meridians = lines_of(rings)
    for dec in sorted(parallels):
        for begin, end, beside in parallels[dec].split():
            middle = (begin + end) / 2
            names = sides(rings, beside, (middle, dec + near), (middle, dec - near))
            yield *names, begin, dec, end, dec
    for ra in sorted(meridians):
        for begin, end, beside in meridians[ra].split():
            middle = (begin + end) / 2
            names = sides(rings, beside, (ra + near, middle), (ra - near, middle))
            yield *names, ra, begin, ra, end


def main():
    if len(sys.argv) != 3:
        raise SystemExit(__doc__)
    originals, source = sys.argv[1:]
    angles = precession_angles(B1875)
    rings = collections.defaultdict(list)
    for row in tables.rows(originals, "constellations-d3/bounds.tsv"):
        rings[row["Abbr"]].append(precess(float(row["RA_deg"]), float(row["DE_deg"]), angles))
    rings = {name: corners(ring) for name, ring in rings.items()}
    records = ((first, second, tables.number(ra / 240), tables.number(dec / 3600), tables.number(ra2 / 240),
                tables.number(dec2 / 3600)) for first, second, ra, dec, ra2, dec2 in make_lines(rings))
    tables.write(source, "constellations/bounds.tsv", HEADER, records)


main()
