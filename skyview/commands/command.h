// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The commands of skyview. Each is one function, in a source of its own; command_table.cpp lists them.
#pragma once

#include <string>
#include <vector>

#include "skyview/session/clock.h"
#include "skyview/session/diagnostics.h"

namespace skyview {

struct Command;

// How a command was called.
struct Call {
  const Command& command;
  std::vector<std::string> arguments;  // behind the command's own words
  std::string programFolder;           // for the default data root
  const Clock& clock;
  Diagnostics& diagnostics;  // printed behind the text
};

struct Command {
  const char* name;     // one word, or a word and its verb: "homes store"
  const char* purpose;  // one line
  // Does the work and returns what is printed, UTF-8. Throws Stop; files that were written before stay.
  std::string (*run)(const Call& call);
};

std::string RunAt(const Call& call);
std::string RunBody(const Call& call);
std::string RunCurve(const Call& call);
std::string RunDraw(const Call& call);
std::string RunEvents(const Call& call);
std::string RunFavouritesAdd(const Call& call);
std::string RunFavouritesRemove(const Call& call);
std::string RunFavouritesShow(const Call& call);
std::string RunHomesShow(const Call& call);
std::string RunHomesStore(const Call& call);
std::string RunLanguages(const Call& call);
std::string RunLimits(const Call& call);
std::string RunMoons(const Call& call);
std::string RunTonight(const Call& call);
std::string RunWhere(const Call& call);
std::string RunWhy(const Call& call);
std::string RunYear(const Call& call);

}  // namespace skyview
