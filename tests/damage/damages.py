# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""What may become of a file: each kind of damage is a function of a random choice, the files of the root and the name
of one, which says what stands in the place of which files. File systems, transfers, editors and hands make them.
"""
import fnmatch
import re

import check_sums

# What stands in the place of a file and is none that can be read.
FOLDER, DEVICE, NOWHERE, LOCKED, GONE = "a folder", "a device", "a link to nowhere", "no right to read", "nothing"

UNREADABLE = (DEVICE, FOLDER, NOWHERE, LOCKED)  # the first of them reads as an empty file

# Files that one reader reads: each may stand in the place of another.
ALIKE = ["data/views/*", "data/gazetteers/*", "data/*qxstrings.txt", "data/media/maps/*", "data/media/surface/*.svg",
         "data/*.prepared", "data/*.tiles", "data/media/find/*.bin", "data/media/skyobjects/*.dat", "data/*.data",
         "data/media/zoneinfo/*", "data/catalogs/*.txt", "data/media/*.txt", "*.ini", "work/*"]

EXTREMES = ["nan", "inf", "-inf", "1e999", "-1e999", "1e-999", "-2147483649", "2147483648", "-9223372036854775809",
            "4294967296", "-1", "0", "-0", "0x10", "1.5.5", "1,5", "", "9" * 400, "0." + "0" * 400 + "1"]
EXTREME_BYTES = [b"\xFF" * 2, b"\xFF" * 4, b"\xFF" * 8, b"\0" * 4, b"\0" * 8, b"\xFF\xFF\xFF\x7F", b"\0\0\0\x80",
                 bytes.fromhex("000000000000F87F"), bytes.fromhex("000000000000F07F"), bytes.fromhex("0000807F"),
                 bytes.fromhex("0000C0FF"), bytes.fromhex("FFFFFFFFFFFFEF7F"), bytes.fromhex("0100000000000000")]
NUMBER = re.compile(rb"[-+]?\d+(?:\.\d*)?(?:[eE][-+]?\d+)?")


def is_text(content):
    return b"\0" not in content[:4096]


def alike(name):
    return next((pattern for pattern in ALIKE if fnmatch.fnmatchcase(name, pattern)), name)


def stretch(random, content, most=4096):
    begin = random.randrange(len(content) + 1)
    return begin, min(len(content), begin + random.randint(1, most))


def cut(random, files, name):
    content = files[name]
    return {name: content[:random.randrange(max(len(content), 1))]}


def flipped(random, files, name):
    content = bytearray(files[name])
    if content:
        content[random.randrange(len(content))] ^= random.randint(1, 255)
    return {name: bytes(content)}


def numbers(random, files, name):
    """Up to four numbers become extreme: of a text as written, of other files as bytes."""
    content = files[name]
    for _ in range(random.randint(1, 4)):
        begin, _ = stretch(random, content)
        if is_text(content):
            found = NUMBER.search(content, begin) or NUMBER.search(content)
            if found:
                content = content[:found.start()] + random.choice(EXTREMES).encode() + content[found.end():]
        else:
            extreme = random.choice(EXTREME_BYTES)
            begin = random.randrange(256) if random.random() < 0.5 else begin  # counts stand in front
            content = content[:begin] + extreme + content[begin + len(extreme):]
    return {name: content}


def dropped(random, files, name):
    """Lines are gone, of other files bytes."""
    content = files[name]
    if is_text(content):
        lines = content.splitlines(keepends=True)
        begin, end = stretch(random, lines, 1 + len(lines) // 8)
        return {name: b"".join(lines[:begin] + lines[end:])}
    begin, end = stretch(random, content)
    return {name: content[:begin] + content[end:]}


def doubled(random, files, name):
    """The whole file or a part of it stands there twice."""
    content = files[name]
    if random.random() < 0.5:
        return {name: content + content}
    lines = content.splitlines(keepends=True)
    begin, end = stretch(random, lines, 1 + len(lines) // 8)
    return {name: b"".join(lines[:end] + lines[begin:])}


def long(random, files, name):
    """A line, or a text in it, without an end."""
    content = files[name]
    begin, _ = stretch(random, content)
    return {name: content[:begin] + random.choice([b"a", b"9", b" ", b"\t", b"\xC3"]) * 100_000 + content[begin:]}


def spliced(random, files, name):
    """A stretch of bytes is that of another file."""
    content, other = files[name], files[random.choice(sorted(files))]
    begin, end = stretch(random, content)
    start, stop = stretch(random, other)
    return {name: content[:begin] + other[start:stop] + content[end:]}


def swapped(random, files, name):
    """Two files stand in each other's places."""
    other = random.choice([other for other in sorted(files) if other != name])
    return {name: files[other], other: files[name]}


def swapped_alike(random, files, name):
    others = [other for other in sorted(files) if other != name and alike(other) == alike(name)]
    if not others:
        return None
    other = random.choice(others)
    return {name: files[other], other: files[name]}


def mended(damage):
    """The same damage in a file whose check sum has been made to fit again."""
    def damaged(random, files, name):
        if not check_sums.has_sum(name):
            return None
        return {path: check_sums.mend(path, content) for path, content in damage(random, files, name).items()}
    return damaged


def replaced_by(what):
    return lambda random, files, name: {name: what}


KINDS = {"cut": cut, "byte flipped": flipped, "extreme numbers": numbers, "lines dropped": dropped,
         "doubled": doubled, "endless line": long, "spliced": spliced, "swapped": swapped,
         "swapped alike": swapped_alike, "flipped, sum mended": mended(flipped), "extreme, sum mended": mended(numbers),
         "cut, sum mended": mended(cut), "empty": replaced_by(b""), FOLDER: replaced_by(FOLDER),
         DEVICE: replaced_by(DEVICE), NOWHERE: replaced_by(NOWHERE), LOCKED: replaced_by(LOCKED), GONE: replaced_by(GONE)}
