// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/earth_orientation.h"

double astro::InverseLorentzFactor(const double velocity[3]) {
  const double speed = Vmod(velocity, 3);
  return std::sqrt(1.0 - speed * speed);
}

void Aberration(const double direction[3], const double velocity[3], double apparent[3]) {
  astro::Aberration(direction, velocity, astro::InverseLorentzFactor(velocity), apparent);
}
