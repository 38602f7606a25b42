// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "settings/settings_bytes.h"

namespace test_support {
namespace {

class SettingsCreate : public SettingsTest {
 protected:
  SettingsData settings{kId, kOwner, "filters.data"};
};

TEST_F(SettingsCreate, FirstFieldMakesItsSectionSwitchedOffAndWithoutAlias) {
  EXPECT_EQ(Create(settings, Int(kPlnt, 7, 70)), 0);
  EXPECT_EQ(SectionsOf(settings), std::vector{Section(kPlnt, 0, 0, 0)});
  EXPECT_EQ(RecordsOf(settings), std::vector{Int(kPlnt, 7, 70)});
  EXPECT_EQ(settings.GetCurSection(), 0u);
}

TEST_F(SettingsCreate, FieldGoesToTheEndOfItsSectionAndMovesLaterOnes) {
  EXPECT_EQ(Create(settings, Int(kPlnt, 1, 0)), 0);
  EXPECT_EQ(Create(settings, Int(kStar, 2, 0)), 1);
  EXPECT_EQ(Create(settings, Int(kMoon, 3, 0)), 2);
  EXPECT_EQ(Create(settings, Int(kStar, 4, 0)), 2);
  EXPECT_EQ(Create(settings, Int(kPlnt, 5, 0)), 1);
  EXPECT_EQ(Create(settings, Int(kMoon, 6, 0)), 5);
  EXPECT_EQ(NamesOf(settings), (std::vector{1, 5, 2, 4, 3, 6}));
  EXPECT_EQ(SectionsOf(settings),
            (std::vector{Section(kPlnt, 0, 1, 0), Section(kStar, 2, 3, 0), Section(kMoon, 4, 5, 0)}));
}

TEST_F(SettingsCreate, ExistingFieldWithAllowExistingIsMinusItsIndex) {
  for (int name : {1, 2, 3}) Create(settings, Int(kPlnt, name, 0));
  EXPECT_EQ(Create(settings, Int(kPlnt, 3, 9), true), -2);
  EXPECT_EQ(Create(settings, Int(kPlnt, 1, 9), true), 0);  // looks like success: deliberate
  EXPECT_EQ(settings.GetFieldCount(), 3);
  EXPECT_EQ(FirstInt(*settings.GetFieldAt(2)), 0);
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(SettingsCreate, ExistingFieldIsRefusedWithALine) {
  Create(settings, Int(kPlnt, 1, 0));
  EXPECT_EQ(Create(settings, Int(kPlnt, 1, 9)), -1);
  EXPECT_EQ(debug.lines, std::vector<std::string>{"Field 1 in section 706c6e74 already exist\n"});
}

TEST_F(SettingsCreate, SameNameInAnotherSectionIsAnotherField) {
  Create(settings, Int(kPlnt, 1, 0));
  EXPECT_EQ(Create(settings, Int(kStar, 1, 0)), 1);
}

TEST_F(SettingsCreate, AliasIsNoSectionOfAField) {
  Create(settings, Int(kPlnt, 1, 0));
  EXPECT_TRUE(settings.SetSectionAlias(kPlnt, kStar));
  EXPECT_FALSE(settings.SetSectionAlias(kStar, kPlnt));
  EXPECT_EQ(Create(settings, Int(kStar, 1, 0)), 1);
  EXPECT_EQ(settings.GetSectionCount(), 2);
}

TEST_F(SettingsCreate, CurrentSectionStays) {
  Create(settings, Int(kPlnt, 1, 0));
  Create(settings, Int(kStar, 1, 0));
  settings.SetCurSection(kPlnt);
  Create(settings, Int(kStar, 2, 0));
  Create(settings, Int(kStar, 2, 0), true);
  EXPECT_EQ(settings.GetCurSection(), kPlnt);
}

TEST_F(SettingsCreate, RecordThatIsNoneIsRefusedWithALine) {
  EXPECT_EQ(settings.CreateField(nullptr, 20, false), -1);
  EXPECT_EQ(Create(settings, std::string(19, 'x')), -1);
  EXPECT_EQ(Create(settings, std::string(65556, 'x')), -1);
  EXPECT_EQ(settings.GetFieldCount(), 0);
  EXPECT_EQ(debug.lines, (std::vector<std::string>{
                             "Bad parameter 'size = 0' in function SettingsData::CreateField\n",
                             "Bad parameter 'size = 19' in function SettingsData::CreateField\n",
                             "Bad parameter 'size = 65556' in function SettingsData::CreateField\n"}));
}

TEST_F(SettingsCreate, SmallestAndLargestRecordAreTaken) {
  EXPECT_EQ(Create(settings, std::string(20, 'x')), 0);
  EXPECT_EQ(Create(settings, std::string(65555, 'y')), 1);
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(SettingsCreate, DeletedFieldClosesTheGapAndMovesLaterSections) {
  const int name = ::GetUniqueID("Grid");
  for (unsigned section : {kPlnt, kStar, kMoon}) {
    Create(settings, Int(section, 1, 0));
    Create(settings, Int(section, name, 0));
    Create(settings, Int(section, 2, 0));
  }
  EXPECT_TRUE(settings.DeleteField("Grid", static_cast<int>(kStar)));
  EXPECT_EQ(NamesOf(settings), (std::vector{1, name, 2, 1, 2, 1, name, 2}));
  EXPECT_EQ(SectionsOf(settings),
            (std::vector{Section(kPlnt, 0, 2, 0), Section(kStar, 3, 4, 0), Section(kMoon, 5, 7, 0)}));
  EXPECT_FALSE(settings.DeleteField("Grid", static_cast<int>(kStar)));
  EXPECT_FALSE(settings.DeleteField("Grid", static_cast<int>(kComt)));
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(SettingsCreate, EmptiedSectionAtTheStartTakesFieldsAgain) {
  const int name = ::GetUniqueID("Grid");
  Create(settings, Int(kPlnt, name, 0));
  Create(settings, Int(kStar, 1, 0));
  EXPECT_TRUE(settings.DeleteField("Grid", static_cast<int>(kPlnt)));
  EXPECT_EQ(SectionsOf(settings), (std::vector{Section(kPlnt, 0, 0xFFFF, 0), Section(kStar, 0, 0, 0)}));
  EXPECT_EQ(settings.GetAtField(kPlnt, 1, false), nullptr);
  EXPECT_EQ(Create(settings, Int(kPlnt, 5, 0)), 0);
  EXPECT_EQ(NamesOf(settings), (std::vector{5, 1}));
  EXPECT_EQ(SectionsOf(settings), (std::vector{Section(kPlnt, 0, 0, 0), Section(kStar, 1, 1, 0)}));
}

TEST_F(SettingsCreate, FieldsPast65535AreRefusedWithALine) {
  settings.Reserve(65535);
  unsigned section = 0;
  for (int i = 0; i < 65535; ++i) {
    // A new section for every 16th field keeps the searches short.
    if (i % 16 == 0) ++section;
    ASSERT_EQ(Create(settings, Int(section, i, i)), i);
  }
  EXPECT_EQ(int{settings.GetSectionAt(settings.GetSectionCount() - 1)->last}, 65534);
  EXPECT_EQ(FirstInt(*settings.GetAtField(section, 65534, true)), 65534);
  EXPECT_EQ(Create(settings, Int(section, 70000, 0)), -1);
  EXPECT_EQ(Create(settings, Int(kPlnt, 70000, 0)), -1);
  EXPECT_EQ(settings.GetFieldCount(), 65535);
  EXPECT_EQ(debug.lines, (std::vector<std::string>{"No room for field 70000 in section 1000\n",
                                                   "No room for field 70000 in section 706c6e74\n"}));
}

// A file counts its sections in a signed 16-bit number. Those that are there take fields all the same.
TEST_F(SettingsCreate, SectionsPast32767AreRefusedWithALine) {
  settings.Reserve(32770);
  for (unsigned section = 1; section <= 32767; ++section) {
    ASSERT_EQ(Create(settings, Int(section, 1, 0)), static_cast<int>(section) - 1);
  }
  EXPECT_EQ(Create(settings, Int(kPlnt, 70000, 0)), -1);
  EXPECT_EQ(Create(settings, Int(1, 2, 0)), 1) << "the first section has room";
  EXPECT_EQ(Create(settings, Int(32767, 2, 0)), 32768);
  EXPECT_EQ(debug.lines, std::vector<std::string>{"No room for field 70000 in section 706c6e74\n"});
}

TEST_F(SettingsCreate, ReserveOfNegativeAndHugeCountsIsHarmless) {
  settings.Reserve(-1);
  settings.Reserve(2147483647);
  EXPECT_EQ(Create(settings, Int(kPlnt, 1, 0)), 0);
}

TEST_F(SettingsCreate, FieldIsACopyOfTheRecord) {
  std::string record = Int(kPlnt, 1, 42);
  Create(settings, record);
  record.assign(record.size(), 'x');
  EXPECT_EQ(RecordsOf(settings), std::vector{Int(kPlnt, 1, 42)});
}

}  // namespace
}  // namespace test_support
