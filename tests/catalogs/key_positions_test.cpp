// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "catalogs/key_positions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <vector>

namespace {

using CommonInterfaces::KeyPositions;

constexpr int kSmallest = std::numeric_limits<int>::min(), kLargest = std::numeric_limits<int>::max();

int PositionOf(const std::vector<int>& keys, int wanted) {
  const auto found = std::lower_bound(keys.begin(), keys.end(), wanted);
  return found != keys.end() && *found == wanted ? static_cast<int>(found - keys.begin()) : -1;
}

void ExpectLikeLowerBound(const std::vector<int>& keys, const std::vector<int>& wanted) {
  const KeyPositions positions(keys);
  for (const int key : wanted)
    ASSERT_EQ(positions.Find(key), PositionOf(keys, key)) << key << " of " << keys.size();
}

// Every key of the table and both its neighbours, and the ends of the range.
std::vector<int> AroundEach(const std::vector<int>& keys) {
  std::vector<int> wanted = {kSmallest, -1, 0, 1, kLargest};
  for (const int key : keys) {
    if (key > kSmallest) wanted.push_back(key - 1);
    wanted.push_back(key);
    if (key < kLargest) wanted.push_back(key + 1);
  }
  return wanted;
}

TEST(KeyPositions, EmptyHasNothing) {
  const KeyPositions none, empty{std::vector<int>()};
  for (const int key : {kSmallest, 0, kLargest}) {
    EXPECT_EQ(none.Find(key), -1);
    EXPECT_EQ(empty.Find(key), -1);
  }
}

// Close together and far apart: 16 numbers in the row for each key, and just more.
TEST(KeyPositions, AnyDensityAnywhere) {
  std::mt19937 random(7);
  for (const int spread : {1, 2, 15, 16, 17, 40, 1000}) {
    for (const int first : {kSmallest, -70, -1, 0, 1, kLargest - 70 * spread}) {
      std::vector<int> keys = {first};
      for (int i = 1; i < 70; ++i)
        keys.push_back(first + i * spread + static_cast<int>(random() % 2) * (spread > 1));
      keys.back() = std::max(keys.back() - 1, keys[68] + 1);
      ExpectLikeLowerBound(keys, AroundEach(keys));
      ExpectLikeLowerBound({first}, AroundEach(keys));
    }
  }
  ExpectLikeLowerBound({kSmallest, kLargest}, {kSmallest, kSmallest + 1, -1, 0, 1, kLargest - 1, kLargest});
}

TEST(KeyPositions, EveryCountUpTo600) {
  std::vector<int> keys;
  for (int count = 0; count <= 600; ++count) {
    ExpectLikeLowerBound(keys, AroundEach(keys));
    keys.push_back(count * 3 - 900);
  }
}

TEST(KeyPositions, CountsAroundPowersOfTwo) {
  for (const int count : {4095, 4096, 4097, 65535, 65536, 65537, 70000}) {
    std::vector<int> keys;
    for (int i = 0; i < count; ++i) keys.push_back(i * 2);
    ExpectLikeLowerBound(keys, AroundEach(keys));
  }
}

TEST(KeyPositions, TheFirstOfEqualKeysIsFound) {
  for (const int run : {2, 15, 16, 17, 40, 300}) {
    std::vector<int> keys;
    for (int i = 0; i < 1000; ++i) keys.push_back(i / run);
    ExpectLikeLowerBound(keys, AroundEach(keys));
  }
}

TEST(KeyPositions, TheEndsOfTheRangeAreOrdinaryKeys) {
  for (const int count : {1, 3, 15, 16, 17, 31, 32, 33, 257}) {
    std::vector<int> keys(static_cast<std::size_t>(count), 5);
    keys.front() = kSmallest;
    keys.back() = count > 1 ? kLargest : kSmallest;
    ExpectLikeLowerBound(keys, AroundEach(keys));
    ExpectLikeLowerBound(std::vector<int>(keys.size(), kLargest), AroundEach(keys));
    ExpectLikeLowerBound(std::vector<int>(keys.size(), kSmallest), AroundEach(keys));
  }
}

TEST(KeyPositions, AMillionKeysWithGapsAreFoundWhereTheyStand) {
  std::mt19937 random(20240301);
  std::vector<int> keys;
  for (int key = -500000; keys.size() < 1000000; key += 1 + static_cast<int>(random() % 3))
    keys.push_back(key);
  const KeyPositions positions(keys);
  std::size_t next = 0;
  for (int wanted = keys.front() - 10; wanted <= keys.back() + 10; ++wanted) {
    const bool isThere = next < keys.size() && keys[next] == wanted;
    ASSERT_EQ(positions.Find(wanted), isThere ? static_cast<int>(next) : -1) << wanted;
    if (isThere) ++next;
  }
}

// Keys made so that their products with the hash's factor, 2654435769, all begin alike: the inverse of the
// factor times the numbers wanted. Built and searched in no longer than others.
TEST(KeyPositions, KeysThatCrowdTogetherAreFoundAllTheSame) {
  constexpr unsigned kInverse = 340573321u;
  static_assert(kInverse * 2654435769u == 1u);
  std::vector<int> keys;
  for (unsigned product = 0; product < 200000; ++product)
    keys.push_back(static_cast<int>(product * kInverse));
  std::sort(keys.begin(), keys.end());
  const KeyPositions positions(keys);
  for (std::size_t i = 0; i < keys.size(); i += 7) ASSERT_EQ(positions.Find(keys[i]), static_cast<int>(i));
  for (unsigned product = 200000; product < 200500; ++product) {
    ASSERT_EQ(positions.Find(static_cast<int>(product * kInverse)), -1);
  }
}

// So far apart that no row of bits holds them.
TEST(KeyPositions, MoreKeysThanAreHashedAreFoundAllTheSame) {
  std::vector<int> keys;
  for (int i = 0; i < (1 << 22) + 1; ++i) keys.push_back((i - (1 << 21)) * 1000);
  const KeyPositions positions(keys);
  for (std::size_t i = 0; i < keys.size(); i += 997) {
    ASSERT_EQ(positions.Find(keys[i]), static_cast<int>(i));
    ASSERT_EQ(positions.Find(keys[i] + 1), -1);
  }
}

TEST(KeyPositions, ANumberThatNoSlotHoldsIsNotFoundInAFreeOne) {
  for (int count = 1; count <= 40; ++count) {
    EXPECT_EQ(KeyPositions(std::vector<int>(static_cast<std::size_t>(count), 7)).Find(0), -1) << count;
    EXPECT_EQ(KeyPositions(std::vector<int>(static_cast<std::size_t>(count), 7)).Find(kLargest), -1) << count;
  }
}

// What is found of keys out of order depends on the steps: they are those of the standard library.
TEST(KeyPositions, KeysOutOfOrderAreFoundAsByAPlainBisection) {
  std::mt19937 random(20240229);
  int found = 0, missed = 0;
  for (int round = 0; round < 200; ++round) {
    std::vector<int> keys(random() % 100);
    for (int& key : keys) key = static_cast<int>(random() % 100);
    const KeyPositions positions(keys);
    for (int wanted = -1; wanted <= 100; ++wanted) {
      ASSERT_EQ(positions.Find(wanted), PositionOf(keys, wanted));
      ASSERT_EQ(positions.Find(wanted) >= 0, std::binary_search(keys.begin(), keys.end(), wanted));
    }
    for (const int key : keys) ++(positions.Find(key) >= 0 ? found : missed);
  }
  EXPECT_GT(found, 0);
  EXPECT_GT(missed, 0);
}

}  // namespace
