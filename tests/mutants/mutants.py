# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Plants one fault at a time in the sources of a folder and says which ones its tests do not notice.

usage: script/mutants FOLDER [--count N] [--seed S] [--minutes M] [--more] [--again] [--sanitize]

FOLDER: text, camera, companions/utils, scene/view, ... Its own sources and headers, and of the exported headers those
whose names docs/interface_map.md says its tests check; no headers that more than ten of the
program's objects include. Faults are planted in
a copy below build/mutants, never here.

--count N     so many faults that compile (50)
--seed S      another choice of faults (1)
--minutes M   end after that time with what was tried so far
--more        go on where the last run ended, up to N faults in all
--again       only those that survived the last time; what is gone from the sources goes from the table
--sanitize    in a build with the sanitizers, which notice what is written beside an array

The cases of the tests that bear the name of the source run first, then the others, those that take long last. The next
fault comes as soon as one case notices.

Writes build/mutants/FOLDER.tsv: what became of the fault, its kind, file, line, and that line before and after.
  caught      a test fails, crashes or takes too long
  unchanged   the compiler makes the same code of it: no test runs
  equivalent  survived; tests/mutants/equivalent.tsv says why no behaviour changes
  survived    survived: exit status 1
"""
import argparse
import collections
import pathlib
import re
import sys
import time

from faults import faults_in, lines_at, mixed, planted
from private_tree import PrivateTree

MADE_BY_A_PROGRAM = re.compile(r"^// (?:Made by|Written by|Generated)", re.MULTILINE)
LEAST_LIMIT = 10  # seconds of the processor
LONGEST_FURTHER = 60  # seconds of the processor, of a further program
SLOW = 0.2
MOST_OBJECTS = 10  # a fault in a header that more include takes as long as many others
FURTHER_PROGRAMS = {"thread_tests": ["thread_failure_tests", "thread_memory_tests", "thread_tests_race"],
                    "scene_tests": ["scene_exported_tests"],
                    **{folder + "_tests": ["injection_tests", "memory_tests"]
                       for folder in ("utils", "text", "settings", "catalogs", "camera")}}
SUITE = re.compile(r"^TEST(?:_F|_P)?\((\w+),", re.MULTILINE)
COLUMNS = "outcome kind file line before after".split()
Result = collections.namedtuple("Result", COLUMNS)


def test_programs_of(folder):
    """The one whose cases are asked first, and those that are asked when it has noticed nothing."""
    first = folder.removeprefix("companions/").split("/")[0] + "_tests"
    return [first, *FURTHER_PROGRAMS.get(first, [])]


def exported_headers(root, folder):
    """Headers of include/ whose names the interface map leaves to tests of this folder."""
    page = root / "docs" / "interface_map.md"
    if not page.exists():
        return set()
    tests = "tests/" + folder.removeprefix("companions/") + "/"
    rows = re.findall(r"^\| `[^`]+` \| `([^`]+)` \| `([^`]+)`", page.read_text(), re.MULTILINE)
    return {"include/" + header for header, test in rows if test.startswith(tests) and
            (root / "include" / header).exists()}


def faults_of(tree, folder):
    """By file, those of the folder's sources and headers that the test program is made of."""
    names = {name for name in tree.dependents if name.startswith(folder + "/")}
    found = {}
    for name in names | exported_headers(tree.tree, folder) & set(tree.dependents):
        text = (tree.tree / name).read_text(encoding="utf-8")
        if len(tree.dependents[name]) <= MOST_OBJECTS and not MADE_BY_A_PROGRAM.search(text):
            found[name] = faults_in(text)
    return found


def read_table(path):
    lines = path.read_text(encoding="utf-8").splitlines()[1:] if path.exists() else []
    return [line.split("\t") for line in lines if line and not line.startswith("#")]


def likely_suites(root, name):
    """The suites of the tests that bear the name of a source; where there are none, of those with its first words."""
    words = pathlib.Path(name).stem.split("_")
    for count in range(len(words), 0, -1):
        found = set()
        for path in (root / "tests").rglob("_".join(words[:count]) + "*_test.cpp"):
            found |= set(SUITE.findall(path.read_text(encoding="utf-8")))
        if found:
            return found
    return set()


