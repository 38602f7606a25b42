// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>
#include <cstdlib>

namespace astro_test {

// The years that a scan looks through, both included.
struct ScanYears {
  int first, last;
};

// Those that the environment asks for, ASTRO_SCAN_YEARS=1900-2099, else those given.
inline ScanYears GetScanYears(ScanYears years) {
  if (const char* asked = std::getenv("ASTRO_SCAN_YEARS"))
    std::sscanf(asked, "%d-%d", &years.first, &years.last);
  return years;
}

}  // namespace astro_test
