// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Two-line elements of satellites: sets of two lines, a line with the name before them where there is one.
#include <cstdio>

#include "astro/satellite.h"
#include "skydata/files/object_names.h"
#include "skydata/lint/rules.h"
#include "utils/text.h"

namespace skydata {
namespace {

constexpr int kSatellite = FourCC("scft");

struct SatelliteReader {
  LintReport& report;
  TextLine first = {};  // the first line of a set whose second has not come; number 0: none
  FirstLines<int> numbers = {};

  void Take(const TextLine& line) {
    const bool isFirst = line.text.starts_with("1 "), isSecond = line.text.starts_with("2 ");
    if (isSecond && first.number > 0) {
      TakeSet(line);
    } else if (isSecond) {
      report.Add(LintCode::kTwoLineElements, line.number, 0, "the first line of the set is missing");
    } else {
      Finish();
    }
    first = isFirst ? line : TextLine();
  }

  void Finish() {
    if (first.number > 0) {
      report.Add(LintCode::kTwoLineElements, first.number, 0, "the second line of the set is missing");
    }
    first = {};
  }

 private:
  // "line 2, column 69: what is wrong", "line 1, columns 3 to 7: ...".
  void AddError(const TextLine& second, const std::string& error) {
    int line = 1, column = 0;
    if (std::sscanf(error.c_str(), "line %d, column %d", &line, &column) < 2) {
      std::sscanf(error.c_str(), "line %d, columns %d", &line, &column);
    }
    report.Add(LintCode::kTwoLineElements, line == 2 ? second.number : first.number, column, error);
  }

  void TakeSet(const TextLine& second) {
    OrbitalElements elements;
    int number = 0;
    std::string error;
    if (!ParseTwoLineElements(first.text, second.text, elements, number, error)) {
      AddError(second, error);
      return;
    }
    if (SatelliteModel(elements).GetFault() != SatelliteFault::kNone) {
      report.Add(LintCode::kOutOfRange, first.number, 0,
                 NameObject(kSatellite, number) + ": no orbit has these elements");
    }
    if (const int earlier = numbers.Note(number, first.number)) {
      report.Add(LintCode::kDuplicate, first.number, 3,
                 NameObject(kSatellite, number) + " stands in line " + std::to_string(earlier) + " already");
    }
  }
};

}  // namespace

void CollectSatellites(const LintFile& file, LintRun& run) {
  std::string first;
  for (const TextLine& line : SplitPlainLines(file.bytes)) {
    OrbitalElements elements;
    int number = 0;
    std::string error;
    if (ParseTwoLineElements(first, line.text, elements, number, error)) run.objects.Add(kSatellite, number);
    first = line.text;
  }
}

void LintTwoLineElements(const LintFile& file, LintRun& run) {
  LintReport report(file.name, run.findings);
  const ReaderWatch watch;
  SatelliteReader reader{report};
  TextRules rules;
  rules.maxLine = 0;
  rules.mayBeginWithMark = false;
  for (const TextLine& line : ReadLintLines(file.bytes, rules, report)) {
    if (!IsBlankText(line.text) && line.text[0] != '#') reader.Take(line);
  }
  reader.Finish();
  AddMessages(watch, {}, report);
}

}  // namespace skydata
