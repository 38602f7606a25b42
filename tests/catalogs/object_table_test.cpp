// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "catalogs/object_table.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace {

using CommonInterfaces::KindAndNumber;
using CommonInterfaces::ObjectTable;

constexpr int kSmallest = std::numeric_limits<int>::min(), kLargest = std::numeric_limits<int>::max();

int PositionOf(const std::vector<KindAndNumber>& objects, const KindAndNumber& wanted) {
  const auto found = std::lower_bound(objects.begin(), objects.end(), wanted);
  return found != objects.end() && *found == wanted ? static_cast<int>(found - objects.begin()) : -1;
}

TEST(ObjectTable, EmptyHasNothing) {
  EXPECT_EQ(ObjectTable().Find(0, 0), -1);
  EXPECT_EQ(ObjectTable(std::vector<KindAndNumber>()).Find(-1, -1), -1);
}

TEST(ObjectTable, KindsAndNumbersAreSigned) {
  const std::vector<KindAndNumber> objects = {{kSmallest, kSmallest},
                                              {kSmallest, kLargest},
                                              {-1, -1},
                                              {-1, 0},
                                              {0, -1},
                                              {0, 0},
                                              {0, 1},
                                              {1, kSmallest},
                                              {kLargest, 5},
                                              {kLargest, kLargest}};
  const ObjectTable table(objects);
  for (const int kind : {kSmallest, -2, -1, 0, 1, 2, kLargest}) {
    for (const int number : {kSmallest, -2, -1, 0, 1, 5, kLargest}) {
      EXPECT_EQ(table.Find(kind, number), PositionOf(objects, {kind, number})) << kind << ' ' << number;
    }
  }
}

TEST(ObjectTable, ManyKindsOfFewNumbers) {
  std::mt19937 random(11);
  std::vector<KindAndNumber> objects;
  for (int i = 0; i < 3000; ++i) {
    objects.emplace_back(static_cast<int>(random() % 700) - 350, static_cast<int>(random() % 40) - 20);
  }
  std::sort(objects.begin(), objects.end());
  const ObjectTable table(objects);
  for (int kind = -355; kind < 355; ++kind) {
    for (int number = -22; number < 22; ++number) {
      ASSERT_EQ(table.Find(kind, number), PositionOf(objects, {kind, number}));
    }
  }
}

}  // namespace
