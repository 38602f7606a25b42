// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "astro/object_id.h"
#include "astro/sky_events.h"

namespace astro_internal {

// The part of a search in which nobody looks beyond the range of the series: Julian dates (TT), empty unless
// from < to. `isWhole`: that is all of it.
struct DateSpan {
  double from, to;
  bool isWhole;
};

// `body`: Pluto's range is a shorter one.
DateSpan SpanOf(const astro::EventSearch& search, const SSO_ID& body);

}  // namespace astro_internal
