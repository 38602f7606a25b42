# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Makes manual pages of what a program says of itself: one of PROGRAM --help, and one of PROGRAM COMMAND --help for
each command that is listed there, and so on.

A help text begins with what the program or command does and with its usage; blocks follow, a title with a colon and
below it entries, indented by two spaces: a name, and what it means in a column of its own, or in the next line where
the name reaches into that column. A block of commands lists commands. What stands behind the blocks is a remark.
"""
import re
import subprocess

ENTRY = re.compile(r"^  (\S.*?)(?:\s{2,}|$)")
COMMANDS = ("Commands", "Subcommands")


class Help:
    def __init__(self, text):
        self.purpose, self.usage, self.blocks, self.remarks = [], "", [], []
        for line in text.split("\n"):
            if line.startswith("Usage: "):
                self.usage = line.removeprefix("Usage: ")
            elif not self.usage:
                self.purpose.append(line)
            elif re.match(r"^\S.*:$", line):
                self.blocks.append((line[:-1], []))
            elif line.startswith("  ") and self.blocks:
                self.blocks[-1][1].append(line)
            elif line:
                self.remarks.append(line)
        self.purpose = " ".join(self.purpose).strip()
        self.blocks = [(title, read_entries(lines)) for title, lines in self.blocks]

    def commands(self):
        return [name for title, entries in self.blocks if title in COMMANDS for name, _ in entries]


def column_of(lines):
    """Where the meanings begin."""
    columns = [re.match(r"^  \S.*?\s{2,}(?=\S)", line) or re.match(r"^ {3,}(?=\S)", line) for line in lines]
    return min(match.end() for match in columns if match)


def read_entries(lines):
    """[(name, meaning)]"""
    column, entries = column_of(lines), []
    for line in lines:
        if not line[:column].strip():
            entries[-1][1] += " " + line.strip()
        elif line[column - 1:column] in (" ", ""):
            entries.append([line[:column].strip(), line[column:].strip()])
        else:
            entries.append([line.strip(), ""])
    return [(name, meaning.strip()) for name, meaning in entries]


def roff(text):
    text = text.replace("\\", "\\e").replace("-", "\\-")
    return "\\&" + text if text[:1] in (".", "'") else text


def make_page(name, version, date, text, others):
    """`name`: as it is typed, with spaces; `others`: names of pages to look into."""
    told = Help(text)
    title = name.replace(" ", "-")
    summary = re.split(r"\.( |$)", told.purpose)[0]
    lines = [f'.TH {roff(title.upper())} 1 {date} "{version}" "User Commands"',
             ".ad l", ".nh",  # words are long
             ".SH NAME", f"{roff(title)} \\- {roff(summary[0].lower() + summary[1:])}",
             ".SH SYNOPSIS", f"\\fB{roff(name)}\\fR{roff(told.usage.removeprefix(name))}",
             ".SH DESCRIPTION", roff(told.purpose[0].upper() + told.purpose[1:].removesuffix(".") + ".")]
    for remark in told.remarks:
        lines += [".PP", roff(remark)]
    for block, entries in told.blocks:
        lines.append(f".SH {roff(block.upper())}")
        for entry, meaning in entries:
            # A long list of choices breaks behind its commas.
            lines += [".TP", "\\fB" + roff(entry).replace(",", ",\\:") + "\\fR", roff(meaning)]
    lines += [".SH SEE ALSO", ",\n".join(f"\\fB{roff(other.replace(' ', '-'))}\\fR(1)" for other in others)]
    return "\n".join(lines) + "\n"


def run(program, *arguments):
    return subprocess.run([program, *arguments], capture_output=True, text=True, check=True,
                          env={"LC_ALL": "C.UTF-8"}).stdout


def make_pages(program, name, date):
    """{name of the file: text} of all manual pages of a program."""
    version, pages = run(program, "--version").strip(), {}

    def make(words, above):
        text = run(program, *words, "--help")
        below = [[*words, *command.split()] for command in Help(text).commands()]
        own = " ".join([name, *words])
        others = above + [" ".join([name, *command]) for command in below]
        pages[own.replace(" ", "-") + ".1"] = make_page(own, version, date, text, others)
        for command in below:
            make(command, [*above, own])

    make([], [])
    return pages
