#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Makes asteroids.tsv, comets.tsv and satellites.tle of data/source/orbits.

usage: make_orbits.py ORIGINALS SOURCE

ORIGINALS is the folder that holds the data sets asteroids-jpl (asteroids.tsv), comets-jpl (comets.tsv) and tle
(sgp4_ver_tle.tsv); SOURCE is data/source of this tree. SOURCE.md beside the results says what was taken.
"""
import os
import re
import sys

import tables

ANGLES = ("i_deg", "om_deg", "w_deg")

# Comets without a number of their own get one, above those of the numbered comets.
FIRST_FREE_COMET = 1001

# An element set that many programs show: International Space Station, January 2014.
STATION = ("ISS (ZARYA)",
           "1 25544U 98067A   14020.93268519  .00009878  00000-0  18200-3 0  5082",
           "2 25544  51.6498 109.4756 0003572  55.9686 274.8005 15.49815350868473")

# Sets that are there to go wrong: on their way down, or with elements that no satellite has.
UNHEALTHY = {"22312", "23333", "28872", "29141", "33333", "33334", "33335"}
# Where the comment is no name. The last two are the invented satellites of the first report on the model (1980).
NAMES = {"5": "VANGUARD 1", "4632": "1970-093B", "11801": "REPORT 3 TEST SDP4", "88888": "REPORT 3 TEST SGP4"}


def plain(text):
    """'.336' -> '0.336', '5.' -> '5', '038.' -> '38': one form for all, no digit lost."""
    if not text:
        return ""
    sign, digits = ("-", text[1:]) if text.startswith("-") else ("", text)
    whole, _, fraction = digits.partition(".")
    fraction = fraction.rstrip("0")
    return sign + (whole.lstrip("0") or "0") + ("." + fraction if fraction else "")


def asteroids(originals, source):
    def lines():
        for row in tables.rows(originals, "asteroids-jpl/asteroids.tsv"):
            yield (row["Number"], row["Name"], plain(row["Epoch_JD_TDB"]), plain(row["a_au"]), plain(row["e"]),
                   *(plain(row[angle]) for angle in ANGLES), plain(row["M0_deg"]), plain(row["H"]), plain(row["G"]),
                   plain(row["Diameter_km"]))

    tables.write(source, "orbits/asteroids.tsv",
                 ("Number", "Name", "Epoch_JD_TDB", "a_au", "e", *ANGLES, "M0_deg", "H_mag", "G", "Diameter_km"),
                 lines())


def comets(originals, source):
    def lines():
        free = FIRST_FREE_COMET
        for row in tables.rows(originals, "comets-jpl/comets.tsv"):
            numbered = re.match(r"(\d+)[PD]/", row["FullName"])
            yield (numbered[1] if numbered else str(free), row["FullName"], plain(row["Epoch_JD_TDB"]),
                   plain(row["q_au"]), plain(row["e"]), *(plain(row[angle]) for angle in ANGLES),
                   plain(row["Tp_JD_TDB"]), plain(row["M1"]))
            free += not numbered

    tables.write(source, "orbits/comets.tsv",
                 ("Number", "Name", "Epoch_JD_TDB", "q_au", "e", *ANGLES, "Perihelion_JD_TDB", "M1_mag"), lines())


def satellite_name(row):
    return NAMES.get(row["NORAD"]) or re.split(r" {2,}|#", row["Comment"].strip())[0].strip()


def satellites(originals, source):
    sets = {"25544": STATION}
    for row in tables.rows(originals, "tle/sgp4_ver_tle.tsv"):
        if row["NORAD"] not in UNHEALTHY:
            sets.setdefault(row["NORAD"], (satellite_name(row), row["Line1"], row["Line2"]))
    with open(os.path.join(source, "orbits/satellites.tle"), "w", encoding="ascii", newline="\n") as file:
        for lines in sets.values():
            file.write("\n".join(line.rstrip() for line in lines) + "\n")


def main():
    if len(sys.argv) != 3:
        raise SystemExit(__doc__)
    for make in (asteroids, comets, satellites):
        make(sys.argv[1], sys.argv[2])


main()
