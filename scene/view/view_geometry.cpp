// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/view_geometry.h"

#include <algorithm>
#include <cmath>

namespace scene {

double GetPictureUnit(int width, int height) {
  return std::clamp(std::sqrt(static_cast<double>(width) * height / (1600.0 * 1000.0)), 0.4, 6.0);
}

ViewGeometry::ViewGeometry(const CommonInterfaces::Camera& view) : camera(view) {
  const tPoint<int> size = camera.GetWinSize();
  width = size.x;
  height = size.y;
  unit = GetPictureUnit(width, height);
  halfDiagonal = std::hypot(width * 0.5, height * 0.5);
  // The camera tells the scale as the size of a small angle: below 0.35 radians it is scale * angle / 2.
  constexpr double kSmallAngle = 0.1;
  scale = camera.VisRad2PixD(kSmallAngle) * 2.0 / kSmallAngle;
  cornerAngle = 2.0 * std::atan(halfDiagonal / scale);
  constexpr double kAberration = 1.1e-4;  // radians, a little above its constant, 20.5 arcseconds
  constexpr double kPixels = 2.0;
  const double reach = std::min(cornerAngle + kAberration + 2.0 * kPixels / scale, kPi);
  reachSine = std::sin(reach);
  reachCosine = std::cos(reach);
  double ra = 0.0, dec = 0.0;
  camera.GetRA_Dec2K(ra, dec);
  centreJ2000 = MakeDirection(ra, dec);
  centreHorizon = MakeDirection(camera.GetViewAngles().lon, camera.GetViewAngles().lat);
}

static_assert(sizeof(Direction) == 3 * sizeof(double), "a row of directions is a row of vectors");

void ViewGeometry::Project(std::span<const Direction> directions, SkyFrameOf frame,
                           tPoint<double>* pixels) const {
  if (directions.empty()) return;
  const double* const first = directions.front().v;
  const int count = static_cast<int>(directions.size());
  if (frame == SkyFrameOf::kJ2000) {
    camera.BatchRA_Dec2K2PixD(first, pixels, count);
  } else {
    camera.BatchRA_Dec2PixD(first, pixels, count);
  }
}

// The picture of a cap is a disc, in which straight stretches between its points stay, unless it holds the
// point opposite to the view.
bool ViewGeometry::MayReach(const SkyCap& cap) const {
  const double along = Dot(cap.axis, centreJ2000), sine = reachSine * cap.cosine + reachCosine * cap.sine;
  return cap.cosine <= 0.0 || sine <= 0.0 || along >= reachCosine * cap.cosine - reachSine * cap.sine ||
         along <= -cap.cosine;
}

double ViewGeometry::GetWidthAngle() const { return 4.0 * std::atan(width * 0.5 / scale); }

double ViewGeometry::GetHeightAngle() const { return 4.0 * std::atan(height * 0.5 / scale); }

}  // namespace scene
