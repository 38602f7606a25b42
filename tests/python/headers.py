# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""What the headers of the C interface declare, and how a compiler lays it out."""
import pathlib
import re

ROOT = pathlib.Path(__file__).resolve().parents[2]
HEADERS = sorted((ROOT / "scene/include/scene").rglob("*_c.h"))
# Size and alignment of the members' types on 64-bit Linux.
SIZES = {"int32_t": (4, 4), "uint32_t": (4, 4), "double": (8, 8), "char": (1, 1), "pointer": (8, 8)}


def read_text():
    text = "\n".join(header.read_text(encoding="utf-8") for header in HEADERS)
    return re.sub(r"/\*.*?\*/", "", text, flags=re.DOTALL)


def read_members(body):
    """(type, name, how many) of each member in order."""
    for declaration in body.split(";"):
        words = re.fullmatch(r"\s*((?:const )?\w+)\s*(\*?)\s*(.+?)\s*", declaration, re.DOTALL)
        if not words:
            assert not declaration.strip(), declaration
            continue
        for name in words.group(3).split(","):
            name, count = re.fullmatch(r"\s*(\w+)(?:\[(\d+)\])?\s*", name).groups()
            yield ("pointer" if words.group(2) else words.group(1)), name, int(count or 1)


def lay_out(members, sizes):
    """{name: offset}, the size and the alignment: each member at the next multiple of its type's alignment."""
    at, widest, offsets = 0, 1, {}
    for kind, name, count in members:
        size, alignment = sizes[kind]
        at = -(-at // alignment) * alignment
        offsets[name] = at
        at, widest = at + size * count, max(widest, alignment)
    return offsets, -(-at // widest) * widest, widest


def read_structures():
    """{name: ({member: offset}, size)} of the structures of all headers, SceneObject's before those that hold it."""
    found = re.findall(r"typedef struct (\w+) \{(.*?)\} \1;", read_text(), re.DOTALL)
    sizes, structures = dict(SIZES), {}
    for name, body in sorted(found, key=lambda entry: "SceneObject " in entry[1]):
        offsets, size, alignment = lay_out(read_members(body), sizes)
        structures[name], sizes[name] = (offsets, size), (size, alignment)
    return structures


def read_functions():
    """{name: (what it returns, its arguments)} of all functions."""
    text = re.sub(r"void \(\*log\)\([^)]*\)", "callback log", read_text())
    found = re.findall(r"SCENE_API ([\w ]+?[ *]+)(scene_\w+)\(([^)]*)\)", text)
    return {name: (result.strip(), [] if arguments == "void" else arguments.split(","))
            for result, name, arguments in found}
