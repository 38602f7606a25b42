// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <memory>
#include <ostream>

#include "skydata/commands/command.h"
#include "skydata/commands/settings_input.h"
#include "skydata/files/whole_file.h"
#include "skydata/settings/text/compiler.h"
#include "skydata/settings/text/parser.h"

namespace skydata {
namespace {

struct Arguments {
  std::string text, out;
};

int BuildSettings(const Arguments& arguments, std::ostream& output) {
  const SettingsDocument document = ParseSettingsText(ReadInput(arguments.text), arguments.text);
  const std::string bytes = CompileSettings(document, std::filesystem::temp_directory_path());
  if (arguments.out == kStandardStream) {
    output.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  } else {
    ReplaceFile(arguments.out, bytes);
    output << arguments.out << ": " << bytes.size() << " bytes\n";
  }
  return kDone;
}

}  // namespace

Action DeclareSettingsBuild(ArgumentList& command) {
  const auto arguments = std::make_shared<Arguments>();
  command.Take("TEXT", arguments->text, "settings text; - is standard input").Require();
  command.Take("OUT", arguments->out, "file to make or to replace; - is standard output").Require();
  return [arguments](std::ostream& output, std::ostream&) { return BuildSettings(*arguments, output); };
}

}  // namespace skydata
