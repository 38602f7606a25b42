// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/almanac/night_samples.h"

#include <algorithm>
#include <cmath>

#include "astro/coordinates.h"

namespace scene {
namespace {

double FindAltitude(const double axes[9], const Direction& direction) {
  double v[3];
  MV3prod(axes, direction.v, v);
  return std::asin(std::clamp(v[2], -1.0, 1.0));
}

astro::SkyLights MakeLights(const double axes[9], const Direction& sun, const Direction& moon,
                            double phaseAngle) {
  astro::SkyLights lights;
  lights.sunAltitude = FindAltitude(axes, sun);
  lights.moonAltitude = FindAltitude(axes, moon);
  lights.moonPhaseAngle = phaseAngle;
  return lights;
}

double AngleBetween(const Direction& a, const Direction& b) { return VectorsAngle(a.v, b.v); }

}  // namespace

double NightSample::GetAltitude(const Direction& direction) const { return FindAltitude(axes, direction); }

double NightSample::GetLuminance(const Direction& direction, double altitude) const {
  return sky.GetLuminance(altitude, AngleBetween(direction, sun), AngleBetween(direction, moon));
}

std::vector<NightSample> MakeNightSamples(const NightPlan& plan, const EarthPlace& place) {
  constexpr double kStep = 1.0 / 96.0;  // days
  if (plan.darkness == Darkness::kNone) return {};
  const double length = plan.dark.GetLength();
  const int steps = std::max(1, static_cast<int>(std::ceil(length / kStep)));
  std::vector<NightSample> samples;
  CQXSolSys model;
  for (int i = 0; i <= steps; ++i) {
    const SkyMoment moment = Later(plan.dark.begin, length * i / steps);
    SetUpModel(moment, place, model);
    ObservedBody sun, moon;
    if (!model.Observe(astro::kSun, nullptr, sun) || !model.Observe(astro::kMoon, nullptr, moon)) return {};
    const Direction toSun = MakeDirection(sun.apparent), toMoon = MakeDirection(moon.apparent);
    double axes[9];
    HorizonAxes(moment, place, axes);
    NightSample sample = {
        moment, {}, astro::SkyBrightness(MakeLights(axes, toSun, toMoon, moon.phaseAngle)), toSun, toMoon};
    std::copy(std::begin(axes), std::end(axes), sample.axes);
    samples.push_back(sample);
  }
  return samples;
}

}  // namespace scene
