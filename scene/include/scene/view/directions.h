// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "astro/constants.h"
#include "astro/vectors.h"
#include "scene/api.h"

namespace scene {

using astro::kPi;
using astro::kRadiansPerDegree;

// A direction as a unit vector, or its change. The frame is said where one is kept.
struct Direction {
  double v[3];
};

inline double Dot(const Direction& a, const Direction& b) { return astro::Dot(a.v, b.v); }

// From longitude and latitude, radians.
SCENE_API Direction MakeDirection(double lon, double lat);

// Scaled to length 1; a zero vector stays.
SCENE_API Direction Normalised(const Direction& direction);

}  // namespace scene
