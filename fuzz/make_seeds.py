#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Writes the binary seeds of the fuzz targets into corpus/. The seeds are kept in the repository; run this after a
change of a file format. Formats: docs/formats/settings_file.md; RFC 8536 for compiled time zones; the inputs of
record_conversion: its source."""
import struct
import zlib
from pathlib import Path

CORPUS = Path(__file__).parent / "corpus"
OWN = struct.pack("<II", int.from_bytes(b"FLTR", "big"), 1)
DEFAULTS = struct.pack("<I", int.from_bytes(b"FLTR", "big")) + b"TLFD"
NO_ALIAS = 0xFFFFFFFF


def save(target, name, content):
    folder = CORPUS / target
    folder.mkdir(parents=True, exist_ok=True)
    (folder / name).write_bytes(content)


def code(text):
    return int.from_bytes(text.encode(), "big")


def name_id(name):
    """The hash of field names: see GetUniqueID in utils/text.h."""
    table = []
    for value in range(256):
        for _ in range(8):
            value = value >> 1 ^ (0xEDB88320 if value & 1 else 0)
        table.append(value)
    h = 0
    for byte in name.encode():
        signed = h - (1 << 32) if h & 0x80000000 else h
        h = (signed >> 8 & 0xFFFFFFFF) ^ table[(h ^ byte) & 0xFF]
    return h & 0x7FFFFFFF


def field(section, name, kind, values, condition=0, status=1):
    formats = {0: "b", 1: "B", 2: "h", 3: "H", 4: "i", 5: "I", 6: "f", 7: "d", 8: "B"}
    header = struct.pack("<IiBHIBI", code(section), name_id(name), kind, len(values), condition, status, NO_ALIAS)
    return header + struct.pack(f"<{len(values)}{formats[kind]}", *values)


def old_field(section, name, kind, values):
    """The earlier layout: the name as 32 characters in place of its hash."""
    record = field(section, name, kind, values)
    return record[:4] + name.encode().ljust(32, b"\0") + record[8:]


def block(key, sections, records):
    """sections: (code, alias, first, last, status)"""
    content = key + struct.pack("<h", len(sections))
    for section, alias, first, last, status in sections:
        content += struct.pack("<IIHHB", code(section), alias, first, last, status)
    content += struct.pack("<i", len(records))
    return content + b"".join(struct.pack("<i", len(r)) + r for r in records)


def settings(version, *blocks):
    return b"SREV" + struct.pack("<I", version) + b"".join(blocks)


def settings_seeds():
    every_type = [field("star", f"Type{k}", k, [1, 2, 3]) for k in range(8)]
    switches = [field("star", "ShowLabel", 1, [1]), field("star", "Magnitude", 6, [6.5]),
                field("star", "CatalogType", 1, [2, 10, 20, 30], condition=0x4000)]
    favourites = [field("comt", "Favo", 8, [1, 0, 1, 0, 1, 7, 0, 0, 0])]
    planet = [field("plnt", "Earth", 4, [code("plnt"), 3, 1, 0, 0, 0, 0, 0, 1])]
    moon = [field("moon", "Moon", 4, [code("moon"), 301, 1, 0, 0, 0, 0, 0, 0])]
    two = [("star", NO_ALIAS, 0, 2, 1), ("comt", code("cmt2"), 3, 3, 1)]
    bodies = [("plnt", NO_ALIAS, 0, 0, 1), ("moon", NO_ALIAS, 1, 1, 0)]
    save("settings_file", "empty_block", settings(1, block(OWN, [], [])))
    save("settings_file", "every_type", settings(1, block(DEFAULTS, [("star", NO_ALIAS, 0, 7, 1)], every_type)))
    save("settings_file", "defaults_and_own",
         settings(3, block(DEFAULTS, two, switches + favourites), block(OWN, two, switches + favourites)))
    save("settings_file", "bodies",
         settings(3, block(DEFAULTS, bodies, planet + moon), block(OWN, bodies, planet + moon)))
    save("settings_file", "no_header", block(DEFAULTS, two, switches + favourites))
    old = [old_field("star", "ShowLabel", 1, [1]), old_field("star", "Magnitude", 6, [6.5])]
    save("settings_file", "old_layout",
         settings(0, block(DEFAULTS, [("star", NO_ALIAS, 0, 1, 1)], switches[:2]),
                  block(OWN, [("star", NO_ALIAS, 0, 1, 1)], old)))
    save("correction_file", "two_corrections",
         block(DEFAULTS, [("star", NO_ALIAS, 0, 1, 1)],
               [field("star", "StarZoomDependShow", 2, [-5]), field("star", "StarZoomDependLabel", 2, [12])]))
    save("correction_file", "empty_block", block(DEFAULTS, [], []))
    save("correction_file", "other_owner", block(struct.pack("<II", 1, 2), [], []) + block(DEFAULTS, [], [
        field("gala", "GLZoomDependShow", 2, [3])]))


def settings_tool_seeds():
    draw, band = field("star", "Draw", 1, [1]), field("star", "Band", 7, [1.5, float("nan"), 0.5235987755982988])
    star = ("star", NO_ALIAS, 0, 1, 1)
    whole = block(DEFAULTS, [star, ("gala", code("star"), 2, 1, 0)], [draw, band])
    save("settings_tool", "whole", settings(1, whole, block(OWN, [], [])))
    save("settings_tool", "twice", settings(1, block(OWN, [star], [draw, draw]), block(OWN, [star], [band, band])))
    save("settings_tool", "damaged_then_whole", settings(1, whole[:-5], whole, b"stray", whole))
    save("settings_tool", "runs", settings(1, block(OWN, [star, star, ("gala", NO_ALIAS, 1, 9, 1), ("nebu", 1, 7, 2, 1)],
                                                    [draw, band, field("nebu", "Grid", 4, [code("plnt")]), draw])))
    save("settings_tool", "odd_values", settings(1, block(OWN, [star], [draw[:9] + b"\x07\0" + draw[11:] + b"tail",
                                                                       band[:8] + b"\xc8" + band[9:]])))
    old = [old_field("star", "Draw", 1, [1]), old_field("star", "an = odd name", 6, [6.5])]
    save("settings_tool", "old_layout", settings(0, whole, block(OWN, [star], old)))


def words(*values):
    return b"".join(struct.pack("<i", code(v) if isinstance(v, str) else v) for v in values)


def images(count, *identifiers):
    """Records of constellation and Milky Way images: four corners of right ascension and declination, big-endian."""
    corners = struct.pack(">8i", 8300000, 1000000, 8400000, 1000000, 8400000, -500000, 8300000, -500000)
    return struct.pack(">H", count) + b"".join(identifier + corners for identifier in identifiers)


def catalog_table_seeds():
    save("catalog_tables", "articles", words("star", 2491, 1, "gala", 0x3C00001F, 2, "nebu", 42, 3))
    save("catalog_tables", "articles_in_no_order", words("star", 9, 1, "gala", 31, 2, "star", 3, 3, "mesh", 1, 4))
    save("catalog_tables", "articles_twice", words("star", 5, 1, "star", 5, 2, "star", 4, 3, "star", 5, 4))
    save("catalog_tables", "articles_extreme", words(-1, -1, 1, 2**31 - 1, 2**31 - 1, 2, -2**31, -2**31, 3))
    save("catalog_tables", "articles_of_13_bytes", words("star", 5, 1) + b"x")
    save("catalog_tables", "distances", words("star", 3, -5, 8, 2491, "gala", 2, 31, 51))
    save("catalog_tables", "distances_in_no_order", words("star", 5, 9, 1, 5, 3, 7))
    save("catalog_tables", "distances_kind_twice", words("star", 1, 4, "gala", 0, "star", 1, 5, "gala", 1, 6))
    save("catalog_tables", "distances_count_lies", words("star", 0x7FFFFFFF, 4, 5) + b"\1\2")
    save("catalog_tables", "distances_count_cut", words("star", 1, 4, "gala") + b"\1\0")
    save("catalog_tables", "distances_of_40", words("star", 40, *range(0, 120, 3)))
    save("catalog_tables", "images", images(2, b"Ori ", b"MW01"))
    save("catalog_tables", "images_count_lies", images(500, b"Ori "))
    save("catalog_tables", "images_cut", images(2, b"Ori ", b"UMa ")[:-7])
    save("catalog_tables", "empty", b"")


def zone_block(version, width, changes, types, names, leaps=()):
    header = b"TZif" + version + bytes(15) + struct.pack(">6I", 0, 0, len(leaps), len(changes), len(types), len(names))
    letter = "q" if width == 8 else "i"
    content = b"".join(struct.pack(">" + letter, time) for time, _ in changes)
    content += bytes(kind for _, kind in changes)
    content += b"".join(struct.pack(">iBB", *entry) for entry in types) + names
    return header + content + b"".join(struct.pack(f">{letter}i", *leap) for leap in leaps)


def zone_seeds():
    types = [(3600, 0, 0), (7200, 1, 4)]
    names = b"CET\0CEST\0"
    changes = [(-1693706400, 1), (-1680483600, 0), (1711846800, 1), (1729990800, 0)]
    first = zone_block(b"2", 4, changes, types, names)
    second = zone_block(b"2", 8, changes, types, names)
    save("time_zone", "version_1", zone_block(b"\0", 4, changes, types, names))
    save("time_zone", "version_2_with_rule", first + second + b"\nCET-1CEST,M3.5.0,M10.5.0/3\n")
    save("time_zone", "no_changes", zone_block(b"2", 4, [], types[:1], b"UTC\0") +
         zone_block(b"2", 8, [], types[:1], b"UTC\0") + b"\nUTC0\n")
    save("time_zone", "empty_rule", first + second + b"\n\n")
    save("time_zone", "version_3_negative_rule", zone_block(b"3", 4, [], types, names) +
         zone_block(b"3", 8, changes, types, names) + b"\n<-03>3<-02>,M3.5.0/-2,M10.5.0/-1\n")
    save("time_zone", "julian_rules", first + second + b"\nAAA5BBB,J60/0,300/25:30:15\n")
    save("time_zone", "leap_seconds",
         first + zone_block(b"2", 8, changes, types, names, [(78796800, 1), (94694401, 2)]) + b"\nCET-1\n")


def conversion(kind, number, fields=(), record=b"", mode=0, flags=0, gravity=2.9591220828559093e-04):
    """The input of the target record_conversion; fields: (name, type code, values)."""
    formats = {0: "b", 1: "B", 2: "h", 3: "H", 4: "i", 5: "I", 6: "f", 7: "d", 8: "B"}
    content = struct.pack("<hIiBdB", mode, code(kind), number, flags, gravity, len(fields))
    for name, encoding, values in fields:
        content += struct.pack("<iB", name_id(name), encoding)
        content += struct.pack(f"<{len(values)}{formats[encoding]}", *values).ljust(24, b"\0")
    return content + record


def elements(a, e, n=0.0, element_set=0, central=10):
    return struct.pack("<B3xiIi8d2f3d", element_set, 0, code("plnt"), central, 2459000.5, a, e, 10.5, 80.0, 73.5, 120.25,
                       n, 3.5, 0.15, 1e-5, 0.0, 3e-5)


def conversion_seeds():
    place = [("RA", 7, [1.75]), ("Dec", 7, [-0.29])]
    star = place + [("RadialVelocity", 6, [-5.5]), ("Parallax", 6, [379.2]), ("Radius", 6, [1.7]), ("Magnitude", 2, [-1]),
                    ("VisMagnitude", 6, [-1.46]), ("BlueMagnitude", 6, [0.5]), ("AbsMagnitude", 7, [1.42])]
    motion = [("PropMotionRA", 2, [-546]), ("PropMotionDec", 2, [-1223])]
    motion_floats = [("PropMotionRA", 6, [-546.01]), ("PropMotionDec", 6, [-1223.07])]
    size = [("LargestDimension", 6, [0.01]), ("VisMagnitude", 6, [4.5])]
    orbit = [(name, 7, [value]) for name, value in (("a", 2.77), ("e", 0.08), ("i", 0.18), ("om", 1.4), ("w", 1.28),
                                                    ("M0", 5.1), ("n", 0.0037), ("JulianDate_d", 2460200.5))]
    orbit += [("JulianDate", 4, [2460200]), ("Hy", 6, [3.3]), ("SlopeParam", 6, [0.12]), ("y", 6, [10.0])]
    target = "record_conversion"
    save(target, "star_integers", conversion("star", 2491, star + motion))
    save(target, "star_floats", conversion("uSTR", 2491, star + motion_floats, mode=1))
    save(target, "not_numbers", conversion("star", 1, [("RA", 7, [float("nan")]), ("Dec", 6, [float("inf")]),
                                                       ("VisMagnitude", 7, [1e300])]))
    save(target, "cluster_parsecs", conversion("clst", 40 << 24 | 45, place + size + [("Distance", 2, [135])], mode=2))
    save(target, "galaxy_kiloparsecs", conversion("gala", 50 << 24 | 31, place + size + [("Distance", 6, [778.0])]))
    save(target, "no_distance", conversion("uDSO", 50 << 24, size + [("Distance", 6, [0.0])]))
    save(target, "constellation", conversion("cnst", 3, [("CenterVector", 2, [-20000, 10000, 20000])]))
    save(target, "constellation_zero", conversion("cnst", 3, [("CenterVector", 2, [0, 0, 0])]))
    save(target, "asteroid", conversion("astr", 1, orbit, mode=3))
    save(target, "comet_as_it_is", conversion("comt", 1, record=elements(0.59, 0.967), mode=2))
    save(target, "user_ellipse", conversion("fAST", 4, record=elements(2.36, 0.09)))
    save(target, "user_parabola", conversion("fCOM", 1001, record=elements(0.9, 1.0), mode=2))
    save(target, "user_hyperbola", conversion("uSCO", 1, record=elements(0.25, 1.2), mode=1))
    save(target, "user_two_lines", conversion("fSCO", 25544, record=elements(0.0, 0.0005, 15.5, 9, 3), mode=2))
    save(target, "spacecraft", conversion("scft", 25544, record=elements(0.0, 0.0005, 0.0676, 9, 3), flags=8))
    save(target, "real_model", conversion("fCOM", 1003, record=elements(1.0, 0.995), mode=3, flags=8))
    save(target, "nothing_given", conversion("fCOM", 1, flags=7))
    save(target, "unknown_kind", conversion("uGAL", 50 << 24, size))


def orbit_seeds():
    """e, n, a, i, om, w, M0, epoch, drag term as doubles behind a byte that is not "t"; or "t" and two lines;
    "c": the checksums are put right before they are read."""
    target = "orbits"
    numbers = lambda *values: b"n" + struct.pack("<9d", *values)
    save(target, "asteroid", numbers(0.0786, 0.00374, 2.7666, 0.1848, 1.4009, 1.2834, 5.8351, 2459800.5, 0.0))
    save(target, "parabola", numbers(1.0, 0.0122, 1.0, 1.83, 0.545, 4.46, 0.5, 2451545.0, 0.0))
    save(target, "near_parabola", numbers(1.0000005, 0.0122, 1.0, 1.83, 0.545, 4.46, -3.0, 2451545.0, 0.0))
    save(target, "hyperbola", numbers(1.2, 0.0123, 0.25, 2.1, 0.4, 4.2, 7.0, 2458000.5, 0.0))
    save(target, "satellite_near", numbers(0.003, 0.0679, 0.0, 1.0133, 0.943, 2.428, 3.86, 2453911.3, 1.28e-4))
    save(target, "satellite_half_day", numbers(0.69, 0.00875, 0.0, 1.12, 4.87, 4.62, 0.353, 2453910.8, 1.2e-4))
    save(target, "satellite_one_day", numbers(0.0003, 0.004375, 0.0, 0.0002, 5.0, 0.24, 0.97, 2453911.0, 1e-4))
    save(target, "satellite_flat_backwards", numbers(0.1, 0.01, 0.0, 3.14159265358979, 0.0, 0.0, 0.0, 2453911.0, 0.0))
    lines = {
        "station": ("1 25544U 98067A   14020.93268519  .00009878  00000-0  18200-3 0  5082",
                    "2 25544  51.6498 109.4756 0003572  55.9686 274.8005 15.49815350868473"),
        "letter_number": ("1 A0001U 98067A   14020.93268519  .00009878  00000-0  18200-3 0  5063",
                          "2 A0001  51.6498 109.4756 0003572  55.9686 274.8005 15.49815350868454"),
        "wrong_checksum": ("1 25544U 98067A   14020.93268519  .00009878  00000-0  18200-3 0  5083",
                           "2 25544  51.6498 109.4756 0003572  55.9686 274.8005 15.49815350868473"),
        "deep_space": ("1 08195U 75081A   06176.33215444  .00000099  00000-0  11873-3 0   813",
                       "2 08195  64.1586 279.0717 6877146 264.7651  20.2257  2.00491383225656")}
    for name, (first, second) in lines.items():
        save(target, name, f"t{first}\n{second}".encode())
        save(target, name + "_repaired", f"c{first}\n{second}".encode())


def star(ra, dec, magnitude, colour, east, north, number):
    """Degrees, magnitudes, milliarcseconds a year; None is unknown."""
    thousandths = lambda value: -32768 if value is None else round(value * 1000)
    halves = lambda value: -32768 if value is None else round(value * 2)
    return struct.pack("<IihhhhI", round(ra / 360 * 2**32), round(dec / 360 * 2**32), thousandths(magnitude),
                       thousandths(colour), halves(east), halves(north), number)


def tiles(origin, *bands):
    """bands: (order, largest motion, {cell: stars}); docs/formats/star_tiles.md."""
    entries, body, numbers = b"", b"", []
    for band, (order, motion, cells) in enumerate(bands):
        records, index, first = b"", b"", 0
        for cell in range(12 << 2 * order):
            stars = cells.get(cell, [])
            check = zlib.crc32(struct.pack("<IIII", band, cell, first, len(stars)) + b"".join(stars))
            index += struct.pack("<II", first, check)
            records += b"".join(stars)
            first += len(stars)
        each = [struct.unpack("<IihhhhI", records[i:i + 20]) for i in range(0, len(records), 20)]
        magnitudes = [record[2] for record in each]
        numbers += [record[6] for record in each]
        entries += struct.pack("<IhhII", order, min(magnitudes), max(magnitudes), len(each), motion)
        body += records + index
    places = sorted((number, place) for place, number in enumerate(numbers))
    for first in range(0, len(places), 511):
        block = b"".join(struct.pack("<II", *entry) for entry in places[first:first + 511])
        body += struct.pack("<I", zlib.crc32(struct.pack("<I", first // 511) + block)) + block
    size = 48 + len(entries) + len(origin)
    header = struct.pack("<8sII4xIQQII", b"STARTILE", 2, size, len(bands), len(numbers), size + len(body),
                         min(numbers, default=0), max(numbers, default=0)) + entries + origin
    return header[:16] + struct.pack("<I", zlib.crc32(header)) + header[20:] + body


def sky_map(side, cells, origin=b""):
    """docs/formats/sky_map.md"""
    header = struct.pack("<8sIIII", b"SKYLIGHT", 1, 24 + len(origin), 0, side) + origin
    return header[:16] + struct.pack("<I", zlib.crc32(header + cells)) + header[20:] + cells


def sky_map_seeds():
    target = "sky_map"
    save(target, "empty", b"")
    save(target, "smallest", sky_map(2, bytes([10, 20, 30, 255]), b"Dusk"))
    save(target, "larger", sky_map(16, bytes(range(256))))
    save(target, "cut", sky_map(16, bytes(range(256)))[:100])
    save(target, "odd", sky_map(3, bytes(9)))


def fingerprint(data):
    """utils/checksum.h."""
    def mix(state, word):
        product = (state ^ word) * 0x9E3779B97F4A7C15 % 2**64
        return product ^ product >> 32
    lanes, at = [1, 2, 3, 4], 0
    while len(data) - at >= 32:
        lanes = [mix(lane, word) for lane, word in zip(lanes, struct.unpack_from("<4Q", data, at))]
        at += 32
    state = len(data)
    for word in lanes + list(data[at:]) + [0]:
        state = mix(state, word)
    return state


def prepared(part, parts):
    return struct.pack("<8sII64xQ", b"SKYREADY", 1, part, fingerprint(parts)) + parts


def prepared_sky_seeds():
    """docs/formats/prepared_sky.md."""
    target = "prepared_sky"
    numbers = lambda *values: struct.pack("<%dI" % (len(values) + 1), len(values), *values)
    north = struct.pack("<I3d", 1, 0, 0, 1)
    star = (struct.pack("<If", 1, 5.4) + north + struct.pack("<I3d", 1, 1e-9, 0, 0) + struct.pack("<IB", 1, 2)
            + numbers(2491) + struct.pack("<If", 1, 0.5) + struct.pack("<IB", 1, 1) + numbers(0) + numbers(1) + numbers(0)
            + numbers(0) + struct.pack("<I8s", 8, b"\0Sirius\0") + struct.pack("<d", 1e-9))
    names = struct.pack("<I4I", 1, 0x12345678, 0, 7, 0) + struct.pack("<I14s", 14, b"sirius\0Sirius\0")
    nebula = (struct.pack("<I5s", 5, b"\0M42\0") + struct.pack("<I3dfII3fIBBB3I", 1, 0, 1, 0, 60, 1, 42, 0.01, 0.01, 0.5, 3, 0,
                                                              1, 1, 1, 1, 0) + numbers(42, 0xFFFFFFFF)
              + struct.pack("<Ii3ddII", 1, 0, 0, 1, 0, 0.01, 0, 1) + struct.pack("<I3I", 1, 2, 0, 1)
              + struct.pack("<I2I", 1, 0, 1) + struct.pack("<I3d", 1, 0, 1, 0))
    save(target, "no_stars", prepared(0, bytes(88)))
    save(target, "no_deepsky", prepared(1, bytes(36)))
    save(target, "one_star", prepared(0, star + bytes(8 + 4 + 12) + names))
    save(target, "one_nebula", prepared(1, nebula + bytes(8)))
    save(target, "cut", prepared(0, star))
    save(target, "empty", b"")


def star_tile_seeds():
    target = "star_tiles"
    slow = star(45, -30, 9.1, 0.482, None, None, 1000001)
    fast = star(269.452, 4.6935, 9.54, None, -798.5, 10328, 1087937)
    two = tiles(b"Two stars", (0, 20718, {7: [fast]}), (0, 0, {8: [slow]}))
    save(target, "empty", b"")
    save(target, "without_stars", tiles(b""))
    save(target, "two_stars", two)
    save(target, "cut", two[:200])
    body = bytearray(tiles(b"", (0, 0, {0: [star(45, 60, 9, 1, None, None, 1)], 8: [slow]})))
    body[104] = 1  # the first cell begins behind the first star
    save(target, "before_the_first_cell", bytes(body))
    save(target, "finer_grid", tiles(b"", (1, 0, {i: [star(i, 0, 7 + j / 10, 1, None, None, 100 * i + j + 1) for j in range(5)]
                                                  for i in range(0, 48, 3)})))


if __name__ == "__main__":
    sky_map_seeds()
    prepared_sky_seeds()
    star_tile_seeds()
    orbit_seeds()
    conversion_seeds()
    settings_seeds()
    settings_tool_seeds()
    catalog_table_seeds()
    zone_seeds()
