// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/lint/catalog_rules.h"
#include "astro/constants.h"

#include <algorithm>
#include <filesystem>
#include <iterator>

namespace skydata {
namespace {

using astro::kPi;
constexpr double kDegreesPerTurn = 360.0;
constexpr double kLargeSize = 0.5;  // radians: no catalogued object is 29 degrees across

constexpr ColumnRange kRanges[] = {
    {"RA", 0.0, 2.0 * kPi, kDegreesPerTurn},
    {"Dec", -kPi / 2.0, kPi / 2.0, 90.0},
    {"EndRA", 0.0, 2.0 * kPi, kDegreesPerTurn},
    {"EndDec", -kPi / 2.0, kPi / 2.0, 90.0},
    {"Latitude", -kPi / 2.0, kPi / 2.0, 90.0},
    {"Longitude", -kPi, 2.0 * kPi, kDegreesPerTurn},
    {"PairAngle", 0.0, 2.0 * kPi, kDegreesPerTurn},
    {"Separation", 0.0, kLargeSize, 1e4},
    {"Diameter", 0.0, 20000.0, 0.0},
    {"PositionAngle", 0.0, kPi, 180.0},
    {"VisMagnitude", -30.0, 40.0, 0.0},
    {"AbsMagnitude", -30.0, 60.0, 0.0},
    {"LargestDimension", 0.0, kLargeSize, 1e9},
    {"SmallestDimension", 0.0, kLargeSize, 1e9},
    {"a", 1e-3, 1e6, 0.0},
    {"e", 0.0, 100.0, 0.0},
    {"i", 0.0, kPi, 180.0},
    {"om", -2.0 * kPi, 2.0 * kPi, kDegreesPerTurn},
    {"w", -2.0 * kPi, 2.0 * kPi, kDegreesPerTurn},
};

}  // namespace

const ColumnRange* FindRange(const std::string& column) {
  const auto found = std::find_if(std::begin(kRanges), std::end(kRanges),
                                  [&column](const ColumnRange& known) { return column == known.name; });
  return found == std::end(kRanges) ? nullptr : found;
}

const CatalogRule* FindCatalogRule(const std::string& fileName) {
  std::string name = std::filesystem::path(fileName).stem().string();
  if (name.ends_with("_features")) name = "features";  // of any body
  static const CatalogRule kRules[] = {
      {"stars", {"Number", "RA", "Dec"}, "star"},
      {"deepsky", {"Type", "Number", "RA", "Dec"}, ""},
      {"ngc_ic", {"Type", "Number", "RA", "Dec"}, ""},
      {"nebula_outlines", {"RA", "Dec"}, nullptr},
      {"constellations", {"Label", "RA", "Dec"}, nullptr},
      {"constellation_bounds", {"Label", "OtherLabel", "RA", "Dec", "EndRA", "EndDec"}, nullptr},
      {"constellation_lines", {"Label", "Number", "RA", "Dec"}, nullptr},
      {"saturn_ring", {"Radius", "Red", "Green", "Blue", "Opacity"}, nullptr},
      {"names", {"Object", "Language", "ProperName"}, nullptr},
      {"asterisms", {"Key", "ProperName"}, nullptr},
      {"asterism_lines", {"Key", "Number", "RA", "Dec"}, nullptr},
      {"cities", {"ProperName", "Country", "Latitude", "Longitude", "Zone"}, nullptr},
      {"features", {"ProperName", "Type", "Latitude", "Longitude"}, nullptr},
      {"double_stars", {"Pair", "Separation", "PairAngle"}, nullptr},
      {"asteroids", {"Number", "JulianDate", "a", "e", "i", "om", "w", "M0", "n"}, "astr"},
      {"comets", {"Number", "JulianDate", "a", "e", "i", "om", "w", "M0", "n"}, "comt"}};
  const auto found = std::find_if(std::begin(kRules), std::end(kRules),
                                  [&name](const CatalogRule& rule) { return name == rule.name; });
  return found == std::end(kRules) ? nullptr : found;
}

}  // namespace skydata
