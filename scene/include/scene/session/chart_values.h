// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The values of the options of a chart, read from their text and written as it. Readers answer nothing for a
// text that is not wholly of the accepted form.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "scene/api.h"
#include "scene/session/picture_size.h"
#include "scene/visibility/chart_style.h"

namespace scene {

SCENE_API std::optional<ChartStyle> ParseChartStyle(std::string_view text);  // "print"
// The word that ParseChartStyle reads.
SCENE_API const char* FormatChartStyle(ChartStyle style);

// A camera's sensor: its sides and the focal length before it, millimetres, and where its upper edge is,
// degrees from north over east.
struct Sensor {
  double width = 0.0, height = 0.0;  // above 0, at most 1000
  double focalLength = 0.0;          // 1 to 100000
  double angle = 0.0;                // -360 to 360
  bool operator==(const Sensor&) const = default;
};
SCENE_API std::optional<Sensor> ParseSensor(std::string_view text);  // "23.5x15.6@800", "23.5x15.6@800@30"
SCENE_API std::string FormatSensor(const Sensor& sensor);

// A sheet of paper.
struct SCENE_API Page {
  std::string name;  // "A4"
  bool landscape = false;
  double width = 0.0, height = 0.0;  // points of 1/72 inch, as the sheet lies
  bool operator==(const Page&) const = default;

  static constexpr double kMargin = 10.0 / 25.4 * 72.0;  // points, on each side
  // What the margins leave, 150 pixels to the inch.
  PictureSize GetSize() const;
};
SCENE_API std::optional<Page> ParsePage(std::string_view text);  // "A4", "A4,landscape", "letter,portrait"
SCENE_API std::string FormatPage(const Page& page);

SCENE_API std::optional<double> ParseEyepiece(std::string_view text);        // degrees, 0.001 to 120
SCENE_API std::optional<int> ParseBortle(std::string_view text);             // 1 to 9
SCENE_API std::optional<double> ParseLimitMagnitude(std::string_view text);  // 0 to 6.5
// An identifier of the list of landscapes, or kNoLandscape for "none".
inline constexpr int kNoLandscape = -2;
SCENE_API std::optional<int> ParseLandscapeChoice(std::string_view text);
SCENE_API std::optional<bool> ParseSwitch(std::string_view text);  // "on", "off"

}  // namespace scene
