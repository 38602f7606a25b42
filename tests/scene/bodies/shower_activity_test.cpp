// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/bodies/shower_activity.h"

#include <gtest/gtest.h>

#include "astro/julian_date.h"
#include "scene/frame_helpers.h"

using namespace scene;
using CommonInterfaces::SHOWER;

namespace {

int DayOf(int year, int month, int day) {
  int number = 0;
  double fraction = 0.0;
  DJ({year, month, day, 12, 0, 0.0}, number, fraction);
  return number;
}

SHOWER MakeShower(short beginDay, short beginMonth, short peakDay, short peakMonth, short endDay,
                  short endMonth) {
  SHOWER shower;
  shower.beginDay = beginDay;
  shower.beginMonth = beginMonth;
  shower.maximumDay = peakDay;
  shower.maximumMonth = peakMonth;
  shower.endDay = endDay;
  shower.endMonth = endMonth;
  return shower;
}

const SHOWER kPerseids = MakeShower(17, 7, 12, 8, 24, 8);
const SHOWER kQuadrantids = MakeShower(28, 12, 3, 1, 12, 1);

}  // namespace

TEST(ShowerActivity, LastsFromTheFirstDayToTheLast) {
  EXPECT_FALSE(FindDaysToPeak(kPerseids, DayOf(2026, 7, 16)));
  EXPECT_EQ(FindDaysToPeak(kPerseids, DayOf(2026, 7, 17)), 26);
  EXPECT_EQ(FindDaysToPeak(kPerseids, DayOf(2026, 8, 12)), 0);
  EXPECT_EQ(FindDaysToPeak(kPerseids, DayOf(2026, 8, 24)), -12);
  EXPECT_FALSE(FindDaysToPeak(kPerseids, DayOf(2026, 8, 25)));
}

TEST(ShowerActivity, GoesOnAcrossTheNewYear) {
  EXPECT_FALSE(FindDaysToPeak(kQuadrantids, DayOf(2025, 12, 27)));
  EXPECT_EQ(FindDaysToPeak(kQuadrantids, DayOf(2025, 12, 28)), 6);
  EXPECT_EQ(FindDaysToPeak(kQuadrantids, DayOf(2025, 12, 31)), 3);
  EXPECT_EQ(FindDaysToPeak(kQuadrantids, DayOf(2026, 1, 1)), 2);
  EXPECT_EQ(FindDaysToPeak(kQuadrantids, DayOf(2026, 1, 3)), 0);
  EXPECT_EQ(FindDaysToPeak(kQuadrantids, DayOf(2026, 1, 12)), -9);
  EXPECT_FALSE(FindDaysToPeak(kQuadrantids, DayOf(2026, 1, 13)));
}

TEST(ShowerActivity, MaximumMayLieInTheOldYear) {
  const SHOWER shower = MakeShower(5, 12, 20, 12, 4, 2);
  EXPECT_EQ(FindDaysToPeak(shower, DayOf(2026, 1, 19)), -30);
  EXPECT_EQ(FindDaysToPeak(shower, DayOf(2025, 12, 19)), 1);
}

TEST(ShowerActivity, OfOneDayIsThatDay) {
  const SHOWER shower = MakeShower(8, 6, 8, 6, 8, 6);
  EXPECT_EQ(FindDaysToPeak(shower, DayOf(2026, 6, 8)), 0);
  EXPECT_FALSE(FindDaysToPeak(shower, DayOf(2026, 6, 7)) || FindDaysToPeak(shower, DayOf(2026, 6, 9)));
}

TEST(ShowerActivity, LeapDayCounts) {
  const SHOWER shower = MakeShower(20, 2, 1, 3, 5, 3);
  EXPECT_EQ(FindDaysToPeak(shower, DayOf(2024, 2, 28)), 2);
  EXPECT_EQ(FindDaysToPeak(shower, DayOf(2025, 2, 28)), 1);
}

TEST(ShowerActivity, NeedsNoYearOfOurs) {
  EXPECT_EQ(FindDaysToPeak(kQuadrantids, DayOf(0, 1, 1)), 2);
  EXPECT_EQ(FindDaysToPeak(kQuadrantids, DayOf(-4712, 12, 31)), 3);
}

TEST(ShowerActivity, DatesThatAreNoneAreNever) {
  for (const auto& shower : {MakeShower(0, 7, 12, 8, 24, 8), MakeShower(17, 13, 12, 8, 24, 8),
                             MakeShower(17, 7, 32, 8, 24, 8), MakeShower(17, 7, 12, 8, 24, -8), SHOWER()}) {
    EXPECT_FALSE(FindDaysToPeak(shower, DayOf(2026, 8, 12)));
  }
}

// 23:30 Universal Time of the 11th is the 12th in Berlin.
TEST(ShowerActivity, DayIsThatOfTheClocks) {
  host_test::FrameFixture f;
  f.SetTime(2026, 8, 11, 23, 30);
  EXPECT_EQ(GetCivilDay(f.camera), DayOf(2026, 8, 11));
  f.camera.SetTimeZoneName("Europe/Berlin", true);
  f.camera.UpdateLocUTCDeltaFromTimeZone();
  EXPECT_EQ(GetCivilDay(f.camera), DayOf(2026, 8, 12));
}
