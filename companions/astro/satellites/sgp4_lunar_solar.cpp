// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Perturbations by Sun and Moon: the deep-space initialization of the report (Hujsak 1979), its lunar-solar
// secular and periodic effects. The symbols a, X and Z are those of Spacetrack Report No. 3, section 10.
#include <cmath>

#include "astro/constants.h"

#include "companions/astro/satellites/sgp4.h"

namespace astro_internal {
namespace {

using astro::kPi;
using astro::kTurn;

constexpr double kSunRate = 1.19459e-5;  // mean motion, radians per minute
constexpr double kMoonRate = 1.5835218e-4;
constexpr double kSunEccentricity = 0.01675;
constexpr double kMoonEccentricity = 0.05490;
constexpr double kSunStrength = 2.9864797e-6;
constexpr double kMoonStrength = 4.7968065e-7;
constexpr double kCosObliquity = 0.91744867;
constexpr double kSinObliquity = 0.39785416;
constexpr double kSmallInclination = 5.2359877e-2;  // three degrees: the node's secular rate is left out
constexpr double kLyddaneBelow = 0.2;               // radians; below it the node itself is no good element

// Where the orbit of the disturbing body lies.
struct BodyOrbit {
  double cosPerigee, sinPerigee;
  double cosTilt, sinTilt;
  double cosNode, sinNode;  // of the satellite's node counted from the body's
};

struct Strengths {
  double s1, s2, s3, s4, s5, s6, s7;
  double z1, z2, z3, z11, z12, z13, z21, z22, z23, z31, z32, z33;
};

Strengths MakeStrengths(const BodyOrbit& body, double strength, const MeanOrbit& orbit) {
  const double c = std::cos(orbit.i), s = std::sin(orbit.i);
  const double cw = std::cos(orbit.perigee), sw = std::sin(orbit.perigee);
  const double e2 = orbit.e * orbit.e, beta2 = 1.0 - e2;
  const double a1 = body.cosPerigee * body.cosNode + body.sinPerigee * body.cosTilt * body.sinNode;
  const double a3 = -body.sinPerigee * body.cosNode + body.cosPerigee * body.cosTilt * body.sinNode;
  const double a7 = -body.cosPerigee * body.sinNode + body.sinPerigee * body.cosTilt * body.cosNode;
  const double a8 = body.sinPerigee * body.sinTilt;
  const double a9 = body.sinPerigee * body.sinNode + body.cosPerigee * body.cosTilt * body.cosNode;
  const double a10 = body.cosPerigee * body.sinTilt;
  const double a2 = c * a7 + s * a8, a4 = c * a9 + s * a10;
  const double a5 = -s * a7 + c * a8, a6 = -s * a9 + c * a10;
  const double x1 = a1 * cw + a2 * sw, x2 = a3 * cw + a4 * sw;
  const double x3 = -a1 * sw + a2 * cw, x4 = -a3 * sw + a4 * cw;
  const double x5 = a5 * sw, x6 = a6 * sw, x7 = a5 * cw, x8 = a6 * cw;
  Strengths r;
  r.z31 = 12.0 * x1 * x1 - 3.0 * x3 * x3;
  r.z32 = 24.0 * x1 * x2 - 6.0 * x3 * x4;
  r.z33 = 12.0 * x2 * x2 - 3.0 * x4 * x4;
  r.z1 = 6.0 * (a1 * a1 + a2 * a2) + (1.0 + e2) * r.z31;
  r.z2 = 12.0 * (a1 * a3 + a2 * a4) + (1.0 + e2) * r.z32;
  r.z3 = 6.0 * (a3 * a3 + a4 * a4) + (1.0 + e2) * r.z33;
  r.z11 = -6.0 * a1 * a5 + e2 * (-24.0 * x1 * x7 - 6.0 * x3 * x5);
  r.z12 = -6.0 * (a1 * a6 + a3 * a5) + e2 * (-24.0 * (x2 * x7 + x1 * x8) - 6.0 * (x3 * x6 + x4 * x5));
  r.z13 = -6.0 * a3 * a6 + e2 * (-24.0 * x2 * x8 - 6.0 * x4 * x6);
  r.z21 = 6.0 * a2 * a5 + e2 * (24.0 * x1 * x5 - 6.0 * x3 * x7);
  r.z22 = 6.0 * (a4 * a5 + a2 * a6) + e2 * (24.0 * (x2 * x5 + x1 * x6) - 6.0 * (x4 * x7 + x3 * x8));
  r.z23 = 6.0 * a4 * a6 + e2 * (24.0 * x2 * x6 - 6.0 * x4 * x8);
  r.s3 = strength / orbit.n;
  r.s2 = -0.5 * r.s3 / std::sqrt(beta2);
  r.s4 = r.s3 * std::sqrt(beta2);
  r.s1 = -15.0 * orbit.e * r.s4;
  r.s5 = x1 * x3 + x2 * x4;
  r.s6 = x2 * x3 + x1 * x4;
  r.s7 = x2 * x4 - x1 * x3;
  return r;
}

LunarSolarTerms MakeTerms(const Strengths& r, double e, double anomaly, double rate, double eccentricity) {
  LunarSolarTerms terms;
  terms.anomaly = anomaly;
  terms.rate = rate;
  terms.eccentricity = eccentricity;
  terms.e2 = 2.0 * r.s1 * r.s6;
  terms.e3 = 2.0 * r.s1 * r.s7;
  terms.i2 = 2.0 * r.s2 * r.z12;
  terms.i3 = 2.0 * r.s2 * (r.z13 - r.z11);
  terms.l2 = -2.0 * r.s3 * r.z2;
  terms.l3 = -2.0 * r.s3 * (r.z3 - r.z1);
  terms.l4 = -2.0 * r.s3 * (-21.0 - 9.0 * e * e) * eccentricity;
  terms.g2 = 2.0 * r.s4 * r.z32;
  terms.g3 = 2.0 * r.s4 * (r.z33 - r.z31);
  terms.g4 = -18.0 * r.s4 * eccentricity;
  terms.h2 = -2.0 * r.s2 * r.z22;
  terms.h3 = -2.0 * r.s2 * (r.z23 - r.z21);
  return terms;
}

void AddRates(const Strengths& r, double rate, const MeanOrbit& orbit, LunarSolar& model) {
  const double e2 = orbit.e * orbit.e;
  const double sine = std::sin(orbit.i);
  const bool isFlat = orbit.i < kSmallInclination || orbit.i > kPi - kSmallInclination;
  const double node = isFlat ? 0.0 : -rate * r.s2 * (r.z21 + r.z23) / sine;
  model.eRate += r.s1 * rate * r.s5;
  model.iRate += r.s2 * rate * (r.z11 + r.z13);
  model.anomalyRate += -rate * r.s3 * (r.z1 + r.z3 - 14.0 - 6.0 * e2);
  model.perigeeRate += r.s4 * rate * (r.z31 + r.z33 - 6.0) - std::cos(orbit.i) * node;
  model.nodeRate += node;
}

// The Sun's orbit lies in the ecliptic; only its perigee has a fixed direction.
BodyOrbit OrbitOfSun(double node) {
  return {0.1945905, -0.98088458, kCosObliquity, kSinObliquity, std::cos(node), std::sin(node)};
}

// The Moon's orbit to the equator, from the regression of its node on the ecliptic.
BodyOrbit OrbitOfMoon(double node, double day, double perigee) {
  const double ascending = std::fmod(4.5236020 - 9.2422029e-4 * day, kTurn);
  const double s = std::sin(ascending), c = std::cos(ascending);
  BodyOrbit orbit;
  orbit.cosTilt = 0.91375164 - 0.03568096 * c;
  orbit.sinTilt = std::sqrt(1.0 - orbit.cosTilt * orbit.cosTilt);
  const double sinNode = 0.089683511 * s / orbit.sinTilt;
  const double cosNode = std::sqrt(1.0 - sinNode * sinNode);
  const double arc = std::atan2(kSinObliquity * s / orbit.sinTilt, cosNode * c + kCosObliquity * sinNode * s);
  const double argument = perigee + arc - ascending;
  orbit.cosPerigee = std::cos(argument);
  orbit.sinPerigee = std::sin(argument);
  orbit.cosNode = cosNode * std::cos(node) + sinNode * std::sin(node);
  orbit.sinNode = std::sin(node) * cosNode - std::cos(node) * sinNode;
  return orbit;
}

struct Periodics {
  double e, i, l, g, h;
};

void AddPeriodics(const LunarSolarTerms& terms, double t, Periodics& sum) {
  const double mean = terms.anomaly + terms.rate * t;
  const double anomaly = mean + 2.0 * terms.eccentricity * std::sin(mean);
  const double sine = std::sin(anomaly);
  const double f2 = 0.5 * sine * sine - 0.25;
  const double f3 = -0.5 * sine * std::cos(anomaly);
  sum.e += terms.e2 * f2 + terms.e3 * f3;
  sum.i += terms.i2 * f2 + terms.i3 * f3;
  sum.l += terms.l2 * f2 + terms.l3 * f3 + terms.l4 * sine;
  sum.g += terms.g2 * f2 + terms.g3 * f3 + terms.g4 * sine;
  sum.h += terms.h2 * f2 + terms.h3 * f3;
}

// R. H. Lyddane 1963 (Astronomical Journal 68, 555): the changes applied to sin i sin node and sin i cos
// node, which stay good where the node itself does not.
void ApplyLyddane(const Periodics& change, MeanOrbit& orbit) {
  const double s = std::sin(orbit.i), c = std::cos(orbit.i);
  const double sn = std::sin(orbit.node), cn = std::cos(orbit.node);
  const double alpha = s * sn + change.h * cn + change.i * c * sn;
  const double beta = s * cn - change.h * sn + change.i * c * cn;
  const double before = std::fmod(orbit.node, kTurn);
  const double longitude =
      orbit.anomaly + orbit.perigee + c * before + change.l + change.g - change.i * before * s;
  double node = std::atan2(alpha, beta);
  if (std::fabs(before - node) > kPi) node += node < before ? kTurn : -kTurn;
  orbit.node = node;
  orbit.anomaly += change.l;
  orbit.perigee = longitude - orbit.anomaly - c * node;
}

}  // namespace

LunarSolar MakeLunarSolar(const MeanOrbit& epoch, double daysSince1950) {
  const double day = daysSince1950 + 18261.5;  // from noon of 31 December 1899
  const double moonPerigee = 5.8351514 + 0.0019443680 * day;
  const double sunAnomaly = std::fmod(6.2565837 + 0.017201977 * day, kTurn);
  const double moonAnomaly = std::fmod(4.7199672 + 0.22997150 * day - moonPerigee, kTurn);
  const Strengths sun = MakeStrengths(OrbitOfSun(epoch.node), kSunStrength, epoch);
  const Strengths moon = MakeStrengths(OrbitOfMoon(epoch.node, day, moonPerigee), kMoonStrength, epoch);
  LunarSolar model = {};
  model.sun = MakeTerms(sun, epoch.e, sunAnomaly, kSunRate, kSunEccentricity);
  model.moon = MakeTerms(moon, epoch.e, moonAnomaly, kMoonRate, kMoonEccentricity);
  AddRates(sun, kSunRate, epoch, model);
  AddRates(moon, kMoonRate, epoch, model);
  return model;
}

void AddLunarSolarSecular(const LunarSolar& model, double t, MeanOrbit& orbit) {
  orbit.e += model.eRate * t;
  orbit.i += model.iRate * t;
  orbit.perigee += model.perigeeRate * t;
  orbit.node += model.nodeRate * t;
  orbit.anomaly += model.anomalyRate * t;
}

void AddLunarSolarPeriodics(const LunarSolar& model, double t, MeanOrbit& orbit) {
  Periodics change = {};
  AddPeriodics(model.sun, t, change);
  AddPeriodics(model.moon, t, change);
  orbit.i += change.i;
  orbit.e += change.e;
  // The choice by the inclination as the periodics have it, which the report's verification run made.
  if (orbit.i < kLyddaneBelow) {
    ApplyLyddane(change, orbit);
  } else {
    const double node = change.h / std::sin(orbit.i);
    orbit.perigee += change.g - std::cos(orbit.i) * node;
    orbit.node += node;
    orbit.anomaly += change.l;
  }
  if (orbit.i < 0.0) {
    orbit.i = -orbit.i;
    orbit.node += kPi;
    orbit.perigee -= kPi;
  }
}

}  // namespace astro_internal
