// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/commands/command_table.h"

#include <algorithm>

#include "skyview/options/stop.h"
#include "utils/messages.h"
#include "utils/near_names.h"

namespace skyview {
namespace {

constexpr Command kCommands[] = {
    {"draw", "Say what the view shows, and draw it. What is done without a command.", RunDraw},
    {"where", "Say where an object is and when it rises and sets.", RunWhere},
    {"why", "Say why an object is or is not drawn.", RunWhy},
    {"at", "Say what is drawn at a pixel of the picture.", RunAt},
    {"body", "Print what is known of a planet, the Sun or a moon.", RunBody},
    {"curve", "Draw the light curve of a variable star.", RunCurve},
    {"tonight", "Say what a night shows: when it is dark, and what stands best when.", RunTonight},
    {"events", "List what happens in the sky, as a table, CSV, JSON or iCalendar.", RunEvents},
    {"year", "Print the almanac of a year, and draw when Sun, Moon and planets rise and set.", RunYear},
    {"moons", "Draw the paths of Jupiter's moons over a month.", RunMoons},
    {"limits", "List the limiting magnitudes of each class by zoom.", RunLimits},
    {"homes show", "List the homes. What homes alone does.", RunHomesShow},
    {"homes store", "Make the view the home of its observer, and say what it shows.", RunHomesStore},
    {"favourites show", "List the favourites of the work area. What favourites alone does.",
     RunFavouritesShow},
    {"favourites add", "Add objects to the favourites, and list them.", RunFavouritesAdd},
    {"favourites remove", "Remove objects from the favourites, and list them.", RunFavouritesRemove},
    {"languages", "List the languages that the data root has.", RunLanguages}};

constexpr const char* kDefaultCommand = "draw";
constexpr const char* kDefaultVerb = "show";

const Command* FindCommand(const std::string& name) {
  const auto found = std::find_if(std::begin(kCommands), std::end(kCommands),
                                  [&name](const Command& command) { return command.name == name; });
  return found == std::end(kCommands) ? nullptr : found;
}

// The first words of all commands, or the verbs that stand behind `word`.
std::vector<std::string> ListWords(const std::string& word = "") {
  std::vector<std::string> words;
  for (const auto& command : kCommands) {
    const std::string name = command.name;
    const auto blank = name.find(' ');
    const std::string first = name.substr(0, blank);
    if (word.empty() && (words.empty() || words.back() != first)) words.push_back(first);
    if (word == first && blank != std::string::npos) words.push_back(name.substr(blank + 1));
  }
  return words;
}

// `before`: the words that stand before this one.
[[noreturn]] void Refuse(const std::string& before, const std::string& word,
                         const std::vector<std::string>& all) {
  const auto near = FindNearNames(word, all);
  throw Stop{kBadOption, "'" + before + word + "': no such command, wants " +
                             (near.empty() ? "one of " + JoinNames(all) : "for example " + JoinNames(near)) +
                             " (skyview --help lists them)"};
}

bool IsOption(const std::string& word) { return word.starts_with('-'); }

}  // namespace

std::span<const Command> GetCommands() { return kCommands; }

Choice ChooseCommand(const std::vector<std::string>& arguments) {
  if (arguments.empty() || IsOption(arguments[0])) return {FindCommand(kDefaultCommand), 0};
  const std::string& first = arguments[0];
  if (const Command* command = FindCommand(first)) return {command, 1};
  const auto verbs = ListWords(first);
  if (first.empty() || verbs.empty()) Refuse("", first, ListWords());
  if (arguments.size() == 1 || IsOption(arguments[1])) return {FindCommand(first + " " + kDefaultVerb), 1};
  if (const Command* command = FindCommand(first + " " + arguments[1])) return {command, 2};
  Refuse(first + " ", arguments[1], verbs);
}

std::string FormatCommands() {
  constexpr std::size_t kColumn = 21;  // two blanks behind the longest name
  std::string text =
      "Restores a saved view of the sky, says what it restored and draws it.\n"
      "Usage: skyview [COMMAND] [OPTIONS]\n\nCommands:\n";
  for (const auto& command : kCommands) {
    std::string line = std::string("  ") + command.name;
    line.resize(kColumn, ' ');
    text += line + command.purpose + "\n";
  }
  return text +
         "\nskyview COMMAND --help lists the options of a command.\n"
         "skyview --version prints the version of the program.\n";
}

}  // namespace skyview
