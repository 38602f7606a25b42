# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""The sky of a desktop planetarium: views, frames as NumPy arrays, positions, names, events.

Angles are degrees, azimuth counts from north over east, moments are Julian dates of Universal Time, pixels count from the
upper left corner, y down. What fails raises a SceneError with the line of the library.
"""
from .almanac import City, Darkness, Event, IncompleteEvents, Night
from .errors import BadArgument, BadData, FrameInUse, NotFound, OutOfMemory, Refused, SceneError
from .frame import Frame, FrameSummary
from .moments import to_datetime, to_julian_date
from .names import Object
from .objects import Day, Fact, FactKind, Reason, ReasonKind, Sight, Spot, Suggestion
from .settings import Field, FieldType, Options, Settings
from .sky import Sky, set_log
from .view import View, to_angles, to_vectors

__all__ = [
    "BadArgument", "BadData", "City", "Darkness", "Day", "Event", "Fact", "FactKind", "Field", "FieldType", "Frame",
    "FrameInUse", "FrameSummary", "IncompleteEvents", "Night", "NotFound", "Object", "Options", "OutOfMemory", "Reason",
    "ReasonKind", "Refused", "SceneError", "Settings", "Sight", "Sky", "Spot", "Suggestion", "View", "set_log",
    "to_angles", "to_datetime", "to_julian_date", "to_vectors",
]
