// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/model/observation.h"

#include <algorithm>

#include "astro/earth_orientation.h"
#include "astro/vectors.h"

namespace astro_internal {

namespace {

// Twice the Sun's gravitational radius: 2 G M / c^2, au.
constexpr double kBending = 2.0 * 9.870628e-9;

bool Normalize(const double v[3], double unit[3]) {
  const double length = Vmod(v, 3);
  if (!(length > 0.0) || !std::isfinite(length)) return false;
  for (int i = 0; i < 3; ++i) unit[i] = v[i] / length;
  return true;
}

// Bends the light at the Sun: Explanatory Supplement to the Astronomical Almanac (3rd edition, 2013), chapter
// 7. `towards`: unit vector from the observer to the body, changed; `fromSun`: unit vector from the Sun to
// it. Behind the Sun's disc, where no light comes through, the denominator is held at what it is near the
// limb.
void Bend(const Moment& moment, const double fromSun[3], double towards[3]) {
  double observer[3] = {};
  Normalize(moment.observer, observer);
  const double distance = Vmod(moment.observer, 3);
  const double limit = 1e-5 / std::max(1.0, distance * distance);
  const double factor = kBending / distance / std::max(1.0 + astro::Dot(fromSun, observer), limit);
  const double along = astro::Dot(towards, fromSun);
  const double across = astro::Dot(observer, towards);
  double bent[3];
  for (int i = 0; i < 3; ++i) bent[i] = towards[i] + factor * (along * observer[i] - across * fromSun[i]);
  Normalize(bent, towards);
}

}  // namespace

void FillDirections(const Moment& moment, const Sight& sight, bool isSun, ObservedBody& result) {
  Normalize(sight.fromObserver, result.astrometric);
  double towards[3], fromSun[3];
  for (int i = 0; i < 3; ++i) towards[i] = result.astrometric[i];
  if (!isSun && moment.earthKnown && Normalize(sight.fromSun, fromSun)) Bend(moment, fromSun, towards);
  Aberration(towards, moment.observerVelocity, result.apparent);
}

void FillGeometry(const Moment& moment, const Sight& sight, double lightTime, ObservedBody& result) {
  result.lightTime = lightTime;
  result.distance = lightTime * astro::kLightAuPerDay;
  result.sunDistance = Vmod(sight.fromSun, 3);
  std::copy_n(sight.fromSun, 3, result.fromSun);
  const double toSun[3] = {-moment.observer[0], -moment.observer[1], -moment.observer[2]};
  const bool isSun = result.sunDistance == 0.0;
  result.phaseAngle = isSun ? 0.0 : VectorsAngle(sight.fromSun, sight.fromObserver);
  result.elongation = isSun ? 0.0 : VectorsAngle(toSun, sight.fromObserver);
}

bool ObserveFixed(const Moment& moment, const double place[3], double parallax, ObservedBody& result) {
  Sight sight;
  for (int i = 0; i < 3; ++i) {
    const double observer = moment.observer[i] - moment.barycentre[i];
    sight.fromObserver[i] = place[i] - parallax * observer;
    sight.fromSun[i] = sight.fromObserver[i];
  }
  const double length = Vmod(sight.fromObserver, 3);
  if (!(length > 0.0) || !std::isfinite(length)) return false;
  const double toSun[3] = {-moment.observer[0], -moment.observer[1], -moment.observer[2]};
  // A parallax so small that the distance is no number is none.
  const double distance = parallax > 0.0 ? length / parallax : 0.0;
  result.distance = std::isfinite(distance) ? distance : 0.0;
  result.lightTime = 0.0;
  result.sunDistance = 0.0;
  std::fill_n(result.fromSun, 3, 0.0);
  result.phaseAngle = 0.0;
  result.elongation = moment.earthKnown ? VectorsAngle(toSun, sight.fromObserver) : 0.0;
  FillDirections(moment, sight, false, result);
  return true;
}

}  // namespace astro_internal
