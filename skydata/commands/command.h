// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The commands of skydata, each in a source of its own. table.cpp lists them.
#pragma once

#include <functional>
#include <iosfwd>
#include <stdexcept>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace skydata {

// Exit codes of the program.
enum ExitCode { kDone = 0, kBadData = 1, kBadUsage = 2 };

// What a command does: results to `output`, what is wrong to `errors`; returns an exit code. A UsageError
// that it throws is told like an argument that the parser refuses; any other exception is printed as one line
// and is kBadData.
using Action = std::function<int(std::ostream& output, std::ostream& errors)>;

// An argument that the command cannot do anything with.
class UsageError : public std::runtime_error {
 public:
  UsageError(const std::string& argument, const std::string& wanted)
      : std::runtime_error(argument + ": " + wanted) {}
};

// Declares the arguments of a command on its parser; the action reads them when they have been parsed.
using Declare = Action (*)(CLI::App& command);

// A command, or a group of commands.
struct Command {
  const char* name;
  const char* help;
  Declare declare = nullptr;   // null for a group
  std::vector<Command> group;  // what stands below it, one of which must be chosen
};

// All commands, in the order in which the help shows them.
const std::vector<Command>& GetCommands();

Action DeclareBuild(CLI::App& command);
Action DeclareLint(CLI::App& command);
Action DeclareShow(CLI::App& command);

Action DeclareSettingsDump(CLI::App& command);
Action DeclareSettingsBuild(CLI::App& command);
Action DeclareSettingsCheck(CLI::App& command);
Action DeclareSettingsDiff(CLI::App& command);
Action DeclareSettingsConvert(CLI::App& command);
Action DeclareSettingsExplain(CLI::App& command);
Action DeclareSettingsSet(CLI::App& command);

Action DeclareStarsImport(CLI::App& command);

Action DeclareStringsCheck(CLI::App& command);
Action DeclareStringsShow(CLI::App& command);
Action DeclareStringsPseudo(CLI::App& command);
Action DeclareStringsList(CLI::App& command);

}  // namespace skydata
