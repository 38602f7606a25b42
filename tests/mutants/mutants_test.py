#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Tests of the planted faults: which are found in a text, and what becomes of them in a folder of a few lines.

usage: mutants_test.py [TEST...]
"""
import argparse
import pathlib
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parent))

import mutants  # noqa: E402
from faults import faults_in, lines_at, mixed, planted  # noqa: E402
from source_text import arguments, code_of  # noqa: E402


def planted_in(text, kind):
    return [planted(text, fault) for fault in faults_in(text) if fault.kind == kind]


class WhatIsCode(unittest.TestCase):
    def test_comments_texts_and_directives_are_blank(self):
        text = '#define A 1\nx = "a < b"; // c < d\nstatic_assert(1 < 2, "e;f");\ny = \'<\';'
        self.assertEqual(code_of(text), '           \nx = "     ";         \n' + " " * 28 + "\ny = ' ';")

    def test_separators_of_digits_are_no_characters(self):
        self.assertEqual(code_of("x = 1'000'000 < y;"), "x = 1'000'000 < y;")

    def test_arguments_end_at_their_own_commas(self):
        code = "f(a, g(b, c), {d, e})"
        self.assertEqual([code[a:b] for a, b in arguments(code, 1)], ["a", "g(b, c)", "{d, e}"])


class WhatIsPlanted(unittest.TestCase):
    def test_comparison(self):
        self.assertEqual(planted_in("if (a < b) c();", "comparison"), ["if (a <= b) c();"])

    def test_brackets_of_templates_are_no_comparison(self):
        self.assertEqual(planted_in("std::vector<int> v;", "comparison"), [])

    def test_sign(self):
        self.assertEqual(planted_in("x = -a + b;", "sign"), ["x = a + b;", "x = -a - b;"])

    def test_constant(self):
        self.assertEqual(planted_in("x = 7 + y2;", "constant"), ["x = 8 + y2;"])
        self.assertEqual(planted_in("x = 0x0F;", "constant"), ["x = 0x10;"])
        self.assertEqual(planted_in("x = 2.0;", "constant"), ["x = 2.2;"])
        self.assertEqual(planted_in("char room[16];", "constant"), [])

    def test_condition(self):
        self.assertEqual(planted_in("if (!a && b) c();", "condition"), ["if (a && b) c();", "if (!a || b) c();"])

    def test_removed_statement_but_no_declaration(self):
        self.assertEqual(planted_in("int x = 1;\n  x = 2;\n  F(x);\nG g(x);", "removed"),
                         ["int x = 1;\n  ;\n  F(x);\nG g(x);", "int x = 1;\n  x = 2;\n  ;\nG g(x);"])

    def test_removed_guard(self):
        self.assertEqual(planted_in("if (x) return y;", "guard"), [";"])

    def test_order(self):
        self.assertEqual(planted_in("a = 1;\n  F(a);\n", "order"), ["F(a);\n  a = 1;\n"])

    def test_arguments_but_no_parameters(self):
        self.assertEqual(planted_in("F(a, b + 1);", "arguments"), ["F(b + 1, a);"])
        self.assertEqual(planted_in("void F(int a, const T& b);", "arguments"), [])

    def test_clamp(self):
        self.assertEqual(planted_in("x = std::min(a, 3);", "clamp"), ["x = (3);", "x = (a);"])
        self.assertEqual(planted_in("x = std::clamp<int>(a, 0, 3);", "clamp"), ["x = (a);"])

    def test_lines_are_told_as_they_stand(self):
        text = "a;\n  if (b == c)\n    d;\n"
        fault = [fault for fault in faults_in(text) if fault.kind == "comparison"][0]
        self.assertEqual(lines_at(text, fault), (2, "if (b == c)", "if (b != c)"))

    def test_seed_decides_the_order(self):
        by_file = {"a": faults_in("x = y + 1;\n" * 20)}
        self.assertEqual(mixed(by_file, 1), mixed(by_file, 1))
        self.assertNotEqual(mixed(by_file, 1), mixed(by_file, 2))
        self.assertEqual([fault.kind for _, fault in mixed(by_file, 1)[:6]], ["constant", "removed", "sign"] * 2)


TOY = {
    "CMakeLists.txt": "cmake_minimum_required(VERSION 3.25)\nproject(toy LANGUAGES CXX)\nenable_testing()\n"
                      "add_executable(toy_tests toy/toy.cpp tests/toy_test.cpp)\n"
                      "add_test(NAME toy_tests COMMAND toy_tests)\n",
    "CMakePresets.json": '{"version": 6, "configurePresets": [{"name": "release", "generator": "Ninja", '
                         '"binaryDir": "${sourceDir}/build/${presetName}", "cacheVariables": '
                         '{"CMAKE_BUILD_TYPE": "Release", "CMAKE_EXPORT_COMPILE_COMMANDS": "ON"}}]}',
    "toy/toy.h": "int Half(int x);\n",
    "toy/toy.cpp": '#include "toy.h"\nint Half(int x) {\n  if (x < 0) return 0;\n  for (;;) {\n    x = x / 2;\n'
                   "    break;\n  }\n  return x;\n}\nint Unused(int y) { return y + 5; }\n"
                   "int Same(unsigned z) { return z >= 0 ? 1 : 0; }\n"
                   "int Never(int x) {\n  for (int i = 0; i < 0; ++i) x += i;\n  return x;\n}\n",
    "tests/toy_test.cpp": '#include "../toy/toy.h"\nint main() { return Half(8) == 4 && Half(-2) == 0 ? 0 : 1; }\n',
}


class WhatBecomesOfIt(unittest.TestCase):
    def setUp(self):
        mutants.LEAST_LIMIT = 3
        self.folder = tempfile.TemporaryDirectory()
        self.root = pathlib.Path(self.folder.name)
        self.root.chmod(0o755)
        for name, text in TOY.items():
            (self.root / name).parent.mkdir(exist_ok=True)
            (self.root / name).write_text(text)
        (self.root / ".gitignore").write_text("/build/\n")
        subprocess.run(["git", "init", "-q", self.root], check=True)

    def tearDown(self):
        self.folder.cleanup()

    def run_all(self, **changed):
        options = argparse.Namespace(folder="toy", count=1000, seed=1, minutes=10, more=False, again=False,
                                     sanitize=False)
        vars(options).update(changed)
        return {(result.before, result.after): result.outcome for result in mutants.run(self.root, options)}

    def test_every_outcome_and_nothing_left_behind(self):
        outcomes = self.run_all()
        self.assertEqual(outcomes["x = x / 2;", "x = x * 2;"], "caught")
        self.assertEqual(outcomes["break;", ";"], "caught")  # by the time it takes
        unused = "int Unused(int y) { return y + 5; }", "int Unused(int y) { return y + 6; }"
        self.assertEqual(outcomes[unused], "survived")
        # The guard of zero: half of zero is zero.
        self.assertEqual(outcomes["if (x < 0) return 0;", "if (x <= 0) return 0;"], "survived")
        self.assertEqual(outcomes["int Same(unsigned z) { return z >= 0 ? 1 : 0; }",
                                  "int Same(unsigned z) { return z > 0 ? 1 : 0; }"], "survived")
        # No code is made of a loop that never runs.
        never = "for (int i = 0; i < 0; ++i) x += i;", "for (int i = 0; i < 0; --i) x += i;"
        self.assertEqual(outcomes[never], "unchanged")
        for name, text in TOY.items():
            self.assertEqual((self.root / name).read_text(), text)
            self.assertEqual((self.root / "build/mutants/tree" / name).read_text(), text)

        # A reason for one of them; and those that survived once more, against a better test.
        (self.root / "tests/mutants").mkdir()
        (self.root / "tests/mutants/equivalent.tsv").write_text(
            "file\tbefore\tafter\twhy\ntoy/toy.cpp\tif (x < 0) return 0;\tif (x <= 0) return 0;\tHalf of 0 is 0.\n")
        with (self.root / "tests/toy_test.cpp").open("w") as test:
            test.write('#include "../toy/toy.h"\nint Unused(int);\n'
                       "int main() { return Half(8) == 4 && Half(-2) == 0 && Unused(1) == 6 ? 0 : 1; }\n")
        again = self.run_all(again=True)
        self.assertEqual(len(again), len(outcomes))
        self.assertEqual(again[unused], "caught")
        self.assertEqual(again["if (x < 0) return 0;", "if (x <= 0) return 0;"], "equivalent")

    def test_more_goes_on_where_the_last_run_ended(self):
        self.assertEqual(len(self.run_all(count=2)), 2)
        first = self.run_all(count=2, more=True)
        longer = self.run_all(count=4, more=True)
        self.assertEqual(len(longer), 4)
        self.assertLess(first.items(), longer.items())

    def test_tests_of_the_name_or_of_its_first_words_are_likely(self):
        (self.root / "tests/toy_box_test.cpp").write_text("TEST(ToyBox, Opens) {\n")
        (self.root / "tests/toy_test.cpp").write_text("TEST_F(Toy, Halves) {\n")
        self.assertEqual(mutants.likely_suites(self.root, "toy/toy_box.h"), {"ToyBox"})
        self.assertEqual(mutants.likely_suites(self.root, "toy/toy_case_posix.cpp"), {"Toy", "ToyBox"})
        self.assertEqual(mutants.likely_suites(self.root, "toy/other.cpp"), set())

    def test_tests_that_fail_by_themselves_end_the_run(self):
        (self.root / "tests/toy_test.cpp").write_text("int main() { return 1; }\n")
        with self.assertRaisesRegex(SystemExit, "fail without a fault"):
            self.run_all()


if __name__ == "__main__":
    unittest.main()
