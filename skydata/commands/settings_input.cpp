// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/commands/settings_input.h"

#include <iostream>

#include "skydata/commands/command.h"
#include "skydata/files/source_error.h"
#include "skydata/files/whole_file.h"
#include "skydata/settings/text/values.h"
#include "utils/whole_file.h"

namespace skydata {

void AddSettingsFile(ArgumentList& command, const char* name, std::string& file) {
  command.Take(name, file, "settings file; - is standard input").Require();
}

void AddNamesOption(ArgumentList& command, std::string& names) {
  command.Take("--names", names, "settings text whose field names are known too").Form("TEXT");
}

FieldNames LoadNames(const std::string& names) {
  FieldNames known;
  if (!names.empty()) known.AddNamesOf(names);
  return known;
}

void ParseFieldName(const std::string& text, ExplainRequest& request) {
  const auto dot = text.find('.');
  const auto section = ParseWord(text.substr(0, dot));
  if (dot == std::string::npos || !section || dot + 1 == text.size())
    throw UsageError("FIELD", "wants SECTION.NAME, for example star.Draw");
  request.section = *section;
  request.field = text.substr(dot + 1);
}

std::pair<unsigned, unsigned> ParseBlockKey(const std::string& text) {
  const auto comma = text.find(',');
  const auto owner = ParseWord(text.substr(0, comma));
  const auto id = comma == std::string::npos ? std::nullopt : ParseWord(text.substr(comma + 1));
  if (!owner || !id) throw UsageError("--block", "wants OWNER,ID, for example FLTR,1");
  return {*owner, *id};
}

std::string ReadInput(const std::string& path) {
  if (path != kStandardStream) return ReadFile(path);
  std::string bytes, reason;
  if (!ReadWholeStream(std::cin, bytes, reason)) throw SourceError("standard input", 0, reason);
  return bytes;
}

SettingsFile LoadSettings(const std::string& path, const FieldNames& names, std::ostream& errors,
                          bool& isDamaged) {
  SettingsFile file = ReadSettingsFile(ReadInput(path), names);
  for (const Finding& finding : file.damage) errors << FormatFinding(path, finding) << '\n';
  isDamaged = isDamaged || !file.damage.empty();
  return file;
}

}  // namespace skydata
