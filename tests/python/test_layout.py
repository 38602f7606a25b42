# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""The package knows the structures, functions and numbers as the headers and the page of the display list have them."""
import ctypes
import enum
import re

import pytest
from common_interfaces import _library, _structures, almanac, errors, objects, records, settings

import headers

STRUCTURES = headers.read_structures()
RECORDS = {"Run": records.RUN, "Point": records.POINT, "Disc": records.DISC, "Globe": records.GLOBE,
           "Shadow": records.SHADOW, "Polyline": records.POLYLINE, "Ellipse": records.ELLIPSE,
           "Polygon": records.POLYGON, "Gradient": records.GRADIENT, "Text": records.TEXT, "Mesh": records.MESH,
           "Glow": records.GLOW, "Object": records.OBJECT}
PAGE = (headers.ROOT / "docs/formats/display_list.md").read_text(encoding="utf-8")


def test_every_structure_of_the_headers_is_there():
    ours = {name for name in vars(_structures) if name.startswith("Scene")}
    assert len(STRUCTURES) == 18
    assert ours == set(STRUCTURES)


@pytest.mark.parametrize("name", STRUCTURES)
def test_structure_lies_as_in_the_header(name):
    structure = getattr(_structures, name)
    offsets, size = STRUCTURES[name]
    assert {member: getattr(structure, member).offset for member, *_ in structure._fields_} == offsets
    assert ctypes.sizeof(structure) == size


def test_every_function_of_the_headers_is_declared():
    functions = headers.read_functions()
    beside = {"scene_open", "scene_close", "scene_set_log", "scene_get_field_count"}
    assert len(functions) > 45
    assert set(functions) == set(_library._STATUS_CALLS) | set(_library._TEXT_CALLS) | beside
    library = _library.load()
    for name, (result, arguments) in functions.items():
        assert len(getattr(library, name).argtypes) == len(arguments), name
        assert (name in _library._TEXT_CALLS) == (result == "const char*"), name


@pytest.mark.parametrize("prefix, ours", [
    ("SCENE_FIELD_", settings.FieldType), ("SCENE_FACT_", objects.FactKind), ("SCENE_REASON_", objects.ReasonKind),
    ("SCENE_DARKNESS_", almanac.Darkness)])
def test_numbers_are_those_of_the_headers(prefix, ours: type[enum.IntEnum]):
    theirs = {name: int(number) for name, number in re.findall(prefix + r"(\w+) = (\d+)", headers.read_text())}
    assert theirs == {member.name: member.value for member in ours}


def test_every_status_has_an_exception():
    names = re.search(r"enum SceneStatus \{(.*?)\}", headers.read_text(), re.DOTALL).group(1)
    numbers = {int(number) for number in re.findall(r"= (\d+)", names)}
    assert numbers == {0, *errors._STATUS}


def test_arrays_have_the_numbers_of_the_header():
    body = re.search(r"enum SceneArrayKind \{(.*?)\}", headers.read_text(), re.DOTALL).group(1)
    theirs = {name.lower(): int(number) for name, number in re.findall(r"SCENE_(\w+) = (\d+)", body)}
    assert theirs == {name: number for name, (number, _) in records.ARRAYS.items()}


def test_records_have_the_sizes_of_the_page():
    sizes = {int(kind): int(size) for kind, size in re.findall(r"^\| (\d) \| \w+ \| (\d+) \|$", PAGE, re.MULTILINE)}
    assert len(sizes) == 10
    assert sizes == {number: dtype.itemsize for number, dtype in records.ARRAYS.values() if number < 10}


@pytest.mark.parametrize("name", RECORDS)
def test_record_has_members_where_the_page_says(name):
    """Each offset in the page's table, those within a line as well, is the beginning of a member."""
    dtype = RECORDS[name]
    heading = "## Runs" if name == "Run" else rf"\*\*{name}\*\*"
    table = re.search(heading + r".*?\n(\| offset .*?)\n\n", PAGE, re.DOTALL).group(1)
    lines = re.findall(r"^\| (\d+) \| (.*?) \| (.*?) \|$", table, re.MULTILINE)
    assert lines
    begins = {offset for _, offset, *_ in dtype.fields.values()}
    for offset, kind, text in lines:
        assert int(offset) in begins, (offset, text)
        if kind == "object":
            assert dtype.fields["object"][1] == int(offset)
        for further in re.findall(r"\((\d+)\)", text):
            assert int(further) in begins, (further, text)
