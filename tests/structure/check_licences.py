#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Checks that every file of the tree says its licence, by two lines at its top or through REUSE.toml, that the texts of
all these licences and no others are in LICENSES, and that NOTICE.md names everyone whose work is passed on.

usage: check_licences.py SOURCE_DIR
"""
import os
import re
import subprocess
import sys
import tomllib

IN_FILE = re.compile(rb"SPDX-License-Identifier: *([^\s*]+(?: (?:AND|OR|WITH) [^\s*]+)*)")
OURS = "the common_interfaces authors"
NOT_COVERED = re.compile(r"^(LICENSES/|build/|\.git/|REUSE\.toml$)|(^|/)__pycache__/")


def list_files(root):
    """What is committed; of a tree without its history, everything."""
    listing = subprocess.run(["git", "ls-files", "-z"], cwd=root, capture_output=True)
    if listing.returncode == 0:
        paths = [path.decode() for path in listing.stdout.split(b"\0") if path]
        paths = [path for path in paths if os.path.exists(os.path.join(root, path))]
    else:
        paths = [os.path.relpath(os.path.join(folder, name), root) for folder, _, names in os.walk(root) for name in names]
    return [path for path in paths if not NOT_COVERED.search(path)]


def make_pattern(glob):
    """Of a path: "*" stands for anything but a slash, "**" for anything."""
    parts = re.split(r"(\*\*/|\*\*|\*)", glob)
    return re.compile("".join({"**/": "(?:.*/)?", "**": ".*", "*": "[^/]*"}.get(part, re.escape(part)) for part in parts))


def as_list(value):
    return value if isinstance(value, list) else [value]


def main():
    root = sys.argv[1]
    with open(os.path.join(root, "REUSE.toml"), "rb") as file:
        entries = tomllib.load(file)["annotations"]
    patterns = [(make_pattern(path), path, entry) for entry in entries for path in as_list(entry["path"])]
    with open(os.path.join(root, "NOTICE.md"), encoding="utf-8") as file:
        notice = file.read()
    used, matched, bad = set(), set(), []
    files = list_files(root)
    for path in files:
        with open(os.path.join(root, path), "rb") as file:
            own = IN_FILE.search(file.read(1000))
        fitting = [(glob, entry) for pattern, glob, entry in patterns if pattern.fullmatch(path)]
        matched.update(glob for glob, _ in fitting)
        last = fitting[-1][1] if fitting else None
        if own and not (last and last.get("precedence") == "override"):
            expression = own.group(1).decode()
        elif last:
            expression = last["SPDX-License-Identifier"]
        else:
            bad.append(f"{path}: says no licence, and no entry of REUSE.toml fits it")
            continue
        used.update(re.split(r" (?:AND|OR|WITH) ", expression))
        if path.startswith("data/source/") and path.endswith("SOURCE.md") and path not in notice:
            bad.append(f"NOTICE.md: does not name {path}")
    bad += [f"REUSE.toml: no file fits {path}" for _, path, _ in patterns if path not in matched]
    texts = {name.removesuffix(".txt") for name in os.listdir(os.path.join(root, "LICENSES"))}
    bad += [f"LICENSES: has no text of {name}" for name in sorted(used - texts)]
    bad += [f"LICENSES/{name}.txt: no file has that licence" for name in sorted(texts - used)]
    holders = {holder for entry in entries for holder in as_list(entry["SPDX-FileCopyrightText"])}
    bad += [f"NOTICE.md: does not name {holder}" for holder in sorted(holders)
            if holder != OURS and not holder.startswith("the sources") and re.sub(r"^[\d-]+ ", "", holder) not in notice]
    print("\n".join(bad) if bad else f"{len(files)} files, {len(texts)} licences")
    return 1 if bad or not files else 0


if __name__ == "__main__":
    sys.exit(main())
