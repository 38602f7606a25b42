// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/dump.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

#include "common_interfaces/field_names.h"
#include "skydata/build/data_root.h"
#include "skydata/files/whole_file.h"
#include "skydata/settings/check.h"
#include "skydata/settings/reader/file_reader.h"
#include "skydata/settings/text/compiler.h"
#include "skydata/settings/text/parser.h"
#include "tests/skydata/settings/bytes.h"
#include "tests/skydata/source_text.h"

namespace skydata {
namespace {

using namespace std::string_literals;
using namespace skydata_test;

std::string Dump(const std::string& bytes) {
  std::ostringstream text;
  WriteSettingsText(ReadSettingsFile(bytes, FieldNames()), text);
  return text.str();
}

// The findings that keep the file from being written as text.
std::string Obstacles(const std::string& bytes) {
  const FieldNames names;
  std::string text;
  for (const Finding& finding :
       CheckSettings(bytes, ReadSettingsFile(bytes, names), names, FileKind::kCorrection)) {
    if (KindOf(finding.code).keepsFromText) text += FormatFinding("", finding) + "\n";
  }
  return text;
}

class SettingsDump : public testing::Test {
 protected:
  std::string DumpAndBuild(const std::string& bytes) {
    return CompileSettings(ParseSettingsText(Dump(bytes), "dump"), m_Dir.Path());
  }
  test_support::TempDir m_Dir;
};

TEST_F(SettingsDump, ShowsEveryPartOfAFile) {
  std::string alias = Section("alag", 1, 1, 0);
  alias.replace(4, 4, kStarBytes);
  EXPECT_EQ(Dump(kHeader1 + Block(kKeyOfDefaults, {Section(kStarBytes, 0, 0), alias, Section("uben", 2, 1)},
                                  {Record(kStarBytes, kDraw, 1, 1, "\x01"),
                                   Record("alag", 3, 3, 2, "\x01\x00\x02\x00"s)})),
            "header 1\n\n[block FLTR defaults]\n[section star]\nDraw = u8 1\n"
            "[section gala alias=star status=0]\n@3 = u16 1, 2\n[section nebu]\n");
}

TEST_F(SettingsDump, AFileWithoutHeaderSaysSo) {
  EXPECT_EQ(Dump(SmallBlock()).substr(0, 12), "header none\n");
  EXPECT_EQ(DumpAndBuild(SmallBlock()), SmallBlock());
}

TEST_F(SettingsDump, EveryShippedFileComesBackToTheByte) {
  BuildDataRoot(CI_DATA_SOURCE, m_Dir.Path("data"), "en");
  int count = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(m_Dir.Path("data"))) {
    if (entry.path().extension() != ".data") continue;
    const std::string bytes = ReadFile(entry.path());
    EXPECT_EQ(Obstacles(bytes), "") << entry.path();
    EXPECT_EQ(DumpAndBuild(bytes), bytes) << entry.path();
    ++count;
  }
  EXPECT_EQ(count, 5);
}

TEST_F(SettingsDump, FieldsAndBlocksThatStandTwiceComeBackToTheByte) {
  const std::string draw = Record(kStarBytes, kDraw, 1, 1, "\x01"),
                    again = Record(kStarBytes, kDraw, 4, 1, "tnlp");
  const std::string minusOne = Record(kStarBytes, 0xFFFFFFFF, 1, 1, "\x02");
  const std::string block =
      Block(kKeyOne, {Section(kStarBytes, 0, 4)}, {draw, again, minusOne, draw, minusOne});
  const std::string bytes = kHeader1 + block + SmallBlock() + block;
  EXPECT_NE(Dump(bytes).find("[block FLTR 1 again]"), std::string::npos);
  EXPECT_NE(Dump(bytes).find("Draw = i32 plnt | again\n"), std::string::npos);
  EXPECT_EQ(Obstacles(bytes), "");
  EXPECT_EQ(DumpAndBuild(bytes), bytes);
}

TEST_F(SettingsDump, ADamagedFileIsDumpedUpToTheDamage) {
  const std::string bytes = kHeader1 + Block(kKeyOfDefaults, {Section(kStarBytes, 0, 1)},
                                             {Record(kStarBytes, kDraw, 1, 1, "\x01"), Le32(7) + "7 bytes"});
  EXPECT_EQ(DumpAndBuild(bytes), kHeader1 + SmallBlock());
  EXPECT_EQ(Obstacles(bytes),
            ":60: error: block FLTR defaults: a record of 7 bytes; a reader stops here and has 1 of 2 fields "
            "[record-length]\n");
}

TEST_F(SettingsDump, WhatFitsNoSectionStandsInComments) {
  const std::string draw = Record(kStarBytes, kDraw, 1, 1, "\x01"),
                    other = Record("alag", kDraw, 1, 1, "\x02");
  const std::string bytes =
      kHeader1 +
      Block(kKeyOfDefaults, {Section(kStarBytes, 0, 0), Section(kStarBytes, 1, 1)}, {draw, draw, other});
  EXPECT_EQ(
      Dump(bytes),
      "header 1\n\n[block FLTR defaults]\n[section star]\nDraw = u8 1\n# [section star]\n# Draw = u8 1\n"
      "# outside its section: gala.Draw = u8 2\n");
  EXPECT_EQ(DumpAndBuild(bytes), kHeader1 + SmallBlock());
}

TEST_F(SettingsDump, OldRecordsAreDumpedWithTheirNames) {
  const std::string old =
      Block(kKeyOfDefaults, {Section(kStarBytes, 0, 1)},
            {OldRecord(kStarBytes, "m_Zoom", 1, 1, "\x01"), OldRecord(kStarBytes, "a=b", 1, 1, "\x01")});
  EXPECT_NE(Dump(old).find("\nm_Zoom = u8 1 | compare=1 condition=0x4000\n@"), std::string::npos)
      << Dump(old);
  EXPECT_NE(Obstacles(old).find("[old-layout]"), std::string::npos);
}

// Settings files as containers write them, of every type, shape and size that a field may have.
class RandomFile {
 public:
  explicit RandomFile(unsigned seed) : m_Random(seed) {}

