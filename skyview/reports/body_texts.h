// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Bodies in words, in the current language.
#pragma once

#include <string>

#include "scene/sky_frame.h"

namespace skyview {

// An angle across a disc, radians: "23.1 arcsec", "31.2 arcmin", in the code page of the language.
std::string FormatSize(double angle);

// How much of a disc is lit, percent, 0 to 100.
int GetLitPercent(double phaseAngle);

// The name of the Moon's phase follows from what is lit: new up to 1 percent, a crescent below 45, a quarter
// to 55, gibbous below 99, full from there on; whether it waxes, from its elongation: east of the Sun it
// does. Counted from new as its eighths are: 0 new, 1 waxing crescent, 2 first quarter, 4 full, 7 waning
// crescent.
int GetMoonPhase(int litPercent, bool waxing);

// Whether the model of the planets does not hold at the moment (astro/planets.h): they and what depends on
// them are then missing or wrong.
bool IsOutsideModel(const scene::SkyMoment& moment);

// Lines for the report, UTF-8, each ending in "\n": the Sun, the Moon and the planets that are drawn, with
// magnitude, size and phase; eclipses; the satellites that are drawn; how many bodies are. "" for observers
// elsewhere than on the Earth.
std::string DescribeBodies(const scene::SkyFrame& frame);

}  // namespace skyview
