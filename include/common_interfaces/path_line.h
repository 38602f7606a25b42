// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "astro/object_id.h"

namespace CommonInterfaces {

// One point of a computed path, relative to the reference object: J2000 axes.
struct PathPoint {
  double m_Time = 0.0;                     // Julian date, dynamical time (TT)
  double m_Position[3] = {0.0, 0.0, 0.0};  // au
  double m_Velocity[3] = {0.0, 0.0, 0.0};  // au/day
};
static_assert(sizeof(PathPoint) == 56);

// The path of an object as it was computed against a reference object. Made with `new`; whoever holds it
// deletes it, unless it was handed to RenderSettings::movePathToCache.
struct PathLine {
  SSO_ID m_Object;
  SSO_ID m_Reference;
  unsigned char m_Kind : 6 = 0;  // 0 to 63; the path computation gives it its meaning
  std::vector<PathPoint> m_Points;
};

}  // namespace CommonInterfaces
