#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Makes data/source/deepsky/openngc.tsv and outlines.tsv: the NGC and the IC, and outlines of nebulae.

usage: make_deepsky.py ORIGINALS SOURCE

ORIGINALS is the folder that holds the data sets deepsky-openngc-all (openngc.tsv) and nebula-outlines-openngc
(outlines.tsv); SOURCE is data/source of this tree. Every entry stays, in its order: what is drawn of it decides
skydata build. What was changed: deepsky/openngc.source.md.
"""
import re
import sys

import tables

HEADER = ("Name", "Type", "RA_deg", "Dec_deg", "Largest_arcmin", "Smallest_arcmin", "PosAngle_deg", "B_mag", "V_mag",
          "Hubble", "Messier", "SameAs", "Constellation", "CommonNames", "OtherEntries")
OUTLINE_HEADER = ("Object", "Level", "Contour", "RA_deg", "Dec_deg")

# Catalogues as they are written here; entries of others, those of surveys and of stars, are left out.
CATALOGUES = {"NGC": "NGC", "IC": "IC", "M": "M", "B": "B", "C": "C", "Cl": "Cr", "H": "Harvard", "HCG": "HCG",
              "Mel": "Mel", "MWSC": "MWSC", "ESO": "ESO", "PGC": "PGC", "UGC": "UGC", "UGCA": "UGCA", "LBN": "LBN",
              "SH": "Sh"}
ENTRY = re.compile(r"([A-Za-z]+) ?(2-)?0*(\d+)(-0*\d+)?( ?[A-Z]+\d*)?")
# The constellation's two halves have one name here.
CONSTELLATIONS = {"Se1": "Ser", "Se2": "Ser"}
# What the original gives no size, and everybody knows: the Coalsack, 7 by 5 degrees.
SIZES = {"C099": ("420", "300")}
# Names of the star that an entry is about, as the catalog of stars has them.
NO_NAMES = {"gam Cyg", "Alnilam"}
# What people call them for short.
SHORT_NAMES = {"ESO056-115": "LMC", "NGC0292": "SMC"}
# Names that the original has beside the wrong entry: the Flame Nebula is NGC 2024, beside IC 434.
MOVED_NAMES = {"IC0434": ("Flame Nebula,Orion B", ""), "NGC2024": ("", "Flame Nebula,Orion B")}
# How the outlines call objects whose entry has another name.
OUTLINED = {"C9": "C009", "M045": "Mel022", "LMC": "ESO056-115"}


def written(name):
    """An entry as catalogues are quoted, "IC 80 NED01", or None for an entry of a catalogue that is left out."""
    found = ENTRY.fullmatch(name)
    if not found or found[1] not in CATALOGUES:
        return None
    catalogue, part, number, second, suffix = found.groups(default="")
    return f"{CATALOGUES[catalogue]} {part}{number}{second.replace('-0', '-').replace('-0', '-')}{suffix}"


def title(name):
    name = name.removeprefix("the ")
    return name[:1].upper() + name[1:] if not re.match(r"[a-z]{3} [A-Z]", name) else name


def common_names(row):
    names = row["CommonNames"]
    if row["Name"] in MOVED_NAMES:
        before, names = MOVED_NAMES[row["Name"]]
        assert row["CommonNames"] == before, row["Name"]
    names = [title(name) for name in names.split(",") if name and name not in NO_NAMES]
    return ";".join(names + [SHORT_NAMES[row["Name"]]] if row["Name"] in SHORT_NAMES else names)


def other_entries(row):
    entries = [written(name.strip()) for name in row["Identifiers"].split(",")]
    return ";".join(dict.fromkeys(entry for entry in entries if entry and not entry.startswith("MWSC")))


def same_as(row, messier):
    """The entries that a duplicate may stand for."""
    if row["Type"] != "Dup":
        return ""
    entries = [messier[row["M"]]] if row["M"] else []
    return ";".join(map(written, entries + [name + row[name] for name in ("NGC", "IC") if row[name]]))


def objects(originals):
    entries_read = list(tables.rows(originals, "deepsky-openngc-all/openngc.tsv"))
    messier = {row["M"]: row["Name"] for row in entries_read if row["M"] and row["Type"] != "Dup"}
    for row in entries_read:
        largest, smallest = SIZES.get(row["Name"], (row["MajAx_arcmin"], row["MinAx_arcmin"]))
        sizes = [tables.number(size) if size else "" for size in (largest, smallest)]
        values = [tables.number(row[column]) if row[column] else "" for column in ("PosAng_deg", "Bmag", "Vmag")]
        messier_number = row["M"].lstrip("0") if row["Type"] != "Dup" else ""
        yield (written(row["Name"]), row["Type"], tables.number(row["RA_deg"]), tables.number(row["DE_deg"]), *sizes,
               *values, row["Hubble"], messier_number, same_as(row, messier), CONSTELLATIONS.get(row["Con"], row["Con"]),
               common_names(row), other_entries(row))


def outlines(originals):
    last = None
    for row in tables.rows(originals, "nebula-outlines-openngc/outlines.tsv"):
        name = row["Object"]
        place = (tables.number(row["RA_deg"]), tables.number(row["DE_deg"]))
        contour = (written(OUTLINED.get(name, name)) or name, row["Level"], row["Contour"])
        if contour != last:
            first = place
        elif place == first:
            continue  # the last vertex of a ring is its first one
        last = contour
        yield (*contour, *place)


def main():
    if len(sys.argv) != 3:
        raise SystemExit(__doc__)
    originals, source = sys.argv[1:]
    tables.write(source, "deepsky/openngc.tsv", HEADER, objects(originals))
    tables.write(source, "deepsky/outlines.tsv", OUTLINE_HEADER, outlines(originals))


main()
