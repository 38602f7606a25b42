// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/view_geometry.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace scene {

double GetPictureUnit(int width, int height) {
  return std::clamp(std::sqrt(static_cast<double>(width) * height / (1600.0 * 1000.0)), 0.4, 6.0);
}

namespace {

// How much farther than in a picture without air a thing may stand from what is in the middle and yet be in
// the picture: at most by what the lowest of it is lifted, and by the part by which air squeezes at the
// horizon.
double FindSqueeze(double sineOfCentre, double cornerAngle) {
  constexpr double kMostSqueezed = 0.35;
  const double lowest = std::asin(std::clamp(sineOfCentre, -1.0, 1.0)) - cornerAngle - 0.02;
  const double lift = FindAirLift(std::max(std::sin(std::max(lowest, -0.5 * kPi)), kRisingSine));
  return std::min(1.1 * lift, kMostSqueezed * cornerAngle);
}

}  // namespace

ViewGeometry::ViewGeometry(const CommonInterfaces::Camera& view) : ViewGeometry(view, {}) {}

ViewGeometry::ViewGeometry(const CommonInterfaces::Camera& view, const ObserverFrame& observer)
    : camera(view), air(observer.refraction ? &observer : nullptr) {
  const tPoint<int> size = camera.GetWinSize();
  width = size.x;
  height = size.y;
  unit = GetPictureUnit(width, height);
  halfDiagonal = std::hypot(width * 0.5, height * 0.5);
  // The camera tells the scale as the size of a small angle: below 0.35 radians it is scale * angle / 2.
  constexpr double kSmallAngle = 0.1;
  scale = camera.VisRad2PixD(kSmallAngle) * 2.0 / kSmallAngle;
  cornerAngle = 2.0 * std::atan(halfDiagonal / scale);
  centreHorizon = MakeDirection(camera.GetViewAngles().lon, camera.GetViewAngles().lat);
  if (air) cornerAngle = std::min(cornerAngle + FindSqueeze(centreHorizon.v[2], cornerAngle), kPi);
  constexpr double kAberration = 1.1e-4;  // radians, a little above its constant, 20.5 arcseconds
  constexpr double kPixels = 2.0;
  const double reach = std::min(cornerAngle + kAberration + 2.0 * kPixels / scale, kPi);
  reachSine = std::sin(reach);
  reachCosine = std::cos(reach);
  double ra = 0.0, dec = 0.0;
  camera.GetRA_Dec2K(ra, dec);
  centreJ2000 = MakeDirection(ra, dec);
}

static_assert(sizeof(Direction) == 3 * sizeof(double), "a row of directions is a row of vectors");

void ViewGeometry::Project(std::span<const Direction> directions, SkyFrameOf frame,
                           tPoint<double>* pixels) const {
  if (directions.empty()) return;
  const double* const first = directions.front().v;
  const int count = static_cast<int>(directions.size());
  if (air && frame == SkyFrameOf::kJ2000) {
    ProjectLifted(directions, pixels);
  } else if (frame == SkyFrameOf::kJ2000) {
    camera.BatchRA_Dec2K2PixD(first, pixels, count);
  } else {
    camera.BatchRA_Dec2PixD(first, pixels, count);
  }
}

// Some at a time, so that nothing is allocated.
void ViewGeometry::ProjectLifted(std::span<const Direction> directions, tPoint<double>* pixels) const {
  std::array<Direction, 64> seen;
  while (!directions.empty()) {
    const std::size_t count = std::min(directions.size(), seen.size());
    for (std::size_t i = 0; i < count; ++i) seen[i] = SeenDirection(directions[i], *air);
    camera.BatchRA_Dec2PixD(seen.front().v, pixels, static_cast<int>(count));
    directions = directions.subspan(count);
    pixels += count;
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
