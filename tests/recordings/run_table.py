# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""The table of runs, and the damaged files that some of them read; README.md describes both."""
import shlex

PROGRAMS = ("skyview", "skydata")
PREPARATIONS = ("write", "bytes", "copy", "damaged", "digests")


class Run:
    """A name and its steps, lists of words, done one after another in one fresh folder."""

    def __init__(self, name):
        self.name = name
        self.steps = []

    def draws(self):
        words = [word for step in self.steps for word in step]
        return "--contact-sheet" in words or any(
            option == "--out" and value.endswith((".png", ".svg")) for option, value in zip(words, words[1:]))


def read_runs(path):
    runs = []
    with open(path, encoding="utf-8") as table:
        for number, line in enumerate(table, 1):
            words = shlex.split(line, comments=True)
            if not words:
                continue
            if words[0] == "run" and len(words) == 2:
                if any(run.name == words[1] for run in runs):
                    raise SystemExit(f"{path}:{number}: a second run '{words[1]}'")
                runs.append(Run(words[1]))
            elif runs and words[0] in PROGRAMS + PREPARATIONS:
                runs[-1].steps.append(words)
            else:
                raise SystemExit(f"{path}:{number}: neither a run nor a step of one: {line.strip()}")
    return runs


def unescape(text):
    """The bytes of a text of the damaged cases or of `write`: \\t, \\r, \\n, \\\\ and \\xHH."""
    done = bytearray()
    at = 0
    while at < len(text):
        if text[at] != "\\":
            done += text[at].encode()
            at += 1
        elif text[at + 1] == "x":
            done.append(int(text[at + 2:at + 4], 16))
            at += 4
        else:
            done += {"t": b"\t", "r": b"\r", "n": b"\n"}.get(text[at + 1], text[at + 1].encode())
            at += 2
    return bytes(done)


def _bytes_of(line):
    kind, rest = line[0], line[1:]
    if kind == "|":
        return unescape(rest) + b"\n"
    if kind == "/":
        return unescape(rest)
    if kind == "x":
        return bytes.fromhex(rest)
    if kind == "*":
        times, text = rest.split(" ", 1)
        return int(times) * unescape(text)
    return b""


def read_damaged_case(path, name):
    """The files of one damaged case as (path, bytes); their form: tests/skydata/lint/damaged/README.md."""
    files = []
    inside = wanted = False
    with open(path, encoding="utf-8") as cases:
        for line in cases.read().split("\n"):
            if line.startswith("case "):
                inside, wanted = line == "case " + name, False
            elif not inside or not line:
                continue
            elif line == "want":
                wanted = True
            elif line.startswith("file "):
                files.append([line[5:], b""])
            elif not wanted:
                files[-1][1] += _bytes_of(line)
    if not files:
        raise SystemExit(f"{path}: has no case '{name}'")
    return files
