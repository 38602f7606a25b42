// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "settings/settings_bytes.h"

namespace test_support {
namespace {

class SettingsRead : public SettingsTest {};

const std::string kDefaultsBlock =
    Block(kOwner, kDefaults, {Section(kPlnt, 0, 1), Section(kStar, 2, 2, 0, kComt)},
          {Int(kPlnt, 1, 10), Int(kPlnt, 2, 20), Int(kStar, 1, 30)});
const std::vector<std::string> kDefaultRecords{Int(kPlnt, 1, 10), Int(kPlnt, 2, 20), Int(kStar, 1, 30)};

TEST_F(SettingsRead, DefaultsOfTheOwnFileAreEnough) {
  WriteDefaults(Header(5) + kDefaultsBlock);
  SettingsData settings(kId, kOwner, "filters.data");
  EXPECT_EQ(settings.GetFieldCount(), 0);
  EXPECT_TRUE(settings.Read(nullptr));
  EXPECT_EQ(RecordsOf(settings), kDefaultRecords);
  EXPECT_EQ(SectionsOf(settings), (std::vector{Section(kPlnt, 0, 1), Section(kStar, 2, 2, 0, kComt)}));
  EXPECT_EQ(settings.GetVersion(), 0u);  // only a named file says its version
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(SettingsRead, MissingOrEmptyFileIsFalse) {
  SettingsData absent(kId, kOwner, "filters.data");
  EXPECT_FALSE(absent.Read(nullptr));
  EXPECT_FALSE(absent.Read(roots.dir.Path("nothing.data").c_str()));
  EXPECT_FALSE(absent.Read(""));
  WriteDefaults("");
  SettingsData empty(kId, kOwner, "filters.data");
  EXPECT_FALSE(empty.Read(nullptr));
  EXPECT_FALSE(empty.Read(WriteFile("").c_str()));
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(SettingsRead, FileThatIsMissingAtConstructionIsNeverFoundWithoutAName) {
  SettingsData settings(kId, kOwner, "filters.data");
  WriteDefaults(Header(5) + kDefaultsBlock);
  EXPECT_FALSE(settings.Read(nullptr));
  EXPECT_TRUE(settings.Read("filters.data"));
  EXPECT_EQ(RecordsOf(settings), kDefaultRecords);
}

TEST_F(SettingsRead, WorkAreaHidesTheDataRoot) {
  WriteDefaults(Header(5) + kDefaultsBlock);
  roots.dir.Write("work/filters.data",
                  Header(6) + Block(kOwner, kDefaults, {Section(kMoon, 0, 0)}, {Int(kMoon, 9, 9)}));
  SettingsData settings(kId, kOwner, "filters.data");
  EXPECT_TRUE(settings.Read(nullptr));
  EXPECT_EQ(RecordsOf(settings), std::vector{Int(kMoon, 9, 9)});
}

TEST_F(SettingsRead, NamedFileGivesTheVersion) {
  WriteDefaults(Header(5) + kDefaultsBlock);
  SettingsData settings(kId, kOwner, "filters.data");
  EXPECT_TRUE(settings.Read(WriteFile(Header(0x01020304) + kDefaultsBlock).c_str()));
  EXPECT_EQ(settings.GetVersion(), 0x01020304u);
}

TEST_F(SettingsRead, FileWithoutTagHasVersion0) {
  SettingsData settings(kId, kOwner, "filters.data");
  ASSERT_TRUE(settings.Read(WriteFile(Header(7) + kDefaultsBlock).c_str()));
  EXPECT_TRUE(settings.Read(WriteFile("XXXX" + kDefaultsBlock).c_str()));
  EXPECT_EQ(settings.GetVersion(), 0u);
  EXPECT_EQ(RecordsOf(settings), kDefaultRecords);
}

// The search starts behind the four bytes in the place of the tag.
TEST_F(SettingsRead, BlockAtTheVeryStartOfANamedFileIsNotFound) {
  SettingsData settings(kId, kOwner, "filters.data");
  EXPECT_FALSE(settings.Read(WriteFile(kDefaultsBlock).c_str()));
}

TEST_F(SettingsRead, FileOfTheTagAloneIsFalse) {
  SettingsData settings(kId, kOwner, "filters.data");
  EXPECT_FALSE(settings.Read(WriteFile("SREV").c_str()));
  EXPECT_FALSE(settings.Read(WriteFile("SREV\x05").c_str()));
  EXPECT_EQ(settings.GetVersion(), 0u);
}

TEST_F(SettingsRead, DefaultsBlockIsReadWhenTheOwnKeyIsMissingAndIsNotMergedWithItself) {
  SettingsData settings(kId, kOwner, "filters.data");
  const std::string others = Block(kOwner, 2, {}, {}) + Block(kOwner + 1, kId, {}, {});
  EXPECT_TRUE(settings.Read(WriteFile(Header(5) + others + kDefaultsBlock).c_str()));
  EXPECT_EQ(RecordsOf(settings), kDefaultRecords);
  EXPECT_EQ(settings.GetSectionCount(), 2);
}

TEST_F(SettingsRead, DefaultsBlockOfANamedFileReplacesTheDefaults) {
  WriteDefaults(Header(5) + kDefaultsBlock);
  SettingsData settings(kId, kOwner, "filters.data");
  EXPECT_TRUE(settings.Read(
      WriteFile(Header(5) + Block(kOwner, kDefaults, {Section(kMoon, 0, 0)}, {Int(kMoon, 1, 99)})).c_str()));
  EXPECT_EQ(RecordsOf(settings), std::vector{Int(kMoon, 1, 99)});
  EXPECT_EQ(SectionsOf(settings), std::vector{Section(kMoon, 0, 0)});
}

// In the container's own file the own block must not be taken for the defaults, wherever it stands.
TEST_F(SettingsRead, OwnBlockIsNotLookedForAmongTheDefaults) {
  WriteDefaults(Header(5) + Block(kOwner, kId, {Section(kPlnt, 0, 0)}, {Int(kPlnt, 1, 11)}) + kDefaultsBlock);
  SettingsData settings(kId, kOwner, "filters.data");
  EXPECT_TRUE(settings.Read(nullptr));
  EXPECT_EQ(RecordsOf(settings), kDefaultRecords);
  EXPECT_TRUE(settings.Read("filters.data"));
  EXPECT_EQ(RecordsOf(settings), (std::vector{Int(kPlnt, 1, 11), Int(kPlnt, 2, 20), Int(kStar, 1, 30)}));
}

TEST_F(SettingsRead, FirstOfTwoBlocksWithOneKeyIsRead) {
  WriteDefaults(Header(5) + kDefaultsBlock);
  SettingsData settings(kId, kOwner, "filters.data");
  EXPECT_TRUE(settings.Read(WriteFile(Header(5) + Block(kOwner, kId, {}, {Int(kPlnt, 1, 11)}) +
                                      Block(kOwner, kId, {}, {Int(kPlnt, 1, 12)}))
                                .c_str()));
  EXPECT_EQ(FirstInt(*settings.GetFieldAt(0)), 11);
}

TEST_F(SettingsRead, NamedFileWithoutEitherBlockIsFalseAndLeavesTheDefaults) {
  WriteDefaults(Header(5) + kDefaultsBlock);
  SettingsData settings(kId, kOwner, "filters.data");
  EXPECT_FALSE(settings.Read(WriteFile(Header(6) + Block(kOwner, 2, {}, {})).c_str()));
  EXPECT_EQ(RecordsOf(settings), kDefaultRecords);
}

TEST_F(SettingsRead, ReadDeletesEarlierFields) {
  SettingsData settings(kId, kOwner, "filters.data");
  Create(settings, Int(kMoon, 1, 1));
  EXPECT_FALSE(settings.Read(nullptr));
  EXPECT_EQ(settings.GetFieldCount(), 0);
  EXPECT_EQ(settings.GetSectionCount(), 0);
}

TEST_F(SettingsRead, CurrentSectionSurvivesIfItStillExists) {
  WriteDefaults(Header(5) + kDefaultsBlock);
  SettingsData settings(kId, kOwner, "filters.data");
  Create(settings, Int(kStar, 1, 1));
  settings.SetCurSection(kStar);
  EXPECT_TRUE(settings.Read(nullptr));
  EXPECT_EQ(settings.GetCurSection(), kStar);
  settings.SetCurSection(kMoon);
  EXPECT_TRUE(settings.Read(nullptr));
  EXPECT_EQ(settings.GetCurSection(), 0u);
  settings.SetCurSection(kStar);
  EXPECT_TRUE(settings.Read(
      WriteFile(Header(5) + Block(kOwner, kDefaults, {Section(kMoon, 0, 0)}, {Int(kMoon, 1, 99)})).c_str()));
  EXPECT_EQ(settings.GetCurSection(), 0u);
}

TEST_F(SettingsRead, SectionsAndAliasesOfTheFirstReadCountAsChanged) {
  WriteDefaults(Header(5) + kDefaultsBlock);
  SettingsData settings(kId, kOwner, "filters.data");
  ASSERT_TRUE(settings.Read(nullptr));
  settings.SetSectionChanged(kNone, false);
  EXPECT_FALSE(settings.IsSectionChanged(kPlnt));
  EXPECT_FALSE(settings.IsSectionChanged(kStar));
  EXPECT_FALSE(settings.IsSectionChanged(kComt));  // the alias
  EXPECT_TRUE(settings.IsSectionChanged(kMoon));   // unknown
  EXPECT_TRUE(settings.IsSectionChanged(kNone));
  ASSERT_TRUE(settings.Read(nullptr));
  EXPECT_FALSE(settings.IsSectionChanged(kPlnt));
}

TEST_F(SettingsRead, OldLayoutIsReadWhenAskedForButNeverForTheDefaults) {
  WriteDefaults(Header(5) +
                Block(kOwner, kDefaults, {Section(kPlnt, 0, 0)}, {Int(kPlnt, ::GetUniqueID("Grid"), 1)}));
  RecordParts parts = IntParts({42});
  parts.section = kPlnt;
  const std::string file = Header(4) + LittleEndian(kOwner, 4) + LittleEndian(kId, 4) + LittleEndian(0, 2) +
                           LittleEndian(1, 4) + WithLength(parts.Old("Grid"));
  SettingsData settings(kId, kOwner, "filters.data");
  SettingField::SetOldSettings(true);
  EXPECT_TRUE(settings.Read(WriteFile(file).c_str()));
  EXPECT_TRUE(SettingField::IsOldSettings());
  SettingField::SetOldSettings(false);
  ASSERT_EQ(settings.GetFieldCount(), 1);
  EXPECT_EQ(FirstInt(*settings.GetFieldAt(0)), 42);

  // Written again it is in the current layout.
  EXPECT_TRUE(settings.Write(roots.dir.Path("new.data").c_str()));
  SettingsData again(kId, kOwner, "filters.data");
  EXPECT_TRUE(again.Read(roots.dir.Path("new.data").c_str()));
  EXPECT_EQ(RecordsOf(again), RecordsOf(settings));
}

TEST_F(SettingsRead, PartsOfAFileAreCounted) {
  SettingsData settings(kId, kOwner, "filters.data");
  const std::string name = WriteFile(Header(5) + kDefaultsBlock + Block(kOwner + 1, kDefaults, {}, {}));
  EXPECT_EQ(settings.GetNumberParts(name.c_str(), kDefaults), 2u);
  EXPECT_EQ(settings.GetNumberParts(name.c_str(), kOwner), 1u);
  EXPECT_EQ(settings.GetNumberParts(name.c_str(), 0x56455253), 1u);  // "SREV"
  EXPECT_EQ(settings.GetNumberParts(name.c_str(), 0xEEEEEEEE), 0u);
  EXPECT_EQ(settings.GetNumberParts(roots.dir.Path("nothing").c_str(), kDefaults), 0u);
  EXPECT_EQ(settings.GetNumberParts(nullptr, kDefaults), 0u);
  EXPECT_EQ(settings.GetNumberParts(WriteFile(std::string(11, 'a')).c_str(), 0x61616161), 2u);
  // A code across the border of two blocks of reading.
  EXPECT_EQ(settings.GetNumberParts(WriteFile(std::string(4094, 'a') + "TLFD").c_str(), kDefaults), 1u);
}

TEST_F(SettingsRead, HoldsBlockAsksForExactlyThatKey) {
  const std::string name = WriteFile(Header(5) + kDefaultsBlock);
  EXPECT_TRUE(SettingsData::HoldsBlock(name.c_str(), kOwner, kDefaults));
  EXPECT_FALSE(SettingsData::HoldsBlock(name.c_str(), kOwner, kId));
  EXPECT_FALSE(SettingsData::HoldsBlock(nullptr, kOwner, kDefaults));
  EXPECT_FALSE(SettingsData::HoldsBlock("filters.data", kOwner, kDefaults));
  WriteDefaults(Header(5) + kDefaultsBlock);
  EXPECT_TRUE(SettingsData::HoldsBlock("filters.data", kOwner, kDefaults));
}

TEST_F(SettingsRead, BytesInsideOfABlockAreItsKeyOnlyInADamagedFile) {
  // A value that is followed by the length of the next field, 24: the key (42, 24).
  const std::string name = "named.data";
  const std::string file = Header(5) + Block(kOwner, kId, {}, {Int(kPlnt, 1, 42), Int(kPlnt, 2, 6)});
  const unsigned length = 24;
  ASSERT_NE(file.find(LittleEndian(42, 4) + LittleEndian(length, 4)), std::string::npos);
  roots.dir.Write("work/named.data", file);
  EXPECT_FALSE(SettingsData::HoldsBlock(name.c_str(), 42, length));
  EXPECT_TRUE(SettingsData::HoldsBlock(name.c_str(), kOwner, kId));
  roots.dir.Write("work/named.data", file + "x");
  EXPECT_TRUE(SettingsData::HoldsBlock(name.c_str(), 42, length));
  roots.dir.Write("work/named.data", file + Block(42, length, {}, {}));
  EXPECT_TRUE(SettingsData::HoldsBlock(name.c_str(), 42, length));
}

TEST_F(SettingsRead, CorrectionFieldsAreLoadedAtConstruction) {
  // No header: the block may stand at the very start.
  roots.dir.Write("data/FilterCorrection.data",
                  Block(kOwner + 1, kDefaults, {}, {Int(kStar, 1, 1)}) +
                      Block(kOwner, kDefaults, {Section(kPlnt, 0, 1)}, {Int(kPlnt, 1, 5), Int(kMoon, 2, 6)}));
  const SettingsData settings(kId, kOwner, "filters.data");
  ASSERT_EQ(settings.GetCorrectionCount(), 2);
  EXPECT_EQ(settings.GetCorrectionAt(0)->GetNameId(), 1);
  EXPECT_EQ(FirstInt(*settings.GetCorrectionAt(1)), 6);
  EXPECT_EQ(settings.GetCorrectionAt(2), nullptr);
  EXPECT_EQ(settings.GetCorrectionAt(-1), nullptr);
  EXPECT_EQ(settings.GetFieldCount(), 0);
  EXPECT_EQ(settings.GetSectionCount(), 0);
}

TEST_F(SettingsRead, CorrectionFileIsInTheCurrentLayoutAlways) {
  roots.dir.Write("data/FilterCorrection.data", Block(kOwner, kDefaults, {}, {Int(kPlnt, 1, 5)}));
  SettingField::SetOldSettings(true);
  const SettingsData settings(kId, kOwner, "filters.data");
  EXPECT_TRUE(SettingField::IsOldSettings());
  ASSERT_EQ(settings.GetCorrectionCount(), 1);
  EXPECT_EQ(settings.GetCorrectionAt(0)->GetNameId(), 1);
}

TEST_F(SettingsRead, CorrectionFileThatIsMissingEmptyForeignOrCutIsSilent) {
  EXPECT_EQ(SettingsData(kId, kOwner, "filters.data").GetCorrectionCount(), 0);
  roots.dir.Write("data/FilterCorrection.data", "");
  EXPECT_EQ(SettingsData(kId, kOwner, "filters.data").GetCorrectionCount(), 0);
  roots.dir.Write("data/FilterCorrection.data", Block(kOwner, kId, {}, {Int(kPlnt, 1, 5)}));
  EXPECT_EQ(SettingsData(kId, kOwner, "filters.data").GetCorrectionCount(), 0);
  const std::string whole =
      Block(kOwner, kDefaults, {Section(kPlnt, 0, 1)}, {Int(kPlnt, 1, 5), Int(kPlnt, 2, 6)});
  roots.dir.Write("data/FilterCorrection.data", whole.substr(0, whole.size() - 1));
  EXPECT_EQ(SettingsData(kId, kOwner, "filters.data").GetCorrectionCount(), 1);
  roots.dir.Write("data/FilterCorrection.data", whole.substr(0, 12));
  EXPECT_EQ(SettingsData(kId, kOwner, "filters.data").GetCorrectionCount(), 0) << "cut in its sections";
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(SettingsRead, FolderHoldsNoBlock) {
  const std::string folder = roots.dir.Path("data");
  EXPECT_FALSE(SettingsData::HoldsBlock(folder.c_str(), kOwner, kDefaults));
  EXPECT_EQ(SettingsData(kId, kOwner, "filters.data").GetNumberParts(folder.c_str(), kDefaults), 0u);
}

}  // namespace
}  // namespace test_support
