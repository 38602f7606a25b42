# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
import datetime
import math
import subprocess
import sys
import threading

import common_interfaces as ci
import pytest


def test_missing_data_root_is_one_line(tmp_path):
    with pytest.raises(ci.BadData) as caught:
        ci.Sky(tmp_path)
    assert str(caught.value) and "\n" not in str(caught.value)
    ci.Sky().close()  # the failed one is gone


def test_second_sky_is_refused(sky):
    with pytest.raises(ci.SceneError, match="open already"):
        ci.Sky()


def test_closed_sky_is_refused(sky):
    sky.close()
    for use in (sky.compute, sky.night, lambda: sky.view, lambda: sky.settings.fields()):
        with pytest.raises(ci.SceneError, match="closed"):
            use()


def test_error_that_is_kept_holds_no_sky_open():
    sky = ci.Sky()
    with pytest.raises(ci.NotFound) as caught:
        sky.find("No Such Thing")
    sky.close()
    ci.Sky().close()
    assert caught.value.__traceback__


def test_other_thread_is_refused(sky):
    errors = []

    def use():
        try:
            sky.compute()
        except ci.SceneError as error:
            errors.append(str(error))

    thread = threading.Thread(target=use)
    thread.start()
    thread.join()
    assert errors == ["a sky is used by the thread that has opened it alone"]


@pytest.mark.parametrize("text", ["Sirius\0", "\ud800"])
def test_text_that_cannot_be_passed_on_is_refused(sky, text):
    with pytest.raises(ci.BadArgument):
        sky.find(text)


def test_unknown_name_is_not_found(sky):
    with pytest.raises(ci.NotFound) as caught:
        sky.find("No Such Thing")
    assert isinstance(caught.value, LookupError)
    assert str(caught.value)


def test_unknown_object_has_no_title(sky):
    nothing = ci.Object.of("star", 2**31 - 1)
    assert sky.title(nothing) is None
    with pytest.raises(ci.NotFound):
        sky.observe(nothing)


def test_number_of_more_than_32_bits_is_refused(sky):
    with pytest.raises(ci.BadArgument, match="32 bits"):
        sky.title(ci.Object.of("star", 2**32 + 7001))


def test_suggestions_are_as_many_as_asked(sky):
    found = sky.suggest("al", 30)
    assert len(found) == 30
    assert len({entry.object for entry in found}) == 30
    assert all(entry.name for entry in found)
    assert sky.suggest("") == []
    with pytest.raises(ci.BadArgument):
        sky.suggest("al", 101)


def test_facts_agree_with_what_is_observed(sky):
    sirius = sky.find("Sirius")
    facts = {fact.kind: fact.text for fact in sky.facts(sirius)}
    assert float(facts[ci.FactKind.MAGNITUDE]) == pytest.approx(sky.observe(sirius).magnitude, abs=0.006)
    assert facts[ci.FactKind.NAME] == "Sirius"


def test_hidden_object_tells_the_setting_that_shows_it(sky):
    sky.look_at(sky.find("Sirius"))
    sky.settings["star.Draw"] = "0"
    sky.compute()
    fixes = [reason.fix for reason in sky.explain(sky.find("Sirius")) if reason.kind == ci.ReasonKind.HIDDEN]
    assert "star.Draw=1" in fixes
    sky.settings.change("star.Draw=1")
    sky.compute()
    assert ci.ReasonKind.DRAWN in [reason.kind for reason in sky.explain(sky.find("Sirius"))]


def test_day_and_altitudes_agree(sky):
    """At its transit an object stands highest: half an hour before and after it stands lower."""
    day = sky.day(sky.find("Jupiter"))
    assert day.stays == 0
    before, top, after = sky.altitudes(sky.find("Jupiter"), day.transit - 1 / 48, day.transit + 1 / 48, 3)
    assert top == pytest.approx(day.transit_altitude, abs=1e-3)
    assert before < top > after
    assert math.isnan(sky.day(sky.find("Polaris")).rise)
    with pytest.raises(ci.BadArgument):
        sky.altitudes(sky.find("Jupiter"), day.rise, day.set, -1)


def test_night_is_in_order(sky):
    night = sky.night()
    times = [night.begin, night.sunset, night.civil_dusk, night.nautical_dusk, night.astronomical_dusk, night.middle,
             night.astronomical_dawn, night.nautical_dawn, night.civil_dawn, night.sunrise, night.end]
    assert times == sorted(times)
    assert night.darkness is ci.Darkness.ASTRONOMICAL
    # New Moon was on the 18th of January 2026 at 19:52 Universal Time: three days on from this night.
    assert night.moon_lit < 0.15 and night.moon_waxes is False and night.moon_phase == "waning crescent"


def test_eclipse_is_among_the_events(sky):
    """The total eclipse of the Sun of the 12th of August 2026, greatest at 17:46 Universal Time."""
    begin = ci.to_julian_date(datetime.datetime(2026, 8, 12, tzinfo=datetime.timezone.utc))
    found = [event for event in sky.events(begin, begin + 1, "eclipses") if event.group == "eclipses"]
    assert found
    assert any(abs((ci.to_datetime(event.julian_date).replace(tzinfo=None)
                    - datetime.datetime(2026, 8, 12, 17, 46)).total_seconds()) < 3 * 3600 for event in found)
    with pytest.raises(ci.BadArgument):
        sky.events(begin, begin + 401)
    with pytest.raises(ci.BadArgument):
        sky.events(begin, begin + 1, "no-such-kind")


def test_cities_and_zones(sky):
    near = sky.cities_near(52.52, 13.40)
    assert [city.name for city in near] == ["Berlin"]
    assert sky.zone_offset(near[0].zone, 2461236.5) == 2.0  # in July
    with pytest.raises(ci.NotFound):
        sky.zone_offset("Nowhere/Town", 2461236.5)


def test_moment_without_a_zone_is_refused():
    with pytest.raises(ValueError):
        ci.to_julian_date(datetime.datetime(2026, 1, 1))


def test_code_of_an_object_has_four_characters():
    with pytest.raises(ci.BadArgument):
        ci.Object.of("stars", 1)
    assert not ci.Object(0, 0)


def test_program_may_end_with_everything_open():
    program = ("import common_interfaces as ci; ci.set_log(print); sky = ci.Sky(); points = sky.compute().points; "
               "sky.read_favourites('no favourite'); print(len(points) > 0)")
    done = subprocess.run([sys.executable, "-c", program], capture_output=True, text=True)
    assert (done.returncode, done.stderr) == (0, "")
    assert done.stdout.endswith("True\n") and len(done.stdout.splitlines()) == 2
