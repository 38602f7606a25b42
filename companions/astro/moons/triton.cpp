// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// N. V. Emelyanov & M. Yu. Samorodov 2015, "Analytical theory of motion and new ephemeris of Triton from
// observations", Monthly Notices of the Royal Astronomical Society 454, 2205: a circle whose plane turns
// about a fixed pole, disturbed by the Sun.
#include <cmath>

#include "astro/constants.h"
#include "companions/astro/moons/moon_orbit.h"
#include "companions/astro/moons/moon_theories.h"

namespace astro_internal {

namespace {

constexpr double kEpoch = 2378520.5;
constexpr double kAxis = 354696.76 / astro::kKilometresPerAu;
constexpr double kMotion = 61.25871809;                 // degrees a day, like all below
constexpr double kPoleRA = 299.090, kPoleDec = 43.019;  // of the reference plane

// Degrees: of the inclination (cosines), of the argument and of the node (sines).
struct SolarTerm {
  int sun, node;  // multiples of the Sun's argument and of its node's distance from Triton's
  double inclination, argument, ascendingNode;
};
constexpr SolarTerm kTerms[] = {
    {2, 0, 0.00000000, -0.00012327, 0.00063339},  {2, 1, 0.00096486, -0.00279453, -0.00178908},
    {0, 1, 0.00664662, -0.04335625, -0.01560110}, {-2, 1, 0.00004687, -0.00017215, -0.00009186},
    {2, 2, 0.00095975, -0.00233686, -0.00218071}, {0, 2, -0.00037627, 0.00170605, 0.00096231},
    {-2, 2, -0.00000225, 0.00000730, 0.00000536},
};

}  // namespace

void TritonState(double date, double position[3], double velocity[3]) {
  const double days = date - kEpoch;
  const double sun = Radians(258.727508 + 0.00598084154 * (date - astro::kJ2000));
  double node = 73.395781 + 0.001452458 * days;
  const double fromSunsNode = Radians(200.788181 - node);
  double inclination = 157.268439, argument = 31.791760 + kMotion * days;
  for (const SolarTerm& term : kTerms) {
    const double angle = term.sun * sun + term.node * fromSunsNode;
    inclination += term.inclination * std::cos(angle);
    argument += term.argument * std::sin(angle);
    node += term.ascendingNode * std::sin(angle);
  }
  const auto toEquator = [&](double x, double y, double v[3]) {
    v[0] = x;
    v[1] = y;
    v[2] = 0.0;
    TurnAboutX(Radians(inclination), v);
    TurnAboutZ(Radians(node), v);
    TurnAboutX(Radians(90.0 - kPoleDec), v);
    TurnAboutZ(Radians(90.0 + kPoleRA), v);
  };
  const double c = std::cos(Radians(argument)), s = std::sin(Radians(argument));
  const double speed = kAxis * Radians(kMotion);
  toEquator(kAxis * c, kAxis * s, position);
  if (velocity != nullptr) toEquator(-speed * s, speed * c, velocity);
}

}  // namespace astro_internal
