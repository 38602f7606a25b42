// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/arc_walk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "astro/earth_orientation.h"
#include "astro/vectors.h"
#include "scene/frame_helpers.h"
#include "scene/view/pixel_directions.h"

using namespace scene;

namespace {

struct Stretch {
  tPoint<double> from, to;
};

double DistanceTo(const Stretch& stretch, const tPoint<double>& p) {
  const double dx = stretch.to.x - stretch.from.x, dy = stretch.to.y - stretch.from.y;
  const double px = p.x - stretch.from.x, py = p.y - stretch.from.y, square = dx * dx + dy * dy;
  const double part = square > 0.0 ? std::clamp((px * dx + py * dy) / square, 0.0, 1.0) : 0.0;
  return std::hypot(px - part * dx, py - part * dy);
}

class ArcWalkTest : public testing::Test {
 protected:
  void Look(double azimuth, double altitude, double zoom, bool withAir = false) {
    f.SetLook(azimuth, altitude);
    f.camera.SetZoom(zoom);
    f.observer = PrepareObserver(f.camera, withAir);
  }
  // Of axes that are those of the view angles.
  static SightOfSystem PlainSight() { return {{1, 0, 0, 0, 1, 0, 0, 0, 1}, false, {}, 1.0, false}; }
  // As grids in coordinates of catalogues are seen, the velocity of the Earth and some.
  static SightOfSystem MovedSight() {
    SightOfSystem sight = PlainSight();
    sight.aberration = sight.lifted = true;
    sight.velocity[1] = 1e-4;
    sight.inverseLorentzFactor = std::sqrt(1.0 - 1e-8);
    return sight;
  }
  // The whole circle so many radians around an axis.
  static SkyArc MakeCircle(const Direction& axis, double radius) {
    const Direction other = std::fabs(axis.v[2]) < 0.9 ? Direction{{0, 0, 1}} : Direction{{1, 0, 0}};
    Direction first, second;
    Vprod(axis.v, other.v, first.v);
    first = Normalised(first);
    Vprod(axis.v, first.v, second.v);
    SkyArc arc = {{}, {}, {}, -kPi, kPi};
    for (int i = 0; i < 3; ++i) {
      arc.middle.v[i] = std::cos(radius) * axis.v[i];
      arc.first.v[i] = std::sin(radius) * first.v[i];
      arc.second.v[i] = std::sin(radius) * second.v[i];
    }
    return arc;
  }
  static Direction PointOf(const SkyArc& arc, double t) {
    Direction point;
    for (int i = 0; i < 3; ++i)
      point.v[i] = arc.middle.v[i] + std::cos(t) * arc.first.v[i] + std::sin(t) * arc.second.v[i];
    return point;
  }
  static Direction MakeAxis(std::mt19937& random) {
    std::normal_distribution<double> normal;
    return Normalised({{normal(random), normal(random), normal(random)}});
  }

  std::vector<Stretch> Walk(const SightOfSystem& sight, const SkyArc& arc) {
    const ViewGeometry geometry(f.camera, f.observer);
    std::vector<Stretch> stretches;
    m_Steps = 0;
    ArcWalk walk(geometry, sight, arc);
    for (tPoint<double> last{}; walk.Next(); last = walk.GetPixel(), ++m_Steps) {
      if (walk.IsJoined()) stretches.push_back({last, walk.GetPixel()});
    }
    return stretches;
  }
  // How far the parts of the arc that the window shows stay from the stretches, at most, and how many points
  // of it were looked at.
  double FindFarthest(const SightOfSystem& sight, const SkyArc& arc, int& looked) {
    const auto stretches = Walk(sight, arc);
    const ViewGeometry geometry(f.camera, f.observer);
    double farthest = 0.0;
    constexpr int kSamples = 4000;
    for (int i = 0; i <= kSamples; ++i) {
      Direction point = PointOf(arc, arc.from + (arc.to - arc.from) * i / kSamples);
      if (sight.aberration) astro::Aberration(point.v, sight.velocity, sight.inverseLorentzFactor, point.v);
      if (sight.lifted) point = geometry.Seen(point);
      const auto p = geometry.Project(point, SkyFrameOf::kHorizon);
      if (!geometry.IsInside(p, 0.0)) continue;
      ++looked;
      double nearest = std::numeric_limits<double>::infinity();
      for (const Stretch& stretch : stretches) nearest = std::min(nearest, DistanceTo(stretch, p));
      farthest = std::max(farthest, nearest);
    }
    return farthest;
  }

