// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <optional>

#include "common_interfaces/planets_and_moons.h"
#include "skydata/files/object_names.h"
#include "skydata/lint/rules.h"
#include "utils/text.h"

namespace skydata {
namespace {

constexpr int kPlanet = FourCC("plnt"), kMoon = FourCC("moon");
constexpr int kMoonsOfPlanet = 100;
constexpr int kFirstMoon = 101;
constexpr int kMaxNumber = 999999;

struct Body {
  int line = 0, column = 0;
  std::string name;
};
using Bodies = std::map<std::pair<int, int>, Body>;

std::string Trim(const std::string& text) {
  std::string trimmed = text;
  DeleteBorderSpace(trimmed.data());
  return trimmed.c_str();
}

std::optional<int> ReadNumber(const FieldPlace& place, int kind) {
  if (kind == kPlanet) return ReadInteger(place, 1, kMaxNumber);
  return kind == kMoon ? ReadInteger(place, kFirstMoon, kMaxNumber) : ReadInteger(place);
}

void AddBody(const TextLine& line, Bodies& bodies, LintReport& report) {
  const auto fields = SplitAtTabs(line);
  if (!HasFields(line, fields, 3, 4, report)) return;
  const auto kind = ReadKind({line, fields[0], "kind", report});
  const auto number = kind ? ReadNumber({line, fields[1], "number", report}, *kind) : std::nullopt;
  if (!number) return;
  CheckName({line, fields[2], "name", report});
  if (fields.size() > 3 && !ReadInteger({line, fields[3], "flag", report}, 0, 1)) return;
  const auto [place, isNew] =
      bodies.emplace(std::pair(*kind, *number), Body{line.number, fields[1].column, Trim(fields[2].text)});
  if (isNew) return;
  report.Add(
      LintCode::kDuplicate, line.number, fields[1].column,
      NameObject(*kind, *number) + " stands in line " + std::to_string(place->second.line) + " already");
  place->second.name = Trim(fields[2].text);
}

bool HasBody(const Bodies& bodies, int kind, int number) { return bodies.count({kind, number}) > 0; }

bool IsInRange(int kind, int number) {
  return kind == kPlanet ? number >= 1 : kind == kMoon && number >= kFirstMoon;
}

// Enumerations end at the first missing number.
void CheckGaps(const Bodies& bodies, LintReport& report) {
  for (const auto& [key, body] : bodies) {
    const auto [kind, number] = key;
    const bool isFirst = kind == kPlanet ? number == 1 : number % kMoonsOfPlanet == 1;
    if (!IsInRange(kind, number) || isFirst || HasBody(bodies, kind, number - 1)) continue;
    report.Add(
        LintCode::kGap, body.line, body.column,
        NameObject(kind, number) + " is never reached: " + NameObject(kind, number - 1) + " is missing");
  }
}

void CheckParents(const Bodies& bodies, LintReport& report) {
  for (const auto& [key, body] : bodies) {
    const int planet = key.second / kMoonsOfPlanet;
    if (key.first != kMoon || key.second < kFirstMoon || HasBody(bodies, kPlanet, planet)) continue;
    report.Add(LintCode::kDanglingReference, body.line, body.column,
               NameObject(key.first, key.second) + " goes around " + NameObject(kPlanet, planet) +
                   ", which is not here");
  }
}

void CompareWithReader(const Bodies& bodies, const TextLines& lines, LintReport& report) {
  const ReaderWatch watch;
  const CommonInterfaces::PlanetMoonDescription description;
  AddMessages(watch, lines, report);
  for (const auto& [key, body] : bodies) {
    const char* const name = description.GetObjectName({key.first, key.second});
    if (name && body.name == name) continue;
    report.Add(LintCode::kReaderDiffers, body.line, body.column,
               "the reader has " + (name ? "the name '" + std::string(name) + "'" : std::string("no name")) +
                   " of " + NameObject(key.first, key.second));
  }
}

}  // namespace

void LintPlanets(const LintFile& file, LintRun& run) {
  LintReport report(file.name, run.findings);
  const TextLines lines = ReadLintLines(file.bytes, {}, report);
  Bodies bodies;
  for (const TextLine& line : lines) AddBody(line, bodies, report);
  CheckGaps(bodies, report);
  CheckParents(bodies, report);
  CompareWithReader(bodies, lines, report);
}

}  // namespace skydata
