// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace skyview {

// Collects the diagnostic lines of the libraries while it lives, so that the program decides what becomes of
// them.
class Diagnostics {
 public:
  Diagnostics();
  ~Diagnostics();  // the default sink is then back
  Diagnostics(const Diagnostics&) = delete;
  Diagnostics& operator=(const Diagnostics&) = delete;

  std::vector<std::string> lines;  // as printed, with their ends
};

}  // namespace skyview
