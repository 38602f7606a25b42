// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "scene/almanac/year_graph.h"
#include "scene/api.h"
#include "scene/display/display_list.h"
#include "scene/display/text_extents.h"

namespace scene {

// A night by name: the first of a month.
struct NightName {
  int night;
  std::string text;
};

// What stands at a chart of a year, UTF-8. Copied into the list.
struct YearChartTexts {
  std::string title, note;
  std::vector<NightName> months;
  std::vector<std::string> lines;  // in the order of the graph's lines; "" draws a line without a name
  std::vector<NightName> events;   // beside the chart, in the order of time
};

// Draws the nights from the top down, the hours of each from the left to the right, the twilights shaded,
// as a picture of its own: `list` begins anew with that size in pixels. Lines of risings are full, those of
// settings dashed; they are drawn where the Sun is down. The chart shows the hours around the longest
// night.
SCENE_API void DrawYearChart(const YearGraph& graph, const YearChartTexts& texts, const TextExtents& extents,
                             int width, int height, DisplayList& list);

}  // namespace scene
