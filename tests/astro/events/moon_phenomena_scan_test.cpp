// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Looks at Jupiter's moons ten times as often as the search does: whenever a moon or its shadow is on the
// disc, or behind it, a phenomenon goes on. The years are 2013 and 2014; others are named by the environment,
// ASTRO_SCAN_YEARS=1900-2099.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "astro/moon_phenomena.h"
#include "companions/astro/events/moon_lines.h"
#include "tests/astro/helpers/midnight.h"
#include "tests/astro/helpers/scan_years.h"
#include "tests/astro/helpers/sky_place.h"

namespace {

using astro::MoonEvent;
using astro::MoonPhenomenon;
using astro_internal::Viewer;

// To which the search finds contacts, days: a look that falls on one may see either.
constexpr double kPrecision = 1e-6;
// A hundred and twentieth of the revolutions, days.
constexpr double kLooks[4] = {1.769 / 120.0, 3.551 / 120.0, 7.155 / 120.0, 16.689 / 120.0};

Viewer ViewerOf(const MoonEvent& event) {
  const bool fromEarth = event.kind == MoonPhenomenon::kTransit || event.kind == MoonPhenomenon::kOccultation;
  return fromEarth ? Viewer::kEarth : Viewer::kSun;
}

// Looks at one moon from one side over a year and compares them with the list; the number of looks that see
// something.
int CompareLooks(int moon, Viewer viewer, double from, double to, const std::vector<MoonEvent>& list) {
  std::vector<MoonEvent> events;
  std::copy_if(list.begin(), list.end(), std::back_inserter(events), [&](const MoonEvent& event) {
    return event.moon.number == moon && ViewerOf(event) == viewer;
  });
  astro_internal::MoonLines lines(astro_test::Planet(5), SSO_ID(FourCC("moon"), moon));
  std::size_t next = 0;
  int seen = 0;
  for (double date = from; date < to; date += kLooks[moon - 501]) {
    while (next < events.size() && events[next].end < date - kPrecision) ++next;
    astro_internal::MoonLine line;
    astro_internal::Spheroid jupiter;
    EXPECT_TRUE(lines.GetLine(date, viewer, line));
    EXPECT_TRUE(astro_internal::MakeSpheroid(astro_test::Planet(5), date, 0.0, jupiter));
    const bool on = astro_internal::Clearance(line, jupiter) < 0.0;
    const auto isListed = [&](double margin) {
      return next < events.size() && events[next].begin - margin <= date && events[next].end + margin >= date;
    };
    EXPECT_TRUE(on ? isListed(kPrecision) : !isListed(-kPrecision)) << moon << " " << date;
    seen += on;
  }
  return seen;
}

}  // namespace

TEST(MoonPhenomenaScan, NothingIsMissedNorInvented) {
  const auto [first, last] = astro_test::GetScanYears({2013, 2014});
  int seen = 0;
  std::size_t events = 0;
  for (int year = first; year <= last; ++year) {
    const double from = astro_test::Midnight(year, 1, 1).julianDateTT;
    const double to = astro_test::Midnight(year + 1, 1, 1).julianDateTT;
    const std::vector<MoonEvent> list = astro::FindMoonEvents(5, from, to);
    events += list.size();
    for (int moon = 501; moon <= 504; ++moon) {
      for (const Viewer viewer : {Viewer::kEarth, Viewer::kSun})
        seen += CompareLooks(moon, viewer, from, to, list);
    }
  }
  std::printf("[ compared ] %zu phenomena of %d to %d, %d looks on them\n", events, first, last, seen);
  EXPECT_GT(seen, 5000 * (last - first + 1));
}
