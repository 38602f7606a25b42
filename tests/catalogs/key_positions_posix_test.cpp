// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <limits>

#include "catalogs/key_positions.h"

namespace {

long MostMemorySoFar() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss;  // kilobytes
}

}  // namespace

// A row of bits from the smallest int to the largest would take a gigabyte.
TEST(KeyPositionsMemory, KeysFarApartTakeNoRow) {
  const long before = MostMemorySoFar();
  const int least = std::numeric_limits<int>::min(), most = std::numeric_limits<int>::max();
  const CommonInterfaces::KeyPositions positions({least, most});
  EXPECT_EQ(positions.Find(least), 0);
  EXPECT_EQ(positions.Find(most), 1);
  EXPECT_EQ(positions.Find(0), -1);
  EXPECT_LT(MostMemorySoFar() - before, 50'000);
}
