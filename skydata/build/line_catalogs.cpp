// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The catalogs of lines on the sky and of the names of their regions.
#include "skydata/build/catalog_text.h"
#include "skydata/build/catalogs.h"
#include "skydata/build/source_table.h"

namespace skydata {
namespace {

constexpr int kMaxLines = 9999;

void AddPosition(const SourceTable& table, int row, int column, CatalogText& catalog) {
  catalog.AddAngle(table.GetNumber(row, column, 0.0, 360.0));
  catalog.AddAngle(table.GetNumber(row, column + 1, -90.0, 90.0));
}

void AddRequiredText(const SourceTable& table, int row, int column, CatalogText& catalog) {
  if (table.GetText(row, column).empty()) table.Fail(row, column, "must not be empty");
  catalog.AddText(table.GetText(row, column));
}

}  // namespace

std::string MakeConstellationCatalog(const std::filesystem::path& source) {
  const SourceTable table(source / "constellations" / "constellations.tsv",
                          {"Abbreviation", "Latin", "English", "RA_deg", "Dec_deg", "Genitive"});
  CatalogText catalog(
      "constellations/constellations.tsv",
      {"Label:text", "ProperName:text", "EnglishName:text", "RA:f64", "Dec:f64", "Genitive:text"});
  for (int row = 0; row < table.GetRowCount(); ++row) {
    AddRequiredText(table, row, 0, catalog);
    AddRequiredText(table, row, 1, catalog);
    catalog.AddText(table.GetText(row, 2));
    AddPosition(table, row, 3, catalog);
    catalog.AddText(table.GetText(row, 5));
    catalog.EndRecord();
  }
  return catalog.GetBytes();
}

std::string MakeConstellationLines(const std::filesystem::path& source) {
  const SourceTable table(source / "constellations" / "lines.tsv",
                          {"Abbreviation", "Polyline", "RA_deg", "Dec_deg"});
  CatalogText catalog("constellations/lines.tsv", {"Label:text", "Number:i32", "RA:f64", "Dec:f64"});
  for (int row = 0; row < table.GetRowCount(); ++row) {
    AddRequiredText(table, row, 0, catalog);
    catalog.AddInteger(table.GetInteger(row, 1, 0, kMaxLines));
    AddPosition(table, row, 2, catalog);
    catalog.EndRecord();
  }
  return catalog.GetBytes();
}

// The positions stay at the equinox in which the edges are straight.
std::string MakeConstellationBounds(const std::filesystem::path& source) {
  const SourceTable table(source / "constellations" / "bounds.tsv",
                          {"NorthOrEast", "SouthOrWest", "RA_deg", "Dec_deg", "EndRA_deg", "EndDec_deg"});
  CatalogText catalog("constellations/bounds.tsv",
                      {"Label:text", "OtherLabel:text", "RA:f64", "Dec:f64", "EndRA:f64", "EndDec:f64"});
  for (int row = 0; row < table.GetRowCount(); ++row) {
    AddRequiredText(table, row, 0, catalog);
    AddRequiredText(table, row, 1, catalog);
    AddPosition(table, row, 2, catalog);
    AddPosition(table, row, 4, catalog);
    if (table.GetText(row, 2) != table.GetText(row, 4) && table.GetText(row, 3) != table.GetText(row, 5))
      table.Fail(row, 4, "the edge follows neither right ascension nor declination");
    catalog.EndRecord();
  }
  return catalog.GetBytes();
}

}  // namespace skydata
