// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "settings/value_cache.h"

#include <map>
#include <random>
#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace CommonInterfaces {
namespace {

std::string Load(const ValueCache& cache, std::uint64_t key, std::uint64_t changes) {
  unsigned char out[9] = {'~', '~', '~', '~', '~', '~', '~', '~', '~'};
  if (!cache.Load(key, changes, out)) return "none";
  return std::string(out, out + sizeof out);
}

TEST(ValueCache, HasNothingAtFirst) {
  const ValueCache cache;
  EXPECT_EQ(Load(cache, 0, 0), "none");
  EXPECT_EQ(Load(cache, 5, 70000), "none");
}

TEST(ValueCache, GivesAsManyBytesAsWereKept) {
  ValueCache cache;
  const std::pair<unsigned, std::string> kExpected[] = {
      {1, "1~~~~~~~~"}, {2, "12~~~~~~~"}, {4, "1234~~~~~"}, {8, "12345678~"}};
  for (const auto& [size, expected] : kExpected) {
    cache.Keep(size, 0, 0, 0x3837363534333231u, size);
    EXPECT_EQ(Load(cache, size, 0), expected);
    EXPECT_EQ(Load(cache, size, 1), "none");
    EXPECT_EQ(Load(cache, 3, 0), "none");
  }
}

// What is kept last is there; whatever else it answers is what was kept at that very count. Keys with all
// bits, more of them than there is room for, counts that go on by one or by more than any stamp has.
TEST(ValueCache, NeverGivesAValueOfAnotherKeyOrCount) {
  std::mt19937 random(1);
  ValueCache cache;
  std::map<std::uint64_t, std::string> kept;  // at this count
  std::uint64_t changes = 0;
  int found = 0;
  for (int step = 0; step < 300000; ++step) {
    if (random() % 50 == 0) {
      changes += random() % 10 == 0 ? 16382 * (random() % 3) + 1 : 1;
      if (random() % 300 == 0) changes += std::uint64_t{1} << 33;
      kept.clear();
    }
    const auto pick = [&random] { return (std::uint64_t{random() % 8} * 0x249249249249u) ^ random() % 8; };
    const std::uint64_t key = pick() & 0xFFFFFFFFFFFFu;
    if (random() % 2 == 0) {
      const unsigned size = 1u << random() % 4;
      cache.Keep(key, changes, random() % 100, 0x0101010101010101u * (random() % 64), size);
      kept[key] = Load(cache, key, changes);
      ASSERT_EQ(kept[key].find('~'), size == 8 ? 8 : size);
    }
    const std::uint64_t asked = pick() & 0xFFFFFFFFFFFFu;
    const std::string answer = Load(cache, asked, changes);
    if (answer == "none") continue;
    ++found;
    ASSERT_EQ(kept.count(asked), 1u);
    ASSERT_EQ(answer, kept[asked]);
  }
  EXPECT_GT(found, 10000);
}

}  // namespace
}  // namespace CommonInterfaces
