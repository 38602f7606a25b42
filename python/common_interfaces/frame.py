# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Frames: what a view shows, as arrays."""
from __future__ import annotations

import dataclasses
from collections.abc import Callable
from typing import Any

import numpy as np
import numpy.typing as npt

from . import _structures as s
from ._handle import Handle, Part, int32
from .errors import FrameInUse, SceneError
from .records import ARRAYS

Records = npt.NDArray[Any]


class Frame:
    """The arrays of a frame. The records of each are those of `common_interfaces.records`, in one dimension.

    They are the library's own memory and cannot be written. A frame lives until the next one is computed, which is
    refused (FrameInUse) as long as one of its arrays, or of the pieces of them, is in use; `copy` is for keeping.

    >>> frame = sky.compute()
    >>> points = frame.points
    >>> points.shape == (len(points),) and not points.flags.writeable
    True
    >>> sky.compute()
    Traceback (most recent call last):
    common_interfaces.errors.FrameInUse: arrays of the last frame are still in use: keep copies instead (Frame.copy)
    >>> del points
    >>> kept = sky.compute().copy()
    >>> later = sky.compute()
    """

    def __init__(self, take: Callable[[str], Records]) -> None:
        self._take = take

    def copy(self) -> Frame:
        """The same in memory of its own, which stays."""
        return Frame({name: self._take(name).copy() for name in ARRAYS}.__getitem__)

    @property
    def runs(self) -> Records:
        """In which order the others are painted: `count` records of `type` from `first` on, of one `layer`."""
        return self._take("runs")

    @property
    def points(self) -> Records:
        """Filled circles: stars, and bodies too small for a disc."""
        return self._take("points")

    @property
    def discs(self) -> Records:
        """Bodies with a phase."""
        return self._take("discs")

    @property
    def globes(self) -> Records:
        """Bodies whose surface is seen."""
        return self._take("globes")

    @property
    def shadows(self) -> Records:
        """Shadows on discs."""
        return self._take("shadows")

    @property
    def polylines(self) -> Records:
        """Lines through `count` vertices from `first` on."""
        return self._take("polylines")

    @property
    def ellipses(self) -> Records:
        """Outlines of ellipses."""
        return self._take("ellipses")

    @property
    def polygons(self) -> Records:
        """Areas bounded by `count` rings from `first` on."""
        return self._take("polygons")

    @property
    def gradients(self) -> Records:
        """Areas of four corners whose colour changes along a line."""
        return self._take("gradients")

    @property
    def meshes(self) -> Records:
        """Rectangles of colours that blend into each other."""
        return self._take("meshes")

    @property
    def texts(self) -> Records:
        """Lines of text; `strings` has what they say."""
        return self._take("texts")

    @property
    def rings(self) -> Records:
        """Closed lines through `count` vertices from `first` on."""
        return self._take("rings")

    @property
    def vertices(self) -> npt.NDArray[np.float32]:
        """Shape (n, 2): x and y of each."""
        return self._take("vertices").view("<f4").reshape(-1, 2)

    @property
    def colours(self) -> npt.NDArray[np.uint8]:
        """Shape (n, 4): red, green, blue, opacity."""
        return self._take("colours").view("u1").reshape(-1, 4)

    @property
    def text_bytes(self) -> npt.NDArray[np.uint8]:
        """UTF-8 of all texts: those of a record are `length` from `first` on."""
        return self._take("text_bytes")

    def strings(self) -> list[str]:
        """What the texts say, in their order."""
        data = self.text_bytes.tobytes()
        return [data[text["first"]:text["first"] + text["length"]].decode("utf-8", "replace") for text in self.texts]


@dataclasses.dataclass(frozen=True)
class FrameSummary:
    """What a frame shows: how many of each, limiting magnitudes, degrees."""

    stars: int
    deepsky: int
    bodies: int
    asteroids: int
    satellites: int
    star_limit: float
    label_limit: float
    deepsky_limit: float
    field_width: float
    field_height: float
    sun_altitude: float  # without refraction; not a number for a traveller


def _taker(handle: Handle) -> Callable[[str], Records]:
    number = handle.frame

    def take(name: str) -> Records:
        if handle.frame != number:
            raise FrameInUse("the frame is gone: another has been computed, or the sky was changed")
        kind, dtype = ARRAYS[name]
        array = handle.fill("scene_get_array", s.SceneArray, int32(kind))
        if array.record_size != dtype.itemsize:
            raise SceneError(f"the library's {name} have {array.record_size} bytes each, not {dtype.itemsize}")
        if not array.count:
            return np.empty(0, dtype)
        return handle.lend(array.records, array.count * array.record_size).view(dtype)

    return take


class FrameCalls(Part):
    """Computing frames."""

    def compute(self) -> Frame:
        """The frame of the view as it is now.

        >>> sky.look_at(sky.find("Sirius"))
        >>> frame = sky.compute()
        >>> len(frame.points) > 1000, frame.vertices.shape[1], "Sirius" in frame.strings()
        (True, 2, True)
        """
        self._handle.take_back()
        self._handle.call("scene_compute")
        return Frame(_taker(self._handle))

    def describe_frame(self) -> FrameSummary:
        """What the frame computed last shows."""
        return FrameSummary(**s.values(self._handle.fill("scene_describe_frame", s.SceneFrame)))  # type: ignore[arg-type]

    def set_enlargement(self, enlargement: float) -> None:
        """How many times larger lines, points and texts are from the next frame on: 0.25 to 8."""
        self._handle.call("scene_set_enlargement", enlargement)

    def map_path(self, index: int) -> str | None:
        """The file of the map that a globe names by its index; None for an index that has none."""
        return self._handle.text("scene_get_map", int32(index))
