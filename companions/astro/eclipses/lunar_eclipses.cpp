// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/lunar_eclipses.h"

#include <cmath>
#include <functional>
#include <optional>

#include "astro/vectors.h"
#include "companions/astro/events/body_track.h"
#include "companions/astro/events/event_grid.h"
#include "companions/astro/events/syzygies.h"

namespace astro {

namespace {

// Days: the greatest eclipse is that near to full moon, and the Moon leaves the penumbra within that time of
// it.
constexpr double kReach = 0.2;
constexpr double kLookStep = 0.02;  // days between looks for the greatest eclipse
// Beyond that latitude at full moon the Moon misses the penumbra, whose radius with the Moon's is 1.6
// degrees at most.
constexpr double kLargestLatitude = 1.7 * kRadiansPerDegree;

class EarthShadowTrack {
 public:
  EarthShadowTrack() : m_Sun(kSun, nullptr), m_Moon(kMoon, nullptr) {}

  // About a full moon that was found, both are known.
  LunarEclipseState Get(double date) {
    astro_internal::BodyState sun = {}, moon = {};
    m_Sun.Get(date, sun);
    m_Moon.Get(date, moon);
    return FindLunarEclipse(sun.apparent, moon.apparent);
  }

 private:
  astro_internal::BodyTrack m_Sun, m_Moon;
};

std::optional<GlobalLunarEclipse> Describe(double fullMoon) {
  EarthShadowTrack track;
  const auto fromAxis = [&track](double date) {
    const Shadow shadow = track.Get(date).shadow;
    return Dot(shadow.foot, shadow.foot) * kKilometresPerAu;
  };
  const double date = astro_internal::FindLowest(fromAxis, fullMoon - kReach, fullMoon + kReach, kLookStep);
  const LunarEclipseState state = track.Get(date);
  if (state.kind == LunarEclipse::kNone) return std::nullopt;

  const auto penumbra = [&track](double at) { return track.Get(at).penumbralMagnitude; };
  const auto umbra = [&track](double at) { return track.Get(at).umbralMagnitude; };
  const auto inside = [&umbra](double at) { return umbra(at) - 1.0; };
  const auto touch = [date](auto depth, double there) {
    return MakeMomentTT(astro_internal::FindZero(depth, date, depth(date), there, depth(there),
                                                 astro_internal::kEventPrecision));
  };
  GlobalLunarEclipse eclipse;
  eclipse.greatest = MakeMomentTT(date);
  eclipse.kind = state.kind;
  eclipse.umbralMagnitude = state.umbralMagnitude;
  eclipse.penumbralMagnitude = state.penumbralMagnitude;
  const double* foot = state.shadow.foot;
  eclipse.gamma = std::copysign(Vmod(foot, 3) * kKilometresPerAu / kEarthEquatorialRadius, -foot[2]);
  eclipse.penumbraBegin = touch(penumbra, date - kReach);
  eclipse.penumbraEnd = touch(penumbra, date + kReach);
  if (state.kind != LunarEclipse::kPenumbral) {
    eclipse.umbraBegin = touch(umbra, date - kReach);
    eclipse.umbraEnd = touch(umbra, date + kReach);
  }
  if (state.kind == LunarEclipse::kTotal) {
    eclipse.totalityBegin = touch(inside, date - kReach);
    eclipse.totalityEnd = touch(inside, date + kReach);
  }
  return eclipse;
}

SkyEvent EventOf(const GlobalLunarEclipse& eclipse) {
  SkyEvent event;
  event.kind = EventKind::kLunarEclipse;
  event.moment = eclipse.greatest;
  event.sinceBegin = eclipse.greatest.julianDateTT - eclipse.penumbraBegin.julianDateTT;
  event.untilEnd = eclipse.penumbraEnd.julianDateTT - eclipse.greatest.julianDateTT;
  event.body = kMoon;
  event.other = kEarth;
  event.value = eclipse.umbralMagnitude;
  event.more = eclipse.penumbralMagnitude;
  event.detail = static_cast<int>(eclipse.kind);
  return event;
}

// Calls found(eclipse) for the full moons between two dates (TT) that are eclipsed.
void ForEachEclipse(double from, double to, const std::function<void(const GlobalLunarEclipse&)>& found) {
  astro_internal::EclipticPlaces places;
  astro_internal::FindSyzygies(places, kPi, from, to, [&](double fullMoon) {
    if (std::fabs(places.Get(kMoon, fullMoon).latitude) > kLargestLatitude) return;
    if (const auto eclipse = Describe(fullMoon)) found(*eclipse);
  });
}

}  // namespace

bool FindLunarEclipses(const EventSearch& search, const EventSink& sink) {
  const astro_internal::EventSpan span(search);
  ForEachEclipse(span.from - kReach, span.to + kReach, [&](const GlobalLunarEclipse& eclipse) {
    if (span.Has(eclipse.greatest.julianDateTT)) sink(EventOf(eclipse));
  });
  return span.isWhole;
}

std::optional<GlobalLunarEclipse> ComputeLunarEclipse(const SkyMoment& about) {
  constexpr double kNearness = 10.0;  // days
  std::optional<GlobalLunarEclipse> result;
  ForEachEclipse(about.julianDateTT - kNearness, about.julianDateTT + kNearness,
                 [&result](const GlobalLunarEclipse& eclipse) { result = eclipse; });
  return result;
}

}  // namespace astro
