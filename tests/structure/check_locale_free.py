#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Checks that sources neither read nor write numbers through functions that obey the locale of the process, whose
decimal point may be a comma and whose white space may be more than the ASCII one.

usage: check_locale_free.py SOURCE_FILE...
"""
import re
import sys

COMMENT = re.compile(r"//[^\n]*|/\*.*?\*/", re.DOTALL)
FUNCTION = re.compile(r"\b(?:ato(?:f|i|l|ll)|strto(?:d|f|ld|u?ll?)|sto(?:d|f|ld|i|u?ll?)|v?[fs]?scanf|\w*stringstream|[io]fstream|to_string)\b")
REAL_CONVERSION = re.compile(r"%[-+ #0-9.*]*[lL]?[aAeEfFgG]")


def faults(path):
    with open(path, encoding="utf-8") as file:
        text = COMMENT.sub(lambda comment: "\n" * comment.group().count("\n"), file.read())
    for number, line in enumerate(text.splitlines(), 1):
        yield from (f"{path}:{number}: {match}" for match in FUNCTION.findall(line) + REAL_CONVERSION.findall(line))


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    bad = [fault for path in sys.argv[1:] for fault in faults(path)]
    print("\n".join(bad) if bad else f"{len(sys.argv) - 1} sources, none of which obeys the locale in its numbers")
    sys.exit(1 if bad else 0)


main()
