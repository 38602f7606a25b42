// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/night.h"

#include <gtest/gtest.h>

#include <cmath>

#include "astro/julian_date.h"
#include "astro/twilight.h"

using namespace scene;

namespace {

SkyMoment At(int year, int month, int day, int hour) {
  int number = 0;
  double fraction = 0.0;
  DJ({year, month, day, hour, 0, 0.0}, number, fraction);
  return MakeMoment(number, fraction);
}

double Minutes(const SkyMoment& from, const SkyMoment& to) {
  return (to.day - from.day + (to.fraction - from.fraction)) * 1440.0;
}

const EarthPlace kBerlin = {13.4 * kRadiansPerDegree, 52.5 * kRadiansPerDegree, 0.0},
                 kSydney = {151.21 * kRadiansPerDegree, -33.87 * kRadiansPerDegree, 0.0},
                 kTromso = {18.95 * kRadiansPerDegree, 69.65 * kRadiansPerDegree, 0.0};

}  // namespace

// The middle between the dusk and the dawn around it.
TEST(Night, MiddleIsHalfwayBetweenDuskAndDawn) {
  for (const EarthPlace& place : {kBerlin, kSydney}) {
    for (const int month : {1, 3, 6, 9}) {
      const auto middle = FindTonight(At(2026, month, 15, 12), place);
      ASSERT_TRUE(middle);
      const auto before = astro::FindTwilight(place, Later(*middle, -0.5), 0.5, astro::kCivilTwilight);
      const auto after = astro::FindTwilight(place, *middle, 0.5, astro::kCivilTwilight);
      ASSERT_TRUE(before.dusk && after.dawn) << month;
      EXPECT_NEAR(Minutes(*before.dusk, *middle), Minutes(*middle, *after.dawn), 2.0) << month;
    }
  }
}

// In Berlin on 15 January the Sun sets at 15:23, is lowest at 23:15 and rises at 07:08 (Universal Time).
TEST(Night, IsTheOneThatEndsWithTheNextSunrise) {
  const auto tonight = FindTonight(At(2026, 1, 15, 12), kBerlin);
  ASSERT_TRUE(tonight);
  EXPECT_NEAR(Minutes(At(2026, 1, 15, 23), *tonight), 15.0, 2.0);
  for (const SkyMoment& same :
       {At(2026, 1, 15, 8), At(2026, 1, 15, 20), At(2026, 1, 16, 2), At(2026, 1, 16, 7)})
    EXPECT_NEAR(Minutes(*tonight, *FindTonight(same, kBerlin)), 0.0, 0.5);
  const auto next = FindTonight(At(2026, 1, 16, 8), kBerlin);
  EXPECT_NEAR(Minutes(*tonight, *next), 1440.0, 1.0);
}

TEST(Night, WithoutSunriseItIsTheNextTimeThatTheSunIsLowest) {
  for (const int month : {6, 12}) {
    for (int hour = 0; hour < 24; hour += 3) {
      const SkyMoment now = At(2026, month, 21, hour);
      const auto middle = FindTonight(now, kTromso);
      ASSERT_TRUE(middle);
      EXPECT_GE(Minutes(now, *middle), -1.0) << month << " " << hour;
      EXPECT_LE(Minutes(now, *middle), 1441.0) << month << " " << hour;
      const double clock = std::remainder(middle->fraction + 18.95 / 360.0 - 0.5, 1.0) * 1440.0;
      EXPECT_NEAR(clock, 0.0, 5.0) << "mean solar midnight, less the equation of time";
    }
  }
}

TEST(Night, NobodyKnowsItWhereTheSunIsUnknown) {
  EXPECT_FALSE(FindTonight(MakeMoment(-400000000, 0.0), kBerlin));
}
