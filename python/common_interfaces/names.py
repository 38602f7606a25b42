# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Objects as the library names them."""
from __future__ import annotations

from typing import NamedTuple

from . import _structures as s
from ._handle import int32
from .errors import BadArgument


class Object(NamedTuple):
    """A four-character code and a number, as records of frames and lists of favourites have them.

    >>> Object.of("star", 7001)
    Object(kind=1937006962, number=7001)
    >>> Object.of("star", 7001).code
    'star'
    """

    kind: int
    number: int

    @classmethod
    def of(cls, code: str, number: int) -> Object:
        """The object of a code of four characters, "star"."""
        data = code.encode("latin-1", "replace")
        if len(data) != 4:
            raise BadArgument(f"{code!r} has not four characters")
        return cls(int.from_bytes(data, "big", signed=True), number)

    @property
    def code(self) -> str:
        """The kind as characters."""
        return int(self.kind).to_bytes(4, "big", signed=True).decode("latin-1")

    def __bool__(self) -> bool:
        """False for none."""
        return self.kind != 0 or self.number != 0

    def as_argument(self) -> s.SceneObject:
        """As a function of the library takes it."""
        return s.SceneObject(int32(self.kind), int32(self.number))


def name_object(found: s.SceneObject) -> Object:
    """Of a structure that is the library's."""
    return Object(found.kind, found.number)
