// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/field_of_view.h"

#include <cmath>

#include "common_interfaces/camera.h"
#include "scene/view/directions.h"

namespace scene {
namespace {

using CommonInterfaces::Camera;

// Half the width, in units of the distance from the centre to a corner; the camera loses an odd pixel, too.
double HalfWidth(int width, int height) {
  const double x = width >> 1, y = height >> 1;
  return x / std::hypot(x, y);
}

}  // namespace

// The projection is stereographic: a place in the picture is the tangent of half its angle from the centre.
double GetFieldOfZoom(double zoom, int width, int height) {
  return 4.0 * std::atan(HalfWidth(width, height) * std::tan(0.5 * Camera::s_ZoomOneAngle / zoom)) /
         kRadiansPerDegree;
}

double FindZoomOfField(double degrees, int width, int height) {
  const double corner = std::atan(std::tan(0.25 * degrees * kRadiansPerDegree) / HalfWidth(width, height));
  return 0.5 * Camera::s_ZoomOneAngle / corner;
}

}  // namespace scene
