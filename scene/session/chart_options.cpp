// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/session/chart_options.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <iterator>
#include <utility>

#include "astro/constants.h"
#include "astro/sky_brightness.h"
#include "scene/visibility/setting_values.h"
#include "utils/messages.h"

namespace scene {
namespace {

constexpr double kTelrad[] = {4.0, 2.0, 0.5};  // degrees

// False where there is one already.
template <class Value>
bool PutFirst(std::optional<Value> value, std::optional<Value>& place) {
  if (place || !value) return false;
  place = std::move(value);
  return true;
}

template <class Value>
bool Append(std::optional<Value> value, std::vector<Value>& list) {
  if (value) list.push_back(*value);
  return value.has_value();
}

struct LineReader {
  std::string_view word;
  bool (*read)(std::string_view value, ChartOptions& chart);
};
constexpr LineReader kLines[] = {
    {"style",
     [](std::string_view text, ChartOptions& chart) { return PutFirst(ParseChartStyle(text), chart.style); }},
    {"landscape", [](std::string_view text,
                     ChartOptions& chart) { return PutFirst(ParseLandscapeChoice(text), chart.landscape); }},
    {"legend",
     [](std::string_view text, ChartOptions& chart) { return PutFirst(ParseSwitch(text), chart.legend); }},
    {"eyepiece",
     [](std::string_view text, ChartOptions& chart) { return Append(ParseEyepiece(text), chart.eyepieces); }},
    {"telrad", [](std::string_view text,
                  ChartOptions& chart) { return text == "on" && !std::exchange(chart.telrad, true); }},
    {"sensor",
     [](std::string_view text, ChartOptions& chart) { return Append(ParseSensor(text), chart.sensors); }},
    {"page",
     [](std::string_view text, ChartOptions& chart) { return PutFirst(ParsePage(text), chart.page); }},
    {"bortle",
     [](std::string_view text, ChartOptions& chart) { return PutFirst(ParseBortle(text), chart.bortle); }},
    {"limit-magnitude", [](std::string_view text, ChartOptions& chart) {
       return PutFirst(ParseLimitMagnitude(text), chart.limitMagnitude);
     }}};

Finder MakeCircle(double degrees) {
  return {degrees * astro::kRadiansPerDegree, 0.0, 0.0, 0.0, FormatText("%.4g\u00b0", degrees)};
}

Finder MakeFrame(const Sensor& sensor) {
  const auto across = [&sensor](double side) {
    return 2.0 * std::atan(0.5 * side / sensor.focalLength) / astro::kRadiansPerDegree;
  };
  return {0.0, sensor.width / sensor.focalLength, sensor.height / sensor.focalLength,
          sensor.angle * astro::kRadiansPerDegree,
          FormatText("%.4g\u00b0 \u00d7 %.4g\u00b0", across(sensor.width), across(sensor.height))};
}

}  // namespace

double ChartOptions::GetDarkness() const {
  if (bortle) return astro::GetDarknessOfBortle(*bortle);
  return limitMagnitude ? astro::GetDarknessOfLimit(*limitMagnitude) : astro::kDarkSky;
}

std::vector<Finder> ChartOptions::MakeFinders() const {
  std::vector<Finder> finders;
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
  for (const double degrees : chart.eyepieces) add("eyepiece", FormatExact(degrees));
  if (chart.telrad) add("telrad", "on");
  for (const Sensor& sensor : chart.sensors) add("sensor", FormatSensor(sensor));
  if (chart.page) add("page", FormatPage(*chart.page));
  if (chart.bortle) add("bortle", std::to_string(*chart.bortle));
  if (chart.limitMagnitude) add("limit-magnitude", FormatExact(*chart.limitMagnitude));
  return text;
}

bool ReadChartLine(std::string_view word, std::string_view value, ChartOptions& chart) {
  for (const LineReader& reader : kLines) {
    if (word == reader.word) return reader.read(value, chart);
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

}  // namespace scene
