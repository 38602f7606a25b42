// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <fstream>
#include <string>

namespace bench {

// The memory of this process that is resident, megabytes: its own, and pages of files that it has mapped,
// which the system may take back at any time. Zero where the system does not tell.
struct ProcessMemory {
  double own = 0.0, mapped = 0.0;
};

inline ProcessMemory GetProcessMemory() {
  ProcessMemory memory;
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    double kilobytes = 0.0;
    if (word == "RssAnon:" && status >> kilobytes) memory.own = kilobytes / 1024.0;
    if (word == "RssFile:" && status >> kilobytes) memory.mapped = kilobytes / 1024.0;
  }
  return memory;
}

}  // namespace bench
