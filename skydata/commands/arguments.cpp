// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/commands/arguments.h"

#include <CLI/CLI.hpp>

namespace skydata {

Argument& Argument::Require() { return m_Option->required(), *this; }
Argument& Argument::AtMostOnce() { return m_Option->expected(0, 1), *this; }
Argument& Argument::Form(const char* form) { return m_Option->type_name(form), *this; }
Argument& Argument::ShowDefault() { return m_Option->capture_default_str(), *this; }
Argument& Argument::OneOf(const std::vector<std::string>& words) {
  return m_Option->check(CLI::IsMember(words)), *this;
}
Argument& Argument::Excludes(const Argument& other) { return m_Option->excludes(other.m_Option), *this; }
Argument& Argument::Needs(const Argument& other) { return m_Option->needs(other.m_Option), *this; }

Argument ArgumentList::Take(const char* name, std::string& place, const char* purpose) {
  return Argument(*m_Parser->add_option(name, place, purpose));
}

Argument ArgumentList::Take(const char* name, std::vector<std::string>& place, const char* purpose) {
  return Argument(*m_Parser->add_option(name, place, purpose));
}

void ArgumentList::TakeFlag(const char* name, bool& place, const char* purpose) {
  m_Parser->add_flag(name, place, purpose);
}

Argument ArgumentList::TakeWord(const char* name, const std::vector<std::string>& words,
                                std::function<void(const std::string&)> take, const char* purpose) {
  CLI::Option* const option = m_Parser->add_option_function<std::string>(name, std::move(take), purpose);
  option->transform(CLI::IsMember(words, CLI::ignore_case));
  return Argument(*option);
}

ArgumentList ArgumentList::Group(const char* name) { return ArgumentList(*m_Parser->add_option_group(name)); }
void ArgumentList::RequireOne() { m_Parser->require_option(1); }
void ArgumentList::RequireAny() { m_Parser->require_option(1, 0); }

}  // namespace skydata
