// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// How a command declares its arguments. The parser stands behind these two classes in one source: its headers
// take longer to compile than all that a command does.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace skydata {

// One argument that was taken. Each function returns the argument itself, so that they are written in a row.
class Argument {
 public:
  explicit Argument(CLI::Option& option) : m_Option(&option) {}

  Argument& Require();
  Argument& AtMostOnce();
  // What stands for the value in the help, for example "FILE".
  Argument& Form(const char* form);
  // The help tells the value that its place has now.
  Argument& ShowDefault();
  Argument& OneOf(const std::vector<std::string>& words);
  Argument& Excludes(const Argument& other);
  Argument& Needs(const Argument& other);

 private:
  CLI::Option* m_Option;
};

// The arguments of a command. A name in capitals is taken by its place, one with dashes by its name. The
// places that are filled live as long as the action.
class ArgumentList {
 public:
  explicit ArgumentList(CLI::App& parser) : m_Parser(&parser) {}

  Argument Take(const char* name, std::string& place, const char* purpose);
  Argument Take(const char* name, std::vector<std::string>& place, const char* purpose);
  void TakeFlag(const char* name, bool& place, const char* purpose);
  // One of some words, in any case: `take` gets it as it stands here.
  Argument TakeWord(const char* name, const std::vector<std::string>& words,
                    std::function<void(const std::string&)> take, const char* purpose);

  // Further arguments of the command, for which the next two count apart.
  ArgumentList Group(const char* name);
  void RequireOne();
  void RequireAny();

 private:
  CLI::App* m_Parser;
};

}  // namespace skydata
