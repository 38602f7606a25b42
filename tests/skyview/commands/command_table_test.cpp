// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/commands/command_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "skyview/options/almanac_group.h"
#include "skyview/options/chart_group.h"
#include "skyview/options/picture_group.h"
#include "skyview/options/root_group.h"
#include "skyview/options/settings_group.h"
#include "skyview/options/sky_group.h"
#include "skyview/options/stop.h"
#include "skyview/options/view_group.h"
#include "skyview/small_sky.h"

using namespace skyview;
using host_test::SmallSky;

namespace {

bool Contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

std::vector<std::string> Words(const std::string& name) {
  const auto blank = name.find(' ');
  if (blank == std::string::npos) return {name};
  return {name.substr(0, blank), name.substr(blank + 1)};
}

// The name of the command that the arguments choose, and how many of them named it; the line of a refusal.
std::string Choose(const std::vector<std::string>& arguments) {
  try {
    const Choice choice = ChooseCommand(arguments);
    return choice.command->name + std::string(" ") + std::to_string(choice.words);
  } catch (const Stop& stop) {
    EXPECT_EQ(stop.code, kBadOption);
    return stop.message;
  }
}

// The arguments that a command wants besides options, so that its options are looked at.
std::vector<std::string> WithNames(const Command& command, const std::string& help) {
  auto arguments = Words(command.name);
  if (Contains(help, "REQUIRED")) arguments.emplace_back("Algol");
  return arguments;
}

}  // namespace

TEST(CommandTable, NamesAreWordsAndUniqueAndPurposesAreLines) {
  std::set<std::string> names;
  for (const auto& command : GetCommands()) {
    EXPECT_TRUE(names.insert(command.name).second) << command.name;
    EXPECT_LE(std::count(command.name, command.name + std::string(command.name).size(), ' '), 1);
    EXPECT_FALSE(Contains(command.purpose, "\n")) << command.name;
    EXPECT_TRUE(std::string(command.purpose).ends_with('.')) << command.name;
  }
}

TEST(CommandTable, EachIsChosenByItsWordsAndListed) {
  const std::string list = FormatCommands();
  for (const auto& command : GetCommands()) {
    const auto words = Words(command.name);
    EXPECT_EQ(Choose(words), command.name + (" " + std::to_string(words.size())));
    EXPECT_TRUE(Contains(list, std::string("\n  ") + command.name + " ")) << list;
    EXPECT_TRUE(Contains(list, command.purpose)) << list;
  }
}

TEST(CommandTable, PurposesStandInAColumnTwoBlanksBehindTheLongestName) {
  std::size_t longest = 0;
  for (const auto& command : GetCommands()) longest = std::max(longest, std::string(command.name).size());
  const std::string list = FormatCommands();
  for (const auto& command : GetCommands()) {
    const std::string name = command.name;
    const std::string blanks(longest + 2 - name.size(), ' ');
    EXPECT_TRUE(Contains(list, "\n  " + name + blanks + command.purpose + "\n")) << list;
  }
}

TEST(CommandTable, EachHasItsHelpInThreeSpellings) {
  SmallSky sky;
  for (const auto& command : GetCommands()) {
    auto arguments = Words(command.name);
    arguments.emplace_back("--help");
    ASSERT_EQ(sky.Run(arguments), 0) << command.name << sky.errors.str();
    const std::string help = sky.output.str();
    EXPECT_TRUE(Contains(help, command.purpose)) << help;
    EXPECT_TRUE(Contains(help, std::string("skyview ") + command.name)) << help;
    EXPECT_TRUE(Contains(help, "--data FOLDER")) << help;
    arguments.back() = "-h";
    ASSERT_EQ(sky.Run(arguments), 0);
    EXPECT_EQ(sky.output.str(), help);
    arguments.pop_back();
    arguments.insert(arguments.begin(), "help");
    std::ostringstream output, errors;
    ASSERT_EQ(skyview::Run(arguments, "", output, errors), 0) << errors.str();
    EXPECT_EQ(output.str(), help);
  }
}

TEST(CommandTable, GroupsOfOptionsStandInTheSameOrderInEachHelp) {
  SmallSky sky;
  std::vector<std::string> titles;
  for (const char* title : {kRootGroup.title, kViewGroup.title, kSettingsGroup.title, kSatelliteGroup.title,
                            kExtraGroup.title, kChartGroup.title, kPictureGroup.title, kSequenceGroup.title,
                            kKeepGroup.title, kEquipmentGroup.title, kPageGroup.title, kEventGroup.title})
    titles.push_back(std::string("\n") + title + ":\n");
  for (const auto& command : GetCommands()) {
    auto arguments = Words(command.name);
    arguments.emplace_back("--help");
    ASSERT_EQ(sky.Run(arguments), 0) << command.name;
    std::size_t before = 0;
    for (const auto& title : titles) {
      const auto found = sky.output.str().find(title);
      if (found == std::string::npos) continue;
      EXPECT_GT(found, before) << title << sky.output.str();
      before = found;
    }
    EXPECT_GT(before, 0u) << command.name;
  }
}

