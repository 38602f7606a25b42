// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/occultations.h"

#include <cmath>

#include "astro/rise_set.h"
#include "astro/vectors.h"
#include "companions/astro/eclipses/besselian.h"
#include "companions/astro/events/body_track.h"
#include "companions/astro/events/ecliptic_places.h"
#include "companions/astro/events/event_grid.h"

namespace astro {

namespace {

using astro_internal::EclipticPlace;
using astro_internal::FindZero;
using astro_internal::kEventPrecision;
using astro_internal::PlaceState;
using astro_internal::PlaceTrack;

constexpr double kStep = 3.0;  // days between looks for the Moon passing a target
// In latitude at that moment, as it lies on a straight line between two looks: the Moon's radius and
// parallax, 1.3 degrees, what it may come nearer on its slope, and 0.4 for the bend of its path.
constexpr double kPassingBy = 1.9 * kRadiansPerDegree;
// Days from that moment to the least separation as the place sees it: the parallax takes the Moon back by two
// hours of its way.
constexpr double kReach = 0.3;
constexpr double kLookStep = 0.02;   // days between looks for the least separation
constexpr double kHalfReach = 0.12;  // days; half of the Moon passes a target within 1.5 hours
constexpr double kMoonRadius =
    astro_internal::kMoonPenumbraRadius * kEarthEquatorialRadius / kKilometresPerAu;

// The Moon and a target over a place.
class Passage {
 public:
  Passage(const OccultationTarget& target, const EarthPlace& place)
      : m_Moon(kMoon, nullptr, place), m_Sun(kSun, nullptr, place), m_Target(target.id, target.data, place) {}

  double Separation(double date) {
    PlaceState moon = {}, target = {};
    return See(date, moon, target) ? VectorsAngle(moon.fromPlace, target.fromPlace) : kPi;
  }

  // Negative: the target is behind the Moon. What is not seen is at no distance.
  double OutsideEdge(double date) {
    PlaceState moon = {}, target = {};
    See(date, moon, target);
    const double apart = VectorsAngle(moon.fromPlace, target.fromPlace);
    return target.distance < moon.distance ? kPi : apart - std::asin(kMoonRadius / moon.distance);
  }

  // False while the target is down.
  bool Describe(double date, SkyEvent& event) {
    PlaceState moon = {}, target = {}, sun = {};
    if (!See(date, moon, target)) return false;
    m_Sun.Get(date, sun);  // known at all dates of a span
    if (target.altitude < GetRiseAltitude(0.0)) return false;
    event.moment = MakeMomentTT(date);
    event.value = AngleAt(moon.fromPlace, target.fromPlace);
    event.more = target.altitude;
    const double fromLight = astro_internal::Wrap(event.value - AngleAt(moon.fromPlace, sun.fromPlace));
    event.detail = static_cast<int>(std::fabs(fromLight) > 0.5 * kPi ? OccultationLimb::kDark
                                                                     : OccultationLimb::kSunlit);
    return true;
  }

 private:
  bool See(double date, PlaceState& moon, PlaceState& target) {
    m_Moon.Get(date, moon);  // known at all dates of a span
    return m_Target.Get(date, target);
  }

  // The position angle of a direction, seen from another one.
  static double AngleAt(const double from[3], const double to[3]) {
    const double east[3] = {-from[1], from[0], 0.0};
    double north[3];
    Vprod(from, east, north);
    const double angle = std::atan2(Dot(to, east) * Vmod(from, 3), Dot(to, north));
    return angle < 0.0 ? angle + kTurn : angle;
  }

  PlaceTrack m_Moon, m_Sun, m_Target;
};

// The Moon passes the target about a date (TT).
void ReportPassage(const OccultationTarget& target, const EarthPlace& place, double date,
                   const astro_internal::EventSpan& span, const EventSink& sink) {
  Passage passage(target, place);
  const auto square = [&passage](double at) { return std::pow(passage.Separation(at), 2.0); };
  const auto outside = [&passage](double at) { return passage.OutsideEdge(at); };
  const double middle = astro_internal::FindLowest(square, date - kReach, date + kReach, kLookStep);
  const double deepest = outside(middle);
  if (!(deepest < 0.0)) return;
  for (const double side : {-kHalfReach, kHalfReach}) {
    const double there = middle + side;
    const double contact = FindZero(outside, middle, deepest, there, outside(there), kEventPrecision);
    SkyEvent event;
    if (!span.Has(contact) || !passage.Describe(contact, event)) continue;
    event.kind = side < 0.0 ? EventKind::kOccultationBegins : EventKind::kOccultationEnds;
    event.body = kMoon;
    event.other = target.id;
    if (-deepest < kGrazeDepth) event.detail += static_cast<int>(OccultationLimb::kSunlitGraze);
    sink(event);
  }
}

}  // namespace

bool FindOccultations(const EventSearch& search, const std::vector<OccultationTarget>& targets,
                      const EventSink& sink) {
  if (!search.place) return false;
  const astro_internal::EventSpan span(search);
  bool isKnown = span.isWhole;
  astro_internal::EclipticPlaces places;
  // Of the Moon less the target, at the last look and now.
  std::vector<EclipticPlace> before(targets.size()), now(targets.size());
  const auto look = [&](double date, std::vector<EclipticPlace>& ahead) {
    const EclipticPlace moon = places.Get(kMoon, date);
    for (std::size_t i = 0; i < targets.size(); ++i) {
      const EclipticPlace target = places.Get(targets[i].id, targets[i].data);
      ahead[i] = {astro_internal::Wrap(moon.longitude - target.longitude), moon.latitude - target.latitude};
      isKnown &= std::isfinite(ahead[i].longitude);
    }
  };
  if (!(span.from < span.to)) return isKnown;
  double k = std::floor((span.from - kReach - kHalfReach) / kStep);
  look(k * kStep, before);
  for (; k * kStep < span.to + kReach + kHalfReach; k += 1.0) {
    look((k + 1.0) * kStep, now);
    for (std::size_t i = 0; i < targets.size(); ++i) {
      const double way = now[i].longitude - before[i].longitude;
      if (!(before[i].longitude < 0.0 && now[i].longitude >= 0.0 && way < kPi)) continue;
      const double part = -before[i].longitude / way;
      const double latitude = before[i].latitude + part * (now[i].latitude - before[i].latitude);
      if (std::fabs(latitude) > kPassingBy) continue;
      ReportPassage(targets[i], *search.place, (k + part) * kStep, span, sink);
    }
    std::swap(before, now);
  }
  return isKnown;
}

}  // namespace astro
