// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/object_names.h"

#include "common_interfaces/planets_and_moons.h"
#include "common_interfaces/text_formats.h"
#include "scene/catalogs/texts.h"
#include "utils/text.h"

namespace scene {
namespace {

constexpr int kPluto = 9;  // number of its identifier

// Names in the string table, in the range of numbers that belongs to applications.
constexpr unsigned kFirstPlanetText = 900101, kSunText = 900110, kMoonText = 900111;

std::string GetText(unsigned id) { return CommonInterfaces::FormatLocalizedText(id, {}); }

std::string GetPlanetName(int number) {
  if (number == kSunNumber) return GetText(kSunText);
  if (number < 1 || number > kPluto) return "";
  return GetText(kFirstPlanetText + static_cast<unsigned>(number - 1));
}

// A Greek letter alone would not say which star, and the code pages of the languages lack it: a star without
// a proper name goes by its number in the Bright Star Catalogue.
std::string GetStarName(int number, const SkyCatalogs& catalogs) {
  const StarCatalog& stars = catalogs.stars;
  for (int i = 0; i < stars.GetCount(); ++i) {
    if (stars.GetNumber(i) != number) continue;
    return stars.HasProperName(i) ? ToCodePage(stars.GetLabel(i)) : "HR " + std::to_string(number);
  }
  return FindTileStar(catalogs, number) ? GetTileStarName(number) : "";
}

}  // namespace

std::string GetPlanetOrMoonName(const SSO_ID& object) {
  if (object.kind == FourCC("plnt")) return GetPlanetName(object.number);
  if (object.kind != FourCC("moon")) return "";
  if (object.number == kMoonNumber) return GetText(kMoonText);
  const CommonInterfaces::PlanetMoonDescription description;
  const char* const name = description.GetObjectName(object);
  return name ? ToCodePage(name) : "";
}

std::string GetTileStarName(int number) {
  const int hipparcos = GetHipparcosNumber(number);
  return hipparcos != 0 ? "HIP " + std::to_string(hipparcos) : "Star " + std::to_string(number);
}

std::string GetObjectName(const SSO_ID& object, const SkyCatalogs& catalogs) {
  if (const std::string name = GetPlanetOrMoonName(object); !name.empty()) return name;
  if (object.kind == FourCC("star")) return GetStarName(object.number, catalogs);
  for (const auto& entry : catalogs.deepsky) {
    if (entry.kind == object.kind && entry.number == object.number) return ToCodePage(entry.label);
  }
  return "";
}

}  // namespace scene
