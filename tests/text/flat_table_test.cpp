// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "text/flat_table.h"

#include <map>
#include <random>
#include <vector>

#include <gtest/gtest.h>

namespace CommonInterfaces {
namespace {

TEST(FlatTable, AgreesWithAMapThroughInsertionsAndErasures) {
  std::mt19937 random(3);
  FlatTable<int> table;
  std::map<std::uint64_t, int> expected;
  for (int i = 1; i <= 20000; ++i) {
    // Few keys, so that they collide and come again; large ones too.
    const std::uint64_t key = (random() % 300) * 0x100000001u;
    if (random() % 3 == 0) {
      table.Erase(key);
      expected.erase(key);
    } else {
      EXPECT_EQ(table.Insert(key, i), expected.insert({key, i}).second);
    }
    const std::uint64_t asked = (random() % 300) * 0x100000001u;
    const auto found = expected.find(asked);
    ASSERT_EQ(table.Find(asked), found == expected.end() ? 0 : found->second);
  }
  for (std::uint64_t key = 0; key < 300; ++key) {
    const auto found = expected.find(key * 0x100000001u);
    ASSERT_EQ(table.Find(key * 0x100000001u), found == expected.end() ? 0 : found->second);
  }
  table.Clear();
  EXPECT_EQ(table.Find(0), 0);
}

TEST(FlatTable, FreeSlotsDoNotPassForTheKeyZero) {
  FlatTable<int> table;
  EXPECT_EQ(table.Find(0), 0);
  table.Insert(7, 1);
  EXPECT_EQ(table.Find(0), 0);
  table.Erase(0);
  EXPECT_TRUE(table.Insert(0, 2));
  EXPECT_FALSE(table.Insert(0, 3));
  EXPECT_EQ(table.Find(0), 2);
  table.Erase(0);
  EXPECT_EQ(table.Find(0), 0);
  EXPECT_EQ(table.Find(7), 1);
}

// As many as keys with one home, while other keys come and go between them.
TEST(FlatTable, KeysOfOneHomeAreToldApart) {
  // The inverse of the multiplier modulo 2^64: these keys have small products, so that the upper bits agree.
  constexpr std::uint64_t kInverse = 0xF1DE83E19937733D;
  static_assert(kInverse * 0x9E3779B97F4A7C15u == 1);
  FlatTable<int> table;
  for (int i = 0; i < 100; ++i) ASSERT_TRUE(table.Insert(kInverse * static_cast<unsigned>(i), i + 1));
  for (int i = 0; i < 100; i += 3) table.Erase(kInverse * static_cast<unsigned>(i));
  for (int i = 0; i < 200; ++i)
    EXPECT_EQ(table.Find(kInverse * static_cast<unsigned>(i)), i >= 100 || i % 3 == 0 ? 0 : i + 1) << i;
}

TEST(FlatTable, KeysThatNearlyAgreeAreToldApart) {
  FlatTable<int> table;
  std::vector<std::uint64_t> keys = {~std::uint64_t{0}};
  for (int bit = 0; bit < 64; ++bit) keys.push_back(std::uint64_t{1} << bit);
  for (std::size_t i = 0; i < keys.size(); ++i) ASSERT_TRUE(table.Insert(keys[i], static_cast<int>(i) + 1));
  for (std::size_t i = 0; i < keys.size(); ++i) EXPECT_EQ(table.Find(keys[i]), static_cast<int>(i) + 1);
  EXPECT_EQ(table.Find(3), 0);
}

TEST(FlatTable, ErasingFromAnEmptyOneDoesNothing) {
  FlatTable<int> table;
  table.Erase(0);
  table.Erase(5);
  EXPECT_EQ(table.GetCount(), 0u);
  EXPECT_TRUE(table.Insert(5, 1));
}

}  // namespace
}  // namespace CommonInterfaces
