#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Runs the programs as runs.txt says and compares what they answer with what is recorded below expected/.

usage: replay.py --programs FOLDER --data FOLDER [options] [NAME...]

Exit status 0: all runs answered as recorded; 1: some did not (a unified diff says how); 2: bad usage.
"""
import argparse
import difflib
import hashlib
import os
import re
import shutil
import subprocess
import sys
import tempfile

import picture_check
import run_table

HERE = os.path.dirname(os.path.abspath(__file__))
SOURCE = os.path.dirname(os.path.dirname(HERE))
DAMAGED = os.path.join(SOURCE, "tests", "skydata", "lint", "damaged")
TRANSCRIPT, DIGESTS, PICTURES, FILES = "transcript.txt", "digests.txt", "pictures.txt", "files"
STEP_SECONDS = 300
NO_LINE_END = b"\n\\ the last line has no end\n"


class Places:
    """Folders whose names differ from machine to machine, and what stands for them in the recording."""

    def __init__(self, programs, data, work):
        self.programs = os.path.abspath(programs)
        folders = {"@DATA@": data, "@SOURCE@": os.path.join(SOURCE, "data", "source"), "@WORK@": work,
                   "@PREFIX@": os.path.dirname(self.programs)}
        self.folders = {mark: os.path.abspath(folder) for mark, folder in folders.items()}

    def fill_in(self, word):
        for mark, folder in self.folders.items():
            word = word.replace(mark, folder)
        return word

    def take_out(self, data):
        """The longest name first: one folder may lie in another."""
        names = {(name, mark) for mark, folder in self.folders.items()
                 for name in (folder, os.path.realpath(folder))}
        for name, mark in sorted(names, key=lambda pair: -len(pair[0])):
            data = data.replace(name.encode(), mark.encode())
        return data


def environment(home):
    kept = {name: value for name, value in os.environ.items()
            if re.fullmatch(r"PATH|LD_LIBRARY_PATH|[A-Z]+SAN_OPTIONS", name)}
    return {**kept, "TZ": "UTC", "LC_ALL": "C.UTF-8", "HOME": home}


def prepare(words, work):
    """A step that makes files: each comes back with its bytes, so that what a program changes can be told."""
    if words[0] == "write":
        made = [(words[1], run_table.unescape(words[2]))]
    elif words[0] == "bytes":
        made = [(words[1], bytes.fromhex(words[2]))]
    elif words[0] == "copy":
        with open(words[1], "rb") as source:
            made = [(words[2], source.read(int(words[3]) if len(words) > 3 else -1))]
    else:
        case = run_table.read_damaged_case(os.path.join(DAMAGED, words[1]), words[2])
        made = [(os.path.join(words[2], path), data) for path, data in case]
    for path, data in made:
        path = os.path.join(work, path)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "wb") as target:
            target.write(data)
    return dict(made)


def ended(text):
    return text if not text or text.endswith(b"\n") else text + NO_LINE_END


def answer(words, places, work):
    """One run of a program as it stands in the transcript."""
    program = os.path.join(places.programs, words[0])
    done = subprocess.run([program] + words[1:], cwd=work, env=environment(work), stdin=subprocess.DEVNULL,
                          capture_output=True, timeout=STEP_SECONDS)
    parts = [(b"standard output", done.stdout), (b"standard error", done.stderr)]
    return b"== %s: exit status %d\n" % (words[0].encode(), done.returncode) + b"".join(
        b"-- " + title + b"\n" + ended(text) for title, text in parts if text)


def is_text(data):
    try:
        return "\0" not in data.decode("utf-8")
    except UnicodeDecodeError:
        return False


def written(work, made, digested):
    """What the run left: texts whole, a line for each picture and for each other file."""
    record, pictures, digests = {}, [], []
    for folder, _, names in os.walk(work):
        for name in names:
            path = os.path.relpath(os.path.join(folder, name), work)
            with open(os.path.join(work, path), "rb") as source:
                data = source.read()
            # The last bits of sines, which prepared catalogs hold, are those of the C library.
            digest = f"{len(data)} bytes"
            if not path.endswith(".prepared"):
                digest += f" sha256 {hashlib.sha256(data).hexdigest()}"
            if made.get(path) == data:
                continue
            if any(path.startswith(folder + "/") for folder in digested):
                digests.append(f"{path}: {digest}\n")
            elif path.endswith((".png", ".svg")):
                pictures.append(f"{path}: {picture_check.describe(path, data)}, {digest}\n")
            elif is_text(data):
                record[f"{FILES}/{path}"] = data
            else:
                digests.append(f"{path}: {digest}\n")
    for name, lines in ((PICTURES, pictures), (DIGESTS, digests)):
        if lines:
            record[name] = "".join(sorted(lines)).encode()
    return record


def perform(run, programs, data, work):
    """The run as a dictionary from path below expected/NAME to bytes."""
    places = Places(programs, data, work)
    transcript, made, digested = b"", {}, []
    for step in run.steps:
        words = [places.fill_in(word) for word in step]
        if words[0] in run_table.PROGRAMS:
            transcript += answer(words, places, work)
        elif words[0] == "digests":
            digested.append(words[1])
        else:
            made.update(prepare(words, work))
    record = {TRANSCRIPT: transcript, **written(work, made, digested)}
    return {path: places.take_out(data) for path, data in record.items()}


def recorded(folder):
    record = {}
    for parent, _, names in os.walk(folder):
        for name in names:
            path = os.path.join(parent, name)
            with open(path, "rb") as source:
                record[os.path.relpath(path, folder)] = source.read()
    return record


def keep(record, folder):
    shutil.rmtree(folder, ignore_errors=True)
    for path, data in record.items():
        path = os.path.join(folder, path)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "wb") as target:
            target.write(data)


def without_digests(record):
    """Of pictures only name and size: their bytes are the drawing library's."""
    if PICTURES in record:
        record = {**record, PICTURES: re.sub(rb", \d+ bytes sha256 \w+", b"", record[PICTURES])}
    return record


