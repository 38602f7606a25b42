// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <ostream>

#include "skydata/commands/command.h"

namespace skydata {
namespace {

constexpr void (*kCommands[])(CLI::App& app, Action& action) = {DeclareBuild, DeclareLint, DeclareSettings,
                                                                DeclareShow, DeclareStrings};

int RunAction(const Action& action, std::ostream& output, std::ostream& errors) {
  try {
    return action(output, errors);
  } catch (const std::exception& error) {  // a SourceError, whose text names the file, or the system's own
    errors << error.what() << '\n';
    return kBadData;
  }
}

}  // namespace

int Run(const std::vector<std::string>& arguments, std::ostream& output, std::ostream& errors) {
  Action action;
  CLI::App app("Makes, checks and shows the data that the library and its applications read.", "skydata");
  app.allow_windows_style_options(false);  // a path may begin with a slash on every system
  app.require_subcommand(1);
  for (const auto declare : kCommands) declare(app, action);
  try {
    // The parser takes its arguments from the back.
    app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
  } catch (const CLI::CallForHelp&) {
    output << app.help();  // that of the innermost command given
    return kDone;
  } catch (const CLI::Error& error) {
    std::string line = error.what();
    std::replace(line.begin(), line.end(), '\n', ' ');
    errors << "skydata: " << line << " (skydata --help)\n";
    return kBadUsage;
  }
  return RunAction(action, output, errors);
}

}  // namespace skydata
