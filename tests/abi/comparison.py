# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""What abidiff says of two descriptions, as the rule of docs/versions.md has it."""
import collections
import re
import subprocess

# report: what changed, "" for nothing; words: what follows from it.
Verdict = collections.namedtuple("Verdict", "fits report words")

FAILED, CHANGED = 0b0011, 0b1100  # bits of abidiff's exit status


def run_abidiff(*arguments):
    found = subprocess.run(["abidiff", *map(str, arguments)], capture_output=True, text=True)
    if found.returncode < 0 or found.returncode & FAILED:
        raise subprocess.CalledProcessError(found.returncode, found.args, stderr=found.stdout + found.stderr)
    return bool(found.returncode & CHANGED), found.stdout.strip()


def loaded_as(description):
    return re.search(r'<abi-corpus [^>]*\bsoname="([^"]*)"', description.read_text(encoding="utf-8"))[1]


def compare(recorded, built, allowed):
    before, now = loaded_as(recorded), loaded_as(built)
    changed, report = run_abidiff("--suppressions", allowed, recorded, built)
    if before != now:
        return Verdict(True, report, f"loaded as {now} instead of {before}: programs have to be compiled anew")
    breaking, _ = run_abidiff("--suppressions", allowed, "--no-added-syms", recorded, built)
    if breaking:
        return Verdict(False, report, f"programs that load {now} would break: the number behind .so has to move")
    return Verdict(True, report if changed else "", "additions: minor goes up" if changed else "nothing changed")
