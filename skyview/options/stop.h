// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace skyview {

enum ExitCode { kDone = 0, kBadData = 1, kBadOption = 2 };

// Thrown to end a command before its work is done. `message` is one line, without its end, that says what is
// wrong; with kDone it is the text that was asked for instead.
struct Stop {
  ExitCode code;
  std::string message;
};

}  // namespace skyview
