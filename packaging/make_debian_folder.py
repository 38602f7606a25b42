#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Makes the folder debian, of which the packages are made: the files of packaging/debian with what is known of this
build in place of @NAME@, the change log, the licences, the manual pages and the reference of the interface.

usage: make_debian_folder.py SOURCE_DIR BUILD_DIR REFERENCE_DIR FOLDER

The moment of the change log is SOURCE_DATE_EPOCH, the maintainer's address is DEBEMAIL.
"""
import datetime
import os
import re
import shutil
import subprocess
import sys

from changelog import make_changelog
from copyright import make_copyright
from man_pages import make_pages

# Programs to read and to build, and what of their folders serves this tree alone.
EXAMPLES = {"docs/tutorial": ["*.md", "CMakeLists.txt"], "docs/cookbook": ["CMakeLists.txt"],
            "examples/camera_only": ["expected.txt"], "examples/draw_svg": ["expected.txt"]}


def write(folder, name, text):
    with open(os.path.join(folder, name), "w", encoding="utf-8") as file:
        file.write(text)


def read(*path):
    with open(os.path.join(*path), encoding="utf-8") as file:
        return file.read()


def find_soversion(build):
    """The one number behind the names of all libraries."""
    library = os.path.join(build, "lib", "libcommon_interfaces.so")
    dynamic = subprocess.run(["readelf", "-d", library], capture_output=True, text=True, check=True).stdout
    return re.search(r"SONAME.*\[libcommon_interfaces\.so\.([\d.]+)\]", dynamic).group(1)


def main():
    source, build, reference, folder = map(os.path.abspath, sys.argv[1:5])
    last_commit = int(os.environ["SOURCE_DATE_EPOCH"])
    date = datetime.datetime.fromtimestamp(last_commit, datetime.timezone.utc).strftime("%Y-%m-%d")
    maintainer = f"the common_interfaces authors <{os.environ['DEBEMAIL']}>"
    known = {"SOURCE": source, "BUILD": build, "SOVERSION": find_soversion(build), "MAINTAINER": maintainer}

    def fill(text):
        return re.sub(r"@([A-Z]+)@", lambda match: known[match.group(1)], text)

    templates = os.path.join(source, "packaging", "debian")
    os.makedirs(os.path.join(folder, "man"))
    for name in os.listdir(templates):
        write(folder, fill(name), fill(read(templates, name)))
    os.chmod(os.path.join(folder, "rules"), 0o755)
    write(folder, "changelog", make_changelog(read(source, "CHANGELOG.md"), maintainer, last_commit))
    write(folder, "copyright", make_copyright(source))
    for program in ("skyview", "skydata"):
        for name, text in make_pages(os.path.join(build, "bin", program), program, date).items():
            write(os.path.join(folder, "man"), name, text)
    shutil.copytree(reference, os.path.join(folder, "html"))
    for path, left in EXAMPLES.items():
        shutil.copytree(os.path.join(source, path), os.path.join(folder, "examples", os.path.basename(path)),
                        ignore=shutil.ignore_patterns(*left))


if __name__ == "__main__":
    main()
