// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "scene/small_root.h"
#include "skyview/commands/skyview.h"

namespace host_test {

// The small data root, and the program run over it.
class SmallSky : public SmallRoot {
 public:
  // Runs the program over this data root unless the arguments name another.
  int Run(std::vector<std::string> arguments) {
    output.str("");
    errors.str("");
    arguments.insert(arguments.end(), {"--data", dir.Path("data")});
    return skyview::Run(arguments, dir.Path("bin"), output, errors, [this] { return now; });
  }
  bool Printed(const std::string& text) const { return output.str().find(text) != std::string::npos; }
  // The program's only line of complaint, without its end; "" when there was none or more than one.
  std::string GetErrorLine() const {
    const std::string text = errors.str();
    return !text.empty() && text.find('\n') == text.size() - 1 ? text.substr(0, text.size() - 1) : "";
  }

  std::ostringstream output, errors;
  skyview::UniversalMoment now = {2461056, 0.25};  // what the clock says: 15 January 2026, 18:00
};

}  // namespace host_test
