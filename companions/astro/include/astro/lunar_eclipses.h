// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Lunar eclipses, the same for all places that have the Moon above the horizon. The shadow of the Earth is
// that of eclipse.h: enlarged by a hundredth (Danjon), as in the canon of Espenak & Meeus 2009. Almanacs that
// enlarge the cones by a fiftieth instead (Chauvenet) have umbral magnitudes that are larger by 0.005 and
// penumbral ones by 0.026, so that some penumbral eclipses are theirs alone. Nothing here keeps state; every
// thread may call.
#pragma once

#include <optional>

#include "astro/api.h"
#include "astro/eclipse.h"
#include "astro/sky_events.h"

namespace astro {

// A lunar eclipse from its first contact to its last.
struct GlobalLunarEclipse {
  SkyMoment greatest;  // the Moon's centre comes closest to the axis of the shadow
  LunarEclipse kind = LunarEclipse::kPenumbral;
  double umbralMagnitude = 0.0, penumbralMagnitude = 0.0;  // as in eclipse.h, then
  // Equatorial radii of the Earth from the axis to the Moon's centre then; negative: south of the axis.
  double gamma = 0.0;
  SkyMoment penumbraBegin, penumbraEnd;                 // P1, P4
  std::optional<SkyMoment> umbraBegin, umbraEnd;        // U1, U4: partial phase
  std::optional<SkyMoment> totalityBegin, totalityEnd;  // U2, U3
};

// kLunarEclipse.
ASTRO_API bool FindLunarEclipses(const EventSearch& search, const EventSink& sink);

// The eclipse at the full moon that is within 10 days of a moment; nothing when there is none, and outside
// the range of the theories.
ASTRO_API std::optional<GlobalLunarEclipse> ComputeLunarEclipse(const SkyMoment& about);

}  // namespace astro
