// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Settings files that are cut or changed. Meant to run under the sanitizers: every operation is tried on what
// was read, and what stands before the damage must have been read.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>

#include "common_interfaces/queries.h"
#include "settings/settings_bytes.h"

namespace test_support {
namespace {

using CommonInterfaces::BaseQuery;
using CommonInterfaces::TBaseList;

constexpr int kPlanet = static_cast<int>(kPlnt);

class SettingsDamage : public SettingsTest {
 protected:
  // The end of every field in the file, and of what stands before the first.
  std::vector<std::size_t> FieldEnds(std::size_t head) const {
    std::vector<std::size_t> ends{head};
    for (const std::string& record : m_Records) ends.push_back(ends.back() + 4 + record.size());
    return ends;
  }
  // How many whole fields stand in the first `length` bytes.
  int WholeFields(std::size_t length) const {
    const auto ends = FieldEnds(m_Head);
    return std::max(0,
                    static_cast<int>(std::upper_bound(ends.begin(), ends.end(), length) - ends.begin()) - 1);
  }
  std::string FileWith(unsigned id) const { return Header(5) + Block(kOwner, id, m_Sections, m_Records); }

  // Changes one byte where it stands: a file written anew for each of many thousand changes takes minutes.
  static void ChangeByte(const std::string& name, std::size_t place, char value) {
    std::fstream file(name, std::ios::binary | std::ios::in | std::ios::out);
    file.seekp(static_cast<std::streamoff>(place));
    file.put(value);
  }

  // Everything that looks at fields and sections.
  void Exercise(SettingsData& settings) {
    std::map<int, unsigned char> favourites;
    std::vector<int> ids;
    SSO_ID planet;
    for (unsigned section : {kPlnt, kAstr}) {
      const int code = static_cast<int>(section);
      settings.GetFavoInfo(&favourites, code);
      settings.GetObjectInfo(ids, code, -1);
      std::unique_ptr<TBaseList<BaseQuery*>> list(
          static_cast<TBaseList<BaseQuery*>*>(settings.CreateQueryList(code, true)));
      if (list && !list->empty() && CommonInterfaces::IsIdentifierQuery(*list->back())) delete list->back();
      settings.GetAtField(section, 2, true);
      settings.SetFieldStatus(section, 1, 3);
    }
    settings.GetIntegrPlnt(&planet);
    settings.ClearIntegrFlag();
    settings.SetAimObject(SSO_ID(kPlanet, 3));
    settings.GetAtField(SSO_ID(kPlanet, 3), true);
    Create(settings, Int(kPlnt, 1234, 1));
    Create(settings, Int(kAstr, 1234, 1));
    settings.DeleteField("Grid", kPlanet);
    debug.lines.clear();
  }

