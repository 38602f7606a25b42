# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Tests of the texts that Debian packages carry: changes, licences, manual pages."""
import fnmatch
import os
import re
import sys
import tomllib
import unittest

ROOT = os.path.abspath(os.path.join(os.path.dirname(__file__), "..", ".."))
sys.path[:0] = [os.path.join(ROOT, "packaging"), os.path.join(ROOT, "tests", "structure")]

from changelog import make_changelog
from check_licences import list_files, make_pattern
from copyright import make_copyright
from man_pages import Help, make_page

CHANGES = """# Changes

What versions are.

## 0.2.0, not released yet

The second version has

- `one` thing, of which there is more to say than fits a line of a change log, which is eighty columns wide;
- another.

## 0.1.0, 2026-03-01

The first.
"""

HELP = """Says what it does. And more.
Usage: sky at [OPTIONS] PIXEL

Positionals:
  PIXEL REQUIRED              -X,Y: pixels

Options:
  -h,--help                   Print this help message and exit

Chart:
  --exactly-as-long-as-the-co none between name and meaning
  --longer-than-that THAT|a,b,c
                              below it
                              and still there

A remark.
"""


class Changes(unittest.TestCase):
    def setUp(self):
        # 2026-11-22 18:37:39 UTC was a Sunday, 2026-03-01 too.
        self.text = make_changelog(CHANGES, "they <they@a.example>", 1795372659)

    def test_an_unreleased_version_sorts_before_its_release_and_carries_its_moment(self):
        self.assertIn("common-interfaces (0.2.0~20261122.183739) UNRELEASED; urgency=medium\n\n", self.text)
        self.assertIn("\n -- they <they@a.example>  Sun, 22 Nov 2026 18:37:39 +0000\n", self.text)

    def test_a_released_version_has_the_day_of_its_heading(self):
        self.assertIn("\ncommon-interfaces (0.1.0) unstable; urgency=medium\n\n  * The first.\n\n"
                      " -- they <they@a.example>  Sun, 01 Mar 2026 12:00:00 +0000\n", self.text)

    def test_paragraphs_are_points_and_points_stand_below_them(self):
        self.assertIn("  * The second version has\n"
                      "    - one thing, of which there is more to say than fits a line of a change\n"
                      "      log, which is eighty columns wide;\n"
                      "    - another.\n\n -- ", self.text)

    def test_what_stands_before_the_first_version_is_left_out(self):
        self.assertNotIn("What versions are", self.text)

    def test_a_heading_that_is_no_version_is_refused(self):
        with self.assertRaises(ValueError):
            make_changelog("## 0.2.0, soon\n", "they <they@a.example>", 0)


class Licences(unittest.TestCase):
    def setUp(self):
        self.paragraphs = [dict(re.findall(r"^([A-Z][\w-]+): ((?:.|\n )*)", text, re.MULTILINE))
                           for text in make_copyright(ROOT).split("\n\n")]

    def test_every_file_has_the_licence_and_the_holders_that_reuse_gives_it(self):
        with open(os.path.join(ROOT, "REUSE.toml"), "rb") as file:
            entries = tomllib.load(file)["annotations"]
        patterns = [(make_pattern(path), entry) for entry in entries
                    for path in ([entry["path"]] if isinstance(entry["path"], str) else entry["path"])]
        stanzas = [stanza for stanza in self.paragraphs if "Files" in stanza]
        compared = 0
        for path in list_files(ROOT):
            entry = ([entries[0]] + [entry for pattern, entry in patterns if pattern.fullmatch(path)])[-1]
            own = [stanza for stanza in stanzas
                   if any(fnmatch.fnmatchcase(path, pattern) for pattern in stanza["Files"].split())][-1]
            expected = entry["SPDX-License-Identifier"].replace("LicenseRef-PublicDomain", "public-domain")
            self.assertEqual(own["License"], expected.replace("LicenseRef-", "").replace(" AND ", " and "), path)
            holders = entry["SPDX-FileCopyrightText"]
            self.assertEqual([line.strip() for line in own["Copyright"].split("\n")],
                             [holders] if isinstance(holders, str) else holders, path)
            compared += 1
        self.assertGreater(compared, 1000)

    def test_every_licence_has_its_text_once(self):
        named = {name for stanza in self.paragraphs if "Files" in stanza for name in stanza["License"].split(" and ")}
        texts = [stanza["License"].split("\n") for stanza in self.paragraphs
                 if "License" in stanza and "Files" not in stanza]
        self.assertEqual(sorted(text[0] for text in texts), sorted(named))
        self.assertTrue(all(len(text) > 1 for text in texts))


class ManualPages(unittest.TestCase):
    def setUp(self):
        self.page = make_page("sky at", "sky 1.0", "2026-01-02", HELP, ["sky", "sky at all"])

    def test_a_name_may_reach_up_to_the_meaning(self):
        self.assertEqual(Help(HELP).blocks[2], (
            "Chart", [("--exactly-as-long-as-the-co", "none between name and meaning"),
                      ("--longer-than-that THAT|a,b,c", "below it and still there")]))

    def test_only_a_block_of_commands_lists_commands(self):
        self.assertEqual(Help(HELP).commands(), [])
        listing = "Does.\nUsage: sky\n\nCommands:\n  at         Say.\n  homes show  List.\n"
        self.assertEqual(Help(listing).commands(), ["at", "homes show"])

    def test_the_page_has_name_usage_and_purpose(self):
        self.assertIn('.TH SKY\\-AT 1 2026-01-02 "sky 1.0" "User Commands"\n', self.page)
        self.assertIn(".SH NAME\nsky\\-at \\- says what it does\n.SH SYNOPSIS\n\\fBsky at\\fR [OPTIONS] PIXEL\n"
                      ".SH DESCRIPTION\nSays what it does. And more.\n.PP\nA remark.\n", self.page)

    def test_each_entry_is_a_paragraph_below_the_title_of_its_block(self):
        self.assertIn(".SH POSITIONALS\n.TP\n\\fBPIXEL REQUIRED\\fR\n\\-X,Y: pixels\n.SH OPTIONS\n", self.page)

    def test_the_page_names_others(self):
        self.assertTrue(self.page.endswith(".SH SEE ALSO\n\\fBsky\\fR(1),\n\\fBsky\\-at\\-all\\fR(1)\n"))

    def test_no_text_is_taken_for_a_request(self):
        page = make_page("sky", "sky 1.0", "2026-01-02", "'Quoted\\n'. .dot\nUsage: sky\n\nOptions:\n  -a  .b\n", [])
        self.assertIn("\n\\&'Quoted\\en'. .dot.\n", page)
        self.assertIn("\n\\&.b\n", page)


if __name__ == "__main__":
    unittest.main()
