// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/two_body.h"

#include <cmath>
#include <limits>
#include <numbers>

#include "astro/constants.h"
#include "companions/astro/geometry/finite.h"
#include "companions/astro/orbits/kepler_equation.h"

namespace {

using astro_internal::EllipticAnomaly;
using astro_internal::HyperbolicAnomaly;

// Obliquity of the ecliptic J2000 (IAU 1976; Lieske et al. 1977): the one that published
// osculating elements count from. Later ones differ by 0.04 arc second, and are not meant
// by "ecliptic J2000" in a list of elements.
constexpr double kObliquity = 84381.448 / 3600.0 * astro::kPi / 180.0;

// Up to here the mean motion of an orbit with e >= 1 is that of a parabola of the same pericentre.
constexpr double kParabolicMotionBelow = 1e-6;

// Components along the plane's unit vectors.
struct PlaneState {
  double x, y;    // au
  double vx, vy;  // au/day
};

PlaneState OnEllipse(const OrbitalElements& elements, double meanAnomaly) {
  const double a = elements.a;
  const double e = elements.e;
  const EllipticAnomaly anomaly =
      astro_internal::SolveEllipse(e, astro_internal::ReduceToOneTurn(meanAnomaly));
  const double pericentre = a * (1.0 - e);
  const double flattening = std::sqrt((1.0 - e) * (1.0 + e));
  const double speed = a * elements.n / ((1.0 - e) + e * anomaly.versine);
  return {pericentre - a * anomaly.versine, a * flattening * anomaly.sine, -speed * anomaly.sine,
          speed * flattening * anomaly.cosine};
}

PlaneState OnParabola(const OrbitalElements& elements, double meanAnomaly) {
  const double q = elements.a;
  const double t = astro_internal::SolveParabola(meanAnomaly);
  const double speed = 2.0 * q * elements.n / (1.0 + t * t);
  return {q * (1.0 - t * t), 2.0 * q * t, -speed * t, speed};
}

PlaneState OnHyperbola(const OrbitalElements& elements, double meanAnomaly) {
  const double excess = elements.e - 1.0;
  const double axis = elements.a / excess;  // the size of the semi-major axis
  // From the motion of the parabola with this pericentre, mu = 2 q^3 n^2, to
  // that of the hyperbola, mu = axis^3 n^2.
  const double factor =
      excess < kParabolicMotionBelow ? std::numbers::sqrt2 * excess * std::sqrt(excess) : 1.0;
  const HyperbolicAnomaly anomaly = astro_internal::SolveHyperbola(elements.e, factor * meanAnomaly);
  const double flattening = std::sqrt(excess * (elements.e + 1.0));
  const double speed = axis * (factor * elements.n) / (excess + elements.e * anomaly.versine);
  return {elements.a - axis * anomaly.versine, axis * flattening * anomaly.sine, -speed * anomaly.sine,
          speed * flattening * anomaly.cosine};
}

bool IsOrbit(const OrbitalElements& elements) {
  return elements.a > 0.0 && elements.e >= 0.0 && elements.n > 0.0 && std::isfinite(elements.a) &&
         std::isfinite(elements.e) && std::isfinite(elements.n);
}

void ToSpace(const OrbitPlane& plane, double alongP, double alongQ, double result[3]) {
  for (int k = 0; k < 3; ++k) result[k] = alongP * plane.p[k] + alongQ * plane.q[k];
}

// Turns the x axis into the ecliptic's line of nodes: components on ecliptic axes to equatorial ones.
void FromEcliptic(double v[3]) {
  const double sine = std::sin(kObliquity);
  const double cosine = std::cos(kObliquity);
  const double y = v[1];
  const double z = v[2];
  v[1] = y * cosine - z * sine;
  v[2] = y * sine + z * cosine;
}

}  // namespace

double SolveKeplerEllipse(double e, double meanAnomaly) {
  if (!(e >= 0.0 && e < 1.0)) return std::numeric_limits<double>::quiet_NaN();
  const double reduced = astro_internal::ReduceToOneTurn(meanAnomaly);
  const double angle = astro_internal::SolveEllipse(e, reduced).angle;
  return reduced == meanAnomaly ? angle : meanAnomaly + (angle - reduced);
}

double SolveKeplerHyperbola(double e, double meanAnomaly) {
  if (!(e > 1.0) || !std::isfinite(e)) return std::numeric_limits<double>::quiet_NaN();
  return astro_internal::SolveHyperbola(e, meanAnomaly).argument;
}

double SolveBarker(double meanAnomaly) { return 2.0 * std::atan(astro_internal::SolveParabola(meanAnomaly)); }

OrbitPlane MakeOrbitPlane(const OrbitalElements& elements) {
  const double sinNode = std::sin(elements.om), cosNode = std::cos(elements.om);
  const double sinPericentre = std::sin(elements.w), cosPericentre = std::cos(elements.w);
  const double sinTilt = std::sin(elements.i), cosTilt = std::cos(elements.i);
  OrbitPlane plane = {
      {cosPericentre * cosNode - sinPericentre * sinNode * cosTilt,
       cosPericentre * sinNode + sinPericentre * cosNode * cosTilt, sinPericentre * sinTilt},
      {-sinPericentre * cosNode - cosPericentre * sinNode * cosTilt,
       -sinPericentre * sinNode + cosPericentre * cosNode * cosTilt, cosPericentre * sinTilt}};
  if (elements.elementSet == kTwoLineElements) return plane;
  FromEcliptic(plane.p);
  FromEcliptic(plane.q);
  return plane;
}

bool ComputeTwoBodyState(const OrbitalElements& elements, const OrbitPlane& plane, double julianDateTT,
                         double position[3], double velocity[3]) {
  const double meanAnomaly = elements.M0 + elements.n * (julianDateTT - elements.epoch);
  if (!IsOrbit(elements) || !std::isfinite(meanAnomaly)) return false;
  PlaneState state;
  if (elements.e < 1.0)
    state = OnEllipse(elements, meanAnomaly);
  else if (elements.e == 1.0)
    state = OnParabola(elements, meanAnomaly);
  else
    state = OnHyperbola(elements, meanAnomaly);

  double place[3];
  ToSpace(plane, state.x, state.y, place);
  if (!astro_internal::AreFinite(place)) return false;
  if (velocity != nullptr) {
    double motion[3];
    ToSpace(plane, state.vx, state.vy, motion);
    if (!astro_internal::AreFinite(motion)) return false;
    for (int k = 0; k < 3; ++k) velocity[k] = motion[k];
  }
  for (int k = 0; k < 3; ++k) position[k] = place[k];
  return true;
}
