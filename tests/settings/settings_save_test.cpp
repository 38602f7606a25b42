// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <filesystem>

#include "settings/settings_bytes.h"
#include "utils/path.h"
#include "utils/version.h"

namespace test_support {
namespace {

class SettingsSave : public SettingsTest {
 protected:
  SettingsSave() { Create(settings, Int(kPlnt, 1, 10)); }
  std::string Own() const { return Block(kOwner, kId, {Section(kPlnt, 0, 0, 0)}, {Int(kPlnt, 1, 10)}); }
  void TearDown() override { SetWorkspaceVersion(0); }

  const std::string old = Block(kOwner, kId, {Section(kPlnt, 0, 0)}, {Int(kPlnt, 1, 9), Int(kPlnt, 2, 9)});
  const std::string before = Block(kOwner, 2, {Section(kStar, 0, 0)}, {Int(kStar, 1, 20)});
  const std::string behind = Block(kOwner, kDefaults, {}, {Int(kStar, 1, 30)});
  SettingsData settings{kId, kOwner, "filters.data"};
};

TEST_F(SettingsSave, NewFileHoldsTheBlock) {
  EXPECT_TRUE(settings.Save(roots.dir.Path("new.data").c_str()));
  EXPECT_EQ(roots.dir.Read("new.data"), Header(0) + Own());
}

TEST_F(SettingsSave, SavingTwiceGivesTheSameFile) {
  const std::string name = roots.dir.Path("new.data");
  EXPECT_TRUE(settings.Save(name.c_str()));
  EXPECT_TRUE(settings.Save(name.c_str()));
  EXPECT_EQ(roots.dir.Read("new.data"), Header(0) + Own());
}

TEST_F(SettingsSave, OwnBlockIsReplacedInItsPlaceAndOthersStay) {
  SetWorkspaceVersion(6);
  SettingsData current(kId, kOwner, "filters.data");
  Create(current, Int(kPlnt, 1, 10));
  EXPECT_TRUE(current.Save(WriteFile(Header(5) + before + old + behind + old).c_str()));
  EXPECT_EQ(roots.dir.Read("named.data"), Header(6) + before + Own() + behind);
}

TEST_F(SettingsSave, WithoutAnOwnBlockItStandsBehindTheOthers) {
  EXPECT_TRUE(settings.Save(WriteFile(Header(5) + before + behind).c_str()));
  EXPECT_EQ(roots.dir.Read("named.data"), Header(0) + before + behind + Own());
}

TEST_F(SettingsSave, BytesThatAreNoBlockAreKeptBehind) {
  const std::string cut = old.substr(0, old.size() - 1);
  EXPECT_TRUE(settings.Save(WriteFile(Header(5) + before + cut).c_str()));
  EXPECT_EQ(roots.dir.Read("named.data"), Header(0) + before + Own() + cut);
  EXPECT_TRUE(settings.Save(WriteFile("XX").c_str()));
  EXPECT_EQ(roots.dir.Read("named.data"), Header(0) + Own() + "XX");
}

TEST_F(SettingsSave, CountsThatLieAreBytesThatAreNoBlock) {
  const std::string key = LittleEndian(kOwner, 4) + LittleEndian(kId, 4);
  for (const std::string& tail :
       {key + LittleEndian(0x7FFF, 2), key + LittleEndian(0xFFFF, 2) + std::string(40, '\0'),
        key + LittleEndian(0, 2) + LittleEndian(0x7FFFFFFF, 4),
        key + LittleEndian(0, 2) + LittleEndian(0xFFFFFFFF, 4),
        key + LittleEndian(0, 2) + LittleEndian(1, 4) + LittleEndian(0xFFFFFFFF, 4)}) {
    EXPECT_TRUE(settings.Save(WriteFile(Header(5) + tail).c_str()));
    EXPECT_EQ(roots.dir.Read("named.data"), Header(0) + Own() + tail);
  }
}

TEST_F(SettingsSave, BlocksOfAFileOfTheDataRootAreTakenAlong) {
  WriteDefaults(Header(5) + behind);
  EXPECT_TRUE(settings.Save("filters.data"));
  EXPECT_EQ(roots.dir.Read("work/filters.data"), Header(0) + behind + Own());
  EXPECT_EQ(roots.dir.Read("data/filters.data"), Header(5) + behind);
}

TEST_F(SettingsSave, FailurePrintsOneLineAndLeavesNothingBehind) {
  EXPECT_FALSE(settings.Save(nullptr));
  EXPECT_FALSE(settings.Save(roots.dir.Path("data").c_str()));  // a folder
  EXPECT_EQ(debug.lines.size(), 2u);
#if !defined(__wasi__)  // which has no permissions
  const std::string name = WriteFile(Header(5) + before);
  std::filesystem::permissions(name, std::filesystem::perms::owner_read);
  debug.lines.clear();
  EXPECT_FALSE(settings.Save(name.c_str()));
  EXPECT_EQ(roots.dir.Read("named.data"), Header(5) + before);
  EXPECT_EQ(debug.lines, std::vector<std::string>{"Settings cannot be saved in file " + name + "\n"});
  std::filesystem::permissions(name, std::filesystem::perms::owner_all);
#endif
}

TEST_F(SettingsSave, NothingStaysBesideTheFile) {
  EXPECT_TRUE(settings.Save("folder:new.data"));
  EXPECT_EQ(roots.dir.Read("work/folder/new.data"), Header(0) + Own());
  const auto files = std::filesystem::directory_iterator(roots.dir.Path("work/folder"));
  EXPECT_EQ(std::distance(begin(files), end(files)), 1);
}

TEST_F(SettingsSave, WhatWasReadInPartIsNotSavedOverTheFile) {
  const std::string cut = Header(0) + before + old.substr(0, old.size() - 1);
  const std::string name = WriteFile(cut);
  EXPECT_FALSE(settings.Read(name.c_str()));
  Create(settings, Int(kPlnt, 7, 10));
  EXPECT_FALSE(settings.Save(name.c_str()));
  EXPECT_EQ(roots.dir.Read("named.data"), cut);
  EXPECT_EQ(debug.lines, std::vector<std::string>{
                             "File " + name + ": settings not saved, because it could not be read whole\n"});
  EXPECT_TRUE(settings.Save(roots.dir.Path("elsewhere.data").c_str()));
  EXPECT_FALSE(settings.Read(roots.dir.Path("missing.data").c_str()));
  EXPECT_TRUE(settings.Save(name.c_str())) << "it is no longer what the container was read from";
}

// Once the damaged file is gone, the one of the data root would be the source of the new one.
TEST_F(SettingsSave, WhatWasReadInPartIsNotSavedOverWhatItHid) {
  const std::string cut = roots.dir.Write("work/named.data", Header(0) + old.substr(0, old.size() - 1));
  roots.dir.Write("data/named.data", Header(0) + old + behind);
  EXPECT_FALSE(settings.Read("named.data"));
  std::filesystem::remove(cut);
  EXPECT_FALSE(settings.Save("named.data"));
  EXPECT_FALSE(std::filesystem::exists(cut));
  EXPECT_EQ(debug.lines,
            std::vector<std::string>{"File " + ZentharPath::GetPath("named.data") +
                                     ": settings not saved, because it could not be read whole\n"});
}

TEST_F(SettingsSave, FileWithoutATagKeepsAllOfItsBytes) {
  EXPECT_TRUE(settings.Save(WriteFile(before).c_str()));
  EXPECT_EQ(roots.dir.Read("named.data"), Header(0) + before + Own());
  EXPECT_TRUE(settings.Save(WriteFile("some text").c_str()));
  EXPECT_EQ(roots.dir.Read("named.data"), Header(0) + Own() + "some text");
}

// It has no length that could be written.
TEST_F(SettingsSave, FieldThatFailedInsideTheContainerIsNotSaved) {
  Create(settings, Int(kPlnt, 2, 20));
  EXPECT_FALSE(settings.GetFieldAt(0)->Read(nullptr));
  const std::string name = WriteFile(Header(0) + old);
  EXPECT_FALSE(settings.Save(name.c_str()));
  EXPECT_EQ(roots.dir.Read("named.data"), Header(0) + old);
  EXPECT_EQ(debug.lines, std::vector<std::string>{"Settings cannot be saved in file " + name + "\n"});
}

}  // namespace
}  // namespace test_support
