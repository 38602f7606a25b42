# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Apparent places of the Sun, the Moon, planets and stars beside those of Astropy (which computes with ERFA): topocentric,
of the true equator and equinox of date, at random moments of 2000 to 2020, for which its tables of the Earth's rotation
need no network.

The tolerances are those of what Astropy computes with, seen from the Earth: the series of Simon et al. (1994) for
planets, of which ERFA's eraPlan94 tells the largest heliocentric errors of 1800 to 2050, times the largest ratio of
distance from the Sun to distance from the Earth; eraMoon98 with 10 seconds of arc in longitude and 4 in latitude;
eraEpv00 for the Sun, which is a few kilometres good. A second of arc is for what the two take apart beside that.
"""
import dataclasses
import warnings

import astropy.units as u
import common_interfaces as ci
import numpy as np
import pytest
from astropy.coordinates import TETE, Distance, EarthLocation, SkyCoord, get_body
from astropy.time import Time
from astropy.utils import iers
from conftest import VIEW

warnings.filterwarnings("ignore", module="astropy")
iers.conf.auto_download = False

# Seconds of arc: the largest error of a longitude, and distance from the Sun over the least distance from the Earth.
PLANETS = {"Mercury": (4, 0.47 / 0.53), "Venus": (5, 0.73 / 0.26), "Mars": (17, 1.67 / 0.37),
           "Jupiter": (71, 5.46 / 3.95), "Saturn": (81, 10.1 / 8.0), "Uranus": (86, 20.1 / 17.3),
           "Neptune": (11, 30.4 / 28.7)}
TOLERANCES = {"Sun": 1.0, "Moon": 11.8, **{name: error * ratio + 1.0 for name, (error, ratio) in PLANETS.items()}}
# Hipparcos, new reduction (van Leeuwen 2007), brought to the epoch 2000: degrees, milliarcseconds, and the same a year.
STARS = {"Sirius": (101.28715533, -16.71611586, 379.21, -546.01, -1223.07),
         "Vega": (279.23473479, 38.78368896, 130.23, 200.94, 286.23),
         "Arcturus": (213.91530029, 19.18241037, 88.83, -1093.39, -2000.06)}


def make_moments(count):
    random = np.random.default_rng(20260115)
    return [(day, latitude, longitude) for day, latitude, longitude in
            zip(random.uniform(2451545, 2458849, count), random.uniform(-70, 70, count), random.uniform(-180, 180, count))]


def compare(sky, name, place_of):
    """The separations in seconds of arc, one for each moment."""
    found, separations = sky.find(name), []
    for day, latitude, longitude in make_moments(30):
        sky.view = dataclasses.replace(VIEW, latitude=latitude, longitude=longitude, julian_date=day)
        sight = sky.observe(found)
        time, location = Time(day, format="jd", scale="utc"), EarthLocation(longitude, latitude)
        theirs = place_of(time, location).transform_to(TETE(obstime=time, location=location))
        ours = ci.to_vectors(sight.right_ascension_of_date, sight.declination_of_date)
        apart = np.linalg.norm(ours - ci.to_vectors(theirs.ra.deg, theirs.dec.deg))
        separations.append(np.degrees(apart) * 3600)
    print(f"{name}: at most {max(separations):.2f} seconds of arc apart, {np.median(separations):.2f} in the middle")
    return separations


@pytest.mark.parametrize("name", TOLERANCES)
def test_place_of_body(sky, name):
    assert max(compare(sky, name, lambda time, location: get_body(name.lower(), time, location))) < TOLERANCES[name]


@pytest.mark.parametrize("name", STARS)
def test_place_of_star(sky, name):
    """The catalogue of bright stars rounds to 0.1 seconds of right ascension and 1 second of arc: 0.75 and 0.5 seconds of
    arc at most, and its motions to milliarcseconds a year."""
    ra, dec, parallax, pm_ra, pm_dec = STARS[name]
    star = SkyCoord(ra * u.deg, dec * u.deg, distance=Distance(parallax=parallax * u.mas), pm_ra_cosdec=pm_ra * u.mas / u.yr,
                    pm_dec=pm_dec * u.mas / u.yr, radial_velocity=0 * u.km / u.s, obstime=Time(2000.0, format="jyear"))
    separations = compare(sky, name, lambda time, location: star.apply_space_motion(new_obstime=time))
    assert max(separations) < 1.0
