// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Looks at every body ten times as often as the finders do, and more, and takes events from the values alone:
// what is seen so must be what is found. The years are 2010 to 2019; others are named by the environment,
// ASTRO_SCAN_YEARS=1900-2099.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "astro/planet_events.h"
#include "astro/planet_transits.h"
#include "astro/planets.h"
#include "astro/vectors.h"
#include "companions/astro/configurations/seen_bodies.h"
#include "tests/astro/helpers/event_list.h"
#include "tests/astro/helpers/scan_years.h"

namespace {

using astro::EventKind;
using astro::EventSearch;
using astro::EventSink;
using astro::SkyEvent;
using astro_test::Planet;

constexpr double kLook = 0.2;  // days
constexpr int kYearsAtOnce = 10;
constexpr double kAppulseLimit = 40.0 * astro::kRadiansPerDegree;

// Mercury to Neptune as OtherPlanets has them, then these.
constexpr std::size_t kPlanets = 7, kMoonAt = 7, kSunAt = 8, kBodies = 9;

struct Look {
  double direction[3], rightAscension, longitude, distance, phaseAngle;
};

// All looks of some years, and one more at both ends.
class Looks {
 public:
  Looks(double from, double to) : m_First(from - kLook) {
    astro_internal::SeenBodies bodies;
    for (const SSO_ID& planet : astro_test::OtherPlanets()) bodies.Add(planet, nullptr);
    bodies.Add(astro::kMoon, nullptr);
    bodies.Add(astro::kSun, nullptr);
    for (double date = m_First; date < to + 1.5 * kLook; date = m_First + kLook * double(m_Looks[0].size())) {
      for (std::size_t body = 0; body < kBodies; ++body) {
        const ObservedBody seen = bodies.See(body, date);
        Look look = {{seen.apparent[0], seen.apparent[1], seen.apparent[2]},
                     bodies.OnEquator(body, date).lon,
                     bodies.OnEcliptic(body, date).lon,
                     seen.distance,
                     seen.phaseAngle};
        m_Looks[body].push_back(look);
      }
    }
  }

  const std::vector<Look>& Of(std::size_t body) const { return m_Looks[body]; }
  double Date(double look) const { return m_First + kLook * look; }
  std::size_t Count() const { return m_Looks[0].size(); }

 private:
  double m_First;
  std::vector<Look> m_Looks[kBodies];
};

// Dates at which a value goes through zero, and not round a turn.
template <class Value>
std::vector<double> Crossings(const Looks& looks, Value value) {
  std::vector<double> dates;
  for (std::size_t i = 1; i < looks.Count(); ++i) {
    const double a = value(i - 1), b = value(i);
    if ((a < 0.0) != (b < 0.0) && std::fabs(a - b) < 1.0)
      dates.push_back(looks.Date(static_cast<double>(i) - b / (b - a)));
  }
  return dates;
}

// Dates at which a value is smaller than before and after: the vertex of the parabola.
template <class Value>
std::vector<double> Minima(const Looks& looks, Value value) {
  std::vector<double> dates;
  for (std::size_t i = 1; i + 1 < looks.Count(); ++i) {
    const double a = value(i - 1), b = value(i), c = value(i + 1);
    if (b < a && b <= c)
      dates.push_back(looks.Date(static_cast<double>(i) + 0.5 * (a - c) / (a - 2.0 * b + c)));
  }
  return dates;
}

double Wrap(double angle) { return std::remainder(angle, astro::kTurn); }

class Scan {
 public:
  Scan(int year)
      : m_Search(astro_test::Years(year, year + kYearsAtOnce - 1)),
        m_From(m_Search.from.julianDateTT),
        m_To(m_Search.to.julianDateTT),
        m_Looks(m_From, m_To) {}

  void All(int& count) {
    Conjunctions();
    Appulses();
    WithSun();
    Stations();
    Apsides();
    Brilliancy();
    count += m_Count;
  }

