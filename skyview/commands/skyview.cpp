// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/commands/skyview.h"

#include <set>
#include <stdexcept>

#include "skyview/commands/command_table.h"
#include "skyview/options/stop.h"
#include "skyview/reports/host_texts.h"
#include "utils/messages.h"

namespace skyview {
namespace {

bool AsksForHelp(const std::string& word) { return word == "help" || word == "--help" || word == "-h"; }

// "help COMMAND" is "COMMAND --help".
std::string RunHelp(const std::string& programFolder, const Clock& clock, Diagnostics& diagnostics,
                    const std::vector<std::string>& words) {
  if (words.empty()) return FormatCommands();
  const Command& command = *ChooseCommand(words).command;
  return command.run({command, {"--help"}, programFolder, clock, diagnostics});
}

std::string RunCommand(const std::vector<std::string>& arguments, const std::string& programFolder,
                       const Clock& clock, Diagnostics& diagnostics) {
  if (!arguments.empty() && AsksForHelp(arguments[0]))
    return RunHelp(programFolder, clock, diagnostics, {arguments.begin() + 1, arguments.end()});
  if (arguments.size() == 1 && arguments[0] == "--version")
    return std::string("skyview ") + CI_VERSION + "\n";
  const auto [command, words] = ChooseCommand(arguments);
  const auto first = arguments.begin() + static_cast<std::ptrdiff_t>(words);
  return command->run({*command, {first, arguments.end()}, programFolder, clock, diagnostics});
}

int Fail(const std::string& message, int code, std::ostream& errors) {
  errors << "skyview: " << MakePrintable(MakeOneLine(message)) << "\n";
  return code;
}

// Nothing counts as said that could not be written.
int Print(const std::string& text, std::ostream& output, std::ostream& errors) {
  output << MakePrintable(text) << std::flush;
  return output ? kDone : Fail("standard output: cannot be written", kBadData, errors);
}

// Each fault in one line, once: a text that is missing is missed wherever it is wanted.
void PrintDiagnostics(const std::vector<std::string>& lines, std::ostream& errors) {
  std::set<std::string> told;
  for (const auto& text : lines) {
    const std::string line = MakeOneLine(scene::MessageToUtf8(text));
    if (told.insert(line).second) errors << "skyview: " << MakePrintable(line) << "\n";
  }
}

}  // namespace

int Run(const std::vector<std::string>& arguments, const std::string& programFolder, std::ostream& output,
        std::ostream& errors, const Clock& clock) {
  Diagnostics diagnostics;
  try {
    const int code = Print(RunCommand(arguments, programFolder, clock, diagnostics), output, errors);
    if (code == kDone) PrintDiagnostics(diagnostics.lines, errors);
    return code;
  } catch (const Stop& stop) {
    return stop.code == kDone ? Print(stop.message, output, errors) : Fail(stop.message, stop.code, errors);
  } catch (const std::runtime_error& error) {  // of the standard library
    return Fail(error.what(), kBadData, errors);
  }
}

}  // namespace skyview
