#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Makes the tables below data/source from the published data sets they come from.

usage: convert.py ORIGINALS SOURCE

ORIGINALS is a folder that holds the data sets as tables separated by tabs:
  stars-bsc5/bsc5.tsv, stars-names-iau/iau_names.tsv, stars-hipparcos-d3/hip.tsv, deepsky-messier-d3/messier.tsv,
  constellations-d3/constellations.tsv, constellations-d3/lines.tsv, milkyway-d3/milkyway.tsv
SOURCE is the folder to write to, data/source of this tree. The SOURCE.md beside each table says what was taken and
what was changed. Nothing needs to run this script to build the data root: its results are kept, and edited, here.
"""
import os
import re
import sys

from tables import rows

GREEK = dict(zip(
    "Alp Bet Gam Del Eps Zet Eta The Iot Kap Lam Mu Nu Xi Omi Pi Rho Sig Tau Ups Phi Chi Psi Ome".split(),
    "αβγδεζηθικλμνξοπρστυφχψω"))
BSC_NAME = re.compile(r"(\d*) *([A-Z][a-z]{1,2})? *(\d)? *([A-Z][A-Za-z]{2})")
# Stars whose name belongs to another one: Atik is ο Per, not ζ Per (IAU Working Group on Star Names, 2016); Becklin's
# Star is an infrared source 45" beside θ1 Ori C.
MISNAMED = {"1203", "1895"}

MESSIER_TYPES = {
    "s": "spiral galaxy", "e": "elliptical galaxy", "i": "irregular galaxy", "oc": "open cluster",
    "gc": "globular cluster", "pn": "planetary nebula", "rn": "reflection nebula", "sfr": "emission nebula",
    "snr": "supernova remnant"}
# The three places on Messier's list that are none of these.
MESSIER_GROUPS = {"M24": "star cloud", "M40": "double star", "M73": "asterism"}
MESSIER_NAMES = {
    "M24": "Small Sagittarius Star Cloud", "M31": "Andromeda Galaxy", "M33": "Triangulum Galaxy",
    "M40": "Winnecke 4", "M51": "Whirlpool Galaxy", "M64": "Black Eye Galaxy", "M73": "",
    "M83": "Southern Pinwheel Galaxy", "M101": "Pinwheel Galaxy", "M102": "Spindle Galaxy", "M104": "Sombrero Galaxy"}

CONSTELLATION_NAMES = {"CrA": "Corona Australis"}
CONSTELLATION_GENITIVES = {"CrA": "Coronae Australis"}
CONSTELLATION_ENGLISH = {"UMa": "Great Bear", "UMi": "Little Bear"}


def write(folder, name, header, lines):
    with open(os.path.join(folder, name), "w", encoding="utf-8", newline="\n") as table:
        table.write("\t".join(header) + "\n")
        for line in lines:
            table.write("\t".join(line) + "\n")


def number(text, factor=1.0):
    """The shortest way to write text times factor; empty stays empty."""
    if not text:
        return ""
    value = round(float(text) * factor, 6)
    return f"{value:.6f}".rstrip("0").rstrip(".") if value else "0"


def longitude(text):
    return number(str(float(text) % 360.0))


def bsc_designations(name):
    """'58Alp Ori' -> ('α Ori', '58 Ori'), 'Mu 1Sco' -> ('μ1 Sco', ''), '33    Psc' -> ('', '33 Psc')."""
    if not name:
        return "", ""
    match = BSC_NAME.fullmatch(name)
    if not match:
        raise SystemExit(f"unknown form of name: {name!r}")
    flamsteed, letter, index, constellation = match.groups()
    bayer = f"{GREEK[letter]}{index or ''} {constellation}" if letter else ""
    return bayer, f"{flamsteed} {constellation}" if flamsteed else ""


def star_names(originals):
    """Names by HR number, each name once: of several stars (mostly the components of one) the brightest keeps it."""
    listed = {row["HR_x"]: row["Name"] for row in rows(originals, "stars-names-iau/iau_names.tsv") if row["HR_x"]}
    owners = {}
    for row in rows(originals, "stars-bsc5/bsc5.tsv"):
        name = "" if row["HR"] in MISNAMED else row["ProperName_x"] or listed.get(row["HR"], "")
        magnitude = float(row["Vmag"])
        if name and (name not in owners or magnitude < owners[name][0]):
            owners[name] = magnitude, row["HR"]
    return {hr: name for name, (_, hr) in owners.items()}


def stars(originals, source):
    names = star_names(originals)

    def lines():
        for row in rows(originals, "stars-bsc5/bsc5.tsv"):
            bayer, flamsteed = bsc_designations(row["Name"])
            yield (row["HR"], number(row["RA_deg"]), number(row["DE_deg"]), number(row["Vmag"]), number(row["B-V"]),
                   row["SpType"], number(row["pmRA_arcsec_yr"], 1000), number(row["pmDE_arcsec_yr"], 1000),
                   number(row["Plx_arcsec"], 1000), number(row["RadVel_kms"]),
                   names.get(row["HR"], ""), bayer, flamsteed, row["HIP_x"])

    write(source, "stars/stars.tsv",
          ("HR", "RA_deg", "Dec_deg", "V_mag", "B-V_mag", "SpectralType", "pmRAcosDec_mas_yr", "pmDec_mas_yr",
           "Parallax_mas", "RadialVelocity_km_s", "Name", "Bayer", "Flamsteed", "HIP"), lines())


def variable_name(text):
    """'Alp And' -> 'α And', 'V640 Cas' as it is; '' for a suspected variable: a bare number, or 'Var?'."""
    match = re.fullmatch(r"([A-Z][a-z]{1,2}) *(\d?) ([A-Z][A-Za-z]{2})", text)
    if match and match.group(1) in GREEK:
        return f"{GREEK[match.group(1)]}{match.group(2)} {match.group(3)}"
    return text if re.fullmatch(r"(V\d+|[A-Z]{1,2}|[A-Z]\d|[a-z]) [A-Z][A-Za-z]{2}", text) else ""


def variables(originals, source):
    names = ((row["HR"], variable_name(" ".join(row["VarID"].split()))) for row in rows(originals, "stars-bsc5/bsc5.tsv"))
    write(source, "stars/variables.tsv", ("HR", "Name"), ((hr, name) for hr, name in names if name))


def hipparcos(originals, source):
    def lines():
        for row in rows(originals, "stars-hipparcos-d3/hip.tsv"):
            yield row["HIP"], number(row["RA_deg"]), number(row["DE_deg"]), number(row["Vmag"]), number(row["B-V"])

    write(source, "stars/hipparcos.tsv", ("HIP", "RA_deg", "Dec_deg", "V_mag", "B-V_mag"), lines())


def deepsky(originals, source):
    def lines():
        for row in rows(originals, "deepsky-messier-d3/messier.tsv"):
            messier = row["M"]
            kind = MESSIER_GROUPS.get(messier) or MESSIER_TYPES[row["Type"]]
            designation = row["Desig"] if row["Desig"].startswith(("NGC ", "IC ")) else ""
            name = MESSIER_NAMES.get(messier, row["AltName"].replace("´", "'").replace("’", "'"))
            size = row["Dim_arcmin"].split("x")
            yield (messier[1:], designation, name, kind, number(row["Mag"]), number(size[0]), number(size[-1]),
                   number(row["RA_deg"]), number(row["DE_deg"]))

    write(source, "deepsky/messier.tsv",
          ("Messier", "NGC_IC", "Name", "Type", "V_mag", "Largest_arcmin", "Smallest_arcmin", "RA_deg", "Dec_deg"),
          lines())


def constellations(originals, source):
    def names():
        for row in rows(originals, "constellations-d3/constellations.tsv"):
            abbreviation = row["Abbr"]
            latin = CONSTELLATION_NAMES.get(abbreviation, row["LatinName"])
            english = CONSTELLATION_ENGLISH.get(abbreviation, row["English"])
            genitive = CONSTELLATION_GENITIVES.get(abbreviation, row["Genitive"])
            yield (abbreviation, latin, english, longitude(row["LabelRA_deg"]), number(row["LabelDE_deg"]), genitive)

    def lines():
        for row in rows(originals, "constellations-d3/lines.tsv"):
            yield row["Abbr"], row["Polyline"], longitude(row["RA_deg"]), number(row["DE_deg"])

    write(source, "constellations/constellations.tsv", ("Abbreviation", "Latin", "English", "RA_deg", "Dec_deg",
                                                    "Genitive"), names())
    write(source, "constellations/lines.tsv", ("Abbreviation", "Polyline", "RA_deg", "Dec_deg"), lines())


def milkyway(originals, source):
    def lines():
        for row in rows(originals, "milkyway-d3/milkyway.tsv"):
            yield row["Level"], row["Ring"], longitude(row["RA_deg"]), number(row["DE_deg"])

    write(source, "milkyway/outlines.tsv", ("Level", "Ring", "RA_deg", "Dec_deg"), lines())


def main():
    if len(sys.argv) != 3:
        raise SystemExit(__doc__)
    for make in (stars, variables, hipparcos, deepsky, constellations, milkyway):
        make(sys.argv[1], sys.argv[2])


main()
