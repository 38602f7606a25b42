// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/sky_catalogs.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <limits>
#include <optional>
#include <system_error>
#include <utility>

#include "common_interfaces/field_names.h"
#include "scene/catalogs/language_names.h"
#include "scene/catalogs/prepared_parts.h"
#include "scene/view/arcs.h"
#include "utils/debug.h"
#include "utils/file_presence.h"
#include "utils/path.h"
#include "utils/text.h"

namespace scene {
namespace {

constexpr double kFigureStep = 2.0 * kRadiansPerDegree;  // a great circle bends by less than a pixel over it

const int kEnglishName = GetUniqueID("EnglishName"),
          kGenitive = GetUniqueID("Genitive");  // columns of this catalog alone

bool LoadTable(const char* name, CatalogTable& table, std::string& error, const std::string& root = "") {
  const std::string path = FindCatalog(name, root);
  if (path.empty()) {
    error = std::string(name) + ": not found in the data root";
    return false;
  }
  if (table.Load(path.c_str())) return true;
  error = table.GetError();
  return false;
}

// A table that a data root may lack; it is then empty.
bool LoadOptionalTable(const char* name, CatalogTable& table, std::string& error, const std::string& root) {
  table = CatalogTable();
  return FindCatalog(name, root).empty() || LoadTable(name, table, error, root);
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
  Direction vertex{};
  std::optional<Direction> last;
  for (int record = 0; record < table.GetCount(); ++record) {
    table.Select(record);
    if (!TakePosition(table, vertex)) continue;
    figure = FieldText(table, CommonInterfaces::FieldIds::Label);
    polyline = FieldNumber(table, CommonInterfaces::FieldIds::Number, 0.0);
    if (last && figure == lastFigure && polyline == lastPolyline) {
      const int first = static_cast<int>(catalogs.figurePoints.size());
      catalogs.figurePoints.push_back(*last);
      AppendArc(*last, vertex, kFigureStep, catalogs.figurePoints);
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
    entry.genitive = FieldText(table, kGenitive);
    if (entry.genitive.empty()) entry.genitive = entry.name;
    entry.localName = entry.name;
    if (TakePosition(table, entry.direction) && !entry.name.empty()) names.push_back(std::move(entry));
  }
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

bool LoadStarTexts(SkyCatalogs& loaded, std::string& error, const std::string& root) {
  CatalogTable table;
  if (!LoadTable("catalogs:stars.txt", loaded.starTable, error, root)) return false;
  loaded.stars.Fill(loaded.starTable);
  if (!LoadTable("catalogs:constellations.txt", table, error, root)) return false;
  FillNames(table, loaded.constellations);
  if (!LoadTable("catalogs:constellation_lines.txt", table, error, root)) return false;
  FillFigures(table, loaded);
  if (!LoadOptionalTable("catalogs:constellation_bounds.txt", table, error, root)) return false;
  loaded.bounds.Fill(table, loaded.constellations);
  return true;
}

bool LoadDeepskyTexts(SkyCatalogs& loaded, std::string& error, const std::string& root) {
  CatalogTable table;
  if (!LoadTable("catalogs:deepsky.txt", loaded.deepsky.tables[kMessierTable], error, root)) return false;
  if (!LoadOptionalTable("catalogs:ngc_ic.txt", loaded.deepsky.tables[kNgcTable], error, root)) return false;
  loaded.deepsky.Fill();
  if (!LoadOptionalTable("catalogs:nebula_outlines.txt", table, error, root)) return false;
  loaded.nebulaOutlines.Fill(table, loaded.deepsky);
  return true;
}

bool LoadMilkyWay(SkyMap& map, std::string& error) {
  constexpr char kName[] = "catalogs:milkyway.map";
  const std::string path = ZentharPath::GetPath(kName);
  if (!path.empty()) return map.Load(path.c_str(), error);
  error = std::string(kName) + ": not found in the data root";
  return false;
}

}  // namespace

const std::string& ConstellationName::GetName(NameForm form) const {
  if (form == NameForm::kGenitive) return genitive;
  if (form == NameForm::kEnglish) return englishName;
  return form == NameForm::kLocal ? localName : name;
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

std::string FindCatalog(const char* name, const std::string& root) {
  if (root.empty()) return ZentharPath::GetPath(name);
  const auto path = std::filesystem::path(root) / "catalogs" / (std::strchr(name, ':') + 1);
  return IsRegularFile(path.string().c_str()) ? path.string() : "";
}

bool LoadCatalogTexts(PreparedSky part, SkyCatalogs& catalogs, std::string& error, const std::string& root) {
  return part == PreparedSky::kStars ? LoadStarTexts(catalogs, error, root)
                                     : LoadDeepskyTexts(catalogs, error, root);
}

bool LoadSkyCatalogs(SkyCatalogs& catalogs, std::string& error, CatalogUse use) {
  SkyCatalogs loaded;
  for (const PreparedSky part : {PreparedSky::kStars, PreparedSky::kDeepsky}) {
    if (!TakePreparedSky(part, loaded) && !LoadCatalogTexts(part, loaded, error)) return false;
  }
  if (use == CatalogUse::kPictures && !LoadMilkyWay(loaded.milkyWay, error)) return false;
  OpenStarTiles(loaded.starTiles);
  loaded.bodies = LoadBodies();
  TakeNamesOfLanguage(loaded);
  catalogs = std::move(loaded);
  return true;
}

}  // namespace scene
