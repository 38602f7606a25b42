// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <memory>
#include <ostream>

#include "skydata/commands/command.h"
#include "skydata/commands/settings_input.h"
#include "skydata/files/whole_file.h"
#include "skydata/settings/set.h"

namespace skydata {
namespace {

struct Arguments {
  std::string file, change, block, names;
};

std::vector<std::string> SplitAtCommas(const std::string& text) {
  std::vector<std::string> parts;
  for (std::size_t begin = 0, comma = 0; comma != std::string::npos; begin = comma + 1) {
    comma = text.find(',', begin);
    parts.push_back(text.substr(begin, comma == std::string::npos ? comma : comma - begin));
  }
  return parts;
}

int Set(const Arguments& arguments, std::ostream& output) {
  const auto equals = arguments.change.find('=');
  if (equals == std::string::npos)
    throw UsageError("'" + arguments.change + "'", "wants SECTION.FIELD=VALUE, for example star.Draw=0");
  ExplainRequest request;
  request.fileName = request.defaultsName = arguments.file;
  ParseFieldName(arguments.change.substr(0, equals), request);
  if (!arguments.block.empty()) request.key = ParseBlockKey(arguments.block);
  const std::string values = arguments.change.substr(equals + 1);
  const FieldNames names = LoadNames(arguments.names);
  const std::string bytes = ReadFile(arguments.file);
  ReplaceFile(arguments.file, SetFieldValues(request, SplitAtCommas(values), bytes, names));
  output << arguments.file << ": " << arguments.change << '\n';
  return kDone;
}

}  // namespace

Action DeclareSettingsSet(ArgumentList& command) {
  const auto arguments = std::make_shared<Arguments>();
  command.Take("FILE", arguments->file, "settings file, which is replaced whole").Require();
  command.Take("CHANGE", arguments->change, "SECTION.FIELD=VALUE[,VALUE...], as many values as it has")
      .Require();
  command.Take("--block", arguments->block, "the container, where several have the field").Form("OWNER,ID");
  AddNamesOption(command, arguments->names);
  return [arguments](std::ostream& output, std::ostream&) { return Set(*arguments, output); };
}

}  // namespace skydata
