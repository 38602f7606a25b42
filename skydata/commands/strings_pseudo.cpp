// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <memory>
#include <ostream>

#include "skydata/commands/command.h"
#include "skydata/commands/strings_options.h"
#include "skydata/files/whole_file.h"
#include "skydata/strings/pseudo.h"

namespace skydata {
namespace {

struct Arguments {
  std::string file;
  std::string out, language;
  StringsEncoding encoding = StringsEncoding::kDetect;
};

int Pseudo(const Arguments& arguments, std::ostream& output) {
  const StringsSource source = ReadStrings(arguments.file, arguments.language, arguments.encoding);
  const std::string table = MakePseudoLanguage(source);
  if (arguments.out.empty()) {
    output << table;
  } else {
    ReplaceFile(arguments.out, table);
  }
  return kDone;
}

}  // namespace

Action DeclareStringsPseudo(ArgumentList& command) {
  const auto arguments = std::make_shared<Arguments>();
  command.Take("FILE", arguments->file, "string table to disguise").Require();
  command.Take("--out", arguments->out, "file to write in place of the standard output").Form("OUT");
  AddLanguageOption(command, arguments->language);
  AddEncodingOption(command, arguments->encoding);
  return [arguments](std::ostream& output, std::ostream&) { return Pseudo(*arguments, output); };
}

}  // namespace skydata
