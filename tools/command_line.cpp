// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "tools/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <ostream>

#include "tools/data_root.h"
#include "tools/source_error.h"

namespace skydata {
namespace {

struct Arguments {
  std::string source, out;
  std::string language = "en";
};

void Declare(CLI::App& app, Arguments& arguments) {
  app.require_subcommand(1);
  CLI::App* build = app.add_subcommand("build", "make the data root from the readable sources");
  build->add_option("SOURCE", arguments.source, "folder of the sources, for example data/source")->required();
  build->add_option("OUT", arguments.out, "folder to make, or to bring up to date, file by file")->required();
  build->add_option("--language", arguments.language, "folder below SOURCE/strings that the texts come from")
      ->type_name("NAME")
      ->capture_default_str();
}

int Build(const Arguments& arguments, std::ostream& output, std::ostream& errors) {
  try {
    const int count = BuildDataRoot(arguments.source, arguments.out, arguments.language);
    output << arguments.out << ": " << count << " files\n";
    return kDone;
  } catch (const SourceError& error) {
    errors << error.what() << '\n';
  } catch (const std::exception& error) {
    errors << arguments.source << ": " << error.what() << '\n';
  }
  return kBadData;
}

}  // namespace

int Run(const std::vector<std::string>& arguments, std::ostream& output, std::ostream& errors) {
  Arguments values;
  CLI::App app("Makes the data root that the library and its applications read.", "skydata");
  app.allow_windows_style_options(false);  // a path may begin with a slash on every system
  Declare(app, values);
  try {
    // The parser takes its arguments from the back.
    app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
  } catch (const CLI::CallForHelp&) {
    output << (app.get_subcommands().empty() ? app.help() : app.get_subcommands().front()->help());
    return kDone;
  } catch (const CLI::Error& error) {
    std::string line = error.what();
    std::replace(line.begin(), line.end(), '\n', ' ');
    errors << "skydata: " << line << " (skydata --help)\n";
    return kBadUsage;
  }
  return Build(values, output, errors);
}

}  // namespace skydata
