#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Writes the meteor showers from 6108 on into the string tables data/source/strings/*/qxstrings.txt.

usage: make_meteor_showers.py ORIGINALS SOURCE

ORIGINALS is the folder that holds the data set meteor-showers-mdc (established_all_solutions.tsv: the list of
established showers of the IAU Meteor Data Center, 5 June 2026); SOURCE is data/source of this tree. Identifiers 6101 to
6107 are kept by hand; the other established showers follow in the order of their IAU numbers. Of each the newest
solution is taken (that of the highest number) with a radiant and with beginning, mean and end in this order, whose mean
solar longitude lies within LARGEST_STRAY of the median of all its solutions. Solar longitudes (J2000) become the dates
of YEAR on which the Sun stands there. A shower whose name is not in NAMES is called by its official name.
"""
import math
import os
import re
import statistics
import sys

import tables

YEAR_BEGIN = 2461041.5  # 1 January 2026, 0h
YEAR_DAYS = 365
FIRST = 6108
KEPT_BY_HAND = {"QUA", "LYR", "ETA", "PER", "ORI", "LEO", "GEM"}
LARGEST_STRAY = 10.0
MONTHS = (31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31)

NAMES = {
    "de": {
        "CAP": "Alpha-Capricorniden", "STA": "Südliche Tauriden", "SDA": "Südliche Delta-Aquariiden",
        "DRA": "Oktober-Draconiden", "EVI": "Eta-Virginiden", "KCG": "Kappa-Cygniden", "URS": "Ursiden",
        "HYD": "Sigma-Hydriden", "NTA": "Nördliche Tauriden", "AND": "Andromediden", "MON": "Dezember-Monocerotiden",
        "LMI": "Leo-Minoriden", "EGE": "Epsilon-Geminiden", "NDA": "Nördliche Delta-Aquariiden",
        "NIA": "Nördliche Iota-Aquariiden", "TAH": "Tau-Herculiden", "PPU": "Pi-Puppiden", "ELY": "Eta-Lyriden",
        "JBO": "Juni-Bootiden", "AUR": "Aurigiden", "AMO": "Alpha-Monocerotiden", "NOO": "November-Orioniden",
        "PHO": "Phoeniciden", "ERI": "Eta-Eridaniden", "SPE": "September-Epsilon-Perseiden", "CTA": "Chi-Tauriden"},
    "ru": {
        "CAP": "Альфа-Каприкорниды", "STA": "Южные Тауриды", "SDA": "Южные Дельта-Аквариды",
        "DRA": "Октябрьские Дракониды", "KCG": "Каппа-Цигниды", "URS": "Урсиды", "HYD": "Сигма-Гидриды",
        "NTA": "Северные Тауриды", "AND": "Андромедиды", "MON": "Декабрьские Моноцеротиды", "LMI": "Лео-Минориды",
        "EGE": "Эпсилон-Геминиды", "NDA": "Северные Дельта-Аквариды", "TAH": "Тау-Геркулиды", "PPU": "Пи-Пуппиды",
        "ELY": "Эта-Лириды", "JBO": "Июньские Боотиды", "AUR": "Ауригиды", "AMO": "Альфа-Моноцеротиды",
        "NOO": "Ноябрьские Ориониды", "PHO": "Фенициды", "ERI": "Эта-Эриданиды",
        "SPE": "Сентябрьские Эпсилон-Персеиды"}}

TRANSLATED_PARENTS = {
    "ru": {
        "1P/Halley": "1P/Галлея", "2P/Encke": "2P/Энке", "3D/Biela": "3D/Биэлы", "8P/Tuttle": "8P/Туттля",
        "21P/Giacobini-Zinner": "21P/Джакобини — Циннера", "109P/Swift-Tuttle": "109P/Свифта — Туттля"}}

# Parent bodies as the data set writes them; what it marks as doubtful or names among others is left out.
PARENTS = {
    "169P/NEAT (= 2002 EX12)": "169P/NEAT", "(3200) Phaethon": "3200 Phaethon", "55P/Temple-Tuttle": "55P/Tempel-Tuttle",
    "2004  TG10": "2004 TG10", "C/1853G1(Schweizer)": "C/1853 G1 (Schweizer)", "C/1964N1(Ikeya)": "C/1964 N1 (Ikeya)",
    "C/1979 Y1 (Bradfield, =1979X)": "C/1979 Y1 (Bradfield)", "D/1819 W1 (Blanpain) /2003 WY25": "289P/Blanpain",
    "D/1766 G1 (Helfnzrieder)": "D/1766 G1 (Helfenzrieder)", "C/1919 q2 (Metcalf)": "23P/Brorsen-Metcalf",
    "155140 (2005 UD)": "155140 (2005 UD)", "2005 UD": "155140 (2005 UD)"}
PLAIN_PARENT = re.compile(r"(\d+[PD]/[\w .-]+?( \d)?|[CPD]/\d{4} [A-Z]\d+ \([\w-]+\)|3200 Phaethon|\d{4} [A-Z]{2}\d*)")


def solar_longitude(jd):
    """Apparent longitude of the Sun, equinox J2000, degrees (Meeus, Astronomical Algorithms, 1998, chapter 25)."""
    t = (jd - 2451545.0) / 36525.0
    anomaly = math.radians(357.52911 + 35999.05029 * t)
    center = (1.914602 - 0.004817 * t) * math.sin(anomaly) + 0.019993 * math.sin(2 * anomaly) + \
        0.000289 * math.sin(3 * anomaly)
    return (280.46646 + 36000.76983 * t + center - 0.00569 - 1.396971 * t) % 360.0


def date_of(longitude):
    """(day, month) of the year on which the Sun reaches the longitude."""
    def passed(jd):
        return (solar_longitude(jd) - solar_longitude(YEAR_BEGIN)) % 360.0
    wanted = (longitude - solar_longitude(YEAR_BEGIN)) % 360.0
    day = sum(1 for n in range(1, YEAR_DAYS) if passed(YEAR_BEGIN + n) <= wanted)
    for month, length in enumerate(MONTHS, 1):
        if day < length:
            return day + 1, month
        day -= length
    raise ValueError(longitude)


def away(a, b):
    return abs((a - b + 180.0) % 360.0 - 180.0)


def best_solution(solutions):
    first = float(solutions[0]["LoS_deg"])
    means = [first + (float(s["LoS_deg"]) - first + 180.0) % 360.0 - 180.0 for s in solutions if s["LoS_deg"]]
    median = statistics.median(means)
    for solution in reversed(solutions):
        if not all(solution[name] for name in ("LoSb_deg", "LoS_deg", "LoSe_deg", "RA_deg", "DE_deg")):
            continue
        begin, mean, end = (float(solution[name]) for name in ("LoSb_deg", "LoS_deg", "LoSe_deg"))
        if (mean - begin) % 360.0 <= (end - begin) % 360.0 and away(mean, median) <= LARGEST_STRAY:
            return solution
    raise SystemExit(f"{solutions[0]['Code']}: no solution")


def parent_of(solutions):
    """The parent body that the newest solutions name without doubt."""
    for solution in reversed(solutions):
        name = PARENTS.get(solution["ParentBody"], solution["ParentBody"])
        if name in PARENTS.values() or PLAIN_PARENT.fullmatch(name):
            return name
    return ""


def fields_of(solutions):
    solution = best_solution(solutions)
    fields = [str(number) for name in ("LoSb_deg", "LoS_deg", "LoSe_deg") for number in date_of(float(solution[name]))]
    minutes = round(float(solution["RA_deg"]) * 4) % 1440
    dec = float(solution["DE_deg"])
    return fields + [solution["Code"], parent_of(solutions), str(minutes // 60), str(minutes % 60),
                     f"{'-' if dec < 0 else '+'}{abs(dec):.0f}"]


def showers(originals):
    found = {}
    for row in tables.rows(originals, "meteor-showers-mdc/established_all_solutions.tsv"):
        found.setdefault(int(row["IAUNo"]), []).append(row)
    return [solutions for _, solutions in sorted(found.items()) if solutions[0]["Code"] not in KEPT_BY_HAND]


def official_name(solutions):
    return solutions[-1]["Name"]


def rewrite(path, language, found):
    with open(path, encoding="utf-8") as table:
        lines = table.read().split("\n")
    lines = [line for line in lines if not (re.match(r"\d{4}\t", line) and FIRST <= int(line[:4]) < 7200)]
    at = next(k for k, line in enumerate(lines) if line.startswith(f"{FIRST - 1}\t")) + 1
    names, parents = NAMES.get(language, {}), TRANSLATED_PARENTS.get(language, {})
    for k, solutions in enumerate(found):
        fields = [names.get(solutions[0]["Code"], official_name(solutions))] + fields_of(solutions)
        fields = [parents.get(field, field) for field in fields]
        lines.insert(at + k, f"{FIRST + k}\t" + ";".join(fields))
    with open(path, "w", encoding="utf-8", newline="\n") as table:
        table.write("\n".join(lines))


def main():
    if len(sys.argv) != 3:
        raise SystemExit(__doc__)
    originals, source = sys.argv[1:]
    found = showers(originals)
    for language in sorted(os.listdir(os.path.join(source, "strings"))):
        rewrite(os.path.join(source, "strings", language, "qxstrings.txt"), language, found)


main()
