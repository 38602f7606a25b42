# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
import common_interfaces as ci
import pytest


def test_settings_have_every_field_once(sky):
    keys = list(sky.settings)
    assert len(keys) == len(set(keys)) == len(sky.settings) > 100
    assert all(field.section and field.name for field in sky.settings.fields())


def test_settings_are_saved_and_read(sky, tmp_path):
    file = tmp_path / "settings.data"
    sky.settings["grid.RADecGrid"] = "1"
    sky.settings.save(file)
    sky.settings["grid.RADecGrid"] = "0"
    sky.settings.read(file)
    assert sky.settings["grid.RADecGrid"] == "1"


@pytest.mark.parametrize("change", ["grid.RADecGrid=5000000000", "grid.Nothing=1", "nothing", ""])
def test_change_that_is_none_is_refused(sky, change):
    before = dict(sky.settings)
    with pytest.raises(ci.BadArgument):
        sky.settings.change(change)
    assert dict(sky.settings) == before


def test_field_says_what_it_takes(sky):
    field = sky.settings.field("star.Draw")
    assert (field.type, field.count, field.acts) == (ci.FieldType.SWITCH, 1, True)
    with pytest.raises(TypeError):
        del sky.settings["star.Draw"]


def test_option_changes_the_frame(sky):
    plain = len(sky.compute().copy().polylines)
    sky.options["orbits"] = "planets"
    assert len(sky.compute().polylines) > plain
    del sky.options["orbits"]
    assert len(sky.compute().polylines) == plain


def test_options_refuse_what_they_do_not_know(sky):
    with pytest.raises(KeyError):
        sky.options["colour"]
    with pytest.raises(ci.BadArgument):
        sky.options["colour"] = "blue"
    with pytest.raises(ci.BadArgument):
        sky.options["bortle"] = "12"
    assert "colour" not in sky.options
    assert dict(sky.options)["bortle"] == ""


def test_languages_change_names_and_texts(sky):
    assert {"en", "de", "ru"} <= set(sky.languages)
    sky.language = "ru"
    assert sky.language == "ru"
    assert sky.title(sky.find("Sirius")).startswith("Сириус")
    with pytest.raises(ci.SceneError):
        sky.language = "xx"
    assert sky.language == "ru"


def test_text_of_an_unknown_number_is_empty(sky):
    assert sky.text(2**31 - 1) == ""
    with pytest.raises(ci.BadArgument):
        sky.text(2**31)


def test_favourites_come_back_from_their_text(sky):
    sky.mark(sky.find("Sirius"))
    sky.mark(sky.find("M 31"))
    text, marked = sky.format_favourites(), sky.favourites
    assert len(marked) == 2
    sky.mark(sky.find("M 31"), False)
    assert len(sky.favourites) == 1
    sky.read_favourites(text)
    assert sky.favourites == marked


def test_bad_line_of_favourites_is_told(sky, lines):
    sky.read_favourites("this is no favourite\n")
    assert len(lines) == 1 and not lines[0].endswith("\n")


def test_session_restores_what_was_seen(sky):
    sky.settings["grid.RADecGrid"] = "1"
    sky.options["bortle"] = "4"
    sky.mark(sky.find("Sirius"))
    view, session = sky.view, sky.format_session()
    sky.change_view(azimuth=5.0, zoom=4.0)
    sky.settings["grid.RADecGrid"] = "0"
    sky.options["bortle"] = ""
    sky.mark(sky.find("Sirius"), False)
    sky.read_session(session)
    assert sky.view.azimuth == pytest.approx(view.azimuth) and sky.view.zoom == pytest.approx(view.zoom)
    assert sky.settings["grid.RADecGrid"] == "1"
    assert sky.options["bortle"] == "4"
    assert list(sky.favourites) == [sky.find("Sirius")]
    assert sky.session_language == "en"


def test_damaged_session_changes_nothing(sky):
    session = sky.format_session()
    with pytest.raises(ci.BadData):
        sky.read_session(session[:len(session) // 2])
    assert sky.format_session() == session
