# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""What a compiler says of the names and types that a source declares, from what readelf prints of its object."""
import collections
import re

Parameter = collections.namedtuple("Parameter", "type is_artificial")  # no type: any number of further ones
Declaration = collections.namedtuple("Declaration", "offset parameters")
# names: by their mangled name; types: offsets by qualified name, those of the exported headers.
Declarations = collections.namedtuple("Declarations", "names types")

ENTRY = re.compile(r" *<([0-9a-f]+)><([0-9a-f]+)>: Abbrev Number: \d+ \(DW_TAG_(\w+)\)")
# In front of a value stand, in parentheses, its form and its place.
ATTRIBUTE = re.compile(r" *<[0-9a-f]+> +DW_AT_(\w+) *: (?:\([^)]*\):? )*(.*)")
TYPES = {"structure_type", "class_type", "union_type", "enumeration_type"}
SCOPES = TYPES | {"namespace"}


class Entry:
    def __init__(self, match):
        self.depth, self.offset, self.tag = int(match[1], 16), int(match[2], 16), match[3]
        self.attributes, self.children, self.parent = {}, [], None

    def qualified_name(self):
        """None when it is inside something without a name, or in a function."""
        name = self.attributes.get("name")
        if name is None or self.parent is None:
            return name
        if self.parent.tag == "compile_unit":
            return name
        scope = self.parent.qualified_name() if self.parent.tag in SCOPES else None
        return scope and f"{scope}::{name}"


def read_entries(dump):
    entries, open_entries = [], []
    for line in dump.splitlines():
        if match := ENTRY.match(line):
            entry = Entry(match)
            del open_entries[entry.depth:]
            if open_entries:
                entry.parent = open_entries[-1]
                entry.parent.children.append(entry)
            open_entries.append(entry)
            entries.append(entry)
        elif entries and (match := ATTRIBUTE.match(line)):
            entries[-1].attributes[match[1]] = match[2].strip()
    return entries


def read_parameters(entry):
    def type_of(child):
        return int(re.match(r"<(\w+)>", child.attributes["type"])[1], 16) if child.tag == "formal_parameter" else None

    return [Parameter(type_of(child), "artificial" in child.attributes)
            for child in entry.children if child.tag in ("formal_parameter", "unspecified_parameters")]


def read_declarations(assembly, dump, headers):
    files = {}
    for number, folder, name in re.findall(r'^\s*\.file (\d+) "([^"]*)"(?: "([^"]*)")?', assembly, re.MULTILINE):
        files[number] = f"{folder}/{name}" if name else folder
    names, types = {}, {}
    for entry in read_entries(dump):
        attributes = entry.attributes
        if entry.tag in ("subprogram", "variable") and "declaration" in attributes:
            name = attributes.get("linkage_name", attributes.get("name"))
            names.setdefault(name, Declaration(entry.offset, read_parameters(entry)))
        elif entry.tag in TYPES and "byte_size" in attributes and files.get(attributes.get("decl_file")) in headers:
            name = entry.qualified_name()
            if name:
                types.setdefault(name, entry.offset)
    return Declarations(names, types)
