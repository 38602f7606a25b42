// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "moving_object.h"

#include <cmath>

#include "astro/planets.h"
#include "utils/text.h"

namespace astro_internal {

namespace {

bool IsFinite(const double v[3]) { return std::isfinite(v[0]) && std::isfinite(v[1]) && std::isfinite(v[2]); }

void AddTo(double v[3], const double share[3], double factor) {
  for (int i = 0; i < 3; ++i) v[i] += factor * share[i];
}

bool OrbitState(const OrbitalElements& elements, const OrbitPlane& plane, double date, double position[3],
                double velocity[3]) {
  if (!ComputeTwoBodyState(elements, plane, date, position, velocity)) return false;
  const SSO_ID centre(elements.centralKind, elements.centralNumber);
  if (centre == SSO_ID(FourCC("plnt"), 10)) return true;
  double centrePosition[3], centreVelocity[3];
  if (!ComputePlanetState(centre, date, centrePosition, velocity != nullptr ? centreVelocity : nullptr))
    return false;
  AddTo(position, centrePosition, 1.0);
  if (velocity != nullptr) AddTo(velocity, centreVelocity, 1.0);
  return true;
}

}  // namespace

bool StateOf(const MovingObject& object, const Moment& moment, double before, double position[3],
             double velocity[3]) {
  bool known = false;
  if (object.elements != nullptr) {
    known = OrbitState(*object.elements, object.plane, moment.dateTT - before, position, velocity);
  } else {
    known = ComputePlanetState(object.id, moment.dateTT - before, position, velocity);
  }
  return known && IsFinite(position) && (velocity == nullptr || IsFinite(velocity));
}

}  // namespace astro_internal
