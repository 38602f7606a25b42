#!/usr/bin/env python3
"""Counts the test cases of one or more build trees and prints the closing line.

usage: count_tests.py MINIMUM_COUNTS BUILD_DIR...

A test program reports its cases in test-results/NAME.xml; every other CTest test counts as one case. A program
that ends badly without a failed case of its own (a crash, a leak, a time-out) adds one failure. MINIMUM_COUNTS
names, a line each, a program and the least number of cases that it must run, so that tests cannot vanish; for a
program that has fewer cases on one target, a line PROGRAM@TREE says how many there (0: it is not built).
"""
import os
import sys
import xml.etree.ElementTree as ET


def program_cases(path):
    """(passed, failed, skipped) of one test program, or None when it left no readable report."""
    try:
        root = ET.parse(path).getroot()
    except (OSError, ET.ParseError):
        return None
    passed = failed = skipped = 0
    for case in root.iter("testcase"):
        if case.find("failure") is not None or case.find("error") is not None:
            failed += 1
        elif case.get("status") == "notrun" or case.get("result") in ("skipped", "suppressed"):
            skipped += 1
        else:
            passed += 1
    return passed, failed, skipped


def minimum_in(tree, minimum):
    """The least counts for one build tree, by program."""
    own = {name.split("@")[0]: n for name, n in minimum.items() if name.endswith("@" + os.path.basename(tree))}
    least = {name: own.get(name, n) for name, n in minimum.items() if "@" not in name}
    return {name: n for name, n in least.items() if n > 0}


def count_tree(tree, minimum):
    results = os.path.join(tree, "test-results")
    total = [0, 0, 0]
    seen = set()
    try:
        ctest = ET.parse(os.path.join(results, "ctest.xml")).getroot()
    except (OSError, ET.ParseError):
        print(f"{tree}: CTest left no report")
        return [0, 1, 0]
    for test in ctest.iter("testcase"):
        name = test.get("name")
        seen.add(name)
        ended_well = test.get("status") == "run" and test.find("failure") is None
        report = os.path.join(results, name + ".xml")
        if os.path.exists(report) or name in minimum:
            counts = program_cases(report) or (0, 0, 0)
            passed, failed, skipped = counts
            if not ended_well and failed == 0:
                print(f"{tree}: {name} ended badly")
                failed += 1
            ran = passed + failed + skipped
            if ran < minimum.get(name, 0):
                print(f"{tree}: {name} ran {ran} cases, fewer than {minimum[name]}")
                failed += 1
        elif test.get("status") == "notrun" or test.find("skipped") is not None:
            passed, failed, skipped = 0, 0, 1
        else:
            passed, failed, skipped = (1, 0, 0) if ended_well else (0, 1, 0)
        for i, n in enumerate((passed, failed, skipped)):
            total[i] += n
    for name in sorted(set(minimum) - seen):
        print(f"{tree}: {name} did not run")
        total[1] += 1
    print(f"{tree}: {total[0]} passed, {total[1]} failed, {total[2]} skipped in {len(seen)} programs")
    return total


def main():
    minimum = {}
    with open(sys.argv[1]) as lines:
        for line in lines:
            words = line.split("#")[0].split()
            if words:
                minimum[words[0]] = int(words[1])
    total = [0, 0, 0]
    for tree in sys.argv[2:]:
        total = [a + b for a, b in zip(total, count_tree(tree, minimum_in(tree, minimum)))]
    print(f"{total[0]} passed, {total[1]} failed, {total[2]} skipped")
    return 1 if total[1] or not total[0] else 0


if __name__ == "__main__":
    sys.exit(main())
