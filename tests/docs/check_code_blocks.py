#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Checks that the C++ of the README, the tutorial and the cookbook is that of the programs that the tests build: each
block stands in one of them, line for line; a chapter of the tutorial shows its program whole; the cookbook shows every
recipe.

usage: check_code_blocks.py SOURCE_DIR
"""
import glob
import os
import re
import sys

from page import read_blocks

PROGRAMS = ("docs/tutorial/*.cpp", "docs/cookbook/*.cpp", "docs/cookbook/*.h")
RECIPE = re.compile(r"^void \w+\(Kitchen&[^)]*\) \{$", re.MULTILINE)


def read(path):
    with open(path, encoding="utf-8") as file:
        return file.read()


def without_blanks(text):
    return [line.strip() for line in text.split("\n") if line.strip()]


def dedented(text):
    """As often as it takes: a block may show lines from inside a function without their indentation."""
    return "\n".join(line.strip() for line in text.split("\n"))


def check_chapter(root, page, blocks):
    name = re.sub(r"^\d+_", "", os.path.basename(page))[:-3]
    path = os.path.join(root, os.path.dirname(page), name + ".cpp")
    program = [line for line in without_blanks(read(path)) if not line.startswith("// SPDX-")]
    shown = [line for block in blocks for line in without_blanks(block.text())]
    if program[0] == "//":
        program = program[1:]
    if shown == program:
        return []
    missing = [line for line in program if line not in shown]
    return [f"{page}: does not show {name}.cpp whole and in order" + (f"; missing: {missing[0]}" if missing else "")]


def main():
    root = sys.argv[1]
    sources = [dedented(read(path)) for pattern in PROGRAMS for path in glob.glob(os.path.join(root, pattern))]
    chapters = sorted(glob.glob("docs/tutorial/*.md", root_dir=root))
    count, faults = 0, []
    for page in ["README.md", *chapters, "docs/cookbook.md"]:
        blocks = [block for block in read_blocks(os.path.join(root, page)) if block.language == "cpp"]
        count += len(blocks)
        for block in blocks:
            if not any(dedented(block.text()) in source for source in sources):
                faults.append(f"{page}:{block.first}: stands in no program of docs/tutorial and docs/cookbook")
        if page in chapters:
            faults += check_chapter(root, page, blocks)
        if page == "docs/cookbook.md":
            shown = "".join(block.text() for block in blocks)
            for recipe in RECIPE.findall("".join(read(path) for path in glob.glob(os.path.join(root, "docs/cookbook/*.cpp")))):
                if recipe not in shown:
                    faults.append(f"{page}: does not show: {recipe}")
    print("\n".join(faults) if faults else f"{count} blocks of C++, all of them built")
    return 1 if faults or not count else 0


if __name__ == "__main__":
    sys.exit(main())
