# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""One run of a program under limits, and what is wrong with how it ended."""
import collections
import contextlib
import os
import signal
import subprocess
import tempfile
import threading
import time

# `status`: that of exit, or minus the signal. `mebibytes`: most memory at once.
Run = collections.namedtuple("Run", "status output errors seconds mebibytes is_late")
Limits = collections.namedtuple("Limits", "seconds mebibytes")

SANITIZER_REPORTS = ("Sanitizer", "runtime error:")
DONE, REFUSED, BAD_USAGE = 0, 1, 2
# Whose values the data root decides on.
OPTIONS_OF_THE_ROOT = (b"skyview: --language ",)
NOBODY = 65534
WRITES_BYTES = ("pseudo",)


def end(process):
    """Popen.kill would take the process's status away from whoever waits for it."""
    with contextlib.suppress(ProcessLookupError):
        os.kill(process, signal.SIGKILL)


def execute(words, environment, folder, seconds, user=None):
    """Ends the program after so many seconds of its own time, or three times as many of the clock's."""
    with tempfile.TemporaryFile() as output, tempfile.TemporaryFile() as errors:
        rights = {} if user is None else {"user": user, "group": user, "extra_groups": []}
        begin = time.monotonic()
        limited = ["prlimit", f"--cpu={seconds}:{seconds + 1}", *words]
        process = subprocess.Popen(limited, cwd=folder, env=environment, stdin=subprocess.DEVNULL, stdout=output,
                                   stderr=errors, **rights)
        late = threading.Timer(3 * seconds, end, [process.pid])
        late.start()
        _, status, usage = os.wait4(process.pid, 0)
        late.cancel()
        process.returncode = os.waitstatus_to_exitcode(status)
        used = usage.ru_utime + usage.ru_stime
        is_late = process.returncode == -signal.SIGXCPU or (
            process.returncode == -signal.SIGKILL and time.monotonic() - begin >= 3 * seconds)
        output.seek(0)
        errors.seek(0)
        return Run(process.returncode, output.read(), errors.read(), used, usage.ru_maxrss / 1024, is_late)


def has_harm(content):
    """Bytes that are no UTF-8, or characters that a terminal obeys."""
    try:
        text = content.decode("utf-8")
    except UnicodeDecodeError:
        return True
    return any(character < " " and character not in "\n\t" or "\x7F" <= character <= "\x9F" for character in text)


def problems_of_errors(program, status, errors):
    lines = errors.split(b"\n")
    if lines.pop() != b"":
        yield "the last diagnostic has no end"
    if any(not line.strip() for line in lines):
        yield "an empty diagnostic"
    if has_harm(errors):
        yield "a diagnostic that harms a terminal"
    if len(set(lines)) < len(lines):
        yield "a diagnostic is told twice"
    if program == "skyview":
        if not all(line.startswith(b"skyview: ") for line in lines):
            yield "a diagnostic without the program's name"
        if status != DONE and len(lines) != 1:
            yield f"{len(lines)} diagnostics of a refusal"


def is_documented(words, run):
    """Status 2 where no bad usage is meant: a comparison that nobody can make, an option that wants the root's files."""
    return run.status == BAD_USAGE and (
        words[1:3] == ["settings", "diff"] or run.errors.startswith(OPTIONS_OF_THE_ROOT))


def problems(words, run, limits):
    """What is wrong with a run over a damaged root, in words; nothing for one that ended as it should."""
    program = os.path.basename(words[0])
    if any(mark.encode() in run.errors for mark in SANITIZER_REPORTS):
        yield "a sanitizer report"
        return
    if run.is_late:
        yield f"more than {limits.seconds} s"
    elif run.status < 0:
        yield f"signal {-run.status}"
    elif run.status not in (DONE, REFUSED) and not is_documented(words, run):
        yield f"exit status {run.status}"
    if run.mebibytes > limits.mebibytes:
        yield "more than %d MiB" % limits.mebibytes
    if run.status == REFUSED and not run.errors and (program == "skyview" or not run.output):
        yield "refused without a word"
    yield from problems_of_errors(program, run.status, run.errors)
    if has_harm(run.output) and not set(words) & set(WRITES_BYTES):
        yield "output that harms a terminal"
