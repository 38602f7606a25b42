// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "scene/api.h"

namespace scene {

inline constexpr double kPi = 3.14159265358979323846;
inline constexpr double kRadiansPerDegree = kPi / 180.0;

// A direction as a unit vector, or its change. The frame is said where one is kept.
struct Direction {
  double v[3];
};

inline double Dot(const Direction& a, const Direction& b) {
  return a.v[0] * b.v[0] + a.v[1] * b.v[1] + a.v[2] * b.v[2];
}

// From longitude and latitude, radians.
SCENE_API Direction MakeDirection(double lon, double lat);

// Scaled to length 1; a zero vector stays.
SCENE_API Direction Normalised(const Direction& direction);

}  // namespace scene