 private:
  // What a finder hands out of some kinds against the dates that the looks have.
  void Compare(std::vector<double> seen, const std::vector<SkyEvent>& events,
               const std::vector<EventKind>& kinds, const SSO_ID& body, const SSO_ID& other) {
    std::vector<double> found;
    for (const SkyEvent& event : events) {
      const bool isKind = std::find(kinds.begin(), kinds.end(), event.kind) != kinds.end();
      if (isKind && event.body == body && event.other == other) found.push_back(event.moment.julianDateTT);
    }
    std::erase_if(seen, [this](double date) { return date < m_From || date >= m_To; });
    ASSERT_EQ(found.size(), seen.size())
        << static_cast<int>(kinds[0]) << " " << body.number << " " << other.number << " from " << m_From;
    for (std::size_t i = 0; i < found.size(); ++i) {
      ASSERT_NEAR(found[i], seen[i], kLook)
          << static_cast<int>(kinds[0]) << " " << body.number << " " << other.number;
    }
    m_Count += static_cast<int>(found.size());
  }

  void Conjunctions() {
    const auto targets = astro_test::PlanetTargets(true);
    const auto events = astro_test::Collect(m_Search, [&](const EventSearch& search, const EventSink& sink) {
      return astro::FindConjunctions(search, targets, sink);
    });
    for (std::size_t a = 0; a < kPlanets; ++a) {
      for (std::size_t b = a + 1; b <= kMoonAt; ++b) {
        const auto apart = [&](std::size_t i) {
          return Wrap(m_Looks.Of(a)[i].rightAscension - m_Looks.Of(b)[i].rightAscension);
        };
        Compare(Crossings(m_Looks, apart), events, {EventKind::kConjunction}, targets[a].id, targets[b].id);
      }
    }
  }

  double Separation(std::size_t a, std::size_t b, std::size_t i) const {
    return VectorsAngle(m_Looks.Of(a)[i].direction, m_Looks.Of(b)[i].direction);
  }

  void Appulses() {
    const auto targets = astro_test::PlanetTargets(false);
    const auto events = astro_test::Collect(m_Search, [&](const EventSearch& search, const EventSink& sink) {
      return astro::FindAppulses(search, targets, kAppulseLimit, sink);
    });
    for (std::size_t a = 0; a < kPlanets; ++a) {
      for (std::size_t b = a + 1; b < kPlanets; ++b) {
        // Beyond the limit nothing is smallest.
        const auto apart = [&](std::size_t i) { return std::fmin(Separation(a, b, i), kAppulseLimit); };
        Compare(Minima(m_Looks, apart), events, {EventKind::kAppulse}, targets[a].id, targets[b].id);
      }
    }
  }

  void WithSun() {
    for (std::size_t a = 0; a < kPlanets; ++a) {
      const SSO_ID planet = astro_test::OtherPlanets()[a];
      const auto longitude = [&](std::size_t i) {
        return Wrap(m_Looks.Of(a)[i].longitude - m_Looks.Of(kSunAt)[i].longitude);
      };
      const auto opposite = [&](std::size_t i) { return Wrap(longitude(i) - astro::kPi); };
      const auto away = [&](std::size_t i) { return -Separation(a, kSunAt, i); };
      auto events = astro_test::Collect(m_Search, [&](const EventSearch& search, const EventSink& sink) {
        return astro::FindSunConfigurations(search, planet, sink);
      });
      Compare(Crossings(m_Looks, longitude), events,
              {EventKind::kInferiorConjunction, EventKind::kSuperiorConjunction}, planet, astro::kSun);
      Compare(Crossings(m_Looks, opposite), events, {EventKind::kOpposition}, planet, astro::kSun);
      if (a >= 2) continue;
      events = astro_test::Collect(m_Search, [&](const EventSearch& search, const EventSink& sink) {
        return astro::FindGreatestElongations(search, planet, sink);
      });
      Compare(Minima(m_Looks, away), events,
              {EventKind::kGreatestElongationEast, EventKind::kGreatestElongationWest}, planet, astro::kSun);
    }
  }

  void Stations() {
    for (std::size_t a = 0; a < kPlanets; ++a) {
      const SSO_ID planet = astro_test::OtherPlanets()[a];
      std::vector<double> way = {m_Looks.Of(a)[0].rightAscension};
      for (std::size_t i = 1; i < m_Looks.Count(); ++i) {
        way.push_back(way.back() + Wrap(m_Looks.Of(a)[i].rightAscension - way.back()));
      }
      const auto events =
          astro_test::Collect(m_Search, [&](const EventSearch& search, const EventSink& sink) {
            return astro::FindStations(search, planet, sink);
          });
      const SSO_ID none;
      Compare(Minima(m_Looks, [&](std::size_t i) { return way[i]; }), events, {EventKind::kStationDirect},
              planet, none);
      Compare(Minima(m_Looks, [&](std::size_t i) { return -way[i]; }), events,
              {EventKind::kStationRetrograde}, planet, none);
    }
  }

