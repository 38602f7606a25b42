// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Catalog tables, pictures of deep-sky objects, elements of satellites, meteor showers.
#include <algorithm>
#include <cstdlib>
#include <iterator>

#include "astro/constants.h"
#include "skydata/files/catalog_reader.h"
#include "skydata/files/deepsky_picture.h"
#include "skydata/show/files.h"
#include "skydata/strings/rules.h"
#include "utils/text.h"

namespace skydata {
namespace {

using astro::kPi;
constexpr double kDegreesPerRadian = 180.0 / kPi, kHoursPerRadian = 12.0 / kPi;
constexpr double kDegreesPerHour = 15.0, kMinutesPerDegree = 60.0, kMinutesPerHour = 60.0;
constexpr std::size_t kShowerFields = 12;

// A column in another unit than the file's.
struct ShownUnit {
  const char* column;
  const char* unit;
  double factor;
  int decimals;
};
constexpr ShownUnit kUnits[] = {{"RA", " [h]", kHoursPerRadian, 5},
                                {"Dec", " [deg]", kDegreesPerRadian, 4},
                                {"LargestDimension", " [arcmin]", kDegreesPerRadian* kMinutesPerDegree, 2},
                                {"SmallestDimension", " [arcmin]", kDegreesPerRadian* kMinutesPerDegree, 2},
                                {"PositionAngle", " [deg]", kDegreesPerRadian, 1},
                                {"Latitude", " [deg]", kDegreesPerRadian, 4},
                                {"Longitude", " [deg]", kDegreesPerRadian, 4},
                                {"Separation", " [arcsec]", kDegreesPerRadian * 3600.0, 2},
                                {"PairAngle", " [deg]", kDegreesPerRadian, 1},
                                {"EndRA", " [h]", kHoursPerRadian, 5},
                                {"EndDec", " [deg]", kDegreesPerRadian, 4},
                                {"i", " [deg]", kDegreesPerRadian, 5},
                                {"om", " [deg]", kDegreesPerRadian, 5},
                                {"w", " [deg]", kDegreesPerRadian, 5},
                                {"M0", " [deg]", kDegreesPerRadian, 5}};

const ShownUnit* FindUnit(const std::string& column) {
  const auto found = std::find_if(std::begin(kUnits), std::end(kUnits),
                                  [&column](const ShownUnit& unit) { return column == unit.column; });
  return found == std::end(kUnits) ? nullptr : found;
}

ShownCell ShowCell(const CatalogColumn& column, const TextField* cell) {
  if (!cell) return column.type == "text" ? ShownCell("") : ShownCell::Missing();
  const auto value = column.type == "text" ? std::nullopt : ParseCatalogNumber(column.type, cell->text);
  if (!value) return cell->text;
  const ShownUnit* const unit = FindUnit(column.name);
  return unit ? ShownCell::Real(*value * unit->factor, unit->decimals) : ShownCell::Number(cell->text);
}

ShownCell ShowPictureField(int column, const std::string& text) {
  bool lacksMark = false;
  if (column == kPictureNumber) return text;
  if (column != kPictureRA && column != kPictureDec) {
    const auto value = ParsePlainNumber(text, false);
    return value ? ShownCell::Number(text) : ShownCell(text);
  }
  const auto degrees = ParseAngle(text, lacksMark);
  if (!degrees) return text;
  return column == kPictureRA ? ShownCell::Real(*degrees / kDegreesPerHour, 5) : ShownCell::Real(*degrees, 4);
}

// The piece of a line between two columns, counted from 1 as the published tables of the format do.
std::string Piece(const std::string& line, std::size_t first, std::size_t last) {
  std::string piece = line.substr(std::min(first - 1, line.size()), last - first + 1);
  piece.erase(0, std::min(piece.find_first_not_of(' '), piece.size()));
  return piece.substr(0, piece.find_last_not_of(' ') + 1);
}

ShownCell NumberPiece(const std::string& line, std::size_t first, std::size_t last, int decimals) {
  return ShownCell::Real(std::atof(Piece(line, first, last).c_str()), decimals);
}

std::string DayOf(const std::vector<std::string>& fields, std::size_t at) {
  return fields[at] + "." + fields[at + 1] + ".";
}

}  // namespace

ShownTable ShowCatalog(const std::string& bytes) {
  const CatalogData data = ReadCatalog(SplitPlainLines(bytes));
  ShownTable table;
  for (const CatalogColumn& column : data.columns) {
    const ShownUnit* const unit = FindUnit(column.name);
    table.columns.push_back(column.name + (unit ? unit->unit : ""));
  }
  for (const CatalogRecord& record : data.records) {
    std::vector<ShownCell> row;
    for (int i = 0; i < static_cast<int>(data.columns.size()); ++i) {
      row.push_back(ShowCell(data.columns[static_cast<std::size_t>(i)], data.FindCell(record, i)));
    }
    table.rows.push_back(std::move(row));
    if (record.cells.size() > data.columns.size()) ++table.unreadable;
  }
  return table;
}

ShownTable ShowDeepskyImages(const std::string& bytes) {
  ShownTable table;
  table.columns = {"number", "size [arcmin]", "RA [h]", "Dec [deg]", "rotation [deg]",
                   "flags",  "aspect",        "layer",  "black",     "brightness"};
  for (const TextLine& line : SplitPlainLines(bytes)) {
    if (line.text.starts_with('!')) continue;
    const auto fields = SplitAtBlanks(line);
    if (fields.empty()) continue;
    int number = 0;
    char letter = '\0';
    if (!ParsePictureNumber(fields[kPictureNumber].text, number, letter)) {
      ++table.unreadable;
      continue;
    }
    std::vector<ShownCell> row;
    for (int column = 0; column < kPictureColumns; ++column) {
      const bool isThere = column < static_cast<int>(fields.size());
      row.push_back(isThere ? ShowPictureField(column, fields[static_cast<std::size_t>(column)].text)
                            : ShownCell(""));
    }
    table.rows.push_back(std::move(row));
  }
  return table;
}

ShownTable ShowTwoLineElements(const std::string& bytes) {
  ShownTable table;
  table.columns = {"number",       "name",          "epoch [yyddd]", "inclination [deg]", "node [deg]",
                   "eccentricity", "perigee [deg]", "anomaly [deg]", "motion [rev/day]"};
  std::string name, first;
  for (const TextLine& line : SplitPlainLines(bytes)) {
    if (IsBlankText(line.text) || line.text[0] == '#') continue;
    if (line.text.starts_with("1 ")) {
      if (!first.empty()) ++table.unreadable;
      first = line.text;
    } else if (!line.text.starts_with("2 ")) {
      if (!name.empty() || !first.empty()) ++table.unreadable;
      first = "";
      name = Piece(line.text, line.text.starts_with("0 ") ? 3 : 1, line.text.size());
    } else if (first.empty()) {
      ++table.unreadable;
    } else {
      table.rows.push_back({std::atoi(Piece(first, 3, 7).c_str()), name, Piece(first, 19, 32),
                            NumberPiece(line.text, 9, 16, 4), NumberPiece(line.text, 18, 25, 4),
                            ShownCell::Real(std::atof(("0." + Piece(line.text, 27, 33)).c_str()), 7),
                            NumberPiece(line.text, 35, 42, 4), NumberPiece(line.text, 44, 51, 4),
                            NumberPiece(line.text, 53, 63, 8)});
      name = first = "";
    }
  }
  if (!name.empty() || !first.empty()) ++table.unreadable;
  return table;
}

ShownTable ShowShowers(const std::string& path) {
  ShownTable table;
  table.columns = {"id", "name", "begin", "maximum", "end", "code", "parent body", "RA [h]", "Dec [deg]"};
  const StringsSource source = ReadStrings(path);
  for (unsigned id = kFirstShower; const StringsEntry* entry = FindEntry(source, id); ++id) {
    const auto fields = GetSubStrings(entry->text.c_str(), ';');
    if (fields.size() < kShowerFields) {
      ++table.unreadable;
      continue;
    }
    const double hours = std::atof(fields[9].c_str()) + std::atof(fields[10].c_str()) / kMinutesPerHour;
    table.rows.push_back({static_cast<int>(id), fields[0], DayOf(fields, 1), DayOf(fields, 3),
                          DayOf(fields, 5), fields[7], fields[8], ShownCell::Real(hours, 4),
                          std::atoi(fields[11].c_str())});
  }
  return table;
}

}  // namespace skydata
