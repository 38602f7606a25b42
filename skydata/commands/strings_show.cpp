// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <CLI/CLI.hpp>
#include <memory>
#include <ostream>

#include "skydata/commands/command.h"
#include "skydata/commands/strings_options.h"
#include "skydata/strings/show.h"

namespace skydata {
namespace {

struct Arguments {
  std::vector<std::string> file;  // none or one
  std::string language, data;
};

int Show(const Arguments& arguments, std::ostream& output) {
  if (!arguments.file.empty()) {
    output << ShowFile(arguments.file.front(), arguments.language);
  } else {
    std::filesystem::path data = arguments.data;
    if (data.empty()) data = FindDataRoot();
    output << ShowLanguage(data, arguments.language);
  }
  return kDone;
}

}  // namespace

Action DeclareStringsShow(CLI::App& command) {
  const auto arguments = std::make_shared<Arguments>();
  CLI::Option* const file =
      command.add_option("FILE", arguments->file, "string table in place of the data root's");
  file->expected(0, 1);
  CLI::Option* const language = AddLanguageOption(command, arguments->language);
  command.add_option("--data", arguments->data, "data root; else the one beside this program")
      ->type_name("ROOT")
      ->excludes(file)
      ->needs(language);
  command.require_option(1, 0);  // a file or a language
  return [arguments](std::ostream& output, std::ostream&) { return Show(*arguments, output); };
}

}  // namespace skydata
