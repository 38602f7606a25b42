// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Gravitational parameters of DE440: R. S. Park, W. M. Folkner, J. G. Williams & D. H. Boggs 2021, "The JPL
// planetary and lunar ephemerides DE440 and DE441", Astronomical Journal 161, 105, table 2; of the planets
// without their moons as published with it by NAIF (gm_de440.tpc). The Sun's is the square of the Gaussian
// constant, which published elements and the mean motions of two-body orbits here rest on; that of DE440 is
// 5e-12 smaller.
#include "companions/astro/planets/gravity.h"

#include "astro/constants.h"
#include "astro/two_body.h"

namespace astro_internal {

namespace {

struct Gravity {
  double system;  // km^3 / s^2
  double body;
};

constexpr Gravity kPlanets[9] = {
    {22031.868551, 22031.868551},    {324858.592, 324858.592},           {398600.435507, 398600.435507},
    {42828.375816, 42828.373620699}, {126712764.1, 126686531.9003704},   {37940584.8418, 37931206.23436167},
    {5794556.4, 5793951.256527211},  {6836527.10058, 6835103.145462294}, {975.5, 869.6138177608748},
};
constexpr double kMoonGravity = 4902.800118;
using astro::kKilometresPerAu;
using astro::kSecondsPerDay;
using astro::kSunNumber;
constexpr double kUnit =
    kSecondsPerDay * kSecondsPerDay / (kKilometresPerAu * kKilometresPerAu * kKilometresPerAu);

}  // namespace

double SystemGravity(int planet) {
  return planet == kSunNumber ? kGaussianConstant * kGaussianConstant : kPlanets[planet - 1].system * kUnit;
}

double BodyGravity(const SSO_ID& body) {
  if (body == astro::kMoon) return kMoonGravity * kUnit;
  if (body.kind != astro::kPlanetKind || body.number < 1 || body.number > kSunNumber) return 0.0;
  return body.number == kSunNumber ? SystemGravity(kSunNumber) : kPlanets[body.number - 1].body * kUnit;
}

}  // namespace astro_internal
