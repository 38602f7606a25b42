// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// All that a night shows, and the page that says it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "astro/moon_phenomena.h"
#include "astro/sky_events.h"
#include "scene/almanac/night_objects.h"
#include "scene/almanac/night_plan.h"
#include "scene/almanac/night_showers.h"
#include "scene/catalogs/showers.h"
#include "skyview/almanac/local_clock.h"
#include "skyview/options/almanac_group.h"

namespace skyview {

// What Jupiter's moons do in a night while the planet is up and the Sun is down, at the beginning or the
// end.
struct NightMoonEvent {
  astro::MoonEvent event;
  scene::SkyMoment begin, end;
};

struct NightReport {
  scene::NightPlan plan;
  scene::EarthPlace place;
  EquipmentOptions equipment;
  std::optional<double> moonAge;        // days since the last new Moon
  std::vector<astro::SkyEvent> phases;  // the next four of the Moon
  std::vector<scene::NightObject> objects, smallBodies;
  std::vector<scene::NightShower> showers;
  std::vector<NightMoonEvent> moonEvents;
  std::vector<astro::SkyEvent> passes;  // of satellites
  std::vector<astro::SkyEvent> next;    // of the next days
};

inline constexpr int kNextDays = 30;

// The night around `now`; nothing where nobody can tell where the Sun is.
std::optional<NightReport> MakeNightReport(const scene::SkyMoment& now, const scene::EarthPlace& place,
                                           const EquipmentOptions& equipment,
                                           const scene::SkyCatalogs& catalogs);

// One page of lines of at most 100 characters, in the current language, UTF-8.
std::string FormatNight(const NightReport& report, const scene::SkyCatalogs& catalogs,
                        const std::vector<scene::Shower>& showers, const LocalClock& clock);

// The same as one JSON object with English names (docs/skyview.md).
std::string FormatNightAsJson(const NightReport& report, const scene::SkyCatalogs& catalogs,
                              const std::vector<scene::Shower>& showers, const LocalClock& clock);

}  // namespace skyview
