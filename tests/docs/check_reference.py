#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Checks the reference that script/docs has made: every exported name is in it and documented, and the pages that lead
in are there, with a search.

usage: check_reference.py SOURCE_DIR DOCS_DIR

Exported names are the rows of docs/interface_map.md and what tests/layout/exported_*.txt lists. A class, a function, a
type, a macro or a constant has a comment of its own; a member of a class has one, or its class has and the name of the
member says the rest.
"""
import glob
import os
import re
import sys
import xml.etree.ElementTree as ElementTree

ROW = re.compile(r"\|\s*`([^`]+)`\s*\|\s*`([^`]+)`\s*\|")
# Of a demangled name: what stands before the parameters, less the instantiations of templates.
FUNCTION = re.compile(r"^(?:[\w:<>*& ]*? )?((?:\w+::)*~?\w+)\(")


def text_of(element):
    return "".join("".join(part.itertext()) for tag in ("briefdescription", "detaileddescription")
                   for part in element.findall(tag)).strip()


def read_reference(folder):
    """{qualified name: whether one of its declarations is documented}, and {last part of a name: [qualified name]}."""
    documented = {}
    for path in glob.glob(os.path.join(folder, "xml", "*.xml")):
        for compound in ElementTree.parse(path).getroot().findall("compounddef"):
            name = compound.findtext("compoundname")
            is_class = compound.get("kind") in ("class", "struct", "union")
            if is_class:
                documented[name] = documented.get(name, False) or bool(text_of(compound))
            if not is_class and compound.get("kind") not in ("namespace", "file", "group"):
                continue
            for member in compound.iter("memberdef"):
                outer = name if is_class else member.findtext("qualifiedname", "").rpartition("::")[0]
                full = "::".join(part for part in (outer, member.findtext("name")) if part)
                own = bool(text_of(member)) or is_class and bool(text_of(compound))
                documented[full] = documented.get(full, False) or own
                for value in member.findall("enumvalue"):
                    documented.setdefault(value.findtext("name"), own)
    return documented


def exported_functions(root):
    for path in glob.glob(os.path.join(root, "tests", "layout", "exported_*.txt")):
        with open(path, encoding="utf-8") as file:
            for line in file:
                match = FUNCTION.match(re.sub(r"<[^<>]*>", "", re.sub(r"<[^<>]*>", "", line)))
                if match and not line.startswith(("#", "typeinfo", "vtable")) and "operator" not in line:
                    yield match.group(1), path


def main():
    root, folder = sys.argv[1:3]
    documented = read_reference(folder)
    by_last = {}
    for name, is_documented in documented.items():
        last = name.split("::")[-1]
        by_last[last] = by_last.get(last, False) or is_documented
    bad, count = [], 0
    with open(os.path.join(root, "docs", "interface_map.md"), encoding="utf-8") as file:
        for row in filter(None, map(ROW.match, file)):
            name, header = row.groups()
            count += 1
            if not by_last.get(name):
                bad.append(f"{header}: {name} " + ("has no comment" if name in by_last else "is not in the reference"))
    for name, path in exported_functions(root):
        count += 1
        if not documented.get(name) and not documented.get("::".join(name.split("::")[:-1])):
            bad.append(f"{os.path.basename(path)}: {name} " +
                       ("has no comment" if name in documented else "is not in the reference"))
    for path in glob.glob(os.path.join(folder, "xml", "group__*.xml")):
        group = ElementTree.parse(path).getroot().find("compounddef")
        name = group.findtext("compoundname")
        if group.findtext("title") in (None, name, name.capitalize()):
            bad.append(f"docs/reference/groups.dox: has no group {name}")
    bad += [f"{page} is missing" for page in ("index.html", "search/search.js", "page_docs_architecture.html", "modules.html")
            if not os.path.exists(os.path.join(folder, page))]
    print("\n".join(sorted(set(bad))) if bad else f"{count} exported names, all in the reference and documented")
    return 1 if bad or not count else 0


if __name__ == "__main__":
    sys.exit(main())
