// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/almanac/night_report.h"

#include <algorithm>
#include <cmath>

#include "astro/delta_t.h"
#include "scene/words/event_search.h"

namespace skyview {
namespace {

using astro::EventKind;

constexpr int kMostObjects = 10, kMostSmallBodies = 4, kMostShowers = 4, kMostMoonEvents = 6, kMostPasses = 6,
              kMostNext = 12;
constexpr int kJupiter = 5, kUranus = 7;

scene::SkyMoment FromDynamicalTime(double julianDateTT) {
  const int day = static_cast<int>(std::floor(julianDateTT));
  const double fraction = julianDateTT - day;
  return scene::MakeMoment(day, fraction - ET_UT::Get(day, fraction) / 86400.0);
}

void AddPhases(const scene::SkyMoment& now, NightReport& report) {
  constexpr double kBefore = 31.0, kAfter = 31.0;  // days: more than a month of the Moon
  constexpr std::size_t kPhases = 4;
  const auto found = scene::FindEvents(
      scene::FindKinds("phases"), {scene::Later(now, -kBefore), scene::Later(now, kAfter), std::nullopt}, {});
  for (const auto& event : found.events) {
    const double since = scene::NightSpan{event.moment, now}.GetLength();
    if (since >= 0.0 && event.kind == EventKind::kNewMoon) report.moonAge = since;
    if (since < 0.0 && report.phases.size() < kPhases) report.phases.push_back(event);
  }
}

bool IsFaint(const SSO_ID& id) { return id.kind == astro::kPlanetKind && id.number >= kUranus; }

// What the eye cannot see, what happens behind the Sun's glare, and stars that the Moon passes far off are
// left to the list of all events.
bool IsWorthTelling(const astro::SkyEvent& event) {
  constexpr double kGlare = 12.0 * astro::kRadiansPerDegree, kNear = 2.0 * astro::kRadiansPerDegree;
  constexpr double kLeastRate = 5.0;  // meteors an hour
  if (event.kind == EventKind::kShowerMaximum) return event.value >= kLeastRate;
  if (event.kind != EventKind::kConjunction) return true;
  if (IsFaint(event.body) || IsFaint(event.other)) return false;
  const bool moon = event.body == astro::kMoon || event.other == astro::kMoon,
             star = event.body.kind == FourCC("star") || event.other.kind == FourCC("star");
  return event.more > kGlare && (!(moon && star) || std::fabs(event.value) < kNear);
}

scene::EventKinds GetNextKinds() {
  scene::EventKinds kinds = scene::GetRareKinds();
  for (const auto* const left : {"phases", "moon", "perihelion", "aphelion", "appulse"}) {
    kinds &= ~scene::FindKinds(left);
  }
  return kinds;
}

void AddNext(NightReport& report) {
  const astro::EventSearch search = {report.plan.whole.begin,
                                     scene::Later(report.plan.whole.begin, kNextDays), report.place};
  auto found = scene::FindEvents(GetNextKinds(), search, {});
  std::erase_if(found.events, [](const auto& event) { return !IsWorthTelling(event); });
  if (found.events.size() > kMostNext) found.events.resize(kMostNext);
  report.next = std::move(found.events);
}

bool IsDarkAt(const scene::SkyMoment& moment, const scene::NightPlan& plan) {
  const scene::NightSpan since = {plan.civil.dusk.value_or(plan.whole.begin), moment},
                         left = {moment, plan.civil.dawn.value_or(plan.whole.end)};
  return plan.civil.course != astro::SunCourse::kStaysAbove && since.GetLength() >= 0.0 &&
         left.GetLength() >= 0.0;
}

// The highest ones of those that culminate in the dark, in the order of time.
void AddPasses(const scene::SkyCatalogs& catalogs, NightReport& report) {
  const astro::EventSearch search = {report.plan.whole.begin, report.plan.whole.end, report.place};
  auto passes = scene::FindEvents(scene::FindKinds("satellites"), search, catalogs.bodies).events;
  std::erase_if(passes, [&report](const auto& pass) { return !IsDarkAt(pass.moment, report.plan); });
  auto sorted = passes;
  std::stable_sort(sorted.begin(), sorted.end(),
                   [](const auto& a, const auto& b) { return a.value > b.value; });
  if (sorted.size() > kMostPasses) {
    const double lowest = sorted[kMostPasses - 1].value;
    std::erase_if(passes, [lowest](const auto& pass) { return pass.value < lowest; });
  }
  report.passes = std::move(passes);
}

class JupiterWatch {
 public:
  explicit JupiterWatch(const NightReport& report)
      : m_Plan(report.plan),
        m_Find(astro::MakeBodyFinder(m_Model, SSO_ID(astro::kPlanetKind, kJupiter), nullptr, report.place,
                                     astro::RisingPart::kCentre)),
        m_Sun(astro::MakeBodyFinder(m_SunModel, astro::kSun, nullptr, report.place,
                                    astro::RisingPart::kCentre)) {}

  std::vector<NightMoonEvent> Watch() const {
    std::vector<NightMoonEvent> seen;
    for (const auto& event :
         astro::FindMoonEvents(kJupiter, m_Plan.whole.begin.julianDateTT, m_Plan.whole.end.julianDateTT)) {
      const NightMoonEvent night = {event, FromDynamicalTime(event.begin), FromDynamicalTime(event.end)};
      const bool begins = !event.beginIsHidden && IsSeen(night.begin),
                 ends = !event.endIsHidden && IsSeen(night.end);
      if ((begins || ends) && seen.size() < kMostMoonEvents) seen.push_back(night);
    }
    return seen;
  }

 private:
  // Jupiter stands out from the twilight soon after sunset.
  bool IsSeen(const scene::SkyMoment& moment) const {
    constexpr double kLeast = 5.0 * astro::kRadiansPerDegree;
    const auto jupiter = m_Find(moment), sun = m_Sun(moment);
    return jupiter && sun && jupiter->altitude > kLeast && sun->altitude < astro::kCivilTwilight;
  }

  const scene::NightPlan& m_Plan;
  CQXSolSys m_Model, m_SunModel;
  astro::FindHorizonPlace m_Find, m_Sun;
};

}  // namespace

std::optional<NightReport> MakeNightReport(const scene::SkyMoment& now, const scene::EarthPlace& place,
                                           const EquipmentOptions& equipment,
                                           const scene::SkyCatalogs& catalogs) {
  auto plan = scene::MakeNightPlan(now, place);
  if (!plan) return std::nullopt;
  NightReport report;
  report.plan = *std::move(plan);
  report.place = place;
  report.equipment = equipment;
  const double aperture = equipment.GetAperture();
  report.objects = scene::FindBestObjects(report.plan, place, catalogs, aperture, kMostObjects);
  report.smallBodies = scene::FindBestSmallBodies(report.plan, place, catalogs, aperture, kMostSmallBodies);
  report.showers = scene::FindNightShowers(report.plan, place);
  if (report.showers.size() > kMostShowers) report.showers.resize(kMostShowers);
  report.moonEvents = JupiterWatch(report).Watch();
  AddPasses(catalogs, report);
  AddPhases(report.plan.middle, report);
  AddNext(report);
  return report;
}

}  // namespace skyview
