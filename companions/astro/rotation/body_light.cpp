// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/rotation/body_light.h"

#include <cmath>

#include "astro/constants.h"
#include "astro/earth_orientation.h"
#include "astro/two_body.h"
#include "astro/vectors.h"

namespace astro_internal {

namespace {

// In units of the speed of light, as if the body went round the Sun on a circle in the ecliptic: what that
// leaves out is a fifth of 33 arc seconds for Mercury, and less for others.
void VelocityAbout(const double fromSun[3], double velocity[3]) {
  constexpr double kEclipticPole[3] = {0.0, -0.3977771559, 0.9174820621};
  const double distance = Vmod(fromSun, 3);
  Vprod(kEclipticPole, fromSun, velocity);
  const double speed = kGaussianConstant / std::sqrt(distance) / astro::kLightAuPerDay;
  for (int i = 0; i < 3; ++i) velocity[i] *= speed / distance;
}

}  // namespace

// Of the light that leaves, the body sees the way backwards in time: the aberration has the other sign.
BodyLight LightAt(const ObservedBody& seen) {
  BodyLight light = {};
  for (int i = 0; i < 3; ++i) light.toObserver[i] = -seen.astrometric[i];
  const double distance = Vmod(seen.fromSun, 3);
  if (!(distance > 0.01)) return light;  // au; the Sun, and what falls into it
  double velocity[3], backwards[3], toSun[3];
  VelocityAbout(seen.fromSun, velocity);
  for (int i = 0; i < 3; ++i) {
    backwards[i] = -velocity[i];
    toSun[i] = -seen.fromSun[i] / distance;
  }
  Aberration(light.toObserver, backwards, light.toObserver);
  Aberration(toSun, velocity, light.toSun);
  return light;
}

}  // namespace astro_internal
