// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The catalogs of names: of objects in other languages, of asterisms, of places on the Earth and on other
// bodies; and the pairs of double stars.
#include "skydata/build/catalog_text.h"
#include "skydata/build/catalogs.h"
#include "skydata/build/source_table.h"

namespace skydata {
namespace {

constexpr int kMaxNumber = 999999999;
constexpr int kMaxLines = 9999;

void AddRequiredText(const SourceTable& table, int row, int column, CatalogText& catalog) {
  if (table.GetText(row, column).empty()) table.Fail(row, column, "must not be empty");
  catalog.AddText(table.GetText(row, column));
}

// A whole number or an empty cell.
void AddOptionalInteger(const SourceTable& table, int row, int column, CatalogText& catalog) {
  if (table.GetText(row, column).empty()) return catalog.AddText("");
  catalog.AddInteger(table.GetInteger(row, column, 1, kMaxNumber));
}

}  // namespace

std::string MakeObjectNames(const std::filesystem::path& source) {
  const SourceTable table(source / "names" / "names.tsv", {"Object", "Language", "Name"});
  CatalogText catalog("names/names.tsv", {"Object:text", "Language:text", "ProperName:text"});
  for (int row = 0; row < table.GetRowCount(); ++row) {
    for (int column = 0; column < 3; ++column) AddRequiredText(table, row, column, catalog);
    catalog.EndRecord();
  }
  return catalog.GetBytes();
}

std::string MakeAsterisms(const std::filesystem::path& source) {
  const SourceTable table(source / "names" / "asterisms.tsv", {"Key", "Name", "Priority"});
  CatalogText catalog("names/asterisms.tsv", {"Key:text", "ProperName:text", "Priority:i32"});
  for (int row = 0; row < table.GetRowCount(); ++row) {
    AddRequiredText(table, row, 0, catalog);
    AddRequiredText(table, row, 1, catalog);
    catalog.AddInteger(table.GetInteger(row, 2, 1, 9));
    catalog.EndRecord();
  }
  return catalog.GetBytes();
}

std::string MakeAsterismLines(const std::filesystem::path& source) {
  const SourceTable table(source / "names" / "asterism_lines.tsv", {"Key", "Polyline", "RA_deg", "Dec_deg"});
  CatalogText catalog("names/asterism_lines.tsv", {"Key:text", "Number:i32", "RA:f64", "Dec:f64"});
  for (int row = 0; row < table.GetRowCount(); ++row) {
    AddRequiredText(table, row, 0, catalog);
    catalog.AddInteger(table.GetInteger(row, 1, 0, kMaxLines));
    catalog.AddAngle(table.GetNumber(row, 2, 0.0, 360.0));
    catalog.AddAngle(table.GetNumber(row, 3, -90.0, 90.0));
    catalog.EndRecord();
  }
  return catalog.GetBytes();
}

std::string MakeCities(const std::filesystem::path& source) {
  enum Column { kName, kAscii, kOthers, kCountry, kCountryName, kLat, kLon, kHeight, kPopulation, kZone };
  constexpr double kLowest = -500.0, kHighest = 9000.0;  // metres
  const SourceTable table(source / "cities" / "cities.tsv",
                          {"Name", "AsciiName", "OtherNames", "Country", "CountryName", "Lat_deg", "Lon_deg",
                           "Height_m", "Population", "Zone"});
  CatalogText catalog("cities/cities.tsv",
                      {"ProperName:text", "OtherNames:text", "Country:text", "CountryName:text",
                       "Latitude:f64", "Longitude:f64", "Height:f32", "Population:i32", "Zone:text"});
  for (int row = 0; row < table.GetRowCount(); ++row) {
    AddRequiredText(table, row, kName, catalog);
    const std::string &ascii = table.GetText(row, kAscii), &others = table.GetText(row, kOthers);
    const std::string further = ascii == table.GetText(row, kName) ? "" : ascii;
    catalog.AddText(further + (further.empty() || others.empty() ? "" : "; ") + others);
    AddRequiredText(table, row, kCountry, catalog);
    AddRequiredText(table, row, kCountryName, catalog);
    catalog.AddAngle(table.GetNumber(row, kLat, -90.0, 90.0));
    catalog.AddAngle(table.GetNumber(row, kLon, -180.0, 180.0));
    catalog.AddFloat(table.FindNumber(row, kHeight, kLowest, kHighest));
    catalog.AddInteger(table.GetInteger(row, kPopulation, 0, kMaxNumber));
    AddRequiredText(table, row, kZone, catalog);
    catalog.EndRecord();
  }
  return catalog.GetBytes();
}

std::string MakeDoubleStars(const std::filesystem::path& source) {
  enum Column { kHR, kHIP, kDiscoverer, kPair, kMag1, kMag2, kSeparation, kAngle };
  constexpr double kWidest = 3600.0;  // seconds of arc
  const SourceTable table(source / "doubles" / "doubles.tsv", {"HR", "HIP", "Discoverer", "Pair", "Mag1",
                                                               "Mag2", "Separation_arcsec", "PosAngle_deg"});
  CatalogText catalog("doubles/doubles.tsv",
                      {"BrightStarID:i32", "HipparcosID:i32", "Discoverer:text", "Pair:text",
                       "Magnitude1:f32", "Magnitude2:f32", "Separation:f64", "PairAngle:f64"});
  for (int row = 0; row < table.GetRowCount(); ++row) {
    if (table.GetText(row, kHR).empty() && table.GetText(row, kHIP).empty())
      table.Fail(row, kHIP, "wants HR or HIP");
    AddOptionalInteger(table, row, kHR, catalog);
    AddOptionalInteger(table, row, kHIP, catalog);
    catalog.AddText(table.GetText(row, kDiscoverer));
    AddRequiredText(table, row, kPair, catalog);
    catalog.AddFloat(table.FindNumber(row, kMag1, -2.0, 30.0));
    catalog.AddFloat(table.FindNumber(row, kMag2, -2.0, 30.0));
    catalog.AddAngle(table.GetNumber(row, kSeparation, 0.0, kWidest) / 3600.0);
    catalog.AddAngle(table.GetNumber(row, kAngle, 0.0, 360.0));
    catalog.EndRecord();
  }
  return catalog.GetBytes();
}

std::string MakeGazetteer(const std::filesystem::path& table) {
  constexpr double kMostDiameter = 20000.0;  // km
  const SourceTable names(table, {"Name", "Type", "Lat_deg", "Lon_deg_east", "Diameter_km"});
  CatalogText catalog("gazetteers/" + table.filename().string(),
                      {"ProperName:text", "Type:text", "Latitude:f64", "Longitude:f64", "Diameter:f32"});
  for (int row = 0; row < names.GetRowCount(); ++row) {
    AddRequiredText(names, row, 0, catalog);
    AddRequiredText(names, row, 1, catalog);
    catalog.AddAngle(names.GetNumber(row, 2, -90.0, 90.0));
    catalog.AddAngle(names.GetNumber(row, 3, -180.0, 360.0));
    catalog.AddFloat(names.FindNumber(row, 4, 0.0, kMostDiameter));
    catalog.EndRecord();
  }
  return catalog.GetBytes();
}

}  // namespace skydata
