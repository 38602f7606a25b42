// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <memory>
#include <ostream>

#include "skydata/commands/command.h"
#include "skydata/commands/settings_input.h"
#include "skydata/settings/check.h"
#include "skydata/settings/dump.h"

namespace skydata {
namespace {

struct Arguments {
  std::string file, names;
};

int Dump(const Arguments& arguments, std::ostream& output, std::ostream& errors) {
  const FieldNames names = LoadNames(arguments.names);
  const std::string bytes = ReadInput(arguments.file);
  const SettingsFile file = ReadSettingsFile(bytes, names);
  WriteSettingsText(file, output);
  int result = kDone;
  for (const Finding& finding : CheckSettings(bytes, file, names, KindOfFile(arguments.file))) {
    if (!KindOf(finding.code).keepsFromText) continue;
    errors << FormatFinding(arguments.file, finding) << '\n';
    result = kBadData;
  }
  return result;
}

}  // namespace

Action DeclareSettingsDump(ArgumentList& command) {
  const auto arguments = std::make_shared<Arguments>();
  AddSettingsFile(command, "FILE", arguments->file);
  AddNamesOption(command, arguments->names);
  return [arguments](std::ostream& output, std::ostream& errors) { return Dump(*arguments, output, errors); };
}

}  // namespace skydata
