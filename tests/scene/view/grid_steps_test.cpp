// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/grid_steps.h"

#include <gtest/gtest.h>

#include <string>

#include "scene/view/directions.h"

using namespace scene;

namespace {

constexpr double kDegree = kRadiansPerDegree, kMinute = kDegree / 60.0, kSecond = kMinute / 60.0;
constexpr double kHour = 15.0 * kDegree;

std::string Longitude(double angle, double step, LongitudeUnit unit) {
  return FormatGridLongitude(angle, step, unit).data();
}
std::string Latitude(double angle, double step) { return FormatGridLatitude(angle, step).data(); }

}  // namespace

TEST(GridSteps, NextStepThatIsLargeEnough) {
  const struct {
    double least, latitude, hours;
  } cases[] = {{7.0 * kDegree, 10.0 * kDegree, 0.5 * kHour},
               {10.0 * kDegree, 10.0 * kDegree, kHour},
               {11.0 * kDegree, 15.0 * kDegree, kHour},
               {16.0 * kDegree, 30.0 * kDegree, 2.0 * kHour},
               {0.9 * kDegree, kDegree, kHour / 12.0},
               {3.0 * kMinute, 5.0 * kMinute, kHour / 3600.0 * 20.0},
               {0.06 * kSecond, 0.1 * kSecond, kHour / 3600.0 * 0.005}};
  for (const auto& c : cases) {
    const GridSteps steps = ChooseGridSteps(c.least, 0.0, LongitudeUnit::kHours);
    EXPECT_NEAR(steps.latitude / c.latitude, 1.0, 1e-12) << c.least;
    EXPECT_NEAR(steps.longitude / c.hours, 1.0, 1e-12) << c.least;
  }
}

TEST(GridSteps, LongitudesWidenTowardsThePoles) {
  // At 60 degrees a degree of longitude is half as wide.
  const GridSteps steps = ChooseGridSteps(4.0 * kDegree, 60.0 * kDegree, LongitudeUnit::kDegrees);
  EXPECT_NEAR(steps.latitude, 5.0 * kDegree, 1e-12);
  EXPECT_NEAR(steps.longitude, 10.0 * kDegree, 1e-12);
  for (const double pole : {-0.5 * kPi, 0.5 * kPi}) {
    EXPECT_NEAR(ChooseGridSteps(kDegree, pole, LongitudeUnit::kDegrees).longitude, 45.0 * kDegree, 1e-12);
    EXPECT_NEAR(ChooseGridSteps(kDegree, pole, LongitudeUnit::kHours).longitude, 3.0 * kHour, 1e-12);
  }
}

TEST(GridTexts, HaveNoMorePartsThanTheStepAsksFor) {
  constexpr auto kHours = LongitudeUnit::kHours, kDegrees = LongitudeUnit::kDegrees;
  EXPECT_EQ(Longitude(5.0 * kHour, kHour, kHours), "5h");
  EXPECT_EQ(Longitude(5.0 * kHour, kHour / 6.0, kHours), "5h00m");
  EXPECT_EQ(Longitude((5.0 + 20.0 / 60.0) * kHour, kHour / 6.0, kHours), "5h20m");
  EXPECT_EQ(Longitude((5.0 + 59.0 / 60.0 + 50.0 / 3600.0) * kHour, kHour / 360.0, kHours), "5h59m50s");
  EXPECT_EQ(Longitude((23.0 + 59.0 / 60.0 + 59.9 / 3600.0) * kHour, kHour / 36000.0, kHours), "23h59m59.9s");
  EXPECT_EQ(Longitude(359.5 * kDegree, 0.5 * kDegree, kDegrees), "359\u00B030\u2032");
  EXPECT_EQ(Longitude(12.0 * kDegree + 5.02 * kSecond, 0.02 * kSecond, kDegrees),
            "12\u00B000\u203205.02\u2033");
  EXPECT_EQ(Latitude(20.0 * kDegree, 10.0 * kDegree), "+20\u00B0");
  EXPECT_EQ(Latitude(-kDegree / 3.0, 10.0 * kMinute), "\u22120\u00B020\u2032");
}

TEST(GridTexts, OnesOfOneTurn) {
  EXPECT_EQ(Longitude(-kHour, kHour, LongitudeUnit::kHours), "23h");
  EXPECT_EQ(Longitude(2.0 * kPi, kHour, LongitudeUnit::kHours), "0h");
  EXPECT_EQ(Longitude(-1e-15, 10.0 * kDegree, LongitudeUnit::kDegrees), "0\u00B0");
  EXPECT_EQ(Longitude(2.0 * kPi - 1e-15, kSecond, LongitudeUnit::kDegrees), "0\u00B000\u203200\u2033");
}

TEST(GridTexts, EquatorHasNoSign) {
  EXPECT_EQ(Latitude(0.0, kDegree), "0\u00B0");
  EXPECT_EQ(Latitude(-1e-15, kDegree), "0\u00B0");
}

// The sum of 59 times a third of a minute is no whole minute in binary numbers.
TEST(GridTexts, RoundBeforeTheySplit) {
  const double step = kMinute / 3.0;
  EXPECT_EQ(Latitude(180.0 * step, step), "+1\u00B000\u203200\u2033");
  EXPECT_EQ(Latitude(59.0 * step, step), "+0\u00B019\u203240\u2033");
}
