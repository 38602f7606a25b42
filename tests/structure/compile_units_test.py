#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Tests of which sources may be compiled as one: whatever one keeps to itself must mean nothing to the others."""
import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "cmake"))

from compile_units import declared_by, read_source, units_of  # noqa: E402

PLAIN = "#include <vector>\nint Two() { return 2; }\n"


def hidden(*lines):
    return "namespace scene {\nnamespace {\n" + "\n".join(lines) + "\n}  // namespace\n}  // namespace scene\n"


class DeclaredNames(unittest.TestCase):
    def test_each_declarator_has_its_own(self):
        self.assertEqual(declared_by("int a = f(1, 2), b[3]"), ["a", "b"])
        self.assertEqual(declared_by("constexpr Rgba kRed{255, 0, 0}, kGreen{0, 255, 0}"), ["kRed", "kGreen"])

    def test_arguments_of_templates_are_none(self):
        self.assertEqual(declared_by("const std::map<int, std::pair<int, int>> kMap = {{1, {2, 3}}}"), ["kMap"])

    def test_parameters_are_none(self):
        self.assertEqual(declared_by("std::string Name(int number, double value) "), ["Name"])

    def test_what_stands_in_a_body_is_none(self):
        self.assertEqual(declared_by("constexpr bool IsX(int a) {\n  if (a) return true"), ["IsX"])

    def test_members_belong_to_their_class(self):
        self.assertEqual(declared_by("void Camera::Turn(double angle) "), [])


class Units(unittest.TestCase):
    def units(self, most=16, **texts):
        """The units of these sources, as sets of their names; a name that ends in _h is that of a header."""
        with tempfile.TemporaryDirectory() as folder:
            for name, text in texts.items():
                path = pathlib.Path(folder, name[:-2] + ".h" if name.endswith("_h") else name + ".cpp")
                path.write_text(text, encoding="utf-8")
            sources = [read_source(str(path)) for path in sorted(pathlib.Path(folder).glob("*.cpp"))]
            return [{pathlib.Path(source.path).stem for source in unit}
                    for unit in units_of([source for source in sources if source], most)]

    def test_sources_without_names_of_their_own_are_one(self):
        self.assertEqual(self.units(a=PLAIN, b=PLAIN, c=PLAIN), [{"a", "b", "c"}])

    def test_a_unit_has_a_size(self):
        self.assertEqual(self.units(2, a=PLAIN, b=PLAIN, c=PLAIN, d=PLAIN), [{"a", "b"}, {"c", "d"}])

    def test_the_same_name_twice_parts_them(self):
        self.assertEqual(self.units(a=hidden("constexpr int kStep = 1;"), b=hidden("constexpr int kStep = 2;")), [])

    def test_a_name_that_another_mentions_parts_them(self):
        other = '#include "step.h"\ndouble Twice() { return 2 * Step(1.0); }\n'
        self.assertEqual(self.units(a=hidden("int Step(int x) { return x; }"), b=other, c=PLAIN), [{"a", "c"}])

    def test_a_name_in_a_comment_or_a_text_parts_nobody(self):
        other = PLAIN + '// Step\nconst char* Name() { return "Step"; }\n'
        self.assertEqual(self.units(a=hidden("int Step(int x) { return x; }"), b=other), [{"a", "b"}])

    def test_a_name_that_a_header_of_another_declares_parts_them(self):
        self.assertEqual(self.units(step_h="#pragma once\ndouble Step(double x);\n", b='#include "step.h"\n' + PLAIN,
                                    a=hidden("int Step(int x) { return x; }")), [])

    def test_values_of_an_enumeration_are_names(self):
        self.assertEqual(self.units(a=hidden("enum Column { kName, kValue };"), b=PLAIN + "int kValue();\n"), [])

    def test_other_directives_part_them(self):
        self.assertEqual(self.units(a="using namespace scene;\n" + PLAIN, b=PLAIN), [])

    def test_the_same_using_declaration_parts_nobody(self):
        using = "using scene::Rgba;\nRgba Get();\n"
        self.assertEqual(self.units(a=using, b=using), [{"a", "b"}])

    def test_a_using_declaration_parts_whoever_means_another(self):
        self.assertEqual(self.units(a="using scene::Rgba;\n", b="namespace paint {\nRgba Get();\n}\n"), [])
        self.assertEqual(self.units(a="using scene::Rgba;\n", b="scene::Rgba Get();\n"), [{"a", "b"}])

    def test_macros_and_headers_of_the_system_stay_alone(self):
        self.assertEqual(self.units(a=PLAIN, b="#define A 1\n" + PLAIN, c="#include <sys/stat.h>\n" + PLAIN, d=PLAIN),
                         [{"a", "d"}])


if __name__ == "__main__":
    unittest.main()
