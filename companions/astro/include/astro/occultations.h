// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Stars and planets behind the Moon, called and handed out as sky_events.h says.
#pragma once

#include <vector>

#include "astro/api.h"
#include "astro/sky_events.h"

namespace astro {

// Where on the Moon's edge it happens.
enum class OccultationLimb { kSunlit, kDark, kSunlitGraze, kDarkGraze };

// What the Moon may hide.
struct OccultationTarget {
  SSO_ID id;
  const void* data = nullptr;  // as CQXSolSys::Observe takes it, kept while the finder runs
};

// How deep inside the edge a target stays at least, lest mountains and valleys show it between: 5 seconds of
// arc. What stays nearer grazes.
inline constexpr double kGrazeDepth = 5.0 * kRadiansPerArcsecond;

// kOccultationBegins and kOccultationEnds of the targets at the search's place, by day and by night, each
// when the target stands above the horizon (with refraction). The Moon's edge is a circle of 0.2725076
// equatorial radii of the Earth; of a planet the centre counts. Moments are as good as the Moon's place, 2
// seconds for 1 arc second, and worse where the path meets the edge aslant.
//
// A graze begins and ends within minutes and is found however short it is. A target that passes the mean edge
// by, which mountains may still touch, has no events. False also when the model sees nothing of a target.
ASTRO_API bool FindOccultations(const EventSearch& search, const std::vector<OccultationTarget>& targets,
                                const EventSink& sink);

}  // namespace astro
