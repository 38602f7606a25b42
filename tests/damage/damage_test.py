#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Tests of the damaged roots: that each damage is one, that programs which misbehave are noticed, and that a number
makes the same root again."""
import os
import pathlib
import random
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parent))

import check_sums  # noqa: E402
import command_table  # noqa: E402
import damage  # noqa: E402
import damages  # noqa: E402
import program_runs  # noqa: E402
from roots import Root  # noqa: E402

LIMITS = program_runs.Limits(60, 100)


def run(status=0, output=b"", errors=b"", mebibytes=10.0, is_late=False):
    return program_runs.Run(status, output, errors, 0.1, mebibytes, is_late)


def problems(program="skyview", words=(), **what):
    return list(program_runs.problems(["bin/" + program, *words], run(**what), LIMITS))


class WhatIsWrongWithARun(unittest.TestCase):
    def test_nothing_when_done_or_refused_in_one_line(self):
        self.assertEqual(problems(), [])
        self.assertEqual(problems(errors=b"skyview: one\nskyview: two\n"), [])
        self.assertEqual(problems(status=1, errors=b"skyview: stars.txt: cannot be read\n"), [])
        self.assertEqual(problems("skydata", status=1, output=b"a:1:1: error: count: x\n"), [])
        self.assertEqual(problems(status=2, errors=b"skyview: --language 'de': there is en\n"), [])
        self.assertEqual(problems("skydata", ["settings", "diff"], status=2, errors=b"a: cannot be read\n"), [])

    def test_signal_status_and_time(self):
        self.assertEqual(problems(status=-11), ["signal 11", "0 diagnostics of a refusal"])
        self.assertIn("exit status 3", problems(status=3, errors=b"skyview: x\n"))
        self.assertIn("exit status 2", problems(status=2, errors=b"skyview: bad\n"))
        self.assertIn("more than 60 s", problems(status=-9, is_late=True))

    def test_report_of_a_sanitizer(self):
        for report in (b"==1==ERROR: AddressSanitizer: x\n", b"a.cpp:1:2: runtime error: x\n",
                       b"==1==ERROR: LeakSanitizer: x\n"):
            self.assertEqual(problems(errors=report), ["a sanitizer report"])

    def test_memory(self):
        self.assertEqual(problems(mebibytes=101.0), ["more than 100 MiB"])

    def test_diagnostics(self):
        self.assertEqual(problems(errors=b"skyview: a\nskyview: a\n"), ["a diagnostic is told twice"])
        self.assertEqual(problems(errors=b"skyview: a\nb\n"), ["a diagnostic without the program's name"])
        self.assertEqual(problems(errors=b"skyview: a\n\n"),
                         ["an empty diagnostic", "a diagnostic without the program's name"])
        self.assertEqual(problems(errors=b"skyview: a"), ["the last diagnostic has no end"])
        self.assertEqual(problems(errors=b"skyview: \x1b[2J\n"), ["a diagnostic that harms a terminal"])
        self.assertEqual(problems(status=1, errors=b"skyview: a\nskyview: b\n"), ["2 diagnostics of a refusal"])
        self.assertEqual(problems("skydata", status=1), ["refused without a word"])

    def test_output(self):
        self.assertEqual(problems(output=b"\xff\n"), ["output that harms a terminal"])
        self.assertEqual(problems("skydata", ["strings", "pseudo"], output=b"\xff\n"), [])


class WhatMustBeRefused(unittest.TestCase):
    def refused(self, kind, words, name="data/catalogs/stars.txt"):
        return damage.must_be_refused(damage.Case(1, kind, name, {}, words.split()))

    def test_a_file_that_is_none_by_whoever_is_asked_for_it(self):
        for kind in (damages.FOLDER, damages.NOWHERE, damages.LOCKED):
            self.assertTrue(self.refused(kind, "skydata show @FILE@"))
            self.assertTrue(self.refused(kind, "skydata lint @ALONE@"))
            self.assertFalse(self.refused(kind, "skyview limits"))
        self.assertTrue(self.refused(damages.DEVICE, "skydata lint @DATA@"))
        self.assertFalse(self.refused(damages.DEVICE, "skydata show @FILE@"))
        self.assertFalse(self.refused("cut", "skydata lint @ALONE@"))
        self.assertFalse(self.refused(damages.FOLDER, "skydata lint @ALONE@", "data/media/maps/mars.jpg"))


class WhatARefusalNames(unittest.TestCase):
    def named(self, errors):
        words = "skyview favourites add Rigel --work @WORK@".split()
        case = damage.Case(1, "swapped", "data/catalogs/a.txt", {"data/catalogs/a.txt": b"", "data/b.data": b""}, words)
        return damage.names_the_cause(case, errors)

    def test_a_damaged_file_or_the_object_asked_for(self):
        self.assertTrue(self.named(b"skyview: /tmp/r/data/catalogs/a.txt: cannot be read\n"))
        self.assertTrue(self.named(b"skyview: b.data: damaged\n"))
        self.assertTrue(self.named(b"skyview: favourites add: 'Rigel': no such object\n"))
        self.assertFalse(self.named(b"skyview: out/view.data: the view cannot be saved there\n"))


class RunsUnderLimits(unittest.TestCase):
    def execute(self, text, seconds=30):
        return program_runs.execute([sys.executable, "-c", text], dict(os.environ), "/", seconds)

    def test_what_it_printed_and_took(self):
        done = self.execute("import sys; print('a'); x = bytearray(90 << 20); print('b', file=sys.stderr); exit(1)")
        self.assertEqual((done.status, done.output, done.errors, done.is_late), (1, b"a\n", b"b\n", False))
        self.assertGreater(done.mebibytes, 90)

    def test_signal(self):
        self.assertEqual(self.execute("import os; os.abort()").status, -6)

    def test_one_that_computes_and_one_that_waits(self):
        for text in ("while True: pass", "import time; time.sleep(60)"):
            self.assertTrue(self.execute(text, 1).is_late)


class CheckSums(unittest.TestCase):
    def test_worked_example_of_prepared_catalogs(self):
        self.assertEqual(check_sums.fingerprint(bytes(36)), 0xE83AE78A1E67E040)

    def test_worked_example_of_a_map(self):
        example = bytes.fromhex("534B594C49474854010000001C000000113E950B02000000" "4475736B0A141EFF")
        self.assertEqual(check_sums.mend_whole(example), example)

    def test_published_values_of_fnv(self):
        self.assertEqual(check_sums.fnv(b""), 0xCBF29CE484222325)
        self.assertEqual(check_sums.fnv(b"a"), 0xAF63DC4C8601EC8C)


class Damages(unittest.TestCase):
    FILES = {"data/views/a.data": b"\0bin" * 60, "data/views/b.data": b"\0BIN" * 50,
             "data/catalogs/a.txt": b"Number:i32\n" + b"12\t3.5e2\n" * 50, "data/catalogs/milkyway.map": bytes(400)}

    def test_each_changes_the_file_it_is_asked_to(self):
        for kind, make in damages.KINDS.items():
            for name in self.FILES:
                made = [make(random.Random(seed), self.FILES, name) for seed in range(20)]
                if None in made:
                    continue
                with self.subTest(kind=kind, name=name):
                    self.assertTrue(all(name in changes for changes in made))
                    self.assertTrue(any(changes[name] != self.FILES[name] for changes in made))

    def test_same_seed_makes_the_same(self):
        for kind, make in damages.KINDS.items():
            for name in self.FILES:
                self.assertEqual(*(make(random.Random(5), self.FILES, name) for _ in range(2)), kind)

    def test_alike_files_are_swapped_with_their_like(self):
        changes = damages.swapped_alike(random.Random(1), self.FILES, "data/views/a.data")
        self.assertEqual(changes, {"data/views/a.data": self.FILES["data/views/b.data"],
                                   "data/views/b.data": self.FILES["data/views/a.data"]})


class Roots(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.base = pathlib.Path(scratch.name) / "base"
        for name in ("data/a.txt", "data/b/c.txt", "work/d.txt"):
            (self.base / name).parent.mkdir(parents=True, exist_ok=True)
            (self.base / name).write_bytes(name.encode())
        self.root = Root(self.base, pathlib.Path(scratch.name) / "root")

    def test_damage_shows_and_is_mended_and_the_base_stays(self):
        for what in (b"bytes", damages.FOLDER, damages.DEVICE, damages.NOWHERE, damages.LOCKED, damages.GONE):
            for name in ("data/b/c.txt", "work/d.txt"):
                place = self.root.folder / name
                self.root.damage({name: what})
                self.assertFalse(place.is_file() and os.access(place, os.R_OK) and
                                 place.read_bytes() == name.encode() and what != damages.LOCKED)
                self.assertEqual(self.root.find_changes(), "")
                self.root.mend()
                self.assertEqual(place.read_bytes(), name.encode())
                self.assertEqual((self.base / name).read_bytes(), name.encode())

    def test_what_a_program_does_to_the_data_root_is_found(self):
        (self.root.folder / "data/new").write_bytes(b"")
        self.assertEqual(self.root.find_changes(), "new")
        (self.root.folder / "data/new").unlink()
        self.root.damage({"data/a.txt": b"bytes"})
        (self.root.folder / "data/a.txt").write_bytes(b"other")
        self.assertEqual(self.root.find_changes(), "data/a.txt")


class CommandTable(unittest.TestCase):
    def test_lists_patterns_and_marks(self):
        with tempfile.NamedTemporaryFile("w", suffix=".txt") as table:
            table.write("# note\nlist ALL data/a* data/b\n\nskyview draw 'a b' @DATA@/x --look @STEM@@5\n  @ALL@ work/*\n")
            table.flush()
            commands = command_table.read_commands(table.name)
        self.assertEqual(commands[0].patterns, ["data/a*", "data/b", "work/*"])
        self.assertEqual(command_table.filled_in(commands[0].words, {"DATA": "/r", "STEM": "mars"}),
                         ["skyview", "draw", "a b", "/r/x", "--look", "mars@5"])
        self.assertEqual(list(command_table.commands_for(commands, "data/abc")), ["skyview"])
        self.assertEqual(list(command_table.commands_for(commands, "data/c")), [])

    def test_files_that_nothing_reads_and_patterns_of_nothing_are_told(self):
        commands = [command_table.Command(["skydata", "lint"], ["*"]),
                    command_table.Command(["skyview", "draw"], ["data/a*", "data/old"])]
        self.assertEqual(command_table.find_gaps(commands, ["data/a1", "data/b"]),
                         ["nothing reads data/b", "no file is data/old"])
        self.assertEqual(command_table.find_gaps(commands, ["data/a1", "data/old"]), [])


if __name__ == "__main__":
    unittest.main()
