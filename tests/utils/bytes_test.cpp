// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/bytes.h"

#include <gtest/gtest.h>

namespace {

constexpr unsigned char kBytes[] = {0xF1, 0x02, 0x83, 0x04, 0x95, 0x06, 0xA7, 0xF8};

TEST(Bytes, LittleEndianLoadsTakeTheFirstByteAsLowest) {
  EXPECT_EQ(LoadLE16(kBytes), 0x02F1);
  EXPECT_EQ(LoadLE32(kBytes), 0x048302F1u);
  EXPECT_EQ(LoadLE64(kBytes), 0xF8A70695048302F1u);
}

TEST(Bytes, BigEndianLoadsTakeTheFirstByteAsHighest) {
  EXPECT_EQ(LoadBE32(kBytes), 0xF1028304u);
  EXPECT_EQ(LoadBE64(kBytes), 0xF10283049506A7F8u);
}

TEST(Bytes, StoresPutTheLowestByteFirst) {
  unsigned char out[8] = {};
  StoreLE16(out, 0xBEEF);
  EXPECT_EQ(out[0], 0xEF);
  EXPECT_EQ(out[1], 0xBE);
  StoreLE32(out, 0x44464C54);
  EXPECT_EQ(std::string(out, out + 4), "TLFD");
  StoreLE64(out, 0xF8A70695048302F1u);
  EXPECT_TRUE(std::equal(out, out + 8, kBytes));
}

TEST(Bytes, StoresTouchTheirOwnBytesOnly) {
  unsigned char out[6] = {9, 9, 9, 9, 9, 9};
  StoreLE16(out + 1, 0);
  EXPECT_EQ(out[0], 9);
  EXPECT_EQ(out[3], 9);
  StoreLE32(out + 1, 0);
  EXPECT_EQ(out[0], 9);
  EXPECT_EQ(out[5], 9);
}

}  // namespace
