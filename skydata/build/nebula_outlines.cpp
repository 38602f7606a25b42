// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/build/catalog_text.h"
#include "skydata/build/catalogs.h"
#include "skydata/build/ngc_entries.h"

namespace skydata {
namespace {

constexpr int kLevels = 3, kMaxContours = 9999;
constexpr double kMinutesPerDegree = 60.0;

enum OutlineColumn { kObject, kLevel, kContour, kOutlineRA, kOutlineDec };

bool IsSameContour(const SourceTable& table, int row, int other) {
  return table.GetText(row, kObject) == table.GetText(other, kObject) &&
         table.GetText(row, kLevel) == table.GetText(other, kLevel) &&
         table.GetText(row, kContour) == table.GetText(other, kContour);
}

// What the first vertex of a contour carries: the object, by kind and number where there is one, and the
// level.
void AddContour(const SourceTable& table, int row, const NgcEntries& entries, CatalogText& catalog) {
  const int entry = entries.Find(table.GetText(row, kObject));
  catalog.AddText(table.GetText(row, kObject));
  catalog.AddText(entry < 0 ? "" : entries.Get(entry).type->kind);
  catalog.AddText(entry < 0 ? "" : std::to_string(entries.Get(entry).number));
  catalog.AddInteger(table.GetInteger(row, kLevel, 1, kLevels));
  catalog.AddInteger(table.GetInteger(row, kContour, 0, kMaxContours));
}

}  // namespace

std::string MakeNebulaOutlines(const std::filesystem::path& source) {
  const SourceTable table(source / "deepsky" / "outlines.tsv",
                          {"Object", "Level", "Contour", "RA_deg", "Dec_deg"});
  const NgcEntries entries(source);
  CatalogText catalog("deepsky/outlines.tsv", {"Object:text", "Type:text", "Number:i32", "Level:i32",
                                               "Contour:i32", "RA:f32", "Dec:f32"});
  for (int row = 0; row < table.GetRowCount(); ++row) {
    if (row == 0 || !IsSameContour(table, row, row - 1)) {
      AddContour(table, row, entries, catalog);
    } else {
      for (int cell = 0; cell < 5; ++cell) catalog.AddText("");
    }
    catalog.AddSmallAngle(table.GetNumber(row, kOutlineRA, 0.0, 360.0) * kMinutesPerDegree);
    catalog.AddSmallAngle(table.GetNumber(row, kOutlineDec, -90.0, 90.0) * kMinutesPerDegree);
    catalog.EndRecord();
  }
  return catalog.GetBytes();
}

}  // namespace skydata
