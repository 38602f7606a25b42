# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Reads commands.txt: which commands read which files."""
import collections
import fnmatch
import re
import shlex

# Words, the program first, and patterns of the files that are read.
Command = collections.namedtuple("Command", "words patterns")


def read_commands(path):
    lists, commands = {}, []
    with open(path, encoding="utf-8") as table:
        for number, line in enumerate(table, 1):
            words = [] if line.startswith("#") else shlex.split(line) if line[:3] == "sky" else line.split()
            if not words:
                continue
            if words[0] == "list":
                lists[f"@{words[1]}@"] = words[2:]
            elif words[0] in ("skyview", "skydata"):
                commands.append(Command(words, []))
            elif line.startswith("  ") and commands:
                for word in words:
                    commands[-1].patterns.extend(lists[word] if word.startswith("@") else [word])
            else:
                raise SystemExit(f"{path}:{number}: neither a list nor a command nor its patterns: {line.strip()}")
    return commands


def commands_for(commands, name):
    """Those that read the file "data/..." or "work/...", by program."""
    found = collections.defaultdict(list)
    for command in commands:
        if any(fnmatch.fnmatchcase(name, pattern) for pattern in command.patterns):
            found[command.words[0]].append(command)
    return found


def find_gaps(commands, names):
    """Files that no command reads besides those of every file, and patterns that no file fits; lines to print."""
    special = [command for command in commands if command.patterns != ["*"]]
    unread = [name for name in names if not commands_for(special, name)]
    idle = {pattern for command in commands for pattern in command.patterns
            if not any(fnmatch.fnmatchcase(name, pattern) for name in names)}
    return [f"nothing reads {name}" for name in sorted(unread)] + [f"no file is {pattern}" for pattern in sorted(idle)]


def filled_in(words, places):
    """The words with the marks @NAME@ replaced."""
    return [re.sub("@([A-Z]+)@", lambda mark: places[mark[1]], word) for word in words]
