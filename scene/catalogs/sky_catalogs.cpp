// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/sky_catalogs.h"

#include <algorithm>
#include <limits>
#include <string_view>
#include <utility>

#include "common_interfaces/field_names.h"
#include "common_interfaces/zoom_dependence.h"
#include "scene/view/arcs.h"
#include "utils/debug.h"
#include "utils/path.h"
#include "utils/text.h"

namespace scene {
namespace {

constexpr double kFigureStep = 2.0 * kRadiansPerDegree;  // a great circle bends by less than a pixel over it
constexpr double kOutlineStep = 1.0 * kRadiansPerDegree;
constexpr int kMilkyWayLevels = 5;

const int kEnglishName = GetUniqueID("EnglishName");  // a column of this catalog alone

bool LoadTable(const char* name, CatalogTable& table, std::string& error) {
  const std::string path = ZentharPath::GetPath(name);
  if (path.empty()) {
    error = std::string(name) + ": not found in the data root";
    return false;
  }
  if (table.Load(path.c_str())) return true;
  error = table.GetError();
  return false;
}

// False when the current record lacks its position.
bool TakePosition(const CatalogTable& table, Direction& direction) {
  constexpr double kMissing = std::numeric_limits<double>::infinity();
  const double ra = FieldNumber(table, CommonInterfaces::FieldIds::RA, kMissing),
               dec = FieldNumber(table, CommonInterfaces::FieldIds::Dec, kMissing);
  if (!(ra + dec < kMissing)) return false;
  direction = MakeDirection(ra, dec);
  return true;
}

std::string DeepskyLabel(const CatalogTable& table) {
  const int messier = static_cast<int>(FieldNumber(table, CommonInterfaces::FieldIds::MessierNumber, 0.0));
  if (messier > 0) return "M" + std::to_string(messier);
  const char* ngc = FieldText(table, CommonInterfaces::FieldIds::NGC_ICnumber);
  return *ngc ? ngc : FieldText(table, CommonInterfaces::FieldIds::ProperName);
}

unsigned char CatalogBits(const CatalogTable& table) {
  const std::string_view designation = FieldText(table, CommonInterfaces::FieldIds::NGC_ICnumber);
  unsigned bits = 0;
  if (FieldNumber(table, CommonInterfaces::FieldIds::MessierNumber, 0.0) > 0.0) bits |= kInMessier;
  if (designation.starts_with("NGC")) bits |= kInNgc;
  if (designation.starts_with("IC")) bits |= kInIc;
  return bits == 0 ? static_cast<unsigned char>(kInNoCatalog) : static_cast<unsigned char>(bits);
}

void FillDeepsky(CatalogTable& table, std::vector<DeepskyObject>& objects) {
  for (int record = 0; record < table.GetCount(); ++record) {
    table.Select(record);
    DeepskyObject object;
    const double magnitude =
        FieldNumber(table, CommonInterfaces::FieldIds::VisMagnitude, std::numeric_limits<double>::infinity());
    if (!TakePosition(table, object.direction) || magnitude > 99.0) continue;
    object.code = static_cast<float>((magnitude + CommonInterfaces::kMagCodeOffset) *
                                     CommonInterfaces::kMagCodesPerMag);
    object.kind = GetFOURCC(FieldText(table, CommonInterfaces::FieldIds::Type));
    object.number = static_cast<int>(FieldNumber(table, CommonInterfaces::FieldIds::Number, -1.0));
    object.largest =
        static_cast<float>(FieldNumber(table, CommonInterfaces::FieldIds::LargestDimension, 0.0));
    object.smallest =
        static_cast<float>(FieldNumber(table, CommonInterfaces::FieldIds::SmallestDimension, 0.0));
    object.label = DeepskyLabel(table);
    object.catalogs = CatalogBits(table);
    object.record = record;
    object.designation = FieldText(table, CommonInterfaces::FieldIds::NGC_ICnumber);
    object.properName = FieldText(table, CommonInterfaces::FieldIds::ProperName);
    objects.push_back(std::move(object));
  }
  std::stable_sort(objects.begin(), objects.end(),
                   [](const auto& a, const auto& b) { return a.code < b.code; });
}

int FindConstellation(const std::string& abbreviation, const std::vector<ConstellationName>& names) {
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (names[i].abbreviation == abbreviation) return static_cast<int>(i);
  }
  return -1;
}

// Neighbouring vertices of one polyline become a stroke.
void FillFigures(CatalogTable& table, SkyCatalogs& catalogs) {
  std::string figure, lastFigure;
  double polyline = 0.0, lastPolyline = 0.0;
  Direction vertex{}, last{};
  for (int record = 0; record < table.GetCount(); ++record) {
    table.Select(record);
    if (!TakePosition(table, vertex)) continue;
    figure = FieldText(table, CommonInterfaces::FieldIds::Label);
    polyline = FieldNumber(table, CommonInterfaces::FieldIds::Number, 0.0);
    if (record > 0 && figure == lastFigure && polyline == lastPolyline) {
      const int first = static_cast<int>(catalogs.figurePoints.size());
      catalogs.figurePoints.push_back(last);
      AppendArc(last, vertex, kFigureStep, catalogs.figurePoints);
      catalogs.figures.push_back({first, static_cast<int>(catalogs.figurePoints.size()) - first,
                                  FindConstellation(figure, catalogs.constellations)});
    }
    last = vertex;
    lastFigure = figure;
    lastPolyline = polyline;
  }
}

void FillNames(CatalogTable& table, std::vector<ConstellationName>& names) {
  for (int record = 0; record < table.GetCount(); ++record) {
    table.Select(record);
    ConstellationName entry;
    entry.abbreviation = FieldText(table, CommonInterfaces::FieldIds::Label);
    entry.name = FieldText(table, CommonInterfaces::FieldIds::ProperName);
    entry.englishName = FieldText(table, kEnglishName);
    if (entry.englishName.empty()) entry.englishName = entry.name;
    if (TakePosition(table, entry.direction) && !entry.name.empty()) names.push_back(std::move(entry));
  }
}

void CloseRing(SkyCatalogs& catalogs) {
  if (catalogs.milkyWay.empty()) return;
  auto& ring = catalogs.milkyWay.back();
  auto& points = catalogs.milkyWayPoints;
  AppendArc(points.back(), points[ring.first], kOutlineStep, points);
  ring.count = static_cast<int>(points.size()) - ring.first;
}

void FillMilkyWay(CatalogTable& table, SkyCatalogs& catalogs) {
  int lastLevel = 0, lastRing = -1;
  for (int record = 0; record < table.GetCount(); ++record) {
    table.Select(record);
    Direction vertex;
    const int level = static_cast<int>(FieldNumber(table, CommonInterfaces::FieldIds::Type, 0.0));
    const int ring = static_cast<int>(FieldNumber(table, CommonInterfaces::FieldIds::Number, -1.0));
    if (level < 1 || level > kMilkyWayLevels || !TakePosition(table, vertex)) continue;
    if (level != lastLevel || ring != lastRing) {
      CloseRing(catalogs);
      catalogs.milkyWay.push_back({level, static_cast<int>(catalogs.milkyWayPoints.size()), 1});
      catalogs.milkyWayPoints.push_back(vertex);
    } else {
      AppendArc(catalogs.milkyWayPoints.back(), vertex, kOutlineStep, catalogs.milkyWayPoints);
    }
    lastLevel = level;
    lastRing = ring;
  }
  CloseRing(catalogs);
  std::stable_sort(catalogs.milkyWay.begin(), catalogs.milkyWay.end(),
                   [](const auto& a, const auto& b) { return a.level < b.level; });
}

void OpenStarTiles(std::vector<StarTiles>& catalogs) {
  for (const char* name : {"catalogs:stars.tiles", "catalogs:deep_stars.tiles"}) {
    const std::string path = ZentharPath::GetPath(name);
    if (path.empty()) continue;
    StarTiles tiles;
    std::string error;
    if (tiles.Open(path.c_str(), error)) {
      catalogs.push_back(std::move(tiles));
    } else {
      PrintDebugString("%s; the sky goes without its stars\n", error.c_str());
    }
  }
}

}  // namespace

