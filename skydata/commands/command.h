// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The commands of skydata. Each is declared by one function, in a source of its own; command_line.cpp lists them.
#pragma once

#include <functional>
#include <iosfwd>

namespace CLI {
class App;
}

namespace skydata {

// What the chosen command does: results to `output`, what is wrong to `errors`; returns an exit code of
// command_line.h. A SourceError that it throws is printed as one line and is kBadData.
using Action = std::function<int(std::ostream& output, std::ostream& errors)>;

// Each declares a command, with its own subcommands and arguments, on `app`. When that command is parsed, it puts what
// is to be done into `action`, which outlives the parser.
void DeclareBuild(CLI::App& app, Action& action);
void DeclareLint(CLI::App& app, Action& action);
void DeclareSettings(CLI::App& app, Action& action);
void DeclareShow(CLI::App& app, Action& action);
void DeclareStrings(CLI::App& app, Action& action);

}  // namespace skydata
