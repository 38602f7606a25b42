#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Runs the commands of a page as its reader would: the fenced blocks of the language sh from top to bottom, in one
shell, in a copy of this tree.

usage: run_commands.py SOURCE_DIR BUILD_DIR PAGE

PAGE is relative to SOURCE_DIR. A block is either commands, each of which must succeed, or a session: commands behind
"$ " and below each what it prints, where a line "..." stands for any number of lines. Comments above a block, which no
reader sees, say what else there is to know:

  <!-- not run: it needs the network -->         the block is left out, for that reason
  <!-- before: cp -r data/source mine -->        commands that make what the block speaks of

The programs of BUILD_DIR are in the search path, and build/release is that folder.
"""
import os
import re
import shutil
import subprocess
import sys
import tempfile

from page import read_blocks

NOT_COPIED = {"build", ".git"}
# The first line of the script, which is that of the page's title: so the shell counts lines as the page does.
HEAD = ("set -eEuo pipefail; "
        "trap 'echo \"$CI_PAGE:$LINENO: exit status $?: $BASH_COMMAND\" >&2' ERR; ")
COMMENT = re.compile(r"\s+# .*$")


def one_line(commands):
    return "; ".join(line.strip() for line in commands.split("\n") if line.strip())


def make_script(blocks, folder):
    """The script, one line for each of the page, and what the sessions show: {line: [text]}."""
    script, shown = [HEAD], {}

    def put(number, text):
        script.extend([""] * (number - len(script)))
        script[number - 1] += text

    for block in blocks:
        if "before" in block.remarks:
            put(block.first - 1, one_line(block.remarks["before"]))
        if not any(line.startswith("$ ") for line in block.lines):
            for number, line in enumerate(block.lines, block.first):
                put(number, line)
            continue
        at = None
        for number, line in enumerate(block.lines, block.first):
            if line.startswith("$ "):
                at, shown[number] = number, []
                command = COMMENT.sub("", line[2:])
                put(number, f"{{ {command}; }} >{folder}/{number} 2>&1 || :")
            elif at is None:
                raise SystemExit(f"line {number}: a session begins with a command")
            else:
                shown[at].append(line.rstrip())
    return "\n".join(script) + "\n", shown


def matches(shown, printed):
    """Whether the lines are the same, "..." standing for any of them."""
    if not shown:
        return not printed
    if shown[0].strip() == "...":
        return any(matches(shown[1:], printed[skip:]) for skip in range(len(printed) + 1))
    return bool(printed) and shown[0] == printed[0] and matches(shown[1:], printed[1:])


def lay_out(source, build, folder):
    shutil.copytree(source, folder, ignore=lambda at, _: NOT_COPIED if at == source else (), dirs_exist_ok=True)
    for name in ("build", "home"):
        os.mkdir(os.path.join(folder, name))
    os.symlink(build, os.path.join(folder, "build", "release"))


def compare_sessions(page, shown, outputs):
    faults = []
    for number, lines in shown.items():
        path = os.path.join(outputs, str(number))
        if not os.path.exists(path):
            continue  # the script ended before
        with open(path, encoding="utf-8") as file:
            printed = [line.rstrip() for line in file.read().splitlines()]
        while lines and not lines[-1]:
            lines.pop()
        if not matches(lines, printed):
            faults.append(f"{page}:{number}: the page shows\n" + "\n".join(lines) + "\nand the command prints\n"
                          + "\n".join(printed))
    return faults


def main():
    source, build, page = os.path.abspath(sys.argv[1]), os.path.abspath(sys.argv[2]), sys.argv[3]
    blocks = [block for block in read_blocks(os.path.join(source, page)) if block.language == "sh"]
    left_out = [block for block in blocks if "not run" in block.remarks]
    for block in left_out:
        print(f"{page}:{block.first}: not run: {block.remarks['not run']}")
    with tempfile.TemporaryDirectory() as folder, tempfile.TemporaryDirectory() as outputs:
        lay_out(source, build, folder)
        script, shown = make_script([block for block in blocks if block not in left_out], outputs)
        environment = {"PATH": f"{build}/bin:/usr/bin:/bin", "HOME": f"{folder}/home", "TZ": "UTC", "LC_ALL": "C.UTF-8",
                       "CI_PAGE": page}
        run = subprocess.run(["bash", "-c", script], cwd=folder, env=environment, stdin=subprocess.DEVNULL,
                             capture_output=True, text=True)
        faults = compare_sessions(page, shown, outputs)
    if run.returncode != 0:
        faults.append(run.stderr.strip())
    print("\n".join(faults) if faults else f"{page}: {len(blocks) - len(left_out)} blocks run")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
