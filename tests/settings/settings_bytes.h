// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Settings files for tests, put together byte by byte, and what a container holds, as bytes again.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "common_interfaces/settings_data.h"
#include "settings/field_bytes.h"
#include "support/debug_capture.h"
#include "support/temp_dir.h"
#include "utils/text.h"

namespace test_support {

using CommonInterfaces::SectionRecord;
using CommonInterfaces::SettingField;
using CommonInterfaces::SettingFieldTestAccess;
using CommonInterfaces::SettingsData;

constexpr unsigned kOwner = 0x464C5452;  // "FLTR"
constexpr unsigned kId = 1;
constexpr unsigned kDefaults = 0x44464C54;
constexpr unsigned kNone = 0xFFFFFFFF;
constexpr unsigned kPlnt = 0x706C6E74, kMoon = 0x6D6F6F6E, kAstr = 0x61737472, kComt = 0x636F6D74,
                   kScft = 0x73636674, kStar = 0x73746172;

inline std::string Section(unsigned id, int first, int last, int status = 1, unsigned alias = kNone) {
  return LittleEndian(id, 4) + LittleEndian(alias, 4) + LittleEndian(static_cast<unsigned>(first), 2) +
         LittleEndian(static_cast<unsigned>(last), 2) + LittleEndian(static_cast<unsigned>(status), 1);
}

// A field of one int.
inline std::string Int(unsigned section, int nameId, int value, int status = 1) {
  RecordParts parts = IntParts({value});
  parts.section = section;
  parts.nameId = nameId;
  parts.compareStatus = static_cast<unsigned char>(status);
  return parts.Current();
}

inline std::string Ints(unsigned section, int nameId, std::initializer_list<int> values, int status = 1) {
  RecordParts parts = IntParts(values);
  parts.section = section;
  parts.nameId = nameId;
  parts.compareStatus = static_cast<unsigned char>(status);
  return parts.Current();
}

// A favourite: five flags and a key.
inline std::string Favo(unsigned section, int nameId, std::initializer_list<int> flags, int key,
                        int status = 1, unsigned querySection = kNone) {
  RecordParts parts = ByteParts(flags);
  parts.section = section;
  parts.nameId = nameId;
  parts.type = 8;
  parts.size = 9;
  parts.compareStatus = static_cast<unsigned char>(status);
  parts.querySection = querySection;
  parts.values += Int32s({key});
  return parts.Current();
}

inline std::string Block(unsigned owner, unsigned id, const std::vector<std::string>& sections,
                         const std::vector<std::string>& records) {
  std::string bytes = LittleEndian(owner, 4) + LittleEndian(id, 4) + LittleEndian(sections.size(), 2);
  for (const std::string& section : sections) bytes += section;
  bytes += LittleEndian(records.size(), 4);
  for (const std::string& record : records) bytes += WithLength(record);
  return bytes;
}

inline std::string Header(unsigned version) { return "SREV" + LittleEndian(version, 4); }

inline std::vector<std::string> RecordsOf(const SettingsData& settings) {
  std::vector<std::string> records;
  for (int i = 0; i < settings.GetFieldCount(); ++i)
    records.push_back(SettingFieldTestAccess::RecordBytes(*settings.GetFieldAt(i)));
  return records;
}

inline std::vector<std::string> SectionsOf(const SettingsData& settings) {
  std::vector<std::string> sections;
  for (int i = 0; i < settings.GetSectionCount(); ++i) {
    const SectionRecord& s = *settings.GetSectionAt(i);
    sections.push_back(Section(s.id, s.first, s.last, s.status, s.alias));
  }
  return sections;
}

inline std::vector<int> NamesOf(const SettingsData& settings) {
  std::vector<int> names;
  for (int i = 0; i < settings.GetFieldCount(); ++i) names.push_back(settings.GetFieldAt(i)->GetNameId());
  return names;
}

inline int Create(SettingsData& settings, const std::string& record, bool allowExisting = false) {
  return settings.CreateField(reinterpret_cast<const CommonInterfaces::FieldData*>(record.data()),
                              static_cast<int>(record.size()), allowExisting);
}

inline int FirstInt(const SettingField& field) {
  int value = 0;
  EXPECT_TRUE(field.GetElement(&value, 0));
  return value;
}

// A test with its own data root and work area, and what was printed.
class SettingsTest : public testing::Test {
 protected:
  // Creates "filters.data" in the data root.
  void WriteDefaults(const std::string& content) { roots.dir.Write("data/filters.data", content); }
  std::string WriteFile(const std::string& content) { return roots.dir.Write("named.data", content); }
  void TearDown() override { SettingField::SetOldSettings(false); }

  TempRoots roots;
  DebugCapture debug;
};

constexpr char kNotDefined[] = "Current section in file filters.dat not define\n";

}  // namespace test_support
