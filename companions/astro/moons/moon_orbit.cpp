// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/moons/moon_orbit.h"

#include <cmath>

namespace astro_internal {

namespace {

// F - k sin F + h cos F = longitude: Kepler's equation for the eccentric longitude, by Newton's method.
double EccentricLongitude(const MoonOrbit& orbit) {
  double f = orbit.longitude;
  for (int step = 0; step < 20; ++step) {
    const double c = std::cos(f), s = std::sin(f);
    const double change =
        (orbit.longitude - f + orbit.k * s - orbit.h * c) / (1.0 - orbit.k * c - orbit.h * s);
    f += change;
    if (std::fabs(change) < 1e-14) break;
  }
  return f;
}

// From the plane of the orbit, counted from the reference direction over the node, to space.
void ToSpace(const MoonOrbit& orbit, double x, double y, double v[3]) {
  const double p = orbit.p, q = orbit.q;
  v[0] = x * (1.0 - 2.0 * p * p) + y * 2.0 * p * q;
  v[1] = x * 2.0 * p * q + y * (1.0 - 2.0 * q * q);
  v[2] = 2.0 * std::sqrt(1.0 - p * p - q * q) * (y * q - x * p);
}

}  // namespace

void ToState(const MoonOrbit& orbit, double position[3], double velocity[3]) {
  const double f = EccentricLongitude(orbit), c = std::cos(f), s = std::sin(f);
  const double k = orbit.k, h = orbit.h, a = orbit.axis;
  const double share = 1.0 / (1.0 + std::sqrt(1.0 - k * k - h * h));
  const double across = h * c - k * s, along = k * c + h * s;
  ToSpace(orbit, a * (c - k - h * across * share), a * (s - h + k * across * share), position);
  if (velocity == nullptr) return;
  const double rate = std::sqrt(orbit.gravity / (a * a * a)) / (1.0 - along);  // of f, radians a day
  ToSpace(orbit, a * rate * (h * along * share - s), a * rate * (c - k * along * share), velocity);
}

void TurnAboutZ(double angle, double v[3]) {
  const double c = std::cos(angle), s = std::sin(angle);
  const double x = c * v[0] - s * v[1];
  v[1] = s * v[0] + c * v[1];
  v[0] = x;
}

void TurnAboutX(double angle, double v[3]) {
  const double c = std::cos(angle), s = std::sin(angle);
  const double y = c * v[1] - s * v[2];
  v[2] = s * v[1] + c * v[2];
  v[1] = y;
}

}  // namespace astro_internal
