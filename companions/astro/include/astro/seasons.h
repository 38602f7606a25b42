// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Equinoxes and solstices, called and handed out as sky_events.h says.
#pragma once

#include "astro/api.h"
#include "astro/sky_events.h"

namespace astro {

// kMarchEquinox to kDecemberSolstice: the apparent longitude of the Sun, seen from the Earth's centre, on the
// true ecliptic and equinox of date is 0, 90, 180, 270 degrees. The Sun is good to 0.3 arc second from 1900
// to 2100, which it goes in 7 seconds.
ASTRO_API bool FindSeasons(const EventSearch& search, const EventSink& sink);

}  // namespace astro
