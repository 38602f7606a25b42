# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Runs the programs over damaged data roots and says which runs did not end as they should.

usage: script/damage [COUNT] [--seed S] [--first N] [--minutes M] [--only N]

COUNT roots (10000), numbered from N on (0), each of which is the data root of the build and a work area of some files
with one thing damaged (damages.py), and a command that reads what is damaged (commands.txt). Number and seed choose
both. A run shall end by itself, with exit status 0 or 1, in time, within some memory, with its diagnostics in lines,
none of them twice, without a report of a sanitizer, and shall leave the root as it was.

--seed S      other damages (1)
--minutes M   end after that time with what was tried so far
--only N      the root of that number alone, which stays in OUT/kept and is run over with what the program prints

Prints tables of kinds of damage and of files; leaves a line for each root in OUT/roots.tsv, and what failed below
OUT/failures. Exit status 1 when something did.
"""
import argparse
import collections
import concurrent.futures
import os
import pathlib
import random
import shlex
import shutil
import subprocess
import sys
import threading
import time

import command_table
import damages
import program_runs
from roots import Root, files_below

HERE = pathlib.Path(__file__).resolve().parent
SOURCE = HERE.parent.parent
ZONES = pathlib.Path("/usr/share/zoneinfo")
SECONDS = 60  # of a program's own time
# Files that skydata lint leaves to others, or knows by their ends only.
NOT_LINTED = ("data/media/maps/", "data/media/surface/", "data/media/zoneinfo/", "work/kept.session")
WITHOUT_WEIGHT = ("data/media/maps/", "data/gazetteers/", "data/media/surface/", "data/media/zoneinfo/")
COLUMNS = "number kind file command outcome seconds mebibytes problems".split()

Result = collections.namedtuple("Result", COLUMNS)
Case = collections.namedtuple("Case", "number kind name changes words")


def environment(folder):
    kept = {name: value for name, value in os.environ.items() if name in ("PATH", "LD_LIBRARY_PATH")}
    return {**kept, "HOME": str(folder), "TZ": "UTC", "LC_ALL": "C.UTF-8", "ASAN_OPTIONS": "quarantine_size_mb=16",
            "LSAN_OPTIONS": f"suppressions={SOURCE}/tests/support/lsan.supp:print_suppressions=0"}


def make_base(programs, data, base):
    """Links to the data root, zone files where it has none, and a work area with a file of each kind."""
    shutil.rmtree(base, ignore_errors=True)
    sources = {name: pathlib.Path(data) / name for name in files_below(data) if not name.endswith(".source.md")}
    for zone in ("Europe/Berlin", "Australia/Sydney"):
        sources.setdefault("media/zoneinfo/" + zone, ZONES / zone)
    for name, source in sources.items():
        (base / "data" / name).parent.mkdir(parents=True, exist_ok=True)
        (base / "data" / name).symlink_to(source.resolve())
    work = base / "work"
    (work / "catalogs").mkdir(parents=True)
    (base / "stars.tsv").write_text("RA\tDec\tMag\n" + "".join(
        f"{i * 137.5 % 360:.3f}\t{i * 37.3 % 180 - 90:.3f}\t{9 + i % 40 / 10}\n" for i in range(400)))
    view = ["--place", "52.5,13.4", "--time", "2026-01-15T22:00Z", "--look", "180,30"]
    for words in (["skyview", "favourites", "add", "Sirius", "M42"], ["skyview", "homes", "store", *view],
                  ["skyview", *view, "--set", "grid.Compass=0", "--save-session", work / "kept.session",
                   "--save-settings", work / "kept.data", "--save-view", work / "kept_view.data:2"],
                  ["skydata", "stars", "import", base / "stars.tsv", "--output", work / "catalogs/deep_stars.tiles"]):
        roots = ["--data", base / "data"] + (["--work", work] if words[0] == "skyview" else [])
        subprocess.run([programs / words[0], *words[1:], *roots], check=True, env=environment(base), cwd=base,
                       stdout=subprocess.DEVNULL)


def must_be_refused(case):
    """Whether the command is asked for a file, or for a check of it, which is none that can be read."""
    if case.words[:2] == ["skydata", "lint"]:
        return case.kind in damages.UNREADABLE and not case.name.startswith(NOT_LINTED)
    return case.words[0] == "skydata" and "@FILE@" in case.words and case.kind in damages.UNREADABLE[1:]


def names_the_cause(case, errors):
    """Whether a refusal names a damaged file, or the object that was asked for and that the file no longer has."""
    files = [name.rpartition("/")[2] for name in case.changes]
    asked = [f"'{word}'" for word in case.words[1:] if not word.startswith("-")]
    return any(word.encode() in errors for word in files + asked)


class Campaign:
    def __init__(self, options):
        self.options = options
        self.base = options.out / "base"
        make_base(options.programs, options.data, self.base)
        self.files = {name: (self.base / name).read_bytes() for part in ("data", "work")
                      for name in (f"{part}/{below}" for below in files_below(self.base / part))}
        self.commands = command_table.read_commands(HERE / "commands.txt")
        gaps = command_table.find_gaps(self.commands, self.files)
        if gaps:
            raise SystemExit("\n".join("commands.txt: " + gap for gap in gaps))
        self.limits = program_runs.Limits(SECONDS, options.mebibytes)
        self.failures = options.out / "failures"
        self.threads = threading.local()

    def case(self, number):
        """The same one for a number, a seed and files of these names and contents."""
        choice = random.Random(f"{self.options.seed}/{number}")
        names = sorted(self.files)
        weights = [0.2 if name.startswith(WITHOUT_WEIGHT) else 1 for name in names]
        while True:
            name = choice.choices(names, weights)[0]
            kind = choice.choice(list(damages.KINDS))
            changes = damages.KINDS[kind](choice, self.files, name)
            if changes:
                break
        found = command_table.commands_for(self.commands, name)
        program = "skyview" if found["skyview"] and choice.random() < 0.65 else "skydata"
        return Case(number, kind, name, changes, choice.choice(found[program]).words)

    def root(self):
        """That of the calling thread."""
        if not hasattr(self.threads, "root"):
            self.threads.root = Root(self.base, self.options.out / f"root{threading.get_ident()}")
        return self.threads.root

    def words(self, case, root):
        """The command with the places of this root; makes those that are wanted."""
        folder, file = root.folder, root.folder / case.name
        places = {"DATA": folder / "data", "WORK": folder / "work", "OUT": folder / "out", "FILE": file,
                  "SOUND": self.base / "data", "COPY": folder / "out" / "copy",
                  "ALONE": folder / "out" / "alone", "STEM": file.name.split(".")[0]}
        alone = places["ALONE"] / case.name.partition("/")[2]
        for mark, place in (("@ALONE@", alone), ("@COPY@", places["COPY"])):
            if mark not in case.words:
                continue
            place.parent.mkdir(parents=True, exist_ok=True)
            place.parent.chmod(0o777)
            if mark == "@COPY@" and file.is_file() and os.stat(file).st_mode & 0o777:
                shutil.copyfile(file, place)
            else:
                place.symlink_to(file)
        program, *words = command_table.filled_in(case.words, {mark: str(place) for mark, place in places.items()})
        return [str(self.options.programs / program), *words]

    def run(self, number):
        case, root = self.case(number), self.root()
        root.damage(case.changes)
        words = self.words(case, root)
        user = program_runs.NOBODY if os.geteuid() == 0 and damages.LOCKED in case.changes.values() else None
        run = program_runs.execute(words, environment(root.folder / "out"), root.folder / "out", SECONDS, user)
        found = list(program_runs.problems(words, run, self.limits))
        if run.status == program_runs.DONE and must_be_refused(case):
            found.append("takes what cannot be read")
        if run.status == program_runs.REFUSED and case.words[0] == "skyview" and not names_the_cause(case, run.errors):
            found.append("a refusal that does not name the file")
        changed = root.find_changes()
        if changed:
            found.append(f"changed the data root: {changed}")
        if found:
            self.keep(case, words, run, found)
        root.mend()
        if changed:
            del self.threads.root
        outcome = {0: "told" if run.errors else "silent", 1: "refused"}.get(run.status, str(run.status))
        return Result(number, case.kind, case.name, shlex.join(case.words), outcome, f"{run.seconds:.2f}",
                      "%d" % run.mebibytes, "; ".join(found))

    def keep(self, case, words, run, found):
        folder = self.failures / str(case.number)
        folder.mkdir(parents=True, exist_ok=True)
        for name, content in case.changes.items():
            if isinstance(content, bytes):
                (folder / name.replace("/", "_")).write_bytes(content)
        (folder / "run.txt").write_bytes(
            f"{case.kind}: {case.name}\n{shlex.join(words)}\n{'; '.join(found)}\nexit status {run.status}\n".encode() +
            b"-- standard error\n" + run.errors[:20000] + b"-- standard output\n" + run.output[:20000])

    def show(self, number):
        """Makes that root, leaves it, and runs the program as a person would."""
        case = self.case(number)
        root = Root(self.base, self.options.out / "kept")
        root.damage(case.changes)
        words = self.words(case, root)
        print(f"{case.kind}: {', '.join(case.changes)}\n{shlex.join(words)}", flush=True)
        print("exit status", subprocess.run(words, env=environment(root.folder), cwd=root.folder / "out").returncode)

    def run_all(self):
        options = self.options
        end = time.monotonic() + 60 * options.minutes
        shutil.rmtree(self.failures, ignore_errors=True)

        def run_in_time(number):
            return self.run(number) if time.monotonic() < end else None

        results = []
        with concurrent.futures.ThreadPoolExecutor(options.jobs) as pool, \
                open(options.out / "roots.tsv", "w", encoding="utf-8") as table:
            table.write("\t".join(COLUMNS) + "\n")
            for result in pool.map(run_in_time, range(options.first, options.first + options.count)):
                if result is None:
                    continue
                results.append(result)
                table.write("\t".join(map(str, result)) + "\n")
                table.flush()
                if result.problems:
                    print(f"{result.number}: {result.problems}: {result.kind}: {result.file}: {result.command}",
                          flush=True)
        return results


def print_table(title, results, key):
    outcomes = ["refused", "told", "silent"]
    rows = collections.defaultdict(collections.Counter)
    for result in results:
        rows[key(result)].update([result.outcome, *(["failed"] if result.problems else [])])
    print(f"{title:<28}{'roots':>8}{'refused':>9}{'told':>7}{'silent':>8}{'failed':>8}")
    for name, counts in sorted(rows.items()):
        roots = sum(1 for result in results if key(result) == name)
        print(f"{name:<28}{roots:>8}" + "".join(f"{counts[outcome]:>{width}}" for outcome, width in
                                               zip([*outcomes, "failed"], (9, 7, 8, 8))))
    print()


def parse(arguments):
    parser = argparse.ArgumentParser(usage=__doc__.partition("usage: ")[2].partition("\n\n")[0])
    parser.add_argument("count", nargs="?", type=int, default=10000)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--first", type=int, default=0)
    parser.add_argument("--minutes", type=float, default=1e6)
    parser.add_argument("--only", type=int)
    # Where things are; script/damage and CTest say it.
    parser.add_argument("--programs", type=pathlib.Path, required=True, help="folder of skyview and skydata")
    parser.add_argument("--data", type=pathlib.Path, required=True, help="data root")
    parser.add_argument("--out", type=pathlib.Path, required=True, help="folder for everything that is made")
    parser.add_argument("--mebibytes", type=int, default=256, help="most memory of a run")
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    options = parser.parse_args(arguments)
    for name in ("programs", "data", "out"):
        setattr(options, name, getattr(options, name).resolve())
    return options


def main(arguments):
    options = parse(arguments)
    options.out.mkdir(parents=True, exist_ok=True)
    campaign = Campaign(options)
    if options.only is not None:
        campaign.show(options.only)
        return 0
    results = campaign.run_all()
    print_table("damage", results, lambda result: result.kind)
    print_table("file", results, lambda result: damages.alike(result.file))
    failed = sum(bool(result.problems) for result in results)
    print(f"{len(results)} roots, {failed} failed; at most {max(float(r.seconds) for r in results):.1f} s and "
          f"{max(int(r.mebibytes) for r in results)} MiB")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
