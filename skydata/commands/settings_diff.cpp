// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <memory>
#include <ostream>

#include "skydata/commands/command.h"
#include "skydata/commands/settings_input.h"
#include "skydata/settings/diff.h"

namespace skydata {
namespace {

struct Arguments {
  std::string first, second, names;
};

// As other programs that compare files: 1 says that they differ, 2 that they could not be compared whole.
int Diff(const Arguments& arguments, std::ostream& output, std::ostream& errors) {
  try {
    const FieldNames names = LoadNames(arguments.names);
    bool isDamaged = false;
    const SettingsFile first = LoadSettings(arguments.first, names, errors, isDamaged);
    const SettingsFile second = LoadSettings(arguments.second, names, errors, isDamaged);
    const bool isDifferent = DiffSettings(first, second, output);
    return isDamaged ? kBadUsage : isDifferent ? kBadData : kDone;
  } catch (const std::exception& error) {
    errors << error.what() << '\n';
    return kBadUsage;
  }
}

}  // namespace

Action DeclareSettingsDiff(ArgumentList& command) {
  const auto arguments = std::make_shared<Arguments>();
  AddSettingsFile(command, "A", arguments->first);
  AddSettingsFile(command, "B", arguments->second);
  AddNamesOption(command, arguments->names);
  return [arguments](std::ostream& output, std::ostream& errors) { return Diff(*arguments, output, errors); };
}

}  // namespace skydata
