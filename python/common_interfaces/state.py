# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""What a view is shown with: languages and texts, favourites, sessions."""
from __future__ import annotations

from . import _structures as s
from ._handle import Part, encode, int32
from .names import Object, name_object


class StateCalls(Part):
    """The state of a sky beside its view."""

    @property
    def language(self) -> str:
        """The code of the language of texts and names, which can be set.

        >>> sky.language = "de"
        >>> sky.title(sky.find("Polaris"))[:10]
        'Polarstern'
        >>> sky.language = "en"
        """
        return self._handle.needed_text("scene_get_language")

    @language.setter
    def language(self, code: str) -> None:
        self._handle.take_back()
        self._handle.call("scene_set_language", encode(code))

    @property
    def languages(self) -> dict[str, str]:
        """The languages of the data root by code, each in itself.

        >>> sky.languages["de"]
        'Deutsch'
        """
        found = [s.values(record) for record in self._handle.records("scene_get_languages", s.SceneLanguage)]
        return {str(language["code"]): str(language["name"]) for language in found}

    def text(self, number: int) -> str:
        """A text of the string table; "" for a number that it does not have."""
        return self._handle.text("scene_get_text", int32(number)) or ""

    def mark(self, object: Object, is_marked: bool = True) -> None:
        """Marks an object as a favourite, or takes the mark away.

        >>> sky.mark(sky.find("Sirius"))
        >>> list(sky.favourites.values())
        ['Sirius']
        """
        self._handle.call("scene_mark", object.as_argument(), int(bool(is_marked)))

    @property
    def favourites(self) -> dict[Object, str]:
        """The objects that are marked, with their names in the language of the texts."""
        found = self._handle.records("scene_get_favourites", s.SceneFavourite)
        return {name_object(record.object): (record.name or b"").decode("utf-8", "replace") for record in found}

    def format_favourites(self) -> str:
        """The favourites as the text of a favourites file."""
        return self._handle.needed_text("scene_format_favourites")

    def read_favourites(self, text: str) -> None:
        """Such a text in place of the favourites."""
        self._handle.call("scene_read_favourites", encode(text))

    def format_session(self) -> str:
        """All that the picture is drawn from, as the text of a session, which skyview opens too.

        >>> text = sky.format_session()
        >>> sky.read_session(text)
        """
        return self._handle.needed_text("scene_format_session")

    def read_session(self, text: str) -> None:
        """The view, settings, options and favourites of a session in place of those there are; language and size of
        the picture stay. What no longer fits is told in diagnostic lines (set_log)."""
        self._handle.take_back()
        self._handle.call("scene_read_session", encode(text))

    @property
    def session_language(self) -> str:
        """The language of the session read last; "" before the first."""
        return self._handle.text("scene_get_session_language") or ""
