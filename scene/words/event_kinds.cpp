// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/words/event_kinds.h"

#include <algorithm>
#include <iterator>

namespace scene {
namespace {

using astro::EventKind;

struct Row {
  EventKind kind;
  const char* group;
  const char* name;
  const char* unit;  // of the value
};

constexpr Row kRows[] = {{EventKind::kRise, "risings", "rise", "deg"},
                         {EventKind::kTransit, "risings", "transit", "deg"},
                         {EventKind::kSet, "risings", "set", "deg"},
                         {EventKind::kAstronomicalDawn, "twilights", "astronomical-dawn", "deg"},
                         {EventKind::kNauticalDawn, "twilights", "nautical-dawn", "deg"},
                         {EventKind::kCivilDawn, "twilights", "civil-dawn", "deg"},
                         {EventKind::kCivilDusk, "twilights", "civil-dusk", "deg"},
                         {EventKind::kNauticalDusk, "twilights", "nautical-dusk", "deg"},
                         {EventKind::kAstronomicalDusk, "twilights", "astronomical-dusk", "deg"},
                         {EventKind::kGoldenHourBegins, "twilights", "golden-hour-begins", "deg"},
                         {EventKind::kGoldenHourEnds, "twilights", "golden-hour-ends", "deg"},
                         {EventKind::kMarchEquinox, "seasons", "march-equinox", "deg"},
                         {EventKind::kJuneSolstice, "seasons", "june-solstice", "deg"},
                         {EventKind::kSeptemberEquinox, "seasons", "september-equinox", "deg"},
                         {EventKind::kDecemberSolstice, "seasons", "december-solstice", "deg"},
                         {EventKind::kNewMoon, "phases", "new-moon", "deg"},
                         {EventKind::kFirstQuarter, "phases", "first-quarter", "deg"},
                         {EventKind::kFullMoon, "phases", "full-moon", "deg"},
                         {EventKind::kLastQuarter, "phases", "last-quarter", "deg"},
                         {EventKind::kPerigee, "moon", "perigee", "km"},
                         {EventKind::kApogee, "moon", "apogee", "km"},
                         {EventKind::kAscendingNode, "moon", "ascending-node", "deg"},
                         {EventKind::kDescendingNode, "moon", "descending-node", "deg"},
                         {EventKind::kSolarEclipse, "eclipses", "solar-eclipse", ""},
                         {EventKind::kLunarEclipse, "eclipses", "lunar-eclipse", ""},
                         {EventKind::kSolarEclipseHere, "eclipses", "solar-eclipse-here", ""},
                         {EventKind::kOccultationBegins, "occultations", "occultation-begins", "deg"},
                         {EventKind::kOccultationEnds, "occultations", "occultation-ends", "deg"},
                         {EventKind::kConjunction, "conjunctions", "conjunction", "deg"},
                         {EventKind::kAppulse, "conjunctions", "appulse", "deg"},
                         {EventKind::kInferiorConjunction, "planets", "inferior-conjunction", "deg"},
                         {EventKind::kSuperiorConjunction, "planets", "superior-conjunction", "deg"},
                         {EventKind::kOpposition, "planets", "opposition", "au"},
                         {EventKind::kGreatestElongationEast, "planets", "elongation-east", "deg"},
                         {EventKind::kGreatestElongationWest, "planets", "elongation-west", "deg"},
                         {EventKind::kStationRetrograde, "planets", "station-retrograde", "deg"},
                         {EventKind::kStationDirect, "planets", "station-direct", "deg"},
                         {EventKind::kPerihelion, "planets", "perihelion", "au"},
                         {EventKind::kAphelion, "planets", "aphelion", "au"},
                         {EventKind::kGreatestBrilliancy, "planets", "greatest-brilliancy", "mag"},
                         {EventKind::kPlanetTransit, "planets", "planet-transit", "deg"},
                         {EventKind::kSatellitePass, "satellites", "satellite-pass", "deg"},
                         {EventKind::kShowerMaximum, "showers", "shower-maximum", "1/h"},
                         {EventKind::kMoonTransit, "jupiter-moons", "moon-transit", ""},
                         {EventKind::kMoonShadowTransit, "jupiter-moons", "moon-shadow-transit", ""},
                         {EventKind::kMoonOccultation, "jupiter-moons", "moon-occultation", ""},
                         {EventKind::kMoonEclipse, "jupiter-moons", "moon-eclipse", ""}};
static_assert(std::size(kRows) == astro::kEventKinds);

constexpr const char* kDaily[] = {"risings", "twilights", "satellites", "jupiter-moons"};

}  // namespace

bool IsDailyGroup(const std::string& group) {
  return std::find(std::begin(kDaily), std::end(kDaily), group) != std::end(kDaily);
}

std::vector<std::string> ListKindGroups() {
  std::vector<std::string> groups;
  for (const auto& row : kRows) {
    if (groups.empty() || groups.back() != row.group) groups.emplace_back(row.group);
  }
  return groups;
}

const char* GetKindName(EventKind kind) { return kRows[static_cast<int>(kind)].name; }

const char* GetUnitOfKind(EventKind kind) { return kRows[static_cast<int>(kind)].unit; }

bool IsAboutPlace(EventKind kind) {
  return kind <= EventKind::kGoldenHourEnds || kind == EventKind::kSolarEclipseHere ||
         kind == EventKind::kOccultationBegins || kind == EventKind::kOccultationEnds ||
         kind == EventKind::kSatellitePass || kind == EventKind::kShowerMaximum;
}

EventKinds FindKinds(const std::string& name) {
  EventKinds kinds;
  for (const auto& row : kRows) {
    if (name == row.name || name == row.group) kinds.set(static_cast<std::size_t>(row.kind));
  }
  return kinds;
}

EventKinds GetRareKinds() {
  EventKinds kinds;
  for (const auto& row : kRows) {
    if (!IsDailyGroup(row.group)) kinds.set(static_cast<std::size_t>(row.kind));
  }
  return kinds;
}

std::vector<std::string> ListKindNames() {
  std::vector<std::string> names = ListKindGroups();
  for (const auto& row : kRows) names.emplace_back(row.name);
  return names;
}

const char* GetKindGroup(EventKind kind) { return kRows[static_cast<int>(kind)].group; }

std::vector<std::string> ListKinds(const std::string& group) {
  std::vector<std::string> names;
  for (const auto& row : kRows) {
    if (group == row.group) names.emplace_back(row.name);
  }
  return names;
}

}  // namespace scene
