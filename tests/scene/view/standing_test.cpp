// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/standing.h"

#include <gtest/gtest.h>

#include "scene/frame_helpers.h"

using namespace scene;

namespace {

// An observer whose frame is the one that directions are given in, without air.
ObserverFrame MakeObserver(bool horizon) {
  ObserverFrame observer = {};
  for (int i = 0; i < 3; ++i) observer.reduction[4 * i] = 1.0;
  observer.horizon = horizon;
  return observer;
}

Standing Find(double longitude, double latitude, bool horizon) {
  return FindStanding(MakeDirection(longitude * kRadiansPerDegree, latitude * kRadiansPerDegree),
                      MakeObserver(horizon));
}

}  // namespace

// Longitudes count over west in the horizon frame, azimuths over east.
TEST(StandingTest, AzimuthCountsOverEast) {
  EXPECT_NEAR(Find(270.0, 30.0, true).azimuth, 90.0, 1e-9);
  EXPECT_NEAR(Find(90.0, 30.0, true).azimuth, 270.0, 1e-9);
  EXPECT_NEAR(Find(90.0, 30.0, true).altitude, 30.0, 1e-9);
  EXPECT_NEAR(Find(0.0, -45.0, true).altitude, -45.0, 1e-9);
}

TEST(StandingTest, NorthIsNeverPrintedAs360) {
  EXPECT_EQ(Find(0.0, 10.0, true).azimuth, 0.0);
  EXPECT_EQ(Find(0.04, 10.0, true).azimuth, 0.0);
  EXPECT_NEAR(Find(0.06, 10.0, true).azimuth, 359.94, 1e-9);
  EXPECT_NEAR(Find(359.96, 10.0, true).azimuth, 0.04, 1e-9);
}

TEST(StandingTest, WithoutAHorizonTheLongitudeStands) {
  EXPECT_NEAR(Find(90.0, 30.0, false).azimuth, 90.0, 1e-9);
  EXPECT_EQ(Find(359.96, 30.0, false).azimuth, 0.0);
}
