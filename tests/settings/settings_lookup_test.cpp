// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "settings/settings_bytes.h"

namespace test_support {
namespace {

class SettingsLookup : public SettingsTest {
 protected:
  SettingsLookup() {
    Create(settings, Int(kPlnt, 1, 10));
    Create(settings, Int(kPlnt, 2, 20));
    Create(settings, Int(kStar, 1, 30));
    Create(settings, Int(kStar, 3, 40));
  }
  SettingsData settings{kId, kOwner, "filters.data"};
};

TEST_F(SettingsLookup, SectionIsMadeCurrentByTheLookup) {
  EXPECT_EQ(settings.GetAtField(kStar, 1, true), settings.GetFieldAt(2));
  EXPECT_EQ(settings.GetCurSection(), kStar);
  EXPECT_EQ(settings.GetAtField(kPlnt, 1, true), settings.GetFieldAt(0));
  EXPECT_EQ(settings.GetCurSection(), kPlnt);
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(SettingsLookup, MissingSectionPrintsWhateverVerboseIsAndLeavesNoneCurrent) {
  settings.SetCurSection(kPlnt);
  EXPECT_EQ(settings.GetAtField(kMoon, 1, false), nullptr);
  EXPECT_EQ(settings.GetCurSection(), 0u);
  EXPECT_EQ(settings.GetAtField(kNone, 1, false), nullptr);
  EXPECT_EQ(debug.lines, (std::vector<std::string>{kNotDefined, kNotDefined}));
}

TEST_F(SettingsLookup, FieldOfAnotherSectionIsNotFoundInAGivenOne) {
  EXPECT_EQ(settings.GetAtField(kPlnt, 3, false), nullptr);
  EXPECT_TRUE(debug.lines.empty());
  EXPECT_EQ(settings.GetAtField(kPlnt, 3, true), nullptr);
  EXPECT_EQ(debug.lines,
            std::vector<std::string>{"Bad field name id 3 (section 706c6e74) in SettingsData::GetAtField\n"});
}

TEST_F(SettingsLookup, WithoutASectionTheWholeContainerIsSearchedButTheLineIsPrinted) {
  settings.SetCurSection(kPlnt);
  EXPECT_EQ(settings.GetAtField(kNone, 3, true), settings.GetFieldAt(3));
  EXPECT_EQ(debug.lines.size(), 1u);
  EXPECT_EQ(settings.GetAtField(kNone, 3, false), settings.GetFieldAt(3));
  EXPECT_EQ(settings.GetAtField(kNone, 99, false), nullptr);
  EXPECT_EQ(debug.lines.size(), 1u);
  EXPECT_EQ(settings.GetCurSection(), kPlnt);
}

TEST_F(SettingsLookup, CurrentSectionComesBeforeTheOthers) {
  settings.SetCurSection(kStar);
  EXPECT_EQ(settings.GetAtField(kNone, 1, true), settings.GetFieldAt(2));
}

TEST_F(SettingsLookup, SectionByAliasIsNotFoundByFieldLookups) {
  settings.SetSectionAlias(kStar, kComt);
  EXPECT_EQ(settings.GetAtField(kComt, 1, true), nullptr);
  EXPECT_EQ(debug.lines, std::vector<std::string>{kNotDefined});
}

TEST_F(SettingsLookup, SetCurSectionReturnsTheEarlierOne) {
  EXPECT_EQ(settings.SetCurSection(kStar), 0u);
  EXPECT_EQ(settings.SetCurSection(kPlnt), kStar);
  EXPECT_EQ(settings.SetCurSection(kMoon), kPlnt);
  EXPECT_EQ(settings.GetCurSection(), 0u);
}

class SettingsObjectLookup : public SettingsTest {
 protected:
  SettingsObjectLookup() {
    Create(settings, Int(kStar, 1, 0));
    Create(settings, Ints(kPlnt, 1, {static_cast<int>(kPlnt), 3, 0}));
    Create(settings, Ints(kPlnt, 2, {static_cast<int>(kPlnt), 4, 0}));
    Create(settings, Ints(kPlnt, 3, {static_cast<int>(kPlnt), 3, 1}));
    Create(settings, Ints(kPlnt, 4, {static_cast<int>(kPlnt)}));
    Create(settings, Favo(kPlnt, 5, {0, 0, 0, 0, 0}, 3));
  }
  const SSO_ID earth{static_cast<int>(kPlnt), 3};
  SettingsData settings{kId, kOwner, "filters.data"};
};

TEST_F(SettingsObjectLookup, LastFieldOfTheObjectWins) {
  settings.SetCurSection(kStar);
  EXPECT_EQ(settings.GetAtField(earth, true), settings.GetFieldAt(3));
  EXPECT_EQ(settings.GetCurSection(), kStar);
}

TEST_F(SettingsObjectLookup, ObjectWithoutAFieldIsNull) {
  EXPECT_EQ(settings.GetAtField(SSO_ID(static_cast<int>(kPlnt), 5), true), nullptr);
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(SettingsObjectLookup, SectionOfTheObjectStaysCurrentWhenNoneWas) {
  settings.GetAtField(earth, true);
  EXPECT_EQ(settings.GetCurSection(), kPlnt);
}

TEST_F(SettingsObjectLookup, OtherKindsAreNullAndChangeNothing) {
  settings.SetCurSection(kStar);
  EXPECT_EQ(settings.GetAtField(SSO_ID(static_cast<int>(kStar), 3), true), nullptr);
  EXPECT_EQ(settings.GetCurSection(), kStar);
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(SettingsObjectLookup, MissingSectionPrintsOnlyWhenVerboseAndLeavesNoneCurrent) {
  const SSO_ID moon(static_cast<int>(kMoon), 301);
  settings.SetCurSection(kStar);
  EXPECT_EQ(settings.GetAtField(moon, false), nullptr);
  EXPECT_TRUE(debug.lines.empty());
  EXPECT_EQ(settings.GetCurSection(), 0u);
  EXPECT_EQ(settings.GetAtField(moon, true), nullptr);
  EXPECT_EQ(debug.lines, std::vector<std::string>{kNotDefined});
}

// Its number says elsewhere that there is none.
TEST_F(SettingsObjectLookup, SectionThatIsNoneDoesNotBecomeCurrentAgain) {
  Create(settings, Int(kNone, 1, 10));
  settings.SetCurSection(kNone);
  ASSERT_EQ(settings.GetCurSection(), kNone);
  settings.GetAtField(earth, true);
  EXPECT_EQ(settings.GetCurSection(), kPlnt);
}

}  // namespace
}  // namespace test_support
