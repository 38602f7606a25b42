// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <vector>

#include "astro/julian_date.h"
#include "astro/sky_events.h"

namespace astro_test {

using astro::EventSearch;
using astro::SkyEvent;

// Of dates in TT.
inline EventSearch SearchTT(double from, double to,
                            const std::optional<astro::EarthPlace>& place = std::nullopt) {
  return {astro::MakeMomentTT(from), astro::MakeMomentTT(to), place};
}

// From January 1 of a year to that of another.
inline EventSearch SearchYears(int from, int to,
                               const std::optional<astro::EarthPlace>& place = std::nullopt) {
  const auto begin = [](int year) {
    int day = 0;
    double fraction = 0.0;
    DJ({year, 1, 1, 0, 0, 0.0}, day, fraction);
    return astro::MakeMoment(day, fraction);
  };
  return {begin(from), begin(to), place};
}

// What a finder hands out, in order of time: Collect(FindSeasons, search), and what the finder takes between
// search and sink.
template <class Finder, class... Subject>
std::vector<SkyEvent> Collect(Finder find, const EventSearch& search, const Subject&... subject) {
  std::vector<SkyEvent> events;
  EXPECT_TRUE(find(search, subject..., [&events](const SkyEvent& event) { events.push_back(event); }));
  std::stable_sort(events.begin(), events.end(), [](const SkyEvent& a, const SkyEvent& b) {
    return a.moment.julianDateTT < b.moment.julianDateTT;
  });
  return events;
}

inline std::vector<SkyEvent> OfKind(const std::vector<SkyEvent>& events, astro::EventKind kind) {
  std::vector<SkyEvent> chosen;
  for (const SkyEvent& event : events) {
    if (event.kind == kind) chosen.push_back(event);
  }
  return chosen;
}

// Days from a moment in Universal Time.
inline double DaysFromUT(const SkyEvent& event, double julianDateUT) {
  return event.moment.day - julianDateUT + event.moment.fraction;
}

}  // namespace astro_test
