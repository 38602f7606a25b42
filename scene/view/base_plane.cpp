// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/base_plane.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "astro/constants.h"
#include "astro/earth_orientation.h"
#include "astro/vectors.h"
#include "scene/view/directions.h"
#include "scene/view/earthbound.h"
#include "utils/text.h"

namespace scene {
namespace {

using CommonInterfaces::Camera;

constexpr int kGalaxyNumber = 0x3D000000;

// About the Sun.
constexpr double kNearSun = 100.0;                                             // au
constexpr double kGalacticCentreDistance = 8500.0 * astro::kAuPerParsecAbove;  // IAU 1985

constexpr double kIdentity[9] = {1, 0, 0, 0, 1, 0, 0, 0, 1};

// The galactic frame on J2000 axes: pole at 192.85948, 27.12825 degrees, ascending node of the galactic plane
// on the equator at longitude 32.93192 degrees (IAU 1958 as transferred by The Hipparcos and Tycho
// Catalogues, ESA 1997, volume 1, section 1.5.3).
void GalacticMatrix(double m[9]) {
  constexpr double kPoleRA = 192.85948 * kRadiansPerDegree, kPoleDec = 27.12825 * kRadiansPerDegree,
                   kNode = 32.93192 * kRadiansPerDegree;
  const Direction pole = MakeDirection(kPoleRA, kPoleDec);
  const Direction node = MakeDirection(kPoleRA + 0.5 * kPi, 0.0);
  Direction beyond;  // a quarter turn from the node along the plane
  Vprod(pole.v, node.v, beyond.v);
  for (int i = 0; i < 3; ++i) {
    m[i] = std::cos(kNode) * node.v[i] - std::sin(kNode) * beyond.v[i];
    m[3 + i] = std::sin(kNode) * node.v[i] + std::cos(kNode) * beyond.v[i];
    m[6 + i] = pole.v[i];
  }
}

// The mean obliquity of J2000: 84381.406 seconds of arc (IAU 2006).
void EclipticMatrix(double m[9]) {
  const double obliquity = MeanObliquity(astro::kJ2000);
  const double c = std::cos(obliquity), s = std::sin(obliquity);
  const double rows[9] = {1, 0, 0, 0, c, s, 0, -s, c};
  std::copy(std::begin(rows), std::end(rows), m);
}

bool IsAtSun(const Camera& camera) {
  const SphCoor& place = camera.GetLocation();
  const SSO_ID& observer = camera.GetObserver();
  if (!(observer == SSO_ID(FourCC("gala"), kGalaxyNumber))) return std::fabs(place.dist) <= kNearSun;
  // About the centre of the Galaxy, along its plane, the Sun stands opposite to where it sees the centre.
  if (place.coorSys != kGalacticPlane) return false;
  double there[3], sun[3];
  sfp(place.dist, place.lon, place.lat, there);
  sfp(kGalacticCentreDistance, kPi, 0.0, sun);
  const double between[3] = {there[0] - sun[0], there[1] - sun[1], there[2] - sun[2]};
  return Vmod(between, 3) <= kNearSun;
}

bool IsEarth(const SSO_ID& object) { return object == SSO_ID(FourCC("plnt"), 3); }

}  // namespace

void PlaneMatrix(unsigned char plane, double m[9]) {
  if (plane == kEclipticPlane) return EclipticMatrix(m);
  if (plane == kGalacticPlane) return GalacticMatrix(m);
  std::copy(std::begin(kIdentity), std::end(kIdentity), m);
}

bool IsNearSurface(const Camera& camera) {
  return camera.GetMovingType() == 0 || camera.GetMovingType() == 1;
}

bool CountsFromHorizon(const Camera& camera) {
  return camera.GetBasePlane() == kHorizonPlane ||
         (camera.GetBasePlane() == kEquatorPlane && IsNearSurface(camera));
}

bool MovesWithEarth(const Camera& camera) {
  return IsEarth(camera.GetObserver()) || camera.GetObserver() == SSO_ID(FourCC("moon"), 301);
}

const char* FindObserverFault(const Camera& camera) {
  if (CountsFromHorizon(camera)) {
    return IsEarth(camera.GetObserver()) ? nullptr
                                         : "is not seen from the Earth, whose horizon alone is known";
  }
  const SSO_ID& observer = camera.GetObserver();
  const bool known = MovesWithEarth(camera) || observer == SSO_ID(FourCC("plnt"), 10) ||
                     observer == SSO_ID(FourCC("gala"), kGalaxyNumber);
  return known && IsAtSun(camera)
             ? nullptr
             : "is not seen from the Earth, the Moon or a place within 100 au of the Sun";
}

}  // namespace scene
