// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "settings/settings_bytes.h"

namespace test_support {
namespace {

class SettingsRestore : public SettingsTest {
 protected:
  SettingsRestore() {
    WriteDefaults(Header(5) + Block(kOwner, kDefaults, {Section(kPlnt, 0, 1), Section(kStar, 2, 2)},
                                    {Int(kPlnt, 1, 10), Int(kPlnt, 2, 20), Int(kStar, 1, 30)}));
    settings = std::make_unique<SettingsData>(kId, kOwner, "filters.data");
    // Version 5 comes from a named file.
    EXPECT_TRUE(settings->Read("filters.data"));
    records = RecordsOf(*settings);
    sections = SectionsOf(*settings);
  }
  void ExpectUnchanged() const {
    EXPECT_EQ(RecordsOf(*settings), records);
    EXPECT_EQ(SectionsOf(*settings), sections);
  }
  std::unique_ptr<SettingsData> settings;
  std::vector<std::string> records, sections;
};

TEST_F(SettingsRestore, StatusesAndValuesAreTakenOverAndTheRestIsDropped) {
  // Another type and count is taken as it is: a saved record replaces the whole record.
  EXPECT_TRUE(settings->Restore(
      WriteFile(Header(5) + Block(kOwner, kId, {Section(kStar, 0, 9, 6), Section(kMoon, 0, 0, 6)},
                                  {Ints(kStar, 1, {31, 32}), Int(kPlnt, 1, 11, 0), Int(kPlnt, 9, 99)}))
          .c_str()));
  EXPECT_EQ(RecordsOf(*settings),
            (std::vector{Int(kPlnt, 1, 11, 0), Int(kPlnt, 2, 20), Ints(kStar, 1, {31, 32})}));
  EXPECT_EQ(SectionsOf(*settings), (std::vector{Section(kPlnt, 0, 1), Section(kStar, 2, 2, 6)}));
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(SettingsRestore, FieldOfAnUnknownSectionPrintsAndIsDropped) {
  EXPECT_TRUE(settings->Restore(WriteFile(Header(5) + Block(kOwner, kId, {}, {Int(kMoon, 1, 1)})).c_str()));
  ExpectUnchanged();
  EXPECT_EQ(debug.lines, std::vector<std::string>{kNotDefined});
}

TEST_F(SettingsRestore, SectionOfTheLastFieldIsCurrentAfterwards) {
  settings->SetCurSection(kPlnt);
  EXPECT_TRUE(settings->Restore(WriteFile(Header(5) + Block(kOwner, kId, {}, {Int(kStar, 1, 1)})).c_str()));
  EXPECT_EQ(settings->GetCurSection(), kStar);
}

TEST_F(SettingsRestore, AnotherVersionChangesNothing) {
  EXPECT_FALSE(settings->Restore(
      WriteFile(Header(6) + Block(kOwner, kId, {Section(kStar, 0, 0, 6)}, {Int(kPlnt, 1, 11)})).c_str()));
  ExpectUnchanged();
}

TEST_F(SettingsRestore, FileWithoutTagHasNoVersionToDiffer) {
  EXPECT_TRUE(settings->Restore(WriteFile("XXXX" + Block(kOwner, kId, {}, {Int(kPlnt, 1, 11)})).c_str()));
  EXPECT_EQ(RecordsOf(*settings)[0], Int(kPlnt, 1, 11));
}

TEST_F(SettingsRestore, DefaultsBlockIsNotRestored) {
  EXPECT_FALSE(settings->Restore(
      WriteFile(Header(5) + Block(kOwner, kDefaults, {Section(kStar, 0, 0, 6)}, {Int(kPlnt, 1, 11)}))
          .c_str()));
  ExpectUnchanged();
}

TEST_F(SettingsRestore, NullMissingAndEmptyFilesAreFalse) {
  EXPECT_FALSE(settings->Restore(nullptr));
  EXPECT_FALSE(settings->Restore(roots.dir.Path("nothing").c_str()));
  EXPECT_FALSE(settings->Restore(WriteFile("").c_str()));
  ExpectUnchanged();
}

TEST_F(SettingsRestore, WhatStandsBeforeTheDamageIsTakenOver) {
  const std::string file =
      Header(5) + Block(kOwner, kId, {Section(kStar, 0, 0, 6)}, {Int(kPlnt, 1, 11), Int(kPlnt, 2, 21)});
  EXPECT_FALSE(settings->Restore(WriteFile(file.substr(0, file.size() - 1)).c_str()));
  EXPECT_EQ(RecordsOf(*settings), (std::vector{Int(kPlnt, 1, 11), Int(kPlnt, 2, 20), Int(kStar, 1, 30)}));
  EXPECT_EQ(SectionsOf(*settings), (std::vector{Section(kPlnt, 0, 1), Section(kStar, 2, 2, 6)}));
}

TEST_F(SettingsRestore, BadSectionCountChangesNothing) {
  EXPECT_FALSE(settings->Restore(WriteFile(Header(5) + LittleEndian(kOwner, 4) + LittleEndian(kId, 4) +
                                           LittleEndian(0xFFFF, 2) + std::string(99, '\0'))
                                     .c_str()));
  ExpectUnchanged();
}

TEST_F(SettingsRestore, OldLayoutIsRestoredWhenAskedFor) {
  RecordParts parts = IntParts({42});
  parts.section = kPlnt;
  Create(*settings, Int(kPlnt, ::GetUniqueID("Grid"), 1));
  SettingField::SetOldSettings(true);
  EXPECT_TRUE(settings->Restore(WriteFile(Header(5) + Block(kOwner, kId, {}, {parts.Old("Grid")})).c_str()));
  int value = 0;
  settings->SetCurSection(kPlnt);
  EXPECT_TRUE(settings->GetField("Grid", &value));
  EXPECT_EQ(value, 42);
}

}  // namespace
}  // namespace test_support
