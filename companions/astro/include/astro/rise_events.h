// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Every rise, transit and set of a body within a span, called and handed out as sky_events.h says.
#pragma once

#include "astro/api.h"
#include "astro/rise_set.h"
#include "astro/sky_events.h"

namespace astro {

// kRise, kTransit and kSet of a body at the search's place; `data` as CQXSolSys::Observe takes it. Altitudes
// of rise and set are those of GetRiseAltitude for the part. A star that rises twice in a day does so here,
// and a Moon that skips a day has no rise on it.
//
// Whatever stands above the horizon for a moment only, or dips below it, rises and sets: the highest and the
// lowest point of every turn are looked at. At a pole, where there are none, two crossings of the horizon
// within three hours are missed when the body goes less than 1 arc second beyond it between them.
//
// Moments are found to 0.01 second of the model's; docs/events.md has them against other almanacs. Places are
// computed once a day (the Moon: twice, moons of planets: every 45 minutes) and go evenly between: that is
// not for what passes the Earth at less than ten times the Moon's distance. False also for spacecraft and
// satellites (satellite_pass.h).
ASTRO_API bool FindRisings(const EventSearch& search, const SSO_ID& body, const void* data, RisingPart part,
                           const EventSink& sink);

}  // namespace astro
