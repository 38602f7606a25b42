// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>

#include "astro/constants.h"
#include "scene/view/directions.h"

namespace skydata {

// The change of a direction a year, for a place in radians and a proper motion in milliarcseconds a year, to
// the east with cos Dec included.
inline scene::Direction MakeMotion(double ra, double dec, double east, double north) {
  constexpr double kRadiansPerMas = astro::kRadiansPerArcsecond / 1000.0;
  const double sa = std::sin(ra), ca = std::cos(ra), sd = std::sin(dec), cd = std::cos(dec);
  const double e = east * kRadiansPerMas, n = north * kRadiansPerMas;
  return {{-sa * e - ca * sd * n, ca * e - sa * sd * n, cd * n}};
}

}  // namespace skydata
