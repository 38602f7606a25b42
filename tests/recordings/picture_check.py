# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""What a picture is: its size in pixels, if it is whole."""
import re
import struct
import xml.etree.ElementTree as ET
import zlib

PNG_SIGNATURE = b"\x89PNG\r\n\x1a\n"


def _png_size(data):
    """Walks the chunks to the last one, which must be IEND; each has its checksum."""
    if not data.startswith(PNG_SIGNATURE):
        raise ValueError("no PNG signature")
    at, kind, size, pixels = len(PNG_SIGNATURE), b"", None, b""
    while at < len(data):
        length, kind = struct.unpack_from(">I4s", data, at)
        body = data[at + 8:at + 8 + length]
        if struct.unpack_from(">I", data, at + 8 + length)[0] != zlib.crc32(kind + body):
            raise ValueError("a chunk with another checksum")
        if kind == b"IHDR":
            size = struct.unpack(">II", body[:8])
        elif kind == b"IDAT":
            pixels += body
        at += 12 + length
    if kind != b"IEND":
        raise ValueError("the end is missing")
    zlib.decompress(pixels)
    return size


def _svg_size(data):
    root = ET.fromstring(data)
    if not root.tag.endswith("svg"):
        raise ValueError("no SVG")
    return tuple(round(float(re.match(r"[0-9.]+", root.get(side)).group())) for side in ("width", "height"))


def describe(path, data):
    """"WIDTHxHEIGHT", or what is wrong with the picture."""
    try:
        return "%dx%d" % (_png_size(data) if path.endswith(".png") else _svg_size(data))
    except (ValueError, struct.error, zlib.error, ET.ParseError, AttributeError, TypeError) as reason:
        return f"broken ({reason})"
