# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""What goes wrong, as exceptions. Their text is the library's own line."""
from __future__ import annotations


class SceneError(Exception):
    """A call that the library refused; unless a method says otherwise it has changed nothing.

    >>> issubclass(NotFound, LookupError)
    True
    """


class BadArgument(SceneError, ValueError):
    """A value out of its range, an unknown name of a setting or option, a text that cannot be passed on."""


class BadData(SceneError):
    """A file is missing or damaged, or cannot be written."""


class NotFound(SceneError, LookupError):
    """No such object, or nobody can tell where it is at that moment."""


class OutOfMemory(SceneError, MemoryError):
    """The library found no memory."""


class Refused(SceneError):
    """Anything else that the system refused."""


class FrameInUse(SceneError, BufferError):
    """Arrays of the last frame are still in use, and the call would take their memory away."""


_STATUS: dict[int, type[SceneError]] = {1: BadArgument, 2: BadData, 3: NotFound, 4: OutOfMemory, 5: Refused}


def make_error(status: int, line: str) -> SceneError:
    """The exception of a SceneStatus that is not SCENE_OK."""
    kind = _STATUS.get(status, Refused)
    return kind(line or ("no memory" if kind is OutOfMemory else f"refused, status {status}"))
