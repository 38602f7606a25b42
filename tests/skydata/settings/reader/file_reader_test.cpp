// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/reader/file_reader.h"

#include <gtest/gtest.h>

#include "tests/skydata/settings/bytes.h"
#include "utils/text.h"

namespace skydata {
namespace {

using namespace std::string_literals;
using namespace skydata_test;

SettingsFile Read(const std::string& bytes, RecordLayout undecided = RecordLayout::kCurrent) {
  return ReadSettingsFile(bytes, FieldNames(), undecided);
}

TEST(SettingsFileReader, EveryPartHasItsOffset) {
  const SettingsFile file = Read(kHeader1 + SmallBlock() + SmallBlock(kKeyOne));
  EXPECT_TRUE(file.hasHeader);
  EXPECT_EQ(file.version, 1u);
  EXPECT_TRUE(file.damage.empty());
  ASSERT_EQ(file.blocks.size(), 2u);
  const FileBlock& block = file.blocks[1];
  EXPECT_EQ(block.offset, 60u);
  EXPECT_EQ(block.end, 112u);
  EXPECT_EQ(block.owner, static_cast<unsigned>(FourCC("FLTR")));
  EXPECT_EQ(block.id, 1u);
  ASSERT_EQ(block.sections.size(), 1u);
  EXPECT_EQ(block.sections[0].offset, 70u);
  EXPECT_EQ(block.sections[0].text.id, static_cast<unsigned>(FourCC("star")));
  ASSERT_EQ(block.fields.size(), 1u);
  EXPECT_EQ(block.fields[0].offset, 87u);
  EXPECT_EQ(block.fields[0].size, 21);
  EXPECT_EQ(block.fields[0].text.name, "Draw");
  EXPECT_EQ(block.fields[0].text.values, "\x01");
}

TEST(SettingsFileReader, EachBlockHasItsOwnLayout) {
  const std::string old =
      Block(kKeyOne, {Section(kStarBytes, 0, 0)}, {OldRecord(kStarBytes, "m_Zoom", 1, 1, "\x05")});
  const SettingsFile file = Read(kHeader1 + SmallBlock() + old);
  EXPECT_EQ(file.blocks[0].layout, RecordLayout::kCurrent);
  EXPECT_EQ(file.blocks[1].layout, RecordLayout::kOld);
  EXPECT_TRUE(file.blocks[1].isLayoutCertain);
  const FieldText& field = file.blocks[1].fields[0].text;
  EXPECT_EQ(field.name, "m_Zoom");
  EXPECT_EQ(field.nameId, GetUniqueID("m_Zoom"));
  EXPECT_EQ(field.condition, 0x4000u);
  EXPECT_EQ(field.compareStatus, 1);
  EXPECT_EQ(field.values, "\x05");
}

TEST(SettingsFileReader, ANameOfTheOldLayoutMayHaveAnythingBehindItsZero) {
  std::string record = OldRecord(kStarBytes, "Draw", 1, 1, "\x05");
  record.replace(13, 27, std::string(27, '\x01'));
  const SettingsFile file = Read(Block(kKeyOne, {Section(kStarBytes, 0, 0)}, {record}));
  EXPECT_EQ(file.blocks[0].layout, RecordLayout::kOld);
  EXPECT_EQ(file.blocks[0].fields[0].text.nameId, static_cast<int>(kDraw));
}

TEST(SettingsFileReader, ABlockThatFitsNeitherLayoutIsWhatTheCallerSays) {
  const std::string odd =
      Block(kKeyOne, {Section(kStarBytes, 0, 0)}, {OldRecord(kStarBytes, "Draw", 1, 9, "\x05")});
  EXPECT_FALSE(Read(odd).blocks[0].isLayoutCertain);
  EXPECT_EQ(Read(odd).blocks[0].layout, RecordLayout::kCurrent);
  EXPECT_EQ(Read(odd, RecordLayout::kOld).blocks[0].layout, RecordLayout::kOld);
}

TEST(SettingsFileReader, AnEmptyContainerIsABlock) {
  const SettingsFile file = Read(kHeader1 + Block(kKeyOne, {}, {}) + Block(kKeyOfDefaults, {}, {}));
  EXPECT_TRUE(file.damage.empty());
  EXPECT_EQ(file.blocks.size(), 2u);
}

TEST(SettingsFileReader, TheFirstFieldOfTheFirstSectionIsFound) {
  const std::string one = Record(kStarBytes, kDraw, 1, 1, "\x01"),
                    two = Record(kStarBytes, kDraw, 1, 1, "\x02");
  const SettingsFile file =
      Read(Block(kKeyOne, {Section(kStarBytes, 1, 1), Section(kStarBytes, 0, 0)}, {one, two}));
  const FileBlock& block = file.blocks[0];
  const unsigned star = FourCC("star");
  EXPECT_EQ(FindField(block, star, static_cast<int>(kDraw))->text.values, "\x02");
  EXPECT_EQ(FindOwnField(block, star, static_cast<int>(kDraw))->text.values, "\x01");
  EXPECT_EQ(FindField(block, star, 3), nullptr);
  EXPECT_EQ(FindField(block, 3, static_cast<int>(kDraw)), nullptr);
}

TEST(SettingsFileReader, FieldsThatReachIntoTheNextBlockAreDropped) {
  // The second length of the damaged block covers the first bytes of the next one, the third is none.
  const std::string draw = Record(kStarBytes, kDraw, 1, 1, "\x01");
  std::string damaged = Block(kKeyOfDefaults, {Section(kStarBytes, 0, 2)}, {draw, draw, draw});
  damaged.resize(damaged.size() - draw.size());
  damaged[52] = 40;  // of the second record
  const SettingsFile file = Read(kHeader1 + damaged + SmallBlock(kKeyOne));
  ASSERT_EQ(file.blocks.size(), 2u);
  EXPECT_EQ(file.blocks[0].fields.size(), 1u);
  EXPECT_EQ(file.blocks[0].end, 8 + damaged.size());
  EXPECT_EQ(file.blocks[1].id, 1u);
  EXPECT_EQ(file.blocks[1].fields.size(), 1u);
}

TEST(SettingsFileReader, NoFileKeepsItBusyForLong) {
  // A thousand million steps if every place were searched to the end: each looks like a block of many fields.
  std::string bytes;
  while (bytes.size() < 400000) bytes += Le32(20);
  EXPECT_FALSE(Read("SREV" + Le32(1) + bytes).damage.empty());
}

TEST(SettingsFileReader, ManyMoreBlocksThanFilesHaveAreNotKept) {
  const SettingsFile file = Read(kHeader1 + std::string(14 * 70000, '\0'));
  EXPECT_EQ(file.blocks.size(), 65535u);
  ASSERT_EQ(file.damage.size(), 1u);
  EXPECT_EQ(file.damage[0].code, FindingCode::kStrayBytes);
}

}  // namespace
}  // namespace skydata
