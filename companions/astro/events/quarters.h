// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>

#include "companions/astro/events/event_grid.h"

namespace astro_internal {

// Calls found(date, 0 to 3) when an angle that grows reaches a multiple of 90 degrees. In a step it may grow
// by 45.
template <class Angle, class Found>
void FindQuarters(Angle angle, double from, double to, double step, Found found) {
  const auto fourfold = [&angle](double date) { return Wrap(4.0 * angle(date)); };
  FindZeros(fourfold, from, to, step, [&](double date, bool) {
    const int quarter = static_cast<int>(std::lround(angle(date) / (0.5 * astro::kPi)));
    found(date, (quarter + 4) % 4);
  });
}

}  // namespace astro_internal