  std::string Make() {
    std::string bytes = Below(4) == 0 ? "" : "SREV" + Le32(Word());
    for (unsigned i = 0, count = 1 + Below(3); i < count; ++i) bytes += MakeBlock(i);
    return bytes;
  }

 private:
  unsigned Below(unsigned limit) { return static_cast<unsigned>(m_Random() % limit); }
  unsigned Word() {
    static constexpr unsigned kWords[] = {0,          1,          0x44464C54, 0x73746172,
                                          0x67616C61, 0x6E6F6E65, 0x23616263, 0x61622C7C};
    return Below(2) == 0 ? kWords[Below(8)] : static_cast<unsigned>(m_Random());
  }
  unsigned char Byte() { return static_cast<unsigned char>(m_Random()); }

  std::string MakeBlock(unsigned index) {
    std::vector<std::string> sections, records;
    std::set<unsigned> ids;
    while (Below(4) != 0 && ids.size() < 6) ids.insert(Word());
    for (const unsigned id : ids) {
      const auto first = static_cast<unsigned>(records.size());
      for (unsigned i = 0, count = Below(5); i < count; ++i) records.push_back(MakeRecord(id));
      sections.push_back(Section(Le32(id), first, static_cast<unsigned>(records.size()) - 1, Byte()));
      if (Below(2) == 0) sections.back().replace(4, 4, Le32(Word()));
    }
    return Block(Le32(Word()) + Le32(index), sections, records);
  }

  std::string MakeRecord(unsigned section) {
    static constexpr unsigned kWidths[] = {1, 1, 2, 2, 4, 4, 4, 8, 1, 0, 0};
    const unsigned code = Below(11), size = Below(3) == 0 ? Below(65536) : Below(9);
    const unsigned count = std::min(size, Below(9));
    std::string values = MakeValues(code, count * kWidths[code]);
    if (Below(8) == 0) values += MakeValues(1, Below(12));
    std::string record = Record(Le32(section), NameId(), code == 10 ? 255 : static_cast<int>(code),
                                Below(4) == 0 ? size : count, values);
    if (Below(2) == 0) record.replace(15, 4, Le32(Word()));
    if (Below(2) == 0) record[19] = static_cast<char>(Byte());
    if (Below(2) == 0) record.replace(20, 4, Le32(Word()));
    return record;
  }

  unsigned NameId() {
    if (Below(4) == 0) return static_cast<unsigned>(m_Random());
    return static_cast<unsigned>(CommonInterfaces::GetFieldNames()[Below(CommonInterfaces::kFieldNames)].id);
  }

  std::string MakeValues(unsigned code, unsigned size) {
    std::string bytes;
    while (bytes.size() < size) {
      if (code == 6 && Below(3) == 0) {
        bytes += Le32(0x7F800000 | (Below(2) << 31) | Below(4));  // infinite, or not a number
      } else if (code == 7 && Below(3) == 0) {
        bytes += Le32(Below(4)) + Le32(0x7FF00000 | (Below(2) << 31));
      } else if ((code == 4 || code == 5) && Below(2) == 0) {
        bytes += Le32(Word());
      } else {
        bytes += static_cast<char>(Byte());
      }
    }
    bytes.resize(size);
    return bytes;
  }

  std::mt19937 m_Random;
};

TEST_F(SettingsDump, TenThousandRandomFilesComeBackToTheByte) {
  for (unsigned seed = 0; seed < 10000; ++seed) {
    const std::string bytes = RandomFile(seed).Make();
    ASSERT_EQ(Obstacles(bytes), "") << seed;
    ASSERT_EQ(DumpAndBuild(bytes), bytes) << seed << '\n' << Dump(bytes);
  }
}

}  // namespace
}  // namespace skydata
