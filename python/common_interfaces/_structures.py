# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""The structures of the C interface (docs/c_interface.md), member by member."""
from __future__ import annotations

import ctypes
from ctypes import c_char, c_char_p, c_double, c_int32, c_uint32, c_void_p
from typing import TypeVar


def _doubles(names: str) -> list[tuple[str, type]]:
    return [(name, c_double) for name in names.split()]


class SceneRoots(ctypes.Structure):
    _fields_ = [("size", c_uint32), ("data", c_char_p), ("work", c_char_p), ("language", c_char_p)]


class SceneView(ctypes.Structure):
    _fields_ = [("size", c_uint32), ("width", c_int32), ("height", c_int32),
                *_doubles("latitude longitude julian_date azimuth altitude zoom")]


class SceneField(ctypes.Structure):
    _fields_ = [("size", c_uint32), ("section", c_char * 8), ("name", c_char * 64), ("values", c_char * 128),
                ("is_on", c_int32), ("acts", c_int32), ("type", c_int32), ("count", c_int32), ("reserved", c_int32),
                *_doubles("least most"), ("title", c_char * 96), ("choices", c_char * 128)]


class SceneArray(ctypes.Structure):
    _fields_ = [("size", c_uint32), ("count", c_uint32), ("record_size", c_uint32), ("records", c_void_p)]


class SceneFrame(ctypes.Structure):
    _fields_ = [("size", c_uint32), ("stars", c_int32), ("deepsky", c_int32), ("bodies", c_int32),
                ("asteroids", c_int32), ("satellites", c_int32),
                *_doubles("star_limit label_limit deepsky_limit field_width field_height sun_altitude")]


class SceneObject(ctypes.Structure):
    _fields_ = [("kind", c_int32), ("number", c_int32)]


class SceneSight(ctypes.Structure):
    _fields_ = [("size", c_uint32), ("reserved", c_uint32),
                *_doubles("right_ascension declination right_ascension_of_date declination_of_date azimuth altitude "
                          "distance magnitude diameter phase_angle elongation")]


class SceneSuggestion(ctypes.Structure):
    _fields_ = [("object", SceneObject), ("name", c_char_p), ("title", c_char_p), ("kind", c_char_p)]


class SceneFact(ctypes.Structure):
    _fields_ = [("kind", c_int32), ("caption", c_char_p), ("text", c_char_p)]


class SceneReason(ctypes.Structure):
    _fields_ = [("kind", c_int32), ("text", c_char_p), ("fix", c_char_p)]


class SceneDay(ctypes.Structure):
    _fields_ = [("size", c_uint32), ("stays", c_int32),
                *_doubles("rise transit set rise_azimuth transit_altitude set_azimuth")]


class SceneSpot(ctypes.Structure):
    _fields_ = [("size", c_uint32), ("is_ground", c_int32),
                *_doubles("right_ascension declination azimuth altitude"), ("constellation", c_char_p)]


class SceneNight(ctypes.Structure):
    _fields_ = [("size", c_uint32), ("darkness", c_int32),
                *_doubles("begin end middle sunset sunrise civil_dusk civil_dawn nautical_dusk nautical_dawn "
                          "astronomical_dusk astronomical_dawn moonrise moonset moon_phase_angle moon_lit"),
                ("moon_waxes", c_int32), ("reserved", c_int32), ("moon_phase", c_char_p)]


class SceneEvent(ctypes.Structure):
    _fields_ = [*_doubles("julian_date begin end value"), ("body", SceneObject), ("other", SceneObject),
                ("kind", c_char_p), ("group", c_char_p), ("text", c_char_p), ("is_of_place", c_int32),
                ("reserved", c_int32)]


class SceneCity(ctypes.Structure):
    _fields_ = [*_doubles("latitude longitude height"), ("population", c_int32), ("reserved", c_int32),
                ("name", c_char_p), ("country", c_char_p), ("country_name", c_char_p), ("zone", c_char_p)]


class SceneLanguage(ctypes.Structure):
    _fields_ = [("code", c_char_p), ("name", c_char_p)]


class SceneOption(ctypes.Structure):
    _fields_ = [("name", c_char_p), ("values", c_char_p)]


class SceneFavourite(ctypes.Structure):
    _fields_ = [("object", SceneObject), ("name", c_char_p)]


Structure = TypeVar("Structure", bound=ctypes.Structure)


def make(structure: type[Structure], **members: object) -> Structure:
    """One of a kind that begins with its size."""
    return structure(size=ctypes.sizeof(structure), **members)


def values(structure: ctypes.Structure) -> dict[str, object]:
    """The plain members by name: numbers as they are, texts as str; neither sizes nor what is reserved."""
    found: dict[str, object] = {}
    for name, *_ in structure._fields_:
        value = getattr(structure, name)
        if name not in ("size", "reserved"):
            found[name] = value.decode("utf-8", "replace") if isinstance(value, bytes) else value
    return found
