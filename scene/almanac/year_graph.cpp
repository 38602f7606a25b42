// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/almanac/year_graph.h"

#include <algorithm>
#include <cmath>

#include "astro/moon_events.h"
#include "astro/rise_events.h"
#include "astro/sun_events.h"

namespace scene {
namespace {

using astro::EventKind;

constexpr int kNeptune = 8;
constexpr double kHours = 24.0;

// The Sun passes an altitude.
struct Crossing {
  double at;  // days from the first noon
  bool down;
};

class YearWatch {
 public:
  YearWatch(int firstDay, int nights, double offset, const EarthPlace& place)
      : m_FirstDay(firstDay),
        m_Offset(offset),
        m_Place(place),
        m_Search{MakeMoment(firstDay, -offset), MakeMoment(firstDay + nights, -offset), place} {
    m_Graph.nights = nights;
    m_Graph.latitude = place.lat;
  }

  YearGraph Make() {
    const bool done = AddBands() && AddLine(astro::kMoon) && AddPlanets() && AddPhases();
    return done ? std::move(m_Graph) : YearGraph();
  }

 private:
  double GetDays(const SkyMoment& moment) const {
    return moment.day - m_FirstDay + (moment.fraction + m_Offset);
  }
  NightPoint GetPoint(const SkyMoment& moment) const {
    const double days = GetDays(moment), night = std::floor(days);
    return {static_cast<int>(night), static_cast<float>(kHours * (days - night))};
  }

  bool AddBands() {
    std::vector<Crossing> crossings[kTwilightBands];
    const auto sort = [&](const astro::SkyEvent& event) {
      const auto add = [&](int band, bool down) { crossings[band].push_back({GetDays(event.moment), down}); };
      switch (event.kind) {
        case EventKind::kSet:
        case EventKind::kRise:
          return add(0, event.kind == EventKind::kSet);
        case EventKind::kCivilDusk:
        case EventKind::kCivilDawn:
          return add(1, event.kind == EventKind::kCivilDusk);
        case EventKind::kNauticalDusk:
        case EventKind::kNauticalDawn:
          return add(2, event.kind == EventKind::kNauticalDusk);
        case EventKind::kAstronomicalDusk:
        case EventKind::kAstronomicalDawn:
          return add(3, event.kind == EventKind::kAstronomicalDusk);
        default:
          return;
      }
    };
    if (!astro::FindRisings(m_Search, astro::kSun, nullptr, astro::RisingPart::kUpperLimb, sort))
      return false;
    if (!astro::FindSunEvents(m_Search, sort)) return false;
    for (int band = 0; band < kTwilightBands; ++band) MakeBand(crossings[band], band);
    return true;
  }

  // Whether the Sun is below the band's altitude when the year begins.
  bool BeginsBelow(int band) const {
    constexpr double kAltitudes[] = {0.0, astro::kCivilTwilight, astro::kNauticalTwilight,
                                     astro::kAstronomicalTwilight};
    CQXSolSys model;
    const auto sun =
        astro::MakeBodyFinder(model, astro::kSun, nullptr, m_Place, astro::RisingPart::kUpperLimb);
    const auto there = sun(m_Search.from);
    return there && there->altitude < (band == 0 ? there->eventAltitude : kAltitudes[band]);
  }

  void MakeBand(std::vector<Crossing>& crossings, int band) {
    m_Graph.bands[band].resize(static_cast<std::size_t>(m_Graph.nights));
    std::sort(crossings.begin(), crossings.end(), [](const auto& a, const auto& b) { return a.at < b.at; });
    bool below = crossings.empty() ? BeginsBelow(band) : !crossings.front().down;
    double since = 0.0;
    for (const auto& crossing : crossings) {
      if (below && !crossing.down) AddHours(since, crossing.at, m_Graph.bands[band]);
      below = crossing.down;
      since = crossing.at;
    }
    if (below) AddHours(since, m_Graph.nights, m_Graph.bands[band]);
  }

  // A stretch that goes on through noons belongs to each night that it touches.
  static void AddHours(double from, double to, std::vector<std::vector<NightHours>>& band) {
    for (int night = static_cast<int>(from); night < to; ++night) {
      const double begin = std::max(from - night, 0.0), end = std::min(to - night, 1.0);
      if (end > begin)
        band[static_cast<std::size_t>(night)].push_back(
            {static_cast<float>(kHours * begin), static_cast<float>(kHours * end)});
    }
  }

  bool AddLine(const SSO_ID& body) {
    RisingLine rises = {body, true, {}}, sets = {body, false, {}};
    const auto part = body == astro::kMoon ? astro::RisingPart::kUpperLimb : astro::RisingPart::kCentre;
    const bool done = astro::FindRisings(m_Search, body, nullptr, part, [&](const astro::SkyEvent& event) {
      if (event.kind == EventKind::kRise) rises.points.push_back(GetPoint(event.moment));
      if (event.kind == EventKind::kSet) sets.points.push_back(GetPoint(event.moment));
    });
    m_Graph.lines.push_back(std::move(rises));
    m_Graph.lines.push_back(std::move(sets));
    return done;
  }

  bool AddPlanets() {
    for (int planet = 1; planet <= kNeptune; ++planet) {
      if (planet != astro::kEarthNumber && !AddLine(SSO_ID(astro::kPlanetKind, planet))) return false;
    }
    return true;
  }

  bool AddPhases() {
    return astro::FindMoonPhases(m_Search, [this](const astro::SkyEvent& event) {
      m_Graph.phases.push_back({GetPoint(event.moment), event.kind});
    });
  }

  int m_FirstDay;
  double m_Offset;
  EarthPlace m_Place;
  astro::EventSearch m_Search;
  YearGraph m_Graph;
};

}  // namespace

YearGraph MakeYearGraph(int firstDay, int nights, double offset, const EarthPlace& place) {
  if (nights <= 0) return {};
  return YearWatch(firstDay, nights, offset, place).Make();
}

}  // namespace scene
