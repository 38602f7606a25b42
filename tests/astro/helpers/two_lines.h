// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace astro_test {

// A line of two-line elements with the checksum that belongs to its first 68 columns.
inline std::string WithCheckSum(std::string line) {
  int sum = 0;
  for (std::size_t i = 0; i < 68; ++i) {
    if (line[i] >= '0' && line[i] <= '9') sum += line[i] - '0';
    if (line[i] == '-') sum += 1;
  }
  line[68] = static_cast<char>('0' + sum % 10);
  return line;
}

}  // namespace astro_test
