// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <limits>

#include "catalogs/key_positions.h"

namespace {

// Of this process so far, kilobytes.
long GetMostMemory() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss;
}

// 0 when two keys at the ends of all numbers are found and took little room. To be called in a process of its
// own: what was the most memory before would hide it.
int FindFarKeys() {
  const long before = GetMostMemory();
  const int least = std::numeric_limits<int>::min(), most = std::numeric_limits<int>::max();
  const CommonInterfaces::KeyPositions positions({least, most});
  if (positions.Find(least) != 0 || positions.Find(most) != 1 || positions.Find(0) != -1) return 2;
  return GetMostMemory() - before < 50'000 ? 0 : 1;
}

}  // namespace

// A row of bits from the smallest int to the largest would take a gigabyte.
TEST(KeyPositionsMemory, KeysFarApartTakeNoRow) {
  EXPECT_EXIT(_exit(FindFarKeys()), testing::ExitedWithCode(0), "");
}
