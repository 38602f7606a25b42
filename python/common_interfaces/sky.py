# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""The sky."""
from __future__ import annotations

import atexit
from collections.abc import Callable
from types import TracebackType

from ._handle import Handle, StrPath
from ._library import Log, find_data, load
from .almanac import AlmanacCalls
from .frame import FrameCalls
from .objects import ObjectCalls
from .settings import Options, Settings
from .state import StateCalls
from .view import ViewCalls


class Sky(ViewCalls, FrameCalls, ObjectCalls, AlmanacCalls, StateCalls):
    """An open data root with a view.

    `data` is the data root; None: what COMMON_INTERFACES_DATA names, else the one that the package carries. `work` is a
    folder whose files hide those of the data root. One sky is open at a time, and the thread that opened it uses it.

    >>> import common_interfaces
    >>> with common_interfaces.Sky(language="en") as sky:
    ...     sky.look_at(sky.find("Jupiter"))
    ...     frame = sky.compute()
    ...     "Jupiter" in frame.strings()
    True
    """

    def __init__(self, data: StrPath | None = None, work: StrPath | None = None, language: str | None = None) -> None:
        self._handle = Handle(find_data() if data is None else data, work, language)

    @property
    def settings(self) -> Settings:
        """The settings."""
        return Settings(self._handle)

    @property
    def options(self) -> Options:
        """The options that are no settings: style, landscape, darkness of the site, instruments."""
        return Options(self._handle)

    def close(self) -> None:
        """Ends it, at once or with the last array of its frame; until then no other sky opens."""
        self._handle.close()

    def __enter__(self) -> Sky:
        return self

    def __exit__(self, kind: type[BaseException] | None, error: BaseException | None,
                 traceback: TracebackType | None) -> None:
        self.close()


_log: object = None  # as long as the library may call it


def set_log(receiver: Callable[[str], None] | None) -> None:
    """Who receives the diagnostic lines of the library, without their line feeds; None: standard error again.

    >>> lines = []
    >>> set_log(lines.append)
    >>> set_log(None)
    """
    global _log
    if receiver is None:
        made = Log(0)
    else:
        hand_over = receiver
        made = Log(lambda text, _: hand_over(text.decode("utf-8", "replace").rstrip("\n")))
    load().scene_set_log(made, None)
    _log = made


atexit.register(lambda: set_log(None) if _log else None)  # nobody is there to receive when Python ends
