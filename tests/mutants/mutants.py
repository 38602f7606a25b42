# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Plants one fault at a time in the sources of a folder and says which ones its tests do not notice.

usage: script/mutants FOLDER [--count N] [--seed S] [--minutes M] [--again] [--sanitize]

FOLDER: text, camera, companions/utils, scene/view, ... Its own sources and headers, and of the exported headers those
whose names docs/interface_map.md says its tests check. Faults are planted in a copy below build/mutants, never here.

--count N     so many faults that compile (50)
--seed S      another choice of faults (1)
--minutes M   end after that time with what was tried so far
--again       only those that survived the last time
--sanitize    in a build with the sanitizers, which notice what is written beside an array

Writes build/mutants/FOLDER.tsv: what became of the fault, its kind, file, line, and that line before and after.
  caught      a test fails, crashes or takes too long
  unchanged   the compiler makes the same code of it
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
SANITIZERS = "address,undefined,float-cast-overflow"
LEAST_LIMIT = 20  # seconds
SLOW = 0.2
COLUMNS = "outcome kind file line before after".split()
Result = collections.namedtuple("Result", COLUMNS)


def test_program_of(folder):
    return folder.removeprefix("companions/").split("/")[0] + "_tests"


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
    names = {str(path.relative_to(tree.tree)) for path in (tree.tree / folder).rglob("*") if path.suffix == ".h"}
    names |= {name for name in tree.compiled if name.startswith(folder + "/")} | exported_headers(tree.tree, folder)
    found = {}
    for name in names:
        text = (tree.tree / name).read_text(encoding="utf-8")
        if not MADE_BY_A_PROGRAM.search(text):
            found[name] = faults_in(text)
    return found


def read_table(path):
    lines = path.read_text(encoding="utf-8").splitlines()[1:] if path.exists() else []
    return [line.split("\t") for line in lines if line and not line.startswith("#")]


class Trial:
    def __init__(self, tree, folder, equivalent):
        self.tree, self.folder = tree, folder
        self.equivalent = {tuple(row[:3]) for row in equivalent}

    def measure(self):
        """Runs the tests without a fault: how long may they take with one, and which cases come second, because most
        faults are noticed before they are needed?"""
        begin = time.monotonic()
        if self.tree.run_test(3600, self.tree.report()) != "passed":
            raise SystemExit((self.tree.place / "output").read_text(errors="replace")[-2000:] +
                             "\nscript/mutants: the tests fail without a fault")
        self.seconds = LEAST_LIMIT + 4 * (time.monotonic() - begin)
        slow = ":".join(self.tree.slow_cases(SLOW))
        self.passes = [["--gtest_filter=-" + slow], ["--gtest_filter=" + slow]] if slow else [[]]

    def is_noticed(self):
        return any(self.tree.run_test(self.seconds, *arguments) != "passed" for arguments in self.passes)

    def outcome(self, text, name, fault):
        """What became of this fault; None when it cannot be planted."""
        before = self.tree.write(name, planted(text, fault))
        try:
            ended, _ = self.tree.make()
            changed = self.tree.changed_objects()
            if not ended or not changed:
                return None
            if not self.tree.differ(changed):
                return "unchanged"
            if self.is_noticed():
                return "caught"
            with_fault = self.tree.optimised(changed)
        finally:
            self.tree.restore(before)
        return "unchanged" if None not in with_fault and with_fault == self.tree.optimised(changed) else "survived"

    def tried(self, name, fault):
        text = (self.tree.tree / name).read_text(encoding="utf-8")
        line, before, after = lines_at(text, fault)
        outcome = self.outcome(text, name, fault)
        if outcome == "survived" and (name, before, after) in self.equivalent:
            outcome = "equivalent"
        return outcome and Result(outcome, fault.kind, name, str(line), before, after)


def run(root, options):
    place = root / "build" / "mutants"
    place.mkdir(parents=True, exist_ok=True)
    tree = PrivateTree(root, place, SANITIZERS if options.sanitize else "")
    tree.prepare(test_program_of(options.folder))
    trial = Trial(tree, options.folder, read_table(root / "tests" / "mutants" / "equivalent.tsv"))
    trial.measure()
    order = mixed(faults_of(tree, options.folder), options.seed)
    table = place / (options.folder.replace("/", "_") + ".tsv")
    kept = []
    if options.again:
        rows = [Result(*row) for row in read_table(table)]
        kept = [row for row in rows if row.outcome in ("caught", "unchanged")]
        wanted = {(row.file, row.before, row.after) for row in rows if row not in kept}
        order = [(name, fault) for name, fault in order
                 if (name, *lines_at((tree.tree / name).read_text(encoding="utf-8"), fault)[1:]) in wanted]
    end = time.monotonic() + 60 * options.minutes
    results = list(kept)
    for name, fault in order:
        if time.monotonic() > end or (not options.again and len(results) >= options.count):
            break
        result = trial.tried(name, fault)
        if result:
            results.append(result)
            if result.outcome == "survived":
                print(f"{result.file}:{result.line}: {result.kind}: {result.before}  ->  {result.after}", flush=True)
            rows = [COLUMNS, *results]
            table.write_text("".join("\t".join(row) + "\n" for row in rows), encoding="utf-8")
    return results


def main(arguments, root):
    parser = argparse.ArgumentParser(prog="script/mutants", usage=__doc__.partition("usage: ")[2])
    parser.add_argument("folder")
    parser.add_argument("--count", type=int, default=50)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--minutes", type=float, default=1e6)
    parser.add_argument("--again", action="store_true")
    parser.add_argument("--sanitize", action="store_true")
    options = parser.parse_args(arguments)
    options.folder = options.folder.rstrip("/")
    if not (root / options.folder).is_dir():
        sys.exit(f"script/mutants: there is no folder {options.folder}")
    results = run(root, options)
    counts = collections.Counter(result.outcome for result in results)
    told = ", ".join(f"{counts[name]} {name}" for name in ("caught", "unchanged", "equivalent", "survived"))
    print(f"{options.folder}: {len(results)} faults planted: {told}")
    return 1 if counts["survived"] or not results else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:], pathlib.Path(__file__).resolve().parents[2]))
