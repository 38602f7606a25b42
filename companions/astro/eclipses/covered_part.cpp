// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/eclipses/covered_part.h"

#include <algorithm>
#include <cmath>

#include "astro/constants.h"

namespace astro_internal {

double FindCoveredPart(double radius, double coverRadius, double apart) {
  if (apart >= radius + coverRadius) return 0.0;
  const double ratio = coverRadius / radius;
  if (apart <= std::fabs(radius - coverRadius)) return std::min(1.0, ratio * ratio);
  // Half the angles under which the two centres see the common chord.
  const double d = apart / radius;
  const double own = std::acos(std::clamp((d * d + 1.0 - ratio * ratio) / (2.0 * d), -1.0, 1.0)),
               other = std::acos(std::clamp((d * d + ratio * ratio - 1.0) / (2.0 * d * ratio), -1.0, 1.0));
  const double segments =
      own - std::sin(own) * std::cos(own) + ratio * ratio * (other - std::sin(other) * std::cos(other));
  return std::clamp(segments / astro::kPi, 0.0, 1.0);
}

}  // namespace astro_internal
