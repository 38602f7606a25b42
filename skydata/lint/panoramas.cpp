// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/panoramas.h"
#include "skydata/files/object_names.h"
#include "skydata/lint/rules.h"
#include "utils/file.h"

namespace skydata {
namespace {

constexpr int kFields = 7;
constexpr int kMaxShort = 65535, kMaxAzimuth = 359, kNotGiven = 65535;

using Body = std::pair<int, int>;

// What the lines before have.
struct Seen {
  std::map<Body, int> bodies;  // how many landscapes each has
  FirstLines<std::vector<int>> ids;
  FirstLines<Body> defaults;
};

void CheckPicture(const TextLine& line, const TextField& field, const LintFile& file, LintReport& report) {
  const std::string folder = file.path.substr(0, file.path.find_last_of("/\\") + 1);
  if (!IsBlankText(field.text) && MFile().Open((folder + field.text).c_str(), MFile::kRead)) return;
  report.Add(LintCode::kMissingFile, line.number, field.column, "there is no file '" + field.text + "'");
}

void CheckAzimuth(const TextLine& line, const TextField& field, LintReport& report) {
  const auto azimuth = ReadInteger({line, field, "azimuth", report});
  if (!azimuth || *azimuth == kNotGiven || (*azimuth >= 0 && *azimuth <= kMaxAzimuth)) return;
  report.Add(LintCode::kOutOfRange, line.number, field.column,
             "azimuth " + std::to_string(*azimuth) + " is not from 0 to 359");
}

// `first`: the line that has it already, 0 when none has.
void CheckRepeated(const std::string& what, int first, const TextLine& line, const TextField& field,
                   LintReport& report) {
  if (first == 0) return;
  report.Add(LintCode::kDuplicate, line.number, field.column,
             what + " stands in line " + std::to_string(first) + " already");
}

void CheckLine(const TextLine& line, const LintFile& file, const LintRun& run, Seen& seen,
               LintReport& report) {
  const auto fields = SplitAtTabs(line);
  if (IsBlankText(line.text) || !HasFields(line, fields, kFields, kFields, report)) return;
  const auto kind = ReadKind({line, fields[0], "kind", report});
  const auto number = ReadInteger({line, fields[1], "number", report});
  CheckPicture(line, fields[2], file, report);
  const auto flag = ReadInteger({line, fields[3], "flag", report}, 0, 1);
  const auto id = ReadInteger({line, fields[4], "identifier", report}, 0, kMaxShort);
  CheckAzimuth(line, fields[6], report);
  if (!kind || !number) return;
  const std::string ofBody = " of " + NameObject(*kind, *number);
  ++seen.bodies[{*kind, *number}];
  CheckReference(run, *kind, *number, line.number, fields[1].column, report);
  if (flag && *flag > 0) {
    const int first = seen.defaults.Note({*kind, *number}, line.number);
    CheckRepeated("a default" + ofBody, first, line, fields[3], report);
  }
  if (id) {
    const int first = seen.ids.Note({*kind, *number, *id}, line.number);
    CheckRepeated("identifier " + std::to_string(*id) + ofBody, first, line, fields[4], report);
  }
}

}  // namespace

void LintPanoramas(const LintFile& file, LintRun& run) {
  LintReport report(file.name, run.findings);
  Seen seen;
  for (const TextLine& line : ReadLintLines(file.bytes, {}, report)) {
    CheckLine(line, file, run, seen, report);
  }
  const ReaderWatch watch;
  const CommonInterfaces::PanoramaDesc reader(file.path.c_str());
  AddMessages(watch, {}, report);
  for (const auto& [body, count] : seen.bodies) {
    const auto* const panoramas = reader.GetPanoramas({body.first, body.second});
    CompareCounts(panoramas ? static_cast<int>(panoramas->size()) : 0, count, report);
  }
}

}  // namespace skydata
