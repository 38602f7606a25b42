// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "companions/astro/events/ecliptic_places.h"
#include "companions/astro/events/event_grid.h"

namespace astro_internal {

// Calls found(date) when the Moon is `elongation` radians of longitude ahead of the Sun: 0 for new moons, pi
// for full ones.
template <class Found>
void FindSyzygies(EclipticPlaces& places, double elongation, double from, double to, Found found) {
  constexpr double kStep = 10.0;  // days, in which the Moon leaves the Sun behind by 144 degrees at most
  const auto beyond = [&](double date) { return Wrap(places.Elongation(date) - elongation); };
  FindZeros(beyond, from, to, kStep, [&](double date, bool) { found(date); });
}

}  // namespace astro_internal
