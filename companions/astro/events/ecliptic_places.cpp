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
  m_Model.SetMoment(date, 0.0);
  TrueEclipticMatrix(date, m_Axes);
  return Get(body, nullptr);
}

EclipticPlace EclipticPlaces::Get(const SSO_ID& object, const void* data) const {
  constexpr double kNowhere = std::numeric_limits<double>::quiet_NaN();
  ObservedBody seen;
  if (!m_Model.Observe(object, data, seen)) return {kNowhere, kNowhere};
  double v[3];
  MV3prod(m_Axes, seen.apparent, v);
  return {std::atan2(v[1], v[0]), std::atan2(v[2], std::hypot(v[0], v[1]))};
}

double EclipticPlaces::Elongation(double date) {
  const double moon = Get(astro::kMoon, date).longitude;
  return std::remainder(moon - Get(astro::kSun, nullptr).longitude, astro::kTurn);
}

}  // namespace astro_internal
