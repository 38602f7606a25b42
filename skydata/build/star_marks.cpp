// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/build/star_marks.h"

#include "skydata/build/source_table.h"

namespace skydata {
namespace {

namespace fs = std::filesystem;

constexpr int kMaxNumber = 999999999;
constexpr double kUnknownMagnitude = 99.0;

void AddPairs(const fs::path& path, std::map<int, StarMarks>& marks) {
  enum Column { kHR, kHIP, kDiscoverer, kPair, kMag1, kMag2, kSeparation, kAngle };
  if (!fs::exists(path)) return;
  const SourceTable table(
      path, {"HR", "HIP", "Discoverer", "Pair", "Mag1", "Mag2", "Separation_arcsec", "PosAngle_deg"});
  std::map<int, double> brightest;
  for (int row = 0; row < table.GetRowCount(); ++row) {
    if (table.GetText(row, kHR).empty()) continue;
    const int number = table.GetInteger(row, kHR, 1, kMaxNumber);
    const double magnitude = table.FindNumber(row, kMag2, -2.0, 30.0).value_or(kUnknownMagnitude);
    const auto [known, isNew] = brightest.emplace(number, magnitude);
    if (!isNew && known->second <= magnitude) continue;
    known->second = magnitude;
    marks[number].pairAngle = table.GetNumber(row, kAngle, 0.0, 360.0);
  }
}

void AddVariables(const fs::path& path, std::map<int, StarMarks>& marks) {
  if (!fs::exists(path)) return;
  const SourceTable table(path, {"HR", "Name"});
  for (int row = 0; row < table.GetRowCount(); ++row) {
    if (table.GetText(row, 1).empty()) table.Fail(row, 1, "must not be empty");
    marks[table.GetInteger(row, 0, 1, kMaxNumber)].variable = table.GetText(row, 1);
  }
}

void AddPlanets(const fs::path& path, std::map<int, StarMarks>& marks) {
  if (!fs::exists(path)) return;
  const SourceTable table(path, {"HR", "Star", "Source"});
  for (int row = 0; row < table.GetRowCount(); ++row)
    marks[table.GetInteger(row, 0, 1, kMaxNumber)].planets = true;
}

}  // namespace

std::map<int, StarMarks> ReadStarMarks(const fs::path& source) {
  std::map<int, StarMarks> marks;
  AddPairs(source / "doubles" / "doubles.tsv", marks);
  AddVariables(source / "stars" / "variables.tsv", marks);
  AddPlanets(source / "stars" / "planet_hosts.tsv", marks);
  return marks;
}

}  // namespace skydata
