// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/eclipses/besselian.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "astro/constants.h"
#include "astro/coordinates.h"
#include "astro/vectors.h"

namespace astro_internal {

namespace {

using astro::Dot;

constexpr double kRadiiPerAu = astro::kKilometresPerAu / astro::kEarthEquatorialRadius;
// 959.63 seconds of arc at 1 au: Auwers, whom the canon of eclipses follows.
constexpr double kSunRadius = 959.63 * astro::kRadiansPerArcsecond * kRadiiPerAu;
constexpr double kPolar = 1.0 - astro::kEarthFlattening;  // half axis of the ellipsoid

}  // namespace

ShadowTrack::ShadowTrack() : m_Sun(astro::kSun, nullptr), m_Moon(astro::kMoon, nullptr) {}

BesselianElements ShadowTrack::Get(double date) {
  BesselianElements elements = {};
  BodyState sun = {}, moon = {};
  if (!m_Sun.Get(date, sun)) {
    elements.x = elements.y = elements.penumbra = elements.umbra = std::numeric_limits<double>::quiet_NaN();
    return elements;
  }
  m_Moon.Get(date, moon);  // known where the Sun is: its track takes looks that lie nearer to the date
  double fromMoon[3], toMoon[3];
  for (int i = 0; i < 3; ++i) {
    elements.sun[i] = sun.apparent[i] * kRadiiPerAu;
    toMoon[i] = moon.apparent[i] * kRadiiPerAu;
    fromMoon[i] = elements.sun[i] - toMoon[i];
  }
  const double distance = Vmod(fromMoon, 3), across = std::hypot(fromMoon[0], fromMoon[1]);
  for (int i = 0; i < 3; ++i) elements.axis[i] = fromMoon[i] / distance;
  elements.east[0] = -fromMoon[1] / across;
  elements.east[1] = fromMoon[0] / across;
  Vprod(elements.axis, elements.east, elements.north);
  elements.x = Dot(toMoon, elements.east);
  elements.y = Dot(toMoon, elements.north);
  const double height = Dot(toMoon, elements.axis);
  const double sinPenumbra = (kSunRadius + kMoonPenumbraRadius) / distance;
  const double sinUmbra = (kSunRadius - kMoonUmbraRadius) / distance;
  elements.tanPenumbra = sinPenumbra / std::sqrt(1.0 - sinPenumbra * sinPenumbra);
  elements.tanUmbra = sinUmbra / std::sqrt(1.0 - sinUmbra * sinUmbra);
  elements.penumbra = (height + kMoonPenumbraRadius / sinPenumbra) * elements.tanPenumbra;
  elements.umbra = (height - kMoonUmbraRadius / sinUmbra) * elements.tanUmbra;
  elements.sidereal = sun.sidereal;
  return elements;
}

ShadowAtPlace ShadowTrack::At(double date, const astro::EarthPlace& place) {
  const BesselianElements elements = Get(date);
  double vector[3];
  GetPlaceOnEarth(place, elements.sidereal, vector);
  return ShadowAt(elements, vector);
}

ShadowAtPlace ShadowAt(const BesselianElements& elements, const double place[3]) {
  ShadowAtPlace shadow;
  shadow.u = elements.x - Dot(place, elements.east);
  shadow.v = elements.y - Dot(place, elements.north);
  shadow.apart = std::hypot(shadow.u, shadow.v);
  shadow.height = Dot(place, elements.axis);
  shadow.penumbra = elements.penumbra - shadow.height * elements.tanPenumbra;
  shadow.umbra = elements.umbra - shadow.height * elements.tanUmbra;
  return shadow;
}

// The ellipsoid is stretched along the pole to a ball, in which straight lines stay straight.
AxisOnEarth FindAxisOnEarth(const BesselianElements& elements) {
  double start[3], along[3];
  for (int i = 0; i < 3; ++i) {
    start[i] = elements.x * elements.east[i] + elements.y * elements.north[i];
    along[i] = elements.axis[i];
  }
  start[2] /= kPolar;
  along[2] /= kPolar;
  const double square = Dot(along, along), middle = -Dot(start, along) / square;
  double foot[3];
  for (int i = 0; i < 3; ++i) foot[i] = start[i] + middle * along[i];
  AxisOnEarth result;
  result.distance = Vmod(foot, 3);
  result.meets = result.distance < 1.0;
  const double back = result.meets ? std::sqrt((1.0 - result.distance * result.distance) / square) : 0.0;
  const double scale = result.meets ? 1.0 : 1.0 / result.distance;
  for (int i = 0; i < 3; ++i) result.place[i] = scale * (foot[i] + back * along[i]);
  result.place[2] *= kPolar;
  return result;
}

void GetPlaceOnEarth(const astro::EarthPlace& place, double sidereal, double vector[3]) {
  Plg2Plc(place.height / 1000.0 / astro::kEarthEquatorialRadius, place.lon + sidereal, place.lat, 1.0,
          astro::kEarthFlattening, vector);
}

astro::EarthPlace MakeEarthPlace(const double vector[3], double sidereal) {
  const double longitude = std::remainder(std::atan2(vector[1], vector[0]) - sidereal, astro::kTurn);
  return {longitude, std::atan2(vector[2], kPolar * kPolar * std::hypot(vector[0], vector[1])), 0.0};
}

}  // namespace astro_internal
