// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The commands by name.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "skyview/commands/command.h"

namespace skyview {

// All commands, in the order of the help.
std::span<const Command> GetCommands();

struct Choice {
  const Command* command;
  std::size_t words;  // of the arguments, that named it
};

// The command that the first words name: "homes store", "homes" for "homes show"; draw when there is none or
// an option comes first. Throws Stop for a word that names none, with the names that are near.
Choice ChooseCommand(const std::vector<std::string>& arguments);

// What `skyview --help` prints.
std::string FormatCommands();

}  // namespace skyview
