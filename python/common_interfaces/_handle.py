# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""The open sky of the library, and how its functions are called."""
from __future__ import annotations

import ctypes
import os
import threading
from collections.abc import Iterator
from typing import Any

import numpy as np
import numpy.typing as npt

from . import _structures as s
from ._library import load
from .errors import BadArgument, FrameInUse, SceneError, make_error

StrPath = str | os.PathLike[str]


def encode(text: StrPath) -> bytes:
    """UTF-8 for the library, whose texts end at the first zero."""
    path = os.fspath(text)
    try:
        data = path.encode("utf-8")
    except UnicodeEncodeError:
        if path is text:
            raise BadArgument(f"no UTF-8 can be made of {text!r}") from None
        data = os.fsencode(path)
    if b"\0" in data:
        raise BadArgument(f"a zero in {path!r}")
    return data


def int32(number: int) -> int:
    """The number, which ctypes would cut off where it has more than 32 bits."""
    if not -2**31 <= number < 2**31:
        raise BadArgument(f"{number} has more than 32 bits")
    return int(number)


class Memory:
    """Memory of the library as NumPy takes it; as long as an array of it lives the sky stays open."""

    def __init__(self, handle: Handle, address: int, size: int) -> None:
        self._handle = handle
        self.__array_interface__ = {"data": (address, True), "shape": (size,), "typestr": "|u1", "version": 3}
        handle.lent.add(id(self))

    def __del__(self) -> None:
        self._handle.lent.discard(id(self))
        self._handle.close_when_free()


class Handle:
    """A SceneSky."""

    def __init__(self, data: StrPath, work: StrPath | None, language: str | None) -> None:
        self._sky = ctypes.c_void_p()
        self._is_closing = False
        self._library = load()
        self._thread = threading.get_ident()
        self.lent: set[int] = set()  # the pieces of memory that are in use
        self.frame = 0  # how many have been computed
        roots = s.make(s.SceneRoots, data=encode(data), work=None if work is None else encode(work),
                       language=None if language is None else encode(language))
        status = self._library.scene_open(ctypes.byref(roots), ctypes.byref(self._sky))
        if status and self._sky:
            error = self._make_error(status)
            self.close()
            raise error
        if status:
            raise make_error(status, "the sky cannot be opened: one is open already, or still has arrays in use")

    def close(self) -> None:
        """Closes the sky as soon as none of its memory is in use."""
        self._is_closing = True
        self.close_when_free()

    def close_when_free(self) -> None:
        """Called whenever a piece of memory comes back. An exception that somebody keeps does not hold a sky open."""
        if self._is_closing and not self.lent and self._sky:
            self._library.scene_close(self._sky)
            self._sky = ctypes.c_void_p()

    def __del__(self) -> None:
        if hasattr(self, "lent"):
            self.close()

    def _make_error(self, status: int) -> SceneError:
        line = self._library.scene_error(self._sky) or b""
        return make_error(status, line.decode("utf-8", "replace"))

    def run(self, name: str, *arguments: object) -> Any:
        """What the function returns."""
        if threading.get_ident() != self._thread:
            raise SceneError("a sky is used by the thread that has opened it alone")
        if self._is_closing:
            raise SceneError("the sky is closed")
        return getattr(self._library, name)(self._sky, *arguments)

    def call(self, name: str, *arguments: object) -> None:
        """Runs a function that returns a status; raises what it says."""
        status = self.run(name, *arguments)
        if status:
            raise self._make_error(status)

    def text(self, name: str, *arguments: object) -> str | None:
        """Runs a function that returns a text; None: it returned none."""
        found = self.run(name, *arguments)
        return None if found is None else found.decode("utf-8", "replace")

    def needed_text(self, name: str) -> str:
        """The same where no text is a failure."""
        found = self.text(name)
        if found is None:
            raise self._make_error(2)
        return found

    def fill(self, name: str, structure: type[s.Structure], *arguments: object) -> s.Structure:
        """A structure that begins with its size, filled by the function; arguments stand before it."""
        made = s.make(structure)
        self.call(name, *arguments, ctypes.byref(made))
        return made

    def records(self, name: str, kind: type[s.Structure], *arguments: object) -> Iterator[s.Structure]:
        """The records of a list, which are the library's until the function is called again."""
        return walk(self.fill(name, s.SceneArray, *arguments), kind)

    def lend(self, address: int, size: int) -> npt.NDArray[np.uint8]:
        """Bytes of the last frame, not copied."""
        return np.asarray(Memory(self, address, size))

    def take_back(self) -> None:
        """Before the memory of the last frame goes."""
        if self.lent:
            raise FrameInUse("arrays of the last frame are still in use: keep copies instead (Frame.copy)")
        self.frame += 1


def walk(array: s.SceneArray, kind: type[s.Structure]) -> Iterator[s.Structure]:
    """The records of a filled list: later versions of the library have longer ones."""
    if array.count and array.record_size < ctypes.sizeof(kind):
        raise SceneError(f"the library's {kind.__name__} is shorter than this package knows it")
    for index in range(array.count):
        yield kind.from_address(array.records + index * array.record_size)


class Part:
    """What a sky can do in one subject; together they are the class Sky."""

    _handle: Handle
