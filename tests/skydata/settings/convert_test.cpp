// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/convert.h"

#include <gtest/gtest.h>

#include "common_interfaces/settings_data.h"
#include "skydata/settings/reader/file_reader.h"
#include "tests/skydata/settings/bytes.h"
#include "tests/skydata/source_text.h"
#include "utils/text.h"

namespace skydata {
namespace {

using namespace skydata_test;

// The name id of "m_Zoom", computed apart from this code by the rule of docs/formats/field_record.md.
constexpr unsigned kZoom = 0x388BB2C8;

class SettingsConvert : public testing::Test {
 protected:
  std::string Convert(const std::string& bytes, RecordLayout undecided = RecordLayout::kCurrent) {
    m_Dir.Write("old.data", bytes);
    return MessageOf(m_Dir, [&] {
      m_Count = ConvertSettings({m_Dir.Path("old.data"), m_Dir.Path("new.data"), undecided});
    });
  }
  bool HasNew() const { return std::filesystem::exists(m_Dir.Path("new.data")); }

  test_support::TempDir m_Dir;
  int m_Count = 0;
};

const std::string kOldFile = kHeader1 + Block(kKeyOfDefaults, {Section(kStarBytes, 0, 1)},
                                              {OldRecord(kStarBytes, "Draw", 1, 1, "\x09"),
                                               OldRecord(kStarBytes, "m_Zoom", 3, 2, "abcd")});

// The current form of a record of OldRecord.
std::string Converted(unsigned nameId, int type, unsigned size, const std::string& values) {
  return Record(kStarBytes, nameId, type, size, values).replace(15, 5, Le32(0x4000) + "\x01");
}
const std::string kNewFile =
    kHeader1 + Block(kKeyOfDefaults, {Section(kStarBytes, 0, 1)},
                     {Converted(kDraw, 1, 1, "\x09"), Converted(kZoom, 3, 2, "abcd")});

TEST_F(SettingsConvert, AnOldFileBecomesTheCurrentOneToTheByte) {
  EXPECT_EQ(Convert(kOldFile), "");
  EXPECT_EQ(m_Count, 2);
  EXPECT_EQ(m_Dir.Read("new.data"), kNewFile);
  EXPECT_EQ(m_Dir.Read("old.data"), kOldFile);
}

TEST_F(SettingsConvert, ANameMayFillItsPlace) {
  const std::string name(32, 'x');
  EXPECT_EQ(Convert(kHeader1 +
                    Block(kKeyOne, {Section(kStarBytes, 0, 0)}, {OldRecord(kStarBytes, name, 1, 1, "\x01")})),
            "");
  const SettingsFile file = ReadSettingsFile(m_Dir.Read("new.data"), FieldNames());
  EXPECT_EQ(file.blocks[0].fields[0].text.nameId, GetUniqueID(name.c_str()));
}

TEST_F(SettingsConvert, TheContainerReadsTheDefaultsOfTheNewFile) {
  ASSERT_EQ(Convert(kOldFile), "");
  const std::string path = m_Dir.Path("new.data");
  CommonInterfaces::SettingsData settings(1, FourCC("FLTR"), path.c_str());
  ASSERT_TRUE(settings.Read(nullptr));
  settings.SetCurSection(FourCC("star"));
  unsigned char draw = 0;
  ASSERT_TRUE(settings.GetField("Draw", &draw));
  EXPECT_EQ(draw, 9);
}

TEST_F(SettingsConvert, ABlockThatIsCurrentAlreadyStaysAsItIs) {
  const std::string own = SmallBlock(kKeyOne);
  EXPECT_EQ(Convert(kOldFile + own), "");
  EXPECT_EQ(m_Dir.Read("new.data"), kNewFile + own);
}

TEST_F(SettingsConvert, ACurrentFileIsRefused) {
  EXPECT_EQ(Convert(kHeader1 + SmallBlock()), "old.data: is in the current layout already");
  EXPECT_EQ(Convert(kHeader1 + Block(kKeyOne, {}, {})), "old.data: is in the current layout already");
  EXPECT_FALSE(HasNew());
}

TEST_F(SettingsConvert, ADamagedFileIsRefused) {
  EXPECT_EQ(Convert(kOldFile.substr(0, kOldFile.size() - 1)),
            "old.data: offset 88: block FLTR defaults: a record of 52 bytes, of which the file holds 51; a "
            "reader stops "
            "here and has 1 of 2 fields");
  EXPECT_EQ(Convert(""), "old.data: offset 0: the file is empty");
  EXPECT_EQ(Convert("SREV"), "old.data: offset 4: the file ends inside the version");
  EXPECT_FALSE(HasNew());
}

TEST_F(SettingsConvert, AMissingFileIsNamed) {
  EXPECT_EQ(MessageOf(m_Dir,
                      [&] {
                        ConvertSettings({m_Dir.Path("none.data"), m_Dir.Path("new.data")});
                      }),
            "none.data: cannot be opened");
}

TEST_F(SettingsConvert, ABlockThatFitsNeitherLayoutIsOldOnlyWhenTheUserSaysSo) {
  // Two values are claimed and one is held.
  const std::string odd =
      kHeader1 + Block(kKeyOne, {Section(kStarBytes, 0, 0)}, {OldRecord(kStarBytes, "Draw", 1, 2, "\x01")});
  EXPECT_EQ(Convert(odd),
            "old.data: offset 8: the fields of block FLTR 1 fit neither layout (--from old decides)");
  EXPECT_FALSE(HasNew());
  EXPECT_EQ(Convert(odd, RecordLayout::kOld), "");
  EXPECT_EQ(m_Dir.Read("new.data"),
            kHeader1 + Block(kKeyOne, {Section(kStarBytes, 0, 0)}, {Converted(kDraw, 1, 2, "\x01")}));
}

TEST_F(SettingsConvert, ARecordTooShortForTheOldLayoutIsNeverOld) {
  const std::string odd =
      kHeader1 + Block(kKeyOne, {Section(kStarBytes, 0, 0)}, {Record(kStarBytes, kDraw, 1, 2, "\x01")});
  EXPECT_EQ(Convert(odd, RecordLayout::kOld),
            "old.data: offset 8: the fields of block FLTR 1 cannot be in the old layout");
}

TEST_F(SettingsConvert, InPlaceTheFileIsReplacedAndKeepsItsPermissions) {
  using std::filesystem::perms;
  const std::filesystem::path path = m_Dir.Write("old.data", kOldFile);
  std::filesystem::permissions(path, perms::owner_read | perms::owner_write | perms::group_read);
  const perms before = std::filesystem::status(path).permissions();
  ConvertSettings({path, path});
  EXPECT_EQ(m_Dir.Read("old.data"), kNewFile);
  EXPECT_EQ(std::filesystem::status(path).permissions(), before);
}

TEST_F(SettingsConvert, NothingIsLeftBesideTheFileWhenItCannotBeReplaced) {
  std::filesystem::create_directories(m_Dir.Path("new.data/inside"));
  EXPECT_NE(Convert(kOldFile), "");
  for (const auto& entry : std::filesystem::directory_iterator(m_Dir.Path()))
    EXPECT_TRUE(entry.path().filename() == "old.data" || entry.path().filename() == "new.data")
        << entry.path();
}

}  // namespace
}  // namespace skydata
