# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""A library for abidw that has the names of a built one and the types of its headers.

abidw wants descriptions of types beside the code. Builds here keep lines and function names only: types in each of four
hundred sources would be gigabytes to link into the tests. So one source includes the exported headers, is compiled with
everything that they declare, and gets, for each name that the built library exports, an address and the statement that
this is what the header declares there. What abidw reads is the interface as a program sees it that is compiled with the
headers and linked with the library.
"""
import pathlib
import re
import subprocess

from declarations import read_declarations

# What the compiler adds for itself: templates of the standard library, type information, tables of operations.
NOT_DECLARED = re.compile(r"(std::|__gnu_cxx::|typeinfo|vtable|VTT|construction vtable|guard variable|.*\bstd::__)")
FLAGS = ["-std=c++20", "-g", "-gdwarf-5", "-fPIC", "-fno-eliminate-unused-debug-types", "-femit-class-debug-always"]


def run(*command, text=None):
    return subprocess.run([str(word) for word in command], input=text, capture_output=True, check=True, text=True).stdout


def exported(library):
    """The names of the library: mangled, readable, and whether it is code."""
    rows = [line.split() for line in run("nm", "-D", "--defined-only", library).splitlines()]
    readable = run("c++filt", text="".join(row[-1] + "\n" for row in rows)).splitlines()
    return [(row[-1], name, row[-2] in "TWi") for row, name in zip(rows, readable) if not NOT_DECLARED.match(name)]


def free_functions(names, headers):
    """The qualified names that stand in no class: a compiler describes those that somebody speaks of."""
    text = "".join(header.read_text(encoding="utf-8") for header in headers)
    spaces = set(re.findall(r"^namespace ([\w:]+) *\{", text, re.MULTILINE))
    words = set(re.findall(r"operator[^\w\s(]+|\w+", text))
    for name in sorted({re.sub(r"\[abi:\w+\]", "", name).split("(")[0] for name in names}):
        scope, _, last = name.rpartition("::")
        if last in words and (not scope or scope in spaces):
            yield name


class Assembly:
    """The addresses, and a compilation unit that says what lies there."""

    def __init__(self):
        self.places, self.abbreviations, self.entries = [], [], []
        self.codes = {}

    def code(self, tag, children, *attributes):
        """The number of an abbreviation: tag, and pairs of attribute and form."""
        key = tag, children, attributes
        if key not in self.codes:
            self.codes[key] = len(self.codes) + 1
            numbers = [self.codes[key], tag, *(n for pair in attributes for n in pair), 0, 0]
            self.abbreviations += [f".uleb128 {numbers[0]}, {tag}", f".byte {children}",
                                   ".uleb128 " + ", ".join(map(str, numbers[2:]))]
        return self.codes[key]

    def place(self, symbol, is_code):
        section, kind, what = (".text", "function", "nop") if is_code else (".data", "object", ".byte 0")
        self.places += [section, f".globl {symbol}", f".type {symbol}, @{kind}", f"{symbol}: {what}",
                        f".size {symbol}, 1"]

    def function(self, symbol, declaration):
        # DW_TAG_subprogram: specification, linkage_name, low_pc, high_pc
        code = self.code(0x2E, 1, (0x47, 0x10), (0x6E, 0x08), (0x11, 0x01), (0x12, 0x0B))
        self.entries += [f".uleb128 {code}", f".long .Ldebug_info0 + {declaration.offset}", f'.asciz "{symbol}"',
                         f".quad {symbol}", ".byte 1"]
        for parameter in declaration.parameters:
            if parameter.type is None:  # DW_TAG_unspecified_parameters
                self.entries.append(f".uleb128 {self.code(0x18, 0)}")
                continue
            # DW_TAG_formal_parameter: type, artificial
            artificial = ((0x34, 0x19),) if parameter.is_artificial else ()
            self.entries += [f".uleb128 {self.code(0x05, 0, (0x49, 0x10), *artificial)}",
                             f".long .Ldebug_info0 + {parameter.type}"]
        self.entries.append(".byte 0")

    def variable(self, symbol, attribute, offset):
        # DW_TAG_variable: specification or type, name, external, location (DW_OP_addr)
        code = self.code(0x34, 0, (attribute, 0x10), (0x03, 0x08), (0x3F, 0x19), (0x02, 0x18))
        self.entries += [f".uleb128 {code}", f".long .Ldebug_info0 + {offset}", f'.asciz "{symbol}"',
                         ".uleb128 9", ".byte 3", f".quad {symbol}"]

    def text(self):
        unit = self.code(0x11, 1, (0x13, 0x0B), (0x03, 0x08))  # DW_TAG_compile_unit: language, name
        return "\n".join([
            *self.places, '.section .debug_abbrev, "", @progbits', ".Lprobe_abbreviations:", *self.abbreviations,
            ".byte 0", '.section .debug_info, "", @progbits', ".long .Lprobe_end - .Lprobe_begin", ".Lprobe_begin:",
            ".value 5", ".byte 1, 8", ".long .Lprobe_abbreviations", f".uleb128 {unit}", ".byte 0x21", '.asciz "names"',
            *self.entries, ".byte 0", ".Lprobe_end:", ""])


def make_probe(compiler, headers_dir, include_dirs, library, folder):
    """Path of the library for abidw, made in `folder`; and the names that no header declares."""
    headers = sorted(pathlib.Path(headers_dir).rglob("*.h"))
    names = exported(library)
    source, assembly, built = folder / "probe.cpp", folder / "probe.s", folder / "probe.so"
    source.write_text("".join(f'#include "{header}"\n' for header in headers) + "namespace probe {\n" + "".join(
        f"using ::{name};\n" for name in free_functions([name for _, name, _ in names], headers)) + "}\n")
    run(compiler, *FLAGS, "-S", source, *(f"-I{path}" for path in (headers_dir, *include_dirs)), "-o", assembly)
    run("as", assembly, "-o", folder / "probe.o")
    declared = read_declarations(assembly.read_text(), run("readelf", "--wide", "--debug-dump=info", folder / "probe.o"),
                                 {str(header) for header in headers})
    added, undeclared = Assembly(), []
    for symbol, name, is_code in names:
        # A constructor has several names, of which the compiler declares one.
        declaration = (declared.names.get(symbol)
                       or declared.names.get(re.sub(r"(?<=[CD])[0-3](?=E)", "4", symbol, count=1)))
        if not declaration:
            undeclared.append(name)
            continue
        added.place(symbol, is_code)
        if is_code:
            added.function(symbol, declaration)
        else:
            added.variable(symbol, 0x47, declaration.offset)
    # Types that no name leads to are seen by programs as well.
    for name, offset in sorted(declared.types.items()):
        symbol = "type_" + re.sub(r"\W+", "_", name)
        added.place(symbol, False)
        added.variable(symbol, 0x49, offset)
    with open(assembly, "a", encoding="utf-8") as file:
        file.write(added.text())
    soname = re.search(r"SONAME.*\[(.*)\]", run("readelf", "--dynamic", library))
    run(compiler, "-shared", "-nostdlib", *([f"-Wl,-soname={soname[1]}"] if soname else []), assembly, "-o", built)
    return built, undeclared
