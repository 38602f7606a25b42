// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/almanac/year_graph.h"

#include <gtest/gtest.h>

#include <cmath>

#include "astro/julian_date.h"
#include "astro/rise_set.h"
#include "astro/twilight.h"

using namespace scene;

namespace {

const EarthPlace kBerlin = {13.4 * kRadiansPerDegree, 52.5 * kRadiansPerDegree, 0.0},
                 kTromso = {18.95 * kRadiansPerDegree, 69.65 * kRadiansPerDegree, 0.0};
constexpr double kOffset = 1.0 / 24.0;
constexpr int kYear = 365;

int DayOf(int year, int month, int day) {
  int number = 0;
  double fraction = 0.0;
  DJ({year, month, day, 12, 0, 0.0}, number, fraction);
  return number;
}

// The altitude of the Sun's centre, degrees, and of its rise.
double GetSunAltitude(int night, double hour, const EarthPlace& place, bool aboveRise) {
  CQXSolSys model;
  const auto find = astro::MakeBodyFinder(model, astro::kSun, nullptr, place, astro::RisingPart::kUpperLimb);
  const auto there = find(MakeMoment(DayOf(2027, 1, 1) + night, hour / 24.0 - kOffset));
  return (there->altitude - (aboveRise ? there->eventAltitude : 0.0)) / kRadiansPerDegree;
}

bool IsWithin(double hour, const std::vector<NightHours>& stretches) {
  for (const auto& hours : stretches) {
    if (hour >= hours.begin && hour <= hours.end) return true;
  }
  return false;
}

}  // namespace

TEST(YearGraph, BandsAreWhereTheSunIsThatLow) {
  constexpr double kAltitudes[kTwilightBands] = {0.0, -6.0, -12.0, -18.0};
  for (const EarthPlace& place : {kBerlin, kTromso}) {
    const YearGraph graph = MakeYearGraph(DayOf(2027, 1, 1), kYear, kOffset, place);
    ASSERT_EQ(graph.nights, kYear);
    int below = 0, above = 0;
    for (int night = 0; night < kYear; night += 9) {
      for (double hour = 0.25; hour < 24.0; hour += 1.3) {
        for (int band = 0; band < kTwilightBands; ++band) {
          const double over = GetSunAltitude(night, hour, place, band == 0) - kAltitudes[band];
          if (std::fabs(over) < 0.1) continue;
          EXPECT_EQ(IsWithin(hour, graph.bands[band][static_cast<std::size_t>(night)]), over < 0.0)
              << night << " " << hour << " " << band;
          ++(over < 0.0 ? below : above);
        }
      }
    }
    EXPECT_GT(below, 500);
    EXPECT_GT(above, 500);
  }
}

// A search of another kind, night by night.
TEST(YearGraph, LinesAreThoseOfSingleNights) {
  const YearGraph graph = MakeYearGraph(DayOf(2027, 1, 1), kYear, kOffset, kBerlin);
  ASSERT_EQ(graph.lines.size(), 16u);  // the Moon and seven planets, each rising and setting
  int compared = 0;
  for (const auto& line : graph.lines) {
    CQXSolSys model;
    const auto part = line.body == astro::kMoon ? astro::RisingPart::kUpperLimb : astro::RisingPart::kCentre;
    const auto find = astro::MakeBodyFinder(model, line.body, nullptr, kBerlin, part);
    EXPECT_GE(line.points.size(), line.body == astro::kMoon ? 351u : 364u);
    for (std::size_t i = 0; i < line.points.size(); i += 29) {
      const NightPoint& point = line.points[i];
      const double at = point.hour / 24.0;
      const SkyMoment before = MakeMoment(DayOf(2027, 1, 1) + point.night, at - kOffset - 0.02);
      const auto events = astro::FindRiseTransitSet(find, before, 0.04, 0.005);
      const auto& event = line.rises ? events.rise : events.set;
      ASSERT_TRUE(event) << line.body.number << " " << point.night;
      EXPECT_NEAR((event->day - before.day + event->fraction - before.fraction) * 86400.0, 0.02 * 86400.0,
                  2.0);
      ++compared;
    }
  }
  EXPECT_GT(compared, 150);
}

TEST(YearGraph, HasThePhasesOfTheYear) {
  const YearGraph graph = MakeYearGraph(DayOf(2027, 1, 1), kYear, kOffset, kBerlin);
  ASSERT_EQ(graph.phases.size(), 49u);  // thirteen new Moons, twelve of each other
  // New Moon of 2027 January 7, 20:24 UT.
  EXPECT_EQ(graph.phases[0].phase, astro::EventKind::kNewMoon);
  EXPECT_EQ(graph.phases[0].point.night, 6);
  EXPECT_NEAR(graph.phases[0].point.hour, 9.4, 0.05);
}

TEST(YearGraph, NothingForNoNightsAndOutsideTheModel) {
  EXPECT_EQ(MakeYearGraph(DayOf(2027, 1, 1), 0, kOffset, kBerlin).nights, 0);
  EXPECT_EQ(MakeYearGraph(DayOf(9000, 1, 1), kYear, kOffset, kBerlin).nights, 0);
}
