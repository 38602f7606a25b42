#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Makes text/refraction_table.h, the table behind InterpoleEarthRefractionShift. The model is described in
docs/refraction.md. All arithmetic is decimal, so every machine writes the same file.

usage: make_refraction_table.py [--check] FILE      --check: only say whether FILE is what would be written
"""
import sys
from decimal import Decimal as D, getcontext

getcontext().prec = 50

ENTRIES = 1025                  # entry i belongs to the sine of altitude -0.024 + i / 1000
# Shifts in units of the sine of altitude: the points that the table has to meet.
GIVEN = {0: D("0.0172626761276"), 1: D("0.016781551774"), 100: D("0.00310590798968"),
         500: D("0.000572964396045"), 1000: D("0.000280547274413"), 1023: D("0.0000238024100557"), 1024: D(0)}
HORIZON, HORIZON_SHIFT_DEGREES = 24, D("0.546")
DEGREE = D("3.14159265358979323846264338327950288419716939937511") / 180
SIN_15_DEGREES = (D(6).sqrt() - D(2).sqrt()) / 4
ZENITH_LINE = 1013              # the first entry on the straight line to zero
LOG_OFFSET = D("0.1")           # keeps the logarithm's argument positive down to the first entry


def sine(i):
    return D(i - 24) / 1000


def cosine(s):
    return (1 - s * s).sqrt()


def tan_small(x):
    """Tangent of an angle below 0.01 radian, to 24 digits."""
    return x + x ** 3 / 3 + 2 * x ** 5 / 15 + 17 * x ** 7 / 315 + 62 * x ** 9 / 2835 + 1382 * x ** 11 / 155925


def arctan_small(x):
    return sum((-1) ** k * x ** (2 * k + 1) / (2 * k + 1) for k in range(8))


def shift_of(refraction, s):
    """tan(a + R) = (s + shift) / cos a, solved for the shift."""
    t = tan_small(refraction)
    return t / (cosine(s) - s * t)


def refraction_of(shift, s):
    return arctan_small(shift * cosine(s) / (1 + s * shift))


def fit_tangent_law():
    """A and B of R = A tan z - B tan^3 z through the entries 500 and 1000."""
    rows = []
    for i in (500, 1000):
        s = sine(i)
        tan_z = cosine(s) / s
        rows.append((tan_z * tan_z, refraction_of(GIVEN[i], s) / tan_z))
    b = (rows[0][1] - rows[1][1]) / (rows[1][0] - rows[0][0])
    return rows[0][1] + b * rows[0][0], b


def tangent_law(s, a, b):
    tan_z = cosine(s) / s
    return shift_of(a * tan_z - b * tan_z ** 3, s)


def solve(matrix, right):
    """Gauss-Jordan elimination with pivoting."""
    n = len(matrix)
    rows = [row + [right[i]] for i, row in enumerate(matrix)]
    for c in range(n):
        pivot = max(range(c, n), key=lambda r: abs(rows[r][c]))
        rows[c], rows[pivot] = rows[pivot], rows[c]
        for r in range(n):
            if r != c:
                factor = rows[r][c] / rows[c][c]
                rows[r] = [x - factor * y for x, y in zip(rows[r], rows[c])]
    return [rows[i][n] / rows[i][i] for i in range(n)]


def fit_low_altitudes(law):
    """ln shift as a polynomial of degree 6 in ln(s + 0.1): through the four lowest points, and with the value,
    slope and curvature of the tangent law at 15 degrees."""
    points = {i: GIVEN[i] for i in (0, 1, 100)}
    points[HORIZON] = tan_small(HORIZON_SHIFT_DEGREES * DEGREE)
    matrix, right = [], []
    for i, shift in sorted(points.items()):
        matrix.append([(sine(i) + LOG_OFFSET).ln() ** k for k in range(7)])
        right.append(shift.ln())
    x0, step = (SIN_15_DEGREES + LOG_OFFSET).ln(), D("1e-10")
    below, at, above = (law((x0 + d).exp() - LOG_OFFSET).ln() for d in (-step, D(0), step))
    matrix.append([x0 ** k for k in range(7)])
    right.append(at)
    matrix.append([D(0)] + [k * x0 ** (k - 1) for k in range(1, 7)])
    right.append((above - below) / (2 * step))
    matrix.append([D(0), D(0)] + [k * (k - 1) * x0 ** (k - 2) for k in range(2, 7)])
    right.append((above - 2 * at + below) / step ** 2)
    return solve(matrix, right)


def make_shifts():
    a, b = fit_tangent_law()
    coefficients = fit_low_altitudes(lambda s: tangent_law(s, a, b))
    shifts = []
    for i in range(ENTRIES):
        s = sine(i)
        if i >= ZENITH_LINE:
            shifts.append((ENTRIES - 1 - i) * GIVEN[1023])
        elif s >= SIN_15_DEGREES:
            shifts.append(tangent_law(s, a, b))
        else:
            x = (s + LOG_OFFSET).ln()
            shifts.append(sum(c * x ** k for k, c in enumerate(coefficients)).exp())
    return shifts


def make_file():
    values = [f"{shift:.12g}" if shift else "0.0" for shift in make_shifts()] + ["0.0"]
    lines = ["// SPDX-FileCopyrightText: the common_interfaces authors", "// SPDX-License-Identifier: MIT", "//",
             "// Made by text/make_refraction_table.py, which explains the numbers; do not edit. Entry i: what refraction",
             "// adds to the sine of altitude -0.024 + i / 1000. The entry behind the last one lets sine 1 interpolate.",
             "#pragma once", "", "// clang-format off", "namespace CommonInterfaces {", "",
             f"inline constexpr double kRefractionShifts[{len(values)}] = {{"]
    for i in range(0, len(values), 5):
        lines.append("    " + ", ".join(values[i:i + 5]) + ",")
    return "\n".join(lines + ["};", "", "}  // namespace CommonInterfaces", ""])


def main():
    content = make_file()
    if sys.argv[1] != "--check":
        with open(sys.argv[1], "w", encoding="utf-8", newline="\n") as file:
            file.write(content)
        return 0
    with open(sys.argv[2], encoding="utf-8", newline="") as file:
        if file.read() == content:
            return 0
    print(f"{sys.argv[2]} is not what {sys.argv[0]} writes")
    return 1


if __name__ == "__main__":
    sys.exit(main())
