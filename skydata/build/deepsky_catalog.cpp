// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>
#include <set>

#include "skydata/build/catalog_text.h"
#include "skydata/build/catalogs.h"
#include "skydata/build/ngc_entries.h"

namespace skydata {
namespace {

const std::vector<std::string> kMessierCatalogColumns = {"Type:text",
                                                         "Number:i32",
                                                         "RA:f64",
                                                         "Dec:f64",
                                                         "VisMagnitude:f32",
                                                         "LargestDimension:f32",
                                                         "SmallestDimension:f32",
                                                         "MessierNumber:i32",
                                                         "NGC_ICnumber:text",
                                                         "ProperName:text"};
const std::vector<std::string> kNgcCatalogColumns = {"Type:text",
                                                     "Number:i32",
                                                     "RA:f64",
                                                     "Dec:f64",
                                                     "VisMagnitude:f32",
                                                     "LargestDimension:f32",
                                                     "SmallestDimension:f32",
                                                     "PositionAngle:f32",
                                                     "MessierNumber:i32",
                                                     "NGC_ICnumber:text",
                                                     "ProperName:text",
                                                     "OtherNames:text"};

constexpr double kMaxSize = 3600.0;  // minutes of arc
constexpr double kLeastMagnitude = -2.0, kMostMagnitude = 30.0;

void AddMessierObject(const SourceTable& table, int row, CatalogText& catalog) {
  const MessierObject object = ReadMessierObject(table, row);
  catalog.AddText(object.type->kind);
  catalog.AddInteger(object.number);
  catalog.AddAngle(table.GetNumber(row, kRA, 0.0, 360.0));
  catalog.AddAngle(table.GetNumber(row, kDec, -90.0, 90.0));
  catalog.AddFloat(table.GetNumber(row, kMagnitude, kLeastMagnitude, kMostMagnitude));
  catalog.AddSmallAngle(table.FindNumber(row, kLargest, 0.0, kMaxSize));
  catalog.AddSmallAngle(table.FindNumber(row, kSmallest, 0.0, kMaxSize));
  catalog.AddInteger(object.messier);
  catalog.AddText(table.GetText(row, kDesignation));
  catalog.AddText(table.GetText(row, kName));
}

// The visual magnitude where it is known, else what follows from the blue one by the colour of such objects;
// nothing without either.
std::optional<double> FindMagnitude(const SourceTable& table, int row) {
  const auto visual = table.FindNumber(row, kNgcVisual, kLeastMagnitude, kMostMagnitude);
  const auto blue = table.FindNumber(row, kNgcBlue, kLeastMagnitude, kMostMagnitude);
  if (visual || !blue) return visual;
  return *blue - GetTypicalColour(table.GetText(row, kNgcType));
}

// Minutes of arc; an axis has no direction, so that half a turn is none.
std::optional<double> FindAngle(const SourceTable& table, int row) {
  constexpr double kMinutesPerDegree = 60.0;
  auto angle = table.FindNumber(row, kNgcAngle, 0.0, 180.0);
  if (angle) *angle = std::fmod(*angle, 180.0) * kMinutesPerDegree;
  return angle;
}

// The common names of an object. What several entries are called stays with the first of them, and the names
// of Messier's objects are theirs; `taken` are those that others have.
std::vector<std::string> TakeNames(const NgcEntries& entries, int row, std::set<std::string>& taken) {
  std::vector<std::string> names;
  for (auto& name : SplitNames(entries.GetTable().GetText(row, kNgcCommonNames))) {
    const bool isFree = taken.insert(name).second;
    if (isFree || entries.Get(row).messier > 0) names.push_back(std::move(name));
  }
  return names;
}

// The common name that stands beside the object, then the other ones and its entries in other catalogues.
void AddNames(const NgcEntries& entries, int row, std::set<std::string>& taken, CatalogText& catalog) {
  std::vector<std::string> names = TakeNames(entries, row, taken);
  catalog.AddText(names.empty() ? "" : names.front());
  if (!names.empty()) names.erase(names.begin());
  for (const auto& name : entries.Get(row).duplicates) names.push_back(name);
  for (const auto& name : SplitNames(entries.GetTable().GetText(row, kNgcOtherEntries)))
    names.push_back(name);
  std::string others;
  for (const auto& name : names) others += (others.empty() ? "" : ";") + name;
  catalog.AddText(others);
}

void AddNgcObject(const NgcEntries& entries, int row, std::set<std::string>& taken, CatalogText& catalog) {
  const SourceTable& table = entries.GetTable();
  const NgcEntries::Entry& entry = entries.Get(row);
  catalog.AddText(entry.type->kind);
  catalog.AddInteger(entry.number);
  catalog.AddAngle(table.GetNumber(row, kNgcRA, 0.0, 360.0));
  catalog.AddAngle(table.GetNumber(row, kNgcDec, -90.0, 90.0));
  catalog.AddFloat(FindMagnitude(table, row));
  catalog.AddSmallAngle(table.FindNumber(row, kNgcLargest, 0.0, kMaxSize));
  catalog.AddSmallAngle(table.FindNumber(row, kNgcSmallest, 0.0, kMaxSize));
  catalog.AddSmallAngle(FindAngle(table, row));
  catalog.AddText(entry.messier > 0 ? std::to_string(entry.messier) : "");
  catalog.AddText(table.GetText(row, kNgcName));
  AddNames(entries, row, taken, catalog);
}

}  // namespace

std::string MakeDeepskyCatalog(const std::filesystem::path& source) {
  const SourceTable table = ReadMessierTable(source);
  CatalogText catalog("deepsky/messier.tsv", kMessierCatalogColumns);
  std::set<int> numbers;
  for (int row = 0; row < table.GetRowCount(); ++row) {
    const int messier = ReadMessierObject(table, row).messier;
    if (!numbers.insert(messier).second)
      table.Fail(row, kMessier, std::to_string(messier) + " stands above already");
    AddMessierObject(table, row, catalog);
    catalog.EndRecord();
  }
  return catalog.GetBytes();
}

std::string MakeNgcCatalog(const std::filesystem::path& source) {
  const NgcEntries entries(source);
  CatalogText catalog("deepsky/openngc.tsv", kNgcCatalogColumns);
  std::set<std::string> taken = entries.GetMessierNames();
  for (int row = 0; row < entries.GetTable().GetRowCount(); ++row) {
    if (!entries.Get(row).type) continue;
    AddNgcObject(entries, row, taken, catalog);
    catalog.EndRecord();
  }
  return catalog.GetBytes();
}

}  // namespace skydata
