// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/moon_phenomena.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "astro/constants.h"
#include "astro/moons.h"
#include "astro/planets.h"
#include "astro/vectors.h"
#include "companions/astro/events/bracketing.h"
#include "companions/astro/events/moon_lines.h"

namespace astro {

namespace {

using astro_internal::MoonLine;
using astro_internal::MoonLines;
using astro_internal::Spheroid;
using astro_internal::Viewer;

constexpr double kPrecision = 1e-6;  // days: 0.1 second
constexpr double kStepsPerRevolution = 12.0;
// Of a revolution: to both sides of where a moon passes its planet's middle. No moon is so near that its
// planet covers more of its way: for Phobos, the nearest one, that is a ninth in all.
constexpr double kReach = 1.0 / 8.0;
// In radii of the planet: a moon that stands so far off the limb when it crosses the axis will not touch it
// elsewhere, for over a radius to both sides its way is inclined to the equator by less than 45 degrees.
constexpr double kFarOff = 3.0;
// The same, where there is no doubt that the moon touches the disc.
constexpr double kWellInside = -0.05;
constexpr double kAxisPrecision = 0.02;  // of a step, in finding where a moon crosses the axis

double MarginOf(const SSO_ID& moon, MoonContact contact) {
  const double radius = GetBodyRadius(moon) / kKilometresPerAu;
  return contact == MoonContact::kOuter ? radius : contact == MoonContact::kInner ? -radius : 0.0;
}

// One moon and its lines from one viewer.
class Passages {
 public:
  Passages(const SSO_ID& planet, const SSO_ID& moon, MoonContact contact)
      : m_Planet(planet), m_Moon(moon), m_Margin(MarginOf(moon, contact)), m_Lines(planet, moon) {}

  // Adds what goes on within a span.
  void Find(Viewer viewer, double from, double to, std::vector<MoonEvent>& events) {
    const double revolution = Revolution();
    const double reach = kReach * revolution, step = revolution / kStepsPerRevolution;
    const auto beside = [this, viewer](double date) { return Beside(date, viewer); };
    // The looks do not depend on the span, so that neighbouring spans find the same events to the last digit.
    const double first = std::floor((from - reach) / step);
    double before = beside(first * step);
    for (double k = first + 1.0; (k - 1.0) * step < to + reach; k += 1.0) {
      const double date = k * step, now = beside(date);
      if ((before < 0.0) != (now < 0.0) && std::isfinite(before) && std::isfinite(now)) {
        const double middle =
            astro_internal::FindZero(beside, date - step, before, date, now, kAxisPrecision * step);
        AddPassage(viewer, middle, reach, from, to, events);
      }
      before = now;
    }
  }

 private:
  static constexpr double kNowhere = std::numeric_limits<double>::quiet_NaN();

  // Days, to the eccentricity.
  double Revolution() const {
    double position[3] = {}, velocity[3] = {};
    ComputeMoonOfPlanet(m_Moon, kJ2000, position, velocity);
    return kTurn * Vmod(position, 3) / Vmod(velocity, 3);
  }

  // How far the moon stands beside the axis of the planet as the viewer sees it: changes its sign twice a
  // revolution.
  double Beside(double date, Viewer viewer) {
    MoonLine line;
    Spheroid planet;
    if (!GetLine(date, viewer, line, planet)) return kNowhere;
    double across[3];
    Vprod(planet.pole, line.planet, across);
    return Dot(line.moon, across);
  }

  double ClearanceAt(double date, Viewer viewer) {
    MoonLine line;
    Spheroid planet;
    return GetLine(date, viewer, line, planet) ? Clearance(line, planet) : kNowhere;
  }

  bool GetLine(double date, Viewer viewer, MoonLine& line, Spheroid& planet) {
    MakeSpheroid(m_Planet, date, m_Margin, planet);  // is known of every planet that has moons
    return m_Lines.GetLine(date, viewer, line);
  }

  // At a date at which the line is known.
  bool IsOnTheFarSide(double date, Viewer viewer) {
    MoonLine line = {};
    m_Lines.GetLine(date, viewer, line);
    return IsBehind(line);
  }

