// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>
#include <vector>

#include "astro/constants.h"
#include "astro/planet_events.h"
#include "astro/vectors.h"
#include "companions/astro/configurations/date_search.h"
#include "companions/astro/configurations/date_span.h"
#include "companions/astro/configurations/seen_bodies.h"

namespace astro {

namespace {

using namespace astro_internal;

// Days. The Moon, the fastest, goes 30 degrees meanwhile; Mercury, whose loops are the shortest, needs 20 for
// the part of one on which it goes back.
constexpr double kStep = 2.0;
constexpr double kFarthestAppulse = 60.0 * kRadiansPerDegree;

// Calls visit(a, b) for every pair of which at least one moves.
template <class Visit>
void ForEachPair(std::span<const SkyTarget> targets, Visit visit) {
  for (std::size_t a = 0; a < targets.size(); ++a) {
    for (std::size_t b = a + 1; b < targets.size(); ++b) {
      if (targets[a].star == nullptr || targets[b].star == nullptr) visit(a, b);
    }
  }
}

// Both finders: what is zero for a pair is made of values of the single bodies, which are computed once for
// all pairs.
template <class FindPairs>
bool SearchTargets(const EventSearch& search, std::span<const SkyTarget> targets, FindPairs findPairs) {
  SeenBodies bodies;
  const DateSpan span = SpanOf(search, kSun);
  bool isWhole = true;
  for (const SkyTarget& target : targets) {
    const bool known = bodies.Add(target.id, target.star);
    isWhole = isWhole && known && SpanOf(search, target.id).isWhole;
  }
  SearchPieces(span.from, span.to, [&](double from, double to) { findPairs(bodies, from, to); });
  return isWhole;
}

SkyEvent MakeEvent(EventKind kind, double date, const SkyTarget& body, const SkyTarget& other) {
  SkyEvent event;
  event.kind = kind;
  event.moment = astro::MakeMomentTT(date);
  event.body = body.id;
  event.other = other.id;
  return event;
}

// What each target has at each date of the grid.
template <class Look>
auto Table(const DateGrid& grid, std::size_t targets, Look look) {
  std::vector<std::vector<decltype(look(std::size_t{}, 0.0))>> table(targets);
  for (int i = 0; i < grid.count; ++i) {
    for (std::size_t body = 0; body < targets; ++body) table[body].push_back(look(body, grid.Date(i)));
  }
  return table;
}

// What is looked for, of the values of two targets.
template <class Value, class Function>
std::vector<double> Combine(const std::vector<Value>& a, const std::vector<Value>& b, Function function) {
  std::vector<double> values;
  for (std::size_t i = 0; i < a.size(); ++i) values.push_back(function(a[i], b[i]));
  return values;
}

double Difference(double a, double b) { return std::remainder(a - b, kTurn); }

}  // namespace

bool FindConjunctions(const EventSearch& search, std::span<const SkyTarget> targets, const EventSink& sink) {
  return SearchTargets(search, targets, [&](SeenBodies& bodies, double from, double to) {
    const DateGrid grid(from, to, kStep);
    const auto lonOf = [&bodies](std::size_t body, double date) { return bodies.OnEquator(body, date).lon; };
    const auto table = Table(grid, targets.size(), lonOf);
    ForEachPair(targets, [&](std::size_t a, std::size_t b) {
      const auto apart = [&](double date) { return Difference(lonOf(a, date), lonOf(b, date)); };
      FindDates(grid, Combine(table[a], table[b], Difference), apart, from, to, [&](double date, bool) {
        SkyEvent event = MakeEvent(EventKind::kConjunction, date, targets[a], targets[b]);
        event.value = bodies.OnEquator(a, date).lat - bodies.OnEquator(b, date).lat;
        event.more = bodies.See(a, date).elongation;
        sink(event);
      });
    });
  });
}

bool FindAppulses(const EventSearch& search, std::span<const SkyTarget> targets, double farthest,
                  const EventSink& sink) {
  const double limit = std::fmin(farthest, kFarthestAppulse);
  return SearchTargets(search, targets, [&](SeenBodies& bodies, double from, double to) {
    const DateGrid grid(from, to, kStep);
    const auto motionOf = [&bodies](std::size_t body, double date) { return bodies.MotionOf(body, date); };
    const auto table = Table(grid, targets.size(), motionOf);
    ForEachPair(targets, [&](std::size_t a, std::size_t b) {
      const auto rate = [&](double date) { return bodies.SeparationRateOf(a, b, date); };
      FindDates(grid, Combine(table[a], table[b], SeparationRate), rate, from, to,
                [&](double date, bool rises) {
                  const ObservedBody body = bodies.See(a, date), other = bodies.See(b, date);
                  const double apart = VectorsAngle(body.apparent, other.apparent);
                  if (!rises || !(apart <= limit)) return;
                  SkyEvent event = MakeEvent(EventKind::kAppulse, date, targets[a], targets[b]);
                  event.value = apart;
                  event.more = body.elongation;
                  sink(event);
                });
    });
  });
}

}  // namespace astro
