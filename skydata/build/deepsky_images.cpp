// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <set>

#include "skydata/build/catalog_files.h"
#include "skydata/build/source_table.h"

namespace skydata {
namespace {

enum DeepskyImageColumn {
  kMessier,
  kLetter,
  kHalfWidth,
  kRA,
  kDec,
  kRotation,
  kFlags,
  kAspectRatio,
  kLayer,
  kBlackPoint,
  kBrightness
};

const std::vector<std::string> kColumns = {
    "Messier",     "Letter", "HalfWidth_arcmin", "RA_deg",    "Dec_deg", "Rotation_deg", "Flags",
    "AspectRatio", "Layer",  "BlackPoint",       "Brightness"};

// What each column behind the letter may hold. A number that is not whole is written as it stands in the
// source.
struct Range {
  int column;
  double low, high;
  bool isWhole;
};
constexpr Range kRanges[] = {
    {kHalfWidth, 0.01, 5400.0, false}, {kRA, 0.0, 360.0, false},       {kDec, -90.0, 90.0, false},
    {kRotation, -360.0, 360.0, false}, {kFlags, 0.0, 3.0, true},       {kAspectRatio, 0.01, 100.0, false},
    {kLayer, 0.0, 255.0, true},        {kBlackPoint, 0.0, 1.0, false}, {kBrightness, 0.0, 100.0, false}};

constexpr int kLastMessier = 110;
constexpr char kHeader[] =
    "! Made by skydata from skyobjects/dso_images.tsv; origin and licence stand in the .source.md beside "
    "this file.\n"
    "! number[letter] half_width_arcmin ra_deg dec_deg rotation_deg flags aspect_ratio layer black_point "
    "brightness\n";

std::string ReadNumber(const SourceTable& table, int row) {
  const std::string& letter = table.GetText(row, kLetter);
  if (!letter.empty() && (letter.size() > 1 || letter[0] < 'A' || letter[0] > 'G'))
    table.Fail(row, kLetter, "'" + letter + "' is no letter from A to G");
  return std::to_string(table.GetInteger(row, kMessier, 1, kLastMessier)) + letter;
}

void AddCell(const SourceTable& table, int row, const Range& range, std::string& bytes) {
  bytes += ' ';
  if (range.isWhole) {
    const int low = static_cast<int>(range.low), high = static_cast<int>(range.high);
    bytes += std::to_string(table.GetInteger(row, range.column, low, high));
  } else {
    table.GetNumber(row, range.column, range.low, range.high);
    bytes += table.GetText(row, range.column);
  }
}

}  // namespace

std::string MakeDeepskyImages(const std::filesystem::path& source) {
  const SourceTable table(source / "skyobjects" / "dso_images.tsv", kColumns);
  std::string bytes = kHeader;
  std::set<std::string> numbers;
  for (int row = 0; row < table.GetRowCount(); ++row) {
    const std::string number = ReadNumber(table, row);
    if (!numbers.insert(number).second) table.Fail(row, kMessier, number + " stands above already");
    bytes += number;
    for (const Range& range : kRanges) AddCell(table, row, range, bytes);
    bytes += '\n';
  }
  return bytes;
}

}  // namespace skydata
