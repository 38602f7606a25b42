// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <memory>
#include <ostream>

#include "skydata/build/data_root.h"
#include "skydata/commands/command.h"

namespace skydata {
namespace {

struct Arguments {
  std::string source, out;
  std::string language = "en";
};

int Build(const Arguments& arguments, std::ostream& output) {
  const int count = BuildDataRoot(arguments.source, arguments.out, arguments.language);
  output << arguments.out << ": " << count << " files\n";
  return kDone;
}

}  // namespace

Action DeclareBuild(ArgumentList& command) {
  const auto arguments = std::make_shared<Arguments>();
  command.Take("SOURCE", arguments->source, "folder of the sources, for example data/source").Require();
  command.Take("OUT", arguments->out, "folder to make, or to bring up to date, file by file").Require();
  command.Take("--language", arguments->language, "folder below SOURCE/strings of the default texts")
      .Form("NAME")
      .ShowDefault();
  return [arguments](std::ostream& output, std::ostream&) { return Build(*arguments, output); };
}

}  // namespace skydata
