#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Compares the names that a shared library exports with the recorded list exported_<library>.txt.

usage: exported_names.py [--update] LIBRARY FILE

LIBRARY is common_interfaces, astro, utils or scene; FILE is its .so, or its .dll, of any word size. Fails with a diff
when a name was lost or has leaked, and when a name has no place in the library: the library exports the namespaces
CommonInterfaces and thread, and the global names that its public headers mark with COMMON_INTERFACES_API outside any
namespace; scene its namespace and the functions of its headers for C, scene_c.h and scene_*_c.h; another companion the global names that its public headers declare. --update
rewrites the list from FILE, a .so.

The list holds demangled names with their parameters; std::size_t is written so for both word sizes. What a compiler
adds for itself is left out: instantiations of std, the names inside type information, and the second and third form
of a constructor or destructor.
A .dll may export inline members of exported classes as well, as its compiler inlined them or not: for it the recorded
names must be there, and all names must have their place, but more names are allowed. $OBJDUMP reads its table.
"""
import difflib
import glob
import os
import re
import subprocess
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(os.path.dirname(HERE))
NAMESPACES = {"common_interfaces": {"CommonInterfaces", "thread"}, "astro": set(), "utils": set(), "scene": {"scene"}}

# The outermost component of a mangled name: behind what kind of table it is, that it is local to a function, and the
# qualifiers of a member function.
OUTERMOST = re.compile(r"_Z(?:T[VIST]|GV|Th\d+_)?Z*(?:N[rVK]*[RO]?)?(?:(S[tabsiod])|(\d+)|([a-z]{2}))")


def run(*command, text=None):
    return subprocess.run(command, input=text, capture_output=True, check=True, text=True).stdout


def mangled_names(path):
    if not path.endswith(".dll"):
        return [line.split()[-1] for line in run("nm", "-D", "--defined-only", path).splitlines()]
    table = run(os.environ.get("OBJDUMP", "objdump"), "-p", path).split("[Ordinal/Name Pointer] Table", 1)[1]
    return re.findall(r"^\s*\[\s*\d+\].*\s(\S+)$", table.split("\n\n", 1)[0], re.MULTILINE)


def outermost(mangled):
    """The first component of the qualified name; "std" for the standard library's own."""
    match = OUTERMOST.match(mangled)
    if not match:
        return mangled
    standard, length, operator = match.groups()
    if standard:
        return "std"
    return mangled[match.end():match.end() + int(length)] if length else f"operator {operator}"


def readable(mangled):
    """Demangled names, one each, in the order given."""
    names = run("c++filt", "--no-strip-underscore", text="".join(m + "\n" for m in mangled)).splitlines()
    sized = re.compile(r"operator (new|delete)(\[\])?\((.*?)unsigned (?:int|long)\b")
    file = re.compile(r"\b(_IO_FILE|_iobuf)\b")  # what the C libraries call FILE
    extent = re.compile(r"(std::span<[^<>]*), \d+u\w*>")  # the largest size_t: a span of any length
    return [extent.sub(r"\1>", file.sub("FILE", sized.sub(r"operator \1\2(\3std::size_t",
                                                          name.replace("[abi:cxx11]", ""))))
            for name in names]


def public_headers(folder):
    """The texts of the public headers of a folder, without comments."""
    for header in glob.glob(os.path.join(ROOT, folder, "include", "*", "*.h")):
        with open(header, encoding="utf-8") as file:
            yield re.sub(r"//[^\n]*", "", file.read())


def declared_names(library):
    """Every word of the public headers of a companion."""
    return {word for text in public_headers(f"companions/{library}") for word in re.findall(r"\w+", text)}


def global_names(macro):
    """What the library's public headers mark with the export macro outside any namespace and class."""
    names = set()
    for text in public_headers("."):
        text = re.sub(r"^\s*#[^\n]*", "", text, flags=re.MULTILINE)
        while "{" in text:
            text, count = re.subn(r"\{[^{}]*\}", "", text)
            if count == 0:
                break
        # A function's name stands before its parameters, a variable's before the end of its declaration.
        names |= set(re.findall(rf"\b{macro}\s[^;()]*?(\w+)(?:\[[^]]*\])?\s*[(;]", text))
    return names


def c_names():
    """The functions of the scene's C interface."""
    names = set()
    for header in glob.glob(os.path.join(ROOT, "scene", "include", "scene", "scene_*c.h")):
        with open(header, encoding="utf-8") as file:
            names |= set(re.findall(r"\b(scene_\w+)\(", re.sub(r"/\*.*?\*/", "", file.read(), flags=re.DOTALL)))
    return names


def of_any_word_size(name):
    return re.sub(r"\bunsigned (?:int|long)\b", "unsigned", re.sub(r"\b(\d+)ul?\b", r"\1", name))


def places_of(library):
    """What may stand outermost in an exported name."""
    if library == "common_interfaces":
        return NAMESPACES[library] | global_names("COMMON_INTERFACES_API")
    return NAMESPACES[library] | (c_names() if library == "scene" else declared_names(library))


def misplaced(library, mangled):
    places = places_of(library)
    return [m for m in mangled if outermost(m) not in places]


def check_list(library, path, exported):
    list_path = os.path.join(HERE, f"exported_{library}.txt")
    with open(list_path, encoding="utf-8") as file:
        recorded = [line for line in file.read().splitlines() if not line.startswith("#")]
    if path.endswith(".dll"):  # of 32 bits: std::size_t is another type there
        there = {of_any_word_size(name) for name in exported}
        exported = [name for name in recorded if of_any_word_size(name) in there]
    diff = list(difflib.unified_diff(recorded, exported, list_path, path, lineterm="", n=0))
    for line in diff:
        print(line)
    if diff:
        print(f"{library}: exported names differ from the list: - lost, + new. When that is meant, run\n"
              f"  python3 tests/layout/exported_names.py --update {library} FILE.so")
    return not diff


def update(library, exported):
    with open(os.path.join(HERE, f"exported_{library}.txt"), "w", encoding="utf-8") as file:
        file.write("# Made by exported_names.py --update; do not edit.\n")
        file.writelines(name + "\n" for name in exported)


def main():
    arguments = [a for a in sys.argv[1:] if a != "--update"]
    if len(arguments) != 2 or arguments[0] not in NAMESPACES:
        sys.exit(__doc__)
    library, path = arguments
    mangled = [m for m in mangled_names(path) if outermost(m) != "std" and not m.startswith("_ZTS")]
    exported = sorted(set(readable(mangled)))
    if "--update" in sys.argv:
        update(library, exported)
    leaked = misplaced(library, mangled)
    for name in readable(leaked):
        print(f"{library}: exports a name that has no place there: {name}")
    sys.exit(0 if exported and check_list(library, path, exported) and not leaked else 1)


main()
