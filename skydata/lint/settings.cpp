// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <algorithm>

#include "common_interfaces/settings_data.h"
#include "skydata/lint/rules.h"
#include "skydata/settings/check.h"
#include "skydata/settings/reader/file_reader.h"

namespace skydata {
namespace {

using CommonInterfaces::SettingsData;

// The block, and the field in it, that an offset of the file belongs to; both from 1 on.
std::pair<int, int> FindPlace(const SettingsFile& file, std::size_t offset) {
  int line = 0, column = 0;
  for (const FileBlock& block : file.blocks) {
    if (block.offset > offset) break;
    ++line;
    const auto isAbove = [offset](const FileField& field) { return field.offset <= offset; };
    column = static_cast<int>(std::count_if(block.fields.begin(), block.fields.end(), isAbove));
  }
  return {line, column};
}

void CompareBlock(const FileBlock& block, int line, const LintFile& file, LintReport& report) {
  SettingsData settings(static_cast<int>(block.id), block.owner, file.path.c_str());
  if (settings.Read(file.path.c_str())) return;
  report.Add(LintCode::kReaderDiffers, line, 0, "the reader does not take " + DescribeBlock(block));
}

}  // namespace

void LintSettings(const LintFile& file, LintRun& run) {
  LintReport report(file.name, run.findings);
  const FieldNames names;
  const SettingsFile settings = ReadSettingsFile(file.bytes, names);
  const FileKind kind = KindOfFile(file.name);
  for (const Finding& finding : CheckSettings(file.bytes, settings, names, kind)) {
    const FindingKind& what = KindOf(finding.code);
    if (what.severity == Severity::kInfo) continue;
    const auto [line, column] = FindPlace(settings, finding.offset);
    report.Add(what.severity, what.code, line, column, finding.text);
  }
  if (kind == FileKind::kCorrection) return;
  const ReaderWatch watch;
  int line = 0;
  for (const FileBlock& block : settings.blocks) {
    ++line;
    if (!report.HasFindings()) CompareBlock(block, line, file, report);
  }
  AddMessages(watch, {}, report);
}

}  // namespace skydata
