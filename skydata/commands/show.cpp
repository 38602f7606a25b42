// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "skydata/commands/command.h"
#include "skydata/files/whole_file.h"
#include "skydata/settings/dump.h"
#include "skydata/settings/reader/file_reader.h"
#include "skydata/show/files.h"
#include "utils/numbers.h"

namespace skydata {
namespace {

struct Arguments {
  std::string file;
  std::string kindName;  // "": the file's name says it
  std::string cell;      // BAND:CELL of a tile catalog, "": its bands
  bool isJson = false;
};

ShownTable ShowFileOf(DataKind kind, const std::string& path) {
  if (kind == DataKind::kStrings) return ShowShowers(path);
  if (kind == DataKind::kSkyMap) return ShowSkyMap(path);
  if (kind == DataKind::kPreparedSky) return ShowPreparedSky(path);
  using Show = ShownTable (*)(const std::string&);
  static const std::map<DataKind, Show> kShows = {{DataKind::kSettings, ShowSettings},
                                                  {DataKind::kYearLimits, ShowYearLimits},
                                                  {DataKind::kGazetteer, ShowCatalog},
                                                  {DataKind::kCatalogTable, ShowCatalog},
                                                  {DataKind::kTwoLineElements, ShowTwoLineElements},
                                                  {DataKind::kPlanets, ShowPlanets},
                                                  {DataKind::kObservationTimes, ShowObservationTimes},
                                                  {DataKind::kArticles, ShowArticles},
                                                  {DataKind::kDistances, ShowDistances},
                                                  {DataKind::kFlightList, ShowFlightList},
                                                  {DataKind::kConstellationImages, ShowImages},
                                                  {DataKind::kMilkyWayImages, ShowImages},
                                                  {DataKind::kDeepskyImages, ShowDeepskyImages},
                                                  {DataKind::kPanoramas, ShowPanoramas},
                                                  {DataKind::kFavourites, ShowList},
                                                  {DataKind::kChosen, ShowList},
                                                  {DataKind::kSelection, ShowList}};
  return kShows.at(kind)(ReadFile(path));
}

DataKind FindKind(const Arguments& arguments) {
  for (const DataKindName& known : GetDataKindNames()) {
    if (known.name == arguments.kindName) return known.kind;
  }
  return KindOfName(std::filesystem::path(arguments.file).generic_string());
}

bool CanShow(DataKind kind) {
  for (const DataKindName& known : GetDataKindNames()) {
    if (known.kind == kind) return true;
  }
  return false;
}

ShownTable ShowStarTiles(const Arguments& arguments) {
  if (arguments.cell.empty()) return ShowStarBands(arguments.file);
  int band = 0, cell = 0;
  std::string_view text = arguments.cell;
  const bool hasBand = TakeNumber(text, band, 0) && !text.empty() && text.front() == ':';
  if (hasBand) text.remove_prefix(1);
  if (!hasBand || !TakeNumber(text, cell, 0) || !text.empty()) throw UsageError("--cell", "wants BAND:CELL");
  return ShowStarCell(arguments.file, band, static_cast<unsigned>(cell));
}

int RunShow(const Arguments& arguments, std::ostream& output, std::ostream& errors) {
  const DataKind kind = FindKind(arguments);
  if (!CanShow(kind)) {
    errors << arguments.file << ": nothing is known of a file of this name; --as says what it is\n";
    return kBadUsage;
  }
  const bool isTiles = kind == DataKind::kStarTiles;
  if (!isTiles && !arguments.cell.empty()) throw UsageError("--cell", "is for tile catalogs of stars");
  if (isTiles && !arguments.isJson) output << DescribeStarTiles(arguments.file);
  if (kind == DataKind::kSkyMap && !arguments.isJson) output << DescribeSkyMap(arguments.file);
  if (kind == DataKind::kSettings && !arguments.isJson) {
    WriteSettingsText(ReadSettingsFile(ReadFile(arguments.file), FieldNames()), output);
    return kDone;
  }
  const ShownTable table = isTiles ? ShowStarTiles(arguments) : ShowFileOf(kind, arguments.file);
  output << (arguments.isJson ? FormatTableAsJson(table) : FormatTable(table));
  if (table.unreadable == 0) return kDone;
  errors << arguments.file << ": " << table.unreadable << " records cannot be read (skydata lint says why)\n";
  return kBadData;
}

}  // namespace

Action DeclareShow(ArgumentList& command) {
  const auto arguments = std::make_shared<Arguments>();
  std::vector<std::string> names;
  for (const DataKindName& known : GetDataKindNames()) names.emplace_back(known.name);
  command.Take("FILE", arguments->file, "file of a data root or a work area").Require();
  command.Take("--as", arguments->kindName, "what the file is; else its name says it").OneOf(names);
  command.Take("--cell", arguments->cell, "the stars of a cell of a tile catalog, in place of its bands")
      .Form("BAND:CELL");
  command.TakeFlag("--json", arguments->isJson, "one JSON array of objects in place of lines");
  return
      [arguments](std::ostream& output, std::ostream& errors) { return RunShow(*arguments, output, errors); };
}

}  // namespace skydata
