// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/visibility/zoom_search.h"

#include <algorithm>
#include <cmath>

#include "scene/visibility/zoom_range.h"

namespace scene {
namespace {

using CommonInterfaces::Camera;

constexpr double kRatio = 1e-6;  // how near the two zooms come between which the limit passes the code

bool Reaches(Camera& camera, double zoom, int cls, float code, LimitOf limit) {
  camera.SetZoom(zoom);
  const ClassLimits limits(camera, cls);
  return code <= (limit == LimitOf::kDrawing ? limits.draw : limits.label);
}

// The weight of the third digit.
double ThirdDigit(double zoom) { return std::pow(10.0, std::floor(std::log10(zoom)) - 2.0); }

}  // namespace

// Limits never fall as the zoom grows.
std::optional<double> FindLeastZoom(Camera& camera, int cls, float code, LimitOf limit) {
  const double own = camera.GetZoom();
  double below = kMinZoom, above = kMaxZoom;
  // What the camera computes is right but for corrections and for parts of a code, and saves most of the
  // steps.
  const double computed = camera.CalcZoomForShowObject(cls, MagnitudeOfCode(code));
  for (const double zoom : {computed * 0.95, computed * 1.05}) {
    if (zoom <= below || zoom >= above) continue;
    (Reaches(camera, zoom, cls, code, limit) ? above : below) = zoom;
  }
  std::optional<double> found;
  if (Reaches(camera, kMinZoom, cls, code, limit)) {
    found = kMinZoom;
  } else if (Reaches(camera, above, cls, code, limit)) {
    while (above / below > 1.0 + kRatio) {
      const double middle = std::sqrt(below * above);
      (Reaches(camera, middle, cls, code, limit) ? above : below) = middle;
    }
    const double digit = ThirdDigit(above), nearest = std::round(above / digit) * digit;
    found = Reaches(camera, nearest, cls, code, limit) ? nearest : std::ceil(above / digit) * digit;
  }
  camera.SetZoom(own);
  return found;
}

}  // namespace scene
