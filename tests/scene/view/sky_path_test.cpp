// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/sky_path.h"

#include <gtest/gtest.h>

#include "scene/frame_helpers.h"

using namespace scene;

namespace {

class SkyPathTest : public testing::Test {
 protected:
  SkyPathTest() { f.Compute(); }
  // A direction so many degrees from the view axis.
  Direction Away(double degrees) const {
    const Direction axis = ViewGeometry(f.camera).centreJ2000;
    Direction side = {{axis.v[1], -axis.v[0], 0.0}};
    side = Normalised(side);
    const double angle = degrees * kRadiansPerDegree;
    Direction away;
    for (int i = 0; i < 3; ++i) away.v[i] = std::cos(angle) * axis.v[i] + std::sin(angle) * side.v[i];
    return away;
  }

  host_test::FrameFixture f;
};

}  // namespace

TEST_F(SkyPathTest, FirstPointGivesNoStretch) {
  const ViewGeometry geometry(f.camera);
  SkyPath path(geometry);
  DrawnLine line;
  EXPECT_FALSE(path.GoTo(Away(0.0), line));
  ASSERT_TRUE(path.GoTo(Away(5.0), line));
  EXPECT_NEAR(line.from.x, 800.0, 1e-6);
  EXPECT_NEAR(line.from.y, 500.0, 1e-6);
  EXPECT_NEAR(std::hypot(line.to.x - 800.0, line.to.y - 500.0),
              geometry.scale * std::tan(2.5 * kRadiansPerDegree), 1e-6);
}

TEST_F(SkyPathTest, PointsBehindTheViewBreakThePath) {
  const ViewGeometry geometry(f.camera);
  SkyPath path(geometry);
  DrawnLine line;
  path.GoTo(Away(80.0), line);
  EXPECT_FALSE(path.GoTo(Away(150.0), line));
  EXPECT_FALSE(path.GoTo(Away(85.0), line));
  EXPECT_TRUE(path.GoTo(Away(80.0), line));
}

TEST_F(SkyPathTest, ClippingKeepsWhatLiesInTheWindow) {
  const ViewGeometry geometry(f.camera);
  const SkyPath path(geometry);
  DrawnLine line = {{800.0, 500.0}, {3200.0, 500.0}};
  ASSERT_TRUE(path.Clip(line));
  EXPECT_NEAR(line.to.x, 1600.0, 1.0);
  line = {{-50.0, 10.0}, {-10.0, 900.0}};
  EXPECT_FALSE(path.Clip(line));
}
