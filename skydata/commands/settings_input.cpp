// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/commands/settings_input.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <iterator>

#include "skydata/files/whole_file.h"

namespace skydata {

void AddSettingsFile(CLI::App& command, const char* name, std::string& file) {
  command.add_option(name, file, "settings file; - is standard input")->required();
}

void AddNamesOption(CLI::App& command, std::string& names) {
  command.add_option("--names", names, "settings text whose field names are known too")->type_name("TEXT");
}

FieldNames LoadNames(const std::string& names) {
  FieldNames known;
  if (!names.empty()) known.AddNamesOf(names);
  return known;
}

std::string ReadInput(const std::string& path) {
  return path == kStandardStream ? std::string{std::istreambuf_iterator<char>(std::cin), {}} : ReadFile(path);
}

SettingsFile LoadSettings(const std::string& path, const FieldNames& names, std::ostream& errors,
                          bool& isDamaged) {
  SettingsFile file = ReadSettingsFile(ReadInput(path), names);
  for (const Finding& finding : file.damage) errors << FormatFinding(path, finding) << '\n';
  isDamaged = isDamaged || !file.damage.empty();
  return file;
}

}  // namespace skydata
