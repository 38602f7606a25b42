// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>
#include <cstddef>
#include <limits>

#include "scene/almanac/night_plan.h"
#include "scene/almanac/object_day.h"
#include "scene/catalogs/texts.h"
#include "scene/interface_c/sky.h"
#include "scene/view/base_plane.h"
#include "scene/words/disc_text.h"

namespace {

using scene::kRadiansPerDegree;
using scene::SkyMoment;
using scene::ToDate;

constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();

double ToDate(const std::optional<SkyMoment>& moment) { return moment ? ToDate(*moment) : kUnknown; }

int FailPlace(SceneSky& sky) {
  return scene::Fail(sky, SCENE_NOT_FOUND, "nobody can tell where it is at that moment from there");
}

SceneDay Describe(const astro::RiseTransitSet& events, scene::ObjectSight& sight,
                  const scene::EarthPlace& place) {
  const auto degrees = [&](const std::optional<SkyMoment>& moment, double astro::HorizonPlace::*angle) {
    const auto there = moment ? scene::FindPlaceOverHorizon(sight, *moment, place) : std::nullopt;
    return there ? (*there).*angle / kRadiansPerDegree : kUnknown;
  };
  return {0,
          events.staysUp     ? 1
          : events.staysDown ? -1
                             : 0,
          ToDate(events.rise),
          ToDate(events.transit),
          ToDate(events.set),
          degrees(events.rise, &astro::HorizonPlace::azimuth),
          degrees(events.transit, &astro::HorizonPlace::altitude),
          degrees(events.set, &astro::HorizonPlace::azimuth)};
}

// The angle Sun - Moon - observer, radians.
double FindMoonPhaseAngle(const SkyMoment& moment, const scene::EarthPlace& place, SceneSky& sky) {
  scene::ObjectSight moon({scene::ObjectGroup::kBody, scene::kMoonBody}, sky.catalogs);
  ObservedBody seen;
  return moon.Observe(moment, place, seen) ? seen.phaseAngle : kUnknown;
}

void DescribeMoon(const scene::NightPlan& plan, const scene::EarthPlace& place, SceneSky& sky,
                  SceneNight& night) {
  constexpr double kLater = 0.25;  // days: in six hours the phase changes by three degrees
  const double angle = FindMoonPhaseAngle(plan.middle, place, sky),
               later = FindMoonPhaseAngle(scene::Later(plan.middle, kLater), place, sky);
  night.moonrise = ToDate(plan.moon.events.rise);
  night.moonset = ToDate(plan.moon.events.set);
  night.moon_phase_angle = angle / kRadiansPerDegree;
  night.moon_lit = 0.5 * (1.0 + std::cos(angle));
  night.moon_waxes = later < angle;
  if (!std::isfinite(angle)) return;
  const int phase = scene::GetMoonPhase(scene::GetLitPercent(angle), later < angle);
  sky.moonPhase = scene::ToUtf8(scene::GetMoonPhaseName(phase));
}

SceneNight Describe(const scene::NightPlan& plan) {
  SceneNight night = {};
  night.darkness = static_cast<int32_t>(plan.darkness);
  night.begin = ToDate(plan.whole.begin);
  night.end = ToDate(plan.whole.end);
  night.middle = ToDate(plan.middle);
  night.sunset = ToDate(plan.sun.set);
  night.sunrise = ToDate(plan.sun.rise);
  night.civil_dusk = ToDate(plan.civil.dusk);
  night.civil_dawn = ToDate(plan.civil.dawn);
  night.nautical_dusk = ToDate(plan.nautical.dusk);
  night.nautical_dawn = ToDate(plan.nautical.dawn);
  night.astronomical_dusk = ToDate(plan.astronomical.dusk);
  night.astronomical_dawn = ToDate(plan.astronomical.dawn);
  return night;
}

}  // namespace

int scene_get_day(SceneSky* sky, SceneObject object, SceneDay* day) {
  return scene::Call(sky, [&] {
    if (!scene::IsKnown(day, offsetof(SceneDay, set_azimuth) + sizeof day->set_azimuth))
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "the day is null or its size too small");
    const auto found = scene::FindNamed(object, *sky);
    if (!found) return static_cast<int>(SCENE_NOT_FOUND);
    if (!scene::IsNearSurface(sky->camera)) return FailPlace(*sky);
    scene::ObjectSight sight(*found, sky->catalogs);
    const scene::EarthPlace place = scene::GetPlace(sky->camera);
    if (!scene::FindPlaceOverHorizon(sight, scene::GetMoment(sky->camera), place)) return FailPlace(*sky);
    scene::Give(Describe(scene::FindObjectDay(sight, object.kind, sky->camera), sight, place), day);
    return static_cast<int>(SCENE_OK);
  });
}

int scene_sample_altitudes(SceneSky* sky, SceneObject object, double begin, double end, double* altitudes,
                           int32_t count) {
  return scene::Call(sky, [&] {
    constexpr int32_t kMost = 100000;
    if (!altitudes || count < 2 || count > kMost || !scene::IsDate(begin) || !scene::IsDate(end))
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "wants two dates and room for 2 to 100000 altitudes");
    const auto found = scene::FindNamed(object, *sky);
    if (!found) return static_cast<int>(SCENE_NOT_FOUND);
    if (!scene::IsNearSurface(sky->camera)) return FailPlace(*sky);
    scene::ObjectSight sight(*found, sky->catalogs);
    const scene::EarthPlace place = scene::GetPlace(sky->camera);
    for (int32_t i = 0; i < count; ++i) {
      const double date = begin + (end - begin) * i / (count - 1);
      const auto there = scene::FindPlaceOverHorizon(sight, scene::ToMoment(date), place);
      altitudes[i] = there ? there->altitude / kRadiansPerDegree : kUnknown;
    }
    return static_cast<int>(SCENE_OK);
  });
}

int scene_get_night(SceneSky* sky, SceneNight* night) {
  return scene::Call(sky, [&] {
    if (!scene::IsKnown(night, offsetof(SceneNight, moon_phase) + sizeof night->moon_phase))
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "the night is null or its size too small");
    const scene::EarthPlace place = scene::GetPlace(sky->camera);
    const auto plan = scene::IsNearSurface(sky->camera)
                          ? scene::MakeNightPlan(scene::GetMoment(sky->camera), place, false)
                          : std::nullopt;
    if (!plan)
      return scene::Fail(*sky, SCENE_NOT_FOUND, "nobody can tell where the Sun is at that moment from there");
    SceneNight described = Describe(*plan);
    DescribeMoon(*plan, place, *sky, described);
    described.moon_phase = sky->moonPhase.c_str();
    scene::Give(described, night);
    return static_cast<int>(SCENE_OK);
  });
}
