// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Mercury and Venus before the Sun. Times are found to 0.01 second; against published contacts they were
// measured within 10 seconds (docs/solar_system.md), and delta T of the future is not known better. The
// Sun's radius is 959.63 arc seconds at 1 au (Auwers 1891, as almanacs have it for contacts). Nothing here
// keeps state; every thread may call.
#pragma once

#include <optional>

#include "astro/api.h"
#include "astro/sky_events.h"

namespace astro {

// A contact of the two limbs. Angles are in radians.
struct TransitContact {
  SkyMoment moment;
  double positionAngle = 0.0;  // of the planet about the Sun's centre, from the true north of date over east
  double sunAltitude = 0.0;    // at a place: of the Sun's centre, without refraction; else 0
};

// A transit as it is seen from the Earth's centre or from a place.
struct PlanetTransit {
  SSO_ID planet;
  TransitContact greatest;         // the centres are closest
  double separation = 0.0;         // of the centres then, radians
  TransitContact ingress, egress;  // the planet's disc touches the Sun's from outside: contacts I and IV
  bool isWhole = false;  // the whole planet comes before the Sun, and there are contacts II and III:
  TransitContact inside, leaving;  // it touches from inside
  // At a place: the Sun's upper limb is over the horizon, by usual refraction, at some time in between. From
  // the Earth's centre true.
  bool isSeen = true;
};

// The transit of Mercury or Venus whose inferior conjunction is nearest to a moment, within three days of it.
// Nothing when the discs do not touch, as they are seen from there, for another planet, and outside the range
// of the series.
ASTRO_API std::optional<PlanetTransit> FindPlanetTransit(const SSO_ID& planet, const SkyMoment& moment,
                                                         const std::optional<EarthPlace>& place);

// kPlanetTransit of Mercury or Venus as the Earth's centre sees it, called and answering as sky_events.h
// says; other: the Sun.
ASTRO_API bool FindPlanetTransits(const EventSearch& search, const SSO_ID& planet, const EventSink& sink);

}  // namespace astro
