// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <ostream>

namespace skydata {
namespace {

void DeclareAll(const std::vector<Command>& commands, CLI::App& parser, Action& chosen) {
  parser.require_subcommand(1);
  for (const Command& command : commands) {
    CLI::App& below = *parser.add_subcommand(command.name, command.help);
    if (command.declare) {
      below.callback([action = command.declare(below), &chosen] { chosen = action; });
    } else {
      DeclareAll(command.group, below, chosen);
    }
  }
}

int RefuseUsage(std::string reason, std::ostream& errors) {
  std::replace(reason.begin(), reason.end(), '\n', ' ');
  errors << "skydata: " << reason << " (skydata --help)\n";
  return kBadUsage;
}

int RunAction(const Action& action, std::ostream& output, std::ostream& errors) {
  try {
    return action(output, errors);
  } catch (const UsageError& error) {
    return RefuseUsage(error.what(), errors);
  } catch (const std::exception& error) {  // a SourceError, whose text names the file, or the system's own
    errors << error.what() << '\n';
    return kBadData;
  }
}

int ParseAndRun(const std::vector<std::string>& arguments, std::ostream& output, std::ostream& errors) {
  Action action;
  CLI::App parser("Makes, checks and shows the data that the library and its applications read.", "skydata");
  parser.set_version_flag("--version", std::string("skydata ") + CI_VERSION);
  parser.allow_windows_style_options(false);  // a path may begin with a slash on every system
  DeclareAll(GetCommands(), parser, action);
  try {
    // The parser takes its arguments from the back.
    parser.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
  } catch (const CLI::CallForHelp&) {
    output << parser.help();  // that of the innermost command given
    return kDone;
  } catch (const CLI::CallForVersion& version) {
    output << version.what() << '\n';
    return kDone;
  } catch (const CLI::Error& error) {
    return RefuseUsage(error.what(), errors);
  }
  return RunAction(action, output, errors);
}

}  // namespace

// Nothing counts as said that could not be written.
int Run(const std::vector<std::string>& arguments, std::ostream& output, std::ostream& errors) {
  const int code = ParseAndRun(arguments, output, errors);
  output.flush();
  if (output) return code;
  errors << "skydata: standard output: cannot be written\n";
  return kBadData;
}

}  // namespace skydata
