// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Shadows of the Earth on the Moon and of the Moon on the Earth. Vectors are on any common axes, in
// astronomical units. Nothing here keeps state or allocates; every thread may call.
#pragma once

#include "astro/api.h"
#include "astro/solar_system.h"

namespace astro {

// The shadow that a ball casts in the light of the Sun, at the foot of the perpendicular from the target's
// centre to the axis of the shadow.
struct Shadow {
  double axis[3];  // unit vector, away from the Sun
  double foot[3];  // from the target's centre, au
  double
      umbraRadius;  // au; negative behind the tip of the umbra, where the caster is seen as a ring of light
  double penumbraRadius;  // au
};

// `casterRadius` in au. `sun` and `target` are counted from the caster's centre; neither may be a vector of
// length 0.
ASTRO_API Shadow CastShadow(double casterRadius, const double sun[3], const double target[3]);

// For its shadow the Earth counts as larger by a hundredth, as its atmosphere makes it (Danjon 1951; Espenak
// & Meeus 2009, NASA/TP-2009-214173).
inline constexpr double kEarthShadowEnlargement = 1.01;

// What the Earth's shadow does to the Moon, seen from anywhere.
enum class LunarEclipse { kNone, kPenumbral, kPartial, kTotal };

// A lunar eclipse at one moment.
struct LunarEclipseState {
  LunarEclipse kind = LunarEclipse::kNone;
  // The part of the Moon's diameter inside the umbra (negative: how far it is away from it), and inside the
  // penumbra. Both 0 while the Moon stands on the side of the Sun.
  double umbralMagnitude = 0.0, penumbralMagnitude = 0.0;
  Shadow shadow = {};  // of the Earth, enlarged, at the Moon; while there is an eclipse
};

// Sun and Moon as seen from the Earth's centre: apparent directions times distances. Magnitudes agree with
// the tables of eclipses (Espenak's canon) to 0.004 in the umbra and 0.01 in the penumbra, contacts to a
// minute.
ASTRO_API LunarEclipseState FindLunarEclipse(const double sun[3], const double moon[3]);

// What the Moon does to the Sun at a place.
enum class SolarEclipse {
  kNone,
  kElsewhere,  // the penumbra meets the Earth, but the eclipse is not seen from the place
  kPartial,
  kAnnular,
  kTotal
};

// A solar eclipse at one moment, as a place sees it.
struct SolarEclipseState {
  SolarEclipse kind = SolarEclipse::kNone;
  // The part of the Sun's diameter that the Moon covers; while the one disc lies within the other the ratio
  // of their diameters, above 1 while the eclipse is total.
  double magnitude = 0.0;
  Shadow shadow = {};        // of the Moon, at the Earth; while there is an eclipse
  double obscuration = 0.0;  // the part of the area of the Sun's disc that the Moon covers, 0 to 1
};

// `sun` and `moon` as seen from the Earth's centre, as above; `sunSeen` and `moonSeen` as the observer sees
// them, who may stand below the horizon of either. The edge of the Moon is a circle of its mean radius:
// magnitudes are good to 0.005.
ASTRO_API SolarEclipseState FindSolarEclipse(const double sun[3], const double moon[3],
                                             const ObservedBody& sunSeen, const ObservedBody& moonSeen);

}  // namespace astro
