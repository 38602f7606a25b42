// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A night at a place, from the Sun's highest point before it to the one after it: when it is dark, and when
// the Moon and the planets are up. Angles are in radians.
#pragma once

#include <optional>
#include <vector>

#include "astro/rise_set.h"
#include "astro/solar_system.h"
#include "astro/twilight.h"
#include "scene/api.h"
#include "scene/catalogs/bodies.h"
#include "scene/view/earth_observer.h"

namespace scene {

// A stretch of the night.
struct NightSpan {
  SkyMoment begin, end;

  double GetLength() const { return end.day - begin.day + (end.fraction - begin.fraction); }  // days
};

// Where something stands at its best.
struct NightSight {
  SkyMoment moment;
  double azimuth = 0.0, altitude = 0.0;  // from north over east; without refraction
};

// The Moon or a planet in the night.
struct NightBody {
  SSO_ID id;
  ObservedBody seen;             // at its best, else in the middle of the night
  astro::RiseTransitSet events;  // the first of each from the beginning of the night
  // Where it stands highest while the Sun is down: at least 6 degrees, or for the night without such
  // darkness under the horizon. Nothing for what is not up then.
  std::optional<NightSight> best;
};

// The altitudes of the Sun that make a night darker, from the horizon to the end of astronomical twilight.
enum class Darkness { kNone, kSunset, kCivil, kNautical, kAstronomical };

// What a night has, moment by moment.
struct NightPlan {
  NightSpan whole;   // from noon to noon: a day
  SkyMoment middle;  // FindTonight
  astro::RiseTransitSet sun;
  astro::Twilight civil, nautical, astronomical;
  Darkness darkness = Darkness::kNone;  // the deepest that the night has
  NightSpan dark;                       // where it has it; holds with a darkness
  std::vector<NightSpan> moonless;      // the parts of `dark` in which the Moon is down
  NightBody moon;
  std::vector<NightBody> planets;  // Mercury to Neptune
};

// Of the night that FindTonight chooses. Nothing when it cannot. Allocates; every thread may call. The
// planets take most of the time and can be left out.
SCENE_API std::optional<NightPlan> MakeNightPlan(const SkyMoment& now, const EarthPlace& place,
                                                 bool withPlanets = true);

// Where something stands highest within a span that it has a place in; nothing where it is not above the
// horizon at any time of it. To a minute.
SCENE_API std::optional<NightSight> FindHighest(const astro::FindHorizonPlace& find, const NightSpan& span);

}  // namespace scene
