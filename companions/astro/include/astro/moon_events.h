// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The months of the Moon, called and handed out as sky_events.h says.
#pragma once

#include "astro/api.h"
#include "astro/sky_events.h"

namespace astro {

// kNewMoon to kLastQuarter: the apparent longitude of the Moon less that of the Sun, both seen from the
// Earth's centre on the true ecliptic of date, is 0, 90, 180, 270 degrees. An error of 1 arc second in the
// Moon moves them by 2 seconds.
ASTRO_API bool FindMoonPhases(const EventSearch& search, const EventSink& sink);

// kPerigee and kApogee: the geometric distance between the centres is smallest and largest. Good to a few
// minutes, for it hardly changes there; the distance to 2 km.
ASTRO_API bool FindMoonApsides(const EventSearch& search, const EventSink& sink);

// kAscendingNode and kDescendingNode: the apparent latitude on the true ecliptic of date is zero. An error of
// 1 arc second in the latitude moves them by 20 seconds.
ASTRO_API bool FindMoonNodes(const EventSearch& search, const EventSink& sink);

}  // namespace astro
