// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// When meteor showers are at their maximum, and how many meteors somebody sees then. Angles are radians.
// Nothing here keeps state; every thread may call.
#pragma once

#include <optional>
#include <span>

#include "astro/api.h"
#include "astro/sky_events.h"
#include "utils/text.h"

namespace astro {

// A shower that comes every year. Angles in radians.
struct MeteorShower {
  char code[4] = "";            // of the International Astronomical Union: "PER"
  double solarLongitude = 0.0;  // of the maximum: the Sun's, ecliptic and equinox J2000
  double ra = 0.0, dec = 0.0;   // of the radiant at the maximum, J2000
  // Meteors an hour that one observer would see with the radiant at the zenith and stars to magnitude 6.5.
  double zenithalRate = 0.0;
  double populationIndex = 0.0;  // how many times more there are of one magnitude fainter: 2 to 3.5
};

// The showers of every year that are worth a look, in the order of the year, after the working list of visual
// meteor showers of the International Meteor Organization (Rendtel, Meteor Shower Calendar, 2019 to 2023).
// Their rates differ from year to year, those of the Draconids and Leonids by large factors.
ASTRO_API std::span<const MeteorShower> GetVisualShowers();

// The kind of the identifiers below: the number is the shower's place in the span that the search was given.
inline constexpr int kShowerKind = FourCC("shwr");

// How a shower presents itself about its maximum.
struct ShowerNight {
  SkyMoment best;  // the moment of most meteors
  double radiantAltitude = 0.0;
  double moonAltitude = 0.0;
  double moonlit = 0.0;  // the part of the Moon's disc that is lit
  double limit = 0.0;    // the magnitude of the faintest stars, with Moon and twilight in the sky
  double rate = 0.0;     // meteors an hour
};

// Within half a day to both sides of a moment, the Sun being lower than 6 degrees below the horizon: the
// moment at which zenithalRate sin(altitude) populationIndex^(limit - 6.5) is largest (Rendtel & Arlt (eds.)
// 2014, Handbook for Meteor Observers, IMO), with a clear country sky (sky_brightness.h) in the darkest part
// of which somebody watches, and the rate of the maximum all night; showers that last some hours only, the
// Quadrantids before all, have less before and after. Nothing when the radiant does not rise in the dark.
ASTRO_API std::optional<ShowerNight> FindShowerNight(const MeteorShower& shower, const SkyMoment& maximum,
                                                     const EarthPlace& place);

// kShowerMaximum: the Sun reaches the longitudes of showers; called and answering as sky_events.h says, a
// place is not needed. `body`: kShowerKind and the number in `showers`. At a place value is the rate of
// FindShowerNight (0 when there is none), more the radiant's altitude then, and the best moment is
// `untilEnd` behind or `sinceBegin` before the maximum; without one the zenithal rate, and 90 degrees. Good
// to some minutes, the longitudes themselves to hours.
ASTRO_API bool FindShowerMaxima(const EventSearch& search, std::span<const MeteorShower> showers,
                                const EventSink& sink);

}  // namespace astro
