// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/configurations/date_span.h"

#include <algorithm>
#include <cmath>

#include "astro/planets.h"

namespace astro_internal {

namespace {

// Days: finders look that far beyond a span, and the light takes its time.
constexpr double kMargin = 100.0;
// 1600 January 1 and 2200 January 5.
constexpr double kFirstPlutoDate = 2305447.5, kLastPlutoDate = 2524597.5;

}  // namespace

DateSpan SpanOf(const astro::EventSearch& search, const SSO_ID& body) {
  const bool isPluto = body == SSO_ID(astro::kPlanetKind, astro::kPlutoNumber);
  const double first = (isPluto ? kFirstPlutoDate : kFirstPlanetDate) + kMargin;
  const double last = (isPluto ? kLastPlutoDate : kLastPlanetDate) - kMargin;
  const double from = search.from.julianDateTT, to = search.to.julianDateTT;
  if (!(std::isfinite(from) && std::isfinite(to) && from < to)) return {0.0, 0.0, true};
  return {std::max(from, first), std::min(to, last), from >= first && to <= last};
}

}  // namespace astro_internal
