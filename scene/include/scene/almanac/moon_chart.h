// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "scene/almanac/moon_paths.h"
#include "scene/api.h"
#include "scene/display/display_list.h"

namespace scene {

// What stands at a chart of moons, UTF-8. Copied into the list.
struct MoonChartTexts {
  std::string title, east, west, note;
  std::vector<std::string> moons;  // in the order of the paths
  std::vector<std::string> days;   // the day that begins after so many days; one that is not there has none
};

// Draws paths over the days from the top down, east to the left, the planet's disc as a band in the middle,
// as a picture of its own: `list` begins anew with that size in pixels. Where a moon is hidden its line is
// broken.
SCENE_API void DrawMoonChart(const std::vector<MoonPath>& paths, double days, const MoonChartTexts& texts,
                             int width, int height, DisplayList& list);

}  // namespace scene
