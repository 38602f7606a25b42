# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Tables separated by tabs, and directions on the sky: what the converters of this folder have in common."""
import csv
import math
import os


def rows(folder, name):
    """The records of a table with a header line; lines that begin with '#' are comments."""
    with open(os.path.join(folder, name), encoding="utf-8", newline="") as table:
        records = (line for line in table if not line.startswith("#"))
        yield from csv.DictReader(records, delimiter="\t", quoting=csv.QUOTE_NONE)


def make_text(header, lines, comments=()):
    """The text of a table; trailing empty cells are left out, as editors strip the tabs there."""
    text = "".join(f"# {comment}\n" for comment in comments)
    for line in [header, *lines]:
        text += "\t".join(line).rstrip("\t") + "\n"
    return text


def write(folder, name, header, lines, comments=()):
    path = os.path.join(folder, name)
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "w", encoding="utf-8", newline="\n") as table:
        table.write(make_text(header, lines, comments))


def number(value, digits=6):
    """The shortest way to write a value with so many digits behind the point."""
    value = round(float(value), digits)
    return f"{value:.{digits}f}".rstrip("0").rstrip(".") if value else "0"


def direction(ra, dec):
    """The unit vector of a position in degrees: x to right ascension 0, y to 90, z to the north pole."""
    ra, dec = math.radians(ra), math.radians(dec)
    return (math.cos(dec) * math.cos(ra), math.cos(dec) * math.sin(ra), math.sin(dec))


def position(vector):
    """(right ascension, declination) of a vector, degrees; right ascension from 0 up to 360."""
    x, y, z = vector
    return math.degrees(math.atan2(y, x)) % 360.0, math.degrees(math.atan2(z, math.hypot(x, y)))


def dot(a, b):
    return sum(p * q for p, q in zip(a, b))


def cross(a, b):
    return (a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0])


def unit(vector):
    length = math.sqrt(dot(vector, vector))
    return tuple(component / length for component in vector)


def combine(*terms):
    """The sum of factor * vector over (factor, vector)."""
    return tuple(sum(factor * vector[i] for factor, vector in terms) for i in range(3))


def north_and_east(center):
    """Unit vectors on the plane that touches the sphere at `center`, which is no pole."""
    east = unit(cross((0.0, 0.0, 1.0), center))
    return cross(center, east), east
