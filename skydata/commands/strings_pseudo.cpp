// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <CLI/CLI.hpp>
#include <memory>
#include <ostream>

#include "skydata/commands/command.h"
#include "skydata/commands/strings_options.h"
#include "skydata/files/whole_file.h"
#include "skydata/strings/pseudo.h"

namespace skydata {
namespace {

struct Arguments {
  std::vector<std::string> file;  // one
  std::string out, language;
  StringsEncoding encoding = StringsEncoding::kDetect;
};

int Pseudo(const Arguments& arguments, std::ostream& output) {
  const StringsSource source = ReadStrings(arguments.file.front(), arguments.language, arguments.encoding);
  const std::string table = MakePseudoLanguage(source);
  if (arguments.out.empty()) {
    output << table;
  } else {
    ReplaceFile(arguments.out, table);
  }
  return kDone;
}

}  // namespace

Action DeclareStringsPseudo(CLI::App& command) {
  const auto arguments = std::make_shared<Arguments>();
  command.add_option("FILE", arguments->file, "string table to disguise")->required()->expected(1);
  command.add_option("--out", arguments->out, "file to write in place of the standard output")
      ->type_name("OUT");
  AddLanguageOption(command, arguments->language);
  AddEncodingOption(command, arguments->encoding);
  return [arguments](std::ostream& output, std::ostream&) { return Pseudo(*arguments, output); };
}

}  // namespace skydata
