// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/session/chart_values.h"

#include <cmath>
#include <utility>

#include "scene/visibility/setting_values.h"
#include "utils/numbers.h"

namespace scene {
namespace {

struct StyleName {
  ChartStyle style;
  const char* name;
};
constexpr StyleName kStyleNames[] = {{ChartStyle::kScreen, "screen"},
                                     {ChartStyle::kPrint, "print"},
                                     {ChartStyle::kNight, "night"},
                                     {ChartStyle::kPhoto, "photo"}};

// Millimetres, upright.
struct Paper {
  const char* name;
  double width, height;
};
constexpr Paper kPapers[] = {{"A5", 148.0, 210.0},     {"A4", 210.0, 297.0},     {"A3", 297.0, 420.0},
                             {"A2", 420.0, 594.0},     {"letter", 215.9, 279.4}, {"legal", 215.9, 355.6},
                             {"tabloid", 279.4, 431.8}};
constexpr double kPointsPerMillimetre = 72.0 / 25.4;

// Takes a number from `low` to `high` off the front.
template <class Number>
bool Take(std::string_view& text, Number low, Number high, Number& value) {
  return TakeNumber(text, value) && value >= low && value <= high;
}

bool TakeChar(std::string_view& text, char c) {
  if (text.empty() || text.front() != c) return false;
  text.remove_prefix(1);
  return true;
}

template <class Number>
std::optional<Number> ParseWhole(std::string_view text, Number low, Number high) {
  Number value = {};
  if (!Take(text, low, high, value) || !text.empty()) return std::nullopt;
  return value;
}

}  // namespace

std::optional<ChartStyle> ParseChartStyle(std::string_view text) {
  for (const StyleName& entry : kStyleNames) {
    if (entry.name == text) return entry.style;
  }
  return std::nullopt;
}

const char* FormatChartStyle(ChartStyle style) {
  for (const StyleName& entry : kStyleNames) {
    if (entry.style == style) return entry.name;
  }
  return "";
}

std::optional<Sensor> ParseSensor(std::string_view text) {
  constexpr double kLeastSide = 0.01, kMostSide = 1000.0, kLeastFocus = 1.0, kMostFocus = 100000.0;
  Sensor sensor;
  if (!Take(text, kLeastSide, kMostSide, sensor.width) || !TakeChar(text, 'x') ||
      !Take(text, kLeastSide, kMostSide, sensor.height) || !TakeChar(text, '@') ||
      !Take(text, kLeastFocus, kMostFocus, sensor.focalLength)) {
    return std::nullopt;
  }
  if (TakeChar(text, '@') && !Take(text, -360.0, 360.0, sensor.angle)) return std::nullopt;
  if (!text.empty()) return std::nullopt;
  return sensor;
}

std::string FormatSensor(const Sensor& sensor) {
  return FormatExact(sensor.width) + "x" + FormatExact(sensor.height) + "@" +
         FormatExact(sensor.focalLength) + "@" + FormatExact(sensor.angle);
}

PictureSize Page::GetSize() const {
  constexpr double kPixelsPerPoint = 150.0 / 72.0;
  const auto pixels = [](double points) {
    return static_cast<int>(std::lround((points - 2.0 * kMargin) * kPixelsPerPoint));
  };
  return {pixels(width), pixels(height)};
}

std::optional<Page> ParsePage(std::string_view text) {
  const auto comma = text.find(',');
  const auto name = text.substr(0, comma);
  const auto way = comma == std::string_view::npos ? std::string_view("portrait") : text.substr(comma + 1);
  if (way != "portrait" && way != "landscape") return std::nullopt;
  for (const Paper& paper : kPapers) {
    if (paper.name != name) continue;
    Page page = {paper.name, way == "landscape", paper.width * kPointsPerMillimetre,
                 paper.height * kPointsPerMillimetre};
    if (page.landscape) std::swap(page.width, page.height);
    return page;
  }
  return std::nullopt;
}

std::string FormatPage(const Page& page) { return page.name + (page.landscape ? ",landscape" : ",portrait"); }

std::optional<double> ParseEyepiece(std::string_view text) { return ParseWhole(text, 0.001, 120.0); }
std::optional<int> ParseBortle(std::string_view text) { return ParseWhole(text, 1, 9); }
std::optional<double> ParseLimitMagnitude(std::string_view text) { return ParseWhole(text, 0.0, 6.5); }

std::optional<int> ParseLandscapeChoice(std::string_view text) {
  return text == "none" ? std::optional(kNoLandscape) : ParseWhole(text, 0, 65535);
}

std::optional<bool> ParseSwitch(std::string_view text) {
  if (text != "on" && text != "off") return std::nullopt;
  return text == "on";
}

}  // namespace scene
