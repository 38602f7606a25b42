// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/files/binary_tables.h"

#include <gtest/gtest.h>

namespace skydata {
namespace {

TEST(BinaryTables, ArticlesAreLittleEndianAndWhole) {
  const std::string bytes("rats\x01\x02\0\0\xFF\xFF\xFF\xFFxyz", 15);
  const auto records = DecodeArticles(bytes);
  ASSERT_EQ(records.size(), 1u);
  EXPECT_EQ(records[0].kind, 0x73746172);
  EXPECT_EQ(records[0].number, 0x201);
  EXPECT_EQ(records[0].article, -1);
}

TEST(BinaryTables, ACountThatLiesTakesNoMoreThanThereIs) {
  const std::string bytes("rats\xFF\xFF\xFF\xFF\x05\0\0\0\x06", 13);
  const DistanceTable table = DecodeDistances(bytes);
  ASSERT_EQ(table.groups.size(), 1u);
  EXPECT_EQ(table.groups[0].count, 0xFFFFFFFFu);
  EXPECT_EQ(table.groups[0].numbers, std::vector<int>({5}));
  EXPECT_EQ(table.restSize, 1);
}

TEST(BinaryTables, GroupsFollowOneAnother) {
  const std::string bytes("rats\0\0\0\0uben\x01\0\0\0\x2A\0\0\0xy", 22);
  const DistanceTable table = DecodeDistances(bytes);
  ASSERT_EQ(table.groups.size(), 2u);
  EXPECT_TRUE(table.groups[0].numbers.empty());
  EXPECT_EQ(table.groups[1].numbers, std::vector<int>({42}));
  EXPECT_EQ(table.restSize, 2);
}

// The worked example of the format: 9000015 and -1000000.
TEST(BinaryTables, ImagesAreBigEndianAndTheirIdentifierStands) {
  std::string bytes("\0\1Ori \0\x89\x54\x4F\xFF\xF0\xBD\xC0", 14);
  bytes += std::string(24, '\0') + "rest";
  const ImageList list = DecodeImages(bytes);
  ASSERT_EQ(list.images.size(), 1u);
  EXPECT_EQ(list.images[0].id, "Ori ");
  EXPECT_EQ(list.images[0].corners[0], 9000015);
  EXPECT_EQ(list.images[0].corners[1], -1000000);
  EXPECT_EQ(list.images[0].corners[7], 0);
  EXPECT_EQ(list.restSize, 4);
}

TEST(BinaryTables, AListOfImagesNeedsItsCount) {
  EXPECT_FALSE(DecodeImages("").hasCount);
  EXPECT_FALSE(DecodeImages("x").hasCount);
  const ImageList cut = DecodeImages(std::string("\xFF\xFFOri ", 6));
  EXPECT_TRUE(cut.hasCount);
  EXPECT_EQ(cut.count, 65535);
  EXPECT_TRUE(cut.images.empty());
  EXPECT_EQ(cut.restSize, 4);
}

}  // namespace
}  // namespace skydata
