// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/libration.h"

#include <algorithm>
#include <cmath>

#include "astro/constants.h"
#include "astro/earth_orientation.h"
#include "astro/vectors.h"
#include "companions/astro/earth/nutation.h"
#include "companions/astro/rotation/body_light.h"

namespace astro {

namespace {

// c[0] + c[1] t + ..., degrees, to radians.
template <int N>
double Degrees(const double (&c)[N], double t) {
  double sum = 0.0;
  for (int i = N - 1; i >= 0; --i) sum = sum * t + c[i];
  return std::remainder(sum * kRadiansPerDegree, kTurn);
}

// Meeus, chapter 53, with the mean argument of latitude of chapter 47 and the tilt of the equator against the
// ecliptic that the IAU took in 1982.
void FillOptical(const ObservedBody& seen, double julianDateTT, Libration& libration) {
  constexpr double kTilt = 1.54242 * kRadiansPerDegree;
  const double t = (julianDateTT - kJ2000) / kDaysPerJulianCentury;
  const double argument =
      Degrees({93.2720950, 483202.0175233, -0.0036539, -1.0 / 3526000.0, 1.0 / 863310000.0}, t);
  const astro_internal::BodyLight light = astro_internal::LightAt(seen);
  const double towards[3] = {-light.toObserver[0], -light.toObserver[1], -light.toObserver[2]};
  double toDate[9], v[3];
  PrecessionNutationMatrix(julianDateTT, toDate);
  MV3prod(toDate, towards, v);
  const astro_internal::Nutation nutation = astro_internal::NutationAt(t);
  const double obliquity = MeanObliquity(julianDateTT) + nutation.obliquity;
  const double c = std::cos(obliquity), s = std::sin(obliquity);
  const double north = c * v[2] - s * v[1];
  const double fromNode = std::atan2(c * v[1] + s * v[2], v[0]) - nutation.longitude - nutation.ascendingNode;
  const double cosLat = std::sqrt(std::max(0.0, 1.0 - north * north));
  const double ahead = std::sin(fromNode) * cosLat, along = std::cos(fromNode) * cosLat;
  const double ci = std::cos(kTilt), si = std::sin(kTilt);
  libration.opticalLongitude = std::remainder(std::atan2(ahead * ci - north * si, along) - argument, kTurn);
  libration.opticalLatitude = std::asin(-ahead * si - north * ci);
}

}  // namespace

std::optional<Libration> FindLibration(const ObservedBody& seen, double julianDateTT) {
  const std::optional<PhysicalEphemeris> disc = FindPhysicalEphemeris(kMoon, seen, julianDateTT);
  if (!disc) return std::nullopt;
  Libration libration;
  libration.longitude = std::remainder(disc->observer.eastLongitude, kTurn);
  libration.latitude = disc->observer.latitude;
  FillOptical(seen, julianDateTT, libration);
  libration.physicalLongitude = std::remainder(libration.longitude - libration.opticalLongitude, kTurn);
  libration.physicalLatitude = libration.latitude - libration.opticalLatitude;
  const double colongitude = 0.5 * kPi - disc->sun.eastLongitude;
  libration.colongitude = colongitude < 0.0 ? colongitude + kTurn : colongitude;
  libration.sunLatitude = disc->sun.latitude;
  return libration;
}

}  // namespace astro
