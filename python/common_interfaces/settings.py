# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Settings, and the options that are no settings."""
from __future__ import annotations

import dataclasses
import enum
from collections.abc import Iterator, MutableMapping

from . import _structures as s
from ._handle import Handle, StrPath, encode


class FieldType(enum.IntEnum):
    """What values a field takes."""

    SWITCH = 0
    SUM = 1
    WHOLE = 2
    REAL = 3
    CHOICE = 4
    RANGE = 5
    OTHER = 6


@dataclasses.dataclass(frozen=True)
class Field:
    """A field of the settings."""

    section: str  # "star"
    name: str  # "Draw", or "@" and a hexadecimal number
    values: str  # as Settings.change takes them; "" where they are too long
    is_on: bool  # as a filter
    acts: bool  # False: no picture follows it
    type: FieldType
    count: int  # of values
    least: float  # of each value; not a number where there is no such range
    most: float
    title: str  # in the language of the texts
    choices: str  # of a choice or a sum, with commas between them

    @property
    def key(self) -> str:
        """By which Settings knows it, "star.Draw"."""
        return f"{self.section}.{self.name}"


class Settings(MutableMapping[str, str]):
    """The settings of a sky by section and name. What is changed is seen in the next frame.

    >>> sky.settings["grid.RADecGrid"]
    '0'
    >>> sky.settings["grid.RADecGrid"] = "1"
    >>> sky.settings["grid.RADecGrid"]
    '1'
    >>> sky.settings["grid.Nothing"]
    Traceback (most recent call last):
    KeyError: 'grid.Nothing'
    """

    def __init__(self, handle: Handle) -> None:
        self._handle = handle

    def change(self, change: str) -> None:
        """One change: "grid.RADecGrid=1", "star.MagnitudeLimit:on", "cnst:off", "SECTION.FIELD[INDEX]=VALUE"."""
        self._handle.call("scene_change_setting", encode(change))

    def read(self, file: StrPath) -> None:
        """Settings that are kept in a file, laid over the defaults."""
        self._handle.call("scene_read_settings", encode(file))

    def save(self, file: StrPath) -> None:
        """Keeps the settings in a file, which is replaced whole."""
        self._handle.call("scene_save_settings", encode(file))

    def fields(self) -> list[Field]:
        """All fields, section by section."""
        return [self._field(index) for index in range(len(self))]

    def field(self, key: str) -> Field:
        """The field of a section and name."""
        for field in self.fields():
            if field.key == key:
                return field
        raise KeyError(key)

    def __getitem__(self, key: str) -> str:
        return self.field(key).values

    def __setitem__(self, key: str, values: str) -> None:
        self.change(f"{key}={values}")

    def __delitem__(self, key: str) -> None:
        raise TypeError("a field of the settings cannot be deleted")

    def __iter__(self) -> Iterator[str]:
        return (field.key for field in self.fields())

    def __len__(self) -> int:
        return int(self._handle.run("scene_get_field_count"))

    def _field(self, index: int) -> Field:
        members = s.values(self._handle.fill("scene_get_field", s.SceneField, index))
        members["type"] = FieldType(members["type"])  # type: ignore[arg-type]
        members["is_on"], members["acts"] = bool(members["is_on"]), bool(members["acts"])
        return Field(**members)  # type: ignore[arg-type]


class Options(MutableMapping[str, str]):
    """The options of a sky by name, "" where one is not set; deleting takes one back.

    >>> sky.options["style"] = "print"
    >>> sky.options["style"]
    'print'
    >>> del sky.options["style"]
    >>> sky.options["style"]
    ''
    """

    def __init__(self, handle: Handle) -> None:
        self._handle = handle

    def accepted(self) -> dict[str, str]:
        """What each option takes.

        >>> sky.options.accepted()["style"]
        'screen|print|night|photo'
        """
        found = [s.values(record) for record in self._handle.records("scene_get_options", s.SceneOption)]
        return {str(option["name"]): str(option["values"]) for option in found}

    def __getitem__(self, name: str) -> str:
        value = self._handle.text("scene_get_option", encode(name))
        if value is None:
            raise KeyError(name)
        return value

    def __setitem__(self, name: str, value: str) -> None:
        self._handle.take_back()
        self._handle.call("scene_set_option", encode(name), encode(value))

    def __delitem__(self, name: str) -> None:
        self[name] = ""

    def __iter__(self) -> Iterator[str]:
        return iter(self.accepted())

    def __len__(self) -> int:
        return len(self.accepted())