def differences(name, wanted, got):
    """Unified diffs of all files that differ; bytes that are no UTF-8 are shown escaped."""
    lines = []
    for path in sorted(wanted.keys() | got.keys()):
        if wanted.get(path) == got.get(path):
            continue
        before, after = (ended(record.get(path, b"")).decode("utf-8", "backslashreplace").split("\n")
                         for record in (wanted, got))
        titles = [f"{side} {name}/{path}" + ("" if path in record else " (not there)")
                  for side, record in (("recorded", wanted), ("answered", got))]
        lines += difflib.unified_diff(before, after, *titles, lineterm="")
    return lines


def parse(arguments):
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--programs", required=True, help="folder of skyview and skydata")
    parser.add_argument("--data", required=True, help="data root")
    parser.add_argument("--table", default=os.path.join(HERE, "runs.txt"), help="default: runs.txt")
    parser.add_argument("--record", action="store_true", help="write the recording, compare nothing")
    parser.add_argument("--pictures", action="store_true", help="pictures must have the recorded bytes too")
    parser.add_argument("--without-drawing", action="store_true", help="skip the runs that draw pictures")
    parser.add_argument("--keep", metavar="FOLDER", help="leave what each run wrote in FOLDER/NAME")
    parser.add_argument("names", nargs="*", metavar="NAME", help="only these runs")
    return parser.parse_args(arguments)


def chosen_runs(options):
    runs = run_table.read_runs(options.table)
    unknown = set(options.names) - {run.name for run in runs}
    if unknown:
        print(f"replay.py: no run of the name {', '.join(sorted(unknown))}", file=sys.stderr)
        raise SystemExit(2)
    return [run for run in runs if not options.names or run.name in options.names]


def replay(run, options, work):
    """True when the run answered as recorded, or was recorded."""
    got = perform(run, options.programs, options.data, work)
    folder = os.path.join(HERE, "expected", run.name)
    if options.record:
        keep(got, folder)
        return True
    wanted = recorded(folder)
    if not options.pictures:
        wanted, got = without_digests(wanted), without_digests(got)
    lines = differences(run.name, wanted, got)
    if lines:
        print("\n".join([f"run {run.name}: another answer than the recorded one"] + lines + [""]))
    return not lines


def main():
    options = parse(sys.argv[1:])
    missing = [program for program in run_table.PROGRAMS
               if not os.path.exists(os.path.join(options.programs, program))]
    if missing:
        print(f"replay.py: {options.programs} has no {' and no '.join(missing)}", file=sys.stderr)
        return 2
    counts = {"as recorded": 0, "different": 0, "skipped": 0}
    with tempfile.TemporaryDirectory(prefix="recordings-") as scratch:
        for run in chosen_runs(options):
            if options.without_drawing and run.draws():
                print(f"run {run.name}: skipped, nothing is drawn here")
                counts["skipped"] += 1
                continue
            work = os.path.abspath(os.path.join(options.keep or scratch, run.name))
            shutil.rmtree(work, ignore_errors=True)
            os.makedirs(work)
            counts["as recorded" if replay(run, options, work) else "different"] += 1
    print(", ".join(f"{count} {what}" for what, count in counts.items()))
    return 1 if counts["different"] else 0


if __name__ == "__main__":
    sys.exit(main())
