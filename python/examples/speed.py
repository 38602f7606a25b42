# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Times a frame, and a million projections beside the formula of the same projection in NumPy. Where Astropy is installed
it computes the same: the projections, of which all must agree, and the places of as many stars as a frame has points.

usage: speed.py
"""
import dataclasses
import statistics
import time

import common_interfaces as ci
import numpy as np

COUNT = 1_000_000
ROUNDS = 9
VIEW = ci.View(latitude=52.5, longitude=13.4, julian_date=2461056.375, azimuth=180.0, altitude=35.0)
MIDDLE = np.array([VIEW.width / 2, VIEW.height / 2])


def time_call(seconds, call, *arguments):
    begin = time.perf_counter()
    made = call(*arguments)
    seconds.append(time.perf_counter() - begin)
    return made


def time_frames(sky, views):
    """Seconds of each frame, all of other views: a computed frame, and its points handed out as an array; and how many
    points there are in the middle."""
    seconds, counts = [], []
    for view in views:
        sky.view = view
        counts.append(time_call(seconds, lambda: len(sky.compute().points)))
    return seconds, int(statistics.median(counts))


def find_axes(sky):
    """The view's axis, what is right and below in the picture, and the scale in pixels: a stereographic projection, which
    has a direction v at scale * (right v, below v) / (1 + ahead v) from the middle."""
    ahead, right, below = sky.unproject(MIDDLE + [[0.0, 0.0], [100.0, 0.0], [0.0, 100.0]])
    scale = 100.0 * (1.0 + ahead @ right) / np.linalg.norm(np.cross(ahead, right))
    sides = [side - ahead * (side @ ahead) for side in (right, below)]
    return ahead, np.stack([side / np.linalg.norm(side) for side in sides], axis=-1), scale


def project(vectors, axes):
    ahead, sides, scale = axes
    return (vectors @ sides) * (scale / (1.0 + vectors @ ahead))[:, np.newaxis] + MIDDLE


def make_wcs(axes):
    """The same projection as the header of a picture (Calabretta and Greisen 2002): degrees to the east and to the north
    of the axis are a matrix times pixels."""
    from astropy.wcs import WCS

    ahead, sides, scale = axes
    right_ascension, declination = (np.radians(angle) for angle in ci.to_angles(ahead))
    east = np.array([-np.sin(right_ascension), np.cos(right_ascension), 0.0])
    wcs = WCS(naxis=2)
    wcs.wcs.ctype = ["RA---STG", "DEC--STG"]
    wcs.wcs.crval = np.degrees([right_ascension, declination])
    wcs.wcs.crpix = MIDDLE
    # STG has a direction at 2 tan(half the distance) from its axis, in radians; ours is scale * tan of the same.
    wcs.wcs.cd = np.degrees(2.0 / scale) * np.stack([east @ sides, np.cross(ahead, east) @ sides])
    return wcs


def time_projections(sky, random, axes, wcs):
    """Seconds of ours, of NumPy's and of Astropy's, of other directions each time, and how many pixels they are apart at
    most. Astropy takes angles, we and NumPy vectors: what makes one of the other is not counted."""
    seconds, apart = ([], [], []), 0.0
    for _ in range(ROUNDS):
        vectors = sky.unproject(random.uniform((0, 0), (VIEW.width, VIEW.height), (COUNT, 2)))
        pixels = time_call(seconds[0], sky.project, vectors)
        expected = [time_call(seconds[1], project, vectors, axes)]
        if wcs is not None:
            angles = np.stack(ci.to_angles(vectors), axis=-1)
            expected.append(time_call(seconds[2], wcs.wcs_world2pix, angles, 1))
        apart = max(apart, *(float(np.abs(pixels - other).max()) for other in expected))
    return seconds, apart


def time_places(views, count, random):
    """Seconds in which Astropy computes where that many stars and nine bodies stand over the horizon, of other stars and
    moments each time."""
    import astropy.units as u
    from astropy.coordinates import AltAz, EarthLocation, SkyCoord, get_body
    from astropy.time import Time
    from astropy.utils import iers

    iers.conf.auto_download = False
    iers.conf.iers_degraded_accuracy = "warn"
    bodies = ["sun", "moon", "mercury", "venus", "mars", "jupiter", "saturn", "uranus", "neptune"]

    def find_places(view, right_ascension, declination):
        location, moment = EarthLocation(view.longitude, view.latitude), Time(view.julian_date, format="jd")
        frame = AltAz(obstime=moment, location=location)
        stars = SkyCoord(right_ascension, declination, unit=u.deg).transform_to(frame).alt.deg
        return stars, [get_body(body, moment, location).transform_to(frame).alt.deg for body in bodies]

    seconds = []
    for view in views:
        stars = random.uniform(0, 360, count), np.degrees(np.arcsin(random.uniform(-1, 1, count)))
        time_call(seconds, find_places, view, *stars)
    return seconds


def has_astropy():
    try:
        import astropy.wcs  # noqa: F401
    except ImportError:
        return False
    return True


def show(what, seconds):
    print(f"{what}: {1000 * statistics.median(seconds):.2f} ms")


def main():
    random = np.random.default_rng(1)
    beside = has_astropy()
    with ci.Sky(language="en") as sky:
        # Whole days, so that it is night in all of them.
        views = [dataclasses.replace(VIEW, azimuth=azimuth, julian_date=VIEW.julian_date - day) for azimuth, day in
                 zip(random.uniform(0, 360, 101), random.integers(0, 365, 101))]
        frames, count = time_frames(sky, views)
        sky.view = VIEW
        axes = find_axes(sky)
        (ours, numpys, astropys), apart = time_projections(sky, random, axes, make_wcs(axes) if beside else None)
    if apart > 1e-6:
        raise SystemExit(f"the projections are {apart} pixels apart")
    show(f"a frame of {VIEW.width} x {VIEW.height} pixels, {count} points", frames[1:])
    show(f"{COUNT} projections", ours)
    show("the same in NumPy", numpys)
    if not beside:
        print("no Astropy (python3-astropy) to compare with")
        return
    show("the same in Astropy, from right ascensions and declinations", astropys)
    show(f"where {count} stars and 9 bodies stand, in Astropy", time_places(views[:ROUNDS + 1], count, random)[1:])


if __name__ == "__main__":
    main()
