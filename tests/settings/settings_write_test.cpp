// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "settings/settings_bytes.h"
#include "utils/version.h"

namespace test_support {
namespace {

class SettingsWrite : public SettingsTest {
 protected:
  void TearDown() override { SetWorkspaceVersion(0); }
};

// Worked out by hand; the same bytes stand in the page on the file format.
TEST_F(SettingsWrite, SmallFileToTheByte) {
  SetWorkspaceVersion(3);
  SettingsData settings(kId, kOwner, "filters.data");
  RecordParts parts;  // "plnt", name id 77, one unsigned byte, condition 5, switched on
  parts.size = 1;
  parts.values = Bytes({9});
  Create(settings, parts.Current());
  settings.SetSectionStatus(kPlnt, 1);
  EXPECT_TRUE(settings.Write(roots.dir.Path("small.data").c_str()));
  EXPECT_EQ(
      roots.dir.Read("small.data"),
      Bytes({'S', 'R', 'E', 'V', 3,    0,    0,    0,                                                     //
             'R', 'T', 'L', 'F', 1,    0,    0,    0,                                                     //
             1,   0,                                                                                      //
             't', 'n', 'l', 'p', 0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 0, 0, 1,                                   //
             1,   0,   0,   0,                                                                            //
             21,  0,   0,   0,                                                                            //
             't', 'n', 'l', 'p', 77,   0,    0,    0,    1, 1, 0, 5, 0, 0, 0, 1, 0xFF, 0xFF, 0xFF, 0xFF,  //
             9}));
}

TEST_F(SettingsWrite, BlocksAreAppendedAndTheHeaderIsRenewed) {
  SetWorkspaceVersion(3);
  SettingsData first(kId, kOwner, "filters.data");
  Create(first, Int(kPlnt, 1, 10));
  const std::string name = roots.dir.Path("two.data");
  ASSERT_TRUE(first.Write(name.c_str()));
  const std::string before = roots.dir.Read("two.data");
  SetWorkspaceVersion(4);
  SettingsData second(2, kOwner, "filters.data");
  Create(second, Int(kStar, 1, 20));
  ASSERT_TRUE(second.Write(name.c_str()));
  EXPECT_EQ(roots.dir.Read("two.data"),
            Header(4) + before.substr(8) + Block(kOwner, 2, {Section(kStar, 0, 0, 0)}, {Int(kStar, 1, 20)}));
}

TEST_F(SettingsWrite, VersionOfTheContainerIsNeverLowered) {
  SetWorkspaceVersion(3);
  SettingsData settings(kId, kOwner, "filters.data");
  settings.Read(WriteFile(Header(9)).c_str());
  ASSERT_EQ(settings.GetVersion(), 9u);
  ASSERT_TRUE(settings.Write(roots.dir.Path("out.data").c_str()));
  EXPECT_EQ(roots.dir.Read("out.data").substr(0, 8), Header(9));
}

TEST_F(SettingsWrite, LogicalNamesAreWrittenInTheWorkArea) {
  SettingsData settings(kId, kOwner, "filters.data");
  ASSERT_TRUE(settings.Write("views:mine.data"));
  EXPECT_EQ(roots.dir.Read("work/views/mine.data"), Header(0) + Block(kOwner, kId, {}, {}));
}

TEST_F(SettingsWrite, FileThatCannotBeOpenedIsFalse) {
  SettingsData settings(kId, kOwner, "filters.data");
  EXPECT_FALSE(settings.Write(nullptr));
  EXPECT_FALSE(settings.Write(""));
  EXPECT_FALSE(settings.Write(roots.dir.Path().c_str()));
}

TEST_F(SettingsWrite, TwoContainersReadBackWhatTheOtherWrote) {
  std::vector<std::string> defaults;
  for (int type = 0; type <= 8; ++type) {
    RecordParts parts;
    parts.nameId = 100 + type;
    parts.type = static_cast<unsigned char>(type);
    parts.size = 3;
    parts.values.resize(3 * std::size_t{CommonInterfaces::FieldElementWidth(static_cast<unsigned>(type))},
                        '\x01');
    parts.section = type < 5 ? kPlnt : kStar;
    defaults.push_back(parts.Current());
  }
  WriteDefaults(Header(1) +
                Block(kOwner, kDefaults, {Section(kPlnt, 0, 4), Section(kStar, 5, 8, 1, kComt)}, defaults));
  SettingsData one(kId, kOwner, "filters.data"), other(kId, kOwner, "filters.data");
  ASSERT_TRUE(one.Read(nullptr));
  for (int i = 0; i < one.GetFieldCount(); ++i) {
    const std::string value(8, static_cast<char>(i + 2));
    one.GetFieldAt(i)->SetElement(value.data(), static_cast<unsigned>(i) % 3);
    one.GetFieldAt(i)->SetCompareStatus(static_cast<unsigned char>(i));
  }
  one.SetSectionStatus(kPlnt, 9);
  ASSERT_TRUE(one.Write(roots.dir.Path("a.data").c_str()));
  ASSERT_TRUE(other.Read(roots.dir.Path("a.data").c_str()));
  EXPECT_EQ(RecordsOf(other), RecordsOf(one));
  EXPECT_EQ(SectionsOf(other), SectionsOf(one));

  other.SetSectionStatus(kStar, 0);
  other.GetFieldAt(0)->SetElement("z", 1);
  ASSERT_TRUE(other.Write(roots.dir.Path("b.data").c_str()));
  ASSERT_TRUE(one.Read(roots.dir.Path("b.data").c_str()));
  EXPECT_EQ(RecordsOf(one), RecordsOf(other));
  EXPECT_EQ(SectionsOf(one), SectionsOf(other));
  EXPECT_EQ(DataOf(*one.GetFieldAt(0)), "\x02z\x01");
}

TEST_F(SettingsWrite, ReservedOperationsAreFalse) {
  SettingsData settings(kId, kOwner, "filters.data");
  EXPECT_FALSE(settings.Read2(&settings));
  EXPECT_FALSE(settings.Write2(nullptr));
}

}  // namespace
}  // namespace test_support
