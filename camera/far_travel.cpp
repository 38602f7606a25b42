// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/constants.h"
#include "astro/coordinates.h"
#include "astro/vectors.h"
#include "camera/camera_codes.h"
#include "common_interfaces/camera.h"
#include "utils/text.h"

namespace CommonInterfaces {
namespace {

// How far from the Sun each kind of object is still shown, au.
constexpr double kStarsRadius = 8000 * astro::kAuPerParsecAbove;
constexpr double kClustersRadius = 30000 * astro::kAuPerParsecAbove;
constexpr double kNebulaeRadius = 6000 * astro::kAuPerParsecAbove;
constexpr double kSolarSystemRadius = 1 * astro::kAuPerParsecAbove;

constexpr double kGalaxySeenFrom = 4000 * astro::kAuPerParsecAbove;
constexpr double kDeepSpaceFrom = 1000.0;  // au
// Moving type 9 counts its location from the galactic centre; the Sun stands this far along its first axis,
// au.
constexpr double kSunFromGalacticCentre = -1753250853.1003191;  // 8500 parsec

}  // namespace

bool Camera::IsDeepSpace() const {
  switch (m_ObsMovingType) {
    case kMovingAroundGalaxy:
      return true;
    case kMovingInSpace:
    case kMovingFlight:
    case kMovingFreeFlight:
      return m_Location.dist > kDeepSpaceFrom;
    default:
      return false;
  }
}

bool Camera::IsShowOurGalaxy() const {
  switch (m_ObsMovingType) {
    case kMovingAroundGalaxy:
    case kMovingFlight:
    case kMovingFreeFlight:
      return m_Location.dist > kGalaxySeenFrom;
    default:
      return false;
  }
}

bool Camera::IsWithinShownRadius(double radius) const {
  switch (m_ObsMovingType) {
    case kMovingFlight:
    case kMovingFreeFlight:
      return radius > m_Location.dist;
    case kMovingAroundGalaxy: {
      double v[3];
      sfp(m_Location.dist, m_Location.lon, m_Location.lat, v);
      const double fromSun[3] = {kSunFromGalacticCentre - v[0], -v[1], -v[2]};
      return radius > Vmod(fromSun, 3);
    }
    default:
      return true;
  }
}

bool Camera::IsShowStars() const { return IsWithinShownRadius(kStarsRadius); }
bool Camera::IsShowClusters() const { return IsWithinShownRadius(kClustersRadius); }
bool Camera::IsShowNebulae() const { return IsWithinShownRadius(kNebulaeRadius); }
bool Camera::IsShowSSObjects() const { return IsWithinShownRadius(kSolarSystemRadius); }

// Seen from outside, our galaxy hides the sectors that the catalogue of galaxies is divided into.
bool Camera::IsSkySectorsFiltration(int cls) const { return cls != FourCC("gala") || !IsShowOurGalaxy(); }

}  // namespace CommonInterfaces
