// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Discs in words.
#pragma once

#include <string>

#include "scene/api.h"
#include "scene/view/earth_observer.h"

namespace scene {

// An angle across a disc, radians: "23.1 arcsec", "31.2 arcmin", in the code page of the language.
SCENE_API std::string FormatSize(double angle);

// How much of a disc is lit, percent, 0 to 100, by the angle Sun - body - observer, radians.
SCENE_API int GetLitPercent(double phaseAngle);

// The name of the Moon's phase follows from what is lit: new up to 1 percent, a crescent below 45, a quarter
// to 55, gibbous below 99, full from there on; whether it waxes, from its elongation: east of the Sun it
// does. Counted from new as its eighths are: 0 new, 1 waxing crescent, 2 first quarter, 4 full, 7 waning
// crescent.
SCENE_API int GetMoonPhase(int litPercent, bool waxing);
// The name of one of these eighths, "waxing crescent", in the code page of the language.
SCENE_API std::string GetMoonPhaseName(int phase);

// Whether the model of the planets does not hold at the moment (astro/planets.h): they and what depends on
// them are then missing or wrong.
SCENE_API bool IsOutsideModel(const SkyMoment& moment);

}  // namespace scene
