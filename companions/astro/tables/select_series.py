#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Chooses the terms of VSOP87B and ELP 2000-82B that the library keeps, and writes them beside this script.

Usage: select_series.py LIBNOVA_A        LIBNOVA_A: libnova.a 0.16 (Debian: libnova-dev), for x86_64

The published tables are taken from the object files of that library, which hold them whole (SOURCE.md). Needed again
only when the thresholds change; make_planets.py, which the build checks, reads what this script writes.
"""
import math
import pathlib
import re
import struct
import subprocess
import sys
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
ARC_SECOND = math.pi / 648000

# Terms below this, arc seconds (of the radius: times the mean distance), are dropped; a term that grows with the power n
# of the time counts with its size 2000 years from J2000.0.
THRESHOLDS = {"mercury": 0.1, "venus": 0.03, "earth": 0.02, "mars": 0.05,
              "jupiter": 0.1, "saturn": 0.15, "uranus": 0.15, "neptune": 0.1}
MOON_ANGLE = 0.05      # arc seconds
MOON_DISTANCE = 0.1    # km
MOON_CENTURIES = 4     # where the terms that grow are measured


def tables(library, name):
    """The constant tables of one object file: symbol -> bytes."""
    with tempfile.NamedTemporaryFile(suffix=".o") as unpacked:
        unpacked.write(subprocess.check_output(["ar", "p", library, name]))
        unpacked.flush()
        sections = subprocess.check_output(["readelf", "-SW", unpacked.name], text=True)
        line = next(text for text in sections.splitlines() if re.search(r"\s\.rodata\s", text))
        offset = int(line.split("]")[1].split()[3], 16)
        content = pathlib.Path(unpacked.name).read_bytes()
        found = {}
        for symbol in subprocess.check_output(["nm", "-S", unpacked.name], text=True).splitlines():
            fields = symbol.split()
            if len(fields) == 4 and fields[2] in "rR":
                start = offset + int(fields[0], 16)
                found[fields[3]] = content[start:start + int(fields[1], 16)]
        return found


def unpack(layout, content):
    return list(struct.iter_unpack("<" + layout, content))


def planet_rows(library):
    for planet, threshold in THRESHOLDS.items():
        kept = tables(library, planet + ".o")
        series = {}
        for symbol, content in kept.items():
            match = re.fullmatch(planet + r"_(?:longitude|latitude|radius)_([lbr])(\d)", symbol)
            if match:
                series[match[1].upper(), int(match[2])] = unpack("3d", content)
        distance = series["R", 0][0][0]
        for variable in "LBR":
            limit = threshold * ARC_SECOND * (distance if variable == "R" else 1)
            for power in range(6):
                for amplitude, phase, rate in series.get((variable, power), []):
                    if abs(amplitude) * 2 ** power > limit:
                        yield f"{planet}\t{variable}\t{power}\t{amplitude:.11f}\t{phase:.11f}\t{rate:.11f}"


def dms(degrees, minutes, seconds):
    return (degrees * 3600 + minutes * 60 + seconds) * ARC_SECOND


# Constants of ELP 2000-82B: mean longitude of the Moon, its perigee, its node, the Earth, the Earth's perihelion.
MOON = (dms(218, 18, 59.95571), 1732559343.73604 * ARC_SECOND)
PERIGEE = (dms(83, 21, 11.67475), 14643420.2632 * ARC_SECOND)
NODE = (dms(125, 2, 40.39816), -6967919.3622 * ARC_SECOND)
EARTH = (dms(100, 27, 59.22059), 129597742.2758 * ARC_SECOND)
PERIHELION = (dms(102, 56, 14.42753), 1161.2283 * ARC_SECOND)
DELAUNAY = [(MOON[0] - EARTH[0] + math.pi, MOON[1] - EARTH[1]), (EARTH[0] - PERIHELION[0], EARTH[1] - PERIHELION[1]),
            (MOON[0] - PERIGEE[0], MOON[1] - PERIGEE[1]), (MOON[0] - NODE[0], MOON[1] - NODE[1])]
PRECESSION = (MOON[0], MOON[1] + 5029.0966 * ARC_SECOND)
PLANETS = [(dms(252, 15, 3.25986), 538101628.68898), (dms(181, 58, 47.28305), 210664136.43355),
           (EARTH[0], 129597742.2758), (dms(355, 25, 59.78866), 68905077.59284), (dms(34, 21, 5.34212), 10925660.42861),
           (dms(50, 4, 38.89694), 4399609.65932), (dms(314, 3, 18.01841), 1542481.19393),
           (dms(304, 20, 55.19575), 786550.32074)]
PLANETS = [(phase, rate * ARC_SECOND) for phase, rate in PLANETS]


def main_amplitude(row, coordinate):
    """The amplitude with the corrections of the constants to those of DE200 (section 7 of the theory's notice)."""
    amplitude, b = row[4], row[5:]
    mean_motion = MOON[1]
    ratio, share = 0.074801329518, 2 * 0.002571881335 / (3 * 0.074801329518)
    nu, nu_earth = 0.55604 * ARC_SECOND / mean_motion, -0.06424 * ARC_SECOND / mean_motion
    gamma, e, e_earth = -0.08066 * ARC_SECOND, 0.01789 * ARC_SECOND, -0.12879 * ARC_SECOND
    if coordinate == 3:
        amplitude -= 2 * amplitude * nu / 3
    return (amplitude + (b[0] + share * b[4]) * (nu_earth - ratio * nu) + b[1] * gamma + b[2] * e + b[3] * e_earth)


def summed(multiples, arguments):
    return [sum(m * a[i] for m, a in zip(multiples, arguments)) for i in (0, 1)]


def disturbances(kept, coordinate):
    """(power of the time, amplitude, phase, rate) of every table of perturbations."""
    for first, power in (("earth_pert_elp%d", 0), ("tidal_effects_elp%d", 0)):
        base = 3 if first.startswith("earth") else 21
        for shift, grows in ((0, power), (3, 1)):
            yield from figure_terms(kept[first % (base + shift + coordinate)], grows)
    yield from figure_terms(kept["moon_pert_elp%d" % (27 + coordinate)], 0)
    yield from figure_terms(kept["rel_pert_elp%d" % (30 + coordinate)], 0)
    yield from figure_terms(kept["plan_sol_pert_elp%d" % (33 + coordinate)], 2)
    for base, power, second in ((9, 0, False), (12, 1, False), (15, 0, True), (18, 1, True)):
        for row in unpack("11i4x3d", kept["plan_pert_elp%d" % (base + coordinate)]):
            yield planet_term(row, power, second)


def figure_terms(content, power):
    for row in unpack("5i4x3d", content):
        phase, rate = summed(row[:5], [PRECESSION] + DELAUNAY)
        yield power, row[6], phase + math.radians(row[5]), rate


def planet_term(row, power, second):
    if second:
        arguments = PLANETS[:7] + DELAUNAY
    else:
        arguments = PLANETS + [DELAUNAY[0], DELAUNAY[2], DELAUNAY[3]]
    phase, rate = summed(row[:11], arguments)
    return power, row[12], phase + math.radians(row[11]), rate


def moon_rows(library):
    kept = tables(library, "lunar.o")
    for coordinate, name in ((1, "longitude"), (2, "latitude"), (3, "distance")):
        limit = MOON_DISTANCE if coordinate == 3 else MOON_ANGLE
        for row in unpack("4i6d", kept["main_elp%d" % coordinate]):
            amplitude = main_amplitude(row, coordinate)
            if abs(amplitude) > limit:
                multiples = "\t".join(str(number) for number in row[:4])
                yield f"{name}\tmain\t{multiples}\t{amplitude:.5f}\t\t\t"
        for power, amplitude, phase, rate in disturbances(kept, coordinate):
            if abs(amplitude) * MOON_CENTURIES ** power > limit:
                yield (f"{name}\tother\t\t\t\t\t{amplitude:.5f}\t{power}"
                       f"\t{math.fmod(phase, 2 * math.pi):.9f}\t{rate:.9f}")


def write(name, header, rows):
    (HERE / name).write_text("\n".join([header, *rows]) + "\n")


def main():
    library = sys.argv[1]
    write("vsop87b_terms.tsv", "Body\tVariable\tPower\tA\tB\tC", planet_rows(library))
    write("elp2000_82b_terms.tsv", "Coordinate\tTable\tD\tSunAnomaly\tMoonAnomaly\tF\tAmplitude\tPower\tPhase\tRate",
          moon_rows(library))


if __name__ == "__main__":
    main()
