// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Bodies in words, in the current language.
#pragma once

#include <string>

#include "scene/frame/sky_frame.h"

namespace skyview {

// Lines for the report, UTF-8, each ending in "\n": the Sun, the Moon and the planets that are drawn, with
// magnitude, size and phase; eclipses; the satellites that are drawn; how many bodies are. "" for observers
// elsewhere than on the Earth.
std::string DescribeBodies(const scene::SkyFrame& frame);

}  // namespace skyview
