// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/command_line.h"

#include <CLI/CLI.hpp>
#include <ostream>
#include <set>
#include <stdexcept>

#include "skydata/files/printable_stream.h"
#include "utils/debug.h"
#include "utils/messages.h"

namespace skydata {
namespace {

// Hands on what the library's readers complain of while it lives, each fault in one line and once.
class Diagnostics {
 public:
  explicit Diagnostics(std::ostream& errors) : m_Errors(errors) {
    SetDebugSink([](const char* text, void* self) { static_cast<Diagnostics*>(self)->Tell(text); }, this);
  }
  ~Diagnostics() { SetDebugSink(nullptr, nullptr); }
  Diagnostics(const Diagnostics&) = delete;
  Diagnostics& operator=(const Diagnostics&) = delete;

 private:
  void Tell(const char* text) {
    const std::string line = MakeOneLine(text);
    if (m_Told.insert(line).second) m_Errors << line << '\n';
  }

  std::ostream& m_Errors;
  std::set<std::string> m_Told;
};

struct Chosen {
  Action action;
  Content content = Content::kText;
};

void DeclareAll(const std::vector<Command>& commands, CLI::App& parser, Chosen& chosen) {
  parser.require_subcommand(1);
  for (const Command& command : commands) {
    CLI::App& below = *parser.add_subcommand(command.name, command.help);
    if (command.declare) {
      ArgumentList arguments(below);
      below.callback([action = command.declare(arguments), content = command.content, &chosen] {
        chosen = {action, content};
      });
    } else {
      DeclareAll(command.group, below, chosen);
    }
  }
}

int RefuseUsage(const std::string& reason, std::ostream& errors) {
  errors << "skydata: " << MakeOneLine(reason) << " (skydata --help)\n";
  return kBadUsage;
}

int RunAction(const Chosen& chosen, std::ostream& output, std::ostream& errors) {
  try {
    if (chosen.content == Content::kBytes) return chosen.action(output, errors);
    PrintableStream text(output);
    return chosen.action(text, errors);
  } catch (const UsageError& error) {
    return RefuseUsage(error.what(), errors);
  } catch (
      const std::runtime_error& error) {  // a SourceError, whose text names the file, or the system's own
    errors << error.what() << '\n';
    return kBadData;
  }
}

int ParseAndRun(const std::vector<std::string>& arguments, std::ostream& output, std::ostream& errors) {
  Chosen chosen;
  CLI::App parser("Makes, checks and shows the data that the library and its applications read.", "skydata");
  parser.set_version_flag("--version", std::string("skydata ") + CI_VERSION);
  parser.allow_windows_style_options(false);  // a path may begin with a slash on every system
  DeclareAll(GetCommands(), parser, chosen);
  try {
    // The parser takes its arguments from the back.
    parser.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
  } catch (const CLI::CallForHelp&) {
    output << parser.help();  // that of the innermost command given
    return kDone;
  } catch (const CLI::CallForVersion& version) {
    output << version.what() << '\n';
    return kDone;
  } catch (const CLI::Error& error) {
    return RefuseUsage(error.what(), errors);
  }
  return RunAction(chosen, output, errors);
}

}  // namespace

// Nothing counts as said that could not be written.
int Run(const std::vector<std::string>& arguments, std::ostream& output, std::ostream& errors) {
  PrintableStream lines(errors);
  const Diagnostics diagnostics(lines);
  const int code = ParseAndRun(arguments, output, lines);
  if (output.flush()) return code;
  lines << "skydata: standard output: cannot be written\n";
  return kBadData;
}

}  // namespace skydata