const char* DeepskyObject::GetLabel(const LabelRules& rules) const {
  if (rules.commonName && !properName.empty()) return properName.c_str();
  return rules.ngcFirst && !designation.empty() ? designation.c_str() : label.c_str();
}

ObjectTraits GetTraits(const DeepskyObject& object) {
  constexpr unsigned kSubTypeShift = 24;  // the number of a deep-sky object carries its sub-type on top
  const auto subType = static_cast<unsigned char>(static_cast<unsigned>(object.number) >> kSubTypeShift);
  constexpr float kUnknown = std::numeric_limits<float>::quiet_NaN();
  return {object.code,
          kUnknown,
          object.largest > 0.0f ? object.largest : kUnknown,
          subType == 0 ? ObjectTraits::kNoClass : subType,
          object.catalogs,
          object.number};
}

ObjectTraits GetTraits(const ConstellationName& constellation) {
  ObjectTraits traits;
  traits.number = GetUniqueID(constellation.abbreviation.c_str());
  return traits;
}

ObjectTraits GetTraits(const StarTileRecord& star) {
  ObjectTraits traits;
  traits.code = star.GetCode();
  traits.colour = star.GetColour();
  traits.size = std::numeric_limits<float>::quiet_NaN();
  traits.number = star.GetNumber();
  if (GetHipparcosNumber(traits.number) != 0) traits.catalogs = kInHipparcos;
  return traits;
}

std::optional<StarTileRecord> FindTileStar(const SkyCatalogs& catalogs, int number) {
  for (const StarTiles& tiles : catalogs.starTiles) {
    const StarTileRecords found = tiles.FindNumber(number);
    if (found.GetCount() > 0) return found[0];
  }
  return std::nullopt;
}

bool LoadSkyCatalogs(SkyCatalogs& catalogs, std::string& error) {
  SkyCatalogs loaded;
  CatalogTable table;
  if (!LoadTable("catalogs:stars.txt", loaded.starTable, error)) return false;
  loaded.stars.Fill(loaded.starTable);
  if (!LoadTable("catalogs:deepsky.txt", loaded.deepskyTable, error)) return false;
  FillDeepsky(loaded.deepskyTable, loaded.deepsky);
  if (!LoadTable("catalogs:constellations.txt", table, error)) return false;
  FillNames(table, loaded.constellations);
  if (!LoadTable("catalogs:constellation_lines.txt", table, error)) return false;
  FillFigures(table, loaded);
  if (!LoadTable("catalogs:milkyway.txt", table, error)) return false;
  FillMilkyWay(table, loaded);
  OpenStarTiles(loaded.starTiles);
  loaded.bodies = LoadBodies();
  catalogs = std::move(loaded);
  return true;
}

}  // namespace scene
