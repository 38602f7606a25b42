// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>

#include "astro/earth_orientation.h"
#include "astro/vectors.h"

// Lorentz transformation of a direction, for example Explanatory Supplement to the Astronomical Almanac (3rd
// edition, 2013), equation 7.40. The product with the speed is taken before anything is written: both arrays
// may be the same.
void Aberration(const double direction[3], const double velocity[3], double apparent[3]) {
  const double speed = Vmod(velocity, 3);
  const double inverseLorentzFactor = std::sqrt(1.0 - speed * speed);
  const double along = astro::Dot(direction, velocity);
  const double share = 1.0 + along / (1.0 + inverseLorentzFactor);
  double seen[3];
  for (int i = 0; i < 3; ++i) seen[i] = inverseLorentzFactor * direction[i] + share * velocity[i];
  const double length = Vmod(seen, 3);
  for (int i = 0; i < 3; ++i) apparent[i] = seen[i] / length;
}
