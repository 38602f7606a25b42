// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The Sun's centre at the altitudes between day and night, called and handed out as sky_events.h says.
#pragma once

#include "astro/api.h"
#include "astro/sky_events.h"
#include "astro/twilight.h"

namespace astro {

// The golden hour, morning and evening: the Sun's centre between 4 degrees below and 6 above the horizon,
// geometric. It is a word of photographers; this is the most common of their definitions. Radians.
inline constexpr double kGoldenHourBottom = -4.0 * kRadiansPerDegree;
inline constexpr double kGoldenHourTop = 6.0 * kRadiansPerDegree;

// kAstronomicalDawn to kAstronomicalDusk, at the altitudes of twilight.h, and kGoldenHourBegins and
// kGoldenHourEnds, at the search's place. In the evening the golden hour begins at its top, in the morning at
// its bottom; where the Sun turns within it at noon or midnight it goes on. A twilight that lasts all night
// neither ends nor begins.
ASTRO_API bool FindSunEvents(const EventSearch& search, const EventSink& sink);

}  // namespace astro