class Trial:
    def __init__(self, tree, folder, equivalent):
        self.tree, self.folder = tree, folder
        self.equivalent = {tuple(row[:3]) for row in equivalent}

    def measure(self):
        """Runs the tests without a fault: how long does each case take? Cases that fail here, where a program runs as
        nobody and with the lowest priority, are told and left out."""
        begin = time.monotonic()
        passed = self.tree.run_test(self.tree.programs[0], 3600, self.tree.report()) == "passed"
        self.whole = time.monotonic() - begin
        self.seconds, failed = self.tree.case_seconds()
        for case in failed:
            print(f"left out, it fails without a fault: {case}", flush=True)
        if not passed and not (failed and self.seconds):
            raise SystemExit((self.tree.place / "output").read_text(errors="replace")[-2000:] +
                             "\nscript/mutants: the tests fail without a fault")
        self.further = [program for program in self.tree.programs[1:]
                        if self.tree.run_test(program, 3600) == "passed"]

    def passes(self, name):
        """The cases in the order in which they are asked: likely ones, the others, what takes long."""
        suites = likely_suites(self.tree.tree, name)
        steps = [[], [], []]
        for case, seconds in self.seconds.items():
            suite = case.partition(".")[0]
            likely = not suites.isdisjoint(suite.split("/"))
            steps[2 if seconds > SLOW else 0 if likely else 1].append(case)
        return [step for step in steps if step] or [[]]

    def is_noticed(self, name):
        first = self.tree.programs[0]
        for cases in self.passes(name):
            seconds = sum(self.seconds[case] for case in cases) if cases else self.whole
            chosen = ["--gtest_fail_fast", "--gtest_filter=" + ":".join(cases)] if cases else []
            if self.tree.run_test(first, LEAST_LIMIT + 4 * seconds, *chosen) != "passed":
                return True
        return any(self.tree.links(program) and self.tree.run_test(program, LONGEST_FURTHER) != "passed"
                   for program in self.further)

    def outcome(self, text, name, fault):
        """What became of this fault; None when it cannot be planted."""
        before = self.tree.write(name, planted(text, fault))
        try:
            different = self.tree.compile(name)
            if different is None:
                return None
            if not different:
                return "unchanged"
            if not self.tree.links(self.tree.programs[0]):
                return None
            return "caught" if self.is_noticed(name) else "survived"
        finally:
            self.tree.restore(before)

    def tried(self, name, fault):
        text = (self.tree.tree / name).read_text(encoding="utf-8")
        line, before, after = lines_at(text, fault)
        outcome = self.outcome(text, name, fault)
        if outcome == "survived" and (name, before, after) in self.equivalent:
            outcome = "equivalent"
        return outcome and Result(outcome, fault.kind, name, str(line), before, after)


def chosen_faults(tree, options, rows):
    """(file, fault) of what this run tries, in its order; rows: what earlier runs did."""
    known = {row[2:3] + row[4:]: row.outcome for row in rows}
    for name, fault in mixed(faults_of(tree, options.folder), options.seed):
        text = (tree.tree / name).read_text(encoding="utf-8")
        outcome = known.get((name, *lines_at(text, fault)[1:]))
        if outcome in ("survived", "equivalent") if options.again else outcome is None:
            yield name, fault


def run(root, options):
    place = root / "build" / "mutants"
    place.mkdir(parents=True, exist_ok=True)
    tree = PrivateTree(root, place, "sanitize" if options.sanitize else "release")
    tree.prepare(test_programs_of(options.folder))
    trial = Trial(tree, options.folder, read_table(root / "tests" / "mutants" / "equivalent.tsv"))
    trial.measure()
    table = place / (options.folder.replace("/", "_") + ".tsv")
    rows = [Result(*row) for row in read_table(table)] if options.again or options.more else []
    results = [row for row in rows if not options.again or row.outcome in ("caught", "unchanged")]
    waiting = {row[2:3] + row[4:]: row for row in rows if row not in results}
    end = time.monotonic() + 60 * options.minutes

    def write():
        table.write_text("".join("\t".join(row) + "\n" for row in [COLUMNS, *results, *waiting.values()]),
                         encoding="utf-8")

    for name, fault in chosen_faults(tree, options, rows):
        if time.monotonic() > end or (not options.again and len(results) >= options.count):
            break
        result = trial.tried(name, fault)
        if result:
            results.append(result)
            waiting.pop(result[2:3] + result[4:], None)
            if result.outcome == "survived":
                print(f"{result.file}:{result.line}: {result.kind}: {result.before}  ->  {result.after}", flush=True)
            write()
    else:
        waiting.clear()  # their lines are gone
        write()
    return results


def main(arguments, root):
    parser = argparse.ArgumentParser(prog="script/mutants", usage=__doc__.partition("usage: ")[2])
    parser.add_argument("folder")
    parser.add_argument("--count", type=int, default=50)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--minutes", type=float, default=1e6)
    parser.add_argument("--more", action="store_true")
    parser.add_argument("--again", action="store_true")
    parser.add_argument("--sanitize", action="store_true")
    options = parser.parse_args(arguments)
    options.folder = options.folder.rstrip("/")
    if not (root / options.folder).is_dir():
        sys.exit(f"script/mutants: there is no folder {options.folder}")
    results = run(root, options)
    counts = collections.Counter(result.outcome for result in results)
    told = ", ".join(f"{counts[name]} {name}" for name in ("caught", "unchanged", "equivalent", "survived"))
    print(f"{options.folder}, seed {options.seed}: {len(results)} faults planted: {told}")
    return 1 if counts["survived"] or not results else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:], pathlib.Path(__file__).resolve().parents[2]))
