// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/compass.h"

#include <cstdio>
#include <string>

#include "common_interfaces/string_table.h"
#include "scene/catalogs/texts.h"

namespace scene {
namespace {

// Identifiers of the hemisphere letters.
constexpr unsigned kWest = 965, kEast = 966, kNorth = 967, kSouth = 968;

std::string GetLetter(unsigned id, const char* english) {
  const char* text = CommonInterfaces::QX4Strings::GetString(id, true);
  return text && *text ? ToUtf8(std::string(1, *text)) : english;
}

}  // namespace

CompassLetters FetchCompassLetters() {
  const CommonInterfaces::QX4Strings strings;
  const std::string north = GetLetter(kNorth, "N"), east = GetLetter(kEast, "E"),
                    south = GetLetter(kSouth, "S"), west = GetLetter(kWest, "W");
  const std::string points[8] = {north, north + east, east, south + east,
                                 south, south + west, west, north + west};
  CompassLetters letters;
  for (int i = 0; i < 8; ++i) {
    std::snprintf(letters.text[i], sizeof letters.text[i], "%s", points[i].c_str());
  }
  return letters;
}

}  // namespace scene
