// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "skyview/options/command_line.h"
#include "skyview/options/stop.h"

namespace host_test {

inline bool Contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

// What ends the reading of the arguments; nothing when they are good.
inline std::optional<skyview::Stop> Parse(skyview::CommandLine& line,
                                          const std::vector<std::string>& arguments) {
  try {
    line.Parse(arguments);
    return std::nullopt;
  } catch (const skyview::Stop& stop) {
    return stop;
  }
}

// One group as the only one of a command line.
template <class Group>
struct ParsedGroup {
  Group options;
  std::optional<skyview::Stop> stop;
  std::string message;  // of the stop
};

template <class Group>
ParsedGroup<Group> ParseGroup(const skyview::OptionGroup<Group>& group,
                              const std::vector<std::string>& arguments) {
  ParsedGroup<Group> parsed;
  skyview::CommandLine line("test", "Tests one group.");
  line.Take(group, parsed.options);
  parsed.stop = Parse(line, arguments);
  if (parsed.stop) parsed.message = parsed.stop->message;
  return parsed;
}

}  // namespace host_test
