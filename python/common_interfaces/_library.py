# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Finds the shared library and the data, and declares the functions.

COMMON_INTERFACES_LIBRARY names the library libcommon_interfaces_scene, or the folder that it lies in, and
COMMON_INTERFACES_DATA the data root. Without them there are the ones that the package carries, and without these what
the system has.
"""
from __future__ import annotations

import ctypes
import functools
import os
import pathlib
from ctypes import POINTER, c_char_p, c_double, c_int32, c_void_p

from . import _structures as s

_NAME = "libcommon_interfaces_scene.so.0.1"  # docs/versions.md says how it moves
_CARRIED = pathlib.Path(__file__).parent
_SYSTEM_DATA = "/usr/share/common_interfaces/data"

Log = ctypes.CFUNCTYPE(None, c_char_p, c_void_p)

_OBJECT = s.SceneObject
_ARRAY = POINTER(s.SceneArray)
_DOUBLES = c_void_p  # addresses of arrays
# Arguments behind the sky, of functions that return a status.
_STATUS_CALLS: dict[str, list[object]] = {
    "scene_set_language": [c_char_p],
    "scene_get_view": [POINTER(s.SceneView)],
    "scene_set_view": [POINTER(s.SceneView)],
    "scene_read_view": [c_char_p, c_int32],
    "scene_save_view": [c_char_p, c_int32],
    "scene_look_at": [_OBJECT],
    "scene_turn": [_DOUBLES, c_double, c_double],
    "scene_change_setting": [c_char_p],
    "scene_read_settings": [c_char_p],
    "scene_save_settings": [c_char_p],
    "scene_get_field": [c_int32, POINTER(s.SceneField)],
    "scene_set_enlargement": [c_double],
    "scene_compute": [],
    "scene_get_array": [c_int32, _ARRAY],
    "scene_describe_frame": [POINTER(s.SceneFrame)],
    "scene_find": [c_char_p, POINTER(_OBJECT)],
    "scene_pick": [c_double, c_double, c_double, POINTER(_OBJECT), c_int32, POINTER(c_int32)],
    "scene_observe": [_OBJECT, POINTER(s.SceneSight)],
    "scene_project": [_DOUBLES, _DOUBLES, c_int32],
    "scene_unproject": [_DOUBLES, _DOUBLES, c_int32],
    "scene_suggest": [c_char_p, c_int32, _ARRAY],
    "scene_get_facts": [_OBJECT, _ARRAY],
    "scene_explain": [_OBJECT, _ARRAY],
    "scene_get_day": [_OBJECT, POINTER(s.SceneDay)],
    "scene_sample_altitudes": [_OBJECT, c_double, c_double, _DOUBLES, c_int32],
    "scene_describe_pixel": [c_double, c_double, POINTER(s.SceneSpot)],
    "scene_get_night": [POINTER(s.SceneNight)],
    "scene_find_events": [c_double, c_double, c_char_p, _ARRAY],
    "scene_find_cities": [c_char_p, c_int32, _ARRAY],
    "scene_find_cities_near": [c_double, c_double, c_int32, _ARRAY],
    "scene_get_zone_offset": [c_char_p, c_double, POINTER(c_double)],
    "scene_get_languages": [_ARRAY],
    "scene_set_option": [c_char_p, c_char_p],
    "scene_get_options": [_ARRAY],
    "scene_mark": [_OBJECT, c_int32],
    "scene_get_favourites": [_ARRAY],
    "scene_read_favourites": [c_char_p],
    "scene_read_session": [c_char_p],
}
# The same of functions that return a text.
_TEXT_CALLS: dict[str, list[object]] = {
    "scene_error": [],
    "scene_get_map": [c_int32],
    "scene_get_title": [_OBJECT],
    "scene_get_text": [c_int32],
    "scene_get_language": [],
    "scene_get_option": [c_char_p],
    "scene_format_favourites": [],
    "scene_format_session": [],
    "scene_get_session_language": [],
}


def find_library() -> str:
    """Path of the library, or its name where the system shall look for it."""
    asked = os.environ.get("COMMON_INTERFACES_LIBRARY")
    if asked:
        return os.path.join(asked, _NAME) if os.path.isdir(asked) else asked
    carried = _CARRIED / "lib" / _NAME
    return str(carried) if carried.exists() else _NAME


def find_data() -> str:
    """Path of the data root that is opened where no other is named."""
    asked = os.environ.get("COMMON_INTERFACES_DATA")
    if asked:
        return asked
    carried = _CARRIED / "data"
    return str(carried) if carried.is_dir() else _SYSTEM_DATA


@functools.cache
def load() -> ctypes.CDLL:
    """The library with its functions declared; OSError where it is missing."""
    library = ctypes.CDLL(find_library())
    for calls, result in ((_STATUS_CALLS, ctypes.c_int), (_TEXT_CALLS, c_char_p)):
        for name, arguments in calls.items():
            function = getattr(library, name)
            function.argtypes = [c_void_p, *arguments]
            function.restype = result
    library.scene_open.argtypes = [POINTER(s.SceneRoots), POINTER(c_void_p)]
    library.scene_close.argtypes = [c_void_p]
    library.scene_close.restype = None
    library.scene_get_field_count.argtypes = [c_void_p]
    library.scene_get_field_count.restype = c_int32
    library.scene_set_log.argtypes = [Log, c_void_p]
    library.scene_set_log.restype = None
    return library
