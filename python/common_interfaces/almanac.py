# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""The almanac: the night, events, cities and their clocks."""
from __future__ import annotations

import ctypes
import dataclasses
import enum

from . import _structures as s
from ._handle import Part, encode, int32, walk
from .errors import BadData
from .names import Object
from .objects import _named


class Darkness(enum.IntEnum):
    """The deepest darkness that a night has, by the altitude of the Sun."""

    NONE = 0
    SUNSET = 1
    CIVIL = 2
    NAUTICAL = 3
    ASTRONOMICAL = 4


@dataclasses.dataclass(frozen=True)
class Night:
    """A night from noon to noon. Moments are Julian dates of Universal Time; not a number: does not happen in it."""

    darkness: Darkness
    begin: float  # the Sun's transits before and after it
    end: float
    middle: float  # the Sun's lowest point
    sunset: float  # of the upper limb
    sunrise: float
    civil_dusk: float
    civil_dawn: float
    nautical_dusk: float
    nautical_dawn: float
    astronomical_dusk: float
    astronomical_dawn: float
    moonrise: float  # the first from the beginning of the night; likewise the set
    moonset: float
    moon_phase_angle: float  # degrees at the middle of the night: 0 full, 180 new
    moon_lit: float  # 0 to 1
    moon_waxes: bool
    moon_phase: str  # "waxing crescent"


@dataclasses.dataclass(frozen=True)
class Event:
    """Something that happens in the sky. Moments are Julian dates of Universal Time."""

    julian_date: float
    begin: float  # of what lasts; else the moment itself
    end: float
    value: float  # degrees, km, au or what the kind has
    body: Object  # false: none
    other: Object  # the second one: likewise
    kind: str  # "full-moon"
    group: str  # "phases"
    text: str
    is_of_place: bool  # at another time, or not at all, elsewhere on the Earth


class IncompleteEvents(BadData):
    """For a part of the span nobody can tell; `events` has the others."""

    events: list[Event]


@dataclasses.dataclass(frozen=True)
class City:
    """A city, degrees and metres."""

    latitude: float
    longitude: float
    height: float  # 0: unknown
    population: int
    name: str
    country: str  # "AU"
    country_name: str
    zone: str  # of the IANA database


class AlmanacCalls(Part):
    """The almanac of a sky."""

    def night(self) -> Night:
        """The night that is on at the moment of the view, or the next one.

        >>> night = sky.night()
        >>> night.sunset < night.middle < night.sunrise
        True
        """
        members = s.values(self._handle.fill("scene_get_night", s.SceneNight))
        members["darkness"] = Darkness(members["darkness"])  # type: ignore[arg-type]
        members["moon_waxes"] = bool(members["moon_waxes"])
        return Night(**members)  # type: ignore[arg-type]

    def events(self, begin: float, end: float, kinds: str | None = None) -> list[Event]:
        """What happens from a Julian date to before another, at most 400 days apart, in the order of time. `kinds` are
        names of kinds or groups with commas between them; None: all but those of every day.

        >>> [event.kind for event in sky.events(2461040.5, 2461070.5, "full-moon,new-moon")]
        ['full-moon', 'new-moon']
        """
        array = s.make(s.SceneArray)
        asked = None if kinds is None else encode(kinds)
        try:
            self._handle.call("scene_find_events", begin, end, asked, ctypes.byref(array))
        except BadData as error:
            incomplete = IncompleteEvents(str(error))
            incomplete.events = _make_events(array)
            raise incomplete from None
        return _make_events(array)

    def cities(self, text: str = "", most: int = 20) -> list[City]:
        """Cities of which a name begins so, those with the most inhabitants first, at most 1 to 100000 of them; behind
        a comma the country may stand.

        >>> [(city.name, city.zone) for city in sky.cities("Sydney, Australia", 1)]
        [('Sydney', 'Australia/Sydney')]
        """
        found = self._handle.records("scene_find_cities", s.SceneCity, encode(text), int32(most))
        return [City(**s.values(record)) for record in found]  # type: ignore[arg-type]

    def cities_near(self, latitude: float, longitude: float, most: int = 1) -> list[City]:
        """The cities nearest to a place, the nearest first, at most 1 to 100000 of them."""
        found = self._handle.records("scene_find_cities_near", s.SceneCity, latitude, longitude, int32(most))
        return [City(**s.values(record)) for record in found]  # type: ignore[arg-type]

    def zone_offset(self, zone: str, julian_date: float) -> float:
        """Local time minus Universal Time, in hours, in a zone of the IANA database at a moment.

        >>> sky.zone_offset("Europe/Berlin", 2461056.375)
        1.0
        """
        hours = ctypes.c_double()
        self._handle.call("scene_get_zone_offset", encode(zone), julian_date, ctypes.byref(hours))
        return hours.value


def _make_events(array: s.SceneArray) -> list[Event]:
    made = [Event(**_named(record)) for record in walk(array, s.SceneEvent)]
    return [dataclasses.replace(event, is_of_place=bool(event.is_of_place)) for event in made]
