// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "utils/text.h"

namespace {

// The reference values come from this Python script, whose table is taken from zlib instead of being
// computed:
//
//   import zlib
//   T = [zlib.crc32(bytes([i]), 0xFFFFFFFF) ^ 0xFFFFFFFF for i in range(256)]
//   def signed(x): return x - (1 << 32) if x >> 31 else x
//   def uid(name):
//       h = 0
//       for c in name: h = signed(((h >> 8) ^ T[(h ^ c) & 255]) & 0xFFFFFFFF)
//       return h & 0x7FFFFFFF
TEST(GetUniqueId, GivesTheReferenceValues) {
  EXPECT_EQ(GetUniqueID("RA"), 0x76564ED0);
  EXPECT_EQ(GetUniqueID("Dec"), 0x44A28A1C);
  EXPECT_EQ(GetUniqueID("QXid"), 0x10016260);
  EXPECT_EQ(GetUniqueID("m_Zoom"), 0x388BB2C8);
  EXPECT_EQ(GetUniqueID("m_lam"), 0x7CE4D94F);
  EXPECT_EQ(GetUniqueID("VisMagnitude"), 0x6B36CC75);
}

// With a logical shift the script gives 0x09564ED0 for "RA": the sign must be carried down.
TEST(GetUniqueId, ShiftIsArithmetic) { EXPECT_NE(GetUniqueID("RA"), 0x09564ED0); }

// One byte looks the table up once: entry 0x61 is 0x3AB551CE.
TEST(GetUniqueId, OneCharacterIsItsTableEntry) { EXPECT_EQ(GetUniqueID("a"), 0x3AB551CE); }

TEST(GetUniqueId, IsNoCrc32) { EXPECT_NE(GetUniqueID("m_Zoom"), 0x09B6EC6B); }  // zlib.crc32, 31 bits of it

TEST(MakeUniqueId, IsTheSameWhenCompiling) {
  static_assert(MakeUniqueID("RA") == 0x76564ED0);
  static_assert(MakeUniqueID("") == 0);
  for (const char* const name :
       {"m_Zoom", "a", "\xCE\xB1", "A name of several words, and longer than most"}) {
    EXPECT_EQ(MakeUniqueID(name), GetUniqueID(name)) << name;
  }
}

TEST(GetUniqueId, EmptyTextIsZero) {
  EXPECT_EQ(GetUniqueID(""), 0);
  EXPECT_EQ(GetUniqueID(nullptr), 0);
}

TEST(GetUniqueId, BytesAbove127AreUnsigned) { EXPECT_EQ(GetUniqueID("\xCE\xB1"), 0x691F79DA); }

TEST(GetUniqueId, IsNeverNegative) {
  for (int first = 1; first < 256; ++first) {
    for (int second = 0; second < 256; ++second) {
      const char name[3] = {static_cast<char>(first), static_cast<char>(second), 0};
      ASSERT_GE(GetUniqueID(name), 0);
    }
  }
}

}  // namespace
