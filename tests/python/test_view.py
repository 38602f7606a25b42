# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
import dataclasses

import common_interfaces as ci
import numpy as np
import pytest
from conftest import VIEW


def test_view_is_kept(sky):
    view = ci.View(latitude=-33.9, longitude=151.2, julian_date=2460000.25, azimuth=12.5, altitude=45.0, zoom=3.0,
                   width=640, height=480)
    sky.view = view
    for name, value in dataclasses.asdict(view).items():
        assert getattr(sky.view, name) == pytest.approx(value, abs=1e-8), name


@pytest.mark.parametrize("change", [{"width": 10}, {"height": 2**32 + 800}, {"latitude": 91.0}, {"zoom": 0.0},
                                    {"julian_date": float("nan")}, {"altitude": -91.0}])
def test_view_out_of_its_range_changes_nothing(sky, change):
    with pytest.raises(ci.BadArgument):
        sky.change_view(**change)
    assert sky.view == VIEW


def test_pixels_come_back_from_directions(sky):
    pixels = np.random.default_rng(1).uniform((0, 0), (1600, 1000), (50, 40, 2))
    vectors = sky.unproject(pixels)
    assert vectors.shape == (50, 40, 3)
    assert np.allclose(np.linalg.norm(vectors, axis=-1), 1.0, atol=1e-12)
    assert np.allclose(sky.project(vectors), pixels, atol=1e-6)


def test_middle_of_the_picture_is_where_the_view_looks(sky):
    spot = sky.describe_pixel(800.0, 500.0)
    assert spot.azimuth == pytest.approx(180.0, abs=0.01)
    assert spot.altitude == pytest.approx(35.0, abs=0.1)  # with refraction where the frame has it
    assert not spot.is_ground


def test_no_directions_make_no_pixels(sky):
    assert sky.project(np.empty((0, 3))).shape == (0, 2)


def test_other_layouts_of_memory_are_taken(sky):
    vectors = sky.unproject(np.random.default_rng(2).uniform(100, 900, (30, 2)))
    expected = sky.project(vectors)
    assert np.array_equal(sky.project(np.asfortranarray(vectors)), expected)
    assert np.array_equal(sky.project(vectors[::2]), expected[::2])
    assert np.array_equal(sky.project(vectors.tolist()), expected)


@pytest.mark.parametrize("values", [1.0, [1.0, 2.0], np.zeros((4, 2))])
def test_arrays_of_other_shapes_are_refused(sky, values):
    with pytest.raises(ci.BadArgument, match="shape"):
        sky.project(values)


def test_turning_holds_a_direction_under_a_pixel(sky):
    star = sky.unproject([500.0, 400.0])
    sky.turn(star, 700.0, 450.0)
    assert np.allclose(sky.project(star), [700.0, 450.0], atol=0.01)


def test_looking_at_an_object_brings_it_to_the_middle(sky):
    sky.look_at(sky.find("Jupiter"))
    sky.compute()
    assert sky.find("Jupiter") in sky.pick(800.0, 500.0)


def test_view_is_saved_and_read(sky, tmp_path):
    file = tmp_path / "ночь.data"
    sky.save_view(file, 3)
    sky.change_view(azimuth=10.0)
    sky.read_view(file, 3)
    assert sky.view.azimuth == pytest.approx(180.0)
    with pytest.raises(ci.SceneError):
        sky.read_view(tmp_path / "missing.data", 1)


def test_angles_and_vectors_are_each_others_reverse():
    ra, dec = np.random.default_rng(3).uniform((0, -89), (360, 89), (100, 2)).T
    back = ci.to_angles(5.0 * ci.to_vectors(ra, dec))
    assert np.allclose(back, [ra, dec], atol=1e-9)
