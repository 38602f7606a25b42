// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "settings/settings_bytes.h"

namespace test_support {
namespace {

class SettingsValues : public SettingsTest {
 protected:
  SettingsValues() {
    Create(settings, Ints(kPlnt, grid, {1, 2, 3}));
    Create(settings, Int(kPlnt, 2, 20));
    Create(settings, Int(kStar, 3, 30, 0));
    settings.SetCurSection(kPlnt);
    SettingsData::SetModifyFlag(false);
  }
  const int grid = ::GetUniqueID("Grid");
  SettingsData settings{kId, kOwner, "filters.data"};
};

TEST_F(SettingsValues, FieldIsReadByIdAndByName) {
  int byId[3] = {}, byName[3] = {};
  EXPECT_TRUE(settings.GetField(grid, byId));
  EXPECT_TRUE(settings.GetField("Grid", byName));
  EXPECT_EQ(byId[2], 3);
  EXPECT_EQ(byName[1], 2);
}

TEST_F(SettingsValues, MissingFieldLeavesTheOutputAloneAndSettersDoNothing) {
  SettingsData::SetModifyFlag(true);
  int value = 77;
  EXPECT_FALSE(settings.GetField(99, &value));
  EXPECT_FALSE(settings.GetField("Poles", &value));
  EXPECT_FALSE(settings.GetFieldElement(99, &value, 0));
  EXPECT_EQ(value, 77);
  EXPECT_EQ(settings.GetFieldType(99), 0xFFFFFFFFu);
  EXPECT_EQ(settings.GetFieldStatus(99), 0);
  const auto records = RecordsOf(settings);
  settings.SetField(99, &value);
  settings.SetField("Poles", &value);
  settings.SetFieldElement(99, &value, 0);
  settings.SetFieldElement(kStar, 99, &value, 0);
  settings.SetFieldStatus(99, 5);
  settings.SetFieldStatus(kStar, 99, 5);
  EXPECT_EQ(RecordsOf(settings), records);
  EXPECT_TRUE(SettingsData::GetModifyFlag());
  EXPECT_EQ(debug.lines.size(), 11u);
}

TEST_F(SettingsValues, EqualValuesClearTheModifyFlag) {
  const int changed[] = {1, 2, 4};
  settings.SetField(grid, changed);
  EXPECT_TRUE(SettingsData::GetModifyFlag());
  settings.SetField("Grid", changed);
  EXPECT_FALSE(SettingsData::GetModifyFlag());
}

TEST_F(SettingsValues, SetterWithoutSectionMarksTheCurrentSection) {
  settings.SetSectionChanged(kPlnt, false);
  settings.SetSectionChanged(kStar, false);
  const int value = 31;
  settings.SetField(3, &value);  // found in "star", while "plnt" is current
  EXPECT_TRUE(settings.IsSectionChanged(kPlnt));
  EXPECT_FALSE(settings.IsSectionChanged(kStar));
  EXPECT_EQ(FirstInt(*settings.GetFieldAt(2)), 31);
}

TEST_F(SettingsValues, EqualValueDoesNotMarkTheSection) {
  settings.SetSectionChanged(kPlnt, false);
  const int value = 20;
  settings.SetField(2, &value);
  EXPECT_FALSE(settings.IsSectionChanged(kPlnt));
}

TEST_F(SettingsValues, SetterWithSectionMarksItAndKeepsTheCurrentOne) {
  settings.SetSectionChanged(kPlnt, false);
  settings.SetSectionChanged(kStar, false);
  const int value = 31;
  settings.SetFieldElement(kStar, 3, &value, 0);
  EXPECT_TRUE(SettingsData::GetModifyFlag());
  EXPECT_TRUE(settings.IsSectionChanged(kStar));
  EXPECT_FALSE(settings.IsSectionChanged(kPlnt));
  EXPECT_EQ(settings.GetCurSection(), kPlnt);
  settings.SetFieldElement(kMoon, 3, &value, 0);
  EXPECT_EQ(settings.GetCurSection(), kPlnt);
  EXPECT_EQ(debug.lines, std::vector<std::string>{kNotDefined});
}

TEST_F(SettingsValues, ElementsAreReadAndWrittenOneByOne) {
  const int value = 9;
  settings.SetFieldElement(grid, &value, 1);
  EXPECT_TRUE(SettingsData::GetModifyFlag());
  int out = 0;
  EXPECT_TRUE(settings.GetFieldElement(grid, &out, 1));
  EXPECT_EQ(out, 9);
  EXPECT_TRUE(settings.GetFieldElement(grid, &out, 2));
  EXPECT_EQ(out, 3);
  settings.SetFieldElement(grid, &value, 1);
  EXPECT_FALSE(SettingsData::GetModifyFlag());
}

TEST_F(SettingsValues, BadElementIndexPrintsAndTouchesNothing) {
  int value = 9;
  EXPECT_FALSE(settings.GetFieldElement(grid, &value, 3));
  EXPECT_FALSE(settings.GetFieldElement(grid, &value, -1));
  EXPECT_EQ(value, 9);
  settings.SetFieldElement(grid, &value, 3);
  EXPECT_FALSE(SettingsData::GetModifyFlag());
  EXPECT_EQ(debug.lines.size(), 3u);
}

TEST_F(SettingsValues, FieldTypeIsThatOfTheRecord) { EXPECT_EQ(settings.GetFieldType(grid), 4u); }

TEST_F(SettingsValues, FieldStatusIsTheCompareStatus) {
  settings.SetFieldStatus(kStar, 3, 2);
  EXPECT_TRUE(SettingsData::GetModifyFlag());
  EXPECT_EQ(settings.GetFieldAt(2)->GetCompareStatus(), 2);
  EXPECT_EQ(settings.GetCurSection(), kPlnt);
  settings.SetFieldStatus(grid, 1);
  EXPECT_FALSE(SettingsData::GetModifyFlag());
  settings.SetFieldStatus(grid, 0);
  EXPECT_TRUE(SettingsData::GetModifyFlag());
  EXPECT_EQ(settings.GetFieldStatus(grid), 0);
}

TEST_F(SettingsValues, SectionStatusSetsTheModifyFlagToWhetherItDiffers) {
  settings.SetSectionStatus(kPlnt, 3);
  EXPECT_TRUE(SettingsData::GetModifyFlag());
  EXPECT_EQ(settings.GetSectionStatus(kPlnt, false), 3);
  settings.SetSectionStatus(kPlnt, 3);
  EXPECT_FALSE(SettingsData::GetModifyFlag());
  SettingsData::SetModifyFlag(true);
  settings.SetSectionStatus(kMoon, 3);
  EXPECT_TRUE(SettingsData::GetModifyFlag());
  EXPECT_EQ(settings.GetSectionStatus(kMoon, true), 0);
}

TEST_F(SettingsValues, SectionStatusIsSetByIdAndReadByAlias) {
  settings.SetSectionAlias(kStar, kComt);
  settings.SetSectionStatus(kComt, 1);
  EXPECT_EQ(settings.GetSectionStatus(kStar, false), 0);
  settings.SetSectionStatus(kStar, 4);
  EXPECT_EQ(settings.GetSectionStatus(kComt, false), 0);
  EXPECT_EQ(settings.GetSectionStatus(kComt, true), 4);
}

TEST_F(SettingsValues, NoAliasFindsNothing) {
  settings.SetSectionStatus(kPlnt, 1);
  EXPECT_EQ(settings.GetSectionStatus(kNone, true), 0);
}

TEST_F(SettingsValues, SectionThatIsOffIsOnWhileItHoldsTheAim) {
  EXPECT_EQ(settings.GetSectionStatus(kPlnt, true), 0);
  settings.SetAimObject(SSO_ID(static_cast<int>(kPlnt), 4));
  EXPECT_EQ(settings.GetSectionStatus(kPlnt, true), 1);
  EXPECT_EQ(settings.GetSectionStatus(kPlnt, false), 0);
  EXPECT_EQ(settings.GetSectionStatus(kStar, true), 0);
  settings.SetSectionStatus(kPlnt, 6);
  EXPECT_EQ(settings.GetSectionStatus(kPlnt, true), 6);
}

TEST_F(SettingsValues, NullInPlaceOfTheOutputOnlyAsksWhetherTheFieldIsThere) {
  EXPECT_TRUE(settings.GetField(grid, nullptr));
  EXPECT_FALSE(settings.GetField(99, nullptr));
}

// Its name is the number 0 then.
TEST_F(SettingsValues, FieldThatFailedInsideTheContainerHasNoValues) {
  EXPECT_FALSE(settings.GetFieldAt(1)->Read(nullptr));
  int value = 77;
  EXPECT_TRUE(settings.GetField(0, &value));
  EXPECT_TRUE(settings.GetField(0, &value)) << "the second time";
  EXPECT_EQ(value, 77);
  EXPECT_TRUE(settings.GetField(grid, nullptr)) << "the others stay";
}

}  // namespace
}  // namespace test_support
