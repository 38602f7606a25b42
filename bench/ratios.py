#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Runs benchmark programs and prints, for every subject, the time of one item and its ratio to each peer's.

  bench/ratios.py build/release/bin/bench_*
  bench/ratios.py build/release/bin/bench_pool -- --benchmark_min_time=1

The peers of Name/args are NamePeer/args and NamePeerOther/args, measured in the same run."""
import json
import subprocess
import sys

REPETITIONS = 5


def measure(program, options):
    """Medians of the repetitions: seconds per item by benchmark name."""
    command = [program, "--benchmark_format=json", f"--benchmark_repetitions={REPETITIONS}",
               "--benchmark_report_aggregates_only=true", *options]
    report = json.loads(subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout)
    medians = (b for b in report["benchmarks"] if b.get("aggregate_name") == "median")
    return {b["run_name"]: 1.0 / b["items_per_second"] for b in medians if "items_per_second" in b}


def main():
    arguments = sys.argv[1:]
    split = arguments.index("--") if "--" in arguments else len(arguments)
    if not arguments[:split]:
        sys.exit(__doc__)
    print(f"{'subject':<32}{'peer':<10}{'ns/item':>10}{'peer':>12}{'ratio':>9}")
    for program in arguments[:split]:
        times = measure(program, arguments[split + 1:])
        for name, seconds in times.items():
            base, _, shape = name.partition("/")
            for other, peer in times.items():
                peer_base, _, peer_shape = other.partition("/")
                if peer_base.startswith(f"{base}Peer") and peer_shape == shape:
                    kind = peer_base.removeprefix(f"{base}Peer")
                    print(f"{name:<32}{kind:<10}{seconds * 1e9:>10.2f}{peer * 1e9:>12.2f}{seconds / peer:>9.2f}")


if __name__ == "__main__":
    main()
