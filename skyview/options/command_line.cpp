// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/options/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "skyview/options/stop.h"

namespace skyview {
namespace {

constexpr int kAnyNumber = -1;

// What is wrong with the arguments themselves (one that is not taken, a missing value, an option given
// twice).
[[noreturn]] void Refuse(std::string line, const std::string& command) {
  std::replace(line.begin(), line.end(), '\n', ' ');
  throw Stop{kBadOption, line + " (skyview " + command + " --help lists the options and their forms)"};
}

// The first argument that is not taken; the mark before names is left over too, though it is taken.
std::optional<std::string> FindExtra(const std::vector<std::string>& remaining) {
  const auto isExtra = [](const std::string& word) { return word != "--"; };
  const auto extra = std::find_if(remaining.begin(), remaining.end(), isExtra);
  return extra == remaining.end() ? std::nullopt : std::optional(*extra);
}

}  // namespace

void ThrowBadValue(const OptionText& option, const std::string& value) {
  throw Stop{kBadOption, std::string(option.name) + " '" + value + "': wants " + option.form + " (" +
                             option.purpose + ")"};
}

CommandLine::CommandLine(const std::string& command, const std::string& purpose)
    : m_Command(command), m_App(std::make_unique<CLI::App>(purpose, "skyview " + command)) {
  m_App->allow_windows_style_options(false);  // a path may begin with a slash on every system
}

CommandLine::~CommandLine() = default;

void CommandLine::AddOption(const OptionText& text, Times times, const char* title, Reader read) {
  const bool flag = *text.form == '\0';
  CLI::Option* const option = flag ? m_App->add_flag(text.name, text.purpose)
                                   : m_App->add_option(text.name, CLI::callback_t(), text.purpose);
  option->group(title);
  if (!flag) option->type_name(text.form)->expected(1);
  if (times == Times::kAgain) option->take_all();
  m_Entries.push_back({text, option, std::move(read)});
}

void CommandLine::TakeName(const char* form, const char* purpose, std::string& name) {
  CLI::Option* const option = m_App->add_option(form, CLI::callback_t(), purpose);
  option->type_name("")->expected(1)->required();
  m_Entries.push_back({{m_Command.c_str(), form, purpose}, option, [&name](const std::string& value) {
                         return Put(ParseName(value), name);
                       }});
}

void CommandLine::TakeNames(const char* form, const char* purpose, std::vector<std::string>& names) {
  CLI::Option* const option = m_App->add_option(form, CLI::callback_t(), purpose);
  option->type_name("")->expected(1, kAnyNumber)->allow_extra_args()->required();
  m_Entries.push_back({{m_Command.c_str(), form, purpose}, option, [&names](const std::string& value) {
                         names.push_back(value);
                         return !value.empty();
                       }});
}

void CommandLine::Read(const Entry& entry) {
  for (const auto& value : entry.given->results()) {
    if (!entry.read(value)) ThrowBadValue(entry.text, value);
  }
}

void CommandLine::Parse(const std::vector<std::string>& arguments) {
  try {
    // The parser takes its arguments from the back.
    m_App->parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
  } catch (const CLI::CallForHelp&) {
    throw Stop{kDone, m_App->help()};
  } catch (const CLI::Error& error) {
    const auto extra = FindExtra(m_App->remaining());
    Refuse(extra ? "The following argument was not expected: " + *extra : error.what(), m_Command);
  }
  for (const auto& entry : m_Entries) Read(entry);
  for (const auto& check : m_Checks) check();
}

}  // namespace skyview
