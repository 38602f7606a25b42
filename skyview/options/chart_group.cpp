// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/options/chart_group.h"

#include <algorithm>
#include <cmath>

#include "astro/constants.h"
#include "astro/sky_brightness.h"
#include "scene/setting_values.h"
#include "skyview/options/stop.h"
#include "utils/messages.h"

namespace skyview {
namespace {

constexpr double kTelrad[] = {4.0, 2.0, 0.5};  // degrees

// False where there is one already.
template <class Value>
bool PutFirst(std::optional<Value> value, std::optional<Value>& place) {
  return !place && Put(std::move(value), place);
}

template <class Value>
bool Append(std::optional<Value> value, std::vector<Value>& list) {
  if (value) list.push_back(*value);
  return value.has_value();
}

constexpr OptionRow<ChartOptions> kRows[] = {
    {{"--style", "screen|print|night|photo",
      "the sky as it looks, black stars on white paper, red on black, or without lines and names"},
     Times::kOnce,
     [](const std::string& text, ChartOptions& chart) {
       return PutFirst(ParseChartStyle(text), chart.style);
     }},
    {{"--landscape", "ID|none",
      "what stands on the horizon, by its number in the list of landscapes, or plain ground"},
     Times::kOnce,
     [](const std::string& text, ChartOptions& chart) {
       return PutFirst(ParseLandscapeChoice(text), chart.landscape);
     }},
    {{"--legend", "on|off", "magnitudes, symbols, scale, north and east in a corner (default: on in print)"},
     Times::kOnce,
     [](const std::string& text, ChartOptions& chart) { return PutFirst(ParseSwitch(text), chart.legend); }},
    {{"--eyepiece", "DEGREES",
      "a circle of this true field, 0.001 to 120, in the middle; may be given again"},
     Times::kAgain,
     [](const std::string& text, ChartOptions& chart) {
       return Append(ParseEyepiece(text), chart.eyepieces);
     }},
    {{"--telrad", "", "circles of 0.5, 2 and 4 degrees in the middle"},
     Times::kOnce,
     [](const std::string&, ChartOptions& chart) { return !std::exchange(chart.telrad, true); }},
    {{"--sensor", "WIDTHxHEIGHT@FOCUS[@ANGLE]",
      "the field of a camera in the middle, all in mm; ANGLE of its upper edge, degrees from north over "
      "east; may be given again"},
     Times::kAgain,
     [](const std::string& text, ChartOptions& chart) { return Append(ParseSensor(text), chart.sensors); }},
    {{"--page", "A5|A4|A3|A2|letter|legal|tabloid[,landscape|,portrait]",
      "the size of the picture by a sheet of paper: a PDF of that size with margins"},
     Times::kOnce,
     [](const std::string& text, ChartOptions& chart) { return PutFirst(ParsePage(text), chart.page); }},
    {{"--bortle", "CLASS", "how dark the sky of the site is, 1 (no lamps) to 9 (the middle of a city)"},
     Times::kOnce,
     [](const std::string& text, ChartOptions& chart) { return PutFirst(ParseBortle(text), chart.bortle); }},
    {{"--limit-magnitude", "MAGNITUDE",
      "the same by the faintest stars that the naked eye sees high in the night, 0 to 6.5"},
     Times::kOnce,
     [](const std::string& text, ChartOptions& chart) {
       return PutFirst(ParseLimitMagnitude(text), chart.limitMagnitude);
     }}};

void Check(const ChartOptions& chart) {
  if (chart.bortle && chart.limitMagnitude)
    throw Stop{kBadOption, "--bortle: says how dark the sky is, wants no --limit-magnitude beside it"};
}

scene::Finder MakeCircle(double degrees) {
  return {degrees * astro::kRadiansPerDegree, 0.0, 0.0, 0.0, FormatText("%.4g\u00b0", degrees)};
}

scene::Finder MakeFrame(const Sensor& sensor) {
  const auto across = [&sensor](double side) {
    return 2.0 * std::atan(0.5 * side / sensor.focalLength) / astro::kRadiansPerDegree;
  };
  return {0.0, sensor.width / sensor.focalLength, sensor.height / sensor.focalLength,
          sensor.angle * astro::kRadiansPerDegree,
          FormatText("%.4g\u00b0 \u00d7 %.4g\u00b0", across(sensor.width), across(sensor.height))};
}

}  // namespace

const OptionGroup<ChartOptions> kChartGroup = {"Chart", kRows, Check};

double ChartOptions::GetDarkness() const {
  if (bortle) return astro::GetDarknessOfBortle(*bortle);
  return limitMagnitude ? astro::GetDarknessOfLimit(*limitMagnitude) : astro::kDarkSky;
}

std::vector<scene::Finder> ChartOptions::MakeFinders() const {
  std::vector<scene::Finder> finders;
  for (const Sensor& sensor : sensors) finders.push_back(MakeFrame(sensor));
  std::vector<double> circles = eyepieces;
  if (telrad) circles.insert(circles.end(), std::begin(kTelrad), std::end(kTelrad));
  std::sort(circles.begin(), circles.end(), std::greater<>());
  for (const double degrees : circles) finders.push_back(MakeCircle(degrees));
  return finders;
}

std::string FormatChart(const ChartOptions& chart) {
  std::string text;
  const auto add = [&text](const char* word, const std::string& value) {
    text += std::string(word) + " " + value + "\n";
  };
  if (chart.style) add("style", FormatChartStyle(*chart.style));
  if (chart.landscape)
    add("landscape", *chart.landscape == kNoLandscape ? "none" : std::to_string(*chart.landscape));
  if (chart.legend) add("legend", *chart.legend ? "on" : "off");
  for (const double degrees : chart.eyepieces) add("eyepiece", scene::FormatExact(degrees));
  if (chart.telrad) add("telrad", "on");
  for (const Sensor& sensor : chart.sensors) add("sensor", FormatSensor(sensor));
  if (chart.page) add("page", FormatPage(*chart.page));
  if (chart.bortle) add("bortle", std::to_string(*chart.bortle));
  if (chart.limitMagnitude) add("limit-magnitude", scene::FormatExact(*chart.limitMagnitude));
  return text;
}

bool ReadChartLine(std::string_view word, std::string_view value, ChartOptions& chart) {
  for (const auto& row : kRows) {
    if (word != std::string_view(row.text.name).substr(2)) continue;
    if (!*row.text.form && value != "on") return false;
    return row.read(std::string(value), chart);
  }
  return false;
}

void TakeOver(const ChartOptions& session, ChartOptions& chart) {
  if (!chart.style) chart.style = session.style;
  if (!chart.landscape) chart.landscape = session.landscape;
  if (!chart.legend) chart.legend = session.legend;
  if (!chart.page) chart.page = session.page;
  if (!chart.bortle && !chart.limitMagnitude) {
    chart.bortle = session.bortle;
    chart.limitMagnitude = session.limitMagnitude;
  }
  if (!chart.eyepieces.empty() || chart.telrad || !chart.sensors.empty()) return;
  chart.eyepieces = session.eyepieces;
  chart.telrad = session.telrad;
  chart.sensors = session.sensors;
}

}  // namespace skyview
