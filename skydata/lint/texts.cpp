// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Small text files: year limits, homes, gazetteers, pages for people.
#include <algorithm>

#include "astro/object_id.h"
#include "common_interfaces/camera.h"
#include "common_interfaces/dates.h"
#include "common_interfaces/gazetteers.h"
#include "skydata/files/object_names.h"
#include "skydata/files/source_error.h"
#include "skydata/files/year_limits.h"
#include "skydata/lint/rules.h"
#include "utils/text.h"

namespace skydata {
namespace {

constexpr char kGazetteers[] = "gazetteers/";

TextRules AnyLength() {
  TextRules rules;
  rules.maxLine = 0;
  return rules;
}

}  // namespace

void LintYearLimits(const LintFile& file, LintRun& run) {
  LintReport report(file.name, run.findings);
  ReadLintLines(file.bytes, AnyLength(), report);
  try {
    CheckYearLimits(file.path);
  } catch (const SourceError& error) {
    report.Add(LintCode::kYearLimits, error.GetLine(), 0, error.GetMessage());
  }
  const ReaderWatch watch;
  CommonInterfaces::ReadLimitYears(true);
  AddMessages(watch, {}, report);
  CommonInterfaces::SetMinimumYear(-1);  // whoever asks next reads the file of its own data root
}

void LintHomes(const LintFile& file, LintRun& run) {
  LintReport report(file.name, run.findings);
  TextRules rules = AnyLength();
  rules.mayBeEmpty = true;
  rules.isUtf8 = false;  // names of places are in the code page of the language
  const TextLines lines = ReadLintLines(file.bytes, rules, report);
  const ReaderWatch watch;
  const CommonInterfaces::Camera reader(1);
  AddMessages(watch, lines, report);
}

void LintText(const LintFile& file, LintRun& run) {
  LintReport report(file.name, run.findings);
  TextRules rules = AnyLength();
  rules.mayBeginWithMark = false;
  ReadLintLines(file.bytes, rules, report);
}

void LintGazetteers(LintRun& run) {
  const auto isGazetteer = [](const LintFile& file) { return file.kind == DataKind::kGazetteer; };
  if (std::none_of(run.files.begin(), run.files.end(), isGazetteer)) return;
  for (const SSO_ID& body : {SSO_ID(FourCC("plnt"), 1), SSO_ID(FourCC("plnt"), 2), SSO_ID(FourCC("plnt"), 4),
                             SSO_ID(FourCC("moon"), 301)}) {
    const std::string name = CommonInterfaces::GetGazetteersFileName(body);
    const bool isThere = std::any_of(run.files.begin(), run.files.end(),
                                     [&name](const LintFile& file) { return file.name == name; });
    if (isThere) continue;
    LintReport(kGazetteers, run.findings)
        .Add(LintCode::kMissingGazetteer, 0, 0,
             "the gazetteer of " + NameObject(body.kind, body.number) + ", '" + name + "', is missing");
  }
}

}  // namespace skydata
