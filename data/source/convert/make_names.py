# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Makes names/ of the published tables of names of stars and asterisms, in German, Russian and English.

usage: make_names.py FOLDER    with star_names.tsv, aliases.tsv, asterisms.tsv, asterism_lines.tsv and, of the
                               constellations, constellations.tsv with names in all languages
"""
import os
import re
import sys

import tables

SOURCE = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
LANGUAGES = (("de", "German"), ("ru", "Russian"))
POINTERS = 6  # the priority of lines that only lead from one constellation to another
SAME_NAME = {"NorthernCross2", "HerschelsTelescope2"}  # other drawings of an asterism that is there
RENAMED = {"Belt": "Orion's Belt", "Sword": "Orion's Sword"}
UNTRUSTED = {"po"}  # names matched by machine, many of them wrong
KINDS = {"cluster", "galaxy", "nebula", "star", "constellation", "asterism", "planet"}
SHOWN = {"Plejaden", "Туманность Кольцо"}  # before other names of their object
OTHER_STARS = {"Toliman", "Rigil Kent"}  # of another star, or there already
# As the tables of deep-sky objects list them.
RENUMBERED = {"Melotte 25": "C 41", "Melotte 111": "Mel 111", "LMC": "ESO 56-115"}
COMMENT = "made by data/source/convert/make_names.py"


def plain(name):
    name = name.strip()
    return name[1:-1] if name.startswith("'") and name.endswith("'") else name


def key(name):
    return re.sub(r"\W", "", name).lower()


def split(cell):
    """The names of a cell, without those that explain themselves in brackets."""
    return [plain(name) for name in cell.split(";") if name.strip() and "(" not in name]


class Names:
    """Names by object and language, each once. A name that another object has in the language is left out."""

    def __init__(self):
        self.lines = []
        self.owners = {}

    def has(self, thing, language):
        return any(line[:2] == (thing, language) for line in self.lines)

    def add(self, thing, language, name):
        owner = self.owners.setdefault((language, key(name)), thing)
        if name and owner == thing and (thing, language, name) not in self.lines:
            self.lines.append((thing, language, name))


def add_constellations(folder, names):
    for row in tables.rows(folder, "constellations.tsv"):
        thing = "cnst " + row["Abbr"]
        names.owners.setdefault(("en", key(row["English"])), thing)
        for language, column in LANGUAGES:
            names.add(thing, language, row[column])


def add_stars(folder, names):
    known = {row["HIP"]: row["Name"] for row in tables.rows(os.path.join(SOURCE, "stars"), "stars.tsv")}
    taken = {key(name) for name in known.values() if name}
    for row in tables.rows(folder, "star_names.tsv"):
        thing = "HIP " + row["HIP"]
        if not known.get(row["HIP"]) and key(row["Name"]) not in taken:
            names.add(thing, "en", row["Name"])
        for language, column in LANGUAGES:
            if row[column + "From"] not in UNTRUSTED | {"same"}:
                names.add(thing, language, row[column])
    return taken


def find_thing(row):
    number = re.fullmatch(r"(M|B)(\d+)", row["Object"])
    if row["Kind"] == "constellation":
        return "cnst " + row["Object"]
    if row["Kind"] == "asterism":
        return "astm " + row["Object"]
    if row["Kind"] == "planet":
        return "moon 301" if row["Object"] == "301" else row["Object"]
    if number:
        return f"{number[1]} {number[2]}"
    if row["Object"] in RENUMBERED:
        return RENUMBERED[row["Object"]]
    return row["Object"] if "," not in row["Object"] else ""


def add_aliases(folder, taken, names):
    star_names = {"HIP " + row["HIP"]: row["Name"] for row in tables.rows(folder, "star_names.tsv")}
    for row in tables.rows(folder, "aliases.tsv"):
        thing = find_thing(row)
        if row["Kind"] not in KINDS or not thing:
            continue
        for name in split(row["Aliases_en"]):
            if key(name) not in taken and name not in OTHER_STARS:
                names.add(thing, "en", name)
        for language in ("de", "ru"):
            if thing in star_names and not names.has(thing, language):
                names.add(thing, language, star_names[thing])  # what is shown
            for name in sorted(split(row["Names_" + language]), key=lambda name: name not in SHOWN):
                names.add(thing, language, name)


def make_asterisms(folder, names):
    lines, keys = [], set()
    for row in tables.rows(folder, "asterisms.tsv"):
        if int(row["Priority"]) >= POINTERS or row["Key"] in SAME_NAME:
            continue
        keys.add(row["Key"])
        name = RENAMED.get(plain(row["Name_en"]), plain(row["Name_en"]))
        lines.append((row["Key"], name, row["Priority"]))
        for language in ("de", "ru"):
            cell = row["Name_" + language]
            names.add("astm " + row["Key"], language, plain(re.sub(r"\(.*\)", "", cell)))
    return lines, keys


def make_lines(folder, keys):
    for row in tables.rows(folder, "asterism_lines.tsv"):
        if row["Key"] in keys:
            yield (row["Key"], row["Polyline"], tables.number(float(row["RA_deg"]) % 360.0, 4),
                   tables.number(row["DE_deg"], 4))


def main(folder):
    names = Names()
    add_constellations(folder, names)
    taken = add_stars(folder, names)
    asterisms, keys = make_asterisms(folder, names)
    add_aliases(folder, taken, names)
    out = os.path.join(SOURCE, "names")
    tables.write(out, "names.tsv", ("Object", "Language", "Name"), names.lines, (COMMENT,))
    tables.write(out, "asterisms.tsv", ("Key", "Name", "Priority"), asterisms, (COMMENT,))
    tables.write(out, "asterism_lines.tsv", ("Key", "Polyline", "RA_deg", "Dec_deg"), make_lines(folder, keys),
                 (COMMENT,))


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main(sys.argv[1])
