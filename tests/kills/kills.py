# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Kills programs at each of their system calls that write, and says what that cost.

usage: script/kills [--sample] [OPERATION...]

Every operation that saves, of the library (tests/kills/save_peer.cpp) and of the programs, is killed before each of its
calls that change a file or a folder, and once more within it: with half of the bytes written, or with the call done. Of an
operation of very many calls a hundred and fifty at most are taken, evenly spread, and fifteen of the building of a data root.
After each kill
  - what was saved before is there, whole, or what was being saved is, as the library or the program reads it;
  - nothing else has changed or come, but files beside the target whose names end in .tmp;
  - the same saving works, and then the new content is there.

--sample      two kills of each operation, others every day; not of the building of a whole data root
OPERATION     these alone

Prints the kills of each operation and what was lost, and without --sample and OPERATION writes them to
build/kills/kills.tsv. Exit status 1 when anything was lost.
"""
import argparse
import collections
import datetime
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
EVERY_CALL = 10**9
# Names of what a program may leave beside a file: of FileReplacement, three of them while tiles are written.
LEFT_BEHIND = ".tmp"
MOST_LEFT = 3
# Of an operation of many calls so many are taken, evenly spread.
MOST_CALLS = 150
# It takes seconds each time, so that fewer are taken.
SLOW = "skydata_build"
MOST_SLOW_CALLS = 15

# How a content is saved, the first or the second, and the command that says what is read of it (None: the bytes).
Operation = collections.namedtuple("Operation", "name save read")


class Bench:
    """The programs of a build tree, and the operations that they have."""

    def __init__(self, build):
        self.binaries, self.data = build / "bin", build / "data"
        self.tracer = self.binaries / "kill_at_write"

    def run(self, command, folder):
        return subprocess.run([str(word) for word in command], cwd=folder, capture_output=True, timeout=300)

    def library_operations(self):
        peer = self.binaries / "save_peer"
        names = self.run([peer, "list"], ROOT).stdout.decode().split()
        def command(name, what):
            return [peer, self.data, ".", name, what]
        return [Operation(name, lambda content, name=name: command(name, content), command(name, "read"))
                for name in names]

    def program_operations(self):
        def skyview(*words):
            return [self.binaries / "skyview", *words, "--data", self.data]
        # The two contents differ in zoom.
        def picture(*words):
            return lambda content: skyview("draw", "--time", "2027-01-10T22:00Z", "--place", "45,10", "--look", "0,45",
                                           "--size", "320x240", "--zoom", content, *words)
        def sequence(option):
            return picture("--frames", "3", "--play", "time=1h", option, "frames.png")
        def events(content):
            return skyview("events", f"2027-0{content}", "--kind", "phases", "--format", "ics", "--out", "events.ics")
        table = ROOT / "data/source/strings/en/qxstrings.txt"
        def pseudo(content):
            source = table if content == "1" else ROOT / "data/source/strings/de/qxstrings.txt"
            return [self.binaries / "skydata", "strings", "pseudo", source, "--out", "qxstrings.txt"]
        return [
            Operation("skyview_png", picture("--out", "sky.png"), None),
            Operation("skyview_svg", picture("--out", "sky.svg"), None),
            Operation("skyview_pdf", picture("--out", "sky.pdf"), None),
            Operation("skyview_animation", sequence("--animation"), None),
            Operation("skyview_trails", sequence("--trails"), None),
            Operation("skyview_contact_sheet", sequence("--contact-sheet"), None),
            Operation("skyview_view", picture("--save-view", "views.data:2"), None),
            Operation("skyview_session", picture("--save-session", "sky.session"), None),
            Operation("skyview_settings", lambda content: skyview("draw", "--favourite", ("Vega", "M42")[content == "1"],
                                                                  "--save-settings", "my.data"), None),
            Operation("skyview_events", events, None),
            Operation("skydata_strings", pseudo, None),
            Operation(SLOW, lambda content: [self.binaries / "skydata", "build", ROOT / "data/source", ".",
                                                        "--language", ("en", "de")[content == "1"]], None),
        ]


def files_below(folder):
    """The files with their content, that of a PDF without its date; where a link leads."""
    found = {}
    for path in sorted(folder.rglob("*")):
        name = str(path.relative_to(folder))
        if path.is_symlink():
            found[name] = os.readlink(path).encode()
        elif path.is_file():
            found[name] = re.sub(rb"/CreationDate \([^)]*\)", b"", path.read_bytes())
    return found


class Saving:
    """One operation, with what its folder holds before and after."""

    def __init__(self, bench, operation, scratch):
        self.bench, self.operation, self.scratch = bench, operation, scratch
        self.old = scratch / "old"
        self.old.mkdir(parents=True)
        self.save("1", self.old)
        self.before, self.before_read = files_below(self.old), self.read(self.old)
        new = self.copy()
        calls = self.traced(EVERY_CALL, "before", new).split()
        self.calls = int(calls[0])
        self.after, self.after_read = files_below(new), self.read(new)
        if calls[2] != "0" or self.before == self.after or self.calls < 3:
            sys.exit(f"{operation.name}: does not save: {calls}")

    def copy(self):
        new = self.scratch / "new"
        shutil.rmtree(new, ignore_errors=True)
        shutil.copytree(self.old, new, symlinks=True)
        return new

    def save(self, content, folder):
        done = self.bench.run(self.operation.save(content), folder)
        if done.returncode != 0:
            sys.exit(f"{self.operation.name}: {done.stderr.decode(errors='replace')}")

    def traced(self, index, where, folder):
        command = [self.bench.tracer, index, where, *self.operation.save("2")]
        done = self.bench.run(command, folder)
        return done.stdout.decode(errors="replace").splitlines()[-1]

    def read(self, folder):
        if not self.operation.read:
            return None
        done = self.bench.run(self.operation.read, folder)
        return done.stdout if done.returncode == 0 else b"cannot be read: " + done.stderr

    def faults_after(self, index, where):
        """What is wrong after that kill."""
        folder = self.copy()
        killed = self.traced(index, where, folder)
        if not killed.endswith(" killed"):
            return [f"was not killed: {killed}"]
        found = files_below(folder)
        left = [name for name in found if name.endswith(LEFT_BEHIND)]
        faults = []
        if len(left) > MOST_LEFT:
            faults.append(f"{len(left)} files left behind")
        for name in set(found) | set(self.before):
            if name in left or found.get(name) in (self.before.get(name), self.after.get(name)):
                continue
            # What is appended to is read by what was there before.
            if self.operation.name != "appended" or not found.get(name, b"").startswith(self.before[name]):
                faults.append(f"{name} is neither the old nor the new one")
        if self.read(folder) not in (self.before_read, self.after_read):
            faults.append("what is read is neither the old nor the new content")
        self.save("2", folder)
        if self.read(folder) != self.after_read:
            faults.append("saving after it does not make it good")
        if self.operation.name != "appended" and {
                name: content for name, content in files_below(folder).items() if name not in left} != self.after:
            faults.append("saving after it leaves other files")
        return [f"{killed} {where} call {index}: {fault}" for fault in faults]


def write_table(rows):
    """What was done so far: a run that is ended has done that much."""
    table = ROOT / "build/kills/kills.tsv"
    table.parent.mkdir(parents=True, exist_ok=True)
    lines = ["operation\tcalls\tkills\tfindings", *("\t".join(map(str, row)) for row in rows)]
    table.write_text("\n".join(lines) + "\n", encoding="utf-8")


def main():
    parser = argparse.ArgumentParser(usage=__doc__.partition("usage: ")[2].partition("\n\n")[0])
    parser.add_argument("--build", type=pathlib.Path, default=ROOT / "build/release")
    parser.add_argument("--sample", action="store_true")
    parser.add_argument("operations", nargs="*")
    options = parser.parse_args()
    bench = Bench(options.build.resolve())
    operations = bench.library_operations() + bench.program_operations()
    unknown = set(options.operations) - {operation.name for operation in operations}
    if unknown:
        sys.exit(f"no such operation: {' '.join(sorted(unknown))}")
    chosen = [operation for operation in operations if operation.name in options.operations or not options.operations]
    if options.sample:
        chosen = [operation for operation in chosen if operation.name != SLOW]
    rows, lost = [], 0
    for operation in chosen:
        with tempfile.TemporaryDirectory() as scratch:
            saving = Saving(bench, operation, pathlib.Path(scratch))
            step = -(-saving.calls // (MOST_SLOW_CALLS if operation.name == SLOW else MOST_CALLS))
            places = [(index, where) for index in range(0, saving.calls, step) for where in ("before", "within")]
            if options.sample:
                day = datetime.date.today().timetuple().tm_yday
                places = [places[day * step % len(places)] for step in (7, 11)]
            faults = [fault for place in places for fault in saving.faults_after(*place)]
        rows.append((operation.name, saving.calls, len(places), len(faults)))
        print(*rows[-1], sep="\t", flush=True)
        for fault in faults:
            print(f"  {fault}", flush=True)
        lost += len(faults)
        if not options.sample and not options.operations:
            write_table(rows)
    print(f"{sum(row[2] for row in rows)} kills, {lost} findings")
    sys.exit(1 if lost else 0)


if __name__ == "__main__":
    main()
