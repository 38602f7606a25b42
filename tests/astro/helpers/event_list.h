// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "astro/planet_events.h"
#include "astro/sky_events.h"
#include "midnight.h"
#include "sky_place.h"

namespace astro_test {

// The years from the first to the last, both included.
inline astro::EventSearch Years(int first, int last) {
  return {Midnight(first, 1, 1), Midnight(last + 1, 1, 1), std::nullopt};
}

// What a finder hands out, in the order of time. `find` is called with the search and a sink.
template <class Find>
std::vector<astro::SkyEvent> Collect(const astro::EventSearch& search, Find find) {
  std::vector<astro::SkyEvent> events;
  EXPECT_TRUE(find(search, [&events](const astro::SkyEvent& event) { events.push_back(event); }));
  std::stable_sort(events.begin(), events.end(), [](const astro::SkyEvent& a, const astro::SkyEvent& b) {
    return a.moment.julianDateTT < b.moment.julianDateTT;
  });
  return events;
}

// Mercury to Neptune, without the Earth.
inline const std::vector<SSO_ID>& OtherPlanets() {
  static const std::vector<SSO_ID> planets = {Planet(1), Planet(2), Planet(4), Planet(5),
                                              Planet(6), Planet(7), Planet(8)};
  return planets;
}

inline std::vector<astro::SkyTarget> PlanetTargets(bool withMoon) {
  std::vector<astro::SkyTarget> targets;
  for (const SSO_ID& planet : OtherPlanets()) targets.push_back({planet, nullptr});
  if (withMoon) targets.push_back({astro::kMoon, nullptr});
  return targets;
}

}  // namespace astro_test
