// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Pictures laid onto the sky that are given by their corners: constellations and pieces of the Milky Way.
#include <cmath>
#include <set>

#include "skydata/build/byte_text.h"
#include "skydata/build/catalog_files.h"
#include "skydata/build/object_numbers.h"
#include "skydata/build/source_table.h"

namespace skydata {
namespace {

enum ImageColumn { kIdentifier, kFirstCorner };

const std::vector<std::string> kColumns = {"Identifier", "RA1_deg",  "Dec1_deg", "RA2_deg", "Dec2_deg",
                                           "RA3_deg",    "Dec3_deg", "RA4_deg",  "Dec4_deg"};

constexpr int kCorners = 4;
constexpr int kMostImages = 0xFFFF;
constexpr std::size_t kIdentifierSize = 4;
constexpr double kUnitsPerDegree = 100000.0;

int InUnits(double degrees) { return static_cast<int>(std::lround(degrees * kUnitsPerDegree)); }

// One to four letters and digits, filled up with blanks.
std::string ReadIdentifier(const SourceTable& table, int row) {
  std::string identifier = table.GetText(row, kIdentifier);
  for (const char c : identifier) {
    const bool isGood = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
    if (!isGood) table.Fail(row, kIdentifier, "'" + identifier + "' has other characters than A-Z, a-z, 0-9");
  }
  if (identifier.empty() || identifier.size() > kIdentifierSize)
    table.Fail(row, kIdentifier, "wants one to four characters");
  identifier.resize(kIdentifierSize, ' ');
  return identifier;
}

void AddCorners(const SourceTable& table, int row, std::string& bytes) {
  for (int column = kFirstCorner; column < kFirstCorner + 2 * kCorners; column += 2) {
    AppendBE32(bytes, InUnits(table.GetNumber(row, column, 0.0, 360.0)));
    AppendBE32(bytes, InUnits(table.GetNumber(row, column + 1, -90.0, 90.0)));
  }
}

// With `constellations` each identifier must be that of one.
std::string MakeImages(const std::filesystem::path& path, const ObjectNumbers* constellations) {
  const SourceTable table(path, kColumns);
  std::string bytes;
  AppendBE16(bytes, table.GetRowCount());
  std::set<std::string> identifiers;
  for (int row = 0; row < table.GetRowCount(); ++row) {
    if (row == kMostImages) table.Fail(row, kIdentifier, "a file holds at most 65535 images");
    const std::string identifier = ReadIdentifier(table, row);
    if (!identifiers.insert(identifier).second)
      table.Fail(row, kIdentifier, "'" + table.GetText(row, kIdentifier) + "' stands above already");
    if (constellations && !constellations->Has("cnst", table.GetText(row, kIdentifier)))
      table.Fail(row, kIdentifier, "no constellation '" + table.GetText(row, kIdentifier) + "' is known");
    bytes += identifier;
    AddCorners(table, row, bytes);
  }
  return bytes;
}

}  // namespace

std::string MakeConstellationImages(const std::filesystem::path& source) {
  const ObjectNumbers numbers(source);
  return MakeImages(source / "skyobjects" / "constellation_images.tsv", &numbers);
}

std::string MakeMilkyWayImages(const std::filesystem::path& source) {
  return MakeImages(source / "skyobjects" / "milkyway_images.tsv", nullptr);
}

}  // namespace skydata
