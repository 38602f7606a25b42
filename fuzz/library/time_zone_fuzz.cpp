// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Compiled time zones, read as the application reads them. Zones are kept by name for the process, so that
// every input is a zone of a new name.
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include "fuzz/scratch.h"
#include "utils/timezone.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static unsigned counter = 0;
  const std::string name = "Fuzz/Zone" + std::to_string(counter++);
  const std::string file = "data/media/zoneinfo/" + name;
  fuzz::Scratch::Get().Write(file, data, size);
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  constexpr double kMoments[] = {0.0,
                                 2299160.5,
                                 2415020.5,
                                 2440587.5,
                                 2451545.0,
                                 2460400.7,
                                 2465442.27,
                                 5e6,
                                 1e300,
                                 -1e300,
                                 kInfinity,
                                 -kInfinity,
                                 std::numeric_limits<double>::quiet_NaN()};
  for (double moment : kMoments) {
    const double delta = getLocalUTCDeltaForTimezone(name.c_str(), moment);
    fuzz::Require(std::isfinite(delta), "an offset is a number");
  }
  // A year day by day, where a footer's rule changes the offset.
  for (int day = 0; day < 366; day += 3) getLocalUTCDeltaForTimezone(name.c_str(), 2462502.5 + day);
  fuzz::Scratch::Get().Remove(file);
  return 0;
}
