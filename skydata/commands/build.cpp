// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <CLI/CLI.hpp>
#include <memory>
#include <ostream>

#include "skydata/build/data_root.h"
#include "skydata/command_line.h"
#include "skydata/commands/command.h"

namespace skydata {
namespace {

struct BuildArguments {
  std::string source, out;
  std::string language = "en";
};

int Build(const BuildArguments& arguments, std::ostream& output) {
  const int count = BuildDataRoot(arguments.source, arguments.out, arguments.language);
  output << arguments.out << ": " << count << " files\n";
  return kDone;
}

}  // namespace

void DeclareBuild(CLI::App& app, Action& action) {
  const auto arguments = std::make_shared<BuildArguments>();
  CLI::App* build = app.add_subcommand("build", "make the data root from the readable sources");
  build->add_option("SOURCE", arguments->source, "folder of the sources, for example data/source")
      ->required();
  build->add_option("OUT", arguments->out, "folder to make, or to bring up to date, file by file")
      ->required();
  build->add_option("--language", arguments->language, "folder below SOURCE/strings of the default texts")
      ->type_name("NAME")
      ->capture_default_str();
  build->callback([arguments, &action] {
    action = [arguments](std::ostream& output, std::ostream&) { return Build(*arguments, output); };
  });
}

}  // namespace skydata
