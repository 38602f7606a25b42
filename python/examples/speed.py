# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Times a frame, and a million projections beside the formula of the same projection in NumPy.

usage: speed.py
"""
import dataclasses
import statistics
import time

import common_interfaces as ci
import numpy as np

COUNT = 1_000_000
VIEW = ci.View(latitude=52.5, longitude=13.4, julian_date=2461056.375, azimuth=180.0, altitude=35.0)


def time_frames(sky, views):
    """Seconds of each frame, all of other views: a computed frame, and its points handed out as an array."""
    seconds = []
    for view in views:
        sky.view = view
        begin = time.perf_counter()
        len(sky.compute().points)
        seconds.append(time.perf_counter() - begin)
    return seconds


def find_axes(sky):
    """The view's axis, what is right and below in the picture, and the scale in pixels: a stereographic projection, which
    has a direction v at scale * (right v, below v) / (1 + ahead v) from the middle."""
    ahead, right, below = sky.unproject([[800.0, 500.0], [900.0, 500.0], [800.0, 600.0]])
    scale = 100.0 * (1.0 + ahead @ right) / np.linalg.norm(np.cross(ahead, right))
    sides = [side - ahead * (side @ ahead) for side in (right, below)]
    return ahead, np.stack([side / np.linalg.norm(side) for side in sides], axis=-1), scale


def project(vectors, axes):
    ahead, sides, scale = axes
    return (vectors @ sides) * (scale / (1.0 + vectors @ ahead))[:, np.newaxis] + [800.0, 500.0]


def time_projections(sky, random):
    """Seconds of ours and of NumPy's, of other directions each time, and how many pixels the two are apart at most."""
    axes, ours, theirs, apart = find_axes(sky), [], [], 0.0
    for _ in range(9):
        vectors = sky.unproject(random.uniform((0, 0), (1600, 1000), (COUNT, 2)))
        begin = time.perf_counter()
        pixels = sky.project(vectors)
        ours.append(time.perf_counter() - begin)
        begin = time.perf_counter()
        expected = project(vectors, axes)
        theirs.append(time.perf_counter() - begin)
        apart = max(apart, float(np.abs(pixels - expected).max()))
    return ours, theirs, apart


def main():
    random = np.random.default_rng(1)
    with ci.Sky(language="en") as sky:
        sky.view = VIEW
        views = [dataclasses.replace(VIEW, azimuth=azimuth, julian_date=VIEW.julian_date + day) for azimuth, day in
                 zip(random.uniform(0, 360, 101), random.uniform(0, 365, 101))]
        frames = time_frames(sky, views)[1:]
        sky.view = VIEW
        ours, theirs, apart = time_projections(sky, random)
    if apart > 1e-6:
        raise SystemExit(f"the two projections are {apart} pixels apart")
    print(f"a frame of 1600 x 1000 pixels: {1000 * statistics.median(frames):.2f} ms")
    print(f"{COUNT} projections: {1000 * statistics.median(ours):.1f} ms")
    print(f"the same in NumPy: {1000 * statistics.median(theirs):.1f} ms")


if __name__ == "__main__":
    main()
