# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""The fenced blocks of a page of documentation, and what a comment before a block says about it."""
import re

FENCE = re.compile(r"^( *)```(\w*)$")
REMARK = re.compile(r"<!--\s*(not run|before):\s*(.*?)\s*-->", re.DOTALL)


class Block:
    def __init__(self, language, first, indent):
        self.language = language
        self.first = first  # number of its first line, counted from 1
        self.indent = indent
        self.lines = []
        self.remarks = {}  # of the comment right above it: "not run", a reason; "before", commands

    def text(self):
        return "".join(line + "\n" for line in self.lines)


def read_blocks(path):
    """The blocks of the page in order; a fence that nothing closes ends the program."""
    with open(path, encoding="utf-8") as file:
        lines = file.read().split("\n")
    blocks, block, above = [], None, []
    for number, line in enumerate(lines, 1):
        fence = FENCE.match(line)
        if block and fence and not fence.group(2):
            blocks.append(block)
            block, above = None, []
        elif block:
            block.lines.append(line[block.indent:] if not line[:block.indent].strip() else line)
        elif fence:
            block = Block(fence.group(2), number + 1, len(fence.group(1)))
            block.remarks = dict(REMARK.findall("\n".join(above)))
        elif line.strip().startswith("<!--") or above and "-->" not in above[-1]:
            above.append(line)
        elif line.strip():
            above = []
    if block:
        raise SystemExit(f"{path}:{block.first - 1}: a fence that nothing closes")
    return blocks
