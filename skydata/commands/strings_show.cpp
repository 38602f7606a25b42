// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
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

Action DeclareStringsShow(ArgumentList& command) {
  const auto arguments = std::make_shared<Arguments>();
  Argument file = command.Take("FILE", arguments->file, "string table in place of the data root's");
  file.AtMostOnce();
  const Argument language = AddLanguageOption(command, arguments->language);
  command.Take("--data", arguments->data, "data root; else the one beside this program")
      .Form("ROOT")
      .Excludes(file)
      .Needs(language);
  command.RequireAny();  // a file or a language
  return [arguments](std::ostream& output, std::ostream&) { return Show(*arguments, output); };
}

}  // namespace skydata
