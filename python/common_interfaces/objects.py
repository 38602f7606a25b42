# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Objects: their names, what is known of them, where they stand, why they are drawn or not."""
from __future__ import annotations

import ctypes
import dataclasses
import enum
from typing import Any, TypeVar

import numpy as np

from . import _structures as s
from ._handle import Part, encode, int32
from .errors import BadArgument
from .names import Object, name_object
from .view import Floats

Made = TypeVar("Made")


@dataclasses.dataclass(frozen=True)
class Sight:
    """An object as the observer of the view sees it, degrees; not a number: unknown, or without a meaning."""

    right_ascension: float  # astrometric, J2000; likewise the declination
    declination: float
    right_ascension_of_date: float  # apparent; likewise the declination
    declination_of_date: float
    azimuth: float  # apparent, without refraction; likewise the altitude
    altitude: float
    distance: float  # au
    magnitude: float  # visual
    diameter: float  # apparent
    phase_angle: float  # Sun - body - observer
    elongation: float  # from the Sun


@dataclasses.dataclass(frozen=True)
class Suggestion:
    """A name that begins like what was typed."""

    object: Object
    name: str  # the one that begins so
    title: str  # the best known one, in the language of the texts
    kind: str  # "star"; "" where there is no word


class FactKind(enum.IntEnum):
    """What a fact is about."""

    NAME = 0
    OTHER_NAMES = 1
    KIND = 2
    CONSTELLATION = 3
    SPECTRAL_TYPE = 4
    J2000 = 5
    OF_DATE = 6
    DIRECTION = 7
    REFRACTION = 8
    DISTANCE = 9
    MAGNITUDE = 10
    SIZE = 11
    BESIDES = 12
    RISE = 13
    TRANSIT = 14
    SET = 15
    WARNING = 16


@dataclasses.dataclass(frozen=True)
class Fact:
    """A line about an object, in the language of the texts."""

    kind: int  # FactKind; later versions of the library may know more
    caption: str  # "" where the text says it all
    text: str


class ReasonKind(enum.IntEnum):
    """What a reason tells."""

    DRAWN = 0
    HIDDEN = 1
    LABEL = 2
    ZOOM = 3


@dataclasses.dataclass(frozen=True)
class Reason:
    """Why an object is drawn, or is not."""

    kind: int  # ReasonKind; later versions of the library may know more
    text: str
    fix: str  # the change of a setting that ends it (Settings.change); "" for none


@dataclasses.dataclass(frozen=True)
class Day:
    """An object's way over the horizon, Julian dates of Universal Time and degrees; not a number: does not happen."""

    stays: int  # -1 below the horizon all day, 1 above it, 0 neither
    rise: float
    transit: float
    set: float
    rise_azimuth: float
    transit_altitude: float  # without refraction
    set_azimuth: float


@dataclasses.dataclass(frozen=True)
class Spot:
    """What lies at a pixel, degrees."""

    is_ground: bool
    right_ascension: float  # J2000; likewise the declination
    declination: float
    azimuth: float  # as it is seen; likewise the altitude
    altitude: float
    constellation: str


class ObjectCalls(Part):
    """What a sky knows of objects."""

    def find(self, name: str) -> Object:
        """The one object of that name; NotFound where there is none, or more than one.

        >>> sky.title(sky.find("M 31"))
        'M 31 (NGC 224, Andromeda Galaxy, PGC 2557, UGC 454)'
        """
        found = s.SceneObject()
        self._handle.call("scene_find", encode(name), ctypes.byref(found))
        return name_object(found)

    def suggest(self, text: str, most: int = 10) -> list[Suggestion]:
        """Objects of which a name begins so, the best first, at most 1 to 100 of them.

        >>> [(found.name, found.kind) for found in sky.suggest("jup", 1)]
        [('Jupiter', 'Planet')]
        """
        found = self._handle.records("scene_suggest", s.SceneSuggestion, encode(text), int32(most))
        return [Suggestion(**_named(record)) for record in found]

    def title(self, object: Object) -> str | None:
        """All names of an object; None for one that is not in the catalogs."""
        return self._handle.text("scene_get_title", object.as_argument())

    def observe(self, object: Object) -> Sight:
        """How the observer of the view sees the object at its moment.

        >>> round(sky.observe(sky.find("Sirius")).declination, 1)
        -16.7
        """
        return _fill(self, "scene_observe", s.SceneSight, Sight, object.as_argument())

    def facts(self, object: Object) -> list[Fact]:
        """What is known of an object, in the order in which people read it.

        >>> [fact.text for fact in sky.facts(sky.find("Sirius")) if fact.kind == FactKind.CONSTELLATION]
        ['Canis Major']
        """
        found = self._handle.records("scene_get_facts", s.SceneFact, object.as_argument())
        return [Fact(**s.values(record)) for record in found]  # type: ignore[arg-type]

    def explain(self, object: Object) -> list[Reason]:
        """Why the object is drawn, or is not, in the frame computed last."""
        found = self._handle.records("scene_explain", s.SceneReason, object.as_argument())
        return [Reason(**s.values(record)) for record in found]  # type: ignore[arg-type]

    def day(self, object: Object) -> Day:
        """The object's way over the horizon on the day of the view, from midnight to midnight by the clocks of its
        zone; what does not happen then, the next time after it."""
        return _fill(self, "scene_get_day", s.SceneDay, Day, object.as_argument())

    def altitudes(self, object: Object, begin: float, end: float, count: int) -> Floats:
        """Altitudes in degrees without refraction, shape (count,), at moments evenly spread from one Julian date to
        another, both among them; not a number where nobody can tell."""
        if not 0 <= int32(count) <= 10**8:
            raise BadArgument(f"{count} altitudes are out of the range 0 to 100000000")
        made = np.empty(count)
        self._handle.call("scene_sample_altitudes", object.as_argument(), begin, end, made.ctypes.data, count)
        return made

    def describe_pixel(self, x: float, y: float) -> Spot:
        """What lies at a pixel where no object is drawn."""
        found = _fill(self, "scene_describe_pixel", s.SceneSpot, Spot, x, y)
        return dataclasses.replace(found, is_ground=bool(found.is_ground))

    def pick(self, x: float, y: float, tolerance: float = 4.0) -> list[Object]:
        """The objects of the last frame at a pixel, or at most that many pixels beside it, the uppermost first."""
        room = 64
        while True:
            objects, count = (s.SceneObject * room)(), ctypes.c_int32()
            self._handle.call("scene_pick", x, y, tolerance, objects, room, ctypes.byref(count))
            if count.value <= room:
                return [name_object(objects[index]) for index in range(count.value)]
            room = count.value


def _named(record: ctypes.Structure) -> dict[str, Any]:
    """The members of a record, objects by their names."""
    return {name: name_object(value) if isinstance(value, s.SceneObject) else value
            for name, value in s.values(record).items()}


def _fill(part: Part, name: str, structure: type[s.Structure], kind: type[Made], *arguments: object) -> Made:
    return kind(**s.values(part._handle.fill(name, structure, *arguments)))
