// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cstring>
#include <string>

#include <gtest/gtest.h>

#include "astro/julian_date.h"
#include "common_interfaces/camera.h"
#include "support/debug_capture.h"
#include "support/temp_dir.h"

namespace {

using CommonInterfaces::_Date;
using CommonInterfaces::Camera;

constexpr double kHour = 1.0 / 24;

class TimeZoneTest : public testing::Test {
 protected:
  // Noon Universal Time of that civil day.
  void SetNoon(int year, int month, int day) {
    _Date t;
    DJ({year, month, day, 12, 0, 0.0}, t.day, t.fraction);
    camera.SetUniversalTime(t);
  }
  double Offset(const char* zone) {
    camera.SetTimeZoneName(zone, true);
    camera.UpdateLocUTCDeltaFromTimeZone();
    return camera.GetLocUTCdelta();
  }

  test_support::TempRoots roots;
  Camera camera{1};
};

TEST_F(TimeZoneTest, NamesStartEmpty) {
  EXPECT_STREQ(camera.GetTimeZoneName(), "");
  EXPECT_EQ(camera.GetDisplayTimeZoneName(false), nullptr);
  EXPECT_STREQ(camera.GetDisplayTimeZoneName(true), "");
  EXPECT_EQ(camera.GetLocUTCdelta(), 0.0);
}

TEST_F(TimeZoneTest, NameOf64CharactersKeepsTheOldNameAndOneOf63IsTaken) {
  camera.SetTimeZoneName("Europe/Berlin", false);
  camera.SetTimeZoneName(std::string(64, 'x').c_str(), false);
  EXPECT_STREQ(camera.GetTimeZoneName(), "Europe/Berlin");
  camera.SetTimeZoneName(std::string(1000, 'x').c_str(), false);
  EXPECT_STREQ(camera.GetTimeZoneName(), "Europe/Berlin");
  camera.SetTimeZoneName(std::string(63, 'x').c_str(), false);
  EXPECT_EQ(camera.GetTimeZoneName(), std::string(63, 'x'));
}

TEST_F(TimeZoneTest, DisplayNameOf64CharactersKeepsTheOldNameAndOneOf63IsTaken) {
  camera.SetDisplayTimeZoneName("Asia/Tokyo");
  camera.SetDisplayTimeZoneName(std::string(64, 'x').c_str());
  EXPECT_STREQ(camera.GetDisplayTimeZoneName(false), "Asia/Tokyo");
  camera.SetDisplayTimeZoneName(std::string(63, 'x').c_str());
  EXPECT_EQ(camera.GetDisplayTimeZoneName(false), std::string(63, 'x'));
}

TEST_F(TimeZoneTest, NullEmptiesTheZoneNameAndKeepsTheDisplayName) {
  camera.SetTimeZoneName("Europe/Berlin", false);
  camera.SetDisplayTimeZoneName("Asia/Tokyo");
  camera.SetTimeZoneName(nullptr, false);
  EXPECT_STREQ(camera.GetTimeZoneName(), "");
  EXPECT_STREQ(camera.GetDisplayTimeZoneName(false), "Asia/Tokyo");
}

TEST_F(TimeZoneTest, NullEmptiesTheDisplayName) {
  camera.SetDisplayTimeZoneName("Asia/Tokyo");
  camera.SetDisplayTimeZoneName(nullptr);
  EXPECT_EQ(camera.GetDisplayTimeZoneName(false), nullptr);
}

TEST_F(TimeZoneTest, DisplayNameIsClearedOnRequestEvenForANameThatIsIgnored) {
  camera.SetTimeZoneName("Europe/Berlin", false);
  camera.SetDisplayTimeZoneName("Asia/Tokyo");
  camera.SetTimeZoneName(std::string(64, 'x').c_str(), true);
  EXPECT_STREQ(camera.GetTimeZoneName(), "Europe/Berlin");
  EXPECT_EQ(camera.GetDisplayTimeZoneName(false), nullptr);
}

TEST_F(TimeZoneTest, DisplayNameFallsBackToTheZoneNameOnlyWhenAsked) {
  camera.SetTimeZoneName("Europe/Berlin", false);
  EXPECT_STREQ(camera.GetDisplayTimeZoneName(true), "Europe/Berlin");
  EXPECT_EQ(camera.GetDisplayTimeZoneName(false), nullptr);
  camera.SetDisplayTimeZoneName("Asia/Tokyo");
  EXPECT_STREQ(camera.GetDisplayTimeZoneName(true), "Asia/Tokyo");
}

TEST_F(TimeZoneTest, NameMayBeTheCamerasOwn) {
  camera.SetTimeZoneName("Europe/Berlin", false);
  camera.SetTimeZoneName(camera.GetTimeZoneName() + std::strlen("Europe/"), false);
  EXPECT_STREQ(camera.GetTimeZoneName(), "Berlin");
}

TEST_F(TimeZoneTest, OffsetFollowsDaylightSavingOfTheZone) {
  SetNoon(2024, 1, 15);
  EXPECT_NEAR(Offset("Europe/Berlin"), kHour, 1e-12);
  EXPECT_NEAR(Offset("America/New_York"), -5 * kHour, 1e-12);
  EXPECT_NEAR(Offset("Australia/Sydney"), 11 * kHour, 1e-12);
  SetNoon(2024, 7, 15);
  EXPECT_NEAR(Offset("Europe/Berlin"), 2 * kHour, 1e-12);
  EXPECT_NEAR(Offset("America/New_York"), -4 * kHour, 1e-12);
  EXPECT_NEAR(Offset("Australia/Sydney"), 10 * kHour, 1e-12);
}

TEST_F(TimeZoneTest, OffsetNeedNotBeWholeHours) {
  SetNoon(2024, 1, 15);
  EXPECT_NEAR(Offset("Asia/Kolkata"), 5.5 * kHour, 1e-12);
  EXPECT_NEAR(Offset("Asia/Kathmandu"), 5.75 * kHour, 1e-12);
}

TEST_F(TimeZoneTest, OffsetChangesAtTheMomentTheZoneChanges) {
  // Summer time began in Germany on 2024-03-31 at 01:00 UTC.
  _Date t;
  DJ({2024, 3, 31, 0, 59, 59.0}, t.day, t.fraction);
  camera.SetUniversalTime(t);
  EXPECT_NEAR(Offset("Europe/Berlin"), kHour, 1e-12);
  DJ({2024, 3, 31, 1, 0, 1.0}, t.day, t.fraction);
  camera.SetUniversalTime(t);
  EXPECT_NEAR(Offset("Europe/Berlin"), 2 * kHour, 1e-12);
}

TEST_F(TimeZoneTest, OffsetTakesTheDisplayNameFirst) {
  SetNoon(2024, 1, 15);
  camera.SetTimeZoneName("Europe/Berlin", false);
  camera.SetDisplayTimeZoneName("Asia/Tokyo");
  camera.UpdateLocUTCDeltaFromTimeZone();
  EXPECT_NEAR(camera.GetLocUTCdelta(), 9 * kHour, 1e-12);
  camera.SetDisplayTimeZoneName(nullptr);
  camera.UpdateLocUTCDeltaFromTimeZone();
  EXPECT_NEAR(camera.GetLocUTCdelta(), kHour, 1e-12);
}

TEST_F(TimeZoneTest, OffsetWithoutANameIsExactlyZero) {
  SetNoon(2024, 1, 15);
  ASSERT_NE(Offset("Europe/Berlin"), 0.0);
  EXPECT_EQ(Offset(nullptr), 0.0);
}

TEST_F(TimeZoneTest, OffsetIsComputedOnRequestOnly) {
  SetNoon(2024, 1, 15);
  camera.SetTimeZoneName("Europe/Berlin", true);
  EXPECT_EQ(camera.GetLocUTCdelta(), 0.0);
}

TEST_F(TimeZoneTest, UnknownZoneHasNoOffsetAndOneLine) {
  test_support::DebugCapture debug;
  EXPECT_EQ(Offset("Nowhere/Atall"), 0.0);
  EXPECT_EQ(debug.lines.size(), 1u);
}

}  // namespace
