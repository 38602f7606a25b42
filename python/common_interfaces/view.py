# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Views: from where, when and where to; pixels and directions."""
from __future__ import annotations

import ctypes
import dataclasses

import numpy as np
import numpy.typing as npt

from . import _structures as s
from ._handle import Part, StrPath, encode, int32
from .errors import BadArgument
from .names import Object

Floats = npt.NDArray[np.float64]


@dataclasses.dataclass(frozen=True)
class View:
    """Where the picture is looked at from, when, and where to.

    >>> View(latitude=52.5, longitude=13.4, julian_date=2461056.375, azimuth=180, altitude=35).width
    1600
    """

    latitude: float  # degrees, north positive, -90 to 90
    longitude: float  # degrees, east positive, -360 to 360
    julian_date: float  # of Universal Time; the year -9999 to 9999
    azimuth: float  # degrees of the middle of the picture, from north over east, 0 to 360
    altitude: float  # degrees, -90 to 90
    zoom: float = 1.0  # 0.25 to 10000; zoom 1 shows 37 degrees from the middle to a corner
    width: int = 1600  # pixels, 64 to 16384
    height: int = 1000


def _as_rows(values: npt.ArrayLike, columns: int) -> Floats:
    array = np.ascontiguousarray(values, np.float64)
    if array.ndim == 0 or array.shape[-1] != columns:
        raise BadArgument(f"an array of shape (..., {columns}) is needed, not {array.shape}")
    return array


def _address(array: Floats) -> int:
    return array.ctypes.data


class ViewCalls(Part):
    """The view of a sky."""

    @property
    def view(self) -> View:
        """The view, which can be set.

        >>> sky.view = View(52.5, 13.4, 2461056.375, azimuth=180, altitude=35)
        >>> sky.view.azimuth
        180.0
        """
        found = s.values(self._handle.fill("scene_get_view", s.SceneView))
        return View(**found)  # type: ignore[arg-type]

    @view.setter
    def view(self, view: View) -> None:
        members = dataclasses.asdict(view)
        for name in ("width", "height"):
            members[name] = int32(members[name])
        self._handle.call("scene_set_view", ctypes.byref(s.make(s.SceneView, **members)))

    def change_view(self, **changes: float) -> None:
        """The view with other values of the members that are named.

        >>> sky.change_view(zoom=2, azimuth=170)
        >>> sky.view.zoom, sky.view.azimuth
        (2.0, 170.0)
        """
        self.view = dataclasses.replace(self.view, **changes)

    def read_view(self, file: StrPath, number: int) -> None:
        """The view of that number in a file of saved views, a path or a logical name as "views:orion.data"."""
        self._handle.call("scene_read_view", encode(file), int32(number))

    def save_view(self, file: StrPath, number: int) -> None:
        """Keeps the view in a file; other views in it stay."""
        self._handle.call("scene_save_view", encode(file), int32(number))

    def look_at(self, object: Object) -> None:
        """Turns the view so that the object is in the middle of the picture."""
        self._handle.call("scene_look_at", object.as_argument())

    def turn(self, direction: npt.ArrayLike, x: float, y: float) -> None:
        """Turns the view so that a direction, as `project` takes it, stands under a pixel; the horizon stays level."""
        vector = _as_rows(direction, 3)
        if vector.size != 3:
            raise BadArgument("one direction is needed")
        self._handle.call("scene_turn", _address(vector), x, y)

    def project(self, directions: npt.ArrayLike) -> Floats:
        """Pixels, shape (..., 2), of directions, shape (..., 3): unit vectors of the mean equator and equinox of J2000,
        as they stand in the frame without aberration and refraction. What lies exactly opposite to its middle is not a number.

        >>> pixels = sky.project(to_vectors([83.8, 88.8], [-5.4, 7.4]))
        >>> pixels.shape
        (2, 2)
        """
        return self._convert("scene_project", directions, 3, 2)

    def unproject(self, pixels: npt.ArrayLike) -> Floats:
        """Directions, shape (..., 3), of pixels, shape (..., 2): the other way round.

        >>> vectors = sky.unproject([[800, 500], [10, 20]])
        >>> bool(np.allclose(sky.project(vectors), [[800, 500], [10, 20]]))
        True
        """
        return self._convert("scene_unproject", pixels, 2, 3)

    def _convert(self, name: str, values: npt.ArrayLike, columns: int, made_columns: int) -> Floats:
        given = _as_rows(values, columns)
        made = np.empty((*given.shape[:-1], made_columns))
        self._handle.call(name, _address(given), _address(made), int32(given.size // columns))
        return made


def to_vectors(right_ascension: npt.ArrayLike, declination: npt.ArrayLike) -> Floats:
    """Unit vectors, shape (..., 3), of angles in degrees, shapes (...).

    >>> to_vectors(90.0, 0.0).round(3).tolist()
    [0.0, 1.0, 0.0]
    """
    longitude, latitude = np.radians(right_ascension), np.radians(declination)
    x, y = np.cos(latitude) * np.cos(longitude), np.cos(latitude) * np.sin(longitude)
    return np.stack(np.broadcast_arrays(x, y, np.sin(latitude)), axis=-1)


def to_angles(vectors: npt.ArrayLike) -> tuple[Floats, Floats]:
    """Right ascensions, 0 to 360, and declinations in degrees, shapes (...), of vectors of any length, (..., 3).

    >>> [float(angle) for angle in to_angles([0.0, -2.0, 0.0])]
    [270.0, 0.0]
    """
    x, y, z = np.moveaxis(_as_rows(vectors, 3), -1, 0)
    return np.degrees(np.arctan2(y, x)) % 360.0, np.degrees(np.arctan2(z, np.hypot(x, y)))
