// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The values of skyview's options, read from their text. Each reader answers nothing for a text that is not
// wholly of the accepted form, and has no other effect. Numbers are written with a point, whatever the
// locale.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "scene/session/picture_size.h"
#include "scene/visibility/zoom_range.h"

namespace skyview {

using scene::ParseSize;
using scene::PictureSize;

// A view in a settings file: "FILE" or "FILE:ID".
struct ViewFile {
  std::string path;
  int id = 1;  // 1 to 2147483647
};

// A place on the Earth, degrees: latitude north positive, longitude east positive.
struct Place {
  double latitude = 0.0;   // -90 to 90
  double longitude = 0.0;  // -180 to 180
  double height = 0.0;     // metres above the sea
  std::string name;        // "": none, UTF-8
};

// A moment that the clock tells.
enum class ClockTime { kNow, kToday, kTonight };

// An object to look at, by its name.
struct Aim {
  std::string name;
  std::optional<double> zoom;  // kMinZoom to kMaxZoom
};

// A direction in the horizon frame, degrees.
struct Look {
  double azimuth = 0.0;   // from north over east, 0 to 360
  double altitude = 0.0;  // -90 to 90
};

// A place in the picture, pixels from its upper left corner.
struct Pixel {
  double x = 0.0;  // to the right, 0 to 16384
  double y = 0.0;  // down, 0 to 16384
};

// A moment as written: Julian day number and fraction of the written date and time.
struct WrittenTime {
  int day = 0;
  double fraction = 0.0;            // [-0.5, 0.5)
  std::optional<double> utcOffset;  // local minus Universal Time in days, when the text names one ("Z" is 0)
};

// "FILE:ID" where ID is a positive number; otherwise the whole text is the file and the id 1, so that a path
// may hold colons.
std::optional<ViewFile> ParseViewFile(std::string_view text);
std::optional<Place> ParsePlace(std::string_view text);  // "52.52,13.405"
std::optional<Look> ParseLook(std::string_view text);    // "180,30"
// "Jupiter", "M31@8": the zoom stands behind the last "@". Nothing for a text that a direction was meant by:
// of nothing but signs, points, commas and digits, and more than digits, which can be a satellite's name.
std::optional<Aim> ParseAim(std::string_view text);
std::optional<Pixel> ParsePixel(std::string_view text);   // "498,466"
std::optional<double> ParseZoom(std::string_view text);   // kMinZoom to kMaxZoom
std::optional<double> ParseField(std::string_view text);  // degrees, 0.0001 to 359

std::optional<ClockTime> ParseClockTime(std::string_view text);  // "now", "today", "tonight"
// "2026-01-15T22:00", with optional ":SS" or ":SS.fff" and "Z" or "+01:00" behind; a blank may stand for the
// T, and a date alone is its midnight. Years -9999 to 9999, astronomical; the date must exist in the
// calendar.
std::optional<WrittenTime> ParseTime(std::string_view text);

// Ends in ".svg", ".png" or ".pdf" and has a name before that.
bool IsPictureName(std::string_view text);

}  // namespace skyview
