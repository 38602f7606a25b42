// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/options/chart_group.h"

#include "skyview/options/stop.h"

namespace skyview {
namespace {

constexpr OptionRow<ChartOptions> kRows[] = {
    {{"--style", "screen|print|night|photo",
      "the sky as it looks, black stars on white paper, red on black, or without lines and names"},
     Times::kOnce,
     [](const std::string& text, ChartOptions& chart) { return scene::ReadChartLine("style", text, chart); }},
    {{"--landscape", "ID|none",
      "what stands on the horizon, by its number in the list of landscapes, or plain ground"},
     Times::kOnce,
     [](const std::string& text, ChartOptions& chart) {
       return scene::ReadChartLine("landscape", text, chart);
     }},
    {{"--legend", "on|off", "magnitudes, symbols, scale, north and east in a corner (default: on in print)"},
     Times::kOnce,
     [](const std::string& text, ChartOptions& chart) {
       return scene::ReadChartLine("legend", text, chart);
     }},
    {{"--eyepiece", "DEGREES",
      "a circle of this true field, 0.001 to 120, in the middle; may be given again"},
     Times::kAgain,
     [](const std::string& text, ChartOptions& chart) {
       return scene::ReadChartLine("eyepiece", text, chart);
     }},
    {{"--telrad", "", "circles of 0.5, 2 and 4 degrees in the middle"},
     Times::kOnce,
     [](const std::string&, ChartOptions& chart) { return scene::ReadChartLine("telrad", "on", chart); }},
    {{"--sensor", "WIDTHxHEIGHT@FOCUS[@ANGLE]",
      "the field of a camera in the middle, all in mm; ANGLE of its upper edge, degrees from north over "
      "east; may be given again"},
     Times::kAgain,
     [](const std::string& text, ChartOptions& chart) {
       return scene::ReadChartLine("sensor", text, chart);
     }},
    {{"--page", "A5|A4|A3|A2|letter|legal|tabloid[,landscape|,portrait]",
      "the size of the picture by a sheet of paper: a PDF of that size with margins"},
     Times::kOnce,
     [](const std::string& text, ChartOptions& chart) { return scene::ReadChartLine("page", text, chart); }},
    {{"--bortle", "CLASS", "how dark the sky of the site is, 1 (no lamps) to 9 (the middle of a city)"},
     Times::kOnce,
     [](const std::string& text, ChartOptions& chart) {
       return scene::ReadChartLine("bortle", text, chart);
     }},
    {{"--limit-magnitude", "MAGNITUDE",
      "the same by the faintest stars that the naked eye sees high in the night, 0 to 6.5"},
     Times::kOnce,
     [](const std::string& text, ChartOptions& chart) {
       return scene::ReadChartLine("limit-magnitude", text, chart);
     }}};

void Check(const ChartOptions& chart) {
  if (chart.bortle && chart.limitMagnitude)
    throw Stop{kBadOption, "--bortle: says how dark the sky is, wants no --limit-magnitude beside it"};
}

}  // namespace

const OptionGroup<ChartOptions> kChartGroup = {"Chart", kRows, Check};

}  // namespace skyview
