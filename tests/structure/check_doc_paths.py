#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Checks that the files and folders exist that the pages about the code, the README and the pictures of docs/pictures
name, and the pages and pictures that they link to; of all other pages, the sources that they name.

usage: check_doc_paths.py SOURCE_DIR
"""
import glob
import os
import re
import sys

PAGES = ["*.md", "docs/architecture.md", "docs/extending.md", "docs/embedding.md", "docs/tour.md", "docs/cookbook.md",
         "docs/tutorial/*.md", "docs/formats/display_list.md", "docs/pictures/*.dot"]
# A word with a slash that begins with a folder of the tree; "*" stands for a piece of a name, and what a reader puts in
# for himself is written in capitals.
PATH = re.compile(r"(?<![\w/.<])((?:\w+/)+[\w*.]*)")
SOURCE = re.compile(r"`((?:\w+/)+[\w*]+\.(?:h|cpp|py|cmake))`")
PLACEHOLDER = re.compile(r"[A-Z]{3}")
LINK = re.compile(r"\]\(([^)#\s]+)")


def named_paths(root, page):
    is_code = False
    with open(os.path.join(root, page), encoding="utf-8") as file:
        for number, line in enumerate(file, 1):
            for path in PATH.findall(line):
                top = path.split("/")[0]
                if os.path.isdir(os.path.join(root, top)) and top != "build" and not PLACEHOLDER.search(path):
                    yield number, path.rstrip(".")
            is_code ^= line.lstrip().startswith("```")
            for link in LINK.findall(line):
                if "://" not in link and not is_code:
                    yield number, os.path.normpath(os.path.join(os.path.dirname(page), link))


def named_sources(root, page):
    with open(os.path.join(root, page), encoding="utf-8") as file:
        for number, line in enumerate(file, 1):
            for path in SOURCE.findall(line):
                if not PLACEHOLDER.search(path):
                    yield number, path


def main():
    root = sys.argv[1]
    count, bad = 0, []
    whole = {page for pattern in PAGES for page in glob.glob(pattern, root_dir=root)}
    pages = {page for pattern in ("docs/*.md", "docs/formats/*.md") for page in glob.glob(pattern, root_dir=root)}
    for named, group in ((named_paths, whole), (named_sources, pages - whole)):
        for page in sorted(group):
            for number, path in named(root, page):
                count += 1
                # In C++ text a header is named as it is included.
                places = [path, "include/" + path, "scene/include/" + path, "companions/*/include/" + path]
                if not any(glob.glob(os.path.join(root, place)) for place in places):
                    bad.append(f"{page}:{number}: {path} does not exist")
    print("\n".join(bad) if bad else f"{count} paths named, all there")
    return 1 if bad or not count else 0


if __name__ == "__main__":
    sys.exit(main())
