// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/model/moving_object.h"
#include "companions/astro/geometry/finite.h"

#include "astro/constants.h"
#include "astro/planets.h"
#include "companions/astro/geometry/finite.h"
#include "companions/astro/model/far_moons.h"

namespace astro_internal {

namespace {

using astro::kKilometresPerAu;
using astro::kMinutesPerDay;
using astro::kSecondsPerDay;

void AddTo(double v[3], const double share[3], double factor) {
  for (int i = 0; i < 3; ++i) v[i] += factor * share[i];
}

bool OrbitState(const OrbitalElements& elements, const OrbitPlane& plane, double date, double position[3],
                double velocity[3]) {
  if (!ComputeTwoBodyState(elements, plane, date, position, velocity)) return false;
  const SSO_ID centre(elements.centralKind, elements.centralNumber);
  if (centre == astro::kSun) return true;
  double centrePosition[3], centreVelocity[3];
  if (!ComputePlanetState(centre, date, centrePosition, velocity != nullptr ? centreVelocity : nullptr))
    return false;
  AddTo(position, centrePosition, 1.0);
  if (velocity != nullptr) AddTo(velocity, centreVelocity, 1.0);
  return true;
}

// The light takes milliseconds from a satellite: the Earth moves straight on meanwhile.
bool SatelliteState(const MovingObject& object, const Moment& moment, double before, double position[3],
                    double velocity[3]) {
  if (!moment.earthKnown) return false;
  const double date = moment.dateTT - before;
  const double days = date - moment.deltaT / kSecondsPerDay - object.elements->epoch;
  double teme[3], temeVelocity[3];
  if (object.satellite->GetState(days * kMinutesPerDay, teme, temeVelocity) != SatelliteFault::kNone)
    return false;
  TemeToJ2000(date, teme, position);
  for (int i = 0; i < 3; ++i)
    position[i] = position[i] / kKilometresPerAu + moment.earth[i] - before * moment.earthVelocity[i];
  if (velocity == nullptr) return true;
  TemeToJ2000(date, temeVelocity, velocity);
  for (int i = 0; i < 3; ++i)
    velocity[i] = velocity[i] * kSecondsPerDay / kKilometresPerAu + moment.earthVelocity[i];
  return true;
}

bool FindState(const MovingObject& object, const Moment& moment, double before, double position[3],
               double velocity[3]) {
  const double date = moment.dateTT - before;
  if (object.satellite != nullptr) return SatelliteState(object, moment, before, position, velocity);
  if (object.elements != nullptr) return OrbitState(*object.elements, object.plane, date, position, velocity);
  if (IsFarMoon(object.id)) return FarMoonState(object.id, date, position, velocity);
  return ComputePlanetState(object.id, date, position, velocity);
}

}  // namespace

bool StateOf(const MovingObject& object, const Moment& moment, double before, double position[3],
             double velocity[3]) {
  if (!FindState(object, moment, before, position, velocity)) return false;
  return AreFinite(position) && (velocity == nullptr || AreFinite(velocity));
}

}  // namespace astro_internal
