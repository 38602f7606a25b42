# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Runs a command of Python, or says which module this system lacks for it: exit status 77, a test that was skipped.

usage: run_with.py MODULE[,MODULE...] ARGUMENT...
"""
import importlib.util
import os
import sys

SKIPPED = 77


def main():
    missing = [name for name in sys.argv[1].split(",") if importlib.util.find_spec(name) is None]
    if missing:
        print(f"skipped: no module {', '.join(missing)}")
        return SKIPPED
    os.execv(sys.executable, [sys.executable, "-B", *sys.argv[2:]])


if __name__ == "__main__":
    sys.exit(main())
