// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// From mean elements to a place: the report's long-period periodics, solution of Kepler's equation,
// short-period preliminary quantities, their application, and unit vectors.
#include <cmath>

#include "astro/constants.h"

#include "companions/astro/satellites/sgp4.h"

namespace astro_internal {
namespace {

using astro::kTurn;

constexpr double kSecondsPerMinute = 60.0;

// The long-period term of the longitude has a pole at an inclination of 180 degrees.
constexpr double kLeastPole = 1.5e-12;

// An orbit by its eccentricity vector (x to the ascending node) and mean argument of latitude.
struct NodalOrbit {
  double x, y;
  double latitude;
};

NodalOrbit AddLongPeriodics(const MeanOrbit& orbit, double axis) {
  const double s = std::sin(orbit.i), c = std::cos(orbit.i);
  const double ratio = kJ3 / kJ2;
  const double inverseP = 1.0 / (axis * (1.0 - orbit.e * orbit.e));
  const double pole = std::fabs(1.0 + c) > kLeastPole ? 1.0 + c : kLeastPole;
  NodalOrbit nodal;
  nodal.x = orbit.e * std::cos(orbit.perigee);
  nodal.y = orbit.e * std::sin(orbit.perigee) - 0.5 * ratio * s * inverseP;
  nodal.latitude = std::fmod(
      orbit.anomaly + orbit.perigee - 0.25 * ratio * s * (3.0 + 5.0 * c) / pole * inverseP * nodal.x, kTurn);
  return nodal;
}

struct SineCosine {
  double sine, cosine;
};

// Kepler's equation in these elements, for the eccentric anomaly counted from the node: Newton's steps, none
// longer than 0.95, at most ten, as the report's run had them: that is part of the model.
SineCosine SolveKepler(const NodalOrbit& orbit) {
  double angle = orbit.latitude;
  SineCosine at = {std::sin(angle), std::cos(angle)};
  for (int k = 0; k < 10; ++k) {
    const double slope = 1.0 - at.cosine * orbit.x - at.sine * orbit.y;
    double step = (orbit.latitude - orbit.y * at.cosine + orbit.x * at.sine - angle) / slope;
    step = std::fmin(std::fmax(step, -0.95), 0.95);
    if (k > 0 && std::fabs(step) < 1e-12) break;
    angle += step;
    at = {std::sin(angle), std::cos(angle)};
  }
  return at;
}

}  // namespace

SatelliteFault ComputePlace(const MeanOrbit& orbit, double axis, double position[3], double velocity[3]) {
  const NodalOrbit nodal = AddLongPeriodics(orbit, axis);
  const SineCosine anomaly = SolveKepler(nodal);
  const double e2 = nodal.x * nodal.x + nodal.y * nodal.y;
  const double p = axis * (1.0 - e2);
  if (!(p >= 0.0)) return SatelliteFault::kSemiLatusRectum;

  const double eCosine = nodal.x * anomaly.cosine + nodal.y * anomaly.sine;
  const double eSine = nodal.x * anomaly.sine - nodal.y * anomaly.cosine;
  const double distance = axis * (1.0 - eCosine);
  const double beta = std::sqrt(1.0 - e2);
  const double part = eSine / (1.0 + beta);
  const double sinLatitude = axis / distance * (anomaly.sine - nodal.y - nodal.x * part);
  const double cosLatitude = axis / distance * (anomaly.cosine - nodal.x + nodal.y * part);
  const double sin2 = 2.0 * sinLatitude * cosLatitude;
  const double cos2 = 1.0 - 2.0 * sinLatitude * sinLatitude;

  const double s = std::sin(orbit.i), c = std::cos(orbit.i);
  const double zonal = 3.0 * c * c - 1.0;
  const double first = 0.5 * kJ2 / p;
  const double second = first / p;
  const double r = distance * (1.0 - 1.5 * second * beta * zonal) + 0.5 * first * s * s * cos2;
  const double latitude = std::atan2(sinLatitude, cosLatitude) - 0.25 * second * (7.0 * c * c - 1.0) * sin2;
  const double node = orbit.node + 1.5 * second * c * sin2;
  const double tilt = orbit.i + 1.5 * second * c * s * cos2;
  const double outward = std::sqrt(axis) * eSine / distance - orbit.n * first * s * s * sin2 / kKe;
  const double ahead = std::sqrt(p) / distance + orbit.n * first * (s * s * cos2 + 1.5 * zonal) / kKe;

  const double su = std::sin(latitude), cu = std::cos(latitude);
  const double sn = std::sin(node), cn = std::cos(node);
  const double st = std::sin(tilt), ct = std::cos(tilt);
  const double u[3] = {-sn * ct * su + cn * cu, cn * ct * su + sn * cu, st * su};
  const double v[3] = {-sn * ct * cu - cn * su, cn * ct * cu - sn * su, st * cu};
  if (!std::isfinite(r + outward + ahead + u[0] + v[0])) return SatelliteFault::kSemiLatusRectum;
  for (int k = 0; k < 3; ++k) {
    position[k] = r * u[k] * kEarthRadius;
    velocity[k] = (outward * u[k] + ahead * v[k]) * kEarthRadius * kKe / kSecondsPerMinute;
  }
  return r < 1.0 ? SatelliteFault::kDecayed : SatelliteFault::kNone;
}

}  // namespace astro_internal
