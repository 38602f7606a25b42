#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Runs an example and compares what it prints with the recorded text. With --svg the picture that it writes must be
XML and hold as many elements of each kind as the example says that there are records.

usage: check_example.py EXPECTED [--svg PICTURE] COMMAND...
"""
import difflib
import os
import subprocess
import sys
import xml.etree.ElementTree as ET

# Elements that the records of a display list become.
ELEMENTS = {"points": "circle", "discs": "circle", "polylines": "polyline", "ellipses": "ellipse", "polygons": "path",
            "gradients": "linearGradient", "texts": "text"}


def check_picture(path, printed):
    """Faults of the picture, as lines."""
    told, found = {}, {}
    for line in printed:
        kind, _, count = line.partition(" ")
        if kind in ELEMENTS:
            told[ELEMENTS[kind]] = told.get(ELEMENTS[kind], 0) + int(count)
    for element in ET.parse(path).getroot():
        name = element.tag.split("}")[-1]
        if name == "polygon" and element.get("fill") == "none":
            name = "polyline"  # a closed one
        found[name] = found.get(name, 0) + 1
    return [f"{path}: {found.get(name, 0)} elements {name} for {count} records"
            for name, count in told.items() if found.get(name, 0) != count]


def main():
    expected_path, command, picture = sys.argv[1], sys.argv[2:], None
    if command[0] == "--svg":
        picture, command = command[1], command[2:]
        if os.path.exists(picture):
            os.remove(picture)
    run = subprocess.run(command, capture_output=True, text=True)
    printed = run.stdout.splitlines()
    with open(expected_path, encoding="utf-8") as file:
        expected = file.read().splitlines()
    bad = list(difflib.unified_diff(expected, printed, expected_path, "printed", lineterm=""))
    if run.returncode != 0:
        bad.append(f"exit status {run.returncode}")
    elif picture:
        bad += check_picture(picture, printed)
    print("\n".join(bad) + run.stderr if bad else "as recorded")
    return 1 if bad else 0


if __name__ == "__main__":
    sys.exit(main())