  void Apsides() {
    for (int number = 1; number <= 8; ++number) {
      std::vector<double> distances;
      for (std::size_t i = 0; i < m_Looks.Count(); ++i) {
        double position[3] = {};
        EXPECT_TRUE(
            ComputePlanetState(Planet(number), m_Looks.Date(static_cast<double>(i)), position, nullptr));
        distances.push_back(Vmod(position, 3));
      }
      const auto events =
          astro_test::Collect(m_Search, [&](const EventSearch& search, const EventSink& sink) {
            return astro::FindPlanetApsides(search, Planet(number), sink);
          });
      Compare(Minima(m_Looks, [&](std::size_t i) { return distances[i]; }), events, {EventKind::kPerihelion},
              Planet(number), astro::kSun);
      Compare(Minima(m_Looks, [&](std::size_t i) { return -distances[i]; }), events, {EventKind::kAphelion},
              Planet(number), astro::kSun);
    }
  }

  void Brilliancy() {
    const auto light = [&](std::size_t i) {
      const Look& venus = m_Looks.Of(1)[i];
      return -(1.0 + std::cos(venus.phaseAngle)) / (venus.distance * venus.distance);
    };
    const auto events = astro_test::Collect(m_Search, astro::FindGreatestBrilliancies);
    Compare(Minima(m_Looks, light), events, {EventKind::kGreatestBrilliancy}, Planet(2), SSO_ID());
  }

  EventSearch m_Search;
  double m_From, m_To;
  Looks m_Looks;
  int m_Count = 0;
};

}  // namespace

TEST(PlanetEventsScan, NothingIsMissedNorInvented) {
  const auto [first, last] = astro_test::GetScanYears({2010, 2019});
  int count = 0;
  for (int year = first; year <= last; year += kYearsAtOnce) Scan(year).All(count);
  std::printf("[ compared ] %d events of %d to %d\n", count, first, last);
  EXPECT_GT(count, 150 * (last - first + 1));
}

// Every half an hour while Mercury or Venus is within a degree of the Sun: what is before the Sun then
// belongs to a transit.
TEST(PlanetEventsScan, NoTransitIsMissedNorInvented) {
  constexpr double kHalfAnHour = 1.0 / 48.0;
  const auto [first, last] = astro_test::GetScanYears({2003, 2012});
  int seen = 0;
  const EventSearch search = astro_test::Years(first, last);
  for (const int number : {1, 2}) {
    const auto events = astro_test::Collect(search, [number](const EventSearch& span, const EventSink& sink) {
      return astro::FindPlanetTransits(span, Planet(number), sink);
    });
    astro_internal::SeenBodies bodies;
    bodies.Add(Planet(number), nullptr);
    bodies.Add(astro::kSun, nullptr);
    double step = kHalfAnHour;
    for (double date = search.from.julianDateTT; date < search.to.julianDateTT; date += step) {
      const ObservedBody planet = bodies.See(0, date), sun = bodies.See(1, date);
      const double apart = VectorsAngle(planet.apparent, sun.apparent);
      step = apart < astro::kRadiansPerDegree ? kHalfAnHour : 0.25;  // it comes nearer by 0.6 degree at most
      const double limbs = 959.63 * astro::kRadiansPerArcsecond / sun.distance + planet.angularRadius;
      const bool isBefore = planet.distance < sun.distance && apart < limbs;
      const bool isListed = std::any_of(events.begin(), events.end(), [date](const SkyEvent& event) {
        const double since = date - event.moment.julianDateTT;
        return since > -event.sinceBegin && since < event.untilEnd;
      });
      EXPECT_EQ(isBefore, isListed) << number << " " << date;
      seen += isBefore;
    }
  }
  std::printf("[ compared ] %d looks at transits of %d to %d\n", seen, first, last);
  EXPECT_GT(seen, 30);
}
