# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
import gc

import common_interfaces as ci
import numpy as np
import pytest
from common_interfaces.records import ARRAYS


def get_arrays(frame):
    return {name: frame._take(name) for name in ARRAYS}


def test_before_the_first_frame_nothing_can_be_described(sky):
    assert all(len(array) == 0 for array in get_arrays(ci.frame.Frame(ci.frame._taker(sky._handle))).values())
    with pytest.raises(ci.NotFound):
        sky.describe_frame()


def test_runs_stay_within_their_arrays(sky):
    frame = sky.compute()
    names = {number: name for name, (number, _) in ARRAYS.items()}
    arrays = get_arrays(frame)
    assert len(frame.runs) > 5
    for run in frame.runs:
        assert run["count"] >= 1
        assert 0 <= run["first"] <= run["first"] + run["count"] <= len(arrays[names[run["type"]]])


def test_lines_and_rings_stay_within_the_vertices(sky):
    frame = sky.compute()
    for records in (frame.polylines, frame.rings):
        assert len(records) > 10
        assert (records["first"] >= 0).all()
        assert (records["first"] + records["count"] <= len(frame.vertices)).all()


def test_point_of_a_star_is_where_the_star_is_seen(sky):
    """Where it is observed, lifted by refraction: by the formula of Saemundsson, which at 45 degrees is as good as 5
    seconds of arc whatever the weather that is assumed."""
    star = sky.find("Betelgeuse")
    sky.look_at(star)
    points = sky.compute().copy().points
    place = points[(points["object"]["kind"] == star.kind) & (points["object"]["number"] == star.number)]
    assert len(place) == 1
    seen, sight = sky.describe_pixel(place["x"][0], place["y"][0]), sky.observe(star)
    refraction = 1.02 / 60 / np.tan(np.radians(sight.altitude + 10.3 / (sight.altitude + 5.11)))
    assert 40 < sight.altitude < 50
    assert seen.altitude == pytest.approx(sight.altitude + refraction, abs=5 / 3600)
    assert seen.azimuth == pytest.approx(sight.azimuth, abs=5 / 3600)


def test_frame_describes_what_its_arrays_hold(sky):
    points = sky.compute().points
    stars = np.count_nonzero(points["object"]["kind"] == ci.Object.of("star", 0).kind)
    assert stars > 1000
    assert abs(stars - sky.describe_frame().stars) <= sky.describe_frame().bodies


def test_arrays_are_not_copied_and_cannot_be_written(sky):
    frame = sky.compute()
    one, other = frame.points, frame.points
    assert one.ctypes.data == other.ctypes.data
    assert not one.flags.owndata
    with pytest.raises(ValueError):
        one["x"] = 0


def test_next_frame_waits_for_a_piece_of_an_array(sky):
    piece = sky.compute().points["x"][10:20]
    with pytest.raises(ci.FrameInUse):
        sky.compute()
    del piece
    sky.compute()


@pytest.mark.parametrize("change", [
    lambda sky: setattr(sky, "language", "de"), lambda sky: sky.options.__setitem__("orbits", "planets"),
    lambda sky: sky.read_session("")])
def test_what_takes_a_frame_away_waits_for_its_arrays(sky, change):
    points = sky.compute().points
    before = points.copy()
    with pytest.raises(ci.FrameInUse):
        change(sky)
    assert (points == before).all()


def test_copy_stays_when_the_next_frame_comes(sky):
    kept = sky.compute().copy()
    before = kept.points.copy()
    sky.change_view(azimuth=90.0)
    sky.compute()
    assert (kept.points == before).all()
    assert kept.points.flags.writeable
    assert "Sirius" in kept.strings()


def test_frame_of_the_past_is_refused(sky):
    old = sky.compute()
    sky.compute()
    with pytest.raises(ci.FrameInUse):
        old.points


def test_arrays_outlive_the_sky_that_is_closed():
    sky = ci.Sky(language="en")
    points = sky.compute().points
    total = points["x"].sum()
    sky.close()
    assert points["x"].sum() == total
    with pytest.raises(ci.SceneError, match="open"):
        ci.Sky()
    del points
    gc.collect()
    ci.Sky().close()


def test_enlargement_makes_points_larger(sky):
    plain = sky.compute().copy().points["radius"].max()
    sky.set_enlargement(3.0)
    assert sky.compute().points["radius"].max() > 2 * plain
    with pytest.raises(ci.BadArgument):
        sky.set_enlargement(9.0)


def test_globes_name_maps(sky, tmp_path):
    sky.look_at(sky.find("Jupiter"))
    sky.change_view(zoom=2000.0)
    globes = sky.compute().globes
    assert len(globes) >= 1
    assert sky.map_path(int(globes["map"][0])).endswith(".jpg")
    assert sky.map_path(10**6) is None
