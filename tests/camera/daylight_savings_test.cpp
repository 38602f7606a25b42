// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/daylight_savings.h"

#include <gtest/gtest.h>

#include "common_interfaces/camera.h"
#include "support/temp_dir.h"

namespace {

using CommonInterfaces::Camera;
using CommonInterfaces::DaylightSavingsData;

constexpr double kHour = 1.0 / 24;

class DaylightSavingsTest : public testing::Test {
 protected:
  DaylightSavingsTest() {
    camera.SetTimeZoneName("Asia/Tokyo", true);
    camera.UpdateLocUTCDeltaFromTimeZone();
  }
  test_support::TempRoots roots;
  Camera camera{1};
};

TEST_F(DaylightSavingsTest, StartsWithItsInitialValues) {
  const DaylightSavingsData dst;
  EXPECT_FALSE(dst.IsDST);
  EXPECT_EQ(dst.StartYear, 0);
  for (int value : dst.DateFrom.date) EXPECT_EQ(value, 0);
  for (int value : dst.DateTo.date) EXPECT_EQ(value, 0);
  EXPECT_EQ(dst.IsCalendarDate[0], 0);
  EXPECT_EQ(dst.IsCalendarDate[1], 0);
  EXPECT_EQ(dst.TimeZone, 3.0f);
  EXPECT_FALSE(dst.IsNorth);
  EXPECT_EQ(dst.FirstDay, -1.0);
  EXPECT_EQ(dst.LastDay, -1.0);
}

TEST_F(DaylightSavingsTest, LocalTimeNearMidnightLeavesTheDayNumber) {
  int day = 2451545;
  double fraction = 0.9;
  DaylightSavingsData::UTC2LocalTime(day, fraction, &camera);
  EXPECT_EQ(day, 2451545);
  EXPECT_NEAR(fraction, 0.9 + 9 * kHour, 1e-12);
  EXPECT_GT(fraction, 1.0);
}

TEST_F(DaylightSavingsTest, UniversalTimeTakesTheOffsetAway) {
  int day = 2451545;
  double fraction = 0.1;
  DaylightSavingsData::LocalTime2UTC(day, fraction, &camera);
  EXPECT_EQ(day, 2451545);
  EXPECT_NEAR(fraction, 0.1 - 9 * kHour, 1e-12);
}

TEST_F(DaylightSavingsTest, FractionAloneConvertsTheSameWay) {
  double fraction = 0.5;
  DaylightSavingsData::UTC2LocalTime(fraction, &camera);
  EXPECT_NEAR(fraction, 0.5 + 9 * kHour, 1e-12);
  DaylightSavingsData::LocalTime2UTC(fraction, &camera);
  EXPECT_NEAR(fraction, 0.5, 1e-12);
}

TEST_F(DaylightSavingsTest, RuleDoesNotEnterTheConversions) {
  DaylightSavingsData rule;
  rule.IsDST = true;
  rule.FirstDay = 2451500;
  rule.LastDay = 2451600;
  rule.DS_Shift[0] = 1.0f;
  rule.TimeZone = -8.0f;
  camera.SetDST(&rule);
  double fraction = 0.5;
  camera.GetDST()->UTC2LocalTime(fraction, &camera);
  EXPECT_NEAR(fraction, 0.5 + 9 * kHour, 1e-12);
}

TEST_F(DaylightSavingsTest, WithoutACameraNothingChanges) {
  double fraction = 0.5;
  DaylightSavingsData::UTC2LocalTime(fraction, nullptr);
  DaylightSavingsData::LocalTime2UTC(fraction, nullptr);
  EXPECT_EQ(fraction, 0.5);
}

TEST_F(DaylightSavingsTest, CameraKeepsACopyOfTheRule) {
  DaylightSavingsData rule;
  rule.IsDST = true;
  rule.StartYear = 1996;
  rule.DateFrom.date[1] = 3;
  rule.DateTo.time[1] = 30;
  camera.SetDST(&rule);
  rule.StartYear = 0;
  DaylightSavingsData* kept = camera.GetDST();
  EXPECT_TRUE(kept->IsDST);
  EXPECT_EQ(kept->StartYear, 1996);
  EXPECT_EQ(kept->DateFrom.date[1], 3);
  EXPECT_EQ(kept->DateTo.time[1], 30);
  kept->StartYear = 2000;
  EXPECT_EQ(camera.GetDST()->StartYear, 2000);
  camera.SetDST(nullptr);
  EXPECT_EQ(camera.GetDST()->StartYear, 2000);
}

}  // namespace
