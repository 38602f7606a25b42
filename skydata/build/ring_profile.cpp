// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>

#include "skydata/build/catalog_text.h"
#include "skydata/build/catalogs.h"
#include "skydata/build/source_table.h"

namespace skydata {

std::string MakeSaturnRing(const std::filesystem::path& source) {
  enum Column { kRadius, kRed, kGreen, kBlue, kOpacity };
  constexpr double kMostRadius = 1e6;  // km
  constexpr int kMostColour = 255;
  const SourceTable table(source / "maps" / "saturn_ring.tsv",
                          {"Radius_km", "Red", "Green", "Blue", "Opacity"});
  CatalogText catalog("maps/saturn_ring.tsv", {"Radius:f64", "Red:u8", "Green:u8", "Blue:u8", "Opacity:u8"});
  double last = 0.0;
  for (int row = 0; row < table.GetRowCount(); ++row) {
    const double radius = table.GetNumber(row, kRadius, 0.0, kMostRadius);
    if (!(radius > last)) table.Fail(row, kRadius, "must be larger than the one above");
    catalog.AddDouble(radius);
    for (const int column : {kRed, kGreen, kBlue})
      catalog.AddInteger(table.GetInteger(row, column, 0, kMostColour));
    catalog.AddInteger(static_cast<int>(std::lround(kMostColour * table.GetNumber(row, kOpacity, 0.0, 1.0))));
    catalog.EndRecord();
    last = radius;
  }
  return catalog.GetBytes();
}

}  // namespace skydata
