// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/solar_eclipses.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "astro/coordinates.h"
#include "astro/vectors.h"
#include "companions/astro/eclipses/besselian.h"
#include "companions/astro/events/ecliptic_places.h"
#include "companions/astro/events/event_grid.h"
#include "companions/astro/events/syzygies.h"

namespace astro {

namespace {

using astro_internal::AxisOnEarth;
using astro_internal::BesselianElements;
using astro_internal::FindZero;
using astro_internal::kEventPrecision;
using astro_internal::ShadowTrack;

// Days: the greatest eclipse is that near to new moon, and the penumbra leaves the Earth within that time.
constexpr double kReach = 0.2;
// Beyond that latitude at new moon the penumbra misses the Earth: 1.58 degrees (Meeus 1998, chapter 54, in
// other words).
constexpr double kLargestLatitude = 1.7 * kRadiansPerDegree;
constexpr double kTypeStep = 1.0 / kMinutesPerDay;  // days between looks at what is seen on the central line

// How far the nearest point of the Earth is outside the penumbra, in equatorial radii; negative: in it.
double OutsidePenumbra(const BesselianElements& elements) {
  const AxisOnEarth axis = FindAxisOnEarth(elements);
  const auto shadow = ShadowAt(elements, axis.place);
  return shadow.apart - shadow.penumbra;
}

double UmbraOnAxis(const BesselianElements& elements) {
  return ShadowAt(elements, FindAxisOnEarth(elements).place).umbra;
}

// Where the axis meets the Earth between two dates.
SolarEclipseType TypeOnCentralLine(ShadowTrack& shadow, double begin, double end) {
  bool isTotal = false, isAnnular = false;
  const int steps = static_cast<int>(std::ceil((end - begin) / kTypeStep));
  for (int i = 0; i <= steps; ++i) {
    const double umbra = UmbraOnAxis(shadow.Get(begin + (end - begin) * i / steps));
    (umbra < 0.0 ? isTotal : isAnnular) = true;
  }
  return isTotal && isAnnular ? SolarEclipseType::kHybrid
         : isTotal            ? SolarEclipseType::kTotal
                              : SolarEclipseType::kAnnular;
}

std::optional<GlobalSolarEclipse> Describe(double newMoon) {
  ShadowTrack shadow;
  const auto fromCentre = [&shadow](double date) {
    const BesselianElements elements = shadow.Get(date);
    return elements.x * elements.x + elements.y * elements.y;
  };
  const double date =
      astro_internal::FindLowest(fromCentre, newMoon - kReach, newMoon + kReach, 0.1 * kReach);
  const BesselianElements elements = shadow.Get(date);
  if (!(OutsidePenumbra(elements) < 0.0)) return std::nullopt;

  GlobalSolarEclipse eclipse;
  const AxisOnEarth axis = FindAxisOnEarth(elements);
  const auto place = ShadowAt(elements, axis.place);
  const bool isInUmbra = place.apart < std::fabs(place.umbra);
  eclipse.greatest = MakeMomentTT(date);
  eclipse.gamma = std::copysign(std::hypot(elements.x, elements.y), elements.y);
  eclipse.magnitude = axis.meets ? place.Ratio() : place.Magnitude();
  eclipse.place = astro_internal::MakeEarthPlace(axis.place, elements.sidereal);
  double zenith[3];
  sfp(1.0, eclipse.place.lon + elements.sidereal, eclipse.place.lat, zenith);
  eclipse.sunAltitude = std::asin(std::clamp(Dot(zenith, elements.axis), -1.0, 1.0));
  const auto touch = [&](auto outside, double there) {
    return FindZero(outside, date, outside(date), there, outside(there), kEventPrecision);
  };
  const auto penumbra = [&shadow](double at) { return OutsidePenumbra(shadow.Get(at)); };
  eclipse.begin = MakeMomentTT(touch(penumbra, date - kReach));
  eclipse.end = MakeMomentTT(touch(penumbra, date + kReach));
  if (axis.meets) {
    const auto line = [&shadow](double at) { return FindAxisOnEarth(shadow.Get(at)).distance - 1.0; };
    eclipse.centralBegin = MakeMomentTT(touch(line, date - kReach));
    eclipse.centralEnd = MakeMomentTT(touch(line, date + kReach));
    eclipse.type =
        TypeOnCentralLine(shadow, eclipse.centralBegin->julianDateTT, eclipse.centralEnd->julianDateTT);
  } else if (isInUmbra) {
    eclipse.type = place.umbra < 0.0 ? SolarEclipseType::kTotal : SolarEclipseType::kAnnular;
  }
  return eclipse;
}

SkyEvent EventOf(const GlobalSolarEclipse& eclipse) {
  SkyEvent event;
  event.kind = EventKind::kSolarEclipse;
  event.moment = eclipse.greatest;
  event.sinceBegin = eclipse.greatest.julianDateTT - eclipse.begin.julianDateTT;
  event.untilEnd = eclipse.end.julianDateTT - eclipse.greatest.julianDateTT;
  event.body = kSun;
  event.other = kMoon;
  event.value = eclipse.magnitude;
  event.more = eclipse.gamma;
  event.detail = static_cast<int>(eclipse.type);
  return event;
}

// Of one that is seen.
SkyEvent EventOf(const LocalSolarEclipse& eclipse) {
  SkyEvent event;
  event.kind = EventKind::kSolarEclipseHere;
  event.moment = *eclipse.bestSeen;
  event.sinceBegin = event.moment.julianDateTT - eclipse.first.moment.julianDateTT;
  event.untilEnd = eclipse.last.moment.julianDateTT - event.moment.julianDateTT;
  event.body = kSun;
  event.other = kMoon;
  event.value = eclipse.magnitudeSeen;
  event.more = eclipse.obscurationSeen;
  event.detail = static_cast<int>(eclipse.kind);
  return event;
}

// Calls found(eclipse) for the new moons between two dates (TT) that eclipse the Sun.
void ForEachEclipse(double from, double to, const std::function<void(const GlobalSolarEclipse&)>& found) {
  astro_internal::EclipticPlaces places;
  astro_internal::FindSyzygies(places, 0.0, from, to, [&](double newMoon) {
    if (std::fabs(places.Get(kMoon, newMoon).latitude) > kLargestLatitude) return;
    if (const auto eclipse = Describe(newMoon)) found(*eclipse);
  });
}

}  // namespace

bool FindSolarEclipses(const EventSearch& search, const EventSink& sink) {
  const astro_internal::EventSpan span(search);
  const auto report = [&](const SkyEvent& event) {
    if (span.Has(event.moment.julianDateTT)) sink(event);
  };
  // What belongs to a new moon lies within twice the reach of it.
  ForEachEclipse(span.from - 2.0 * kReach, span.to + 2.0 * kReach, [&](const GlobalSolarEclipse& eclipse) {
    report(EventOf(eclipse));
    const auto local = search.place ? ComputeLocalSolarEclipse(eclipse, *search.place) : std::nullopt;
    if (local && local->bestSeen) report(EventOf(*local));
  });
  return span.isWhole;
}

std::optional<GlobalSolarEclipse> ComputeSolarEclipse(const SkyMoment& about) {
  constexpr double kNearness = 10.0;  // days
  std::optional<GlobalSolarEclipse> result;
  ForEachEclipse(about.julianDateTT - kNearness, about.julianDateTT + kNearness,
                 [&result](const GlobalSolarEclipse& eclipse) { result = eclipse; });
  return result;
}

}  // namespace astro
