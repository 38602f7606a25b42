// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "host/horizon.h"

#include <cstdio>

#include "common_interfaces/string_table.h"

namespace skyview {
namespace {

// Identifiers of the hemisphere letters.
constexpr unsigned kWest = 965, kEast = 966, kNorth = 967, kSouth = 968;

const char* GetLetter(unsigned id, const char* english) {
  const char* letter = CommonInterfaces::QX4Strings::GetString(id, true);
  return letter && *letter ? letter : english;
}

CompassLetters MakeCompassLetters() {
  const CommonInterfaces::QX4Strings strings;
  const char* north = GetLetter(kNorth, "N");
  const char* east = GetLetter(kEast, "E");
  const char* south = GetLetter(kSouth, "S");
  const char* west = GetLetter(kWest, "W");
  const char* const parts[8][2] = {{north, ""}, {north, east}, {east, ""}, {south, east},
                                   {south, ""}, {south, west}, {west, ""}, {north, west}};
  CompassLetters letters;
  for (int i = 0; i < 8; ++i) {
    std::snprintf(letters.text[i], sizeof letters.text[i], "%.7s%.7s", parts[i][0], parts[i][1]);
  }
  return letters;
}

}  // namespace

void AppendAltitudeCircle(double altitude, std::vector<Direction>& points) {
  for (std::size_t i = 0; i < kAltitudeCirclePoints; ++i) {
    points.push_back(MakeDirection(static_cast<double>(i) * 2.0 * kPi / kAltitudeCirclePoints, altitude));
  }
}

const CompassLetters& GetCompassLetters() {
  static const CompassLetters letters = MakeCompassLetters();
  return letters;
}

}  // namespace skyview
