// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/coordinates.h"

#include <algorithm>
#include <cmath>

#include "astro/constants.h"

namespace {

using astro::kTurn;

}  // namespace

void sfp(double r, double lon, double lat, double v[3]) {
  const double equatorial = r * std::cos(lat);
  v[0] = equatorial * std::cos(lon);
  v[1] = equatorial * std::sin(lon);
  v[2] = r * std::sin(lat);
}

void sfp1(const double spherical[3], double v[3]) { sfp(spherical[0], spherical[1], spherical[2], v); }

void psf(const double v[3], double r, double& lon, double& lat) {
  const double x = v[0];
  const double y = v[1];
  const double z = v[2];
  lon = 0.0;
  lat = 0.0;
  if (r == 0.0) return;
  lat = std::asin(std::clamp(z / r, -1.0, 1.0));
  if (x == 0.0 && y == 0.0) return;
  lon = std::atan2(y, x);
  if (lon < 0.0) lon += kTurn;
  // A longitude a hair below zero rounds up to the whole turn; what is promised is less than one.
  if (lon >= kTurn) lon = 0.0;
}

void Plg2Plc(double height, double lon, double lat, double equatorialRadius, double flattening,
             double xyz[3]) {
  const double sinLat = std::sin(lat);
  const double cosLat = std::cos(lat);
  const double squaredAxisRatio = (1.0 - flattening) * (1.0 - flattening);
  const double primeVertical =
      equatorialRadius / std::sqrt(cosLat * cosLat + squaredAxisRatio * sinLat * sinLat);
  const double fromAxis = (primeVertical + height) * cosLat;
  xyz[0] = fromAxis * std::cos(lon);
  xyz[1] = fromAxis * std::sin(lon);
  xyz[2] = (squaredAxisRatio * primeVertical + height) * sinLat;
}
