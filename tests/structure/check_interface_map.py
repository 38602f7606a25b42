#!/usr/bin/env python3
"""Checks docs/interface_map.md against the public headers: every exported class, function and variable has a row
whose header declares it and whose test exists, and no row names what is gone.

usage: check_interface_map.py SOURCE_DIR
"""
import glob
import os
import re
import sys


def exported_names(header):
    """Names at namespace scope that carry an export macro, and public templates and plain records."""
    with open(header, encoding="utf-8") as file:
        text = re.sub(r"//[^\n]*", "", file.read())
    names = set()
    text = re.sub(r"\b(extern\s+)?template\s*(<[^>]*>)?", "", text)
    depth_text = strip_class_bodies(text)
    for match in re.finditer(r"\b(?:class|struct|enum(?:\s+class)?)\s+(?:[A-Z_]+_API\s+)?(\w+)[^;{()]*\{", depth_text):
        names.add(match.group(1))
    for match in re.finditer(r"\b[A-Z_]+_API\s+[^;{}()]*?\b(operator\s*\S+?|\w+)\s*\(", depth_text):
        names.add(match.group(1))
    for match in re.finditer(r"\b(?:inline|constexpr)\s+[\w:<>\s*&]*?\b(\w+)\s*\(", depth_text):
        names.add(match.group(1))
    names |= set(re.findall(r"\busing\s+(\w+)\s*=", depth_text))
    names |= set(re.findall(r"\busing\s+::(\w+)\s*;", depth_text))
    for match in re.finditer(r"\b[A-Z_]+_API\s+extern\s+[^;()]*?(\w+)(?:\[[^]]*\])?\s*;", depth_text):
        names.add(match.group(1))
    return {n for n in names if not n.startswith("operator")}


def constants(header):
    """Constants at namespace scope: they may have rows, and a row must not outlive its constant."""
    with open(header, encoding="utf-8") as file:
        text = strip_class_bodies(re.sub(r"//[^\n]*", "", file.read()))
    return set(re.findall(r"\binline\s+constexpr\s+[\w: ]+?\s+(\w+)(?:\[[^]]*\])?\s*=", text))


def strip_class_bodies(text):
    """The text with the bodies of classes and functions removed, bodies of namespaces kept."""
    out, stack = [], []
    i = 0
    while i < len(text):
        c = text[i]
        if c == "{":
            head = text[max(text.rfind(x, 0, i) for x in ";{}") + 1:i]
            opens_namespace = bool(re.search(r"\bnamespace\b", head)) or 'extern "C"' in head
            stack.append(opens_namespace)
            if all(stack[:-1]):
                out.append(c)
        elif c == "}":
            inside = all(stack[:-1]) if stack else True
            if stack:
                stack.pop()
            if inside:
                out.append(c)
        elif all(stack):
            out.append(c)
        i += 1
    return "".join(out)


def main():
    root = sys.argv[1]
    rows, allowed, bad = {}, set(), []
    with open(os.path.join(root, "docs/interface_map.md"), encoding="utf-8") as file:
        for number, line in enumerate(file, 1):
            match = re.match(r"\|\s*`([^`]+)`\s*\|\s*`([^`]+)`\s*\|\s*(.+?)\s*\|", line)
            if not match:
                continue
            name, header, tests = match.groups()
            rows[(header, name)] = number
            for test in re.findall(r"`([^`]+)`", tests):
                if not os.path.exists(os.path.join(root, test)):
                    bad.append(f"docs/interface_map.md:{number}: {test} does not exist")
            if not re.findall(r"`([^`]+)`", tests):
                bad.append(f"docs/interface_map.md:{number}: {name} names no test")
    declared = set()
    for pattern in ("include/common_interfaces/*.h", "companions/*/include/*/*.h", "scene/include/**/*.h"):
        for path in glob.glob(os.path.join(root, pattern), recursive=True):
            header = path.split("/include/", 1)[1]
            if header.endswith("/api.h"):
                continue  # the export macros themselves
            declared |= {(header, name) for name in exported_names(path)}
            allowed |= {(header, name) for name in constants(path)}
    for header, name in sorted(declared - set(rows)):
        bad.append(f"{header}: {name} is not in docs/interface_map.md")
    for header, name in sorted(set(rows) - declared - allowed):
        bad.append(f"docs/interface_map.md:{rows[(header, name)]}: {header} does not declare {name}")
    print("\n".join(bad) if bad else f"{len(rows)} exported names, each with header and test")
    return 1 if bad else 0


if __name__ == "__main__":
    sys.exit(main())
