#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Runs benchmark programs and prints every subject beside its peers and the machine's limit.

  bench/ratios.py build/release/bin/bench_*
  bench/ratios.py build/release/bin/bench_pool -- --benchmark_filter=PoolGet
  bench/ratios.py --write docs/benchmarks.md build/release/bin/bench_*     also puts the tables into that page

The peers of Name/args are NamePeer/args and NamePeerOther/args, its limit is NameLimit/args. Each program runs several
times, since where its memory happens to lie can cost some loops a multiple, and within a run all benchmarks are
repeated in random order, so that a busy moment meets them alike. What is compared is the least time of an item; median and
spread (half of the repetitions lie that far apart, in percent of the median) say how quiet the machine was. Aims stand
in bench/aims.tsv."""
import argparse
import datetime
import json
import os
import pathlib
import re
import statistics
import subprocess
import sys
import time

AIMS = pathlib.Path(__file__).with_name("aims.tsv")
REPETITIONS = 3
NANOSECONDS = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}
BEGIN, END = "<!-- figures: written by script/bench -->", "<!-- end of figures -->"


class Times:
    """The repetitions of one benchmark, nanoseconds an item."""

    def __init__(self, repetitions):
        self.least = min(repetitions)
        self.median = statistics.median(repetitions)
        quarters = statistics.quantiles(repetitions, n=4) if len(repetitions) > 1 else [self.median] * 3
        self.spread = (quarters[2] - quarters[0]) / self.median


def measure(program, runs, options):
    """Times by benchmark name. A benchmark that counts no items has one item an iteration."""
    command = [program, "--benchmark_format=json", "--benchmark_enable_random_interleaving=true",
               f"--benchmark_repetitions={REPETITIONS}", "--benchmark_min_time=0.1", *options]
    found = {}
    for _ in range(runs):
        report = json.loads(subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout)
        for run in report["benchmarks"]:
            if run.get("error_occurred"):
                print(f"{run['name']}: {run['error_message']}", file=sys.stderr)
            elif run["run_type"] == "iteration":
                found.setdefault(run["run_name"].removesuffix("/manual_time"), []).append(item_time(run))
    return {name: Times(repeated) for name, repeated in found.items()}


def item_time(run):
    items = run.get("items_per_second")
    return 1e9 / items if items else run["cpu_time"] * NANOSECONDS[run["time_unit"]]


def split(name):
    """ProjectBatchPeerEigen/1000 -> subject ProjectBatch/1000, peer Eigen; a subject has peer None."""
    base, slash, arguments = name.partition("/")
    match = re.fullmatch(r"(.+?)(Limit|Peer(.*))", base)
    if not match:
        return name, None
    peer = match.group(3) if match.group(3) is not None else "Limit"
    return match.group(1) + slash + arguments, peer


def read_aims():
    """(subject, peer, ratio, what) as they stand in the file."""
    lines = [line for line in AIMS.read_text(encoding="utf-8").splitlines() if line and line[0] != "#"]
    fields = (line.split("\t") for line in lines)
    return [(subject, peer, float(ratio), what) for subject, peer, ratio, what in fields]


def in_units(nanoseconds):
    for unit, size in (("s", 1e9), ("ms", 1e6), ("us", 1e3)):
        if nanoseconds >= size:
            return f"{nanoseconds / size:.3g} {unit}"
    return f"{nanoseconds:.3g} ns"


def describe(times):
    return [in_units(times.least), in_units(times.median), f"{100 * times.spread:.0f} %"]


class Measured:
    def __init__(self, times):
        self.subjects = {}  # name: (times, {peer: times})
        for name, repeated in times.items():
            subject, peer = split(name)
            entry = self.subjects.setdefault(subject, [None, {}])
            if peer is None:
                entry[0] = repeated
            else:
                entry[1][peer] = repeated

    def aim_row(self, subject, peer, aim, what):
        now, peers = self.subjects[subject]
        limit = in_units(peers["Limit"].least) if "Limit" in peers else ""
        row = [what, f"`{subject}`", *describe(now)]
        if peer == "-":
            return row + ["", "", "", limit, "", in_units(aim), "met" if now.least <= aim else "**missed**"]
        if peer not in peers:
            return row + [f"{peer}: not built", "", "", limit, "", f"{aim:g}", "unknown"]
        ratio = now.least / peers[peer].least
        verdict = "met" if ratio <= aim else "**missed**"
        return row + [peer, *describe(peers[peer])[:2], limit, f"{ratio:.2f}", f"{aim:g}", verdict]

    def aims(self, every):
        """The aims that were measured, or every one."""
        head = ["task", "subject", "least", "median", "spread", "peer", "least", "median", "limit", "ratio", "aim", ""]
        rows = [head]
        for subject, peer, aim, what in read_aims():
            if self.subjects.get(subject, [None])[0] is not None:
                rows.append(self.aim_row(subject, peer, aim, what))
            elif every:
                rows.append([what, f"`{subject}`", *[""] * 8, in_units(aim) if peer == "-" else f"{aim:g}", "not measured"])
        return rows

    def all(self):
        rows = [["subject", "least", "median", "spread", "peer", "least", "median", "spread", "ratio"]]
        for subject, (now, peers) in self.subjects.items():
            if now is None:
                continue
            for peer, times in peers.items() or [("", None)]:
                beside = [*describe(times), f"{now.least / times.least:.2f}"] if times else [""] * 4
                rows.append([f"`{subject}`", *describe(now), peer or ("plain" if times else ""), *beside])
        return rows


def as_text(rows):
    widths = [max(len(row[column]) for row in rows) for column in range(len(rows[0]))]
    return "\n".join("  ".join(cell.ljust(width) for cell, width in zip(row, widths)).rstrip() for row in rows)


def as_markdown(rows):
    lines = ["| " + " | ".join(row) + " |" for row in rows]
    return "\n".join([lines[0], "|" + "---|" * len(rows[0])] + lines[1:])


def machine():
    info = pathlib.Path("/proc/cpuinfo")
    names = re.findall(r"model name\s*: (.*)", info.read_text(encoding="utf-8")) if info.exists() else []
    return f"{names[0] if names else 'unknown processor'}, {os.cpu_count()} cores"


def without_benchmark(programs):
    """Aims whose subject none of the programs has."""
    known = set()
    for program in programs:
        names = subprocess.run([program, "--benchmark_list_tests"], check=True, stdout=subprocess.PIPE, text=True).stdout
        known |= {name.removesuffix("/manual_time") for name in names.split()}
    return [subject for subject, *_ in read_aims() if subject not in known]


def write(page, tables, runs, minutes):
    path = pathlib.Path(page)
    before, _, rest = path.read_text(encoding="utf-8").partition(BEGIN)
    _, _, after = rest.partition(END)
    if not rest or not after:
        sys.exit(f"{page} has no place for the figures: {BEGIN} and {END}")
    date = datetime.date.today().isoformat()
    head = f"{date}, {machine()}, the release preset, {runs} runs of {REPETITIONS} repetitions, {minutes:.0f} minutes."
    path.write_text("\n\n".join([before + BEGIN, head, *tables, END]) + after, encoding="utf-8")


def main():
    own, _, options = (" ".join(sys.argv[1:]) + " ").partition(" -- ")
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--runs", type=int, default=3)
    parser.add_argument("--write", metavar="PAGE")
    parser.add_argument("programs", nargs="+")
    arguments = parser.parse_args(own.split())
    strange = without_benchmark(arguments.programs) if arguments.write else []
    if strange:
        sys.exit(f"{AIMS}: there is no benchmark {', '.join(strange)}")
    begin, times = time.monotonic(), {}
    for program in arguments.programs:
        print(f"running {pathlib.Path(program).name}", file=sys.stderr)
        times.update(measure(program, arguments.runs, options.split()))
    measured = Measured(times)
    tables = [table for table in (measured.aims(bool(arguments.write)), measured.all()) if len(table) > 1]
    print("\n\n".join(as_text(table) for table in tables))
    if arguments.write:
        minutes = (time.monotonic() - begin) / 60.0
        write(arguments.write, [as_markdown(table) for table in tables], arguments.runs, minutes)


if __name__ == "__main__":
    main()
