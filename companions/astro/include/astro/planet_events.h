// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What the planets do among themselves, with the Sun, the Moon and bright stars. All finders are called and
// answer as sky_events.h says; they see from the Earth's centre, apparent places of date, and need no place.
// Moments are refined to 0.01 second; what they are worth follows from the speed of the bodies and the 0.1 to
// 4 arc seconds of the series (planets.h): docs/solar_system.md has what was measured.
//
// Nothing is missed between two looks, which are a tenth or less of the shortest time that such an event
// takes to come back; where two nearly coincide, as when paths touch, the touch itself is searched.
#pragma once

#include <span>

#include "astro/api.h"
#include "astro/object_records.h"
#include "astro/sky_events.h"

namespace astro {

// A planet ("plnt" 1 to 9 but the Earth), the Moon, or a star with its record, which the caller owns.
struct SkyTarget {
  SSO_ID id;
  const StarRecord* star = nullptr;
};

// The bright stars that the Moon and the planets pass: Alcyone for the Pleiades, Aldebaran, Pollux, Regulus,
// Spica, Antares, in this order. Places of Hipparcos (ESA 1997), numbers of the Bright Star Catalogue.
ASTRO_API std::span<const SkyTarget> GetEclipticStars();

// kConjunction of every pair of targets but two stars: equal right ascension, as almanacs count. `body` is
// the one that stands first in `targets`; value: its declination less that of `other`; more: the elongation
// of `body` from the Sun.
ASTRO_API bool FindConjunctions(const EventSearch& search, std::span<const SkyTarget> targets,
                                const EventSink& sink);

// kAppulse: two targets but two stars come closest, to `farthest` (radians, up to 60 degrees) or less.
// `more`: the elongation of `body` from the Sun.
ASTRO_API bool FindAppulses(const EventSearch& search, std::span<const SkyTarget> targets, double farthest,
                            const EventSink& sink);

// kInferiorConjunction, kSuperiorConjunction and kOpposition of a planet: its ecliptic longitude is that of
// the Sun, or differs by 180 degrees. The conjunction is inferior where the planet is nearer than the Sun.
// Of a conjunction more is the distance, au.
ASTRO_API bool FindSunConfigurations(const EventSearch& search, const SSO_ID& planet, const EventSink& sink);

// kGreatestElongationEast and West of Mercury or Venus: the largest angle between the centres of planet and
// Sun. East: it follows the Sun, and sets after it.
ASTRO_API bool FindGreatestElongations(const EventSearch& search, const SSO_ID& planet,
                                       const EventSink& sink);

// kStationRetrograde and kStationDirect: the planet stands still in right ascension (value) of the true
// equinox of date, as the Astronomical Almanac counts. In longitude it stands still up to two days apart
// from that. Nutation moves the moments of slow planets by hours.
ASTRO_API bool FindStations(const EventSearch& search, const SSO_ID& planet, const EventSink& sink);

// kPerihelion and kAphelion of a planet, the Earth's centre included: its distance from the Sun's centre is
// smallest or largest. Neptune has two of a kind, years apart, where the Sun's own motion bends its distance.
ASTRO_API bool FindPlanetApsides(const EventSearch& search, const SSO_ID& planet, const EventSink& sink);

// kGreatestBrilliancy of Venus: the lit part of its disc covers most of the sky, which almanacs give as the
// greatest illuminated extent. By magnitudes it is brightest within five days of that, the moment depending
// on the formula; for weeks the light changes by less than the eye tells. more: elongation.
ASTRO_API bool FindGreatestBrilliancies(const EventSearch& search, const EventSink& sink);

}  // namespace astro
