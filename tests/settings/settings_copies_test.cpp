// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A container answers GetField with what the field holds now, whatever road a change came by: it keeps copies
// of short values, and whoever holds a field changes it behind the container's back.
#include <cstring>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "common_interfaces/settings_data.h"
#include "common_interfaces/settings_field.h"
#include "settings/settings_bytes.h"
#include "utils/file.h"

namespace test_support {
namespace {

using CommonInterfaces::FieldData;
using CommonInterfaces::SettingField;

constexpr unsigned kTestSection = 0x74657374;
constexpr int kMostNames = 40;
// Of each type code; and a field of that many elements of it.
constexpr unsigned kWidths[] = {1, 1, 2, 2, 4, 4, 4, 8, 1};

struct Expected {
  unsigned type;
  std::string values;
};

class SettingsCopies : public SettingsTest, public testing::WithParamInterface<unsigned> {
 protected:
  int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_Random); }

  std::string RandomBytes(std::size_t count) {
    std::string bytes(count, '\0');
    for (char& byte : bytes) byte = static_cast<char>(Below(3));  // the same value comes again
    return bytes;
  }

  // The record of a field with those values.
  static std::string Record(int nameId, unsigned type, const std::string& values) {
    return LittleEndian(kTestSection, 4) + LittleEndian(static_cast<unsigned>(nameId), 4) +
           LittleEndian(type, 1) + LittleEndian(static_cast<unsigned>(values.size()) / kWidths[type], 2) +
           std::string(4, '\0') + std::string(1, '\1') + std::string(4, '\xFF') + values;
  }

  static std::string NameOf(int i) { return "Name" + std::to_string(i); }

  void Add(int nameId) {
    const auto type = static_cast<unsigned>(Below(9));
    const std::string values =
        RandomBytes(kWidths[type] * static_cast<unsigned>(1 + Below(5) / 4 * Below(9)));
    Create(m_Settings, Record(nameId, type, values));
    m_Expected[nameId] = {type, values};
  }

  SettingField& FieldOf(int nameId) { return *m_Settings.GetAtField(kTestSection, nameId, true); }

  void Change(int nameId, Expected& expected) {
    SettingField& field = FieldOf(nameId);
    const std::string values = RandomBytes(expected.values.size());
    const unsigned width = kWidths[expected.type];
    const auto element = static_cast<unsigned>(Below(static_cast<int>(values.size() / width)));
    switch (Below(10)) {
      case 0:
        field.SetData(values.data());
        expected.values = values;
        break;
      case 1:
        m_Settings.SetField(nameId, values.data());
        expected.values = values;
        break;
      case 2:
        field.SetElement(values.data(), element);
        expected.values.replace(element * width, width, values, 0, width);
        break;
      case 3:
        m_Settings.SetFieldElement(kTestSection, nameId, values.data(), static_cast<int>(element));
        expected.values.replace(element * width, width, values, 0, width);
        break;
      case 4: {
        const int count = 1 + Below(9);
        const std::string resized = RandomBytes(width * static_cast<unsigned>(count));
        field.SetData(resized.data(), count);
        expected.values = resized;
        break;
      }
      case 5: {
        field.SetDataAndStore(values.data());
        ExpectValue(nameId, {expected.type, values});
        field.RestoreData();
        break;
      }
      case 6: {
        const std::string record = Record(nameId, expected.type, values);
        field = SettingField(nullptr, reinterpret_cast<const FieldData*>(record.data()),
                             static_cast<unsigned>(record.size()));
        expected.values = values;
        break;
      }
      case 7: {
        const std::string path = roots.dir.Write(
            "field", LittleEndian(static_cast<unsigned>(Record(nameId, 7, "12345678").size()), 4) +
                         Record(nameId, 7, "12345678"));
        MFile file;
        ASSERT_TRUE(file.Open(path.c_str(), MFile::kRead) && field.Read(&file));
        expected = {7, "12345678"};
        break;
      }
      case 8:
        m_Settings.SetFieldStatus(nameId, static_cast<unsigned char>(Below(2)));
        break;
      default: {
        const SettingField copy = field;
        std::string changed = values;
        changed[0] = '#';
        field.SetData(changed.data());
        ExpectValue(nameId, {expected.type, changed});
        field = copy;
      }
    }
  }

  void ExpectValue(int nameId, const Expected& expected) {
    std::string out(expected.values.size() + 8, '~');
    ASSERT_TRUE(m_Settings.GetField(nameId, out.data()));
    ASSERT_EQ(out, expected.values + "~~~~~~~~") << nameId << ", and nothing behind it";
  }

  SettingsData m_Settings{kId, kOwner, "absent.data"};
  std::map<int, Expected> m_Expected;
  std::mt19937 m_Random{GetParam()};
};

TEST_P(SettingsCopies, FollowEveryChange) {
  Add(::GetUniqueID("Name0"));
  m_Settings.SetCurSection(kTestSection);
  for (int step = 0; step < 4000; ++step) {
    const std::string name = NameOf(Below(kMostNames));
    const int nameId = ::GetUniqueID(name.c_str());
    const auto found = m_Expected.find(nameId);
    if (found == m_Expected.end()) {
      Add(nameId);
    } else if (Below(20) == 0) {
      ASSERT_TRUE(m_Settings.DeleteField(name.c_str(), static_cast<int>(kTestSection)));
      m_Expected.erase(found);
    } else if (Below(3) == 0) {
      Change(nameId, found->second);
    }
    const auto asked = m_Expected.find(::GetUniqueID(NameOf(Below(kMostNames)).c_str()));
    if (asked != m_Expected.end()) ExpectValue(asked->first, asked->second);
    if (HasFatalFailure()) return;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, SettingsCopies, testing::Range(1u, 9u));

// Two fields of one name in two sections, and a third section without.
TEST_F(SettingsTest, CopyBelongsToItsSection) {
  SettingsData settings(kId, kOwner, "absent.data");
  Create(settings, Int(kStar, 1, 10));
  Create(settings, Int(kPlnt, 1, 20));
  Create(settings, Int(kMoon, 2, 30));
  for (int round = 0; round < 3; ++round) {
    int value = 0;
    settings.SetCurSection(kStar);
    EXPECT_TRUE(settings.GetField(1, &value) && value == 10);
    settings.SetCurSection(kPlnt);
    EXPECT_TRUE(settings.GetField(1, &value) && value == 20);
    settings.SetCurSection(kMoon);
    debug.lines.clear();
    EXPECT_TRUE(settings.GetField(1, &value) && value == 10);  // the first of all
    EXPECT_EQ(debug.lines.size(), 1u) << "told each time";
  }
}

TEST_F(SettingsTest, CopyGoesWithItsField) {
  SettingsData settings(kId, kOwner, "absent.data");
  const int nameId = ::GetUniqueID("a");
  Create(settings, Int(kStar, nameId, 10));
  Create(settings, Int(kStar, 2, 20));
  settings.SetCurSection(kStar);
  int value = 0;
  EXPECT_TRUE(settings.GetField(nameId, &value) && settings.GetField(nameId, &value));
  ASSERT_TRUE(settings.DeleteField("a", static_cast<int>(kStar)));
  value = -1;
  EXPECT_FALSE(settings.GetField(nameId, &value));
  EXPECT_EQ(value, -1);
  settings.GetAtField(kStar, 2, true)->SetNameId(nameId);
  EXPECT_TRUE(settings.GetField(nameId, &value));
  EXPECT_EQ(value, 20);
  EXPECT_FALSE(settings.GetField(2, &value));
}

}  // namespace
}  // namespace test_support
