// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
// Stretches of a year in which the Sun crosses nothing: what it was at their beginning holds throughout.
#include <gtest/gtest.h>

#include "astro/julian_date.h"
#include "scene/almanac/year_graph.h"

using namespace scene;

namespace {

// In Tromso the polar night lasts from November 27 to January 15, the midnight sun from May 20 to July 22.
const EarthPlace kTromso = {18.95 * kRadiansPerDegree, 69.65 * kRadiansPerDegree, 0.0};
// The Sun stays more than 18 degrees below the horizon for weeks about the solstice only near the poles.
const EarthPlace kPole = {0.0, 89.0 * kRadiansPerDegree, 0.0};

YearGraph TenNights(int month, int day, const EarthPlace& place) {
  int number = 0;
  double fraction = 0.0;
  DJ({2027, month, day, 12, 0, 0.0}, number, fraction);
  return MakeYearGraph(number, 10, 1.0 / 24.0, place);
}

void ExpectWhole(const std::vector<std::vector<NightHours>>& band) {
  ASSERT_EQ(band.size(), 10u);
  for (const auto& hours : band) {
    ASSERT_EQ(hours.size(), 1u);
    EXPECT_EQ(hours[0].begin, 0.0f);
    EXPECT_EQ(hours[0].end, 24.0f);
  }
}

void ExpectEmpty(const std::vector<std::vector<NightHours>>& band) {
  ASSERT_EQ(band.size(), 10u);
  for (const auto& hours : band) EXPECT_TRUE(hours.empty());
}

}  // namespace

TEST(PolarYear, NightLastsAllDayInThePolarNight) {
  const YearGraph graph = TenNights(12, 15, kTromso);
  ExpectWhole(graph.bands[0]);
  // At noon there is twilight still: the band of the civil one is broken each day.
  for (const auto& hours : graph.bands[1]) {
    ASSERT_FALSE(hours.empty());
    EXPECT_LT(hours.front().end - hours.front().begin, 24.0f);
  }
}

TEST(PolarYear, NoNightWhileTheSunStaysUp) {
  const YearGraph graph = TenNights(6, 15, kTromso);
  for (int band = 0; band < kTwilightBands; ++band) ExpectEmpty(graph.bands[band]);
}

TEST(PolarYear, AtThePoleItIsDarkAllDayInDecember) {
  const YearGraph graph = TenNights(12, 15, kPole);
  for (int band = 0; band < kTwilightBands; ++band) ExpectWhole(graph.bands[band]);
}

// At the end of September the pole's Sun is down, and nowhere 6 degrees low.
TEST(PolarYear, NoTwilightBandWhileTheSunIsJustDown) {
  const YearGraph graph = TenNights(9, 25, kPole);
  for (int band = 1; band < kTwilightBands; ++band) ExpectEmpty(graph.bands[band]);
}

TEST(PolarYear, NoNightsAreNoGraph) {
  EXPECT_EQ(MakeYearGraph(2461406, 0, 0.0, kTromso).nights, 0);
  EXPECT_EQ(MakeYearGraph(2461406, -5, 0.0, kTromso).nights, 0);
}