  host_test::FrameFixture f;
  int m_Steps = 0;
};

}  // namespace

// Circles of every size, the whole sky and small pieces of it in the window. A stretch is as long as the
// scale at its beginning says, which grows along it by four hundredths in the widest picture.
TEST_F(ArcWalkTest, WhatTheWindowShowsStaysWithinTheSagitta) {
  std::mt19937 random(5);
  std::uniform_real_distribution<double> part;
  int looked = 0;
  for (const double zoom : {0.25, 1.0, 3.0}) {
    Look(360.0 * part(random), 60.0 - 120.0 * part(random), zoom);
    for (int i = 0; i < 60; ++i) {
      const SkyArc circle = MakeCircle(MakeAxis(random), 0.02 + 1.55 * part(random));
      EXPECT_LE(FindFarthest(PlainSight(), circle, looked), 1.1 * ArcWalk::kSagitta) << zoom << " " << i;
    }
  }
  EXPECT_GT(looked, 10000);
}

// Where air bends lines stretches are short, and leave them by no more than anybody sees.
TEST_F(ArcWalkTest, NothingIsLeaptOverWhereAirAndAberrationMoveLines) {
  std::mt19937 random(6);
  std::uniform_real_distribution<double> part;
  int looked = 0;
  for (const double altitude : {-20.0, -4.0, 0.0, 3.0, 40.0}) {
    for (const double zoom : {0.25, 1.0, 4.0}) {
      Look(360.0 * part(random), altitude, zoom, true);
      for (int i = 0; i < 20; ++i) {
        const SkyArc circle = MakeCircle(MakeAxis(random), 0.02 + 1.55 * part(random));
        EXPECT_LE(FindFarthest(MovedSight(), circle, looked), 0.5) << altitude << " " << zoom << " " << i;
      }
    }
  }
  EXPECT_GT(looked, 10000);
}

TEST_F(ArcWalkTest, StraightLinesTakeLongStretches) {
  Look(180.0, 20.0, 1.0);
  // The meridian, through the middle of the window.
  const auto stretches = Walk(PlainSight(), MakeCircle({{0.0, 1.0, 0.0}}, 0.5 * kPi));
  ASSERT_FALSE(stretches.empty());
  for (std::size_t i = 1; i + 1 < stretches.size(); ++i) {
    const auto& [from, to] = stretches[i];
    EXPECT_NEAR(std::hypot(to.x - from.x, to.y - from.y), ArcWalk::kLongest, 1.0);
    EXPECT_NEAR(to.x, 800.0, 1e-6);
  }
}

TEST_F(ArcWalkTest, FarFromTheWindowThereIsLittleToDo) {
  Look(180.0, 20.0, 5.0);
  const Direction behind = {{std::cos(0.3), 0.0, -std::sin(0.3)}};  // north, below the horizon
  EXPECT_TRUE(Walk(PlainSight(), MakeCircle(behind, 0.4)).empty());
  EXPECT_LT(m_Steps, 20);
}

// Through the point opposite to the view, which has no pixel, to the middle of the window.
TEST_F(ArcWalkTest, PassesThePointOppositeToTheView) {
  Look(0.0, 0.0, 1.0);
  SkyArc arc = {{}, {{-1.0, 0.0, 0.0}}, {{0.0, 1.0, 0.0}}, 0.0, kPi};
  const auto stretches = Walk(PlainSight(), arc);
  ASSERT_FALSE(stretches.empty());
  EXPECT_NEAR(stretches.back().to.x, 800.0, 1e-6);
  EXPECT_NEAR(stretches.back().to.y, 500.0, 1e-6);
}

TEST_F(ArcWalkTest, EndsWhereTheArcEnds) {
  Look(180.0, 0.0, 1.0);
  SkyArc arc = {{}, {{-1.0, 0.0, 0.0}}, {{0.0, 0.0, 1.0}}, 0.05, 0.1};
  const auto stretches = Walk(PlainSight(), arc);
  ASSERT_GT(stretches.size(), 2u);
  const double scale = ViewGeometry(f.camera).scale;
  EXPECT_NEAR(stretches.front().from.y, 500.0 + scale * std::tan(0.025), 1e-6);
  EXPECT_NEAR(stretches.back().to.y, 500.0 + scale * std::tan(0.05), 1e-6);
}
