# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Makes of CHANGELOG.md what Debian keeps as debian/changelog.

A heading of CHANGELOG.md is "## VERSION, DATE", or "## VERSION, not released yet": packages of the latter carry the
moment of the last commit behind a tilde, so that a later one and at last the released one replace them.
"""
import datetime
import re
import textwrap

HEADING = re.compile(r"^## (\d+\.\d+\.\d+), (?:(\d{4}-\d{2}-\d{2})|not released yet)$")


def read_releases(markdown):
    """[(version, date or None, text)], the newest first."""
    releases = []
    for line in markdown.split("\n"):
        heading = HEADING.match(line)
        if heading:
            releases.append((heading.group(1), heading.group(2), []))
        elif line.startswith("## "):
            raise ValueError(f"CHANGELOG.md: neither released nor to be: {line}")
        elif releases:
            releases[-1][2].append(line)
    return [(version, date, "\n".join(lines).strip()) for version, date, lines in releases]


def make_items(text):
    """Paragraphs become points, points become points of the second order."""
    lines = []
    for block in re.split(r"\n(?=- )|\n\n+", text):
        bullet = "    - " if block.startswith("- ") else "  * "
        words = block.removeprefix("- ").replace("`", "").split()
        lines += textwrap.wrap(" ".join(words), 78, initial_indent=bullet, subsequent_indent=" " * len(bullet),
                               break_long_words=False, break_on_hyphens=False)
    return "\n".join(lines)


def make_changelog(markdown, maintainer, last_commit):
    """`maintainer`: "NAME <ADDRESS>"; `last_commit`: seconds since 1970."""
    entries = []
    for version, date, text in read_releases(markdown):
        if date:
            moment = datetime.datetime.fromisoformat(date + "T12:00:00+00:00")
        else:
            moment = datetime.datetime.fromtimestamp(last_commit, datetime.timezone.utc)
            version += moment.strftime("~%Y%m%d.%H%M%S")
        entries.append(f"common-interfaces ({version}) {'unstable' if date else 'UNRELEASED'}; urgency=medium\n\n"
                       f"{make_items(text)}\n\n -- {maintainer}  {moment.strftime('%a, %d %b %Y %H:%M:%S +0000')}\n")
    return "\n".join(entries)
