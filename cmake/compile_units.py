# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Says which sources of a target the compiler may read as one, so that it reads what they include once.

usage: compile_units.py MOST SOURCE...

A unit is up to MOST sources with the same directives "using namespace", those of a folder first. None of them mentions a name that
another keeps to itself, or keeps one that a header of another declares: so each means in the unit what it means by
itself. Names are found by the form of the house: what begins in the first column is declared in a namespace.

Sources with macros of their own, or headers of the system beside those of the language, stay by themselves.

Prints SOURCE<TAB>UNIT for each source that shares a unit.
"""
import collections
import functools
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "tests/mutants"))

from source_text import code_of  # noqa: E402

HEADER_FOLDERS = [ROOT, ROOT / "tests", ROOT / "include", ROOT / "scene/include",
                  *(ROOT / "companions").glob("*/include")]
UNNAMED = re.compile(r"^namespace \{$.*?^\}  // namespace$", re.MULTILINE | re.DOTALL)
WORD = re.compile(r"[A-Za-z_]\w*")
BARE_WORD = re.compile(r"(?<!::)\b[A-Za-z_]\w*")
INCLUDE = re.compile(r'^#include "([^"]+)"', re.MULTILINE)
ALONE = re.compile(r"^#define |^#include <(?!gtest/)[\w/]+\.h>", re.MULTILINE)
DIRECTIVE = re.compile(r"^using namespace [\w:]+", re.MULTILINE)
STATEMENT = re.compile(r"^(?!namespace|template|using namespace|TEST)(const(?:expr)? [^;]*|\w[^;{]*)", re.MULTILINE)
INTERNAL = re.compile(r"static|constexpr|const|struct|class|union|enum|using")
TYPE = re.compile(r"(?:struct|class|union|enum(?: class)?) (\w+)")
USING = re.compile(r"using (?:[\w:]*::)?(\w+)")
BRACKETS = re.compile(r"\([^(){}\[\]]*\)|\{[^(){}\[\]]*\}|\[[^(){}\[\]]*\]|<[^<>(){}\[\]]*>")
DECLARATOR = re.compile(r"^[^=({\[]*?(?<!::)\b(\w+)\s*(?:[=({\[]|$)")
ENUMERATORS = re.compile(r"^enum(?! class)[^{;]*\{([^}]*)\}", re.MULTILINE)

Source = collections.namedtuple("Source", "path own mentioned bare headers directives")


def declared_by(statement):
    """The names of `int a = f(1, 2), b[3]` and of `std::string Name(int number) {`."""
    before = None
    while before != statement:
        before, statement = statement, BRACKETS.sub(lambda found: "" if found[0][0] == "<" else "=", statement)
    pieces = statement.partition("{")[0].split(",")
    return [found[1] for found in map(DECLARATOR.match, pieces) if found]


def declarations(code, is_wanted=lambda statement: True):
    """What is declared in a namespace, by its name; of a using declaration also what it says: twice the same is one."""
    found = {}
    for match in STATEMENT.finditer(code):
        statement = match[1]
        if not is_wanted(statement):
            continue
        if using := USING.match(statement):
            found[using[1]] = statement
        elif kind := TYPE.match(statement):
            found[kind[1]] = None
        else:
            found.update((name, None) for name in declared_by(statement))
    for match in ENUMERATORS.finditer(code):
        found.update((name, None) for name in WORD.findall(match[1]))
    return found


@functools.cache
def header_names(path):
    """What a header and those that it includes declare."""
    text = path.read_text(encoding="utf-8")
    names = set(declarations(code_of(text)))
    for included in included_by(path, text):
        names |= header_names(included)
    return frozenset(names)


def included_by(path, text):
    for name in INCLUDE.findall(text):
        found = next((folder / name for folder in [path.parent, *HEADER_FOLDERS] if (folder / name).is_file()), None)
        if found:
            yield found


def read_source(name):
    """None: it stays by itself."""
    path = pathlib.Path(name)
    text = path.read_text(encoding="utf-8")
    if path.suffix != ".cpp" or ALONE.search(text):
        return None
    included = list(included_by(path, text))
    text += "".join(each.read_text(encoding="utf-8") for each in included if each.suffix != ".h")
    unnamed = code_of("".join(UNNAMED.findall(text)))
    others = code_of(UNNAMED.sub("", text))
    own = declarations(unnamed) | declarations(others, INTERNAL.match)
    headers = frozenset().union(*(header_names(each) for each in included if each.suffix == ".h"))
    code = unnamed + others
    return Source(name, own, set(WORD.findall(code)), set(BARE_WORD.findall(code)), headers,
                  frozenset(DIRECTIVE.findall(others)))


def disturbs(one, other):
    """Does a name of one mean something else in the other? A using declaration is in the way of bare names alone."""
    return any(name in other.bare and other.own.get(name) != says if says else
               name in other.mentioned or name in other.headers and name not in one.headers
               for name, says in one.own.items())


def units_of(sources, most):
    """Each source joins the first unit that it may, of its own folder where there is one."""
    units = []
    for source in sources:
        def is_far(unit):
            return pathlib.Path(unit[0].path).parent != pathlib.Path(source.path).parent
        for unit in sorted(units, key=is_far):
            if (len(unit) < most and unit[0].directives == source.directives and
                    not any(disturbs(source, one) or disturbs(one, source) for one in unit)):
                unit.append(source)
                break
        else:
            units.append([source])
    return [unit for unit in units if len(unit) > 1]


def main(most, *names):
    sources = [source for source in map(read_source, names) if source]
    for number, unit in enumerate(units_of(sources, int(most))):
        for source in unit:
            print(f"{source.path}\tunit{number}")


if __name__ == "__main__":
    main(*sys.argv[1:])
