# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Makes gazetteers/, cities/cities.tsv and doubles/ of published tables.

usage: make_places.py FOLDER    with moon.tsv, mars.tsv, mercury_venus.tsv, moons_and_minor_bodies.tsv (names of
                                surfaces), cities.tsv and doubles.tsv
"""
import os
import sys

import tables

SOURCE = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
GAZETTEERS = ("moon.tsv", "mars.tsv", "mercury_venus.tsv", "moons_and_minor_bodies.tsv")
# Those whose place and rotation are known.
BODIES = set("Moon Mercury Venus Mars Phobos Deimos Io Europa Ganymede Callisto Mimas Enceladus Tethys Dione Rhea Titan "
             "Iapetus Miranda Ariel Umbriel Titania Oberon Triton Pluto Charon".split())
COMMENT = "made by data/source/convert/make_places.py"


def make_gazetteers(folder):
    features = {}
    for name in GAZETTEERS:
        for row in tables.rows(folder, name):
            if row["Body"] in BODIES:
                features.setdefault(row["Body"], []).append(row)
    for body, rows in features.items():
        rows.sort(key=lambda row: (-float(row["Diameter_km"] or 0), row["Name"]))
        lines = [(row["Name"], row["Type"], row["Lat_deg"], row["Lon_deg_east"], row["Diameter_km"]) for row in rows]
        tables.write(os.path.join(SOURCE, "gazetteers"), body.lower() + ".tsv",
                     ("Name", "Type", "Lat_deg", "Lon_deg_east", "Diameter_km"), lines, (COMMENT,))


def make_cities(folder):
    others = {}
    for row in tables.rows(os.path.join(SOURCE, "cities"), "other_names.tsv"):
        others[(row["AsciiName"], row["Country"])] = row["OtherNames"]
    lines = []
    for row in tables.rows(folder, "cities.tsv"):
        lines.append((row["Name"], row["AsciiName"], others.pop((row["AsciiName"], row["Country"]), ""), row["Country"],
                      row["CountryName"], row["Lat_deg"], row["Lon_deg"], row["Elevation_m"], row["Population"],
                      row["Zone"]))
    if others:
        sys.exit(f"other_names.tsv: no such city: {sorted(others)}")
    tables.write(os.path.join(SOURCE, "cities"), "cities.tsv",
                 ("Name", "AsciiName", "OtherNames", "Country", "CountryName", "Lat_deg", "Lon_deg", "Height_m",
                  "Population", "Zone"), lines, (COMMENT,))


def make_doubles(folder):
    """Pairs of stars that have a number in a catalogue, each once; the list with discoverers comes first."""
    lines, seen = [], set()
    for row in tables.rows(folder, "doubles.tsv"):
        pair = (row["HIP"] or "HR " + row["HR"], row["Comp"] or "AB")
        if (not row["HIP"] and not row["HR"]) or pair in seen or not row["Sep_arcsec"]:
            continue
        seen.add(pair)
        lines.append((row["HR"], row["HIP"], " ".join(row["Discoverer"].split()), pair[1], row["Mag1"], row["Mag2"],
                      row["Sep_arcsec"], row["PA_deg"]))
    tables.write(os.path.join(SOURCE, "doubles"), "doubles.tsv",
                 ("HR", "HIP", "Discoverer", "Pair", "Mag1", "Mag2", "Separation_arcsec", "PosAngle_deg"), lines,
                 (COMMENT,))


def main(folder):
    make_gazetteers(folder)
    make_cities(folder)
    make_doubles(folder)


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main(sys.argv[1])
