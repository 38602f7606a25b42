// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/configurations/seen_bodies.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "astro/constants.h"
#include "astro/vectors.h"
#include "companions/astro/model/object_kinds.h"

namespace astro_internal {

namespace {

// Days to both sides over which a rate is taken. Over the hour the way of the fastest body, the Moon, is
// straight to 1e-7 of it; the rounding of directions comes to 1e-14 radian a day.
constexpr double kHalfInterval = 0.02;

constexpr double kUnseen = std::numeric_limits<double>::quiet_NaN();

SeenPlace PlaceOn(const double axes[9], const double direction[3]) {
  double v[3];
  MV3prod(axes, direction, v);
  return {std::atan2(v[1], v[0]), std::atan2(v[2], std::hypot(v[0], v[1]))};
}

}  // namespace

double SeparationRate(const SeenMotion& a, const SeenMotion& b) {
  double sum = 0.0;
  for (int i = 0; i < 3; ++i) sum += (a.direction[i] - b.direction[i]) * (a.rate[i] - b.rate[i]);
  return sum;
}

// A record of another kind would not be what the pointer says.
bool SeenBodies::Add(const SSO_ID& id, const StarRecord* star) {
  const ObjectFamily family = star != nullptr ? ObjectFamily::kStar : ObjectFamily::kPlanet;
  ModelObject object;
  const bool known = FamilyOf(id) == family && id != astro::kEarth && MakeModelObject(id, star, object);
  m_Bodies.push_back(std::move(object));
  return known;
}

ObservedBody SeenBodies::See(std::size_t body, double date) {
  ObservedBody seen;
  if (m_Track.Observe(m_Bodies[body], date, seen)) return seen;
  std::fill_n(seen.apparent, 3, kUnseen);
  seen.distance = seen.elongation = seen.phaseAngle = seen.magnitude = kUnseen;
  return seen;
}

SeenPlace SeenBodies::OnEquator(std::size_t body, double date) {
  return PlaceOn(m_Track.EquatorAxes(date), See(body, date).apparent);
}

SeenPlace SeenBodies::OnEcliptic(std::size_t body, double date) {
  return PlaceOn(m_Track.EclipticAxes(date), See(body, date).apparent);
}

SeenMotion SeenBodies::MotionOf(std::size_t body, double date) {
  SeenMotion motion;
  const ObservedBody before = See(body, date - kHalfInterval), after = See(body, date + kHalfInterval);
  for (int i = 0; i < 3; ++i) {
    motion.direction[i] = 0.5 * (before.apparent[i] + after.apparent[i]);
    motion.rate[i] = (after.apparent[i] - before.apparent[i]) / (2.0 * kHalfInterval);
  }
  return motion;
}

double SeenBodies::SeparationRateOf(std::size_t a, std::size_t b, double date) {
  return SeparationRate(MotionOf(a, date), MotionOf(b, date));
}

}  // namespace astro_internal
