// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/model/fixed_objects.h"

#include <algorithm>
#include <cmath>

#include "astro/constants.h"
#include "astro/coordinates.h"
#include "companions/astro/model/observation.h"

namespace astro_internal {

namespace {

using astro::kDaysPerJulianYear;
using astro::kKilometresPerAu;

constexpr double kAuPerYearPerKmPerSecond = astro::kSecondsPerDay * kDaysPerJulianYear / kKilometresPerAu;
constexpr double kSunRadius = 695700.0 / kKilometresPerAu;  // au, IAU 2015 Resolution B3

// The motion through space, straight and even, in units of the distance at the epoch: nothing is divided by
// the parallax, so that a star without one keeps every digit of its proper motion. Explanatory Supplement to
// the Astronomical Almanac (3rd edition, 2013), chapter 7. The light that arrives on one side of the Earth's
// orbit left up to 8 minutes earlier than that on the other: the time counts from the barycentre.
void StarPlace(const Moment& moment, const StarRecord& star, double parallax, double place[3]) {
  double towards[3];
  sfp(1.0, star.ra, star.dec, towards);
  const double east[3] = {-std::sin(star.ra), std::cos(star.ra), 0.0};
  const double north[3] = {-std::sin(star.dec) * std::cos(star.ra), -std::sin(star.dec) * std::sin(star.ra),
                           std::cos(star.dec)};
  double nearer = 0.0;  // au
  for (int i = 0; i < 3; ++i) nearer += towards[i] * (moment.observer[i] - moment.barycentre[i]);
  const double years = (moment.dateTT - astro::kJ2000 + nearer / astro::kLightAuPerDay) / kDaysPerJulianYear;
  const double receding = static_cast<double>(star.radialVelocity) * kAuPerYearPerKmPerSecond * parallax;
  for (int i = 0; i < 3; ++i) {
    const double motion =
        star.properMotionRA * east[i] + star.properMotionDec * north[i] + receding * towards[i];
    place[i] = towards[i] + years * motion;
  }
}

}  // namespace

bool ObserveStar(const Moment& moment, const StarRecord& star, ObservedBody& result) {
  // Measured parallaxes of far stars may be negative: that says no more than "far".
  const double parallax = std::max(star.parallax, 0.0);
  double place[3];
  StarPlace(moment, star, parallax, place);
  if (!ObserveFixed(moment, place, parallax, result)) return false;
  result.magnitude =
      static_cast<double>(star.visMagnitude != kUnknownStarMagnitude ? star.visMagnitude : star.magnitude);
  const double radius = static_cast<double>(star.radius) * kSunRadius;
  const bool hasSize = radius > 0.0 && result.distance > radius;
  result.angularRadius = hasSize ? std::asin(radius / result.distance) : 0.0;
  return true;
}

bool ObserveDeepsky(const Moment& moment, const DeepskyRecord& object, ObservedBody& result) {
  double place[3];
  sfp(1.0, object.ra, object.dec, place);
  if (!ObserveFixed(moment, place, std::max(object.parallax, 0.0), result)) return false;
  result.magnitude = object.visMagnitude != kUnknownDeepskyMagnitude
                         ? static_cast<double>(object.visMagnitude)
                         : static_cast<double>(kUnknownStarMagnitude);
  result.angularRadius = std::max(object.angularSize, 0.0) / 2.0;
  return true;
}

bool ObserveConstellation(const Moment& moment, const ConstellationRecord& constellation,
                          ObservedBody& result) {
  if (!ObserveFixed(moment, constellation.center, 0.0, result)) return false;
  result.magnitude = static_cast<double>(kUnknownStarMagnitude);
  result.angularRadius = 0.0;
  return true;
}

}  // namespace astro_internal
