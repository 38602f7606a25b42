// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <set>

#include "skydata/build/catalog_text.h"
#include "skydata/build/catalogs.h"
#include "skydata/build/source_table.h"

namespace skydata {
namespace {

// The columns of the source, in its order.
enum DeepskyColumn { kMessier, kDesignation, kName, kType, kMagnitude, kLargest, kSmallest, kRA, kDec };

const std::vector<std::string> kSourceColumns = {
    "Messier", "NGC_IC", "Name", "Type", "V_mag", "Largest_arcmin", "Smallest_arcmin", "RA_deg", "Dec_deg"};
const std::vector<std::string> kCatalogColumns = {"Type:text",
                                                  "Number:i32",
                                                  "RA:f64",
                                                  "Dec:f64",
                                                  "VisMagnitude:f32",
                                                  "LargestDimension:f32",
                                                  "SmallestDimension:f32",
                                                  "MessierNumber:i32",
                                                  "NGC_ICnumber:text",
                                                  "ProperName:text"};

// A type as the source names it, the kind it belongs to, and its sub-type code, the identifier of its name in
// the string table. Codes are kept in files: never renumber.
struct DeepskyType {
  const char* name;
  const char* kind;
  int subType;
};
constexpr DeepskyType kTypes[] = {
    {"emission nebula", "nebu", 30},   {"reflection nebula", "nebu", 31}, {"planetary nebula", "nebu", 32},
    {"supernova remnant", "nebu", 33}, {"open cluster", "clst", 40},      {"globular cluster", "clst", 41},
    {"star cloud", "clst", 42},        {"asterism", "clst", 43},          {"double star", "clst", 44},
    {"spiral galaxy", "gala", 62},     {"elliptical galaxy", "gala", 63}, {"irregular galaxy", "gala", 64}};

constexpr int kMaxMessier = 110;
constexpr double kMaxSize = 3600.0;  // minutes of arc
constexpr int kSubTypeShift = 24;

const DeepskyType& GetType(const SourceTable& table, int row) {
  for (const DeepskyType& type : kTypes) {
    if (table.GetText(row, kType) == type.name) return type;
  }
  table.Fail(row, kType, "'" + table.GetText(row, kType) + "' is no known type");
}

void AddObject(const SourceTable& table, int row, int messier, CatalogText& catalog) {
  const DeepskyType& type = GetType(table, row);
  catalog.AddText(type.kind);
  catalog.AddInteger(type.subType << kSubTypeShift | messier);
  catalog.AddAngle(table.GetNumber(row, kRA, 0.0, 360.0));
  catalog.AddAngle(table.GetNumber(row, kDec, -90.0, 90.0));
  catalog.AddFloat(table.GetNumber(row, kMagnitude, -2.0, 30.0));
  catalog.AddSmallAngle(table.FindNumber(row, kLargest, 0.0, kMaxSize));
  catalog.AddSmallAngle(table.FindNumber(row, kSmallest, 0.0, kMaxSize));
  catalog.AddInteger(messier);
  catalog.AddText(table.GetText(row, kDesignation));
  catalog.AddText(table.GetText(row, kName));
}

}  // namespace

std::string MakeDeepskyCatalog(const std::filesystem::path& source) {
  const SourceTable table(source / "deepsky" / "messier.tsv", kSourceColumns);
  CatalogText catalog("deepsky/messier.tsv", kCatalogColumns);
  std::set<int> numbers;
  for (int row = 0; row < table.GetRowCount(); ++row) {
    const int messier = table.GetInteger(row, kMessier, 1, kMaxMessier);
    if (!numbers.insert(messier).second)
      table.Fail(row, kMessier, std::to_string(messier) + " stands above already");
    AddObject(table, row, messier, catalog);
    catalog.EndRecord();
  }
  return catalog.GetBytes();
}

}  // namespace skydata
