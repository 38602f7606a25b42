# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Writes the sources that are made of tables, or says which of them are not what the tables make."""

import pathlib
import sys


def write_or_check(folder, tables):
    """`tables`: pairs of a file's name and the function that gives its lines. With --check nothing is written. The
    exit status: 1 when a file is not current."""
    script = pathlib.Path(sys.argv[0]).name
    current = True
    for name, made in tables:
        text = "\n".join(made()) + "\n"
        target = folder / name
        if sys.argv[1:] == ["--check"]:
            if not target.exists() or target.read_text() != text:
                print(f"{name} is not what {script} makes of the tables", file=sys.stderr)
                current = False
        else:
            target.write_text(text)
    return 0 if current else 1
