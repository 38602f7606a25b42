// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/diff.h"

#include <gtest/gtest.h>

#include <sstream>

#include "skydata/settings/reader/file_reader.h"
#include "tests/skydata/settings/bytes.h"

namespace skydata {
namespace {

using namespace skydata_test;

// What is said of two files; "same" when there is nothing.
std::string Diff(const std::string& first, const std::string& second) {
  const FieldNames names;
  std::ostringstream output;
  const bool isDifferent =
      DiffSettings(ReadSettingsFile(first, names), ReadSettingsFile(second, names), output);
  EXPECT_EQ(isDifferent, !output.str().empty());
  return isDifferent ? output.str() : "same";
}

std::string File(const std::vector<std::string>& records, int status = 1) {
  const auto last = static_cast<unsigned>(records.size()) - 1;
  return kHeader1 + Block(kKeyOfDefaults, {Section(kStarBytes, 0, last, status)}, records);
}
const std::string kDrawOn = Record(kStarBytes, kDraw, 1, 1, "\x01");
const std::string kEmptyName = Record(kStarBytes, 0, 1, 1, "\x05");

TEST(SettingsDiff, AFileIsTheSameAsItself) { EXPECT_EQ(Diff(File({kDrawOn}), File({kDrawOn})), "same"); }

TEST(SettingsDiff, AValueThatChangedIsShownBeforeAndAfter) {
  EXPECT_EQ(Diff(File({kDrawOn}), File({Record(kStarBytes, kDraw, 1, 1, "\x02")})),
            "  [block FLTR defaults]\n- star.Draw = u8 1\n+ star.Draw = u8 2\n");
}

TEST(SettingsDiff, FieldsThatOneFileLacks) {
  EXPECT_EQ(Diff(File({kDrawOn}), File({kDrawOn, kEmptyName})),
            "  [block FLTR defaults]\n+ star.@0 = u8 5\n");
  EXPECT_EQ(Diff(File({kDrawOn, kEmptyName}), File({kDrawOn})),
            "  [block FLTR defaults]\n- star.@0 = u8 5\n");
}

TEST(SettingsDiff, AFieldThatStandsTwiceIsComparedWithItsLike) {
  EXPECT_EQ(Diff(File({kDrawOn, kDrawOn}), File({kDrawOn})), "  [block FLTR defaults]\n- star.Draw = u8 1\n");
}

TEST(SettingsDiff, TheStatusOfASection) {
  EXPECT_EQ(Diff(File({kDrawOn}), File({kDrawOn}, 0)),
            "  [block FLTR defaults]\n- [section star]\n+ [section star status=0]\n");
}

TEST(SettingsDiff, ABlockThatOneFileLacksIsShownWhole) {
  EXPECT_EQ(Diff(kHeader1 + SmallBlock(), kHeader1 + SmallBlock() + SmallBlock(kKeyOne)),
            "+ [block FLTR 1]\n+ [section star]\n+ star.Draw = u8 1\n");
}

TEST(SettingsDiff, HeaderAndVersion) {
  EXPECT_EQ(Diff(kHeader1 + SmallBlock(), "SREV" + Le32(2) + SmallBlock()), "- header 1\n+ header 2\n");
  EXPECT_EQ(Diff(kHeader1 + SmallBlock(), SmallBlock()), "- header 1\n+ header none\n");
}

TEST(SettingsDiff, TheOrderIsSaidWhenNothingElseDiffers) {
  EXPECT_EQ(Diff(File({kDrawOn, kEmptyName}), File({kEmptyName, kDrawOn})),
            "  [block FLTR defaults]\n~ the fields of section star stand in another order\n");
  EXPECT_EQ(
      Diff(kHeader1 + SmallBlock() + SmallBlock(kKeyOne), kHeader1 + SmallBlock(kKeyOne) + SmallBlock()),
      "~ the blocks stand in another order\n");
  const std::string gala = Section("alag", 0, 0xFFFF), star = Section(kStarBytes, 0, 0xFFFF);
  EXPECT_EQ(Diff(kHeader1 + Block(kKeyOne, {star, gala}, {}), kHeader1 + Block(kKeyOne, {gala, star}, {})),
            "  [block FLTR 1]\n~ the sections stand in another order\n");
}

TEST(SettingsDiff, TheOrderIsNotSaidBesideAnotherDifference) {
  const std::string drawTwo = Record(kStarBytes, kDraw, 1, 1, "\x02");
  EXPECT_EQ(Diff(File({kDrawOn, kEmptyName}), File({kEmptyName, drawTwo})),
            "  [block FLTR defaults]\n- star.Draw = u8 1\n+ star.Draw = u8 2\n");
}

TEST(SettingsDiff, AnOldFileMeansTheSameAsTheConvertedOne) {
  std::string record = Record(kStarBytes, kDraw, 1, 1, "\x01");
  record.replace(15, 5, Le32(0x4000) + "\x01");
  EXPECT_EQ(Diff(File({OldRecord(kStarBytes, "Draw", 1, 1, "\x01")}), File({record})), "same");
}

}  // namespace
}  // namespace skydata
