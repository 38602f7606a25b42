// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/orbit_info.h"

#include <cmath>

#include "astro/vectors.h"

namespace CommonInterfaces {

namespace {
// Below this the pericentre is noise: the anomaly is counted from the body itself.
constexpr double kCircularEccentricity = 1e-7;
}  // namespace

void OrbitInfo::init(double invMu, const double* r, const double* v) {
  const double distance = std::sqrt(astro::Dot(r, r));
  const double inverseDistance = 1.0 / distance;

  double h[3];  // twice the areal velocity
  Vprod(r, v, h);
  const double h2 = astro::Dot(h, h);
  const double hLength = std::sqrt(h2);
  const double inverseH = 1.0 / hLength;
  for (int i = 0; i < 3; ++i) m_Normal[i] = h[i] * inverseH;

  const double eCos = h2 * invMu / distance - 1.0;
  const double eSin = hLength * invMu * astro::Dot(r, v) / distance;
  m_Eccentricity = std::sqrt(eCos * eCos + eSin * eSin);
  if (m_Eccentricity > kCircularEccentricity) {
    m_CosAnomaly = eCos / m_Eccentricity;
    m_SinAnomaly = eSin / m_Eccentricity;
  } else {
    m_CosAnomaly = 1.0;
    m_SinAnomaly = 0.0;
  }

  m_SemiLatusRectum = h2 * invMu;
  for (int i = 0; i < 3; ++i) m_Radius[i] = r[i] * inverseDistance;
}

}  // namespace CommonInterfaces
