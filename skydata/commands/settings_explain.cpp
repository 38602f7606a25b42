// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <memory>
#include <ostream>

#include "skydata/commands/command.h"
#include "skydata/commands/settings_input.h"
#include "skydata/settings/explain.h"

namespace skydata {
namespace {

struct Arguments {
  std::string file, field, block, defaults, names;
};

ExplainRequest MakeRequest(const Arguments& arguments) {
  ExplainRequest request;
  request.fileName = arguments.file;
  request.defaultsName = arguments.defaults.empty() ? arguments.file : arguments.defaults;
  ParseFieldName(arguments.field, request);
  if (!arguments.block.empty()) request.key = ParseBlockKey(arguments.block);
  return request;
}

int Explain(const Arguments& arguments, std::ostream& output, std::ostream& errors) {
  const ExplainRequest request = MakeRequest(arguments);
  const FieldNames names = LoadNames(arguments.names);
  bool isDamaged = false;
  const SettingsFile file = LoadSettings(request.fileName, names, errors, isDamaged);
  const bool isSame = request.defaultsName == request.fileName;
  const SettingsFile defaults = isSame ? file : LoadSettings(request.defaultsName, names, errors, isDamaged);
  const bool isFound = ExplainField(request, file, defaults, names, output, errors);
  return isFound && !isDamaged ? kDone : kBadData;
}

}  // namespace

Action DeclareSettingsExplain(ArgumentList& command) {
  const auto arguments = std::make_shared<Arguments>();
  AddSettingsFile(command, "FILE", arguments->file);
  command.Take("FIELD", arguments->field, "SECTION.NAME, for example star.Draw").Require();
  command.Take("--block", arguments->block, "the container, where several have the field").Form("OWNER,ID");
  command.Take("--defaults", arguments->defaults, "file with the defaults, unless it is FILE").Form("FILE");
  AddNamesOption(command, arguments->names);
  return
      [arguments](std::ostream& output, std::ostream& errors) { return Explain(*arguments, output, errors); };
}

}  // namespace skydata
