// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/almanac/night_plan.h"

#include <algorithm>
#include <cmath>

#include "astro/constants.h"
#include "scene/view/night.h"

namespace scene {
namespace {

constexpr double kStep = 1.0 / 96.0;  // days between two looks at a body

bool IsUp(const std::optional<astro::HorizonPlace>& place) {
  return place && place->altitude >= place->eventAltitude;
}

// The stretch of the night in which the Sun is below an altitude; nothing when there is none.
std::optional<NightSpan> FindDark(const astro::Twilight& twilight, const NightSpan& whole) {
  if (twilight.course == astro::SunCourse::kStaysBelow) return whole;
  if (twilight.course != astro::SunCourse::kCrosses) return std::nullopt;
  return NightSpan{twilight.dusk.value_or(whole.begin), twilight.dawn.value_or(whole.end)};
}

std::optional<NightSpan> FindSunless(const astro::RiseTransitSet& sun, const NightSpan& whole) {
  if (sun.staysDown) return whole;
  if (sun.staysUp || (!sun.set && !sun.rise)) return std::nullopt;
  return NightSpan{sun.set.value_or(whole.begin), sun.rise.value_or(whole.end)};
}

void ChooseDarkness(NightPlan& plan) {
  const auto take = [&plan](Darkness darkness, const std::optional<NightSpan>& span) {
    if (!span || !(span->GetLength() > 0.0)) return;
    plan.darkness = darkness;
    plan.dark = *span;
  };
  take(Darkness::kSunset, FindSunless(plan.sun, plan.whole));
  take(Darkness::kCivil, FindDark(plan.civil, plan.whole));
  take(Darkness::kNautical, FindDark(plan.nautical, plan.whole));
  take(Darkness::kAstronomical, FindDark(plan.astronomical, plan.whole));
}

// In which the planets are looked for.
std::optional<NightSpan> FindPlanetHours(const NightPlan& plan) {
  const auto civil = FindDark(plan.civil, plan.whole);
  return civil ? civil : FindSunless(plan.sun, plan.whole);
}

class BodyWatch {
 public:
  BodyWatch(const NightPlan& plan, const EarthPlace& place)
      : m_Plan(plan), m_Place(place), m_Hours(FindPlanetHours(plan)) {}

  NightBody Watch(const SSO_ID& id) {
    const bool large = id == astro::kMoon;
    const auto find = astro::MakeBodyFinder(
        m_Model, id, nullptr, m_Place, large ? astro::RisingPart::kUpperLimb : astro::RisingPart::kCentre);
    NightBody body;
    body.id = id;
    body.events = astro::FindRiseTransitSet(find, m_Plan.whole.begin, 1.0, kStep);
    if (m_Hours) body.best = FindHighest(find, *m_Hours);
    SetUpModel(body.best ? body.best->moment : m_Plan.middle, m_Place, m_Model);
    m_Model.Observe(id, nullptr, body.seen);
    return body;
  }

  std::vector<NightSpan> FindMoonless() {
    if (m_Plan.darkness == Darkness::kNone) return {};
    const auto find =
        astro::MakeBodyFinder(m_Model, astro::kMoon, nullptr, m_Place, astro::RisingPart::kUpperLimb);
    std::vector<NightSpan> spans;
    std::optional<SkyMoment> down;  // since when
    if (!IsUp(find(m_Plan.dark.begin))) down = m_Plan.dark.begin;
    SkyMoment at = m_Plan.dark.begin;
    // At most one rise and one set a day, so three stretches.
    for (double left = m_Plan.dark.GetLength(); left > 0.0;
         left = NightSpan{at, m_Plan.dark.end}.GetLength()) {
      const auto events = astro::FindRiseTransitSet(find, at, left, kStep);
      const auto& next = down ? events.rise : events.set;
      if (!next) break;
      if (down) spans.push_back({*down, *next});
      down = down ? std::nullopt : next;
      at = Later(*next, kPause);
    }
    if (down) spans.push_back({*down, m_Plan.dark.end});
    return spans;
  }

 private:
  static constexpr double kPause = 1e-5;  // days: past an event that was found to a tenth of a second

  const NightPlan& m_Plan;
  const EarthPlace& m_Place;
  std::optional<NightSpan> m_Hours;
  CQXSolSys m_Model;
};

NightSight MakeSight(const SkyMoment& moment, const astro::HorizonPlace& place) {
  return {moment, place.azimuth, place.altitude};
}

}  // namespace

std::optional<NightSight> FindHighest(const astro::FindHorizonPlace& find, const NightSpan& span) {
  constexpr double kLook = 1.0 / 144.0, kMinute = 1.0 / 1440.0;  // days
  const double length = span.GetLength();
  const auto altitude = [&find, &span](double at) {
    const auto place = find(Later(span.begin, at));
    return place ? place->altitude : -kPi;
  };
  const int looks = std::max(1, static_cast<int>(std::ceil(length / kLook)));
  double best = 0.0, highest = -kPi;
  for (int i = 0; i <= looks; ++i) {
    const double at = length * i / looks, there = altitude(at);
    if (there > highest) {
      highest = there;
      best = at;
    }
  }
  for (double step = 0.5 * length / looks; step > 0.5 * kMinute; step *= 0.5) {
    for (const double at : {best - step, best + step}) {
      if (at < 0.0 || at > length) continue;
      const double there = altitude(at);
      if (!(there > highest)) continue;
      highest = there;
      best = at;
    }
  }
  if (!(highest > 0.0)) return std::nullopt;
  const SkyMoment moment = Later(span.begin, best);
  return MakeSight(moment, *find(moment));
}

std::optional<NightPlan> MakeNightPlan(const SkyMoment& now, const EarthPlace& place, bool withPlanets) {
  constexpr double kHalf = 0.5, kDay = 1.0;
  const auto middle = FindTonight(now, place);
  if (!middle) return std::nullopt;
  NightPlan plan;
  plan.middle = *middle;
  plan.whole = {Later(*middle, -kHalf), Later(*middle, kHalf)};
  CQXSolSys model;
  const auto sun = astro::MakeBodyFinder(model, astro::kSun, nullptr, place, astro::RisingPart::kUpperLimb);
  plan.sun = astro::FindRiseTransitSet(sun, plan.whole.begin, kDay, kStep);
  const auto twilight = [&plan, &place](double altitude) {
    return astro::FindTwilight(place, plan.whole.begin, kDay, altitude);
  };
  plan.civil = twilight(astro::kCivilTwilight);
  plan.nautical = twilight(astro::kNauticalTwilight);
  plan.astronomical = twilight(astro::kAstronomicalTwilight);
  ChooseDarkness(plan);
  BodyWatch watch(plan, place);
  plan.moon = watch.Watch(astro::kMoon);
  plan.moonless = watch.FindMoonless();
  constexpr int kNeptune = 8;
  for (int planet = 1; withPlanets && planet <= kNeptune; ++planet) {
    if (planet != astro::kEarthNumber)
      plan.planets.push_back(watch.Watch(SSO_ID(astro::kPlanetKind, planet)));
  }
  return plan;
}

}  // namespace scene
