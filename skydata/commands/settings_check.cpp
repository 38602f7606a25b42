// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <memory>
#include <ostream>

#include "skydata/commands/command.h"
#include "skydata/commands/settings_input.h"
#include "skydata/files/source_error.h"
#include "skydata/files/whole_file.h"
#include "skydata/settings/check.h"
#include "utils/json.h"

namespace skydata {
namespace {

struct Arguments {
  std::vector<std::string> files;
  std::string names;
  bool isJson = false;
};

// A file that cannot be read is a finding like any other.
std::vector<Finding> CheckFile(const std::string& path, const FieldNames& names) {
  try {
    const std::string bytes = ReadInput(path);
    return CheckSettings(bytes, ReadSettingsFile(bytes, names), names, KindOfFile(path));
  } catch (const SourceError& error) {
    return {{FindingCode::kUnreadable, 0, DescribeRefusal(error, "is missing or cannot be read")}};
  }
}

int Check(const Arguments& arguments, std::ostream& output) {
  const FieldNames names = LoadNames(arguments.names);
  int result = kDone;
  std::vector<std::string> elements;
  for (const std::string& path : arguments.files) {
    for (const Finding& finding : CheckFile(path, names)) {
      if (KindOf(finding.code).severity != Severity::kInfo) result = kBadData;
      if (arguments.isJson) {
        elements.push_back(FormatFindingAsJson(path, finding));
      } else {
        output << FormatFinding(path, finding) << '\n';
      }
    }
  }
  if (arguments.isJson) output << JsonArray(elements, "  ");
  return result;
}

}  // namespace

Action DeclareSettingsCheck(ArgumentList& command) {
  const auto arguments = std::make_shared<Arguments>();
  command.Take("FILES", arguments->files, "settings files; - is standard input").Require();
  AddNamesOption(command, arguments->names);
  command.TakeFlag("--json", arguments->isJson, "an array of objects: file, offset, code, severity, text");
  return [arguments](std::ostream& output, std::ostream&) { return Check(*arguments, output); };
}

}  // namespace skydata
