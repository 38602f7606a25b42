// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The reader of skydata, which takes settings files apart whole or damaged: check and dump them, and build
// again what the text says.
#include <algorithm>
#include <cstdint>
#include <sstream>
#include <string>

#include "fuzz/scratch.h"
#include "skydata/files/source_error.h"
#include "skydata/settings/check.h"
#include "skydata/settings/diff.h"
#include "skydata/settings/dump.h"
#include "skydata/settings/reader/file_reader.h"
#include "skydata/settings/text/compiler.h"
#include "skydata/settings/text/parser.h"

namespace {

using namespace skydata;

const FieldNames& Names() {
  static const FieldNames names;
  return names;
}

std::string Dump(const SettingsFile& file) {
  std::ostringstream text;
  WriteSettingsText(file, text);
  return text.str();
}

// Whether nothing was found that keeps the file from being written as text.
bool CanBeText(const std::vector<Finding>& findings) {
  return std::none_of(findings.begin(), findings.end(),
                      [](const Finding& finding) { return KindOf(finding.code).keepsFromText; });
}

void Look(const std::string& bytes, RecordLayout undecided) {
  const SettingsFile file = ReadSettingsFile(bytes, Names(), undecided);
  const auto findings = CheckSettings(bytes, file, Names(), FileKind::kSettings);
  for (const Finding& finding : findings) {
    fuzz::Require(finding.offset <= bytes.size(), "a finding stands in the file");
    fuzz::Require(!FormatFindingAsJson("file", finding).empty(), "a finding can be shown");
  }
  fuzz::Require(!file.blocks.empty() || !findings.empty(), "a file without a block has a finding");
  std::ostringstream difference;
  fuzz::Require(!DiffSettings(file, file, difference), "a file is the same as itself");

  if (file.blocks.empty()) return;
  const std::string text = Dump(file);
  std::string built;
  try {
    built = CompileSettings(ParseSettingsText(text, "dump"), fuzz::Scratch::Get().Path("work"));
  } catch (const SourceError& error) {
    fuzz::Require(false, error.what());
  }
  if (CanBeText(findings)) fuzz::Require(built == bytes, "a dump builds the same bytes again");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  fuzz::Scratch::Get();
  Look(bytes, RecordLayout::kCurrent);
  Look(bytes, RecordLayout::kOld);
  return 0;
}
