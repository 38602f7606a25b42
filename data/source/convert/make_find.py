#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Makes data/source/find/articles.tsv and find/flight_objects.tsv from the other tables of the tree.

usage: make_find.py SOURCE            writes the tables
       make_find.py --check SOURCE    compares them

SOURCE is data/source of this tree. Who gets an article, and its identifier, and who can be flown to: find/SOURCE.md.
"""
import os
import sys

import tables

ARTICLES, FLIGHTS = "find/articles.tsv", "find/flight_objects.tsv"
# First identifiers of the articles. They are kept by the article store: never renumber.
PLANETS, MESSIER, CONSTELLATIONS, MOONS, STARS = 1000, 2000, 3000, 10000, 20000
GALAXIES, NEBULAE = " galaxy", (" nebula", " remnant")


def kind_of(row):
    if row["Type"].endswith(GALAXIES):
        return "gala"
    return "nebu" if row["Type"].endswith(NEBULAE) else "clst"


def bodies(source):
    return list(tables.rows(source, "bodies/planets_moons.tsv"))


def named_stars(source):
    return [row for row in tables.rows(source, "stars/stars.tsv") if row["Name"]]


def article_lines(source):
    for row in bodies(source):
        first = PLANETS if row["Kind"] == "plnt" else MOONS
        yield row["Kind"], row["Number"], str(first + int(row["Number"])), row["Name"]
    for row in tables.rows(source, "deepsky/messier.tsv"):
        name = f" ({row['Name']})" if row["Name"] else ""
        yield kind_of(row), row["Messier"], str(MESSIER + int(row["Messier"])), f"Messier {row['Messier']}{name}"
    latin = {row["Abbreviation"]: row["Latin"] for row in tables.rows(source, "constellations/constellations.tsv")}
    latin["Ser"] = "Serpens"
    for place, abbreviation in enumerate(sorted(latin), 1):
        yield "cnst", abbreviation, str(CONSTELLATIONS + place), latin[abbreviation]
    for row in named_stars(source):
        yield "star", row["HR"], str(STARS + int(row["HR"])), row["Name"]


def flight_lines(source):
    for row in bodies(source):
        yield row["Kind"], row["Number"], row["Name"]
    for row in tables.rows(source, "find/distances.tsv"):
        yield row["Kind"], row["Object"], row["Name"]


def main():
    arguments = [argument for argument in sys.argv[1:] if argument != "--check"]
    if len(arguments) != 1:
        raise SystemExit(__doc__)
    source = arguments[0]
    for name, header, lines in ((ARTICLES, ("Kind", "Object", "Article", "Title"), article_lines(source)),
                                (FLIGHTS, ("Kind", "Object", "Name"), flight_lines(source))):
        text = tables.make_text(header, lines)
        if "--check" not in sys.argv:
            with open(os.path.join(source, name), "w", encoding="utf-8", newline="\n") as table:
                table.write(text)
            continue
        with open(os.path.join(source, name), encoding="utf-8") as table:
            if table.read() != text:
                raise SystemExit(f"{name} is not what this script makes")


main()
