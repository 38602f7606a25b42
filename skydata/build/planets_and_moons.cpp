// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <map>

#include "skydata/build/catalog_files.h"
#include "skydata/build/source_table.h"

namespace skydata {
namespace {

enum BodyColumn { kKind, kNumber, kName, kFlag };

constexpr char kPlanet[] = "plnt";
constexpr char kMoon[] = "moon";
constexpr int kMoonsPerPlanet = 100;
constexpr int kLastPlanet = 99;
constexpr int kLastMoon = kLastPlanet * kMoonsPerPlanet + kMoonsPerPlanet - 1;
constexpr std::size_t kLongestName = 79;  // with its zero it fills the name of an SSO_ID

// Row of each body by kind and number.
using Bodies = std::map<std::pair<std::string, int>, int>;

void AddBody(const SourceTable& table, int row, Bodies& bodies) {
  const std::string& kind = table.GetText(row, kKind);
  if (kind != kPlanet && kind != kMoon) table.Fail(row, kKind, "'" + kind + "' is neither plnt nor moon");
  const int number = table.GetInteger(row, kNumber, 1, kind == kPlanet ? kLastPlanet : kLastMoon);
  if (kind == kMoon && (number < kMoonsPerPlanet || number % kMoonsPerPlanet == 0))
    table.Fail(row, kNumber, std::to_string(number) + " is not planet * 100 + k, k from 1 on");
  const std::string& name = table.GetText(row, kName);
  if (name.empty()) table.Fail(row, kName, "must not be empty");
  if (name.size() > kLongestName) table.Fail(row, kName, "is longer than 79 bytes");
  if (!bodies.emplace(std::pair(kind, number), row).second)
    table.Fail(row, kNumber, kind + " " + std::to_string(number) + " stands above already");
}

void WantBody(const SourceTable& table, int row, const Bodies& bodies, const char* kind, int number) {
  if (bodies.count({kind, number}) == 0)
    table.Fail(row, kNumber, std::string(kind) + " " + std::to_string(number) + " is missing before it");
}

// Enumerations end at the first number that is missing.
void CheckGaps(const SourceTable& table, const Bodies& bodies) {
  for (const auto& [body, row] : bodies) {
    const auto& [kind, number] = body;
    if (kind == kMoon) WantBody(table, row, bodies, kPlanet, number / kMoonsPerPlanet);
    const bool isFirst = kind == kMoon ? number % kMoonsPerPlanet == 1 : number == 1;
    if (!isFirst) WantBody(table, row, bodies, kind.c_str(), number - 1);
  }
}

}  // namespace

std::string MakePlanetsAndMoons(const std::filesystem::path& source) {
  const SourceTable table(source / "bodies" / "planets_moons.tsv", {"Kind", "Number", "Name", "Flag"});
  Bodies bodies;
  std::string bytes;
  for (int row = 0; row < table.GetRowCount(); ++row) {
    AddBody(table, row, bodies);
    bytes += table.GetText(row, kKind) + '\t' + std::to_string(table.GetInteger(row, kNumber, 1, kLastMoon)) +
             '\t' + table.GetText(row, kName);
    if (!table.GetText(row, kFlag).empty())
      bytes += '\t' + std::to_string(table.GetInteger(row, kFlag, 0, 1));
    bytes += '\n';
  }
  CheckGaps(table, bodies);
  return bytes;
}

}  // namespace skydata