  void AddPassage(Viewer viewer, double middle, double reach, double from, double to,
                  std::vector<MoonEvent>& events) {
    const auto clearance = [this, viewer](double date) { return ClearanceAt(date, viewer); };
    double closest = middle, deepest = clearance(middle);
    if (!(deepest < kFarOff)) return;
    if (deepest > kWellInside) {
      closest = astro_internal::FindMinimum(clearance, middle - reach, middle + reach, 1e-5 * reach);
      deepest = clearance(closest);
    }
    const double before = clearance(middle - reach), after = clearance(middle + reach);
    if (!(deepest < 0.0 && before > 0.0 && after > 0.0)) return;
    MoonEvent event;
    event.begin = astro_internal::FindZero(clearance, middle - reach, before, closest, deepest, kPrecision);
    event.end = astro_internal::FindZero(clearance, closest, deepest, middle + reach, after, kPrecision);
    if (event.end < from || event.begin > to) return;
    event.moon = m_Moon;
    const bool behind = IsOnTheFarSide(closest, viewer);
    if (viewer == Viewer::kEarth) {
      event.kind = behind ? MoonPhenomenon::kOccultation : MoonPhenomenon::kTransit;
    } else {
      event.kind = behind ? MoonPhenomenon::kEclipse : MoonPhenomenon::kShadowTransit;
    }
    if (behind) {
      const Viewer other = viewer == Viewer::kEarth ? Viewer::kSun : Viewer::kEarth;
      event.beginIsHidden = IsHiddenFrom(other, event.begin);
      event.endIsHidden = IsHiddenFrom(other, event.end);
    }
    events.push_back(event);
  }

  // Of a moon that the planet hides from one of Earth and Sun. Their directions from it are never a right
  // angle apart (from Mars 47 degrees at most): to the other the moon is behind the planet or beside it.
  bool IsHiddenFrom(Viewer viewer, double date) { return ClearanceAt(date, viewer) < 0.0; }

  SSO_ID m_Planet, m_Moon;
  double m_Margin;  // au
  MoonLines m_Lines;
};

// Only what is known of both; a line from the Sun or from the observer.
bool SeenLine(const ObservedBody& planet, const ObservedBody& moon, Viewer viewer, MoonLine& line) {
  if (!(planet.distance > 0.0 && moon.distance > 0.0)) return false;
  for (int i = 0; i < 3; ++i) {
    const bool fromEarth = viewer == Viewer::kEarth;
    line.planet[i] = fromEarth ? planet.astrometric[i] * planet.distance : planet.fromSun[i];
    line.moon[i] = fromEarth ? moon.astrometric[i] * moon.distance : moon.fromSun[i];
    line.other[i] = fromEarth ? -planet.fromSun[i] : -planet.astrometric[i];
  }
  return true;
}

}  // namespace

std::vector<MoonEvent> FindMoonEvents(int planet, double fromTT, double toTT, MoonContact contact) {
  std::vector<MoonEvent> events;
  if (planet <= kEarthNumber || !(fromTT <= toTT)) return events;
  const double from = std::max(fromTT, kFirstPlanetDate), to = std::min(toTT, kLastPlanetDate);
  for (const int number : GetMoonsOfPlanet(planet)) {
    Passages passages(SSO_ID(kPlanetKind, planet), SSO_ID(kMoonKind, number), contact);
    for (const Viewer viewer : {Viewer::kEarth, Viewer::kSun}) passages.Find(viewer, from, to, events);
  }
  std::sort(events.begin(), events.end(),
            [](const MoonEvent& a, const MoonEvent& b) { return a.begin < b.begin; });
  return events;
}

MoonSituation FindMoonSituation(const SSO_ID& planet, const ObservedBody& planetSeen,
                                const ObservedBody& moonSeen, double julianDateTT) {
  MoonSituation situation;
  MoonLine sight, light;
  Spheroid body;
  if (!MakeSpheroid(planet, julianDateTT - planetSeen.lightTime, 0.0, body)) return situation;
  if (!SeenLine(planetSeen, moonSeen, Viewer::kEarth, sight)) return situation;
  SeenLine(planetSeen, moonSeen, Viewer::kSun, light);
  const bool isOnDisc = Clearance(sight, body) < 0.0, isInLine = Clearance(light, body) < 0.0;
  situation.isInTransit = isOnDisc && !IsBehind(sight);
  situation.isOcculted = isOnDisc && IsBehind(sight);
  situation.castsShadow = isInLine && !IsBehind(light);
  situation.isEclipsed = isInLine && IsBehind(light);
  return situation;
}

}  // namespace astro