  const std::vector<std::string> m_Sections{Section(kPlnt, 0, 1), Section(kAstr, 2, 3)};
  const std::vector<std::string> m_Records{
      Ints(kPlnt, ::GetUniqueID("Grid"), {kPlanet, 3, 1, 0, 0, 0, 0, 0, 1}), Int(kPlnt, 2, 20),
      Favo(kAstr, 1, {1, 1, 0, 0, 0}, 100, 1, kAstr), Int(kAstr, 2, 21)};
  const std::size_t m_Head = 8 + 8 + 2 + 2 * 13 + 4;
};

TEST_F(SettingsDamage, DefaultsCutAtEveryLengthKeepTheFieldsBeforeTheCut) {
  const std::string file = FileWith(kDefaults);
  for (std::size_t length = 0; length <= file.size(); ++length) {
    const std::string name = WriteFile(file.substr(0, length));
    SettingsData settings(kId, kOwner, "nothing.data");
    EXPECT_EQ(settings.Read(name.c_str()), length == file.size()) << length;
    const auto whole = m_Records.begin() + WholeFields(length);
    ASSERT_EQ(RecordsOf(settings), std::vector(m_Records.begin(), whole)) << length;
    if (length >= m_Head - 4) {
      ASSERT_EQ(SectionsOf(settings), m_Sections) << length;
    }
    Exercise(settings);
  }
}

TEST_F(SettingsDamage, OwnBlockCutAtEveryLengthLeavesTheDefaultsInForce) {
  WriteDefaults(Header(5) + Block(kOwner, kDefaults, {Section(kPlnt, 0, 0, 7)}, {Int(kPlnt, 2, 10)}));
  const std::string file = FileWith(kId);
  for (std::size_t length = 0; length < file.size(); ++length) {
    const std::string name = WriteFile(file.substr(0, length));
    SettingsData settings(kId, kOwner, "filters.data");
    EXPECT_FALSE(settings.Read(name.c_str())) << length;
    std::vector<std::string> expected{Int(kPlnt, 2, 10)};
    expected.insert(expected.end(), m_Records.begin(), m_Records.begin() + WholeFields(length));
    ASSERT_EQ(RecordsOf(settings), expected) << length;
    ASSERT_EQ(settings.GetSectionStatus(kPlnt, false), 7) << length;
    ASSERT_EQ(FirstInt(*settings.GetAtField(kPlnt, 2, true)), 10) << length;
    Exercise(settings);
  }
}

TEST_F(SettingsDamage, RestoreOfABlockCutAtEveryLengthTakesWhatIsBeforeTheCut) {
  WriteDefaults(Header(5) + Block(kOwner, kDefaults, {Section(kPlnt, 0, 0)}, {Int(kPlnt, 2, 10)}));
  const std::string file = FileWith(kId);
  SettingsData settings(kId, kOwner, "filters.data");
  for (std::size_t length = 0; length <= file.size(); ++length) {
    ASSERT_TRUE(settings.Read("filters.data"));
    EXPECT_EQ(settings.Restore(WriteFile(file.substr(0, length)).c_str()), length == file.size()) << length;
    ASSERT_EQ(FirstInt(*settings.GetFieldAt(0)), WholeFields(length) >= 2 ? 20 : 10) << length;
  }
}

// Every value in every place: what stands before the changed byte is read as it was, provided that the block
// is found; everything can be asked for afterwards.
TEST_F(SettingsDamage, EveryByteWithEveryValueIsReadUpToTheChange) {
  const std::string file = FileWith(kDefaults);
  const std::string name = WriteFile(file);
  for (std::size_t place = 0; place < file.size(); ++place) {
    for (int flip = 1; flip < 256; ++flip) {
      ChangeByte(name, place, static_cast<char>(file[place] ^ flip));
      SettingsData settings(kId, kOwner, "nothing.data");
      settings.Read(name.c_str());
      const auto records = RecordsOf(settings);
      if (place >= m_Head) {
        const auto before = static_cast<std::size_t>(WholeFields(place));
        ASSERT_GE(records.size(), before) << place << " ^ " << flip;
        ASSERT_TRUE(
            std::equal(records.begin(), records.begin() + static_cast<int>(before), m_Records.begin()))
            << place << " ^ " << flip;
        ASSERT_EQ(SectionsOf(settings), m_Sections) << place << " ^ " << flip;
      } else if (place >= 4 && place < 8) {
        ASSERT_EQ(records, m_Records) << "version";
      } else if (place >= 8 && place < 16) {
        ASSERT_TRUE(records.empty()) << "key";
      }
      Exercise(settings);
    }
    ChangeByte(name, place, file[place]);
  }
}

TEST_F(SettingsDamage, OwnBlockWithEveryBitChangedIsMerged) {
  WriteDefaults(FileWith(kDefaults));
  const std::string file = FileWith(kId);
  const std::string name = WriteFile(file);
  SettingsData settings(kId, kOwner, "filters.data");
  for (std::size_t place = 0; place < file.size(); ++place) {
    for (int bit = 0; bit < 8; ++bit) {
      ChangeByte(name, place, static_cast<char>(file[place] ^ 1 << bit));
      settings.Read(name.c_str());
      ASSERT_GE(settings.GetFieldCount(), 4) << place;
      // The defaults are never lost: the last fields of both default sections are there.
      ASSERT_NE(settings.GetAtField(kPlnt, 2, false), nullptr) << place;
      ASSERT_NE(settings.GetAtField(kAstr, 2, false), nullptr) << place;
      settings.Restore(name.c_str());
      Exercise(settings);
    }
    ChangeByte(name, place, file[place]);
  }
}

TEST_F(SettingsDamage, OldLayoutWithEveryBitChangedIsReadUpToTheChange) {
  RecordParts parts = IntParts({42});
  const std::string file =
      Header(5) + Block(kOwner, kDefaults, {Section(kPlnt, 0, 1)}, {parts.Old("Grid"), parts.Old("Poles")});
  const std::size_t second = file.size() - parts.Old("").size() - 4;
  const std::string name = WriteFile(file);
  for (std::size_t place = 0; place < file.size(); ++place) {
    for (int bit = 0; bit < 8; ++bit) {
      ChangeByte(name, place, static_cast<char>(file[place] ^ 1 << bit));
      SettingField::SetOldSettings(true);
      SettingsData settings(kId, kOwner, "nothing.data");
      settings.Read(name.c_str());
      SettingField::SetOldSettings(false);
      if (place >= second) {
        ASSERT_GE(settings.GetFieldCount(), 1) << place;
        ASSERT_EQ(settings.GetFieldAt(0)->GetNameId(), ::GetUniqueID("Grid"));
        ASSERT_EQ(FirstInt(*settings.GetFieldAt(0)), 42);
      }
      Exercise(settings);
    }
    ChangeByte(name, place, file[place]);
  }
}

TEST_F(SettingsDamage, OldLayoutCutAtEveryLengthKeepsTheFieldsBeforeTheCut) {
  const RecordParts parts = IntParts({42});
  const std::string file =
      Header(5) + Block(kOwner, kDefaults, {Section(kPlnt, 0, 1)}, {parts.Old("Grid"), parts.Old("Poles")});
  const std::size_t second = file.size() - parts.Old("").size() - 4;
  for (std::size_t length = 0; length < file.size(); ++length) {
    const std::string name = WriteFile(file.substr(0, length));
    SettingField::SetOldSettings(true);
    SettingsData settings(kId, kOwner, "nothing.data");
    EXPECT_FALSE(settings.Read(name.c_str())) << length;
    ASSERT_EQ(settings.GetFieldCount(), length >= second ? 1 : 0) << length;
  }
}

TEST_F(SettingsDamage, NegativeSectionCountIsRefused) {
  SettingsData settings(kId, kOwner, "nothing.data");
  const std::string key = LittleEndian(kOwner, 4) + LittleEndian(kDefaults, 4);
  EXPECT_FALSE(
      settings.Read(WriteFile(Header(5) + key + LittleEndian(0xFFFF, 2) + std::string(500, '\0')).c_str()));
  EXPECT_EQ(settings.GetSectionCount(), 0);
}

TEST_F(SettingsDamage, SectionCountLargerThanTheRestOfTheFileIsRefused) {
  SettingsData settings(kId, kOwner, "nothing.data");
  const std::string key = LittleEndian(kOwner, 4) + LittleEndian(kDefaults, 4);
  // 25 bytes follow, of which two records would need 26.
  EXPECT_FALSE(
      settings.Read(WriteFile(Header(5) + key + LittleEndian(2, 2) + std::string(25, '\0')).c_str()));
  EXPECT_EQ(settings.GetSectionCount(), 0);
  // With 26 they are read; it is the field count that is missing then.
  EXPECT_FALSE(
      settings.Read(WriteFile(Header(5) + key + LittleEndian(2, 2) + std::string(26, '\0')).c_str()));
  EXPECT_EQ(settings.GetSectionCount(), 2);
}

TEST_F(SettingsDamage, NegativeFieldCountIsRefused) {
  SettingsData settings(kId, kOwner, "nothing.data");
  const std::string key = LittleEndian(kOwner, 4) + LittleEndian(kDefaults, 4);
  EXPECT_FALSE(settings.Read(WriteFile(Header(5) + key + LittleEndian(0, 2) + LittleEndian(0x80000000, 4) +
                                       WithLength(Int(kPlnt, 1, 1)))
                                 .c_str()));
  EXPECT_EQ(settings.GetFieldCount(), 0);
}

// A count of 2^31 - 1 makes no room for as many: the fields that are there are read and the read fails.
TEST_F(SettingsDamage, FieldCountThatLiesReadsTheFieldsThatAreThere) {
  SettingsData settings(kId, kOwner, "nothing.data");
  const std::string key = LittleEndian(kOwner, 4) + LittleEndian(kDefaults, 4);
  EXPECT_FALSE(settings.Read(WriteFile(Header(5) + key + LittleEndian(0, 2) + LittleEndian(0x7FFFFFFF, 4) +
                                       WithLength(Int(kPlnt, 1, 1)))
                                 .c_str()));
  EXPECT_EQ(RecordsOf(settings), std::vector{Int(kPlnt, 1, 1)});
}

// 24 bytes a field at least: a file of 64 MiB has 2.8 million, whatever it says. Where a process has 2 or
// 4 GiB, room for many more would not be found.
TEST_F(SettingsDamage, FieldCountThatLiesTakesNoMoreRoomThanTheFileCanHold) {
  SettingsData settings(kId, kOwner, "nothing.data");
  const std::string name = WriteFile(Header(5) + LittleEndian(kOwner, 4) + LittleEndian(kId, 4) +
                                     LittleEndian(0, 2) + LittleEndian(0x7FFFFFFF, 4));
  std::filesystem::resize_file(name, 64 << 20);
  EXPECT_FALSE(settings.Read(name.c_str()));
  EXPECT_EQ(settings.GetFieldCount(), 0);
}

TEST_F(SettingsDamage, RecordsThatAreTooShortOrTooLongEndTheRead) {
  for (unsigned length : {0u, 1u, 19u, 65556u, 0x7FFFFFFFu, 0xFFFFFFFFu}) {
    SettingsData settings(kId, kOwner, "nothing.data");
    const std::string file = Header(5) + LittleEndian(kOwner, 4) + LittleEndian(kDefaults, 4) +
                             LittleEndian(0, 2) + LittleEndian(2, 4) + WithLength(Int(kPlnt, 1, 1)) +
                             LittleEndian(length, 4) + std::string(70000, '\1');
    EXPECT_FALSE(settings.Read(WriteFile(file).c_str())) << length;
    EXPECT_EQ(RecordsOf(settings), std::vector{Int(kPlnt, 1, 1)}) << length;
  }
}

TEST_F(SettingsDamage, SectionRunsPastTheFieldsAreCutToThem) {
  SettingsData settings(kId, kOwner, "nothing.data");
  ASSERT_TRUE(settings.Read(WriteFile(Header(5) + Block(kOwner, kDefaults,
                                                        {Section(kPlnt, 1, 60000), Section(kAstr, 70, 80),
                                                         Section(kComt, 1, 0), Section(kStar, 65535, 65534)},
                                                        {Int(kPlnt, 1, 10), Int(kPlnt, 2, 20)}))
                                .c_str()));
  EXPECT_EQ(settings.GetAtField(kPlnt, 1, false), nullptr);
  EXPECT_EQ(settings.GetAtField(kPlnt, 2, false), settings.GetFieldAt(1));
  for (unsigned section : {kAstr, kComt, kStar}) {
    EXPECT_EQ(settings.GetAtField(section, 1, false), nullptr);
    EXPECT_EQ(settings.GetAtField(section, 2, false), nullptr);
  }
  // A new field mends the run of its section.
  EXPECT_EQ(Create(settings, Int(kPlnt, 3, 30)), 2);
  EXPECT_EQ(SectionsOf(settings)[0], Section(kPlnt, 1, 2));
  EXPECT_EQ(settings.GetAtField(kPlnt, 3, false), settings.GetFieldAt(2));
}

}  // namespace
}  // namespace test_support
