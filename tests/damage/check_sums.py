# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Check sums of files that have one, from their pages below docs/formats: a damage behind a sum that fits meets what
reads the contents."""
import struct
import zlib

MASK = (1 << 64) - 1


def fingerprint(content):
    """docs/formats/prepared_sky.md says how."""
    def mix(state, word):
        product = (state ^ word) * 0x9E3779B97F4A7C15 & MASK
        return product ^ product >> 32

    lanes = [1, 2, 3, 4]
    whole = len(content) // 32 * 32
    for words in struct.iter_unpack("<4Q", content[:whole]):
        lanes = [mix(lane, word) for lane, word in zip(lanes, words)]
    state = len(content)
    for word in [*lanes, *content[whole:], 0]:
        state = mix(state, word)
    return state


def fnv(content):
    state = 0xCBF29CE484222325
    for byte in content:
        state = (state ^ byte) * 0x100000001B3 & MASK
    return state


def mend_prepared(content):
    return content[:80] + struct.pack("<Q", fingerprint(content[88:])) + content[88:]


def mend_whole(content):
    """CRC-32 at 16 of everything, itself taken as zeros."""
    return content[:16] + struct.pack("<I", zlib.crc32(content[:16] + bytes(4) + content[20:])) + content[20:]


def mend_header(content):
    """The same of a header whose length stands at 12."""
    length, = struct.unpack_from("<I", content, 12)
    return mend_whole(content[:length]) + content[length:]


def mend_session(content):
    lines = content[:content.rfind(b"end ")]
    return lines + b"end %016x\n" % fnv(lines)


MENDERS = {".prepared": mend_prepared, ".map": mend_whole, ".tiles": mend_header, ".session": mend_session}


def _ending(name):
    return name[name.rfind("."):]


def has_sum(name):
    return _ending(name) in MENDERS


def mend(name, content):
    """As it is when it is too short to hold a sum."""
    return MENDERS[_ending(name)](content) if len(content) >= 88 else content
