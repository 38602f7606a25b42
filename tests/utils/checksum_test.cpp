// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/checksum.h"

#include <set>
#include <string>

#include <gtest/gtest.h>

namespace {

// The check value of the catalogue of CRC algorithms (CRC-32/ISO-HDLC); the others are zlib.crc32 of Python.
TEST(Crc32, KnownSums) {
  EXPECT_EQ(GetCrc32("123456789"), 0xCBF43926u);
  EXPECT_EQ(GetCrc32(""), 0u);
  EXPECT_EQ(GetCrc32("a"), 0xE8B7BE43u);
  EXPECT_EQ(GetCrc32(std::string(1, '\0')), 0xD202EF8Du);
  EXPECT_EQ(GetCrc32("The quick brown fox jumps over the lazy dog"), 0x414FA339u);
  EXPECT_EQ(GetCrc32(std::string(1000, '\xFF')), 0xE0533230u);
}

// From Python: zlib.crc32(bytes([i]), 0xFFFFFFFF) ^ 0xFFFFFFFF.
TEST(Crc32, EntriesOfItsTable) {
  static_assert(GetCrc32Entry(0) == 0 && GetCrc32Entry(1) == 0x77073096u);
  static_assert(GetCrc32Entry(0x61) == 0x3AB551CEu && GetCrc32Entry(255) == 0x2D02EF8Du);
}

TEST(Crc32, PiecesGiveTheSumOfTheWhole) {
  std::string text;
  for (int i = 0; i < 100; ++i) text += static_cast<char>(i * 37);
  for (std::size_t cut = 0; cut <= text.size(); ++cut)
    EXPECT_EQ(GetCrc32(std::string_view(text).substr(cut), GetCrc32(std::string_view(text).substr(0, cut))),
              GetCrc32(text))
        << cut;
}

// From the same formula in Python, whose integers have no width.
TEST(Fingerprint, KnownSums) {
  EXPECT_EQ(GetFingerprint(""), 0xEC28D0E076965DFDu);
  EXPECT_EQ(GetFingerprint("abc"), 0xC3B7C69F1C271263u);
  EXPECT_EQ(GetFingerprint(std::string(100, 'x')), 0xE9E9C52B4E0824E9u);
  EXPECT_EQ(GetFingerprint(std::string(116, '\0')), 0x24D35337E94E1CABu);
}

TEST(Fingerprint, EveryBitAndTheLengthCount) {
  const std::string text(77, 'x');
  std::set<std::uint64_t> sums = {GetFingerprint(text), GetFingerprint(text + '\0')};
  for (std::size_t at = 0; at < text.size(); ++at) {
    for (int bit = 0; bit < 8; ++bit) {
      std::string other = text;
      other[at] = static_cast<char>(other[at] ^ 1 << bit);
      sums.insert(GetFingerprint(other));
    }
  }
  EXPECT_EQ(sums.size(), 2 + 77 * 8u);
}

TEST(Crc32, NothingChangesNothing) { EXPECT_EQ(GetCrc32({}, 0x1234u), 0x1234u); }

}  // namespace
