#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Checks that no folder holds more sources, and no source more lines, than a reader takes in. Exported headers are not
counted, because what they declare is one thing to a program, and tables may be longer, because nobody reads them in
order: *.inc, *_table.h, *_tables.h.

usage: check_sizes.py SOURCE_DIR
"""
import collections
import os
import re
import sys

MOST_FILES = 40
MOST_LINES = 400
SOURCE = (".h", ".cpp", ".c", ".inc", ".py")
TABLE = re.compile(r"\.inc$|_tables?\.h$")
EXPORTED = re.compile(r"(^|/)include/\w+$")
NOT_OURS = re.compile(r"^(build|\.git)$")


def sources(root):
    """Every source of the tree as (folder, name), folders relative to the root."""
    for folder, folders, files in os.walk(root):
        folders[:] = sorted(name for name in folders if not (folder == root and NOT_OURS.match(name)))
        for name in sorted(files):
            if name.endswith(SOURCE):
                yield os.path.relpath(folder, root), name


def count_lines(path):
    with open(path, "rb") as file:
        return sum(1 for _ in file)


def main():
    root = sys.argv[1]
    files, bad = collections.Counter(), []
    for folder, name in sources(root):
        if EXPORTED.search(folder):
            continue
        files[folder] += 1
        if not TABLE.search(name):
            lines = count_lines(os.path.join(root, folder, name))
            if lines > MOST_LINES:
                bad.append(f"{folder}/{name}: {lines} lines, more than {MOST_LINES}")
    for folder, count in files.items():
        if count > MOST_FILES:
            bad.append(f"{folder}: {count} sources, more than {MOST_FILES}")
    print("\n".join(bad) if bad else f"{sum(files.values())} sources in {len(files)} folders, none too large")
    return 1 if bad else 0


if __name__ == "__main__":
    sys.exit(main())
