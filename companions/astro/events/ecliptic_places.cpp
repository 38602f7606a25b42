// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/events/ecliptic_places.h"

#include <cmath>
#include <limits>

#include "astro/constants.h"
#include "astro/earth_orientation.h"
#include "astro/vectors.h"

namespace astro_internal {

// At the Earth's centre nothing depends on delta T.
EclipticPlace EclipticPlaces::Get(const SSO_ID& body, double date) {
  constexpr double kNowhere = std::numeric_limits<double>::quiet_NaN();
  ObservedBody seen;
  m_Model.SetMoment(date, 0.0);
  if (!m_Model.Observe(body, nullptr, seen)) return {kNowhere, kNowhere};
  double axes[9], v[3];
  TrueEclipticMatrix(date, axes);
  MV3prod(axes, seen.apparent, v);
  return {std::atan2(v[1], v[0]), std::atan2(v[2], std::hypot(v[0], v[1]))};
}

double EclipticPlaces::Elongation(double date) {
  const double moon = Get(astro::kMoon, date).longitude;
  return std::remainder(moon - Get(astro::kSun, date).longitude, astro::kTurn);
}

}  // namespace astro_internal
