// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What a picture is made for, and what is drawn on it for who takes it outside.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "scene/api.h"
#include "scene/chart/finder.h"
#include "scene/session/chart_values.h"

namespace scene {

// How a chart is drawn, as its reader asks for it.
struct SCENE_API ChartOptions {
  std::optional<ChartStyle> style;
  std::optional<int> bortle;             // how dark the site is, in one of
  std::optional<double> limitMagnitude;  // two ways
  std::optional<int> landscape;          // identifier or kNoLandscape; without it the default one
  std::optional<bool> legend;
  std::vector<double> eyepieces;  // true fields, degrees
  bool telrad = false;
  std::vector<Sensor> sensors;
  std::optional<Page> page;

  ChartStyle GetStyle() const { return style.value_or(ChartStyle::kScreen); }
  bool HasLegend() const { return legend.value_or(GetStyle() == ChartStyle::kPrint); }
  // Of the site's night, as ShownKinds has it.
  double GetDarkness() const;
  // All that are asked for, the widest first.
  std::vector<Finder> MakeFinders() const;
};

// The options as lines of a session, each the name of the option without its dashes and its value: "style
// print". Reading answers false for a line that is none of them, has another value, or comes twice.
SCENE_API std::string FormatChart(const ChartOptions& chart);
SCENE_API bool ReadChartLine(std::string_view word, std::string_view value, ChartOptions& chart);

// What `chart` does not say is taken from the session.
SCENE_API void TakeOver(const ChartOptions& session, ChartOptions& chart);

}  // namespace scene
