// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/window_reach.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "scene/frame_helpers.h"

using namespace scene;

namespace {

struct Counts {
  int inside = 0, passedOver = 0, kept = 0;  // in the window; outside it, told so or not
};

// Directions all over the sky, and as many around the view axis.
template <class See>
void ForEachDirection(const ViewGeometry& geometry, See see) {
  std::mt19937 random(11);
  std::normal_distribution<double> normal;
  for (int i = 0; i < 20000; ++i) {
    const Direction any = Normalised({{normal(random), normal(random), normal(random)}});
    Direction near;
    for (int k = 0; k < 3; ++k)
      near.v[k] = geometry.centreJ2000.v[k] + 1.5 * std::sin(geometry.cornerAngle) * any.v[k];
    see(any);
    see(Normalised(near));
  }
}

Counts CountDirections(host_test::FrameFixture& f, bool withAir) {
  f.observer = PrepareObserver(f.camera, withAir);
  const ViewGeometry geometry(f.camera, f.observer);
  const WindowReach reach(geometry, f.observer, 0.0);
  Counts counts;
  ForEachDirection(geometry, [&](const Direction& direction) {
    const auto p = geometry.Project(direction, SkyFrameOf::kJ2000);
    // A thousandth of a pixel inside, for rounding.
    const bool isInside = geometry.IsInside(p, -1e-3), mayBe = reach.MayHold(direction);
    EXPECT_TRUE(mayBe || !isInside) << p.x << " " << p.y;
    counts.inside += isInside;
    if (!geometry.IsInside(p, 1e-3)) ++(mayBe ? counts.kept : counts.passedOver);
  });
  return counts;
}

}  // namespace

TEST(WindowReach, IsTheWindowWhereNoAirLifts) {
  host_test::FrameFixture f;
  for (const double zoom : {0.25, 1.0, 10.0}) {
    for (const double altitude : {-60.0, 0.0, 30.0, 90.0}) {
      f.SetLook(200.0, altitude);
      f.camera.SetZoom(zoom);
      const Counts counts = CountDirections(f, false);
      EXPECT_GT(counts.inside, 1000) << zoom;
      EXPECT_GT(counts.passedOver, 1000) << zoom;
      EXPECT_EQ(counts.kept, 0) << zoom << " " << altitude;
    }
  }
}

TEST(WindowReach, HoldsWhatTheAirLiftsIntoTheWindow) {
  host_test::FrameFixture f;
  for (const double zoom : {0.25, 1.0, 10.0, 60.0}) {
    for (const double altitude : {-40.0, -5.0, -1.0, 0.0, 1.0, 20.0, 60.0}) {
      f.SetLook(200.0, altitude);
      f.camera.SetZoom(zoom);
      const Counts counts = CountDirections(f, true);
      EXPECT_GT(counts.inside, 1000) << zoom << " " << altitude;
      EXPECT_GT(counts.passedOver, counts.kept) << zoom << " " << altitude;
    }
  }
}

TEST(WindowReach, MarginIsAnAngle) {
  host_test::FrameFixture f;
  f.observer = PrepareObserver(f.camera);
  const ViewGeometry geometry(f.camera, f.observer);
  // From the middle of the window to its left edge, along the horizon of the picture.
  const double edge = 0.5 * geometry.GetWidthAngle();
  const auto stands = [&](double angle, double margin) {
    Direction side = {{-geometry.centreHorizon.v[1], geometry.centreHorizon.v[0], 0.0}}, seen, direction;
    side = Normalised(side);
    for (int i = 0; i < 3; ++i)
      seen.v[i] = std::cos(angle) * geometry.centreHorizon.v[i] + std::sin(angle) * side.v[i];
    V3Mprod(seen.v, f.observer.reduction, direction.v);
    return WindowReach(geometry, f.observer, margin).MayHold(direction);
  };
  for (const double sign : {-1.0, 1.0}) {
    EXPECT_TRUE(stands(sign * (edge - 1e-6), 0.0));
    EXPECT_FALSE(stands(sign * (edge + 1e-6), 0.0));
    EXPECT_TRUE(stands(sign * (edge + 0.019), 0.02));
    EXPECT_FALSE(stands(sign * (edge + 0.021), 0.02));
  }
}

TEST(WindowReach, OfNothingHoldsEverything) { EXPECT_TRUE(WindowReach().MayHold({{0.0, 0.0, -1.0}})); }
