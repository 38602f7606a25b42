// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/pixel_directions.h"

#include <gtest/gtest.h>

#include "scene/frame_helpers.h"

using namespace scene;

TEST(PixelDirections, AreTheProjectionTheOtherWay) {
  host_test::FrameFixture f;
  for (const double zoom : {0.25, 1.0, 300.0}) {
    for (const auto& [azimuth, altitude] : {std::pair(180.0, 30.0), {0.0, 90.0}, {77.0, -20.0}}) {
      for (const double slope : {0.0, 0.7}) {
        f.camera.SetZoom(zoom);
        f.SetLook(azimuth, altitude);
        SphViewCoor angles = f.camera.GetViewAngles();
        angles.slope = slope;
        f.camera.SetRA_Dec(angles);
        PrepareObserver(f.camera);
        const ViewGeometry geometry(f.camera);
        for (const SkyFrameOf frame : {SkyFrameOf::kHorizon, SkyFrameOf::kJ2000}) {
          const PixelDirections directions(geometry, frame);
          for (const auto& [x, y] : {std::pair(0.0, 0.0), {800.0, 500.0}, {1600.0, 1000.0}, {400.0, 777.0}}) {
            const Direction direction = directions.Find({x, y});
            EXPECT_NEAR(Dot(direction, direction), 1.0, 1e-12);
            const auto pixel = geometry.Project(direction, frame);
            EXPECT_NEAR(pixel.x, x, 0.02) << zoom << " " << azimuth << " " << slope;
            EXPECT_NEAR(pixel.y, y, 0.02) << zoom << " " << azimuth << " " << slope;
          }
        }
      }
    }
  }
}
