// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/air.h"

#include <gtest/gtest.h>

#include <cmath>

#include "astro/rise_set.h"
#include "common_interfaces/refraction.h"
#include "scene/frame_helpers.h"
#include "scene/view/pixel_directions.h"

namespace scene {
namespace {

constexpr double kMinute = kRadiansPerDegree / 60.0;

TEST(Air, LiftsByTheTableFromThreeDegreesUpwards) {
  for (double degrees = 3.0; degrees <= 90.0; degrees += 0.5) {
    double expected = degrees * kRadiansPerDegree;
    CommonInterfaces::ShiftAltOnEarthRefraction(&expected);
    EXPECT_NEAR(LiftedAltitude(degrees * kRadiansPerDegree), expected, 1e-12) << degrees;
  }
}

TEST(Air, LiftsToTheHorizonWhatRisesByTheAlmanac) {
  EXPECT_NEAR(LiftedAltitude(astro::GetRiseAltitude(0.0)), 0.0, 1e-9);
}

// Saemundsson 1986: 1.02' / tan(h + 10.3 / (h + 5.11)), h in degrees.
TEST(Air, LiftsWithinAMinuteOfArcAsAPublishedFormulaLowDown) {
  for (double h = -0.5; h <= 5.0; h += 0.25) {
    const double published = 1.02 / std::tan((h + 10.3 / (h + 5.11)) * kRadiansPerDegree);
    const double lift = (LiftedAltitude(h * kRadiansPerDegree) - h * kRadiansPerDegree) / kMinute;
    EXPECT_NEAR(lift, published, 1.0) << h;
  }
}

TEST(Air, KeepsWhatIsHigherHigherWithoutAJump) {
  constexpr double kStep = 0.001 * kRadiansPerDegree;
  double before = LiftedAltitude(-0.5 * kPi);
  EXPECT_NEAR(before, -0.5 * kPi, 1e-12);
  for (double altitude = -0.5 * kPi + kStep; altitude < 0.5 * kPi; altitude += kStep) {
    const double now = LiftedAltitude(altitude);
    ASSERT_GT(now, before) << altitude;
    ASSERT_LT(now - before, 1.2 * kStep) << altitude;
    before = now;
  }
}

TEST(Air, LowersWhatItLifted) {
  for (double degrees = -80.0; degrees <= 89.0; degrees += 0.7) {
    const double altitude = degrees * kRadiansPerDegree;
    EXPECT_NEAR(LoweredAltitude(LiftedAltitude(altitude)), altitude, 1e-12) << degrees;
    const Direction standing = MakeDirection(1.0, altitude), back = Lowered(Lifted(standing));
    for (int i = 0; i < 3; ++i) EXPECT_NEAR(back.v[i], standing.v[i], 1e-12);
    EXPECT_NEAR(std::asin(Lifted(standing).v[2]), LiftedAltitude(altitude), 1e-12);
  }
}

TEST(Air, LeavesZenithAndNadirInTheirPlaces) {
  EXPECT_NEAR(Lifted({{0.0, 0.0, 1.0}}).v[2], 1.0, 1e-15);
  EXPECT_NEAR(Lowered({{0.0, 0.0, 1.0}}).v[2], 1.0, 1e-15);
  EXPECT_EQ(Lifted({{0.0, 0.0, -1.0}}).v[2], -1.0);
}

// Wherever it stands, a thing is drawn where its lifted direction lies in the frame of the horizon.
TEST(Air, PictureShowsThingsLifted) {
  host_test::FrameFixture f;
  f.SetLook(180.0, 4.0);
  const ObserverFrame observer = PrepareObserver(f.camera, true);
  const ViewGeometry geometry(f.camera, observer);
  const PixelDirections directions(geometry);
  for (double altitude = -0.5; altitude < 12.0; altitude += 0.25) {
    Direction standing = MakeDirection(-175.0 * kRadiansPerDegree, altitude * kRadiansPerDegree), j2000;
    for (int i = 0; i < 3; ++i) {
      j2000.v[i] = 0.0;
      for (int k = 0; k < 3; ++k) j2000.v[i] += observer.reduction[3 * k + i] * standing.v[k];
    }
    const Direction seen = directions.Find(geometry.Project(j2000, SkyFrameOf::kJ2000));
    EXPECT_NEAR(std::asin(seen.v[2]), LiftedAltitude(altitude * kRadiansPerDegree), 1e-7) << altitude;
    tPoint<double> batch;
    geometry.Project({&j2000, 1}, SkyFrameOf::kJ2000, &batch);
    const auto single = geometry.Project(j2000, SkyFrameOf::kJ2000);
    EXPECT_NEAR(batch.x, single.x, 1e-6);
    EXPECT_NEAR(batch.y, single.y, 1e-6);
  }
  const auto middle = geometry.Project(geometry.centreJ2000, SkyFrameOf::kJ2000);
  EXPECT_NEAR(middle.x, 0.5 * geometry.width, 0.01);
  EXPECT_NEAR(middle.y, 0.5 * geometry.height, 0.01);
}

}  // namespace
}  // namespace scene
