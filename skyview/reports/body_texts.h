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

// Lines for the report, UTF-8, each ending in "\n": the Sun, the Moon and the planets that are drawn, with magnitude,
// size and phase; eclipses; the satellites that are drawn; how many bodies are. "" for observers elsewhere than on the
// Earth.
std::string DescribeBodies(const scene::SkyFrame& frame);

}  // namespace skyview
