// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/session/zone_time.h"

#include <gtest/gtest.h>

using namespace skyview;

namespace {

// Julian day number whose civil day is 2026-03-29, 2026-10-25 and 2026-01-15.
constexpr int kMarch29 = 2461129, kOctober25 = 2461339, kJanuary15 = 2461056;

// The time of day as the fraction that counts from noon.
constexpr double Clock(double hours) { return (hours - 12.0) / 24.0; }

double HoursUT(const UniversalMoment& moment, int day) {
  return (moment.day - day) * 24.0 + moment.fraction * 24.0 + 12.0;
}

}  // namespace

TEST(ZoneTime, WinterAndSummerInBerlin) {
  const auto winter = LocalToUniversal("Europe/Berlin", kJanuary15, Clock(22.0));
  ASSERT_TRUE(winter);
  EXPECT_NEAR(HoursUT(*winter, kJanuary15), 21.0, 1e-6);
  const auto summer = LocalToUniversal("Europe/Berlin", kMarch29 + 90, Clock(22.0));
  ASSERT_TRUE(summer);
  EXPECT_NEAR(HoursUT(*summer, kMarch29 + 90), 20.0, 1e-6);
}

TEST(ZoneTime, WithoutAZoneLocalIsUniversal) {
  const auto moment = LocalToUniversal("", kJanuary15, Clock(5.0));
  ASSERT_TRUE(moment);
  EXPECT_NEAR(HoursUT(*moment, kJanuary15), 5.0, 1e-9);
}

// On 29 March 2026 the clocks of Berlin go from 02:00 to 03:00 at 01:00 UT.
TEST(ZoneTime, SkippedLocalTimeDoesNotExist) {
  EXPECT_FALSE(LocalToUniversal("Europe/Berlin", kMarch29, Clock(2.5)));
  const auto before = LocalToUniversal("Europe/Berlin", kMarch29, Clock(1.9));
  ASSERT_TRUE(before);
  EXPECT_NEAR(HoursUT(*before, kMarch29), 0.9, 1e-6);
  const auto after = LocalToUniversal("Europe/Berlin", kMarch29, Clock(3.1));
  ASSERT_TRUE(after);
  EXPECT_NEAR(HoursUT(*after, kMarch29), 1.1, 1e-6);
}

// On 25 October 2026 they go from 03:00 back to 02:00 at 01:00 UT.
TEST(ZoneTime, RepeatedLocalTimeIsTheEarlierOne) {
  const auto moment = LocalToUniversal("Europe/Berlin", kOctober25, Clock(2.5));
  ASSERT_TRUE(moment);
  EXPECT_NEAR(HoursUT(*moment, kOctober25), 0.5, 1e-6);
  const auto later = LocalToUniversal("Europe/Berlin", kOctober25, Clock(3.5));
  ASSERT_TRUE(later);
  EXPECT_NEAR(HoursUT(*later, kOctober25), 2.5, 1e-6);
}

// New York goes back on 1 November 2026 at 06:00 UT.
TEST(ZoneTime, RepeatedLocalTimeWestOfGreenwichIsTheEarlierOneToo) {
  const auto moment = LocalToUniversal("America/New_York", kOctober25 + 7, Clock(1.5));
  ASSERT_TRUE(moment);
  EXPECT_NEAR(HoursUT(*moment, kOctober25 + 7), 5.5, 1e-6);
}

TEST(ZoneTime, UnknownZonesAreToldApartEveryTimeAndLeaveNoLine) {
  Diagnostics diagnostics;
  for (int i = 0; i < 2; ++i) {
    EXPECT_FALSE(IsKnownZone("Nowhere/Land", diagnostics));
    EXPECT_TRUE(IsKnownZone("Asia/Kolkata", diagnostics));
  }
  EXPECT_TRUE(diagnostics.lines.empty());
}
