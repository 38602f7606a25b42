// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "skyview/options/option_group.h"

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace skyview {

// The command line of one command: which groups of options and which names it takes. Names and options may
// stand in any order; behind "--" stand names only, which may then begin with a dash. What it is to fill must
// outlive Parse.
class CommandLine {
 public:
  // `command`: as the user writes it, "homes store".
  CommandLine(const std::string& command, const std::string& purpose);
  ~CommandLine();
  CommandLine(const CommandLine&) = delete;
  CommandLine& operator=(const CommandLine&) = delete;

  template <class Group>
  void Take(const OptionGroup<Group>& group, Group& options) {
    for (const auto& row : group.rows) {
      AddOption(row.text, row.times, group.title,
                [read = row.read, &options](const std::string& value) { return read(value, options); });
    }
    if (group.check) Check([check = group.check, &options] { check(options); });
  }
  // One name that must be there and not be empty. `form`: how messages and help call it; one word.
  void TakeName(const char* form, const char* purpose, std::string& name);
  // One name or more.
  void TakeNames(const char* form, const char* purpose, std::vector<std::string>& names);

  // Called once everything is read; throws Stop where options make no sense with each other.
  void Check(std::function<void()> check) { m_Checks.push_back(std::move(check)); }

  // Reads the arguments, the command's own words left aside, into what was taken. Throws Stop: kBadOption
  // with a line that names the option and its form, kDone with the help.
  void Parse(const std::vector<std::string>& arguments);

 private:
  using Reader = std::function<bool(const std::string& value)>;
  // What is given on the command line, and who reads it.
  struct Entry {
    OptionText text;  // of names: that of the command
    CLI::Option* given;
    Reader read;
  };
  void AddOption(const OptionText& text, Times times, const char* title, Reader read);
  static void Read(const Entry& entry);

  std::string m_Command;
  std::unique_ptr<CLI::App> m_App;
  std::vector<Entry> m_Entries;
  std::vector<std::function<void()>> m_Checks;
};

}  // namespace skyview
