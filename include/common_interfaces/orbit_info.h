// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include "common_interfaces/api.h"

namespace CommonInterfaces {

// The osculating two-body orbit of a body, in the form in which its path is drawn: the path is
//   r(nu) = m_SemiLatusRectum / (1 + m_Eccentricity cos nu)
// in the plane through the central body perpendicular to the normal, nu counted from the pericentre in the
// sense of motion, with the body itself at the anomaly kept here. A plain record, copied as a whole.
struct COMMON_INTERFACES_API OrbitInfo {
  double m_Center[3];     // the central body, au, in the axes of r and v; the caller's: init leaves it alone
  double m_Normal[3];     // unit normal of the orbit plane, along r x v
  double m_Radius[3];     // unit vector from the central body to the body
  double m_CosAnomaly;    // cosine of the true anomaly
  double m_SinAnomaly;    // sine of it: positive on the way from pericentre to apocentre
  double m_Eccentricity;  // 0 or more
  double m_SemiLatusRectum;  // in the unit of r

  // Fills all but the centre from the position `r` and the velocity `v` relative to the central body, three
  // numbers each in any axes; `invMu` is the reciprocal of the gravitational parameter in their units. An
  // eccentricity of at most 1e-7 measures the anomaly from the body itself (cosine 1, sine 0). There is no
  // failure: a zero r, or r parallel to v, has no plane and gives infinities and values that are not numbers.
  // Any thread.
  void init(double invMu, const double* r, const double* v);
};
static_assert(sizeof(OrbitInfo) == 13 * 8 && offsetof(OrbitInfo, m_Center) == 0);
static_assert(offsetof(OrbitInfo, m_Normal) == 3 * 8 && offsetof(OrbitInfo, m_Radius) == 6 * 8);
static_assert(offsetof(OrbitInfo, m_CosAnomaly) == 9 * 8 && offsetof(OrbitInfo, m_SinAnomaly) == 10 * 8);
static_assert(offsetof(OrbitInfo, m_Eccentricity) == 11 * 8 &&
              offsetof(OrbitInfo, m_SemiLatusRectum) == 12 * 8);

}  // namespace CommonInterfaces
