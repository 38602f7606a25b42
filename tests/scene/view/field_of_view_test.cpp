// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/field_of_view.h"

#include <gtest/gtest.h>

#include <cmath>

#include "common_interfaces/camera.h"
#include "scene/view/directions.h"

using namespace scene;

namespace {

// Half the angle across the window, as the camera finds it from its edge.
double GetHalfField(double zoom, int width, int height) {
  CommonInterfaces::Camera camera(1);
  camera.SetWinRect({width, height, width, height});
  camera.SetZoom(zoom);
  double edge[3], middle[3];
  camera.Pix2Vec({0, height / 2}, edge);
  camera.Pix2Vec({width / 2, height / 2}, middle);
  return std::acos(edge[0] * middle[0] + edge[1] * middle[1] + edge[2] * middle[2]) / kRadiansPerDegree;
}

}  // namespace

TEST(FieldOfView, IsWhatTheCameraShowsFromEdgeToEdge) {
  EXPECT_NEAR(GetFieldOfZoom(1.0, 1600, 1000), 63.0, 0.5);
  for (const double zoom : {0.3, 1.0, 7.5, 200.0})
    EXPECT_NEAR(GetFieldOfZoom(zoom, 1600, 1000), 2.0 * GetHalfField(zoom, 1600, 1000), 1e-4) << zoom;
  EXPECT_NEAR(GetFieldOfZoom(0.5, 640, 1200), 2.0 * GetHalfField(0.5, 640, 1200), 1e-4);
}

TEST(FieldOfView, ZoomOfAFieldShowsIt) {
  for (const double field : {0.01, 1.0, 30.0, 90.0, 200.0})
    EXPECT_NEAR(GetFieldOfZoom(FindZoomOfField(field, 1920, 1081), 1920, 1081), field, 1e-9 * field);
}
