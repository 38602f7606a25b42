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

#include "skydata/commands/arguments.h"

namespace skydata {

// Exit codes of the program.
enum ExitCode { kDone = 0, kBadData = 1, kBadUsage = 2 };

// What a command does: results to `output`, what is wrong to `errors`; returns an exit code. A UsageError
// that it throws is told like an argument that the parser refuses; any other exception is printed as one line
// and is kBadData.
//
// Both streams show what would harm a terminal as escapes (skydata/files/printable_stream.h), except for the
// output of a command whose content is bytes.
using Action = std::function<int(std::ostream& output, std::ostream& errors)>;

// An argument that the command cannot do anything with.
class UsageError : public std::runtime_error {
 public:
  UsageError(const std::string& argument, const std::string& wanted)
      : std::runtime_error(argument + ": " + wanted) {}
};

// Declares the arguments of a command on its parser; the action reads them when they have been parsed.
using Declare = Action (*)(ArgumentList& command);

// What a command writes to its output.
enum class Content { kText, kBytes };

// A command, or a group of commands.
struct Command {
  const char* name;
  const char* help;
  Declare declare = nullptr;   // null for a group
  std::vector<Command> group;  // what stands below it, one of which must be chosen
  Content content = Content::kText;
};

// All commands, in the order in which the help shows them.
const std::vector<Command>& GetCommands();

Action DeclareBuild(ArgumentList& command);
Action DeclareLint(ArgumentList& command);
Action DeclareShow(ArgumentList& command);

Action DeclareSettingsDump(ArgumentList& command);
Action DeclareSettingsBuild(ArgumentList& command);
Action DeclareSettingsCheck(ArgumentList& command);
Action DeclareSettingsDiff(ArgumentList& command);
Action DeclareSettingsConvert(ArgumentList& command);
Action DeclareSettingsExplain(ArgumentList& command);
Action DeclareSettingsSet(ArgumentList& command);

Action DeclareStarsImport(ArgumentList& command);

Action DeclareStringsCheck(ArgumentList& command);
Action DeclareStringsShow(ArgumentList& command);
Action DeclareStringsPseudo(ArgumentList& command);
Action DeclareStringsList(ArgumentList& command);

}  // namespace skydata
