# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""What abidw says of a library, without what is not the library's own: of the standard library the names and sizes of
types remain. So a description takes a fifth of the room, and does not change with a version of the compiler.
"""
import pathlib
import subprocess
import xml.etree.ElementTree as ET

OPTIONS = ["--no-show-locs", "--no-comp-dir-path", "--no-corpus-path", "--no-elf-needed", "--no-parameter-names",
           "--no-architecture", "--type-id-style", "hash"]
FOREIGN = {"std", "__gnu_cxx", "__gnu_debug", "__cxxabiv1", "__pstl"}


class Node:
    """What is left out whole or not at all: an entry, or of a foreign class a type inside it."""

    def __init__(self, scope, entry, parts, outer=None):
        self.scope, self.entry, self.parts, self.outer = scope, entry, parts, outer


def reduce_foreign(entry):
    """Leaves of a type its name, its size and the types inside it."""
    for part in list(entry):
        if part.tag == "member-type":
            reduce_foreign(part[0])
        else:
            entry.remove(part)


def nodes_of(scope, is_foreign=False):
    for entry in list(scope):
        if entry.tag == "namespace-decl":
            yield from nodes_of(entry, is_foreign or entry.get("name") in FOREIGN)
        elif is_foreign and entry.tag in ("function-decl", "var-decl"):
            scope.remove(entry)
        elif is_foreign and entry.tag in ("class-decl", "union-decl"):
            reduce_foreign(entry)
            outer = Node(scope, entry, [entry])
            yield outer
            for member in entry:
                yield Node(entry, member, list(member.iter()), outer)
        else:
            yield Node(scope, entry, list(entry.iter()))


def drop_unreached(root):
    """Leaves what the exported names lead to."""
    nodes = [node for unit in root.iter("abi-instr") for node in nodes_of(unit)]
    home = {part.get("id"): node for node in nodes for part in node.parts if part.get("id")}
    waiting = [node for node in nodes if any(part.get("elf-symbol-id") for part in node.parts)]
    reached = set(waiting)
    while waiting:
        node = waiting.pop()
        leads_to = [home.get(value) for part in node.parts for value in part.attrib.values()] + [node.outer]
        for other in leads_to:
            if other is not None and other not in reached:
                reached.add(other)
                waiting.append(other)
    for node in nodes:
        if node not in reached and node.entry in node.scope:
            node.scope.remove(node.entry)


def describe(library, path):
    """Writes the description of `library` to `path`."""
    text = subprocess.run(["abidw", *OPTIONS, str(library)], capture_output=True, check=True, text=True).stdout
    root = ET.fromstring(text)
    for unit in root.iter("abi-instr"):  # made in a folder that is gone
        unit.set("path", pathlib.PurePath(unit.get("path")).name)
    drop_unreached(root)
    ET.indent(root, space="")
    path.write_text(ET.tostring(root, encoding="unicode") + "\n", encoding="utf-8")