TEST(CommandTable, EachRefusesEveryOptionThatItDoesNotTake) {
  SmallSky sky;
  std::set<std::string> options;
  std::vector<std::string> helps;
  for (const auto& command : GetCommands()) {
    auto arguments = Words(command.name);
    arguments.emplace_back("--help");
    ASSERT_EQ(sky.Run(arguments), 0);
    helps.push_back(sky.output.str());
    std::istringstream words(helps.back());
    for (std::string word; words >> word;) {
      if (word.starts_with("--")) options.insert(word);
    }
  }
  options.insert("--bogus");
  ASSERT_TRUE(options.count("--out") && options.count("--zoom") && options.count("--tle"));
  int refused = 0;
  for (std::size_t i = 0; i < helps.size(); ++i) {
    const Command& command = GetCommands()[i];
    for (const auto& option : options) {
      if (Contains(helps[i], "  " + option + " ")) continue;
      auto arguments = WithNames(command, helps[i]);
      arguments.push_back(option);
      EXPECT_EQ(sky.Run(arguments), 2) << command.name << " " << option;
      EXPECT_EQ(sky.GetErrorLine(), "skyview: The following argument was not expected: " + option +
                                        " (skyview " + command.name +
                                        " --help lists the options and their forms)");
      EXPECT_EQ(sky.output.str(), "");
      ++refused;
    }
  }
  EXPECT_GT(refused, 100);
}

TEST(CommandTable, DrawIsChosenWithoutACommand) {
  EXPECT_EQ(Choose({}), "draw 0");
  EXPECT_EQ(Choose({"--zoom", "2"}), "draw 0");
  EXPECT_EQ(Choose({"-x", "where"}), "draw 0");
}

TEST(CommandTable, ShowIsTheVerbWhenThereIsNone) {
  EXPECT_EQ(Choose({"homes"}), "homes show 1");
  EXPECT_EQ(Choose({"favourites", "--work", "w"}), "favourites show 1");
  EXPECT_EQ(Choose({"favourites", "add", "Sirius"}), "favourites add 2");
}

TEST(CommandTable, UnknownWordIsRefusedWithNearOnes) {
  EXPECT_EQ(Choose({"wher", "Jupiter"}),
            "'wher': no such command, wants for example where (skyview --help lists them)");
  EXPECT_EQ(Choose({"favourite"}),
            "'favourite': no such command, wants for example favourites (skyview --help lists them)");
  EXPECT_EQ(Choose({"homes", "stor"}),
            "'homes stor': no such command, wants for example store (skyview --help lists them)");
  EXPECT_EQ(Choose({"qqqqqq"}),
            "'qqqqqq': no such command, wants one of draw, where, why, at, body, curve, tonight, events, "
            "year, moons, limits, homes, favourites, languages (skyview --help lists them)");
  EXPECT_TRUE(Contains(Choose({""}), "'': no such command, wants one of draw"));
  EXPECT_TRUE(Contains(Choose({"homes", ""}), "wants one of show, store"));
}

TEST(CommandTable, UnknownCommandIsExitTwoAlsoAsAskedOfHelp) {
  SmallSky sky;
  for (const std::vector<std::string>& arguments :
       {std::vector<std::string>{"wher", "Jupiter"}, {"help", "wher"}}) {
    EXPECT_EQ(sky.Run(arguments), 2);
    EXPECT_EQ(sky.GetErrorLine(),
              "skyview: 'wher': no such command, wants for example where (skyview --help lists them)");
    EXPECT_EQ(sky.output.str(), "");
  }
}

TEST(CommandTable, HelpAloneListsTheCommands) {
  for (const char* word : {"help", "--help", "-h"}) {
    std::ostringstream output, errors;
    EXPECT_EQ(skyview::Run({word}, "", output, errors), 0);
    EXPECT_EQ(output.str(), FormatCommands());
    EXPECT_EQ(errors.str(), "");
  }
}

TEST(CommandTable, OldSpellingsAreGone) {
  SmallSky sky;
  for (const std::vector<std::string>& arguments : {std::vector<std::string>{"--why", "Sirius"},
                                                    {"--where", "Sirius"},
                                                    {"--body", "Mars"},
                                                    {"--light-curve", "Algol"},
                                                    {"--list-limits"},
                                                    {"--favourites", "show"}}) {
    EXPECT_EQ(sky.Run(arguments), 2);
    EXPECT_TRUE(Contains(sky.GetErrorLine(), "not expected: " + arguments[0])) << sky.errors.str();
  }
}
