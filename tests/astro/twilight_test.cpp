// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/twilight.h"

#include <gtest/gtest.h>

#include "astro/planets.h"
#include "helpers/midnight.h"

using namespace astro;
using astro_test::At;
using astro_test::DayFraction;
using astro_test::Midnight;

namespace {

constexpr double Clock(int hours, int minutes, int seconds) {
  return (hours * 3600 + minutes * 60 + seconds) / kSecondsPerDay;
}

const EarthPlace kGreenwich = At(51.4779, 0.0), kQuito = At(-0.18, -78.47), kSydney = At(-33.87, 151.21),
                 kTromso = At(69.65, 18.95), kLongyearbyen = At(78.2, 15.6);

}  // namespace

// Computed apart from this library with the low-precision formulae of the Astronomical Almanac (the Sun: page
// C5; mean sidereal time: page B8), which hold the Sun to 0.01 degree: the tolerance is the time that it
// takes to climb as much.
TEST(Twilight, BeginsAndEndsWhereTheAlmanacsFormulaeHaveIt) {
  const struct {
    EarthPlace place;
    int year, month, day;
    double altitude, dawn, dusk;
    double tolerance;  // seconds
  } expected[] = {
      {kGreenwich, 2026, 3, 20, kCivilTwilight, Clock(5, 29, 40), Clock(18, 46, 23), 5.0},
      {kGreenwich, 2026, 3, 20, kNauticalTwilight, Clock(4, 50, 24), Clock(19, 25, 48), 5.0},
      {kGreenwich, 2026, 3, 20, kAstronomicalTwilight, Clock(4, 9, 34), Clock(20, 6, 52), 5.0},
      {kGreenwich, 2026, 6, 21, kCivilTwilight, Clock(2, 55, 4), Clock(21, 8, 35), 6.0},
      {kGreenwich, 2026, 6, 21, kNauticalTwilight, Clock(1, 40, 38), Clock(22, 23, 1), 9.0},
      {kQuito, 2026, 12, 21, kCivilTwilight, Clock(10, 45, 26), Clock(23, 38, 40), 4.0},
      {kQuito, 2026, 12, 21, kNauticalTwilight, Clock(10, 19, 12), Clock(0, 4, 24), 4.0},
      {kQuito, 2026, 12, 21, kAstronomicalTwilight, Clock(9, 52, 51), Clock(0, 30, 46), 4.0},
      {kSydney, 2026, 9, 23, kCivilTwilight, Clock(19, 17, 39), Clock(8, 16, 51), 4.0},
      {kSydney, 2026, 9, 23, kAstronomicalTwilight, Clock(18, 19, 11), Clock(9, 15, 23), 4.0},
      {kTromso, 2026, 12, 21, kCivilTwilight, Clock(8, 31, 11), Clock(12, 53, 17), 15.0},
      {kTromso, 2026, 12, 21, kAstronomicalTwilight, Clock(5, 28, 18), Clock(15, 56, 10), 8.0},
      {kLongyearbyen, 2026, 12, 21, kNauticalTwilight, Clock(9, 56, 19), Clock(11, 54, 57), 50.0},
  };
  for (const auto& row : expected) {
    const SkyMoment start = Midnight(row.year, row.month, row.day);
    const Twilight twilight = FindTwilight(row.place, start, 1.0, row.altitude);
    EXPECT_EQ(twilight.course, SunCourse::kCrosses);
    EXPECT_NEAR(DayFraction(twilight.dawn) * kSecondsPerDay, row.dawn * kSecondsPerDay, row.tolerance);
    EXPECT_NEAR(DayFraction(twilight.dusk) * kSecondsPerDay, row.dusk * kSecondsPerDay, row.tolerance);
  }
}

TEST(Twilight, LastsAllNightInTheSummerOfGreenwich) {
  const Twilight twilight = FindTwilight(kGreenwich, Midnight(2026, 6, 21), 1.0, kAstronomicalTwilight);
  EXPECT_EQ(twilight.course, SunCourse::kStaysAbove);
  EXPECT_FALSE(twilight.dawn || twilight.dusk);
}

TEST(Twilight, NoneInThePolarNightAndNoNightInThePolarDay) {
  EXPECT_EQ(FindTwilight(kLongyearbyen, Midnight(2026, 12, 21), 1.0, kCivilTwilight).course,
            SunCourse::kStaysBelow);
  EXPECT_EQ(FindTwilight(kLongyearbyen, Midnight(2026, 6, 21), 1.0, kCivilTwilight).course,
            SunCourse::kStaysAbove);
}

// Between noon and midnight there is a dusk and no dawn.
TEST(Twilight, OneDirectionAloneIsACrossing) {
  const Twilight twilight = FindTwilight(kGreenwich, Later(Midnight(2026, 3, 20), 0.5), 0.5, kCivilTwilight);
  EXPECT_EQ(twilight.course, SunCourse::kCrosses);
  EXPECT_FALSE(twilight.dawn);
  EXPECT_TRUE(twilight.dusk);
}

TEST(Twilight, OutsideTheRangeOfTheSunIsAFailure) {
  const SkyMoment far = MakeMoment(static_cast<int>(kLastPlanetDate) + 1000, 0.0);
  const Twilight twilight = FindTwilight(kGreenwich, far, 1.0, kCivilTwilight);
  EXPECT_EQ(twilight.course, SunCourse::kUnknown);
  EXPECT_FALSE(twilight.dawn || twilight.dusk);
}

TEST(Twilight, OfSeveralDaysTheFirstCounts) {
  const SkyMoment start = Midnight(2026, 3, 20);
  const Twilight day = FindTwilight(kGreenwich, start, 1.0, kCivilTwilight);
  const Twilight days = FindTwilight(kGreenwich, start, 3.0, kCivilTwilight);
  ASSERT_TRUE(day.dawn && day.dusk && days.dawn && days.dusk);
  EXPECT_EQ(days.dawn->julianDateTT, day.dawn->julianDateTT);
  EXPECT_EQ(days.dusk->julianDateTT, day.dusk->julianDateTT);
}
