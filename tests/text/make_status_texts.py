#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Makes status_cameras.tsv, fifty cameras, and status_texts_{en,de,ru}.txt, every status text of each of them in the
languages that ship, from the rules in status_strings.h and dates.h. A model of its own: it shares nothing with the
library but the string tables (data/source/strings), whose formats it fills with Python's own formatting.

usage: make_status_texts.py [--check]
"""
import datetime
import fractions
import math
import os
import re
import sys
import zoneinfo

HERE = os.path.dirname(os.path.abspath(__file__))
STRINGS = os.path.join(HERE, "..", "..", "data", "source", "strings")
LANGUAGES = ("en", "de", "ru")
COLUMNS = ("type day fraction kind zone dst below place dist unit lon lat centre locked mode alp bet slope plane zoom "
           "width height").split()
DEFAULTS = dict(type=0, day=2461056, fraction=0.41667, kind=0, zone="Europe/Berlin", dst="-", below=0,
                place="Frankfurt", dist=0.0, unit=1, lon=8.7, lat=50.1, centre="-", locked=0, mode=1, alp=180.0,
                bet=30.0, slope=0.0, plane=1, zoom=1.0, width=1600, height=1000)
TINY = 0.001 / 3600  # degrees


def cameras():
    """Each row names what differs from DEFAULTS. Angles in degrees."""
    rows = []
    # Every moving type, each with another unit, direction mode and plane; 12 is none.
    for t in range(12):
        rows.append(dict(type=t, unit=t % 8, dist=0.5 + t, mode=t % 3, plane=t % 4, below=t % 2,
                         place="Olympus Mons" if t % 2 else "Frankfurt"))
    rows.append(dict(type=3, below=1, place="Mare Crisium", lon=-59.1, lat=17.0))
    # Every unit at distances large and small.
    for unit in range(8):
        rows.append(dict(type=3 if unit > 3 else 0, unit=unit, dist=[1e-11, 4.2635e-5, 0.00257, 1.52, 5.2, 268770.0,
                                                                     9.5e6, 1.6e11][unit]))
    rows.append(dict(unit=8, dist=1.0))
    # The three kinds of time, zones east and west, half hours, summer time, days across midnight, early years.
    rows.append(dict(kind=1, fraction=0.49999))
    rows.append(dict(kind=2))
    rows.append(dict(zone="Asia/Kolkata", fraction=0.3125))
    rows.append(dict(zone="America/New_York", fraction=-0.4))
    rows.append(dict(zone="Europe/Berlin", day=2461223, fraction=0.45))
    rows.append(dict(zone="-", fraction=-0.5))
    rows.append(dict(zone="-", day=1705426, fraction=0.0))          # 44 BC, astronomical year -43
    rows.append(dict(kind=1, day=1705061, fraction=0.0))            # a year earlier: -44
    rows.append(dict(kind=1, day=1721057, fraction=-0.5))           # the year 0 begins
    rows.append(dict(kind=1, day=1721057, fraction=-0.5001))        # and the year -1 ends
    rows.append(dict(kind=1, day=2299160, fraction=0.4999))         # the last Julian day, 4 October 1582
    rows.append(dict(kind=1, day=2299161, fraction=-0.4999))        # the first Gregorian one
    rows.append(dict(kind=1, day=0, fraction=0.0))                  # 1 January -4712
    rows.append(dict(kind=1, day=5373484, fraction=0.4999))         # 31 December 9999
    # The daylight-saving mark: on the first day, on the last, past it, switched off.
    for dst in ("1:2461055:2461057", "1:2461056:2461056", "1:2461000:2461055", "0:2461000:2462000", "1:-1:-1"):
        rows.append(dict(dst=dst))
    # Angles: all hemispheres, zero, tiny, next to a full minute and a full turn, negative below one degree.
    rows.append(dict(lon=-70.4, lat=-33.5, bet=-12.3456, alp=359.999999, mode=0))
    rows.append(dict(lon=0.0, lat=0.0, alp=0.0, bet=0.0))
    rows.append(dict(lon=-TINY, lat=-TINY, alp=-TINY, bet=-TINY, slope=-0.5))
    rows.append(dict(lon=-0.5, lat=-0.25, alp=0.5, bet=-0.5, slope=-17.9))
    rows.append(dict(lon=179.9999999, lat=89.9999999, alp=14.9999999, bet=-0.9999999, mode=2, slope=359.9))
    rows.append(dict(lon=-180.0, lat=-90.0, alp=90.0, bet=-90.0, mode=2, slope=720.5))
    rows.append(dict(lon=12.0 + 59.996 / 3600, lat=45.0 + 59 / 60 + 59.994 / 3600, alp=15.0 * 59.9999 / 3600, mode=0,
                     bet=-59.996 / 3600))
    # Centred objects and zooms: degrees, minutes and seconds of field.
    rows.append(dict(centre="Saturn", zoom=12.5, width=640, height=480))
    rows.append(dict(centre="Saturn", locked=1, zoom=300.0))
    rows.append(dict(centre="M 31", zoom=10000.0, width=200, height=100))
    return [dict(DEFAULTS, **row) for row in rows]


def load_strings(language):
    strings = {}
    with open(os.path.join(STRINGS, language, "qxstrings.txt"), encoding="utf-8") as file:
        for line in file:
            fields = [f for f in line.rstrip("\n").split("\t")]
            if len(fields) < 2 or not fields[1]:
                continue
            match = re.match(r"\d+", fields[0])
            key = int(match.group()) if match else fields[0][:4]
            text = fields[1].strip(" ")
            strings[key] = re.sub(r'\\([nt\\"])', lambda m: {"n": "\n", "t": "\t"}.get(m.group(1), m.group(1)), text)
    return strings


def exact(number):
    return number if isinstance(number, fractions.Fraction) else fractions.Fraction(repr(number))


def calendar(day, fraction):
    """Year, month, day, hour, minute of a Julian date (Meeus, Astronomical Algorithms, 1998, chapter 7). The fraction
    counts as the decimal number that it is written as, so that a full minute is one."""
    moment = day + exact(fraction) + exact(0.5)
    whole = math.floor(moment)
    seconds = (moment - whole) * 86400
    if whole >= 2299161:
        alpha = int((whole - 1867216.25) / 36524.25)
        a = whole + 1 + alpha - alpha // 4
    else:
        a = whole
    b = a + 1524
    c = math.floor((b - 122.1) / 365.25)
    d = math.floor(365.25 * c)
    e = math.floor((b - d) / 30.6001)
    month = e - 1 if e < 14 else e - 13
    return (c - 4716 if month > 2 else c - 4715, month, b - d - math.floor(30.6001 * e), int(seconds // 3600),
            int(seconds % 3600 // 60))


def offset(camera):
    """Local time minus Universal Time, days, exactly."""
    if camera["zone"] == "-":
        return fractions.Fraction(0)
    seconds = round((camera["day"] + camera["fraction"] - 2440587.5) * 86400)
    moment = datetime.datetime(1970, 1, 1, tzinfo=datetime.timezone.utc) + datetime.timedelta(seconds=seconds)
    return moment.astimezone(zoneinfo.ZoneInfo(camera["zone"])).utcoffset() // datetime.timedelta(
        seconds=1) * fractions.Fraction(1, 86400)


def split(degrees, mode):
    """Degrees (mode 3: hours), minutes, seconds, rounded to 0.01 second; modes 0 and 3 within one turn."""
    hundredths = round(abs(degrees) / (15 if mode == 3 else 1) * 360000)
    sign = -1 if degrees < 0 and hundredths else 1
    turn = {0: 360, 3: 24}.get(mode)
    if turn:
        hundredths = sign * hundredths % (turn * 360000)
        sign = 1
    first, rest = divmod(hundredths, 360000)
    minutes, rest = divmod(rest, 6000)
    values = [first, minutes, rest / 100]
    for i, value in enumerate(values):
        if value:
            values[i] *= sign
            break
    return values


def conversions(text):
    return re.findall(r"%[-+ #0]*\d*(?:\.\d*)?[l]*([a-zA-Z])", text.replace("%%", ""))


class Texts:
    def __init__(self, camera, strings):
        self.c, self.s = camera, strings

    def form(self, identifier, *arguments):
        text = self.s[identifier]
        return text % arguments[:len(conversions(text))]

    def moment(self):
        return self.c["day"], exact(self.c["fraction"]) + (offset(self.c) if self.c["kind"] == 0 else 0)

    def time(self):
        caption = self.s[7200 + self.c["kind"]]
        if self.c["kind"] == 2:
            return caption, ""
        day, fraction = self.moment()
        text = " %02d:%02d" % calendar(day, fraction)[3:]
        on, first, last = (int(x) for x in self.c["dst"].split(":")) if self.c["dst"] != "-" else (0, -1, -1)
        if self.c["kind"] == 0 and on and first <= math.floor(day + fraction + exact(0.5)) <= last:
            text += " " + self.s[7228]
        return caption, text

    def date(self):
        caption = self.s[7200 + self.c["kind"]]
        if self.c["kind"] == 2:
            return caption, self.s[7207]
        year, month, day = calendar(*self.moment())[:3]
        return caption, "%02d/%02d/%04d %s" % (day, month, abs(year), self.s[7203 if year >= 0 else 7204])

    def location(self):
        kind = self.c["type"]
        caption = self.s[[1157, 1158, 1125, 1159, 1127, 1131, 1132, 1141, 1142, 1152, 1127, 1127][kind]].rstrip(".")
        text = caption if kind in (4, 9, 10, 11) else f"{caption} {self.c['place']}"
        return text + (self.s[14300] if kind == 3 and self.c["below"] else "")

    def position(self):
        values = []
        for degrees, positive, negative in ((math.remainder(self.c["lon"], 360), 966, 965), (self.c["lat"], 967, 968)):
            d, m, s = split(degrees, None)
            west = (d, m, s) < (0, 0, 0) or min(d, m, s) < 0
            if positive == 966 and abs(d) == 180:
                west = False
            values += [abs(d), abs(m), abs(s), self.s[negative if west else positive][0]]
        return self.form(7208 if self.c["type"] < 3 else 7209, *values)

    def distance(self):
        au, unit = self.c["dist"], self.c["unit"]
        factor = {0: 149597870700.0, 1: 149597870.7, 2: 149597.8707, 3: 149.5978707, 4: 1.0,
                  5: 149597870.7 / 9460730472580.799, 6: 1 / 206264.80624709636, 7: 1 / 206264806.24709636}
        name = self.s.get(1160 + unit, "")
        return self.form(7211 if self.c["type"] < 3 else 7212, au * factor.get(unit, 0.0), name)

    def centre(self):
        if self.c["centre"] == "-":
            return ""
        return self.form(7215 if self.c["locked"] else 7214, self.c["centre"])

    def direction(self):
        mode = self.c["mode"]
        first = split(self.c["alp"], 3 if mode == 0 else 0)
        return self.form({0: 7216, 1: 7217}.get(mode, 7218), *first, *split(self.c["bet"], 2))

    def plane(self):
        return self.s[15400] + self.s[5011 + self.c["plane"]]

    def slope(self):
        return self.form(7219, int(self.c["slope"]))

    def zoom(self):
        return self.form(7220, self.c["zoom"])

    def field(self):
        width, height = self.c["width"], self.c["height"]
        tangent = math.tan(0.6457718232379 / (2 * self.c["zoom"]))
        half = math.hypot(width >> 1, height >> 1)
        f = 2 * math.atan(half / half * tangent)
        pieces = []
        for pixels in (width, height):
            d, m, s = split(math.degrees(4 * math.atan(pixels / half * 0.5 * math.tan(f / 2))), 0)
            pieces.append("%d°" % d if d >= 1 else "%d'" % m if m >= 1 else '%0.2f"' % s)
        return self.form(7227, *pieces)

    def lines(self):
        yield "time", "|".join(self.time())
        yield "date", "|".join(self.date())
        for name in "location position distance centre direction plane slope zoom field".split():
            yield name, getattr(self, name)()


def words(strings, language):
    """What does not come from a camera: days, compact angles, months and dates in words and digits."""
    for n in [*range(0, 26), *range(98, 125), 1000, 1001]:
        form = 130632 if 11 <= n <= 20 else {1: 13063, 2: 130631, 3: 130631, 4: 130631}.get(n % 10, 130632)
        yield f"days {n}", strings[form]
    for d, m, s in [(0, 0, 0), (0, 0, 0.4), (0, 0, 59.4), (0, 1, 0), (0, 9, 59.4), (0, 10, 0), (0, 59, 59), (1, 0, 0),
                    (9, 59, 59), (10, 0, 0), (360, 1, 1)]:
        if d > 0:
            text = "%d°" % d if d >= 10 else "%d°%d'" % (d, m)
        else:
            text = '%.0f"' % s if m < 1 else "%d'" % m if m >= 10 else "%d'%.0f\"" % (m, s)
        yield f"angle {d} {m} {s:g}", text
    first = 1971 if language == "ru" else 971
    for month in range(1, 13):
        yield f"month {month}", strings[first + month - 1]
    forms = {"dd/mm/yyyy": "{0:2d} {1} {2:4d}", "dd-mm-yyyy": "{0:2d} {1} {2:4d}", "dd.mm.yyyy": "{0:2d}. {1} {2:4d}",
             "d-m-yyyy": "{0:d} {1} {2:4d}", "m/d/yyyy": " {1} {0:d}, {2:4d}", "yyyy/m/d": "{2:4d} {1} {0:d}"}
    for year, month, day in [(2024, 3, 5), (1999, 12, 31), (-44, 3, 15), (0, 1, 1), (987, 10, 10)]:
        form = forms.get(strings[40830], "{2:4d} {1} {0:2d}")
        yield f"long {year} {month} {day}", form.format(day, strings[970 + month], year)
    for jd in (2460374.5, 2451545.25, 2299160.9):
        year, month, day = calendar(0, jd)[:3]
        mark = "." if language == "de" else "/"
        order = {1: (day, month, year), 0: (month, day, year)}.get(int(strings[20560]))
        text = mark.join(("%02d", "%02d", "%04d")) % order if order else "%04d%c%02d%c%02d" % (year, mark, month, mark, day)
        yield f"digits {jd}", text


def make():
    files = {"status_cameras.tsv": "# Made by make_status_texts.py; do not edit. Angles in degrees.\n" +
             "\t".join(COLUMNS) + "\n" +
             "".join("\t".join(repr(c[k]) if isinstance(c[k], float) else str(c[k]) for k in COLUMNS) + "\n"
                     for c in cameras())}
    for language in LANGUAGES:
        strings = load_strings(language)
        lines = ["# Made by make_status_texts.py; do not edit."]
        for number, camera in enumerate(cameras()):
            lines += [f"{number} {name}: {text}" for name, text in Texts(camera, strings).lines()]
        lines += [f"{name}: {text}" for name, text in words(strings, language)]
        files[f"status_texts_{language}.txt"] = "\n".join(lines) + "\n"
    return files


for name, content in make().items():
    path = os.path.join(HERE, name)
    if "--check" in sys.argv:
        with open(path, encoding="utf-8", newline="") as file:
            if file.read() != content:
                sys.exit(f"{path} is not what {__file__} makes")
    else:
        with open(path, "w", encoding="utf-8", newline="") as file:
            file.write(content)
