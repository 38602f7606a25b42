// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What a picture is made for, and what is drawn on it for who takes it outside.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "scene/finder.h"
#include "skyview/options/chart_values.h"
#include "skyview/options/option_group.h"

namespace skyview {

struct ChartOptions {
  std::optional<scene::ChartStyle> style;
  std::optional<int> bortle;             // how dark the site is, in one of
  std::optional<double> limitMagnitude;  // two ways
  std::optional<int> landscape;          // identifier or kNoLandscape; without it the default one
  std::optional<bool> legend;
  std::vector<double> eyepieces;  // true fields, degrees
  bool telrad = false;
  std::vector<Sensor> sensors;
  std::optional<Page> page;

  scene::ChartStyle GetStyle() const { return style.value_or(scene::ChartStyle::kScreen); }
  bool HasLegend() const { return legend.value_or(GetStyle() == scene::ChartStyle::kPrint); }
  // Of the site's night, as scene::ShownKinds has it.
  double GetDarkness() const;
  // All that are asked for, the widest first.
  std::vector<scene::Finder> MakeFinders() const;
};

extern const OptionGroup<ChartOptions> kChartGroup;

// The options as lines of a session, each the name of the option without its dashes and its value: "style
// print". Reading answers false for a line that is none of them, has another value, or comes twice.
std::string FormatChart(const ChartOptions& chart);
bool ReadChartLine(std::string_view word, std::string_view value, ChartOptions& chart);

// What the command line does not say is taken from the session.
void TakeOver(const ChartOptions& session, ChartOptions& chart);

}  // namespace skyview
